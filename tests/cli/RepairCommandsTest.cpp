// tarvik-cli over a data directory whose channel table was cut short: every command says so
// once, list and load work on what is intact, writes to the table are refused, and repair
// mends it.
#include "CliContext.h"
#include "ConfigFile.h"
#include "ConfigImage.h"
#include "Messages.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>
#include <gtest/gtest.h>

namespace {

struct CliRun
{
    int code = -1;
    QString out, err;
};

class RepairCommands : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        static int argc = 1;
        static char name[] = "cli_tests";
        static char *argv[] = {name, nullptr};
        if (!QCoreApplication::instance())
            new QCoreApplication(argc, argv);
    }
    CliRun cli(const QStringList &args)
    {
        CliRun r;
        QTextStream out(&r.out);
        QTextStream err(&r.err);
        r.code = runCli(QStringList{QStringLiteral("--data-dir"), db()} + args, out, err);
        return r;
    }
    QString db() const { return dir.filePath(QStringLiteral("db")); }
    QString channels() const { return QDir(db()).filePath(QStringLiteral("Canaux.dbf")); }

    QTemporaryDir dir;
};

} // namespace

TEST_F(RepairCommands, CutChannelTableIsSaidOnceReadAndRepaired)
{
    ConfigImage image = ConfigImage::blank();
    image.version[0] = 0x13;
    const QString file = dir.filePath(QStringLiteral("v.json"));
    QString error;
    ASSERT_TRUE(saveConfigFile(file, image, &error)) << error.toStdString();
    ASSERT_EQ(cli({"save", file, "--ident", "V0"}).code, kExitOk);
    ASSERT_EQ(cli({"save", file, "--ident", "V1"}).code, kExitOk);

    // cut three bytes into the 71st of 120 channel rows: V0 keeps its 60, V1 its first 10
    QFile table(channels());
    ASSERT_TRUE(table.open(QIODevice::ReadOnly));
    const QByteArray whole = table.readAll();
    table.close();
    const int header = qFromLittleEndian<quint16>(whole.constData() + 8);
    const int record = qFromLittleEndian<quint16>(whole.constData() + 10);
    const QByteArray cut = whole.left(header + 70 * record + 3);
    ASSERT_TRUE(table.open(QIODevice::WriteOnly | QIODevice::Truncate));
    table.write(cut);
    table.close();

    const QString notice = messageText(
        Msg::RecordsDamaged,
        {messageText(Msg::RecordsTruncated, {QStringLiteral("Canaux.dbf"), "70", "120"})});
    const QString refusal = messageText(Msg::RecordsDamagedRefused, {QStringLiteral("Canaux.dbf")});
    const CliRun list = cli({"list"});
    EXPECT_EQ(list.code, kExitOk);
    EXPECT_EQ(list.out, "V0\t\t19\nV1\t\t19\n");
    EXPECT_EQ(list.err, notice + '\n');

    const CliRun load = cli({"load", "V1", "-o", dir.filePath(QStringLiteral("back.json"))});
    EXPECT_EQ(load.code, kExitOk);
    QStringList lost;
    for (int c = 11; c <= 60; ++c)
        lost.append(QString::number(c));
    EXPECT_EQ(load.err, notice + '\n' +
                            messageText(Msg::SavedChannelsMissing,
                                        {QStringLiteral("V1"), lost.join(QStringLiteral(", "))}) +
                            '\n');

    for (const QStringList &write :
         {QStringList{"save", file, "--ident", "V2"}, QStringList{"delete", "V0"}}) {
        const CliRun refused = cli(write);
        EXPECT_EQ(refused.code, kExitFailed);
        EXPECT_EQ(refused.err, notice + '\n' + refusal + '\n');
    }
    EXPECT_EQ(cli({"values", "save", "Euro", file}).code, kExitOk); // another table

    EXPECT_EQ(cli({"repair", "Nonsense"}).code, kExitUsage);
    const CliRun repair = cli({"repair"});
    EXPECT_EQ(repair.code, kExitOk) << repair.out.toStdString();
    const QStringList lines = repair.out.split('\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 5);
    EXPECT_TRUE(lines.at(1).startsWith(
        QStringLiteral("Canaux.dbf repaired: 70 records kept, 50 could not be read")))
        << lines.at(1).toStdString();
    EXPECT_EQ(lines.at(0), messageText(Msg::RepairSound, {QStringLiteral("Monnayeur.DBF")}));
    const QStringList backups = QDir(QDir(db()).filePath(QStringLiteral("backups")))
                                    .entryList({QStringLiteral("damaged-*")}, QDir::Dirs);
    ASSERT_EQ(backups.size(), 1);
    QFile copy(QDir(db()).filePath(QStringLiteral("backups/") + backups.first() + "/Canaux.dbf"));
    ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
    EXPECT_EQ(copy.readAll(), cut);

    const CliRun after = cli({"list"});
    EXPECT_EQ(after.err, QString());
    EXPECT_EQ(cli({"delete", "V1"}).code, kExitOk);
    const CliRun one = cli({"repair", "canaux"});
    EXPECT_EQ(one.code, kExitOk);
    EXPECT_EQ(one.out, messageText(Msg::RepairSound, {QStringLiteral("Canaux.dbf")}) + '\n');
}

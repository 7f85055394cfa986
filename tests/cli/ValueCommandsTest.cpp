// tarvik-cli values: list, save, apply and delete against a temporary data directory.
#include "CliContext.h"
#include "ConfigFile.h"
#include "ConfigImage.h"
#include "DbfTable.h"
#include "TDBModule.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

struct ValuesRun
{
    int code = -1;
    QString out, err;
};

ValuesRun values(const QString &dataDir, const QStringList &args)
{
    ValuesRun r;
    QTextStream out(&r.out);
    QTextStream err(&r.err);
    r.code =
        runCli(QStringList{QStringLiteral("--data-dir"), dataDir, QStringLiteral("values")} + args,
               out, err);
    return r;
}

class ValueCommands : public ::testing::Test
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
    QString path(const char *name) const { return dir.filePath(QLatin1String(name)); }
    QString db() const { return path("db"); }

    QTemporaryDir dir;
};

} // namespace

TEST_F(ValueCommands, SaveListApplyDelete)
{
    ConfigImage source = ConfigImage::blank();
    source.version[0] = 0x13;
    source.values = {0x40, 0x19, 0x40, 0x32}; // bases 0.25 and 0.50, then zeros
    for (int i = 0; i < kChannels; ++i)
        source.values[std::size_t(Val::Channel0 + i)] = quint8(i + 1);
    source.values[64] = 0x00, source.values[65] = 0x10, source.values[66] = 0x00;
    source.values[67] = 0x7D;
    QString error;
    ASSERT_TRUE(saveConfigFile(path("source.json"), source, &error)) << error.toStdString();

    EXPECT_EQ(values(db(), {"save", "Euro", path("source.json"), "--description", "coins"}).code,
              kExitOk);
    const ValuesRun refused = values(db(), {"save", "EURO", path("source.json")});
    EXPECT_EQ(refused.code, kExitFailed);
    EXPECT_TRUE(refused.err.contains(QLatin1String("EURO exist! Overwrite ?")));
    EXPECT_EQ(values(db(), {"save", "EURO", path("source.json"), "--overwrite"}).code, kExitOk);
    EXPECT_EQ(values(db(), {"list"}).out, QLatin1String("EURO\t\n"));

    // Applying replaces the first 68 bytes of the target's value block and keeps the rest.
    ConfigImage target = ConfigImage::blank();
    target.version[0] = 0x13;
    target.values.fill(0x33);
    ASSERT_TRUE(saveConfigFile(path("target.json"), target, &error));
    EXPECT_EQ(values(db(), {"apply", "euro", path("target.json"), "-o", path("out.json")}).code,
              kExitOk);
    ConfigImage applied;
    ASSERT_TRUE(loadConfigFile(path("out.json"), applied, &error)) << error.toStdString();
    for (int i = 0; i < 75; ++i)
        EXPECT_EQ(applied.values[std::size_t(i)],
                  i < 68 ? source.values[std::size_t(i)] : quint8(0x33))
            << "byte " << i;
    EXPECT_EQ(values(db(), {"apply", "nope", path("target.json")}).code, kExitFailed);

    // Another tool left text in CANAL7: the table is not applied and no file is written.
    {
        TDBModule tables;
        ASSERT_TRUE(tables.open(db()));
        const DbfTable &table = *tables.ValueTable();
        const DbfField &field = table.field(table.fieldIndex(QStringLiteral("CANAL7")));
        const int offset = field.offset;
        const int width = field.length;
        const QString file = table.filePath();
        tables.close();
        QFile dbf(file);
        ASSERT_TRUE(dbf.open(QIODevice::ReadWrite));
        QByteArray bytes = dbf.readAll();
        const int headerLength = quint8(bytes[8]) | quint8(bytes[9]) << 8;
        bytes.replace(headerLength + offset, width, QByteArray("  abc ").right(width));
        dbf.seek(0);
        dbf.write(bytes);
    }
    const ValuesRun bad =
        values(db(), {"apply", "euro", path("target.json"), "-o", path("bad.json")});
    EXPECT_EQ(bad.code, kExitFailed);
    EXPECT_TRUE(bad.err.contains(QLatin1String("'abc' is not a valid integer value")))
        << qPrintable(bad.err);
    EXPECT_FALSE(QFile::exists(path("bad.json")));

    const ValuesRun missing = values(db(), {"delete", "nope"});
    EXPECT_EQ(missing.code, kExitFailed);
    EXPECT_TRUE(missing.err.contains(QLatin1String("No value table nope is stored")));
    EXPECT_EQ(values(db(), {"delete", "Euro"}).code, kExitOk);
    EXPECT_TRUE(values(db(), {"list"}).out.isEmpty());
    EXPECT_EQ(values(db(), {"frobnicate"}).code, kExitUsage);
    EXPECT_EQ(values(db(), {"save", "OnlyName"}).code, kExitUsage);
}

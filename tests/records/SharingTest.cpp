// Several programs on one data directory at once: the program's browser open while tarvik-cli
// stores there, and writer and reader processes all at once (SharingWorker).
#include "ConfigFile.h"
#include "DbfTable.h"
#include "IndexChecker.h"
#include "Messages.h"
#include "RecordingPrompt.h"
#include "SavedValidatorsModel.h"
#include "TDBModule.h"
#include "TFormReadFileData.h"
#include "TableLock.h"
#include "TableSchema.h"
#include "TestFiles.h"
#include "ValidatorStore.h"
#include "ValueTableStore.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QProcess>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <map>
#include <memory>

namespace {

using namespace testfiles;

ToolRun cli(const QString &dir, const QStringList &args)
{
    return runTool(QStringLiteral(TARVIK_CLI_PATH),
                   QStringList{QStringLiteral("--data-dir"), dir} + args);
}

// What tarvik-cli said beyond "File %s saved" and the question it answered.
QStringList warnings(const ToolRun &r)
{
    QStringList lines = QString::fromUtf8(r.err).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    lines.removeIf([](const QString &line) {
        return line.endsWith(QLatin1String(" saved")) ||
               line.contains(QLatin1String(" exist! Overwrite ?"));
    });
    return lines;
}

// The program's browser and a value table store stay open on the directory while tarvik-cli
// saves, overwrites and deletes there: every command succeeds without a word of warning, and
// the browser then lists what it stored. A delete of a row tarvik-cli changed since the
// browser showed it asks again.
TEST(Sharing, ProgramOpenWhileCliStores)
{
    QTemporaryDir root;
    const QString dir = QDir(root.path()).filePath(QStringLiteral("db"));
    RecordingPrompt prompt(UserPrompt::Answer::Yes);
    TDBModule db;
    ASSERT_TRUE(db.open(dir, &prompt));
    SavedValidatorsModel browser(db, prompt, nullptr);
    TFormReadFileData form(browser);
    form.show();
    auto *grid = form.findChild<QTableView *>(QStringLiteral("GridValidators"))->model();
    auto *filter = form.findChild<QLineEdit *>(QStringLiteral("EFilter"));
    ASSERT_TRUE(grid && filter);
    ValueTableStore values(db, prompt);
    ValidatorStore validators(db, prompt);
    EXPECT_EQ(grid->rowCount(), 0);

    const QString file = QDir(root.path()).filePath(QStringLiteral("image.json"));
    QString error;
    ConfigImage image = ConfigImage::blank();
    image.version[0] = 0x13;
    ASSERT_TRUE(saveConfigFile(file, image, &error)) << error.toStdString();
    const QList<QStringList> commands = {
        {"save", file, "--ident", "SHOP-1", "--description", "first"},
        {"save", file, "--ident", "SHOP-2"},
        {"save", file, "--ident", "shop-1", "--description", "second", "--overwrite"},
        {"values", "save", "EURO", file},
        {"values", "save", "CHF", file},
        {"values", "save", "euro", file, "--description", "again", "--overwrite"},
        {"values", "delete", "CHF"},
        {"delete", "SHOP-2"}};
    for (const QStringList &command : commands) {
        const ToolRun r = cli(dir, command);
        EXPECT_EQ(r.exitCode, 0) << command.join(' ').toStdString() << r.err.toStdString();
        EXPECT_EQ(warnings(r), QStringList());
        // and the program stores between the commands, as a technician would
        if (command == commands.at(1)) {
            EXPECT_EQ(validators.store(image, QStringLiteral("BENCH"), QStringLiteral("gui")),
                      ValidatorStore::Outcome::Stored);
        }
    }
    const ToolRun listed = cli(dir, {"list"});
    EXPECT_EQ(listed.exitCode, 0);
    EXPECT_EQ(warnings(listed), QStringList());
    EXPECT_EQ(QString::fromUtf8(listed.out).count(QLatin1Char('\n')), 2);

    QTest::keyClicks(filter, QStringLiteral("S")); // the browser lists again
    ASSERT_EQ(grid->rowCount(), 1);
    EXPECT_EQ(grid->index(0, 0).data().toString(),
              QStringLiteral("shop-1")); // as the overwrite named it
    EXPECT_EQ(grid->index(0, 1).data().toString(), QStringLiteral("second"));
    filter->clear();
    QTest::keyClicks(filter, QStringLiteral(" "));
    QTest::keyClick(filter, Qt::Key_Backspace);
    EXPECT_EQ(grid->rowCount(), 2);
    ASSERT_EQ(values.list().size(), 1);
    EXPECT_EQ(values.list().at(0).description, QStringLiteral("again"));

    // tarvik-cli changes SHOP-1 after the browser showed it: deleting it asks again
    browser.setFilter(QStringLiteral("SHOP"));
    browser.select(0);
    ASSERT_EQ(cli(dir, {"save", file, "--ident", "SHOP-1", "--description", "third", "--overwrite"})
                  .exitCode,
              0);
    prompt.clear();
    prompt.setNextAnswers({UserPrompt::Answer::Yes, UserPrompt::Answer::No});
    EXPECT_FALSE(browser.BtnDeleteClick());
    ASSERT_EQ(prompt.asked().size(), 2);
    EXPECT_EQ(prompt.asked().at(1),
              messageText(Msg::RecordsChangedMeanwhile, {QStringLiteral("shop-1")}));
    browser.setFilter(QString());
    ASSERT_EQ(browser.rows().size(), 2);
    EXPECT_EQ(browser.rows().at(1).description, QStringLiteral("third"));
}

// A data directory that six programs shared, checked by a fresh program and the independent
// readers: the validators stored, each once, each with its own 60 channels.
void expectStored(const QString &dir, const std::map<QString, int> &expected)
{
    RecordingPrompt prompt;
    TDBModule db;
    ASSERT_TRUE(db.open(dir, &prompt));
    // a change a killed writer left decided has been completed
    EXPECT_TRUE(QDir(dir).entryList({QStringLiteral("*.tarvik-journal")}).isEmpty());
    ValidatorStore store(db, prompt);
    std::map<QString, int> found;
    for (const ValidatorStore::Entry &e : store.list()) {
        ++found[e.identification];
        ConfigImage image;
        ValidatorStore::LoadReport report;
        ASSERT_TRUE(store.load(e.identification, image, nullptr, &report));
        EXPECT_TRUE(report.missing.isEmpty() && report.duplicated.isEmpty())
            << e.identification.toStdString();
    }
    EXPECT_EQ(found, expected);
    for (const TableSchema *s : TableSchema::all()) {
        const QString table = DbfTable::findInDirectory(dir, s->fileName);
        QList<ExpectedTag> tags;
        for (const TagDef &t : s->tags)
            tags.append({t.name, t.unique});
        EXPECT_EQ(checkIndex(table, DbfTable::findInDirectory(dir, s->indexFileName), tags),
                  QStringList())
            << s->fileName.toStdString();
        TableLock free(table); // nobody holds a lock any more
        EXPECT_TRUE(free.lock(TableLock::Mode::Exclusive, 0)) << s->fileName.toStdString();
    }
    db.close();

    if (QFileInfo(QStringLiteral(TARVIK_PYTHON)).isExecutable()) {
        const QJsonObject dump =
            QJsonDocument::fromJson(
                run(QStringLiteral(TARVIK_PYTHON),
                    {QStringLiteral(TARVIK_DBFREAD_SCRIPT),
                     DbfTable::findInDirectory(dir, TableSchema::gettoniere().fileName)}))
                .object();
        EXPECT_EQ(dump.value(QLatin1String("records")).toArray().size(), qsizetype(found.size()));
    }
    if (QFileInfo(QStringLiteral(TARVIK_FPC)).isExecutable()) {
        QTemporaryDir build;
        const QString program = QDir(build.path()).filePath(QStringLiteral("tdbf_check"));
        run(QStringLiteral(TARVIK_FPC),
            {QStringLiteral("-O1"), QStringLiteral("-FU") + build.path(),
             QStringLiteral("-o") + program, QStringLiteral(TARVIK_TDBF_SOURCE)});
        const QString index = DbfTable::findInDirectory(dir, TableSchema::channel().indexFileName);
        const QString lower = index.left(index.size() - 3) + QStringLiteral("mdx");
        ASSERT_TRUE(QFile::rename(index, lower)); // TDbf looks for a lower-case extension
        const QString out = QString::fromLatin1(
            run(program, {DbfTable::findInDirectory(dir, TableSchema::channel().fileName),
                          QStringLiteral("MONNAYEUR"), QStringLiteral("MONNAYEUR")}));
        QFile::rename(lower, index);
        EXPECT_TRUE(out.contains(QLatin1String("misordered 0 misses 0"))) << out.toStdString();
    }
}

std::unique_ptr<QProcess> start(const QStringList &args)
{
    auto p = std::make_unique<QProcess>();
    p->start(QStringLiteral(TARVIK_SHARING_WORKER), args);
    EXPECT_TRUE(p->waitForStarted());
    return p;
}

// The validators writers 1 to `writers` store, the shared ones once each; `cut` is the number
// of validators the last writer stored before it died.
std::map<QString, int> storedBy(int writers, int count, int cut = -1)
{
    std::map<QString, int> expected;
    for (int w = 1; w <= writers; ++w) {
        for (int i = 0; i < (w == writers && cut >= 0 ? cut : count); ++i)
            expected[i % 5 == 4 ? QStringLiteral("SHARED-%1").arg(i / 5)
                                : QStringLiteral("W%1-%2").arg(w).arg(i)] = 1;
    }
    return expected;
}

// Four writers and two readers start at once on a directory that does not exist yet.
TEST(Sharing, FourWritersTwoReaders)
{
    QTemporaryDir root;
    const QString dir = QDir(root.path()).filePath(QStringLiteral("db"));
    std::vector<std::unique_ptr<QProcess>> programs;
    for (int w = 1; w <= 4; ++w)
        programs.push_back(
            start({QStringLiteral("write"), dir, QString::number(w), QStringLiteral("25")}));
    for (int r = 0; r < 2; ++r)
        programs.push_back(start({QStringLiteral("read"), dir, QStringLiteral("6000")}));
    for (auto &p : programs) {
        ASSERT_TRUE(p->waitForFinished(50000));
        EXPECT_EQ(p->exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(p->exitCode(), 0) << p->readAllStandardError().toStdString();
        std::cout << p->readAllStandardOutput().toStdString();
    }
    expectStored(dir, storedBy(4, 25));
}

// A writer killed half way through a commit, after the change was decided, leaves it to the
// others, who complete it whole before their own, and leaves no lock behind: the others finish.
TEST(Sharing, WriterKilledMidCommit)
{
    QTemporaryDir root;
    const QString dir = QDir(root.path()).filePath(QStringLiteral("db"));
    std::vector<std::unique_ptr<QProcess>> programs;
    // writer 4 dies between the two tables of the commit of its eighth validator (W4-7)
    programs.push_back(start({QStringLiteral("write"), dir, QStringLiteral("4"),
                              QStringLiteral("25"), QStringLiteral("15")}));
    for (int w = 1; w <= 3; ++w)
        programs.push_back(
            start({QStringLiteral("write"), dir, QString::number(w), QStringLiteral("25")}));
    ASSERT_TRUE(programs.at(0)->waitForFinished(50000));
    EXPECT_EQ(programs.at(0)->exitStatus(), QProcess::CrashExit);
    for (std::size_t i = 1; i < programs.size(); ++i) {
        ASSERT_TRUE(programs.at(i)->waitForFinished(50000));
        EXPECT_EQ(programs.at(i)->exitCode(), 0)
            << programs.at(i)->readAllStandardError().toStdString();
    }
    std::map<QString, int> expected = storedBy(4, 25, 8);
    for (const auto &[ident, n] : storedBy(3, 25))
        expected[ident] = n;
    expectStored(dir, expected);
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen"); // the tests are listed without a display too
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

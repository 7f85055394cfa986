// One change of a validator is one commit of both its tables, whatever instant the program dies
// at; tables linked from a shared folder stay links; locks wait once, name their holder, and
// pipes and unreadable directories are refused at once.
#include "DbfTable.h"
#include "Messages.h"
#include "RecordingPrompt.h"
#include "TDBModule.h"
#include "TableLock.h"
#include "TableRepair.h"
#include "TableRepairModel.h"
#include "TableSchema.h"
#include "TestFiles.h"
#include "ValidatorStore.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>
#include <unistd.h>

namespace {

using namespace testfiles;

ConfigImage imageOf(int g)
{
    ConfigImage image = ConfigImage::blank();
    image.prices[0] = quint8(g);
    for (int k = 0; k < kChannels; ++k)
        image.channels[std::size_t(k)].fill(quint8(g));
    return image;
}

// The generation of a stored validator, -1 when it is not whole (its row and its 60 channels
// from one store); 0 when it is not stored.
int generationOf(ValidatorStore &store, const QString &ident)
{
    ConfigImage image;
    ValidatorStore::LoadReport report;
    if (!store.load(ident, image, nullptr, &report))
        return 0;
    if (!report.missing.isEmpty() || !report.duplicated.isEmpty())
        return -1;
    for (const ChannelRecord &c : image.channels) {
        if (c[0] != image.prices[0])
            return -1;
    }
    return image.prices[0];
}

int liveRowsByDbfread(const QString &table)
{
    if (!QFileInfo(QStringLiteral(TARVIK_PYTHON)).isExecutable())
        return -1;
    return int(QJsonDocument::fromJson(run(QStringLiteral(TARVIK_PYTHON),
                                           {QStringLiteral(TARVIK_DBFREAD_SCRIPT), table}))
                   .object()
                   .value(QLatin1String("records"))
                   .toArray()
                   .size());
}

// A store, an overwrite and a delete, each cut at every step of the commit (each time a step
// comes): the next program sees the validator as before or as changed, whole, and other
// readers see the same rows (no row appended after the count stays behind).
TEST(Commit, CutAtEveryStepAllOrNothing)
{
    using Step = DbfTable::CommitStep;
    const Step steps[] = {Step::WriteIndexTemp, Step::WriteJournal, Step::AppendRecords,
                          Step::WriteTableTemp, Step::UpdateHeader, Step::ReplaceTable,
                          Step::ReplaceIndex,   Step::RemoveJournal};
    enum Op
    {
        Save,
        Overwrite,
        Delete
    };
    int cuts = 0;
    for (Op op : {Save, Overwrite, Delete}) {
        for (Step cutAt : steps) {
            for (int occurrence = 1; occurrence <= 2; ++occurrence) {
                SCOPED_TRACE(testing::Message()
                             << "op " << op << " step " << int(cutAt) << " #" << occurrence);
                QTemporaryDir dir;
                RecordingPrompt prompt(UserPrompt::Answer::Yes);
                bool reached = false;
                {
                    TDBModule db;
                    ASSERT_TRUE(db.open(dir.path()));
                    ValidatorStore store(db, prompt);
                    for (const char *ident : {"V1", "V2"})
                        ASSERT_EQ(store.store(imageOf(1), QString::fromLatin1(ident), {}),
                                  ValidatorStore::Outcome::Stored);
                    int seen = 0;
                    DbfTable::setCommitHook([&](Step step) {
                        if (step == cutAt && ++seen == occurrence) {
                            reached = true;
                            return DbfTable::HookAction::Crash;
                        }
                        return DbfTable::HookAction::Continue;
                    });
                    if (op == Delete)
                        store.remove(QStringLiteral("V1"));
                    else
                        store.store(imageOf(2),
                                    op == Save ? QStringLiteral("V3") : QStringLiteral("V1"), {});
                    DbfTable::setCommitHook({});
                }
                if (!reached)
                    continue;
                ++cuts;
                TDBModule db;
                ASSERT_TRUE(db.open(dir.path()));
                ValidatorStore store(db, prompt);
                EXPECT_EQ(generationOf(store, QStringLiteral("V2")), 1);
                const int changed =
                    generationOf(store, op == Save ? QStringLiteral("V3") : QStringLiteral("V1"));
                const int before = op == Save ? 0 : 1, after = op == Delete ? 0 : 2;
                EXPECT_TRUE(changed == before || changed == after) << changed;
                EXPECT_TRUE(QDir(dir.path()).entryList({QStringLiteral("*.tarvik-*")}).isEmpty())
                    << QDir(dir.path()).entryList().join(u' ').toStdString();
                const int dbfread = liveRowsByDbfread(db.Channel()->filePath());
                if (dbfread >= 0) {
                    EXPECT_EQ(dbfread, int(db.Channel()->liveRows().size()));
                }
            }
        }
    }
    EXPECT_GE(cuts, 20);
}

// Tables linked from a shared folder: every change lands in the shared files, the links stay,
// a program opening the shared folder itself sees it, and both take the same locks.
TEST(Commit, LinkedTablesStayLinks)
{
    QTemporaryDir root;
    const QDir shared(QDir(root.path()).filePath(QStringLiteral("shared")));
    const QDir data(QDir(root.path()).filePath(QStringLiteral("db")));
    {
        TDBModule db;
        ASSERT_TRUE(db.open(shared.path()));
    }
    ASSERT_TRUE(QDir().mkpath(data.path()));
    const QStringList linked = {QStringLiteral("Monnayeur.DBF"), QStringLiteral("Monnayeur.MDX"),
                                QStringLiteral("Canaux.dbf"), QStringLiteral("Canaux.MDX")};
    for (const QString &name : linked)
        ASSERT_TRUE(QFile::link(shared.filePath(name), data.filePath(name)));

    RecordingPrompt prompt(UserPrompt::Answer::Yes);
    TDBModule db;
    ASSERT_TRUE(db.open(data.path()));
    ValidatorStore store(db, prompt);
    TDBModule direct;
    ASSERT_TRUE(direct.open(shared.path()));
    ValidatorStore sharedStore(direct, prompt);
    for (int g : {1, 2}) // a store, then an overwrite
        ASSERT_EQ(store.store(imageOf(g), QStringLiteral("L1"), {}),
                  ValidatorStore::Outcome::Stored);
    ASSERT_EQ(store.store(imageOf(3), QStringLiteral("L2"), {}), ValidatorStore::Outcome::Stored);
    EXPECT_EQ(generationOf(sharedStore, QStringLiteral("L1")), 2);
    ASSERT_TRUE(store.remove(QStringLiteral("L2")));
    EXPECT_EQ(generationOf(sharedStore, QStringLiteral("L2")), 0);
    for (const QString &name : linked) {
        EXPECT_TRUE(QFileInfo(data.filePath(name)).isSymLink()) << name.toStdString();
        EXPECT_FALSE(QFileInfo::exists(data.filePath(name + QStringLiteral(".lck"))));
    }
    // the lock of the linked table is the shared file's
    TableLock held(shared.filePath(QStringLiteral("Canaux.dbf")));
    ASSERT_TRUE(held.lock(TableLock::Mode::Exclusive));
    TableLock viaLink(data.filePath(QStringLiteral("Canaux.dbf")));
    EXPECT_FALSE(viaLink.lock(TableLock::Mode::Exclusive, 0));
    held.unlock();
    // the other program stores through the shared folder; the linked one sees it
    ASSERT_EQ(sharedStore.store(imageOf(4), QStringLiteral("L3"), {}),
              ValidatorStore::Outcome::Stored);
    EXPECT_EQ(generationOf(store, QStringLiteral("L3")), 4);
}

// Another program holds the channel table's lock (frozen in the middle of a change): a store
// waits once, about the bound in all (not the bound per lock), says after a second that it
// waits, and then names the holder and the time really waited; a reader gives up the same way.
TEST(Locks, OneBoundedWaitNamingTheHolder)
{
    QTemporaryDir dir;
    RecordingPrompt prompt(UserPrompt::Answer::Yes);
    TDBModule writer; // open before the other program takes the lock
    ASSERT_TRUE(writer.open(dir.path()));
    ValidatorStore store(writer, prompt);
    ASSERT_EQ(store.store(imageOf(1), QStringLiteral("W1"), {}), ValidatorStore::Outcome::Stored);
    const QString channels = DbfTable::findInDirectory(dir.path(), QStringLiteral("Canaux.dbf"));
    QProcess holder;
    holder.start(QStringLiteral(TARVIK_SHARING_WORKER),
                 {QStringLiteral("hold"), channels, QStringLiteral("60000")});
    ASSERT_TRUE(holder.waitForReadyRead(60000));
    const QString who = QStringLiteral("records_sharing_worker %1").arg(holder.processId());

    QStringList notices;
    TableLock::setWaitNotice([&](const QString &text) { notices.append(text); });
    TableLock::setWaitLimitMs(3000);
    TDBModule db;
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(db.open(dir.path(), &prompt)); // the channel table is not read
    const qint64 readerMs = clock.elapsed();
    EXPECT_TRUE(db.errorString().contains(QLatin1String("nothing read")))
        << db.errorString().toStdString();
    EXPECT_TRUE(db.errorString().contains(who)) << db.errorString().toStdString();
    EXPECT_TRUE(db.Gettoniere()->isOpen());

    clock.start();
    EXPECT_EQ(store.store(imageOf(2), QStringLiteral("W1"), {}), ValidatorStore::Outcome::Failed);
    const qint64 writerMs = clock.elapsed();
    TableLock::setWaitLimitMs(-1);
    TableLock::setWaitNotice({});
    holder.kill();
    holder.waitForFinished(60000);
    EXPECT_EQ(generationOf(store, QStringLiteral("W1")), 1);

    const QString error = store.errorString();
    EXPECT_TRUE(error.contains(QLatin1String("nothing written")) && error.contains(who))
        << error.toStdString();
    // the bound in all: a wait per lock in a row would take twice as long or more
    for (qint64 ms : {readerMs, writerMs}) {
        EXPECT_GE(ms, 2900);
        EXPECT_LT(ms, 5900);
    }
    ASSERT_FALSE(notices.isEmpty());
    EXPECT_TRUE(notices.first().contains(QLatin1String("is locked by ") + who))
        << notices.first().toStdString();
    EXPECT_TRUE(notices.first().contains(QLatin1String("waiting at most 3 s")));
    // the time given is the time waited
    const QRegularExpression waited(QStringLiteral("waited (\\d+\\.\\d) s"));
    const QRegularExpressionMatch m = waited.match(db.errorString());
    ASSERT_TRUE(m.hasMatch());
    EXPECT_GE(m.captured(1).toDouble(), 2.9);
    EXPECT_LE(m.captured(1).toDouble() * 1000, double(readerMs) + 100);
}

// A pipe in place of a table, or of its index, is refused at once by every command (opening
// one would wait for a writer for ever); an unreadable data directory is said as such.
TEST(Locks, PipesAndUnreadableDirectoriesRefused)
{
    QTemporaryDir dir;
    {
        TDBModule db;
        ASSERT_TRUE(db.open(dir.path()));
    }
    const QString channels = QDir(dir.path()).filePath(QStringLiteral("Canaux.dbf"));
    QFile::remove(channels);
    ASSERT_EQ(QProcess::execute(QStringLiteral("mkfifo"), {channels}), 0);
    for (const QStringList &command : {QStringList{QStringLiteral("list")},
                                       QStringList{QStringLiteral("load"), QStringLiteral("X")},
                                       QStringList{QStringLiteral("repair")}}) {
        const ToolRun r = runTool(QStringLiteral(TARVIK_CLI_PATH),
                                  QStringList{QStringLiteral("--data-dir"), dir.path()} + command);
        EXPECT_GE(r.exitCode, 0) << command.join(u' ').toStdString(); // it ended
        EXPECT_TRUE(r.err.contains("is not a file") || r.out.contains("is not a file"))
            << r.err.toStdString() << r.out.toStdString();
    }

    // Permissions do not bind root: the command runs as nobody then.
    QTemporaryDir locked;
    {
        TDBModule db;
        ASSERT_TRUE(db.open(locked.path()));
    }
    QFile::setPermissions(locked.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QStringList command = {QStringLiteral(TARVIK_CLI_PATH), QStringLiteral("--data-dir"),
                           locked.path(), QStringLiteral("list")};
    if (::geteuid() == 0)
        command = QStringList{QStringLiteral("setpriv"), QStringLiteral("--reuid=65534"),
                              QStringLiteral("--regid=65534"), QStringLiteral("--clear-groups")} +
                  command;
    const ToolRun r = runTool(command.takeFirst(), command);
    if (::geteuid() == 0 && r.err.contains("setpriv"))
        GTEST_SKIP() << "cannot run as another user: " << r.err.toStdString();
    EXPECT_NE(r.exitCode, 0);
    EXPECT_TRUE(r.err.contains("cannot be read")) << r.err.toStdString();
    EXPECT_FALSE(r.err.contains("is missing")) << r.err.toStdString();
    QFile::setPermissions(locked.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                             QFile::ReadOther | QFile::ExeOther);
}

} // namespace

namespace {

// Channel rows whose validator row is gone, and a validator without channel rows, as older
// versions left them after a crash: the check names both, the repair removes the orphan rows
// (a copy kept) and keeps the validator, saying so; the window offers the repair.
TEST(Commit, OrphansAndChannellessValidatorsFoundAndRepaired)
{
    QTemporaryDir dir;
    {
        RecordingPrompt prompt;
        TDBModule db;
        ASSERT_TRUE(db.open(dir.path()));
        ValidatorStore store(db, prompt);
        for (int g : {1, 2, 3})
            ASSERT_EQ(store.store(imageOf(g), QStringLiteral("V%1").arg(g), {}),
                      ValidatorStore::Outcome::Stored);
        // what a crash between the two commits of an older version left
        DbfTable &validators = *db.Gettoniere();
        DbfTable &channels = *db.Channel();
        ASSERT_TRUE(validators.deleteRecord(
            validators.locate(QStringLiteral("IDENT"), QStringLiteral("V1"))));
        ASSERT_TRUE(validators.commit());
        for (int r : channels.locateAll(QStringLiteral("MONNAYEUR"), QStringLiteral("V2")))
            ASSERT_TRUE(channels.deleteRecord(r));
        ASSERT_TRUE(channels.commit());
    }
    const QList<TableRepair::Result> checked = TableRepair(dir.path()).check();
    ASSERT_EQ(checked.size(), 7);
    EXPECT_EQ(checked.at(5).state, TableRepair::State::Orphans);
    EXPECT_EQ(checked.at(5).text(),
              messageText(Msg::RepairOrphanChannels, {QStringLiteral("Canaux.dbf"),
                                                      QStringLiteral("60"), QStringLiteral("V1")}));
    EXPECT_FALSE(checked.at(5).sound());
    EXPECT_EQ(checked.at(6).state, TableRepair::State::ChannelsMissing);
    EXPECT_TRUE(checked.at(6).text().contains(QLatin1String("V2")));
    TableRepairModel window(dir.path(), nullptr);
    EXPECT_TRUE(window.lines().contains(checked.at(5).text()));
    EXPECT_TRUE(window.controls().state(QStringLiteral("BtnRepair")).enabled);

    const ToolRun repaired =
        runTool(QStringLiteral(TARVIK_CLI_PATH),
                {QStringLiteral("--data-dir"), dir.path(), QStringLiteral("repair")});
    EXPECT_EQ(repaired.exitCode, 0) << repaired.out.toStdString() << repaired.err.toStdString();
    EXPECT_TRUE(repaired.out.contains("60 channel rows of no stored validator removed"))
        << repaired.out.toStdString();
    EXPECT_TRUE(repaired.out.contains("validators without channel rows: V2"));

    const QList<TableRepair::Result> after = TableRepair(dir.path()).check();
    ASSERT_EQ(after.size(), 6);
    EXPECT_EQ(after.at(5).state, TableRepair::State::ChannelsMissing);
    RecordingPrompt prompt;
    TDBModule db;
    ASSERT_TRUE(db.open(dir.path()));
    ValidatorStore store(db, prompt);
    EXPECT_EQ(generationOf(store, QStringLiteral("V3")), 3);
    EXPECT_EQ(db.Channel()->liveRows().size(), std::size_t(60));
    // the rows removed are kept in the copy
    const QStringList backups = QDir(QDir(dir.path()).filePath(QStringLiteral("backups")))
                                    .entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    ASSERT_EQ(backups.size(), 1);
    DbfTable copy;
    ASSERT_TRUE(copy.openBytes(readAll(QDir(dir.path())
                                           .filePath(QStringLiteral("backups/") + backups.first() +
                                                     QStringLiteral("/Canaux.dbf"))),
                               {}, &TableSchema::channel()));
    EXPECT_EQ(copy.locateAll(QStringLiteral("MONNAYEUR"), QStringLiteral("V1")).size(),
              std::size_t(60));
}

} // namespace

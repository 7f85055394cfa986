// The history beside the tables: events kept whole across kills, shared by several programs,
// small, and the read backups taken in once.
#include "HistoryFiles.h"
#include "Backups.h"
#include "ConfigFile.h"
#include "ConfigImage.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace {

ConfigImage imageOf(quint32 serial, int n)
{
    ConfigImage image = ConfigImage::blank();
    image.version = {0x13, 0x05, 0x20};
    image.setSerialNumber(serial);
    // The counters move on every read; a window now and then.
    image.counters = {quint8(n >> 24), quint8(n >> 16), quint8(n >> 8), quint8(n), 0, 0, 0, 1};
    image.channels[std::size_t(n / 7 % 60)][Rec::HfuLowMin] = quint8(n / 7);
    return image;
}

HistoryEvent eventOf(quint32 serial, int n, bool known = true)
{
    HistoryEvent event;
    event.serial = serial;
    event.time = QDateTime::fromMSecsSinceEpoch(1'700'000'000'000LL + n * 1000LL, Qt::UTC);
    event.kind = n % 2 ? QStringLiteral("write") : QStringLiteral("read");
    event.result = n % 2 ? QStringLiteral("verified") : QString();
    event.program = QStringLiteral("tarvik-cli 0.1.0");
    event.machine = QStringLiteral("bench");
    event.user = QStringLiteral("tech");
    event.detail = QString::number(n);
    if (known)
        event.configuration = imageOf(serial, n);
    return event;
}

// Every event n of serial from first to last, each with the configuration it was recorded with
// (every tenth without one).
void expectEvents(const HistoryFiles &store, quint32 serial, int count)
{
    const std::optional<QList<HistoryEvent>> events = store.events(serial);
    ASSERT_TRUE(events);
    ASSERT_EQ(events->size(), count);
    for (int n = 0; n < count; ++n) {
        const HistoryEvent &event = events->at(n);
        EXPECT_EQ(event.detail.toInt(), n);
        EXPECT_EQ(event.time, eventOf(serial, n).time);
        if (n % 10 == 9)
            EXPECT_FALSE(event.configuration) << n;
        else
            EXPECT_EQ(event.configuration, imageOf(serial, n)) << n;
    }
}

TEST(HistoryFiles, KeepsEveryEventOldestFirstWithItsConfigurationAcrossManyChanges)
{
    QTemporaryDir dir;
    HistoryFiles store(dir.path());
    // Long enough that whole configurations come again between the changes.
    for (int n = 0; n < 150; ++n) {
        ASSERT_TRUE(store.record(eventOf(7, n, n % 10 != 9)));
        ASSERT_TRUE(store.record(eventOf(8, n, n % 10 != 9)));
    }
    // The same event again (a retry) is kept once.
    ASSERT_TRUE(store.record(eventOf(7, 149, true)));
    expectEvents(store, 7, 150);
    expectEvents(store, 8, 150);
    EXPECT_EQ(store.events(99)->size(), 0);

    const std::optional<QList<HistorySerial>> serials = store.serials();
    ASSERT_TRUE(serials && serials->size() == 2);
    EXPECT_EQ(serials->at(0).serial, 7u);
    EXPECT_EQ(serials->at(0).events, 150);
    EXPECT_EQ(serials->at(1).last.detail, QStringLiteral("149"));

    // Small: a configuration costs its changes only.
    EXPECT_LT(QFileInfo(store.fileOf(7)).size(), 150 * 600);
}

TEST(HistoryFiles, ARecordCutShortIsNotReadAndTheNextOneFollowsTheLastWholeOne)
{
    QTemporaryDir dir;
    HistoryFiles store(dir.path());
    for (int n = 0; n < 40; ++n)
        ASSERT_TRUE(store.record(eventOf(5, n, n % 10 != 9)));
    const QString path = store.fileOf(5);
    const qint64 whole = QFileInfo(path).size();
    // A kill in the middle of an append leaves part of a record: every length of it.
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray all = file.readAll();
    file.close();
    for (int cut = 1; cut < 60; cut += 3) {
        QFile torn(path);
        ASSERT_TRUE(torn.open(QIODevice::WriteOnly | QIODevice::Truncate));
        torn.write(all.left(whole - cut));
        torn.close();
        expectEvents(store, 5, 39);
        ASSERT_TRUE(store.record(eventOf(5, 39, false)));
        expectEvents(store, 5, 40);
        EXPECT_EQ(QFileInfo(path).size(), whole);
    }
}

TEST(HistoryFiles, ProgramsKilledWhileRecordingAndProgramsRecordingTogetherLoseNothingWhole)
{
    QTemporaryDir dir;
    std::mt19937 random(32);
    // Two programs record into one history at once, a third is killed at random instants.
    auto recorder = [&](quint32 serial, int from, int count) {
        const pid_t pid = ::fork();
        if (pid == 0) {
            HistoryFiles store(dir.path());
            for (int n = from; n < from + count; ++n) {
                if (!store.record(eventOf(serial, n, n % 10 != 9)))
                    ::_exit(1);
            }
            ::_exit(0);
        }
        return pid;
    };
    const pid_t a = recorder(1, 0, 120);
    const pid_t b = recorder(2, 0, 120);
    int killed = 0;
    for (int round = 0; round < 15; ++round) {
        // Each round starts where the whole events end.
        const int kept =
            int(HistoryFiles(dir.path()).events(3).value_or(QList<HistoryEvent>{}).size());
        const pid_t victim = recorder(3, kept, 50);
        ::usleep(std::uniform_int_distribution<useconds_t>(0, 20000)(random));
        ::kill(victim, SIGKILL);
        int status = 0;
        ::waitpid(victim, &status, 0);
        killed += WIFSIGNALED(status);
        HistoryFiles store(dir.path());
        const std::optional<QList<HistoryEvent>> events = store.events(3);
        ASSERT_TRUE(events);
        expectEvents(store, 3, int(events->size()));
    }
    for (const pid_t pid : {a, b}) {
        int status = 0;
        ::waitpid(pid, &status, 0);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    }
    HistoryFiles store(dir.path());
    expectEvents(store, 1, 120);
    expectEvents(store, 2, 120);
    EXPECT_GT(killed, 0);
}

TEST(HistoryFiles, TheReadBackupsAreTakenInOnceAndMoreThanTwoHundredReadsKeepTheFirst)
{
    QTemporaryDir dir;
    const QString backups = dir.filePath(QStringLiteral("backups"));
    const QDateTime start = QDateTime::currentDateTime().addSecs(-10'000);
    for (int n = 0; n < 3; ++n)
        ASSERT_FALSE(keepBackup(backups, imageOf(11, n), start.addSecs(n)).isEmpty());
    // A backup of the same millisecond is told apart by its number.
    ASSERT_FALSE(keepBackup(backups, imageOf(11, 3), start.addSecs(2)).isEmpty());
    // Written after the program opened the history: its read is in there already.
    ASSERT_FALSE(
        keepBackup(backups, imageOf(12, 0), QDateTime::currentDateTime().addSecs(5)).isEmpty());

    HistoryFiles store(dir.path());
    const QDateTime opened = QDateTime::currentDateTime();
    EXPECT_EQ(store.importBackupsOnce(backups, QStringLiteral("bench"), opened), 4);
    EXPECT_EQ(store.importBackupsOnce(backups, QStringLiteral("bench"), opened), 0);
    // An import cut short before its note is done again without doubling an event.
    ASSERT_TRUE(
        QFile::remove(QDir(store.directory()).filePath(QStringLiteral("backups-imported"))));
    EXPECT_EQ(store.importBackupsOnce(backups, QStringLiteral("bench"), opened), 0);
    const std::optional<QList<HistoryEvent>> events = store.events(11);
    ASSERT_TRUE(events && events->size() == 4);
    EXPECT_EQ(events->first().kind, QStringLiteral("backup"));
    // As the backup holds it (a configuration file refreshes the records' copies).
    ConfigImage kept = ConfigImage::blank();
    ASSERT_TRUE(configFromJson(configToJson(imageOf(11, 0)), kept, nullptr));
    EXPECT_EQ(events->first().configuration, kept);
    EXPECT_EQ(store.events(12)->size(), 0);

    // The backups keep the newest 200; the history keeps every read.
    for (int n = 4; n < 230; ++n) {
        ASSERT_FALSE(keepBackup(backups, imageOf(11, n), start.addSecs(n)).isEmpty());
        HistoryEvent read = eventOf(11, n);
        read.kind = QStringLiteral("read");
        read.time = start.addSecs(n).toUTC();
        ASSERT_TRUE(store.record(read));
    }
    EXPECT_EQ(QDir(backups).entryList(QDir::Files).size(), kMaxBackups);
    EXPECT_EQ(store.events(11)->size(), 230);
    EXPECT_EQ(store.events(11)->first().configuration, kept);
}

TEST(HistoryFiles, AHistoryThatCannotBeWrittenSaysWhy)
{
    QTemporaryDir dir;
    // The history's folder is taken by a file.
    QFile blocker(dir.filePath(QStringLiteral("history")));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    HistoryFiles store(dir.path());
    QString error;
    EXPECT_FALSE(store.record(eventOf(1, 0), &error));
    EXPECT_FALSE(error.isEmpty());
}

} // namespace

// Several programs on one server at once, each in its own process: writers that overwrite
// each other's validators, readers that never fail, and a writer killed mid-transaction.
#include "DataSource.h"
#include "RecordStore.h"
#include "RecordingPrompt.h"
#include "TestServer.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QThread>
#include <QUrl>
#include <gtest/gtest.h>
#include <memory>

namespace {

std::unique_ptr<QProcess> startWorker(const QStringList &args)
{
    auto p = std::make_unique<QProcess>();
    p->start(QStringLiteral(TARVIK_SERVER_WORKER), args);
    EXPECT_TRUE(p->waitForStarted(10000));
    return p;
}

// Waits until query gives a non-zero count, or ms pass.
bool waitFor(const QString &uri, const QString &query, int ms)
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < ms) {
        if (TestServer::scalar(uri, query).toInt() > 0)
            return true;
        QThread::msleep(50);
    }
    return false;
}

} // namespace

TEST(ServerStress, FourWritersAndTwoReadersEverySaveLandsOnceReadersNeverFail)
{
    ASSERT_TRUE(TestServer::available()) << "run under pg_virtualenv";
    const QString uri = TestServer::freshDatabase();
    {
        // The tables exist before the crowd arrives, as on a bench that has been used.
        RecordingPrompt prompt;
        DataSource first;
        ASSERT_TRUE(first.open(uri, prompt));
        ASSERT_TRUE(first.test(nullptr));
    }
    std::vector<std::unique_ptr<QProcess>> readers, writers;
    for (int r = 0; r < 2; ++r)
        readers.push_back(startWorker({QStringLiteral("read"), uri, QStringLiteral("3000")}));
    for (int w = 1; w <= 4; ++w)
        writers.push_back(
            startWorker({QStringLiteral("write"), uri, QString::number(w), QStringLiteral("25")}));
    for (auto &w : writers) {
        ASSERT_TRUE(w->waitForFinished(120000));
        EXPECT_EQ(w->exitCode(), 0) << w->readAllStandardError().toStdString();
        EXPECT_EQ(w->readAllStandardOutput().count('\n'), 25);
    }
    for (auto &r : readers) {
        ASSERT_TRUE(r->waitForFinished(120000));
        EXPECT_EQ(r->exitCode(), 0) << r->readAllStandardError().toStdString();
        EXPECT_GT(r->readAllStandardOutput().trimmed().toInt(), 0);
    }

    // 20 of each writer's own, and the 5 shared ones each whole from one writer.
    RecordingPrompt prompt;
    DataSource check;
    ASSERT_TRUE(check.open(uri, prompt));
    const QList<ValidatorStore::Entry> entries = check.records().validators();
    EXPECT_EQ(entries.size(), 4 * 20 + 5);
    EXPECT_EQ(TestServer::scalar(uri, QStringLiteral("SELECT count(*) FROM channels")),
              QString::number((4 * 20 + 5) * 60));
    for (const ValidatorStore::Entry &entry : entries) {
        ConfigImage image = ConfigImage::blank();
        ASSERT_TRUE(
            check.records().loadValidator(entry.identification, image, nullptr, nullptr, nullptr));
        const int writer = image.prices[0], number = image.prices[1];
        EXPECT_EQ(entry.description, QStringLiteral("writer %1").arg(writer));
        if (entry.identification.startsWith(QLatin1String("SHARED-")))
            EXPECT_EQ(entry.identification, QStringLiteral("SHARED-%1").arg(number / 5));
        else
            EXPECT_EQ(entry.identification, QStringLiteral("W%1-%2").arg(writer).arg(number));
        EXPECT_EQ(image.channels[59][14], quint8((writer * 31 + number * 7 + 59 + 14) % 250));
    }
}

TEST(ServerStress, AWriterKilledMidTransactionLosesOnlyItsOwnChange)
{
    ASSERT_TRUE(TestServer::available()) << "run under pg_virtualenv";
    const QString uri = TestServer::freshDatabase();
    RecordingPrompt prompt(UserPrompt::Answer::Yes);
    DataSource mine;
    ASSERT_TRUE(mine.open(uri, prompt));
    ASSERT_EQ(mine.records().storeValidator(seededImage(1), QStringLiteral("Mine"), {}),
              ValidatorStore::Outcome::Stored);

    // Another program holds the channel table, so that the writer stops half way through its
    // transaction: its validator row written, its channels not.
    const QString name = QStringLiteral("stress-holder");
    {
        QSqlDatabase holder = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), name);
        holder.setDatabaseName(QUrl(uri).path().mid(1));
        ASSERT_TRUE(holder.open());
        ASSERT_TRUE(holder.transaction());
        QSqlQuery lock(holder);
        ASSERT_TRUE(lock.exec(QStringLiteral("LOCK TABLE channels IN EXCLUSIVE MODE")));

        std::unique_ptr<QProcess> writer =
            startWorker({QStringLiteral("write"), uri, QStringLiteral("9"), QStringLiteral("1")});
        EXPECT_TRUE(waitFor(uri,
                            QStringLiteral("SELECT count(*) FROM pg_stat_activity WHERE "
                                           "wait_event_type = 'Lock' AND datname = "
                                           "current_database()"),
                            30000));
        writer->kill();
        writer->waitForFinished(10000);
        holder.rollback();
        holder.close();
    }
    QSqlDatabase::removeDatabase(name);

    // The server ends the dead program's transaction; what it began is gone, the rest stays.
    EXPECT_FALSE(waitFor(uri,
                         QStringLiteral("SELECT count(*) FROM pg_stat_activity WHERE datname = "
                                        "current_database() AND state LIKE 'idle in%'"),
                         2000));
    QStringList idents;
    for (const ValidatorStore::Entry &entry : mine.records().validators())
        idents.append(entry.identification);
    EXPECT_EQ(idents, QStringList{QStringLiteral("Mine")});
    EXPECT_EQ(TestServer::scalar(uri, QStringLiteral("SELECT count(*) FROM channels")),
              QStringLiteral("60"));
    ConfigImage image = ConfigImage::blank();
    ASSERT_TRUE(
        mine.records().loadValidator(QStringLiteral("Mine"), image, nullptr, nullptr, nullptr));
    EXPECT_EQ(image.channels, seededImage(1).channels);
}

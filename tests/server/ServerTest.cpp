// What only the server has: its tables' version, a lost server, and the history's tables.
#include "DataSource.h"
#include "HistoryStore.h"
#include "Messages.h"
#include "RecordMigration.h"
#include "RecordStore.h"
#include "RecordingPrompt.h"
#include "ServerConnection.h"
#include "TestServer.h"

#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class ServerTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(TestServer::available()) << "run under pg_virtualenv";
        uri = TestServer::freshDatabase();
        ASSERT_TRUE(source.open(uri, prompt));
    }

    QString uri;
    RecordingPrompt prompt{UserPrompt::Answer::Yes};
    DataSource source;
};

HistoryEvent event(quint32 serial, int second, const QString &kind,
                   std::optional<ConfigImage> configuration)
{
    HistoryEvent e;
    e.serial = serial;
    e.time = QDateTime(QDate(2026, 3, 1), QTime(9, 0, second, 125), Qt::UTC);
    e.kind = kind;
    e.result = kind == QLatin1String("read") ? QString() : QStringLiteral("verified");
    e.program = QStringLiteral("tarvik 0.1.0");
    e.machine = QStringLiteral("bench-1");
    e.user = QStringLiteral("tech");
    e.detail = QStringLiteral("note %1").arg(second);
    e.configuration = configuration;
    return e;
}

// Runs pg_ctlcluster on the throwaway cluster.
bool cluster(const QString &action)
{
    QProcess p;
    p.start(QStringLiteral("pg_ctlcluster"),
            {qEnvironmentVariable("PGVERSION"), QStringLiteral("regress"), action});
    return p.waitForFinished(60000) && p.exitCode() == 0;
}

} // namespace

TEST_F(ServerTest, TheTablesAreMadeOnceWithTheirVersionAndALaterVersionIsRefused)
{
    ASSERT_TRUE(source.test(nullptr));
    EXPECT_EQ(TestServer::scalar(uri, QStringLiteral("SELECT string_agg(version::text, ',') "
                                                     "FROM tarvik_schema")),
              QString::number(ServerConnection::kSchemaVersion));
    // A second program finds them made.
    DataSource second;
    ASSERT_TRUE(second.open(uri, prompt));
    ASSERT_TRUE(second.test(nullptr));
    EXPECT_EQ(TestServer::scalar(uri, QStringLiteral("SELECT count(*) FROM tarvik_schema")),
              QStringLiteral("1"));

    // Tables a later version made are left alone.
    ASSERT_TRUE(TestServer::run(uri, QStringLiteral("UPDATE tarvik_schema SET version = 99")));
    DataSource later;
    ASSERT_TRUE(later.open(uri, prompt));
    EXPECT_EQ(later.records().storeValidator(ConfigImage::blank(), QStringLiteral("X"), {}),
              ValidatorStore::Outcome::Failed);
    ServerAddress address;
    ASSERT_TRUE(ServerAddress::parse(uri, address, nullptr));
    EXPECT_EQ(
        later.records().errorString(),
        messageText(Msg::ServerSchemaNewer, {address.display(), QStringLiteral("99"),
                                             QString::number(ServerConnection::kSchemaVersion)}));
    EXPECT_EQ(TestServer::scalar(uri, QStringLiteral("SELECT count(*) FROM validators")),
              QStringLiteral("0"));
}

TEST_F(ServerTest, ALostServerIsSaidNothingIsHalfStoredAndTheOperationCanBeRepeated)
{
    RecordStore &store = source.records();
    ASSERT_EQ(store.storeValidator(seededImage(1), QStringLiteral("Kept"), {}),
              ValidatorStore::Outcome::Stored);

    // Nothing listens there.
    DataSource nowhere;
    ASSERT_TRUE(nowhere.open(QStringLiteral("postgresql://localhost:1/none"), prompt));
    prompt.clear();
    EXPECT_EQ(nowhere.records().storeValidator(seededImage(2), QStringLiteral("V"), {}),
              ValidatorStore::Outcome::Failed);
    EXPECT_EQ(prompt.told(), QStringList{QStringLiteral("The server localhost:1 cannot be "
                                                        "reached: nothing was stored.")});

    // The server stops under an open connection, and comes back.
    ASSERT_TRUE(cluster(QStringLiteral("stop")));
    prompt.clear();
    EXPECT_EQ(store.storeValidator(seededImage(3), QStringLiteral("Lost"), {}),
              ValidatorStore::Outcome::Failed);
    const QString hostPort = QStringLiteral("localhost:") + qEnvironmentVariable("PGPORT");
    EXPECT_EQ(prompt.told(), QStringList{messageText(Msg::ServerUnreachable, {hostPort})});
    EXPECT_TRUE(store.validators().isEmpty());
    EXPECT_EQ(store.errorString(), messageText(Msg::ServerUnreachableRead, {hostPort}));
    ASSERT_TRUE(cluster(QStringLiteral("start")));
    EXPECT_EQ(store.validators().size(), 1);
    EXPECT_EQ(store.storeValidator(seededImage(3), QStringLiteral("Lost"), {}),
              ValidatorStore::Outcome::Stored);
    EXPECT_EQ(TestServer::scalar(uri, QStringLiteral("SELECT count(*) FROM channels")),
              QStringLiteral("120"));

    // A connection the server ended while idle is made again without a word.
    ASSERT_TRUE(TestServer::run(uri, QStringLiteral("SELECT pg_terminate_backend(pid) FROM "
                                                    "pg_stat_activity WHERE datname = "
                                                    "current_database() AND pid <> "
                                                    "pg_backend_pid()")));
    EXPECT_EQ(store.storeValidator(seededImage(4), QStringLiteral("Again"), {}),
              ValidatorStore::Outcome::Stored);
}

TEST_F(ServerTest, HistoryKeepsEveryEventOnceAndEachConfigurationOnce)
{
    HistoryStore &history = *source.history();
    const ConfigImage a = seededImage(1), b = seededImage(2);
    ASSERT_TRUE(history.record(event(7, 3, QStringLiteral("write"), a)));
    ASSERT_TRUE(history.record(event(7, 1, QStringLiteral("read"), a)));
    ASSERT_TRUE(history.record(event(7, 2, QStringLiteral("learn"), b)));
    ASSERT_TRUE(history.record(event(5, 4, QStringLiteral("read"), std::nullopt)));
    ASSERT_TRUE(history.record(event(7, 3, QStringLiteral("write"), a))); // the same again
    EXPECT_EQ(
        TestServer::scalar(uri, QStringLiteral("SELECT count(*) FROM history_configurations")),
        QStringLiteral("2"));

    const std::optional<QList<HistoryEvent>> events = history.events(7);
    ASSERT_TRUE(events);
    ASSERT_EQ(events->size(), 3);
    EXPECT_EQ((*events)[0].kind, QStringLiteral("read"));
    EXPECT_EQ((*events)[0].time, event(7, 1, {}, {}).time); // to the millisecond, in UTC
    EXPECT_EQ((*events)[1].configuration, b);
    EXPECT_EQ((*events)[2].configuration, a);
    EXPECT_EQ((*events)[2].user, QStringLiteral("tech"));
    EXPECT_TRUE(history.events(99)->isEmpty());

    const std::optional<QList<HistorySerial>> serials = history.serials();
    ASSERT_TRUE(serials);
    ASSERT_EQ(serials->size(), 2);
    EXPECT_EQ((*serials)[0].serial, 5u);
    EXPECT_EQ((*serials)[1].events, 3);
    EXPECT_EQ((*serials)[1].last.kind, QStringLiteral("write"));

    // Copied to another server database twice: once.
    DataSource other;
    ASSERT_TRUE(other.open(TestServer::freshDatabase(), prompt));
    RecordMigration::Report report = RecordMigration::copyHistory(history, *other.history());
    ASSERT_TRUE(report.ok()) << report.problems.join(u'\n').toStdString();
    EXPECT_EQ(report.counts[0].copied, 4);
    EXPECT_EQ(report.counts[0].checked, 4);
    report = RecordMigration::copyHistory(history, *other.history());
    EXPECT_EQ(report.counts[0].copied, 0);
    EXPECT_EQ(report.counts[0].present, 4);
    EXPECT_EQ(other.history()->events(7)->value(1).configuration, b);
}

TEST_F(ServerTest, TarvikCliStoresOnTheServerAndMigratesADirectoryOnce)
{
    QTemporaryDir dir;
    auto cli = [&](const QStringList &args, QString *out = nullptr) {
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), dir.filePath(QStringLiteral("config")));
        p.setProcessEnvironment(env);
        p.start(QStringLiteral(TARVIK_CLI_PATH), args);
        EXPECT_TRUE(p.waitForFinished(60000));
        if (out)
            *out = QString::fromUtf8(p.readAllStandardOutput());
        return p.exitCode();
    };
    const QString file = dir.filePath(QStringLiteral("v.json"));
    const QString tables = dir.filePath(QStringLiteral("tables"));
    ASSERT_EQ(cli({"--simulate", "read", "-o", file}), 0);
    ASSERT_EQ(cli({"--data-dir", tables, "save", file, "--ident", "D1"}), 0);
    ASSERT_EQ(cli({"--data-dir", tables, "values", "save", "Euro", file}), 0);

    QString out;
    ASSERT_EQ(cli({"migrate", tables, uri}, &out), 0);
    EXPECT_TRUE(out.contains(QLatin1String("validators: 1 copied, 0 already there, 1 checked")))
        << qPrintable(out);
    EXPECT_TRUE(out.contains(QLatin1String("value tables: 1 copied, 0 already there, 1 checked")));
    ASSERT_EQ(cli({"migrate", tables, uri}, &out), 0);
    EXPECT_TRUE(out.contains(QLatin1String("validators: 0 copied, 1 already there, 1 checked")));

    ASSERT_EQ(cli({"--data-source", uri, "save", file, "--ident", "S2"}), 0);
    EXPECT_EQ(cli({"--data-source", uri, "save", file, "--ident", "S2"}), 1); // not overwritten
    ASSERT_EQ(cli({"--data-source", uri, "list"}, &out), 0);
    EXPECT_EQ(out.count(u'\n'), 2);
    EXPECT_EQ(cli({"--data-source", uri, "values", "apply", "euro", file, "-o",
                   dir.filePath(QStringLiteral("w.json"))}),
              0);
    EXPECT_EQ(cli({"--data-source", "postgresql://localhost:1/x", "delete", "S2"}), 1);
}

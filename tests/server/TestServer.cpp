#include "TestServer.h"

#include <QAtomicInt>
#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUrl>
#include <gtest/gtest.h>

namespace {

QAtomicInt g_databases;
QAtomicInt g_connections;

// Runs fn on a short-lived connection to a database of the cluster.
template <typename Fn> bool withDatabase(const QString &database, Fn fn)
{
    const QString name = QStringLiteral("test-admin-%1").arg(g_connections.fetchAndAddRelaxed(1));
    bool ok = false;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), name);
        db.setDatabaseName(database);
        if (!db.open()) {
            ADD_FAILURE() << "no test server: " << db.lastError().text().toStdString();
        } else {
            ok = fn(db);
            db.close();
        }
    }
    QSqlDatabase::removeDatabase(name);
    return ok;
}

QString databaseOf(const QString &uri)
{
    return QUrl(uri).path().mid(1);
}

} // namespace

namespace TestServer {

bool available()
{
    return !qEnvironmentVariable("PGHOST").isEmpty() || !qEnvironmentVariable("PGPORT").isEmpty();
}

QString freshDatabase()
{
    const QString name = QStringLiteral("tarvik_test_%1_%2")
                             .arg(QCoreApplication::applicationPid())
                             .arg(g_databases.fetchAndAddRelaxed(1));
    withDatabase(QStringLiteral("postgres"), [&](QSqlDatabase &db) {
        QSqlQuery q(db);
        if (!q.exec(QStringLiteral("CREATE DATABASE %1").arg(name))) {
            ADD_FAILURE() << q.lastError().text().toStdString();
            return false;
        }
        return true;
    });
    return QStringLiteral("postgresql:///") + name;
}

bool run(const QString &uri, const QString &sql)
{
    return withDatabase(databaseOf(uri), [&](QSqlDatabase &db) {
        QSqlQuery q(db);
        if (!q.exec(sql)) {
            ADD_FAILURE() << sql.toStdString() << ": " << q.lastError().text().toStdString();
            return false;
        }
        return true;
    });
}

QString scalar(const QString &uri, const QString &sql)
{
    QString value;
    withDatabase(databaseOf(uri), [&](QSqlDatabase &db) {
        QSqlQuery q(db);
        if (!q.exec(sql) || !q.next()) {
            ADD_FAILURE() << sql.toStdString() << ": " << q.lastError().text().toStdString();
            return false;
        }
        value = q.value(0).toString();
        return true;
    });
    return value;
}

} // namespace TestServer

ConfigImage seededImage(int seed)
{
    ConfigImage image = ConfigImage::blank();
    image.version[0] = 0x13;
    image.options = {quint8(seed), 0x21};
    for (int i = 0; i < 6; ++i)
        image.prices[std::size_t(i)] = quint8(seed + i);
    image.values[Val::Base1] = 0x01;
    image.values[Val::Base1 + 1] = quint8(seed);
    image.values[Val::Base2] = 0x00;
    image.values[Val::Base2 + 1] = 0x0A;
    for (int i = 0; i < 4; ++i)
        image.values[std::size_t(Val::Conversion + i)] = quint8(seed + 3 * i);
    for (int k = 0; k < kChannels; ++k) {
        ChannelRecord &record = image.channels[std::size_t(k)];
        for (int b = 0; b < 15; ++b)
            record[std::size_t(b)] = quint8((seed + k + b) % 250);
        record[Rec::Value] = quint8((seed + k) % 200);
        image.values[std::size_t(Val::Channel0 + k)] = record[Rec::Value];
        // Enabled, disabled and not set, all three kept.
        record[Rec::Enabled] = k % 3 == 0 ? 1 : k % 3 == 1 ? 0 : 255;
    }
    return image;
}

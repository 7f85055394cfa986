#include "ServerConnection.h"

#include "Messages.h"
#include "ServerSchema.h"

#include <QAtomicInt>
#include <QSqlError>
#include <QSqlQuery>
#include <QUrl>
#include <QUrlQuery>

namespace {

QAtomicInt g_connections;

QString env(const char *name)
{
    return qEnvironmentVariable(name);
}

} // namespace

bool ServerAddress::isServer(const QString &source)
{
    return source.startsWith(QLatin1String("postgresql://"), Qt::CaseInsensitive) ||
           source.startsWith(QLatin1String("postgres://"), Qt::CaseInsensitive);
}

bool ServerAddress::parse(const QString &uri, ServerAddress &address, QString *error)
{
    const QUrl url(uri, QUrl::StrictMode);
    if (!isServer(uri) || !url.isValid()) {
        if (error)
            *error = QStringLiteral("Not a postgresql:// address: %1").arg(uri);
        return false;
    }
    address = {};
    address.host = url.host(QUrl::FullyDecoded);
    address.port = url.port(-1);
    address.user = url.userName(QUrl::FullyDecoded);
    address.password = url.password(QUrl::FullyDecoded);
    address.database = url.path(QUrl::FullyDecoded).mid(1);
    const QUrlQuery query(url);
    for (const auto &[key, value] : query.queryItems(QUrl::FullyDecoded)) {
        // The parts of the address may also come as parameters, as libpq takes them.
        if (key == QLatin1String("host"))
            address.host = value;
        else if (key == QLatin1String("port"))
            address.port = value.toInt();
        else if (key == QLatin1String("user"))
            address.user = value;
        else if (key == QLatin1String("password"))
            address.password = value;
        else if (key == QLatin1String("dbname"))
            address.database = value;
        else if (value.contains(u' ') || value.contains(u';')) {
            if (error)
                *error =
                    QStringLiteral("A parameter of the address has a space or a ';': %1").arg(key);
            return false;
        } else
            address.options.append(key + u'=' + value);
    }
    return true;
}

QString ServerAddress::hostPort() const
{
    QString host = this->host.isEmpty() ? env("PGHOST") : this->host;
    if (host.isEmpty())
        host = QStringLiteral("localhost");
    int port = this->port;
    if (port < 0)
        port = env("PGPORT").toInt();
    if (port <= 0)
        port = 5432;
    return host + u':' + QString::number(port);
}

QString ServerAddress::display() const
{
    QString database = this->database.isEmpty() ? env("PGDATABASE") : this->database;
    return database.isEmpty() ? hostPort() : hostPort() + u'/' + database;
}

QString sqlError(const QSqlQuery &query)
{
    const QSqlError e = query.lastError();
    return e.databaseText().isEmpty() ? e.text() : e.databaseText();
}

bool runSql(QSqlQuery &query, const QString &sql, const QVariantList &values, QString *error)
{
    // Statements without values run as they are: the server prepares no DDL.
    if (values.isEmpty()) {
        if (query.exec(sql))
            return true;
        *error = sqlError(query);
        return false;
    }
    if (!query.prepare(sql)) {
        *error = sqlError(query);
        return false;
    }
    // An empty text is kept as one, not as a missing value.
    for (const QVariant &v : values)
        query.addBindValue(v.typeId() == QMetaType::QString && v.toString().isNull()
                               ? QVariant(QStringLiteral(""))
                               : v);
    if (!query.exec()) {
        *error = sqlError(query);
        return false;
    }
    return true;
}

ServerConnection::ServerConnection(const ServerAddress &address)
    : m_address(address),
      m_name(QStringLiteral("tarvik-server-%1").arg(g_connections.fetchAndAddRelaxed(1)))
{
    m_db = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), m_name);
    m_db.setHostName(address.host);
    if (address.port > 0)
        m_db.setPort(address.port);
    m_db.setUserName(address.user);
    m_db.setPassword(address.password);
    m_db.setDatabaseName(address.database);
    QStringList options = address.options;
    // A server that does not answer is said so after a bounded wait, not after minutes.
    if (!std::any_of(options.begin(), options.end(), [](const QString &o) {
            return o.startsWith(QLatin1String("connect_timeout="));
        }))
        options.append(QStringLiteral("connect_timeout=10"));
    m_db.setConnectOptions(options.join(u';'));
}

ServerConnection::~ServerConnection()
{
    m_db.close();
    m_db = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_name);
}

QString ServerConnection::unreachable(bool changes) const
{
    return messageText(changes ? Msg::ServerUnreachable : Msg::ServerUnreachableRead,
                       {m_address.hostPort()});
}

bool ServerConnection::open(QString *error, bool *reached)
{
    if (reached)
        *reached = true;
    if (m_db.isOpen() && m_ready)
        return true;
    if (!m_db.isValid()) {
        *error = QStringLiteral("The PostgreSQL driver of Qt (QPSQL) is not installed");
        return false;
    }
    if (!m_db.isOpen() && !m_db.open()) {
        if (reached)
            *reached = false;
        *error = m_db.lastError().databaseText().isEmpty() ? m_db.lastError().text()
                                                           : m_db.lastError().databaseText();
        return false;
    }
    m_ready = createSchema(error);
    if (!m_ready)
        m_db.close();
    return m_ready;
}

void ServerConnection::close()
{
    m_db.close();
    m_ready = false;
}

bool ServerConnection::createSchema(QString *error)
{
    // Two programs connecting at once create the tables once: the first holds the lock.
    if (!m_db.transaction()) {
        *error = m_db.lastError().text();
        return false;
    }
    QSqlQuery q(m_db);
    auto fail = [&](const QString &reason) {
        *error = reason;
        m_db.rollback();
        return false;
    };
    QString reason;
    if (!runSql(q, QStringLiteral("SELECT pg_advisory_xact_lock(7310)"), {}, &reason) ||
        !runSql(q, QStringLiteral("SELECT to_regclass('tarvik_schema') IS NULL"), {}, &reason))
        return fail(reason);
    const bool none = q.next() && q.value(0).toBool();
    if (none && !runSql(q, QStringLiteral("CREATE TABLE tarvik_schema (version integer NOT NULL)"),
                        {}, &reason))
        return fail(reason);
    if (!runSql(q, QStringLiteral("SELECT max(version) FROM tarvik_schema"), {}, &reason))
        return fail(reason);
    const int found = q.next() && !q.value(0).isNull() ? q.value(0).toInt() : 0;
    if (found > kSchemaVersion)
        return fail(
            messageText(Msg::ServerSchemaNewer, {m_address.display(), QString::number(found),
                                                 QString::number(kSchemaVersion)}));
    const QStringList steps = ServerSchema::upgrade(found, kSchemaVersion);
    for (const QString &step : steps) {
        if (!runSql(q, step, {}, &reason))
            return fail(reason);
    }
    if (found < kSchemaVersion &&
        (!runSql(q, QStringLiteral("DELETE FROM tarvik_schema"), {}, &reason) ||
         !runSql(q, QStringLiteral("INSERT INTO tarvik_schema (version) VALUES (?)"),
                 {kSchemaVersion}, &reason)))
        return fail(reason);
    if (!m_db.commit())
        return fail(m_db.lastError().text());
    return true;
}

ServerConnection::Result
ServerConnection::transaction(const std::function<bool(QSqlDatabase &, QString *)> &work,
                              QString *error, bool changes)
{
    QString reason;
    bool reached = false;
    if (!open(&reason, &reached)) {
        // Whether the server is there at all decides what is said.
        *error = reached ? reason : unreachable(changes);
        return reached ? Result::Failed : Result::Lost;
    }
    // A connection the server ended while it was idle is made again once: nothing was sent.
    bool begun = m_db.transaction();
    if (!begun) {
        close();
        if (!open(&reason, &reached)) {
            *error = reached ? reason : unreachable(changes);
            return reached ? Result::Failed : Result::Lost;
        }
        begun = m_db.transaction();
    }
    if (begun) {
        if (work(m_db, &reason)) {
            if (m_db.commit())
                return Result::Done;
            reason = m_db.lastError().text();
        }
        m_db.rollback();
    } else {
        reason = m_db.lastError().text();
    }
    // A statement that failed on a connection that is gone: try once to connect again, so that
    // the message says whether the server is there.
    QSqlQuery ping(m_db);
    if (!ping.exec(QStringLiteral("SELECT 1"))) {
        close();
        QString again;
        bool back = false;
        if (!open(&again, &back) && !back) {
            *error = unreachable(changes);
            return Result::Lost;
        }
    }
    *error = reason;
    return Result::Failed;
}

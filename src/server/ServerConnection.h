#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <functional>

// The parts of a postgresql:// address (libpq's URI form). What it leaves out comes from the
// PG* variables, ~/.pgpass or a service file, as libpq does it; its query parameters (sslmode,
// service, connect_timeout, ...) go to libpq as they are.
struct ServerAddress
{
    QString host;
    int port = -1;
    QString user;
    QString password;
    QString database;
    QStringList options; // key=value for libpq

    // Whether a data source names a server rather than a directory.
    static bool isServer(const QString &source);
    // Nothing and the reason in *error when the text is not such an address.
    static bool parse(const QString &uri, ServerAddress &address, QString *error);
    // host:port as it will be reached, the PG* variables and libpq's defaults filled in.
    QString hostPort() const;
    // host:port/database, for the person.
    QString display() const;
};

// One connection to the server, opened on first use and again after it was lost. The tables
// are created on first connection in the named database, with the version of their layout in
// tarvik_schema; a later layout is refused, an earlier one brought up to date.
class ServerConnection final
{
public:
    static constexpr int kSchemaVersion = 1;

    explicit ServerConnection(const ServerAddress &address);
    ~ServerConnection();
    Q_DISABLE_COPY_MOVE(ServerConnection)

    const ServerAddress &address() const { return m_address; }

    // Connects (when not connected) and makes sure the tables are there; false with the reason.
    // *reached says whether the server answered at all.
    bool open(QString *error, bool *reached = nullptr);
    void close();

    enum class Result
    {
        Done,
        Failed, // the work said no, or the server refused a statement: nothing was kept
        Lost    // the server could not be reached: nothing was kept
    };
    // Runs work in one transaction and commits it; anything short of the commit rolls it back.
    // A failed statement's reason is in *error; a lost server is said as such, naming changes
    // ("nothing was stored") or reads as the caller asks.
    Result transaction(const std::function<bool(QSqlDatabase &db, QString *error)> &work,
                       QString *error, bool changes = true);

    QSqlDatabase &database() { return m_db; }

private:
    bool createSchema(QString *error);
    QString unreachable(bool changes) const;

    ServerAddress m_address;
    QString m_name;
    QSqlDatabase m_db;
    bool m_ready = false;
};

// A statement's error text, or the driver's when it has none.
class QSqlQuery;
QString sqlError(const QSqlQuery &query);
// Prepares, binds in order and runs; false with the reason in *error.
bool runSql(QSqlQuery &query, const QString &sql, const QVariantList &values, QString *error);

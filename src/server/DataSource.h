#pragma once

#include <QString>
#include <memory>

class HistoryStore;
class RecordStore;
class ServerConnection;
class TDBModule;
class UserPrompt;

// Where the records are: a data directory of dBase tables, or a database server named by a
// postgresql:// address. Chosen, first match wins, by the command line, the environment
// variable TARVIK_DATA_SOURCE, the setting "DefaultSettings/DataSource", and then as the data
// directory is chosen (TARVIK_DB, its setting, the default).
class DataSource final
{
public:
    DataSource();
    ~DataSource();
    Q_DISABLE_COPY_MOVE(DataSource)

    static constexpr const char *kEnvironmentVariable = "TARVIK_DATA_SOURCE";

    static QString resolve(const QString &explicitSource = {});
    // The setting, empty when it is not set.
    static QString configured();
    // Keeps the source in the settings; a password in an address is never kept.
    static void setConfigured(const QString &source);
    // The address without its password.
    static QString withoutPassword(const QString &source);

    // Opens the source: a directory's tables are opened (created on the first run, what was
    // repaired told through prompt); a server is reached on the first operation. False with
    // errorString() when the text is not a usable source.
    bool open(const QString &source, UserPrompt &prompt);
    bool isServer() const { return m_server != nullptr; }
    // Reaches a server (and makes its tables); a directory is always reachable once open.
    bool test(QString *error);

    RecordStore &records() { return *m_records; }
    // The history of each serial number; nothing before the source is open.
    HistoryStore *history() { return m_history.get(); }
    // The tables of a directory; nothing for a server.
    TDBModule *tables() { return m_tables.get(); }
    QString where() const;
    QString errorString() const { return m_error; }

private:
    std::unique_ptr<TDBModule> m_tables;
    std::unique_ptr<ServerConnection> m_server;
    std::unique_ptr<RecordStore> m_records;
    std::unique_ptr<HistoryStore> m_history;
    QString m_error;
};

#include "DataSource.h"

#include "DataDirectory.h"
#include "DirectoryRecords.h"
#include "HistoryRecorder.h"
#include "ServerConnection.h"
#include "ServerHistory.h"
#include "ServerRecords.h"
#include "TDBModule.h"

#include <QRegularExpression>
#include <QSettings>
#include <QUrl>

namespace {

const QString kGroup = QStringLiteral("DefaultSettings");
const QString kKey = QStringLiteral("DataSource");

} // namespace

DataSource::DataSource() = default;
DataSource::~DataSource()
{
    // The stores go before what they work on.
    m_history.reset();
    m_records.reset();
}

QString DataSource::configured()
{
    QSettings s(QStringLiteral("Brunfeld"), QStringLiteral("Tarvik"));
    s.beginGroup(kGroup);
    return s.value(kKey).toString().trimmed();
}

QString DataSource::withoutPassword(const QString &source)
{
    if (!ServerAddress::isServer(source))
        return source;
    QUrl url(source);
    url.setPassword({});
    QString text = url.toString();
    // A password given as a parameter goes too.
    static const QRegularExpression parameter(QStringLiteral("([?&])password=[^&]*&?"));
    text.replace(parameter, QStringLiteral("\\1"));
    if (text.endsWith(u'?') || text.endsWith(u'&'))
        text.chop(1);
    return text;
}

void DataSource::setConfigured(const QString &source)
{
    QSettings s(QStringLiteral("Brunfeld"), QStringLiteral("Tarvik"));
    s.beginGroup(kGroup);
    if (source.trimmed().isEmpty())
        s.remove(kKey);
    else
        s.setValue(kKey, withoutPassword(source.trimmed()));
}

QString DataSource::resolve(const QString &explicitSource)
{
    if (!explicitSource.trimmed().isEmpty())
        return explicitSource.trimmed();
    const QString fromEnvironment = qEnvironmentVariable(kEnvironmentVariable).trimmed();
    if (!fromEnvironment.isEmpty())
        return fromEnvironment;
    const QString fromSettings = configured();
    if (!fromSettings.isEmpty())
        return fromSettings;
    return DataDirectory::resolve();
}

bool DataSource::open(const QString &source, UserPrompt &prompt)
{
    m_history.reset();
    m_records.reset();
    m_server.reset();
    m_tables.reset();
    m_error.clear();
    if (ServerAddress::isServer(source)) {
        ServerAddress address;
        if (!ServerAddress::parse(source, address, &m_error))
            return false;
        m_server = std::make_unique<ServerConnection>(address);
        m_records = std::make_unique<ServerRecords>(*m_server, prompt);
        m_history = std::make_unique<ServerHistory>(*m_server);
        return true;
    }
    m_tables = std::make_unique<TDBModule>();
    m_tables->open(DataDirectory::resolve(source), &prompt);
    m_records = std::make_unique<DirectoryRecords>(*m_tables, prompt);
    m_history = openHistory(m_tables->dataDirectory().isEmpty() ? DataDirectory::resolve(source)
                                                                : m_tables->dataDirectory(),
                            &prompt);
    m_error = m_tables->errorString();
    return true;
}

bool DataSource::test(QString *error)
{
    if (!m_server)
        return m_tables != nullptr;
    QString reason;
    const auto result =
        m_server->transaction([](QSqlDatabase &, QString *) { return true; }, &reason, false);
    if (error)
        *error = reason;
    return result == ServerConnection::Result::Done;
}

QString DataSource::where() const
{
    return m_records ? m_records->where() : QString();
}

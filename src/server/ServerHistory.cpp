#include "ServerHistory.h"

#include "ServerConnection.h"

#include <QCryptographicHash>
#include <QSqlQuery>
#include <algorithm>
#include <span>

namespace {

// Every byte of an image, block after block in the order ConfigImage declares them: the
// history keeps what the program knew exactly, not what a file form makes of it.
template <typename Fn> void eachBlock(Fn fn, auto &image)
{
    fn(image.version);
    fn(image.ident);
    fn(image.counters);
    fn(image.prices);
    fn(image.options);
    fn(image.enable);
    fn(image.values);
    fn(image.block2);
    fn(image.block13);
    fn(std::span(&image.setting8, 1));
    fn(image.status9);
    for (auto &record : image.channels)
        fn(record);
}

QByteArray imageBytes(const ConfigImage &image)
{
    QByteArray bytes;
    eachBlock(
        [&](const auto &block) {
            bytes.append(reinterpret_cast<const char *>(block.data()), qsizetype(block.size()));
        },
        image);
    return bytes;
}

bool imageFromBytes(const QByteArray &bytes, ConfigImage &image)
{
    if (bytes.size() != imageBytes(image).size())
        return false;
    qsizetype at = 0;
    eachBlock(
        [&](auto &&block) {
            std::copy_n(bytes.constData() + at, block.size(), block.begin());
            at += qsizetype(block.size());
        },
        image);
    return true;
}

const QString kEventColumns =
    QStringLiteral("serial, happened, kind, result, program, machine, account, detail");

HistoryEvent eventOf(const QSqlQuery &q)
{
    HistoryEvent e;
    e.serial = quint32(q.value(0).toLongLong());
    e.time = q.value(1).toDateTime().toUTC();
    e.kind = q.value(2).toString();
    e.result = q.value(3).toString();
    e.program = q.value(4).toString();
    e.machine = q.value(5).toString();
    e.user = q.value(6).toString();
    e.detail = q.value(7).toString();
    return e;
}

} // namespace

bool ServerHistory::record(const HistoryEvent &event, QString *error)
{
    QString reason;
    const ServerConnection::Result result = m_server.transaction(
        [&](QSqlDatabase &db, QString *why) {
            QSqlQuery q(db);
            QVariant configuration(QMetaType::fromType<qlonglong>());
            if (event.configuration) {
                const QByteArray bytes = imageBytes(*event.configuration);
                const QByteArray digest =
                    QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
                if (!runSql(q,
                            QStringLiteral("INSERT INTO history_configurations (digest, "
                                           "configuration) VALUES (?, ?) ON CONFLICT (digest) "
                                           "DO NOTHING"),
                            {digest, bytes}, why) ||
                    !runSql(q,
                            QStringLiteral("SELECT id FROM history_configurations WHERE "
                                           "digest = ?"),
                            {digest}, why))
                    return false;
                if (!q.next()) {
                    *why = QStringLiteral("the configuration was not kept");
                    return false;
                }
                configuration = q.value(0);
            }
            // The same event recorded twice is kept once.
            return runSql(q,
                          QStringLiteral("INSERT INTO history_events (%1, configuration) VALUES "
                                         "(?, ?, ?, ?, ?, ?, ?, ?, ?) ON CONFLICT DO NOTHING")
                              .arg(kEventColumns),
                          {qint64(event.serial), event.time.toUTC(), event.kind, event.result,
                           event.program, event.machine, event.user, event.detail, configuration},
                          why);
        },
        &reason);
    if (error)
        *error = reason;
    return result == ServerConnection::Result::Done;
}

std::optional<QList<HistoryEvent>> ServerHistory::events(quint32 serial, QString *error) const
{
    QList<HistoryEvent> events;
    QString reason;
    const ServerConnection::Result result = m_server.transaction(
        [&](QSqlDatabase &db, QString *why) {
            QSqlQuery q(db);
            q.setForwardOnly(true);
            if (!runSql(q,
                        QStringLiteral("SELECT e.serial, e.happened, e.kind, e.result, "
                                       "e.program, e.machine, e.account, e.detail, "
                                       "c.configuration FROM history_events e LEFT JOIN "
                                       "history_configurations c ON c.id = e.configuration "
                                       "WHERE e.serial = ? ORDER BY e.happened, e.kind, "
                                       "e.machine"),
                        {qint64(serial)}, why))
                return false;
            while (q.next()) {
                HistoryEvent e = eventOf(q);
                if (!q.value(8).isNull()) {
                    ConfigImage image;
                    if (!imageFromBytes(q.value(8).toByteArray(), image)) {
                        *why = QStringLiteral("a configuration of the history is not whole");
                        return false;
                    }
                    e.configuration = image;
                }
                events.append(e);
            }
            return true;
        },
        &reason, false);
    if (error)
        *error = reason;
    if (result != ServerConnection::Result::Done)
        return std::nullopt;
    return events;
}

std::optional<QList<HistorySerial>> ServerHistory::serials(QString *error) const
{
    QList<HistorySerial> serials;
    QString reason;
    const ServerConnection::Result result = m_server.transaction(
        [&](QSqlDatabase &db, QString *why) {
            QSqlQuery q(db);
            q.setForwardOnly(true);
            if (!runSql(q,
                        QStringLiteral("SELECT DISTINCT ON (serial) %1, count(*) OVER "
                                       "(PARTITION BY serial) FROM history_events ORDER BY "
                                       "serial, happened DESC, kind DESC, machine DESC")
                            .arg(kEventColumns),
                        {}, why))
                return false;
            while (q.next())
                serials.append({quint32(q.value(0).toLongLong()), q.value(8).toInt(), eventOf(q)});
            return true;
        },
        &reason, false);
    if (error)
        *error = reason;
    if (result != ServerConnection::Result::Done)
        return std::nullopt;
    return serials;
}

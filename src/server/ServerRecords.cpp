#include "ServerRecords.h"

#include "Messages.h"
#include "ServerConnection.h"
#include "ServerSchema.h"
#include "UserPrompt.h"

#include <QSqlError>
#include <QSqlQuery>
#include <cmath>

namespace {

// A stored number as an unsigned value of at most max; a missing one is max (not set).
quint32 storedNumber(const QVariant &v, quint32 max)
{
    if (v.isNull())
        return max;
    const double d = std::round(v.toDouble());
    return d <= 0 ? 0 : d >= max ? max : quint32(d);
}

std::optional<int> storedInt(const QVariant &v)
{
    if (v.isNull())
        return std::nullopt;
    return v.toInt();
}

QVariant intOrNull(const std::optional<int> &v)
{
    return v ? QVariant(*v) : QVariant(QMetaType::fromType<int>());
}

QString placeholders(int n)
{
    QStringList marks;
    for (int i = 0; i < n; ++i)
        marks.append(QStringLiteral("?"));
    return marks.join(u',');
}

// INSERT ... ON CONFLICT (key) DO UPDATE: a replaced row keeps its place.
// Inserts the row of key, or replaces it; every write takes the next revision number, by which
// another bench sees that the row changed since it was shown.
QString upsert(const QString &table, const QString &key, const QStringList &columns)
{
    QStringList updates;
    for (const QString &c : columns) {
        if (c != key)
            updates.append(c + QStringLiteral(" = EXCLUDED.") + c);
    }
    updates.append(QStringLiteral("revision = EXCLUDED.revision"));
    return QStringLiteral("INSERT INTO %1 (%2,revision) VALUES (%3,nextval('tarvik_revision')) "
                          "ON CONFLICT (%4) DO UPDATE SET %5")
        .arg(table, columns.join(u','), placeholders(int(columns.size())), key, updates.join(u','));
}

QVariant nullInt()
{
    return QVariant(QMetaType::fromType<int>());
}

} // namespace

ServerRecords::ServerRecords(ServerConnection &server, UserPrompt &prompt)
    : m_server(server), m_prompt(prompt)
{}

QString ServerRecords::where() const
{
    return m_server.address().display();
}

bool ServerRecords::read(const Write &work)
{
    m_error.clear();
    // Every statement of a read sees the same moment: a validator's row and its channels are
    // from one store, whoever commits in between.
    const auto snapshot = [&work](QSqlDatabase &db, QString *error) {
        QSqlQuery q(db);
        if (!q.exec(QStringLiteral("SET TRANSACTION ISOLATION LEVEL REPEATABLE READ READ ONLY"))) {
            *error = q.lastError().text();
            return false;
        }
        return work(db, error);
    };
    return m_server.transaction(snapshot, &m_error, false) == ServerConnection::Result::Done;
}

ServerRecords::Change ServerRecords::saveRow(const QString &table, const QString &keyColumn,
                                             const QString &key, const Write &write)
{
    m_error.clear();
    const QString lowered = key.toLower();
    // The revision of the row as it is now; nothing when there is none.
    auto revision = [&](QSqlDatabase &db, std::optional<qint64> &rev, bool forUpdate,
                        QString *error) {
        QSqlQuery q(db);
        if (!runSql(
                q,
                QStringLiteral("SELECT revision FROM %1 WHERE %2 = ?%3")
                    .arg(table, keyColumn, forUpdate ? QStringLiteral(" FOR UPDATE") : QString()),
                {lowered}, error))
            return false;
        rev = q.next() ? std::optional<qint64>(q.value(0).toLongLong()) : std::nullopt;
        return true;
    };
    auto overwrite = [&] {
        return m_prompt.ask(messageText(Msg::ExistOverwrite, {key}), UserPrompt::Kind::Warning,
                            UserPrompt::Buttons::YesNo) == UserPrompt::Answer::Yes;
    };
    // The question is about the row as it is now; it is asked outside the transaction.
    std::optional<qint64> agreed;
    if (m_server.transaction(
            [&](QSqlDatabase &db, QString *error) { return revision(db, agreed, false, error); },
            &m_error) != ServerConnection::Result::Done)
        return Change::Failed;
    if (agreed && !overwrite())
        return Change::Declined;
    for (;;) {
        std::optional<qint64> now;
        bool changedMeanwhile = false;
        const ServerConnection::Result result = m_server.transaction(
            [&](QSqlDatabase &db, QString *error) {
                // One name is changed by one program at a time, a new one as well.
                QSqlQuery lock(db);
                if (!runSql(lock, QStringLiteral("SELECT pg_advisory_xact_lock(hashtext(?))"),
                            {table + u':' + lowered}, error) ||
                    !revision(db, now, true, error))
                    return false;
                if (now != agreed) {
                    changedMeanwhile = true;
                    return false;
                }
                return write(db, error);
            },
            &m_error);
        if (result == ServerConnection::Result::Done)
            return Change::Done;
        if (!changedMeanwhile)
            return Change::Failed;
        m_error.clear();
        // Deleted by another program meanwhile: stored as new. Stored or changed: asked again.
        if (now && !overwrite())
            return Change::Declined;
        agreed = now;
    }
}

bool ServerRecords::removeRow(const QString &table, const QString &keyColumn, const QString &key,
                              const QString &notStored)
{
    m_error.clear();
    bool found = false;
    const ServerConnection::Result result = m_server.transaction(
        [&](QSqlDatabase &db, QString *error) {
            QSqlQuery q(db);
            if (!runSql(q,
                        QStringLiteral("DELETE FROM %1 WHERE %2 = ? RETURNING revision")
                            .arg(table, keyColumn),
                        {key.toLower()}, error))
                return false;
            found = q.next();
            return true;
        },
        &m_error);
    if (result != ServerConnection::Result::Done)
        return false;
    if (!found)
        m_error = notStored;
    return found;
}

// Validators ---------------------------------------------------------------------------------

QList<ValidatorStore::Entry> ServerRecords::validators()
{
    QList<ValidatorStore::Entry> entries;
    read([&](QSqlDatabase &db, QString *error) {
        QSqlQuery q(db);
        q.setForwardOnly(true);
        if (!runSql(q,
                    QStringLiteral("SELECT ident, descriptio, version FROM validators ORDER BY "
                                   "ident_key, ident"),
                    {}, error))
            return false;
        while (q.next())
            entries.append({q.value(0).toString(), q.value(1).toString(), q.value(2).toString()});
        return true;
    });
    return entries;
}

ValidatorStore::Outcome ServerRecords::storeValidator(const ConfigImage &image,
                                                      const QString &identification,
                                                      const QString &description)
{
    const QString ident = identification.trimmed();
    if (ident.isEmpty()) {
        m_prompt.tell(messageText(Msg::IdentificationMustBeFilled), UserPrompt::Kind::Warning);
        return ValidatorStore::Outcome::EmptyIdentification;
    }
    const qint64 conversion = bigEndian(image.values, Val::Conversion, 4);
    const Change change = saveRow(
        QStringLiteral("validators"), QStringLiteral("ident_key"), ident,
        [&](QSqlDatabase &db, QString *error) {
            QSqlQuery q(db);
            QStringList columns = {QStringLiteral("ident_key"),  QStringLiteral("ident"),
                                   QStringLiteral("descriptio"), QStringLiteral("version"),
                                   QStringLiteral("option"),     QStringLiteral("base1"),
                                   QStringLiteral("base2"),      QStringLiteral("conversion")};
            QVariantList values = {ident.toLower(),
                                   ident,
                                   description,
                                   QString::number(image.familyByte()),
                                   image.options[0] << 8 | image.options[1],
                                   int(bigEndian(image.values, Val::Base1, 2)),
                                   int(bigEndian(image.values, Val::Base2, 2)),
                                   conversion};
            for (int i = 0; i < 6; ++i) {
                columns.append(QStringLiteral("prix%1").arg(i));
                values.append(int(image.prices[std::size_t(i)]));
            }
            const QString sql =
                upsert(QStringLiteral("validators"), QStringLiteral("ident_key"), columns);
            if (!runSql(q, sql, values, error) ||
                !runSql(q, QStringLiteral("DELETE FROM channels WHERE ident_key = ?"),
                        {ident.toLower()}, error))
                return false;
            // The 60 channel rows in one statement.
            QStringList channelColumns = {QStringLiteral("ident_key"), QStringLiteral("canal")};
            channelColumns += ServerSchema::recordColumns();
            channelColumns += {QStringLiteral("valid"), QStringLiteral("valeur")};
            QStringList rows;
            QVariantList channelValues;
            for (int k = 0; k < kChannels; ++k) {
                const ChannelRecord &record = image.channels[std::size_t(k)];
                channelValues += {ident.toLower(), k + 1};
                for (int b = 0; b < 15; ++b)
                    channelValues.append(int(record[std::size_t(b)]));
                const quint8 enabled = record[Rec::Enabled];
                channelValues.append(enabled == 255 ? QVariant(QMetaType::fromType<bool>())
                                                    : QVariant(enabled != 0));
                channelValues.append(int(record[Rec::Value]));
                rows.append(u'(' + placeholders(int(channelColumns.size())) + u')');
            }
            return runSql(q,
                          QStringLiteral("INSERT INTO channels (%1) VALUES %2")
                              .arg(channelColumns.join(u','), rows.join(u',')),
                          channelValues, error);
        });
    switch (change) {
    case Change::Declined:
        return ValidatorStore::Outcome::NotOverwritten;
    case Change::Failed:
        m_prompt.tell(m_error, UserPrompt::Kind::Error);
        return ValidatorStore::Outcome::Failed;
    case Change::Done:
        break;
    }
    m_prompt.tell(messageText(Msg::FileSaved, {ident}), UserPrompt::Kind::Information);
    return ValidatorStore::Outcome::Stored;
}

bool ServerRecords::loadValidator(const QString &identification, ConfigImage &image,
                                  QString *description, int *family,
                                  ValidatorStore::LoadReport *report)
{
    const QString ident = identification.trimmed();
    bool found = false;
    ConfigImage stored = ConfigImage::blank();
    QString storedDescription;
    int storedFamily = -1;
    std::array<int, kChannels> seen{};
    const bool ok = read([&](QSqlDatabase &db, QString *error) {
        QSqlQuery q(db);
        if (!runSql(q,
                    QStringLiteral("SELECT descriptio, version, option, base1, base2, conversion, "
                                   "prix0, prix1, prix2, prix3, prix4, prix5 FROM validators "
                                   "WHERE ident_key = ?"),
                    {ident.toLower()}, error))
            return false;
        found = q.next();
        if (!found)
            return true;
        storedDescription = q.value(0).toString();
        storedFamily = ValidatorStore::familyOf(q.value(1).toString());
        const quint32 option = storedNumber(q.value(2), 0xFFFF);
        stored.options = {quint8(option >> 8), quint8(option)};
        putBigEndian(stored.values, Val::Base1, 2, storedNumber(q.value(3), 0xFFFF));
        putBigEndian(stored.values, Val::Base2, 2, storedNumber(q.value(4), 0xFFFF));
        putBigEndian(stored.values, Val::Conversion, 4, storedNumber(q.value(5), 0xFFFFFFFF));
        for (int i = 0; i < 6; ++i)
            stored.prices[std::size_t(i)] = quint8(storedNumber(q.value(6 + i), 255));
        QSqlQuery c(db);
        c.setForwardOnly(true);
        if (!runSql(c,
                    QStringLiteral("SELECT canal, %1, valid, valeur FROM channels WHERE "
                                   "ident_key = ? ORDER BY canal")
                        .arg(ServerSchema::recordColumns().join(u',')),
                    {ident.toLower()}, error))
            return false;
        while (c.next()) {
            const int k = c.value(0).toInt() - 1;
            if (k < 0 || k >= kChannels || seen[std::size_t(k)]++ > 0)
                continue;
            ChannelRecord &record = stored.channels[std::size_t(k)];
            for (int b = 0; b < 15; ++b)
                record[std::size_t(b)] = quint8(storedNumber(c.value(1 + b), 255));
            const quint8 value = quint8(storedNumber(c.value(17), 255));
            record[Rec::Value] = value;
            stored.values[std::size_t(Val::Channel0 + k)] = value;
            const QVariant valid = c.value(16);
            record[Rec::Enabled] = valid.isNull() ? 255 : (valid.toBool() ? 1 : 0);
        }
        return true;
    });
    if (!ok)
        return false;
    if (!found) {
        m_error = messageText(Msg::RecordsNotStored, {ident});
        return false;
    }
    image = stored;
    if (description)
        *description = storedDescription;
    if (family)
        *family = storedFamily;
    if (report) {
        *report = {};
        for (int k = 0; k < kChannels; ++k) {
            if (seen[std::size_t(k)] == 0)
                report->missing.append(k + 1);
        }
    }
    return true;
}

bool ServerRecords::removeValidator(const QString &identification)
{
    const QString ident = identification.trimmed();
    // The channel rows go with it (ON DELETE CASCADE).
    return removeRow(QStringLiteral("validators"), QStringLiteral("ident_key"), ident,
                     messageText(Msg::RecordsNotStored, {ident}));
}

// Coin profiles ------------------------------------------------------------------------------

QList<ProfileStore::Entry> ServerRecords::profiles()
{
    QList<ProfileStore::Entry> entries;
    read([&](QSqlDatabase &db, QString *error) {
        QSqlQuery q(db);
        q.setForwardOnly(true);
        if (!runSql(q, QStringLiteral("SELECT nom, descript FROM profiles ORDER BY place"), {},
                    error))
            return false;
        while (q.next())
            entries.append({q.value(0).toString(), q.value(1).toString()});
        return true;
    });
    return entries;
}

std::optional<ProfileRecord> ServerRecords::loadProfile(const QString &name)
{
    std::optional<ProfileRecord> profile;
    read([&](QSqlDatabase &db, QString *error) {
        QSqlQuery q(db);
        if (!runSql(q,
                    QStringLiteral("SELECT nom, descript, sub, enable, valeur, %1 FROM profiles "
                                   "WHERE nom_key = ?")
                        .arg(ServerSchema::toleranceColumns().join(u',')),
                    {name.trimmed().toLower()}, error))
            return false;
        if (!q.next())
            return true;
        ProfileRecord p;
        p.name = q.value(0).toString();
        p.description = q.value(1).toString();
        p.substitute = q.value(2).toInt();
        p.enabled = q.value(3).toBool();
        p.value = storedInt(q.value(4));
        for (int i = 0; i < ProfileRecord::kTolerances; ++i)
            p.tolerances[std::size_t(i)] = storedInt(q.value(5 + i));
        profile = p;
        return true;
    });
    return profile;
}

ProfileStore::Outcome ServerRecords::saveProfile(const ProfileRecord &profile)
{
    const QString key = profile.name.trimmed();
    if (key.isEmpty())
        return ProfileStore::Outcome::EmptyName;
    const Change change =
        saveRow(QStringLiteral("profiles"), QStringLiteral("nom_key"), key,
                [&](QSqlDatabase &db, QString *error) {
                    QStringList columns = {QStringLiteral("nom_key"),  QStringLiteral("nom"),
                                           QStringLiteral("descript"), QStringLiteral("sub"),
                                           QStringLiteral("enable"),   QStringLiteral("valeur")};
                    columns += ServerSchema::toleranceColumns();
                    QVariantList values = {key.toLower(),       key,
                                           profile.description, profile.substitute,
                                           profile.enabled,     intOrNull(profile.value)};
                    for (const std::optional<int> &t : profile.tolerances)
                        values.append(intOrNull(t));
                    const QString sql =
                        upsert(QStringLiteral("profiles"), QStringLiteral("nom_key"), columns);
                    QSqlQuery q(db);
                    return runSql(q, sql, values, error);
                });
    switch (change) {
    case Change::Declined:
        return ProfileStore::Outcome::NotOverwritten;
    case Change::Failed:
        m_prompt.tell(m_error, UserPrompt::Kind::Error);
        return ProfileStore::Outcome::Failed;
    case Change::Done:
        break;
    }
    return ProfileStore::Outcome::Saved;
}

bool ServerRecords::removeProfile(const QString &name)
{
    return removeRow(QStringLiteral("profiles"), QStringLiteral("nom_key"), name.trimmed(),
                     messageText(Msg::ProfileNotStored, {name.trimmed()}));
}

// Value tables -------------------------------------------------------------------------------

QList<ValueTableStore::Entry> ServerRecords::valueTables()
{
    QList<ValueTableStore::Entry> entries;
    read([&](QSqlDatabase &db, QString *error) {
        QSqlQuery q(db);
        q.setForwardOnly(true);
        if (!runSql(q,
                    QStringLiteral("SELECT identi, descrip FROM value_tables ORDER BY "
                                   "identi_key, identi"),
                    {}, error))
            return false;
        while (q.next())
            entries.append({q.value(0).toString(), q.value(1).toString()});
        return true;
    });
    return entries;
}

bool ServerRecords::openValueTable(const QString &name, ValueBlock &block, bool light,
                                   ValueTableStore::Entry *entry)
{
    QVariantList fields;
    ValueTableStore::Entry found;
    const bool ok = read([&](QSqlDatabase &db, QString *error) {
        QSqlQuery q(db);
        QStringList columns = {QStringLiteral("base1"), QStringLiteral("base2"),
                               QStringLiteral("convert")};
        for (int c = 1; c <= (light ? kLightChannels : kChannels); ++c)
            columns.append(QStringLiteral("canal%1").arg(c));
        if (!runSql(q,
                    QStringLiteral("SELECT identi, descrip, %1 FROM value_tables WHERE "
                                   "identi_key = ?")
                        .arg(columns.join(u',')),
                    {name.trimmed().toLower()}, error))
            return false;
        if (q.next()) {
            found = {q.value(0).toString(), q.value(1).toString()};
            for (int i = 0; i < columns.size(); ++i)
                fields.append(q.value(2 + i));
        }
        return true;
    });
    if (!ok)
        return false;
    if (fields.isEmpty()) {
        m_error = ValueTableStore::notStoredText(name.trimmed());
        return false;
    }
    if (entry)
        *entry = found;
    // Field by field; a blank one stops the reading as the directory's does.
    for (int i = 0; i < fields.size(); ++i) {
        if (fields[i].isNull()) {
            m_error = messageText(Msg::NotValidInteger, {QString()});
            m_prompt.tell(m_error, UserPrompt::Kind::Error);
            return true;
        }
        const quint32 v = quint32(fields[i].toLongLong());
        if (i == 0)
            putBigEndian(block, Val::Base1, 2, v);
        else if (i == 1)
            putBigEndian(block, Val::Base2, 2, v);
        else if (i == 2)
            putBigEndian(block, Val::Conversion, 4, v);
        else
            block[std::size_t(Val::Channel0 + i - 3)] = quint8(v);
    }
    m_error.clear();
    return true;
}

ValueTableStore::Outcome ServerRecords::saveValueTable(const ValueBlock &block, const QString &name,
                                                       const QString &description, bool light)
{
    const QString key = name.trimmed();
    if (key.isEmpty())
        return ValueTableStore::Outcome::EmptyName;
    const Change change = saveRow(
        QStringLiteral("value_tables"), QStringLiteral("identi_key"), key,
        [&](QSqlDatabase &db, QString *error) {
            QStringList columns = {QStringLiteral("identi_key"), QStringLiteral("identi"),
                                   QStringLiteral("descrip"),    QStringLiteral("base1"),
                                   QStringLiteral("base2"),      QStringLiteral("convert")};
            QVariantList values = {key.toLower(),
                                   key,
                                   description,
                                   qint64(bigEndian(block, Val::Base1, 2)),
                                   qint64(bigEndian(block, Val::Base2, 2)),
                                   qint64(bigEndian(block, Val::Conversion, 4))};
            // The channels a Light model lacks stay blank.
            for (int c = 1; c <= kChannels; ++c) {
                columns.append(QStringLiteral("canal%1").arg(c));
                values.append(c <= (light ? kLightChannels : kChannels)
                                  ? QVariant(qint64(block[std::size_t(Val::Channel0 + c - 1)]))
                                  : nullInt());
            }
            const QString sql =
                upsert(QStringLiteral("value_tables"), QStringLiteral("identi_key"), columns);
            QSqlQuery q(db);
            return runSql(q, sql, values, error);
        });
    switch (change) {
    case Change::Declined:
        return ValueTableStore::Outcome::NotOverwritten;
    case Change::Failed:
        m_prompt.tell(m_error, UserPrompt::Kind::Error);
        return ValueTableStore::Outcome::Failed;
    case Change::Done:
        break;
    }
    return ValueTableStore::Outcome::Saved;
}

bool ServerRecords::removeValueTable(const QString &name)
{
    return removeRow(QStringLiteral("value_tables"), QStringLiteral("identi_key"), name.trimmed(),
                     ValueTableStore::notStoredText(name.trimmed()));
}

#include "ProfileStore.h"

#include "DbfTable.h"
#include "Messages.h"
#include "RowChange.h"
#include "TDBModule.h"
#include "UserPrompt.h"

#include <cmath>

namespace {

QString name(const char *field)
{
    return QString::fromLatin1(field);
}

std::optional<int> storedInt(const QVariant &v)
{
    if (v.isNull())
        return std::nullopt;
    return int(std::lround(v.toDouble()));
}

QVariant intOrBlank(const std::optional<int> &v)
{
    return v ? QVariant(*v) : QVariant();
}

} // namespace

ProfileStore::ProfileStore(TDBModule &db, UserPrompt &prompt) : m_db(db), m_prompt(prompt) {}

const std::array<const char *, ProfileRecord::kTolerances> &ProfileStore::toleranceFields()
{
    static const std::array<const char *, ProfileRecord::kTolerances> fields = {
        "HFULOWMIN", "HFULOWMAX", "HFUHIGHMIN", "HFUHIGHMAX", "DIMMIN",   "DIMMAX", "LFMIN",
        "LFMAX",     "HFLLOMIN",  "HFLLOMAX",   "HFLHIMIN",   "HFLHIMAX", "AMPMIN", "AMPMAX"};
    return fields;
}

bool ProfileStore::tableUsable()
{
    if (m_db.DemTable()->isOpen())
        return true;
    m_error = TDBModule::refusal(m_db.DemTable());
    return false;
}

bool ProfileStore::canChange()
{
    m_error = TDBModule::refusal(m_db.DemTable());
    return m_error.isEmpty();
}

QList<ProfileStore::Entry> ProfileStore::list() const
{
    QList<Entry> entries;
    DbfTable *table = m_db.DemTable();
    if (table)
        table->refresh(); // profiles another program stored meanwhile are listed too
    if (!table || !table->isOpen())
        return entries;
    for (int r : table->liveRows())
        entries.append(
            {table->text(r, QStringLiteral("NOM")), table->text(r, QStringLiteral("DESCRIPT"))});
    return entries;
}

std::optional<ProfileRecord> ProfileStore::load(const QString &profileName)
{
    m_db.DemTable()->refresh();
    if (!tableUsable())
        return std::nullopt;
    const DbfTable &table = *m_db.DemTable();
    const int r = table.locate(QStringLiteral("NOM"), profileName.trimmed());
    m_error.clear();
    if (r < 0)
        return std::nullopt;
    ProfileRecord p;
    p.name = table.text(r, QStringLiteral("NOM"));
    p.description = table.text(r, QStringLiteral("DESCRIPT"));
    p.substitute = storedInt(table.value(r, QStringLiteral("SUB"))).value_or(0);
    // Written as the texts "TRUE" and "False"; other tools write t or true as well.
    const QVariant enable = table.value(r, QStringLiteral("ENABLE"));
    p.enabled =
        enable.typeId() == QMetaType::Bool
            ? enable.toBool()
            : enable.toString().trimmed().compare(QLatin1String("TRUE"), Qt::CaseInsensitive) == 0;
    p.value = storedInt(table.value(r, QStringLiteral("VALEUR")));
    for (int i = 0; i < ProfileRecord::kTolerances; ++i)
        p.tolerances[std::size_t(i)] =
            storedInt(table.value(r, name(toleranceFields()[std::size_t(i)])));
    return p;
}

ProfileStore::Outcome ProfileStore::save(const ProfileRecord &profile)
{
    QString key = profile.name.trimmed();
    if (key.isEmpty())
        return Outcome::EmptyName;
    if (!canChange()) {
        m_prompt.tell(m_error, UserPrompt::Kind::Error);
        return Outcome::Failed;
    }
    DbfTable &table = *m_db.DemTable();
    // A name is kept exactly as typed or refused before anything is written.
    for (const QString &refusal :
         {table.textRefusal(QStringLiteral("NOM"), key),
          table.textRefusal(QStringLiteral("DESCRIPT"), profile.description.trimmed())}) {
        if (!refusal.isEmpty()) {
            m_error = refusal;
            m_prompt.tell(refusal, UserPrompt::Kind::Error);
            return Outcome::Failed;
        }
    }

    auto fill = [&](int r) {
        bool ok =
            table.setValue(r, QStringLiteral("NOM"), key) &&
            table.setValue(r, QStringLiteral("DESCRIPT"), profile.description) &&
            table.setValue(r, QStringLiteral("SUB"), profile.substitute) &&
            table.setValue(r, QStringLiteral("ENABLE"),
                           profile.enabled ? QStringLiteral("TRUE") : QStringLiteral("False")) &&
            table.setValue(r, QStringLiteral("VALEUR"), intOrBlank(profile.value));
        for (int i = 0; ok && i < ProfileRecord::kTolerances; ++i)
            ok = table.setValue(r, name(toleranceFields()[std::size_t(i)]),
                                intOrBlank(profile.tolerances[std::size_t(i)]));
        return ok;
    };
    switch (RowChange::save(table, QStringLiteral("NOM"), key, m_prompt, fill, &m_error)) {
    case RowChange::Result::Declined:
        return Outcome::NotOverwritten;
    case RowChange::Result::Failed:
        m_prompt.tell(m_error, UserPrompt::Kind::Error);
        return Outcome::Failed;
    case RowChange::Result::Done:
        break;
    }
    return Outcome::Saved;
}

bool ProfileStore::remove(const QString &profileName)
{
    if (!canChange())
        return false;
    DbfTable &table = *m_db.DemTable();
    const int r = table.locate(QStringLiteral("NOM"), profileName.trimmed());
    m_error.clear();
    if (r < 0) {
        m_error = messageText(Msg::ProfileNotStored, {profileName.trimmed()});
        return false;
    }
    return RowChange::remove(table, QStringLiteral("NOM"), r, m_prompt, &m_error) ==
           RowChange::Result::Done;
}

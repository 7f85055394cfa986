#include "DirectoryRecords.h"

#include "DbfTable.h"
#include "TDBModule.h"

#include <QDir>

bool RecordStore::loadValidatorInto(const QString &identification, ConfigImage &image,
                                    QString *description, ValidatorStore::LoadReport *report)
{
    ConfigImage stored = ConfigImage::blank();
    int family = -1;
    if (!loadValidator(identification, stored, description, &family, report))
        return false;
    ValidatorStore::openInto(stored, family, image);
    return true;
}

DirectoryRecords::DirectoryRecords(TDBModule &db, UserPrompt &prompt)
    : m_db(db), m_validators(db, prompt), m_profiles(db, prompt), m_values(db, prompt)
{}

QString DirectoryRecords::where() const
{
    return QDir::toNativeSeparators(m_db.dataDirectory());
}

QList<ValidatorStore::Entry> DirectoryRecords::validators()
{
    return m_validators.list();
}

ValidatorStore::Outcome DirectoryRecords::storeValidator(const ConfigImage &image,
                                                         const QString &identification,
                                                         const QString &description)
{
    const ValidatorStore::Outcome outcome = m_validators.store(image, identification, description);
    m_error = m_validators.errorString();
    return outcome;
}

bool DirectoryRecords::loadValidator(const QString &identification, ConfigImage &image,
                                     QString *description, int *family,
                                     ValidatorStore::LoadReport *report)
{
    const bool ok = m_validators.load(identification, image, description, report);
    m_error = m_validators.errorString();
    if (ok && family) {
        const DbfTable &table = *m_db.Gettoniere();
        const int v = table.locate(QStringLiteral("IDENT"), identification.trimmed());
        *family = ValidatorStore::familyOf(table.text(v, QStringLiteral("VERSION")));
    }
    return ok;
}

bool DirectoryRecords::removeValidator(const QString &identification)
{
    const bool ok = m_validators.remove(identification);
    m_error = m_validators.errorString();
    return ok;
}

QList<ProfileStore::Entry> DirectoryRecords::profiles()
{
    return m_profiles.list();
}

std::optional<ProfileRecord> DirectoryRecords::loadProfile(const QString &name)
{
    std::optional<ProfileRecord> profile = m_profiles.load(name);
    m_error = m_profiles.errorString();
    return profile;
}

ProfileStore::Outcome DirectoryRecords::saveProfile(const ProfileRecord &profile)
{
    const ProfileStore::Outcome outcome = m_profiles.save(profile);
    m_error = m_profiles.errorString();
    return outcome;
}

bool DirectoryRecords::removeProfile(const QString &name)
{
    const bool ok = m_profiles.remove(name);
    m_error = m_profiles.errorString();
    return ok;
}

QList<ValueTableStore::Entry> DirectoryRecords::valueTables()
{
    return m_values.list();
}

bool DirectoryRecords::openValueTable(const QString &name, ValueBlock &block, bool light,
                                      ValueTableStore::Entry *entry)
{
    const bool ok = m_values.open(name, block, light, entry);
    m_error = ok ? m_values.conversionError() : m_values.errorString();
    return ok;
}

ValueTableStore::Outcome DirectoryRecords::saveValueTable(const ValueBlock &block,
                                                          const QString &name,
                                                          const QString &description, bool light)
{
    const ValueTableStore::Outcome outcome = m_values.save(block, name, description, light);
    m_error = m_values.errorString();
    return outcome;
}

bool DirectoryRecords::removeValueTable(const QString &name)
{
    const bool ok = m_values.remove(name);
    m_error = m_values.errorString();
    return ok;
}

bool DirectoryRecords::canChangeValidators()
{
    const bool ok = m_validators.canChange();
    m_error = m_validators.errorString();
    return ok;
}

bool DirectoryRecords::canChangeProfiles()
{
    const bool ok = m_profiles.canChange();
    m_error = m_profiles.errorString();
    return ok;
}

bool DirectoryRecords::canChangeValueTables()
{
    const bool ok = m_values.canChange();
    m_error = m_values.errorString();
    return ok;
}

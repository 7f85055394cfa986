#pragma once

#include "RecordStore.h"

class TDBModule;
class UserPrompt;

// The records in the dBase tables of a data directory, through the data module's stores.
class DirectoryRecords final : public RecordStore
{
public:
    DirectoryRecords(TDBModule &db, UserPrompt &prompt);
    Q_DISABLE_COPY_MOVE(DirectoryRecords)

    QString where() const override;
    QString errorString() const override { return m_error; }

    QList<ValidatorStore::Entry> validators() override;
    ValidatorStore::Outcome storeValidator(const ConfigImage &image, const QString &identification,
                                           const QString &description) override;
    bool loadValidator(const QString &identification, ConfigImage &image, QString *description,
                       int *family, ValidatorStore::LoadReport *report) override;
    bool removeValidator(const QString &identification) override;

    QList<ProfileStore::Entry> profiles() override;
    std::optional<ProfileRecord> loadProfile(const QString &name) override;
    ProfileStore::Outcome saveProfile(const ProfileRecord &profile) override;
    bool removeProfile(const QString &name) override;

    QList<ValueTableStore::Entry> valueTables() override;
    bool openValueTable(const QString &name, ValueBlock &block, bool light,
                        ValueTableStore::Entry *entry) override;
    ValueTableStore::Outcome saveValueTable(const ValueBlock &block, const QString &name,
                                            const QString &description, bool light) override;
    bool removeValueTable(const QString &name) override;
    bool canChangeValidators() override;
    bool canChangeProfiles() override;
    bool canChangeValueTables() override;

private:
    TDBModule &m_db;
    ValidatorStore m_validators;
    ProfileStore m_profiles;
    ValueTableStore m_values;
    QString m_error;
};

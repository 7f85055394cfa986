#pragma once

#include "RecordStore.h"

#include <QVariantList>
#include <functional>

class QSqlDatabase;
class QSqlQuery;
class ServerConnection;
class UserPrompt;

// The records in tables on a PostgreSQL server. Each operation is one transaction: two
// programs storing at once both land, one that dies mid-way loses only its own change, and a
// lost server is said in plain words with nothing half-stored.
class ServerRecords final : public RecordStore
{
public:
    ServerRecords(ServerConnection &server, UserPrompt &prompt);
    Q_DISABLE_COPY_MOVE(ServerRecords)

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
    bool canChangeValidators() override { return changeable(); }
    bool canChangeProfiles() override { return changeable(); }
    bool canChangeValueTables() override { return changeable(); }

private:
    enum class Change
    {
        Done,
        Declined,
        Failed
    };
    using Write = std::function<bool(QSqlDatabase &db, QString *error)>;
    // Writes the row of key in table (keyed by keyColumn, in lower case) in one transaction.
    // An existing row is replaced only on Yes to "%s exist! Overwrite ?", asked again when
    // another program changed it between the question and the change.
    Change saveRow(const QString &table, const QString &keyColumn, const QString &key,
                   const Write &write);
    // Deletes the row of key in one transaction; false with notStored in m_error when none.
    bool removeRow(const QString &table, const QString &keyColumn, const QString &key,
                   const QString &notStored);
    bool changeable()
    {
        m_error.clear();
        return true;
    }
    // Reads in one transaction; false with the reason in m_error.
    bool read(const Write &work);

    ServerConnection &m_server;
    UserPrompt &m_prompt;
    QString m_error;
};

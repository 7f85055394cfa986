#pragma once

#include "ConfigImage.h"
#include "ProfileStore.h"
#include "ValidatorStore.h"
#include "ValueTableStore.h"

#include <QList>
#include <QString>
#include <optional>

// Where validators with their channels, coin profiles and value tables are kept: the tables of
// a data directory or a database server. The forms and tarvik-cli work through this interface
// only. Every change is whole or not at all; an existing name is replaced only when the person
// answers Yes to "%s exist! Overwrite ?", asked again when another program changed it meanwhile.
// Messages and questions go through the prompt the implementation was given.
class RecordStore
{
public:
    virtual ~RecordStore() = default;

    // Where the records are, as a person names it (a directory, or host:port/database).
    virtual QString where() const = 0;
    // Why the last operation failed.
    virtual QString errorString() const = 0;

    // Validators: as ValidatorStore has them.
    virtual QList<ValidatorStore::Entry> validators() = 0;
    virtual ValidatorStore::Outcome storeValidator(const ConfigImage &image,
                                                   const QString &identification,
                                                   const QString &description) = 0;
    // Fills a blank image as ValidatorStore::load does; *family gets the stored family byte
    // (-1 when the stored text is not one).
    virtual bool loadValidator(const QString &identification, ConfigImage &image,
                               QString *description, int *family,
                               ValidatorStore::LoadReport *report) = 0;
    virtual bool removeValidator(const QString &identification) = 0;
    // Opens a stored validator into the image the editor holds (see ValidatorStore::loadInto).
    bool loadValidatorInto(const QString &identification, ConfigImage &image,
                           QString *description = nullptr,
                           ValidatorStore::LoadReport *report = nullptr);

    // Whether validators, profiles or value tables take changes now; errorString() says why
    // not. A server is reached when it is used, and says then when it cannot be.
    virtual bool canChangeValidators() = 0;
    virtual bool canChangeProfiles() = 0;
    virtual bool canChangeValueTables() = 0;

    // Coin profiles: as ProfileStore has them.
    virtual QList<ProfileStore::Entry> profiles() = 0;
    virtual std::optional<ProfileRecord> loadProfile(const QString &name) = 0;
    virtual ProfileStore::Outcome saveProfile(const ProfileRecord &profile) = 0;
    virtual bool removeProfile(const QString &name) = 0;

    // Value tables: as ValueTableStore has them, by name.
    virtual QList<ValueTableStore::Entry> valueTables() = 0;
    virtual bool openValueTable(const QString &name, ValueBlock &block, bool light,
                                ValueTableStore::Entry *entry = nullptr) = 0;
    virtual ValueTableStore::Outcome saveValueTable(const ValueBlock &block, const QString &name,
                                                    const QString &description, bool light) = 0;
    virtual bool removeValueTable(const QString &name) = 0;
};

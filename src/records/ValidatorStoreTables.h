#pragma once

#include "EditorServices.h"
#include "ValidatorStore.h"

// The editor's tables over the validator store of the data module.
class ValidatorStoreTables final : public ValidatorTables
{
public:
    ValidatorStoreTables(TDBModule &db, UserPrompt &prompt) : m_store(db, prompt) {}

    Outcome storeValidator(const ConfigImage &image, const QString &identification,
                           const QString &description) override
    {
        switch (m_store.store(image, identification, description)) {
        case ValidatorStore::Outcome::Stored:
            return Outcome::Stored;
        case ValidatorStore::Outcome::NotOverwritten:
            return Outcome::NotOverwritten;
        default:
            return Outcome::Failed;
        }
    }

private:
    ValidatorStore m_store;
};

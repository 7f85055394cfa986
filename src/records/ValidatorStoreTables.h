#pragma once

#include "DirectoryRecords.h"
#include "EditorServices.h"

#include <memory>

// The editor's tables over the validator store of a data source.
class ValidatorStoreTables final : public ValidatorTables
{
public:
    explicit ValidatorStoreTables(RecordStore &store) : m_store(store) {}
    // Over the tables of a data module.
    ValidatorStoreTables(TDBModule &db, UserPrompt &prompt)
        : m_own(std::make_unique<DirectoryRecords>(db, prompt)), m_store(*m_own)
    {}

    Outcome storeValidator(const ConfigImage &image, const QString &identification,
                           const QString &description) override
    {
        switch (m_store.storeValidator(image, identification, description)) {
        case ValidatorStore::Outcome::Stored:
            return Outcome::Stored;
        case ValidatorStore::Outcome::NotOverwritten:
            return Outcome::NotOverwritten;
        default:
            return Outcome::Failed;
        }
    }

private:
    std::unique_ptr<RecordStore> m_own;
    RecordStore &m_store;
};

#include "RowChange.h"

#include "DbfTable.h"
#include "Messages.h"
#include "TableLock.h"
#include "UserPrompt.h"

namespace RowChange {

int sameRow(const DbfTable &table, const QString &keyField, const QString &key,
            const QByteArray &bytes)
{
    for (int row : table.locateAll(keyField, key)) {
        if (table.rawRecord(row) == bytes)
            return row;
    }
    return -1;
}

Result save(DbfTable &table, const QString &keyField, const QString &key, UserPrompt &prompt,
            const std::function<bool(int row)> &fill, QString *error)
{
    const TableLock::WaitBudget wait; // one bounded wait for the whole change
    auto overwrite = [&] {
        return prompt.ask(messageText(Msg::ExistOverwrite, {key}), UserPrompt::Kind::Warning,
                          UserPrompt::Buttons::YesNo) == UserPrompt::Answer::Yes;
    };
    // The question is about the row as it is now.
    table.refresh();
    QByteArray agreed; // the row the person agreed to overwrite, empty for none
    int r = table.locate(keyField, key);
    if (r >= 0) {
        if (!overwrite())
            return Result::Declined;
        agreed = table.rawRecord(r);
    }
    for (;;) {
        {
            TableChangeLock lock({&table});
            if (!lock.ok()) {
                *error = lock.errorString();
                return Result::Failed;
            }
            r = table.locate(keyField, key);
            if (r < 0 || table.rawRecord(r) == agreed) {
                if (r < 0)
                    r = table.appendRecord();
                if (r < 0 || !fill(r) || !table.commit()) {
                    *error = table.errorString();
                    return Result::Failed; // the lock drops what was not committed
                }
                return Result::Done;
            }
        }
        // Another program stored or changed the row since: ask again, about it as it is now.
        if (!overwrite())
            return Result::Declined;
        agreed = table.rawRecord(table.locate(keyField, key));
    }
}

Result remove(DbfTable &table, const QString &keyField, int shown, UserPrompt &prompt,
              QString *error)
{
    const TableLock::WaitBudget wait; // one bounded wait for the whole change
    const QString key = table.text(shown, keyField);
    QByteArray bytes = table.rawRecord(shown);
    for (;;) {
        {
            TableChangeLock lock({&table});
            if (!lock.ok()) {
                *error = lock.errorString();
                return Result::Failed;
            }
            const int r = sameRow(table, keyField, key, bytes);
            if (r >= 0) {
                if (!table.deleteRecord(r) || !table.commit()) {
                    *error = table.errorString();
                    return Result::Failed;
                }
                return Result::Done;
            }
            if (table.locate(keyField, key) < 0)
                return Result::Done; // deleted by another program already
        }
        if (prompt.ask(messageText(Msg::RecordsChangedMeanwhile, {key}), UserPrompt::Kind::Warning,
                       UserPrompt::Buttons::YesNo) != UserPrompt::Answer::Yes) {
            *error = messageText(Msg::RecordsChangedElsewhere, {key});
            return Result::Declined;
        }
        bytes = table.rawRecord(table.locate(keyField, key));
    }
}

} // namespace RowChange

#pragma once

#include <QString>
#include <functional>

class DbfTable;
class UserPrompt;

// Changing one keyed row of a table that other programs share: the table is locked for the
// change only, never while a question waits for an answer, and a row that another program
// stored or changed between the question and the lock is asked about again, so that its change
// is never lost unseen.
namespace RowChange {

enum class Result
{
    Done,
    Declined, // the person answered No
    Failed    // error says why; nothing was written
};

// Stores into the live row whose keyField equals key without regard to case, asking
// "%s exist! Overwrite ?" first, or into a new row when there is none. fill sets the row's
// fields; false from it (with the table's errorString()) fails the store.
Result save(DbfTable &table, const QString &keyField, const QString &key, UserPrompt &prompt,
            const std::function<bool(int row)> &fill, QString *error);

// Deletes row `shown` as this program last read it. When another program changed it since,
// asks whether to delete it as it is now; when another program deleted it already, that is
// done too.
Result remove(DbfTable &table, const QString &keyField, int shown, UserPrompt &prompt,
              QString *error);

// The live row under key whose bytes are `bytes`, -1 when there is none.
int sameRow(const DbfTable &table, const QString &keyField, const QString &key,
            const QByteArray &bytes);

} // namespace RowChange

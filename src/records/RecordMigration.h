#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class HistoryStore;
class RecordStore;

// Copies what one store holds into another: what the target lacks is copied and read back,
// what it holds alike is left and checked, what it holds otherwise under the same name is left
// as it is and named. Running it twice copies nothing twice.
namespace RecordMigration {

struct Counts
{
    QString what;      // "validators", "profiles", "value tables", "history events"
    int copied = 0;    // written to the target
    int present = 0;   // already there alike
    int checked = 0;   // read back from the target equal to the source
    int different = 0; // there under the same name with other contents: left as it is
    int failed = 0;    // could not be read, written or read back
};

struct Report
{
    QList<Counts> counts;
    QStringList problems; // one line per item left or failed
    bool ok() const;
};

// Validators with their channels, coin profiles and value tables.
Report copyRecords(RecordStore &from, RecordStore &to);
// Every event of every serial number.
Report copyHistory(HistoryStore &from, HistoryStore &to);

} // namespace RecordMigration

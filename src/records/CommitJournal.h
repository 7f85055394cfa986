#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

// One commit of several tables as one (see docs/tables.md, "One change, one commit").
//
// A change that writes more than one table first prepares every table: the new index and, for a
// table that is rewritten, the new table go to temporaries, and rows that are only appended go
// after the last counted row, all flushed to the disk; no reader sees any of it yet. Then the
// journal "<first table>.tarvik-journal" (beside the first table in lock order) names, for each
// table, the steps that make its part visible: the temporary to rename over the table, or the
// record count to write and the length to cut the file to, and the index temporary to rename
// over the index. It is written to a temporary, flushed and renamed, and the directory flushed:
// from that instant the change is decided. Then the steps are done and the journal removed.
//
// A program that is killed before the journal exists leaves the old tables (the temporaries go
// and the rows after the count are ignored, as after any single commit cut short). One killed
// after leaves a journal, and every program of this version looks for journals naming a table
// before it reads it or changes it, and completes them first, under the exclusive locks of all
// the tables a journal names, taken in their fixed order. Every step can be done again, so a
// program killed while completing a journal leaves it for the next one.
namespace CommitJournal {

// What makes one table's prepared change visible. Paths are the files written (the targets of
// symbolic links).
struct Step
{
    QString table;
    QString tableTemp;  // the new table, renamed over it; empty when rows were appended
    QByteArray header;  // appended rows: header bytes 1 to 7 (date and record count) ...
    qint64 length = -1; // ... and the file's new length; -1 when the table is unchanged
    QString index;      // empty when the table has no index
    QString indexTemp;
    // Rows appended in place: where they start (the old end of the counted rows), to cut the
    // file back to should the change not be decided. -1 otherwise.
    qint64 restoreLength = -1;
    QByteArray tail; // the rows themselves, not in the journal
};

enum class State
{
    Prepared, // rows may be appended after the count: the next program cuts them off again
    Decided   // every table is prepared: the next program completes the change
};

// The suffix of journal files.
QString suffix();
// Writes the journal of steps beside the first table, replacing the one there (a decided one
// flushed to the disk with its directory); its path, empty on failure (error set).
QString write(const std::vector<Step> &steps, State state, QString *error);
// The steps a journal names; false when it cannot be read.
bool read(const QString &journal, std::vector<Step> *steps, State *state = nullptr);
// Completes a decided journal (every step done again) or undoes a prepared one (rows appended
// after a count that does not count them yet are cut off, the temporaries go), then removes it;
// the caller holds the exclusive locks of its tables.
bool complete(const QString &journal, QString *error);
enum class Applied
{
    Done,
    TableOnly, // the table holds the change, its index could not be replaced (error set)
    Failed,    // nothing was made visible (error set)
    Crashed    // stopped by the test seam, leaving the files as a power cut would
};
// Makes one step visible: the table first, then its index. With durable, a renamed table's
// directory is flushed; under a journal it is flushed once for all (syncDirectories()) before
// the journal goes, as a rename lost to a power cut is done again from the journal.
Applied apply(const Step &step, QString *error, bool durable = true);
// Flushes the directories of the tables the steps renamed, each once.
void syncDirectories(const std::vector<Step> &steps);
// The journals left in the directories of these tables (target paths) that name any of them.
QStringList pendingFor(const QStringList &tables);
// The tables a journal names, in lock order.
QStringList tablesOf(const QString &journal);
// Completes a journal that no program is working on, taking the exclusive locks of its tables
// in their order (nothing else may be held); false when a lock could not be had.
bool settle(const QString &journal, QString *error);

} // namespace CommitJournal

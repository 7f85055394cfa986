#pragma once

#include "TableSchema.h"

#include <QByteArray>
#include <QList>
#include <QString>

// Mends the damaged tables of a data directory without losing a record.
//
// For each damaged table it first copies the table and its index, as they are, into
// <data dir>/backups/damaged-<time>/; then it writes the table anew with every row that can be
// read (level, language driver, field descriptors and flags and the level-7 properties kept;
// only the record count, the date and what was broken set) through a temporary file and a
// rename, as every commit does, and last rebuilds its index from it. A sound table whose index
// cannot be trusted is copied the same way and gets its index rebuilt. A sound table is left
// untouched, and so is a file of which nothing can be read.
//
// Each table is mended under its exclusive lock (TableLock), so that programs holding the
// tables open meanwhile wait for it, then read the mended table.
struct DbfLayout;

class TableRepair final
{
public:
    // Whether a rebuilt table reads back sound, with the layout's rows and every number and date
    // readable: the repair writes nothing else.
    static bool readsBack(const QByteArray &rebuilt, const DbfLayout &layout,
                          const TableSchema *schema);

    enum class State
    {
        Sound,         // nothing to repair
        Missing,       // no such file
        Damaged,       // not every row can be read (found by check())
        IndexUnusable, // the table is sound but its index cannot be trusted (check())
        Unreadable,    // nothing of it can be read: left as it is
        Repaired,
        IndexRebuilt,
        Failed,
        Orphans,        // channel rows of no stored validator (checkValidators())
        OrphansRemoved, // ... removed by the repair
        ChannelsMissing // validators without channel rows: said, kept, usable
    };

    struct Result
    {
        QString fileName;
        State state = State::Sound;
        QString problem;       // what is or was wrong, naming the file
        int kept = 0;          // rows that can be read, which the repaired table holds
        qint64 unreadable = 0; // rows that could not be read (orphan channel rows)
        QString backup;        // the directory holding the copies of the damaged files
        QString error;         // why the repair failed

        // The table can be used as it stands now: it is sound or has been repaired.
        bool sound() const;
        // What is said about it (the per-table line of the report).
        QString text() const;
    };

    explicit TableRepair(const QString &dataDir);

    // What is wrong with each of the tables; nothing is changed.
    QList<Result> check(const QList<const TableSchema *> &tables = TableSchema::all()) const;
    // Repairs the damaged ones among the tables; the copies of one run share a directory.
    QList<Result> repair(const QList<const TableSchema *> &tables = TableSchema::all());

    // One table file of the data directory, with the fields it is known to have when given.
    Result checkFile(const QString &path, const TableSchema *schema) const;
    Result repairFile(const QString &path, const TableSchema *schema);

    // Whether every channel row belongs to a stored validator, and every stored validator has
    // channel rows (older versions could leave either after a crash). Nothing when both are
    // as they should be, or one of the two tables cannot be read.
    QList<Result> checkValidators() const;
    // Removes the channel rows of no stored validator (copied first with the channel table and
    // its index, as any repair does); validators without channel rows are kept and said.
    QList<Result> repairValidators();

    // The table called name: its file name with or without the extension, or its component
    // name, without regard to case; nullptr when there is none.
    static const TableSchema *tableNamed(const QString &name);

    // Where the copies of this run went; empty while nothing was copied.
    QString backupDirectory() const { return m_backup; }

private:
    Result examine(const QString &path, const QByteArray &table, const QByteArray &index,
                   const TableSchema *schema) const;
    bool makeBackupDirectory(QString *error);
    QList<Result> validators(bool repair);

    QString m_dir;
    QString m_backup;
};

#pragma once

#include "DbfTable.h"

#include <QByteArray>
#include <QDate>
#include <QList>
#include <QString>

struct TableSchema;

// Where the rows of a table file lie: its header, its fields and its rows, as the header
// describes them or, when the header is damaged, as far as they can be recovered.
//
// A sound file holds every row its header counts. Rows past the count are not the table's (a
// commit writes appended rows before it writes their count) and are left out, unless the index
// names them (see the second read()). A file that
// holds fewer whole rows than its count is damaged: the whole rows it holds can be read, a
// row cut short cannot.
//
// A header that does not parse is recovered from what is left of it: the field descriptors
// when their list is whole (the header and record lengths are then worked out from them), or
// else, for one of the five tables, the fields the table is known to have. Rows are read only
// where they line up (each starts with a live or deleted mark); what the header keeps that is
// still there (level, language driver, field flags, the level-7 properties) stays as it is.
// A file of which nothing can be recovered is unreadable. A header length that leaves bytes
// other than padding between the end mark and the first row, and a field length that does not
// add up to the record length (mended from the fields the table is known to have), are damage.
struct DbfLayout
{
    enum class State
    {
        Sound,
        Damaged,
        Unreadable
    };

    State state = State::Unreadable;
    QString problem; // what is wrong, naming the file; empty when sound
    bool level7 = false;
    // The header to hold the rows below: the level's fixed part, a descriptor for each field,
    // the end mark and what follows it; record count, header and record lengths set.
    QByteArray header;
    int recordLength = 0;
    QList<DbfField> fields;
    qint64 rowsOffset = 0; // where the first row starts in the file
    int rows = 0;          // the rows that can be read, from the first
    qint64 unreadable = 0; // rows the file was meant to hold that cannot be read

    static DbfLayout read(const QByteArray &bytes, const QString &fileName,
                          const TableSchema *schema = nullptr);
    // The same, with the rows past a lowered record count that the index (written after the
    // count by every commit) still names and the file still holds whole: the layout then
    // holds them and is damaged, so that the table opens read-only until it is repaired.
    static DbfLayout read(const QByteArray &bytes, const QByteArray &index, const QString &fileName,
                          const TableSchema *schema);

    // The table written anew with the rows that can be read: the header with its date set,
    // the rows as they are (deleted ones included), the end-of-file mark.
    QByteArray rebuilt(const QByteArray &bytes, const QDate &today) const;
};

#pragma once

#include "HistoryStore.h"

#include <QByteArray>
#include <QString>

// The history beside the tables: <data directory>/history/<serial>.tvh, one file per serial
// number, to which events are only ever appended.
//
// Each event is one record: "TVH1", the length of its text and the CRC-32 of the text (both
// 32-bit, least significant byte first), then the text, a compact JSON object. A record's
// configuration is written whole only when there is no earlier one to start from; otherwise it
// is the bytes that changed since the event before (none at all when nothing did), so an event
// costs a few hundred bytes.
//
// Every program that records or reads takes the lock on history/events.lck (exclusive to
// record, shared to read) for the milliseconds it needs. A record is flushed to the disk before
// record() returns. A kill while appending leaves a record cut short at the end of the file:
// reading stops before it, and the next recording cuts it off before appending.
class HistoryFiles final : public HistoryStore
{
public:
    // dataDirectory is the tables' directory; the history lives in its "history" folder.
    explicit HistoryFiles(const QString &dataDirectory);

    bool record(const HistoryEvent &event, QString *error = nullptr) override;
    std::optional<QList<HistoryEvent>> events(quint32 serial,
                                              QString *error = nullptr) const override;
    std::optional<QList<HistorySerial>> serials(QString *error = nullptr) const override;

    QString directory() const { return m_dir; }
    QString fileOf(quint32 serial) const;

    // Takes the read backups of backupDirectory (files "<yyyyMMdd-HHmmss-zzz>-serial<N>.json")
    // into the history as "backup" events, once: a note in the history folder says it was done.
    // An import cut short is done again from the start; the events it had recorded are kept once.
    // Backups from before (local time) only are taken: the ones this program writes from then on
    // have their read in the history already. Returns the number of backups taken in, or -1
    // with the reason in *error.
    int importBackupsOnce(const QString &backupDirectory, const QString &machine,
                          const QDateTime &before, QString *error = nullptr);

    // The fixed byte form of a configuration in the history (every block in a fixed order).
    static QByteArray packConfiguration(const ConfigImage &image);
    static bool unpackConfiguration(const QByteArray &bytes, ConfigImage &image);
    static constexpr qsizetype kPackedSize = 1147;

private:
    QString m_dir;
};

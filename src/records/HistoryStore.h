#pragma once

#include "ConfigImage.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <optional>

// One thing that happened to one validator: a read, a write of any kind, a learned or
// calibrated channel written, a restore. Events are kept per serial number, oldest first.
struct HistoryEvent
{
    quint32 serial = 0;
    QDateTime time; // UTC, to the millisecond
    // What happened: "read", "write", "clone", "changes", "batch", "learn", "calibrate",
    // "restore", "backup" for a read backup taken into the history, or "store" when the
    // configuration of the validator read or written was saved in the tables (detail: its name).
    QString kind;
    // How it ended: "verified", "mismatch", "failed", or empty when there is nothing to check
    // (a read).
    QString result;
    QString program; // "tarvik" or "tarvik-cli", with its version
    QString machine; // the machine's host name
    QString user;    // the account that ran the program
    QString detail;  // a short note in the program's words (the channel learned, a message)
    // The configuration the validator held afterwards as far as the program knows; nothing when
    // it does not know (a failed read).
    std::optional<ConfigImage> configuration;
};

// The last event of one serial number, for the list of validators known.
struct HistorySerial
{
    quint32 serial = 0;
    int events = 0;
    HistoryEvent last; // without its configuration
};

// Where the history lives: beside the tables in the data directory, or on the server. Several
// programs may record at once; an event is recorded whole or not at all. Two events are the
// same event when their serial, time, kind and machine are equal: recording one twice keeps one.
class HistoryStore
{
public:
    virtual ~HistoryStore() = default;

    // Records one event; false with the reason in *error when it could not be kept.
    virtual bool record(const HistoryEvent &event, QString *error = nullptr) = 0;
    // Every event of one serial number, oldest first, each with its configuration; nothing
    // (and the reason) when the history cannot be read. An unknown serial gives an empty list.
    virtual std::optional<QList<HistoryEvent>> events(quint32 serial,
                                                      QString *error = nullptr) const = 0;
    // Every serial number with an event, in increasing order.
    virtual std::optional<QList<HistorySerial>> serials(QString *error = nullptr) const = 0;
};

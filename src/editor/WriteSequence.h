#pragma once

#include "CloneGroups.h"
#include "ConfigImage.h"
#include "TMonnayeur.h"

#include <QDate>
#include <functional>

enum class WriteOutcome
{
    Finished,         // "Finished operation!": the gauge ended at 100
    Fault,            // "Fault during save operation !": something was not written
    Cancelled,        // "Operation cancelled": nothing was written
    IncorrectVersion, // "Incorrect version of validator": nothing was written
    NoGroup           // a clone with no group chosen: nothing was written
};

struct WriteObserver
{
    std::function<void(int gauge)> progress;
};

struct FullWriteOptions
{
    // Write the image's serial number instead of keeping the validator's own; the write clears
    // the flag.
    bool serialOverride = false;
    // The type group is on "00 - Validator" and the "Code" box is checked: the code table is
    // checked before writing.
    bool codeTableCheck = false;
    // The programming date written into the identification.
    QDate today = QDate::currentDate();
    // Asked when the validator's last channel differs from the image's; false cancels the
    // write. Unset: the question goes to the link's prompt (OK continues).
    std::function<bool(const QString &warning)> lastChannelWarning;
};

// The full write: every block of the image to the validator that was read. Shows its messages
// through the link's prompt. Changes the image only in its identification (programming date;
// the validator's own serial number and production date unless the serial override was set).
WriteOutcome fullWrite(TMonnayeur &link, ConfigImage &image, FullWriteOptions &options,
                       const WriteObserver &observer = {});

// The clone write: the chosen groups of the image to another validator of the same family,
// with the channel windows corrected by the target's reference channel.
WriteOutcome cloneWrite(TMonnayeur &link, const ConfigImage &image, const CloneGroups &groups,
                        const WriteObserver &observer = {});

// The correction of one channel record for the target's reference channel: each window byte is
// scaled by the ratio of the target's reference window centre to the image's (1 when either is
// not set), rounded to nearest and kept within 0..254; 255 stays 255, the substitute is copied,
// and a record whose windows are all 255 becomes all 255.
ChannelBytes correctedRecord(const quint8 *record, const quint8 *imageReference,
                             const quint8 *targetReference);

// The gauge of the full write after channel i: round((i + 1) x 1.55), halves to even.
int writeGaugeAfterChannel(int i);

#pragma once

#include "ConfigDiff.h"
#include "ConfigImage.h"
#include "ReadSequence.h"
#include "WriteSequence.h"
#include "WriteVerification.h"

#include <QDate>
#include <QString>
#include <array>
#include <functional>

class TMonnayeur;

// The blocks that differ between what the validator holds (the baseline) and what is wanted:
// what a changes write sends, each block only when it differs.
struct ChangesPlan
{
    std::array<bool, kChannels> channels{}; // the record as the validator keeps it differs
    std::array<bool, 5> valueSlices{};      // 15-byte slices of the value table
    bool options = false;
    bool prices = false;
    bool enable = false;
    bool counters = false; // only when the wanted option word lets them travel
    bool ident = false;    // the serial number, with the serial override only
    bool ownBlock = false; // the block of command 12

    // How many write commands the plan sends.
    int blocks() const;
    bool empty() const { return blocks() == 0; }
};

// What differs, block by block. The identification is planned only with serialOverride and a
// different serial number: otherwise a validator keeps its own, as in the full write.
ChangesPlan planChanges(const ConfigImage &baseline, const ConfigImage &wanted,
                        bool serialOverride = false);

// The differences a plan sends, in the words of the Changes window: what the write leaves
// alone (the version, the serial number without the override, counters that do not travel) is
// left out.
QList<ConfigChange> changesSent(const ConfigImage &baseline, const ConfigImage &wanted,
                                const ChangesPlan &plan);

// Why a changes write wrote nothing before it began.
enum class ChangesRefusal
{
    None,
    NotConnected,   // the connect loop was cancelled, or the validator did not answer
    BaselineOther,  // the baseline is of another family or channel count than the wanted image
    OtherValidator, // the connected validator's serial number or family is not the baseline's
    WrittenSince,   // the validator was programmed after the baseline was taken
    NothingChanged  // the validator already holds the wanted configuration
};

struct ChangesWriteOptions
{
    // Writes even when the validator was programmed after the baseline was taken.
    bool force = false;
    // Writes the wanted image's serial number instead of keeping the validator's own.
    bool serialOverride = false;
    // Asks "Connect validator " while the validator does not answer.
    bool askConnect = true;
    // The programming date, when the identification is written.
    QDate today = QDate::currentDate();
    // Told the plan once the validator has been found to be the baseline's, before anything
    // is sent.
    std::function<void(const ChangesPlan &)> sending;
};

struct ChangesWriteResult
{
    WriteOutcome outcome = WriteOutcome::Cancelled;
    ChangesRefusal refusal = ChangesRefusal::None;
    ChangesPlan plan;
    SentBlocks sent;
};

// Whether a validator whose identification reads `theirs` was programmed after `baseline` was
// taken from it: its programming date is later, or it was programmed through the
// mini-programmer since.
bool programmedSince(const IdentRecord &baseline, const IdentRecord &theirs);

// The changes write: reads the validator's identification and version, refuses (through the
// link's prompt, nothing written) a validator that is not the baseline's, then sends only the
// blocks that differ from the baseline, in the order of the full write, and ends with "Finished
// operation!" or "Fault during save operation !". The gauge counts the blocks sent.
ChangesWriteResult changesWrite(TMonnayeur &link, const ConfigImage &baseline,
                                const ConfigImage &wanted, const ChangesWriteOptions &options,
                                const WriteObserver &observer = {});

// Reads back the blocks a write sent, and the identification, and compares them as the
// verification of a full write does. Blocks not sent are taken as the baseline holds them.
VerifyResult verifySentBlocks(TMonnayeur &link, const ConfigImage &baseline, const SentBlocks &sent,
                              const ReadObserver &observer = {});

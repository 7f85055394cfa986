#pragma once

#include "CloneGroups.h"
#include "CloneTarget.h"
#include "ConfigImage.h"
#include "TMonnayeur.h"

#include <QDate>
#include <functional>
#include <optional>

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

// How one write step ended.
enum class StepEnd
{
    NotRun,     // skipped, or not part of this write
    Accepted,   // the validator answered status 0: stored
    Refused,    // it answered another status: not stored, and the link stays good
    Unanswered, // the data went out but no status came back: it may have been stored
    Failed      // the exchange broke before the data went out: not stored
};

// How each write step ended, so that the write can say what the validator now holds.
struct WriteSteps
{
    std::array<StepEnd, kChannels> channels{};
    StepEnd options = StepEnd::NotRun;
    StepEnd values = StepEnd::NotRun;
    int valueParts = 0; // of the value table's five slices, those accepted
    StepEnd prices = StepEnd::NotRun;
    StepEnd enable = StepEnd::NotRun;
    StepEnd counters = StepEnd::NotRun;
    StepEnd ident = StepEnd::NotRun;
    StepEnd ownBlock = StepEnd::NotRun; // the validator's own block, command 12
};

// How a write step ended, from whether it was accepted and what the link saw: refused when the
// exchange went well but the status was not 0, else unanswered or failed by whether its data
// had left the port.
StepEnd stepEnd(const TMonnayeur &link, bool accepted);

// What the steps of a write sent, each block set only when its step ran, whether the validator
// accepted it or not. Channel records are as they went on the line: the clone's corrected
// records, and a short record as the validator keeps it (no amplitude window).
struct SentBlocks
{
    std::array<std::optional<ChannelBytes>, kChannels> channels;
    std::optional<OptionWord> options; // the clone's keeps the target's own bits 4 to 6
    std::optional<ValueBlock> values;
    std::optional<PriceBlock> prices;
    std::optional<EnableBitmap> enable;
    std::optional<CounterBlock> counters; // only when the option word lets them travel
    std::optional<IdentRecord> ident;
    // The clone's correction of the windows, when its channels went out.
    std::optional<CloneCorrection> correction;
    WriteSteps steps;
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
// When sent is given, it receives what each step sent.
WriteOutcome fullWrite(TMonnayeur &link, ConfigImage &image, FullWriteOptions &options,
                       const WriteObserver &observer = {}, SentBlocks *sent = nullptr);

// The clone write: the chosen groups of the image to another validator of the same family,
// with the channel windows corrected by the target's reference channel; "Finished operation!"
// then names the correction.
WriteOutcome cloneWrite(TMonnayeur &link, const ConfigImage &image, const CloneGroups &groups,
                        const WriteObserver &observer = {}, SentBlocks *sent = nullptr);

// The correction of one channel record for the target's reference channel: each window byte is
// scaled by the ratio of the target's reference window centre to the image's (1 when either is
// not set), rounded to nearest and kept within 0..254; 255 stays 255, the substitute is copied,
// and a record whose windows are all 255 becomes all 255.
ChannelBytes correctedRecord(const quint8 *record, const quint8 *imageReference,
                             const quint8 *targetReference);

// The gauge of the full write after channel i: round((i + 1) x 1.55), halves to even.
int writeGaugeAfterChannel(int i);

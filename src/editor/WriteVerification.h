#pragma once

#include "ConfigDiff.h"
#include "ReadSequence.h"
#include "WriteSequence.h"

#include <QList>
#include <QString>

enum class VerifyOutcome
{
    ReadBackFailed, // the validator could not be read back: the write's own result stands
    Verified,       // the validator holds every block the write sent
    Mismatches      // some blocks it sent are not in the validator
};

struct VerifyResult
{
    VerifyOutcome outcome = VerifyOutcome::ReadBackFailed;
    // "before" is what was sent, "after" what the validator holds.
    QList<ConfigChange> mismatches;
    // What the validator holds, when it could be read back.
    ConfigImage readBack = ConfigImage::blank();
};

// What the validator should hold after a write: the read-back with every block the write sent
// laid over it. The programming date is the validator's own to set, and counters that were not
// sent are whatever the validator counts: both are taken as read back.
ConfigImage expectedAfterWrite(const ConfigImage &readBack, const SentBlocks &sent);

// Compares what a write sent with a read-back of the validator.
VerifyResult compareWithReadBack(const ConfigImage &readBack, const SentBlocks &sent);

// Reads the validator back with the reading sequence (its gauge through observer) into an image
// of its own and compares it with what the write sent. Nothing is asked: a validator that does
// not answer fails the read-back.
VerifyResult verifyWrite(TMonnayeur &link, const SentBlocks &sent,
                         const ReadObserver &observer = {});

// The message that says the result: "Verified: ...", the heading with one difference a line, or
// "Verification failed: ...". With maxLines above 0, a longer list is cut there and ends with
// how many more there are (a message box must fit the screen).
QString verificationMessage(const VerifyResult &result, int maxLines = 0);

#pragma once

#include "ConfigImage.h"
#include "WriteSequence.h"
#include "WriteVerification.h"

#include <QString>
#include <optional>

// What the editor did to a validator, for its history: a read, or a write and how it ended.
struct ValidatorEvent
{
    // "read", "write", "clone", "restore"; "store" when the configuration of the validator read
    // or written was saved in the tables (detail: the name it was saved under).
    QString kind;
    quint32 serial = 0;
    WriteOutcome outcome = WriteOutcome::Finished; // a write's
    std::optional<VerifyResult> verified; // the read-back after a write, when there was one
    // What the validator holds as far as the editor knows without a read-back: the image read,
    // the image written; nothing when not known.
    std::optional<ConfigImage> configuration;
    QString detail;
};

#pragma once

#include "WriteSequence.h"

#include <optional>

// Puts a configuration from a validator's history back on it with the full write: the validator
// keeps its own serial number and production date, and the programming date becomes today's.
// (The editor puts a state back on the validator it read with the changes write instead.)
WriteOutcome restoreWrite(TMonnayeur &link, ConfigImage &state, FullWriteOptions &options,
                          const WriteObserver &observer, SentBlocks *sent);

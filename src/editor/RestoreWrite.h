#pragma once

#include "WriteSequence.h"

#include <optional>

// Puts a configuration from a validator's history back on it. When the validator connected is
// the one read (validatorRead, its configuration as read), only what differs needs to go; until
// the changes write can send just that, every restore is the full write: the validator keeps its
// own serial number and production date, and the programming date becomes today's.
WriteOutcome restoreWrite(TMonnayeur &link, ConfigImage &state,
                          const std::optional<ConfigImage> &validatorRead,
                          FullWriteOptions &options, const WriteObserver &observer,
                          SentBlocks *sent);

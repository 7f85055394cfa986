#include "RestoreWrite.h"

WriteOutcome restoreWrite(TMonnayeur &link, ConfigImage &state,
                          const std::optional<ConfigImage> &validatorRead,
                          FullWriteOptions &options, const WriteObserver &observer,
                          SentBlocks *sent)
{
    // The changes write takes over here for the validator read (validatorRead set): it sends the
    // blocks of configDifferences(*validatorRead, state) only.
    Q_UNUSED(validatorRead)
    options.serialOverride = false;
    return fullWrite(link, state, options, observer, sent);
}

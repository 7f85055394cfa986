#include "RestoreWrite.h"

WriteOutcome restoreWrite(TMonnayeur &link, ConfigImage &state, FullWriteOptions &options,
                          const WriteObserver &observer, SentBlocks *sent)
{
    options.serialOverride = false;
    return fullWrite(link, state, options, observer, sent);
}

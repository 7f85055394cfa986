#pragma once

#include "ConfigImage.h"

#include <functional>

class TMonnayeur;

// What the editor form does while a validator is read: the gauge, the family becoming known
// (the Light model hides three channel pages) and each channel page appearing as it is filled.
struct ReadObserver
{
    std::function<void(int gauge)> progress;
    std::function<void(bool light)> familyKnown;
    std::function<void(int page)> pageReached; // 1 to 6
};

enum class ReadOutcome
{
    Done,      // the image holds the validator's configuration
    Cancelled, // no connection, or the technician cancelled "Connect validator "
    Failed     // the link failed during the reads; the image is unchanged
};

// The reading sequence: connect, the twelve block reads, then every channel. The image is only
// replaced when every step succeeded. With promptFlag set a failed connect asks
// "Connect validator " until OK succeeds or Cancel.
ReadOutcome readValidator(TMonnayeur &link, ConfigImage &image, bool promptFlag,
                          const ReadObserver &observer = {});

// The connect loop: tries the connect command; while it fails and ask is set, asks
// "Connect validator " (OK tries again, Cancel gives up). False when not connected.
bool connectLoop(TMonnayeur &link, bool ask);

// The gauge after channel i of the read: round(i x 1.5) + 12, a half going to the even side.
int readGaugeAfterChannel(int i);
// Rounds half to even, as the floating-point unit does.
int roundHalfEven(double x);

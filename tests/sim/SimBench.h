#pragma once

#include "RecordingPrompt.h"
#include "SimTransport.h"
#include "TMonnayeur.h"
#include "VirtualValidator.h"

// The link object over an in-process virtual validator (serial 4242), on an instant line
// unless the test makes it rougher.
struct SimBench
{
    explicit SimBench(quint8 family = 0x13) : device(family, 4242) {}
    VirtualValidator device;
    SimTransport transport{&device};
    RecordingPrompt prompt;
    TMonnayeur link{&transport, &prompt};
};

// The block a read-only command returns, in hex, or "failed".
inline QByteArray readHex(TMonnayeur &link, quint8 command)
{
    quint8 out[16] = {};
    if (!link.ReadBlock(command, out))
        return "failed";
    return QByteArray(reinterpret_cast<const char *>(out), commandShape(command).replyLength)
        .toHex();
}

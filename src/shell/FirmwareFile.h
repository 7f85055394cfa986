#pragma once

#include "Messages.h"

#include <QByteArray>
#include <QString>

class UserPrompt;

// What a firmware file must be before a byte of it is sent: Motorola S-record text, every line
// S0 to S9 followed by hexadecimal digit pairs, the byte count equal to the pairs that follow
// it, and the checksum the ones' complement of the sum of the other bytes. Line ends may be LF
// or CR LF; blank lines are passed over. The file is then sent exactly as stored: the check
// only keeps a file that is not firmware at all (a validator plugged in directly would take its
// bytes for commands) from ever being sent.
struct FirmwareFileCheck
{
    bool ok = false;
    bool empty = false;
    int line = 0;             // the first bad line, from 1
    Msg reason = Msg::Count_; // what is wrong with it
    QString message(const QString &fileName) const;
};

FirmwareFileCheck checkFirmwareFile(const QByteArray &firmware);

// Over this size a file asks first: sent byte by byte at 9600 baud, it takes hours.
inline constexpr qint64 kLargeFirmwareBytes = 1024 * 1024;

// The window program's questions before a transfer: a file that is not firmware is refused with
// its first bad line, a large one asks, and the mini-programmer must be in its upgrade mode.
// True when the file is to be sent.
bool confirmFirmwareTransfer(UserPrompt &prompt, const QString &fileName,
                             const QByteArray &firmware);

#pragma once

#include <QtGlobal>

// The fixed shape of every command exchange: the data the program sends after a correct count
// echo, and the reply it then reads. Shared by the program and the virtual validator.
struct CommandShape
{
    bool known = false;
    quint8 dataLength = 0;
    quint8 replyLength = 0;
    bool replyAwaited = false;
};

namespace Cmd {
inline constexpr quint8 ReadSample = 0;
inline constexpr quint8 Connect = 1;
inline constexpr quint8 ReadBlock2 = 2;
inline constexpr quint8 WriteChannel = 3;
inline constexpr quint8 ReadChannel = 4;
inline constexpr quint8 WriteIdent = 6;
inline constexpr quint8 ReadIdent = 7;
inline constexpr quint8 ReadSetting8 = 8;
inline constexpr quint8 ReadStatus = 9;
inline constexpr quint8 ReadVersion = 10;
inline constexpr quint8 WriteBlock13 = 12;
inline constexpr quint8 ReadBlock13 = 13;
inline constexpr quint8 WriteOptions = 14;
inline constexpr quint8 ReadOptions = 15;
inline constexpr quint8 WriteValues = 16;
inline constexpr quint8 ReadValues = 17;
inline constexpr quint8 WritePrices = 18;
inline constexpr quint8 ReadPrices = 19;
inline constexpr quint8 WriteCounters = 20;
inline constexpr quint8 ReadCounters = 21;
inline constexpr quint8 WriteEnable = 22;
inline constexpr quint8 ReadEnable = 23;
inline constexpr quint8 Execute24 = 24;
inline constexpr quint8 Execute29 = 29;
} // namespace Cmd

// Record sizes on the wire.
inline constexpr int kLongChannelRecord = 15;
inline constexpr int kShortChannelRecord = 13;
inline constexpr int kValueSlice = 15;
inline constexpr int kValueSlices = 5;

// The shape of a command; longForm selects the 15-byte channel record and the 7-byte sample.
constexpr CommandShape commandShape(quint8 command, bool longForm = true)
{
    switch (command) {
    case 0:
        return {true, 1, quint8(longForm ? 7 : 6), true};
    case 1:
    case 24:
    case 29:
        return {true, 0, 0, false};
    case 2:
    case 13:
    case 19:
        return {true, 0, 6, true};
    case 3:
        return {true, quint8(longForm ? 16 : 14), 1, true};
    case 4:
        return {true, 1, quint8(longForm ? kLongChannelRecord : kShortChannelRecord), true};
    case 6:
    case 20:
    case 22:
        return {true, 8, 1, true};
    case 7:
    case 21:
    case 23:
        return {true, 0, 8, true};
    case 8:
        return {true, 0, 1, true};
    case 9:
        return {true, 0, 4, true};
    case 10:
        return {true, 0, 3, true};
    case 12:
    case 18:
        return {true, 6, 1, true};
    case 14:
        return {true, 2, 1, true};
    case 15:
        return {true, 0, 2, true};
    case 16:
        return {true, 16, 1, true};
    case 17:
        return {true, 1, 15, true};
    default:
        return {};
    }
}

#pragma once

#include <QtGlobal>
#include <array>

// The one in-memory image of a validator's configuration. Every block is held as the bytes that
// travel on the wire, most significant byte first.

inline constexpr int kChannels = 60;
inline constexpr int kLightChannels = 25;
inline constexpr int kChannelRecordSize = 17;

// Bytes 0 to 14 are the validator's own channel record; 15 is the copy of the value byte and 16
// the enable flag, refreshed on every display.
using ChannelRecord = std::array<quint8, kChannelRecordSize>;
using ChannelTable = std::array<ChannelRecord, kChannels>;
using ValueBlock = std::array<quint8, 75>;
using EnableBitmap = std::array<quint8, 8>;
using IdentRecord = std::array<quint8, 8>;
using OptionWord = std::array<quint8, 2>;
using PriceBlock = std::array<quint8, 6>;
using CounterBlock = std::array<quint8, 8>;
using VersionBlock = std::array<quint8, 3>;
using Block6 = std::array<quint8, 6>;
using StatusWord = std::array<quint8, 4>;

// Channel record byte positions.
namespace Rec {
inline constexpr int HfuHighMax = 0;
inline constexpr int HfuHighMin = 1;
inline constexpr int HfuLowMax = 2;
inline constexpr int HfuLowMin = 3;
inline constexpr int LfMax = 4;
inline constexpr int LfMin = 5;
inline constexpr int DimMax = 6;
inline constexpr int DimMin = 7;
inline constexpr int HflHighMax = 8;
inline constexpr int HflHighMin = 9;
inline constexpr int HflLowMax = 10;
inline constexpr int HflLowMin = 11;
inline constexpr int AmpMax = 12;
inline constexpr int AmpMin = 13;
inline constexpr int Substitute = 14;
inline constexpr int Value = 15;
inline constexpr int Enabled = 16;
} // namespace Rec

// ValueBlock byte positions.
namespace Val {
inline constexpr int Base1 = 0;
inline constexpr int Base2 = 2;
inline constexpr int Channel0 = 4;
inline constexpr int Conversion = 64;
} // namespace Val

// A number of count bytes of a value block from at, most significant byte first (the bases,
// the ratio), as the tables and the server keep it.
inline quint32 bigEndian(const ValueBlock &block, int at, int count)
{
    quint32 v = 0;
    for (int i = 0; i < count; ++i)
        v = v << 8 | block[std::size_t(at + i)];
    return v;
}

inline void putBigEndian(ValueBlock &block, int at, int count, quint32 v)
{
    for (int i = count - 1; i >= 0; --i, v >>= 8)
        block[std::size_t(at + i)] = quint8(v);
}

struct ConfigImage
{
    VersionBlock version{};  // command 10: family byte first
    IdentRecord ident{};     // commands 7/6
    CounterBlock counters{}; // commands 21/20
    PriceBlock prices{};     // commands 19/18
    OptionWord options{};    // commands 15/14
    EnableBitmap enable{};   // commands 23/22
    ValueBlock values{};     // commands 17/16
    Block6 block2{};         // command 2
    Block6 block13{};        // commands 13/12
    quint8 setting8 = 0xFF;  // command 8
    StatusWord status9{};    // command 9
    ChannelTable channels{};

    // An image with every byte not set (255).
    static ConfigImage blank();

    quint8 familyByte() const { return version[0]; }
    quint8 familyNibble() const { return version[0] >> 4; }
    bool isLight() const { return familyNibble() == 3; }
    // Family 0 speaks 13-byte channel records and 6-byte samples.
    bool longForm() const { return familyNibble() != 0; }
    int channelCount() const { return isLight() ? kLightChannels : kChannels; }
    // The last channel is the validator's reference channel.
    int referenceChannel() const { return channelCount() - 1; }

    // Channel enable bit k of the bitmap: bit (k mod 8) of byte 7 - k/8.
    bool enableBit(int k) const;
    // Rebuilds the bitmap from the enable bytes of the channels the model has, starting from
    // F0 00 .. 00, so that the four missing channels 60 to 63 are always sent as enabled and the
    // channels past the 25th of a Light validator never are.
    void rebuildEnableBitmap();
    // Copies the value bytes and enable bits into bytes 15 and 16 of every record, as the
    // display does.
    void refreshRecordCopies();

    quint8 valueByte(int k) const { return values[std::size_t(Val::Channel0 + k)]; }

    // Serial number from the identification's two words, most significant first.
    quint32 serialNumber() const;
    void setSerialNumber(quint32 serial);

    bool operator==(const ConfigImage &) const = default;
};

// Text of the firmware family ("5.2", "5.3", "Wake-Up", "Light"); empty for an unknown nibble.
const char *familyText(quint8 familyByte);

// A learned or stored window record is valid when each of its first 12 bytes is set.
bool windowRecordValid(const quint8 *record);
// A channel is in use when every window but the amplitude's is set: the overlap check and the
// configuration sheet list only those.
bool channelInUse(const quint8 *record);

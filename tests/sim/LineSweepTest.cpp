// The long sweeps over a paced line (ctest label "line"): a reply that starts anywhere inside
// the 900 ms window is taken whole, one that starts after it is refused, and a reply split at
// any byte, for every reply length, is still one read.

#include "SimBench.h"

#include <gtest/gtest.h>

namespace {

const QString kReadingError = QStringLiteral("Reading Error fron validator");

struct Bench : SimBench
{
    using SimBench::SimBench;

    void setLine(int turnaroundMs, int burstMs, int splitAt = 0, int splitGapMs = 0)
    {
        LineProfile line = LineProfile::bench();
        line.turnaroundMinMs = line.turnaroundMaxMs = turnaroundMs;
        line.burstMs = burstMs;
        line.splitAt = splitAt;
        line.splitGapMs = splitGapMs;
        transport.setLine(line);
    }
};

// Reads the block of a reply-only command or a channel; true when the bytes are the device's.
bool readMatches(Bench &b, quint8 command)
{
    const ConfigImage &m = b.device.memory();
    if (command == Cmd::ReadChannel) {
        ChannelBytes record{};
        return b.link.ReadChannel(7, m.longForm(), record) &&
               std::equal(record.begin(), record.end(), m.channels[7].begin());
    }
    quint8 out[16] = {};
    if (!b.link.ReadBlock(command, out))
        return false;
    const int n = commandShape(command).replyLength;
    const QByteArray got(reinterpret_cast<const char *>(out), n);
    switch (command) {
    case Cmd::ReadIdent:
        return got == QByteArray(reinterpret_cast<const char *>(m.ident.data()), n);
    case Cmd::ReadEnable:
        return got == QByteArray(reinterpret_cast<const char *>(m.enable.data()), n);
    default:
        return true; // the length is what is under test
    }
}

TEST(LineSweepTest, ReplyStartingAnywhereInTheWindowIsTakenWhole)
{
    Bench b;
    std::vector<int> starts;
    for (int ms = 0; ms <= 100; ++ms)
        starts.push_back(ms);
    for (int ms = 125; ms <= 875; ms += 25)
        starts.push_back(ms);
    for (const int start : starts) {
        b.setLine(start, 1);
        EXPECT_TRUE(readMatches(b, Cmd::ReadChannel)) << "15 bytes after " << start << " ms";
        if (start <= 100) {
            EXPECT_TRUE(readMatches(b, Cmd::ReadIdent)) << "8 bytes after " << start << " ms";
        }
    }
    EXPECT_TRUE(b.prompt.told().isEmpty()) << qPrintable(b.prompt.told().join('\n'));

    b.setLine(905, 1);
    EXPECT_FALSE(readMatches(b, Cmd::ReadChannel));
    EXPECT_EQ(b.link.LastLinkError(), kReadingError);
    EXPECT_EQ(b.prompt.told().value(0), kReadingError);
}

TEST(LineSweepTest, ReplySplitAtAnyByteIsOneRead)
{
    // 1 to 15 bytes: commands 8, 15, 10, 9, 13, 7, the 13-byte short channel of the older
    // family and the 15-byte long one, each split after every byte, behind fast and slow
    // adapters.
    const struct
    {
        quint8 family;
        quint8 command;
    } replies[] = {{0x13, Cmd::ReadSetting8}, {0x13, Cmd::ReadOptions}, {0x13, Cmd::ReadVersion},
                   {0x13, Cmd::ReadStatus},   {0x13, Cmd::ReadBlock13}, {0x13, Cmd::ReadIdent},
                   {0x13, Cmd::ReadEnable},   {0x03, Cmd::ReadChannel}, {0x13, Cmd::ReadChannel}};
    for (const auto &reply : replies) {
        Bench b(reply.family);
        const int length = commandShape(reply.command, b.device.memory().longForm()).replyLength;
        for (const int burst : {1, 16}) {
            for (int at = 1; at < length; ++at) {
                b.setLine(3, burst, at, 30);
                EXPECT_TRUE(readMatches(b, reply.command))
                    << int(reply.command) << " split after " << at << ", bursts " << burst;
            }
        }
        EXPECT_TRUE(b.prompt.told().isEmpty()) << int(reply.command);
    }
}

} // namespace

// The line as rough as a bench's: how its profile is written, when its bytes become readable,
// and the link reading whole replies over it whatever the turnaround, the pace and the bursts.

#include "FirmwareTransfer.h"
#include "LineProfile.h"
#include "LineTiming.h"
#include "SimBench.h"

#include <gtest/gtest.h>
#include <set>
#include <thread>

namespace {

using namespace std::chrono_literals;
using Clock = LineTiming::Clock;

LineProfile line(const char *text)
{
    QString error;
    const std::optional<LineProfile> parsed = LineProfile::parse(QString::fromLatin1(text), &error);
    EXPECT_TRUE(parsed.has_value()) << qPrintable(error);
    return parsed.value_or(LineProfile::instant());
}

struct Bench : SimBench
{
    explicit Bench(const char *profile, quint8 family = 0x13) : SimBench(family)
    {
        transport.setLine(line(profile));
    }
};

TEST(LineProfileTest, TextGivesTheLineAndMistakesAreNamed)
{
    EXPECT_EQ(line("instant"), LineProfile::instant());
    EXPECT_EQ(line("bench"), LineProfile::bench());
    const LineProfile rough = line("turnaround=0-400,echo=3,burst=16,seed=7,split=5:20,nopace");
    EXPECT_FALSE(rough.pacing);
    EXPECT_EQ(rough.turnaroundMinMs, 0);
    EXPECT_EQ(rough.turnaroundMaxMs, 400);
    EXPECT_EQ(rough.echoMinMs, 3);
    EXPECT_EQ(rough.echoMaxMs, 3);
    EXPECT_EQ(rough.burstMs, 16);
    EXPECT_EQ(rough.seed, 7u);
    EXPECT_EQ(rough.splitAt, 5);
    EXPECT_EQ(rough.splitGapMs, 20);
    EXPECT_EQ(line(qPrintable(rough.toString())), rough);

    for (const char *bad : {"turnaround=9-3", "burst=300", "split=4", "speed=fast", "echo=x"}) {
        QString error;
        EXPECT_FALSE(LineProfile::parse(QString::fromLatin1(bad), &error)) << bad;
        EXPECT_FALSE(error.isEmpty()) << bad;
    }
}

TEST(LineTimingTest, AdapterHandsBytesOverInBurstsAndReplaysItsTurnarounds)
{
    auto readyTimes = [](const char *profile) {
        LineTiming timing;
        timing.setProfile(line(profile));
        const Clock::time_point start = Clock::now();
        for (int i = 0; i < 5; ++i)
            timing.schedule(start, {{QByteArray(1, '\0'), 0, true}, {QByteArray(8, 'r'), 0}});
        std::vector<Clock::duration> times;
        for (int n = 1; n <= timing.waiting(); ++n)
            times.push_back(*timing.readyTime(n) - start);
        return times;
    };
    // The same seed draws the same turnarounds; another draws others.
    const auto first = readyTimes("pace,burst=0,turnaround=0-400,echo=0-60,seed=11");
    EXPECT_EQ(first, readyTimes("pace,burst=0,turnaround=0-400,echo=0-60,seed=11"));
    EXPECT_NE(first, readyTimes("pace,burst=0,turnaround=0-400,echo=0-60,seed=12"));

    // Paced bytes behind a 16 ms adapter: readable only together, at the timer's ticks.
    LineTiming timing;
    timing.setProfile(line("pace,turnaround=0,echo=0,burst=16"));
    const Clock::time_point start = Clock::now();
    timing.schedule(start, {{QByteArray(40, 'x'), 0}});
    std::set<Clock::time_point> bursts;
    for (int n = 1; n <= 40; ++n)
        bursts.insert(*timing.readyTime(n));
    EXPECT_GE(bursts.size(), 2u); // 40 bytes take 41.7 ms on the wire
    EXPECT_LE(bursts.size(), 4u);
    for (auto it = std::next(bursts.begin()); it != bursts.end(); ++it)
        EXPECT_EQ(*it - *std::prev(it), std::chrono::duration_cast<Clock::duration>(16ms));

    // A pause inside a reply, and none inside the echo.
    LineTiming split;
    split.setProfile(line("nopace,turnaround=0,echo=0,burst=0,split=3:30"));
    split.schedule(start, {{QByteArray(1, 'e'), 0, true}, {QByteArray(6, 'r'), 0}});
    EXPECT_EQ(*split.readyTime(4) - *split.readyTime(2), 0ms);
    EXPECT_EQ(*split.readyTime(5) - *split.readyTime(4), 30ms);
}

TEST(LineReadTest, OneReadTakesAReplyWhateverWayItArrives)
{
    // Byte by byte at 9600 baud, in one burst, in 4 and 16 ms bursts, or stopping halfway for
    // less than the interval time-out: one read, the whole reply.
    for (const char *profile : {"pace,burst=0", "nopace,burst=0", "pace,burst=4", "pace,burst=16",
                                "pace,burst=16,split=7:40", "pace,split=1:45"}) {
        Bench b(profile);
        b.device.setReplyDelay(Cmd::ReadIdent, 40);
        const QByteArray hex =
            QByteArray(reinterpret_cast<const char *>(b.device.memory().ident.data()), 8).toHex();
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(readHex(b.link, Cmd::ReadIdent), hex) << profile;
        EXPECT_TRUE(b.prompt.told().isEmpty()) << profile;
    }

    // A reply that stops for longer than the interval time-out is no reply: it is refused
    // with the reading error, and the line is good again for the next command.
    Bench b("pace,burst=1,split=4:120");
    quint8 out[16];
    EXPECT_FALSE(b.link.ReadBlock(Cmd::ReadIdent, out));
    EXPECT_EQ(b.link.LastLinkError(), QStringLiteral("Reading Error fron validator"));
    b.transport.setLine(line("pace,burst=1"));
    EXPECT_NE(readHex(b.link, Cmd::ReadIdent), "failed");

    // The count echo behind a 16 ms adapter after a validator's few tens of milliseconds.
    Bench late("pace,burst=16,echo=60");
    EXPECT_TRUE(late.link.CheckPresence(true));
    // Silence still fails at once with its own message.
    Bench silent("pace,burst=16");
    silent.device.setConnected(false);
    EXPECT_FALSE(silent.link.CheckPresence(true));
    EXPECT_EQ(silent.link.LastLinkError(), QStringLiteral("Internal or Comunication Error"));
}

TEST(LineReadTest, UnaskedBytesAndHandshakesArriveThroughBursts)
{
    // The serial test: each accepted coin's channel, read by the editor's timer, which takes
    // only what is waiting.
    Bench test("pace,burst=16,turnaround=0-60,seed=3");
    ASSERT_TRUE(test.link.ExecuteCommand(Cmd::Execute24));
    for (CoinKind coin : {CoinKind::Euro020, CoinKind::Euro100, CoinKind::Euro050})
        test.device.insertCoin(coin);
    QByteArray channels;
    for (int tick = 0; tick < 20 && channels.size() < 3; ++tick) {
        std::this_thread::sleep_for(10ms);
        for (QByteArray one = test.transport.read(1, 0); !one.isEmpty();
             one = test.transport.read(1, 0))
            channels += one;
    }
    EXPECT_EQ(channels.size(), 3);

    // Coin polling: 6- and 7-byte samples behind bursts and turnarounds.
    for (quint8 family : {0x03, 0x13}) {
        Bench poll("pace,burst=16,turnaround=0-60,seed=4", family);
        poll.device.insertCoin(CoinKind::Euro100);
        SampleBytes sample{};
        EXPECT_TRUE(poll.link.ReadSample(1, family != 0x03, sample)) << int(family);
        EXPECT_EQ(sample[0] == 0xFF, false);
    }

    // The mini-programmer's "stop" (55 AA) and "stopped" (55 A5) each split after 55.
    Bench mini("pace,burst=4,turnaround=0-30,split=1:20");
    mini.device.setMiniProgrammer(true);
    mini.device.setStopAfterBlock(2);
    FirmwareTransfer transfer(&mini.transport);
    const QByteArray firmware = QByteArray("S00600004844521B\r\n").repeated(40);
    EXPECT_EQ(transfer.FormTransfert(firmware),
              FirmwareTransfer::Result::OperationCancelledByOperator);
    EXPECT_EQ(mini.device.firmwareBytes().size(), 2 * FirmwareTransfer::kBlockSize);
}

} // namespace

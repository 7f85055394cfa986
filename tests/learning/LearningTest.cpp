// Coin learning without a window: windows growing coin by coin, margins, matching, the
// reference windows and the overlap checks.
#include "Learning.h"
#include "LearningSession.h"
#include "RecordingPrompt.h"
#include "ReferenceCalibration.h"
#include "SimTransport.h"
#include "VirtualValidator.h"

#include <gtest/gtest.h>

namespace {

// A sample in measurement order: HFU low, HFU high, DIM, LF, HFL low, HFL high, amplitude.
SampleBytes sample(quint8 hfuLow, quint8 hfuHigh, quint8 dim, quint8 lf, quint8 hflLow,
                   quint8 hflHigh, quint8 amp)
{
    return {hfuLow, hfuHigh, dim, lf, hflLow, hflHigh, amp};
}

// A channel whose seven windows are lo..hi.
void setChannel(ConfigImage &image, int k, quint8 lo, quint8 hi)
{
    for (const WindowPlace &p : kWindowPlaces) {
        image.channels[std::size_t(k)][std::size_t(p.recordMin)] = lo;
        image.channels[std::size_t(k)][std::size_t(p.recordMax)] = hi;
    }
}

} // namespace

TEST(Learning, TheFirstCoinGivesEachWindowItsReadingAndTheMarginsWidenIt)
{
    LearningSession session;
    const ConfigImage image = ConfigImage::blank();
    const auto coin = session.addSample(sample(100, 120, 0, 254, 80, 90, 255), image);
    EXPECT_TRUE(coin.first);
    for (int w = 0; w < kWindows; ++w) {
        const Window &window = session.windows()[std::size_t(w)];
        EXPECT_EQ(window.min, window.max) << w;
        EXPECT_EQ(window.min, coin.sample[std::size_t(w)]);
    }
    // (255, 0) before: the maximum is marked, the minimum's difference hidden.
    EXPECT_TRUE(coin.updates[0].maxMarked);
    EXPECT_TRUE(coin.updates[0].minDifferenceHidden);
    EXPECT_FALSE(coin.updates[0].minMarked);
    EXPECT_EQ(differenceText(coin.updates[0].aboveMax), QStringLiteral("+100"));
    EXPECT_EQ(differenceText(-3), QStringLiteral("-3"));

    const ChannelBytes record = session.result(7);
    EXPECT_EQ(record[Rec::HfuLowMin], 96);
    EXPECT_EQ(record[Rec::HfuLowMax], 104);
    EXPECT_EQ(record[Rec::LfMin], 252);
    EXPECT_EQ(record[Rec::LfMax], 255);
    EXPECT_EQ(record[Rec::DimMin], 0);
    EXPECT_EQ(record[Rec::DimMax], 1);
    EXPECT_EQ(record[Rec::AmpMin], 247); // no amplitude reading: 255 less its margin
    EXPECT_EQ(record[Rec::Substitute], 7);

    // Later coins only widen.
    session.addSample(sample(98, 121, 1, 250, 80, 90, 255), image);
    EXPECT_EQ(session.windows()[0], (Window{98, 100}));
    EXPECT_EQ(session.windows()[3], (Window{250, 254}));
    EXPECT_EQ(session.coinCount(), 2);

    // Modifying a channel or calibrating applies no margin.
    session.modifyMode = true;
    EXPECT_EQ(session.result(7)[Rec::HfuLowMin], 98);
}

TEST(Learning, BoundsTypedByHandAndTheSampleQuestion)
{
    LearningSession session;
    EXPECT_TRUE(session.setBounds(2, 40, 30));
    EXPECT_EQ(session.windows()[2], (Window{30, 30}));
    EXPECT_FALSE(session.setBounds(2, 20, std::nullopt)); // an empty maximum takes the minimum
    EXPECT_EQ(session.windows()[2], (Window{20, 20}));

    for (int i = 0; i < 9; ++i)
        session.addSample(sample(1, 2, 3, 4, 5, 6, 7), ConfigImage::blank());
    EXPECT_TRUE(session.tooFewSamples());
    session.imported = true;
    EXPECT_FALSE(session.tooFewSamples());

    LearningSession tokens = ReferenceCalibration::tokenSession();
    for (int i = 0; i < 4; ++i)
        tokens.addSample(sample(1, 2, 3, 4, 5, 6, 7), ConfigImage::blank());
    EXPECT_TRUE(tokens.tooFewSamples());
    tokens.addSample(sample(1, 2, 3, 4, 5, 6, 7), ConfigImage::blank());
    EXPECT_FALSE(tokens.tooFewSamples());
}

TEST(Learning, MatchingTakesTheLowestChannelAndIgnoresAnEmptySample)
{
    ConfigImage image = ConfigImage::blank();
    setChannel(image, 7, 10, 20);
    setChannel(image, 3, 15, 30);
    EXPECT_EQ(matchChannel(image, sample(15, 20, 15, 20, 15, 20, 15)), 4);
    EXPECT_EQ(matchChannel(image, sample(10, 10, 10, 10, 10, 10, 10)), 8);
    EXPECT_EQ(matchChannel(image, sample(10, 10, 10, 10, 10, 10, 31)), 0);
    SampleBytes empty;
    empty.fill(255);
    setChannel(image, 0, 0, 255);
    EXPECT_EQ(matchChannel(image, empty), 0);
}

TEST(Learning, StoringRebuildsTheEnableMask)
{
    ConfigImage image = VirtualValidator::factoryImage(0x33, 1001);
    ChannelBytes record;
    record.fill(50);
    storeLearnedChannel(image, 9, record, 12, true);
    EXPECT_EQ(image.valueByte(9), 12);
    EXPECT_TRUE(image.enableBit(9));
    EXPECT_EQ(image.enable[0], 0xF0);
    storeLearnedChannel(image, 9, record, 12, false);
    EXPECT_FALSE(image.enableBit(9));
}

TEST(Reference, NarrowWindowsGrowToFourAndWrap)
{
    ChannelBytes learned;
    learned.fill(255);
    auto window = [&](int w, quint8 min, quint8 max) {
        learned[std::size_t(kWindowPlaces[w].recordMin)] = min;
        learned[std::size_t(kWindowPlaces[w].recordMax)] = max;
    };
    window(0, 100, 100); // width 0
    window(2, 50, 51);   // width 1
    window(3, 60, 63);   // width 3
    window(4, 1, 1);     // width 0 at the bottom
    window(6, 70, 72);   // width 2
    window(1, 30, 30);   // silver: untouched by the golden pass
    ChannelBytes reference;
    reference.fill(0);
    takeReferenceWindows(reference, learned, TokenSet::Golden);
    EXPECT_EQ(reference[Rec::HfuLowMin], 98);
    EXPECT_EQ(reference[Rec::HfuLowMax], 102);
    EXPECT_EQ(reference[Rec::DimMin], 48);
    EXPECT_EQ(reference[Rec::DimMax], 53);
    EXPECT_EQ(reference[Rec::LfMin], 60);
    EXPECT_EQ(reference[Rec::LfMax], 63);
    EXPECT_EQ(reference[Rec::HflLowMin], 255); // 1 - 2 wraps
    EXPECT_EQ(reference[Rec::HflLowMax], 3);
    EXPECT_EQ(reference[Rec::AmpMin], 69);
    EXPECT_EQ(reference[Rec::AmpMax], 73);
    EXPECT_EQ(reference[Rec::HfuHighMin], 0);
    EXPECT_EQ(reference[Rec::Substitute], 0);
    takeReferenceWindows(reference, learned, TokenSet::Silver);
    EXPECT_EQ(reference[Rec::HfuHighMin], 28);
    EXPECT_EQ(reference[Rec::HfuHighMax], 32);
    EXPECT_EQ(reference[Rec::Substitute], 255);
}

TEST(Overlap, TouchingWindowsOverlapAndEveryPairIsSeenOnce)
{
    ConfigImage image = ConfigImage::blank();
    EXPECT_TRUE(overlapLines(image).isEmpty());
    setChannel(image, 0, 10, 20);
    setChannel(image, 1, 20, 30); // touches channel 1 at 20
    setChannel(image, 2, 21, 30); // touches channel 2 only
    setChannel(image, 58, 100, 110);
    setChannel(image, 59, 105, 106); // inside channel 59
    image.channels[59][Rec::AmpMax] = image.channels[59][Rec::AmpMin] = 255;
    image.channels[58][Rec::AmpMax] = 255; // in use without the amplitude
    const QStringList lines = overlapLines(image);
    EXPECT_EQ(lines,
              (QStringList{"   1 | C   1 <--> C   2        ", "   2 | C   2 <--> C   3        ",
                           "   3 | C  59 <--> C  60        "}));
    EXPECT_TRUE(intersect(10, 20, 12, 15));
    EXPECT_FALSE(intersect(10, 20, 21, 25));
}

TEST(Overlap, ChannelsApartInAnyOneOfTheSevenWindowsDoNotOverlap)
{
    // Record bytes 2w and 2w + 1 hold the maximum and minimum of window w.
    for (std::size_t w = 0; w < 7; ++w) {
        ConfigImage image = ConfigImage::blank();
        setChannel(image, 0, 10, 20);
        setChannel(image, 1, 15, 25);
        ASSERT_EQ(overlappingPairs(image).size(), 1);
        image.channels[1][2 * w] = 40;
        image.channels[1][2 * w + 1] = 30;
        EXPECT_TRUE(overlappingPairs(image).isEmpty()) << "window " << w;
    }
}

TEST(Overlap, AnalysisWidensByTheMarginsWithinAByte)
{
    ConfigImage image = ConfigImage::blank();
    setChannel(image, 4, 2, 250);
    Tolerances tolerances;
    tolerances.values.fill(4);
    const QStringList lines = analysisLines(image, sample(0, 254, 5, 5, 5, 5, 5), tolerances);
    ASSERT_EQ(lines.size(), 1);
    EXPECT_EQ(lines.first(), QStringLiteral("  1|Cnl 0|C   5|  2|  0|250|  2|254|250|  2|  5|250|"
                                            "  2|  5|250|  2|  5|250|  2|  5|250|  2|  5|250"));
    tolerances.values.fill(0);
    EXPECT_TRUE(analysisLines(image, sample(0, 254, 5, 5, 5, 5, 5), tolerances).isEmpty());
}

TEST(Learning, PollAndWriteAgainstTheVirtualValidator)
{
    VirtualValidator device(0x13, 1001);
    SimTransport port(&device);
    port.setLatencyMs(0);
    RecordingPrompt prompt;
    TMonnayeur link(&port, &prompt);
    LearningSession session;
    EXPECT_FALSE(session.poll(link, true)); // no coin: silence
    device.insertCoin(CoinKind::Euro050);
    const auto coin = session.poll(link, true);
    ASSERT_TRUE(coin);
    ConfigImage image = device.memory();
    EXPECT_EQ(session.addSample(*coin, image).matchedChannel, 4);

    ChannelBytes record = session.result(0);
    storeLearnedChannel(image, 10, record, 7, true);
    EXPECT_TRUE(LearningSession::saveToValidator(link, image, 10, &prompt));
    EXPECT_EQ(prompt.told(), QStringList{"Values directly saved into validator"});
    EXPECT_EQ(device.memory().valueByte(10), 7);
    EXPECT_TRUE(device.memory().enableBit(10));

    EXPECT_EQ(ReferenceCalibration::doorOpen(link), false);
    device.setDoorOpen(true);
    EXPECT_EQ(ReferenceCalibration::doorOpen(link), true);
}

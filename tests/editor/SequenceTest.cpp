// The reading, full write and clone write sequences against the in-process virtual validator.
#include "Encodings.h"
#include "ReadSequence.h"
#include "RecordingPrompt.h"
#include "SimTransport.h"
#include "VirtualValidator.h"
#include "WriteSequence.h"

#include <gtest/gtest.h>
#include <memory>

namespace {

using Log = QList<SimExchange>;

struct Bench
{
    explicit Bench(quint8 family, quint32 serial = 1001)
        : device(std::make_unique<VirtualValidator>(family, serial)),
          port(std::make_unique<SimTransport>(device.get())),
          link(std::make_unique<TMonnayeur>(port.get(), &prompt))
    {
        port->setLatencyMs(0);
    }
    RecordingPrompt prompt;
    std::unique_ptr<VirtualValidator> device;
    std::unique_ptr<SimTransport> port;
    std::unique_ptr<TMonnayeur> link;
};

Log channelExchanges(quint8 command, int count)
{
    Log log;
    for (int i = 0; i < count; ++i)
        log.append({command, i});
    return log;
}

Log readLog(int channels)
{
    Log log = {{1, -1}, {1, -1}, {10, -1}, {7, -1}, {21, -1}, {19, -1}, {15, -1}, {23, -1}};
    for (int s = 0; s < 5; ++s)
        log.append({17, s});
    log += Log{{2, -1}, {13, -1}, {8, -1}, {9, -1}};
    return log + channelExchanges(4, channels);
}

class Families : public ::testing::TestWithParam<quint8>
{};

TEST_P(Families, ReadFillsTheWholeImageInOrder)
{
    Bench bench(GetParam());
    ConfigImage image = ConfigImage::blank();
    QList<int> gauges;
    QList<int> pages;
    ReadObserver observer;
    observer.progress = [&](int g) { gauges.append(g); };
    observer.pageReached = [&](int p) { pages.append(p); };

    ASSERT_EQ(readValidator(*bench.link, image, false, observer), ReadOutcome::Done);
    const ConfigImage &memory = bench.device->memory();
    const int channels = memory.channelCount();
    EXPECT_EQ(bench.device->exchangeLog(), readLog(channels));
    EXPECT_EQ(image.version, memory.version);
    EXPECT_EQ(image.ident, memory.ident);
    EXPECT_EQ(image.values, memory.values);
    EXPECT_EQ(image.status9, memory.status9);
    for (int k = 0; k < channels; ++k) {
        for (int b = 0; b < 15; ++b)
            ASSERT_EQ(image.channels[k][b], memory.channels[k][b]) << k << ":" << b;
        EXPECT_EQ(image.channels[k][Rec::Value], memory.valueByte(k));
    }
    if (!memory.longForm()) {
        // A short record has no amplitude window.
        EXPECT_EQ(image.channels[0][Rec::AmpMax], 255);
        EXPECT_EQ(image.channels[0][Rec::AmpMin], 255);
    }
    EXPECT_EQ(gauges.last(), 100);
    EXPECT_TRUE(std::is_sorted(gauges.begin(), gauges.end()));
    EXPECT_EQ(pages.size(), channels == 25 ? 3 : 6);
    EXPECT_TRUE(bench.prompt.all().isEmpty());
}

TEST_P(Families, FullWriteSendsEveryBlockInOrder)
{
    Bench source(GetParam(), 2002);
    ConfigImage image = ConfigImage::blank();
    ASSERT_EQ(readValidator(*source.link, image, false), ReadOutcome::Done);
    image.options[1] |= 0x20; // the counters travel too
    image.setSerialNumber(4242);

    Bench target(GetParam(), 2002);
    target.device->clearExchangeLog();
    FullWriteOptions options;
    options.today = QDate(2026, 11, 22);
    QList<int> gauges;
    WriteObserver observer;
    observer.progress = [&](int g) { gauges.append(g); };
    ASSERT_EQ(fullWrite(*target.link, image, options, observer), WriteOutcome::Finished);

    const int channels = image.channelCount();
    Log expected = {{1, -1}, {4, channels - 1}};
    expected += channelExchanges(3, channels);
    expected += Log{{2, -1}, {14, -1}};
    for (int s = 0; s < 5; ++s)
        expected.append({16, s});
    expected += Log{{18, -1}, {22, -1}, {20, -1}, {7, -1}, {6, -1}, {12, -1}};
    EXPECT_EQ(target.device->exchangeLog(), expected);
    EXPECT_EQ(gauges.last(), 100);
    EXPECT_EQ(target.prompt.told(), QStringList{"Finished operation!"});

    // The validator keeps its own serial number; the programming date is today's.
    const ConfigImage &written = target.device->memory();
    EXPECT_EQ(written.serialNumber(), 2002u);
    EXPECT_EQ(image.serialNumber(), 2002u);
    EXPECT_EQ(DecodeDate16({written.ident[0], written.ident[1]}), QDate(2026, 11, 22));
    for (int k = 0; k < channels; ++k)
        for (int b = 0; b < 15; ++b)
            ASSERT_EQ(written.channels[k][b], image.channels[k][b]);
    EXPECT_EQ(written.values, image.values);
    EXPECT_EQ(written.options, image.options);
}

INSTANTIATE_TEST_SUITE_P(AllFamilies, Families, ::testing::Values(0x02, 0x13, 0x21, 0x31));

TEST(ReadSequence, LinkFailingMidwayLeavesTheImage)
{
    for (int answered : {3, 9, 30}) {
        Bench bench(0x13);
        bench.device->setSilentAfter(answered);
        ConfigImage image = ConfigImage::blank();
        const ConfigImage before = image;
        EXPECT_EQ(readValidator(*bench.link, image, false), ReadOutcome::Failed) << answered;
        EXPECT_EQ(image, before);
        ASSERT_FALSE(bench.prompt.told().isEmpty());
        EXPECT_EQ(bench.prompt.told().first(), "Internal or Comunication Error");
    }
}

TEST(ReadSequence, ConnectPromptRepeatsUntilCancel)
{
    Bench bench(0x13);
    bench.device->setConnected(false);
    bench.prompt.setNextAnswers({UserPrompt::Answer::Ok, UserPrompt::Answer::Ok});
    ConfigImage image = ConfigImage::blank();
    EXPECT_EQ(readValidator(*bench.link, image, true), ReadOutcome::Cancelled);
    EXPECT_EQ(bench.prompt.asked(), QStringList(3, "Connect validator "));

    // Without the prompt flag one failed try ends the read, with the link's own message.
    bench.prompt.clear();
    EXPECT_EQ(readValidator(*bench.link, image, false), ReadOutcome::Cancelled);
    EXPECT_TRUE(bench.prompt.asked().isEmpty());
    EXPECT_EQ(bench.prompt.told(), QStringList{"Internal or Comunication Error"});
}

TEST(FullWrite, RefusedBlockStillFinishesButBrokenLinkFaults)
{
    Bench source(0x31);
    ConfigImage image = ConfigImage::blank();
    ASSERT_EQ(readValidator(*source.link, image, false), ReadOutcome::Done);

    Bench refusing(0x31);
    refusing.device->setRefusal(22);
    FullWriteOptions options;
    EXPECT_EQ(fullWrite(*refusing.link, image, options), WriteOutcome::Finished);

    // The cable pulled at several points of the write: the rest is skipped, and the message
    // says the validator is partly written.
    for (int answered : {5, 40, 70}) {
        Bench broken(0x13);
        ConfigImage full = ConfigImage::blank();
        ASSERT_EQ(readValidator(*broken.link, full, false), ReadOutcome::Done);
        broken.device->setSilentAfter(answered);
        broken.prompt.clear();
        FullWriteOptions o;
        EXPECT_EQ(fullWrite(*broken.link, full, o), WriteOutcome::Fault) << answered;
        ASSERT_GE(broken.prompt.told().size(), 3);
        EXPECT_EQ(broken.prompt.told().at(broken.prompt.told().size() - 2),
                  "Fault during save operation !");
    }
}

TEST(FullWrite, SerialOverrideSkipsTheIdentificationRead)
{
    Bench bench(0x13, 77);
    ConfigImage image = bench.device->memory();
    image.setSerialNumber(305419896);
    bench.device->clearExchangeLog();
    FullWriteOptions options;
    options.serialOverride = true;
    EXPECT_EQ(fullWrite(*bench.link, image, options), WriteOutcome::Finished);
    EXPECT_FALSE(options.serialOverride);
    EXPECT_FALSE(bench.device->exchangeLog().contains(SimExchange{7, -1}));
    EXPECT_EQ(bench.device->memory().serialNumber(), 305419896u);
}

TEST(FullWrite, CancelledConnectWritesNothing)
{
    Bench bench(0x13);
    bench.device->setConnected(false);
    ConfigImage image = bench.device->memory();
    FullWriteOptions options;
    EXPECT_EQ(fullWrite(*bench.link, image, options), WriteOutcome::Cancelled);
    EXPECT_EQ(bench.prompt.told(), QStringList{"Operation cancelled"});
}

TEST(FullWrite, DifferentLastChannelAsksAndCanCancel)
{
    Bench bench(0x13, 1001);
    ConfigImage image = VirtualValidator::factoryImage(0x13, 1003); // another sensor offset
    bench.device->clearExchangeLog();
    bench.prompt.setNextAnswers({UserPrompt::Answer::Cancel});
    FullWriteOptions options;
    EXPECT_EQ(fullWrite(*bench.link, image, options), WriteOutcome::Cancelled);
    ASSERT_EQ(bench.prompt.asked().size(), 1);
    EXPECT_TRUE(bench.prompt.asked().first().startsWith("Channel 60 "));
    EXPECT_EQ(bench.device->exchangeLog().size(), 2);
}

TEST(CloneWrite, GroupsChooseTheExchangesAndTheGaugeEndsAt100)
{
    const ConfigImage image = VirtualValidator::factoryImage(0x13, 1001);
    struct Case
    {
        CloneGroups groups;
        Log tail;
    };
    const Log values = {{16, 0}, {16, 1}, {16, 2}, {16, 3}, {16, 4}};
    const Case cases[] = {
        {{true, true, true, true, true},
         Log{{2, -1}, {12, -1}, {15, -1}, {14, -1}} + values + Log{{18, -1}, {22, -1}}},
        {{true, false, false, false, false}, {{2, -1}, {12, -1}}},
        {{false, true, false, false, false}, Log{{2, -1}, {12, -1}} + values},
        {{false, false, true, false, true}, {{2, -1}, {12, -1}, {18, -1}, {22, -1}}},
    };
    for (const Case &c : cases) {
        Bench target(0x13, 1001);
        target.device->clearExchangeLog();
        QList<int> gauges;
        WriteObserver observer;
        observer.progress = [&](int g) { gauges.append(g); };
        EXPECT_EQ(cloneWrite(*target.link, image, c.groups, observer), WriteOutcome::Finished);
        Log expected = {{1, -1}, {7, -1}, {10, -1}};
        if (c.groups.channels)
            expected += Log{{4, 59}} + channelExchanges(3, 60);
        EXPECT_EQ(target.device->exchangeLog(), expected + c.tail);
        EXPECT_EQ(gauges.last(), 100);
    }
}

TEST(CloneWrite, WrongFamilyIsRefused)
{
    Bench target(0x31);
    const ConfigImage image = VirtualValidator::factoryImage(0x13, 1001);
    EXPECT_EQ(cloneWrite(*target.link, image, CloneGroups{}), WriteOutcome::IncorrectVersion);
    EXPECT_EQ(target.prompt.told(), QStringList{"Incorrect version of validator"});
}

TEST(CloneWrite, ReferenceChannelCorrectsEveryWindow)
{
    // The target's sensors read higher: its reference windows are shifted.
    ConfigImage image = VirtualValidator::factoryImage(0x13, 1000);
    Bench target(0x13, 1004);
    const ChannelRecord targetRef = target.device->memory().channels[59];
    ASSERT_NE(targetRef, image.channels[59]);
    image.channels[59][Rec::Substitute] = quint8(targetRef[Rec::Substitute] == 7 ? 8 : 7);
    EXPECT_EQ(cloneWrite(*target.link, image, CloneGroups{}), WriteOutcome::Finished);

    // The reference channel goes like every other: corrected, with the image's substitute.
    const ConfigImage &written = target.device->memory();
    EXPECT_EQ(written.channels[59][Rec::Substitute], image.channels[59][Rec::Substitute]);
    for (int k = 0; k < 60; ++k) {
        const ChannelBytes expected =
            correctedRecord(image.channels[k].data(), image.channels[59].data(), targetRef.data());
        for (int b = 0; b < 15; ++b)
            ASSERT_EQ(written.channels[k][b], expected[b]) << k << ":" << b;
    }
    // The windows of a learned coin moved the way the reference did.
    EXPECT_GT(written.channels[0][Rec::HfuLowMax], image.channels[0][Rec::HfuLowMax]);
}

TEST(CloneWrite, CorrectionArithmetic)
{
    quint8 imageRef[15], targetRef[15], record[15];
    std::fill_n(imageRef, 15, 100);
    std::fill_n(targetRef, 15, 110);
    imageRef[12] = imageRef[13] = 255; // amplitude not set: factor 1
    for (int b = 0; b < 15; ++b)
        record[b] = quint8(50 + b);
    record[5] = 255;
    record[0] = 240;
    const ChannelBytes out = correctedRecord(record, imageRef, targetRef);
    EXPECT_EQ(out[0], 254); // 264 clamped
    EXPECT_EQ(out[1], 56);  // 51 x 1.1 = 56.1
    EXPECT_EQ(out[2], 57);  // 52 x 1.1 = 57.2
    EXPECT_EQ(out[5], 255); // not set stays not set
    EXPECT_EQ(out[12], 62); // factor 1
    EXPECT_EQ(out[14], 64); // the substitute is copied
    std::fill_n(record, 14, 255);
    const ChannelBytes empty = correctedRecord(record, imageRef, targetRef);
    EXPECT_TRUE(std::all_of(empty.begin(), empty.end(), [](quint8 b) { return b == 255; }));
}

TEST(Gauges, RoundingHalfToEven)
{
    EXPECT_EQ(readGaugeAfterChannel(59), 100); // 88.5 rounds to 88
    EXPECT_EQ(readGaugeAfterChannel(1), 14);   // 1.5 rounds to 2
    EXPECT_EQ(writeGaugeAfterChannel(59), 93);
    EXPECT_EQ(writeGaugeAfterChannel(24), 39);
}

} // namespace

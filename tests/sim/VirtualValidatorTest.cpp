// The virtual validator's own behaviour: its factory memory, its coins and the mini-programmer.

#include "VirtualValidator.h"
#include "SimTransport.h"

#include <gtest/gtest.h>

namespace {

bool emptyRecord(const ChannelRecord &r)
{
    return std::all_of(r.begin(), r.begin() + 15, [](quint8 b) { return b == 0xFF; });
}

// The first channel whose seven windows all hold the sample, as learning's matching finds it.
int matchingChannel(const ConfigImage &image, const SampleBytes &s, bool withAmplitude)
{
    const int windows[7][2] = {{2, 3}, {0, 1}, {6, 7}, {4, 5}, {10, 11}, {8, 9}, {12, 13}};
    for (int k = 0; k < image.channelCount(); ++k) {
        const ChannelRecord &r = image.channels[std::size_t(k)];
        bool all = !emptyRecord(r);
        for (int m = 0; m < (withAmplitude ? 7 : 6) && all; ++m)
            all = r[std::size_t(windows[m][1])] <= s[std::size_t(m)] &&
                  s[std::size_t(m)] <= r[std::size_t(windows[m][0])];
        if (all)
            return k;
    }
    return -1;
}

TEST(VirtualValidatorTest, FactoryImagesAreProgrammedAndDistinct)
{
    for (quint8 family : {0x03, 0x13, 0x23, 0x33}) {
        const ConfigImage image = VirtualValidator::factoryImage(family, 1234);
        EXPECT_EQ(image.familyByte(), family);
        EXPECT_EQ(image.serialNumber(), 1234u);
        EXPECT_EQ(image.channelCount(), family == 0x33 ? 25 : 60);
        int programmed = 0;
        for (int k = 0; k < kChannels; ++k) {
            const ChannelRecord &r = image.channels[std::size_t(k)];
            if (!emptyRecord(r))
                ++programmed;
            if (family == 0x03) {
                EXPECT_EQ(r[Rec::AmpMax], 0xFF);
                EXPECT_EQ(r[Rec::AmpMin], 0xFF);
            }
            EXPECT_EQ(image.enableBit(k), r[Rec::Enabled] == 1);
        }
        EXPECT_EQ(programmed, 7); // six coins and the reference token
        EXPECT_FALSE(emptyRecord(image.channels[std::size_t(image.referenceChannel())]));
    }
    EXPECT_NE(VirtualValidator::factoryImage(0x13, 1), VirtualValidator::factoryImage(0x13, 2));
    EXPECT_NE(VirtualValidator::factoryImage(0x13, 1), VirtualValidator::factoryImage(0x23, 1));
}

TEST(VirtualValidatorTest, FirmwareDateFollowsTheSerial)
{
    // Packed dates of 2 Jan, 1 Jul, 26 Mar and 14 May 2002, after the family byte.
    const char *expected[] = {"132c22", "132ce1", "132c7a", "132cae"};
    for (quint32 serial : {1000u, 1001u, 1002u, 1003u, 1004u}) {
        const VersionBlock v = VirtualValidator::factoryImage(0x13, serial).version;
        EXPECT_EQ(QByteArray(reinterpret_cast<const char *>(v.data()), 3).toHex(),
                  expected[serial % 4])
            << serial;
    }
}

TEST(VirtualValidatorTest, InsertedCoinsFallInTheirFactoryChannel)
{
    for (quint8 family : {0x03, 0x33}) {
        for (quint32 serial : {1000u, 1001u, 1002u, 1003u, 1004u}) {
            VirtualValidator device(family, serial);
            for (int kind = 0; kind < CoinGenerator::kindCount(); ++kind) {
                // The reference channel mixes the two tokens' windows: neither token matches
                // all of it, and no coin channel takes a token.
                const int expected = CoinGenerator::isToken(CoinKind(kind)) ? -1 : kind;
                for (int i = 0; i < 40; ++i) {
                    device.insertCoin(CoinKind(kind));
                    const QList<DeviceOutput> out = device.receive(QByteArray::fromHex("0001"));
                    ASSERT_EQ(out.size(), 2);
                    SampleBytes s{};
                    std::copy(out[1].bytes.begin(), out[1].bytes.end(), s.begin());
                    EXPECT_EQ(matchingChannel(device.memory(), s, family != 0x03), expected);
                }
            }
        }
    }
}

TEST(VirtualValidatorTest, TokensScatterAFewUnitsThroughTheSensorOffsetIntoTheReferenceWindows)
{
    // Record bytes (max, min) of each measurement's window, and which token sets it.
    const int windows[7][2] = {{2, 3}, {0, 1}, {6, 7}, {4, 5}, {10, 11}, {8, 9}, {12, 13}};
    const bool setBySilver[7] = {false, true, false, false, false, true, false};
    const bool followsOffset[7] = {true, true, false, true, true, true, false}; // not DIM, AMP
    constexpr int kSamples = 60;
    for (quint8 family : {0x03, 0x13}) {
        for (quint32 serial : {1000u, 1002u, 1004u}) { // offsets -2, 0, 2
            VirtualValidator device(family, serial);
            const int offset = VirtualValidator::calibrationOffset(serial);
            const ChannelRecord &reference =
                device.memory().channels[std::size_t(device.memory().referenceChannel())];
            for (CoinKind kind : {CoinKind::GoldenToken, CoinKind::SilverToken}) {
                const bool silver = kind == CoinKind::SilverToken;
                const int measured = family == 0x03 ? 6 : 7;
                std::array<int, 7> low{}, high{};
                low.fill(255);
                high.fill(0);
                for (int i = 0; i < kSamples; ++i) {
                    device.insertCoin(kind);
                    const QList<DeviceOutput> out = device.receive(QByteArray::fromHex("0001"));
                    ASSERT_EQ(out.size(), 2);
                    ASSERT_EQ(out[1].bytes.size(), measured);
                    for (int m = 0; m < measured; ++m) {
                        const int r = quint8(out[1].bytes[m]);
                        low[m] = std::min(low[m], r);
                        high[m] = std::max(high[m], r);
                        if (setBySilver[m] == silver) {
                            EXPECT_LE(reference[std::size_t(windows[m][1])], r) << m;
                            EXPECT_LE(r, reference[std::size_t(windows[m][0])]) << m;
                        }
                    }
                }
                const SampleBytes &typical = CoinGenerator::preset(kind).typical;
                for (int m = 0; m < measured; ++m) {
                    const int centre = typical[std::size_t(m)] + (followsOffset[m] ? offset : 0);
                    const std::string where = "kind " + std::to_string(int(kind)) + ", serial " +
                                              std::to_string(serial) + ", measurement " +
                                              std::to_string(m);
                    EXPECT_GE(low[m], centre - 2) << where;
                    EXPECT_LE(high[m], centre + 2) << where;
                    EXPECT_GT(high[m], low[m]) << where; // a real token never reads the same
                }
            }
        }
    }
}

TEST(VirtualValidatorTest, UnknownCommandsStaySilent)
{
    VirtualValidator device;
    for (quint8 c : {5, 11, 25, 28, 200})
        EXPECT_TRUE(device.receive(QByteArray(1, char(c))).isEmpty()) << int(c);
    EXPECT_TRUE(device.exchangeLog().isEmpty());
}

TEST(VirtualValidatorTest, MiniProgrammerAcknowledgesBlocksAndStopsOnRequest)
{
    VirtualValidator device;
    SimTransport port(&device);
    device.setMiniProgrammer(true);
    const QByteArray block(VirtualValidator::kFirmwareBlock, 'S');

    port.write(block);
    EXPECT_EQ(port.read(2).toHex(), "5500");

    device.setFirmwareAck(VirtualValidator::FirmwareAck::Silent);
    port.write(block);
    EXPECT_TRUE(port.read(2).isEmpty());

    device.setStopAfterBlock(3);
    port.write(block);
    EXPECT_EQ(port.read(2).toHex(), "55aa");
    EXPECT_EQ(port.read(2).toHex(), "55a5");
    port.write(block);
    EXPECT_EQ(device.firmwareBytes(), block + block + block);
}

} // namespace

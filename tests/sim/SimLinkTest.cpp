// The link object against the virtual validator: every command of the protocol for the four
// families, and each injected fault giving exactly the program's message.

#include "FirmwareTransfer.h"
#include "SimBench.h"

#include <gtest/gtest.h>
#include <thread>

namespace {

const QString kInternalError = QStringLiteral("Internal or Comunication Error");
const QString kReadingError = QStringLiteral("Reading Error fron validator");

using Bench = SimBench;

template <std::size_t N> QByteArray hex(const std::array<quint8, N> &a)
{
    return QByteArray(reinterpret_cast<const char *>(a.data()), qsizetype(N)).toHex();
}

class FamilyTest : public ::testing::TestWithParam<int>
{};

TEST_P(FamilyTest, EveryCommandRoundTrips)
{
    Bench b{quint8(GetParam())};
    const ConfigImage &m = b.device.memory();
    const bool longForm = m.longForm();
    EXPECT_TRUE(b.link.CheckPresence(true));
    EXPECT_TRUE(b.link.ExecuteCommand(Cmd::Execute24));
    EXPECT_TRUE(b.link.ExecuteCommand(Cmd::Execute29));

    EXPECT_EQ(readHex(b.link, Cmd::ReadBlock2), hex(m.block2));
    EXPECT_EQ(readHex(b.link, Cmd::ReadIdent), hex(m.ident));
    EXPECT_EQ(readHex(b.link, Cmd::ReadSetting8), QByteArray(1, char(m.setting8)).toHex());
    EXPECT_EQ(readHex(b.link, Cmd::ReadStatus), "00000000");
    EXPECT_EQ(readHex(b.link, Cmd::ReadVersion), hex(m.version));
    EXPECT_EQ(readHex(b.link, Cmd::ReadBlock13), hex(m.block13));
    EXPECT_EQ(readHex(b.link, Cmd::ReadOptions), hex(m.options));
    EXPECT_EQ(readHex(b.link, Cmd::ReadPrices), hex(m.prices));
    EXPECT_EQ(readHex(b.link, Cmd::ReadCounters), hex(m.counters));
    EXPECT_EQ(readHex(b.link, Cmd::ReadEnable), hex(m.enable));

    for (int k = 0; k < m.channelCount(); ++k) {
        ChannelBytes record{};
        ASSERT_TRUE(b.link.ReadChannel(quint8(k), longForm, record)) << k;
        EXPECT_TRUE(std::equal(record.begin(), record.end(), m.channels[std::size_t(k)].begin()));
        if (!longForm) {
            EXPECT_EQ(record[Rec::AmpMax], 0xFF);
            EXPECT_EQ(record[Rec::AmpMin], 0xFF);
        }
    }

    // A written channel comes back; a short record loses its amplitude window.
    const ChannelBytes written = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 50, 40, 7};
    ASSERT_TRUE(b.link.WriteChannel(3, written, longForm));
    ChannelBytes back{};
    ASSERT_TRUE(b.link.ReadChannel(3, longForm, back));
    ChannelBytes expected = written;
    if (!longForm)
        expected[Rec::AmpMax] = expected[Rec::AmpMin] = 0xFF;
    EXPECT_EQ(back, expected);

    // One channel past the end: the write is refused quietly, the read gives an empty record.
    const quint8 past = quint8(m.channelCount());
    EXPECT_FALSE(b.link.WriteChannel(past, written, longForm));
    EXPECT_TRUE(b.link.linkGood());
    ASSERT_TRUE(b.link.ReadChannel(past, longForm, back));
    EXPECT_TRUE(std::all_of(back.begin(), back.end(), [](quint8 x) { return x == 0xFF; }));

    const quint8 block[8] = {0x11, 0x22, 0x33, 0x44, 0x55, 0x66, 0x77, 0x88};
    for (quint8 cmd : {Cmd::WriteIdent, Cmd::WriteBlock13, Cmd::WriteOptions, Cmd::WritePrices,
                       Cmd::WriteCounters, Cmd::WriteEnable})
        EXPECT_TRUE(b.link.WriteBlock(cmd, block)) << int(cmd);
    EXPECT_EQ(hex(m.ident), "1122334455667788");
    EXPECT_EQ(hex(m.block13), "112233445566");
    EXPECT_EQ(hex(m.options), "1122");
    EXPECT_EQ(hex(m.prices), "112233445566");
    EXPECT_EQ(hex(m.counters), "1122334455667788");
    EXPECT_EQ(hex(m.enable), "1122334455667788");

    ValueTableBytes table{};
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = quint8(i * 3);
    ASSERT_TRUE(b.link.WriteValueTable(table));
    ValueTableBytes readBack{};
    b.device.clearExchangeLog();
    ASSERT_TRUE(b.link.ReadValueTable(readBack));
    EXPECT_EQ(readBack, table);
    EXPECT_EQ(b.device.exchangeLog(),
              (QList<SimExchange>{{17, 0}, {17, 1}, {17, 2}, {17, 3}, {17, 4}}));

    b.device.queueCoin({10, 20, 30, 40, 50, 60, 70});
    SampleBytes sample{};
    ASSERT_TRUE(b.link.ReadSample(1, longForm, sample));
    EXPECT_EQ(sample, (SampleBytes{10, 20, 30, 40, 50, 60, quint8(longForm ? 70 : 255)}));
    EXPECT_TRUE(b.prompt.told().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Families, FamilyTest, ::testing::Values(0x03, 0x13, 0x23, 0x33));

TEST(SimLinkTest, WrongEchoFailsBeforeAnyDataAndTheNextExchangeWorks)
{
    Bench b;
    const ChannelRecord before = b.device.memory().channels[0];
    b.device.setWrongEcho(Cmd::WriteChannel);
    EXPECT_FALSE(b.link.WriteChannel(0, ChannelBytes{}, true));
    EXPECT_EQ(b.link.LastLinkError(), kInternalError);
    EXPECT_EQ(b.prompt.told(), QStringList{kInternalError});
    EXPECT_FALSE(b.link.linkGood());
    EXPECT_EQ(b.device.memory().channels[0], before);
    EXPECT_EQ(b.device.exchangeLog(), (QList<SimExchange>{{3, -1}}));

    ChannelBytes record{};
    EXPECT_TRUE(b.link.ReadChannel(0, true, record));

    // ReadValueTable asks for all five slices even when every one fails.
    b.device.setWrongEcho(Cmd::ReadValues);
    b.device.clearExchangeLog();
    ValueTableBytes table{};
    EXPECT_FALSE(b.link.ReadValueTable(table));
    EXPECT_EQ(b.device.exchangeLog().size(), 5);
}

TEST(SimLinkTest, SilenceAndPulledCableAreCommunicationErrors)
{
    Bench b;
    b.device.setSilentAfter(2);
    EXPECT_TRUE(b.link.CheckPresence(false));
    EXPECT_TRUE(b.link.CheckPresence(false));
    quint8 out[8];
    EXPECT_FALSE(b.link.ReadBlock(Cmd::ReadIdent, out));
    EXPECT_EQ(b.link.LastLinkError(), kInternalError);
    EXPECT_TRUE(b.device.silenced());
    EXPECT_EQ(b.device.exchangeLog().size(), 2);

    b.device.clearFaults();
    b.device.setConnected(false);
    EXPECT_FALSE(b.link.CheckPresence(false));
    EXPECT_EQ(b.link.LastLinkError(), kInternalError);
    b.device.setConnected(true);
    EXPECT_TRUE(b.link.CheckPresence(false));
}

TEST(SimLinkTest, ReplyWindowIs900Milliseconds)
{
    Bench b;
    quint8 out[8];
    b.device.setReplyDelay(Cmd::ReadIdent, 850);
    EXPECT_TRUE(b.link.ReadBlock(Cmd::ReadIdent, out));

    b.device.setReplyDelay(Cmd::ReadEnable, 1200);
    EXPECT_FALSE(b.link.ReadBlock(Cmd::ReadEnable, out));
    EXPECT_EQ(b.link.LastLinkError(), kReadingError);
    EXPECT_EQ(b.prompt.told().last(), kReadingError);

    // The late reply lands in the buffer; the next command is not taken in by it.
    std::this_thread::sleep_for(std::chrono::milliseconds(400));
    b.device.clearFaults();
    EXPECT_EQ(readHex(b.link, Cmd::ReadEnable), hex(b.device.memory().enable));
}

TEST(SimLinkTest, RefusalsAreQuietAndValueTableWriteStopsAtTheFirst)
{
    Bench b;
    const EnableBitmap before = b.device.memory().enable;
    b.device.setRefusal(Cmd::WriteEnable);
    const quint8 bits[8] = {};
    EXPECT_FALSE(b.link.WriteBlock(Cmd::WriteEnable, bits));
    EXPECT_TRUE(b.link.linkGood());
    EXPECT_EQ(b.link.lastStatus(), 1);
    EXPECT_TRUE(b.prompt.told().isEmpty());
    EXPECT_EQ(b.device.memory().enable, before);

    b.device.setRefusal(Cmd::WriteValues, 3);
    b.device.clearExchangeLog();
    ValueTableBytes table{};
    EXPECT_FALSE(b.link.WriteValueTable(table));
    EXPECT_EQ(b.device.exchangeLog(), (QList<SimExchange>{{16, 0}, {16, 1}, {16, 2}}));
    EXPECT_EQ(b.device.memory().values[29], 0x00); // last byte of slice 1: written
    EXPECT_EQ(b.device.memory().values[30], 0xFF); // first byte of slice 2: refused
}

TEST(SimLinkTest, SampleIsSilentWithoutACoinAndDoorShowsInStatus)
{
    Bench b;
    SampleBytes sample{};
    EXPECT_FALSE(b.link.ReadSample(1, true, sample));
    EXPECT_EQ(b.link.LastLinkError(), kInternalError);
    EXPECT_TRUE(b.prompt.told().isEmpty());
    EXPECT_TRUE(b.device.exchangeLog().isEmpty());

    b.device.setDoorOpen(true);
    EXPECT_EQ(readHex(b.link, Cmd::ReadStatus), "00000001");
}

TEST(SimLinkTest, TestModeSendsTheAcceptingChannelUnasked)
{
    for (quint8 family : {0x03, 0x13}) { // family 0 has no amplitude window to match
        Bench b{family};
        ASSERT_TRUE(b.link.ExecuteCommand(Cmd::Execute24));
        EXPECT_TRUE(b.device.testMode());
        b.transport.setReadTimeout(0); // the byte is already waiting
        b.device.insertCoin(CoinKind::Euro020);
        EXPECT_EQ(b.transport.read(1).toHex(), "03") << int(family);
        // The reference channel holds the tokens but is not enabled; no channel holds a blank.
        b.device.insertCoin(CoinKind::GoldenToken);
        b.device.insertCoin(CoinKind::SilverToken);
        b.device.queueCoin({0, 0, 0, 0, 0, 0, 0});
        b.transport.setReadTimeout(SimTransport::kDefaultReadTimeoutMs);
        EXPECT_TRUE(b.transport.read(1).isEmpty());
        EXPECT_EQ(b.device.queuedCoins(), 0);

        ASSERT_TRUE(b.link.ExecuteCommand(Cmd::Execute29));
        EXPECT_FALSE(b.device.testMode());
        b.device.insertCoin(CoinKind::Euro020);
        EXPECT_TRUE(b.transport.read(1).isEmpty());
        SampleBytes sample{};
        EXPECT_TRUE(b.link.ReadSample(1, family != 0x03, sample));
    }
}

TEST(SimLinkTest, FirmwareRequestIsAnsweredByOneZeroAndTheTransferFollows)
{
    Bench b;
    // A host that starts an exchange instead has not heard the request: it lapses, and the
    // channel index 0 is not taken for the answer.
    b.device.requestFirmware();
    ChannelBytes record{};
    ASSERT_TRUE(b.link.ReadChannel(0, true, record));
    EXPECT_FALSE(b.device.firmwareRequested());
    EXPECT_FALSE(b.device.miniProgrammer());

    b.transport.setReadTimeout(0);
    EXPECT_TRUE(b.transport.read(1).isEmpty()); // the exchange's purge dropped it
    b.device.requestFirmware();
    EXPECT_EQ(b.transport.read(1).toHex(), "0b");
    b.transport.setReadTimeout(SimTransport::kDefaultReadTimeoutMs);
    b.device.queueCoin({10, 20, 30, 40, 50, 60, 70}); // a command 0 would be answered
    b.device.clearExchangeLog();
    b.transport.write(QByteArray(1, '\0'));
    EXPECT_TRUE(b.transport.read(1).isEmpty());
    EXPECT_TRUE(b.device.exchangeLog().isEmpty());
    EXPECT_TRUE(b.device.miniProgrammer());
    EXPECT_FALSE(b.device.firmwareRequested());

    const QByteArray firmware = QByteArray("S00600004844521B\r\n").repeated(9);
    FirmwareTransfer transfer(&b.transport);
    EXPECT_EQ(transfer.FormTransfert(firmware), FirmwareTransfer::Result::UpgradeOver);
    EXPECT_EQ(b.device.firmwareBytes(), firmware);
}

TEST(SimLinkTest, PacedLineCarriesWholeRecords)
{
    Bench b(0x23);
    b.transport.setPacing(true);
    b.transport.setLatencyMs(5);
    ChannelBytes record{};
    ASSERT_TRUE(b.link.ReadChannel(59, true, record));
    EXPECT_TRUE(std::equal(record.begin(), record.end(), b.device.memory().channels[59].begin()));
}

} // namespace

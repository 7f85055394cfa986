#include "Encodings.h"

#include <gtest/gtest.h>

namespace {

class Encodings : public ::testing::Test
{
protected:
    void SetUp() override { setEncodingSettings(EncodingSettings{u'.', u'/', 1}); }
    void TearDown() override { setEncodingSettings(EncodingSettings{}); }
};

TEST_F(Encodings, DecimalWordWorkedExamples)
{
    EXPECT_EQ(*ParseDecimalWord("1.50"), (Word2{0x40, 0x96}));
    EXPECT_EQ(FormatDecimalWord({0x40, 0x96}).text, QStringLiteral("  1.50"));
    EXPECT_EQ(*ParseDecimalWord("100"), (Word2{0xC0, 0x64}));
    EXPECT_EQ(FormatDecimalWord({0xC0, 0x64}).text, QStringLiteral("   100"));
    EXPECT_EQ(*ParseDecimalWord("0.005"), (Word2{0x00, 0x05}));
    EXPECT_EQ(FormatDecimalWord({0x00, 0x05}).text, QStringLiteral(" 0.005"));
    // Magnitude 255 shows empty whatever its decimals.
    EXPECT_EQ(*ParseDecimalWord("2.55"), (Word2{0x40, 0xFF}));
    EXPECT_TRUE(FormatDecimalWord({0x40, 0xFF}).text.isEmpty());
}

TEST_F(Encodings, DecimalWordNoValueAndBadText)
{
    const DecimalWord none = FormatDecimalWord({0x00, 0x00});
    EXPECT_TRUE(none.text.isEmpty());
    EXPECT_EQ(none.magnitude, 255);
    EXPECT_TRUE(FormatDecimalWord({0xFF, 0xFF}).text.isEmpty());
    EXPECT_EQ(*ParseDecimalWord("   "), (Word2{0xFF, 0xFF}));
    // Two separators: the second one stays and the number fails.
    EXPECT_FALSE(ParseDecimalWord("1.2.3"));
    EXPECT_FALSE(ParseDecimalWord("abc"));
    setEncodingSettings(EncodingSettings{u',', u'/', 1});
    EXPECT_FALSE(ParseDecimalWord("1.50"));
    EXPECT_EQ(*ParseDecimalWord("1,50"), (Word2{0x40, 0x96}));
    EXPECT_EQ(FormatDecimalWord({0x40, 0x96}).text, QStringLiteral("  1,50"));
}

TEST_F(Encodings, ExponentLong)
{
    EXPECT_EQ(*ParseExponentLong("12.5", 2, 2), (Long4{0x00, 0x10, 0x00, 0x7D}));
    EXPECT_EQ(FormatExponentLong({0x00, 0x10, 0x00, 0x7D}, 2, 2), QStringLiteral("    12.5"));
    EXPECT_EQ(*ParseExponentLong("", 2, 2), (Long4{0xFF, 0xFF, 0xFF, 0xFF}));
    for (Long4 none : {Long4{0xFF, 0xFF, 0xFF, 0xFF}, Long4{0x00, 0x00, 0xFF, 0xFF},
                       Long4{0xFF, 0x20, 0xFF, 0xFF}})
        EXPECT_TRUE(FormatExponentLong(none, 2, 2).isEmpty());
    // A mantissa above 16 bits spills into the low nibble of byte 1.
    EXPECT_EQ(*ParseExponentLong("70000", 2, 2), (Long4{0x00, 0x01, 0x11, 0x70}));
    EXPECT_FALSE(ParseExponentLong("1x", 2, 2));
}

TEST_F(Encodings, ChannelValueFormat)
{
    EXPECT_EQ(FormatChannelValue(2, 7, 25, 4), QStringLiteral("   1.00"));
    EXPECT_EQ(FormatChannelValue(2, 7, 25, 253), QStringLiteral("  -P1-"));
    EXPECT_EQ(FormatChannelValue(0, 7, 0, 253), QStringLiteral("  -P1-"));
    EXPECT_EQ(FormatChannelValue(2, 7, 25, 254), QStringLiteral("  -P2-"));
    EXPECT_TRUE(FormatChannelValue(2, 7, 25, 255).isEmpty());
    EXPECT_TRUE(FormatChannelValue(2, 7, 0, 4).isEmpty());
    EXPECT_TRUE(FormatChannelValue(2, 7, 255, 4).isEmpty());
}

TEST_F(Encodings, ChannelValueParseNearestTiesLow)
{
    EXPECT_EQ(*ParseChannelValue("1.00", 25, 2), 4);
    EXPECT_EQ(*ParseChannelValue("", 25, 2), 255);
    EXPECT_EQ(*ParseChannelValue("-P1-", 25, 2), 253);
    EXPECT_EQ(*ParseChannelValue("  - P2 -", 25, 2), 254);
    // 1.10 is 4.4 bases: nearest 4; 1.15 is 4.6: nearest 5; 1.125 is exactly 4.5: the lower.
    EXPECT_EQ(*ParseChannelValue("1.10", 25, 2), 4);
    EXPECT_EQ(*ParseChannelValue("1.15", 25, 2), 5);
    EXPECT_EQ(*ParseChannelValue("1.125", 25, 2), 4);
    EXPECT_EQ(*ParseChannelValue("1000", 25, 2), 252);
    EXPECT_FALSE(ParseChannelValue("one", 25, 2));
    // Every byte a base shows parses back to itself.
    for (int b = 0; b <= 252; ++b)
        ASSERT_EQ(*ParseChannelValue(FormatChannelValue(2, 7, 5, quint8(b)), 5, 2), b) << b;
}

TEST_F(Encodings, PackedDates)
{
    EXPECT_EQ(EncodeDate16(QDate(2004, 3, 15)), (Word2{0x30, 0x6F}));
    EXPECT_EQ(FormatDate16({0x30, 0x6F}), QStringLiteral("15/03/2004"));
    EXPECT_EQ(DecodeDate16({0x30, 0x6F}), QDate(2004, 3, 15));
    EXPECT_TRUE(FormatDate16({0x00, 0x00}).isEmpty());
    EXPECT_TRUE(FormatDate16({0xFF, 0xFF}).isEmpty());
    setEncodingSettings(EncodingSettings{u'.', u'-', 2});
    EXPECT_EQ(FormatDate16({0x30, 0x6F}), QStringLiteral("2004-03-15"));
    EXPECT_EQ(ParseUserDate(QStringLiteral("2004-03-15")), QDate(2004, 3, 15));
    setEncodingSettings(EncodingSettings{u'.', u'/', 0});
    EXPECT_EQ(FormatDate16({0x30, 0x6F}), QStringLiteral("03/15/2004"));
}

TEST_F(Encodings, ByteAndText)
{
    EXPECT_TRUE(ByteToText(3, 255).isEmpty());
    EXPECT_EQ(ByteToText(3, 7), QStringLiteral("  7"));
    EXPECT_EQ(ByteToText(6, 12, true), QStringLiteral("   120"));
    EXPECT_EQ(*TextToByte("   "), 255);
    EXPECT_EQ(*TextToByte("300"), 44);
    EXPECT_EQ(*TextToByte("-1"), 255);
    EXPECT_FALSE(TextToByte("12a"));
}

} // namespace

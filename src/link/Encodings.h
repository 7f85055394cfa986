#pragma once

#include <QDate>
#include <QString>
#include <array>
#include <optional>

// Conversions between the validator's compact byte formats and the text of the edit boxes.
// All multi-byte device fields are most significant byte first.

using Word2 = std::array<quint8, 2>;
using Long4 = std::array<quint8, 4>;

// The separator characters and the date order: from the system locale by default, from the
// settings when the technician has set them.
struct EncodingSettings
{
    QChar decimalChar = u'.';
    QChar dateChar = u'/';
    // 0 month/day/year, 1 day/month/year, 2 year/month/day.
    quint8 dateFormatCode = 1;

    static EncodingSettings fromSystemLocale();
};

// The settings every conversion uses; set once at start-up (and by tests).
const EncodingSettings &encodingSettings();
void setEncodingSettings(const EncodingSettings &settings);

// Decimal word: decimals code in the top two bits of byte 0 (exclusive-or 3), 14-bit magnitude.
struct DecimalWord
{
    QString text;
    quint8 decimals = 0;
    quint16 magnitude = 255;
};
DecimalWord FormatDecimalWord(Word2 word);
// Empty text gives FF FF; text that is not a number gives nothing.
std::optional<Word2> ParseDecimalWord(const QString &text);

// Exponent long: byte 0 unused, exponent in the high nibble of byte 1, 20-bit mantissa.
QString FormatExponentLong(Long4 bytes, quint8 base1Decimals, quint8 base2Decimals);
std::optional<Long4> ParseExponentLong(const QString &text, quint8 base1Decimals,
                                       quint8 base2Decimals);

// Channel value byte: multiple of the base; 253 pays price 1, 254 price 2, 255 no value.
inline constexpr quint8 kValuePrice1 = 253;
inline constexpr quint8 kValuePrice2 = 254;
inline constexpr quint8 kNotSet = 255;
QString FormatChannelValue(quint8 decimals, int width, quint16 baseValue, quint8 valueByte);
// The byte whose amount is nearest the text (ties to the lower byte), 255 for empty text,
// 253/254 for "-P1-"/"-P2-" with or without blanks; nothing when the text is not a number.
std::optional<quint8> ParseChannelValue(const QString &text, quint16 baseValue, quint8 decimals);

// The largest multiple of a base a channel value byte holds.
inline constexpr quint8 kValueMaximum = 252;
// How an amount typed for a channel value or a price fits its base.
enum class AmountFit
{
    Fits,        // the byte is the amount's (or 255, 253, 254)
    OverMaximum, // more than 252 steps of the base: the byte is held at 252
    Negative,    // below zero: no byte holds it
    NotAnAmount  // not a number
};
struct ChannelAmount
{
    AmountFit fit = AmountFit::Fits;
    quint8 byte = kNotSet;
};
// ParseChannelValue's byte, with what it had to make of the amount. Without a base every
// amount gives 255, as the box then shows nothing.
ChannelAmount CheckChannelAmount(const QString &text, quint16 baseValue, quint8 decimals);
// One step of the base and the largest amount it can show, as the boxes show them; empty
// without a base.
QString ChannelValueStep(quint16 baseValue, quint8 decimals);
QString ChannelValueMaximum(quint16 baseValue, quint8 decimals);

// Scaled integer: amount = value x multiplier / 10^decimals.
QString FormatScaled(quint8 decimals, int width, double multiplier, quint64 value);

// Packed date: 7 bits of year from 1980, 4 bits of month, 5 bits of day.
Word2 EncodeDate16(const QDate &date);
QString FormatDate16(Word2 packed);
QDate DecodeDate16(Word2 packed);
// Reads a date written in the user's order and separator (the reverse of FormatDate16).
QDate ParseUserDate(const QString &text);
QString FormatUserDate(const QDate &date);

// "%*.*f" with the decimal separator of the settings.
QString formatFixed(double value, int width, int decimals);

// Byte to edit-box text: 255 gives empty text; times-ten multiplies first (16-bit).
QString ByteToText(int width, quint8 value, bool timesTen = false);
// Edit-box text to byte: empty gives 255, a number keeps its low 8 bits; text that is not a
// number gives nothing (the caller shows "Value must be between 0 and 255" and stores 255).
std::optional<quint8> TextToByte(const QString &text);

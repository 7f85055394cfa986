#include "Encodings.h"

#include <QLocale>
#include <cmath>

namespace {

EncodingSettings &settingsStore()
{
    static EncodingSettings s;
    return s;
}

qint64 pow10(int n)
{
    qint64 r = 1;
    for (int i = 0; i < n; ++i)
        r *= 10;
    return r;
}

// Integer conversion as the edit boxes have always done it: optional sign, decimal digits.
std::optional<qint64> toInteger(const QString &text)
{
    bool ok = false;
    const qint64 v = text.toLongLong(&ok, 10);
    if (!ok)
        return std::nullopt;
    return v;
}

} // namespace

EncodingSettings EncodingSettings::fromSystemLocale()
{
    EncodingSettings s;
    const QLocale locale = QLocale::system();
    const QString point = locale.decimalPoint();
    if (!point.isEmpty())
        s.decimalChar = point.at(0);
    const QString fmt = locale.dateFormat(QLocale::ShortFormat);
    for (const QChar c : fmt) {
        if (!c.isLetter() && !c.isSpace()) {
            s.dateChar = c;
            break;
        }
    }
    const qsizetype d = fmt.indexOf(u'd');
    const qsizetype m = fmt.indexOf(u'M');
    const qsizetype y = fmt.indexOf(u'y');
    if (y >= 0 && m >= 0 && y < m)
        s.dateFormatCode = 2;
    else if (m >= 0 && d >= 0 && m < d)
        s.dateFormatCode = 0;
    else
        s.dateFormatCode = 1;
    return s;
}

const EncodingSettings &encodingSettings()
{
    return settingsStore();
}

void setEncodingSettings(const EncodingSettings &settings)
{
    settingsStore() = settings;
}

QString formatFixed(double value, int width, int decimals)
{
    QString text = QString::asprintf("%*.*f", width, decimals, value);
    if (encodingSettings().decimalChar != u'.')
        text.replace(u'.', encodingSettings().decimalChar);
    return text;
}

DecimalWord FormatDecimalWord(Word2 word)
{
    DecimalWord out;
    const quint16 w = quint16(word[0] << 8 | word[1]);
    if (w == 0x0000 || w == 0xFFFF)
        return out;
    out.decimals = quint8((word[0] >> 6) ^ 3);
    out.magnitude = quint16((word[0] & 0x3F) << 8 | word[1]);
    if (out.magnitude != 255)
        out.text = formatFixed(out.magnitude / double(pow10(out.decimals)), 6, out.decimals);
    return out;
}

std::optional<Word2> ParseDecimalWord(const QString &input)
{
    QString text = input.trimmed();
    if (text.isEmpty())
        return Word2{0xFF, 0xFF};
    int n = 0;
    const qsizetype pos = text.indexOf(encodingSettings().decimalChar);
    if (pos >= 0) {
        text.remove(pos, 1);
        n = int(text.size() - pos);
    }
    const auto value = toInteger(text);
    if (!value)
        return std::nullopt;
    // More than three decimals or a magnitude above 16383 overflow into the code bits.
    return Word2{quint8(((*value >> 8) & 0xFF) | ((n ^ 3) << 6)), quint8(*value & 0xFF)};
}

QString FormatExponentLong(Long4 b, quint8 base1Decimals, quint8 base2Decimals)
{
    if ((b[0] == 0xFF && b[1] == 0xFF && b[2] == 0xFF && b[3] == 0xFF) ||
        (b[0] == 0x00 && b[1] == 0x00 && b[2] == 0xFF && b[3] == 0xFF) ||
        (b[0] == 0xFF && b[1] == 0x20 && b[2] == 0xFF && b[3] == 0xFF))
        return {};
    const int exponent = b[1] >> 4;
    const qint64 mantissa = qint64(b[1] & 0x0F) << 16 | qint64(b[2]) << 8 | b[3];
    const int decimals = std::max(0, exponent - base1Decimals + base2Decimals);
    return formatFixed(mantissa / double(pow10(decimals)), 8, decimals);
}

std::optional<Long4> ParseExponentLong(const QString &input, quint8 base1Decimals,
                                       quint8 base2Decimals)
{
    QString text = input.trimmed();
    if (text.isEmpty())
        return Long4{0xFF, 0xFF, 0xFF, 0xFF};
    int exponent = 0;
    const qsizetype pos = text.indexOf(encodingSettings().decimalChar);
    if (pos >= 0) {
        text.remove(pos, 1);
        const int n = int(text.size() - pos);
        exponent = (n + base1Decimals - base2Decimals) & 0x0F;
    }
    const auto value = toInteger(text);
    if (!value)
        return std::nullopt;
    // Floor division keeps the bytes of a negative entry in two's complement.
    const qint64 v = *value;
    const qint64 high = v >= 0 ? v / 65536 : -((-v + 65535) / 65536);
    const qint64 low = v - high * 65536;
    return Long4{0, quint8((high & 0xFF) | (exponent << 4)), quint8(low / 256), quint8(low % 256)};
}

QString FormatChannelValue(quint8 decimals, int width, quint16 baseValue, quint8 valueByte)
{
    if (valueByte == kValuePrice1)
        return QStringLiteral("  -P1-");
    if (valueByte == kValuePrice2)
        return QStringLiteral("  -P2-");
    if (valueByte == kNotSet || baseValue == 0 || baseValue == 255)
        return {};
    return formatFixed(double(valueByte) * baseValue / double(pow10(decimals)), width, decimals);
}

ChannelAmount CheckChannelAmount(const QString &input, quint16 baseValue, quint8 decimals)
{
    QString text = input.trimmed();
    if (text.isEmpty())
        return {AmountFit::Fits, kNotSet};
    QString squeezed = text;
    squeezed.remove(u' ');
    if (squeezed.compare(QLatin1String("-P1-"), Qt::CaseInsensitive) == 0)
        return {AmountFit::Fits, kValuePrice1};
    if (squeezed.compare(QLatin1String("-P2-"), Qt::CaseInsensitive) == 0)
        return {AmountFit::Fits, kValuePrice2};

    // Read the amount exactly as mantissa / 10^fraction.
    int fraction = 0;
    const qsizetype pos = text.indexOf(encodingSettings().decimalChar);
    if (pos >= 0) {
        text.remove(pos, 1);
        fraction = int(text.size() - pos);
    }
    if (text.isEmpty() || text.size() > 15 || fraction > 9)
        return {AmountFit::NotAnAmount, kNotSet};
    const auto mantissa = toInteger(text);
    if (!mantissa)
        return {AmountFit::NotAnAmount, kNotSet};
    if (baseValue == 0 || baseValue == 255)
        return {AmountFit::Fits, kNotSet};
    if (*mantissa < 0)
        return {AmountFit::Negative, 0};
    // byte = amount x 10^decimals / base, to the nearest byte, a tie going to the lower one.
    const __int128 num = __int128(*mantissa) * pow10(decimals);
    const __int128 den = __int128(pow10(fraction)) * baseValue;
    __int128 q = num / den;
    const __int128 r = num % den;
    if (2 * r > den)
        ++q;
    if (q > kValueMaximum)
        return {AmountFit::OverMaximum, kValueMaximum};
    return {AmountFit::Fits, quint8(q)};
}

std::optional<quint8> ParseChannelValue(const QString &input, quint16 baseValue, quint8 decimals)
{
    const ChannelAmount amount = CheckChannelAmount(input, baseValue, decimals);
    if (amount.fit == AmountFit::NotAnAmount)
        return std::nullopt;
    return amount.byte;
}

QString ChannelValueStep(quint16 baseValue, quint8 decimals)
{
    return FormatChannelValue(decimals, 0, baseValue, 1);
}

QString ChannelValueMaximum(quint16 baseValue, quint8 decimals)
{
    return FormatChannelValue(decimals, 0, baseValue, kValueMaximum);
}

QString FormatScaled(quint8 decimals, int width, double multiplier, quint64 value)
{
    if (value == 0xFFFFFF || value == 0xFFFF || value == 0xFFFFFFFF)
        return {};
    return formatFixed(double(value) * multiplier / double(pow10(decimals)), width, decimals);
}

Word2 EncodeDate16(const QDate &date)
{
    const int year = date.year() - 1980;
    const int month = date.month();
    return Word2{quint8((year << 1) | (month >> 3)), quint8(((month & 7) << 5) | date.day())};
}

QDate DecodeDate16(Word2 packed)
{
    const int day = packed[1] & 0x1F;
    const int month = (packed[0] & 1) * 8 + (packed[1] >> 5);
    const int year = (packed[0] >> 1) + 1980;
    return QDate(year, month, day);
}

namespace {
QString joinDate(int day, int month, int year)
{
    const EncodingSettings &s = encodingSettings();
    const QString d = QString::asprintf("%2.2d", day);
    const QString m = QString::asprintf("%2.2d", month);
    const QString y = QString::number(year);
    switch (s.dateFormatCode) {
    case 0:
        return m + s.dateChar + d + s.dateChar + y;
    case 2:
        return y + s.dateChar + m + s.dateChar + d;
    default:
        return d + s.dateChar + m + s.dateChar + y;
    }
}
} // namespace

QString FormatDate16(Word2 packed)
{
    const quint16 w = quint16(packed[0] << 8 | packed[1]);
    if (w == 0 || w > 65534)
        return {};
    const int day = packed[1] & 0x1F;
    const int month = (packed[0] & 1) * 8 + (packed[1] >> 5);
    const int year = (packed[0] >> 1) + 1980;
    return joinDate(day, month, year);
}

QString FormatUserDate(const QDate &date)
{
    return joinDate(date.day(), date.month(), date.year());
}

QDate ParseUserDate(const QString &text)
{
    const EncodingSettings &s = encodingSettings();
    const QStringList parts = text.trimmed().split(s.dateChar);
    if (parts.size() != 3)
        return {};
    bool ok[3] = {};
    const int a = parts[0].toInt(&ok[0]);
    const int b = parts[1].toInt(&ok[1]);
    const int c = parts[2].toInt(&ok[2]);
    if (!ok[0] || !ok[1] || !ok[2])
        return {};
    switch (s.dateFormatCode) {
    case 0:
        return QDate(c, a, b);
    case 2:
        return QDate(a, b, c);
    default:
        return QDate(c, b, a);
    }
}

QString ByteToText(int width, quint8 value, bool timesTen)
{
    if (value == kNotSet)
        return {};
    const int n = timesTen ? quint16(value * 10) : value;
    return QString::asprintf("%*d", width, n);
}

std::optional<quint8> TextToByte(const QString &input)
{
    const QString text = input.trimmed();
    if (text.isEmpty())
        return kNotSet;
    const auto value = toInteger(text);
    if (!value)
        return std::nullopt;
    return quint8(*value & 0xFF);
}

#include "ConfigFile.h"

#include "Encodings.h"
#include "Messages.h"
#include "WholeFile.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <cstring>

namespace {

constexpr auto kFormat = "tarvik-config";
constexpr int kFormatVersion = 1;

template <std::size_t N> QString hex(const std::array<quint8, N> &bytes)
{
    return QString::fromLatin1(
        QByteArray(reinterpret_cast<const char *>(bytes.data()), qsizetype(N)).toHex());
}

// Lowercase hex of exactly n bytes, or an error naming the key.
bool unhex(const QJsonValue &value, quint8 *out, int n, const QString &key, QString *error)
{
    const QString text = value.toString();
    const bool wellFormed = value.isString() && text.size() == 2 * n &&
                            std::all_of(text.begin(), text.end(), [](QChar c) {
                                return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f');
                            });
    if (!wellFormed) {
        if (error)
            *error = QStringLiteral("%1: expected %2 bytes as lowercase hex").arg(key).arg(n);
        return false;
    }
    const QByteArray bytes = QByteArray::fromHex(text.toLatin1());
    std::memcpy(out, bytes.constData(), std::size_t(n));
    return true;
}

template <std::size_t N>
bool readBlock(const QJsonObject &blocks, const char *name, std::array<quint8, N> &out,
               QString *error)
{
    const QString key = QStringLiteral("blocks.") + QLatin1String(name);
    if (!blocks.contains(QLatin1String(name))) {
        if (error)
            *error = key + QStringLiteral(": missing");
        return false;
    }
    return unhex(blocks.value(QLatin1String(name)), out.data(), int(N), key, error);
}

QJsonObject summaryOf(const ConfigImage &image)
{
    QJsonObject s;
    s.insert(QStringLiteral("family"), QString::fromLatin1(familyText(image.familyByte())));
    const quint32 serial = image.serialNumber();
    s.insert(QStringLiteral("serialNumber"),
             serial == 0 || serial == 0xFFFFFFFF
                 ? QJsonValue(QLatin1String(messageSource(Msg::NotAvailable)))
                 : QJsonValue(qint64(serial)));
    s.insert(QStringLiteral("productionDate"), FormatDate16({image.ident[2], image.ident[3]}));
    s.insert(QStringLiteral("programmingDate"),
             image.ident[0] == 255 && image.ident[1] == 0
                 ? QString::fromLatin1(messageSource(Msg::ByMiniPgm))
                 : FormatDate16({image.ident[0], image.ident[1]}));
    const DecimalWord base1 = FormatDecimalWord({image.values[0], image.values[1]});
    const DecimalWord base2 = FormatDecimalWord({image.values[2], image.values[3]});
    s.insert(QStringLiteral("base1"), base1.text.trimmed());
    s.insert(QStringLiteral("base2"), base2.text.trimmed());
    QJsonArray values;
    for (int k = 0; k < image.channelCount(); ++k) {
        const DecimalWord &base = k < 30 ? base1 : base2;
        values.append(
            FormatChannelValue(base.decimals, 6, base.magnitude, image.valueByte(k)).trimmed());
    }
    s.insert(QStringLiteral("channelValues"), values);
    return s;
}

} // namespace

QByteArray configToJson(const ConfigImage &source)
{
    ConfigImage image = source;
    image.refreshRecordCopies();

    QJsonObject blocks;
    blocks.insert(QStringLiteral("version"), hex(image.version));
    blocks.insert(QStringLiteral("ident"), hex(image.ident));
    blocks.insert(QStringLiteral("counters"), hex(image.counters));
    blocks.insert(QStringLiteral("prices"), hex(image.prices));
    blocks.insert(QStringLiteral("options"), hex(image.options));
    blocks.insert(QStringLiteral("enable"), hex(image.enable));
    blocks.insert(QStringLiteral("values"), hex(image.values));
    blocks.insert(QStringLiteral("block2"), hex(image.block2));
    blocks.insert(QStringLiteral("block13"), hex(image.block13));
    blocks.insert(QStringLiteral("setting8"), hex(std::array<quint8, 1>{image.setting8}));
    blocks.insert(QStringLiteral("status9"), hex(image.status9));

    QJsonArray channels;
    for (const ChannelRecord &r : image.channels)
        channels.append(hex(r));

    QJsonObject root;
    root.insert(QStringLiteral("format"), QLatin1String(kFormat));
    root.insert(QStringLiteral("formatVersion"), kFormatVersion);
    root.insert(QStringLiteral("channelCount"), image.channelCount());
    root.insert(QStringLiteral("blocks"), blocks);
    root.insert(QStringLiteral("channels"), channels);
    root.insert(QStringLiteral("summary"), summaryOf(image));
    return QJsonDocument(root).toJson(QJsonDocument::Indented);
}

bool configFromJson(const QByteArray &json, ConfigImage &out, QString *error)
{
    QJsonParseError parseError;
    const QJsonDocument doc = QJsonDocument::fromJson(json, &parseError);
    if (doc.isNull() || !doc.isObject()) {
        if (error)
            *error = QStringLiteral("not a configuration file (%1 at offset %2)")
                         .arg(parseError.errorString())
                         .arg(parseError.offset);
        return false;
    }
    const QJsonObject root = doc.object();
    auto bad = [error](const QString &text) {
        if (error)
            *error = text;
        return false;
    };
    if (root.value(QStringLiteral("format")).toString() != QLatin1String(kFormat))
        return bad(QStringLiteral("format: expected \"tarvik-config\""));
    if (root.value(QStringLiteral("formatVersion")).toInt(-1) != kFormatVersion)
        return bad(QStringLiteral("formatVersion: expected 1"));
    const QJsonValue blocksValue = root.value(QStringLiteral("blocks"));
    if (!blocksValue.isObject())
        return bad(QStringLiteral("blocks: missing or not an object"));
    const QJsonObject blocks = blocksValue.toObject();

    ConfigImage image = ConfigImage::blank();
    std::array<quint8, 1> setting8{};
    const bool blocksOk = readBlock(blocks, "version", image.version, error) &&
                          readBlock(blocks, "ident", image.ident, error) &&
                          readBlock(blocks, "counters", image.counters, error) &&
                          readBlock(blocks, "prices", image.prices, error) &&
                          readBlock(blocks, "options", image.options, error) &&
                          readBlock(blocks, "enable", image.enable, error) &&
                          readBlock(blocks, "values", image.values, error) &&
                          readBlock(blocks, "block2", image.block2, error) &&
                          readBlock(blocks, "block13", image.block13, error) &&
                          readBlock(blocks, "setting8", setting8, error) &&
                          readBlock(blocks, "status9", image.status9, error);
    if (!blocksOk)
        return false;
    image.setting8 = setting8[0];

    const QJsonValue count = root.value(QStringLiteral("channelCount"));
    if (!count.isDouble() || (count.toInt() != kChannels && count.toInt() != kLightChannels))
        return bad(QStringLiteral("channelCount: expected 25 or 60"));
    if (count.toInt() != image.channelCount())
        return bad(QStringLiteral("channelCount: %1 does not match the family byte %2 (%3)")
                       .arg(count.toInt())
                       .arg(image.familyByte(), 2, 16, QLatin1Char('0'))
                       .arg(image.channelCount()));

    const QJsonValue channelsValue = root.value(QStringLiteral("channels"));
    if (!channelsValue.isArray() || channelsValue.toArray().size() != kChannels)
        return bad(QStringLiteral("channels: expected an array of 60 records"));
    const QJsonArray channels = channelsValue.toArray();
    for (int k = 0; k < kChannels; ++k) {
        if (!unhex(channels.at(k), image.channels[std::size_t(k)].data(), kChannelRecordSize,
                   QStringLiteral("channels[%1]").arg(k), error))
            return false;
    }
    out = image;
    return true;
}

bool loadConfigFile(const QString &path, ConfigImage &image, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = QStringLiteral("%1: %2").arg(path, file.errorString());
        return false;
    }
    // A configuration file is a few kilobytes; anything far larger is not one.
    const QByteArray json = file.read(4 * 1024 * 1024);
    QString why;
    if (!configFromJson(json, image, &why)) {
        if (error)
            *error = QStringLiteral("%1: %2").arg(path, why);
        return false;
    }
    return true;
}

bool saveConfigFile(const QString &path, const ConfigImage &image, QString *error)
{
    return WholeFile::write(path, configToJson(image), error);
}

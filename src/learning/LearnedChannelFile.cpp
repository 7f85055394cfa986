#include "LearnedChannelFile.h"

#include "WholeFile.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

// The windows' keys, in measurement order.
constexpr const char *kWindowKeys[kWindows] = {"hfuLow", "hfuHigh", "dim", "lf",
                                               "hflLow", "hflHigh", "amp"};

// An integer of the object within lo..hi.
std::optional<int> integer(const QJsonValue &value, int lo, int hi)
{
    if (!value.isDouble())
        return std::nullopt;
    const double d = value.toDouble();
    const int i = int(d);
    if (double(i) != d || i < lo || i > hi)
        return std::nullopt;
    return i;
}

} // namespace

namespace LearnedChannelFile {

QByteArray toJson(const LearnedChannel &channel)
{
    QJsonObject windows;
    for (int w = 0; w < kWindows; ++w) {
        const Window &window = channel.windows[std::size_t(w)];
        windows.insert(
            QLatin1String(kWindowKeys[w]),
            QJsonObject{{QStringLiteral("min"), window.min}, {QStringLiteral("max"), window.max}});
    }
    QJsonArray tolerances;
    for (const quint8 t : channel.tolerances.values)
        tolerances.append(t);
    const QJsonObject root{
        {QStringLiteral("format"), QLatin1String(kFormat)},
        {QStringLiteral("version"), kVersion},
        {QStringLiteral("windows"), windows},
        {QStringLiteral("substitute"), channel.substitute},
        {QStringLiteral("value"), channel.value},
        {QStringLiteral("enabled"), channel.enabled},
        {QStringLiteral("tolerances"), tolerances},
    };
    return QJsonDocument(root).toJson(QJsonDocument::Indented);
}

std::optional<LearnedChannel> fromJson(const QByteArray &json)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        return std::nullopt;
    const QJsonObject root = document.object();
    if (root.value(QStringLiteral("format")).toString() != QLatin1String(kFormat) ||
        integer(root.value(QStringLiteral("version")), 1, kVersion) != kVersion)
        return std::nullopt;

    LearnedChannel channel;
    const QJsonObject windows = root.value(QStringLiteral("windows")).toObject();
    for (int w = 0; w < kWindows; ++w) {
        const QJsonObject window = windows.value(QLatin1String(kWindowKeys[w])).toObject();
        const auto min = integer(window.value(QStringLiteral("min")), 0, 255);
        const auto max = integer(window.value(QStringLiteral("max")), 0, 255);
        if (!min || !max)
            return std::nullopt;
        channel.windows[std::size_t(w)] = Window{quint8(*min), quint8(*max)};
    }
    const auto substitute = integer(root.value(QStringLiteral("substitute")), 0, 31);
    const QJsonValue value = root.value(QStringLiteral("value"));
    const QJsonValue enabled = root.value(QStringLiteral("enabled"));
    const QJsonArray tolerances = root.value(QStringLiteral("tolerances")).toArray();
    if (!substitute || !value.isString() || !enabled.isBool() ||
        tolerances.size() != qsizetype(channel.tolerances.values.size()))
        return std::nullopt;
    channel.substitute = *substitute;
    channel.value = value.toString();
    channel.enabled = enabled.toBool();
    for (qsizetype i = 0; i < tolerances.size(); ++i) {
        const auto t = integer(tolerances.at(i), 0, 255);
        if (!t)
            return std::nullopt;
        channel.tolerances.values[std::size_t(i)] = quint8(*t);
    }
    return channel;
}

bool save(const QString &fileName, const LearnedChannel &channel, QString *error)
{
    return WholeFile::write(fileName, toJson(channel), error);
}

std::optional<LearnedChannel> load(const QString &fileName)
{
    QFile file(fileName);
    // A learned channel is a few hundred bytes; anything much larger is not one.
    if (!file.open(QIODevice::ReadOnly) || file.size() > 64 * 1024)
        return std::nullopt;
    return fromJson(file.readAll());
}

} // namespace LearnedChannelFile

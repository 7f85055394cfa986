#include "LineProfile.h"

#include <QStringList>

namespace {

constexpr int kLongestWaitMs = 600000;

std::optional<int> milliseconds(const QString &text)
{
    bool ok = false;
    const int v = text.trimmed().toInt(&ok);
    if (!ok || v < 0 || v > kLongestWaitMs)
        return std::nullopt;
    return v;
}

} // namespace

LineProfile LineProfile::instant()
{
    return {};
}

LineProfile LineProfile::bench()
{
    LineProfile line;
    line.pacing = true;
    line.turnaroundMinMs = 2;
    line.turnaroundMaxMs = 8;
    line.echoMinMs = 1;
    line.echoMaxMs = 5;
    line.burstMs = 1;
    return line;
}

std::optional<LineProfile> LineProfile::parse(const QString &text, QString *error)
{
    auto bad = [error](const QString &why) -> std::optional<LineProfile> {
        if (error)
            *error = why;
        return std::nullopt;
    };
    const QString trimmed = text.trimmed();
    if (trimmed == QLatin1String("instant"))
        return instant();
    LineProfile line = bench();
    const QStringList items = trimmed.split(u',', Qt::SkipEmptyParts);
    for (const QString &raw : items) {
        const QString item = raw.trimmed();
        const qsizetype eq = item.indexOf(u'=');
        const QString key = eq < 0 ? item : item.left(eq).trimmed();
        const QString value = eq < 0 ? QString() : item.mid(eq + 1).trimmed();
        if (key == QLatin1String("bench") && eq < 0) {
            line = bench();
        } else if (key == QLatin1String("pace") && eq < 0) {
            line.pacing = true;
        } else if (key == QLatin1String("nopace") && eq < 0) {
            line.pacing = false;
        } else if (key == QLatin1String("turnaround") || key == QLatin1String("echo")) {
            const QStringList range = value.split(u'-');
            const auto lo = range.size() <= 2 ? milliseconds(range.first()) : std::nullopt;
            const auto hi = range.size() == 2 ? milliseconds(range.last()) : lo;
            if (!lo || !hi || *hi < *lo)
                return bad(QStringLiteral("%1 needs MS or MIN-MAX in milliseconds, not \"%2\"")
                               .arg(key, value));
            (key == QLatin1String("echo") ? line.echoMinMs : line.turnaroundMinMs) = *lo;
            (key == QLatin1String("echo") ? line.echoMaxMs : line.turnaroundMaxMs) = *hi;
        } else if (key == QLatin1String("burst")) {
            const auto ms = milliseconds(value);
            if (!ms || *ms > 255)
                return bad(QStringLiteral("burst needs the adapter's timer in ms, 0 to 255, not "
                                          "\"%1\"")
                               .arg(value));
            line.burstMs = *ms;
        } else if (key == QLatin1String("seed")) {
            bool ok = false;
            const quint32 seed = value.toUInt(&ok, 0);
            if (!ok)
                return bad(QStringLiteral("seed needs a number, not \"%1\"").arg(value));
            line.seed = seed;
        } else if (key == QLatin1String("split")) {
            const QStringList parts = value.split(u':');
            const auto at = parts.size() == 2 ? milliseconds(parts[0]) : std::nullopt;
            const auto gap = parts.size() == 2 ? milliseconds(parts[1]) : std::nullopt;
            if (!at || !gap || *at > 255)
                return bad(QStringLiteral("split needs BYTES:MS, not \"%1\"").arg(value));
            line.splitAt = *at;
            line.splitGapMs = *gap;
        } else {
            return bad(QStringLiteral("\"%1\" is not part of a line (instant, bench, pace, "
                                      "nopace, turnaround=MIN-MAX, echo=MIN-MAX, burst=MS, seed=N, "
                                      "split=BYTES:MS)")
                           .arg(item));
        }
    }
    return line;
}

QString LineProfile::toString() const
{
    if (*this == instant())
        return QStringLiteral("instant");
    QStringList items{pacing ? QStringLiteral("pace") : QStringLiteral("nopace")};
    const auto range = [](const char *key, int lo, int hi) {
        return lo == hi ? QStringLiteral("%1=%2").arg(QLatin1String(key)).arg(lo)
                        : QStringLiteral("%1=%2-%3").arg(QLatin1String(key)).arg(lo).arg(hi);
    };
    items << range("turnaround", turnaroundMinMs, turnaroundMaxMs)
          << range("echo", echoMinMs, echoMaxMs);
    items << QStringLiteral("burst=%1").arg(burstMs) << QStringLiteral("seed=%1").arg(seed);
    if (splitGapMs > 0)
        items << QStringLiteral("split=%1:%2").arg(splitAt).arg(splitGapMs);
    return items.join(u',');
}

#include "Learning.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

// The record bytes of each window in the order the lists show them: HFU low, HFU high, LF,
// DIM, HFL low, HFL high, amplitude (measurement order with LF and DIM the other way round).
constexpr int kListOrder[kWindows] = {0, 1, 3, 2, 4, 5, 6};

constexpr const char *kWindowCaption[kWindows] = {
    QT_TRANSLATE_NOOP("TFormProgCoin", "HFU low"), QT_TRANSLATE_NOOP("TFormProgCoin", "HFU high"),
    QT_TRANSLATE_NOOP("TFormProgCoin", "DIM"),     QT_TRANSLATE_NOOP("TFormProgCoin", "LF"),
    QT_TRANSLATE_NOOP("TFormProgCoin", "HFL low"), QT_TRANSLATE_NOOP("TFormProgCoin", "HFL high"),
    QT_TRANSLATE_NOOP("TFormProgCoin", "AMP"),
};

constexpr int kGoldenWindows[] = {0, 2, 3, 4, 6}; // HFU low, DIM, LF, HFL low, amplitude
constexpr int kSilverWindows[] = {1, 5};          // HFU high, HFL high

} // namespace

QString windowCaption(int window)
{
    return QCoreApplication::translate("TFormProgCoin", kWindowCaption[window]);
}

quint8 clampToByte(int value)
{
    return quint8(std::clamp(value, 0, 255));
}

QString differenceText(int difference)
{
    return difference < 1 ? QString::asprintf("%d", difference)
                          : QString::asprintf("+%d", difference);
}

WindowUpdate updateWindow(Window &window, quint8 measure, bool learningFromCoins)
{
    WindowUpdate u;
    u.measure = measure;
    u.belowMin = measure - window.min;
    if (window.min > measure) {
        u.minMarked = window.min != 255;
        u.minDifferenceHidden = window.min == 255;
        if (learningFromCoins)
            window.min = measure;
    }
    u.aboveMax = measure - window.max;
    if (window.max < measure) {
        u.maxMarked = window.max != 255;
        u.maxDifferenceHidden = window.max == 255;
        if (learningFromCoins)
            window.max = measure;
    }
    return u;
}

int matchChannel(const ConfigImage &image, const SampleBytes &sample)
{
    if (std::all_of(sample.begin(), sample.end(), [](quint8 m) { return m == 255; }))
        return 0;
    for (int k = 0; k < kChannels; ++k) {
        const ChannelRecord &record = image.channels[std::size_t(k)];
        bool holds = true;
        for (int w = 0; w < kWindows && holds; ++w) {
            const quint8 m = sample[std::size_t(w)];
            holds = record[std::size_t(kWindowPlaces[w].recordMin)] <= m &&
                    m <= record[std::size_t(kWindowPlaces[w].recordMax)];
        }
        if (holds)
            return k + 1;
    }
    return 0;
}

ChannelBytes learnedRecord(const Windows &windows, quint8 substitute)
{
    ChannelBytes record;
    for (int w = 0; w < kWindows; ++w) {
        record[std::size_t(kWindowPlaces[w].recordMax)] = windows[std::size_t(w)].max;
        record[std::size_t(kWindowPlaces[w].recordMin)] = windows[std::size_t(w)].min;
    }
    record[Rec::Substitute] = substitute;
    return record;
}

void applyTolerances(ChannelBytes &record, const Tolerances &tolerances)
{
    for (int w = 0; w < kWindows; ++w) {
        quint8 &max = record[std::size_t(kWindowPlaces[w].recordMax)];
        quint8 &min = record[std::size_t(kWindowPlaces[w].recordMin)];
        max = clampToByte(max + tolerances.above(w));
        min = clampToByte(min - tolerances.below(w));
    }
}

void storeLearnedChannel(ConfigImage &image, int k, const ChannelBytes &record, quint8 value,
                         bool enabled)
{
    ChannelRecord &target = image.channels[std::size_t(k)];
    std::copy(record.begin(), record.end(), target.begin());
    target[Rec::Value] = value;
    target[Rec::Enabled] = enabled ? 1 : 0;
    image.values[std::size_t(Val::Channel0 + k)] = value;
    // The mask starts from F0 00 .. 00: the four channels past 60 are always sent as enabled.
    image.enable.fill(0);
    image.enable[0] = 0xF0;
    for (int i = 0; i < image.channelCount(); ++i) {
        const quint8 bit = image.channels[std::size_t(i)][Rec::Enabled] & 1;
        image.enable[std::size_t(7 - i / 8)] |= quint8(bit << (i % 8));
    }
}

void takeReferenceWindows(ChannelBytes &reference, const ChannelBytes &learned, TokenSet set)
{
    auto take = [&](int w) {
        const int hi = kWindowPlaces[w].recordMax;
        const int lo = kWindowPlaces[w].recordMin;
        const quint8 max = learned[std::size_t(hi)];
        const quint8 min = learned[std::size_t(lo)];
        const int width = quint8(max - min);
        int d = 0;
        if (width < kMinimumReferenceWidth)
            d = int(std::nearbyint((kMinimumReferenceWidth - width) / 2.0)); // halves to even
        reference[std::size_t(hi)] = quint8(max + d);
        reference[std::size_t(lo)] = quint8(min - d);
    };
    if (set == TokenSet::Golden) {
        for (int w : kGoldenWindows)
            take(w);
    } else {
        reference[Rec::Substitute] = 255;
        for (int w : kSilverWindows)
            take(w);
    }
}

bool intersect(int a, int b, int c, int d)
{
    return (c <= a && a <= d) || (c <= b && b <= d) || (a < c && c < b && a < d && d < b);
}

bool windowsOverlap(const quint8 *a, const quint8 *b)
{
    // Tested in the order of the list; the first window apart ends the pair.
    for (int w = 0; w < kWindows; ++w) {
        const WindowPlace &p = kWindowPlaces[kListOrder[w]];
        if (!intersect(a[p.recordMin], a[p.recordMax], b[p.recordMin], b[p.recordMax]))
            return false;
    }
    return true;
}

QList<ChannelPair> overlappingPairs(const ConfigImage &image)
{
    QList<ChannelPair> pairs;
    const int n = image.channelCount();
    for (int i = 0; i < n - 1; ++i) {
        const ChannelRecord &a = image.channels[std::size_t(i)];
        if (!channelInUse(a.data()))
            continue;
        for (int j = i + 1; j < n; ++j) {
            const ChannelRecord &b = image.channels[std::size_t(j)];
            if (channelInUse(b.data()) && windowsOverlap(a.data(), b.data()))
                pairs.append({i + 1, j + 1});
        }
    }
    return pairs;
}

QString overlapLine(int count, const ChannelPair &pair)
{
    return QString::asprintf("%4d | C%4d <--> C%4d        ", count, pair.first, pair.second);
}

QStringList overlapLines(const ConfigImage &image)
{
    QStringList lines;
    for (const ChannelPair &pair : overlappingPairs(image))
        lines.append(overlapLine(int(lines.size()) + 1, pair));
    return lines;
}

QStringList analysisLines(const ConfigImage &image, const SampleBytes &sample,
                          const Tolerances &tolerances)
{
    QStringList lines;
    for (int k = 0; k < kChannels; ++k) {
        const ChannelRecord &record = image.channels[std::size_t(k)];
        if (std::all_of(record.begin(), record.begin() + 14, [](quint8 b) { return b == 255; }))
            continue;
        bool passes = true;
        QString triples;
        for (int i = 0; i < kWindows && passes; ++i) {
            const int w = kListOrder[i];
            const quint8 min = record[std::size_t(kWindowPlaces[w].recordMin)];
            const quint8 max = record[std::size_t(kWindowPlaces[w].recordMax)];
            const quint8 m = sample[std::size_t(w)];
            passes = clampToByte(min - tolerances.below(w)) <= m &&
                     m <= clampToByte(max + tolerances.above(w));
            triples += QString::asprintf("|%3d|%3d|%3d", min, m, max);
        }
        if (passes)
            lines.append(QString::asprintf("%3d|Cnl 0|C%4d", int(lines.size()) + 1, k + 1) +
                         triples);
    }
    return lines;
}

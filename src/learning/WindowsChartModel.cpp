#include "WindowsChartModel.h"

#include "Captions.h"
#include "Encodings.h"

#include <QSet>
#include <algorithm>
#include <numeric>

namespace {

// The channel's value as the editor shows it, in the credit base of its half of the table.
QString valueText(const ConfigImage &image, int k)
{
    const int at = k < 30 ? Val::Base1 : Val::Base2;
    const DecimalWord base =
        FormatDecimalWord({image.values[std::size_t(at)], image.values[std::size_t(at + 1)]});
    return FormatChannelValue(base.decimals, 6, base.magnitude, image.valueByte(k)).trimmed();
}

} // namespace

void WindowsChartModel::setImage(const ConfigImage &image)
{
    m_channelCount = image.channelCount();
    m_reference = image.referenceChannel() + 1;
    m_inUse.clear();
    m_highlighted.reset();
    for (ChartBand &band : m_bands)
        band.bars.clear();
    for (int k = 0; k < m_channelCount; ++k) {
        const ChannelRecord &record = image.channels[std::size_t(k)];
        if (!channelInUse(record.data()))
            continue;
        m_inUse.append(k + 1);
        const QString value = valueText(image, k);
        const QString label = value.isEmpty() ? QString::number(k + 1)
                                              : QStringLiteral("%1: %2").arg(k + 1).arg(value);
        for (int w = 0; w < kWindows; ++w) {
            ChartBar bar;
            bar.channel = k + 1;
            bar.min = record[std::size_t(kWindowPlaces[w].recordMin)];
            bar.max = record[std::size_t(kWindowPlaces[w].recordMax)];
            bar.label = label;
            bar.reference = k + 1 == referenceChannel();
            m_bands[std::size_t(w)].bars.append(bar);
        }
    }
    m_overlaps = overlappingPairs(image);
    ++m_revision;
    tint();
}

QString WindowsChartModel::note() const
{
    return empty() ? captionText(Cap::ChartEmpty) : QString();
}

QString WindowsChartModel::legend() const
{
    if (m_overlaps.isEmpty())
        return {};
    QStringList pairs;
    for (const ChannelPair &pair : m_overlaps)
        pairs.append(QStringLiteral("%1 <--> %2").arg(pair.first).arg(pair.second));
    return captionText(Cap::ChartOverlapping) + u' ' + pairs.join(QStringLiteral(", "));
}

QString WindowsChartModel::referenceText() const
{
    return m_inUse.contains(referenceChannel())
               ? captionText(Cap::ChartReference, {QString::number(referenceChannel())})
               : QString();
}

void WindowsChartModel::highlight(std::optional<ChannelPair> pair)
{
    m_highlighted = pair;
    ++m_revision;
    tint();
}

void WindowsChartModel::tint()
{
    QSet<int> overlapping;
    for (const ChannelPair &pair : std::as_const(m_overlaps)) {
        overlapping.insert(pair.first);
        overlapping.insert(pair.second);
    }
    for (ChartBand &band : m_bands) {
        for (ChartBar &bar : band.bars) {
            if (m_highlighted &&
                (bar.channel == m_highlighted->first || bar.channel == m_highlighted->second))
                bar.tint = ChartTint::Highlighted;
            else if (overlapping.contains(bar.channel))
                bar.tint = ChartTint::Overlapping;
            else
                bar.tint = ChartTint::Normal;
        }
    }
}

void WindowsChartModel::setSamples(const QList<SampleBytes> &samples)
{
    for (ChartBand &band : m_bands)
        band.ticks.clear();
    m_sampleCount = 0;
    for (const SampleBytes &sample : samples)
        addSample(sample);
}

void WindowsChartModel::addSample(const SampleBytes &sample)
{
    ++m_sampleCount;
    for (int w = 0; w < kWindows; ++w) {
        // 255 is no reading (the amplitude of a validator that does not measure it).
        if (sample[std::size_t(w)] != 255)
            m_bands[std::size_t(w)].ticks.append(sample[std::size_t(w)]);
    }
}

QList<int> stackIntoLanes(const QList<std::pair<int, int>> &intervals)
{
    QList<int> order(intervals.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [&](int a, int b) { return intervals[a].first < intervals[b].first; });
    QList<int> lanes(intervals.size(), 0);
    QList<int> laneEnds; // the last value taken in each lane
    for (int i : std::as_const(order)) {
        const auto &[first, last] = intervals[i];
        int lane = 0;
        while (lane < laneEnds.size() && laneEnds[lane] >= first)
            ++lane;
        if (lane == laneEnds.size())
            laneEnds.append(last);
        else
            laneEnds[lane] = last;
        lanes[i] = lane;
    }
    return lanes;
}

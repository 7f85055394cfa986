#pragma once

#include "Learning.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <array>
#include <optional>
#include <utility>

// What a bar of the windows chart shows in; a later tint wins over an earlier one.
enum class ChartTint
{
    Normal,
    Overlapping, // the channel overlaps another on all seven measurements
    Highlighted  // one of the pair picked in the overlap list
};

// One channel's window on one measurement.
struct ChartBar
{
    int channel = 0; // 1-based
    quint8 min = 0;
    quint8 max = 0;
    QString label; // the channel number and its value as the editor shows it
    ChartTint tint = ChartTint::Normal;
    bool reference = false;
    bool operator==(const ChartBar &) const = default;
};

// One measurement of the chart: 0 to 255, one bar per channel in use, the samples' readings.
struct ChartBand
{
    QList<ChartBar> bars; // by channel
    QList<quint8> ticks;  // the readings of the samples, oldest first; no reading left out
};

// The windows of every channel in use side by side on each of the seven measurements (in the
// order the validator reports them), without any widget: which bars, which overlap, which
// channel is the reference, which pair is picked and where the sample coins fell. The overlap
// window, the learning window, the configuration sheet and tarvik-cli draw it alike.
class WindowsChartModel final
{
public:
    WindowsChartModel() = default;
    explicit WindowsChartModel(const ConfigImage &image) { setImage(image); }

    // The channels, their values and the overlaps of this configuration; the highlight goes,
    // the samples stay.
    void setImage(const ConfigImage &image);

    // 60, or 25 on the Light model.
    int channelCount() const { return m_channelCount; }
    // The validator's reference channel, 1-based.
    int referenceChannel() const { return m_reference; }
    // No channel in use: the chart draws its note instead of bars.
    bool empty() const { return m_inUse.isEmpty(); }
    QString note() const;
    // The channels in use, 1-based, in order.
    const QList<int> &channelsInUse() const { return m_inUse; }

    const std::array<ChartBand, kWindows> &bands() const { return m_bands; }
    // The measurement's name under which its band stands.
    static QString bandCaption(int band) { return windowCaption(band); }

    // The pairs of the overlap list, in its order, and the legend that names them.
    const QList<ChannelPair> &overlaps() const { return m_overlaps; }
    QString legend() const;
    QString referenceText() const;

    // The two channels of a pair stand out; nullopt puts them back.
    void highlight(std::optional<ChannelPair> pair);
    std::optional<ChannelPair> highlighted() const { return m_highlighted; }

    // The sample coins of a learning (readings in measurement order), drawn as ticks.
    void setSamples(const QList<SampleBytes> &samples);
    void addSample(const SampleBytes &sample);
    int sampleCount() const { return m_sampleCount; }

    // Changes with everything but the samples: a view may keep the chart drawn until then and
    // draw only the ticks over it.
    int revision() const { return m_revision; }

private:
    void tint();

    int m_channelCount = kChannels;
    int m_reference = kChannels;
    QList<int> m_inUse;
    std::array<ChartBand, kWindows> m_bands{};
    QList<ChannelPair> m_overlaps;
    std::optional<ChannelPair> m_highlighted;
    int m_sampleCount = 0;
    int m_revision = 0;
};

// Stacks intervals (first and last value, inclusive) into lanes, each into the lowest lane
// whose intervals all end before it begins, so that no two in a lane share a value. Returns
// each interval's lane, in the order given.
QList<int> stackIntoLanes(const QList<std::pair<int, int>> &intervals);

// The windows chart: which channels it draws, which overlap, which colours the bars take in a
// painted picture, the Light model's 25 channels, the note of a blank configuration, and the
// coins of a learning as ticks.
#include "WindowsChartPainter.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

namespace {

// Every window of the channel (0-based k) from lo to hi.
void setWindows(ConfigImage &image, int k, int lo, int hi)
{
    for (const WindowPlace &place : kWindowPlaces) {
        image.channels[std::size_t(k)][std::size_t(place.recordMin)] = quint8(lo);
        image.channels[std::size_t(k)][std::size_t(place.recordMax)] = quint8(hi);
    }
}

// Channels 1 and 2 touch at 20 on every measurement; 3 and 4 touch on six but part on DIM;
// 5 has no amplitude window; 6 has only one window; 60, the reference, stands alone.
ConfigImage knownImage(quint8 family = 0x13)
{
    ConfigImage image = ConfigImage::blank();
    image.version[0] = family;
    image.values[Val::Base1] = 0x40; // 0.05
    image.values[Val::Base1 + 1] = 0x05;
    image.values[Val::Base2] = 0x40; // 0.10
    image.values[Val::Base2 + 1] = 0x0A;
    setWindows(image, 0, 10, 20);
    setWindows(image, 1, 20, 30);
    setWindows(image, 2, 40, 50);
    setWindows(image, 3, 50, 55);
    image.channels[3][Rec::DimMin] = 60;
    image.channels[3][Rec::DimMax] = 70;
    setWindows(image, 4, 80, 90);
    image.channels[4][Rec::AmpMin] = 255;
    image.channels[4][Rec::AmpMax] = 255;
    image.channels[5][Rec::HfuLowMin] = 100;
    image.channels[5][Rec::HfuLowMax] = 110;
    setWindows(image, 59, 200, 210);
    image.values[Val::Channel0 + 0] = 10;  // 0.50
    image.values[Val::Channel0 + 1] = 40;  // 2.00
    image.values[Val::Channel0 + 2] = 253; // the P1 marker
    image.values[Val::Channel0 + 59] = 20; // 2.00 in base 2
    return image;
}

QImage paint(const WindowsChartModel &model, const QSize &size = {1000, 700})
{
    QImage picture(size, QImage::Format_RGB32);
    QPainter painter(&picture);
    paintWindowsChart(painter, QRectF(QPointF(), size), model);
    return picture;
}

QColor pixel(const QImage &picture, const QPointF &at)
{
    return picture.pixelColor(at.toPoint());
}

class WindowsChart : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        static int argc = 1;
        static char name[] = "windows_chart_tests";
        static char *argv[] = {name, nullptr};
        if (!QCoreApplication::instance())
            new QGuiApplication(argc, argv);
    }
};

} // namespace

TEST_F(WindowsChart, BarsOverlapsAndColoursOfKnownPairs)
{
    WindowsChartModel model(knownImage());
    EXPECT_EQ(model.channelCount(), 60);
    EXPECT_EQ(model.channelsInUse(), (QList<int>{1, 2, 3, 4, 5, 60}));
    EXPECT_EQ(model.overlaps(), (QList<ChannelPair>{{1, 2}}));
    EXPECT_EQ(model.legend(), QStringLiteral("Overlapping channels: 1 <--> 2"));
    EXPECT_EQ(model.referenceText(), QStringLiteral("Reference channel 60"));

    const ChartBand &dim = model.bands()[2];
    ASSERT_EQ(dim.bars.size(), 6);
    EXPECT_EQ(dim.bars[3].channel, 4);
    EXPECT_EQ(dim.bars[3].min, 60);
    EXPECT_EQ(dim.bars[3].max, 70);
    QStringList labels;
    for (const ChartBar &bar : dim.bars)
        labels.append(bar.label);
    EXPECT_EQ(labels, (QStringList{"1: 0.50", "2: 2.00", "3: -P1-", "4", "5", "60: 2.00"}));
    auto tints = [&] {
        QList<ChartTint> t;
        for (const ChartBar &bar : model.bands()[0].bars)
            t.append(bar.tint);
        return t;
    };
    using T = ChartTint;
    EXPECT_EQ(tints(), (QList<T>{T::Overlapping, T::Overlapping, T::Normal, T::Normal, T::Normal,
                                 T::Normal}));
    EXPECT_TRUE(model.bands()[0].bars.last().reference);

    // Painted: every bar in its tint's colour (beside its label when that is inside), the
    // reference one framed, and no two bars or labels beside them on top of each other (1 and
    // 2 touch, so they take two lanes).
    const QRectF area(0, 0, 1000, 700);
    QImage picture = paint(model);
    const WindowsChartLayout layout = layoutWindowsChart(area, model);
    auto fill = [](const WindowsChartBarPlace &place) {
        return QPointF(place.bar.right() - 1.5, place.bar.center().y());
    };
    for (int w = 0; w < kWindows; ++w) {
        const QList<WindowsChartBarPlace> &places = layout.bars[std::size_t(w)];
        QList<QRectF> taken;
        for (const WindowsChartBarPlace &place : places) {
            EXPECT_FALSE(place.text.isEmpty());
            taken.append(place.bar);
            if (place.inside)
                EXPECT_TRUE(place.bar.contains(place.label));
            else
                taken.append(place.label);
        }
        for (qsizetype i = 0; i < taken.size(); ++i) {
            EXPECT_TRUE(layout.bands[std::size_t(w)].contains(taken[i].center()));
            for (qsizetype j = i + 1; j < taken.size(); ++j)
                EXPECT_FALSE(taken[i].intersects(taken[j])) << w << ": " << i << " and " << j;
        }
        for (qsizetype i = 0; i < places.size(); ++i)
            EXPECT_EQ(pixel(picture, fill(places[i])),
                      windowsChartColour(model.bands()[std::size_t(w)].bars[i].tint));
    }
    EXPECT_EQ(layout.laneCounts[0], 2);
    EXPECT_EQ(layout.bars[0][0].text, QStringLiteral("1: 0.50"));
    EXPECT_EQ(pixel(picture, layout.bars[0].last().bar.topLeft() - QPointF(0.5, 0.5)), Qt::black);

    // The pair picked in the overlap list stands out, then goes back.
    model.highlight(ChannelPair{1, 2});
    EXPECT_EQ(tints(), (QList<T>{T::Highlighted, T::Highlighted, T::Normal, T::Normal, T::Normal,
                                 T::Normal}));
    picture = paint(model);
    EXPECT_EQ(pixel(picture, fill(layout.bars[4][0])), windowsChartColour(ChartTint::Highlighted));
    EXPECT_NE(windowsChartColour(ChartTint::Highlighted),
              windowsChartColour(ChartTint::Overlapping));
    model.highlight(std::nullopt);
    EXPECT_EQ(tints().first(), T::Overlapping);

    // Lanes: the lowest one free after the last value it holds.
    EXPECT_EQ(stackIntoLanes({{0, 10}, {10, 20}, {11, 20}, {21, 30}, {5, 5}}),
              (QList<int>{0, 1, 0, 0, 1}));
}

// A page in printer pixels gets the nominal chart scaled up, not tiny texts in a vast plot.
TEST_F(WindowsChart, LargeAreaIsTheNominalChartScaledUp)
{
    const WindowsChartModel model(knownImage());
    const QImage large = paint(model, {2400, 1600});
    const WindowsChartLayout nominal = layoutWindowsChart(QRectF(0, 0, 1200, 800), model);
    for (int w = 0; w < kWindows; ++w) {
        for (qsizetype i = 0; i < nominal.bars[std::size_t(w)].size(); ++i) {
            const QRectF &bar = nominal.bars[std::size_t(w)][i].bar;
            EXPECT_EQ(pixel(large, QPointF(bar.right() - 1.5, bar.center().y()) * 2),
                      windowsChartColour(model.bands()[std::size_t(w)].bars[i].tint));
        }
    }
}

TEST_F(WindowsChart, LightModelHasTwentyFiveChannels)
{
    ConfigImage image = knownImage(0x31);
    setWindows(image, 24, 200, 210);
    setWindows(image, 30, 10, 20); // past the 25th: not on a Light validator
    const WindowsChartModel model(image);
    EXPECT_EQ(model.channelCount(), 25);
    EXPECT_EQ(model.referenceChannel(), 25);
    EXPECT_EQ(model.channelsInUse(), (QList<int>{1, 2, 3, 4, 5, 25}));
    EXPECT_EQ(model.overlaps(), (QList<ChannelPair>{{1, 2}}));
    EXPECT_TRUE(model.bands()[6].bars.last().reference);
    EXPECT_EQ(model.referenceText(), QStringLiteral("Reference channel 25"));
}

TEST_F(WindowsChart, BlankConfigurationDrawsAnEmptyChartWithItsNote)
{
    const WindowsChartModel model(ConfigImage::blank());
    EXPECT_TRUE(model.empty());
    EXPECT_EQ(model.note(), QStringLiteral("No channel in use"));
    EXPECT_TRUE(model.legend().isEmpty());
    for (const ChartBand &band : model.bands())
        EXPECT_TRUE(band.bars.isEmpty());
    EXPECT_TRUE(WindowsChartModel(knownImage()).note().isEmpty());

    // The note is written across the middle of the bands.
    const QImage picture = paint(model);
    const WindowsChartLayout layout = layoutWindowsChart(QRectF(0, 0, 1000, 700), model);
    const QRect middle = layout.plot.toRect().adjusted(300, 250, -300, -250);
    int dark = 0;
    for (int y = middle.top(); y < middle.bottom(); ++y)
        for (int x = middle.left(); x < middle.right(); ++x)
            dark += qGray(picture.pixel(x, y)) < 160 ? 1 : 0;
    EXPECT_GT(dark, 50);
}

TEST_F(WindowsChart, CoinsAreTicksTheLastOneBlack)
{
    WindowsChartModel model(knownImage());
    const SampleBytes first{150, 150, 150, 150, 150, 150, 255};
    const SampleBytes second{160, 160, 160, 160, 160, 160, 160};
    const int revision = model.revision();
    model.setSamples({first});
    model.addSample(second);
    EXPECT_EQ(model.sampleCount(), 2);
    EXPECT_EQ(model.bands()[0].ticks, (QList<quint8>{150, 160}));
    EXPECT_EQ(model.bands()[6].ticks, QList<quint8>{160}); // no amplitude reading

    const QImage picture = paint(model);
    const WindowsChartLayout layout = layoutWindowsChart(QRectF(0, 0, 1000, 700), model);
    const int y = int(layout.bands[0].center().y());
    auto tickAt = [&](int value) {
        // The tick's line, within a pixel of the middle of its value.
        const int x = int(layout.x(value) + layout.valueWidth() / 2);
        QList<QColor> colours;
        for (int dx = -1; dx <= 1; ++dx)
            colours.append(picture.pixelColor(x + dx, y));
        return colours;
    };
    EXPECT_TRUE(tickAt(150).contains(windowsChartTickColour()));
    EXPECT_TRUE(tickAt(160).contains(QColor(Qt::black)));
    EXPECT_FALSE(tickAt(170).contains(QColor(Qt::black)));

    // Coins leave the rest of the chart as it was drawn; a new configuration keeps the coins, a
    // new learning clears them.
    EXPECT_EQ(model.revision(), revision);
    model.setImage(ConfigImage::blank());
    EXPECT_NE(model.revision(), revision);
    EXPECT_EQ(model.sampleCount(), 2);
    model.setSamples({});
    EXPECT_TRUE(model.bands()[0].ticks.isEmpty());
}

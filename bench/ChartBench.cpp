// The windows chart over 60 channels in use, offscreen:
//  (a) the chart painted into a 1000 x 700 picture (its layout, lanes, labels and legend);
//  (b) one tick of the coin learning form that brings a coin, with the chart shown under the
//      windows: the model's work and every widget that changed repainted, the chart included.
//   build/bin/chart_bench [paintings] [coins]
#include "LearningSession.h"
#include "MedianReport.h"
#include "ProgCoinModel.h"
#include "TFormProgCoin.h"
#include "UserPrompt.h"
#include "VirtualValidator.h"
#include "WindowsChartPainter.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cstdio>
#include <random>
#include <vector>

namespace {

constexpr double kPaintTargetMs = 20.0;
constexpr double kTickTargetMs = ProgCoinModel::kTimerMs;

double report(const char *what, std::vector<qint64> ns, double targetMs)
{
    return reportMedian(what, std::move(ns), targetMs, 46, 3);
}

// The factory's coins, then every other channel learned with windows of its own, values from
// both bases and the price lines: 60 channels in use, some of them overlapping.
ConfigImage sixtyChannels()
{
    ConfigImage image = VirtualValidator::factoryImage(0x13, 1001);
    std::mt19937 random(60);
    std::uniform_int_distribution<int> centre(30, 220), half(3, 12);
    const quint8 values[] = {1, 2, 4, 10, 20, 40, 253, 254};
    for (std::size_t k = 6; k < kChannels; ++k) {
        for (const WindowPlace &place : kWindowPlaces) {
            const int c = centre(random), h = half(random);
            image.channels[k][std::size_t(place.recordMin)] = quint8(c - h);
            image.channels[k][std::size_t(place.recordMax)] = quint8(c + h);
        }
        image.values[Val::Channel0 + k] = values[k % std::size(values)];
    }
    // Two channels learned the same coin twice.
    image.channels[40] = image.channels[3];
    image.channels[52] = image.channels[5];
    return image;
}

std::vector<SampleBytes> samples(const ConfigImage &image, int count)
{
    std::mt19937 random(42);
    std::uniform_int_distribution<int> scatter(-5, 5);
    const ChannelRecord &coin = image.channels[3];
    std::vector<SampleBytes> out(static_cast<std::size_t>(count));
    for (SampleBytes &sample : out) {
        for (int w = 0; w < kWindows; ++w) {
            const int mid = (coin[std::size_t(kWindowPlaces[w].recordMin)] +
                             coin[std::size_t(kWindowPlaces[w].recordMax)]) /
                            2;
            sample[std::size_t(w)] = quint8(std::clamp(mid + scatter(random), 0, 254));
        }
    }
    return out;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const int paintings = argc > 1 ? std::max(10, atoi(argv[1])) : 200;
    const int coins = argc > 2 ? std::max(10, atoi(argv[2])) : 300;

    ConfigImage image = sixtyChannels();
    QElapsedTimer timer;

    std::vector<qint64> paintTimes;
    {
        WindowsChartModel model(image);
        if (model.channelsInUse().size() != kChannels || model.overlaps().isEmpty())
            return 1;
        for (const SampleBytes &coin : samples(image, 10))
            model.addSample(coin);
        QImage picture(1000, 700, QImage::Format_RGB32);
        for (int i = 0; i < paintings; ++i) {
            timer.start();
            QPainter painter(&picture);
            paintWindowsChart(painter, QRectF(0, 0, 1000, 700), model);
            painter.end();
            paintTimes.push_back(timer.nsecsElapsed());
        }
    }

    std::vector<qint64> tickTimes;
    {
        SilentPrompt prompt;
        LearningSession session;
        ProgCoinModel model(session, image, nullptr, &prompt, nullptr, {});
        model.FormActivate();
        model.type(QStringLiteral("SpinEdit1"), QStringLiteral("10"));
        TFormProgCoin form(model);
        form.resize(1100, 900);
        form.show();
        QCoreApplication::processEvents();
        for (const SampleBytes &coin : samples(image, coins)) {
            timer.start();
            model.addCoin(coin);
            QCoreApplication::processEvents();
            tickTimes.push_back(timer.nsecsElapsed());
        }
        if (model.chart().sampleCount() != coins)
            return 1;
    }

    const double paint =
        report("chart of 60 channels painted, 1000 x 700", paintTimes, kPaintTargetMs);
    const double tick =
        report("learning tick with a coin, chart repainted", tickTimes, kTickTargetMs);
    return paint < kPaintTargetMs && tick < kTickTargetMs ? 0 : 1;
}

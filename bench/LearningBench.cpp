// One tick's work of the coin learning form, over a 60-channel factory image:
//  (a) the learning state taking a sample: seven windows updated, matched against 60 channels;
//  (b) the form's model showing it: the same, with every label, edit, mark and track bar set;
//  (c) the window showing it too: the widgets that changed repainted, offscreen.
// The serial poll itself is left out (link_bench measures exchanges).
//   build/bin/learning_bench [samples]
#include "LearningSession.h"
#include "MedianReport.h"
#include "ProgCoinModel.h"
#include "TFormProgCoin.h"
#include "UserPrompt.h"
#include "VirtualValidator.h"

#include <QApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>
#include <random>
#include <vector>

namespace {

// A tick's work well inside the timer's 10 ms; the repaint within half of it.
constexpr double kTargetMs = 1.0;
constexpr double kWindowTargetMs = 5.0;

double report(const char *what, std::vector<qint64> ns, double targetMs = kTargetMs)
{
    return reportMedian(what, std::move(ns), targetMs, 42, 4);
}

// Samples scattered around a stored coin, so that windows keep growing and marks change.
std::vector<SampleBytes> samples(const ConfigImage &image, int count)
{
    std::mt19937 random(42);
    std::uniform_int_distribution<int> scatter(-6, 6);
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
    const int count = argc > 1 ? std::max(10, atoi(argv[1])) : 2000;

    ConfigImage image = VirtualValidator::factoryImage(0x13, 1001);
    const std::vector<SampleBytes> coins = samples(image, count);
    SilentPrompt prompt;
    QElapsedTimer timer;

    std::vector<qint64> sessionTimes;
    {
        LearningSession session;
        for (const SampleBytes &coin : coins) {
            timer.start();
            const LearningSession::Coin result = session.addSample(coin, image);
            sessionTimes.push_back(timer.nsecsElapsed());
            if (result.matchedChannel < 0)
                return 1;
        }
    }

    // A channel is chosen, so that the first coin asks nothing.
    std::vector<qint64> modelTimes;
    {
        LearningSession session;
        ProgCoinModel model(session, image, nullptr, &prompt, nullptr, {});
        model.FormActivate();
        model.type(QStringLiteral("SpinEdit1"), QStringLiteral("10"));
        int repainted = 0;
        model.changed = [&](const QStringList &names) { repainted += int(names.size()); };
        for (const SampleBytes &coin : coins) {
            timer.start();
            model.addCoin(coin);
            modelTimes.push_back(timer.nsecsElapsed());
        }
        if (repainted == 0)
            return 1;
    }

    std::vector<qint64> windowTimes;
    {
        LearningSession session;
        ProgCoinModel model(session, image, nullptr, &prompt, nullptr, {});
        model.FormActivate();
        model.type(QStringLiteral("SpinEdit1"), QStringLiteral("10"));
        TFormProgCoin form(model);
        form.show();
        QCoreApplication::processEvents();
        for (const SampleBytes &coin : coins) {
            timer.start();
            model.addCoin(coin);
            QCoreApplication::processEvents();
            windowTimes.push_back(timer.nsecsElapsed());
        }
    }

    report("addSample: windows and 60-channel matching", sessionTimes);
    const double model = report("model tick: the same and its display", modelTimes);
    report("window tick: and the widgets repainted", windowTimes, kWindowTargetMs);
    return model < kTargetMs ? 0 : 1;
}

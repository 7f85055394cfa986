// Timings of the editor window, offscreen, over a 60-channel image:
//  (a) building TFormData and its first full display, painted;
//  (b) leaving a changed channel box: typing, storing the form into the image, the whole
//      redisplay and the repaint of the widgets that changed.
//   build/bin/editor_bench [builds] [leaves]
#include "EditorModel.h"
#include "EditorServices.h"
#include "MedianReport.h"
#include "TFormData.h"
#include "UserPrompt.h"
#include "VirtualValidator.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFocusEvent>
#include <QLineEdit>
#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr double kBuildTargetMs = 150;
constexpr double kLeaveTargetMs = 5;

double report(const char *what, std::vector<qint64> ns, double targetMs)
{
    return reportMedian(what, std::move(ns), targetMs, 40, 2);
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    // The offscreen platform warns about every window's size hints.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const int builds = argc > 1 ? std::max(1, atoi(argv[1])) : 20;
    const int leaves = argc > 2 ? std::max(1, atoi(argv[2])) : 200;

    SilentPrompt prompt;
    DefaultEditorServices services;
    const ConfigImage image = VirtualValidator::factoryImage(0x13, 1001);
    QElapsedTimer timer;

    std::vector<qint64> buildTimes;
    for (int i = 0; i < builds; ++i) {
        timer.start();
        {
            TFormData form(prompt, services, nullptr);
            form.model().loadImage(image, false);
            form.show();
            QCoreApplication::processEvents();
            form.repaint();
            buildTimes.push_back(timer.nsecsElapsed());
        }
        QCoreApplication::processEvents(); // what the closed form left behind
    }

    TFormData form(prompt, services, nullptr);
    form.model().loadImage(image, false);
    form.show();
    QCoreApplication::processEvents();
    auto *box = form.findChild<QLineEdit *>(QStringLiteral("EHFUBMIN5"));
    std::vector<qint64> leaveTimes;
    for (int i = 0; i < leaves; ++i) {
        const QString text = QString::number(100 + i % 2);
        timer.start();
        box->setText(text);
        Q_EMIT box->textEdited(text);
        QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
        QCoreApplication::sendEvent(box, &out);
        QCoreApplication::processEvents();
        leaveTimes.push_back(timer.nsecsElapsed());
    }
    if (form.model().image().channels[5][Rec::HfuLowMin] != 100 + (leaves - 1) % 2) {
        std::fprintf(stderr, "editor_bench: the box was not stored\n");
        return 1;
    }

    std::printf("editor window, offscreen, 60-channel image\n");
    report("(a) build + first display", buildTimes, kBuildTargetMs);
    report("(b) leave a changed box", leaveTimes, kLeaveTargetMs);
    return 0;
}

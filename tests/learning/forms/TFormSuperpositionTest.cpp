// The overlap window driven by its widgets' names: the list of pairs beside the windows chart;
// a click on a line of the list picks out its two channels in the chart.
#include "TFormSuperposition.h"
#include "LearningLists.h"
#include "VirtualValidator.h"
#include "WindowsChartPainter.h"
#include "WindowsChartView.h"

#include <QListWidget>
#include <QtTest>

class TFormSuperpositionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clickingALineHighlightsItsPairInTheChart()
    {
        QLocale::setDefault(QLocale::c());
        ConfigImage image = VirtualValidator::factoryImage(0x13, 1001);
        image.channels[7] = image.channels[2];  // 3 and 8
        image.channels[11] = image.channels[4]; // 5 and 12
        TFormSuperposition form(image);
        form.resize(1100, 650);
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        QCOMPARE(form.windowTitle(), QStringLiteral("Overlapped channels list"));

        auto *list = form.findChild<QListWidget *>(QStringLiteral("ListBox1"));
        auto *chart = form.findChild<WindowsChartView *>(QStringLiteral("WindowsChart"));
        QVERIFY(list && chart);
        QCOMPARE(chart->accessibleName(), QStringLiteral("Channel windows"));
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->item(1)->text(), QStringLiteral("   2 | C   5 <--> C  12        "));
        // It opens with the first pair picked out, the other one in the warning colour.
        QCOMPARE(list->currentRow(), 0);
        QCOMPARE(chart->model().highlighted(), std::optional<ChannelPair>(ChannelPair{3, 8}));
        for (const ChartBar &bar : chart->model().bands()[0].bars) {
            const ChartTint tint = QList<int>{3, 8}.contains(bar.channel) ? ChartTint::Highlighted
                                   : QList<int>{5, 12}.contains(bar.channel)
                                       ? ChartTint::Overlapping
                                       : ChartTint::Normal;
            QCOMPARE(bar.tint, tint);
        }

        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(1)).center());
        QCOMPARE(chart->model().highlighted(), std::optional<ChannelPair>(ChannelPair{5, 12}));
        QCOMPARE(list->currentRow(), 1);

        // The chart on the screen shows the two channels in the highlight colour, the other
        // pair still in the warning colour.
        const QImage shown = chart->grab().toImage();
        const WindowsChartLayout layout = layoutWindowsChart(QRectF(chart->rect()), chart->model());
        const QList<ChartBar> &bars = chart->model().bands()[0].bars;
        for (qsizetype i = 0; i < bars.size(); ++i) {
            const QColor expected = windowsChartColour(
                bars[i].channel == 5 || bars[i].channel == 12
                    ? ChartTint::Highlighted
                    : (bars[i].channel == 3 || bars[i].channel == 8 ? ChartTint::Overlapping
                                                                    : ChartTint::Normal));
            const QRectF &bar = layout.bars[0][i].bar;
            QCOMPARE(shown.pixelColor(QPointF(bar.right() - 1.5, bar.center().y()).toPoint()),
                     expected);
        }

        // The keyboard picks the other line.
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Up);
        QCOMPARE(chart->model().highlighted(), std::optional<ChannelPair>(ChannelPair{3, 8}));
    }
};

QTEST_MAIN(TFormSuperpositionTest)
#include "TFormSuperpositionTest.moc"

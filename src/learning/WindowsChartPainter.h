#pragma once

#include "ConfigSheet.h"
#include "WindowsChartModel.h"

#include <QColor>
#include <QFont>
#include <QList>
#include <QRectF>
#include <array>

class QPainter;

// Draws the windows chart into area: the seven measurements one under the other, each a band
// from 0 to 255 with its caption, every channel in use a bar from its minimum to its maximum
// labelled with its number and value, bars that would cover each other stacked into lanes,
// the sample readings as ticks across their band, and under the values the legend (the
// overlapping pairs, the reference channel). Needs only QtGui: a widget, an image, a printer
// or an SVG file alike. An area larger than 1200 x 800 gets the chart of that size scaled up,
// so that a page in printer pixels reads like a screen.
void paintWindowsChart(QPainter &painter, const QRectF &area, const WindowsChartModel &model);

// The windows chart of a configuration, as the configuration sheet draws it in its area.
SheetChart sheetWindowsChart(const ConfigImage &image);

// The colour of a bar of that tint.
QColor windowsChartColour(ChartTint tint);
// The colour of the sample ticks (the last coin's tick is drawn in black).
QColor windowsChartTickColour();

// Where one bar stands and its label: inside the bar when the text fits there, else beside
// it; only the channel number when the lanes would get too thin for the whole label, no label
// when even that does not fit.
struct WindowsChartBarPlace
{
    QRectF bar;
    QRectF label; // empty: no label
    QString text;
    bool inside = false;
};

// Where the parts of the chart stand in an area.
struct WindowsChartLayout
{
    QRectF area;
    QRectF plot; // the values 0 to 255 across its width, the bands inside
    std::array<QRectF, kWindows> bands{};
    // Per band, one per bar in the band's order.
    std::array<QList<WindowsChartBarPlace>, kWindows> bars{};
    std::array<int, kWindows> laneCounts{};
    QRectF legend;
    QFont font;      // captions, axis and legend
    QFont labelFont; // the bars' labels

    // The left edge of a value and the width of one value.
    double x(int value) const { return plot.left() + value * valueWidth(); }
    double valueWidth() const { return plot.width() / 256.0; }
};
WindowsChartLayout layoutWindowsChart(const QRectF &area, const WindowsChartModel &model);

// The same in two layers, for a view that keeps the first while coins come (until the model's
// revision changes): everything but the ticks, then the ticks over it.
void paintWindowsChartBase(QPainter &painter, const WindowsChartLayout &layout,
                           const WindowsChartModel &model);
void paintWindowsChartTicks(QPainter &painter, const WindowsChartLayout &layout,
                            const WindowsChartModel &model);

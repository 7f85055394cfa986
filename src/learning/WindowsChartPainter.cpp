#include "WindowsChartPainter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>
#include <algorithm>
#include <cmath>

namespace {

constexpr double kMargin = 6.0;
constexpr double kBandGap = 3.0; // between two bands
constexpr int kAxisStep = 50;
// Above this size the chart is drawn at it and scaled up.
constexpr QSizeF kNominalSize(1200, 800);

QStringList legendLines(const WindowsChartModel &model)
{
    QStringList lines;
    for (const QString &line : {model.legend(), model.referenceText()}) {
        if (!line.isEmpty())
            lines.append(line);
    }
    return lines;
}

// How much of the labels the lanes make room for.
enum class LabelMode
{
    Whole,        // the whole label, inside the bar or beside it
    NumberBeside, // the whole label inside, else the number inside or beside
    InsideOnly    // only what fits inside the bar
};

// One bar's label in a mode: its text, inside the bar or beside it (after it, or before it
// when it would run past 255), and how many values it takes beside the bar.
struct LabelPlan
{
    QString text;
    bool inside = false;
    bool before = false;
    int units = 0;
};

LabelPlan planLabel(const ChartBar &bar, LabelMode mode, const QFontMetricsF &metrics,
                    double valueWidth)
{
    const int lo = std::min(bar.min, bar.max), hi = std::max(bar.min, bar.max);
    const double room = (hi - lo + 1) * valueWidth - 4;
    const QString number = QString::number(bar.channel);
    LabelPlan plan;
    plan.inside = true;
    if (metrics.horizontalAdvance(bar.label) <= room) {
        plan.text = bar.label;
        return plan;
    }
    if (mode != LabelMode::Whole && metrics.horizontalAdvance(number) <= room) {
        plan.text = number;
        return plan;
    }
    plan.inside = false;
    if (mode == LabelMode::InsideOnly)
        return plan;
    plan.text = mode == LabelMode::Whole ? bar.label : number;
    plan.units = int(std::ceil((metrics.horizontalAdvance(plan.text) + 3) / valueWidth));
    plan.before = hi + 1 + plan.units > 256;
    return plan;
}

// A legend line's swatch and the space after it.
double swatchSize(const QFontMetricsF &metrics)
{
    return metrics.height() * 0.6;
}
double swatchRoom(const QFontMetricsF &metrics)
{
    return swatchSize(metrics) + 4;
}

} // namespace

QColor windowsChartColour(ChartTint tint)
{
    switch (tint) {
    case ChartTint::Overlapping:
        return QColor(224, 80, 30); // the warning colour
    case ChartTint::Highlighted:
        return QColor(142, 36, 170);
    case ChartTint::Normal:
        break;
    }
    return QColor(70, 130, 180);
}

QColor windowsChartTickColour()
{
    return QColor(27, 138, 60);
}

WindowsChartLayout layoutWindowsChart(const QRectF &area, const WindowsChartModel &model)
{
    WindowsChartLayout l;
    l.area = area;
    const int pixels = std::clamp(int(area.height() / 60.0), 8, 12);
    l.font.setPixelSize(pixels);
    const QFontMetricsF metrics(l.font);

    double captionWidth = 0;
    for (int w = 0; w < kWindows; ++w)
        captionWidth =
            std::max(captionWidth, metrics.horizontalAdvance(WindowsChartModel::bandCaption(w)));
    const double left = area.left() + kMargin + captionWidth + kMargin;
    const double width = std::max(1.0, area.right() - kMargin - left);

    // The legend under the axis, at most a quarter of the height.
    double legendHeight = 0;
    const double textWidth = area.width() - 2 * kMargin - swatchRoom(metrics);
    for (const QString &line : legendLines(model))
        legendHeight +=
            metrics.boundingRect(QRectF(0, 0, textWidth, 1e6), Qt::TextWordWrap, line).height();
    legendHeight = std::min(area.height() / 4.0, legendHeight);
    const double axisHeight = metrics.height() + 2;
    const double top = area.top() + kMargin;
    const double bottom = area.bottom() - kMargin - legendHeight - axisHeight;
    l.plot = QRectF(left, top, width, std::max(1.0, bottom - top));
    l.legend = QRectF(area.left() + kMargin, area.bottom() - kMargin - legendHeight,
                      area.width() - 2 * kMargin, legendHeight);

    // Lanes with room for the whole labels; for the numbers only, or for none beside the bars,
    // when the lanes would get too thin for a text.
    const double valueWidth = l.valueWidth();
    const double available = l.plot.height() - kBandGap * (kWindows - 1);
    std::array<QList<int>, kWindows> lanes;
    std::array<QList<LabelPlan>, kWindows> plans;
    double laneHeight = 0;
    for (LabelMode mode : {LabelMode::Whole, LabelMode::NumberBeside, LabelMode::InsideOnly}) {
        int total = 0;
        for (int w = 0; w < kWindows; ++w) {
            QList<std::pair<int, int>> spans;
            plans[std::size_t(w)].clear();
            for (const ChartBar &bar : model.bands()[std::size_t(w)].bars) {
                const LabelPlan plan = planLabel(bar, mode, metrics, valueWidth);
                const int lo = std::min(bar.min, bar.max), hi = std::max(bar.min, bar.max);
                spans.append(
                    {plan.before ? lo - plan.units : lo, plan.before ? hi : hi + plan.units});
                plans[std::size_t(w)].append(plan);
            }
            lanes[std::size_t(w)] = stackIntoLanes(spans);
            const auto highest =
                std::max_element(lanes[std::size_t(w)].cbegin(), lanes[std::size_t(w)].cend());
            l.laneCounts[std::size_t(w)] =
                highest == lanes[std::size_t(w)].cend() ? 1 : *highest + 1;
            total += l.laneCounts[std::size_t(w)];
        }
        laneHeight = std::min(pixels + 5.0, available / total);
        if (laneHeight >= pixels + 1)
            break;
    }
    // A text smaller than this is not read: the bars go without labels.
    constexpr int kSmallestText = 7;
    const bool labelled = laneHeight >= kSmallestText + 1;
    l.labelFont = l.font;
    l.labelFont.setPixelSize(std::clamp(int(laneHeight) - 1, kSmallestText, pixels));
    const QFontMetricsF labelMetrics(l.labelFont);

    // Each band as high as its lanes, the height left over shared out evenly.
    double used = 0;
    for (int count : l.laneCounts)
        used += count * laneHeight;
    const double spare = std::max(0.0, (available - used) / kWindows);
    double y = l.plot.top();
    for (int w = 0; w < kWindows; ++w) {
        const double height = l.laneCounts[std::size_t(w)] * laneHeight + spare;
        l.bands[std::size_t(w)] = QRectF(l.plot.left(), y, l.plot.width(), height);
        const double first = y + spare / 2;
        y += height + kBandGap;
        const QList<ChartBar> &bars = model.bands()[std::size_t(w)].bars;
        for (qsizetype i = 0; i < bars.size(); ++i) {
            const ChartBar &bar = bars[i];
            const LabelPlan &plan = plans[std::size_t(w)][i];
            const int lo = std::min(bar.min, bar.max), hi = std::max(bar.min, bar.max);
            const double barTop = first + lanes[std::size_t(w)][i] * laneHeight + 1;
            WindowsChartBarPlace place;
            place.bar = QRectF(l.x(lo), barTop, l.x(hi + 1) - l.x(lo), laneHeight - 2);
            if (labelled && !plan.text.isEmpty()) {
                place.text = plan.text;
                place.inside = plan.inside;
                const double textWidth = labelMetrics.horizontalAdvance(plan.text);
                const double textLeft = plan.inside   ? place.bar.left() + 2
                                        : plan.before ? place.bar.left() - 2 - textWidth
                                                      : place.bar.right() + 2;
                place.label = QRectF(textLeft, barTop, textWidth, laneHeight - 2);
            }
            l.bars[std::size_t(w)].append(place);
        }
    }
    return l;
}

void paintWindowsChart(QPainter &painter, const QRectF &area, const WindowsChartModel &model)
{
    // A large area (a printed page in device pixels) is drawn as a chart of about the nominal
    // size scaled up, so that its texts and lines keep their proportions.
    const double scale = std::max(
        1.0, std::min(area.width() / kNominalSize.width(), area.height() / kNominalSize.height()));
    painter.save();
    painter.translate(area.topLeft());
    painter.scale(scale, scale);
    const WindowsChartLayout layout =
        layoutWindowsChart(QRectF(0, 0, area.width() / scale, area.height() / scale), model);
    paintWindowsChartBase(painter, layout, model);
    paintWindowsChartTicks(painter, layout, model);
    painter.restore();
}

void paintWindowsChartBase(QPainter &painter, const WindowsChartLayout &l,
                           const WindowsChartModel &model)
{
    const QRectF &area = l.area;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(area, Qt::white);
    painter.setFont(l.font);
    const QFontMetricsF metrics(l.font);
    const QColor text(0, 0, 0);
    const QColor grid(215, 215, 215);

    for (int w = 0; w < kWindows; ++w) {
        const QRectF &band = l.bands[std::size_t(w)];
        painter.fillRect(band, w % 2 ? QColor(255, 255, 255) : QColor(244, 246, 248));
        painter.setPen(text);
        painter.drawText(QRectF(area.left() + kMargin, band.top(),
                                l.plot.left() - area.left() - 2 * kMargin, band.height()),
                         Qt::AlignRight | Qt::AlignVCenter, WindowsChartModel::bandCaption(w));
        painter.setPen(grid);
        for (int v = 0; v <= 255; v += kAxisStep)
            painter.drawLine(QPointF(l.x(v), band.top()), QPointF(l.x(v), band.bottom()));
    }
    painter.setPen(text);
    for (int v = 0; v <= 255; v += kAxisStep)
        painter.drawText(QRectF(l.x(v) - 20, l.plot.bottom() + 1, 40, metrics.height()),
                         Qt::AlignHCenter | Qt::AlignTop, QString::number(v));

    painter.setFont(l.labelFont);
    for (int w = 0; w < kWindows; ++w) {
        const ChartBand &band = model.bands()[std::size_t(w)];
        for (qsizetype i = 0; i < band.bars.size(); ++i) {
            const ChartBar &bar = band.bars[i];
            const WindowsChartBarPlace &place = l.bars[std::size_t(w)][i];
            painter.fillRect(place.bar, windowsChartColour(bar.tint));
            // The reference channel is framed.
            if (bar.reference) {
                painter.setPen(QPen(text, 2));
                painter.setBrush(Qt::NoBrush);
                painter.drawRect(place.bar.adjusted(-1, -1, 1, 1));
            }
            if (!place.label.isEmpty()) {
                painter.setPen(place.inside ? QColor(Qt::white) : text);
                painter.drawText(place.label, Qt::AlignLeft | Qt::AlignVCenter, place.text);
            }
        }
    }
    painter.setFont(l.font);
    if (model.empty()) {
        QFont large = l.font;
        large.setPixelSize(l.font.pixelSize() * 2);
        painter.setFont(large);
        painter.setPen(QColor(90, 90, 90));
        painter.drawText(l.plot, Qt::AlignCenter | Qt::TextWordWrap, model.note());
        painter.setFont(l.font);
    }

    // The legend: each line after a swatch of what it names.
    painter.setClipRect(l.legend);
    double y = l.legend.top();
    const double swatch = swatchSize(metrics);
    for (const QString &line : legendLines(model)) {
        const QRectF box(l.legend.left(), y + (metrics.height() - swatch) / 2, swatch, swatch);
        if (line == model.legend()) {
            painter.fillRect(box, windowsChartColour(ChartTint::Overlapping));
        } else {
            painter.setPen(QPen(text, 2));
            painter.drawRect(box);
        }
        const QRectF textRect(l.legend.left() + swatchRoom(metrics), y,
                              l.legend.width() - swatchRoom(metrics), l.legend.bottom() - y);
        painter.setPen(text);
        const QRectF drawn = painter.boundingRect(textRect, Qt::TextWordWrap, line);
        painter.drawText(textRect, Qt::TextWordWrap, line);
        y += drawn.height();
    }
    painter.restore();
}

void paintWindowsChartTicks(QPainter &painter, const WindowsChartLayout &l,
                            const WindowsChartModel &model)
{
    // Older coins in the tick colour, the last one black and wider.
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    const double half = l.valueWidth() / 2;
    for (int w = 0; w < kWindows; ++w) {
        const QList<quint8> &ticks = model.bands()[std::size_t(w)].ticks;
        const QRectF &band = l.bands[std::size_t(w)];
        for (qsizetype i = 0; i < ticks.size(); ++i) {
            const bool last = i + 1 == ticks.size();
            painter.setPen(QPen(last ? QColor(Qt::black) : windowsChartTickColour(), last ? 2 : 1));
            const double x = l.x(ticks[i]) + half;
            painter.drawLine(QPointF(x, band.top()), QPointF(x, band.bottom()));
        }
    }
    painter.restore();
}

SheetChart sheetWindowsChart(const ConfigImage &image)
{
    return [model = WindowsChartModel(image)](QPainter &painter, const QRectF &area) {
        paintWindowsChart(painter, area, model);
    };
}

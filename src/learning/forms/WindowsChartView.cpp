#include "WindowsChartView.h"

#include "Captions.h"
#include "WindowsChartPainter.h"

#include <QEvent>
#include <QPainter>

WindowsChartView::WindowsChartView(const WindowsChartModel &model, QWidget *parent)
    : QWidget(parent), m_model(model)
{
    setObjectName(QStringLiteral("WindowsChart"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    retranslate();
}

QSize WindowsChartView::sizeHint() const
{
    return {720, 520};
}

QSize WindowsChartView::minimumSizeHint() const
{
    return {360, 260};
}

void WindowsChartView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintWindowsChart(painter, rect(), m_model);
}

void WindowsChartView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        update();
    }
    QWidget::changeEvent(event);
}

void WindowsChartView::retranslate()
{
    setAccessibleName(captionText(Cap::ChartTitle));
}

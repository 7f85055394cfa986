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
    return {720, 360};
}

QSize WindowsChartView::minimumSizeHint() const
{
    return {360, 260};
}

void WindowsChartView::paintEvent(QPaintEvent *)
{
    const qreal ratio = devicePixelRatioF();
    if (m_revision != m_model.revision() || m_base.size() != size() * ratio) {
        m_layout = layoutWindowsChart(rect(), m_model);
        m_base = QPixmap(size() * ratio);
        m_base.setDevicePixelRatio(ratio);
        QPainter base(&m_base);
        paintWindowsChartBase(base, m_layout, m_model);
        m_revision = m_model.revision();
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_base);
    paintWindowsChartTicks(painter, m_layout, m_model);
}

void WindowsChartView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        m_revision = -1; // the captions and the legend again
        update();
    }
    QWidget::changeEvent(event);
}

void WindowsChartView::retranslate()
{
    setAccessibleName(captionText(Cap::ChartTitle));
}

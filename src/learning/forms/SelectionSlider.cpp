#include "SelectionSlider.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

SelectionSlider::SelectionSlider(Qt::Orientation orientation, QWidget *parent)
    : QSlider(orientation, parent)
{
    setRange(0, 255);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setTickPosition(QSlider::NoTicks);
}

void SelectionSlider::setSelection(int start, int end)
{
    if (start == m_start && end == m_end)
        return;
    m_start = start;
    m_end = end;
    update();
}

void SelectionSlider::paintEvent(QPaintEvent *event)
{
    QSlider::paintEvent(event);
    if (m_start > m_end)
        return;
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect groove =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const QRect handle =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    const bool horizontal = orientation() == Qt::Horizontal;
    const int span =
        horizontal ? groove.width() - handle.width() : groove.height() - handle.height();
    const int offset =
        horizontal ? groove.x() + handle.width() / 2 : groove.y() + handle.height() / 2;
    // Vertical sliders run upside down: the maximum at the top.
    const int from = offset + QStyle::sliderPositionFromValue(minimum(), maximum(), m_start, span,
                                                              option.upsideDown);
    const int to = offset + QStyle::sliderPositionFromValue(minimum(), maximum(), m_end, span,
                                                            option.upsideDown);
    QPainter painter(this);
    QColor band = palette().color(QPalette::Highlight);
    band.setAlpha(140);
    const int thickness = 4;
    const QRect rect = horizontal ? QRect(QPoint(std::min(from, to), groove.bottom() + 1),
                                          QPoint(std::max(from, to), groove.bottom() + thickness))
                                  : QRect(QPoint(groove.right() + 1, std::min(from, to)),
                                          QPoint(groove.right() + thickness, std::max(from, to)));
    painter.fillRect(rect, band);
}

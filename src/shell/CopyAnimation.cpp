#include "CopyAnimation.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <numbers>

namespace {

void drawFolder(QPainter &p, const QRectF &r)
{
    QPainterPath tab;
    tab.addRoundedRect(QRectF(r.left(), r.top() - 5, r.width() * 0.4, 10), 2, 2);
    p.setPen(QPen(QColor(150, 110, 20), 1));
    p.setBrush(QColor(235, 190, 70));
    p.drawPath(tab);
    p.drawRoundedRect(r, 3, 3);
}

} // namespace

CopyAnimation::CopyAnimation(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("Animate1"));
    setMinimumSize(sizeHint());
    m_timer.setInterval(50);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_frame = (m_frame + 1) % kFrames;
        update();
    });
}

void CopyAnimation::start()
{
    m_frame = 0;
    m_timer.start();
    update();
    Q_EMIT started();
}

void CopyAnimation::stop(int frame)
{
    m_timer.stop();
    m_frame = qBound(0, frame, kFrames - 1);
    update();
}

void CopyAnimation::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const qreal h = height();
    const QRectF from(8, h * 0.45, 56, h * 0.45);
    const QRectF to(width() - 64, h * 0.45, 56, h * 0.45);
    drawFolder(p, from);
    drawFolder(p, to);

    // The sheet follows an arc from the left folder to the right one.
    const qreal t = qreal(m_frame) / (kFrames - 1);
    const qreal x = from.center().x() + t * (to.center().x() - from.center().x());
    const qreal y = from.top() - std::sin(t * std::numbers::pi) * (from.top() - 15);
    p.save();
    p.translate(x, y);
    p.rotate(-20 + 40 * t);
    p.setPen(QPen(QColor(90, 90, 90), 1));
    p.setBrush(Qt::white);
    p.drawRect(QRectF(-9, -12, 18, 24));
    p.setPen(QPen(QColor(120, 140, 200), 1));
    for (int line = 0; line < 4; ++line)
        p.drawLine(QPointF(-6, -7 + line * 5), QPointF(6, -7 + line * 5));
    p.restore();
}

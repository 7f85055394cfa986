#include "Screenshot.h"

#include <QPainter>
#include <QPixmap>
#include <QWidget>

namespace {
constexpr int kMargin = 16;
constexpr int kTitle = 26;
} // namespace

bool saveScreenshot(const QList<QWidget *> &windows, const QString &fileName)
{
    QList<QPixmap> shots;
    int width = kMargin;
    int height = 0;
    for (QWidget *window : windows) {
        if (!window || !window->isVisible())
            continue;
        shots.append(window->grab());
        width += shots.last().width() + kMargin;
        height = qMax(height, shots.last().height() + kTitle);
    }
    if (shots.isEmpty())
        return false;
    QPixmap canvas(width, height + 2 * kMargin);
    canvas.fill(QColor(58, 64, 72));
    QPainter p(&canvas);
    int x = kMargin;
    int shot = 0;
    for (QWidget *window : windows) {
        if (!window || !window->isVisible())
            continue;
        const QPixmap &pixmap = shots.at(shot++);
        const QRect title(x, kMargin, pixmap.width(), kTitle);
        p.fillRect(title, QColor(34, 74, 130));
        p.setPen(Qt::white);
        QFont font = p.font();
        font.setBold(true);
        p.setFont(font);
        p.drawText(title.adjusted(8, 0, -8, 0), Qt::AlignVCenter | Qt::AlignLeft,
                   window->windowTitle());
        p.drawPixmap(x, kMargin + kTitle, pixmap);
        x += pixmap.width() + kMargin;
    }
    p.end();
    return canvas.save(fileName);
}

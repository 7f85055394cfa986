#include "Screenshot.h"

#include <QPainter>
#include <QPixmap>
#include <QWidget>

namespace {

constexpr int kMargin = 16;
constexpr int kTitle = 26;

struct Shot
{
    QPixmap pixmap;
    QString title;
};

// The shots side by side on a dark ground, each under a title bar: the test screen has no
// window manager to draw one.
bool saveShots(const QList<Shot> &shots, const QString &fileName)
{
    if (shots.isEmpty())
        return false;
    int width = kMargin;
    int height = 0;
    for (const Shot &shot : shots) {
        width += shot.pixmap.width() + kMargin;
        height = qMax(height, shot.pixmap.height() + kTitle);
    }
    QPixmap canvas(width, height + 2 * kMargin);
    canvas.fill(QColor(58, 64, 72));
    QPainter p(&canvas);
    QFont font = p.font();
    font.setBold(true);
    p.setFont(font);
    int x = kMargin;
    for (const Shot &shot : shots) {
        const QRect title(x, kMargin, shot.pixmap.width(), kTitle);
        p.fillRect(title, QColor(34, 74, 130));
        p.setPen(Qt::white);
        p.drawText(title.adjusted(8, 0, -8, 0), Qt::AlignVCenter | Qt::AlignLeft, shot.title);
        p.drawPixmap(x, kMargin + kTitle, shot.pixmap);
        x += shot.pixmap.width() + kMargin;
    }
    p.end();
    return canvas.save(fileName);
}

} // namespace

bool saveScreenshot(const QList<QWidget *> &windows, const QString &fileName)
{
    QList<Shot> shots;
    for (QWidget *window : windows) {
        if (window && window->isVisible())
            shots.append({window->grab(), window->windowTitle()});
    }
    return saveShots(shots, fileName);
}

bool saveWindowPicture(QWidget *window, const QList<QWidget *> &popups, const QString &fileName)
{
    if (!window || !window->isVisible())
        return false;
    const QPixmap base = window->grab();
    QRect area(QPoint(0, 0), base.size());
    QList<QPair<QPoint, QPixmap>> overlays;
    const QPoint origin = window->mapToGlobal(QPoint(0, 0));
    for (QWidget *popup : popups) {
        if (!popup || !popup->isVisible())
            continue;
        const QPoint at = popup->mapToGlobal(QPoint(0, 0)) - origin;
        overlays.append({at, popup->grab()});
        area = area.united(QRect(at, overlays.last().second.size()));
    }
    QPixmap picture(area.size());
    picture.fill(QColor(58, 64, 72));
    QPainter p(&picture);
    p.drawPixmap(-area.topLeft(), base);
    for (const auto &[at, pixmap] : std::as_const(overlays))
        p.drawPixmap(at - area.topLeft(), pixmap);
    p.end();
    return saveShots({{picture, window->windowTitle()}}, fileName);
}

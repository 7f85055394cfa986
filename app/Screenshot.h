#pragma once

#include <QList>
#include <QString>

class QWidget;

// Grabs windows side by side, each under a title bar with its caption, into one picture.
bool saveScreenshot(const QList<QWidget *> &windows, const QString &fileName);
// Grabs one window under its title bar, with the popups shown over it (an open menu) painted
// where they stand.
bool saveWindowPicture(QWidget *window, const QList<QWidget *> &popups, const QString &fileName);

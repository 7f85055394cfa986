#pragma once

#include <QList>
#include <QString>

class QWidget;

// Grabs windows side by side, each under a title bar with its caption, into one picture.
bool saveScreenshot(const QList<QWidget *> &windows, const QString &fileName);

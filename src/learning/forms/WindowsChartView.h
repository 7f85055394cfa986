#pragma once

#include "WindowsChartPainter.h"

#include <QPixmap>
#include <QWidget>

// The windows chart of a model that outlives it, painted as it stands; the window that shows
// it calls update() when the model reports the chart changed. The chart without its ticks is
// kept as a picture until the model's revision, the size or the language changes, so that a
// coin only draws the ticks again.
class WindowsChartView final : public QWidget
{
    Q_OBJECT
public:
    explicit WindowsChartView(const WindowsChartModel &model, QWidget *parent = nullptr);

    const WindowsChartModel &model() const { return m_model; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    const WindowsChartModel &m_model;
    QPixmap m_base;
    WindowsChartLayout m_layout;
    int m_revision = -1;
};

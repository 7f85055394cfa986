#pragma once

#include <QTimer>
#include <QWidget>

// A sheet of paper flying from one folder to another, over and over: the picture of a file
// being copied.
class CopyAnimation final : public QWidget
{
    Q_OBJECT
public:
    explicit CopyAnimation(QWidget *parent = nullptr);

    static constexpr int kFrames = 32;
    static constexpr int kStopFrame = 26;

    void start();
    // Stops on the given frame.
    void stop(int frame = kStopFrame);
    bool isRunning() const { return m_timer.isActive(); }
    int frame() const { return m_frame; }

    QSize sizeHint() const override { return {272, 76}; }

Q_SIGNALS:
    void started();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QTimer m_timer;
    int m_frame = 0;
};

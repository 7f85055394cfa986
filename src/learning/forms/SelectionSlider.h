#pragma once

#include <QSlider>

// A track bar over 0..255 that shows a selected range beside its thumb, as the learning form's
// windows do: the thumb is the last reading, the range the window learned so far. It only
// shows; a person does not move it.
class SelectionSlider final : public QSlider
{
    Q_OBJECT
public:
    explicit SelectionSlider(Qt::Orientation orientation, QWidget *parent = nullptr);

    // An empty range (start above end) shows nothing.
    void setSelection(int start, int end);
    int selectionStart() const { return m_start; }
    int selectionEnd() const { return m_end; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_start = 0;
    int m_end = -1;
};

#pragma once

#include "ConfigImage.h"

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>

class QWidget;
class TFormData;
class TFormMain;
class UserPrompt;
class VirtualValidator;

// Opens the program's windows one after the other, against the virtual validator, and saves a
// picture of each as DIR/NAME.png: the pictures of the user guide. A window that does not show
// within its time is reported and the tour goes on; failed() then tells the program to end with
// an error. Each window's size with its frame is measured too: one that would not fit a
// 1366x768 laptop screen above a 40 px task bar is named, and fails the tour as well.
class ScreenshotTour final : public QObject
{
    Q_OBJECT
public:
    ScreenshotTour(QString directory, TFormMain *mainWindow, VirtualValidator *device,
                   UserPrompt *prompt);
    ~ScreenshotTour() override;
    Q_DISABLE_COPY_MOVE(ScreenshotTour)

    // The validator the pictures show: the factory's, with the 2.00 coin learned a second time
    // in channel 7, so that the overlap check has a pair to list.
    static void prepareValidator(VirtualValidator &device);

    // Starts over the editor once its opening read has ended; closes the editor at the end.
    void start(TFormData &editor);
    // The room a window has, frame included: a 1366x768 screen less a 40 px task bar.
    static constexpr int kScreenWidth = 1366;
    static constexpr int kScreenHeight = 728;
    // The frame a window manager adds where the test screen has none: a title bar and borders.
    static constexpr int kTitleBar = 30;
    static constexpr int kBorder = 8;

    // Not every picture was made, a window is too big (or the tour never ended).
    bool failed() const { return !m_finished || !m_missing.isEmpty() || !m_oversized.isEmpty(); }
    // The pictures that could not be made.
    QStringList missing() const { return m_missing; }
    // The windows too big for the screen, as "NAME WxH".
    QStringList oversized() const { return m_oversized; }

private:
    struct Step
    {
        Step(QString picture_, QString window_, std::function<void()> open_ = {},
             std::function<bool(QWidget *)> ready_ = {}, std::function<void(QWidget *)> close_ = {},
             bool keepOpen_ = false)
            : picture(std::move(picture_)), window(std::move(window_)), open(std::move(open_)),
              ready(std::move(ready_)), close(std::move(close_)), keepOpen(keepOpen_)
        {}
        QString picture; // the file name without .png
        QString window;  // the object name of the window pictured
        // Makes the window show; it may wait in the window's own event loop. Empty: it shows.
        std::function<void()> open;
        // True once the window shows what the picture is for (empty: as soon as it shows).
        std::function<bool(QWidget *)> ready;
        // Ends the window after its picture (empty: it stays; default for a dialog: reject).
        std::function<void(QWidget *)> close;
        bool keepOpen = false;
        int timeoutMs = 20000;
    };

    void buildSteps();
    void beginStep();
    void poll();
    void picture(QWidget *window);
    void measure(QWidget *window);
    void finish();
    QWidget *shownWindow(const QString &objectName) const;
    void click(const QString &window, const QString &button);
    void typeInEditor(const QString &control, const QString &text);
    void pictureSheet();
    void pictureVerification(const QString &editor);
    // The Batch window runs until it shows `rows` validators, plugging them in turn.
    bool batchRunUntil(QWidget *window, int rows);
    void endBatch(QWidget *window);
    // Runs `then` once the Batch window no longer exists.
    void afterBatchWindow(const std::function<void()> &then);

    QString m_directory;
    TFormMain *m_main;
    VirtualValidator *m_device;
    UserPrompt *m_prompt;
    QPointer<TFormData> m_editor;
    QTemporaryDir m_scratch; // the firmware file the firmware window streams
    QString m_firmwareFile;
    QList<Step> m_steps;
    qsizetype m_index = -1;
    int m_settled = 0;
    bool m_stepOpened = false;
    QTimer m_poll;
    QElapsedTimer m_clock;
    QStringList m_missing;
    QStringList m_oversized;
    QString m_largest; // the window with the most area, "NAME WxH"
    int m_largestArea = 0;
    bool m_finished = false;
    // The validator in place before the batch, put back after it.
    ConfigImage m_batchMemory = ConfigImage::blank();
    int m_batchSwaps = 0;
    QPointer<QWidget> m_batchWindow;
};

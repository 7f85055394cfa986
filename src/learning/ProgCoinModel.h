#pragma once

#include "FormModel.h"
#include "LearningSession.h"
#include "WindowsChartModel.h"

class LearningServices;
struct ConfigImage;
struct LearnedChannel;

// How the coin learning form is opened.
struct ProgCoinSetup
{
    enum class Mode
    {
        Learning,   // teaching a channel new coins
        Modify,     // controlling (modifying) a stored channel
        Calibration // one pass of reference tokens
    };
    Mode mode = Mode::Learning;
    bool analyseShown = false; // the "&Auto adjust" setting shows "Anal&yse"
    bool directWrite = false;  // "&OK" writes the channel at once, as "&Save" does
    bool soundOn = false;      // "Coin.Wav" for every coin
    int startChannel = 0;      // learning: the channel the form starts on (the last one used)
};

// The coin learning form TFormProgCoin without its widgets: the channel, substitute, value,
// price line, enable and profile boxes, the seven windows with their min and max edits, track
// bars and labels, the counters and the buttons, over one learning session, the editor's
// configuration image and the link. The timer's work is tick(); the form calls it every 10 ms.
class ProgCoinModel final : public FormModel
{
public:
    // link may be null (no coins); services may be null (no dialogs, no files).
    ProgCoinModel(LearningSession &session, ConfigImage &image, TMonnayeur *link,
                  UserPrompt *prompt, LearningServices *services, const ProgCoinSetup &setup);

    static constexpr int kTimerMs = 10;

    // The names of the seven windows' labels, in measurement order.
    static QString panelName(int window);
    static QString readingName(int window);
    static QString widthName(int window);
    static QString minDifferenceName(int window);
    static QString maxDifferenceName(int window);
    // The status line: a coin ignored for want of a channel, or the channels the learned
    // windows overlap.
    static QString statusName() { return QStringLiteral("LabelStatus"); }

    void FormActivate();
    // One poll of the validator; a measured coin updates the windows and the labels.
    void tick();
    // The same for a sample already read (the benchmark and the tests).
    void addCoin(const SampleBytes &sample);

    // The calibration lock of one pass of reference tokens, titled for it.
    void lockForCalibration(TokenSet set);
    // The channel control: the label, the title and the chosen channel (0: the nearest one,
    // found from the coins), with its substitute when it has one.
    void setControlChannel(int channel);

    LearningSession &session() { return m_session; }
    // The learn result buffer: the windows in record order, then the substitute (255s until a
    // result was accepted).
    const ChannelBytes &learnResult() const { return m_result; }
    // A channel of the image was replaced.
    bool imageChanged() const { return m_imageChanged; }
    // The channel the last coin matched (1-based), 0 when none.
    int lastMatched() const { return m_lastMatched; }
    // The channel chosen in the form (1-based), 0 when none.
    int channel() const { return spinValue(QStringLiteral("SpinEdit1")); }
    // The channels (1-based) the windows learned so far overlap, with their margins, as they
    // would stand in the chosen channel; empty when none or no channel is chosen.
    const QList<int> &overlapping() const { return m_overlapping; }

    // The windows chart of the configuration with the coins of this learning as ticks; its
    // name is among the changed ones only when it changed (a coin, a stored channel).
    const WindowsChartModel &chart() const { return m_chart; }
    static QString chartName() { return QStringLiteral("Chart"); }

    void retranslate() override;

    // "Coin.Wav" (when the sound setting is on).
    std::function<void()> coinSound;
    // The analysis list of a coin, and closing it again before the next coin.
    std::function<void(const QStringList &lines)> showAnalysis;
    std::function<void()> closeAnalysis;

    // The handlers.
    void BtnOKClick(bool save);
    void BtnCancelClick();
    void BtnLoadClick();
    void BtnExportClick();
    void BtnImportClick();
    void BtnMatchedClick();
    void BtnSelectClick();
    void BtnAnalyseClick();
    // The exit of one of the fourteen min/max edits of a window.
    void boundExit(int window);

protected:
    void typed(const QString &name, const QString &text) override;
    void left(const QString &name) override;
    void clicked(const QString &name) override;
    void picked(const QString &name, int item) override;

private:
    void build();
    bool modify() const { return m_setup.mode == ProgCoinSetup::Mode::Modify; }
    bool calibration() const { return m_setup.mode == ProgCoinSetup::Mode::Calibration; }
    int windowOfEdit(const QString &name) const;
    void resetMarks();
    void showWindow(int window);
    void showAllWindows();
    void showCoinCount();
    void showRelease();
    void clearState();
    void showChart();
    void showStatus();
    void showMatch(const LearningSession::Coin &coin);
    void retranslateWindowTips();
    QString channelName(int channel) const;
    void loadChannel(int channel);
    void syncWindowsFromEdits();
    std::optional<quint8> valueByte(int channel);
    void showValueByte(int channel, quint8 byte);
    LearnedChannel learnedChannel() const;
    void applyLearnedChannel(const LearnedChannel &channel);

    LearningSession &m_session;
    ConfigImage &m_image;
    TMonnayeur *m_link;
    LearningServices *m_services;
    ProgCoinSetup m_setup;
    ChannelBytes m_result{};
    WindowsChartModel m_chart;
    bool m_imageChanged = false;
    // The port went away while coins were awaited: said once, and polling stops.
    bool m_portLost = false;
    int m_lastMatched = 0;
    // Coins came while no channel was chosen: they taught nothing.
    bool m_coinIgnored = false;
    QList<int> m_overlapping;
    // The configuration the chart shows, the learned windows in the chosen channel.
    std::optional<ConfigImage> m_chartImage;
    bool m_boundChanged = false;
    const char *m_channelLabel;
    std::function<QString()> m_title;
};

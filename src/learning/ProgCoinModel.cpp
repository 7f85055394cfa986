#include "ProgCoinModel.h"

#include "Captions.h"
#include "CoinProfile.h"
#include "Encodings.h"
#include "Messages.h"
#include "Transport.h"

#include <QCoreApplication>

namespace {

constexpr const char *kContext = "TFormProgCoin";

// The windows' short names in measurement order, for the names of their panels and labels.
constexpr const char *kWindowSuffix[kWindows] = {"HFUL", "HFUH", "DIM", "LF",
                                                 "HFLL", "HFLH", "AMP"};

struct Caption
{
    const char *name;
    ControlKind kind;
    const char *text;
};

// The form's fixed controls in the order of the form: the channel line, the coin's settings,
// the counters and the buttons.
constexpr Caption kCaptions[] = {
    {"LabelChannel", ControlKind::Label,
     QT_TRANSLATE_NOOP("TFormProgCoin", "Channel to calibra&te :")},
    {"LabelMatched", ControlKind::Label, nullptr},
    {"LabelSubstitution", ControlKind::Label,
     QT_TRANSLATE_NOOP("TFormProgCoin", "Su&bstitution  Channel :")},
    {"LabelValue", ControlKind::Label, QT_TRANSLATE_NOOP("TFormProgCoin", "&Value : ")},
    {"Edit2", ControlKind::Edit, nullptr},
    {"RadioGroup3", ControlKind::Radio, nullptr},
    {"CheckEnable", ControlKind::Check, QT_TRANSLATE_NOOP("TFormProgCoin", "E&nable :")},
    {"LabelProfile", ControlKind::Label, QT_TRANSLATE_NOOP("TFormProgCoin", "Profile :")},
    {"Edit1", ControlKind::Edit, nullptr},
    {"LabelDescription", ControlKind::Label, QT_TRANSLATE_NOOP("TFormProgCoin", "Description :")},
    {"Edit3", ControlKind::Edit, nullptr},
    {"BtnSelect", ControlKind::Button, QT_TRANSLATE_NOOP("TFormProgCoin", "Se&lect...")},
    {"LabelResponse", ControlKind::Label, QT_TRANSLATE_NOOP("TFormProgCoin", "Response level :")},
    {"LabelRelease", ControlKind::Label, nullptr},
    {"LabelCoinsCaption", ControlKind::Label,
     QT_TRANSLATE_NOOP("TFormProgCoin", "Number of coins : ")},
    {"LabelCoins", ControlKind::Label, nullptr},
    {"CheckAuto", ControlKind::Check, QT_TRANSLATE_NOOP("TFormProgCoin", "Tolerance a&uto :")},
    {"LabelStatus", ControlKind::Label, nullptr},
    {"BtnOK", ControlKind::Button, QT_TRANSLATE_NOOP("TFormProgCoin", "&OK")},
    {"BtnSave", ControlKind::Button, QT_TRANSLATE_NOOP("TFormProgCoin", "&Save")},
    {"BtnCancel", ControlKind::Button, QT_TRANSLATE_NOOP("TFormProgCoin", "&Cancel")},
    {"BtnLoad", ControlKind::Button, QT_TRANSLATE_NOOP("TFormProgCoin", "Loa&d")},
    {"BtnExport", ControlKind::Button, QT_TRANSLATE_NOOP("TFormProgCoin", "&Export...")},
    {"BtnImport", ControlKind::Button, QT_TRANSLATE_NOOP("TFormProgCoin", "&Import...")},
    {"BtnMatched", ControlKind::Button, QT_TRANSLATE_NOOP("TFormProgCoin", "&Matched channel...")},
    {"BtnAnalyse", ControlKind::Button, QT_TRANSLATE_NOOP("TFormProgCoin", "Anal&yse")},
};
constexpr const char *kClear = QT_TRANSLATE_NOOP("TFormProgCoin", "&Clear");
constexpr const char *kPriceLines[] = {QT_TRANSLATE_NOOP("TFormProgCoin", "P1"),
                                       QT_TRANSLATE_NOOP("TFormProgCoin", "P2")};

// What each number of a window stands for, the window's caption first.
constexpr const char *kTipMin =
    QT_TRANSLATE_NOOP("TFormProgCoin", "%1 minimum: the lowest reading the channel takes");
constexpr const char *kTipMax =
    QT_TRANSLATE_NOOP("TFormProgCoin", "%1 maximum: the highest reading the channel takes");
constexpr const char *kTipReading =
    QT_TRANSLATE_NOOP("TFormProgCoin", "%1: the reading of the last coin");
constexpr const char *kTipWidth =
    QT_TRANSLATE_NOOP("TFormProgCoin", "%1: the width of the window (maximum - minimum)");
constexpr const char *kTipDiffMin = QT_TRANSLATE_NOOP(
    "TFormProgCoin", "%1: the last reading minus the minimum (below 0: under the window)");
constexpr const char *kTipDiffMax = QT_TRANSLATE_NOOP(
    "TFormProgCoin", "%1: the last reading minus the maximum (above 0: over the window)");
constexpr const char *kTipBar =
    QT_TRANSLATE_NOOP("TFormProgCoin", "%1: the last reading, and the window as a band");
constexpr const char *kTipMatched =
    QT_TRANSLATE_NOOP("TFormProgCoin", "The first stored channel whose windows hold the last coin");
constexpr const char *kTipCoins =
    QT_TRANSLATE_NOOP("TFormProgCoin", "Coins counted for the chosen channel");

const QString kForm = QStringLiteral("TFormProgCoin");

QString number(int n)
{
    return QString::number(n);
}

} // namespace

QString ProgCoinModel::panelName(int window)
{
    return QStringLiteral("Panel") + QLatin1String(kWindowSuffix[window]);
}
QString ProgCoinModel::readingName(int window)
{
    return QStringLiteral("Reading") + QLatin1String(kWindowSuffix[window]);
}
QString ProgCoinModel::widthName(int window)
{
    return QStringLiteral("Width") + QLatin1String(kWindowSuffix[window]);
}
QString ProgCoinModel::minDifferenceName(int window)
{
    return QStringLiteral("DiffMin") + QLatin1String(kWindowSuffix[window]);
}
QString ProgCoinModel::maxDifferenceName(int window)
{
    return QStringLiteral("DiffMax") + QLatin1String(kWindowSuffix[window]);
}

ProgCoinModel::ProgCoinModel(LearningSession &session, ConfigImage &image, TMonnayeur *link,
                             UserPrompt *prompt, LearningServices *services,
                             const ProgCoinSetup &setup)
    : FormModel(kContext, prompt), m_session(session), m_image(image), m_link(link),
      m_services(services), m_setup(setup), m_channelLabel(kCaptions[0].text),
      // Titled as the editor's button that opens it, in every language.
      m_title([] { return captionText(Cap::CoinLearning); })
{
    m_result.fill(255);
    // The margins start from their defaults each time the form is created; analysis is off.
    m_session.tolerances = Tolerances{};
    m_session.analysisMode = false;
    m_session.autoTolerance = true;
    m_session.modifyMode = modify();
    m_session.calibrationMode = calibration();
    build();
    retranslate();
}

void ProgCoinModel::build()
{
    ControlSet &controls = c();
    controls.add(kForm, ControlKind::Label);
    controls.add(QStringLiteral("LabelChannel"), ControlKind::Label);
    addSpin(QStringLiteral("SpinEdit1"), 0, m_image.channelCount());
    addSpin(QStringLiteral("SpinEdit2"), 0, 31);
    for (const Caption &caption : kCaptions) {
        if (qstrcmp(caption.name, "LabelChannel") != 0)
            controls.add(QLatin1String(caption.name), caption.kind);
    }
    controls.setBuddy(QStringLiteral("SpinEdit1"), QStringLiteral("LabelChannel"));
    controls.setBuddy(QStringLiteral("SpinEdit2"), QStringLiteral("LabelSubstitution"));
    controls.setBuddy(QStringLiteral("Edit2"), QStringLiteral("LabelValue"));
    controls.setBuddy(QStringLiteral("Edit1"), QStringLiteral("LabelProfile"));
    controls.setBuddy(QStringLiteral("Edit3"), QStringLiteral("LabelDescription"));
    controls.setVisible(QStringLiteral("LabelMatched"), false);
    controls.setChecked(QStringLiteral("CheckEnable"), true);
    controls.setChecked(QStringLiteral("CheckAuto"), true);
    controls.setText(QStringLiteral("LabelCoins"), number(0));
    controls.setVisible(QStringLiteral("BtnLoad"), !calibration());
    controls.setVisible(QStringLiteral("BtnAnalyse"), m_setup.analyseShown);
    // Learning starts on the channel last used, when this validator has it.
    if (m_setup.mode == ProgCoinSetup::Mode::Learning && m_setup.startChannel >= 1 &&
        m_setup.startChannel <= m_image.channelCount())
        setSpinValue(QStringLiteral("SpinEdit1"), m_setup.startChannel);

    for (int w = 0; w < kWindows; ++w) {
        const WindowPlace &place = kWindowPlaces[w];
        const QString panel = panelName(w);
        controls.add(panel, ControlKind::Group);
        controls.add(QLatin1String(place.minEdit), ControlKind::Edit, panel);
        controls.add(minDifferenceName(w), ControlKind::Label, panel);
        controls.add(QLatin1String(place.maxEdit), ControlKind::Edit, panel);
        controls.add(maxDifferenceName(w), ControlKind::Label, panel);
        addTrackBar(QLatin1String(place.trackBar), panel);
        controls.add(readingName(w), ControlKind::Label, panel);
        controls.add(widthName(w), ControlKind::Label, panel);
    }
    resetMarks();
    showAllWindows();
    showChart();
}

void ProgCoinModel::retranslate()
{
    for (const Caption &caption : kCaptions) {
        if (caption.text)
            this->caption(QLatin1String(caption.name), caption.text);
    }
    caption(QStringLiteral("LabelChannel"), m_channelLabel);
    if (!modify())
        caption(QStringLiteral("BtnLoad"), kClear);
    c().setItems(QStringLiteral("RadioGroup3"), {tr(kPriceLines[0]), tr(kPriceLines[1])});
    for (int w = 0; w < kWindows; ++w)
        c().setText(panelName(w), windowCaption(w));
    c().setText(kForm, m_title());
    retranslateWindowTips();
    // The texts made of messages follow the language too.
    if (m_lastMatched != 0)
        c().setText(QStringLiteral("LabelMatched"),
                    messageText(Msg::LearnMatched, {channelName(m_lastMatched)}));
    showStatus();
    flush();
}

void ProgCoinModel::retranslateWindowTips()
{
    auto tip = [this](const QString &name, const char *source, const QString &window) {
        const QString text = tr(source).arg(window);
        c().setToolTip(name, text);
        c().setAccessibleName(name, text);
    };
    for (int w = 0; w < kWindows; ++w) {
        const WindowPlace &place = kWindowPlaces[w];
        const QString window = windowCaption(w);
        tip(QLatin1String(place.minEdit), kTipMin, window);
        tip(QLatin1String(place.maxEdit), kTipMax, window);
        tip(QLatin1String(place.trackBar), kTipBar, window);
        tip(readingName(w), kTipReading, window);
        tip(widthName(w), kTipWidth, window);
        tip(minDifferenceName(w), kTipDiffMin, window);
        tip(maxDifferenceName(w), kTipDiffMax, window);
    }
    c().setToolTip(QStringLiteral("LabelMatched"), tr(kTipMatched));
    c().setToolTip(QStringLiteral("LabelCoins"), tr(kTipCoins));
}

// ---- display ------------------------------------------------------------------------------

int ProgCoinModel::windowOfEdit(const QString &name) const
{
    for (int w = 0; w < kWindows; ++w) {
        if (name == QLatin1String(kWindowPlaces[w].minEdit) ||
            name == QLatin1String(kWindowPlaces[w].maxEdit))
            return w;
    }
    return -1;
}

void ProgCoinModel::resetMarks()
{
    for (int w = 0; w < kWindows; ++w) {
        setTint(readingName(w), Tint::Blue);
        setTint(minDifferenceName(w), Tint::Navy);
        setTint(maxDifferenceName(w), Tint::Navy);
        setTint(QLatin1String(kWindowPlaces[w].minEdit), Tint::Normal);
        setTint(QLatin1String(kWindowPlaces[w].maxEdit), Tint::Normal);
    }
}

void ProgCoinModel::showWindow(int w)
{
    const Window &window = m_session.windows()[std::size_t(w)];
    const WindowPlace &place = kWindowPlaces[w];
    c().setText(QLatin1String(place.minEdit), number(window.min));
    c().setText(QLatin1String(place.maxEdit), number(window.max));
    TrackBarState bar = trackBar(QLatin1String(place.trackBar));
    bar.selectionStart = window.min;
    bar.selectionEnd = window.max;
    setTrackBar(QLatin1String(place.trackBar), bar);
}

void ProgCoinModel::showAllWindows()
{
    for (int w = 0; w < kWindows; ++w)
        showWindow(w);
}

void ProgCoinModel::showCoinCount()
{
    c().setText(QStringLiteral("LabelCoins"), number(m_session.coinCount()));
}

void ProgCoinModel::showRelease()
{
    c().setText(QStringLiteral("LabelRelease"),
                QString::fromLatin1(familyText(m_image.familyByte())));
    // A validator before version 16 measures no amplitude.
    c().setVisible(panelName(kWindows - 1), m_image.familyByte() >= 16);
}

void ProgCoinModel::clearState()
{
    m_session.reset();
    m_coinIgnored = false;
    m_lastMatched = 0;
    c().setVisible(QStringLiteral("LabelMatched"), false);
    resetMarks();
    for (int w = 0; w < kWindows; ++w) {
        c().setText(readingName(w), {});
        c().setText(widthName(w), {});
        c().setText(minDifferenceName(w), {});
        c().setText(maxDifferenceName(w), {});
    }
    showAllWindows();
    // The track bars' thumbs go back to the bottom, where they start.
    for (int w = 0; w < kWindows; ++w) {
        const QString bar = QLatin1String(kWindowPlaces[w].trackBar);
        TrackBarState state = trackBar(bar);
        state.position = 0;
        setTrackBar(bar, state);
    }
    showCoinCount();
    showChart();
}

void ProgCoinModel::showChart()
{
    // The windows learned so far stand in the chosen channel as OK would store them (with
    // their margins), so that an overlap shows while the coins come, not after OK.
    m_overlapping.clear();
    const int channel = spinValue(QStringLiteral("SpinEdit1"));
    ConfigImage shown = m_image;
    const bool preview = !calibration() && channel >= 1 && channel <= m_image.channelCount() &&
                         m_session.windowsSet();
    if (preview) {
        const ChannelBytes record =
            m_session.result(quint8(spinValue(QStringLiteral("SpinEdit2"))));
        std::copy(record.begin(), record.end(), shown.channels[std::size_t(channel - 1)].begin());
    }
    // A coin inside the windows changes only the ticks: the bars stay drawn.
    if (!m_chartImage || *m_chartImage != shown) {
        m_chart.setImage(shown);
        m_chartImage = shown;
    }
    if (preview) {
        for (const ChannelPair &pair : m_chart.overlaps()) {
            if (pair.first == channel)
                m_overlapping.append(pair.second);
            else if (pair.second == channel)
                m_overlapping.append(pair.first);
        }
    }
    m_chart.setSamples(m_session.samples());
    markChanged(chartName());
    showStatus();
}

void ProgCoinModel::showStatus()
{
    QString text;
    Tint tint = Tint::Normal;
    if (m_coinIgnored) {
        text = messageText(Msg::CoinIgnored);
        tint = Tint::Maroon;
    } else if (!m_overlapping.isEmpty()) {
        QStringList channels;
        for (int channel : std::as_const(m_overlapping))
            channels.append(channelName(channel));
        text = messageText(Msg::LearnOverlap, {channels.join(QStringLiteral(", "))});
        tint = Tint::Red;
    }
    c().setText(statusName(), text);
    // The line may be cut at the form's edge: the tip holds it whole.
    c().setToolTip(statusName(), text);
    setTint(statusName(), tint);
}

void ProgCoinModel::showMatch(const LearningSession::Coin &coin)
{
    if (!m_session.analysisMode) {
        m_lastMatched = coin.matchedChannel;
        c().setText(QStringLiteral("LabelMatched"),
                    m_lastMatched != 0
                        ? messageText(Msg::LearnMatched, {channelName(m_lastMatched)})
                        : QString());
        c().setVisible(QStringLiteral("LabelMatched"), m_lastMatched != 0);
    } else if (!coin.analysis.isEmpty() && showAnalysis) {
        flush();
        showAnalysis(coin.analysis);
    }
}

void ProgCoinModel::FormActivate()
{
    act([&] {
        if (modify())
            loadChannel(spinValue(QStringLiteral("SpinEdit1")));
        else
            clearState();
    });
}

// ---- coins --------------------------------------------------------------------------------

void ProgCoinModel::tick()
{
    if (acting() || closed() || !m_link || m_link->betweenExchangesRunning() || m_portLost)
        return;
    const std::optional<SampleBytes> sample = m_session.poll(*m_link, m_image.longForm());
    if (sample) {
        addCoin(*sample);
        return;
    }
    // No coin can come through a port that is gone: say so once instead of polling on.
    if (const Transport *port = m_link->transport(); port && !port->isOpen()) {
        m_portLost = true;
        tell(m_link->LastLinkError(), UserPrompt::Kind::Error);
    }
}

void ProgCoinModel::syncWindowsFromEdits()
{
    // Without learning from coins the windows are the numbers typed in the edits.
    for (int w = 0; w < kWindows; ++w) {
        bool minOk = false, maxOk = false;
        const int min = c().state(QLatin1String(kWindowPlaces[w].minEdit)).text.toInt(&minOk);
        const int max = c().state(QLatin1String(kWindowPlaces[w].maxEdit)).text.toInt(&maxOk);
        Window &window = m_session.windows()[std::size_t(w)];
        if (minOk)
            window.min = quint8(min & 0xFF);
        if (maxOk)
            window.max = quint8(max & 0xFF);
    }
}

void ProgCoinModel::addCoin(const SampleBytes &sample)
{
    act([&] {
        if (closeAnalysis)
            closeAnalysis();
        if (m_setup.soundOn && coinSound)
            coinSound();
        // Learning, a coin that comes before a channel is chosen teaches nothing: it is not
        // counted and no window moves; the form says so and still tells what the coin matches.
        if (!modify() && !calibration() && spinValue(QStringLiteral("SpinEdit1")) == 0) {
            m_coinIgnored = true;
            showStatus();
            showMatch(m_session.describeSample(sample, m_image));
            return;
        }
        m_coinIgnored = false;
        if (!m_session.learningFromCoins)
            syncWindowsFromEdits();
        const LearningSession::Coin coin = m_session.addSample(sample, m_image);
        showCoinCount();
        resetMarks();

        const bool learning = m_session.learningFromCoins;
        for (int w = 0; w < kWindows; ++w) {
            const WindowPlace &place = kWindowPlaces[w];
            const WindowUpdate &u = coin.updates[std::size_t(w)];
            const Window &window = m_session.windows()[std::size_t(w)];
            const QString minEdit = QLatin1String(place.minEdit);
            const QString maxEdit = QLatin1String(place.maxEdit);
            TrackBarState bar = trackBar(QLatin1String(place.trackBar));
            bar.position = u.measure;

            c().setText(minDifferenceName(w), differenceText(u.belowMin));
            c().setVisible(minDifferenceName(w), !u.minDifferenceHidden);
            if (u.minMarked) {
                setTint(minEdit, Tint::Red);
                setTint(minDifferenceName(w), Tint::Red);
                setTint(readingName(w), Tint::Red);
            }
            c().setText(maxDifferenceName(w), differenceText(u.aboveMax));
            c().setVisible(maxDifferenceName(w), !u.maxDifferenceHidden);
            if (u.maxMarked) {
                setTint(maxEdit, Tint::Red);
                setTint(maxDifferenceName(w), Tint::Red);
                setTint(readingName(w), Tint::Red);
            }
            c().setText(readingName(w), number(u.measure));
            if (learning) {
                c().setText(minEdit, number(window.min));
                c().setText(maxEdit, number(window.max));
                bar.selectionStart = window.min;
                bar.selectionEnd = window.max;
                c().setText(widthName(w), number(window.max - window.min));
            }
            setTrackBar(QLatin1String(place.trackBar), bar);
        }
        showChart();
        showMatch(coin);
    });
}

// ---- typing and leaving -------------------------------------------------------------------

void ProgCoinModel::typed(const QString &name, const QString &text)
{
    FormModel::typed(name, text);
    if (windowOfEdit(name) >= 0) {
        m_boundChanged = true;
    } else if (name == QLatin1String("Edit2")) {
        // An amount typed by hand is no price line.
        c().setItemIndex(QStringLiteral("RadioGroup3"), -1);
    } else if (name == QLatin1String("SpinEdit1")) {
        // Controlling channels, the channel picked shows its stored windows.
        if (modify())
            loadChannel(spinValue(name));
        if (spinValue(name) != 0)
            m_coinIgnored = false;
        showChart();
    }
}

void ProgCoinModel::left(const QString &name)
{
    const int w = windowOfEdit(name);
    if (w >= 0)
        boundExit(w);
}

void ProgCoinModel::boundExit(int w)
{
    if (!m_boundChanged)
        return;
    m_boundChanged = false;
    const WindowPlace &place = kWindowPlaces[w];
    const QString minEdit = QLatin1String(place.minEdit);
    const QString maxEdit = QLatin1String(place.maxEdit);
    // An empty minimum stands for 255; an empty maximum takes the minimum.
    const QString minText = c().state(minEdit).text.trimmed();
    const QString maxText = c().state(maxEdit).text.trimmed();
    bool minOk = true, maxOk = true;
    const int min = minText.isEmpty() ? 255 : minText.toInt(&minOk);
    const std::optional<int> max =
        maxText.isEmpty() ? std::nullopt : std::optional<int>(maxText.toInt(&maxOk));
    if (!minOk || !maxOk) {
        tell(messageText(Msg::ValueBetween0And255), UserPrompt::Kind::Warning);
        showWindow(w);
        return;
    }
    const bool corrected =
        m_session.setBounds(w, min & 0xFF, max ? std::optional<int>(*max & 0xFF) : std::nullopt);
    const Window &window = m_session.windows()[std::size_t(w)];
    c().setText(minEdit, number(window.min));
    if (corrected)
        tell(messageText(Msg::ValueOverMaximum), UserPrompt::Kind::Warning);
    c().setText(maxEdit, number(window.max));
    setTrackBar(QLatin1String(place.trackBar), {window.min, window.min, window.max});
    c().setText(readingName(w), number(window.min));
    c().setText(widthName(w), number(window.max - window.min));
    showChart();
}

void ProgCoinModel::clicked(const QString &name)
{
    if (c().at(name).kind == ControlKind::Check) {
        FormModel::clicked(name);
        if (name == QLatin1String("CheckAuto"))
            m_session.autoTolerance = c().state(name).checked;
        return;
    }
    if (name == QLatin1String("BtnOK"))
        BtnOKClick(false);
    else if (name == QLatin1String("BtnSave"))
        BtnOKClick(true);
    else if (name == QLatin1String("BtnCancel"))
        BtnCancelClick();
    else if (name == QLatin1String("BtnLoad"))
        BtnLoadClick();
    else if (name == QLatin1String("BtnExport"))
        BtnExportClick();
    else if (name == QLatin1String("BtnImport"))
        BtnImportClick();
    else if (name == QLatin1String("BtnMatched"))
        BtnMatchedClick();
    else if (name == QLatin1String("BtnSelect"))
        BtnSelectClick();
    else if (name == QLatin1String("BtnAnalyse"))
        BtnAnalyseClick();
}

void ProgCoinModel::picked(const QString &name, int item)
{
    FormModel::picked(name, item);
    if (name == QLatin1String("RadioGroup3"))
        c().setText(QStringLiteral("Edit2"),
                    FormatChannelValue(0, 6, 1, item == 0 ? kValuePrice1 : kValuePrice2));
}

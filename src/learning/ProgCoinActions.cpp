// The buttons of the coin learning form: accepting the learned channel, the matched channel,
// clearing or loading, the files of a learned channel, the profiles, the analysis, and the
// settings of the calibration and the channel control.
#include "Captions.h"
#include "CoinProfile.h"
#include "EditorState.h"
#include "Encodings.h"
#include "LearnedChannelFile.h"
#include "Messages.h"
#include "ProgCoinModel.h"

#include <QCoreApplication>

namespace {

constexpr const char *kContext = "TFormProgCoin";
constexpr const char *kControlTitle = QT_TRANSLATE_NOOP("TFormProgCoin", "Channels control");
constexpr const char *kControlLabel = QT_TRANSLATE_NOOP("TFormProgCoin", "&Channel to control :");

// The credit base a channel (1-based, 0 for none) is valued in: base 1 up to 30, base 2 above.
DecimalWord channelBase(const ConfigImage &image, int channel)
{
    const int at = channel <= 30 ? Val::Base1 : Val::Base2;
    return FormatDecimalWord({image.values[std::size_t(at)], image.values[std::size_t(at + 1)]});
}

} // namespace

std::optional<quint8> ProgCoinModel::valueByte(int channel)
{
    switch (c().state(QStringLiteral("RadioGroup3")).itemIndex) {
    case 0:
        return kValuePrice1;
    case 1:
        return kValuePrice2;
    default: {
        const DecimalWord base = channelBase(m_image, channel);
        const QString text = c().state(QStringLiteral("Edit2")).text;
        const ChannelAmount amount = CheckChannelAmount(text, base.magnitude, base.decimals);
        if (amount.fit == AmountFit::Negative) {
            tell(messageText(Msg::AmountNegative, {text.trimmed()}), UserPrompt::Kind::Warning);
            return std::nullopt;
        }
        if (amount.fit == AmountFit::OverMaximum) {
            // Held at what the base can show, and shown so.
            tell(messageText(Msg::ValueOverMaximum), UserPrompt::Kind::Warning);
            showValueByte(channel, amount.byte);
        }
        if (amount.fit == AmountFit::NotAnAmount) {
            tell(messageText(Msg::ValueBetween0And255), UserPrompt::Kind::Warning);
            return std::nullopt;
        }
        return amount.byte;
    }
    }
}

QString ProgCoinModel::channelName(int channel) const
{
    const QString name = captionText(Cap::ChannelNumber, {QString::number(channel)}).trimmed();
    const quint8 byte = m_image.valueByte(channel - 1);
    if (byte == kNotSet)
        return name;
    const DecimalWord base = channelBase(m_image, channel);
    return QStringLiteral("%1 (%2)").arg(
        name, FormatChannelValue(base.decimals, 6, base.magnitude, byte).trimmed());
}

void ProgCoinModel::showValueByte(int channel, quint8 byte)
{
    const DecimalWord base = channelBase(m_image, channel);
    c().setText(QStringLiteral("Edit2"),
                FormatChannelValue(base.decimals, 6, base.magnitude, byte).trimmed());
    c().setToolTip(QStringLiteral("Edit2"), EditorState::amountTip(base, true));
    c().setItemIndex(QStringLiteral("RadioGroup3"),
                     byte == kValuePrice1 ? 0 : (byte == kValuePrice2 ? 1 : -1));
}

// ---- accepting ----------------------------------------------------------------------------

void ProgCoinModel::BtnOKClick(bool save)
{
    if (m_session.tooFewSamples() &&
        ask(messageText(Msg::NumberOfCoinsLess, {QString::number(m_session.minimumSamples())})) !=
            UserPrompt::Answer::Yes)
        return;
    const int channel = spinValue(QStringLiteral("SpinEdit1"));
    if (channel == 0) {
        tell(messageText(Msg::SelectChannelNumber), UserPrompt::Kind::Warning);
        requestFocus(QStringLiteral("SpinEdit1"));
        return;
    }
    // An amount that is not one, or negative, was said and keeps the form open there.
    const std::optional<quint8> value = valueByte(channel);
    if (!value) {
        requestFocus(QStringLiteral("Edit2"));
        return;
    }
    // The margins, in learning only; unticked "Tolerance a&uto :" shows them first.
    m_session.autoTolerance = c().state(QStringLiteral("CheckAuto")).checked;
    if (!modify() && !calibration() && !m_session.autoTolerance &&
        !(m_services && m_services->editTolerances(m_session.tolerances)))
        return;
    m_result = m_session.result(quint8(spinValue(QStringLiteral("SpinEdit2"))));

    // A pass of reference tokens hands its windows to the calibration, which writes them.
    if (calibration()) {
        close(true);
        return;
    }
    const int k = channel - 1;
    storeLearnedChannel(m_image, k, m_result, *value,
                        c().state(QStringLiteral("CheckEnable")).checked);
    m_imageChanged = true;
    showChart();
    if ((save || m_setup.directWrite) && m_link) {
        flush();
        LearningSession::saveToValidator(*m_link, m_image, k, m_prompt);
    }

    if (ask(messageText(modify() ? Msg::ModifyAnotherChannel : Msg::CalibrateAnotherChannel)) !=
        UserPrompt::Answer::Yes) {
        close(true);
        return;
    }
    if (modify())
        requestFocus(QStringLiteral("SpinEdit1")); // the next channel, then "Loa&d"
    else
        clearState();
}

void ProgCoinModel::BtnCancelClick()
{
    close(false);
}

// ---- matched channel, clear and load --------------------------------------------------------

void ProgCoinModel::BtnMatchedClick()
{
    if (m_lastMatched == 0) {
        tell(messageText(Msg::NoMatchedData));
        return;
    }
    if (ask(messageText(Msg::MatchedChannelLoad, {QString::number(m_lastMatched)})) !=
        UserPrompt::Answer::Yes)
        return;
    setSpinValue(QStringLiteral("SpinEdit1"), m_lastMatched);
    m_coinIgnored = false;
    // Controlling a channel, its stored windows come with it.
    if (modify())
        loadChannel(m_lastMatched);
    showChart();
}

void ProgCoinModel::BtnLoadClick()
{
    if (modify())
        loadChannel(spinValue(QStringLiteral("SpinEdit1")));
    else
        clearState();
}

void ProgCoinModel::loadChannel(int channel)
{
    if (channel < 1 || channel > m_image.channelCount())
        return;
    const ChannelRecord &record = m_image.channels[std::size_t(channel - 1)];
    for (int w = 0; w < kWindows; ++w) {
        m_session.windows()[std::size_t(w)] =
            Window{record[std::size_t(kWindowPlaces[w].recordMin)],
                   record[std::size_t(kWindowPlaces[w].recordMax)]};
        const Window &window = m_session.windows()[std::size_t(w)];
        c().setText(widthName(w), QString::number(window.max - window.min));
    }
    resetMarks();
    showAllWindows();
    if (record[Rec::Substitute] < 32)
        setSpinValue(QStringLiteral("SpinEdit2"), record[Rec::Substitute]);
    showValueByte(channel, m_image.valueByte(channel - 1));
    c().setChecked(QStringLiteral("CheckEnable"), m_image.enableBit(channel - 1));
    showChart();
}

// ---- files, profiles and the analysis -----------------------------------------------------

LearnedChannel ProgCoinModel::learnedChannel() const
{
    LearnedChannel channel;
    channel.windows = m_session.windows();
    channel.substitute = spinValue(QStringLiteral("SpinEdit2"));
    channel.value = control(QStringLiteral("Edit2")).text;
    channel.enabled = control(QStringLiteral("CheckEnable")).checked;
    channel.tolerances = m_session.tolerances;
    return channel;
}

void ProgCoinModel::applyLearnedChannel(const LearnedChannel &channel)
{
    m_session.windows() = channel.windows;
    for (int w = 0; w < kWindows; ++w) {
        const Window &window = channel.windows[std::size_t(w)];
        c().setText(widthName(w), QString::number(window.max - window.min));
    }
    resetMarks();
    showAllWindows();
    setSpinValue(QStringLiteral("SpinEdit2"), channel.substitute);
    c().setText(QStringLiteral("Edit2"), channel.value);
    QString squeezed = channel.value;
    squeezed.remove(u' ');
    c().setItemIndex(QStringLiteral("RadioGroup3"),
                     squeezed.compare(QLatin1String("-P1-"), Qt::CaseInsensitive) == 0   ? 0
                     : squeezed.compare(QLatin1String("-P2-"), Qt::CaseInsensitive) == 0 ? 1
                                                                                         : -1);
    c().setChecked(QStringLiteral("CheckEnable"), channel.enabled);
    m_session.tolerances = channel.tolerances;
    // Windows from a file are accepted without counting coins.
    m_session.imported = true;
    showChart();
}

void ProgCoinModel::BtnExportClick()
{
    if (!m_services)
        return;
    const QString fileName = m_services->exportFileName();
    if (fileName.isEmpty())
        return;
    QString error;
    if (!LearnedChannelFile::save(fileName, learnedChannel(), &error))
        tell(messageText(Msg::RecordsCannotWrite, {fileName, error}), UserPrompt::Kind::Error);
}

void ProgCoinModel::BtnImportClick()
{
    if (!m_services)
        return;
    const QString fileName = m_services->importFileName();
    if (fileName.isEmpty())
        return;
    const std::optional<LearnedChannel> channel = LearnedChannelFile::load(fileName);
    if (!channel) {
        tell(messageText(Msg::FileNotReadable, {fileName}), UserPrompt::Kind::Error);
        return;
    }
    applyLearnedChannel(*channel);
}

void ProgCoinModel::BtnSelectClick()
{
    if (!m_services)
        return;
    flush();
    const std::optional<CoinProfile> profile =
        m_services->selectProfile(spinValue(QStringLiteral("SpinEdit1")));
    if (!profile)
        return;
    c().setText(QStringLiteral("Edit1"), profile->name);
    c().setText(QStringLiteral("Edit3"), profile->description);
    c().setText(QStringLiteral("Edit2"), profile->value);
    c().setItemIndex(QStringLiteral("RadioGroup3"), profile->priceLine);
    if (profile->priceLine == 0 || profile->priceLine == 1)
        c().setText(
            QStringLiteral("Edit2"),
            FormatChannelValue(0, 6, 1, profile->priceLine == 0 ? kValuePrice1 : kValuePrice2));
    setSpinValue(QStringLiteral("SpinEdit2"), profile->substitute);
    m_session.tolerances = profile->tolerances;
    showChart(); // the margins of the profile widen the windows
}

void ProgCoinModel::BtnAnalyseClick()
{
    flush();
    if (!m_services || !m_services->editTolerances(m_session.tolerances))
        return;
    m_session.analysisMode = true;
    setTint(QStringLiteral("BtnAnalyse"), Tint::Maroon);
    showChart();
}

// ---- the calibration and the control --------------------------------------------------------

void ProgCoinModel::lockForCalibration(TokenSet set)
{
    ControlSet &controls = c();
    for (const char *name : {"LabelProfile", "Edit1", "LabelDescription", "Edit3", "BtnSelect",
                             "LabelValue", "Edit2", "RadioGroup3", "BtnLoad"})
        controls.setVisible(QLatin1String(name), false);
    setSpinValue(QStringLiteral("SpinEdit1"), m_image.referenceChannel() + 1);
    setSpinValue(QStringLiteral("SpinEdit2"), 0);
    controls.setEnabled(QStringLiteral("SpinEdit1"), false);
    controls.setEnabled(QStringLiteral("SpinEdit2"), false);
    controls.setChecked(QStringLiteral("CheckAuto"), true);
    controls.setEnabled(QStringLiteral("CheckAuto"), false);
    controls.setChecked(QStringLiteral("CheckEnable"), false);
    controls.setEnabled(QStringLiteral("CheckEnable"), false);
    m_session.autoTolerance = true;
    showRelease();
    const Msg title = set == TokenSet::Golden ? Msg::InsertGoldenTokens : Msg::InsertSilverTokens;
    m_title = [title] { return messageText(title); };
    controls.setText(QStringLiteral("TFormProgCoin"), m_title());
    flush();
}

void ProgCoinModel::setControlChannel(int channel)
{
    m_channelLabel = kControlLabel;
    caption(QStringLiteral("LabelChannel"), m_channelLabel);
    m_title = [] { return QCoreApplication::translate(kContext, kControlTitle); };
    c().setText(QStringLiteral("TFormProgCoin"), m_title());
    setSpinValue(QStringLiteral("SpinEdit1"), channel);
    if (channel >= 1 && channel <= m_image.channelCount()) {
        const quint8 substitute = m_image.channels[std::size_t(channel - 1)][Rec::Substitute];
        if (substitute < 33)
            setSpinValue(QStringLiteral("SpinEdit2"), substitute);
    }
    showRelease();
    flush();
}

#include "LearningSession.h"

#include "Captions.h"
#include "Commands.h"
#include "Encodings.h"
#include "HistoryRecorder.h"
#include "Messages.h"
#include "UserPrompt.h"
#include "WriteReport.h"

#include <algorithm>

void LearningSession::reset()
{
    m_windows.fill(Window{});
    m_measures.fill(255);
    m_coinCount = 0;
    m_samples.clear();
    imported = false;
}

std::optional<SampleBytes> LearningSession::poll(TMonnayeur &link, bool longForm) const
{
    SampleBytes sample;
    if (!link.ReadSample(modifyMode ? 0 : 1, longForm, sample))
        return std::nullopt;
    return sample;
}

LearningSession::Coin LearningSession::describeSample(const SampleBytes &sample,
                                                      const ConfigImage &image) const
{
    Coin coin;
    coin.sample = sample;
    if (analysisMode)
        coin.analysis = analysisLines(image, sample, tolerances);
    else
        coin.matchedChannel = matchChannel(image, sample);
    return coin;
}

LearningSession::Coin LearningSession::addSample(const SampleBytes &sample,
                                                 const ConfigImage &image)
{
    Coin coin = describeSample(sample, image);
    coin.first = ++m_coinCount == 1;
    m_measures = sample;
    m_samples.append(sample);
    for (int w = 0; w < kWindows; ++w)
        coin.updates[std::size_t(w)] =
            updateWindow(m_windows[std::size_t(w)], sample[std::size_t(w)], learningFromCoins);
    return coin;
}

bool LearningSession::windowsSet() const
{
    return std::all_of(m_windows.begin(), m_windows.end(),
                       [](const Window &w) { return w.min <= w.max; });
}

bool LearningSession::setBounds(int window, int min, std::optional<int> max)
{
    Window &w = m_windows[std::size_t(window)];
    const int top = max.value_or(min);
    const bool corrected = min > top;
    w.min = quint8(corrected ? top : min);
    w.max = quint8(top);
    return corrected;
}

bool LearningSession::tooFewSamples() const
{
    return learningFromCoins && !modifyMode && !imported && m_coinCount < m_minimumSamples;
}

ChannelBytes LearningSession::result(quint8 substitute) const
{
    ChannelBytes record = learnedRecord(m_windows, substitute);
    if (!modifyMode && !calibrationMode)
        applyTolerances(record, tolerances);
    return record;
}

namespace {

// What channel k of the validator holds after a save that was not accepted whole: read back
// while the link answers, else reasoned from the steps (a refused or unsent step left the
// former bytes; one sent without an answer may or may not have been stored).
QString channelHolds(TMonnayeur &link, const ConfigImage &image, int k, const ChannelBytes &sent,
                     const WriteSteps &steps)
{
    const int at = k < 30 ? Val::Base1 : Val::Base2;
    const DecimalWord base =
        FormatDecimalWord({image.values[std::size_t(at)], image.values[std::size_t(at + 1)]});
    auto valueText = [&](quint8 byte) {
        if (byte == kNotSet)
            return captionText(Cap::HoldsNoValue);
        return captionText(Cap::HoldsValue,
                           {FormatChannelValue(base.decimals, 0, base.magnitude, byte).trimmed()});
    };
    auto enableText = [](bool on) {
        return captionText(on ? Cap::DiffEnabled : Cap::DiffDisabled);
    };
    // The record as the validator keeps it: a short one has no amplitude window.
    const ChannelBytes kept =
        image.longForm() ? sent : TMonnayeur::widenRecord(TMonnayeur::narrowRecord(sent).data());

    QStringList parts;
    ChannelBytes record;
    ValueTableBytes values;
    EnableBitmap enable{};
    if (link.linkGood() && link.ReadChannel(quint8(k), image.longForm(), record) &&
        link.ReadValueTable(values) && link.ReadBlock(Cmd::ReadEnable, enable.data())) {
        parts << captionText(record == kept ? Cap::HoldsLearnedWindows : Cap::HoldsFormerWindows)
              << valueText(values[std::size_t(Val::Channel0 + k)])
              << enableText(enable[std::size_t(7 - k / 8)] & (1 << (k % 8)));
        return parts.join(QStringLiteral(", "));
    }
    auto reasoned = [](StepEnd end, Cap stored, Cap former, Cap unknown) {
        if (end == StepEnd::Accepted)
            return captionText(stored);
        return captionText(end == StepEnd::Unanswered ? unknown : former);
    };
    const StepEnd windows = steps.channels[std::size_t(k)];
    parts << reasoned(windows, Cap::HoldsLearnedWindows, Cap::HoldsFormerWindows,
                      Cap::HoldsUnknownWindows);
    // The value byte travels in one of the value table's slices of 15 bytes.
    const int slice = (Val::Channel0 + k) / kValueSlice;
    const StepEnd value = steps.valueParts > slice ? StepEnd::Accepted : steps.values;
    parts << (value == StepEnd::Accepted ? valueText(image.valueByte(k))
                                         : reasoned(value, Cap::HoldsNoValue, Cap::HoldsFormerValue,
                                                    Cap::HoldsUnknownValue));
    parts << (steps.enable == StepEnd::Accepted
                  ? enableText(image.enableBit(k))
                  : reasoned(steps.enable, Cap::DiffEnabled, Cap::HoldsFormerEnable,
                             Cap::HoldsUnknownEnable));
    return parts.join(QStringLiteral(", "));
}

} // namespace

bool LearningSession::saveToValidator(TMonnayeur &link, const ConfigImage &image, int k,
                                      UserPrompt *prompt)
{
    ChannelBytes record;
    std::copy_n(image.channels[std::size_t(k)].begin(), record.size(), record.begin());
    ValueTableBytes values;
    std::copy(image.values.begin(), image.values.end(), values.begin());
    link.setLinkGood(true);
    // The channel, its value and the enable mask, each only when the one before was accepted.
    WriteSteps steps;
    bool saved = link.WriteChannel(quint8(k), record, image.longForm());
    steps.channels[std::size_t(k)] = stepEnd(link, saved);
    if (saved) {
        saved = link.WriteValueTable(values, &steps.valueParts);
        steps.values = stepEnd(link, saved);
    }
    if (saved) {
        saved = link.WriteBlock(Cmd::WriteEnable, image.enable.data());
        steps.enable = stepEnd(link, saved);
    }
    // The validator's history: a channel that went out, whole or in part.
    if (steps.channels[std::size_t(k)] != StepEnd::Failed)
        keepChannelWritten(QStringLiteral("learn"), image, k, saved, prompt);
    if (!prompt)
        return saved;
    if (saved) {
        prompt->tell(messageText(Msg::ValuesDirectlySaved), UserPrompt::Kind::Information);
        return true;
    }
    // Nothing already written is taken back: say what failed and what the channel now holds.
    const QString channel = QString::number(k + 1);
    prompt->tell(messageText(Msg::LearnNotSaved, {channel}), UserPrompt::Kind::Error);
    const QString list = QStringLiteral(", ");
    if (const QStringList refused = stepsRefused(steps); !refused.isEmpty())
        prompt->tell(messageText(Msg::WriteRefused, {refused.join(list)}),
                     UserPrompt::Kind::Warning);
    if (const QStringList unanswered = stepsUnanswered(steps); !unanswered.isEmpty())
        prompt->tell(messageText(Msg::WriteUnanswered, {unanswered.join(list)}),
                     UserPrompt::Kind::Warning);
    prompt->tell(
        messageText(Msg::LearnChannelHolds, {channel, channelHolds(link, image, k, record, steps)}),
        UserPrompt::Kind::Warning);
    return false;
}

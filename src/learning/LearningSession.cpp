#include "LearningSession.h"

#include "Commands.h"
#include "Messages.h"
#include "UserPrompt.h"

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

LearningSession::Coin LearningSession::addSample(const SampleBytes &sample,
                                                 const ConfigImage &image)
{
    Coin coin;
    coin.sample = sample;
    coin.first = ++m_coinCount == 1;
    m_measures = sample;
    m_samples.append(sample);
    for (int w = 0; w < kWindows; ++w)
        coin.updates[std::size_t(w)] =
            updateWindow(m_windows[std::size_t(w)], sample[std::size_t(w)], learningFromCoins);
    if (analysisMode)
        coin.analysis = analysisLines(image, sample, tolerances);
    else
        coin.matchedChannel = matchChannel(image, sample);
    return coin;
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

bool LearningSession::saveToValidator(TMonnayeur &link, const ConfigImage &image, int k,
                                      UserPrompt *prompt)
{
    ChannelBytes record;
    std::copy_n(image.channels[std::size_t(k)].begin(), record.size(), record.begin());
    ValueTableBytes values;
    std::copy(image.values.begin(), image.values.end(), values.begin());
    link.setLinkGood(true);
    const bool saved = link.WriteChannel(quint8(k), record, image.longForm()) &&
                       link.WriteValueTable(values) &&
                       link.WriteBlock(Cmd::WriteEnable, image.enable.data());
    if (saved && prompt)
        prompt->tell(messageText(Msg::ValuesDirectlySaved), UserPrompt::Kind::Information);
    return saved;
}

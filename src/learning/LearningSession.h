#pragma once

#include "Learning.h"

#include <QList>
#include <QString>
#include <optional>

class TMonnayeur;
class UserPrompt;

// The learning state of one coin learning form: the windows the sample coins have reached,
// the last measurement, the count, the mode flags and the margins. The form, the command line
// and the tests drive it alike.
class LearningSession final
{
public:
    static constexpr int kCoinSamples = 10;
    static constexpr int kTokenSamples = 5;

    explicit LearningSession(int minimumSamples = kCoinSamples) : m_minimumSamples(minimumSamples)
    {
        reset();
    }

    // Every window back to (255, 0), no measurement, no coin, no sample kept.
    void reset();

    // One poll of the validator: a sample when a coin was measured (the parameter byte is 1
    // while learning, 0 when a channel is modified). A fault counts as no coin.
    std::optional<SampleBytes> poll(TMonnayeur &link, bool longForm) const;

    // One sample coin: counts it, updates the seven windows and finds the channel that holds
    // it (or, in analysis mode, the list of channels that would accept it with the margins).
    struct Coin
    {
        SampleBytes sample{};
        std::array<WindowUpdate, kWindows> updates{};
        int matchedChannel = 0; // 1-based, 0: none
        QStringList analysis;   // analysis mode only
        bool first = false;
    };
    Coin addSample(const SampleBytes &sample, const ConfigImage &image);
    // The same coin looked at without learning from it: the channel that holds it (or the
    // analysis list); nothing is counted and no window moves.
    Coin describeSample(const SampleBytes &sample, const ConfigImage &image) const;
    // Every window holds a range (min <= max): the windows can stand as a channel's.
    bool windowsSet() const;

    // A bound typed by hand: an empty maximum takes the minimum, a minimum above its maximum
    // is brought down to it. True when the minimum was corrected.
    bool setBounds(int window, int min, std::optional<int> max);

    // The accept asks "Number of coins is less than %d. Proceed?" first.
    bool tooFewSamples() const;
    // The learned record: windows in record order, the substitute, and the margins unless a
    // channel is modified or a reference calibrated.
    ChannelBytes result(quint8 substitute) const;

    // Writes channel k, the value table and the enable mask to the validator at once; says
    // "Values directly saved into validator" when all three were accepted.
    static bool saveToValidator(TMonnayeur &link, const ConfigImage &image, int k,
                                UserPrompt *prompt);

    const Windows &windows() const { return m_windows; }
    Windows &windows() { return m_windows; }
    const SampleBytes &measures() const { return m_measures; }
    // Every sample of the current learning, oldest first.
    const QList<SampleBytes> &samples() const { return m_samples; }
    int coinCount() const { return m_coinCount; }
    int minimumSamples() const { return m_minimumSamples; }
    void setMinimumSamples(int n) { m_minimumSamples = n; }

    Tolerances tolerances;
    bool learningFromCoins = true;
    bool autoTolerance = true;
    bool modifyMode = false;
    bool calibrationMode = false;
    bool analysisMode = false;
    // The windows came from a file: accepted without counting coins.
    bool imported = false;

private:
    Windows m_windows{};
    SampleBytes m_measures{};
    QList<SampleBytes> m_samples;
    int m_coinCount = 0;
    int m_minimumSamples;
};

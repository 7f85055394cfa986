#pragma once

#include "FormModel.h"
#include "WindowsChartModel.h"

#include <optional>

// The small read-only forms of coin learning, without their widgets: a caption, a list or a
// text, a count and "&OK".

// TFormSuperposition, "Overlapped channels list": the pairs of channels whose windows overlap,
// counted "%d Overlapping", beside the windows chart of the configuration; picking a line of
// the list picks out its two channels in the chart.
class SuperpositionModel final : public FormModel
{
public:
    explicit SuperpositionModel(const ConfigImage &image, UserPrompt *prompt = nullptr);
    void retranslate() override;

    // The chart's part in the changed names.
    static QString chartName() { return QStringLiteral("Chart"); }
    const WindowsChartModel &chart() const { return m_chart; }
    // The pair a line of the list names.
    std::optional<ChannelPair> pairAt(int line) const;

protected:
    void clicked(const QString &name) override;
    void picked(const QString &name, int item) override;

private:
    WindowsChartModel m_chart;
};

// TTarvikAnalyse, "Analyse": the channels that would accept the last coin, under two fixed
// header lines, counted "%d superposition(s)".
class AnalyseModel final : public FormModel
{
public:
    // The header lines, shown as they stand in every language.
    static const QString &headerLine1();
    static const QString &headerLine2();

    AnalyseModel(const QStringList &lines, UserPrompt *prompt = nullptr);
    void retranslate() override;

protected:
    void clicked(const QString &name) override;
};

// TFormRefChannel, "Reference Channel": how to calibrate an empty reference channel.
class RefChannelModel final : public FormModel
{
public:
    explicit RefChannelModel(UserPrompt *prompt = nullptr);
    void retranslate() override;

protected:
    void clicked(const QString &name) override;
};

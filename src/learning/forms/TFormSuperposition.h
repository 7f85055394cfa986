#pragma once

#include "ListDialog.h"

struct ConfigImage;
class WindowsChartView;

// "Overlapped channels list": the pairs of channels whose windows overlap beside the windows
// chart of the configuration, over SuperpositionModel. A line picked in the list picks out its
// two channels in the chart.
class TFormSuperposition final : public ListDialog
{
    Q_OBJECT
public:
    explicit TFormSuperposition(const ConfigImage &image, QWidget *parent = nullptr);

    WindowsChartView *chart() const { return m_chart; }

private:
    WindowsChartView *m_chart;
};

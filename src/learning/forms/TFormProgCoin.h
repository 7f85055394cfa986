#pragma once

#include "TTarvikAnalyse.h"

#include <QDialog>
#include <QPointer>

class FormBinder;
class ProgCoinModel;
class QTimer;
class WindowsChartView;

// "Coin learning": the coin learning window over ProgCoinModel. It builds one widget per
// control, named after it, forwards typing, leaving and clicks, repaints what the model reports
// changed, and runs the 10 ms timer whose ticks poll the validator for coins.
class TFormProgCoin final : public QDialog
{
    Q_OBJECT
public:
    explicit TFormProgCoin(ProgCoinModel &model, QWidget *parent = nullptr);
    ~TFormProgCoin() override;
    Q_DISABLE_COPY_MOVE(TFormProgCoin)

    ProgCoinModel &model() { return m_model; }
    // The analysis list of the last coin, while it is open.
    TTarvikAnalyse *analysis() const { return m_analysis; }
    WindowsChartView *chart() const { return m_chart; }

    // Escape and the close button cancel, as "&Cancel" does.
    void reject() override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void build();
    void showAnalysis(const QStringList &lines);
    void closeAnalysis();

    ProgCoinModel &m_model;
    FormBinder *m_binder;
    QTimer *m_timer;
    WindowsChartView *m_chart = nullptr;
    QPointer<TTarvikAnalyse> m_analysis;
};

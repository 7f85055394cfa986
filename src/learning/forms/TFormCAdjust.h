#pragma once

#include <QDialog>

class CAdjustModel;
class FormBinder;

// "Channel to adjust": the channel to control and its automatic adjustment, over CAdjustModel.
// Enter in the channel box is "&OK", Ctrl+Break cancels.
class TFormCAdjust final : public QDialog
{
    Q_OBJECT
public:
    explicit TFormCAdjust(CAdjustModel &model, QWidget *parent = nullptr);
    ~TFormCAdjust() override;
    Q_DISABLE_COPY_MOVE(TFormCAdjust)

    void reject() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    CAdjustModel &m_model;
    FormBinder *m_binder;
};

#pragma once

#include <QDialog>

class QLabel;

// "Mini-programmer": shown while the caller waits for the mini-programmer to be connected; the
// caller closes it.
class TConnectForm final : public QDialog
{
    Q_OBJECT
public:
    explicit TConnectForm(QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslateUi();

    QLabel *m_label1;
};

#pragma once

#include <QDialog>

class QPlainTextEdit;
class QPushButton;

// "Warning": a text set by the caller, Continue (WarningAnswer 0) or Cancel (1). Escape and the
// window's close button count as Cancel.
class TFormAvertissementDif final : public QDialog
{
    Q_OBJECT
public:
    TFormAvertissementDif(const QString &text, int &warningAnswer, QWidget *parent = nullptr);

    void BitBtn1Click();
    void reject() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslateUi();

    int &m_warningAnswer;
    QPlainTextEdit *m_memo1;
    QPushButton *m_bitBtn1;
    QPushButton *m_bitBtn2;
};

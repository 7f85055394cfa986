#pragma once

#include "CloneGroups.h"

#include <QDialog>

class QCheckBox;
class QGroupBox;
class QLabel;
class QPushButton;

// "Cloning": which groups a clone write copies. OK takes the five check marks, Cancel (and
// Escape) clears all five.
class TCloningChk final : public QDialog
{
    Q_OBJECT
public:
    TCloningChk(CloneGroups &choices, QWidget *parent = nullptr);

    void BitBtn1Click();
    void reject() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslateUi();
    QCheckBox *addCheck(const char *name);

    CloneGroups &m_choices;
    QLabel *m_label;
    QGroupBox *m_options;
    QCheckBox *m_checkData;
    QCheckBox *m_checkValue;
    QCheckBox *m_checkPrice;
    QCheckBox *m_checkConfig;
    QCheckBox *m_checkEnable;
    QPushButton *m_bitBtn1;
    QPushButton *m_bitBtn2;
};

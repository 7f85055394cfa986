#pragma once

#include "PortChoice.h"

#include <QDialog>

class QLabel;
class QPushButton;
class RadioGroup;
class UserPrompt;

// "Communication": the port dialog shown when no validator answered the probe and no port was
// named on the command line. OK gives the position of the selected item (Com2 as the first item
// gives port 1); Exit ends the program.
class TCommunication final : public QDialog, public PortDialog
{
    Q_OBJECT
public:
    explicit TCommunication(UserPrompt *prompt, QWidget *parent = nullptr);

    std::optional<int> choosePort(const QStringList &items, int selected) override;

    void OkBtnClick();
    void CancelBtnClick();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslateUi();

    UserPrompt *m_prompt;
    QLabel *m_label1;
    QLabel *m_image1;
    RadioGroup *m_comGroup;
    QPushButton *m_okBtn;
    QPushButton *m_cancelBtn;
};

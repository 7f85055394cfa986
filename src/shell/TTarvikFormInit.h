#pragma once

#include "ConfigImage.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class RadioGroup;

// "Validator setting": serial number, outlet mode and resettable counter of an initialisation.
// Every click writes into the image at once; OK completes the initialisation blocks, Cancel
// sets InitCancelled.
class TTarvikFormInit final : public QDialog
{
    Q_OBJECT
public:
    TTarvikFormInit(ConfigImage &image, bool &initCancelled, QWidget *parent = nullptr);

    void RazEnClick();
    void GroupSortieInitClick();
    void ENumSerExit();
    void BitBtn1Click();
    void BitBtn2Click();
    // Escape and the window's close button count as Cancel.
    void reject() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslateUi();

    ConfigImage &m_image;
    bool &m_initCancelled;
    bool m_serialEdited = false;
    QLabel *m_serialLabel;
    QLineEdit *m_edit1;
    RadioGroup *m_groupSortieInit;
    QCheckBox *m_razEn;
    QPushButton *m_bitBtn1;
    QPushButton *m_bitBtn2;
};

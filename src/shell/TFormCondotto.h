#pragma once

#include "ConfigImage.h"

#include <QDialog>

class QPushButton;
class RadioGroup;

// "Output": the output type, Game or Vending, in bit 4 of the option byte.
class TFormCondotto final : public QDialog
{
    Q_OBJECT
public:
    TFormCondotto(ConfigImage &image, QWidget *parent = nullptr);

    void BitBtn1Click();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslateUi();

    ConfigImage &m_image;
    RadioGroup *m_radioGroup1;
    QPushButton *m_bitBtn1;
};

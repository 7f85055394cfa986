#pragma once

#include "FormModel.h"

struct ConfigImage;

// The channel-to-adjust dialog TFormCAdjust without its widgets: the channel to control (0:
// the nearest one, found from the coins) and whether the coins adjust its windows.
class CAdjustModel final : public FormModel
{
public:
    // "&Automatic adjustment :" starts checked: the coins widen the controlled channel's windows.
    CAdjustModel(const ConfigImage &image, UserPrompt *prompt);

    int channel() const { return spinValue(QStringLiteral("SpinEdit1")); }
    bool automaticAdjustment() const { return control(QStringLiteral("CheckBox1")).checked; }

    // "&OK", also Enter in the spin edit: an empty channel is refused with its message.
    void BtnOKClick();
    // Ctrl+Break in the spin edit, or "&Cancel".
    void cancel();

    void retranslate() override;

protected:
    void clicked(const QString &name) override;

private:
    const ConfigImage &m_image;
};

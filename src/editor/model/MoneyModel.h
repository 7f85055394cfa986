#pragma once

#include "EditorState.h"

// The money side: six price slots, the two credit bases, the conversion ratio and the code
// table of the validator output.
class MoneyModel final
{
public:
    explicit MoneyModel(EditorState &state) : m_s(state) {}

    void addControls();
    void retranslate();
    void showModel(bool light);
    void display();
    // The bases and the ratio into the value block (the general exit handler's step); returns
    // the names of boxes whose text was not a number (those keep their old value).
    QStringList store();

    // How a price slot's byte is shown under an output type.
    enum class SlotForm
    {
        Price, // a channel value against base 1
        Plain, // a number 0 to 254
        Tenths // a tenth of what is shown
    };
    static SlotForm slotForm(int slot, int outputType, bool externalReset);
    static const char *const kPriceBoxes[6];

private:
    EditorState &m_s;
    bool m_light = false;
};

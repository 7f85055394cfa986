#pragma once

#include "EditorState.h"
#include "IdentityModel.h"

// The output type, the outlet and the option switches over the option word, with its sixteen
// bit labels and its hexadecimal label.
class OptionsModel final
{
public:
    explicit OptionsModel(EditorState &state) : m_s(state) {}

    void addControls();
    void retranslate();
    // The boxes from the option word; which boxes show depends on the output type, the model
    // and the firmware date.
    void display(const IdentityModel::Gates &gates);
    void showModel(bool light) { m_light = light; }

    // A click on one of the option boxes; false when the name is none of them. Every box
    // except the outlet marks the configuration modified.
    bool click(const QString &name);
    // The output type's bits in the option word (item 5 is item 2).
    void applyType(int type);
    void pickOutlet(int item);
    // "Separator" and "Binary output" together need firmware later than 26 March 2002.
    bool separatorWithBinary() const;

    // The check boxes in the order of the options group.
    static const char *const kCheckBoxes[];
    static const int kCheckBoxCount;

private:
    bool checkedAfterClick(const QString &name, const QString &clicked) const;
    void setBit(int byte, quint8 mask, bool on);
    void flip(int byte, quint8 mask);
    bool visibleAndChecked(const char *name) const;
    void multiPulse(bool checked);
    void binaryOutput(bool on);
    void displayBits();
    void displayOutletItems();

    EditorState &m_s;
    bool m_light = false;
};

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

    // The check boxes in the order of the options group.
    static const char *const kCheckBoxes[];
    static const int kCheckBoxCount;

private:
    void displayBits();
    void displayOutletItems();

    EditorState &m_s;
    bool m_light = false;
};

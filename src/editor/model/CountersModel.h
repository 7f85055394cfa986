#pragma once

#include "EditorState.h"

// "Cash counters / Limits": the two counters read from the validator, counting on or off,
// erasable or not, and the two vend limits.
class CountersModel final
{
public:
    explicit CountersModel(EditorState &state) : m_s(state) {}

    void addControls();
    void retranslate();
    void display();

private:
    EditorState &m_s;
};

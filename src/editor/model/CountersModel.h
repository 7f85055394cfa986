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

    // "Actived", "Erasable :", the two "Reset" buttons and the vend limit boxes (1 or 2).
    void CounterEnableClick();
    void RazEnableClick();
    void resetClick(int counter);
    void limitExit(int limit);

private:
    EditorState &m_s;
};

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
    // A new image shows "Actived" as its option word says.
    void takeFromImage() { m_activedHeld = false; }

private:
    EditorState &m_s;
    // "Actived" was checked again while the counters are not erasable; bit 6 was left alone.
    bool m_activedHeld = false;
};

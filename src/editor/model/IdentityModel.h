#pragma once

#include "EditorState.h"

// Identification, versions and dates: the serial number box, the family and firmware date,
// the programming and production dates, and the identification and description under which
// the image is stored in the tables. The firmware date also opens the features that came with
// later firmware.
class IdentityModel final
{
public:
    explicit IdentityModel(EditorState &state) : m_s(state) {}

    void addControls();
    void retranslate();
    void display();
    // ESerial into the identification; a text that is not a number leaves the serial as it is.
    void store();

    // Whether each date-gated control may show; a missing firmware date leaves them as they
    // were.
    struct Gates
    {
        bool testValue = true;      // GroupBox7, after 2 January 2002
        bool separatorGroup = true; // GroupBox10, after 14 May 2002
        bool jamInhibition = true;  // CheckBox4, after 26 March 2002
        bool multiPulse = true;     // CheckBox5, after 2 June 2002
    };
    const Gates &gates() const { return m_gates; }

private:
    void applyGates();

    EditorState &m_s;
    Gates m_gates;
};

#pragma once

#include "Captions.h"

#include <QtGlobal>
#include <initializer_list>

// The option switches of the option word. How a box shows its bit: which byte and bit, whether a
// checked box means the bit is 0 (most options are active low), and under which output types it
// shows.
struct OptionBox
{
    const char *name;
    Cap caption;
    int byte;
    quint8 mask;
    bool activeLow;
    // The output types under which the box shows, one bit per type (bit n: type n).
    quint8 types;
};

inline constexpr quint8 kTypeValidatorOnly = 0x01;
inline constexpr quint8 kTypeTotalizers = 0xFE;
constexpr quint8 optionTypes(std::initializer_list<int> list)
{
    quint8 out = 0;
    for (int t : list)
        out = quint8(out | (1 << t));
    return out;
}

// One box per bit and output type: the validator's switches under type 0, the totalizers'
// under the others. Types 4, 6 and 7 are told apart by bits 4 and 5 of the first byte, so no
// box for those bits shows under them: a click would change the output type.
inline constexpr OptionBox kOptionBoxes[] = {
    {"ChkBinaire", Cap::BinaryOutput, 0, 0x01, true, kTypeValidatorOnly},
    {"ChkStandby", Cap::StandbyMode, 0, 0x01, true, optionTypes({2, 3, 5, 6, 7})},
    {"ChkResetEx", Cap::ExternalReset, 0, 0x01, true, optionTypes({1, 4})},
    {"ChkConfida", Cap::Confida, 0, 0x02, true, kTypeValidatorOnly},
    {"ChkRecup", Cap::Rest, 0, 0x02, true, optionTypes({1, 3})},
    {"ChkActEx", Cap::ExtCounterSignal, 0, 0x02, true, optionTypes({2, 4, 5, 6, 7})},
    {"ChkSeparateur", Cap::Separator, 0, 0x04, true, kTypeValidatorOnly},
    {"ChkInibhition", Cap::DipInhibition, 0, 0x08, true, kTypeValidatorOnly},
    {"CheckBox5", Cap::MultiPulse, 0, 0x10, true, kTypeValidatorOnly},
    {"ChkLimit1", Cap::Price1Limit, 0, 0x10, true, optionTypes({1})},
    {"ChkCounterEX", Cap::ExtStart, 0, 0x10, true, optionTypes({2, 3, 5})},
    {"ChkLimit2", Cap::Price2Limit, 0, 0x20, true, optionTypes({1})},
    {"ChkTime", Cap::TimeInMinutes, 0, 0x20, true, optionTypes({3})},
    {"ChkResetL8", Cap::ResetHigh, 0, 0x40, true, kTypeValidatorOnly},
    {"ChkTmpDsp", Cap::TogglingCounting, 0, 0x40, true, kTypeTotalizers},
    {"ChkDip", Cap::Dip42, 0, 0x80, true, kTypeValidatorOnly},
    {"CheckBox4", Cap::JamInhibition, 0, 0x80, true, kTypeValidatorOnly},
    {"ChkDecompte", Cap::DowCounting, 0, 0x80, true, kTypeTotalizers},
    {"ChkAfficheur", Cap::DisplayOff, 1, 0x80, true, optionTypes({2, 3, 4, 5, 6, 7})},
    {"ChkLimit", Cap::Limit, 1, 0x80, true, optionTypes({1})},
};

inline constexpr Cap kOutputTypeItems[] = {Cap::Type0, Cap::Type1, Cap::Type2, Cap::Type3,
                                           Cap::Type4, Cap::Type5, Cap::Type6, Cap::Type7};

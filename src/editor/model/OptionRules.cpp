// The option switches: which bit each click sets, clears or toggles, and what it does to the
// other boxes. The boxes are shown again from the option word afterwards, so that each box
// says what will be written.
#include "Captions.h"
#include "Messages.h"
#include "OptionsModel.h"

namespace {

// Byte 0 replaced whole; in byte 1 the listed bits set and cleared (bits 3-5 stay).
struct TypeBits
{
    quint8 byte0;
    quint8 set1;
    quint8 clear1;
};
constexpr TypeBits kTypeBits[8] = {
    {0xFF, 0xC7, 0x00}, {0xF6, 0xC3, 0x04}, {0xF7, 0xC1, 0x06}, {0xF7, 0xC2, 0x05},
    {0xF5, 0xC0, 0x07}, {0xF7, 0xC1, 0x06}, {0xE5, 0xC0, 0x07}, {0xD5, 0xC0, 0x07},
};

// Boxes that flip their bit on every click, without looking at their own state.
struct Toggle
{
    const char *name;
    int byte;
    quint8 mask;
};
constexpr Toggle kToggles[] = {
    {"ChkResetEx", 0, 0x01}, {"ChkRecup", 0, 0x02},     {"ChkActEx", 0, 0x02},
    {"ChkLimit1", 0, 0x10},  {"ChkCounterEX", 0, 0x10}, {"ChkLimit2", 0, 0x20},
    {"ChkTime", 0, 0x20},    {"ChkResetL8", 0, 0x40},   {"ChkTmpDsp", 0, 0x40},
    {"CheckBox4", 0, 0x80},  {"ChkLimit", 1, 0x80},
};

} // namespace

void OptionsModel::setBit(int byte, quint8 mask, bool on)
{
    quint8 &b = m_s.image.options[std::size_t(byte)];
    b = on ? quint8(b | mask) : quint8(b & ~mask);
}

void OptionsModel::flip(int byte, quint8 mask)
{
    m_s.image.options[std::size_t(byte)] ^= mask;
}

bool OptionsModel::visibleAndChecked(const char *name) const
{
    const ControlState &box = m_s.controls.state(QLatin1String(name));
    return box.visible && box.checked;
}

// The state a box has once the click is through: the clicked box turns over, the others stay.
bool OptionsModel::checkedAfterClick(const QString &name, const QString &clicked) const
{
    const bool now = m_s.checked(name);
    return name == clicked ? !now : now;
}

bool OptionsModel::separatorWithBinary() const
{
    const QDate firmware = m_s.firmwareDate();
    return firmware.isValid() && firmware > QDate(2002, 3, 26);
}

void OptionsModel::binaryOutput(bool on)
{
    setBit(0, 0x01, !on);
    // "Confida" goes with the binary output: disabled with it, and so unchecked.
    if (!on && m_s.controls.state(QStringLiteral("ChkConfida")).visible)
        setBit(0, 0x02, true);
}

void OptionsModel::applyType(int type)
{
    const TypeBits &bits = kTypeBits[type];
    m_s.image.options[0] = bits.byte0;
    m_s.image.options[1] = quint8((m_s.image.options[1] | bits.set1) & ~bits.clear1);
}

void OptionsModel::pickOutlet(int item)
{
    // The outlet changes its bit without marking the configuration modified.
    setBit(1, 0x08, item == 1);
}

void OptionsModel::multiPulse(bool checked)
{
    setBit(0, 0x10, !checked);
    if (!checked)
        return;
    const ConfigImage &image = m_s.image;
    for (int k = 1; k <= image.channelCount(); ++k) {
        const int s = image.channels[std::size_t(k - 1)][Rec::Substitute];
        if (s == 0 || s == 255 || s == k)
            continue;
        // A substitute worth nothing, or no channel at all, cannot take pulses.
        const quint8 theirs = m_s.substituteValue(s);
        if (theirs == 0 || image.valueByte(k - 1) / theirs > EditorState::kMaxPulses) {
            m_s.tellMultiPulse(k, s);
            setBit(0, 0x10, true);
            return;
        }
    }
}

bool OptionsModel::click(const QString &name)
{
    auto after = [&](const char *box) { return checkedAfterClick(QLatin1String(box), name); };
    const bool mayJoin = separatorWithBinary();

    if (name == QLatin1String("ChkSeparateur")) {
        const bool on = after("ChkSeparateur");
        setBit(0, 0x04, !on);
        if (on) {
            if (!mayJoin && m_s.checked(QStringLiteral("ChkBinaire")))
                binaryOutput(false);
            if (m_s.outputType() != 0)
                setBit(1, 0x80, true); // "Display off" unchecked
            if (visibleAndChecked("ChkResetEx"))
                setBit(0, 0x01, true); // "External reset" unchecked
        }
    } else if (name == QLatin1String("ChkAfficheur")) {
        const bool off = after("ChkAfficheur");
        setBit(1, 0x80, !off);
        if (!off)
            setBit(0, 0x04, true); // no separator while the display is on
    } else if (name == QLatin1String("CheckBox6") || name == QLatin1String("CheckBox7")) {
        const bool normal = after("CheckBox6") && name == QLatin1String("CheckBox6");
        const bool inverted = after("CheckBox7") && name == QLatin1String("CheckBox7");
        if (normal)
            setBit(0, 0x08, true);
        if (inverted)
            setBit(0, 0x08, false);
        setBit(0, 0x04, !(normal || inverted));
    } else if (name == QLatin1String("ChkBinaire") || name == QLatin1String("ChkStandby")) {
        // Both boxes run this one handler, which looks at "Binary output" only.
        const bool binary = after("ChkBinaire");
        if (binary && !mayJoin)
            setBit(0, 0x04, true); // "Separator" unchecked
        binaryOutput(binary);
    } else if (name == QLatin1String("ChkConfida")) {
        setBit(0, 0x02, !after("ChkConfida"));
    } else if (name == QLatin1String("ChkInibhition")) {
        if (after("ChkInibhition")) {
            setBit(0, 0x80, true);
            setBit(0, 0x08, false);
        } else {
            setBit(0, 0x08, true);
        }
    } else if (name == QLatin1String("ChkDip") || name == QLatin1String("ChkDecompte")) {
        // "Dow-counting display" runs this handler too, which looks at "Dip 4/2" only.
        if (after("ChkDip")) {
            setBit(0, 0x08, true);
            setBit(0, 0x80, false);
        } else {
            setBit(0, 0x80, true);
        }
    } else if (name == QLatin1String("CheckBox5")) {
        multiPulse(after("CheckBox5"));
    } else {
        const Toggle *toggle = nullptr;
        for (const Toggle &t : kToggles) {
            if (name == QLatin1String(t.name))
                toggle = &t;
        }
        if (!toggle)
            return false;
        flip(toggle->byte, toggle->mask);
    }
    m_s.flags.configModified = true;
    return true;
}

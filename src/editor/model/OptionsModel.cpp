#include "OptionsModel.h"

#include "Captions.h"
#include "OptionBoxes.h"

namespace {

QString bitLabel(int i)
{
    return QStringLiteral("LBit%1").arg(i);
}

} // namespace

const char *const OptionsModel::kCheckBoxes[] = {
    "ChkBinaire",    "ChkStandby",  "ChkResetEx",   "ChkConfida",    "ChkRecup",  "ChkActEx",
    "ChkSeparateur", "CheckBox6",   "CheckBox7",    "ChkInibhition", "CheckBox5", "ChkLimit1",
    "ChkCounterEX",  "ChkLimit2",   "ChkTime",      "ChkResetL8",    "ChkTmpDsp", "ChkDip",
    "CheckBox4",     "ChkDecompte", "ChkAfficheur", "ChkLimit",
};
const int OptionsModel::kCheckBoxCount = int(std::size(OptionsModel::kCheckBoxes));

void OptionsModel::addControls()
{
    ControlSet &c = m_s.controls;
    const QString options = QStringLiteral("GroupOptions");
    c.add(QStringLiteral("GroupType"), ControlKind::Radio);
    c.add(QStringLiteral("GroupTypeLight"), ControlKind::Radio);
    c.add(QStringLiteral("GroupSortie"), ControlKind::Radio);
    c.add(options, ControlKind::Group);
    c.add(QStringLiteral("GroupBox10"), ControlKind::Group, options);
    for (const char *name : kCheckBoxes) {
        const QLatin1String box(name);
        const bool inSeparatorGroup =
            box == QLatin1String("CheckBox6") || box == QLatin1String("CheckBox7");
        c.add(box, ControlKind::Check, inSeparatorGroup ? QStringLiteral("GroupBox10") : options);
    }
    c.add(QStringLiteral("GroupBits"), ControlKind::Group);
    for (int i = 0; i < 16; ++i)
        c.add(bitLabel(i), ControlKind::Label, QStringLiteral("GroupBits"));
    c.add(QStringLiteral("LOptionHex"), ControlKind::Label, QStringLiteral("GroupBits"));

    retranslate();
}

void OptionsModel::retranslate()
{
    ControlSet &c = m_s.controls;
    c.setText(QStringLiteral("GroupType"), captionText(Cap::Type));
    c.setText(QStringLiteral("GroupTypeLight"), captionText(Cap::Type));
    QStringList items;
    for (Cap item : kOutputTypeItems)
        items.append(captionText(item));
    c.setItems(QStringLiteral("GroupType"), items);
    c.setItems(QStringLiteral("GroupTypeLight"),
               {captionText(Cap::Type0), captionText(Cap::Type2)});
    c.setText(QStringLiteral("GroupSortie"), captionText(Cap::Outlet));
    c.setText(QStringLiteral("GroupOptions"), captionText(Cap::Options));
    c.setText(QStringLiteral("GroupBox10"), captionText(Cap::Separator));
    c.setText(QStringLiteral("CheckBox6"), captionText(Cap::NormalOutput));
    c.setText(QStringLiteral("CheckBox7"), captionText(Cap::InvertedOutput));
    for (const OptionBox &box : kOptionBoxes)
        c.setText(QLatin1String(box.name), captionText(box.caption));
    c.setText(QStringLiteral("GroupBits"), captionText(Cap::OptionBits));
    displayOutletItems();
}

void OptionsModel::displayOutletItems()
{
    // Bit 4 of the second byte says whether the outlet is a vending or a game outlet.
    const bool vending = m_s.image.options[1] & 0x10;
    m_s.controls.setItems(
        QStringLiteral("GroupSortie"),
        vending ? QStringList{captionText(Cap::VendingAntiJam), captionText(Cap::Vending)}
                : QStringList{captionText(Cap::GameFast), captionText(Cap::Game)});
}

void OptionsModel::display(const IdentityModel::Gates &gates)
{
    ControlSet &c = m_s.controls;
    const OptionWord &word = m_s.image.options;
    const int type = m_s.outputType();

    c.setVisible(QStringLiteral("GroupType"), !m_light);
    c.setVisible(QStringLiteral("GroupTypeLight"), m_light);
    c.setItemIndex(QStringLiteral("GroupType"), type);
    c.setItemIndex(QStringLiteral("GroupTypeLight"), type == 0 ? 0 : type == 2 ? 1 : -1);
    displayOutletItems();
    c.setItemIndex(QStringLiteral("GroupSortie"), (word[1] & 0x08) ? 1 : 0);

    for (const OptionBox &box : kOptionBoxes) {
        const bool bitSet = word[std::size_t(box.byte)] & box.mask;
        c.setChecked(QLatin1String(box.name), box.activeLow ? !bitSet : bitSet);
        c.setVisible(QLatin1String(box.name), (box.types >> type) & 1);
    }
    // "Confida" goes with the binary output.
    c.setEnabled(QStringLiteral("ChkConfida"), m_s.checked(QStringLiteral("ChkBinaire")));
    // The separator's three-way choice: off, with normal output, with inverted output.
    const bool separatorOn = !(word[0] & 0x04);
    c.setChecked(QStringLiteral("CheckBox6"), separatorOn && (word[0] & 0x08));
    c.setChecked(QStringLiteral("CheckBox7"), separatorOn && !(word[0] & 0x08));
    c.setVisible(QStringLiteral("GroupBox10"), type != 0 && !m_light && gates.separatorGroup);

    // The Light model has no separator output.
    if (m_light)
        c.setVisible(QStringLiteral("ChkSeparateur"), false);
    if (!gates.jamInhibition)
        c.setVisible(QStringLiteral("CheckBox4"), false);
    if (!gates.multiPulse)
        c.setVisible(QStringLiteral("CheckBox5"), false);
    displayBits();
}

void OptionsModel::displayBits()
{
    ControlSet &c = m_s.controls;
    const OptionWord &word = m_s.image.options;
    // Most significant bit of the first byte first.
    for (int i = 0; i < 16; ++i) {
        const quint8 byte = word[std::size_t(i / 8)];
        c.setText(bitLabel(i),
                  (byte >> (7 - i % 8)) & 1 ? QStringLiteral("1") : QStringLiteral("0"));
    }
    c.setText(QStringLiteral("LOptionHex"),
              QString::asprintf("$%4.4x", unsigned(word[0]) << 8 | word[1]));
}

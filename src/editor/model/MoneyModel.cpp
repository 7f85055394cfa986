#include "MoneyModel.h"

#include "Captions.h"
#include "Messages.h"
#include "UserPrompt.h"

const char *const MoneyModel::kPriceBoxes[6] = {"Eprix1", "Eprix2", "EPrix3",
                                                "Eprix4", "EPrix5", "Eprix6"};

namespace {

// The images of the three code boxes, bit 5 first.
constexpr const char *kCodeOn[3][6] = {
    {"ImageLed", "Image15", "Image16", "Image17", "Image18", "Image19"},
    {"Image20", "Image21", "Image22", "Image23", "Image24", "Image25"},
    {"Image32", "Image33", "Image34", "Image35", "Image36", "Image37"},
};
constexpr const char *kCodeOff[3][6] = {
    {"Image38", "Image39", "Image40", "Image41", "Image42", "Image43"},
    {"Image44", "Image45", "Image46", "Image47", "Image48", "Image49"},
    {"Image56", "Image57", "Image58", "Image59", "Image60", "Image61"},
};

QString priceLabel(int slot)
{
    return QStringLiteral("LValueP%1").arg(slot + 1);
}

QString codeEdit(int i)
{
    return QStringLiteral("Edit%1").arg(i + 1);
}

bool chainedType(int type)
{
    return type == 2 || type == 4 || type == 6 || type == 7;
}

} // namespace

MoneyModel::SlotForm MoneyModel::slotForm(int slot, int type, bool externalReset)
{
    switch (slot) {
    case 0:
    case 1:
        return SlotForm::Price;
    case 2:
        if (type == 1)
            return externalReset ? SlotForm::Tenths : SlotForm::Plain;
        // Under type 4 "External reset" gives the reset width in seconds.
        if (type == 4)
            return externalReset ? SlotForm::Plain : SlotForm::Tenths;
        return type == 2 || type == 5 || type == 7 ? SlotForm::Tenths : SlotForm::Plain;
    case 3:
        return type == 2 || type == 4 || type == 6 || type == 7 ? SlotForm::Price : SlotForm::Plain;
    case 5:
        return type == 0 ? SlotForm::Tenths : SlotForm::Plain;
    default:
        return SlotForm::Plain;
    }
}

int MoneyModel::priceSlot(const QString &name)
{
    for (int slot = 0; slot < 6; ++slot) {
        if (name == QLatin1String(kPriceBoxes[slot]))
            return slot;
    }
    return -1;
}

int MoneyModel::codeBox(const QString &name)
{
    for (int i = 0; i < 3; ++i) {
        if (name == codeEdit(i))
            return i;
    }
    return -1;
}

bool MoneyModel::codeImage(const QString &name, int *box, int *bit, bool *on)
{
    for (int i = 0; i < 3; ++i) {
        for (int b = 0; b < 6; ++b) {
            const bool isOn = name == QLatin1String(kCodeOn[i][b]);
            if (isOn || name == QLatin1String(kCodeOff[i][b])) {
                *box = i;
                *bit = 5 - b;
                *on = isOn;
                return true;
            }
        }
    }
    return false;
}

void MoneyModel::addControls()
{
    ControlSet &c = m_s.controls;
    const QString prices = QStringLiteral("GroupPrices");
    c.add(prices, ControlKind::Group);
    for (int slot = 0; slot < 6; ++slot) {
        c.add(priceLabel(slot), ControlKind::Label, prices);
        c.add(QLatin1String(kPriceBoxes[slot]), ControlKind::Edit, prices);
        c.setBuddy(QLatin1String(kPriceBoxes[slot]), priceLabel(slot));
    }
    c.add(QStringLiteral("ChkCode"), ControlKind::Check, prices);
    c.add(QStringLiteral("LCodeState"), ControlKind::Label, prices);
    for (int i = 0; i < 3; ++i) {
        c.add(codeEdit(i), ControlKind::Edit, prices);
        // One on and one off image per bit, side by side: exactly one of them shows.
        for (int b = 0; b < 6; ++b) {
            c.add(QLatin1String(kCodeOn[i][b]), ControlKind::Image, prices);
            c.setChecked(QLatin1String(kCodeOn[i][b]), true);
            c.add(QLatin1String(kCodeOff[i][b]), ControlKind::Image, prices);
        }
    }

    const QString bases = QStringLiteral("GroupBase");
    c.add(bases, ControlKind::Group);
    for (auto [label, box] : {std::pair{"LBase1", "EBase1"}, std::pair{"LBase2", "Ebase2"},
                              std::pair{"LConversion", "EConversion"}}) {
        c.add(QLatin1String(label), ControlKind::Label, bases);
        c.add(QLatin1String(box), ControlKind::Edit, bases);
        c.setBuddy(QLatin1String(box), QLatin1String(label));
    }
    retranslate();
}

void MoneyModel::retranslate()
{
    ControlSet &c = m_s.controls;
    c.setText(QStringLiteral("GroupPrices"), captionText(Cap::Prices));
    c.setText(QStringLiteral("ChkCode"), captionText(Cap::Code));
    c.setText(QStringLiteral("GroupBase"), captionText(Cap::BaseValue));
    c.setText(QStringLiteral("LBase1"), captionText(Cap::Base1));
    c.setText(QStringLiteral("LBase2"), captionText(Cap::Base2));
    c.setText(QStringLiteral("LConversion"), captionText(Cap::Ratio));
    c.setAccessibleName(QStringLiteral("LCodeState"), captionText(Cap::Code));
    for (int i = 0; i < 3; ++i) {
        c.setAccessibleName(codeEdit(i),
                            captionText(Cap::Code) + QLatin1Char(' ') + QString::number(i + 1));
        for (int b = 0; b < 6; ++b) {
            const QString name =
                captionText(Cap::CodeBit, {QString::number(i + 1), QString::number(5 - b)});
            c.setAccessibleName(QLatin1String(kCodeOn[i][b]), name);
            c.setAccessibleName(QLatin1String(kCodeOff[i][b]), name);
        }
    }
    showModel(m_light);
}

void MoneyModel::showModel(bool light)
{
    m_light = light;
    // The first base serves channels 1 to 25 on the Light model.
    QString text = m_s.text(QStringLiteral("LBase1"));
    if (light)
        text.replace(QLatin1String("30"), QLatin1String("25"));
    else
        text.replace(QLatin1String("25"), QLatin1String("30"));
    m_s.controls.setText(QStringLiteral("LBase1"), text);
}

void MoneyModel::display()
{
    ControlSet &c = m_s.controls;
    const ConfigImage &image = m_s.image;
    const int type = m_s.outputType();
    const DecimalWord base1 = m_s.base(0);
    const DecimalWord base2 = m_s.base(30);

    for (int slot = 0; slot < 6; ++slot) {
        const quint8 byte = image.prices[std::size_t(slot)];
        QString text, tip;
        switch (slotForm(slot, type, m_s.checked(QStringLiteral("ChkResetEx")))) {
        case SlotForm::Price:
            text = FormatChannelValue(base1.decimals, 6, base1.magnitude, byte);
            tip = EditorState::amountTip(base1, false);
            break;
        case SlotForm::Plain:
            text = ByteToText(6, byte);
            tip = captionText(Cap::TipNumber);
            break;
        case SlotForm::Tenths:
            text = ByteToText(6, byte, true);
            // Under the validator output the last slot is the pulse length.
            tip = captionText(slot == 5 && type == 0 ? Cap::TipPulse : Cap::TipTens);
            break;
        }
        c.setText(QLatin1String(kPriceBoxes[slot]), text);
        // The unit and the largest value the slot takes.
        c.setToolTip(QLatin1String(kPriceBoxes[slot]), tip);
        c.setText(priceLabel(slot), captionText(Cap(int(Cap::ValueP1) + slot)));
    }
    // Captions that follow the type and the options.
    auto shownAndChecked = [&](const char *box) {
        return m_s.controls.state(QLatin1String(box)).visible && m_s.checked(QLatin1String(box));
    };
    if (c.state(QStringLiteral("ChkLimit")).visible)
        c.setText(priceLabel(1),
                  captionText(shownAndChecked("ChkLimit") ? Cap::LimitP1 : Cap::ValueP1Colon));
    if (type == 3)
        c.setText(priceLabel(2), captionText(shownAndChecked("ChkTime") ? Cap::ServiceWidthMin
                                                                        : Cap::ServiceWidthSec));
    if (type == 4)
        c.setText(priceLabel(2),
                  captionText(shownAndChecked("ChkResetEx") ? Cap::ResetWidthSec
                                                            : Cap::MinimumResetWidthMs));
    // "Ext Counter signal (3C)" takes the place of price 4.
    const bool price4 = !shownAndChecked("ChkActEx");
    c.setVisible(priceLabel(3), price4);
    c.setVisible(QLatin1String(kPriceBoxes[3]), price4);

    c.setVisible(QStringLiteral("ChkCode"), type == 0);
    c.setChecked(QStringLiteral("ChkCode"), m_codeShown);
    bool valid = true;
    for (int i = 0; i < 3; ++i) {
        showCode(i);
        const quint8 byte = image.prices[std::size_t(2 + i)];
        valid = valid && byte != 0 && byte != 255;
    }
    const bool codes = type == 0 && m_codeShown;
    c.setVisible(QStringLiteral("LCodeState"), codes);
    c.setText(QStringLiteral("LCodeState"), captionText(valid ? Cap::CodeOk : Cap::CodeBad));

    c.setText(QStringLiteral("EBase1"), base1.text);
    c.setText(QStringLiteral("Ebase2"), base2.text);
    Long4 ratio;
    std::copy_n(image.values.begin() + Val::Conversion, 4, ratio.begin());
    c.setText(QStringLiteral("EConversion"),
              FormatExponentLong(ratio, base1.decimals, base2.decimals));
}

void MoneyModel::chainEnabling(int slot)
{
    if (!chainedType(m_s.outputType()) || (slot != 0 && slot != 3))
        return;
    // A filled price 1 opens prices 4 and 6, a filled price 4 prices 5 and 6.
    const bool filled = !m_s.text(QLatin1String(kPriceBoxes[slot])).trimmed().isEmpty();
    for (int opened : {slot == 0 ? 3 : 4, 5}) {
        m_s.controls.setEnabled(priceLabel(opened), filled);
        m_s.controls.setEnabled(QLatin1String(kPriceBoxes[opened]), filled);
    }
}

void MoneyModel::enableAllPrices()
{
    for (int slot = 0; slot < 6; ++slot) {
        m_s.controls.setEnabled(priceLabel(slot), true);
        m_s.controls.setEnabled(QLatin1String(kPriceBoxes[slot]), true);
    }
}

void MoneyModel::showCode(int i)
{
    ControlSet &c = m_s.controls;
    const bool shown = m_s.outputType() == 0 && m_codeShown;
    const quint8 byte = m_s.image.prices[std::size_t(2 + i)];
    const bool isCode = byte >= 1 && byte <= 63;
    c.setVisible(codeEdit(i), shown);
    c.setText(codeEdit(i), isCode ? ByteToText(5, byte) : QString());
    for (int b = 0; b < 6; ++b) {
        const bool bit = isCode && ((byte >> (5 - b)) & 1);
        c.setVisible(QLatin1String(kCodeOn[i][b]), shown && bit);
        c.setVisible(QLatin1String(kCodeOff[i][b]), shown && !bit);
    }
}

QStringList MoneyModel::store()
{
    ValueBlock &values = m_s.image.values;
    QStringList notNumbers;
    for (auto [box, at] : {std::pair{"EBase1", Val::Base1}, std::pair{"Ebase2", Val::Base2}}) {
        const auto parsed = ParseDecimalWord(m_s.text(QLatin1String(box)));
        if (parsed)
            m_s.setValueWord(at, *parsed);
        else
            notNumbers.append(QLatin1String(box));
    }
    // The ratio's decimals follow the bases just stored.
    const DecimalWord base1 = FormatDecimalWord(m_s.valueWord(Val::Base1));
    const DecimalWord base2 = FormatDecimalWord(m_s.valueWord(Val::Base2));
    const auto ratio =
        ParseExponentLong(m_s.text(QStringLiteral("EConversion")), base1.decimals, base2.decimals);
    if (ratio)
        std::copy(ratio->begin(), ratio->end(), values.begin() + Val::Conversion);
    else
        notNumbers.append(QStringLiteral("EConversion"));
    return notNumbers;
}

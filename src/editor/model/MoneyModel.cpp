#include "MoneyModel.h"

#include "Captions.h"

const char *const MoneyModel::kPriceBoxes[6] = {"Eprix1", "Eprix2", "EPrix3",
                                                "Eprix4", "EPrix5", "Eprix6"};

namespace {

QString priceLabel(int slot)
{
    return QStringLiteral("LValueP%1").arg(slot + 1);
}

QString codeBox(int i)
{
    return QStringLiteral("Edit%1").arg(i + 1);
}

Word2 word(const ValueBlock &values, int at)
{
    return {values[std::size_t(at)], values[std::size_t(at + 1)]};
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
        return type == 2 || type == 4 || type == 5 || type == 7 ? SlotForm::Tenths
                                                                : SlotForm::Plain;
    case 3:
        return type == 2 || type == 4 || type == 6 || type == 7 ? SlotForm::Price : SlotForm::Plain;
    case 5:
        return type == 0 ? SlotForm::Tenths : SlotForm::Plain;
    default:
        return SlotForm::Plain;
    }
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
        // The price rules come with the prices group; until then it is shown only.
        c.setReadOnly(QLatin1String(kPriceBoxes[slot]), true);
    }
    c.add(QStringLiteral("ChkCode"), ControlKind::Check, prices);
    c.setEnabled(QStringLiteral("ChkCode"), false);
    for (int i = 0; i < 3; ++i) {
        c.add(codeBox(i), ControlKind::Edit, prices);
        c.setReadOnly(codeBox(i), true);
    }
    c.add(QStringLiteral("LCodeState"), ControlKind::Label, prices);

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
    for (int slot = 0; slot < 6; ++slot)
        c.setText(priceLabel(slot), captionText(Cap(int(Cap::ValueP1) + slot)));
    c.setText(QStringLiteral("ChkCode"), captionText(Cap::Code));
    c.setText(QStringLiteral("GroupBase"), captionText(Cap::BaseValue));
    c.setText(QStringLiteral("LBase1"), captionText(Cap::Base1));
    c.setText(QStringLiteral("LBase2"), captionText(Cap::Base2));
    c.setText(QStringLiteral("LConversion"), captionText(Cap::Ratio));
    c.setAccessibleName(QStringLiteral("LCodeState"), captionText(Cap::Code));
    for (int i = 0; i < 3; ++i)
        c.setAccessibleName(codeBox(i),
                            captionText(Cap::Code) + QLatin1Char(' ') + QString::number(i + 1));
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
    const bool externalReset = m_s.checked(QStringLiteral("ChkResetEx"));

    for (int slot = 0; slot < 6; ++slot) {
        const quint8 byte = image.prices[std::size_t(slot)];
        QString text;
        switch (slotForm(slot, type, externalReset)) {
        case SlotForm::Price:
            text = FormatChannelValue(base1.decimals, 6, base1.magnitude, byte);
            break;
        case SlotForm::Plain:
            text = ByteToText(6, byte);
            break;
        case SlotForm::Tenths:
            text = ByteToText(6, byte, true);
            break;
        }
        c.setText(QLatin1String(kPriceBoxes[slot]), text);
    }

    // Under the validator output slots 3 to 5 may hold a code table of three 6-bit codes.
    const bool codes =
        type == 0 && (image.prices[2] != 255 || image.prices[3] != 255 || image.prices[4] != 255);
    c.setChecked(QStringLiteral("ChkCode"), codes);
    bool valid = true;
    for (int i = 0; i < 3; ++i) {
        const quint8 byte = image.prices[std::size_t(2 + i)];
        c.setText(codeBox(i), codes ? ByteToText(5, byte) : QString());
        c.setVisible(codeBox(i), codes);
        valid = valid && byte != 0 && byte != 255;
    }
    c.setVisible(QStringLiteral("LCodeState"), codes);
    c.setText(QStringLiteral("LCodeState"), captionText(valid ? Cap::CodeOk : Cap::CodeBad));

    c.setText(QStringLiteral("EBase1"), base1.text);
    c.setText(QStringLiteral("Ebase2"), base2.text);
    Long4 ratio;
    std::copy_n(image.values.begin() + Val::Conversion, 4, ratio.begin());
    c.setText(QStringLiteral("EConversion"),
              FormatExponentLong(ratio, base1.decimals, base2.decimals));
}

QStringList MoneyModel::store()
{
    ValueBlock &values = m_s.image.values;
    QStringList notNumbers;
    for (auto [box, at] : {std::pair{"EBase1", Val::Base1}, std::pair{"Ebase2", Val::Base2}}) {
        const auto parsed = ParseDecimalWord(m_s.text(QLatin1String(box)));
        if (!parsed) {
            notNumbers.append(QLatin1String(box));
            continue;
        }
        values[std::size_t(at)] = (*parsed)[0];
        values[std::size_t(at + 1)] = (*parsed)[1];
    }
    // The ratio's decimals follow the bases just stored.
    const DecimalWord base1 = FormatDecimalWord(word(values, Val::Base1));
    const DecimalWord base2 = FormatDecimalWord(word(values, Val::Base2));
    const auto ratio =
        ParseExponentLong(m_s.text(QStringLiteral("EConversion")), base1.decimals, base2.decimals);
    if (ratio)
        std::copy(ratio->begin(), ratio->end(), values.begin() + Val::Conversion);
    else
        notNumbers.append(QStringLiteral("EConversion"));
    return notNumbers;
}

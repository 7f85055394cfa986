// The exit handlers of the money side: prices, the code table, the bases, channel values and
// substitutes.
#include "Captions.h"
#include "Messages.h"
#include "MoneyModel.h"
#include "UserPrompt.h"

#include <cmath>

namespace {

constexpr quint8 kMaxPulseSteps = 63; // 630 ms in steps of 10 ms

constexpr quint8 kDefaultPrices[8][6] = {
    {255, 255, 255, 255, 255, 10}, {255, 255, 10, 50, 255, 255}, {255, 1, 10, 255, 3, 2},
    {255, 1, 10, 180, 255, 255},   {255, 1, 10, 255, 3, 2},      {255, 1, 10, 255, 3, 2},
    {255, 1, 10, 255, 3, 2},       {255, 1, 10, 255, 3, 2},
};

quint16 number(Word2 w)
{
    return quint16(w[0] << 8 | w[1]);
}

} // namespace

void MoneyModel::priceExit(int slot)
{
    if (!m_s.flags.editChanged)
        return;
    const QString box = QLatin1String(kPriceBoxes[slot]);
    const QString text = m_s.text(box).trimmed();
    const int type = m_s.outputType();
    std::optional<quint8> byte;
    switch (slotForm(slot, type, m_s.checked(QStringLiteral("ChkResetEx")))) {
    case SlotForm::Price: {
        bool notNumber = false;
        byte = m_s.takeAmount(text, m_s.base(0), &notNumber);
        if (!byte && !notNumber) {
            // A negative price is refused: the slot keeps what it held.
            m_s.flags.editChanged = false;
            display();
            return;
        }
        break;
    }
    case SlotForm::Plain:
        byte = TextToByte(text);
        break;
    case SlotForm::Tenths: {
        // The person types and sees tens; the slot holds a tenth, a last digit dropped.
        bool ok = text.isEmpty();
        const qint64 n = ok ? 0 : text.toLongLong(&ok);
        if (ok)
            byte = text.isEmpty() ? kNotSet : TextToByte(QString::number(n / 10));
        break;
    }
    }
    if (!byte) {
        m_s.tell(messageText(Msg::ValueBetween0And255));
        byte = kNotSet;
    }
    if (slot == 5 && type == 0 && *byte > kMaxPulseSteps && *byte < kNotSet) {
        m_s.tell(messageText(Msg::ValueOverMs, {QStringLiteral("630")}));
        byte = kMaxPulseSteps;
    }
    m_s.image.prices[std::size_t(slot)] = *byte;
    m_s.flags.editChanged = false;
    display();
    chainEnabling(slot);
}

void MoneyModel::codeExit(int box)
{
    if (!m_s.flags.editChanged)
        return;
    const QString text = m_s.text(QStringLiteral("Edit%1").arg(box + 1)).trimmed();
    bool ok = false;
    const int n = text.toInt(&ok);
    // A code is 1 to 63 under the validator output; anything else clears it.
    quint8 &slot = m_s.image.prices[std::size_t(2 + box)];
    slot = ok && n >= 1 && n <= 63 && m_s.outputType() == 0 ? quint8(n) : kNotSet;
    m_s.flags.editChanged = false;
    display();
}

void MoneyModel::codeImageClick(const QString &name)
{
    int box = 0, bit = 0;
    bool on = false;
    if (!codeImage(name, &box, &bit, &on))
        return;
    const quint8 slot = m_s.image.prices[std::size_t(2 + box)];
    int code = slot == kNotSet ? 0 : slot;
    code = on ? code & ~(1 << bit) : code | (1 << bit);
    m_s.controls.setText(QStringLiteral("Edit%1").arg(box + 1), QString::number(code));
    m_s.flags.editChanged = true;
    m_s.flags.configModified = true;
    codeExit(box);
}

void MoneyModel::ChkCodeClick()
{
    m_codeShown = !m_codeShown;
    display();
}

void MoneyModel::takeFromImage()
{
    const PriceBlock &p = m_s.image.prices;
    m_codeShown = m_s.outputType() == 0 && (p[2] != kNotSet || p[3] != kNotSet || p[4] != kNotSet);
    enableAllPrices();
}

void MoneyModel::loadTypeDefaults(int type)
{
    std::copy_n(kDefaultPrices[type], 6, m_s.image.prices.begin());
    if (type != 0 && type != 4)
        m_codeShown = false;
    // The type's defaults can all be edited until price 1 or 4 is left.
    enableAllPrices();
}

void MoneyModel::rescaleResetWidth(bool seconds)
{
    quint8 &slot = m_s.image.prices[2];
    if (slot == kNotSet)
        return;
    // Steps of 10 ms to whole seconds and back, to the nearest.
    const long value = seconds ? std::lround(slot * 10 / 1000.0) : long(slot) * 100;
    slot = quint8(std::min(value, 254L));
}

void MoneyModel::EBase1Exit()
{
    if (!m_s.flags.editChanged)
        return;
    m_s.flags.editChanged = false;
    const QString text = m_s.text(QStringLiteral("EBase1")).trimmed();
    if (text.isEmpty() && m_s.checked(QStringLiteral("CounterEnable"))) {
        m_s.tell(messageText(Msg::WrongWayCounter));
        return; // the refill brings the old base back
    }
    const auto parsed = ParseDecimalWord(text);
    if (!parsed) {
        m_s.tell(messageText(Msg::ValueBetween0And255));
        return;
    }
    m_s.tell(messageText(Msg::ModifyingBase1));
    // Two equal bases stay equal; two different ones stay independent.
    if (m_s.valueWord(Val::Base2) == m_s.valueWord(Val::Base1)) {
        m_s.controls.setText(QStringLiteral("Ebase2"), m_s.text(QStringLiteral("EBase1")));
        m_s.setValueWord(Val::Base2, *parsed);
    }
    m_s.setValueWord(Val::Base1, *parsed);
    if (text.isEmpty()) {
        // No base, no counting.
        m_s.image.counters.fill(0);
        m_s.image.options[1] |= 0x40;
    }
}

bool MoneyModel::Ebase2Exit()
{
    if (!m_s.flags.editChanged)
        return false;
    const QString text = m_s.text(QStringLiteral("Ebase2")).trimmed();
    const auto parsed = ParseDecimalWord(text);
    if (!parsed) {
        // Shown back as it was; the general exit then keeps it.
        m_s.tell(messageText(Msg::ValueBetween0And255));
        m_s.controls.setText(QStringLiteral("Ebase2"), m_s.base(30).text);
        return true;
    }
    m_s.setValueWord(Val::Base2, *parsed);
    const quint16 base2 = number(*parsed);
    if (base2 != 0 && base2 != 0xFFFF) {
        m_s.tell(messageText(Msg::ModifyingBase2));
    } else {
        // A second base is never cleared by itself: it takes the first.
        m_s.controls.setText(QStringLiteral("Ebase2"), m_s.text(QStringLiteral("EBase1")));
        m_s.setValueWord(Val::Base2, m_s.valueWord(Val::Base1));
    }
    return true;
}

bool MoneyModel::multiPulseActive() const
{
    const ControlState &box = m_s.controls.state(QStringLiteral("CheckBox5"));
    return m_s.outputType() == 0 && box.visible && box.checked;
}

bool MoneyModel::multiPulseAllows(quint8 value, int substitute) const
{
    // A substitute worth nothing cannot divide a coin into pulses.
    const quint8 theirs = m_s.substituteValue(substitute);
    if (theirs == 0)
        return false;
    const int ratio = value / theirs;
    return ratio >= 1 && ratio <= EditorState::kMaxPulses;
}

void MoneyModel::Value0Exit(int k)
{
    if (!m_s.flags.editChanged)
        return;
    m_s.flags.editChanged = false;
    const QString box = QStringLiteral("Value%1").arg(k);
    bool notNumber = false;
    auto parsed = m_s.takeAmount(m_s.text(box), m_s.base(k), &notNumber);
    if (notNumber) {
        m_s.tell(messageText(Msg::ValueBetween0And255));
        parsed = kNotSet;
    }
    ChannelRecord &record = m_s.image.channels[std::size_t(k)];
    const int substitute = record[Rec::Substitute];
    // From the value side only a coin worth more than five of its substitute is refused; a
    // negative amount is refused before.
    bool refused = !parsed;
    if (parsed && multiPulseActive() && substitute >= 1 && substitute <= 254 &&
        substitute != k + 1) {
        const quint8 theirs = m_s.substituteValue(substitute);
        refused = theirs == 0 || *parsed / theirs > EditorState::kMaxPulses;
    }
    if (refused && parsed)
        m_s.tellMultiPulse(k + 1, substitute);
    else if (!refused)
        m_s.image.values[std::size_t(Val::Channel0 + k)] = record[Rec::Value] = *parsed;
    // Shown against base 1 whatever the channel, as the validator's tools always have.
    const DecimalWord base1 = m_s.base(0);
    m_s.controls.setText(box, FormatChannelValue(base1.decimals, EditorState::kValueWidth,
                                                 base1.magnitude, m_s.image.valueByte(k)));
}

bool MoneyModel::Sub0Exit(int k)
{
    if (!m_s.flags.editChanged)
        return false;
    const QString box = QStringLiteral("Sub%1").arg(k);
    bool ok = false;
    const int substitute = m_s.text(box).trimmed().toInt(&ok);
    if (ok && multiPulseActive() && substitute >= 1 && substitute <= 254 && substitute != k + 1 &&
        !multiPulseAllows(m_s.image.valueByte(k), substitute)) {
        m_s.tellMultiPulse(k + 1, substitute);
        m_s.controls.setText(box,
                             ByteToText(2, m_s.image.channels[std::size_t(k)][Rec::Substitute]));
        m_focusRequest = box;
        m_subAccepted = false;
        // Left without a pending change, so that the box can be left again.
        m_s.flags.editChanged = false;
        return false;
    }
    m_subAccepted = true;
    return true;
}

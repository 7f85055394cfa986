#include "CountersModel.h"

#include "Captions.h"
#include "Messages.h"

#include <algorithm>
#include <cmath>

namespace {

quint16 counterWord(const CounterBlock &block, int at)
{
    return quint16(block[std::size_t(at)] << 8 | block[std::size_t(at + 1)]);
}

QString limitText(quint16 limit)
{
    return limit == 0xFFFF ? QString() : QString::asprintf("%10d", int(limit));
}

} // namespace

void CountersModel::addControls()
{
    ControlSet &c = m_s.controls;
    const QString group = QStringLiteral("GroupCounters");
    c.add(group, ControlKind::Group);
    for (const char *name : {"LCounter1", "LCounterValue1", "LCounter2", "LCounterValue2"})
        c.add(QLatin1String(name), ControlKind::Label, group);
    c.add(QStringLiteral("CounterEnable"), ControlKind::Check, group);
    c.add(QStringLiteral("RazEnable"), ControlKind::Check, group);
    c.add(QStringLiteral("Button1"), ControlKind::Button, group);
    c.add(QStringLiteral("Button2"), ControlKind::Button, group);
    for (auto [label, box] :
         {std::pair{"LVendLimit1", "LabeledEdit3"}, std::pair{"LVendLimit2", "LabeledEdit4"}}) {
        c.add(QLatin1String(label), ControlKind::Label, group);
        c.add(QLatin1String(box), ControlKind::Edit, group);
        c.setBuddy(QLatin1String(box), QLatin1String(label));
    }
    retranslate();
}

void CountersModel::retranslate()
{
    ControlSet &c = m_s.controls;
    c.setText(QStringLiteral("GroupCounters"), captionText(Cap::CashCounters));
    c.setText(QStringLiteral("LCounter1"), captionText(Cap::Counter1));
    c.setText(QStringLiteral("LCounter2"), captionText(Cap::Counter2));
    c.setAccessibleName(QStringLiteral("LCounterValue1"), captionText(Cap::Counter1));
    c.setAccessibleName(QStringLiteral("LCounterValue2"), captionText(Cap::Counter2));
    c.setText(QStringLiteral("RazEnable"), captionText(Cap::Erasable));
    c.setText(QStringLiteral("LVendLimit1"), captionText(Cap::VendLimit1));
    c.setText(QStringLiteral("LVendLimit2"), captionText(Cap::VendLimit2));
    for (auto [button, counter] :
         {std::pair{"Button1", Cap::Counter1}, std::pair{"Button2", Cap::Counter2}}) {
        c.setText(QLatin1String(button), captionText(Cap::Reset));
        c.setAccessibleName(QLatin1String(button),
                            captionText(counter) + QLatin1Char(' ') + captionText(Cap::Reset));
    }
    display();
}

void CountersModel::display()
{
    ControlSet &c = m_s.controls;
    const CounterBlock &block = m_s.image.counters;
    const OptionWord &word = m_s.image.options;

    for (auto [label, at] : {std::pair{"LCounterValue1", 0}, std::pair{"LCounterValue2", 4}}) {
        const quint16 counter = counterWord(block, at);
        c.setText(QLatin1String(label),
                  counter == 0xFFFF ? captionText(Cap::Off) : QString::number(counter));
    }
    for (auto [box, at] : {std::pair{"LabeledEdit3", 2}, std::pair{"LabeledEdit4", 6}}) {
        c.setText(QLatin1String(box), limitText(counterWord(block, at)));
    }
    // Counting is on while bit 6 of the second byte is clear; bit 5 set makes the counters
    // erasable. "Actived" checked again while the counters are not erasable stays checked; its
    // caption still says what the validator does.
    const bool counting = !(word[1] & 0x40);
    const bool erasable = word[1] & 0x20;
    c.setChecked(QStringLiteral("CounterEnable"), counting || (m_activedHeld && !erasable));
    c.setText(QStringLiteral("CounterEnable"),
              captionText(counting ? Cap::Actived : Cap::Desactived));
    c.setChecked(QStringLiteral("RazEnable"), erasable);

    // The vend limits belong to the two-price totalizer and its limit switches.
    const bool twoPrices = m_s.outputType() == 1;
    c.setVisible(QStringLiteral("LabeledEdit3"),
                 twoPrices && m_s.checked(QStringLiteral("ChkLimit1")));
    c.setVisible(QStringLiteral("LVendLimit1"),
                 m_s.controls.state(QStringLiteral("LabeledEdit3")).visible);
    c.setVisible(QStringLiteral("LabeledEdit4"),
                 twoPrices && m_s.checked(QStringLiteral("ChkLimit2")));
    c.setVisible(QStringLiteral("LVendLimit2"),
                 m_s.controls.state(QStringLiteral("LabeledEdit4")).visible);
    // A counter can be reset only while the counters are erasable.
    c.setVisible(QStringLiteral("Button1"), erasable);
    c.setVisible(QStringLiteral("Button2"), erasable && twoPrices);
}

void CountersModel::CounterEnableClick()
{
    // Counting cannot be switched off unless the counters are erasable: the box is checked
    // again and nothing else happens.
    if (!m_s.checked(QStringLiteral("RazEnable"))) {
        m_activedHeld = true;
        return;
    }
    OptionWord &word = m_s.image.options;
    word[1] ^= 0x40;
    m_s.flags.configModified = true;
    if (word[1] & 0x40)
        return;
    // Counting starts: counters not set start from zero.
    CounterBlock &block = m_s.image.counters;
    auto unset = [&](int from, int to) {
        return std::all_of(block.begin() + from, block.begin() + to,
                           [](quint8 b) { return b == 0xFF; });
    };
    bool zeroed = false;
    if (m_s.outputType() == 1) {
        for (int at : {0, 4}) {
            if (unset(at, at + 2)) {
                block[std::size_t(at)] = block[std::size_t(at + 1)] = 0;
                zeroed = true;
            }
        }
    } else if (unset(0, 4)) {
        block.fill(0);
        zeroed = true;
    }
    if (zeroed)
        m_s.flags.editChanged = true;
}

void CountersModel::RazEnableClick()
{
    OptionWord &word = m_s.image.options;
    word[1] ^= 0x20;
    // Counters that cannot be erased show "Actived" checked; counting itself (bit 6) is left
    // as it was.
    m_activedHeld = !(word[1] & 0x20);
    m_s.flags.configModified = true;
}

void CountersModel::resetClick(int counter)
{
    // The counter reaches the validator with the next full write.
    CounterBlock &block = m_s.image.counters;
    const int at = counter == 1 ? 0 : 4;
    block[std::size_t(at)] = block[std::size_t(at + 1)] = 0;
    m_s.flags.configModified = true;
}

void CountersModel::limitExit(int limit)
{
    if (!m_s.flags.editChanged)
        return;
    m_s.flags.editChanged = false;
    const QString box =
        limit == 1 ? QStringLiteral("LabeledEdit3") : QStringLiteral("LabeledEdit4");
    const int at = limit == 1 ? 2 : 6;
    CounterBlock &block = m_s.image.counters;
    QString text = m_s.text(box).trimmed();
    text.replace(encodingSettings().decimalChar, u'.');
    // An empty box is a limit not set.
    bool ok = text.isEmpty();
    const double value = ok ? 65535.0 : text.toDouble(&ok);
    if (!ok || !std::isfinite(value)) {
        m_s.tell(messageText(Msg::ValueBetween0And255));
        m_s.controls.setText(box, limitText(counterWord(block, at))); // the old limit stays
        return;
    }
    const qint64 rounded = std::llround(std::clamp(value, -1e15, 1e15));
    block[std::size_t(at)] = quint8((rounded >> 8) & 0xFF);
    block[std::size_t(at + 1)] = quint8(rounded & 0xFF);
    m_s.flags.configModified = true;
    // A limit of 65535 or more leaves the box empty, whatever low 16 bits were stored.
    m_s.controls.setText(box, rounded < 65535 ? QString::asprintf("%10d", int(quint16(rounded)))
                                              : QString());
}

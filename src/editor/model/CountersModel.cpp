#include "CountersModel.h"

#include "Captions.h"

namespace {

quint16 counterWord(const CounterBlock &block, int at)
{
    return quint16(block[std::size_t(at)] << 8 | block[std::size_t(at + 1)]);
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
    for (auto [label, box] :
         {std::pair{"LVendLimit1", "LabeledEdit3"}, std::pair{"LVendLimit2", "LabeledEdit4"}}) {
        c.add(QLatin1String(label), ControlKind::Label, group);
        c.add(QLatin1String(box), ControlKind::Edit, group);
        c.setBuddy(QLatin1String(box), QLatin1String(label));
        c.setReadOnly(QLatin1String(box), true);
    }
    // The counter rules come with the counters group; until then it is shown only.
    c.setEnabled(QStringLiteral("CounterEnable"), false);
    c.setEnabled(QStringLiteral("RazEnable"), false);
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
        const quint16 limit = counterWord(block, at);
        c.setText(QLatin1String(box),
                  limit == 0xFFFF ? QString() : QString::asprintf("%10d", int(limit)));
    }
    // Counting is on while bit 6 of the second byte is clear; bit 5 set makes the counters
    // erasable.
    const bool counting = !(word[1] & 0x40);
    c.setChecked(QStringLiteral("CounterEnable"), counting);
    c.setText(QStringLiteral("CounterEnable"),
              captionText(counting ? Cap::Actived : Cap::Desactived));
    c.setChecked(QStringLiteral("RazEnable"), word[1] & 0x20);

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
}

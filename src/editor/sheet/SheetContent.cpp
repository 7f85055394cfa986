#include "SheetContent.h"

#include "Captions.h"
#include "EditorModel.h"

namespace {

// A control shows when it and every container it sits in show.
bool shown(const ControlSet &controls, const QString &name)
{
    for (const Control *c = controls.find(name); c;
         c = c->parent.isEmpty() ? nullptr : controls.find(c->parent)) {
        if (!c->state.visible)
            return false;
    }
    return controls.contains(name);
}

QString text(const ControlSet &controls, const char *name)
{
    return controls.state(QLatin1String(name)).text.trimmed();
}

// A box with its caption, when the editor shows it.
void addBox(SheetSection &section, const ControlSet &controls, const char *label, const char *box)
{
    if (shown(controls, QLatin1String(box)))
        section.fields.append({text(controls, label), text(controls, box), std::nullopt});
}

// The item a radio group has chosen, under the group's caption.
void addChoice(SheetSection &section, const ControlSet &controls, const char *group)
{
    const ControlState &radio = controls.state(QLatin1String(group));
    if (!shown(controls, QLatin1String(group)) || radio.itemIndex < 0 ||
        radio.itemIndex >= radio.items.size())
        return;
    section.fields.append({radio.text, radio.items.at(radio.itemIndex), std::nullopt});
}

SheetSection identity(const ControlSet &c)
{
    SheetSection section{c.state(QStringLiteral("GroupIdent")).text, {}};
    for (auto [label, box] :
         {std::pair{"LIdent", "EIdent"}, std::pair{"LDescription", "EDescription"},
          std::pair{"LSerial", "ESerial"}, std::pair{"LVersion", "LVERSIONH"},
          std::pair{"LFirmwareDate", "LVERSIONS"}, std::pair{"LProgrammingDate", "LDatePgm"},
          std::pair{"LProductionDate", "LDateProduct"}})
        section.fields.append({text(c, label), text(c, box), std::nullopt});
    return section;
}

SheetSection prices(const ControlSet &c)
{
    SheetSection section{c.state(QStringLiteral("GroupPrices")).text, {}};
    for (int slot = 0; slot < 6; ++slot) {
        const QByteArray label = QStringLiteral("LValueP%1").arg(slot + 1).toLatin1();
        addBox(section, c, label.constData(), MoneyModel::kPriceBoxes[slot]);
    }
    // The code table of the validator output, when it is switched on.
    if (shown(c, QStringLiteral("ChkCode")) && c.state(QStringLiteral("ChkCode")).checked) {
        for (const char *box : {"Edit1", "Edit2", "Edit3"}) {
            if (shown(c, QLatin1String(box)))
                section.fields.append(
                    {c.state(QLatin1String(box)).accessibleName, text(c, box), std::nullopt});
        }
    }
    return section;
}

SheetSection bases(const ControlSet &c)
{
    SheetSection section{c.state(QStringLiteral("GroupBase")).text, {}};
    addBox(section, c, "LBase1", "EBase1");
    addBox(section, c, "LBase2", "Ebase2");
    addBox(section, c, "LConversion", "EConversion");
    return section;
}

SheetSection output(const ControlSet &c)
{
    SheetSection section{c.state(QStringLiteral("GroupType")).text, {}};
    addChoice(section, c, "GroupType");
    addChoice(section, c, "GroupTypeLight");
    addChoice(section, c, "GroupSortie");
    addBox(section, c, "GroupBits", "LOptionHex");
    // The caption of the group stands for the type's radio group on the sheet.
    for (SheetField &field : section.fields) {
        if (field.label == section.title)
            field.label.clear();
    }
    return section;
}

SheetSection options(const ControlSet &c)
{
    SheetSection section{c.state(QStringLiteral("GroupOptions")).text, {}};
    for (int i = 0; i < OptionsModel::kCheckBoxCount; ++i) {
        const QString box = QLatin1String(OptionsModel::kCheckBoxes[i]);
        if (shown(c, box) && c.state(box).checked)
            section.fields.append({c.state(box).text, {}, true});
    }
    if (section.fields.isEmpty())
        section.fields.append({captionText(Cap::SheetNoOption), {}, std::nullopt});
    return section;
}

SheetSection counters(const ControlSet &c)
{
    SheetSection section{c.state(QStringLiteral("GroupCounters")).text, {}};
    addBox(section, c, "LCounter1", "LCounterValue1");
    addBox(section, c, "LCounter2", "LCounterValue2");
    for (const char *box : {"CounterEnable", "RazEnable"}) {
        if (shown(c, QLatin1String(box)))
            section.fields.append({text(c, box), {}, c.state(QLatin1String(box)).checked});
    }
    addBox(section, c, "LVendLimit1", "LabeledEdit3");
    addBox(section, c, "LVendLimit2", "LabeledEdit4");
    return section;
}

} // namespace

SheetContent sheetContent(const EditorModel &editor)
{
    const ControlSet &c = editor.controls();
    const ConfigImage &image = editor.image();
    SheetContent sheet;
    sheet.title = captionText(Cap::SheetTitle);
    sheet.identity = identity(c);

    sheet.channelsTitle = captionText(Cap::SheetChannels);
    sheet.channelHeaders.append(captionText(Cap::SheetChannel));
    for (int col = 0; col < ChannelGridModel::kColumns; ++col)
        sheet.channelHeaders.append(captionText(Cap(int(Cap::ColHfuLowMin) + col)));
    for (int k = 0; k < image.channelCount(); ++k) {
        if (!channelInUse(image.channels[std::size_t(k)].data()))
            continue;
        SheetChannel channel;
        channel.number = k + 1;
        for (const ChannelGridModel::Column &column : ChannelGridModel::kColumnTable) {
            const QString name = channelControl(column.prefix, k);
            if (QLatin1String(column.prefix) == QLatin1String("Enable"))
                channel.enabled = c.state(name).checked;
            else if (QLatin1String(column.prefix) == QLatin1String("Value"))
                channel.value = c.state(name).text.trimmed();
            else if (QLatin1String(column.prefix) == QLatin1String("Sub"))
                channel.substitute = c.state(name).text.trimmed();
            else
                channel.windows.append(c.state(name).text.trimmed());
        }
        sheet.channels.append(channel);
    }
    sheet.noChannel = captionText(Cap::SheetNoChannel);

    sheet.settings = {prices(c), bases(c), output(c), options(c), counters(c)};
    sheet.chartTitle = captionText(Cap::SheetChart);
    return sheet;
}

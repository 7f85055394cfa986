#include "ChannelCopyModel.h"

#include "Captions.h"
#include "EditorState.h"
#include "Messages.h"

#include <algorithm>

ChannelCopyModel::ChannelCopyModel(EditorState &editor, std::function<void()> refill)
    : m_editor(editor), m_refill(std::move(refill))
{
    ControlSet &c = m_controls;
    c.add(QStringLiteral("TFormTransfert"), ControlKind::Label);
    c.add(QStringLiteral("GroupSource"), ControlKind::Group);
    c.add(QStringLiteral("LSource"), ControlKind::Label, QStringLiteral("GroupSource"));
    c.add(QStringLiteral("SpinEditS"), ControlKind::Edit, QStringLiteral("GroupSource"));
    c.add(QStringLiteral("CheckBox1"), ControlKind::Check, QStringLiteral("GroupSource"));
    c.add(QStringLiteral("GroupDestination"), ControlKind::Group);
    c.add(QStringLiteral("LDestination"), ControlKind::Label, QStringLiteral("GroupDestination"));
    c.add(QStringLiteral("SpinEditD"), ControlKind::Edit, QStringLiteral("GroupDestination"));
    c.add(QStringLiteral("CheckBox2"), ControlKind::Check, QStringLiteral("GroupDestination"));
    c.add(QStringLiteral("BitBtn2"), ControlKind::Button);
    c.add(QStringLiteral("BitBtn1"), ControlKind::Button);
    c.setBuddy(QStringLiteral("SpinEditS"), QStringLiteral("LSource"));
    c.setBuddy(QStringLiteral("SpinEditD"), QStringLiteral("LDestination"));
    retranslate();
    open();
    c.takeChanged();
}

void ChannelCopyModel::retranslate()
{
    ControlSet &c = m_controls;
    c.setText(QStringLiteral("TFormTransfert"), captionText(Cap::CopyTitle));
    c.setText(QStringLiteral("GroupSource"), captionText(Cap::CopySource));
    c.setText(QStringLiteral("GroupDestination"), captionText(Cap::CopyDestination));
    c.setText(QStringLiteral("LSource"), captionText(Cap::CopyChannel));
    c.setText(QStringLiteral("LDestination"), captionText(Cap::CopyChannel));
    c.setAccessibleName(QStringLiteral("SpinEditS"),
                        captionText(Cap::CopySource) + captionText(Cap::CopyChannel));
    c.setAccessibleName(QStringLiteral("SpinEditD"),
                        captionText(Cap::CopyDestination) + captionText(Cap::CopyChannel));
    c.setText(QStringLiteral("CheckBox1"), captionText(Cap::ClearChannel));
    c.setText(QStringLiteral("CheckBox2"), captionText(Cap::OnlyValues));
    c.setText(QStringLiteral("BitBtn2"), captionText(Cap::Transfert));
    c.setText(QStringLiteral("BitBtn1"), captionText(Cap::Exit));
}

void ChannelCopyModel::open()
{
    // Kept as the validators' tools always had it: (1 - Light) x 35 + 24.
    m_maximum = (1 - int(m_editor.image.isLight())) * 35 + 24;
    setSource(1);
    setDestination(1);
    setClear(false);
    setValuesOnly(false);
}

void ChannelCopyModel::setSource(int channel)
{
    m_controls.setText(QStringLiteral("SpinEditS"),
                       QString::number(std::clamp(channel, 1, m_maximum)));
}

void ChannelCopyModel::setDestination(int channel)
{
    m_controls.setText(QStringLiteral("SpinEditD"),
                       QString::number(std::clamp(channel, 1, m_maximum)));
}

void ChannelCopyModel::setClear(bool on)
{
    m_controls.setChecked(QStringLiteral("CheckBox1"), on);
}

void ChannelCopyModel::setValuesOnly(bool on)
{
    m_controls.setChecked(QStringLiteral("CheckBox2"), on);
}

int ChannelCopyModel::spinValue(const QString &name) const
{
    return m_controls.state(name).text.toInt();
}

void ChannelCopyModel::BitBtn2Click()
{
    Transfert(spinValue(QStringLiteral("SpinEditS")), spinValue(QStringLiteral("SpinEditD")),
              m_controls.state(QStringLiteral("CheckBox1")).checked,
              m_controls.state(QStringLiteral("CheckBox2")).checked);
}

bool ChannelCopyModel::Transfert(int source, int destination, bool clear, bool valuesOnly)
{
    if (source == destination) {
        m_editor.tell(messageText(Msg::ImpossibleDisplacement));
        return false;
    }
    ConfigImage &image = m_editor.image;
    const int s = source - 1;
    const int d = destination - 1;
    ChannelRecord &from = image.channels[std::size_t(s)];
    ChannelRecord &to = image.channels[std::size_t(d)];
    // The enable mask is what the form shows again: it follows the copied and cleared flags.
    auto setEnabled = [&](int k, bool on) {
        quint8 &byte = image.enable[std::size_t(7 - k / 8)];
        byte = on ? quint8(byte | (1 << (k % 8))) : quint8(byte & ~(1 << (k % 8)));
    };
    if (valuesOnly) {
        // Only the seven windows: the destination keeps its substitute, enable and value.
        std::copy_n(from.begin(), 14, to.begin());
    } else {
        to = from;
        image.values[std::size_t(Val::Channel0 + d)] = image.valueByte(s);
        setEnabled(d, image.enableBit(s));
    }
    if (clear) {
        from.fill(255);
        image.values[std::size_t(Val::Channel0 + s)] = 255;
        setEnabled(s, false);
    }
    m_editor.flags.configModified = true;
    if (m_refill)
        m_refill();
    m_editor.tell(messageText(Msg::AllDataTransferred));
    return true;
}

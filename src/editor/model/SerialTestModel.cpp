#include "SerialTestModel.h"

#include "Captions.h"
#include "Commands.h"
#include "EditorServices.h"
#include "TMonnayeur.h"
#include "Transport.h"

void SerialTestModel::addControls()
{
    ControlSet &c = m_s.controls;
    const QString group = QStringLiteral("GroupBox7");
    c.add(group, ControlKind::Group);
    c.add(QStringLiteral("BtnTest"), ControlKind::Button, group);
    for (const char *name :
         {"LTestChannel", "LTestChannelValue", "LTestAmount", "LTestAmountValue"})
        c.add(QLatin1String(name), ControlKind::Label, group);
    retranslate();
    setLink(nullptr);
}

void SerialTestModel::retranslate()
{
    ControlSet &c = m_s.controls;
    c.setText(QStringLiteral("GroupBox7"), captionText(Cap::TestValue));
    c.setText(QStringLiteral("LTestChannel"), captionText(Cap::TestChannel));
    c.setText(QStringLiteral("LTestAmount"), captionText(Cap::TestAmount));
    c.setAccessibleName(QStringLiteral("LTestChannelValue"), captionText(Cap::TestChannel));
    c.setAccessibleName(QStringLiteral("LTestAmountValue"), captionText(Cap::TestAmount));
    showRunning();
}

void SerialTestModel::showGate(bool open)
{
    m_s.controls.setVisible(QStringLiteral("GroupBox7"), open);
}

void SerialTestModel::setLink(TMonnayeur *link)
{
    m_link = link;
    // Without a validator there is nothing to test.
    m_s.controls.setEnabled(QStringLiteral("BtnTest"), link != nullptr);
}

void SerialTestModel::showRunning()
{
    const QString text = captionText(m_running ? Cap::TestStop : Cap::TestStart);
    m_s.controls.setText(QStringLiteral("BtnTest"), text);
    m_s.controls.setAccessibleName(QStringLiteral("BtnTest"),
                                   captionText(Cap::TestValue) + QLatin1Char(' ') + text);
}

void SerialTestModel::BtnTestClick()
{
    if (!m_link)
        return;
    if (m_running) {
        stop();
        return;
    }
    if (m_link->ExecuteCommand(Cmd::Execute24)) {
        m_running = true;
        m_s.controls.setText(QStringLiteral("LTestChannelValue"), QString());
        m_s.controls.setText(QStringLiteral("LTestAmountValue"), QString());
        showRunning();
    }
}

void SerialTestModel::stop()
{
    if (m_link)
        m_link->ExecuteCommand(Cmd::Execute29);
    m_running = false;
    showRunning();
}

void SerialTestModel::showCoin(int channelNumber)
{
    if (channelNumber < 1 || channelNumber > kChannels)
        return;
    const int k = channelNumber - 1;
    const DecimalWord base = m_s.base(k);
    m_s.controls.setText(QStringLiteral("LTestChannelValue"), QString::number(channelNumber));
    m_s.controls.setText(
        QStringLiteral("LTestAmountValue"),
        FormatChannelValue(base.decimals, 6, base.magnitude, m_s.image.valueByte(k)).trimmed());
}

void SerialTestModel::tick(EditorServices *services)
{
    Transport *port = m_link ? m_link->transport() : nullptr;
    // Between two exchanges of the editor's own operations the timer keeps off the line.
    if (!port || !port->isOpen() || m_link->betweenExchangesRunning())
        return;
    // Only what is already waiting (no wait for a first byte): the timer never blocks the form.
    QByteArray bytes;
    for (QByteArray one = port->read(1, 0); !one.isEmpty() && bytes.size() < 64;
         one = port->read(1, 0))
        bytes += one;

    for (const char byte : bytes) {
        if (m_running) {
            showCoin(quint8(byte));
        } else if (quint8(byte) == kFirmwareRequest) {
            port->write(QByteArray(1, char(kFirmwareRequestAnswer)));
            if (services)
                services->firmwareRequested(*m_link);
            return;
        }
    }
}

#include "PortChoice.h"

#include "Messages.h"
#include "PortMap.h"
#include "SerialTransport.h"
#include "TMonnayeur.h"
#include "UserPrompt.h"

QString SerialPortOpener::systemPort(int n) const
{
    return PortMap::systemPortFor(n);
}

bool SerialPortOpener::PortComFree(int n)
{
    m_denied = false;
    const QString port = systemPort(n);
    if (port.isEmpty())
        return false;
    SerialTransport probe;
    const bool free = probe.open(port);
    m_denied = probe.permissionDenied();
    probe.close();
    return free;
}

std::unique_ptr<Transport> SerialPortOpener::ComInit(int n)
{
    m_denied = false;
    const QString port = systemPort(n);
    if (port.isEmpty())
        return nullptr;
    auto transport = std::make_unique<SerialTransport>();
    if (!transport->open(port)) {
        m_denied = transport->permissionDenied();
        return nullptr;
    }
    transport->setReadTimeout(readTimeoutMs());
    return transport;
}

void CloseCom(std::unique_ptr<Transport> &transport)
{
    if (transport)
        transport->close();
    transport.reset();
}

ProbeResult FindValidatorPort(PortOpener &opener)
{
    ProbeResult result;
    SilentPrompt silent;
    while (!result.answered && result.comPortNumber < 9) {
        ++result.comPortNumber;
        if (!opener.PortComFree(result.comPortNumber)) {
            result.denied = result.denied || opener.lastOpenDenied();
            continue;
        }
        std::unique_ptr<Transport> transport = opener.ComInit(result.comPortNumber);
        result.items.append(QStringLiteral("Com%1").arg(result.comPortNumber));
        if (transport) {
            TMonnayeur link(transport.get(), &silent, quint8(result.comPortNumber));
            result.answered = link.CheckPresence(false);
        }
        CloseCom(transport);
    }
    return result;
}

bool PortFromCommandLine(const QStringList &arguments, int &comPortNumber)
{
    for (const QString &argument : arguments) {
        QString word = argument.toUpper();
        while (word.startsWith(u'/') || word.startsWith(u'-'))
            word.remove(0, 1);
        if (word.size() != 4 || !word.startsWith(QLatin1String("COM")))
            continue;
        const QChar digit = word.at(3);
        if (digit < u'1' || digit > u'9')
            continue;
        comPortNumber = digit.digitValue();
        return false;
    }
    return true;
}

std::optional<int> ComPortFromName(const QString &name)
{
    if (name.size() < 4 || !name.startsWith(QLatin1String("COM"), Qt::CaseInsensitive))
        return std::nullopt;
    int number = 0;
    for (qsizetype i = 3; i < name.size(); ++i) {
        const QChar c = name.at(i);
        if (c < u'0' || c > u'9')
            return std::nullopt;
        number = number * 10 + (c.unicode() - u'0');
        if (number > kHighestComPort)
            return std::nullopt;
    }
    if (number < 1)
        return std::nullopt;
    return number;
}

std::optional<OpenedLink> OpenValidatorLink(PortOpener &opener, const QStringList &arguments,
                                            PortDialog *dialog, UserPrompt *prompt)
{
    const ProbeResult probe = FindValidatorPort(opener);
    int port = probe.comPortNumber;
    if (!probe.answered && PortFromCommandLine(arguments, port)) {
        if (!dialog)
            return std::nullopt;
        if (probe.denied && prompt)
            prompt->tell(messageText(Msg::PortPermissionDenied), UserPrompt::Kind::Information);
        const auto index = dialog->choosePort(probe.items, probe.items.isEmpty() ? -1 : 0);
        if (!index)
            return std::nullopt;
        // The position in the list, not the number shown in the item.
        port = *index + 1;
    }
    OpenedLink link;
    link.comPortNumber = port;
    link.transport = opener.ComInit(port);
    if (!link.transport) {
        if (prompt) {
            prompt->tell(messageText(Msg::PortNotFree, {QString::number(port)}),
                         UserPrompt::Kind::Error);
            if (opener.lastOpenDenied())
                prompt->tell(messageText(Msg::PortPermissionDenied), UserPrompt::Kind::Information);
        }
        return std::nullopt;
    }
    return link;
}

#include "LinkSource.h"

#include "SimTransport.h"

ProbingLinkSource::ProbingLinkSource(PortOpener *opener, QStringList arguments, PortDialog *dialog,
                                     UserPrompt *prompt)
    : m_opener(opener), m_arguments(std::move(arguments)), m_dialog(dialog), m_prompt(prompt)
{}

std::optional<OpenedLink> ProbingLinkSource::open()
{
    return OpenValidatorLink(*m_opener, m_arguments, m_dialog, m_prompt);
}

std::optional<OpenedLink> SimulatedLinkSource::open()
{
    OpenedLink link;
    auto port = std::make_unique<SimTransport>(m_device);
    port->followLine(m_line);
    link.transport = std::move(port);
    link.comPortNumber = kPort;
    return link;
}

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
    link.transport = std::make_unique<SimTransport>(m_device);
    link.comPortNumber = kPort;
    return link;
}

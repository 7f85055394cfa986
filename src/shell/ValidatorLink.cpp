#include "ValidatorLink.h"

ValidatorLink::~ValidatorLink()
{
    close();
}

bool ValidatorLink::open(LinkSource &source)
{
    close();
    source.setPortTimeout(m_portTimeoutMs);
    std::optional<OpenedLink> opened = source.open();
    if (!opened || !opened->transport)
        return false;
    m_transport = std::move(opened->transport);
    m_transport->setReadTimeout(m_portTimeoutMs);
    m_comPortNumber = opened->comPortNumber;
    m_monnayeur =
        std::make_unique<TMonnayeur>(m_transport.get(), m_prompt, quint8(m_comPortNumber));
    m_monnayeur->setBetweenExchanges(m_betweenExchanges);
    return true;
}

void ValidatorLink::close()
{
    m_monnayeur.reset();
    CloseCom(m_transport);
}

void ValidatorLink::setPortTimeout(int ms)
{
    m_portTimeoutMs = ms;
    if (m_transport)
        m_transport->setReadTimeout(ms);
}

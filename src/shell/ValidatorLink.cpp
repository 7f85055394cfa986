#include "ValidatorLink.h"

ValidatorLink::~ValidatorLink()
{
    close();
}

bool ValidatorLink::open(LinkSource &source)
{
    close();
    std::optional<OpenedLink> opened = source.open();
    if (!opened || !opened->transport)
        return false;
    m_transport = std::move(opened->transport);
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

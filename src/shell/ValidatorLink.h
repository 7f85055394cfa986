#pragma once

#include "LinkSource.h"
#include "TMonnayeur.h"
#include "Transport.h"

#include <functional>
#include <memory>

class UserPrompt;

// The open link of the program: the port and the link object, from start-up (and each Back)
// until the main window closes.
class ValidatorLink final
{
public:
    explicit ValidatorLink(UserPrompt *prompt) : m_prompt(prompt) {}
    ~ValidatorLink();
    Q_DISABLE_COPY_MOVE(ValidatorLink)

    // OpenValidatorLink: false when no port could be opened.
    bool open(LinkSource &source);
    // CloseCom and free the link object.
    void close();

    bool isOpen() const { return m_transport != nullptr; }
    // The "Port time-out": the wait for a count echo or a reply's first byte, on the open port
    // and on every port opened later.
    void setPortTimeout(int ms);
    int comPortNumber() const { return m_comPortNumber; }
    // Runs between two exchanges of every link this object opens (see
    // TMonnayeur::setBetweenExchanges).
    void setBetweenExchanges(std::function<void()> hook) { m_betweenExchanges = std::move(hook); }
    Transport *transport() const { return m_transport.get(); }
    TMonnayeur *monnayeur() const { return m_monnayeur.get(); }

private:
    UserPrompt *m_prompt;
    std::unique_ptr<Transport> m_transport;
    std::unique_ptr<TMonnayeur> m_monnayeur;
    int m_comPortNumber = 0;
    int m_portTimeoutMs = Transport::kDefaultReadTimeoutMs;
    std::function<void()> m_betweenExchanges;
};

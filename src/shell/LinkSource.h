#pragma once

#include "PortChoice.h"
#include "Transport.h"

#include <QStringList>
#include <optional>

class UserPrompt;
class VirtualValidator;
struct LineProfile;

// Where the link comes from: the probe of COM1 to COM9, the command line and the port dialog,
// or a virtual validator.
class LinkSource
{
public:
    virtual ~LinkSource() = default;
    // Nothing when the program has to end (Exit in the port dialog, a port that cannot be
    // opened: its message has been shown).
    virtual std::optional<OpenedLink> open() = 0;
    // The wait for a count echo or a reply's first byte on the ports it opens, the probe's too.
    virtual void setPortTimeout(int ms) { Q_UNUSED(ms) }
};

// The probe, then the command line, then the port dialog.
class ProbingLinkSource final : public LinkSource
{
public:
    ProbingLinkSource(PortOpener *opener, QStringList arguments, PortDialog *dialog,
                      UserPrompt *prompt);
    std::optional<OpenedLink> open() override;
    void setPortTimeout(int ms) override { m_opener->setReadTimeout(ms); }

private:
    PortOpener *m_opener;
    QStringList m_arguments;
    PortDialog *m_dialog;
    UserPrompt *m_prompt;
};

// The in-process virtual validator on COM1, without a probe, on a line whose roughness the
// bench panel may change while the link is open.
class SimulatedLinkSource final : public LinkSource
{
public:
    explicit SimulatedLinkSource(VirtualValidator *device, const LineProfile *line = nullptr)
        : m_device(device), m_line(line)
    {}
    std::optional<OpenedLink> open() override;

    static constexpr int kPort = 1;

private:
    VirtualValidator *m_device;
    const LineProfile *m_line;
};

#pragma once

#include "Transport.h"

#include <QStringList>
#include <memory>
#include <optional>

class UserPrompt;

// Opens ports by number; the serial implementation goes through the port map, tests use
// virtual validators.
class PortOpener
{
public:
    virtual ~PortOpener() = default;
    // PortComFree: COMn exists and is not in use.
    virtual bool PortComFree(int n) = 0;
    // ComInit: opens COMn at 9600 8N1; nullptr when it cannot (the handle -1).
    virtual std::unique_ptr<Transport> ComInit(int n) = 0;
    // The last PortComFree or ComInit failed because the system refused this user the port.
    virtual bool lastOpenDenied() const { return false; }
    // The wait for a count echo or a reply's first byte on the ports opened from now on.
    void setReadTimeout(int ms) { m_readTimeoutMs = ms; }
    int readTimeoutMs() const { return m_readTimeoutMs; }

private:
    int m_readTimeoutMs = Transport::kDefaultReadTimeoutMs;
};

// Opens COMn at the system port that systemPort names (the port map by default).
class SerialPortOpener : public PortOpener
{
public:
    bool PortComFree(int n) override;
    std::unique_ptr<Transport> ComInit(int n) override;
    bool lastOpenDenied() const override { return m_denied; }

protected:
    // Empty when COMn has no system port.
    virtual QString systemPort(int n) const;

private:
    bool m_denied = false;
};

void CloseCom(std::unique_ptr<Transport> &transport);

// The port dialog: shows the probed items and returns the index of the item chosen with OK, or
// nothing for Exit. (It shows "Select port !!!" itself while nothing is selected.)
class PortDialog
{
public:
    virtual ~PortDialog() = default;
    virtual std::optional<int> choosePort(const QStringList &items, int selected) = 0;
};

struct ProbeResult
{
    bool answered = false;
    int comPortNumber = 0; // the port that answered, or the last one tried
    QStringList items;     // "Com1", "Com2", ... for every free port tried
    bool denied = false;   // the system refused this user one of the ports
};

// Probes COM1 to COM9 with the connect command, stopping at the first port that answers.
ProbeResult FindValidatorPort(PortOpener &opener);

// True when no parameter names a port; otherwise sets comPortNumber from the first parameter
// that is COM and one digit, in any case, possibly after a switch character (COM2, /com2 and
// -COM2 give 2). Other words, COM12, COM1X and xCOM1 among them, are ignored, never read as
// the port of their first digit.
bool PortFromCommandLine(const QStringList &arguments, int &comPortNumber);

// The number of a port named COM followed by a number of any length (COM4, com12, COM0012),
// 1 to kHighestComPort; nothing for any other text (COM, COM0, COM1X, xCOM1, COM 4).
inline constexpr int kHighestComPort = 255;
std::optional<int> ComPortFromName(const QString &name);

struct OpenedLink
{
    std::unique_ptr<Transport> transport;
    int comPortNumber = 0;
};

// Probe, then command line, then dialog; opens the chosen port. Nothing on Exit in the dialog
// or when the port cannot be opened ("Comunication Port COM%d isn't free or Setting error.",
// followed by how to get the right to it when the system refused it). Before the dialog, whose
// list leaves out the ports the system refused, the same hint is given when there were any.
std::optional<OpenedLink> OpenValidatorLink(PortOpener &opener, const QStringList &arguments,
                                            PortDialog *dialog, UserPrompt *prompt);

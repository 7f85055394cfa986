#pragma once

#include "LineTiming.h"

#include <QByteArray>
#include <QString>
#include <csignal>
#include <functional>
#include <vector>

class VirtualValidator;
struct SimExchange;

// Serves a virtual validator on a pseudo-terminal, so that the program (or any serial tool)
// can open its slave side like a real port. The server keeps its own handle on the slave, so
// a host closing and reopening the port never ends the service.
class PtyServer final
{
public:
    PtyServer(VirtualValidator *device, LineTiming *timing);
    ~PtyServer();
    Q_DISABLE_COPY_MOVE(PtyServer)

    // Opens the pseudo-terminal in raw mode; on failure says why in *error.
    bool open(QString *error);
    // The path the host opens, such as /dev/pts/3.
    const QString &slavePath() const { return m_slavePath; }
    // Prints each exchange to stderr.
    void setVerbose(bool on) { m_verbose = on; }
    // Told every exchange the device answered, once it is complete.
    void setExchangeSink(std::function<void(const SimExchange &)> sink)
    {
        m_exchanged = std::move(sink);
    }

    // Runs `action` on the serving loop once `after` has passed, such as a request the device
    // makes unasked. Call before serve().
    void runAfter(std::chrono::milliseconds after, std::function<void()> action);

    // Reads lines from `fd` (standard input) on the serving loop, between exchanges, and hands
    // each to `onLine` without its line end. The end of the input ends the reading, not the
    // service. Call before serve().
    void setCommandInput(int fd, std::function<void(const QByteArray &line)> onLine);

    // Serves until *stop becomes non-zero (set from a signal handler). Bytes the device sends
    // unasked go out as soon as they are made, whether the host is sending or not.
    void serve(const volatile std::sig_atomic_t *stop);

private:
    struct TimedAction
    {
        LineTiming::Clock::time_point due;
        std::function<void()> action;
    };

    void runDueActions();
    void readCommands();
    void collectUnsolicited();
    void hostBytes(const char *bytes, int n);
    void sendDue();
    void report();

    VirtualValidator *m_device;
    LineTiming *m_timing;
    int m_master = -1;
    int m_slave = -1;
    QString m_slavePath;
    bool m_verbose = false;
    std::function<void(const SimExchange &)> m_exchanged;
    int m_printedExchanges = 0;
    int m_reportedBlocks = 0;
    std::vector<TimedAction> m_actions;
    int m_input = -1;
    std::function<void(const QByteArray &)> m_onLine;
    QByteArray m_partialLine;
    // A background job on a terminal may not read it; it tries again after a while.
    LineTiming::Clock::time_point m_inputResumes;
};

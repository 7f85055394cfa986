#include "PtyServer.h"

#include "VirtualValidator.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace {
// How often the loop looks at the stop flag while nothing happens.
constexpr auto kIdleWait = std::chrono::milliseconds(100);
// While no host holds the port the master reports errors; retry at this pace.
constexpr auto kNoHostRetry = std::chrono::milliseconds(20);
// A background job may not read its terminal; it looks again at this pace, so that commands
// are heard once it is brought to the foreground.
constexpr auto kBackgroundRetry = std::chrono::seconds(1);
// A command line longer than this is taken as it is, so that endless input cannot fill memory.
constexpr qsizetype kLongestLine = 4096;

timespec toTimespec(std::chrono::nanoseconds d)
{
    if (d.count() < 0)
        d = std::chrono::nanoseconds(0);
    const auto s = std::chrono::duration_cast<std::chrono::seconds>(d);
    return timespec{time_t(s.count()), long((d - s).count())};
}
} // namespace

PtyServer::PtyServer(VirtualValidator *device, LineTiming *timing)
    : m_device(device), m_timing(timing)
{}

PtyServer::~PtyServer()
{
    if (m_slave >= 0)
        ::close(m_slave);
    if (m_master >= 0)
        ::close(m_master);
}

bool PtyServer::open(QString *error)
{
    auto failed = [&](const char *what) {
        if (error)
            *error = QStringLiteral("%1: %2").arg(QLatin1String(what),
                                                  QString::fromLocal8Bit(std::strerror(errno)));
        return false;
    };
    m_master = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
    if (m_master < 0)
        return failed("posix_openpt");
    if (::grantpt(m_master) != 0 || ::unlockpt(m_master) != 0)
        return failed("grantpt/unlockpt");
    const char *name = ::ptsname(m_master);
    if (!name)
        return failed("ptsname");
    m_slavePath = QString::fromLocal8Bit(name);

    // Raw mode on the slave side: no echo, no line editing, every byte passes as it is.
    m_slave = ::open(name, O_RDWR | O_NOCTTY | O_NONBLOCK);
    if (m_slave < 0)
        return failed("open slave");
    termios tio{};
    if (::tcgetattr(m_slave, &tio) != 0)
        return failed("tcgetattr");
    ::cfmakeraw(&tio);
    ::cfsetispeed(&tio, B9600);
    ::cfsetospeed(&tio, B9600);
    if (::tcsetattr(m_slave, TCSANOW, &tio) != 0)
        return failed("tcsetattr");
    return true;
}

void PtyServer::serve(const volatile std::sig_atomic_t *stop)
{
    char buffer[512];
    while (!*stop) {
        runDueActions();
        collectUnsolicited();
        sendDue();
        const auto now = LineTiming::Clock::now();
        auto wait = std::chrono::duration_cast<std::chrono::nanoseconds>(kIdleWait);
        if (const auto next = m_timing->readyTime(1))
            wait = std::min(wait, *next - now);
        for (const TimedAction &timed : m_actions)
            wait = std::min(wait, timed.due - now);
        const bool watchInput = m_input >= 0 && now >= m_inputResumes;
        if (m_input >= 0 && !watchInput)
            wait = std::min(wait, m_inputResumes - now);
        pollfd fds[2] = {{m_master, POLLIN, 0}, {m_input, POLLIN, 0}};
        const timespec timeout = toTimespec(wait);
        const int ready = ::ppoll(fds, watchInput ? 2 : 1, &timeout, nullptr);
        if (ready < 0) {
            if (errno == EINTR)
                continue;
            std::this_thread::sleep_for(kNoHostRetry);
            continue;
        }
        if (ready == 0)
            continue;
        if (watchInput && fds[1].revents != 0)
            readCommands();
        const pollfd &fd = fds[0];
        if (fd.revents == 0)
            continue;
        if (fd.revents & POLLIN) {
            const ssize_t n = ::read(m_master, buffer, sizeof buffer);
            if (n > 0) {
                hostBytes(buffer, int(n));
                continue;
            }
            if (n < 0 && (errno == EAGAIN || errno == EINTR))
                continue;
        }
        // The host has closed its side (EIO, hang-up): wait for the next open.
        m_timing->clear();
        std::this_thread::sleep_for(kNoHostRetry);
    }
}

void PtyServer::runAfter(std::chrono::milliseconds after, std::function<void()> action)
{
    m_actions.push_back({LineTiming::Clock::now() + after, std::move(action)});
}

void PtyServer::setCommandInput(int fd, std::function<void(const QByteArray &)> onLine)
{
    m_input = fd;
    m_onLine = std::move(onLine);
    m_partialLine.clear();
}

void PtyServer::readCommands()
{
    char buffer[512];
    const ssize_t n = ::read(m_input, buffer, sizeof buffer);
    if (n < 0 && (errno == EINTR || errno == EAGAIN))
        return;
    if (n < 0 && errno == EIO) { // a background job reading its terminal, SIGTTIN ignored
        m_inputResumes = LineTiming::Clock::now() + kBackgroundRetry;
        return;
    }
    if (n <= 0) {
        // The end of the script; a last line without its line end still counts.
        m_input = -1;
        if (!m_partialLine.isEmpty())
            m_onLine(std::exchange(m_partialLine, {}));
        return;
    }
    m_partialLine.append(buffer, qsizetype(n));
    for (qsizetype end; (end = m_partialLine.indexOf('\n')) >= 0;) {
        QByteArray line = m_partialLine.left(end);
        m_partialLine.remove(0, end + 1);
        if (line.endsWith('\r'))
            line.chop(1);
        m_onLine(line);
    }
    if (m_partialLine.size() > kLongestLine)
        m_onLine(std::exchange(m_partialLine, {}));
}

void PtyServer::runDueActions()
{
    const auto now = LineTiming::Clock::now();
    std::vector<TimedAction> due;
    for (auto it = m_actions.begin(); it != m_actions.end();) {
        if (it->due <= now) {
            due.push_back(std::move(*it));
            it = m_actions.erase(it);
        } else {
            ++it;
        }
    }
    for (const TimedAction &timed : due)
        timed.action();
}

void PtyServer::collectUnsolicited()
{
    if (!m_device->hasUnsolicited())
        return;
    const QByteArray bytes = m_device->takeUnsolicited();
    if (m_verbose) {
        for (const char b : bytes)
            std::fprintf(stderr, "tarvik-sim: unasked byte %d\n", quint8(b));
    }
    m_timing->scheduleUnasked(LineTiming::Clock::now(), bytes);
}

void PtyServer::hostBytes(const char *bytes, int n)
{
    collectUnsolicited(); // what the device said before it heard these goes first
    const auto now = LineTiming::Clock::now();
    for (int i = 0; i < n; ++i) {
        const auto heard = m_timing->hostByteArrives(now);
        m_timing->schedule(heard, m_device->receive(QByteArray(1, bytes[i])));
    }
    report();
    sendDue();
}

void PtyServer::sendDue()
{
    const QByteArray due = m_timing->take(LineTiming::Clock::now(), m_timing->waiting());
    qsizetype done = 0;
    while (done < due.size()) {
        const ssize_t n = ::write(m_master, due.constData() + done, std::size_t(due.size() - done));
        if (n > 0) {
            done += n;
        } else if (n < 0 && errno == EINTR) {
            continue;
        } else {
            break; // nobody is listening: what is on the line is lost, as on a real cable
        }
    }
}

void PtyServer::report()
{
    // An exchange still waiting for its data block is told once it has its index.
    const QList<SimExchange> &log = m_device->exchangeLog();
    const bool open = m_device->exchangeInProgress();
    const int complete = int(log.size()) - (open ? 1 : 0);
    for (int i = m_printedExchanges; i < complete; ++i) {
        if (m_exchanged)
            m_exchanged(log[i]);
        if (!m_verbose)
            continue;
        if (log[i].index >= 0)
            std::fprintf(stderr, "tarvik-sim: command %d, index %d\n", log[i].command,
                         log[i].index);
        else
            std::fprintf(stderr, "tarvik-sim: command %d\n", log[i].command);
    }
    m_printedExchanges = complete;
    if (!open) {
        m_device->clearExchangeLog(); // a long run keeps no history
        m_printedExchanges = 0;
    }
    if (!m_verbose)
        return;
    if (m_device->miniProgrammer() && m_device->firmwareBlocks() != m_reportedBlocks) {
        m_reportedBlocks = m_device->firmwareBlocks();
        std::fprintf(stderr, "tarvik-sim: firmware block %d\n", m_reportedBlocks);
    }
}

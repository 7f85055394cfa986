#include "PanelWindow.h"

#include "BenchCommands.h"
#include "BenchPanelModel.h"
#include "PtyServer.h"
#include "SimulatorPanel.h"
#include "VirtualValidator.h"

#include <QApplication>
#include <QSocketNotifier>
#include <QTimer>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <mutex>
#include <thread>
#include <unistd.h>

namespace {

// How often the serving loop hands the panel what the validator now shows.
constexpr auto kStatusEvery = std::chrono::milliseconds(100);

// The validator's status as the serving thread last saw it.
class SharedStatus
{
public:
    void set(const BenchStatus &status)
    {
        const std::lock_guard lock(m_mutex);
        m_status = status;
    }
    BenchStatus get() const
    {
        const std::lock_guard lock(m_mutex);
        return m_status;
    }

private:
    mutable std::mutex m_mutex;
    BenchStatus m_status;
};

void writeLine(int fd, const QString &line)
{
    // A line is far shorter than PIPE_BUF: it goes in one piece, whoever else writes.
    const QByteArray bytes = line.toLocal8Bit() + '\n';
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t n = ::write(fd, bytes.constData() + done, std::size_t(bytes.size() - done));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return;
        done += n;
    }
}

} // namespace

int runWithPanel(PtyServer &server, VirtualValidator &device, BenchCommands &commands,
                 const LineProfile &line, volatile std::sig_atomic_t *stop)
{
    int pipeEnds[2];
    if (::pipe(pipeEnds) != 0) {
        std::fprintf(stderr, "tarvik-sim: cannot make a pipe: %s\n", std::strerror(errno));
        return 2;
    }
    const int commandOut = pipeEnds[1];
    server.setCommandInput(pipeEnds[0], [&commands](const QByteArray &text) {
        const BenchCommands::Reply reply = commands.run(QString::fromLocal8Bit(text));
        if (!reply.output.isEmpty()) {
            std::fputs(qPrintable(reply.output), stdout);
            std::fflush(stdout);
        }
        if (!reply.error.isEmpty())
            std::fprintf(stderr, "tarvik-sim: %s\n", qPrintable(reply.error));
    });
    SharedStatus shared;
    shared.set(BenchStatus::of(device));
    std::function<void()> publish = [&] {
        shared.set(BenchStatus::of(device));
        server.runAfter(kStatusEvery, publish);
    };
    server.runAfter(kStatusEvery, publish);

    volatile std::sig_atomic_t serverStop = 0;
    std::thread serving([&] { server.serve(&serverStop); });

    BenchPanelModel model([commandOut](const QString &text) { writeLine(commandOut, text); },
                          [&shared] { return shared.get(); }, line);
    SimulatorPanel panel(&model, true);
    panel.adjustSize();
    panel.show();

    // Lines on standard input go the same way as the panel's; their end closes the panel.
    QByteArray partial;
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &panel, [&] {
        char buffer[512];
        const ssize_t n = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (n < 0 && (errno == EINTR || errno == EAGAIN))
            return;
        if (n <= 0) {
            input.setEnabled(false);
            if (!partial.isEmpty())
                writeLine(commandOut, QString::fromLocal8Bit(partial));
            QCoreApplication::quit();
            return;
        }
        partial.append(buffer, qsizetype(n));
        for (qsizetype end; (end = partial.indexOf('\n')) >= 0;) {
            writeLine(commandOut, QString::fromLocal8Bit(partial.left(end)));
            partial.remove(0, end + 1);
        }
    });
    QTimer stopWatch;
    QObject::connect(&stopWatch, &QTimer::timeout, &panel, [stop] {
        if (*stop)
            QCoreApplication::quit();
    });
    stopWatch.start(100);
    QApplication::setQuitOnLastWindowClosed(true);
    const int code = QApplication::exec();

    serverStop = 1;
    serving.join();
    ::close(commandOut);
    ::close(pipeEnds[0]);
    return code;
}

// Measures a full read, a full write and a 100 KB firmware transfer against tarvik-sim on a
// pseudo-terminal, paced at 9600 baud with a 1 ms turnaround, and compares each with the time
// the bytes need on the wire.
#include "ConfigImage.h"
#include "FirmwareTransfer.h"
#include "ReadSequence.h"
#include "RecordingPrompt.h"
#include "SerialTransport.h"
#include "WriteSequence.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <chrono>
#include <cstdio>
#include <thread>

namespace {

constexpr double kByteSeconds = 10.0 / 9600.0;
constexpr double kTurnaroundSeconds = 0.001;

// Counts the bytes each way and the turnarounds (the line passing from us to the device).
class CountingTransport final : public Transport
{
public:
    explicit CountingTransport(Transport *inner) : m_inner(inner) {}
    bool isOpen() const override { return m_inner->isOpen(); }
    qint64 write(const QByteArray &bytes) override
    {
        m_sent += bytes.size();
        m_lastWasWrite = true;
        return m_inner->write(bytes);
    }
    QByteArray read(int count) override
    {
        const QByteArray got = m_inner->read(count);
        m_received += got.size();
        if (m_lastWasWrite)
            ++m_turnarounds;
        m_lastWasWrite = false;
        if (got.size() < count)
            ++m_timeouts;
        return got;
    }
    void purge() override { m_inner->purge(); }
    void close() override { m_inner->close(); }
    int readTimeout() const override { return m_inner->readTimeout(); }
    void setReadTimeout(int ms) override { m_inner->setReadTimeout(ms); }
    QString errorString() const override { return m_inner->errorString(); }

    qint64 bytes() const { return m_sent + m_received; }
    qint64 turnarounds() const { return m_turnarounds; }
    qint64 timeouts() const { return m_timeouts; }

private:
    Transport *m_inner;
    qint64 m_sent = 0, m_received = 0, m_turnarounds = 0, m_timeouts = 0;
    bool m_lastWasWrite = false;
};

// The host's own UART: bytes leave at 9600 baud, so a write returns when they are on the wire.
// A pseudo-terminal has no baud rate; this puts it back on our side of the line.
class PacedHostTransport final : public Transport
{
public:
    explicit PacedHostTransport(Transport *inner) : m_inner(inner) {}
    bool isOpen() const override { return m_inner->isOpen(); }
    qint64 write(const QByteArray &bytes) override
    {
        const auto now = std::chrono::steady_clock::now();
        m_lineFree = std::max(m_lineFree, now) +
                     std::chrono::microseconds(qint64(bytes.size()) * 10 * 1000000 / 9600);
        const qint64 n = m_inner->write(bytes);
        std::this_thread::sleep_until(m_lineFree);
        return n;
    }
    QByteArray read(int count) override { return m_inner->read(count); }
    void purge() override { m_inner->purge(); }
    void close() override { m_inner->close(); }
    int readTimeout() const override { return m_inner->readTimeout(); }
    void setReadTimeout(int ms) override { m_inner->setReadTimeout(ms); }
    QString errorString() const override { return m_inner->errorString(); }

private:
    Transport *m_inner;
    std::chrono::steady_clock::time_point m_lineFree{};
};

struct Sim
{
    QProcess process;
    QString path;
    explicit Sim(const QStringList &extra)
    {
        process.start(QStringLiteral(TARVIK_SIM_PATH),
                      QStringList{"--pace", "--latency", "1", "--quiet"} + extra);
        process.waitForStarted(5000);
        while (!process.canReadLine() && process.waitForReadyRead(5000)) {
        }
        path = QString::fromLocal8Bit(process.readLine()).trimmed();
    }
    ~Sim()
    {
        process.terminate();
        process.waitForFinished(5000);
    }
};

void report(const char *what, qint64 ms, const CountingTransport &port, double extraSeconds,
            double target)
{
    std::fflush(stdout);
    const double bound =
        port.bytes() * kByteSeconds + port.turnarounds() * kTurnaroundSeconds + extraSeconds;
    const double ratio = ms / 1000.0 / bound;
    std::printf("%-22s %8.3f s  %7lld bytes  %6lld turnarounds  bound %8.3f s  ratio %.3f  "
                "(target <= %.2f) %s\n",
                what, ms / 1000.0, static_cast<long long>(port.bytes()),
                static_cast<long long>(port.turnarounds()), bound, ratio, target,
                ratio <= target ? "ok" : "OVER");
    std::fflush(stdout);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    RecordingPrompt prompt;
    ConfigImage image = ConfigImage::blank();
    {
        Sim sim({"--family", "0x13"});
        SerialTransport serial;
        if (!serial.open(sim.path)) {
            std::fprintf(stderr, "cannot open %s\n", qPrintable(sim.path));
            return 1;
        }
        PacedHostTransport paced(&serial);
        CountingTransport port(&paced);
        TMonnayeur link(&port, &prompt);
        QElapsedTimer clock;
        clock.start();
        if (readValidator(link, image, false) != ReadOutcome::Done)
            return 1;
        report("full read", clock.elapsed(), port, 0, 1.10);

        CountingTransport writePort(&paced);
        TMonnayeur writeLink(&writePort, &prompt);
        FullWriteOptions options;
        clock.restart();
        if (fullWrite(writeLink, image, options) != WriteOutcome::Finished)
            return 1;
        report("full write", clock.elapsed(), writePort, 0, 1.10);
    }
    QByteArray firmware;
    while (firmware.size() < 100 * 1024)
        firmware += "S1130000000102030405060708090A0B0C0D0E0F7C\r\n";
    firmware.truncate(100 * 1024);
    for (const bool silent : {false, true}) {
        Sim sim(silent ? QStringList{"--mini-programmer", "--silent-ack"}
                       : QStringList{"--mini-programmer"});
        SerialTransport serial;
        if (!serial.open(sim.path))
            return 1;
        PacedHostTransport paced(&serial);
        CountingTransport port(&paced);
        FirmwareTransfer transfer(&port);
        QElapsedTimer clock;
        clock.start();
        transfer.FormTransfert(firmware);
        // A mini-programmer that says nothing costs one per-read time-out per block.
        const double waits =
            silent ? port.timeouts() * (serial.readTimeout() + 2 * 2) / 1000.0 : 0.0;
        report(silent ? "firmware 100 KB silent" : "firmware 100 KB", clock.elapsed(), port, waits,
               1.40);
    }
    return 0;
}

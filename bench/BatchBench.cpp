// What a batch costs per validator beyond the bytes of its backup, write and read-back: finding
// it after it is plugged (polls, identification, family), the batch's own work between
// exchanges (backup file, log row on the disk) and noticing that it was unplugged. The virtual
// validator is in this process on a bench-rough line; it is plugged and unplugged at random
// instants, seen by the line at the next command byte, as a real one whose first command is lost.
// build/bin/batch_bench [validators]
#include "BatchLog.h"
#include "BatchRun.h"
#include "MedianReport.h"
#include "RecordingPrompt.h"
#include "SimTransport.h"
#include "TMonnayeur.h"
#include "VirtualValidator.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>
#include <optional>

namespace {

// The line with a hand at the bench: a plug or an unplug due by now happens before the next
// byte goes out; the time spent on the line is counted while `counting` is set.
class BenchLine final : public Transport
{
public:
    BenchLine(SimTransport &port, QElapsedTimer &clock) : m_port(port), m_clock(clock) {}

    std::optional<qint64> plugAt, unplugAt;
    quint32 nextSerial = 5001;
    bool counting = false;
    qint64 wireNs = 0;

    template <typename F> auto timed(F f)
    {
        QElapsedTimer t;
        t.start();
        auto result = f();
        if (counting)
            wireNs += t.nsecsElapsed();
        return result;
    }

    bool isOpen() const override { return m_port.isOpen(); }
    qint64 write(const QByteArray &bytes) override
    {
        hands();
        return timed([&] { return m_port.write(bytes); });
    }
    QByteArray read(int count, int firstByteWaitMs) override
    {
        return timed([&] { return m_port.read(count, firstByteWaitMs); });
    }
    void purge() override { m_port.purge(); }
    void close() override { m_port.close(); }
    int readTimeout() const override { return m_port.readTimeout(); }
    void setReadTimeout(int ms) override { m_port.setReadTimeout(ms); }
    QString errorString() const override { return {}; }

private:
    void hands()
    {
        VirtualValidator &device = *m_port.device();
        if (plugAt && m_clock.elapsed() >= *plugAt && !device.connected()) {
            device.setMemory(VirtualValidator::factoryImage(0x13, nextSerial++));
            device.setConnected(true);
        }
        if (unplugAt && m_clock.elapsed() >= *unplugAt && device.connected())
            device.setConnected(false);
    }
    SimTransport &m_port;
    QElapsedTimer &m_clock;
};

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const int validators = argc > 1 ? std::max(1, atoi(argv[1])) : 5;
    QTemporaryDir dir;
    VirtualValidator device(0x13, 1);
    device.setConnected(false);
    SimTransport port(&device);
    port.setLine(LineProfile::bench());
    QElapsedTimer clock;
    clock.start();
    BenchLine line(port, clock);
    RecordingPrompt prompt;
    TMonnayeur link(&line, &prompt);

    BatchSettings settings;
    settings.source = VirtualValidator::factoryImage(0x13, 1000);
    settings.backupDirectory = dir.filePath(QStringLiteral("backups"));
    BatchLog log(dir.filePath(QStringLiteral("bench.csv")));
    QString error;
    if (!log.open(&error)) {
        std::fprintf(stderr, "batch_bench: %s\n", qPrintable(error));
        return 1;
    }
    BatchRun run(link, settings, &log);
    std::vector<qint64> find, own, unplug, overhead, wire;
    qint64 writingFrom = 0;
    qint64 doneAt = 0;
    run.changed = [&] {
        const qint64 now = clock.nsecsElapsed();
        switch (run.phase()) {
        case BatchPhase::Writing:
            find.push_back(now - *line.plugAt * 1000000);
            writingFrom = now;
            line.wireNs = 0;
            line.counting = true;
            break;
        case BatchPhase::WaitingForUnplug:
            line.counting = false;
            doneAt = now;
            own.push_back(doneAt - writingFrom - line.wireNs);
            wire.push_back(line.wireNs);
            // Taken away at a random instant a little later.
            line.unplugAt = doneAt / 1000000 + QRandomGenerator::global()->bounded(300);
            break;
        case BatchPhase::WaitingForValidator:
            if (line.unplugAt) {
                unplug.push_back(now - *line.unplugAt * 1000000);
                overhead.push_back(find.back() + own.back() + unplug.back());
                line.unplugAt.reset();
            }
            if (!device.connected())
                line.plugAt = clock.elapsed() + QRandomGenerator::global()->bounded(300);
            break;
        default:
            break;
        }
    };
    run.start();
    while (run.running() && int(overhead.size()) < validators) {
        const BatchPhase before = run.phase();
        run.tick();
        if (before == run.phase() &&
            (before == BatchPhase::WaitingForValidator || before == BatchPhase::WaitingForUnplug))
            QThread::msleep(BatchRun::kPollPauseMs);
    }
    if (run.verified() < validators) {
        std::fprintf(stderr, "batch_bench: %d of %d verified\n", run.verified(), validators);
        return 1;
    }
    std::printf("batch of %d validators on a bench line, read time-out %d ms\n", validators,
                port.readTimeout());
    reportMedian("wire: backup, write, read-back", wire, 60000, 40, 0);
    reportMedian("found after plugged", find, 1000, 40, 0);
    reportMedian("own work between exchanges", own, 1000, 40, 0);
    reportMedian("unplug noticed", unplug, 1000, 40, 0);
    const double median = reportMedian("overhead per validator", overhead, 1000, 40, 0);
    std::sort(overhead.begin(), overhead.end());
    return overhead.back() < 1000000000LL && median < 1000 ? 0 : 1;
}

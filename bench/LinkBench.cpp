// Measures full reads and full writes against tarvik-sim on a pseudo-terminal over a line as
// rough as a bench's: 9600 baud, a random turnaround of 0 to 50 ms before every echo and reply,
// and a USB adapter that hands bytes over every 16 ms. Each run is compared with that line's
// own bound: the bytes' time on the wire, the turnarounds the device drew and the adapter's
// waits (tarvik-sim reports the last two on exit). A full write followed by its read-back is
// held to the bound of both together. Then a 100 KB firmware transfer. First, the comparison
// the read-back ends with, on two 60-channel images that differ in a few fields. Last, one
// changed window written with a changes write and its check, against a full write with its
// verification of the same configuration, with the blocks each wrote.
//
//   build/bin/link_bench [reads] [writes] [verified writes] [changes]   (default 100, 20, 10,
//   10; the writes send the last image read, so give at least one read)
#include "ChangesWrite.h"
#include "ConfigImage.h"
#include "FirmwareTransfer.h"
#include "ReadSequence.h"
#include "RecordingPrompt.h"
#include "SerialTransport.h"
#include "VirtualValidator.h"
#include "WriteSequence.h"
#include "WriteVerification.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <thread>
#include <vector>

namespace {

constexpr double kByteMs = 10.0 * 1000.0 / 9600.0;
const QString kLine = QStringLiteral("pace,turnaround=0-50,echo=0-50,burst=16,seed=%1");

// Counts the bytes each way and the reads that ended short.
class CountingTransport final : public Transport
{
public:
    explicit CountingTransport(Transport *inner) : m_inner(inner) {}
    bool isOpen() const override { return m_inner->isOpen(); }
    qint64 write(const QByteArray &bytes) override
    {
        m_sent += bytes.size();
        return m_inner->write(bytes);
    }
    using Transport::read;
    QByteArray read(int count, int firstByteWaitMs) override
    {
        const QByteArray got = m_inner->read(count, firstByteWaitMs);
        m_received += got.size();
        if (got.size() < count)
            ++m_shortReads;
        return got;
    }
    void purge() override { m_inner->purge(); }
    void close() override { m_inner->close(); }
    int readTimeout() const override { return m_inner->readTimeout(); }
    void setReadTimeout(int ms) override { m_inner->setReadTimeout(ms); }
    QString errorString() const override { return m_inner->errorString(); }

    qint64 bytes() const { return m_sent + m_received; }
    qint64 shortReads() const { return m_shortReads; }

private:
    Transport *m_inner;
    qint64 m_sent = 0, m_received = 0, m_shortReads = 0;
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
    using Transport::read;
    QByteArray read(int count, int firstByteWaitMs) override
    {
        return m_inner->read(count, firstByteWaitMs);
    }
    void purge() override { m_inner->purge(); }
    void close() override { m_inner->close(); }
    int readTimeout() const override { return m_inner->readTimeout(); }
    void setReadTimeout(int ms) override { m_inner->setReadTimeout(ms); }
    QString errorString() const override { return m_inner->errorString(); }

private:
    Transport *m_inner;
    std::chrono::steady_clock::time_point m_lineFree{};
};

// tarvik-sim on its own pseudo-terminal; on the way out, what its line cost.
struct Sim
{
    QProcess process;
    QString path;
    explicit Sim(const QStringList &extra)
    {
        // TARVIK_SIM names another build of the simulator (the bench's own copy while the tree
        // is rebuilt).
        process.start(qEnvironmentVariable("TARVIK_SIM", QStringLiteral(TARVIK_SIM_PATH)),
                      QStringList{"--quiet", "--line-costs"} + extra);
        process.waitForStarted(5000);
        while (!process.canReadLine() && process.waitForReadyRead(5000)) {
        }
        path = QString::fromLocal8Bit(process.readLine()).trimmed();
    }
    // The milliseconds of turnaround and adapter waits, once the device has stopped.
    double stopAndCost()
    {
        process.terminate();
        process.waitForFinished(5000);
        const QString said = QString::fromLocal8Bit(process.readAllStandardError());
        const QRegularExpressionMatch m =
            QRegularExpression(QStringLiteral("([0-9.]+) ms turnaround, ([0-9.]+) ms adapter"))
                .match(said);
        return m.hasMatch() ? m.captured(1).toDouble() + m.captured(2).toDouble() : 0.0;
    }
    ~Sim()
    {
        process.terminate();
        process.waitForFinished(5000);
    }
};

struct Tally
{
    std::vector<double> ratios;
    int failed = 0;
    qint64 shortReads = 0;
    qint64 exchanges = 0;
};

void report(const char *what, Tally &t)
{
    if (t.ratios.empty())
        return;
    std::sort(t.ratios.begin(), t.ratios.end());
    const double median = t.ratios[t.ratios.size() / 2];
    std::printf("%-12s %4zu runs  ratio to the line's bound: median %.3f  worst %.3f  "
                "(target <= 1.05) %s   failed runs %d, reads cut short %lld\n",
                what, t.ratios.size(), median, t.ratios.back(),
                t.ratios.back() <= 1.05 ? "ok" : "OVER", t.failed,
                static_cast<long long>(t.shortReads));
    std::fflush(stdout);
}

enum class Run
{
    Read,
    Write,
    VerifiedWrite // a full write, then its read-back and comparison
};

// One full read or full write against a fresh device; its ratio to the line's bound.
bool run(Run kind, int seed, ConfigImage &image, Tally &tally)
{
    Sim sim({"--family", "0x13", "--line", kLine.arg(seed)});
    SerialTransport serial;
    if (!serial.open(sim.path)) {
        std::fprintf(stderr, "cannot open %s\n", qPrintable(sim.path));
        return false;
    }
    PacedHostTransport paced(&serial);
    CountingTransport port(&paced);
    RecordingPrompt prompt;
    TMonnayeur link(&port, &prompt);
    QElapsedTimer clock;
    clock.start();
    bool ok = false;
    if (kind != Run::Read) {
        FullWriteOptions options;
        SentBlocks sent;
        ok = fullWrite(link, image, options, {}, &sent) == WriteOutcome::Finished;
        if (ok && kind == Run::VerifiedWrite)
            ok = verifyWrite(link, sent).outcome == VerifyOutcome::Verified;
    } else {
        ok = readValidator(link, image, false) == ReadOutcome::Done;
    }
    const double ms = double(clock.nsecsElapsed()) / 1e6;
    serial.close();
    const double bound = double(port.bytes()) * kByteMs + sim.stopAndCost();
    tally.ratios.push_back(ms / bound);
    // A shown exchange that failed clears the link-good flag.
    tally.failed += ok && link.linkGood() ? 0 : 1;
    tally.shortReads += port.shortReads();
    return true;
}

// The read-back's comparison: two 60-channel images that differ in a few fields.
void compareTwoImages()
{
    SentBlocks sent;
    ConfigImage readBack = VirtualValidator::factoryImage(0x13, 1001);
    ConfigImage written = readBack;
    written.channels[4][Rec::HfuLowMin] += 3;
    written.channels[41][Rec::DimMax] -= 2;
    written.enable[7] ^= 0x02;
    written.values[Val::Channel0 + 7] = 9;
    written.prices[1] = 40;
    for (std::size_t k = 0; k < sent.channels.size(); ++k) {
        ChannelBytes record;
        std::copy_n(written.channels[k].begin(), record.size(), record.begin());
        sent.channels[k] = record;
    }
    sent.options = written.options;
    sent.values = written.values;
    sent.prices = written.prices;
    sent.enable = written.enable;
    sent.ident = written.ident;
    std::vector<double> diffUs, verifyUs;
    qsizetype found = 0;
    for (int i = 0; i < 1000; ++i) {
        QElapsedTimer clock;
        clock.start();
        found += configDifferences(written, readBack).size();
        diffUs.push_back(double(clock.nsecsElapsed()) / 1e3);
        clock.restart();
        found += compareWithReadBack(readBack, sent).mismatches.size();
        verifyUs.push_back(double(clock.nsecsElapsed()) / 1e3);
    }
    std::sort(diffUs.begin(), diffUs.end());
    std::sort(verifyUs.begin(), verifyUs.end());
    const double median = diffUs[diffUs.size() / 2];
    std::printf("difference of two 60-channel images (%lld fields): median %.1f us, worst %.1f us "
                "(target < 1000 us) %s; with the expected image built: median %.1f us\n",
                static_cast<long long>(found / 2000), median, diffUs.back(),
                median < 1000 ? "ok" : "OVER", verifyUs[verifyUs.size() / 2]);
    std::fflush(stdout);
}

// The write commands tarvik-sim answered, from its --exchanges list.
int blocksWritten(const QString &exchanges)
{
    QFile file(exchanges);
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    int blocks = 0;
    for (const QByteArray &line : file.readAll().split('\n')) {
        const int command = line.split(' ').value(0).toInt();
        if (!line.isEmpty() && (command == 3 || command == 6 || command == 12 || command == 14 ||
                                command == 16 || command == 18 || command == 20 || command == 22))
            ++blocks;
    }
    return blocks;
}

// One window of validator 1001 changed: the changes write and its check, or the full write and
// its verification. The seconds it took and the blocks written; negative seconds: it failed.
std::pair<double, int> writeOneWindow(bool changes, int seed)
{
    QTemporaryDir dir;
    const QString exchanges = dir.filePath(QStringLiteral("exchanges.txt"));
    const ConfigImage holds = VirtualValidator::factoryImage(0x13, 1001);
    ConfigImage wanted = holds;
    wanted.channels[3][Rec::HfuLowMin] = quint8(wanted.channels[3][Rec::HfuLowMin] + 2);
    bool ok = false;
    double seconds = 0;
    {
        Sim sim({"--family", "0x13", "--serial", "1001", "--exchanges", exchanges, "--line",
                 kLine.arg(seed)});
        SerialTransport serial;
        if (!serial.open(sim.path))
            return {-1, -1};
        PacedHostTransport port(&serial);
        RecordingPrompt prompt;
        TMonnayeur link(&port, &prompt);
        QElapsedTimer clock;
        clock.start();
        if (changes) {
            const ChangesWriteResult result = changesWrite(link, holds, wanted, {});
            ok = result.outcome == WriteOutcome::Finished &&
                 verifySentBlocks(link, holds, result.sent).outcome == VerifyOutcome::Verified;
        } else {
            FullWriteOptions options;
            SentBlocks sent;
            ok = fullWrite(link, wanted, options, {}, &sent) == WriteOutcome::Finished &&
                 verifyWrite(link, sent).outcome == VerifyOutcome::Verified;
        }
        seconds = double(clock.nsecsElapsed()) / 1e9;
        serial.close();
        sim.stopAndCost();
    }
    return {ok ? seconds : -1, blocksWritten(exchanges)};
}

void compareChangesWithFullWrite(int runs)
{
    std::vector<double> changes, full, ratios;
    int changedBlocks = 0, fullBlocks = 0, failed = 0;
    for (int i = 0; i < runs; ++i) {
        const auto [c, cBlocks] = writeOneWindow(true, 4000 + i);
        const auto [f, fBlocks] = writeOneWindow(false, 4000 + i);
        if (c < 0 || f < 0) {
            ++failed;
            continue;
        }
        changes.push_back(c);
        full.push_back(f);
        ratios.push_back(c / f);
        changedBlocks = std::max(changedBlocks, cBlocks);
        fullBlocks = std::max(fullBlocks, fBlocks);
    }
    if (ratios.empty()) {
        std::printf("one window changed: every run failed\n");
        return;
    }
    for (auto *v : {&changes, &full, &ratios})
        std::sort(v->begin(), v->end());
    std::printf("one window changed, %zu runs: changes write + check median %.3f s (worst %.3f), "
                "full write + verify median %.2f s; ratio median %.3f worst %.3f "
                "(target <= 0.05) %s; blocks written %d against %d; failed runs %d\n",
                ratios.size(), changes[changes.size() / 2], changes.back(), full[full.size() / 2],
                ratios[ratios.size() / 2], ratios.back(), ratios.back() <= 0.05 ? "ok" : "OVER",
                changedBlocks, fullBlocks, failed);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const int reads = argc > 1 ? QString::fromLocal8Bit(argv[1]).toInt() : 100;
    const int writes = argc > 2 ? QString::fromLocal8Bit(argv[2]).toInt() : 20;
    const int verified = argc > 3 ? QString::fromLocal8Bit(argv[3]).toInt() : 10;
    const int changes = argc > 4 ? QString::fromLocal8Bit(argv[4]).toInt() : 10;
    compareTwoImages();
    std::printf("line: %s\n", qPrintable(kLine.arg(QStringLiteral("N"))));
    ConfigImage image = ConfigImage::blank();
    Tally readTally, writeTally, verifiedTally;
    for (int i = 0; i < reads; ++i)
        if (!run(Run::Read, 1000 + i, image, readTally))
            return 1;
    report("full read", readTally);
    for (int i = 0; i < writes; ++i)
        if (!run(Run::Write, 2000 + i, image, writeTally))
            return 1;
    report("full write", writeTally);
    // Its bound is the line's for the write and the read-back together.
    for (int i = 0; i < verified; ++i)
        if (!run(Run::VerifiedWrite, 3000 + i, image, verifiedTally))
            return 1;
    report("write+verify", verifiedTally);
    if (changes > 0)
        compareChangesWithFullWrite(changes);

    QByteArray firmware;
    while (firmware.size() < 100 * 1024)
        firmware += "S1130000000102030405060708090A0B0C0D0E0F7C\r\n";
    firmware.truncate(100 * 1024);
    Sim sim({"--mini-programmer", "--line", QStringLiteral("pace,burst=16")});
    SerialTransport serial;
    if (!serial.open(sim.path))
        return 1;
    PacedHostTransport paced(&serial);
    CountingTransport port(&paced);
    FirmwareTransfer transfer(&port);
    QElapsedTimer clock;
    clock.start();
    transfer.FormTransfert(firmware);
    const double ms = double(clock.elapsed());
    serial.close();
    const double bound = double(port.bytes()) * kByteMs + sim.stopAndCost();
    std::printf("firmware 100 KB  %.1f s  ratio to the line's bound %.3f\n", ms / 1000, ms / bound);
    return 0;
}

// tarvik-cli batch against tarvik-sim over a pseudo-terminal: a scripted bench plugs validator
// after validator while the batch runs, and the log, the exit code and what each validator holds
// afterwards say what happened.
#include "ConfigFile.h"
#include "InProcessCli.h"
#include "SimProcess.h"
#include "VirtualValidator.h"
#include "WriteSequence.h"

#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QThread>
#include <csignal>
#include <gtest/gtest.h>

namespace {

// The batch runs as its own process; its stdout is read line by line as it comes.
class BatchProcess
{
public:
    explicit BatchProcess(const QStringList &arguments)
    {
        m_process.start(QStringLiteral(TARVIK_CLI_PATH), arguments);
        m_process.waitForStarted(5000);
    }
    ~BatchProcess()
    {
        if (m_process.state() != QProcess::NotRunning) {
            m_process.kill();
            m_process.waitForFinished(2000);
        }
    }
    // The next line on stdout, empty when none came within the time.
    QString nextLine(int timeoutMs = 90000)
    {
        QElapsedTimer clock;
        clock.start();
        while (!m_process.canReadLine() && clock.elapsed() < timeoutMs &&
               m_process.state() != QProcess::NotRunning)
            m_process.waitForReadyRead(200);
        return QString::fromUtf8(m_process.readLine()).trimmed();
    }
    // Waits until the standard error has said text.
    bool waitForErr(const QString &text, int timeoutMs = 60000)
    {
        QElapsedTimer clock;
        clock.start();
        while (!m_err.contains(text) && clock.elapsed() < timeoutMs &&
               m_process.state() != QProcess::NotRunning) {
            m_process.waitForReadyRead(100);
            m_err += QString::fromUtf8(m_process.readAllStandardError());
        }
        return m_err.contains(text);
    }
    void signal(int number) { ::kill(pid_t(m_process.processId()), number); }
    int finish()
    {
        if (!m_process.waitForFinished(30000))
            return -1;
        m_err += QString::fromUtf8(m_process.readAllStandardError());
        return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }
    const QString &err() const { return m_err; }

private:
    QProcess m_process;
    QString m_err;
};

// Longer than the batch takes to notice that a validator was unplugged.
void pause()
{
    QThread::msleep(900);
}

class BatchCommand : public CliFixture
{
protected:
    // What the validator plugged in now holds, read by tarvik-cli.
    ConfigImage readBack(SimProcess &sim, const char *serial)
    {
        sim.send(QByteArray("plug ") + serial);
        const QString file = path("readback.json");
        QFile::remove(file);
        const CliRun read = runTarvikCli({"--device", sim.path(), "read", "-o", file}, 120000);
        EXPECT_EQ(read.exitCode, 0) << qPrintable(read.err);
        ConfigImage image;
        EXPECT_TRUE(loadConfigFile(file, image, nullptr));
        return image;
    }
};

TEST_F(BatchCommand, SixValidatorsInTurnAreLoggedAsTheyCome)
{
    // Validator 1000's configuration with prices of its own, so that a written validator shows.
    ConfigImage source = VirtualValidator::factoryImage(0x13, 1000);
    source.prices = PriceBlock{0x01, 0x02, 0x03, 0x04, 0x05, 0x06};
    const QString file = path("route7.json");
    ASSERT_TRUE(saveConfigFile(file, source, nullptr));
    const QString log = path("route7.csv");

    SimProcess sim({"--family", "0x13", "--serial", "1"});
    ASSERT_FALSE(sim.path().isEmpty());
    sim.send("unplug");
    BatchProcess batch({"--port-timeout", "100", "--device", sim.path(), "batch", file, "--groups",
                        "channels,values,prices,config,enable", "--count", "6", "--log", log});

    QStringList lines;
    // Two new ones.
    sim.send("plug 2001 0x13");
    lines << batch.nextLine();
    sim.send("unplug");
    pause();
    sim.send("plug 2002 0x13");
    lines << batch.nextLine();
    // The first one again.
    sim.send("unplug");
    pause();
    sim.send("plug 2001");
    lines << batch.nextLine();
    // One of another family.
    sim.send("unplug");
    pause();
    sim.send("plug 3001 0x23");
    lines << batch.nextLine();
    // One pulled after ten writes: it is gone when its result comes.
    sim.send("unplug");
    pause();
    sim.send("plug 2003 0x13");
    sim.send("unplug after 10");
    lines << batch.nextLine();
    pause();
    sim.send("plug 2004 0x13");
    lines << batch.nextLine();
    EXPECT_EQ(batch.finish(), 1) << qPrintable(batch.err());

    ASSERT_EQ(lines.size(), 6);
    const QStringList serials{"2001", "2002", "2001", "3001", "2003", "2004"};
    const QStringList results{"verified",     "verified", "already-done",
                              "wrong-family", "failed",   "verified"};
    for (int i = 0; i < 6; ++i)
        EXPECT_TRUE(lines[i].startsWith(serials[i] + u' ' + results[i] + u' '))
            << qPrintable(lines[i]);
    // What the pulled one may hold is said.
    EXPECT_TRUE(lines[4].contains(QStringLiteral("Fault during save operation !")))
        << qPrintable(lines[4]);

    // The log: its header and one row per validator, in order.
    QFile csv(log);
    ASSERT_TRUE(csv.open(QIODevice::ReadOnly));
    const QStringList rows = QString::fromUtf8(csv.readAll()).split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(rows.size(), 7);
    EXPECT_EQ(rows[0], QStringLiteral("time,serial,family,result,seconds,detail"));
    for (int i = 0; i < 6; ++i) {
        const QStringList cells = rows[i + 1].split(u',');
        ASSERT_GE(cells.size(), 6) << qPrintable(rows[i + 1]);
        EXPECT_EQ(cells[1], serials[i]);
        EXPECT_EQ(cells[2], i == 3 ? QStringLiteral("0x23") : QStringLiteral("0x13"));
        EXPECT_EQ(cells[3], results[i]);
    }

    // Each validator written to keeps the batch in its history: 2001 once (not again when it
    // came back), the pulled one as failed, the one of another family not at all.
    auto batchResults = [](const char *serial) {
        const CliRun run = runTarvikCli({"history", serial, "--json"});
        QStringList found;
        const QJsonArray events = QJsonDocument::fromJson(run.out.toUtf8())["events"].toArray();
        for (const QJsonValue &event : events) {
            if (event["kind"].toString() == QLatin1String("batch"))
                found << event["result"].toString();
        }
        return found;
    };
    EXPECT_EQ(batchResults("2001"), QStringList{"verified"});
    EXPECT_EQ(batchResults("2003"), QStringList{"failed"});
    EXPECT_TRUE(batchResults("3001").isEmpty());

    // Each verified validator holds the source's groups, its windows corrected by its own
    // reference channel, and keeps its own serial number.
    const int ref = source.referenceChannel();
    for (const char *serial : {"2001", "2002", "2004"}) {
        const ConfigImage own = VirtualValidator::factoryImage(0x13, QByteArray(serial).toUInt());
        const ConfigImage now = readBack(sim, serial);
        EXPECT_EQ(now.serialNumber(), own.serialNumber());
        EXPECT_EQ(now.prices, source.prices) << serial;
        EXPECT_EQ(now.values, source.values) << serial;
        EXPECT_EQ(now.enable, source.enable) << serial;
        for (int i = 0; i < source.channelCount(); ++i) {
            const ChannelBytes expected = correctedRecord(source.channels[std::size_t(i)].data(),
                                                          source.channels[std::size_t(ref)].data(),
                                                          own.channels[std::size_t(ref)].data());
            EXPECT_TRUE(
                std::equal(expected.begin(), expected.end(), now.channels[std::size_t(i)].begin()))
                << serial << " channel " << i + 1;
        }
    }
    // The one of another family holds its own configuration untouched.
    const ConfigImage other = VirtualValidator::factoryImage(0x23, 3001);
    const ConfigImage untouched = readBack(sim, "3001");
    EXPECT_EQ(untouched.channels, other.channels);
    EXPECT_EQ(untouched.prices, other.prices);
    EXPECT_EQ(untouched.values, other.values);
    EXPECT_EQ(untouched.options, other.options);
}

TEST_F(BatchCommand, StopsWhenNoneIsPluggedAndRefusesWhatItCannotDo)
{
    const QString file = path("source.json");
    ASSERT_TRUE(saveConfigFile(file, VirtualValidator::factoryImage(0x13, 1000), nullptr));
    SimProcess sim({"--family", "0x13", "--serial", "1"});
    sim.send("unplug");
    // Nothing plugged: the idle time-out ends it, and a batch that programmed nothing fails.
    const CliRun idle = runTarvikCli({"--port-timeout", "100", "--device", sim.path(), "batch",
                                      file, "--full", "--idle-timeout", "1"});
    EXPECT_EQ(idle.exitCode, 1) << qPrintable(idle.err);
    EXPECT_TRUE(idle.out.isEmpty());
    EXPECT_TRUE(idle.err.contains("No validator was plugged for 1 s")) << qPrintable(idle.err);
    // The full write onto one validator, and onto one of another family (refused).
    sim.send("plug 2005 0x13");
    const CliRun full = runTarvikCli({"--port-timeout", "100", "--device", sim.path(), "batch",
                                      file, "--full", "--count", "1", "--sheets", path("sheets")});
    EXPECT_EQ(full.exitCode, 0) << qPrintable(full.err);
    EXPECT_TRUE(full.out.startsWith("2005 verified ")) << qPrintable(full.out);
    // Its configuration sheet, under its serial number.
    QFile sheet(path("sheets/2005.pdf"));
    ASSERT_TRUE(sheet.open(QIODevice::ReadOnly));
    EXPECT_TRUE(sheet.read(5) == "%PDF-");
    sim.send("plug 3005 0x23");
    const CliRun other = runTarvikCli(
        {"--port-timeout", "100", "--device", sim.path(), "batch", file, "--full", "--count", "1"});
    EXPECT_EQ(other.exitCode, 1) << qPrintable(other.err);
    EXPECT_TRUE(other.out.startsWith("3005 wrong-family ")) << qPrintable(other.out);
    // Neither --groups nor --full, or both: a usage error before anything is opened.
    EXPECT_EQ(runInProcess({"batch", file}).code, kExitUsage);
    EXPECT_EQ(runInProcess({"batch", file, "--full", "--groups", "prices"}).code, kExitUsage);
    EXPECT_EQ(runInProcess({"batch", file, "--groups", "coins"}).code, kExitUsage);
}

TEST_F(BatchCommand, CtrlCFinishesTheOneInHandAndAKillKeepsTheRowsWritten)
{
    const QString file = path("source.json");
    ASSERT_TRUE(saveConfigFile(file, VirtualValidator::factoryImage(0x13, 1000), nullptr));
    const QString log = path("stopped.csv");
    SimProcess sim({"--family", "0x13", "--serial", "1"});
    sim.send("unplug");
    {
        BatchProcess batch({"--port-timeout", "100", "--device", sim.path(), "batch", file,
                            "--groups", "channels,prices", "--log", log});
        sim.send("plug 2001 0x13");
        // Ctrl+C in the middle of the write: the validator is finished, then the batch ends.
        ASSERT_TRUE(batch.waitForErr(QStringLiteral("Writing 2001...")));
        batch.signal(SIGINT);
        EXPECT_TRUE(batch.nextLine().startsWith(QStringLiteral("2001 verified ")));
        EXPECT_EQ(batch.finish(), 0) << qPrintable(batch.err());
        EXPECT_TRUE(batch.err().contains("Batch finished: 1 verified, 0 failed, 0 skipped."))
            << qPrintable(batch.err());
    }
    {
        // Killed outright while it waits: every row it printed is in the log.
        BatchProcess batch({"--port-timeout", "100", "--device", sim.path(), "batch", file,
                            "--groups", "prices", "--log", log});
        sim.send("unplug");
        pause();
        sim.send("plug 2002 0x13");
        EXPECT_TRUE(batch.nextLine().startsWith(QStringLiteral("2002 verified ")));
        batch.signal(SIGKILL);
        batch.finish();
    }
    QFile csv(log);
    ASSERT_TRUE(csv.open(QIODevice::ReadOnly));
    const QStringList rows = QString::fromUtf8(csv.readAll()).split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(rows.size(), 3) << qPrintable(rows.join(u'\n'));
    EXPECT_TRUE(rows[1].contains(QStringLiteral(",2001,0x13,verified,")));
    EXPECT_TRUE(rows[2].contains(QStringLiteral(",2002,0x13,verified,")));
}

} // namespace

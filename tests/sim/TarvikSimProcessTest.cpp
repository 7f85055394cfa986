// End to end: the built tarvik-sim on a pseudo-terminal, opened as a serial port.

#include "CoinGenerator.h"
#include "ConfigFile.h"
#include "LoadedMachine.h"
#include "RecordingPrompt.h"
#include "SerialTransport.h"
#include "TMonnayeur.h"
#include "VirtualValidator.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// Starts tarvik-sim and returns the port it serves, empty when it did not say.
QString startSim(QProcess &sim, const QStringList &arguments)
{
    sim.start(QStringLiteral(TARVIK_SIM_PATH), arguments + QStringList{QStringLiteral("--quiet")});
    if (!sim.waitForStarted(5000))
        return {};
    while (!sim.canReadLine() && sim.waitForReadyRead(5000)) {
    }
    return QString::fromLocal8Bit(sim.readLine()).trimmed();
}

// Waits until the simulator has said `text` on the channel; returns what it said there.
QString waitForOutput(QProcess &sim, QProcess::ProcessChannel channel, const QString &text)
{
    sim.setReadChannel(channel);
    QString said = QString::fromLocal8Bit(sim.readAll());
    while (!said.contains(text) && sim.waitForReadyRead(5000))
        said += QString::fromLocal8Bit(sim.readAll());
    return said;
}

QByteArray statusHex(TMonnayeur &link)
{
    quint8 status[4] = {};
    if (!link.ReadBlock(Cmd::ReadStatus, status))
        return "failed";
    return QByteArray(reinterpret_cast<const char *>(status), 4).toHex();
}

struct App
{
    int argc = 1;
    char name[10] = "sim_tests";
    char *argv[2] = {name, nullptr};
    QCoreApplication app{argc, argv};
};

} // namespace

TEST(TarvikSimProcessTest, ServesTheProtocolOverAPseudoTerminal)
{
    App app;
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString saved = dir.filePath(QStringLiteral("memory.json"));
    const QString exchanges = dir.filePath(QStringLiteral("exchanges.txt"));
    QProcess sim;
    const QString path =
        startSim(sim, {QStringLiteral("--family"), QStringLiteral("0x03"),
                       QStringLiteral("--serial"), QStringLiteral("77"), QStringLiteral("--save"),
                       saved, QStringLiteral("--exchanges"), exchanges});
    ASSERT_TRUE(path.startsWith(QStringLiteral("/dev/"))) << qPrintable(path);

    RecordingPrompt prompt;
    for (int round = 0; round < 2; ++round) { // the second open finds the server still there
        SerialTransport port;
        ASSERT_TRUE(port.open(path)) << qPrintable(port.errorString());
        port.setReadTimeout(kTestPortTimeoutMs);
        TMonnayeur link(&port, &prompt);
        EXPECT_TRUE(link.CheckPresence(true));
        quint8 version[3] = {};
        ASSERT_TRUE(link.ReadBlock(Cmd::ReadVersion, version));
        EXPECT_EQ(version[0], 0x03);
        ChannelBytes record{};
        ASSERT_TRUE(link.ReadChannel(0, false, record));
        EXPECT_EQ(record[Rec::AmpMax], 0xFF);
        const quint8 ident[8] = {0x30, 0x6F, 0x30, 0x6F, 0, 0, 0, quint8(42 + round)};
        EXPECT_TRUE(link.WriteBlock(Cmd::WriteIdent, ident));
        port.close();
    }
    EXPECT_TRUE(prompt.told().isEmpty()) << qPrintable(prompt.told().join(u'\n'));

    sim.terminate();
    ASSERT_TRUE(sim.waitForFinished(5000));
    EXPECT_EQ(sim.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(sim.exitCode(), 0);
    ConfigImage image;
    QString error;
    ASSERT_TRUE(loadConfigFile(saved, image, &error)) << qPrintable(error);
    EXPECT_EQ(image.serialNumber(), 43u);
    // Every exchange it answered, with the channel it named, both rounds.
    QFile answered(exchanges);
    ASSERT_TRUE(answered.open(QIODevice::ReadOnly));
    EXPECT_EQ(answered.readAll(), QByteArray("1 -1\n10 -1\n4 0\n6 -1\n").repeated(2));
}

TEST(TarvikSimProcessTest, FirmwareRequestReachesAnIdleHost)
{
    App app;
    QProcess sim;
    const QString path =
        startSim(sim, {QStringLiteral("--request-firmware-after"), QStringLiteral("1500")});
    ASSERT_TRUE(path.startsWith(QStringLiteral("/dev/"))) << qPrintable(path);
    SerialTransport port;
    ASSERT_TRUE(port.open(path)) << qPrintable(port.errorString());
    port.setReadTimeout(5000);
    EXPECT_EQ(port.read(1).toHex(), "0b");
    port.write(QByteArray(1, '\0'));
    port.write(QByteArray(64, 'S')); // one firmware block
    EXPECT_EQ(port.read(2).toHex(), "5500");
    port.close();
    sim.terminate();
    ASSERT_TRUE(sim.waitForFinished(5000));
}

TEST(TarvikSimProcessTest, TokensFromTheScriptAreReadAndItsEndDoesNotStopTheDevice)
{
    App app;
    QProcess sim;
    const QString path = startSim(sim, {QStringLiteral("--serial"), QStringLiteral("1004")});
    ASSERT_TRUE(path.startsWith(QStringLiteral("/dev/"))) << qPrintable(path);
    // The command list comes after the coins are queued; then the input ends.
    sim.write("coin golden 3\nhelp\n");
    sim.closeWriteChannel();
    ASSERT_TRUE(waitForOutput(sim, QProcess::StandardOutput, QStringLiteral("cable out|in"))
                    .contains(QLatin1String("coin NAME")));

    RecordingPrompt prompt;
    SerialTransport port;
    ASSERT_TRUE(port.open(path)) << qPrintable(port.errorString());
    port.setReadTimeout(kTestPortTimeoutMs);
    TMonnayeur link(&port, &prompt);
    const SampleBytes golden =
        CoinGenerator::typical(CoinKind::GoldenToken, VirtualValidator::calibrationOffset(1004));
    for (int i = 0; i < 3; ++i) {
        SampleBytes sample{};
        ASSERT_TRUE(link.ReadSample(1, true, sample)) << i;
        for (std::size_t m = 0; m < sample.size(); ++m)
            EXPECT_NEAR(sample[m], golden[m], 2) << i << ", measurement " << m;
    }
    SampleBytes none{};
    EXPECT_FALSE(link.ReadSample(1, true, none));
    EXPECT_TRUE(link.CheckPresence(false));
    EXPECT_EQ(sim.state(), QProcess::Running);
    port.close();
    sim.terminate();
    ASSERT_TRUE(sim.waitForFinished(5000));
    EXPECT_EQ(sim.exitCode(), 0);
}

TEST(TarvikSimProcessTest, DoorFromTheScriptShowsInTheStatusAndMistakesAreReported)
{
    App app;
    QProcess sim;
    const QString path = startSim(sim, {});
    ASSERT_TRUE(path.startsWith(QStringLiteral("/dev/"))) << qPrintable(path);
    sim.write("door open\nfly away\ncoin penny\n");
    const QString errors = waitForOutput(sim, QProcess::StandardError, QStringLiteral("penny"));
    EXPECT_EQ(errors.count(u'\n'), 2) << qPrintable(errors); // one line each
    EXPECT_TRUE(errors.contains(QLatin1String("fly away"))) << qPrintable(errors);

    RecordingPrompt prompt;
    SerialTransport port;
    ASSERT_TRUE(port.open(path)) << qPrintable(port.errorString());
    port.setReadTimeout(kTestPortTimeoutMs);
    TMonnayeur link(&port, &prompt);
    EXPECT_EQ(statusHex(link), "00000001");
    sim.write("door closed\nhelp\n");
    waitForOutput(sim, QProcess::StandardOutput, QStringLiteral("cable out|in"));
    EXPECT_EQ(statusHex(link), "00000000");
    EXPECT_TRUE(prompt.told().isEmpty()) << qPrintable(prompt.told().join(u'\n'));
    port.close();
    sim.terminate();
    ASSERT_TRUE(sim.waitForFinished(5000));
}

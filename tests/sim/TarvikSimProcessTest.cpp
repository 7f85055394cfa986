// End to end: the built tarvik-sim on a pseudo-terminal, opened as a serial port.

#include "ConfigFile.h"
#include "RecordingPrompt.h"
#include "SerialTransport.h"
#include "TMonnayeur.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

TEST(TarvikSimProcessTest, ServesTheProtocolOverAPseudoTerminal)
{
    int argc = 1;
    char name[] = "sim_tests";
    char *argv[] = {name, nullptr};
    QCoreApplication app(argc, argv);

    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString saved = dir.filePath(QStringLiteral("memory.json"));
    QProcess sim;
    sim.start(QStringLiteral(TARVIK_SIM_PATH),
              {QStringLiteral("--family"), QStringLiteral("0x03"), QStringLiteral("--serial"),
               QStringLiteral("77"), QStringLiteral("--save"), saved, QStringLiteral("--quiet")});
    ASSERT_TRUE(sim.waitForStarted(5000));
    while (!sim.canReadLine() && sim.waitForReadyRead(5000)) {
    }
    const QString path = QString::fromLocal8Bit(sim.readLine()).trimmed();
    ASSERT_TRUE(path.startsWith(QStringLiteral("/dev/"))) << qPrintable(path);

    RecordingPrompt prompt;
    for (int round = 0; round < 2; ++round) { // the second open finds the server still there
        SerialTransport port;
        ASSERT_TRUE(port.open(path)) << qPrintable(port.errorString());
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
}

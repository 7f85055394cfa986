// What reaches the port and what is believed of it: the port named is the port opened, a
// firmware file that is not S-record text is never sent, a port lost during a transfer is said,
// and a reply with a byte of noise in it is not a good read.
#include "ByteRelay.h"
#include "Commands.h"
#include "FirmwareFile.h"
#include "InProcessCli.h"
#include "SRecords.h"
#include "SimProcess.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace {

class PortAndLine : public CliFixture
{
protected:
    QString writeFile(const char *name, const QByteArray &bytes)
    {
        QFile f(path(name));
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
        return f.fileName();
    }
    int backups() const
    {
        return int(QDir(dir.filePath("backups"))
                       .entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Files)
                       .size());
    }
};

TEST_F(PortAndLine, PortNamedIsThePortOpened)
{
    // COM1 leads nowhere, COM12 to the validator: --port COM12 reaches it, not COM1.
    SimProcess sim({"--family", "0x13"});
    const QString map =
        QStringLiteral("COM1=%1,COM12=%2").arg(dir.filePath("no-such-tty"), sim.path());
    const CliRun probe = runTarvikCli({"--port", "COM12", "probe"}, 60000, map);
    EXPECT_EQ(probe.exitCode, 0) << qPrintable(probe.err);
    EXPECT_EQ(probe.out.trimmed(), "COM12");
    const CliRun one = runTarvikCli({"--port", "COM1", "probe"}, 60000, map);
    EXPECT_EQ(one.exitCode, 1);

    for (const char *bad : {"COM1X", "xCOM1", "COM", "COM0", "12", "COM 1"}) {
        const InProcessRun run = runInProcess({"--port", bad, "probe"});
        EXPECT_EQ(run.code, kExitUsage) << bad;
        EXPECT_TRUE(run.err.contains("--port takes COM and a port number")) << qPrintable(run.err);
    }
    for (const char *bad : {"abc", "19", "5001", "-5", "100ms"}) {
        const InProcessRun run = runInProcess({"--simulate", "--port-timeout", bad, "read"});
        EXPECT_EQ(run.code, kExitUsage) << bad;
        EXPECT_TRUE(run.err.contains("--port-timeout takes milliseconds from 20 to 5000"));
    }
    EXPECT_EQ(runInProcess({"--simulate", "--port-timeout", "400", "probe"}).code, kExitOk);
}

TEST_F(PortAndLine, FirmwareFilesThatAreNotSRecordsAreNeverSent)
{
    const QByteArray good = sRecordFirmware(4);
    ASSERT_TRUE(checkFirmwareFile(good).ok);
    EXPECT_TRUE(checkFirmwareFile(QByteArray(good).replace("\r\n", "\n")).ok);

    struct Case
    {
        QByteArray bytes;
        int line;
        Msg reason;
    };
    QByteArray badSum = good;
    badSum[badSum.indexOf("\r\nS1", 20) - 1] ^= 1; // the second record's checksum
    QByteArray shortRecord = good;
    shortRecord.remove(shortRecord.indexOf("\r\nS9") - 4, 2);
    QByteArray random;
    for (int i = 0; i < 600; ++i)
        random += char((i * 73 + 11) % 256);
    const Case cases[] = {
        {badSum, 2, Msg::SRecordBadChecksum},
        {shortRecord, 5, Msg::SRecordBadCount},
        {good + "S1130010ZZ\r\n", 7, Msg::SRecordBadHex},
        {"\r\n" + good + "hello\r\n", 8, Msg::SRecordBadStart},
        {random, 1, Msg::SRecordBadStart},
    };
    for (const Case &c : cases) {
        const FirmwareFileCheck check = checkFirmwareFile(c.bytes);
        EXPECT_FALSE(check.ok);
        EXPECT_EQ(check.line, c.line);
        EXPECT_EQ(check.reason, c.reason) << check.message("f").toStdString();
    }
    EXPECT_TRUE(checkFirmwareFile("").empty);
    EXPECT_TRUE(checkFirmwareFile("\r\n\n").empty);

    // Over the line: a validator plugged in directly (or the mini-programmer) gets nothing.
    const QString received = dir.filePath("received.bin");
    {
        SimProcess mini({"--mini-programmer", "--firmware-out", received});
        const QString trace = dir.filePath("trace.txt");
        for (const QByteArray &bytes : {random, badSum, QByteArray()}) {
            const QString file = writeFile("bad.s19", bytes);
            const CliRun run = runTarvikCli({"--device", mini.path(), "firmware", file});
            EXPECT_EQ(run.exitCode, 1);
            EXPECT_TRUE(run.err.contains(bytes.isEmpty() ? "is empty" : "Nothing was sent"))
                << qPrintable(run.err);
        }
        const CliRun random1 =
            runTarvikCli({"--device", mini.path(), "firmware", writeFile("random.s19", random)});
        EXPECT_TRUE(random1.err.contains(
            "random.s19 is not a Motorola S-record firmware file: line 1 does not begin with S0 "
            "to S9. Nothing was sent."))
            << qPrintable(random1.err);
        SimProcess validator({"--family", "0x13"});
        const CliRun direct = runTarvikCli({"--device", validator.path(), "--trace", trace,
                                            "firmware", writeFile("random.s19", random)});
        EXPECT_EQ(direct.exitCode, 1);
        EXPECT_FALSE(QFile::exists(trace)); // the port was never opened
    }
    QFile got(received);
    ASSERT_TRUE(got.open(QIODevice::ReadOnly));
    EXPECT_TRUE(got.readAll().isEmpty());

    // Over 1 MB: refused without --yes, before the port is opened.
    QByteArray large = "S00600004844521B\r\n";
    while (large.size() <= kLargeFirmwareBytes)
        large += s1Record(large.size() & 0xFFF0);
    const CliRun refused = runTarvikCli(
        {"--device", dir.filePath("no-such-tty"), "firmware", writeFile("big.s19", large)});
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_TRUE(refused.err.contains("Add --yes")) << qPrintable(refused.err);
}

TEST_F(PortAndLine, FirmwareSaysUpgradeModeProgressAndAPortLostOnTheWay)
{
    const QByteArray firmware = sRecordFirmware(150); // 6.6 KB: 103 blocks
    const QString file = writeFile("fw.s19", firmware);
    const QString received = dir.filePath("received.bin");
    {
        SimProcess mini({"--mini-programmer", "--firmware-out", received});
        const CliRun run = runTarvikCli({"--device", mini.path(), "firmware", file});
        EXPECT_EQ(run.exitCode, 0) << qPrintable(run.err);
        EXPECT_TRUE(run.out.contains("Upgrade over..."));
        EXPECT_TRUE(run.err.startsWith("The mini-programmer must be in its upgrade mode"));
        EXPECT_TRUE(run.err.contains(QStringLiteral("%1 of %1 bytes sent").arg(firmware.size())));
    }
    QFile got(received);
    ASSERT_TRUE(got.open(QIODevice::ReadOnly));
    EXPECT_EQ(got.readAll(), firmware);

    // A mini-programmer that does not answer after a block costs the port's time-out per
    // block: time enough to pull the cable after the first tenth.
    SimProcess mini({"--mini-programmer", "--silent-ack"});
    QProcess cli;
    cli.setReadChannel(QProcess::StandardError);
    cli.start(QStringLiteral(TARVIK_CLI_PATH),
              {"--device", mini.path(), "--port-timeout", "100", "firmware", file});
    QByteArray err;
    while (err.count(" bytes sent\n") < 2 && cli.waitForReadyRead(30000))
        err += cli.readAllStandardError();
    mini.stop();
    ASSERT_TRUE(cli.waitForFinished(60000));
    err += cli.readAllStandardError();
    EXPECT_EQ(cli.exitCode(), 1) << err.constData();
    EXPECT_TRUE(cli.readAllStandardOutput().contains("Upgrade over..."));
    const QString text = QString::fromUtf8(err);
    const QRegularExpression lost(
        QStringLiteral("The port was lost during the transfer: (\\d+) of %1 bytes left the port")
            .arg(firmware.size()));
    const QRegularExpressionMatch match = lost.match(text);
    ASSERT_TRUE(match.hasMatch()) << qPrintable(text);
    EXPECT_GT(match.captured(1).toInt(), 0);
    EXPECT_LT(match.captured(1).toInt(), firmware.size());
}

TEST_F(PortAndLine, AByteOfNoiseInAReplyFailsTheRead)
{
    SimProcess sim({"--family", "0x13"});
    const QString image = dir.filePath("image.json");
    {
        // Through the relay without noise, the read is good.
        ByteRelay relay(sim.path(), {});
        const CliRun clean = runTarvikCli({"--device", relay.path(), "read", "-o", image});
        ASSERT_EQ(clean.exitCode, 0) << qPrintable(clean.err);
        EXPECT_EQ(backups(), 1);
    }
    QFile::remove(image);
    // One byte inside channel 5's reply, and one right behind channel 20's first byte.
    for (const ByteRelay::Noise noise :
         {ByteRelay::Noise{true, Cmd::ReadChannel, 5, 6, char(0x5A)},
          ByteRelay::Noise{true, Cmd::ReadChannel, 20, 1, char(0x00)}}) {
        ByteRelay relay(sim.path(), noise);
        const CliRun read = runTarvikCli({"--device", relay.path(), "read", "-o", image});
        EXPECT_TRUE(relay.inserted());
        EXPECT_EQ(read.exitCode, 1) << qPrintable(read.err);
        EXPECT_TRUE(read.err.contains("Reading Error fron validator")) << qPrintable(read.err);
        EXPECT_FALSE(QFile::exists(image));
        EXPECT_EQ(backups(), 1); // no backup of a wrong image
    }
}

} // namespace

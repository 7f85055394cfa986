// tarvik-cli write and clone read the validator back: against tarvik-sim over a pseudo-terminal,
// refusing a block or accepting everything.
#include "CliContext.h"
#include "ConfigFile.h"
#include "Encodings.h"
#include "Settings.h"
#include "SimProcess.h"
#include "VirtualValidator.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

const QString kVerified = QStringLiteral("Verified: the validator holds the configuration.\n");
const QString kHeading = QStringLiteral("The validator does not hold what was written:\n");

class WriteVerify : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        static int argc = 1;
        static char name[] = "cli_tests";
        static char *argv[] = {name, nullptr};
        if (!QCoreApplication::instance())
            new QCoreApplication(argc, argv);
    }
    void SetUp() override { qputenv("TARVIK_DB", dir.path().toLocal8Bit()); }

    // The configuration of a validator of serial 1001, with channel 1 switched off and valued
    // otherwise, and what the write of it leaves for `diff`.
    QString changedFile()
    {
        const QString file = dir.filePath(QStringLiteral("changed.json"));
        QTextStream out(&m_sink), err(&m_sink);
        EXPECT_EQ(runCli({"--simulate", "read", "-o", file}, out, err), kExitOk);
        ConfigImage image;
        QString error;
        EXPECT_TRUE(loadConfigFile(file, image, &error)) << qPrintable(error);
        image.enable[7] ^= 0x01;
        image.values[Val::Channel0] = image.valueByte(0) == 7 ? 8 : 7;
        EXPECT_TRUE(saveConfigFile(file, image, &error)) << qPrintable(error);
        return file;
    }

    QTemporaryDir dir;
    QString m_sink;
};

TEST_F(WriteVerify, ARefusedBlockFinishesButExitsOneWithWhatTheValidatorHolds)
{
    const QString file = changedFile();
    for (const char *refused : {"22", "16"}) {
        SimProcess sim({"--family", "0x13", "--serial", "1001", "--refuse", refused});
        const CliRun write = runTarvikCli({"--device", sim.path(), "write", file});
        EXPECT_EQ(write.exitCode, 1) << refused;
        EXPECT_TRUE(write.err.contains("Finished operation!")) << qPrintable(write.err);
        ASSERT_TRUE(write.out.startsWith(kHeading)) << qPrintable(write.out);
        const QStringList lines = write.out.mid(kHeading.size()).split('\n', Qt::SkipEmptyParts);
        ASSERT_EQ(lines.size(), 1) << qPrintable(write.out);
        if (QLatin1String(refused) == QLatin1String("22"))
            EXPECT_EQ(lines.first(), "Channel 1: disabled → enabled");
        else
            EXPECT_TRUE(lines.first().startsWith("Channel 1: Value ")) << qPrintable(lines.first());

        // Without the read-back the write's own result stands.
        const CliRun unchecked =
            runTarvikCli({"--device", sim.path(), "write", file, "--no-verify"});
        EXPECT_EQ(unchecked.exitCode, 0);
        EXPECT_TRUE(unchecked.out.isEmpty()) << qPrintable(unchecked.out);
    }
}

TEST_F(WriteVerify, AcceptedWriteVerifiesAndDiffShowsOnlyWhatTheValidatorSets)
{
    // A validator of the same firmware date (serials alike modulo 4), another serial number.
    const QString file = changedFile();
    SimProcess sim({"--family", "0x13", "--serial", "2005"});
    const CliRun write = runTarvikCli({"--device", sim.path(), "write", file});
    EXPECT_EQ(write.exitCode, 0) << qPrintable(write.err);
    EXPECT_EQ(write.out, kVerified);

    // The programming date is today's, the serial number and production date the validator's.
    const CliRun diff = runTarvikCli({"--device", sim.path(), "diff", "validator", file});
    EXPECT_EQ(diff.exitCode, 1) << qPrintable(diff.err);
    Settings settings; // the dates as tarvik-cli writes them
    settings.load();
    setEncodingSettings(settings.encodingSettings());
    const ConfigImage theirs = VirtualValidator::factoryImage(0x13, 2005);
    const ConfigImage ours = VirtualValidator::factoryImage(0x13, 1001);
    auto produced = [](const ConfigImage &image) {
        return FormatDate16({image.ident[2], image.ident[3]});
    };
    EXPECT_EQ(diff.out, "Programming date: " + FormatDate16(EncodeDate16(QDate::currentDate())) +
                            " → By Mini-Pgm\nProduction date: " + produced(theirs) + " → " +
                            produced(ours) + "\nSerial Number: 2005 → 1001\n");
}

TEST_F(WriteVerify, CloneVerifiesOnlyTheGroupsItSent)
{
    // The target's own enable mask differs from the file's: the clone does not send it.
    const QString file = changedFile();
    SimProcess sim({"--family", "0x13", "--serial", "1001"});
    const CliRun clone =
        runTarvikCli({"--device", sim.path(), "clone", file, "--groups", "channels,values"});
    EXPECT_EQ(clone.exitCode, 0) << qPrintable(clone.err);
    EXPECT_EQ(clone.out, kVerified);
}

} // namespace

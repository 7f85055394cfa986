// Amounts a base cannot hold and learnings that do not reach the validator: tarvik-cli against
// tarvik-sim over a pseudo-terminal, refusing a step or unplugged while coins are collected.
#include "ConfigFile.h"
#include "InProcessCli.h"
#include "SimProcess.h"
#include "VirtualValidator.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

class LearnFault : public CliFixture
{
protected:
    ConfigImage read(const SimProcess &sim)
    {
        const QString back = path("back.json");
        const CliRun run = runTarvikCli({"--device", sim.path(), "read", "-o", back});
        EXPECT_EQ(run.exitCode, 0) << qPrintable(run.err);
        ConfigImage image;
        QString error;
        EXPECT_TRUE(loadConfigFile(back, image, &error)) << qPrintable(error);
        return image;
    }
};

TEST_F(LearnFault, AmountsTheBaseCannotHoldAreRefusedBeforeAnythingIsWritten)
{
    // Validator 1001 values channels 1 to 30 in steps of 0.05: at most 12.60.
    SimProcess sim({"--family", "0x13", "--serial", "1001"});
    const ConfigImage factory = VirtualValidator::factoryImage(0x13, 1001);
    const QString file = path("factory.json");
    ASSERT_TRUE(saveConfigFile(file, factory, nullptr));
    sim.send("coin 0.50 10");

    // From a configuration file the port is not even opened.
    const QString trace = path("trace.txt");
    const CliRun fromFile = runTarvikCli({"--device", sim.path(), "--trace", trace, "learn", "10",
                                          "--value", "50", "--config", file});
    EXPECT_EQ(fromFile.exitCode, 2);
    EXPECT_TRUE(fromFile.err.contains("--value 50 is more than channel 10 can hold: its base 0.05 "
                                      "holds at most 12.60; nothing was written"))
        << qPrintable(fromFile.err);
    EXPECT_FALSE(QFile::exists(trace));

    // From the validator's own base: read, then refused before a coin is asked for.
    for (const char *value : {"50", "-1"}) {
        const CliRun learn =
            runTarvikCli({"--device", sim.path(), "learn", "10", "--value", value});
        EXPECT_EQ(learn.exitCode, 2) << value;
        EXPECT_FALSE(learn.err.contains("Insert")) << qPrintable(learn.err);
        EXPECT_FALSE(learn.err.contains("usage:")) << qPrintable(learn.err);
    }
    const CliRun edit =
        runTarvikCli({"--device", sim.path(), "edit", file, "Value3=50", "SpeedButton8"});
    EXPECT_EQ(edit.exitCode, 2);
    EXPECT_TRUE(edit.err.startsWith("tarvik-cli: Value3=50: the base 0.05 holds at most 12.60"))
        << qPrintable(edit.err);
    EXPECT_TRUE(edit.out.isEmpty());

    const ConfigImage after = read(sim);
    EXPECT_EQ(after.channels, factory.channels);
    EXPECT_EQ(after.values, factory.values);
    EXPECT_EQ(after.enable, factory.enable);
}

TEST_F(LearnFault, ARefusedSaveSaysWhatFailedAndWhatTheChannelNowHolds)
{
    SimProcess sim({"--family", "0x13", "--serial", "1001", "--refuse", "16"});
    sim.send("coin 0.50 10");
    const CliRun learn =
        runTarvikCli({"--device", sim.path(), "learn", "10", "--value", "0.50", "--timeout", "60"});
    EXPECT_EQ(learn.exitCode, 1);
    EXPECT_TRUE(learn.err.endsWith("Channel 10 was not saved into the validator.\nThe validator "
                                   "refused: Values table.\nChannel 10 of the validator now holds "
                                   "the learned windows, no value, disabled.\n"))
        << qPrintable(learn.err);
    // What it said is what a read finds.
    const ConfigImage after = read(sim);
    EXPECT_NE(after.channels[9], VirtualValidator::factoryImage(0x13, 1001).channels[9]);
    EXPECT_EQ(after.valueByte(9), 255);
    EXPECT_FALSE(after.enableBit(9));
}

TEST_F(LearnFault, APortLostWhileCoinsAreCollectedEndsTheCollectionAtOnce)
{
    SimProcess sim({"--family", "0x13", "--serial", "1001"});
    sim.send("coin 0.50 2");
    QProcess learn;
    learn.start(QStringLiteral(TARVIK_CLI_PATH),
                {"--device", sim.path(), "learn", "10", "--timeout", "600"});
    QByteArray out;
    while (!out.contains("sample 2") && learn.waitForReadyRead(60000))
        out += learn.readAllStandardOutput();
    ASSERT_TRUE(out.contains("sample 2")) << out.constData();
    sim.stop(); // the adapter pulled out: the pseudo-terminal goes away
    // Well before the ten minutes of the time-out.
    ASSERT_TRUE(learn.waitForFinished(60000));
    EXPECT_EQ(learn.exitCode(), 1);
    const QString err = QString::fromUtf8(learn.readAllStandardError());
    EXPECT_TRUE(err.contains("tarvik-cli: the port was lost after 2 of 10 samples (device gone"))
        << qPrintable(err);
    EXPECT_FALSE(err.contains("time-out")) << qPrintable(err);
}

} // namespace

// What a write that did not go through says the validator holds: tarvik-cli write and clone
// against tarvik-sim over a pseudo-terminal, with the virtual validator refusing given steps or
// mishearing a command.
#include "ConfigFile.h"
#include "InProcessCli.h"
#include "SimProcess.h"
#include "VirtualValidator.h"

#include <gtest/gtest.h>

namespace {

class WriteFault : public CliFixture
{
protected:
    void SetUp() override
    {
        CliFixture::SetUp();
        // Validator 1001's configuration with channel 1 switched off.
        ConfigImage image = VirtualValidator::factoryImage(0x13, 1001);
        image.enable[7] ^= 0x01;
        ASSERT_TRUE(saveConfigFile(file, image, nullptr));
    }
    CliRun write(const QStringList &simArguments, const QStringList &arguments)
    {
        SimProcess sim(QStringList{"--family", "0x13", "--serial", "1001"} + simArguments);
        return runTarvikCli(QStringList{"--device", sim.path()} + arguments);
    }

    const QString file = path("changed.json");
};

TEST_F(WriteFault, AFaultSaysWhichGroupsReachedTheValidatorOrThatNothingDid)
{
    // The first channel misheard: the write stops before any data went out.
    const CliRun first = write({"--wrong-echo", "3"}, {"write", file});
    EXPECT_EQ(first.exitCode, 1);
    EXPECT_TRUE(first.err.endsWith("Fault during save operation !\nNothing was written: the "
                                   "validator holds what it held before.\n"))
        << qPrintable(first.err);
    EXPECT_FALSE(first.err.contains("partly written")) << qPrintable(first.err);

    // The value table misheard after every channel and the option word were accepted.
    const CliRun values = write({"--wrong-echo", "16"}, {"write", file});
    EXPECT_EQ(values.exitCode, 1);
    EXPECT_TRUE(values.err.contains("(written: Channels data, Configuration); nothing already "
                                    "written was undone."))
        << qPrintable(values.err);

    // A clone whose third slice of values is refused: the rest goes on, the write faults, and
    // the message names every group that reached the validator, the value table cut short.
    const CliRun clone = write({"--refuse", "16:3"}, {"clone", file});
    EXPECT_EQ(clone.exitCode, 1);
    EXPECT_TRUE(clone.err.contains("Fault during save operation !\nThe validator refused: Values "
                                   "table.\nThe validator now holds a partly written "
                                   "configuration (written: Channels data, Values table (2 of 5 "
                                   "parts), Configuration, Prices table, Enable table, "
                                   "Validator's own block);"))
        << qPrintable(clone.err);
}

TEST_F(WriteFault, AFinishedWriteNamesWhatWasRefusedAndARefusedOwnBlockIsNotVerified)
{
    // Seven of nine units finish the write; what was refused follows, with or without the
    // read-back, and the exit code says the validator does not hold it all.
    const CliRun enable = write({"--refuse", "22"}, {"write", file, "--no-verify"});
    EXPECT_EQ(enable.exitCode, 1);
    EXPECT_TRUE(enable.err.contains("Finished operation!\nThe validator refused: Enable table.\n"))
        << qPrintable(enable.err);
    EXPECT_TRUE(enable.out.isEmpty()) << qPrintable(enable.out);

    // The identification and the validator's own block are not compared by the read-back, yet
    // a refusal of either is a mismatch, not "Verified".
    for (const auto &[command, line] :
         {std::pair{"6", "Identification: sent → refused by the validator\n"},
          std::pair{"12", "Validator's own block: sent → refused by the validator\n"}}) {
        const CliRun run = write({"--refuse", command}, {"write", file});
        EXPECT_EQ(run.exitCode, 1) << command;
        EXPECT_EQ(run.out,
                  "The validator does not hold what was written:\n" + QString::fromUtf8(line))
            << qPrintable(run.out + run.err);
    }
}

} // namespace

// tarvik-cli write reads the validator back: against tarvik-sim over a pseudo-terminal,
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

TEST(WriteVerify, ExitsOneWhenTheValidatorDoesNotHoldTheWriteAndDiffShowsOnlyItsOwnBlocks)
{
    static int argc = 1;
    static char name[] = "cli_tests";
    static char *argv[] = {name, nullptr};
    if (!QCoreApplication::instance())
        new QCoreApplication(argc, argv);
    QTemporaryDir dir;
    qputenv("TARVIK_DB", dir.path().toLocal8Bit());
    // Validator 1001's configuration with channel 1 switched off and valued otherwise.
    const QString file = dir.filePath(QStringLiteral("changed.json"));
    ConfigImage image = VirtualValidator::factoryImage(0x13, 1001);
    image.enable[7] ^= 0x01;
    image.values[Val::Channel0] = image.valueByte(0) == 7 ? 8 : 7;
    ASSERT_TRUE(saveConfigFile(file, image, nullptr));

    const QString heading = QStringLiteral("The validator does not hold what was written:\n");
    for (const auto &[refused, line] : {std::pair{"22", "Channel 1: disabled → enabled\n"},
                                        std::pair{"16", "Channel 1: Value "}}) {
        SimProcess sim({"--family", "0x13", "--serial", "1001", "--refuse", refused});
        const CliRun write = runTarvikCli({"--device", sim.path(), "write", file});
        EXPECT_EQ(write.exitCode, 1) << refused;
        EXPECT_TRUE(write.err.contains("Finished operation!")) << qPrintable(write.err);
        EXPECT_TRUE(write.out.startsWith(heading + QString::fromUtf8(line)) &&
                    write.out.count('\n') == 2)
            << qPrintable(write.out);
        // Without the read-back the write still says what was refused, and exits 1.
        const CliRun unchecked =
            runTarvikCli({"--device", sim.path(), "write", file, "--no-verify"});
        EXPECT_EQ(unchecked.exitCode, 1);
        EXPECT_TRUE(unchecked.err.contains("The validator refused: ")) << qPrintable(unchecked.err);
        EXPECT_TRUE(unchecked.out.isEmpty()) << qPrintable(unchecked.out);
    }

    // Same firmware date (serials alike modulo 4), another serial number: written and verified,
    // and diff then shows today's programming date and the validator's own serial number and
    // production date, nothing else.
    SimProcess sim({"--family", "0x13", "--serial", "2005"});
    const CliRun write = runTarvikCli({"--device", sim.path(), "write", file});
    EXPECT_EQ(write.exitCode, 0) << qPrintable(write.err);
    EXPECT_EQ(write.out, "Verified: the validator holds the configuration.\n");
    const CliRun diff = runTarvikCli({"--device", sim.path(), "diff", "validator", file});
    EXPECT_EQ(diff.exitCode, 1) << qPrintable(diff.err);
    Settings settings; // the dates as tarvik-cli writes them
    settings.load();
    setEncodingSettings(settings.encodingSettings());
    auto produced = [](quint32 serial) {
        const ConfigImage factory = VirtualValidator::factoryImage(0x13, serial);
        return FormatDate16({factory.ident[2], factory.ident[3]});
    };
    EXPECT_EQ(diff.out, "Programming date: " + FormatDate16(EncodeDate16(QDate::currentDate())) +
                            " → By Mini-Pgm\nProduction date: " + produced(2005) + " → " +
                            produced(1001) + "\nSerial Number: 2005 → 1001\n");
}

} // namespace

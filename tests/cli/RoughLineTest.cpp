// End to end over a line as rough as a bench's (ctest label "line"): tarvik-cli against
// tarvik-sim on a pseudo-terminal, paced at 9600 baud, with random turnarounds up to 850 ms and
// USB adapters that hand bytes over every 1, 4 or 16 ms.

#include "ConfigFile.h"
#include "ConfigImage.h"
#include "SRecords.h"
#include "SimProcess.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QString roughLine(const char *turnaround, int burst, int seed)
{
    return QStringLiteral("pace,turnaround=%1,echo=0-60,burst=%2,seed=%3")
        .arg(QLatin1String(turnaround))
        .arg(burst)
        .arg(seed);
}

ConfigImage loaded(const QString &file)
{
    ConfigImage image;
    QString error;
    EXPECT_TRUE(loadConfigFile(file, image, &error)) << qPrintable(error);
    return image;
}

// Everything a full write sends, compared byte for byte.
void expectSameProgramming(const ConfigImage &a, const ConfigImage &b)
{
    EXPECT_EQ(a.channels, b.channels);
    EXPECT_EQ(a.values, b.values);
    EXPECT_EQ(a.prices, b.prices);
    EXPECT_EQ(a.options, b.options);
    EXPECT_EQ(a.enable, b.enable);
    EXPECT_EQ(a.serialNumber(), b.serialNumber());
}

class RoughLine : public ::testing::Test
{
protected:
    QTemporaryDir tmp;
    QString file(const char *name) const { return tmp.filePath(QLatin1String(name)); }
};

TEST_F(RoughLine, ReadWriteAndReadBackAgreeFromTheCliAndFromTheEditor)
{
    const QString source = file("source.json");
    {
        SimProcess a({"--serial", "1001", "--line", roughLine("0-400", 16, 21)});
        const CliRun read = runTarvikCli({"--device", a.path(), "read", "-o", source}, 120000);
        ASSERT_EQ(read.exitCode, 0) << qPrintable(read.err);
    }
    SimProcess b({"--serial", "1001", "--line", roughLine("0-400", 16, 22)});
    const CliRun write = runTarvikCli({"--device", b.path(), "write", source}, 120000);
    ASSERT_EQ(write.exitCode, 0) << qPrintable(write.err);
    EXPECT_TRUE(write.err.contains("Finished operation!"));
    const CliRun back =
        runTarvikCli({"--device", b.path(), "read", "-o", file("back.json")}, 120000);
    ASSERT_EQ(back.exitCode, 0) << qPrintable(back.err);
    expectSameProgramming(loaded(file("back.json")), loaded(source));

    // The editor reads, takes an edit and writes the whole validator over the same line.
    const CliRun edit = runTarvikCli({"--device", b.path(), "edit", source, "-o",
                                      file("edited.json"), "EHFUBMIN5=300", "SpeedButton8"},
                                     120000);
    ASSERT_EQ(edit.exitCode, 0) << qPrintable(edit.err);
    EXPECT_TRUE(edit.err.contains("Finished operation!"));
    const CliRun again =
        runTarvikCli({"--device", b.path(), "read", "-o", file("again.json")}, 120000);
    ASSERT_EQ(again.exitCode, 0) << qPrintable(again.err);
    const ConfigImage reread = loaded(file("again.json"));
    expectSameProgramming(reread, loaded(file("edited.json")));
    EXPECT_EQ(reread.channels[5][3], 44);
}

TEST_F(RoughLine, CloneLearnCalibrateAndFirmwareBehindFastAndSlowAdapters)
{
    int seed = 30;
    for (const int burst : {1, 4}) {
        const QString source = file("clone-source.json");
        {
            SimProcess a({"--serial", "2002", "--line", roughLine("0-100", burst, ++seed)});
            ASSERT_EQ(runTarvikCli({"--device", a.path(), "read", "-o", source}).exitCode, 0);
        }
        // Turnarounds up to 850 ms on a clone of a few groups, a learning and a calibration.
        SimProcess sim({"--serial", "1001", "--line", roughLine("0-850", burst, ++seed)});
        const CliRun clone = runTarvikCli(
            {"--device", sim.path(), "clone", source, "--groups", "prices,config"}, 120000);
        ASSERT_EQ(clone.exitCode, 0) << qPrintable(clone.err);
        EXPECT_TRUE(clone.err.contains("Finished operation!")) << qPrintable(clone.err);

        sim.send("coin 0.50 10");
        const CliRun learn = runTarvikCli({"--device", sim.path(), "learn", "10", "--value", "0.50",
                                           "-o", file("learned.json"), "--timeout", "60"},
                                          120000);
        ASSERT_EQ(learn.exitCode, 0) << qPrintable(learn.err);
        EXPECT_EQ(learn.out.count("matches channel 4"), 10) << qPrintable(learn.out);
        EXPECT_TRUE(learn.err.contains("Values directly saved into validator"));

        sim.send("coin golden 5");
        sim.send("coin silver 5");
        const CliRun calibrate =
            runTarvikCli({"--device", sim.path(), "calibrate", "--timeout", "60"}, 120000);
        EXPECT_EQ(calibrate.exitCode, 0) << qPrintable(calibrate.err);
        EXPECT_TRUE(calibrate.err.contains("Reference Channel saved !"));
    }

    // The mini-programmer's answers split after their first byte, behind a 16 ms adapter.
    const QByteArray firmware = sRecordFirmware(12);
    QFile f(file("fw.s19"));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(firmware);
    f.close();
    const QString split = QStringLiteral("pace,turnaround=0-40,burst=16,split=1:20,seed=9");
    SimProcess stopping({"--mini-programmer", "--stop-after-block", "3", "--line", split});
    const CliRun stopped = runTarvikCli({"--device", stopping.path(), "firmware", file("fw.s19")});
    EXPECT_EQ(stopped.exitCode, 1);
    EXPECT_TRUE(stopped.err.contains("Operation cancelled by operator")) << qPrintable(stopped.err);
    SimProcess mini({"--mini-programmer", "--firmware-out", file("got.bin"), "--line", split});
    const CliRun run = runTarvikCli({"--device", mini.path(), "firmware", file("fw.s19")});
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.err);
    mini.stop();
    QFile got(file("got.bin"));
    ASSERT_TRUE(got.open(QIODevice::ReadOnly));
    EXPECT_EQ(got.readAll(), firmware);
}

} // namespace

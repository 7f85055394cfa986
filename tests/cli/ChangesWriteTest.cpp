// tarvik-cli write --changes against tarvik-sim over a pseudo-terminal, counting the commands
// the validator received: only the blocks that differ go out, and only they are read back.
#include "ConfigFile.h"
#include "Encodings.h"
#include "SimProcess.h"
#include "VirtualValidator.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

void ensureApplication()
{
    static int argc = 1;
    static char name[] = "cli_tests";
    static char *argv[] = {name, nullptr};
    if (!QCoreApplication::instance())
        new QCoreApplication(argc, argv);
}

// What tarvik-sim answered, as "command index" pairs, once it has ended.
struct Received
{
    QList<std::pair<int, int>> exchanges;

    int count(int command, int index = -2) const
    {
        return int(std::count_if(exchanges.begin(), exchanges.end(), [&](const auto &e) {
            return e.first == command && (index == -2 || e.second == index);
        }));
    }
    // Every write command of the protocol.
    int writes() const
    {
        int n = 0;
        for (int command : {3, 6, 12, 14, 16, 18, 20, 22})
            n += count(command);
        return n;
    }
};

Received stopAndCount(SimProcess &sim, const QString &log)
{
    sim.stop();
    Received received;
    QFile file(log);
    if (!file.open(QIODevice::ReadOnly))
        return received;
    for (const QByteArray &line : file.readAll().split('\n')) {
        const QList<QByteArray> words = line.split(' ');
        if (words.size() == 2)
            received.exchanges.append({words[0].toInt(), words[1].toInt()});
    }
    return received;
}

class ChangesWrite : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ensureApplication();
        qputenv("TARVIK_DB", m_dir.path().toLocal8Bit());
        ASSERT_TRUE(saveConfigFile(path("base.json"), m_base, nullptr));
    }
    QString path(const char *name) const { return m_dir.filePath(QLatin1String(name)); }
    QString save(const ConfigImage &image, const char *name) const
    {
        EXPECT_TRUE(saveConfigFile(path(name), image, nullptr));
        return path(name);
    }
    // Writes `wanted` to validator `serial` (1001's configuration in it) with --changes.
    CliRun write(const QString &wanted, Received &received, QStringList more = {},
                 quint32 serial = 1001)
    {
        SimProcess sim({"--family", "0x13", "--serial", QString::number(serial), "--exchanges",
                        path("exchanges.txt")});
        const CliRun run = runTarvikCli(QStringList{"--device", sim.path(), "write", wanted,
                                                    "--changes", "--since", path("base.json")} +
                                        more);
        received = stopAndCount(sim, path("exchanges.txt"));
        return run;
    }

    QTemporaryDir m_dir;
    ConfigImage m_base = VirtualValidator::factoryImage(0x13, 1001);
};

TEST_F(ChangesWrite, OneWindowValueOrPriceSendsItsOwnBlockAndReadsOnlyThatBack)
{
    const QString verified = QStringLiteral("Verified: the validator holds the configuration.\n");

    ConfigImage window = m_base;
    window.channels[2][Rec::HfuLowMin] = quint8(window.channels[2][Rec::HfuLowMin] + 1);
    Received received;
    CliRun run = write(save(window, "window.json"), received);
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.err);
    EXPECT_TRUE(run.out.startsWith("Channel 3: HFU low min ")) << qPrintable(run.out);
    EXPECT_TRUE(run.out.endsWith("1 block to write\n" + verified)) << qPrintable(run.out);
    EXPECT_TRUE(run.err.contains("Finished operation!")) << qPrintable(run.err);
    EXPECT_EQ(received.writes(), 1);
    EXPECT_EQ(received.count(3, 2), 1);
    // Its read-back and the identification, no full read.
    EXPECT_EQ(received.count(4), 1);
    EXPECT_EQ(received.count(4, 2), 1);
    for (int read : {2, 8, 9, 13, 15, 17, 19, 21, 23})
        EXPECT_EQ(received.count(read), 0) << read;
    // The validator's history keeps the write and how it ended.
    const CliRun history = runTarvikCli({"history", "1001"});
    EXPECT_EQ(history.exitCode, 0) << qPrintable(history.err);
    EXPECT_TRUE(history.out.contains("Changes write (")) << qPrintable(history.out);
    EXPECT_TRUE(history.out.contains("), verified")) << qPrintable(history.out);

    // One channel's value: the slice that holds it, and that slice read back.
    ConfigImage value = m_base;
    value.values[Val::Channel0 + 40] = quint8(value.valueByte(40) == 9 ? 10 : 9);
    run = write(save(value, "value.json"), received);
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.err);
    EXPECT_TRUE(run.out.endsWith(verified)) << qPrintable(run.out);
    EXPECT_EQ(received.writes(), 1);
    EXPECT_EQ(received.count(16, (Val::Channel0 + 40) / 15), 1);
    EXPECT_EQ(received.count(17), 1);
    EXPECT_EQ(received.count(17, (Val::Channel0 + 40) / 15), 1);

    // A price: one command 18, read back with 19.
    ConfigImage price = m_base;
    price.prices[1] = quint8(price.prices[1] == 20 ? 21 : 20);
    run = write(save(price, "price.json"), received);
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.err);
    EXPECT_EQ(received.writes(), 1);
    EXPECT_EQ(received.count(18), 1);
    EXPECT_EQ(received.count(19), 1);

    // Nothing differs: nothing is written, and that is said.
    run = write(path("base.json"), received);
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.err.contains("already holds this configuration")) << qPrintable(run.err);
    EXPECT_EQ(received.writes(), 0);
}

TEST_F(ChangesWrite, AnotherValidatorABaselineOfAnotherModelOrOneProgrammedSinceWritesNothing)
{
    ConfigImage window = m_base;
    window.channels[0][Rec::LfMax] = quint8(window.channels[0][Rec::LfMax] - 1);
    const QString wanted = save(window, "window.json");

    // Validator 2005 is not 1001, whose configuration the baseline is.
    Received received;
    CliRun run = write(wanted, received, {}, 2005);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.err.contains("This validator (serial 2005) is not the one read (serial 1001): "
                                 "nothing was written."))
        << qPrintable(run.err);
    EXPECT_EQ(received.writes(), 0);
    EXPECT_TRUE(run.out.isEmpty()) << qPrintable(run.out);

    // A Light baseline says nothing of a 60-channel configuration: refused before any exchange.
    save(VirtualValidator::factoryImage(0x33, 1001), "base.json");
    run = write(wanted, received);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.err.contains("nothing was written")) << qPrintable(run.err);
    EXPECT_EQ(received.writes(), 0);

    // The validator was programmed on a date after the baseline's: written elsewhere since.
    ConfigImage older = m_base;
    const Word2 date = EncodeDate16(QDate(2020, 1, 1));
    older.ident[0] = date[0];
    older.ident[1] = date[1];
    save(older, "base.json");
    ConfigImage holds = m_base;
    const Word2 later = EncodeDate16(QDate(2024, 6, 1));
    holds.ident[0] = later[0];
    holds.ident[1] = later[1];
    {
        SimProcess sim({"--load", save(holds, "holds.json"), "--exchanges", path("ex.txt")});
        run = runTarvikCli(
            {"--device", sim.path(), "write", wanted, "--changes", "--since", path("base.json")});
        received = stopAndCount(sim, path("ex.txt"));
    }
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.err.contains("written elsewhere since")) << qPrintable(run.err);
    EXPECT_TRUE(run.err.contains("--force")) << qPrintable(run.err);
    EXPECT_EQ(received.writes(), 0);
    {
        SimProcess sim({"--load", path("holds.json"), "--exchanges", path("ex.txt")});
        run = runTarvikCli({"--device", sim.path(), "write", wanted, "--changes", "--since",
                            path("base.json"), "--force"});
        received = stopAndCount(sim, path("ex.txt"));
    }
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.err);
    EXPECT_EQ(received.writes(), 1);

    // A file that does not parse: a clear message, nothing spoken on the line.
    QFile broken(path("broken.json"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("{ not json");
    broken.close();
    run = write(path("broken.json"), received);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.err.contains("broken.json")) << qPrintable(run.err);
    EXPECT_TRUE(received.exchanges.isEmpty());
}

TEST_F(ChangesWrite, AValidatorThatFallsSilentMidWriteIsSaidToHoldWhatReachedIt)
{
    ConfigImage two = m_base;
    two.channels[1][Rec::HfuLowMin] = 80;
    two.channels[2][Rec::HfuLowMin] = 80;
    // Silent after the connect, its identification, its version and the first channel.
    SimProcess sim({"--family", "0x13", "--serial", "1001", "--silent-after", "4", "--exchanges",
                    path("ex.txt")});
    const CliRun run = runTarvikCli({"--device", sim.path(), "write", save(two, "two.json"),
                                     "--changes", "--since", path("base.json")});
    const Received received = stopAndCount(sim, path("ex.txt"));
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.err.contains("Fault during save operation !")) << qPrintable(run.err);
    EXPECT_TRUE(run.err.contains("(written: Channels data (channels 2))")) << qPrintable(run.err);
    EXPECT_FALSE(run.out.contains("Verified")) << qPrintable(run.out);
    EXPECT_EQ(received.count(3, 1), 1);
    EXPECT_EQ(received.writes(), 1);
}

TEST_F(ChangesWrite, WithoutSinceTheNewestReadBackupOfTheValidatorIsTheBaseline)
{
    SimProcess sim({"--family", "0x13", "--serial", "1001"});
    // No read of validator 1001 yet: only the whole configuration can be written.
    ConfigImage window = m_base;
    window.channels[4][Rec::DimMin] = quint8(window.channels[4][Rec::DimMin] + 2);
    const QString wanted = save(window, "window.json");
    CliRun run = runTarvikCli({"--device", sim.path(), "write", wanted, "--changes"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.err.contains("only the whole configuration can be written"))
        << qPrintable(run.err);

    // A read keeps its backup; the changes write then counts from it.
    ASSERT_EQ(runTarvikCli({"--device", sim.path(), "read", "-o", path("read.json")}).exitCode, 0);
    run = runTarvikCli({"--device", sim.path(), "write", wanted, "--changes"});
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.err);
    EXPECT_TRUE(run.out.startsWith("Channel 5: DIM min ")) << qPrintable(run.out);
    EXPECT_TRUE(run.err.contains("serial1001")) << qPrintable(run.err);

    // Its read-back was kept: the same file again has nothing left to write, and another
    // change counts from what the validator now holds.
    run = runTarvikCli({"--device", sim.path(), "write", wanted, "--changes"});
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.err);
    EXPECT_TRUE(run.err.contains("already holds this configuration")) << qPrintable(run.err);
    window.prices[2] = 5;
    run = runTarvikCli({"--device", sim.path(), "write", save(window, "more.json"), "--changes"});
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.err);
    EXPECT_TRUE(run.out.startsWith("Value P3: ") && run.out.contains("1 block to write"))
        << qPrintable(run.out);
}

} // namespace

// The bench commands tarvik-sim takes on its standard input, run on the device in-process.

#include "BenchCommands.h"
#include "BenchPanelModel.h"
#include "VirtualValidator.h"

#include <gtest/gtest.h>

namespace {

TEST(BenchCommandsTest, CoinsAreNamedByFaceValueOrKey)
{
    const std::pair<const char *, CoinKind> named[] = {
        {"0.05", CoinKind::Euro005},       {"0,10", CoinKind::Euro010},
        {"0.2", CoinKind::Euro020},        {"euro050", CoinKind::Euro050},
        {"1", CoinKind::Euro100},          {"2.00 EUR", CoinKind::Euro200},
        {"GOLDEN", CoinKind::GoldenToken}, {" silver ", CoinKind::SilverToken},
    };
    for (const auto &[name, kind] : named)
        EXPECT_EQ(CoinGenerator::kindNamed(QString::fromLatin1(name)), kind) << name;
    for (const char *name : {"", "0", "0.03", "0.055", "3.00", "euro", "euro5", "golden2", "eur"})
        EXPECT_EQ(CoinGenerator::kindNamed(QString::fromLatin1(name)), std::nullopt) << name;
}

TEST(BenchCommandsTest, CommandsActOnTheDeviceAndMistakesChangeNothing)
{
    VirtualValidator device;
    BenchCommands bench(&device);
    auto run = [&](const char *line) { return bench.run(QString::fromLatin1(line)); };

    EXPECT_TRUE(run("coin 0.50 EUR 2").error.isEmpty());
    EXPECT_TRUE(run("Coin\tgolden\r").error.isEmpty());
    EXPECT_EQ(device.queuedCoins(), 3);
    EXPECT_TRUE(run("door open").error.isEmpty());
    EXPECT_TRUE(device.doorOpen());
    EXPECT_TRUE(run("cable out").error.isEmpty());
    EXPECT_FALSE(device.connected());
    run("cable in");
    run("door closed");
    EXPECT_TRUE(device.connected());
    EXPECT_FALSE(device.doorOpen());
    EXPECT_TRUE(run("   ").error.isEmpty());
    EXPECT_TRUE(run("help").output.contains(QLatin1String("coin NAME [COUNT]")));

    for (const char *mistake : {"coin", "coin penny", "coin golden 0", "coin golden 1001",
                                "coin golden 2 3", "door ajar", "cable", "help me", "fly away"}) {
        const BenchCommands::Reply reply = run(mistake);
        EXPECT_FALSE(reply.error.isEmpty()) << mistake;
        EXPECT_FALSE(reply.error.contains(u'\n')) << mistake;
        EXPECT_TRUE(reply.output.isEmpty()) << mistake;
    }
    EXPECT_EQ(device.queuedCoins(), 3);
    EXPECT_TRUE(device.connected());
    EXPECT_FALSE(device.doorOpen());
}

// The panel's own actions are bench lines too, and every line it sends is understood; a line
// profile goes out as text and comes back the same.
TEST(BenchCommandsTest, ThePanelsActionsAreBenchLines)
{
    VirtualValidator device;
    std::optional<LineProfile> taken;
    BenchCommands bench(&device, [&](const LineProfile &line) { taken = line; });
    QStringList refused;
    BenchPanelModel model(
        [&](const QString &line) {
            const BenchCommands::Reply reply = bench.run(line);
            if (!reply.error.isEmpty())
                refused << line + QStringLiteral(": ") + reply.error;
        },
        [&] { return BenchStatus::of(device); }, LineProfile::bench());

    model.setDoorOpen(true);
    model.fitValidator(3, 4242);
    EXPECT_EQ(device.memory().familyByte(), 0x33);
    EXPECT_EQ(device.memory().serialNumber(), 4242u);
    EXPECT_TRUE(device.doorOpen()); // a new validator in the same place
    for (int k = 0; k < CoinGenerator::kindCount(); ++k)
        model.insertCoin(CoinKind(k));
    EXPECT_EQ(model.status().queuedCoins, CoinGenerator::kindCount());
    model.setMiniProgrammer(true);
    model.requestFirmware();
    EXPECT_TRUE(device.firmwareRequested());
    EXPECT_TRUE(model.status().miniProgrammer);
    model.setCablePlugged(false);
    EXPECT_FALSE(model.status().connected);

    LineProfile rough = LineProfile::bench();
    rough.turnaroundMinMs = 400; // typed upside down
    rough.turnaroundMaxMs = 20;
    rough.splitAt = 5;
    rough.splitGapMs = 30;
    rough.seed = 77;
    model.setLine(rough);
    ASSERT_TRUE(taken);
    EXPECT_EQ(taken->turnaroundMinMs, 20);
    EXPECT_EQ(taken->turnaroundMaxMs, 400);
    EXPECT_EQ(*taken, model.line());
    model.setLine(LineProfile::instant());
    EXPECT_EQ(*taken, LineProfile::instant());
    EXPECT_TRUE(refused.isEmpty()) << qPrintable(refused.join(u'\n'));

    EXPECT_EQ(bench.run(QStringLiteral("status")).output,
              QStringLiteral("coins 8, test mode off, mini-programmer on, door open, cable out, "
                             "family 0x33, serial 4242\n"));
    for (const char *mistake : {"fit", "fit 0x13", "fit 0x100 5", "fit 0x13 -1", "mini", "line",
                                "line fast", "firmware", "status now"})
        EXPECT_FALSE(bench.run(QString::fromLatin1(mistake)).error.isEmpty()) << mistake;
    EXPECT_FALSE(BenchCommands(&device).run(QStringLiteral("line bench")).error.isEmpty());
}

// The validator changes hands: each one plugged keeps its memory on the rack while another is
// in place, and one can be pulled in the middle of a write.
TEST(BenchCommandsTest, ValidatorsChangeHandsAndKeepTheirMemory)
{
    VirtualValidator device(0x13, 1001);
    BenchCommands bench(&device);
    auto run = [&](const char *line) { return bench.run(QString::fromLatin1(line)).error; };
    device.memory().prices[0] = 7; // what a write left in 1001

    EXPECT_TRUE(run("unplug").isEmpty());
    EXPECT_FALSE(device.connected());
    EXPECT_TRUE(run("plug 2002 0x23").isEmpty());
    EXPECT_TRUE(device.connected());
    EXPECT_EQ(device.memory(), VirtualValidator::factoryImage(0x23, 2002));
    EXPECT_TRUE(run("plug 1001").isEmpty()); // 2002 goes on the rack as it is
    EXPECT_EQ(device.memory().familyByte(), 0x13);
    EXPECT_EQ(device.memory().prices[0], 7);
    EXPECT_TRUE(run("plug 2002 0x13").isEmpty()); // a known one keeps its own family
    EXPECT_EQ(device.memory().familyByte(), 0x23);
    EXPECT_TRUE(run("plug").isEmpty()); // a new one, of the last one's family
    EXPECT_EQ(device.memory().serialNumber(), 2003u);
    EXPECT_EQ(device.memory().familyByte(), 0x23);

    // Pulled right after its second accepted write: the third is not heard.
    EXPECT_TRUE(run("unplug after 2").isEmpty());
    const QByteArray prices("\x01\x02\x03\x04\x05\x06", 6);
    for (int write = 1; write <= 3; ++write) {
        const QList<DeviceOutput> echo = device.receive(QByteArray(1, char(Cmd::WritePrices)));
        ASSERT_EQ(echo.isEmpty(), write == 3) << write;
        device.receive(prices);
        EXPECT_EQ(device.connected(), write < 2) << write;
    }
    EXPECT_EQ(device.memory().prices[0], 1);

    // The panel's buttons send the same lines.
    BenchPanelModel model([&](const QString &line) { bench.run(line); },
                          [&] { return BenchStatus::of(device); }, LineProfile::bench());
    model.plugValidator(1, 1001);
    EXPECT_TRUE(model.status().connected);
    EXPECT_EQ(model.status().serial, 1001u);
    EXPECT_EQ(device.memory().prices[0], 7);
    model.unplugValidator();
    EXPECT_FALSE(model.status().connected);

    for (const char *mistake : {"plug x", "plug 1 2 3", "plug 5 0x100", "plug 4294967296",
                                "unplug later", "unplug after 0", "unplug after"})
        EXPECT_FALSE(run(mistake).isEmpty()) << mistake;
    EXPECT_FALSE(device.connected());
}

} // namespace

// The bench commands tarvik-sim takes on its standard input, run on the device in-process.

#include "BenchCommands.h"
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

} // namespace

// tarvik-cli history against tarvik-sim over a pseudo-terminal: read, a window changed and
// written, read again, a whole file written; the four events, their difference, and the first
// state put back.
#include "ConfigFile.h"
#include "SimProcess.h"
#include "TestApplication.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

TEST(HistoryCli, ListsTheFourEventsComparesTwoAndPutsTheFirstBack)
{
    testApplication();
    QTemporaryDir dir;
    const QString data = dir.path();
    SimProcess sim({"--family", "0x13", "--serial", "1001"});
    ASSERT_FALSE(sim.path().isEmpty());
    auto cli = [&](QStringList args) {
        return runTarvikCli(QStringList{"--data-dir", data, "--device", sim.path()} + args);
    };
    const QString first = dir.filePath(QStringLiteral("first.json"));
    ASSERT_EQ(cli({"read", "-o", first}).exitCode, 0);
    ConfigImage image;
    ASSERT_TRUE(loadConfigFile(first, image, nullptr));

    ConfigImage window = image;
    window.channels[4][Rec::HfuLowMin] = quint8(image.channels[4][Rec::HfuLowMin] + 3);
    const QString windowFile = dir.filePath(QStringLiteral("window.json"));
    ASSERT_TRUE(saveConfigFile(windowFile, window, nullptr));
    const CliRun written = cli({"write", windowFile});
    ASSERT_EQ(written.exitCode, 0) << qPrintable(written.err);
    ASSERT_EQ(cli({"read", "-o", dir.filePath(QStringLiteral("again.json"))}).exitCode, 0);
    ConfigImage whole = image;
    whole.channels[9][Rec::LfMax] = quint8(image.channels[9][Rec::LfMax] - 2);
    const QString wholeFile = dir.filePath(QStringLiteral("whole.json"));
    ASSERT_TRUE(saveConfigFile(wholeFile, whole, nullptr));
    ASSERT_EQ(cli({"write", wholeFile}).exitCode, 0);

    const CliRun listed = cli({"history", "1001", "--json"});
    ASSERT_EQ(listed.exitCode, 0) << qPrintable(listed.err);
    const QJsonObject root = QJsonDocument::fromJson(listed.out.toUtf8()).object();
    EXPECT_EQ(root.value("serial").toInt(), 1001);
    const QJsonArray events = root.value("events").toArray();
    ASSERT_EQ(events.size(), 4) << qPrintable(listed.out);
    const QStringList kinds{"read", "write", "read", "write"};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(events[i].toObject().value("kind").toString(), kinds[i]);
        EXPECT_TRUE(events[i].toObject().value("program").toString().startsWith("tarvik-cli "));
    }
    EXPECT_EQ(events[1].toObject().value("result").toString(), QStringLiteral("verified"));
    QStringList keys;
    for (const QJsonValue &change : events[1].toObject().value("changes").toArray())
        keys.append(change.toObject().value("key").toString());
    EXPECT_TRUE(keys.contains(QStringLiteral("channel.5.hfu_low_min")))
        << qPrintable(keys.join(' '));
    EXPECT_TRUE(events[2].toObject().value("changes").toArray().isEmpty());
    const CliRun text = cli({"history", "1001"});
    EXPECT_TRUE(text.out.contains(QStringLiteral("Channel 5: HFU low min")))
        << qPrintable(text.out);

    // As diff compares: exit 1, one difference a line.
    const CliRun diff = cli({"history", "1001", "--diff", "1", "4"});
    EXPECT_EQ(diff.exitCode, 1);
    EXPECT_TRUE(diff.out.contains(QStringLiteral("Channel 10: LF max"))) << qPrintable(diff.out);
    EXPECT_FALSE(diff.out.contains(QStringLiteral("Channel 5:")));
    EXPECT_EQ(cli({"history", "1001", "--diff", "2", "9"}).exitCode, 2);

    const CliRun restored = cli({"history", "1001", "--restore", "1"});
    EXPECT_EQ(restored.exitCode, 0) << qPrintable(restored.err);
    // The validator's memory, read again, is the first state but for its programming date.
    const CliRun check = cli({"diff", first, "validator", "--json"});
    QStringList left;
    for (const QJsonValue &change :
         QJsonDocument::fromJson(check.out.toUtf8()).object().value("changes").toArray())
        left.append(change.toObject().value("key").toString());
    EXPECT_TRUE(left.isEmpty() || left == QStringList{"ident.programming_date"})
        << qPrintable(left.join(' '));
    const CliRun after = cli({"history", "1001", "--json"});
    const QJsonArray all =
        QJsonDocument::fromJson(after.out.toUtf8()).object().value("events").toArray();
    ASSERT_EQ(all.size(), 6);
    EXPECT_EQ(all[4].toObject().value("kind").toString(), QStringLiteral("restore"));

    const CliRun unknown = cli({"history", "4242"});
    EXPECT_EQ(unknown.exitCode, 1);
    EXPECT_TRUE(unknown.err.contains(QStringLiteral("4242")));
    const CliRun serials = cli({"history", "--list"});
    EXPECT_EQ(serials.exitCode, 0);
    EXPECT_TRUE(serials.out.startsWith(QStringLiteral("1001  6 events")))
        << qPrintable(serials.out);
}

} // namespace

// Reading a validator back after a write and comparing it with what each step sent, against the
// in-process virtual validator.
#include "Messages.h"
#include "RecordingPrompt.h"
#include "SimTransport.h"
#include "VirtualValidator.h"
#include "WriteVerification.h"

#include <gtest/gtest.h>
#include <memory>

namespace {

struct Bench
{
    explicit Bench(quint8 family, quint32 serial = 1001)
        : device(std::make_unique<VirtualValidator>(family, serial)),
          port(std::make_unique<SimTransport>(device.get())),
          link(std::make_unique<TMonnayeur>(port.get(), &prompt))
    {
        port->setLatencyMs(0);
    }
    RecordingPrompt prompt;
    std::unique_ptr<VirtualValidator> device;
    std::unique_ptr<SimTransport> port;
    std::unique_ptr<TMonnayeur> link;
};

void toggleEnable(ConfigImage &image, int k)
{
    image.enable[std::size_t(7 - k / 8)] ^= quint8(1 << (k % 8));
}

// The validator's own configuration with channel 1 switched and valued otherwise.
ConfigImage changedImage(const VirtualValidator &device)
{
    ConfigImage image = device.memory();
    toggleEnable(image, 0);
    image.values[Val::Channel0] = image.valueByte(0) == 7 ? 8 : 7;
    return image;
}

QSet<ChangeGroup> groupsOf(const QList<ConfigChange> &changes)
{
    QSet<ChangeGroup> groups;
    for (const ConfigChange &change : changes)
        groups.insert(change.group);
    return groups;
}

TEST(WriteVerification, RefusedBlockFinishesButTheReadBackShowsIt)
{
    for (const auto &[command, group] :
         {std::pair{22, ChangeGroup::Enable}, std::pair{16, ChangeGroup::Values}}) {
        Bench bench(0x13);
        ConfigImage image = changedImage(*bench.device);
        bench.device->setRefusal(quint8(command));
        FullWriteOptions options;
        SentBlocks sent;
        ASSERT_EQ(fullWrite(*bench.link, image, options, {}, &sent), WriteOutcome::Finished);
        EXPECT_EQ(bench.prompt.told(), QStringList{"Finished operation!"});

        QList<int> gauges;
        ReadObserver observer;
        observer.progress = [&](int g) { gauges.append(g); };
        const VerifyResult result = verifyWrite(*bench.link, sent, observer);
        ASSERT_EQ(result.outcome, VerifyOutcome::Mismatches) << command;
        EXPECT_EQ(groupsOf(result.mismatches), QSet<ChangeGroup>{group}) << command;
        ASSERT_EQ(result.mismatches.size(), 1);
        // "before" is what was sent, "after" what the validator kept.
        const ConfigChange &change = result.mismatches.first();
        EXPECT_EQ(change.channel, 0);
        if (group == ChangeGroup::Enable) {
            EXPECT_EQ(change.text(), QStringLiteral("Channel 1: disabled → enabled"));
        }
        EXPECT_EQ(verificationMessage(result),
                  QStringLiteral("The validator does not hold what was written:\n") +
                      change.text());
        EXPECT_EQ(gauges.last(), 100);

        // Once it accepts everything, the same write verifies.
        bench.device->clearFaults();
        ASSERT_EQ(fullWrite(*bench.link, image, options, {}, &sent), WriteOutcome::Finished);
        const VerifyResult again = verifyWrite(*bench.link, sent);
        EXPECT_EQ(again.outcome, VerifyOutcome::Verified);
        EXPECT_EQ(verificationMessage(again),
                  QStringLiteral("Verified: the validator holds the configuration."));
    }
}

class VerifiedFamilies : public ::testing::TestWithParam<quint8>
{};

// Short records lose their amplitude window and a Light validator holds 25 channels: what it
// keeps of a whole write is what was sent.
TEST_P(VerifiedFamilies, AWholeWriteVerifies)
{
    Bench source(GetParam(), 3003);
    ConfigImage image = source.device->memory();
    image.options[1] |= 0x20;            // the counters travel too
    image.channels[0][Rec::AmpMax] = 50; // not kept by a validator of short records
    Bench target(GetParam(), 1001);
    FullWriteOptions options;
    options.lastChannelWarning = [](const QString &) { return true; };
    SentBlocks sent;
    ASSERT_EQ(fullWrite(*target.link, image, options, {}, &sent), WriteOutcome::Finished);
    EXPECT_TRUE(sent.counters.has_value());
    const VerifyResult result = verifyWrite(*target.link, sent);
    EXPECT_EQ(result.outcome, VerifyOutcome::Verified) << qPrintable(verificationMessage(result));
}

INSTANTIATE_TEST_SUITE_P(AllFamilies, VerifiedFamilies, ::testing::Values(0x02, 0x13, 0x31));

TEST(WriteVerification, WhatTheValidatorSetsItselfIsNeverAMismatch)
{
    Bench bench(0x13);
    ConfigImage image = bench.device->memory();
    FullWriteOptions options;
    SentBlocks sent;
    ASSERT_EQ(fullWrite(*bench.link, image, options, {}, &sent), WriteOutcome::Finished);
    ASSERT_FALSE(sent.counters.has_value()); // not erasable: the counters stay the validator's
    // The validator stamps its own programming date and counts a coin.
    ConfigImage &memory = bench.device->memory();
    memory.ident[0] = 0xFF;
    memory.ident[1] = 0x00;
    memory.counters[1] = quint8(memory.counters[1] + 1);
    EXPECT_EQ(verifyWrite(*bench.link, sent).outcome, VerifyOutcome::Verified);

    // Counters that were sent are compared like any block.
    sent.counters = image.counters;
    const VerifyResult result = verifyWrite(*bench.link, sent);
    ASSERT_EQ(result.outcome, VerifyOutcome::Mismatches);
    EXPECT_EQ(groupsOf(result.mismatches), QSet<ChangeGroup>{ChangeGroup::Counters});

    // A validator that does not answer fails the read-back.
    bench.device->setSilentAfter(5);
    const VerifyResult failed = verifyWrite(*bench.link, sent);
    EXPECT_EQ(failed.outcome, VerifyOutcome::ReadBackFailed);
    EXPECT_EQ(verificationMessage(failed),
              QStringLiteral("Verification failed: the validator could not be read back."));
}

TEST(WriteVerification, CloneVerifiesOnlyTheGroupsItSent)
{
    // The target's sensors differ: its channels are corrected, and its own enable mask and
    // prices stay as they were.
    ConfigImage image = VirtualValidator::factoryImage(0x13, 1000);
    toggleEnable(image, 0);
    image.prices[0] = quint8(image.prices[0] + 1);
    image.options[1] ^= 0x70; // bits the target keeps its own
    Bench target(0x13, 1004);
    const CloneGroups groups{true, true, false, true, false};
    SentBlocks sent;
    ASSERT_EQ(cloneWrite(*target.link, image, groups, {}, &sent), WriteOutcome::Finished);
    EXPECT_FALSE(sent.enable || sent.prices || sent.ident);
    EXPECT_EQ(verifyWrite(*target.link, sent).outcome, VerifyOutcome::Verified);

    // What was not sent does differ from the image.
    ConfigImage readBack = ConfigImage::blank();
    ASSERT_EQ(readValidator(*target.link, readBack, false), ReadOutcome::Done);
    const QSet<ChangeGroup> unsent = groupsOf(configDifferences(image, readBack));
    EXPECT_TRUE(unsent.contains(ChangeGroup::Enable) && unsent.contains(ChangeGroup::Prices));
}

} // namespace

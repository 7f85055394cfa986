// Reading a validator back after a write and comparing it with what each step sent, against the
// in-process virtual validator.
#include "WriteVerification.h"
#include "sim/SimBench.h"

#include <gtest/gtest.h>

namespace {

QSet<ChangeGroup> groupsOf(const VerifyResult &result)
{
    QSet<ChangeGroup> groups;
    for (const ConfigChange &change : result.mismatches)
        groups.insert(change.group);
    return groups;
}

TEST(WriteVerification, RefusedBlockFinishesButTheReadBackShowsIt)
{
    for (const auto &[command, group] :
         {std::pair{22, ChangeGroup::Enable}, std::pair{16, ChangeGroup::Values}}) {
        const QString refused = group == ChangeGroup::Enable ? "Enable table" : "Values table";
        SimBench b;
        ConfigImage image = b.device.memory(); // channel 1 switched off and valued otherwise
        image.enable[7] ^= 0x01;
        image.values[Val::Channel0] = image.valueByte(0) == 7 ? 8 : 7;
        b.device.setRefusal(quint8(command));
        FullWriteOptions options;
        SentBlocks sent;
        ASSERT_EQ(fullWrite(b.link, image, options, {}, &sent), WriteOutcome::Finished);
        EXPECT_EQ(b.prompt.told(),
                  (QStringList{"Finished operation!", "The validator refused: " + refused + '.'}));
        const VerifyResult result = verifyWrite(b.link, sent);
        ASSERT_EQ(result.outcome, VerifyOutcome::Mismatches) << command;
        ASSERT_EQ(result.mismatches.size(), 1);
        EXPECT_EQ(result.mismatches[0].group, group);
        EXPECT_EQ(result.mismatches[0].channel, 0);
        // "before" is what was sent, "after" what the validator kept.
        if (group == ChangeGroup::Enable) {
            EXPECT_EQ(verificationMessage(result), "The validator does not hold what was "
                                                   "written:\nChannel 1: disabled → enabled");
        }
        b.device.clearFaults();
        ASSERT_EQ(fullWrite(b.link, image, options, {}, &sent), WriteOutcome::Finished);
        EXPECT_EQ(verificationMessage(verifyWrite(b.link, sent)),
                  "Verified: the validator holds the configuration.");
    }
}

// A refused value table of a new coin set: every channel's value differs. The message box gets
// the first lines and how many more; the command line prints them all.
TEST(WriteVerification, ALongListIsCutForAMessageBox)
{
    SimBench b;
    ConfigImage image = b.device.memory();
    for (int k = 0; k < 30; ++k)
        image.values[std::size_t(Val::Channel0 + k)] = quint8(200 - k);
    b.device.setRefusal(16);
    FullWriteOptions options;
    SentBlocks sent;
    ASSERT_EQ(fullWrite(b.link, image, options, {}, &sent), WriteOutcome::Finished);
    const VerifyResult result = verifyWrite(b.link, sent);
    ASSERT_EQ(result.mismatches.size(), 30);
    const QStringList box = verificationMessage(result, 20).split(u'\n');
    ASSERT_EQ(box.size(), 21);
    EXPECT_EQ(box.last(), QStringLiteral("... and 11 more."));
    EXPECT_EQ(verificationMessage(result).split(u'\n').size(), 31);
}

// Short records lose their amplitude window and a Light validator holds 25 channels: what it
// keeps of a whole write from another validator is what was sent.
TEST(WriteVerification, EveryFamilyHoldsAWholeWrite)
{
    for (quint8 family : {0x02, 0x13, 0x31}) {
        ConfigImage image = VirtualValidator::factoryImage(family, 3003);
        image.options[1] |= 0x20; // the counters travel too
        image.channels[0][Rec::AmpMax] = 50;
        SimBench b(family);
        FullWriteOptions options;
        options.lastChannelWarning = [](const QString &) { return true; };
        SentBlocks sent;
        ASSERT_EQ(fullWrite(b.link, image, options, {}, &sent), WriteOutcome::Finished);
        const VerifyResult result = verifyWrite(b.link, sent);
        EXPECT_EQ(result.outcome, VerifyOutcome::Verified)
            << qPrintable(verificationMessage(result));
    }
}

TEST(WriteVerification, WhatTheValidatorSetsItselfIsNeverAMismatch)
{
    SimBench b;
    ConfigImage image = b.device.memory();
    FullWriteOptions options;
    SentBlocks sent;
    ASSERT_EQ(fullWrite(b.link, image, options, {}, &sent), WriteOutcome::Finished);
    ASSERT_FALSE(sent.counters);        // not erasable: the counters stay the validator's
    b.device.memory().ident[0] = 0xFF;  // it stamps its own programming date
    b.device.memory().counters[1] += 1; // and counts a coin
    EXPECT_EQ(verifyWrite(b.link, sent).outcome, VerifyOutcome::Verified);

    sent.counters = image.counters; // counters that were sent are compared
    EXPECT_EQ(groupsOf(verifyWrite(b.link, sent)), QSet<ChangeGroup>{ChangeGroup::Counters});

    b.device.setSilentAfter(5);
    EXPECT_EQ(verificationMessage(verifyWrite(b.link, sent)),
              "Verification failed: the validator could not be read back.");
}

TEST(WriteVerification, CloneVerifiesOnlyTheGroupsItSent)
{
    // Another validator's sensors: the channels are corrected; the target keeps its own enable
    // mask, prices and option bits 4-6.
    ConfigImage image = VirtualValidator::factoryImage(0x13, 1000);
    image.enable[7] ^= 0x01;
    image.prices[0] += 1;
    image.options[1] ^= 0x70;
    SimBench b;
    SentBlocks sent;
    ASSERT_EQ(cloneWrite(b.link, image, {true, true, false, true, false}, {}, &sent),
              WriteOutcome::Finished);
    EXPECT_EQ(verifyWrite(b.link, sent).outcome, VerifyOutcome::Verified);
    ConfigImage readBack = ConfigImage::blank();
    ASSERT_EQ(readValidator(b.link, readBack, false), ReadOutcome::Done);
    const QSet<ChangeGroup> unsent =
        groupsOf({VerifyOutcome::Mismatches, configDifferences(image, readBack)});
    EXPECT_TRUE(unsent.contains(ChangeGroup::Enable) && unsent.contains(ChangeGroup::Prices));
}

} // namespace

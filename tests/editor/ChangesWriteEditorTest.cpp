// "Write changes" and Direct write in the editor, over the virtual validator: what reaches it is
// what Changes lists, and nothing else.
#include "ChangesWrite.h"
#include "EditorModel.h"
#include "EditorServices.h"
#include "RecordingPrompt.h"
#include "SimTransport.h"
#include "VirtualValidator.h"

#include <gtest/gtest.h>

namespace {

struct Bench final : DefaultEditorServices
{
    Bench() : device(0x13, 1001), port(&device), link(&port, &prompt), model(&prompt, this, &link)
    {
        port.setLatencyMs(0);
    }
    bool directWrite() override { return direct; }
    void showChanges(ChangesModel &changes) override
    {
        listed = changes.changes().size();
        if (pressWrite)
            changes.requestWrite();
    }
    void open()
    {
        model.flags().readOnOpen = true;
        model.FormActivate();
        device.clearExchangeLog();
        prompt.clear();
    }
    void edit(const QString &name, const QString &text)
    {
        ASSERT_TRUE(model.type(name, text));
        ASSERT_TRUE(model.leave(name));
    }
    bool canWriteChanges() const
    {
        return model.control(QStringLiteral("BtnWriteChanges")).enabled;
    }
    int received(int command) const
    {
        const QList<SimExchange> &log = device.exchangeLog();
        return int(std::count_if(log.begin(), log.end(),
                                 [&](const SimExchange &e) { return e.command == command; }));
    }
    int writes() const
    {
        int n = 0;
        for (int command : {3, 6, 12, 14, 16, 18, 20, 22})
            n += received(command);
        return n;
    }

    bool direct = false;
    bool pressWrite = false;
    qsizetype listed = -1;
    VirtualValidator device;
    SimTransport port;
    RecordingPrompt prompt;
    TMonnayeur link;
    EditorModel model;
};

const QString kDone =
    QStringLiteral("Finished operation!\nVerified: the validator holds the configuration.");

TEST(EditorChangesWrite, WriteChangesSendsWhatChangesListsFromTheButtonOrTheChangesWindow)
{
    Bench b;
    EXPECT_FALSE(b.canWriteChanges()); // nothing read: what the validator holds is not known
    b.open();
    EXPECT_FALSE(b.canWriteChanges()); // nothing changed
    b.edit(QStringLiteral("EHFUBMIN3"), QStringLiteral("77"));
    b.edit(QStringLiteral("Value1"), QStringLiteral("0.50")); // 0.10 in steps of 0.05
    ASSERT_TRUE(b.canWriteChanges());

    ASSERT_TRUE(b.model.click(QStringLiteral("BtnWriteChanges")));
    EXPECT_EQ(b.prompt.told(), QStringList{kDone});
    EXPECT_EQ(b.writes(), 2);
    EXPECT_EQ(b.received(3), 1);
    EXPECT_EQ(b.received(16), 1);
    EXPECT_EQ(b.received(17), 1); // only the slice it sent is read back
    EXPECT_EQ(b.device.memory().channels[3][Rec::HfuLowMin], 77);
    EXPECT_EQ(b.device.memory().valueByte(1), 10);
    EXPECT_FALSE(b.canWriteChanges());
    EXPECT_FALSE(b.model.flags().configModified);

    // The Changes window's own button: the window closes, the editor writes.
    b.edit(QStringLiteral("EDIMMAX7"), QStringLiteral("120"));
    b.device.clearExchangeLog();
    b.prompt.clear();
    b.pressWrite = true;
    ASSERT_TRUE(b.model.click(QStringLiteral("BtnChanges")));
    EXPECT_EQ(b.listed, 1);
    EXPECT_EQ(b.prompt.told(), QStringList{kDone});
    EXPECT_EQ(b.writes(), 1);
    EXPECT_EQ(b.device.memory().channels[7][Rec::DimMax], 120);

    // Another validator in its place: refused with both serial numbers, nothing written.
    b.pressWrite = false;
    b.edit(QStringLiteral("EDIMMAX7"), QStringLiteral("121"));
    b.device.setMemory(VirtualValidator::factoryImage(0x13, 2005));
    b.device.clearExchangeLog();
    b.prompt.clear();
    ASSERT_TRUE(b.model.click(QStringLiteral("BtnWriteChanges")));
    EXPECT_EQ(b.prompt.told(), QStringList{"This validator (serial 2005) is not the one read "
                                           "(serial 1001): nothing was written."});
    EXPECT_EQ(b.writes(), 0);
    EXPECT_TRUE(b.model.flags().configModified);
}

TEST(EditorChangesWrite, WithoutAReadTheChangesWindowOffersTheWholeWrite)
{
    Bench b;
    ConfigImage opened = VirtualValidator::factoryImage(0x13, 1001);
    opened.prices[0] = 30;
    b.model.loadImage(opened, true, BaselineSource::Kind::File, QStringLiteral("x.json"));
    b.edit(QStringLiteral("EHFUBMIN2"), QStringLiteral("90"));
    EXPECT_FALSE(b.canWriteChanges());
    b.pressWrite = true;
    ASSERT_TRUE(b.model.click(QStringLiteral("BtnChanges")));
    EXPECT_EQ(b.listed, 1);
    // The whole configuration went, every channel and block.
    EXPECT_EQ(b.received(3), kChannels);
    EXPECT_EQ(b.device.memory().channels[2][Rec::HfuLowMin], 90);
    EXPECT_EQ(b.device.memory().prices[0], 30);
    EXPECT_EQ(b.prompt.told(), QStringList{kDone});
}

TEST(EditorChangesWrite, DirectWriteWritesALeftChannelBoxAtOnceAndNothingElse)
{
    Bench b;
    b.direct = true;
    b.open();
    const quint8 price = b.device.memory().prices[0];
    // A price is not a channel's box: it waits for a write.
    b.edit(QStringLiteral("Eprix1"), QStringLiteral("3.00"));
    EXPECT_EQ(b.writes(), 0);

    b.edit(QStringLiteral("EHFUBMIN5"), QStringLiteral("66"));
    EXPECT_EQ(b.device.memory().channels[5][Rec::HfuLowMin], 66);
    EXPECT_EQ(b.writes(), 1);
    EXPECT_EQ(b.received(3), 1);
    EXPECT_EQ(b.received(4), 1); // checked at once
    EXPECT_TRUE(b.prompt.told().isEmpty()) << qPrintable(b.prompt.told().join(u'\n'));
    EXPECT_EQ(b.device.memory().prices[0], price);
    // The price is still to be written; leaving the box again writes nothing more.
    EXPECT_TRUE(b.canWriteChanges());
    ASSERT_TRUE(b.model.leave(QStringLiteral("EHFUBMIN5")));
    EXPECT_EQ(b.writes(), 1);

    // Unchecking an enable box and leaving it sends the enable mask alone.
    ASSERT_TRUE(b.model.click(QStringLiteral("Enable2")));
    ASSERT_TRUE(b.model.leave(QStringLiteral("Enable2")));
    EXPECT_EQ(b.received(22), 1);
    EXPECT_EQ(b.writes(), 2);
    EXPECT_FALSE(b.device.memory().enableBit(2));
}

TEST(ChangesPlan, WhatTheValidatorCannotHoldOrKeepsAsItsOwnIsNotAChange)
{
    // A short record has no amplitude window: changing it changes nothing on a family 0.
    const ConfigImage old = VirtualValidator::factoryImage(0x03, 1001);
    ConfigImage wanted = old;
    wanted.channels[0][Rec::AmpMax] = 12;
    EXPECT_TRUE(planChanges(old, wanted).empty());
    wanted.channels[0][Rec::Substitute] = 3; // byte 12 of the short record
    EXPECT_EQ(planChanges(old, wanted).blocks(), 1);

    // Counters travel only when erasable; the serial number only with the override; a value
    // of channel 11 is in the table's first slice.
    ConfigImage base = VirtualValidator::factoryImage(0x13, 1001);
    wanted = base;
    wanted.counters[1] = 9;
    wanted.setSerialNumber(4242);
    wanted.values[Val::Channel0 + 10] = 7;
    ChangesPlan plan = planChanges(base, wanted);
    EXPECT_EQ(plan.blocks(), 1);
    EXPECT_TRUE(plan.valueSlices[0]);
    wanted.options[1] |= 0x20;
    plan = planChanges(base, wanted, true);
    EXPECT_TRUE(plan.counters && plan.ident && plan.options);
    EXPECT_EQ(plan.blocks(), 4);
    // The lines it sends: no version, counters as they travel.
    const QList<ConfigChange> lines = changesSent(base, wanted, plan);
    EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [](const ConfigChange &c) {
        return c.key == QLatin1String("ident.serial");
    }));
}

} // namespace

// The money, option and counter rules of the editor model, over a factory image.
#include "EditorModel.h"
#include "EditorServices.h"
#include "Encodings.h"
#include "MoneyModel.h"
#include "RecordingPrompt.h"
#include "VirtualValidator.h"

#include <gtest/gtest.h>

namespace {

struct Rules
{
    explicit Rules(quint8 family = 0x13)
    {
        setEncodingSettings(EncodingSettings{u'.', u'/', 1});
        model.loadImage(VirtualValidator::factoryImage(family, 1001), false);
    }
    void edit(const QString &name, const QString &text)
    {
        ASSERT_TRUE(model.type(name, text)) << name.toStdString();
        ASSERT_TRUE(model.leave(name));
    }
    void click(const QString &name) { ASSERT_TRUE(model.click(name)) << name.toStdString(); }
    void pick(const QString &name, int item) { ASSERT_TRUE(model.pick(name, item)); }
    QString text(const QString &name) const { return model.control(name).text; }
    bool checked(const QString &name) const { return model.control(name).checked; }
    bool visible(const QString &name) const { return model.control(name).visible; }
    bool enabled(const QString &name) const { return model.control(name).enabled; }
    const ConfigImage &image() const { return model.image(); }
    quint8 option(int byte) const { return image().options[std::size_t(byte)]; }

    RecordingPrompt prompt;
    DefaultEditorServices services;
    EditorModel model{&prompt, &services};
};

} // namespace

TEST(OutputType, EachTypeSetsItsBitsAndDefaultPrices)
{
    Rules r;
    ASSERT_EQ(r.option(1), 0xCF);
    r.pick("GroupType", 4);
    EXPECT_EQ(r.option(0), 0xF5);
    EXPECT_EQ(r.option(1), 0xC8); // bits 3-5 kept, 6-7 set, 0-2 cleared
    EXPECT_EQ(r.image().prices, (PriceBlock{255, 1, 10, 255, 3, 2}));
    EXPECT_TRUE(r.model.flags().configModified);
    EXPECT_EQ(r.model.control("GroupType").itemIndex, 4);

    // "50 - " ends on "20 - Totalizer - video game".
    r.pick("GroupType", 5);
    EXPECT_EQ(r.model.control("GroupType").itemIndex, 2);
    EXPECT_EQ(r.option(0), 0xF7);
    EXPECT_EQ(r.option(1) & 0x07, 1);

    for (int type : {6, 7, 3, 1, 0}) {
        r.pick("GroupType", type);
        EXPECT_EQ(r.model.control("GroupType").itemIndex, type);
    }
    EXPECT_EQ(r.image().prices, (PriceBlock{255, 255, 255, 255, 255, 10}));

    Rules light(0x33);
    light.pick("GroupTypeLight", 1);
    EXPECT_EQ(light.option(1) & 0x07, 1);
    EXPECT_EQ(light.model.control("GroupTypeLight").itemIndex, 1);
}

TEST(Prices, SlotsStoreByTypeAndPulseWidthIsLimited)
{
    Rules r;
    r.edit("Eprix6", "700");
    EXPECT_EQ(r.prompt.told(), QStringList{"Value over 630 ms, it will be adjusted!"});
    EXPECT_EQ(r.image().prices[5], 63);
    EXPECT_EQ(r.text("Eprix6"), QStringLiteral("   630"));
    r.edit("Eprix6", "125");
    EXPECT_EQ(r.image().prices[5], 12);
    EXPECT_EQ(r.text("Eprix6"), QStringLiteral("   120"));
    r.edit("Eprix1", "0.50"); // a price against base 1 (0.05)
    EXPECT_EQ(r.image().prices[0], 10);
    r.prompt.clear();
    r.edit("Eprix2", "abc");
    EXPECT_EQ(r.prompt.told(), QStringList{"Value must be between 0 and 255"});
    EXPECT_EQ(r.image().prices[1], 255);

    // Passing through a box changes nothing.
    r.model.flags().configModified = false;
    ASSERT_TRUE(r.model.leave("Eprix6"));
    EXPECT_EQ(r.text("Eprix6"), QStringLiteral("   120"));
    EXPECT_FALSE(r.model.flags().configModified);

    // Type 1: slot 3 in tens while "External reset" is checked, as the type's bits start it.
    r.pick("GroupType", 1);
    ASSERT_TRUE(r.checked("ChkResetEx"));
    r.edit("EPrix3", "55");
    EXPECT_EQ(r.image().prices[2], 5);
    EXPECT_EQ(r.text("EPrix3"), QStringLiteral("    50"));
    r.click("ChkResetEx");
    r.edit("EPrix3", "55");
    EXPECT_EQ(r.image().prices[2], 55);
}

TEST(Prices, ChainedEnablingChangesOnlyOnLeavingPriceOneOrFour)
{
    Rules r;
    auto enabled = [&r](std::initializer_list<const char *> names, bool expected) {
        for (const char *name : names)
            EXPECT_EQ(r.enabled(name), expected) << name;
    };
    // The type's defaults can be edited at once.
    r.pick("GroupType", 4);
    enabled({"Eprix4", "EPrix5", "LValueP5", "Eprix6"}, true);
    r.edit("Eprix1", "1.00");
    r.edit("EPrix5", "4");
    EXPECT_EQ(r.image().prices[4], 4);

    r.pick("GroupType", 2); // price 4 shows
    ASSERT_TRUE(r.visible("Eprix4"));
    r.edit("Eprix1", "");
    enabled({"Eprix4", "LValueP4", "Eprix6", "LValueP6"}, false);
    enabled({"EPrix5", "LValueP5"}, true);
    r.edit("Eprix2", "0.10"); // another box's exit leaves the chain alone
    enabled({"Eprix4", "Eprix6"}, false);
    r.edit("Eprix1", "0.10");
    enabled({"Eprix4", "Eprix6"}, true);
    r.edit("Eprix4", "");
    enabled({"EPrix5", "LValueP5", "Eprix6", "LValueP6"}, false);
    enabled({"Eprix4"}, true);

    // A new type starts with every price enabled; under type 1 there is no chain.
    r.pick("GroupType", 1);
    enabled({"EPrix5", "Eprix6"}, true);
    r.edit("Eprix1", "");
    enabled({"Eprix4", "Eprix6"}, true);
}

TEST(Bases, EqualBasesFollowAndTheSecondIsNeverClearedAlone)
{
    Rules r;
    r.edit("EBase1", "0.10");
    EXPECT_EQ(r.prompt.told(),
              QStringList{"Modifing this value will take effect on channels from 1 to 30 !"});
    EXPECT_EQ(r.text("Ebase2"), QStringLiteral("  0.10"));
    EXPECT_EQ(r.image().values[3], 10);
    // Bytes stay; amounts follow the base.
    EXPECT_EQ(r.image().valueByte(0), 1);
    EXPECT_EQ(r.text("Value0"), QStringLiteral("   0.10"));

    r.prompt.clear();
    r.edit("Ebase2", "0.20");
    EXPECT_EQ(r.prompt.told(),
              QStringList{"Modifing this value will take effect on channels from 31 to 60 !"});
    r.edit("EBase1", "0.05");
    EXPECT_EQ(r.text("Ebase2"), QStringLiteral("  0.20"));

    r.prompt.clear();
    r.edit("Ebase2", "");
    EXPECT_TRUE(r.prompt.told().isEmpty());
    EXPECT_EQ(r.text("Ebase2"), QStringLiteral("  0.05"));
    EXPECT_EQ(r.image().values[2], r.image().values[0]);
    EXPECT_EQ(r.image().values[3], r.image().values[1]);
}

TEST(Bases, ClearingBaseOneNeedsTheCounterOff)
{
    Rules r;
    r.click("RazEnable");
    r.click("CounterEnable"); // counting on
    ASSERT_TRUE(r.checked("CounterEnable"));
    r.edit("EBase1", "");
    EXPECT_EQ(r.prompt.told().first(), QStringLiteral("Wrong way! Please the counter must be "
                                                      "desactived if the base value is clear"));
    EXPECT_EQ(r.text("EBase1"), QStringLiteral("  0.05"));

    r.click("CounterEnable"); // counting off
    r.edit("EBase1", "");
    EXPECT_EQ(r.image().values[0], 0xFF);
    EXPECT_EQ(r.image().values[1], 0xFF);
    EXPECT_EQ(r.image().counters, CounterBlock{});
}

TEST(MultiPulse, ValueAndSubstituteAreCheckedFromBothSides)
{
    // Channels 1 to 6 are worth 1, 2, 4, 10, 20 and 40 units of 0.05.
    Rules r;
    r.click("CheckBox5");
    ASSERT_TRUE(r.checked("CheckBox5"));
    EXPECT_EQ(r.option(0) & 0x10, 0);
    const QString refused =
        QStringLiteral("The value of channels 6 and 1 is incompatible for the function "
                       "multi-pulse (max 5 pulses)");
    r.edit("Sub5", "1"); // 40 times: refused
    EXPECT_EQ(r.prompt.told(), QStringList{refused});
    EXPECT_EQ(r.image().channels[5][Rec::Substitute], 255);
    EXPECT_EQ(r.text("Sub5"), QString());
    r.edit("Sub2", "1"); // 4 times
    EXPECT_EQ(r.image().channels[2][Rec::Substitute], 1);
    r.edit("Sub0", "3"); // worth less than its substitute: refused from this side
    EXPECT_EQ(r.image().channels[0][Rec::Substitute], 255);

    r.prompt.clear();
    r.edit("Value2", "0.30"); // 6 times its substitute
    EXPECT_EQ(r.prompt.told().size(), 1);
    EXPECT_EQ(r.image().valueByte(2), 4);
    r.edit("Value2", "0.25"); // 5 times
    EXPECT_EQ(r.image().valueByte(2), 5);
    r.edit("Value2", "0.00"); // below its substitute: accepted from this side
    EXPECT_EQ(r.image().valueByte(2), 0);

    // Checking the box again tests every channel.
    r.edit("Value2", "0.25");
    r.click("CheckBox5");
    r.model.flags().editChanged = false;
    ConfigImage image = r.image();
    image.values[Val::Channel0 + 2] = 6;
    r.model.loadImage(image, false);
    r.prompt.clear();
    r.click("CheckBox5");
    EXPECT_EQ(r.prompt.told().size(), 1);
    EXPECT_FALSE(r.checked("CheckBox5"));
    EXPECT_EQ(r.option(0) & 0x10, 0x10);
}

TEST(Options, ExclusionsAndSharedHandlers)
{
    Rules r;
    r.click("ChkInibhition");
    EXPECT_TRUE(r.checked("ChkInibhition"));
    r.click("ChkDip");
    EXPECT_FALSE(r.checked("ChkInibhition"));
    EXPECT_EQ(r.option(0) & 0x88, 0x08); // bit 3 = 1, bit 7 = 0

    // Under a totalizer: the separator's three ways, and the display.
    r.pick("GroupType", 2);
    r.click("CheckBox6");
    r.click("CheckBox7");
    EXPECT_FALSE(r.checked("CheckBox6"));
    EXPECT_TRUE(r.checked("CheckBox7"));
    EXPECT_EQ(r.option(0) & 0x0C, 0x00);
    r.click("ChkAfficheur"); // display off
    r.click("ChkAfficheur"); // display on again: no separator
    EXPECT_FALSE(r.checked("CheckBox7"));
    EXPECT_EQ(r.option(0) & 0x04, 0x04);

    // "Standby mode" sets bit 0 from "Binary output", not from its own box.
    const quint8 before = r.option(0);
    r.click("ChkStandby");
    EXPECT_EQ(r.option(0), before);

    // The outlet does not mark the configuration modified.
    r.model.flags().configModified = false;
    r.pick("GroupSortie", 0);
    EXPECT_EQ(r.option(1) & 0x08, 0);
    EXPECT_FALSE(r.model.flags().configModified);
    r.click("ChkTmpDsp");
    EXPECT_TRUE(r.model.flags().configModified);
}

TEST(Counters, CountingNeedsErasableCountersAndStartsFromZero)
{
    Rules r;
    const OptionWord word = r.image().options;
    ASSERT_FALSE(r.checked("CounterEnable"));
    r.click("CounterEnable"); // checked again at once, nothing else
    EXPECT_EQ(r.image().options, word);
    EXPECT_TRUE(r.checked("CounterEnable"));
    EXPECT_EQ(r.text("CounterEnable"), QStringLiteral("Desactived"));

    r.pick("GroupType", 1);
    r.click("RazEnable");
    EXPECT_TRUE(r.visible("Button1"));
    EXPECT_TRUE(r.visible("Button2"));
    r.click("CounterEnable");
    EXPECT_EQ(r.text("CounterEnable"), QStringLiteral("Actived"));
    EXPECT_EQ(r.image().counters, (CounterBlock{0, 0, 0xFF, 0xFF, 0, 0, 0xFF, 0xFF}));
    EXPECT_EQ(r.text("LCounterValue1"), QStringLiteral("0"));

    r.click("ChkLimit1");
    ASSERT_TRUE(r.visible("LabeledEdit3"));
    r.edit("LabeledEdit3", "1234.6");
    EXPECT_EQ(r.image().counters[2], 0x04);
    EXPECT_EQ(r.image().counters[3], 0xD3);
    EXPECT_EQ(r.text("LabeledEdit3"), QStringLiteral("      1235"));
    r.edit("LabeledEdit3", "abc");
    EXPECT_EQ(r.image().counters[3], 0xD3);
    EXPECT_EQ(r.text("LabeledEdit3"), QStringLiteral("      1235"));
    r.edit("LabeledEdit3", "65535");
    EXPECT_EQ(r.text("LabeledEdit3"), QString());
    // 65535 or more leaves the box empty, whatever low 16 bits are stored.
    r.edit("LabeledEdit3", "70000");
    EXPECT_EQ(r.image().counters[2], 0x11);
    EXPECT_EQ(r.image().counters[3], 0x70);
    EXPECT_EQ(r.text("LabeledEdit3"), QString());
    r.edit("LabeledEdit3", "");
    EXPECT_EQ(r.image().counters[2], 0xFF);

    ConfigImage counted = r.image();
    counted.counters[0] = 0x12;
    r.model.loadImage(counted, false);
    r.click("Button1");
    EXPECT_EQ(r.image().counters[0], 0);
    EXPECT_TRUE(r.model.flags().configModified);
}

TEST(Counters, UncheckingErasableLeavesCountingAsItWas)
{
    Rules r;
    ConfigImage image = r.image();
    image.options = {0xFF, 0xE7}; // erasable, counting off
    r.model.loadImage(image, false);
    ASSERT_TRUE(r.checked("RazEnable"));
    ASSERT_FALSE(r.checked("CounterEnable"));
    r.click("RazEnable");
    EXPECT_EQ(r.image().options, (OptionWord{0xFF, 0xC7}));
    EXPECT_TRUE(r.checked("CounterEnable"));
    EXPECT_EQ(r.text("CounterEnable"), QStringLiteral("Desactived"));
    EXPECT_FALSE(r.visible("Button1"));
    EXPECT_TRUE(r.model.flags().configModified);
    r.edit("EHFUBMIN0", "12"); // a refill keeps it checked
    EXPECT_TRUE(r.checked("CounterEnable"));

    // Erasable again: the box shows the option word.
    r.click("RazEnable");
    EXPECT_EQ(r.image().options, (OptionWord{0xFF, 0xE7}));
    EXPECT_FALSE(r.checked("CounterEnable"));
}

TEST(CodeTable, CodesAndTheirLamps)
{
    Rules r;
    EXPECT_FALSE(r.visible("Edit1"));
    r.click("ChkCode");
    ASSERT_TRUE(r.visible("Edit1"));
    r.edit("Edit1", "5"); // 000101
    EXPECT_EQ(r.image().prices[2], 5);
    EXPECT_EQ(r.text("EPrix3"), QStringLiteral("     5"));
    EXPECT_TRUE(r.visible("Image17"));
    EXPECT_TRUE(r.visible("Image19"));
    EXPECT_TRUE(r.visible("Image38"));
    EXPECT_FALSE(r.visible("ImageLed"));
    r.click("Image19"); // bit 0 off
    EXPECT_EQ(r.image().prices[2], 4);
    r.click("Image38"); // bit 5 on
    EXPECT_EQ(r.image().prices[2], 36);
    EXPECT_EQ(r.text("Edit1"), QStringLiteral("   36"));
    EXPECT_EQ(r.text("LCodeState"), QStringLiteral("BAD")); // codes 2 and 3 not set
    r.edit("Edit1", "64");
    EXPECT_EQ(r.image().prices[2], 255);
    EXPECT_TRUE(r.visible("Image38"));
    EXPECT_FALSE(r.visible("Image17"));
}

TEST(ChannelCopy, CopiesMovesAndRefusesTheSameChannel)
{
    Rules r;
    ChannelCopyModel &copy = r.model.channelCopy();
    copy.open();
    EXPECT_EQ(copy.maximum(), 59);
    const ConfigImage before = r.image();
    EXPECT_FALSE(copy.Transfert(3, 3, false, false));
    EXPECT_EQ(r.prompt.told(), QStringList{"Impossible displacement, the channel of origin and "
                                           "the one of destination coincides"});
    EXPECT_EQ(r.image(), before);

    // Channel 5 (index 4) holds a coin; channel 7 is empty.
    EXPECT_TRUE(copy.Transfert(5, 7, false, false));
    EXPECT_EQ(r.prompt.told().last(), QStringLiteral("All data transfered !"));
    EXPECT_EQ(r.image().channels[6], r.image().channels[4]);
    EXPECT_EQ(r.image().valueByte(6), r.image().valueByte(4));
    EXPECT_TRUE(r.image().enableBit(6));
    EXPECT_EQ(r.text("EHFUBMIN6"), r.text("EHFUBMIN4"));
    EXPECT_TRUE(r.checked("Enable6"));
    EXPECT_TRUE(r.model.flags().configModified);

    // Only the windows: the destination keeps substitute, enable and value.
    ConfigImage image = before;
    image.channels[8][Rec::Substitute] = 3;
    r.model.loadImage(image, false);
    EXPECT_TRUE(copy.Transfert(5, 9, true, true));
    EXPECT_TRUE(std::equal(r.image().channels[8].begin(), r.image().channels[8].begin() + 14,
                           before.channels[4].begin()));
    EXPECT_EQ(r.image().channels[8][Rec::Substitute], 3);
    EXPECT_FALSE(r.image().enableBit(8));
    EXPECT_EQ(r.image().valueByte(8), 255);
    // The source is cleared.
    EXPECT_EQ(r.text("EHFUBMIN4"), QString());
    EXPECT_EQ(r.image().valueByte(4), 255);
    EXPECT_FALSE(r.image().enableBit(4));

    Rules light(0x33);
    light.model.channelCopy().open();
    EXPECT_EQ(light.model.channelCopy().maximum(), 24);
}

// Under every output type each of the six slots says its unit and largest value, and a slot
// that holds a price corrects an amount past 12.60 with the message.
TEST(Amounts, EverySlotOfEveryOutputTypeSaysItsUnitAndMaximum)
{
    const QString amount =
        QStringLiteral("An amount in steps of 0.05, at most 12.60; empty: not set");
    for (int type : {0, 1, 2, 3, 4, 6, 7}) {
        for (bool resetEx : {false, true}) {
            Rules r;
            r.pick("GroupType", type);
            if (r.visible("ChkResetEx") && r.checked("ChkResetEx") != resetEx)
                r.click("ChkResetEx");
            for (const char *slot : MoneyModel::kPriceBoxes) {
                const QString tip = r.model.control(slot).toolTip;
                EXPECT_TRUE(tip.contains(QStringLiteral("at most")) ||
                            tip.contains(QStringLiteral(" to ")))
                    << "type " << type << " " << slot << ": " << tip.toStdString();
            }
            const bool chained = type == 2 || type == 4 || type == 6 || type == 7;
            for (const char *slot : {"Eprix1", "Eprix2", "Eprix4"}) {
                if ((QLatin1String(slot) == QLatin1String("Eprix4") && !chained) ||
                    !r.visible(slot))
                    continue;
                EXPECT_EQ(r.model.control(slot).toolTip, amount) << type << slot;
                r.prompt.clear();
                ASSERT_TRUE(r.model.type(slot, "20")) << type << slot;
                ASSERT_TRUE(r.model.leave(slot));
                EXPECT_EQ(r.prompt.told(),
                          QStringList{"Value over the maximum, it will be correct"})
                    << type << slot;
                EXPECT_EQ(r.text(slot).trimmed(), "12.60") << type << slot;
            }
        }
    }
}

TEST(Amounts, AboveWhatTheBaseShowsIsCorrectedAndNegativeIsRefused)
{
    Rules r; // base 1 is 0.05: a value byte holds at most 252 steps, 12.60
    const QString over = QStringLiteral("Value over the maximum, it will be correct");
    EXPECT_EQ(r.model.control("Value2").toolTip,
              "An amount in steps of 0.05, at most 12.60; -P1- or -P2- pays price 1 or 2; "
              "empty: no value");
    EXPECT_EQ(r.model.control("Eprix1").toolTip,
              "An amount in steps of 0.05, at most 12.60; empty: not set");
    EXPECT_EQ(r.model.control("Eprix6").toolTip,
              "Milliseconds in steps of 10, at most 630; empty: not set");
    EXPECT_EQ(r.model.control("EPrix5").toolTip, "A number from 0 to 254; empty: not set");

    // Leaving the box, and a box left unfinished that the general exit stores.
    for (const auto &[box, leave] : {std::pair{"Value2", "Value2"}, std::pair{"Eprix1", "Eprix1"},
                                     std::pair{"Value4", "EHFUBMIN0"}}) {
        r.prompt.clear();
        ASSERT_TRUE(r.model.type(box, "50"));
        ASSERT_TRUE(r.model.leave(leave));
        EXPECT_EQ(r.prompt.told(), QStringList{over}) << box;
        EXPECT_EQ(r.text(box).trimmed(), "12.60") << box;
    }
    EXPECT_EQ(r.image().valueByte(2), 252);
    EXPECT_EQ(r.image().valueByte(4), 252);
    EXPECT_EQ(r.image().prices[0], 252);

    const ConfigImage before = r.image();
    for (const auto &[box, leave] : {std::pair{"Value3", "Value3"}, std::pair{"Eprix2", "Eprix2"},
                                     std::pair{"Value5", "EHFUBMIN0"}}) {
        r.prompt.clear();
        const QString shown = r.text(box);
        ASSERT_TRUE(r.model.type(box, "-1"));
        ASSERT_TRUE(r.model.leave(leave));
        EXPECT_EQ(r.prompt.told(), QStringList{"An amount cannot be negative: -1 was not stored."})
            << box;
        EXPECT_EQ(r.text(box), shown) << box;
    }
    EXPECT_EQ(r.image().values, before.values);
    EXPECT_EQ(r.image().prices, before.prices);
}

// The difference of two configurations: one field changed in each group gives exactly that
// field, in the words and units the editor shows.
#include "ConfigDiff.h"
#include "EditorModel.h"
#include "EditorServices.h"
#include "RecordingPrompt.h"

#include <gtest/gtest.h>

namespace {

ConfigImage sample()
{
    ConfigImage image = ConfigImage::blank();
    image.version = {0x13, 0x2c, 0xe1};
    image.ident = {0x2f, 0x63, 0x2f, 0x63, 0x00, 0x00, 0x03, 0xe9};
    image.options = {0xff, 0xc7}; // type 0, counting on, counters not erasable
    image.values[0] = 0x40;       // base 1: two decimals, 5 (0.05)
    image.values[1] = 0x05;
    image.values[2] = 0x40;
    image.values[3] = 0x05;
    image.values[Val::Channel0 + 6] = 10; // channel 7: 0.50
    image.prices = {20, 255, 255, 255, 255, 10};
    image.counters = {0, 5, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff};
    image.channels[4] = {90, 80, 70, 67, 60, 50, 40, 30, 100, 95, 70, 65, 20, 10, 255, 0, 0};
    image.enable = {0xF0, 0, 0, 0, 0, 0, 0x08, 0x40}; // channels 7 and 12
    return image;
}

QStringList texts(const QList<ConfigChange> &changes)
{
    QStringList out;
    for (const ConfigChange &c : changes)
        out.append(c.text());
    return out;
}

TEST(ConfigDiff, OneFieldPerGroupGivesExactlyThatField)
{
    const ConfigImage a = sample();
    EXPECT_TRUE(configDifferences(a, a).isEmpty());

    struct Case
    {
        ChangeGroup group;
        std::function<void(ConfigImage &)> edit;
        QString text;
        QString key;
    };
    const QList<Case> cases = {
        {ChangeGroup::Channels, [](ConfigImage &i) { i.channels[4][Rec::HfuLowMin] = 70; },
         QStringLiteral("Channel 5: HFU low min 67 → 70"), QStringLiteral("channel.5.hfu_low_min")},
        {ChangeGroup::Channels, [](ConfigImage &i) { i.channels[4][Rec::AmpMax] = 255; },
         QStringLiteral("Channel 5: HFL amp max 20 → (empty)"),
         QStringLiteral("channel.5.amp_max")},
        {ChangeGroup::Values, [](ConfigImage &i) { i.values[Val::Channel0 + 6] = 20; },
         QStringLiteral("Channel 7: Value 0.50 → 1.00"), QStringLiteral("value.7")},
        {ChangeGroup::Prices, [](ConfigImage &i) { i.prices[0] = 24; },
         QStringLiteral("Value P1: 1.00 → 1.20"), QStringLiteral("price.1")},
        {ChangeGroup::Config, [](ConfigImage &i) { i.options[0] &= ~0x04; },
         QStringLiteral("Option 'Separator': off → on"), QStringLiteral("option.ChkSeparateur")},
        {ChangeGroup::Enable, [](ConfigImage &i) { i.enable[6] = 0; },
         QStringLiteral("Channel 12: enabled → disabled"), QStringLiteral("enable.12")},
        {ChangeGroup::Identification, [](ConfigImage &i) { i.setSerialNumber(4711); },
         QStringLiteral("Serial Number: 1001 → 4711"), QStringLiteral("ident.serial")},
        {ChangeGroup::Counters, [](ConfigImage &i) { i.counters[1] = 6; },
         QStringLiteral("Counter 1: 5 → 6"), QStringLiteral("counter.1")},
        {ChangeGroup::Counters, [](ConfigImage &i) { i.options[1] |= 0x20; },
         QStringLiteral("Erasable: off → on"), QStringLiteral("erasable")},
    };
    for (const Case &c : cases) {
        ConfigImage b = a;
        c.edit(b);
        const QList<ConfigChange> changes = configDifferences(a, b);
        ASSERT_EQ(changes.size(), 1)
            << c.text.toStdString() << " got " << texts(changes).join(u'|').toStdString();
        EXPECT_EQ(changes[0].text(), c.text);
        EXPECT_EQ(changes[0].group, c.group) << c.text.toStdString();
        EXPECT_EQ(changes[0].key, c.key);
    }
}

TEST(ConfigDiff, EachOfTheFifteenBytesOfAChannelRecordIsCompared)
{
    const ConfigImage a = sample();
    QStringList keys;
    for (std::size_t byte = 0; byte < 15; ++byte) {
        ConfigImage b = a;
        b.channels[4][byte] = quint8(b.channels[4][byte] ^ 0x01);
        const QList<ConfigChange> changes = configDifferences(a, b);
        ASSERT_EQ(changes.size(), 1) << "byte " << byte;
        EXPECT_EQ(changes[0].group, ChangeGroup::Channels);
        keys.append(changes[0].key);
    }
    keys.removeDuplicates();
    EXPECT_EQ(keys.size(), 15);
    EXPECT_TRUE(keys.contains(QStringLiteral("channel.5.substitute")));
}

TEST(ConfigDiff, TypeChangeNamesTheTypeAndBitsNoBoxShowsStillShow)
{
    const ConfigImage a = sample();
    ConfigImage b = a;
    b.options = {0xf6, 0xc3}; // "10 - Totalizer - 2 prices"
    const QStringList lines = texts(configDifferences(a, b));
    ASSERT_FALSE(lines.isEmpty());
    EXPECT_EQ(lines.first(), QStringLiteral("Type: 00 - Validator → 10 - Totalizer - 2 prices"));

    // A bit no box of the output type shows still differs: the word says it.
    ConfigImage c = a;
    c.options[1] = quint8(c.options[1] & ~0x80); // "Display off"/"Limit": not shown under type 0
    EXPECT_EQ(texts(configDifferences(a, c)),
              QStringList{QStringLiteral("Option bits: $ffc7 → $ff47")});
}

// What the diff says of a field is what the editor's box shows for it.
TEST(ConfigDiff, TextsAreTheEditorsOwn)
{
    RecordingPrompt prompt;
    DefaultEditorServices services;
    EditorModel editor(&prompt, &services, nullptr);
    ConfigImage a = sample();
    ConfigImage b = a;
    b.values[Val::Channel0 + 6] = 7;
    b.prices[0] = 3;
    b.channels[4][Rec::DimMin] = 4;
    editor.loadImage(b, false);

    const QList<ConfigChange> changes = configDifferences(a, b);
    ASSERT_EQ(changes.size(), 3);
    auto shown = [&](const char *box) { return editor.control(QLatin1String(box)).text.trimmed(); };
    EXPECT_EQ(changes[0].after, shown("EDIMMIN4"));
    EXPECT_EQ(changes[1].after, shown("Value6"));
    EXPECT_EQ(changes[2].after, shown("Eprix1"));
    // "Channel 7 Value", as a screen reader names the box.
    EXPECT_EQ(changes[1].where + u' ' + changes[1].field,
              editor.control(QStringLiteral("Value6")).accessibleName);
}

} // namespace

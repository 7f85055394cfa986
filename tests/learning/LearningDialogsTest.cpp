// The small forms of coin learning without their windows: the tolerance grid, the channel to
// adjust, the overlap and analysis lists, the reference notice and the learned channel file.
#include "CAdjustModel.h"
#include "LearnedChannelFile.h"
#include "LearningFlows.h"
#include "LearningLists.h"
#include "LearningSession.h"
#include "ProgCoinModel.h"
#include "RecordingPrompt.h"
#include "ToleranceModel.h"
#include "VirtualValidator.h"

#include <gtest/gtest.h>

TEST(Tolerances, RowsShowSevenWideAndReadBackAsBytes)
{
    RecordingPrompt prompt;
    ToleranceModel grid(&prompt);
    EXPECT_EQ(grid.control(QStringLiteral("TTarvikTolerance")).text, QStringLiteral("Tolerances"));
    EXPECT_EQ(grid.control(QStringLiteral("ColItems")).text, QStringLiteral("Items"));
    EXPECT_EQ(grid.control(QStringLiteral("ColValues")).text, QStringLiteral("Values"));
    EXPECT_EQ(grid.control(ToleranceModel::keyName(0)).text, QStringLiteral("HFU low min."));
    EXPECT_EQ(grid.control(ToleranceModel::keyName(4)).text, QStringLiteral("Dimension min."));
    EXPECT_EQ(grid.control(ToleranceModel::keyName(13)).text, QStringLiteral("HFL amp max."));

    Tolerances tolerances;
    grid.load(tolerances);
    EXPECT_EQ(grid.control(QStringLiteral("Value1")).text, QStringLiteral("      4"));
    EXPECT_EQ(grid.control(QStringLiteral("Value5")).text, QStringLiteral("      1"));
    // Confirmed without a change, the same fourteen values come back.
    Tolerances same = tolerances;
    EXPECT_TRUE(grid.readBack(same));
    EXPECT_EQ(same, tolerances);

    // Leaving a row normalises it; a click in the grid normalises them all.
    grid.type(QStringLiteral("Value3"), QStringLiteral("  12"));
    grid.leave(QStringLiteral("Value3"));
    EXPECT_EQ(grid.control(QStringLiteral("Value3")).text, QStringLiteral("     12"));
    grid.type(QStringLiteral("Value4"), QStringLiteral("300"));
    grid.type(QStringLiteral("Value14"), QStringLiteral("0"));
    grid.gridClick();
    EXPECT_EQ(grid.control(QStringLiteral("Value4")).text, QStringLiteral("    300"));
    EXPECT_EQ(grid.control(QStringLiteral("Value14")).text, QStringLiteral("      0"));
    Tolerances read = tolerances;
    EXPECT_TRUE(grid.readBack(read));
    EXPECT_EQ(read.values[2], 12);
    EXPECT_EQ(read.values[3], 44); // the low eight bits of 300
    EXPECT_EQ(read.values[13], 0);
    EXPECT_TRUE(prompt.told().isEmpty());

    // A value that is not a number: the conversion error; the rows before it are stored, that
    // row and the rest keep their margins.
    grid.type(QStringLiteral("Value9"), QStringLiteral("x7"));
    Tolerances kept = tolerances;
    EXPECT_FALSE(grid.readBack(kept));
    Tolerances partly = tolerances;
    partly.values[2] = 12;
    partly.values[3] = 44;
    EXPECT_EQ(kept, partly);
    EXPECT_EQ(prompt.told(), QStringList{"'x7' is not a valid integer value"});

    grid.click(QStringLiteral("BtnCancel"));
    EXPECT_TRUE(grid.closed());
    EXPECT_FALSE(grid.accepted());
}

TEST(ChannelToAdjust, StartsAtOneAndRefusesAnEmptyChannel)
{
    const ConfigImage image = VirtualValidator::factoryImage(0x13, 1001);
    RecordingPrompt prompt;
    {
        CAdjustModel dialog(image, &prompt);
        EXPECT_EQ(dialog.control(QStringLiteral("TFormCAdjust")).text,
                  QStringLiteral("Channel to adjust"));
        EXPECT_EQ(dialog.control(QStringLiteral("Label2")).text,
                  QStringLiteral("0 = searching for nearest"));
        EXPECT_EQ(dialog.channel(), 1);
        EXPECT_TRUE(dialog.automaticAdjustment());
        EXPECT_EQ(dialog.spinRange(QStringLiteral("SpinEdit1"))->max, 59);
        dialog.type(QStringLiteral("SpinEdit1"), QStringLiteral("0"));
        dialog.click(QStringLiteral("BtnOK"));
        EXPECT_TRUE(dialog.accepted()); // 0 searches: never empty
    }
    {
        CAdjustModel dialog(image, &prompt);
        dialog.type(QStringLiteral("SpinEdit1"), QStringLiteral("40"));
        dialog.click(QStringLiteral("BtnOK"));
        EXPECT_TRUE(dialog.closed());
        EXPECT_FALSE(dialog.accepted());
        EXPECT_EQ(prompt.told(), QStringList{"Channel 40 is empty! No data to control."});
    }
    // Only the amplitude missing: the channel holds data.
    ConfigImage noAmp = image;
    noAmp.channels[2][Rec::AmpMin] = noAmp.channels[2][Rec::AmpMax] = 255;
    CAdjustModel dialog(noAmp, &prompt);
    dialog.type(QStringLiteral("SpinEdit1"), QStringLiteral("3"));
    dialog.click(QStringLiteral("BtnOK"));
    EXPECT_TRUE(dialog.accepted());
}

TEST(Lists, HeadersCountsAndTheReferenceNotice)
{
    AnalyseModel analyse({QStringLiteral("a"), QStringLiteral("b")});
    EXPECT_EQ(analyse.control(QStringLiteral("TTarvikAnalyse")).text, QStringLiteral("Analyse"));
    EXPECT_EQ(analyse.control(QStringLiteral("Header1")).text,
              QStringLiteral("               |  HFU BAS  | HFU HAUT  |     LF    |    DIM    | "
                             "HFL HAUT  |  HFL BAS  |   HFL AMP "));
    EXPECT_EQ(analyse.control(QStringLiteral("Header2")).text,
              QString::fromUtf8("N° |Canal|Canal|Min|Nom|Max|Min|Nom|Max|Min|Nom|Max|Min|Nom|Max|"
                                "Min|Nom|Max|Min|Nom|Max|Min|Nom|Max"));
    EXPECT_EQ(analyse.control(QStringLiteral("Label1")).text, QStringLiteral("2 superposition(s)"));
    EXPECT_EQ(analyse.control(QStringLiteral("ListBox1")).items.size(), 2);

    ConfigImage twice = VirtualValidator::factoryImage(0x13, 1001);
    twice.channels[1] = twice.channels[0];
    SuperpositionModel overlap(twice);
    EXPECT_EQ(overlap.control(QStringLiteral("ListBox1")).items,
              QStringList{QStringLiteral("   1 | C   1 <--> C   2        ")});
    EXPECT_EQ(overlap.control(QStringLiteral("TFormSuperposition")).text,
              QStringLiteral("Overlapped channels list"));
    EXPECT_EQ(overlap.control(QStringLiteral("Label1")).text, QStringLiteral("1 Overlapping"));
    overlap.click(QStringLiteral("BtnOK"));
    EXPECT_TRUE(overlap.accepted());

    RefChannelModel notice;
    EXPECT_EQ(
        notice.control(QStringLiteral("Memo1")).items,
        (QStringList{"Reference channel is empty", "Use the reference set of tokens.",
                     "- Insert 5 golden tokens.", "- Ok", "- Insert 5 silver tokens.", "- Ok"}));

    // The overlap check: "No overlapping !" or the list; nothing before a read.
    struct Shown final : LearningWindows
    {
        void runProgCoin(ProgCoinModel &) override {}
        void runChannelToAdjust(CAdjustModel &) override {}
        void showReferenceNotice() override {}
        void showOverlap(const ConfigImage &image) override
        {
            lines = SuperpositionModel(image).control(QStringLiteral("ListBox1")).items;
        }
        QStringList lines;
    } windows;
    RecordingPrompt prompt;
    LearningContext context;
    context.prompt = &prompt;
    context.services = nullptr;
    context.windows = &windows;
    LearningFlows::checkOverlap(ConfigImage::blank(), context);
    EXPECT_TRUE(prompt.told().isEmpty());
    ConfigImage image = VirtualValidator::factoryImage(0x13, 1001);
    LearningFlows::checkOverlap(image, context);
    EXPECT_EQ(prompt.told(), QStringList{"No overlapping !"});
    image.channels[7] = image.channels[2];
    LearningFlows::checkOverlap(image, context);
    EXPECT_EQ(windows.lines, QStringList{"   1 | C   3 <--> C   8        "});
}

TEST(LearnedChannelFile, RoundTripsAndRefusesWhatIsNotOne)
{
    LearnedChannel channel;
    channel.windows[0] = {96, 104};
    channel.windows[6] = {255, 255};
    channel.substitute = 31;
    channel.value = QStringLiteral("  -P1-");
    channel.enabled = false;
    channel.tolerances.values[13] = 44;
    const QByteArray json = LearnedChannelFile::toJson(channel);
    EXPECT_EQ(LearnedChannelFile::fromJson(json), channel);

    EXPECT_FALSE(LearnedChannelFile::fromJson("{}"));
    EXPECT_FALSE(LearnedChannelFile::fromJson("not json"));
    QByteArray wide = json;
    wide.replace("\"substitute\": 31", "\"substitute\": 32");
    ASSERT_NE(wide, json);
    EXPECT_FALSE(LearnedChannelFile::fromJson(wide));
    QByteArray fraction = json;
    fraction.replace("\"min\": 96", "\"min\": 96.5");
    ASSERT_NE(fraction, json);
    EXPECT_FALSE(LearnedChannelFile::fromJson(fraction));
}

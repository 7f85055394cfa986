// The coin learning form at the bench: the track bars after Clear, the channel kept for the
// next learning, and an overlap shown while the coins come and the bounds move.
#include "ProgCoinBench.h"

#include <gtest/gtest.h>

using namespace progcoin;

TEST(ProgCoin, ClearPutsTheTrackBarsBackAndTheNextLearningStartsOnTheLastChannel)
{
    struct Windows_ final : LearningWindows
    {
        void runProgCoin(ProgCoinModel &model) override { run(model); }
        void runChannelToAdjust(CAdjustModel &) override {}
        void showReferenceNotice() override {}
        void showOverlap(const ConfigImage &) override {}
        std::function<void(ProgCoinModel &)> run;
    } windows;
    Bench bench;
    LearningContext context;
    context.prompt = &bench.prompt;
    context.windows = &windows;
    QList<int> used;
    context.learnChannelUsed = [&](int channel) { used.append(channel); };

    // The first learning starts on no channel; Clear after three coins puts every track bar
    // back where it started (thumb at 0, no band) and forgets the match.
    windows.run = [&](ProgCoinModel &m) {
        EXPECT_EQ(m.channel(), 0);
        m.type(QStringLiteral("SpinEdit1"), QStringLiteral("12"));
        for (int i = 0; i < 3; ++i) {
            bench.device.insertCoin(CoinKind::Euro050);
            m.tick();
        }
        EXPECT_NE(m.trackBar(QStringLiteral("HFUMINBAR")).position, 0);
        m.click(QStringLiteral("BtnLoad"));
        for (int w = 0; w < kWindows; ++w)
            EXPECT_EQ(m.trackBar(QLatin1String(kWindowPlaces[w].trackBar)),
                      (TrackBarState{0, 255, 0}))
                << w;
        EXPECT_EQ(m.control(QStringLiteral("LabelCoins")).text, QStringLiteral("0"));
        EXPECT_FALSE(m.control(QStringLiteral("LabelMatched")).visible);
        m.click(QStringLiteral("BtnCancel"));
    };
    EXPECT_FALSE(LearningFlows::learnCoins(bench.link, bench.image, context));
    EXPECT_EQ(used, QList<int>{12});

    // The next opening starts on it; a channel this validator lacks is not taken.
    context.learnChannel = 12;
    windows.run = [&](ProgCoinModel &m) {
        EXPECT_EQ(m.channel(), 12);
        m.click(QStringLiteral("BtnCancel"));
    };
    LearningFlows::learnCoins(bench.link, bench.image, context);
    context.learnChannel = 61;
    windows.run = [&](ProgCoinModel &m) { EXPECT_EQ(m.channel(), 0); };
    LearningFlows::learnCoins(bench.link, bench.image, context);
}

TEST(ProgCoin, AnOverlapShowsWhileTheCoinsComeAndTheBoundsMove)
{
    Bench bench;
    const QString status = ProgCoinModel::statusName();
    bench.form->type(QStringLiteral("SpinEdit1"), QStringLiteral("12"));
    EXPECT_TRUE(bench.form->overlapping().isEmpty());
    // A coin of channel 4's kind: with the margins OK would add, channel 12 would overlap it,
    // and the form says so before OK, in the status line and in the chart.
    bench.insert(CoinKind::Euro050, 1);
    EXPECT_EQ(bench.form->overlapping(), QList<int>{4});
    EXPECT_EQ(bench.form->control(status).text, QStringLiteral("Overlap with Channel 4 (0.50)"));
    EXPECT_EQ(bench.form->tint(status), Tint::Red);
    EXPECT_TRUE(bench.form->chart().overlaps().contains((ChannelPair{4, 12})));
    EXPECT_EQ(bench.image.channels[11][Rec::HfuLowMin], 255); // nothing stored yet

    // Moving the HFU low window away from channel 4 ends the overlap at once; back, it returns.
    const Window hfuLow = bench.session.windows()[0];
    bench.form->type(QStringLiteral("HFUMINL"), QStringLiteral("10"));
    bench.form->type(QStringLiteral("HFUMINH"), QStringLiteral("12"));
    bench.form->leave(QStringLiteral("HFUMINH"));
    EXPECT_TRUE(bench.form->overlapping().isEmpty());
    EXPECT_TRUE(bench.form->control(status).text.isEmpty());
    bench.form->type(QStringLiteral("HFUMINL"), QString::number(hfuLow.min));
    bench.form->type(QStringLiteral("HFUMINH"), QString::number(hfuLow.max));
    bench.form->leave(QStringLiteral("HFUMINH"));
    EXPECT_EQ(bench.form->overlapping(), QList<int>{4});

    // Another channel chosen carries the windows with it; Clear ends the overlap.
    bench.form->type(QStringLiteral("SpinEdit1"), QStringLiteral("4"));
    EXPECT_TRUE(bench.form->overlapping().isEmpty()); // channel 4 itself is being replaced
    bench.form->type(QStringLiteral("SpinEdit1"), QStringLiteral("12"));
    bench.form->click(QStringLiteral("BtnLoad"));
    EXPECT_TRUE(bench.form->overlapping().isEmpty());
    EXPECT_TRUE(bench.form->control(status).text.isEmpty());
}

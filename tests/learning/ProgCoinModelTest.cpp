// The coin learning form's model against the in-process virtual validator: coins in, windows
// and labels out, the accept with its questions, the direct write, the bounds typed by hand,
// and the procedures of the reference calibration and the channel control.
#include "ProgCoinBench.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace progcoin;

TEST(ProgCoin, TenCoinsThenOkStoreTheChannelWithTheDefaultMargins)
{
    Bench bench;
    const ConfigImage before = bench.image;
    ASSERT_TRUE(bench.form->type(QStringLiteral("SpinEdit1"), QStringLiteral("10")));
    bench.insert(CoinKind::Euro050, 10);
    EXPECT_EQ(bench.text("LabelCoins"), QStringLiteral("10"));
    EXPECT_TRUE(bench.prompt.all().isEmpty());
    // The euro coin is already learned in channel 4 of the factory memory.
    EXPECT_TRUE(bench.form->control(QStringLiteral("LabelMatched")).visible);
    EXPECT_EQ(bench.text("LabelMatched"), QStringLiteral("Matched: Channel 4 (0.50)"));

    // Each window is the smallest and largest reading, shown in its edits and its track bar.
    Windows learned = bench.session.windows();
    for (int w = 0; w < kWindows; ++w) {
        const Window &window = learned[std::size_t(w)];
        EXPECT_LE(window.min, window.max);
        EXPECT_EQ(bench.shownWindow(w), window) << w;
        const TrackBarState bar = bench.form->trackBar(QLatin1String(kWindowPlaces[w].trackBar));
        EXPECT_EQ(bar.selectionStart, window.min);
        EXPECT_EQ(bar.selectionEnd, window.max);
        EXPECT_EQ(bar.position, bench.session.measures()[std::size_t(w)]);
        EXPECT_EQ(bench.form->control(ProgCoinModel::widthName(w)).text,
                  QString::number(window.max - window.min));
    }

    ASSERT_TRUE(bench.form->click(QStringLiteral("BtnOK")));
    EXPECT_EQ(bench.prompt.asked(), QStringList{"Calibrate another channel ?"});
    EXPECT_TRUE(bench.form->closed());
    EXPECT_TRUE(bench.form->accepted());
    EXPECT_TRUE(bench.form->imageChanged());
    const Tolerances margins;
    const ChannelRecord &record = bench.image.channels[9];
    for (int w = 0; w < kWindows; ++w) {
        const WindowPlace &p = kWindowPlaces[w];
        EXPECT_EQ(record[std::size_t(p.recordMin)],
                  clampToByte(learned[std::size_t(w)].min - margins.below(w)));
        EXPECT_EQ(record[std::size_t(p.recordMax)],
                  clampToByte(learned[std::size_t(w)].max + margins.above(w)));
    }
    EXPECT_EQ(record[Rec::Substitute], 0);
    EXPECT_TRUE(bench.image.enableBit(9));
    EXPECT_EQ(bench.image.valueByte(9), 255); // no value typed
    // OK alone writes nothing to the validator.
    EXPECT_EQ(bench.device.memory().channels, before.channels);
}

// The chart of the learning window: the coins of this learning as ticks, repainted only for a
// coin or a stored channel, cleared with the learning.
TEST(ProgCoin, TheChartFollowsTheCoinsOfThisLearning)
{
    Bench bench;
    QStringList changed;
    bench.form->changed = [&](const QStringList &names) { changed += names; };
    bench.form->tick(); // no coin: nothing to repaint
    bench.form->type(QStringLiteral("Edit1"), QStringLiteral("euro"));
    EXPECT_FALSE(changed.contains(ProgCoinModel::chartName()));
    EXPECT_EQ(bench.form->chart().channelsInUse(), WindowsChartModel(bench.image).channelsInUse());

    bench.form->type(QStringLiteral("SpinEdit1"), QStringLiteral("10"));
    bench.insert(CoinKind::Euro050, 3);
    EXPECT_TRUE(changed.contains(ProgCoinModel::chartName()));
    EXPECT_EQ(bench.form->chart().sampleCount(), 3);
    EXPECT_EQ(bench.form->chart().bands()[2].ticks.last(), bench.session.measures()[2]);

    // Too few coins: proceed; then calibrate another channel.
    bench.prompt.setNextAnswers({Answer::Yes, Answer::Yes});
    bench.form->click(QStringLiteral("BtnOK"));
    ASSERT_FALSE(bench.form->closed());
    EXPECT_TRUE(bench.form->chart().channelsInUse().contains(10));
    EXPECT_EQ(bench.form->chart().sampleCount(), 0);
}

TEST(ProgCoin, TooFewCoinsAskFirstAndNoKeepsEverything)
{
    Bench bench;
    bench.form->type(QStringLiteral("SpinEdit1"), QStringLiteral("12"));
    bench.insert(CoinKind::Euro200, 9);
    const ConfigImage before = bench.image;
    const Windows windows = bench.session.windows();

    bench.prompt.setNextAnswers({Answer::No});
    bench.form->click(QStringLiteral("BtnOK"));
    EXPECT_EQ(bench.prompt.asked(), QStringList{"Number of coins is less than 10. Proceed?"});
    EXPECT_FALSE(bench.form->closed());
    EXPECT_EQ(bench.image, before);
    EXPECT_EQ(bench.session.windows(), windows);
    EXPECT_EQ(bench.session.coinCount(), 9);

    // Yes goes on; Yes to the next question waits for the coins of another channel.
    bench.prompt.clear();
    bench.prompt.setNextAnswers({Answer::Yes, Answer::Yes});
    bench.form->click(QStringLiteral("BtnOK"));
    EXPECT_EQ(bench.prompt.asked(), (QStringList{"Number of coins is less than 10. Proceed?",
                                                 "Calibrate another channel ?"}));
    EXPECT_FALSE(bench.form->closed());
    EXPECT_NE(bench.image, before);
    EXPECT_EQ(bench.text("LabelCoins"), QStringLiteral("0"));
    EXPECT_EQ(bench.shownWindow(0), (Window{255, 0}));
}

TEST(ProgCoin, SaveAndDirectWriteReachTheValidatorAtOnce)
{
    for (const bool directWrite : {false, true}) {
        ProgCoinSetup setup;
        setup.directWrite = directWrite;
        Bench bench(setup);
        bench.form->type(QStringLiteral("SpinEdit1"), QStringLiteral("20"));
        bench.form->type(QStringLiteral("Edit2"), QStringLiteral("0.50"));
        bench.form->click(QStringLiteral("CheckEnable")); // unticked
        bench.insert(CoinKind::Euro020, 10);
        bench.form->click(directWrite ? QStringLiteral("BtnOK") : QStringLiteral("BtnSave"));
        EXPECT_EQ(bench.prompt.told(), QStringList{"Values directly saved into validator"});
        EXPECT_EQ(bench.stored(bench.device.memory(), 19), bench.stored(bench.image, 19));
        EXPECT_EQ(bench.device.memory().valueByte(19), bench.image.valueByte(19));
        EXPECT_NE(bench.image.valueByte(19), 255);
        EXPECT_FALSE(bench.device.memory().enableBit(19));
    }
}

TEST(ProgCoin, ACoinBeforeAChannelIsChosenIsNotCounted)
{
    Bench bench;
    const QString status = ProgCoinModel::statusName();
    bench.insert(CoinKind::Euro050, 2);
    // Nothing learned, nothing counted; the status line says why, without a box, and the
    // coin still shows the channel that holds it.
    EXPECT_TRUE(bench.prompt.all().isEmpty());
    EXPECT_EQ(bench.form->control(status).text,
              QStringLiteral("Coin ignored: choose a channel first"));
    EXPECT_EQ(bench.session.coinCount(), 0);
    EXPECT_EQ(bench.text("LabelCoins"), QStringLiteral("0"));
    EXPECT_EQ(bench.shownWindow(0), (Window{255, 0}));
    EXPECT_EQ(bench.form->chart().sampleCount(), 0);
    EXPECT_EQ(bench.text("LabelMatched"), QStringLiteral("Matched: Channel 4 (0.50)"));
    // Choosing a channel clears the line; the next coin is the first one.
    ASSERT_TRUE(bench.form->type(QStringLiteral("SpinEdit1"), QStringLiteral("30")));
    EXPECT_TRUE(bench.form->control(status).text.isEmpty());
    bench.insert(CoinKind::Euro100, 1);
    EXPECT_EQ(bench.session.coinCount(), 1);
    EXPECT_TRUE(bench.prompt.all().isEmpty());
    // The first coin: every window is its reading; the maximum is marked red, the minimum's
    // difference hidden (the window started unset).
    for (int w = 0; w < kWindows; ++w) {
        const quint8 m = bench.session.measures()[std::size_t(w)];
        EXPECT_EQ(bench.shownWindow(w), (Window{m, m}));
        EXPECT_EQ(bench.form->tint(QLatin1String(kWindowPlaces[w].maxEdit)), Tint::Red);
        EXPECT_EQ(bench.form->tint(ProgCoinModel::readingName(w)), Tint::Red);
        EXPECT_FALSE(bench.form->control(ProgCoinModel::minDifferenceName(w)).visible);
        EXPECT_EQ(bench.form->control(ProgCoinModel::maxDifferenceName(w)).text,
                  QStringLiteral("+%1").arg(m));
        EXPECT_EQ(bench.form->control(ProgCoinModel::widthName(w)).text, QStringLiteral("0"));
    }
    // The same reading again leaves every mark of the first coin back at its colour.
    bench.form->addCoin(bench.session.measures());
    EXPECT_TRUE(bench.prompt.all().isEmpty());
    for (int w = 0; w < kWindows; ++w) {
        EXPECT_EQ(bench.form->tint(QLatin1String(kWindowPlaces[w].maxEdit)), Tint::Normal);
        EXPECT_EQ(bench.form->tint(ProgCoinModel::readingName(w)), Tint::Blue);
        EXPECT_EQ(bench.form->tint(ProgCoinModel::maxDifferenceName(w)), Tint::Navy);
        EXPECT_TRUE(bench.form->control(ProgCoinModel::minDifferenceName(w)).visible);
        EXPECT_EQ(bench.form->control(ProgCoinModel::minDifferenceName(w)).text,
                  QStringLiteral("0"));
    }
    // A reading below the window marks its minimum red, with the difference.
    SampleBytes lower = bench.session.measures();
    lower[0] = quint8(lower[0] - 3);
    bench.form->addCoin(lower);
    EXPECT_EQ(bench.form->tint(QStringLiteral("HFUMINL")), Tint::Red);
    EXPECT_EQ(bench.form->control(ProgCoinModel::minDifferenceName(0)).text, QStringLiteral("-3"));
    EXPECT_EQ(bench.form->tint(QStringLiteral("HFUMAXL")), Tint::Normal);

    // Accepting without a channel says so and goes back to the channel.
    QString focused;
    bench.form->focusRequested = [&](const QString &name) { focused = name; };
    bench.form->type(QStringLiteral("SpinEdit1"), QStringLiteral("0"));
    bench.prompt.setNextAnswers({Answer::Yes});
    bench.form->click(QStringLiteral("BtnOK"));
    EXPECT_EQ(bench.prompt.told().last(), QStringLiteral("Select number of channel !"));
    EXPECT_EQ(focused, QStringLiteral("SpinEdit1"));
    EXPECT_FALSE(bench.form->closed());
}

TEST(ProgCoin, ABoundTypedAboveItsMaximumIsCorrected)
{
    Bench bench;
    bench.form->type(QStringLiteral("SpinEdit1"), QStringLiteral("33"));
    bench.insert(CoinKind::Euro010, 3);
    const Window hfuLow = bench.session.windows()[0];
    // Leaving an edit that was not changed does nothing.
    bench.form->leave(QStringLiteral("HFUMINL"));
    EXPECT_TRUE(bench.prompt.all().isEmpty());

    bench.form->type(QStringLiteral("HFUMINL"), QString::number(hfuLow.max + 20));
    bench.form->leave(QStringLiteral("HFUMINL"));
    EXPECT_EQ(bench.prompt.told(), QStringList{"Value over the maximum, it will be correct"});
    EXPECT_EQ(bench.shownWindow(0), (Window{hfuLow.max, hfuLow.max}));
    EXPECT_EQ(bench.session.windows()[0], (Window{hfuLow.max, hfuLow.max}));
    EXPECT_EQ(bench.form->trackBar(QStringLiteral("HFUMINBAR")),
              (TrackBarState{hfuLow.max, hfuLow.max, hfuLow.max}));
    EXPECT_EQ(bench.form->control(ProgCoinModel::widthName(0)).text, QStringLiteral("0"));

    // An empty maximum takes the minimum; the DIM window's track bar is LFMINBAR.
    bench.prompt.clear();
    bench.form->type(QStringLiteral("DimL"), QStringLiteral("40"));
    bench.form->type(QStringLiteral("DimH"), QString());
    bench.form->leave(QStringLiteral("DimH"));
    EXPECT_TRUE(bench.prompt.told().isEmpty());
    EXPECT_EQ(bench.session.windows()[2], (Window{40, 40}));
    EXPECT_EQ(bench.form->trackBar(QStringLiteral("LFMINBAR")), (TrackBarState{40, 40, 40}));
}

TEST(ProgCoin, MatchedChannelImportAndMargins)
{
    Bench bench;
    bench.form->click(QStringLiteral("BtnMatched"));
    EXPECT_EQ(bench.prompt.told(), QStringList{"No matched data !"});
    bench.insert(CoinKind::Euro050, 1);
    bench.prompt.clear();
    bench.prompt.setNextAnswers({Answer::Yes});
    bench.form->click(QStringLiteral("BtnMatched"));
    EXPECT_EQ(bench.prompt.asked(), QStringList{"The value matchs the channel 4. Load it ?"});
    EXPECT_EQ(bench.text("SpinEdit1"), QStringLiteral("4"));

    // Exported and imported again, the windows come back and the sample question is skipped.
    QTemporaryDir dir;
    bench.services.fileName = dir.filePath(QStringLiteral("coin.json"));
    bench.form->type(QStringLiteral("SpinEdit2"), QStringLiteral("7"));
    bench.form->click(QStringLiteral("BtnExport"));
    const Windows exported = bench.session.windows();
    bench.form->click(QStringLiteral("BtnLoad")); // "&Clear" while learning
    EXPECT_EQ(bench.text("BtnLoad"), QStringLiteral("&Clear"));
    EXPECT_EQ(bench.shownWindow(0), (Window{255, 0}));
    bench.form->type(QStringLiteral("SpinEdit2"), QStringLiteral("0"));
    bench.form->click(QStringLiteral("BtnImport"));
    EXPECT_EQ(bench.session.windows(), exported);
    EXPECT_EQ(bench.text("SpinEdit2"), QStringLiteral("7"));
    EXPECT_TRUE(bench.session.imported);

    // Tolerance auto unticked: the margins are asked for; Cancel there cancels the accept.
    bench.prompt.clear();
    bench.form->click(QStringLiteral("CheckAuto"));
    bench.form->click(QStringLiteral("BtnOK"));
    EXPECT_EQ(bench.services.toleranceDialogs, 1);
    EXPECT_TRUE(bench.prompt.asked().isEmpty()); // imported: no sample question
    EXPECT_FALSE(bench.form->closed());
    Tolerances none;
    none.values.fill(0);
    bench.services.toleranceAnswer = none;
    bench.form->click(QStringLiteral("BtnOK"));
    EXPECT_TRUE(bench.form->closed());
    EXPECT_EQ(bench.image.channels[3][Rec::HfuLowMin], exported[0].min);
    EXPECT_EQ(bench.image.channels[3][Rec::HfuLowMax], exported[0].max);
    EXPECT_EQ(bench.image.channels[3][Rec::Substitute], 7);

    // A file that is not a learned channel changes nothing.
    Bench other;
    other.services.fileName = dir.filePath(QStringLiteral("missing.json"));
    other.form->click(QStringLiteral("BtnImport"));
    EXPECT_EQ(other.prompt.told().size(), 1);
    EXPECT_FALSE(other.session.imported);
}

TEST(ProgCoin, AnalysisListsTheChannelsThatWouldTakeTheCoin)
{
    ProgCoinSetup setup;
    setup.analyseShown = true;
    Bench bench(setup);
    EXPECT_TRUE(bench.form->control(QStringLiteral("BtnAnalyse")).visible);
    QStringList shown;
    int closes = 0;
    bench.form->showAnalysis = [&](const QStringList &lines) { shown = lines; };
    bench.form->closeAnalysis = [&] { ++closes; };
    bench.form->click(QStringLiteral("BtnAnalyse")); // the margins dialog cancelled
    EXPECT_FALSE(bench.session.analysisMode);
    bench.services.toleranceAnswer = Tolerances{};
    bench.form->click(QStringLiteral("BtnAnalyse"));
    EXPECT_TRUE(bench.session.analysisMode);
    EXPECT_EQ(bench.form->tint(QStringLiteral("BtnAnalyse")), Tint::Maroon);
    bench.form->type(QStringLiteral("SpinEdit1"), QStringLiteral("30"));
    bench.insert(CoinKind::Euro100, 1);
    ASSERT_FALSE(shown.isEmpty());
    EXPECT_TRUE(shown.first().startsWith(QStringLiteral("  1|Cnl 0|C   5|")));
    EXPECT_EQ(closes, 1);
    EXPECT_FALSE(bench.form->control(QStringLiteral("LabelMatched")).visible);
}

TEST(ProgCoin, TheChannelControlLoadsTheChannelAndRefusesAnEmptyOne)
{
    struct Windows_ final : LearningWindows
    {
        void runProgCoin(ProgCoinModel &model) override { run(model); }
        void runChannelToAdjust(CAdjustModel &model) override { choose(model); }
        void showReferenceNotice() override {}
        void showOverlap(const ConfigImage &) override {}
        std::function<void(ProgCoinModel &)> run;
        std::function<void(CAdjustModel &)> choose;
    } windows;
    Bench bench;
    LearningContext context;
    context.prompt = &bench.prompt;
    context.services = &bench.services;
    context.windows = &windows;

    // An empty channel: "Channel %d is empty! No data to control." and no form.
    bool formShown = false;
    windows.choose = [](CAdjustModel &m) {
        m.type(QStringLiteral("SpinEdit1"), QStringLiteral("30"));
        m.click(QStringLiteral("BtnOK"));
    };
    windows.run = [&](ProgCoinModel &) { formShown = true; };
    EXPECT_FALSE(LearningFlows::controlChannel(bench.link, bench.image, context));
    EXPECT_EQ(bench.prompt.told(), QStringList{"Channel 30 is empty! No data to control."});
    EXPECT_FALSE(formShown);

    // Channel 2 with automatic adjustment, checked by default whatever "&Auto adjust" says:
    // its windows are shown and widened by the coins.
    bench.prompt.clear();
    context.autoAdjust = false;
    windows.choose = [](CAdjustModel &m) {
        EXPECT_EQ(m.channel(), 1);
        EXPECT_TRUE(m.automaticAdjustment());
        m.type(QStringLiteral("SpinEdit1"), QStringLiteral("2"));
        m.click(QStringLiteral("BtnOK"));
    };
    windows.run = [&](ProgCoinModel &m) {
        EXPECT_EQ(m.control(QStringLiteral("TFormProgCoin")).text,
                  QStringLiteral("Channels control"));
        EXPECT_EQ(m.control(QStringLiteral("LabelChannel")).text,
                  QStringLiteral("&Channel to control :"));
        EXPECT_EQ(m.control(QStringLiteral("BtnLoad")).text, QStringLiteral("Loa&d"));
        const ChannelRecord &record = bench.image.channels[1];
        EXPECT_EQ(m.control(QStringLiteral("HFUMINL")).text,
                  QString::number(record[Rec::HfuLowMin]));
        EXPECT_EQ(m.control(QStringLiteral("LFHIGH")).text, QString::number(record[Rec::LfMax]));
        // Another channel picked shows its own windows.
        m.type(QStringLiteral("SpinEdit1"), QStringLiteral("6"));
        EXPECT_EQ(m.control(QStringLiteral("HFUMINL")).text,
                  QString::number(bench.image.channels[5][Rec::HfuLowMin]));
        m.type(QStringLiteral("SpinEdit1"), QStringLiteral("2"));
        bench.device.insertCoin(CoinKind::Euro005);
        m.tick();
        EXPECT_EQ(m.control(QStringLiteral("LabelCoins")).text, QStringLiteral("1"));
        m.click(QStringLiteral("BtnOK")); // no sample question when controlling
    };
    EXPECT_TRUE(LearningFlows::controlChannel(bench.link, bench.image, context));
    EXPECT_EQ(bench.prompt.asked(), QStringList{"Modify another channel ?"});
    EXPECT_TRUE(bench.prompt.told().isEmpty());
}

TEST(ProgCoin, ReferenceCalibrationWithGoldenAndSilverTokens)
{
    struct Windows_ final : LearningWindows
    {
        void runProgCoin(ProgCoinModel &model) override { run(model); }
        void runChannelToAdjust(CAdjustModel &) override {}
        void showReferenceNotice() override { ++notices; }
        void showOverlap(const ConfigImage &) override {}
        std::function<void(ProgCoinModel &)> run;
        int notices = 0;
    } windows;
    Bench bench;
    LearningContext context;
    context.prompt = &bench.prompt;
    context.services = &bench.services;
    context.windows = &windows;
    QStringList titles;
    windows.run = [&](ProgCoinModel &m) {
        titles.append(m.control(QStringLiteral("TFormProgCoin")).text);
        EXPECT_EQ(m.control(QStringLiteral("SpinEdit1")).text, QStringLiteral("60"));
        EXPECT_FALSE(m.control(QStringLiteral("SpinEdit1")).enabled);
        EXPECT_FALSE(m.control(QStringLiteral("Edit2")).visible);
        EXPECT_FALSE(m.control(QStringLiteral("BtnLoad")).visible);
        EXPECT_TRUE(m.control(QStringLiteral("CheckAuto")).checked);
        EXPECT_FALSE(m.control(QStringLiteral("CheckEnable")).checked);
        EXPECT_TRUE(m.control(QStringLiteral("PanelAMP")).visible);
        const bool golden = titles.size() == 1;
        for (int i = 0; i < 5; ++i) {
            bench.device.insertCoin(golden ? CoinKind::GoldenToken : CoinKind::SilverToken);
            m.tick();
        }
        m.click(QStringLiteral("BtnOK"));
    };

    // The door open: nothing is written.
    bench.device.setDoorOpen(true);
    const ConfigImage before = bench.device.memory();
    EXPECT_FALSE(LearningFlows::calibrateReference(bench.link, bench.image, context));
    EXPECT_EQ(bench.prompt.told(), QStringList{"Door open, no data will be transfered ;"});
    EXPECT_TRUE(titles.isEmpty());
    EXPECT_EQ(bench.device.memory(), before);

    bench.device.setDoorOpen(false);
    bench.prompt.clear();
    bench.device.memory().channels[59].fill(0xFF); // an empty reference channel
    bench.image.channels[59].fill(0xFF);
    EXPECT_TRUE(LearningFlows::calibrateReference(bench.link, bench.image, context));
    EXPECT_EQ(windows.notices, 1);
    EXPECT_EQ(titles, (QStringList{"Insert the golden tokens. (5 pieces)",
                                   "Insert the silver tokens. (5 pieces)"}));
    EXPECT_EQ(bench.prompt.told(),
              (QStringList{"Prepare the golden tokens.", "Prepare the silver tokens.",
                           "Reference Channel saved !"}));
    EXPECT_TRUE(bench.prompt.asked().isEmpty()); // five tokens each: no question
    const ChannelBytes written = bench.stored(bench.device.memory(), 59);
    EXPECT_EQ(written, bench.stored(bench.image, 59));
    EXPECT_TRUE(channelInUse(written.data()));
    EXPECT_EQ(written[Rec::Substitute], 255);
    for (int w = 0; w < kWindows; ++w) {
        const int width = quint8(written[std::size_t(kWindowPlaces[w].recordMax)] -
                                 written[std::size_t(kWindowPlaces[w].recordMin)]);
        EXPECT_GE(width, 3) << w;
    }
}

// "Se&lect..." takes the profile's name, description, value and substitute; the channel's own
// "&Enable" box stays as the technician left it.
TEST(ProgCoin, ASelectedProfileLeavesTheEnableBoxAlone)
{
    Bench b;
    CoinProfile profile;
    profile.name = QStringLiteral("Token");
    profile.description = QStringLiteral("brass");
    profile.substitute = 12;
    b.services.profile = profile;
    const bool enabled = b.form->control(QStringLiteral("CheckEnable")).checked;
    ASSERT_TRUE(b.form->click(QStringLiteral("CheckEnable")));
    ASSERT_TRUE(b.form->click(QStringLiteral("BtnSelect")));
    EXPECT_EQ(b.text("Edit1"), QLatin1String("Token"));
    EXPECT_EQ(b.text("Edit3"), QLatin1String("brass"));
    EXPECT_EQ(b.text("SpinEdit2"), QLatin1String("12"));
    EXPECT_EQ(b.form->control(QStringLiteral("CheckEnable")).checked, !enabled);
}

TEST(ProgCoin, AmountsTheBaseCannotHoldAndARefusedSaveAreSaid)
{
    Bench bench; // channels 1 to 30 in steps of 0.05: at most 12.60
    bench.form->type(QStringLiteral("SpinEdit1"), QStringLiteral("20"));
    bench.insert(CoinKind::Euro020, 10);
    // A negative value keeps the form open on the value box; nothing is stored.
    bench.form->type(QStringLiteral("Edit2"), QStringLiteral("-1"));
    bench.form->click(QStringLiteral("BtnOK"));
    EXPECT_EQ(bench.prompt.told(), QStringList{"An amount cannot be negative: -1 was not stored."});
    EXPECT_FALSE(bench.form->closed());
    EXPECT_EQ(bench.image.valueByte(19), VirtualValidator::factoryImage(0x13, 1001).valueByte(19));

    // Above the maximum: corrected and shown so, then saved; the validator refuses the enable
    // mask, and the form says what the channel holds, read back.
    bench.prompt.clear();
    bench.device.setRefusal(22);
    bench.form->type(QStringLiteral("Edit2"), QStringLiteral("50"));
    bench.form->click(QStringLiteral("BtnSave"));
    EXPECT_EQ(bench.text("Edit2"), QStringLiteral("12.60"));
    EXPECT_EQ(bench.form->control(QStringLiteral("Edit2")).toolTip,
              "An amount in steps of 0.05, at most 12.60; -P1- or -P2- pays price 1 or 2; empty: "
              "no value");
    EXPECT_EQ(bench.image.valueByte(19), 252);
    EXPECT_EQ(bench.prompt.told(),
              (QStringList{"Value over the maximum, it will be correct",
                           "Channel 20 was not saved into the validator.",
                           "The validator refused: Enable table.",
                           "Channel 20 of the validator now holds the learned windows, the value "
                           "12.60, disabled."}));
    EXPECT_EQ(bench.device.memory().valueByte(19), 252);
    EXPECT_FALSE(bench.device.memory().enableBit(19));
}

TEST(ProgCoin, APortLostWhileWaitingForCoinsIsSaidOnce)
{
    Bench bench;
    bench.form->type(QStringLiteral("SpinEdit1"), QStringLiteral("20"));
    bench.insert(CoinKind::Euro020, 2);
    bench.port.close(); // the adapter pulled out
    bench.insert(CoinKind::Euro020, 3);
    EXPECT_EQ(bench.prompt.told(), QStringList{"Internal or Comunication Error"});
    EXPECT_EQ(bench.text("LabelCoins"), QStringLiteral("2"));
}

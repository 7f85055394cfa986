// The editor model: display, channel editing, writing and closing, against the in-process
// virtual validator.
#include "EditorModel.h"
#include "CloneTarget.h"
#include "ConfigFile.h"
#include "EditorServices.h"
#include "Encodings.h"
#include "Messages.h"
#include "RecordingPrompt.h"
#include "SimTransport.h"
#include "VirtualValidator.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>

namespace {

class FakeTables final : public ValidatorTables
{
public:
    Outcome storeValidator(const ConfigImage &image, const QString &identification,
                           const QString &description) override
    {
        stored.append(identification + QLatin1Char('|') + description);
        lastSerial = image.serialNumber();
        return Outcome::Stored;
    }
    QStringList stored;
    quint32 lastSerial = 0;
};

class TestServices final : public DefaultEditorServices
{
public:
    ValidatorTables *tables() override { return &fakeTables; }
    void firmwareRequested(TMonnayeur &) override { ++firmwareRequests; }
    QString openConfigFileName() override { return openPath; }
    QString saveConfigFileName(const QString &) override { return savePath; }
    QString openPath, savePath;
    int firmwareRequests = 0;
    QString backupDirectory() override { return backups; }
    bool continueDespite(const QString &) override
    {
        ++warnings;
        return true;
    }
    int warnings = 0;
    bool verifyAfterWrite() override { return verify; }
    bool verify = true;
    bool backupBeforeCloning() override { return backupClone; }
    bool backupClone = true;
    FakeTables fakeTables;
    QString backups;
};

struct Editor
{
    explicit Editor(quint8 family = 0x13, quint32 serial = 1001)
        : device(std::make_unique<VirtualValidator>(family, serial)),
          port(std::make_unique<SimTransport>(device.get())),
          link(std::make_unique<TMonnayeur>(port.get(), &prompt)),
          model(std::make_unique<EditorModel>(&prompt, &services, link.get()))
    {
        setEncodingSettings(EncodingSettings{u'.', u'/', 1});
        port->setLatencyMs(0);
        services.backups = backupDir.path();
        model->closeRequested = [this] { ++closes; };
    }
    // Opens the editor with its read, as the main window does.
    void open()
    {
        model->flags().readOnOpen = true;
        model->FormActivate();
    }
    void edit(const QString &name, const QString &text)
    {
        ASSERT_TRUE(model->type(name, text));
        ASSERT_TRUE(model->leave(name));
    }
    QString text(const QString &name) const { return model->control(name).text; }
    bool visible(const QString &name) const { return model->control(name).visible; }
    const ConfigImage &image() const { return model->image(); }

    QTemporaryDir backupDir;
    RecordingPrompt prompt;
    TestServices services;
    std::unique_ptr<VirtualValidator> device;
    std::unique_ptr<SimTransport> port;
    std::unique_ptr<TMonnayeur> link;
    std::unique_ptr<EditorModel> model;
    int closes = 0;
};

ConfigImage imageWithFirmwareDate(const QDate &date)
{
    ConfigImage image = VirtualValidator::factoryImage(0x13, 1001);
    const Word2 packed = EncodeDate16(date);
    image.version[1] = packed[0];
    image.version[2] = packed[1];
    return image;
}

} // namespace

TEST(EditorDisplay, OpeningReadShowsTheWholeImageAndKeepsABackup)
{
    Editor e;
    QStringList repainted;
    e.model->changed = [&](const QStringList &names) { repainted += names; };
    e.open();
    ASSERT_EQ(e.closes, 0);
    const ConfigImage &image = e.image();
    EXPECT_EQ(image, e.device->memory());
    for (int page = 1; page <= 6; ++page)
        EXPECT_TRUE(e.visible(QStringLiteral("Tableau%1").arg(page)));
    // Windows in screen order, width 3; a window not set shows empty.
    EXPECT_EQ(e.text("EHFUBMIN0"), ByteToText(3, image.channels[0][Rec::HfuLowMin]));
    EXPECT_EQ(e.text("EHFHMAX3"), ByteToText(3, image.channels[3][Rec::HflHighMax]));
    EXPECT_EQ(e.text("EHFUBMIN40"), QString());
    EXPECT_EQ(e.text("Value0"), QStringLiteral("   0.05")); // 7 wide
    EXPECT_TRUE(e.model->control("Enable0").checked);
    EXPECT_FALSE(e.model->control(QStringLiteral("Enable%1").arg(59)).checked);
    EXPECT_EQ(e.text("LVERSIONH"), QStringLiteral("5.3"));
    EXPECT_EQ(e.text("LDatePgm"), QStringLiteral("By Mini-Pgm"));
    EXPECT_EQ(e.text("ESerial"), QStringLiteral("1001"));
    EXPECT_EQ(e.text("LOptionHex"), QStringLiteral("$ffcf"));
    EXPECT_EQ(e.text("LBit0"), QStringLiteral("1"));
    EXPECT_FALSE(e.visible("Gauge1"));
    EXPECT_EQ(e.model->control("Gauge1").value, 100);
    EXPECT_TRUE(repainted.contains(QStringLiteral("Gauge1")));
    EXPECT_FALSE(e.model->flags().configModified);
    EXPECT_EQ(QDir(e.backupDir.path()).entryList(QDir::Files).size(), 1);
}

TEST(EditorDisplay, LightModelShowsTwentyFiveChannels)
{
    Editor e(0x33);
    e.open();
    EXPECT_EQ(e.text("LVERSIONH"), QStringLiteral("Light"));
    EXPECT_EQ(e.text("Tableau3"), QStringLiteral("Channel 21 to 25"));
    EXPECT_TRUE(e.text("LBase1").contains(QLatin1String("25")));
    for (int page = 4; page <= 6; ++page)
        EXPECT_FALSE(e.visible(QStringLiteral("Tableau%1").arg(page)));
    EXPECT_FALSE(e.visible("Canal25"));
    EXPECT_FALSE(e.visible("Canal29"));
    // Channel 25 is read and written but not edited.
    EXPECT_FALSE(e.model->control("Canal24").enabled);
    EXPECT_FALSE(e.model->control("Sub24").enabled);
    QString error;
    EXPECT_FALSE(e.model->type("EHFUBMIN24", "10", &error));
    EXPECT_TRUE(error.contains(QLatin1String("disabled")));
    EXPECT_FALSE(e.visible("GroupType"));
    EXPECT_TRUE(e.visible("GroupTypeLight"));

    // A 60-channel image brings every page back.
    e.model->loadImage(VirtualValidator::factoryImage(0x13, 1001), false);
    EXPECT_EQ(e.text("Tableau3"), QStringLiteral("Channel 21 to 30"));
    EXPECT_TRUE(e.visible("Tableau6"));
    EXPECT_TRUE(e.model->control("Sub24").enabled);
}

TEST(EditorDisplay, FamilyZeroHasNoAmplitudeWindow)
{
    Editor e(0x03);
    e.open();
    for (int k = 0; k < 60; ++k)
        EXPECT_EQ(e.text(QStringLiteral("EHFAMIN%1").arg(k)), QString()) << k;
    EXPECT_FALSE(e.text("EHFUBMIN0").isEmpty());
}

TEST(EditorDisplay, FirmwareDateOpensLaterFeaturesStrictlyAfterTheirDay)
{
    Editor e;
    auto gated = [&] {
        return QList<bool>{e.visible("GroupBox7"), e.visible("CheckBox4"), e.visible("CheckBox5")};
    };
    e.model->loadImage(imageWithFirmwareDate(QDate(2002, 7, 1)), false);
    EXPECT_EQ(e.text("LVERSIONS"), QStringLiteral("01/07/2002"));
    EXPECT_EQ(gated(), (QList<bool>{true, true, true}));
    // The day itself is not later.
    e.model->loadImage(imageWithFirmwareDate(QDate(2002, 3, 26)), false);
    EXPECT_EQ(gated(), (QList<bool>{true, false, false}));
    e.model->loadImage(imageWithFirmwareDate(QDate(2002, 1, 2)), false);
    EXPECT_EQ(gated(), (QList<bool>{false, false, false}));
    // No date: "#NA", and the gates stay as they were.
    ConfigImage noDate = imageWithFirmwareDate(QDate(2002, 7, 1));
    noDate.version[1] = noDate.version[2] = 0xFF;
    e.model->loadImage(noDate, false);
    EXPECT_EQ(e.text("LVERSIONS"), QStringLiteral("#NA"));
    EXPECT_EQ(gated(), (QList<bool>{false, false, false}));
}

TEST(EditorEditing, WindowBoxesKeepTheLowByteAndNeverCheckRanges)
{
    Editor e;
    e.open();
    e.edit("EHFUBMIN5", "300");
    EXPECT_EQ(e.image().channels[5][Rec::HfuLowMin], 44);
    EXPECT_EQ(e.text("EHFUBMIN5"), QStringLiteral(" 44"));
    EXPECT_TRUE(e.model->flags().configModified);
    EXPECT_FALSE(e.model->flags().editChanged);

    e.edit("ELFMAX5", "-1");
    EXPECT_EQ(e.image().channels[5][Rec::LfMax], 255);
    EXPECT_EQ(e.text("ELFMAX5"), QString());

    // A minimum above its maximum is kept as typed.
    e.edit("EDIMMIN5", "200");
    e.edit("EDIMMAX5", "100");
    EXPECT_EQ(e.image().channels[5][Rec::DimMin], 200);
    EXPECT_EQ(e.image().channels[5][Rec::DimMax], 100);
    EXPECT_TRUE(e.prompt.told().isEmpty());

    e.edit("Sub5", "   ");
    EXPECT_EQ(e.image().channels[5][Rec::Substitute], 255);

    e.edit("EHFAMAX5", "abc");
    EXPECT_EQ(e.prompt.told(), QStringList{"Value must be between 0 and 255"});
    EXPECT_EQ(e.image().channels[5][Rec::AmpMax], 255);
    EXPECT_EQ(e.text("EHFAMAX5"), QString());
}

TEST(EditorEditing, LeavingWithoutAChangeTouchesNothing)
{
    Editor e;
    e.open();
    ConfigImage before = e.image();
    before.channels[7][Rec::LfMin] = 99; // what the box would give if it were stored
    e.model->loadImage(before, false);
    const ConfigImage shown = e.image();
    ASSERT_TRUE(e.model->leave("ELFMIN7"));
    EXPECT_EQ(e.image(), shown);
    EXPECT_FALSE(e.model->flags().configModified);
}

TEST(EditorEditing, EnableBoxesRebuildTheBitmapWithTheMissingChannelsSet)
{
    Editor e;
    e.open();
    ASSERT_TRUE(e.model->control("Enable5").checked);
    ASSERT_TRUE(e.model->click("Enable5"));
    ASSERT_TRUE(e.model->leave("Enable5"));
    EXPECT_FALSE(e.image().enableBit(5));
    EXPECT_EQ(e.image().enable[7] & 0x20, 0);
    EXPECT_EQ(e.image().enable[0] & 0xF0, 0xF0);
    EXPECT_EQ(e.image().channels[5][Rec::Enabled], 0);
}

TEST(EditorEditing, SerialBasesAndValuesGoThroughTheGeneralExit)
{
    Editor e;
    e.open();
    e.edit("ESerial", "70000");
    EXPECT_EQ(e.image().serialNumber(), 70000u);
    EXPECT_EQ(e.image().ident[4], 0x00);
    EXPECT_EQ(e.image().ident[5], 0x01);
    EXPECT_EQ(e.image().ident[6], 0x11);
    EXPECT_EQ(e.image().ident[7], 0x70);
    e.edit("ESerial", "abc"); // ignored silently
    EXPECT_EQ(e.image().serialNumber(), 70000u);
    EXPECT_TRUE(e.prompt.told().isEmpty());

    // Channel values of base 1 (0.05) and of base 2, edited in the same form.
    e.edit("Value2", "0.50");
    EXPECT_EQ(e.image().valueByte(2), 10);
    EXPECT_EQ(e.text("Value2"), QStringLiteral("   0.50"));
    e.edit("Value40", "-p2-");
    EXPECT_EQ(e.image().valueByte(40), 254);
    EXPECT_EQ(e.text("Value40"), QStringLiteral("  -P2-"));

    // A new base 1 changes what channels 1 to 30 are worth on screen, not their bytes.
    e.edit("EBase1", "0.10");
    EXPECT_EQ(e.image().values[Val::Base1], 0x40);
    EXPECT_EQ(e.image().values[Val::Base1 + 1], 10);
    EXPECT_EQ(e.image().valueByte(2), 10);
    EXPECT_EQ(e.text("Value2"), QStringLiteral("   1.00"));
}

TEST(EditorEditing, ActionsThatDoNotFitTheControlAreRefused)
{
    Editor e;
    e.open();
    QString error;
    EXPECT_FALSE(e.model->type("NoSuchBox", "1", &error));
    EXPECT_EQ(error, QStringLiteral("no control NoSuchBox"));
    EXPECT_FALSE(e.model->type("Enable3", "1", &error));
    EXPECT_FALSE(e.model->type("LabeledEdit3", "1", &error)); // not under this output type
    EXPECT_TRUE(error.contains(QLatin1String("hidden")));
    EXPECT_FALSE(e.model->pick("EHFUBMIN0", 1, &error));
    EXPECT_FALSE(e.model->click("LVERSIONH", &error));
    EXPECT_FALSE(e.model->pick("GroupType", 8, &error));
    EXPECT_EQ(error, QStringLiteral("GroupType has no item 8"));
}

TEST(EditorWriting, WriteSendsTheEditAndClosingAsksOnlyAfterAChange)
{
    Editor e;
    e.open();
    EXPECT_TRUE(e.model->FormCloseQuery()); // nothing changed: no question
    EXPECT_TRUE(e.prompt.asked().isEmpty());

    ASSERT_TRUE(e.model->type("EHFUBMIN3", "123"));
    // Cancel keeps the editor open, with the edit stored but nothing sent.
    e.prompt.setNextAnswers({UserPrompt::Answer::Cancel});
    EXPECT_FALSE(e.model->FormCloseQuery());
    EXPECT_EQ(e.prompt.asked(), QStringList{"Save on validator?"});
    EXPECT_EQ(e.image().channels[3][Rec::HfuLowMin], 123);
    EXPECT_NE(e.device->memory().channels[3][Rec::HfuLowMin], 123);

    // Yes writes the whole image and closes.
    e.prompt.setNextAnswers({UserPrompt::Answer::Yes});
    EXPECT_TRUE(e.model->FormCloseQuery());
    EXPECT_EQ(e.device->memory().channels[3][Rec::HfuLowMin], 123);
    EXPECT_EQ(e.prompt.told(), QStringList{"Finished operation!\nVerified: the validator holds "
                                           "the configuration."});
    EXPECT_FALSE(e.model->flags().configModified);
    EXPECT_FALSE(e.visible("Gauge1"));
}

TEST(EditorWriting, ALightValidatorGetsBackTheEnableMaskItGave)
{
    // The editor starts from a blank image whose 60 enable boxes are checked; a Light read
    // shows only 25 of them.
    Editor e(0x33);
    e.open();
    const EnableBitmap read = e.device->memory().enable;
    e.edit("EHFUBMIN3", "40");
    e.model->SpeedButton8Click();
    ASSERT_TRUE(e.prompt.told().last().startsWith(QStringLiteral("Finished operation!\n")));
    EXPECT_EQ(e.device->memory().channels[3][Rec::HfuLowMin], 40);
    EXPECT_EQ(e.device->memory().enable, read);
    for (int k = 25; k < 60; ++k)
        ASSERT_EQ(e.image().channels[std::size_t(k)][Rec::Enabled], 0) << k;
}

TEST(EditorWriting, SavingShowsOnceTheWarningsArePast)
{
    Editor e;
    e.open();
    ASSERT_TRUE(e.model->click("ChkCode")); // no code set: "Invalid code table !"
    e.edit("EHFUBMIN59", "7");              // the validator's last channel differs
    QStringList toldWhenShown;
    int warningsWhenShown = -1;
    e.model->changed = [&](const QStringList &names) {
        if (names.contains(QStringLiteral("Label3")) && e.visible("Label3") &&
            warningsWhenShown < 0) {
            EXPECT_EQ(e.text("Label3"), QStringLiteral("Saving in progress....."));
            EXPECT_TRUE(e.visible("Gauge1"));
            toldWhenShown = e.prompt.told();
            warningsWhenShown = e.services.warnings;
        }
    };
    e.model->SpeedButton8Click();
    EXPECT_EQ(warningsWhenShown, 1);
    EXPECT_EQ(toldWhenShown, QStringList{"Invalid code table !"});
    EXPECT_TRUE(e.prompt.told().last().startsWith(QStringLiteral("Finished operation!\n")));
}

TEST(EditorWriting, AReadBackThatDiffersKeepsTheImageAndTheModifiedFlag)
{
    Editor e;
    e.open();
    e.device->setRefusal(22);
    ASSERT_TRUE(e.model->click("Enable0"));
    ASSERT_TRUE(e.model->type("EHFUBMIN4", "70")); // taken by the validator
    ASSERT_TRUE(e.model->leave("EHFUBMIN4"));
    QStringList labels;
    // The read-back runs before any box; then one box says the write's result, what was
    // refused and what the validator holds, together.
    QStringList toldWhileVerifying;
    e.model->changed = [&](const QStringList &names) {
        if (names.contains(QStringLiteral("Label3")) && e.visible("Label3")) {
            labels.append(e.text("Label3"));
            if (e.text("Label3").startsWith(QStringLiteral("Verifying")))
                toldWhileVerifying += e.prompt.told();
        }
    };
    e.model->SpeedButton8Click();
    EXPECT_TRUE(labels.contains(QStringLiteral("Verifying... do not unplug the validator")));
    EXPECT_TRUE(toldWhileVerifying.isEmpty());
    EXPECT_EQ(e.prompt.told(), QStringList{"Finished operation!\nThe validator refused: Enable "
                                           "table.\nThe validator does not hold what was "
                                           "written:\nChannel 1: disabled → enabled"});
    // The editor keeps what it shows, and closing offers to write it again.
    EXPECT_TRUE(e.model->flags().configModified);
    EXPECT_FALSE(e.image().enableBit(0));
    EXPECT_TRUE(e.device->memory().enableBit(0));
    // Changes now counts from what the validator holds: what the next write would still send.
    e.model->changes().list();
    ASSERT_EQ(e.model->changes().changes().size(), 1);
    EXPECT_EQ(e.model->changes().changes().first().text(),
              QStringLiteral("Channel 1: enabled → disabled"));

    e.device->clearFaults();
    e.prompt.clear();
    e.model->SpeedButton8Click();
    EXPECT_EQ(e.prompt.told(), QStringList({"Finished operation!\nVerified: the validator holds "
                                            "the configuration."}));
    EXPECT_FALSE(e.model->flags().configModified);

    e.services.verify = false; // switched off: nothing is read back
    e.prompt.clear();
    e.model->SpeedButton8Click();
    EXPECT_EQ(e.prompt.told(), QStringList{"Finished operation!"});
}

TEST(EditorWriting, ACloneKeepsTheTargetFirstAndNamesTheCorrectionOfTheWindows)
{
    // The editor holds validator 1000's configuration; validator 1004, whose sensors read
    // higher, is on the bench.
    Editor e(0x13, 1004);
    e.services.verify = false;
    const ConfigImage source = VirtualValidator::factoryImage(0x13, 1000);
    const ConfigImage target = e.device->memory();
    e.services.openPath = e.backupDir.filePath("source.json");
    ASSERT_TRUE(saveConfigFile(e.services.openPath, source, nullptr));
    e.model->BtnOpenFileClick();
    ASSERT_EQ(e.image(), source);
    const QDir backups(e.backupDir.path());
    auto keptFiles = [&] {
        return QDir(e.backupDir.path(), QStringLiteral("*-serial1004.json")).entryList();
    };
    ASSERT_TRUE(keptFiles().isEmpty());

    ASSERT_TRUE(e.model->click(QStringLiteral("SpeedButton2")));
    // The target's own configuration was kept before anything was written over it.
    ASSERT_EQ(keptFiles().size(), 1);
    ConfigImage kept;
    ASSERT_TRUE(loadConfigFile(backups.filePath(keptFiles().first()), kept, nullptr));
    EXPECT_EQ(kept, target);
    EXPECT_NE(e.device->memory().channels[0], target.channels[0]);
    // One message: the result, then the correction the target's reference channel brought.
    const QString correction =
        correctionText(cloneCorrection(source.channels[59].data(), target.channels[59].data()));
    EXPECT_TRUE(correction.startsWith(
        QStringLiteral("Windows corrected for this validator's sensors: HFU low \u00d7")));
    EXPECT_EQ(e.prompt.told(), QStringList{"Finished operation!\n" + correction});

    // With "Back up before cloning" off nothing more is kept.
    e.services.backupClone = false;
    e.prompt.clear();
    ASSERT_TRUE(e.model->click(QStringLiteral("SpeedButton2")));
    EXPECT_EQ(keptFiles().size(), 1);
    EXPECT_EQ(e.prompt.told().size(), 1);
}

TEST(EditorWriting, CablePulledDuringAWriteLeavesTheFormUsable)
{
    Editor e;
    e.open();
    e.edit("EHFUBMIN3", "77");
    e.device->setSilentAfter(10);
    e.model->SpeedButton8Click();
    EXPECT_TRUE(e.prompt.told().isEmpty());
    ASSERT_EQ(e.prompt.asked().size(), 1);
    EXPECT_TRUE(e.prompt.asked().first().contains(QStringLiteral("Fault during save operation !")));
    EXPECT_EQ(e.closes, 0);
    EXPECT_TRUE(e.model->flags().configModified);
    EXPECT_EQ(e.image().channels[3][Rec::HfuLowMin], 77);
    e.edit("EHFUBMIN4", "78");
    EXPECT_EQ(e.image().channels[4][Rec::HfuLowMin], 78);
}

TEST(EditorWriting, AFailedReadClosesTheEditorWithTheImageAsItWas)
{
    Editor e;
    const ConfigImage before = e.image();
    e.device->setSilentAfter(20);
    e.open();
    EXPECT_EQ(e.closes, 1);
    EXPECT_TRUE(e.model->flags().readFailed);
    EXPECT_EQ(e.image(), before);
    EXPECT_TRUE(QDir(e.backupDir.path()).entryList(QDir::Files).isEmpty());
}

TEST(EditorWriting, StoringNeedsAnIdentification)
{
    Editor e;
    e.open();
    e.model->SpeedButton4Click();
    EXPECT_EQ(e.prompt.told(), QStringList{"Identification field must be filled"});
    ASSERT_TRUE(e.model->type("EIdent", "SHOP-12"));
    ASSERT_TRUE(e.model->type("EDescription", "Bar"));
    EXPECT_FALSE(e.model->flags().configModified); // not part of the configuration
    ASSERT_TRUE(e.model->type("ESerial", "4242"));
    e.prompt.setNextChoices({0}); // go on, although the validator does not have it
    e.model->SpeedButton4Click();
    EXPECT_EQ(e.services.fakeTables.stored, QStringList{"SHOP-12|Bar"});
    EXPECT_EQ(e.services.fakeTables.lastSerial, 4242u); // the form was copied first
}

TEST(EditorTimer, SerialTestShowsEachAcceptedCoinUntilTheEditorCloses)
{
    Editor e;
    e.open();
    ASSERT_TRUE(e.model->click("BtnTest"));
    EXPECT_TRUE(e.device->testMode());
    EXPECT_EQ(e.text("BtnTest"), QStringLiteral("Stop"));
    e.device->insertCoin(CoinKind::Euro050); // channel 4, worth 10 x 0.05
    e.model->tick();
    EXPECT_EQ(e.text("LTestChannelValue"), QStringLiteral("4"));
    EXPECT_EQ(e.text("LTestAmountValue"), QStringLiteral("0.50"));
    // A coin that arrives while the test is off is no request of the mini-programmer.
    e.model->BitBtn1Click();
    EXPECT_FALSE(e.device->testMode());
    EXPECT_EQ(e.closes, 1);
    EXPECT_EQ(e.text("BtnTest"), QStringLiteral("Start"));
}

TEST(EditorTimer, TheMiniProgrammersRequestIsAnsweredAndOpensTheFirmwareTransfer)
{
    Editor e;
    e.open();
    e.model->tick(); // nothing waiting: nothing happens
    EXPECT_EQ(e.services.firmwareRequests, 0);
    e.device->requestFirmware();
    e.model->tick();
    EXPECT_EQ(e.services.firmwareRequests, 1);
    EXPECT_TRUE(e.device->miniProgrammer()); // it heard the answer
}

TEST(EditorFiles, ASavedFileOpensAgainAndAMalformedOneChangesNothing)
{
    Editor e;
    e.open();
    e.edit("EHFUBMIN2", "99");
    e.services.savePath = e.backupDir.filePath("saved.json");
    e.model->BtnSaveFileClick();
    const ConfigImage saved = e.image();

    QFile bad(e.backupDir.filePath("bad.json"));
    ASSERT_TRUE(bad.open(QIODevice::WriteOnly));
    bad.write(QByteArray(configToJson(saved)).replace("\"prices\"", "\"pricez\""));
    bad.close();
    e.edit("EHFUBMIN2", "11");
    const ConfigImage edited = e.image();
    e.services.openPath = bad.fileName();
    e.prompt.setNextChoices({0});
    e.model->BtnOpenFileClick();
    ASSERT_EQ(e.prompt.told().size(), 1);
    EXPECT_TRUE(e.prompt.told().first().contains(QLatin1String("prices")));
    EXPECT_EQ(e.image(), edited);

    e.services.openPath = e.services.savePath;
    e.prompt.setNextChoices({0});
    e.model->BtnOpenFileClick();
    EXPECT_EQ(e.image().channels[2][Rec::HfuLowMin], 99);
    EXPECT_EQ(e.text("EHFUBMIN2"), QStringLiteral(" 99"));
    EXPECT_TRUE(e.model->flags().configModified);

    // A save that cannot be written says why in plain words and leaves the editor as it was.
    e.prompt.clear();
    e.services.savePath = e.backupDir.filePath("gone/saved.json");
    e.model->BtnSaveFileClick();
    ASSERT_EQ(e.prompt.told().size(), 1);
    EXPECT_TRUE(e.prompt.told().first().endsWith(messageText(Msg::WriteNoFolder)));
    EXPECT_FALSE(QFileInfo::exists(e.services.savePath));
    EXPECT_TRUE(e.model->flags().configModified);
}

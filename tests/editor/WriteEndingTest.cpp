// How the editor's writes end: one box after the read-back, and after a fault one box with
// "Write again" and "Put back as it was"; and what the Changes window says it compares with.
#include "ConfigFile.h"
#include "EditorModel.h"
#include "EditorServices.h"
#include "RecordingPrompt.h"
#include "SimTransport.h"
#include "VirtualValidator.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

struct Tables final : ValidatorTables
{
    Outcome storeValidator(const ConfigImage &, const QString &identification,
                           const QString &) override
    {
        stored.append(identification);
        return Outcome::Stored;
    }
    QStringList stored;
};

struct Bench final : DefaultEditorServices
{
    Bench() : device(0x13, 1001), port(&device), link(&port, &prompt), model(&prompt, this, &link)
    {
        port.setLatencyMs(0);
    }
    QString openConfigFileName() override { return file; }
    ValidatorTables *tables() override { return &fakeTables; }
    void open()
    {
        model.flags().readOnOpen = true;
        model.FormActivate();
    }
    void edit(const QString &name, const QString &text)
    {
        ASSERT_TRUE(model.type(name, text));
        ASSERT_TRUE(model.leave(name));
    }
    // The cable is pulled once the gauge passes `gauge` percent.
    void pullAt(int gauge)
    {
        model.changed = [this, gauge](const QStringList &) {
            if (model.control(QStringLiteral("Gauge1")).value >= gauge && port.isOpen())
                port.close();
        };
    }
    QString since()
    {
        model.changes().open();
        return model.changes().since();
    }

    QString file;
    Tables fakeTables;
    VirtualValidator device;
    SimTransport port;
    RecordingPrompt prompt;
    TMonnayeur link;
    EditorModel model;
};

const QString kVerified = QStringLiteral("Verified: the validator holds the configuration.");

} // namespace

TEST(WriteEnding, APulledCableEndsInOneBoxAndWriteAgainFinishes)
{
    Bench b;
    b.open();
    const int was = b.device.memory().channels[30][Rec::HfuLowMin];
    b.edit(QStringLiteral("EHFUBMIN3"), QStringLiteral("77"));
    b.edit(QStringLiteral("EHFUBMIN30"), QStringLiteral("78"));
    b.pullAt(20);
    // The box is open when the cable goes back in; then "Write again".
    int heldWhenAsked = -1;
    b.prompt.beforeChoice = [&] {
        heldWhenAsked = b.device.memory().channels[30][Rec::HfuLowMin];
        b.model.changed = {};
        b.port.open();
    };
    b.prompt.setNextChoices({0});
    b.prompt.clear();
    b.model.click(QStringLiteral("SpeedButton8"));

    ASSERT_EQ(b.prompt.choices().size(), 1);
    EXPECT_EQ(b.prompt.choices().first(),
              (QStringList{"Write again", "Put back as it was", "Close"}));
    // One box: the link's error, the write's result and what reached the validator.
    const QString box = b.prompt.asked().first();
    EXPECT_TRUE(box.startsWith(QStringLiteral("Internal or Comunication Error\nFault during save "
                                              "operation !\nThe validator now holds a partly "
                                              "written configuration (written: Channels data "
                                              "(channels 1-")))
        << qPrintable(box);
    EXPECT_EQ(box.count(QStringLiteral("Internal or Comunication Error")), 1);
    EXPECT_EQ(heldWhenAsked, was);
    // Written again, then one box with both results.
    EXPECT_EQ(b.prompt.told(), QStringList{"Finished operation!\n" + kVerified});
    EXPECT_EQ(b.device.memory().channels[30][Rec::HfuLowMin], 78);
    EXPECT_FALSE(b.model.flags().configModified);
    EXPECT_TRUE(b.since().startsWith(QStringLiteral("Since written to validator 1001 at ")));
}

TEST(WriteEnding, PutBackWritesWhatTheLastReadFound)
{
    Bench b;
    b.open();
    const ConfigImage read = b.device.memory();
    b.edit(QStringLiteral("EHFUBMIN3"), QStringLiteral("77"));
    b.device.setSilentAfter(12); // the validator stops answering after a few channels
    b.prompt.beforeChoice = [&] { b.device.clearFaults(); };
    b.prompt.setNextChoices({1});
    b.prompt.clear();
    b.model.SpeedButton8Click();

    ASSERT_EQ(b.prompt.asked().size(), 1);
    EXPECT_TRUE(b.prompt.asked().first().contains(QStringLiteral("Fault during save operation !")));
    EXPECT_EQ(b.prompt.told(), QStringList{"Finished operation!\n" + kVerified});
    EXPECT_EQ(b.device.memory().channels, read.channels);
    // The editor keeps its edit, which the validator now lacks again.
    EXPECT_EQ(b.model.image().channels[3][Rec::HfuLowMin], 77);
    EXPECT_TRUE(b.model.flags().configModified);
    b.model.changes().open();
    ASSERT_EQ(b.model.changes().changes().size(), 1);
    EXPECT_TRUE(b.model.changes().changes().first().text().endsWith(QStringLiteral("→ 77")));
}

TEST(WriteEnding, NoBackupOrAClonesTargetOffersNoPutBack)
{
    // A configuration opened from a file, the validator never read: nothing to put back.
    QTemporaryDir dir;
    Bench b;
    b.file = dir.filePath(QStringLiteral("x.json"));
    ASSERT_TRUE(saveConfigFile(b.file, b.device.memory(), nullptr));
    ASSERT_TRUE(b.model.click(QStringLiteral("BtnOpenFile")));
    b.device.setSilentAfter(8);
    b.model.SpeedButton8Click();
    ASSERT_EQ(b.prompt.choices().size(), 1);
    EXPECT_EQ(b.prompt.choices().first(), (QStringList{"Write again", "Close"}));

    // The last read is the source's, not the clone's target's.
    Bench c;
    c.open();
    c.device.setSilentAfter(8);
    c.model.SpeedButton2Click();
    ASSERT_EQ(c.prompt.choices().size(), 1);
    EXPECT_EQ(c.prompt.choices().first(), (QStringList{"Write again", "Close"}));
    EXPECT_TRUE(c.prompt.told().isEmpty());
}

TEST(ChangesSince, EachStartingPointIsNamed)
{
    const QRegularExpression at(QStringLiteral(" at \\d\\d:\\d\\d$"));
    QTemporaryDir dir;
    Bench b;
    EXPECT_EQ(b.since(), QStringLiteral("Since the editor opened (the validator was not read)"));
    b.file = dir.filePath(QStringLiteral("x.json"));
    ASSERT_TRUE(saveConfigFile(b.file, VirtualValidator::factoryImage(0x13, 1001), nullptr));
    ASSERT_TRUE(b.model.click(QStringLiteral("BtnOpenFile")));
    EXPECT_EQ(b.since(),
              QStringLiteral("Since opened from file x.json (the validator was not read)"));
    b.model.loadImage(b.model.image(), true, BaselineSource::Kind::Record,
                      QStringLiteral("SHOP-12"));
    EXPECT_EQ(b.since(), QStringLiteral("Since opened from SHOP-12 (the validator was not read)"));

    b.open();
    EXPECT_TRUE(b.since().startsWith(QStringLiteral("Since read from validator 1001")));
    EXPECT_TRUE(b.since().contains(at));
    EXPECT_TRUE(b.model.changes().changes().isEmpty());

    // A file that differs from the validator: Changes still counts from what the validator
    // held, so the difference shows; and the question came first.
    ConfigImage other = VirtualValidator::factoryImage(0x13, 1001);
    other.channels[6][Rec::HfuLowMin] = 99;
    ASSERT_TRUE(saveConfigFile(b.file, other, nullptr));
    ASSERT_TRUE(b.model.click(QStringLiteral("BtnOpenFile")));
    EXPECT_TRUE(b.prompt.asked().isEmpty()); // nothing the validator lacks yet
    EXPECT_TRUE(b.since().startsWith(QStringLiteral("Since read from validator 1001")));
    ASSERT_EQ(b.model.changes().changes().size(), 1);

    ASSERT_TRUE(b.model.click(QStringLiteral("SpeedButton8")));
    EXPECT_TRUE(b.since().startsWith(QStringLiteral("Since written to validator 1001")));
    EXPECT_TRUE(b.since().contains(at));
    EXPECT_TRUE(b.model.changes().changes().isEmpty());
}

TEST(ChangesSince, StoringOrOpeningOverChangesTheValidatorLacksAsksFirst)
{
    QTemporaryDir dir;
    Bench b;
    b.open();
    b.file = dir.filePath(QStringLiteral("x.json"));
    ASSERT_TRUE(saveConfigFile(b.file, VirtualValidator::factoryImage(0x13, 1001), nullptr));
    ASSERT_TRUE(b.model.type(QStringLiteral("EIdent"), QStringLiteral("SHOP-12")));
    b.model.SpeedButton4Click();
    EXPECT_TRUE(b.prompt.asked().isEmpty()); // the validator holds what is stored
    EXPECT_EQ(b.fakeTables.stored, QStringList{"SHOP-12"});

    b.edit(QStringLiteral("EHFUBMIN3"), QStringLiteral("77"));
    b.edit(QStringLiteral("EHFUBMIN4"), QStringLiteral("78"));
    const QString question = QStringLiteral("The validator does not have 2 changes this editor "
                                            "holds (see Changes). Store in the tables all the "
                                            "same?");
    b.model.SpeedButton4Click(); // Cancel
    EXPECT_EQ(b.prompt.asked(), QStringList{question});
    EXPECT_EQ(b.prompt.choices().last(), (QStringList{"Go on", "Cancel"}));
    EXPECT_EQ(b.fakeTables.stored.size(), 1);
    b.prompt.setNextChoices({0});
    b.model.SpeedButton4Click();
    EXPECT_EQ(b.fakeTables.stored.size(), 2);

    b.model.click(QStringLiteral("BtnOpenFile")); // Cancel: the edits stay
    EXPECT_TRUE(b.prompt.asked().last().endsWith(QStringLiteral("Open all the same?")));
    EXPECT_EQ(b.model.image().channels[3][Rec::HfuLowMin], 77);
    b.prompt.setNextChoices({0});
    b.model.click(QStringLiteral("BtnOpenFile"));
    EXPECT_NE(b.model.image().channels[3][Rec::HfuLowMin], 77);
}

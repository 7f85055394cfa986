// The Changes window's model: what the next write would change, counted from the image as last
// read, opened or written, over the in-process virtual validator.
#include "ChangesModel.h"
#include "ConfigFile.h"
#include "EditorModel.h"
#include "EditorServices.h"
#include "RecordingPrompt.h"
#include "SimTransport.h"
#include "VirtualValidator.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// Opens a configuration file when asked and keeps the lines of every Changes window shown.
class ChangesServices final : public DefaultEditorServices
{
public:
    QString openConfigFileName() override { return openPath; }
    void showChanges(ChangesModel &changes) override
    {
        QStringList shown;
        for (const ChangesModel::Line &line : changes.lines())
            shown.append(line.heading ? QStringLiteral("# ") + line.text : line.text);
        windows.append(shown);
    }
    QString openPath;
    QList<QStringList> windows;
};

struct Bench
{
    Bench()
        : device(0x13, 1001), port(&device), link(&port, &prompt), model(&prompt, &services, &link)
    {
        setEncodingSettings(EncodingSettings{u'.', u'/', 1});
        port.setLatencyMs(0);
    }
    // Clicks Changes and gives the window's lines.
    QStringList changes()
    {
        EXPECT_TRUE(model.click(QStringLiteral("BtnChanges")));
        return services.windows.isEmpty() ? QStringList() : services.windows.takeLast();
    }

    VirtualValidator device;
    SimTransport port;
    RecordingPrompt prompt;
    TMonnayeur link;
    ChangesServices services;
    EditorModel model;
};

const QStringList kNoChanges{
    QStringLiteral("No changes since the configuration was last read, opened or written.")};

} // namespace

TEST(Changes, ListsWhatWasTypedSinceAFileWasOpenedGroupByGroup)
{
    QTemporaryDir dir;
    Bench b;
    // The file was made in another editor: price 1 at 1.00, channel 5's HFU low min at 67.
    EditorModel maker(nullptr, nullptr);
    maker.loadImage(VirtualValidator::factoryImage(0x13, 1001), false);
    ASSERT_TRUE(maker.type(QStringLiteral("Eprix1"), QStringLiteral("1.00")));
    ASSERT_TRUE(maker.leave(QStringLiteral("Eprix1")));
    ASSERT_TRUE(maker.type(QStringLiteral("EHFUBMIN4"), QStringLiteral("67")));
    maker.EHFUBMIN0Exit();
    const ConfigImage file = maker.image();
    b.services.openPath = dir.filePath(QStringLiteral("shop.json"));
    ASSERT_TRUE(saveConfigFile(b.services.openPath, file, nullptr));
    ASSERT_TRUE(b.model.click(QStringLiteral("BtnOpenFile")));
    // What the file holds is the starting point, not the blank editor.
    EXPECT_EQ(b.changes(), kNoChanges);

    // A price left, and a window box typed into but not left: both count.
    ASSERT_TRUE(b.model.type(QStringLiteral("Eprix1"), QStringLiteral("1.20")));
    ASSERT_TRUE(b.model.leave(QStringLiteral("Eprix1")));
    ASSERT_TRUE(b.model.type(QStringLiteral("EHFUBMIN4"), QStringLiteral("70")));
    EXPECT_EQ(b.changes(), (QStringList{QStringLiteral("# Channels data"),
                                        QStringLiteral("Channel 5: HFU low min 67 → 70"),
                                        QStringLiteral("# Prices table"),
                                        QStringLiteral("Value P1: 1.00 → 1.20")}));
    EXPECT_EQ(b.model.image().channels[4][Rec::HfuLowMin], 70);
    ASSERT_EQ(b.model.changes().changes().size(), 2);
    EXPECT_EQ(b.model.changes().changes().at(1).group, ChangeGroup::Prices);
    // The button is the write button's neighbour: both need the validator.
    EXPECT_TRUE(b.model.control(QStringLiteral("BtnChanges")).enabled);
    EXPECT_EQ(b.model.control(QStringLiteral("BtnChanges")).accessibleName,
              QStringLiteral("Changes"));
}

TEST(Changes, NothingAfterAReadOrAFinishedWrite)
{
    Bench b;
    b.model.flags().readOnOpen = true;
    b.model.FormActivate();
    EXPECT_EQ(b.changes(), kNoChanges);

    ASSERT_TRUE(b.model.type(QStringLiteral("EHFUBMIN4"), QStringLiteral("71")));
    EXPECT_EQ(b.changes().size(), 2);
    // The value tables change the image as an edit: the baseline stays.
    ConfigImage edited = b.model.image();
    edited.values[std::size_t(Val::Channel0)] = 9;
    b.model.editImage(edited);
    EXPECT_EQ(b.changes().first(), QStringLiteral("# Channels data"));
    EXPECT_EQ(b.model.changes().changes().size(), 2);

    // Written, the validator holds the image: nothing left to change.
    ASSERT_TRUE(b.model.click(QStringLiteral("SpeedButton8")));
    EXPECT_EQ(b.device.memory().channels[4][Rec::HfuLowMin], 71);
    EXPECT_EQ(b.changes(), kNoChanges);

    // A read after an edit starts over from what the validator holds.
    ASSERT_TRUE(b.model.type(QStringLiteral("EHFUBMIN4"), QStringLiteral("72")));
    ASSERT_TRUE(b.model.click(QStringLiteral("SpeedButton1")));
    EXPECT_EQ(b.changes(), kNoChanges);
}

// The Changes window's model, counted from the image as last read, opened or written.
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

// Opens the file it is given; a Changes window is its lines, group names marked "# ".
struct Bench final : DefaultEditorServices
{
    Bench() : device(0x13, 1001), port(&device), link(&port, &prompt), model(&prompt, this, &link)
    {
        port.setLatencyMs(0);
    }
    QString openConfigFileName() override { return file; }
    void showChanges(ChangesModel &changes) override
    {
        for (const ChangesModel::Line &line : changes.lines())
            shown.append(line.heading ? QStringLiteral("# ") + line.text : line.text);
    }
    QStringList changes()
    {
        shown.clear();
        EXPECT_TRUE(model.click(QStringLiteral("BtnChanges")));
        return shown;
    }

    QString file;
    QStringList shown;
    VirtualValidator device;
    SimTransport port;
    RecordingPrompt prompt;
    TMonnayeur link;
    EditorModel model;
};

const QStringList kNone{
    QStringLiteral("No changes since the configuration was last read, opened or written.")};

} // namespace

TEST(Changes, ListsWhatWasTypedSinceAFileWasOpenedGroupByGroup)
{
    QTemporaryDir dir;
    Bench b;
    ConfigImage opened = VirtualValidator::factoryImage(0x13, 1001);
    opened.channels[4][Rec::HfuLowMin] = 67;
    b.file = dir.filePath(QStringLiteral("shop.json"));
    ASSERT_TRUE(saveConfigFile(b.file, opened, nullptr));
    ASSERT_TRUE(b.model.click(QStringLiteral("BtnOpenFile")));
    EXPECT_EQ(b.changes(), kNone);

    // A price left, and a window box typed into but not left: both count.
    ASSERT_TRUE(b.model.type(QStringLiteral("Eprix1"), QStringLiteral("1.20")));
    ASSERT_TRUE(b.model.leave(QStringLiteral("Eprix1")));
    ASSERT_TRUE(b.model.type(QStringLiteral("EHFUBMIN4"), QStringLiteral("70")));
    EXPECT_EQ(b.changes(), (QStringList{QStringLiteral("# Channels data"),
                                        QStringLiteral("Channel 5: HFU low min 67 → 70"),
                                        QStringLiteral("# Prices table"),
                                        QStringLiteral("Value P1: (empty) → 1.20")}));
}

TEST(Changes, NothingAfterAReadOrAFinishedWrite)
{
    Bench b;
    b.model.flags().readOnOpen = true;
    b.model.FormActivate();
    EXPECT_EQ(b.changes(), kNone);
    // The value tables' changes are edits.
    ConfigImage edited = b.model.image();
    edited.values[std::size_t(Val::Channel0)] = 9;
    b.model.editImage(edited);
    ASSERT_TRUE(b.model.type(QStringLiteral("EHFUBMIN4"), QStringLiteral("71")));
    EXPECT_EQ(b.changes().size(), 4);

    ASSERT_TRUE(b.model.click(QStringLiteral("SpeedButton8")));
    EXPECT_EQ(b.device.memory().channels[4][Rec::HfuLowMin], 71);
    EXPECT_EQ(b.changes(), kNone);
    ASSERT_TRUE(b.model.type(QStringLiteral("EHFUBMIN4"), QStringLiteral("72")));
    ASSERT_TRUE(b.model.click(QStringLiteral("SpeedButton1")));
    EXPECT_EQ(b.changes(), kNone);
}

// The History window driven by its controls' names: one event chosen shows its changes, two
// their comparison; Restore shows only where the opener can write.
#include "TFormHistory.h"
#include "Captions.h"
#include "HistoryFiles.h"
#include "HistoryModel.h"
#include "HistoryRecorder.h"
#include "RecordingPrompt.h"
#include "TestApplication.h"
#include "VirtualValidator.h"

#include <QItemSelectionModel>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

TEST(TFormHistory, ChoosingOneOrTwoEventsShowsTheirChangesAndRestoreFollowsTheOpener)
{
    testApplication();
    QTemporaryDir dir;
    HistoryFiles store(dir.path());
    ConfigImage image = VirtualValidator::factoryImage(0x13, 77);
    for (int n = 0; n < 3; ++n) {
        HistoryEvent event = historyEvent(77, n ? QStringLiteral("write") : QStringLiteral("read"),
                                          n ? QStringLiteral("verified") : QString(), image);
        event.time = event.time.addMSecs(n);
        ASSERT_TRUE(store.record(event));
        image.channels[std::size_t(n)][Rec::LfMax] = quint8(90 + n);
    }
    RecordingPrompt prompt;
    HistoryModel model(store, &prompt);
    ASSERT_TRUE(model.load(77));
    {
        TFormHistory form(model);
        auto *grid = form.findChild<QTableWidget *>(QStringLiteral("GridHistory"));
        auto *list = form.findChild<QListWidget *>(QStringLiteral("ListDifferences"));
        auto *heading = form.findChild<QLabel *>(QStringLiteral("LabelDifferences"));
        auto *restore = form.findChild<QPushButton *>(QStringLiteral("BtnRestore"));
        ASSERT_TRUE(grid && list && heading && restore);
        EXPECT_EQ(grid->rowCount(), 3);
        EXPECT_FALSE(grid->accessibleName().isEmpty());
        EXPECT_EQ(heading->buddy(), list);
        // The newest event is chosen first, with the window its write changed.
        EXPECT_EQ(heading->text(), captionText(Cap::HistorySinceBefore, {"3"}));
        ASSERT_EQ(list->count(), 1);
        EXPECT_TRUE(list->item(0)->text().startsWith(QStringLiteral("Channel 2: LF max")));
        // Two events: their comparison.
        grid->selectionModel()->select(grid->model()->index(0, 0),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
        EXPECT_EQ(heading->text(), captionText(Cap::HistoryComparison, {"1", "3"}));
        EXPECT_EQ(list->count(), 2);
        // Nothing to write with: no Restore.
        EXPECT_TRUE(restore->isHidden());
    }
    model.setRestore([](const ConfigImage &) { return true; });
    TFormHistory form(model);
    auto *restore = form.findChild<QPushButton *>(QStringLiteral("BtnRestore"));
    EXPECT_FALSE(restore->isHidden());
    EXPECT_TRUE(restore->isEnabled());
    EXPECT_EQ(restore->accessibleName(), captionText(Cap::HistoryRestore));
}

} // namespace

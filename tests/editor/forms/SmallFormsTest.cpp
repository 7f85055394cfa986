// The channel copy dialog and the saved validators browser, driven by their widgets' names.
#include "DbfTable.h"
#include "EditorModel.h"
#include "EditorServices.h"
#include "GuiEditorServices.h"
#include "Messages.h"
#include "RecordingPrompt.h"
#include "SavedValidatorsModel.h"
#include "Settings.h"
#include "TDBModule.h"
#include "TFormReadFileData.h"
#include "TFormRepair.h"
#include "TFormTransfert.h"
#include "TFormValue.h"
#include "TableRepairModel.h"
#include "ValueTableModel.h"
#include "VirtualValidator.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QTableView>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

class SmallFormsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theCopyDialogMovesAChannel()
    {
        RecordingPrompt prompt;
        DefaultEditorServices services;
        EditorModel editor(&prompt, &services);
        const ConfigImage factory = VirtualValidator::factoryImage(0x13, 1001);
        editor.loadImage(factory, false);
        editor.channelCopy().open();
        TFormTransfert form(editor.channelCopy());
        auto *source = form.findChild<QSpinBox *>(QStringLiteral("SpinEditS"));
        auto *destination = form.findChild<QSpinBox *>(QStringLiteral("SpinEditD"));
        QCOMPARE(source->maximum(), 59);
        source->setValue(2);
        destination->setValue(12);
        QTest::mouseClick(form.findChild<QCheckBox *>(QStringLiteral("CheckBox1")), Qt::LeftButton);
        QTest::mouseClick(form.findChild<QPushButton *>(QStringLiteral("BitBtn2")), Qt::LeftButton);
        QCOMPARE(editor.image().channels[11], factory.channels[1]);
        QCOMPARE(editor.image().valueByte(1), quint8(255));
        QCOMPARE(editor.control(QStringLiteral("EHFUBMIN1")).text, QString());
        QCOMPARE(prompt.told().last(), QStringLiteral("All data transfered !"));
    }

    void theBrowserFiltersAndOpens()
    {
        QTemporaryDir root;
        TDBModule db;
        QVERIFY(db.open(QDir(root.path()).filePath(QStringLiteral("TarvikDB"))));
        RecordingPrompt prompt(UserPrompt::Answer::Yes);
        ValidatorStore store(db, prompt);
        const ConfigImage shop = VirtualValidator::factoryImage(0x13, 1001);
        QCOMPARE(store.store(shop, QStringLiteral("SHOP-12"), QStringLiteral("corner")),
                 ValidatorStore::Outcome::Stored);
        QCOMPARE(store.store(VirtualValidator::factoryImage(0x13, 1002), QStringLiteral("BAR-3"),
                             QStringLiteral("station")),
                 ValidatorStore::Outcome::Stored);

        DefaultEditorServices services;
        EditorModel editor(&prompt, &services);
        editor.loadImage(ConfigImage::blank(), false);
        SavedValidatorsModel model(db, prompt, &editor);
        TFormReadFileData form(model);
        auto *list = form.findChild<QTableView *>(QStringLiteral("GridValidators"))->model();
        QCOMPARE(list->rowCount(), 2);
        QTest::keyClicks(form.findChild<QLineEdit *>(QStringLiteral("EFilter")),
                         QStringLiteral("corn"));
        QCOMPARE(list->rowCount(), 1);
        QCOMPARE(form.findChild<QTableWidget *>(QStringLiteral("GridChannels"))->rowCount(), 60);
        QTest::mouseClick(form.findChild<QPushButton *>(QStringLiteral("BtnOpen")), Qt::LeftButton);
        QCOMPARE(editor.image().channels, shop.channels);
        QVERIFY(editor.flags().configModified);
        // Changes then says where it counts from, the validator not being read.
        QCOMPARE(editor.baselineFrom().kind, BaselineSource::Kind::Record);
        QCOMPARE(editor.baselineFrom().name, QStringLiteral("SHOP-12"));
    }

    void theValueTableFormResetsAndApplies()
    {
        RecordingPrompt prompt;
        ValueBlock editorBlock = VirtualValidator::factoryImage(0x13, 1001).values;
        bool modified = false;
        ValueTableModel model(editorBlock, &modified, false, nullptr, &prompt, nullptr, false);
        TFormValue form(model);
        form.show();
        auto *grid = form.findChild<QTableWidget *>(QStringLiteral("TableauValue"));
        QVERIFY(grid);
        QCOMPARE(grid->rowCount(), 7); // the header row and six rows of ten channels
        QVERIFY(!form.findChild<QWidget *>(QStringLiteral("BitBtn4"))->isVisible());
        QTest::mouseClick(form.findChild<QPushButton *>(QStringLiteral("BitBtn6")), Qt::LeftButton);
        QTest::mouseClick(form.findChild<QPushButton *>(QStringLiteral("BitBtn1")), Qt::LeftButton);
        ValueBlock cleared;
        cleared.fill(255);
        QCOMPARE(editorBlock, cleared);
        QVERIFY(modified);
    }

    // A base or a cell that does not convert stops Apply and Exit there: nothing reaches the
    // editor, the entry stays as typed and the form stays open.
    void theValueTableFormKeepsAnEntryThatDoesNotConvert()
    {
        RecordingPrompt prompt;
        const ValueBlock factory = VirtualValidator::factoryImage(0x13, 1001).values;
        ValueBlock editorBlock = factory;
        bool modified = false;
        ValueTableModel model(editorBlock, &modified, false, nullptr, &prompt, nullptr, false);
        TFormValue form(model);
        form.show();
        auto *base = form.findChild<QLineEdit *>(QStringLiteral("LabeledEdit1"));
        auto *grid = form.findChild<QTableWidget *>(QStringLiteral("TableauValue"));
        auto *exit = form.findChild<QPushButton *>(QStringLiteral("BitBtn1"));
        auto *apply = form.findChild<QPushButton *>(QStringLiteral("BitBtn3"));

        base->setFocus();
        base->selectAll();
        QTest::keyClicks(base, QStringLiteral("0.0x"));
        QTest::mouseClick(exit, Qt::LeftButton);
        QVERIFY(form.isVisible());
        QCOMPARE(editorBlock, factory);
        QCOMPARE(base->text(), QStringLiteral("0.0x"));
        QVERIFY(prompt.told().contains(messageText(Msg::NotValidInteger, {"0.0x"})));

        QTest::keyClick(base, Qt::Key_Backspace);
        QTest::keyClicks(base, QStringLiteral("5"));
        prompt.clear();
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {},
                          grid->visualRect(grid->model()->index(1, 3)).center());
        QTest::keyClicks(grid, QStringLiteral("1.2.3"));
        QTest::mouseClick(apply, Qt::LeftButton);
        QCOMPARE(editorBlock, factory);
        QCOMPARE(grid->item(1, 3)->text().trimmed(), QStringLiteral("1.2.3"));
        QCOMPARE(prompt.told(), QStringList{messageText(Msg::NotValidInteger, {"1.2.3"})});
        QTest::keyClick(grid, Qt::Key_Down); // the grid stays on the cell
        QCOMPARE(grid->currentRow(), 1);

        QTest::keyClick(grid, Qt::Key_Backspace);
        QTest::keyClick(grid, Qt::Key_Backspace); // "1.2"
        QTest::mouseClick(exit, Qt::LeftButton);
        QVERIFY(!form.isVisible());
        QCOMPARE(grid->item(1, 3)->text().trimmed(), QStringLiteral("1.20"));
        QCOMPARE(editorBlock, model.workingCopy());
        QVERIFY(editorBlock != factory);
    }

    // Without scroll bars, the grid shows all its 11 x 7 cells at the size the form opens with.
    void theValueTableGridShowsEveryCell()
    {
        ValueBlock editorBlock = VirtualValidator::factoryImage(0x13, 1001).values;
        bool modified = false;
        ValueTableModel model(editorBlock, &modified, false, nullptr, nullptr, nullptr, false);
        TFormValue form(model);
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        auto *grid = form.findChild<QTableWidget *>(QStringLiteral("TableauValue"));
        QCOMPARE(grid->rowCount(), 7);
        QCOMPARE(grid->columnCount(), 11);
        for (int row = 0; row < grid->rowCount(); ++row) {
            for (int column = 0; column < grid->columnCount(); ++column) {
                const QRect cell = grid->visualRect(grid->model()->index(row, column));
                QVERIFY2(grid->viewport()->rect().contains(cell),
                         qPrintable(QStringLiteral("cell %1,%2").arg(row).arg(column)));
            }
        }
    }

    // The damaged table is said once, when the tables open; the browser then says nothing more,
    // refuses the delete before asking, and "Repair tables" mends the table with the module's
    // tables closed around it.
    void theRepairWindowMendsACutTableSaidOnce()
    {
        QTemporaryDir root;
        const QString dir = QDir(root.path()).filePath(QStringLiteral("TarvikDB"));
        RecordingPrompt prompt(UserPrompt::Answer::Yes);
        TDBModule db;
        QVERIFY(db.open(dir));
        ValidatorStore store(db, prompt);
        QCOMPARE(store.store(VirtualValidator::factoryImage(0x13, 1001), QStringLiteral("SHOP-12"),
                             QStringLiteral("corner")),
                 ValidatorStore::Outcome::Stored);
        const QString channels = db.Channel()->filePath();
        db.close();
        QFile file(channels);
        QVERIFY(file.resize(file.size() - 200)); // the last two rows, one of them in part

        prompt.clear();
        QVERIFY(db.open(dir, &prompt));
        QCOMPARE(prompt.told().size(), 1);
        QVERIFY(prompt.told().first().contains(QStringLiteral("Canaux.dbf")));
        DefaultEditorServices services;
        EditorModel editor(&prompt, &services);
        editor.loadImage(ConfigImage::blank(), false);
        {
            SavedValidatorsModel model(db, prompt, &editor);
            TFormReadFileData browser(model);
            QTest::mouseClick(browser.findChild<QPushButton *>(QStringLiteral("BtnDelete")),
                              Qt::LeftButton);
        }
        QCOMPARE(prompt.told().size(), 2);
        QCOMPARE(prompt.told().last(),
                 messageText(Msg::RecordsDamagedRefused, {QStringLiteral("Canaux.dbf")}));
        QVERIFY(prompt.asked().isEmpty());

        TableRepairModel model(dir, &db);
        TFormRepair form(model);
        auto *report = form.findChild<QListWidget *>(QStringLiteral("ListReport"));
        auto *repair = form.findChild<QPushButton *>(QStringLiteral("BtnRepair"));
        QCOMPARE(report->count(), 5);
        QVERIFY(!report->accessibleName().isEmpty());
        QCOMPARE(report->item(1)->text(),
                 messageText(Msg::RecordsTruncated, {QStringLiteral("Canaux.dbf"), "58", "60"}));
        QVERIFY(repair->isEnabled());
        QTest::mouseClick(repair, Qt::LeftButton);
        QVERIFY(report->item(1)->text().startsWith(
            QStringLiteral("Canaux.dbf repaired: 58 records kept, 2 could not be read")));
        QVERIFY(!repair->isEnabled());
        QCOMPARE(prompt.told().size(), 2);
        QVERIFY(db.Channel()->isOpen() && !db.Channel()->isReadOnly());
        QCOMPARE(db.Channel()->recordCount(), 58);
    }

    // The editor's button opens the form with "Direct write" as the main window left it.
    void theValueTableFormFollowsDirectWrite()
    {
        QTemporaryDir settingsDir;
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settingsDir.path());
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settingsDir.path());
        Settings().setDirectWrite(true);
        RecordingPrompt prompt;
        GuiEditorServices services(prompt, nullptr);
        EditorModel editor(&prompt, &services);
        editor.loadImage(VirtualValidator::factoryImage(0x13, 1001), false);
        bool shown = false;
        QTimer::singleShot(0, this, [&] {
            auto *form = qobject_cast<TFormValue *>(QApplication::activeModalWidget());
            QVERIFY(form);
            shown = !form->findChild<QPushButton *>(QStringLiteral("BitBtn4"))->isHidden();
            form->reject();
        });
        services.editValueTable(editor);
        QVERIFY(shown);
    }
};

QTEST_MAIN(SmallFormsTest)
#include "SmallFormsTest.moc"

// The editor window over the in-process virtual validator: real widgets driven by name.
#include "TFormData.h"
#include "EditorModel.h"
#include "EditorServices.h"
#include "FileDialog.h"
#include "GuiEditorServices.h"
#include "Messages.h"
#include "RadioGroup.h"
#include "RecordingPrompt.h"
#include "SimTransport.h"
#include "VirtualValidator.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// A validator on the bench and the editor opened on it, once its opening read has ended.
struct Editor
{
    explicit Editor(quint8 family = 0x13)
        : device(family), port(&device), link(&port, &prompt), form(prompt, services, &link)
    {
        port.setLatencyMs(0);
        form.model().flags().readOnOpen = true;
        form.show();
        form.activateWindow();
    }
    bool open()
    {
        return QTest::qWaitFor([this] { return form.hasOpened(); });
    }
    template <typename T> T *find(const char *name)
    {
        return form.findChild<T *>(QLatin1String(name));
    }
    // Types into a box as a person does, replacing what it shows, then moves on to another.
    void typeAndLeave(const char *box, const QString &text, const char *next = "EHFUBMAX5")
    {
        QLineEdit *edit = find<QLineEdit>(box);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, text);
        find<QWidget>(next)->setFocus();
    }
    const ChannelRecord &channel(int k) { return form.model().image().channels[std::size_t(k)]; }

    VirtualValidator device;
    SimTransport port;
    RecordingPrompt prompt;
    TMonnayeur link;
    DefaultEditorServices services;
    TFormData form;
};

} // namespace

class TFormDataTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale::c()); }

    void aWindowBoxIsStoredWhenLeft()
    {
        Editor editor;
        QVERIFY(editor.open());
        QVERIFY(QTest::qWaitForWindowActive(&editor.form));
        QLineEdit *box = editor.find<QLineEdit>("EHFUBMIN5");
        QCOMPARE(box->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight);

        // A number keeps its low 8 bits and shows again in its canonical form.
        editor.typeAndLeave("EHFUBMIN5", QStringLiteral("300"));
        QCOMPARE(editor.channel(5)[Rec::HfuLowMin], 44);
        QCOMPARE(box->text(), QStringLiteral(" 44"));
        QVERIFY(editor.prompt.told().isEmpty());

        // Not a number: the one message, and the byte becomes "not set", an empty box.
        editor.typeAndLeave("EHFUBMIN5", QStringLiteral("abc"));
        QCOMPARE(editor.prompt.told(), QStringList{messageText(Msg::ValueBetween0And255)});
        QCOMPARE(editor.channel(5)[Rec::HfuLowMin], 255);
        QCOMPARE(box->text(), QString());
    }

    void anEnableBoxIsStoredWhenLeft()
    {
        Editor editor;
        QVERIFY(editor.open());
        QVERIFY(QTest::qWaitForWindowActive(&editor.form));
        QCheckBox *enable = editor.find<QCheckBox>("Enable5");
        QVERIFY(enable->isChecked());
        QVERIFY(editor.form.model().image().enableBit(5));
        // On the box's indicator, at its left.
        QTest::mouseClick(enable, Qt::LeftButton, {}, QPoint(6, enable->height() / 2));
        QVERIFY(!enable->isChecked());
        QVERIFY(editor.form.model().image().enableBit(5)); // not before the box is left
        editor.find<QWidget>("EHFUBMIN0")->setFocus();
        QVERIFY(!editor.form.model().image().enableBit(5));
        QVERIFY(editor.form.model().image().enableBit(4));
        QVERIFY(!enable->isChecked());
    }

    void thePagesAreThoseOfTheModel()
    {
        Editor full;
        QVERIFY(full.open());
        auto *pages = full.form.findChild<QTabWidget *>();
        // Pages appear as they are read; the first one is in front.
        QCOMPARE(pages->currentIndex(), 0);
        for (int page = 0; page < 6; ++page)
            QVERIFY(pages->isTabVisible(page));
        QCOMPARE(pages->tabText(2), QStringLiteral("Channel 21 to 30"));

        Editor light(0x33);
        QVERIFY(light.open());
        pages = light.form.findChild<QTabWidget *>();
        QCOMPARE(pages->currentIndex(), 0);
        for (int page = 0; page < 6; ++page)
            QCOMPARE(pages->isTabVisible(page), page < 3);
        QCOMPARE(pages->tabText(2), QStringLiteral("Channel 21 to 25"));
        // Channel 25 is shown but not edited; channels 26 to 30 are not shown.
        QVERIFY(!light.find<QWidget>("EHFUBMIN24")->isEnabled());
        QVERIFY(light.find<QWidget>("EHFUBMIN23")->isEnabled());
        QVERIFY(light.find<QWidget>("Canal25")->isHidden());
        QCOMPARE(light.find<QLabel>("LVERSIONH")->text(), QStringLiteral("Light"));
    }

    void everyBoxHasAName()
    {
        Editor editor;
        QVERIFY(editor.open());
        QSet<QWidget *> labelled;
        for (QLabel *label : editor.form.findChildren<QLabel *>())
            labelled.insert(label->buddy());
        QStringList unnamed;
        for (QLineEdit *edit : editor.form.findChildren<QLineEdit *>()) {
            if (edit->accessibleName().isEmpty() && !labelled.contains(edit))
                unnamed.append(edit->objectName());
        }
        for (QCheckBox *check : editor.form.findChildren<QCheckBox *>()) {
            if (check->accessibleName().isEmpty() && check->text().isEmpty() &&
                !labelled.contains(check))
                unnamed.append(check->objectName());
        }
        QCOMPARE(unnamed, QStringList());
        QCOMPARE(editor.find<QLabel>("LSerial")->buddy(), editor.find<QWidget>("ESerial"));
        QCOMPARE(editor.find<QWidget>("EHFUBMIN5")->accessibleName(),
                 QStringLiteral("Channel 6 HFU low min"));
    }

    void closingAfterAnEditAsksFirst()
    {
        Editor editor;
        QVERIFY(editor.open());
        QVERIFY(QTest::qWaitForWindowActive(&editor.form));
        editor.typeAndLeave("Sub3", QStringLiteral("7"));
        QCOMPARE(editor.channel(3)[Rec::Substitute], 7);
        editor.device.clearExchangeLog();

        // Cancel keeps the editor open and the validator untouched.
        QVERIFY(!editor.form.close());
        QCOMPARE(editor.prompt.asked(), QStringList{messageText(Msg::SaveOnValidator)});
        QVERIFY(editor.form.isVisible());
        // Escape is the same as the close button.
        QTest::keyClick(&editor.form, Qt::Key_Escape);
        QCOMPARE(editor.prompt.asked().size(), 2);
        QVERIFY(editor.form.isVisible());

        editor.prompt.setNextAnswers({UserPrompt::Answer::No});
        QVERIFY(editor.form.close());
        QVERIFY(!editor.form.isVisible());
        // Closing stops the serial test (command 29) and writes nothing.
        for (const SimExchange &exchange : editor.device.exchangeLog())
            QCOMPARE(exchange.command, quint8(29));
    }

    void theFileButtonsGoThroughTheFileDialogs()
    {
        QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("v.json"));
        VirtualValidator device;
        SimTransport port(&device);
        RecordingPrompt prompt;
        TMonnayeur link(&port, &prompt);
        GuiEditorServices services(prompt, nullptr);
        TFormData form(prompt, services, &link);
        services.setWindow(&form);
        form.model().flags().readOnOpen = true;
        form.show();
        QVERIFY(QTest::qWaitFor([&] { return form.hasOpened(); }));
        auto *box = form.findChild<QLineEdit *>(QStringLiteral("Sub2"));
        auto *save = form.findChild<QPushButton *>(QStringLiteral("BtnSaveFile"));
        auto *open = form.findChild<QPushButton *>(QStringLiteral("BtnOpenFile"));

        GuiEditorServices::setNextSaveFileName(file);
        form.model().type(QStringLiteral("Sub2"), QStringLiteral("9"));
        QTest::mouseClick(save, Qt::LeftButton); // stores the box first
        QVERIFY(QFileInfo::exists(file));
        form.model().type(QStringLiteral("Sub2"), QStringLiteral("12"));
        form.model().leave(QStringLiteral("Sub2"));
        QCOMPARE(box->text(), QStringLiteral(" 12"));

        // The validator lacks the edit: opening asks first; "Go on" opens.
        FileDialog::setNextFileName(file);
        prompt.setNextChoices({0});
        QTest::mouseClick(open, Qt::LeftButton);
        QCOMPARE(prompt.asked().size(), 1);
        prompt.clear();
        QCOMPARE(box->text(), QStringLiteral("  9"));
        QCOMPARE(form.model().image().channels[2][Rec::Substitute], 9);
        QVERIFY(prompt.told().isEmpty());
        // Without tables, storing says so.
        form.model().type(QStringLiteral("EIdent"), QStringLiteral("SHOP-1"));
        QTest::mouseClick(form.findChild<QPushButton *>(QStringLiteral("SpeedButton4")),
                          Qt::LeftButton);
        QCOMPARE(prompt.told(), QStringList{messageText(Msg::TablesUnavailable)});
        // A file loaded is not on the validator: closing offers to write it.
        prompt.setNextAnswers({UserPrompt::Answer::No});
        QVERIFY(form.close());
        QCOMPARE(prompt.asked(), QStringList{messageText(Msg::SaveOnValidator)});
    }

    void theChangesButtonListsTheEdits()
    {
        VirtualValidator device;
        SimTransport port(&device);
        RecordingPrompt prompt;
        TMonnayeur link(&port, &prompt);
        GuiEditorServices services(prompt, nullptr);
        TFormData form(prompt, services, &link);
        form.model().flags().readOnOpen = true;
        form.show();
        QVERIFY(QTest::qWaitFor([&] { return form.hasOpened(); }));
        const int was = device.memory().channels[4][Rec::HfuLowMin];
        // A window box and a price typed into; the click leaves the price.
        for (auto [box, text] : {std::pair{"EHFUBMIN4", "70"}, std::pair{"Eprix1", "1.20"}}) {
            auto *edit = form.findChild<QLineEdit *>(QLatin1String(box));
            edit->setFocus();
            edit->selectAll();
            QTest::keyClicks(edit, QLatin1String(text));
        }
        QStringList listed;
        QString since;
        QTimer::singleShot(0, &form, [&] {
            QWidget *window = QApplication::activeModalWidget();
            if (!window)
                return;
            if (auto *label = window->findChild<QLabel *>(QStringLiteral("LabelSince")))
                since = label->text();
            auto *list = window->findChild<QListWidget *>(QStringLiteral("ListChanges"));
            for (int row = 0; list && row < list->count(); ++row)
                listed.append(list->item(row)->text());
            QTest::mouseClick(window->findChild<QPushButton *>(QStringLiteral("BtnClose")),
                              Qt::LeftButton);
        });
        QTest::mouseClick(form.findChild<QPushButton *>(QStringLiteral("BtnChanges")),
                          Qt::LeftButton);
        QCOMPARE(listed, (QStringList{QStringLiteral("Channels data"),
                                      QStringLiteral("Channel 5: HFU low min %1 → 70").arg(was),
                                      QStringLiteral("Prices table"),
                                      QStringLiteral("Value P1: (empty) → 1.20")}));
        // Above the list, what it compares with.
        QVERIFY2(since.contains(QRegularExpression(
                     QStringLiteral("^Since read from validator %1 at \\d\\d:\\d\\d$")
                         .arg(device.memory().serialNumber()))),
                 qPrintable(since));
        form.model().flags().configModified = false;
    }

    void writeChangesFromTheToolBarAndTheChangesWindow()
    {
        VirtualValidator device;
        SimTransport port(&device);
        RecordingPrompt prompt;
        TMonnayeur link(&port, &prompt);
        GuiEditorServices services(prompt, nullptr);
        TFormData form(prompt, services, &link);
        form.model().flags().readOnOpen = true;
        form.show();
        QVERIFY(QTest::qWaitFor([&] { return form.hasOpened(); }));
        auto *onBar = form.findChild<QPushButton *>(QStringLiteral("BtnWriteChanges"));
        QVERIFY(onBar && !onBar->isEnabled());
        // Typing is enough: the box is taken in before the write.
        auto *edit = form.findChild<QLineEdit *>(QStringLiteral("EHFUBMIN4"));
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, QStringLiteral("70"));
        QVERIFY(onBar->isEnabled());
        QString caption;
        QTimer::singleShot(0, &form, [&] {
            QWidget *window = QApplication::activeModalWidget();
            auto *write = window
                              ? window->findChild<QPushButton *>(QStringLiteral("BtnWriteChanges"))
                              : nullptr;
            if (!write)
                return;
            caption = write->text();
            QTest::mouseClick(write, Qt::LeftButton);
        });
        device.clearExchangeLog();
        QTest::mouseClick(form.findChild<QPushButton *>(QStringLiteral("BtnChanges")),
                          Qt::LeftButton);
        QCOMPARE(caption, QStringLiteral("Write changes"));
        QCOMPARE(int(device.memory().channels[4][Rec::HfuLowMin]), 70);
        const QList<SimExchange> &log = device.exchangeLog();
        QCOMPARE(std::count_if(log.begin(), log.end(),
                               [](const SimExchange &e) { return e.command == Cmd::WriteChannel; }),
                 1);
        QCOMPARE(prompt.told().constLast(),
                 QStringLiteral("Finished operation!\nVerified: the validator holds the "
                                "configuration."));
        QVERIFY(!onBar->isEnabled());
        QVERIFY(!form.model().flags().configModified);
    }

    void aFailedReadClosesTheEditor()
    {
        Editor editor;
        editor.device.setConnected(false);
        editor.port.setReadTimeout(20);
        QVERIFY(editor.open());
        QTRY_VERIFY(!editor.form.isVisible());
        QVERIFY(editor.prompt.asked().isEmpty()); // the opening read does not ask to connect
    }

    void theSettingsAnswerClicksAndTyping()
    {
        Editor editor;
        QVERIFY(editor.open());
        // A type click loads its default prices into the boxes.
        auto *types = editor.find<RadioGroup>("GroupType");
        QTest::mouseClick(types->item(4), Qt::LeftButton);
        QCOMPARE(editor.form.model().image().options[0], quint8(0xF5));
        QCOMPARE(editor.find<QLineEdit>("EPrix5")->text(), QStringLiteral("     3"));
        QVERIFY(editor.find<QLineEdit>("Eprix4")->isEnabled()); // until price 1 is left empty

        // Back to the validator output: a pulse too long is brought to 630 ms.
        QTest::mouseClick(types->item(0), Qt::LeftButton);
        editor.typeAndLeave("Eprix6", QStringLiteral("700"));
        QCOMPARE(editor.prompt.told().last(),
                 QStringLiteral("Value over 630 ms, it will be adjusted!"));
        QCOMPARE(editor.find<QLineEdit>("Eprix6")->text(), QStringLiteral("   630"));

        // The code table: its box shows the lamps, a lamp click changes the code.
        QTest::mouseClick(editor.find<QCheckBox>("ChkCode"), Qt::LeftButton);
        editor.typeAndLeave("Edit1", QStringLiteral("1"));
        QVERIFY(editor.find<QWidget>("Image19")->isVisible());
        QTest::mouseClick(editor.find<QAbstractButton>("Image38"), Qt::LeftButton);
        QCOMPARE(editor.form.model().image().prices[2], quint8(33));
        QCOMPARE(editor.find<QLineEdit>("Edit1")->text(), QStringLiteral("   33"));
    }

    void theButtonsReachTheModel()
    {
        Editor editor;
        QVERIFY(editor.open());
        // Close runs the close handler: with nothing changed the editor just closes.
        QTest::mouseClick(editor.find<QPushButton>("BitBtn1"), Qt::LeftButton);
        QTRY_VERIFY(!editor.form.isVisible());
        QVERIFY(editor.prompt.asked().isEmpty());
    }
};

QTEST_MAIN(TFormDataTest)
#include "TFormDataTest.moc"

// The coin learning window over the in-process virtual validator, driven by its widgets'
// names: coins inserted on the bench reach the edits, the track bars and the matched channel
// through the form's own timer; a bound typed by hand is corrected when left; OK stores the
// channel. The tolerance grid reads back what is typed into it.
#include "TFormProgCoin.h"
#include "ConfigImage.h"
#include "FormBinder.h"
#include "GuiEditorServices.h"
#include "ProfilCModel.h"
#include "ProfileStore.h"
#include "ProgCoinModel.h"
#include "RecordingPrompt.h"
#include "SelectionSlider.h"
#include "SimTransport.h"
#include "TDBModule.h"
#include "TFormProfilC.h"
#include "TTarvikTolerance.h"
#include "ToleranceModel.h"
#include "VirtualValidator.h"
#include "WindowsChartView.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

class TFormProgCoinTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QLocale::setDefault(QLocale::c());
        // The learning windows read the settings: a directory of the test's own.
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
    }

    void coinsFillTheWindowsAndOkStoresTheChannel()
    {
        VirtualValidator device(0x13, 1001);
        SimTransport port(&device);
        port.setLatencyMs(0);
        RecordingPrompt prompt(UserPrompt::Answer::No);
        TMonnayeur link(&port, &prompt);
        ConfigImage image = device.memory();
        LearningSession session;
        ProgCoinModel model(session, image, &link, &prompt, nullptr, {});
        model.FormActivate();
        TFormProgCoin form(model);
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        QCOMPARE(form.windowTitle(), QStringLiteral("Coin learning"));
        QCOMPARE(form.findChild<QPushButton *>("BtnLoad")->text(), QStringLiteral("&Clear"));
        QVERIFY(form.findChild<QPushButton *>("BtnAnalyse")->isHidden());

        form.findChild<QSpinBox *>("SpinEdit1")->setValue(10);
        QCOMPARE(model.control(QStringLiteral("SpinEdit1")).text, QStringLiteral("10"));
        for (int i = 0; i < 10; ++i)
            device.insertCoin(CoinKind::Euro050);
        auto *coins = form.findChild<QLabel *>("LabelCoins");
        QVERIFY(QTest::qWaitFor([&] { return coins->text() == QLatin1String("10"); }, 20000));
        QVERIFY(prompt.all().isEmpty());
        // The chart under the windows carries the ten coins as ticks.
        auto *chart = form.findChild<WindowsChartView *>(QStringLiteral("WindowsChart"));
        QVERIFY(chart && chart->isVisible());
        QCOMPARE(chart->model().sampleCount(), 10);
        QCOMPARE(chart->model().bands()[0].ticks.size(), 10);

        // Every window shows the smallest and largest reading, its track bar the same range.
        for (int w = 0; w < kWindows; ++w) {
            const Window &window = session.windows()[std::size_t(w)];
            const WindowPlace &place = kWindowPlaces[w];
            QCOMPARE(form.findChild<QLineEdit *>(place.minEdit)->text(),
                     QString::number(window.min));
            QCOMPARE(form.findChild<QLineEdit *>(place.maxEdit)->text(),
                     QString::number(window.max));
            auto *bar = form.findChild<SelectionSlider *>(place.trackBar);
            QVERIFY(bar);
            QCOMPARE(bar->selectionStart(), int(window.min));
            QCOMPARE(bar->selectionEnd(), int(window.max));
            QCOMPARE(bar->value(), int(session.measures()[std::size_t(w)]));
        }
        auto *matched = form.findChild<QLabel *>("LabelMatched");
        QVERIFY(matched->isVisible());
        QCOMPARE(matched->text(), QStringLiteral("Matched: Channel 4 (0.50)"));

        // A minimum typed above its maximum is brought down to it when the box is left.
        QLineEdit *min = form.findChild<QLineEdit *>("HFLMINL");
        const QString max = form.findChild<QLineEdit *>("HFLMINH")->text();
        min->setFocus();
        min->selectAll();
        QTest::keyClicks(min, QString::number(max.toInt() + 1));
        form.findChild<QLineEdit *>("HFLMINH")->setFocus();
        QCOMPARE(prompt.told(), QStringList{"Value over the maximum, it will be correct"});
        QCOMPARE(min->text(), max);

        QTest::mouseClick(form.findChild<QPushButton *>("BtnOK"), Qt::LeftButton);
        QCOMPARE(prompt.asked(), QStringList{"Calibrate another channel ?"});
        QCOMPARE(form.result(), int(QDialog::Accepted));
        QVERIFY(!form.isVisible());
        QCOMPARE(int(image.channels[9][Rec::HflLowMin]), qMax(0, max.toInt() - 8));
        QVERIFY(image.enableBit(9));
    }

    void theToleranceGridReadsBackWhatIsTyped()
    {
        RecordingPrompt prompt;
        ToleranceModel model(&prompt);
        Tolerances tolerances;
        model.load(tolerances);
        TTarvikTolerance dialog(model);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        auto *grid = dialog.findChild<QTableWidget *>("ValueListEditor1");
        QCOMPARE(grid->item(0, 0)->text(), QStringLiteral("HFU low min."));
        QCOMPARE(grid->item(0, 1)->text(), QStringLiteral("      4"));
        grid->item(6, 1)->setText(QStringLiteral(" 9"));
        grid->setCurrentCell(6, 1);
        grid->setCurrentCell(7, 1); // leaving the row normalises it
        QCOMPARE(grid->item(6, 1)->text(), QStringLiteral("      9"));
        QTest::mouseClick(dialog.findChild<QPushButton *>("BtnOK"), Qt::LeftButton);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QVERIFY(model.readBack(tolerances));
        QCOMPARE(int(tolerances.values[6]), 9);
    }

    // The profile list's navigator moves the selection and deletes the selected profile from
    // the table after asking; Exit hands the selected profile over once opened.
    void theProfileNavigatorMovesAndDeletes()
    {
        QTemporaryDir dir;
        TDBModule db;
        QVERIFY(db.open(dir.path()));
        RecordingPrompt prompt(UserPrompt::Answer::Ok);
        ProfileStore store(db, prompt);
        for (const char *name : {"Alpha", "Beta", "Gamma"}) {
            ProfileRecord p;
            p.name = QLatin1String(name);
            QCOMPARE(store.save(p), ProfileStore::Outcome::Saved);
        }
        ProfilCModel model(store, &prompt, 1, ConfigImage::blank());
        TFormProfilC form(model);
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        auto *list = form.findChild<QTableWidget *>(QStringLiteral("GridProfiles"));
        auto press = [&](const char *name) {
            auto *button = form.findChild<QToolButton *>(QLatin1String(name));
            QVERIFY2(button && !button->accessibleName().isEmpty(), name);
            QTest::mouseClick(button, Qt::LeftButton);
        };
        press("DBNavigator1Last");
        QCOMPARE(list->currentRow(), 2);
        press("DBNavigator1Prior");
        QCOMPARE(list->currentRow(), 1);
        prompt.setNextAnswers({UserPrompt::Answer::Cancel});
        press("DBNavigator1Delete");
        QCOMPARE(list->rowCount(), 3);
        press("DBNavigator1Delete");
        QCOMPARE(prompt.asked().size(), 2);
        QCOMPARE(list->rowCount(), 2);
        QCOMPARE(list->item(list->currentRow(), 0)->text(), QStringLiteral("Gamma"));
        QCOMPARE(store.list().size(), 2);
        QVERIFY(!store.load(QStringLiteral("Beta")));
        press("DBNavigator1First");
        QTest::mouseClick(form.findChild<QPushButton *>(QStringLiteral("BtnOpen")), Qt::LeftButton);
        QTest::mouseClick(form.findChild<QPushButton *>(QStringLiteral("BtnExit")), Qt::LeftButton);
        QVERIFY(model.result());
        QCOMPARE(model.result()->name, QStringLiteral("Alpha"));
    }

    void theEditorsButtonsOpenTheLearningWindows()
    {
        VirtualValidator device(0x13, 1001);
        SimTransport port(&device);
        port.setLatencyMs(0);
        RecordingPrompt prompt(UserPrompt::Answer::No);
        TMonnayeur link(&port, &prompt);
        ConfigImage image = device.memory();
        GuiEditorServices services(prompt, nullptr);
        QVERIFY(services.learningAvailable());

        services.checkOverlap(image);
        QCOMPARE(prompt.told(), QStringList{"No overlapping !"});

        // Coin learning opens the learning window; a coin before a channel is chosen is
        // ignored with a word in the status line, the next one counts; Cancel changes nothing.
        bool seen = false;
        QTimer::singleShot(0, this, [&] {
            auto *form = qobject_cast<TFormProgCoin *>(QApplication::activeModalWidget());
            QVERIFY(form);
            QCOMPARE(form->windowTitle(), QStringLiteral("Coin learning"));
            auto *status = form->findChild<QLabel *>("LabelStatus");
            device.insertCoin(CoinKind::Euro200);
            QVERIFY(QTest::qWaitFor(
                [&] {
                    return status->text() == QLatin1String("Coin ignored: choose a channel first");
                },
                20000));
            form->findChild<QSpinBox *>("SpinEdit1")->setValue(20);
            QVERIFY(status->text().isEmpty());
            device.insertCoin(CoinKind::Euro200);
            auto *coins = form->findChild<QLabel *>("LabelCoins");
            QVERIFY(QTest::qWaitFor([&] { return coins->text() == QLatin1String("1"); }, 20000));
            QVERIFY(!form->findChild<QLineEdit *>("HFUMINL")->accessibleName().isEmpty());
            QVERIFY(!form->findChild<QLabel *>("ReadingHFUL")->toolTip().isEmpty());
            seen = true;
            QTest::mouseClick(form->findChild<QPushButton *>("BtnCancel"), Qt::LeftButton);
        });
        const ConfigImage before = image;
        QVERIFY(!services.learnCoins(link, image));
        QVERIFY(seen);
        QCOMPARE(prompt.told(), QStringList{"No overlapping !"}); // no box for the ignored coin
        QVERIFY(image == before);

        // The next learning starts on the channel left, kept in the settings.
        int start = -1;
        QTimer::singleShot(0, this, [&] {
            auto *form = qobject_cast<TFormProgCoin *>(QApplication::activeModalWidget());
            QVERIFY(form);
            start = form->findChild<QSpinBox *>("SpinEdit1")->value();
            QTest::mouseClick(form->findChild<QPushButton *>("BtnCancel"), Qt::LeftButton);
        });
        services.learnCoins(link, image);
        QCOMPARE(start, 20);
    }

private:
    QTemporaryDir m_settings;
};

QTEST_MAIN(TFormProgCoinTest)
#include "TFormProgCoinTest.moc"

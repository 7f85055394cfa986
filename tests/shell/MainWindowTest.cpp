#include "DataDirectory.h"
#include "EditorModel.h"
#include "EditorServices.h"
#include "Languages.h"
#include "MessageBoxPrompt.h"
#include "Messages.h"
#include "RecordingPrompt.h"
#include "Settings.h"
#include "ShellTestSupport.h"
#include "SimulatorPanel.h"
#include "TCommunication.h"
#include "TFormData.h"
#include "TFormMain.h"
#include "TTarvikFormInit.h"
#include "ValidatorLink.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QInputDialog>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTimer>
#include <QtTest>

// One start of the program: its settings, languages, sounds and the window, over a link source.
struct Start
{
    Settings settings;
    LanguageSwitcher languages;
    RecordingSounds sounds;
    RecordingPrompt prompt;
    int editorsShown = 0;
    int repairsShown = 0;
    QString lastFamily;
    std::weak_ptr<void> dataModule;
    QString dataDirectory; // where the data module would open the tables
    std::unique_ptr<TFormMain> window;

    Start(LinkSource &source, const QString &translations = {}) : languages(translations)
    {
        ShellContext context;
        context.settings = &settings;
        context.languages = &languages;
        context.sounds = &sounds;
        context.prompt = &prompt;
        context.linkSource = &source;
        context.createDataModule = [this] {
            dataDirectory = DataDirectory::resolve();
            auto module = std::make_shared<int>(1);
            dataModule = module;
            return std::shared_ptr<void>(module);
        };
        // The editor reads the validator and is closed again.
        context.showEditor = [this](ValidatorLink &link, QWidget *main) {
            ++editorsShown;
            DefaultEditorServices services;
            TFormData editor(prompt, services, link.monnayeur(), main);
            editor.model().flags().readOnOpen = true;
            editor.model().FormActivate();
            lastFamily = editor.findChild<QLabel *>(QStringLiteral("LVERSIONH"))->text();
        };
        context.repairTables = [this](QWidget *main) {
            QCOMPARE(main, window.get());
            ++repairsShown;
        };
        window = std::make_unique<TFormMain>(context);
    }
    QAction *action(const char *name) { return window->findChild<QAction *>(QLatin1String(name)); }
    QPushButton *button(const char *name)
    {
        return window->findChild<QPushButton *>(QLatin1String(name));
    }
};

// Answers the next modal dialog of the given class once it shows.
template <typename F> void whenModal(const char *objectName, F answer)
{
    auto *timer = new QTimer;
    timer->setInterval(10);
    QObject::connect(timer, &QTimer::timeout, [timer, objectName, answer] {
        QWidget *modal = QApplication::activeModalWidget();
        if (modal && modal->objectName() == QLatin1String(objectName)) {
            timer->stop();
            timer->deleteLater();
            answer(modal);
        }
    });
    timer->start();
}

class MainWindowTest : public QObject
{
    Q_OBJECT
    std::unique_ptr<TempSettings> m_temp;
    RecordingPrompt m_boxes;

private Q_SLOTS:
    void init()
    {
        m_temp = std::make_unique<TempSettings>();
        QLocale::setDefault(QLocale::c());
        m_boxes.clear();
        MessageBoxPrompt::divertTo(&m_boxes);
    }
    void cleanup() { MessageBoxPrompt::divertTo(nullptr); }

    void startsOnTheVirtualValidator()
    {
        VirtualValidator device(0x33, 4711);
        SimulatedLinkSource source(&device);
        Start start(source);
        QVERIFY(start.window->FormCreate());
        QCOMPARE(start.window->windowTitle(), QStringLiteral("Tarvik (Com1)"));
        QVERIFY(start.window->isVisible());
        QVERIFY(start.window->editorActive());
        QCOMPARE(start.editorsShown, 1);
        QCOMPARE(start.lastFamily, QStringLiteral("Light"));
        QVERIFY(start.window->findChild<QLabel *>(QStringLiteral("LVersion"))
                    ->text()
                    .endsWith(QStringLiteral(TARVIK_VERSION)));
        QVERIFY(start.sounds.played.isEmpty()); // sound is off by default
    }

    void repairTablesOpensFromTheParametersMenu()
    {
        VirtualValidator device(0x13, 4711);
        SimulatedLinkSource source(&device);
        Start start(source);
        QVERIFY(start.window->FormCreate());
        QAction *repair = start.action("Repairtables1");
        QVERIFY(repair && repair->isEnabled());
        QCOMPARE(repair->text(), QStringLiteral("Repair tables..."));
        repair->trigger();
        QCOMPARE(start.repairsShown, 1);
    }

    void captionNamesTheProbedPort()
    {
        BenchPorts ports(4, 3);
        ProbingLinkSource source(&ports, {}, nullptr, nullptr);
        Start start(source);
        QVERIFY(start.window->FormCreate());
        QCOMPARE(start.window->windowTitle(), QStringLiteral("Tarvik (Com3)"));
        QCOMPARE(start.lastFamily, QStringLiteral("5.3"));
    }

    void portDialogGivesThePositionOfTheItem()
    {
        BenchPorts ports(3, 0);
        ports.device.setConnected(false);
        TCommunication dialog(&m_boxes);
        ProbingLinkSource source(&ports, {}, &dialog, &m_boxes);
        Start start(source);
        whenModal("TCommunication", [&](QWidget *modal) {
            auto *group = modal->findChild<QWidget *>(QStringLiteral("ComGroup"));
            QCOMPARE(group->findChildren<QRadioButton *>().size(), 3);
            modal->findChild<QRadioButton *>(QStringLiteral("ComGroup_1"))->click();
            QTest::mouseClick(modal->findChild<QPushButton *>(QStringLiteral("OkBtn")),
                              Qt::LeftButton);
        });
        QVERIFY(start.window->FormCreate());
        QCOMPARE(start.window->link().comPortNumber(), 2);
    }

    void portDialogWantsASelectionAndExitEnds()
    {
        BenchPorts ports(0, 0);
        TCommunication dialog(&m_boxes);
        ProbingLinkSource source(&ports, {}, &dialog, &m_boxes);
        Start start(source);
        whenModal("TCommunication", [&](QWidget *modal) {
            QTest::mouseClick(modal->findChild<QPushButton *>(QStringLiteral("OkBtn")),
                              Qt::LeftButton);
            QVERIFY(modal->isVisible());
            QTest::mouseClick(modal->findChild<QPushButton *>(QStringLiteral("CancelBtn")),
                              Qt::LeftButton);
        });
        QVERIFY(!start.window->FormCreate());
        QCOMPARE(m_boxes.told(), QStringList{messageText(Msg::SelectPort)});
        QCOMPARE(start.editorsShown, 0);
    }

    void aPortThatCannotBeOpenedEndsTheProgram()
    {
        BenchPorts ports(2, 0);
        ports.openable = false;
        ProbingLinkSource source(&ports, {QStringLiteral("COM7")}, nullptr, &m_boxes);
        Start start(source);
        QVERIFY(!start.window->FormCreate());
        QCOMPARE(m_boxes.told(), QStringList{QStringLiteral(
                                     "Comunication Port COM7 isn't free or Setting error.")});
    }

    void backReconnectsAndExitCloses()
    {
        BenchPorts ports(4, 3);
        ProbingLinkSource source(&ports, {}, nullptr, nullptr);
        Start start(source);
        QVERIFY(start.window->FormCreate());
        QSignalSpy closed(start.window.get(), &TFormMain::formClosed);

        QTest::mouseClick(start.button("BitBtn2"), Qt::LeftButton);
        QCOMPARE(start.editorsShown, 2);
        QVERIFY(start.window->link().isOpen());
        QCOMPARE(closed.count(), 0);

        QTest::mouseClick(start.button("BitBtn1"), Qt::LeftButton);
        QVERIFY(start.dataModule.expired());
        QVERIFY(!start.window->link().isOpen());
        QVERIFY(!start.window->isVisible());
        QCOMPARE(closed.count(), 1);
    }

    void backEndsTheProgramWhenNoPortOpens()
    {
        BenchPorts ports(4, 3);
        ProbingLinkSource source(&ports, {}, nullptr, nullptr);
        Start start(source);
        QVERIFY(start.window->FormCreate());
        QSignalSpy closed(start.window.get(), &TFormMain::formClosed);
        ports.openable = false;
        QTest::mouseClick(start.button("BitBtn2"), Qt::LeftButton);
        QCOMPARE(closed.count(), 1);
        QCOMPARE(start.editorsShown, 1);
    }

    void switchesAreStoredAndReadAtTheNextStart()
    {
        VirtualValidator device;
        SimulatedLinkSource source(&device);
        {
            Start first(source);
            QVERIFY(first.window->FormCreate());
            for (const char *name : {"Son1", "Ajustementauto1", "Ecrituredirecte1"}) {
                QVERIFY(!first.action(name)->isChecked());
                first.action(name)->trigger();
            }
            // Verifying after a write and backing up before a clone are on until switched off.
            for (const char *name : {"Verifyafterwrite1", "Backupbeforecloning1"}) {
                QVERIFY(first.action(name)->isChecked());
                first.action(name)->trigger();
            }
            QVERIFY(!first.settings.verifyAfterWrite());
            QVERIFY(!first.settings.backupBeforeCloning());
        }
        {
            Start second(source);
            QVERIFY(second.window->FormCreate());
            QVERIFY(second.settings.soundOn() && second.settings.autoAdjust() &&
                    second.settings.directWrite());
            for (const char *name : {"Son1", "Ajustementauto1", "Ecrituredirecte1"})
                QVERIFY(second.action(name)->isChecked());
            QVERIFY(!second.action("Verifyafterwrite1")->isChecked());
            QVERIFY(!second.action("Backupbeforecloning1")->isChecked());
            QCOMPARE(second.sounds.played, QList<Sound>{Sound::Chimes});
            second.action("Son1")->trigger();
        }
        Start third(source);
        QVERIFY(third.window->FormCreate());
        QVERIFY(third.sounds.played.isEmpty());
        // The port time-out reaches the open port at once and is kept.
        QCOMPARE(third.window->link().transport()->readTimeout(), 100);
        whenModal("PortTimeoutDialog", [](QWidget *modal) {
            auto *dialog = qobject_cast<QInputDialog *>(modal);
            QCOMPARE(dialog->intMinimum(), 20);
            QCOMPARE(dialog->intMaximum(), 5000);
            dialog->setIntValue(650);
            dialog->accept();
        });
        third.action("Porttimeout1")->trigger();
        QCOMPARE(third.window->link().transport()->readTimeout(), 650);
        Start fourth(source);
        QVERIFY(fourth.window->FormCreate());
        QCOMPARE(fourth.settings.portTimeoutMs(), 650);
        QCOMPARE(fourth.window->link().transport()->readTimeout(), 650);
    }

    void languageSwitchChangesEveryOpenWindow()
    {
        VirtualValidator device;
        SimulatedLinkSource source(&device);
        Start start(source);
        QVERIFY(start.window->FormCreate());
        ConfigImage image = ConfigImage::blank();
        bool cancelled = false;
        auto *init = new TTarvikFormInit(image, cancelled);
        init->show();
        QPushButton *back = start.button("BitBtn2");
        auto *ok = init->findChild<QPushButton *>(QStringLiteral("BitBtn1"));
        QCOMPARE(back->text(), QStringLiteral("&Back"));

        start.action("Fran1")->trigger();
        QTRY_COMPARE(back->text(), QStringLiteral("&Retour"));
        QTRY_COMPARE(init->windowTitle(), QStringLiteral("Paramétrage du monnayeur"));
        QCOMPARE(messageText(Msg::SelectPort), QStringLiteral("Sélectionnez un port !!!"));
        QCOMPARE(start.settings.language(), QStringLiteral("FR"));
        QVERIFY(start.action("Fran1")->font().bold());
        QCOMPARE(start.action("Verifyafterwrite1")->text(),
                 QStringLiteral("&Vérifier après écriture"));

        start.action("English1")->trigger();
        QTRY_COMPARE(back->text(), QStringLiteral("&Back"));
        QTRY_COMPARE(ok->text(), QStringLiteral("&OK"));
        // English shows the program's own texts.
        QCOMPARE(init->windowTitle(), QStringLiteral("Validator setting"));
        QCOMPARE(messageText(Msg::ReadingErrorFromValidator),
                 QStringLiteral("Reading Error fron validator"));

        // Local comes back only with the next start; the texts stay as they are.
        start.action("Deutsch1")->trigger();
        QTRY_COMPARE(back->text(), QStringLiteral("&Zurück"));
        start.action("Locale1")->trigger();
        QCOMPARE(start.prompt.told(), QStringList{messageText(Msg::NextStart)});
        QCOMPARE(start.settings.language(), QString());
        QCoreApplication::processEvents();
        QCOMPARE(back->text(), QStringLiteral("&Zurück"));
        init->close();
    }

    void aMissingTranslationChangesNothing()
    {
        VirtualValidator device;
        SimulatedLinkSource source(&device);
        QTemporaryDir empty;
        Start start(source, empty.path());
        QVERIFY(start.window->FormCreate());
        start.action("Italiano1")->trigger();
        QCoreApplication::processEvents();
        QCOMPARE(start.button("BitBtn2")->text(), QStringLiteral("&Back"));
        QCOMPARE(start.settings.language(), QStringLiteral("IT"));
        QVERIFY(start.prompt.told().isEmpty());
    }

    void theStoredLanguageAppliesAtStart()
    {
        VirtualValidator device;
        SimulatedLinkSource source(&device);
        {
            Settings settings;
            settings.load();
            settings.setLanguage(QStringLiteral("IT"));
        }
        Start start(source);
        QVERIFY(start.window->FormCreate());
        QCOMPARE(start.button("BitBtn1")->text(), QStringLiteral("&Esci"));
        QVERIFY(start.action("Italiano1")->font().bold());
    }

    void unreadableSettingsAreReportedAndKept()
    {
        QDir().mkpath(m_temp->dir.filePath(QStringLiteral("Brunfeld")));
        QFile file(m_temp->file());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[DefaultSettings]\nSound=maybe\n");
        file.close();
        VirtualValidator device;
        SimulatedLinkSource source(&device);
        Start start(source);
        QVERIFY(start.window->FormCreate());
        QCOMPARE(start.prompt.told(), QStringList{messageText(Msg::SettingsUnreadable)});
        QVERIFY(!start.action("Son1")->isChecked());
    }

    void aSettingsFileThatCannotBeReadIsKeptAsideAndNamesNoTables()
    {
        QDir().mkpath(m_temp->dir.filePath(QStringLiteral("Brunfeld")));
        const QByteArray broken("[DefaultSettings\nDataDirectory=/elsewhere\nSound=true\n");
        QFile file(m_temp->file());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(broken);
        file.close();
        qunsetenv(DataDirectory::kEnvironmentVariable);
        VirtualValidator device;
        SimulatedLinkSource source(&device);
        Start start(source);
        QVERIFY(start.window->FormCreate());
        QCOMPARE(start.dataDirectory, DataDirectory::defaultPath());
        const QString kept = start.settings.keptAs();
        QVERIFY(kept.startsWith(m_temp->file() + QStringLiteral(".unreadable-")));
        QCOMPARE(start.prompt.told(),
                 QStringList{messageText(Msg::SettingsFileKeptAside,
                                         {m_temp->file(), kept, DataDirectory::defaultPath()})});
        QFile aside(kept);
        QVERIFY(aside.open(QIODevice::ReadOnly));
        QCOMPARE(aside.readAll(), broken);
        QSettings raw(QStringLiteral("Brunfeld"), QStringLiteral("Tarvik"));
        QCOMPARE(raw.status(), QSettings::NoError);
        QVERIFY(raw.contains(QStringLiteral("DefaultSettings/Sound")));
        QVERIFY(raw.value(QStringLiteral("DefaultSettings/DataDirectory")).toString().isEmpty());
    }

    void thePanelDrivesTheValidatorWhileTheEditorIsOpen()
    {
        VirtualValidator device;
        LineProfile line = LineProfile::instant();
        SimulatorPanel panel(&device, &line);
        panel.show();
        QWidget main;
        main.show();
        SimulatedLinkSource source(&device, &line);
        ValidatorLink link(&m_boxes);
        QVERIFY(link.open(source));
        int queued = -1;
        QString family;
        whenModal("TFormData", [&](QWidget *editor) {
            QTRY_VERIFY(static_cast<TFormData *>(editor)->hasOpened());
            // Modal over the main window only: the bench panel stays usable.
            QCOMPARE(editor->windowModality(), Qt::WindowModal);
            family = editor->findChild<QLabel *>(QStringLiteral("LVERSIONH"))->text();
            panel.findChild<QComboBox *>(QStringLiteral("CoinBox"))->setCurrentIndex(2);
            QTest::mouseClick(panel.findChild<QPushButton *>(QStringLiteral("InsertBtn")),
                              Qt::LeftButton);
            queued = device.queuedCoins();
            QTest::mouseClick(editor->findChild<QPushButton *>(QStringLiteral("BitBtn1")),
                              Qt::LeftButton);
        });
        TFormData::showModal(link, &main, m_boxes);
        QCOMPARE(family, QStringLiteral("5.3"));
        QCOMPARE(queued, 1);

        panel.findChild<QCheckBox *>(QStringLiteral("DoorBox"))->click();
        QVERIFY(device.doorOpen());
        panel.findChild<QCheckBox *>(QStringLiteral("CableBox"))->click();
        QVERIFY(!device.connected());
        panel.findChild<QComboBox *>(QStringLiteral("FamilyBox"))->setCurrentIndex(3);
        panel.findChild<QPushButton *>(QStringLiteral("FitBtn"))->click();
        QCOMPARE(device.memory().familyByte(), 0x33);

        // The Line group roughens the open link from its next exchange on.
        panel.findChild<QCheckBox *>(QStringLiteral("CableBox"))->click();
        panel.findChild<QCheckBox *>(QStringLiteral("LinePaceBox"))->click();
        panel.findChild<QSpinBox *>(QStringLiteral("LineTurnaroundMax"))->setValue(40);
        panel.findChild<QSpinBox *>(QStringLiteral("LineBurstBox"))->setValue(16);
        panel.findChild<QSpinBox *>(QStringLiteral("LineSeedBox"))->setValue(7);
        QVERIFY(line.pacing);
        QCOMPARE(line.turnaroundMaxMs, 40);
        QCOMPARE(line.burstMs, 16);
        QCOMPARE(line.seed, 7u);
        QVERIFY(link.monnayeur()->CheckPresence(true));
        QCOMPARE(static_cast<SimTransport *>(link.transport())->timing().profile(), line);
    }
};

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"

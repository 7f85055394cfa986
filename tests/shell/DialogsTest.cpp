#include "EffectSoundPlayer.h"
#include "FileDialog.h"
#include "MessageBoxPrompt.h"
#include "Messages.h"
#include "RecordingPrompt.h"
#include "ResourceFiles.h"
#include "ShellTestSupport.h"
#include "TCloningChk.h"
#include "TConnectForm.h"
#include "TFormAvertissementDif.h"
#include "TFormCondotto.h"
#include "TMajFirmware.h"
#include "TTarvikFormInit.h"
#include "ValidatorInit.h"

#include <QApplication>
#include <QCheckBox>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryFile>
#include <QTimer>
#include <QtTest>

template <typename T> T *child(QWidget *form, const char *name)
{
    T *found = form->findChild<T *>(QLatin1String(name));
    if (!found)
        qFatal("no control %s", name);
    return found;
}

// Check boxes and radio items take clicks on their indicator.
void click(QWidget *form, const char *name)
{
    auto *button = child<QAbstractButton>(form, name);
    const bool indicator =
        qobject_cast<QCheckBox *>(button) || qobject_cast<QRadioButton *>(button);
    QTest::mouseClick(button, Qt::LeftButton, {},
                      indicator ? QPoint(6, button->height() / 2) : button->rect().center());
}

class DialogsTest : public QObject
{
    Q_OBJECT
    RecordingPrompt m_boxes;

private Q_SLOTS:
    void init()
    {
        QLocale::setDefault(QLocale::c());
        m_boxes.clear();
        MessageBoxPrompt::divertTo(&m_boxes);
    }
    void cleanup() { MessageBoxPrompt::divertTo(nullptr); }

    // A sound plays to its end before play() returns; without a device nothing plays.
    void soundsPlayToTheirEnd()
    {
        struct Voice final : SoundVoice
        {
            QStringList *events = nullptr;
            bool done = false;
            void start() override
            {
                events->append(QStringLiteral("start"));
                done = false;
                QTimer::singleShot(150, [this] {
                    done = true;
                    events->append(QStringLiteral("end"));
                });
            }
            bool ended() const override { return done; }
        };
        QStringList events;
        QStringList files;
        EffectSoundPlayer player(nullptr, [&](const QString &file) {
            files.append(QFileInfo(file).fileName());
            auto voice = std::make_unique<Voice>();
            voice->events = &events;
            return voice;
        });
        player.play(Sound::Chimes);
        events.append(QStringLiteral("shown"));
        player.play(Sound::Coin);
        events.append(QStringLiteral("tick goes on"));
        QCOMPARE(events, (QStringList{"start", "end", "shown", "start", "end", "tick goes on"}));
        QCOMPARE(files, (QStringList{"Chimes.Wav", "Coin.Wav"}));

        EffectSoundPlayer silent(nullptr, [](const QString &) { return nullptr; });
        silent.play(Sound::Chimes); // returns: nothing to wait for

        // The wait is bounded by the sound's own length.
        const auto chime = EffectSoundPlayer::wavLength(ResourceFiles::path("Chimes.Wav"));
        QVERIFY(chime && chime->count() > 1000 && chime->count() < 3000);
    }

    void initFormWritesTheImage()
    {
        ConfigImage image = ConfigImage::blank();
        image.options = {0x00, 0x20};
        image.counters.fill(0x11);
        bool cancelled = false;
        QPointer<TTarvikFormInit> form = new TTarvikFormInit(image, cancelled);
        form->show();
        QCOMPARE(form->windowTitle(), QStringLiteral("Validator setting"));
        QVERIFY(child<QCheckBox>(form, "RazEn")->isChecked());
        QCOMPARE(child<QCheckBox>(form, "RazEn")->text(), QStringLiteral("Resetable counter :"));
        QVERIFY(!child<QRadioButton>(form, "GroupSortieInit_0")->isChecked());

        auto *edit = child<QLineEdit>(form, "Edit1");
        QVERIFY(edit->text().isEmpty()); // a blank image has no serial number
        // Leaving the edit stores the number (Return would press the default button, OK).
        QApplication::setActiveWindow(form);
        auto typeSerial = [&](const QString &text) {
            edit->setFocus();
            edit->clear();
            QTest::keyClicks(edit, text);
            QTest::keyClick(edit, Qt::Key_Tab);
        };
        typeSerial(QStringLiteral("305419896"));
        QCOMPARE(image.serialNumber(), 0x12345678u);
        QCOMPARE(edit->text(), QStringLiteral("305419896"));
        typeSerial(QStringLiteral("4294967295"));
        QCOMPARE(image.serialNumber(), 0xFFFFFFFFu);
        QVERIFY(edit->text().isEmpty());
        typeSerial(QStringLiteral("x9"));
        QCOMPARE(image.serialNumber(), 0u);
        QVERIFY(edit->text().isEmpty());

        click(form, "RazEn");
        QCOMPARE(image.options[1], 0x00);
        click(form, "GroupSortieInit_2");
        QCOMPARE(image.options[1], 0x10);
        click(form, "GroupSortieInit_3");
        QCOMPARE(image.options[1], 0x18);

        // OK takes a serial still being typed, then completes the blocks.
        QTest::keyClicks(edit, QStringLiteral("77"));
        click(form, "BitBtn1");
        QCOMPARE(image.serialNumber(), 77u);
        QCOMPARE(image.options[0], 0xFF);
        QCOMPARE(image.options[1], 0x18 | 0x87);
        QCOMPARE(ValidatorInit::initialisationDate(image), EncodeDate16(QDate::currentDate()));
        QCOMPARE(image.counters, CounterBlock{});
        QVERIFY(!cancelled);
        QTRY_VERIFY(form.isNull()); // the window frees itself
    }

    void initFormCancel()
    {
        ConfigImage image = ConfigImage::blank();
        image.setSerialNumber(1234);
        const ConfigImage before = image;
        bool cancelled = false;
        auto *form = new TTarvikFormInit(image, cancelled);
        form->show();
        QCOMPARE(child<QLineEdit>(form, "Edit1")->text(), QStringLiteral("1234"));
        click(form, "BitBtn2");
        QVERIFY(cancelled);
        QVERIFY(image == before);
    }

    void cloningChoices()
    {
        CloneGroups groups{false, false, false, false, false};
        auto *form = new TCloningChk(groups);
        form->show();
        QCOMPARE(form->windowTitle(), QStringLiteral("Cloning"));
        for (const char *name :
             {"CheckData", "CheckValue", "CheckPrice", "CheckConfig", "CheckEnable"})
            QVERIFY(child<QCheckBox>(form, name)->isChecked());
        click(form, "CheckPrice");
        click(form, "BitBtn1");
        QVERIFY(groups.channels && groups.values && !groups.prices && groups.config &&
                groups.enable);

        form = new TCloningChk(groups);
        form->show();
        click(form, "BitBtn2");
        QVERIFY(!groups.any());
    }

    void outputType()
    {
        ConfigImage image = ConfigImage::blank();
        image.options = {0xFF, 0x87};
        auto *form = new TFormCondotto(image);
        form->show();
        QCOMPARE(form->windowTitle(), QStringLiteral("Output"));
        QVERIFY(child<QRadioButton>(form, "RadioGroup1_0")->isChecked());
        click(form, "RadioGroup1_1");
        click(form, "BitBtn1");
        QCOMPARE(image.options[1], 0x97);

        form = new TFormCondotto(image);
        form->show();
        QVERIFY(child<QRadioButton>(form, "RadioGroup1_1")->isChecked());
        click(form, "RadioGroup1_0");
        click(form, "BitBtn1");
        QCOMPARE(image.options[1], 0x87);
    }

    void warningAndConnectForms()
    {
        int answer = -1;
        auto *warning = new TFormAvertissementDif(QStringLiteral("Channel 3 differs"), answer);
        warning->show();
        QCOMPARE(warning->windowTitle(), QStringLiteral("Warning"));
        QCOMPARE(child<QPlainTextEdit>(warning, "Memo1")->toPlainText(),
                 QStringLiteral("Channel 3 differs"));
        click(warning, "BitBtn1");
        QCOMPARE(answer, 0);
        warning = new TFormAvertissementDif(QString(), answer);
        warning->show();
        click(warning, "BitBtn2");
        QCOMPARE(answer, 1);

        auto *connect = new TConnectForm;
        connect->show();
        QCOMPARE(connect->windowTitle(), QStringLiteral("Mini-programmer"));
        QCOMPARE(child<QLabel>(connect, "Label1")->text(),
                 QStringLiteral("Please connect the mini-programer."));
        connect->close();
    }

    void aBoxWithButtonsOfItsOwnAnswersTheOnePressed()
    {
        MessageBoxPrompt::divertTo(nullptr);
        MessageBoxPrompt prompt;
        const QStringList choices{QStringLiteral("Write again"),
                                  QStringLiteral("Put back as it was")};
        // Press a button by its accessible name once the box shows.
        auto press = [](const QString &name) {
            QTimer::singleShot(0, [name] {
                QWidget *box = QApplication::activeModalWidget();
                QVERIFY(box);
                for (auto *button : box->findChildren<QPushButton *>()) {
                    if (button->accessibleName() == name)
                        button->click();
                }
            });
        };
        press(choices.at(1));
        QCOMPARE(prompt.choose(QStringLiteral("Fault"), UserPrompt::Kind::Error, choices,
                               QStringLiteral("Close")),
                 1);
        press(QStringLiteral("Close"));
        QCOMPARE(prompt.choose(QStringLiteral("Fault"), UserPrompt::Kind::Error, choices,
                               QStringLiteral("Close")),
                 -1);
    }

    void firmwareWindowReportsHowTheTransferEnded_data()
    {
        QTest::addColumn<int>("stopAfterBlock");
        QTest::addColumn<int>("lostAfter");
        QTest::addColumn<QString>("result");
        QTest::newRow("whole file") << 0 << -1 << QStringLiteral("Upgrade over...");
        QTest::newRow("stopped") << 2 << -1 << QStringLiteral("Operation cancelled by operator");
        QTest::newRow("port lost") << 0 << 100 << QStringLiteral("Upgrade over...");
    }
    void firmwareWindowReportsHowTheTransferEnded()
    {
        QFETCH(int, stopAfterBlock);
        QFETCH(int, lostAfter);
        QFETCH(QString, result);
        VirtualValidator programmer;
        programmer.setMiniProgrammer(true);
        programmer.setStopAfterBlock(stopAfterBlock);
        // The cable is pulled after lostAfter bytes: every later write fails.
        struct PulledPort final : Transport
        {
            explicit PulledPort(VirtualValidator *device) : inner(device) {}
            bool isOpen() const override { return inner.isOpen(); }
            qint64 write(const QByteArray &bytes) override
            {
                if (lostAfter >= 0 && written >= lostAfter)
                    return -1;
                written += bytes.size();
                return inner.write(bytes);
            }
            using Transport::read;
            QByteArray read(int count, int wait) override { return inner.read(count, wait); }
            void purge() override { inner.purge(); }
            void close() override { inner.close(); }
            int readTimeout() const override { return inner.readTimeout(); }
            void setReadTimeout(int ms) override { inner.setReadTimeout(ms); }
            QString errorString() const override { return inner.errorString(); }
            SimTransport inner;
            int lostAfter = -1;
            qint64 written = 0;
        } port(&programmer);
        port.lostAfter = lostAfter;
        QByteArray firmware;
        for (int line = 0; line < 12; ++line)
            firmware += "S1130000" + QByteArray::number(line).rightJustified(32, '0') + "\r\n";

        TMajFirmware window(&port, firmware);
        QCOMPARE(window.windowTitle(), QStringLiteral("Upgrade"));
        auto *label1 = child<QLabel>(&window, "Label1");
        auto *ok = child<QPushButton>(&window, "BitBtn1");
        QCOMPARE(label1->text(), QStringLiteral("Updating... Please Wait !"));
        QCOMPARE(child<QLabel>(&window, "Label2")->text(),
                 QStringLiteral("Don't Stop or disconnect !!!"));
        QVERIFY(ok->isHidden());
        window.show();
        QTRY_VERIFY(window.result().has_value());
        QCOMPARE(label1->text(), result);
        QVERIFY(ok->isVisible());
        if (lostAfter >= 0) {
            QVERIFY(child<QLabel>(&window, "Label2")->isVisible());
            QCOMPARE(child<QLabel>(&window, "Label2")->text(),
                     messageText(Msg::FirmwarePortLost,
                                 {QString::number(lostAfter), QString::number(firmware.size())}));
            click(&window, "BitBtn1");
            return;
        }
        QVERIFY(child<QLabel>(&window, "Label2")->isHidden());
        if (stopAfterBlock == 0)
            QCOMPARE(programmer.firmwareBytes(), firmware);
        else
            QCOMPARE(programmer.firmwareBlocks(), stopAfterBlock);
        click(&window, "BitBtn1");
        QVERIFY(!window.isVisible());
    }

    void firmwareFileChoice()
    {
        VirtualValidator programmer;
        programmer.setMiniProgrammer(true);
        SimTransport port(&programmer);

        FileDialog::setNextFileName(QString()); // cancelled
        TMajFirmware::chooseAndRun(nullptr, &port, m_boxes);
        QVERIFY(m_boxes.told().isEmpty());

        FileDialog::setNextFileName(QStringLiteral("/nonexistent/new.S19"));
        TMajFirmware::chooseAndRun(nullptr, &port, m_boxes);
        QCOMPARE(m_boxes.told(),
                 QStringList{messageText(Msg::FileNotReadable, {"/nonexistent/new.S19"})});

        // Not S-record text: refused with its first bad line, nothing sent, nothing asked.
        QTemporaryFile file(QDir::tempPath() + QStringLiteral("/XXXXXX.S19"));
        QVERIFY(file.open());
        file.write("S00600004844521B\r\n\x01\x02\x03");
        file.flush();
        m_boxes.clear();
        FileDialog::setNextFileName(file.fileName());
        TMajFirmware::chooseAndRun(nullptr, &port, m_boxes);
        QCOMPARE(m_boxes.told().size(), 1);
        QVERIFY(m_boxes.told().first().contains(QStringLiteral("line 2 does not begin with S0")));
        QVERIFY(m_boxes.asked().isEmpty());
        QVERIFY(programmer.firmwareBytes().isEmpty());

        // S-record text: nothing is sent while the user says the mini-programmer is not ready.
        file.resize(0);
        file.write("S00600004844521B\r\nS9030000FC\r\n");
        file.close();
        m_boxes.clear();
        FileDialog::setNextFileName(file.fileName());
        m_boxes.setNextAnswers({UserPrompt::Answer::Cancel});
        TMajFirmware::chooseAndRun(nullptr, &port, m_boxes);
        QCOMPARE(m_boxes.asked(),
                 QStringList{messageText(Msg::FirmwareUpgradeMode, {QFileInfo(file).fileName()})});
        QVERIFY(programmer.firmwareBytes().isEmpty());
        FileDialog::setNextFileName(file.fileName());
        m_boxes.setNextAnswers({UserPrompt::Answer::Ok});
        QTimer::singleShot(0, [] {
            auto *timer = new QTimer;
            QObject::connect(timer, &QTimer::timeout, [timer] {
                auto *modal = qobject_cast<TMajFirmware *>(QApplication::activeModalWidget());
                if (modal && modal->result()) {
                    timer->deleteLater();
                    click(modal, "BitBtn1");
                }
            });
            timer->start(10);
        });
        TMajFirmware::chooseAndRun(nullptr, &port, m_boxes);
        QCOMPARE(programmer.firmwareBytes(), QByteArray("S00600004844521B\r\nS9030000FC\r\n"));
        QVERIFY(TMajFirmware::fileFilter().contains(QStringLiteral("*.S19")));
    }
};

QTEST_MAIN(DialogsTest)
#include "DialogsTest.moc"

// The bench in its own process (tarvik-sim --window on a pseudo-terminal), the program's
// windows in this one over it as over a real port, on a bench-rough line: nothing the program
// shows blocks the bench. Coins inserted while the learning form is modal arrive in it; the
// cable pulled during a write ends the write with its failure, and plugged back while
// "Connect validator" asks, OK goes on with the read.
#include "../LoadedMachine.h"
#include "DevicePortOpener.h"
#include "EditorModel.h"
#include "GuiEditorServices.h"
#include "Messages.h"
#include "ReadSequence.h"
#include "TFormData.h"
#include "TFormProgCoin.h"
#include "UserPrompt.h"

#include "LineProfile.h"
#include "SimulatorPanel.h"
#include "VirtualValidator.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QtTest>
#include <functional>

namespace {

// tarvik-sim --window as tarvik --simulate starts it; lines on its input act as the panel's.
class Bench
{
public:
    Bench()
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(TARVIK_SIM_PATH),
                        {"--window", "--quiet", "--end-with-parent", "--line", "bench"});
        if (!m_process.waitForStarted(30000))
            return;
        while (!m_process.canReadLine() && m_process.waitForReadyRead(30000)) {
        }
        m_path = QString::fromLocal8Bit(m_process.readLine()).trimmed();
    }
    ~Bench()
    {
        // The end of its input closes the panel and ends the bench.
        m_process.closeWriteChannel();
        if (!m_process.waitForFinished(30000))
            m_process.kill();
    }
    const QString &path() const { return m_path; }
    void send(const QByteArray &line)
    {
        m_process.write(line + '\n');
        m_process.waitForBytesWritten(5000);
    }
    // Sends a line and waits until the bench has acted on it: the status it prints after it
    // says `expected`.
    bool act(const QByteArray &line, const QString &expected)
    {
        send(line + "\nstatus");
        QString status;
        while (m_process.canReadLine() || m_process.waitForReadyRead(60000)) {
            status = QString::fromLocal8Bit(m_process.readLine());
            if (status.contains(QLatin1String("cable ")))
                return status.contains(expected);
        }
        return false;
    }
    bool endedByItself() const
    {
        return m_process.state() == QProcess::NotRunning &&
               m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
    }
    QProcess &process() { return m_process; }

private:
    QProcess m_process;
    QString m_path;
};

// The port with a hook before each exchange.
class WatchedPort final : public Transport
{
public:
    explicit WatchedPort(Transport *inner) : m_inner(inner) {}
    bool isOpen() const override { return m_inner->isOpen(); }
    qint64 write(const QByteArray &bytes) override { return m_inner->write(bytes); }
    QByteArray read(int count, int waitMs) override { return m_inner->read(count, waitMs); }
    void purge() override { m_inner->purge(); }
    void close() override { m_inner->close(); }
    int readTimeout() const override { return m_inner->readTimeout(); }
    void setReadTimeout(int ms) override { m_inner->setReadTimeout(ms); }
    void beginExchange(quint8 command) override
    {
        if (beforeExchange)
            beforeExchange();
        m_inner->beginExchange(command);
    }
    QString errorString() const override { return m_inner->errorString(); }
    std::function<void()> beforeExchange;

private:
    Transport *m_inner;
};

// Records what the program says; a question is answered by `answer` (OK by default).
class ScriptedPrompt final : public UserPrompt
{
public:
    void tell(const QString &text, Kind kind) override { said.append({text, kind}); }
    Answer ask(const QString &text, Kind kind, Buttons) override
    {
        said.append({text, kind});
        return answer ? answer(text) : Answer::Ok;
    }
    QStringList texts() const
    {
        QStringList out;
        for (const auto &[text, kind] : said)
            out.append(text);
        return out;
    }
    QList<std::pair<QString, Kind>> said;
    std::function<Answer(const QString &)> answer;
};

} // namespace

class BenchPanelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QLocale::setDefault(QLocale::c());
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
    }

    void aCoinInsertedWhileLearningArrivesInTheLearningForm()
    {
        Bench bench;
        QVERIFY(!bench.path().isEmpty());
        DevicePortOpener opener(bench.path());
        opener.setReadTimeout(kTestPortTimeoutMs);
        std::unique_ptr<Transport> port = opener.ComInit(1);
        QVERIFY(port);
        ScriptedPrompt prompt;
        prompt.answer = [](const QString &) { return UserPrompt::Answer::No; };
        TMonnayeur link(port.get(), &prompt);
        ConfigImage image;
        QCOMPARE(readValidator(link, image, false, {}), ReadOutcome::Done);
        GuiEditorServices services(prompt, nullptr);

        bool arrived = false;
        QTimer::singleShot(0, this, [&] {
            auto *form = qobject_cast<TFormProgCoin *>(QApplication::activeModalWidget());
            QVERIFY(form);
            // The form is modal: in this process nothing else takes a click, the bench does.
            // A coin counts once a channel is chosen.
            form->findChild<QSpinBox *>(QStringLiteral("SpinEdit1"))->setValue(20);
            bench.send("coin 2.00");
            auto *coins = form->findChild<QLabel *>(QStringLiteral("LabelCoins"));
            arrived = QTest::qWaitFor([&] { return coins->text() == QLatin1String("1"); }, 60000);
            QTest::mouseClick(form->findChild<QPushButton *>(QStringLiteral("BtnCancel")),
                              Qt::LeftButton);
        });
        services.learnCoins(link, image);
        QVERIFY(arrived);
    }

    void theCablePulledDuringAWriteEndsItAndPluggedBackTheReadGoesOn()
    {
        Bench bench;
        QVERIFY(!bench.path().isEmpty());
        DevicePortOpener opener(bench.path());
        opener.setReadTimeout(kTestPortTimeoutMs);
        std::unique_ptr<Transport> port = opener.ComInit(1);
        QVERIFY(port);
        WatchedPort watched(port.get());
        ScriptedPrompt prompt;
        TMonnayeur link(&watched, &prompt);
        GuiEditorServices services(prompt, nullptr);
        TFormData form(prompt, services, &link);
        form.model().flags().readOnOpen = true;
        form.show();
        QVERIFY(QTest::qWaitFor([&] { return form.hasOpened(); }, 60000));
        QVERIFY(!prompt.texts().contains(messageText(Msg::ConnectValidator)));
        prompt.said.clear();

        // A few exchanges into the write the cable comes out on the bench.
        int exchanges = 0;
        bool pulled = false;
        watched.beforeExchange = [&] {
            if (++exchanges == 4)
                pulled = bench.act("cable out", QStringLiteral("cable out"));
        };
        QTest::mouseClick(form.findChild<QPushButton *>(QStringLiteral("SpeedButton8")),
                          Qt::LeftButton);
        QVERIFY2(pulled, qPrintable(prompt.texts().join(u'|')));
        watched.beforeExchange = {};
        // The write has ended, with its failure said and nothing said to be finished.
        const QStringList written = prompt.texts();
        QVERIFY2(!written.contains(messageText(Msg::FinishedOperation)),
                 qPrintable(written.join(u'|')));
        bool failureSaid = false;
        for (const auto &[text, kind] : prompt.said)
            failureSaid =
                failureSaid || kind == UserPrompt::Kind::Error || kind == UserPrompt::Kind::Warning;
        QVERIFY2(failureSaid, qPrintable(written.join(u'|')));

        // A read with the cable still out asks to connect the validator; plugged back on the
        // bench, OK goes on. The bench may take a moment to hear it: OK again, as a person would.
        prompt.said.clear();
        int asked = 0;
        prompt.answer = [&](const QString &text) {
            if (text != messageText(Msg::ConnectValidator))
                return UserPrompt::Answer::Ok;
            if (++asked == 1)
                bench.send("cable in");
            return asked < 30 ? UserPrompt::Answer::Ok : UserPrompt::Answer::Cancel;
        };
        ConfigImage image;
        QCOMPARE(readValidator(link, image, true, {}), ReadOutcome::Done);
        QVERIFY(asked >= 1 && asked < 30);
        form.close();
    }

    void theBenchEndsWithItsInput()
    {
        Bench bench;
        QVERIFY(!bench.path().isEmpty());
        bench.process().closeWriteChannel();
        QVERIFY(bench.process().waitForFinished(60000));
        QVERIFY(bench.endedByItself());
    }

    // A screen reader names every control of the panel.
    void everyControlOfThePanelHasAName()
    {
        VirtualValidator device;
        LineProfile line = LineProfile::bench();
        SimulatorPanel panel(&device, &line);
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        const QList<QWidget *> widgets = panel.findChildren<QWidget *>();
        int controls = 0;
        for (QWidget *widget : widgets) {
            if (!qobject_cast<QAbstractButton *>(widget) && !qobject_cast<QComboBox *>(widget) &&
                !qobject_cast<QSpinBox *>(widget))
                continue;
            ++controls;
            QAccessibleInterface *face = QAccessible::queryAccessibleInterface(widget);
            QVERIFY(face);
            QVERIFY2(!face->text(QAccessible::Name).isEmpty(), qPrintable(widget->objectName()));
        }
        QCOMPARE(controls, 20);
    }

    // tarvik --simulate starts the bench on a pseudo-terminal and opens it as its port; killed,
    // it takes the bench with it.
    void theBenchEndsWhenTheProgramIsKilled()
    {
#ifdef Q_OS_LINUX
        QTemporaryDir home;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), home.path());
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home.filePath("config"));
        environment.insert(QStringLiteral("TARVIK_DB"), home.filePath("TarvikDB"));
        // A first start makes the tables (and says so); the smoke start does it unattended.
        QProcess first;
        first.setProcessEnvironment(environment);
        first.start(QStringLiteral(TARVIK_PATH), {"--smoke"});
        QVERIFY(first.waitForFinished(120000));
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(TARVIK_PATH), {"--simulate", "--report-startup"});
        QByteArray out;
        while (!out.contains("main window shown with the link open") &&
               program.waitForReadyRead(60000))
            out += program.readAllStandardOutput();
        QVERIFY2(out.contains("main window shown with the link open"), out.constData());
        const QString bench = childNamed(program.processId(), "tarvik-sim");
        QVERIFY(!bench.isEmpty());
        program.kill();
        QVERIFY(program.waitForFinished(30000));
        QVERIFY(QTest::qWaitFor([&] { return ended(bench); }, 60000));
#else
        QSKIP("the bench runs in its own process where pseudo-terminals exist");
#endif
    }

private:
    // The process id of a child of `parent` whose command line holds `name`.
    static QString childNamed(qint64 parent, const char *name)
    {
        QFile children(QStringLiteral("/proc/%1/task/%1/children").arg(parent));
        if (!children.open(QIODevice::ReadOnly))
            return {};
        for (const QByteArray &pid : children.readAll().split(' ')) {
            QFile command(QStringLiteral("/proc/%1/cmdline").arg(QString::fromLatin1(pid)));
            if (!pid.isEmpty() && command.open(QIODevice::ReadOnly) &&
                command.readAll().contains(name))
                return QString::fromLatin1(pid);
        }
        return {};
    }
    // Gone, or a zombie nobody has reaped yet.
    static bool ended(const QString &pid)
    {
        QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
        if (!stat.open(QIODevice::ReadOnly))
            return true;
        const QByteArray text = stat.readAll();
        const qsizetype close = text.lastIndexOf(')');
        return close < 0 || text.mid(close + 2, 1) == "Z";
    }

    QTemporaryDir m_settings;
};

QTEST_MAIN(BenchPanelTest)
#include "BenchPanelTest.moc"

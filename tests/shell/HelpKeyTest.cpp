// F1 in a window of the program opens the help window at the guide's section for that window,
// in the language shown where the guide is translated; the help window's own texts follow the
// language too.
#include "HelpKey.h"
#include "ConfigImage.h"
#include "HelpWindow.h"
#include "Languages.h"
#include "RecordingPrompt.h"
#include "Settings.h"
#include "ShellTestSupport.h"
#include "TFormMain.h"
#include "TTarvikFormInit.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBrowser>
#include <QtTest>

namespace {

void writeGuide(const QString &fileName, const QString &title)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QString html = QStringLiteral("<html><body><h1><a name=\"contents\"></a>%1</h1>").arg(title);
    for (const char *section : {"main-window", "validator-setting", "learning"}) {
        html += QStringLiteral("<h2><a name=\"%1\"></a>%1</h2>").arg(QLatin1String(section));
        html += QStringLiteral("<p>text</p>").repeated(80);
    }
    file.write(html.toUtf8() + "</body></html>");
}

} // namespace

class HelpKeyTest : public QObject
{
    Q_OBJECT
    std::unique_ptr<TempSettings> m_temp;
    QTemporaryDir m_help;

private Q_SLOTS:
    void init()
    {
        m_temp = std::make_unique<TempSettings>();
        QLocale::setDefault(QLocale::c());
        writeGuide(QDir(m_help.path()).filePath("user-guide.html"), "Guide");
        writeGuide(QDir(m_help.path()).filePath("user-guide.fr.html"), "Guide FR");
    }

    void f1OpensTheSectionOfTheWindowItIsPressedIn()
    {
        Settings settings;
        LanguageSwitcher languages;
        RecordingPrompt prompt;
        ShellContext context;
        context.settings = &settings;
        context.languages = &languages;
        context.prompt = &prompt;
        HelpKey help(&languages, m_help.path());
        qApp->installEventFilter(&help);

        TFormMain window(context);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTest::keyClick(&window, Qt::Key_F1);
        HelpWindow *helpWindow = help.helpWindow();
        QVERIFY(helpWindow);
        QVERIFY(helpWindow->isVisible());
        QCOMPARE(helpWindow->section(), QStringLiteral("main-window"));
        QCOMPARE(helpWindow->guideFile(), QDir(m_help.path()).filePath("user-guide.html"));
        QCOMPARE(helpWindow->windowTitle(), QStringLiteral("Tarvik help"));
        auto *browser = helpWindow->findChild<QTextBrowser *>(QStringLiteral("HelpBrowser"));
        QTRY_VERIFY(browser->verticalScrollBar()->value() > 0); // scrolled to the section

        // A modal form: F1 in one of its boxes; the help window goes with that form, so that
        // the form's modality leaves it usable.
        ConfigImage image = ConfigImage::blank();
        bool cancelled = false;
        auto *form = new TTarvikFormInit(image, cancelled, &window);
        form->open();
        QVERIFY(QTest::qWaitForWindowExposed(form));
        QTest::keyClick(form->findChild<QLineEdit *>(QStringLiteral("Edit1")), Qt::Key_F1);
        QCOMPARE(help.helpWindow(), helpWindow);
        QCOMPARE(helpWindow->section(), QStringLiteral("validator-setting"));
        QCOMPARE(helpWindow->parentWidget(), form);
        QVERIFY(helpWindow->isVisible());

        // In French: the French guide and the help window's own texts.
        QVERIFY(languages.load(Languages::indexOf(QStringLiteral("FR"))));
        QTest::keyClick(form, Qt::Key_F1);
        QCOMPARE(helpWindow->guideFile(), QDir(m_help.path()).filePath("user-guide.fr.html"));
        QTRY_COMPARE(helpWindow->windowTitle(), QStringLiteral("Aide de Tarvik"));
        auto *contents = helpWindow->findChild<QPushButton *>(QStringLiteral("BtnContents"));
        QCOMPARE(contents->text(), QStringLiteral("&Sommaire"));
        QTest::mouseClick(contents, Qt::LeftButton);
        QCOMPARE(helpWindow->section(), QStringLiteral("contents"));

        // Closing the form takes its help window along; the next F1 opens a new one.
        form->close();
        QTRY_VERIFY(!help.helpWindow());
        QTest::keyClick(&window, Qt::Key_F1);
        QVERIFY(help.helpWindow());
        QCOMPARE(help.helpWindow()->parentWidget(), &window);
        qApp->removeEventFilter(&help);
    }

    void aMissingGuideSaysSo()
    {
        QTemporaryDir empty;
        HelpKey help(nullptr, empty.path());
        QWidget window;
        window.setObjectName(QStringLiteral("TFormValue"));
        help.showHelpFor(&window);
        auto *browser = help.helpWindow()->findChild<QTextBrowser *>(QStringLiteral("HelpBrowser"));
        QVERIFY(browser->toPlainText().contains(QStringLiteral("is not installed")));
        QVERIFY(help.helpWindow()->section().isEmpty());
    }
};

QTEST_MAIN(HelpKeyTest)
#include "HelpKeyTest.moc"

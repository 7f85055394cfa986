#include "AppOptions.h"
#include "BenchProcess.h"
#include "ConsolePrompt.h"
#include "DataDirectory.h"
#include "DataSource.h"
#include "DevicePortOpener.h"
#include "DisplayCheck.h"
#include "EffectSoundPlayer.h"
#include "HelpKey.h"
#include "HistoryRecorder.h"
#include "Languages.h"
#include "MessageBoxPrompt.h"
#include "RecordStore.h"
#include "Screenshot.h"
#include "ScreenshotTour.h"
#include "Settings.h"
#include "SimulatorPanel.h"
#include "TCommunication.h"
#include "TDBModule.h"
#include "TableLock.h"

#include "TFormData.h"
#include "TFormMain.h"
#include "TFormRepair.h"
#include "TableRepairModel.h"
#include "UnattendedRuns.h"
#include "VirtualValidator.h"
#include <QDebug>
#include <QDir>

#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>

namespace {

// Unattended runs close the editor by themselves once its opening read has ended; with a file
// name they first grab the windows into it.
void closeUnattended(TFormData &editor, QWidget *mainWindow, QWidget *panel,
                     const QString &screenshot)
{
    if (!screenshot.isEmpty() && !saveScreenshot({mainWindow, &editor, panel}, screenshot))
        std::fprintf(stderr, "tarvik: cannot write %s\n", qPrintable(screenshot));
    editor.close();
}

} // namespace

int main(int argc, char *argv[])
{
    // --help and --version answer before any display is opened.
    {
        QStringList arguments;
        for (int i = 0; i < argc; ++i)
            arguments.append(QString::fromLocal8Bit(argv[i]));
        const AppOptions early = AppOptions::parse(arguments);
        if (early.help || early.version) {
            std::fputs(qPrintable(early.help ? AppOptions::usage() : AppOptions::versionText()),
                       stdout);
            return 0;
        }
    }

    if (const QString missing = DisplayCheck::missingDisplay(); !missing.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(missing));
        return 1;
    }
    DisplayCheck::begin();
    QApplication app(argc, argv);
    DisplayCheck::end();
    QApplication::setOrganizationName(QStringLiteral("Brunfeld"));
    QApplication::setApplicationName(QStringLiteral("Tarvik"));
    QApplication::setApplicationVersion(QStringLiteral(TARVIK_VERSION));

    const AppOptions options = AppOptions::parse(QApplication::arguments());
    if (!options.error.isEmpty()) {
        std::fprintf(stderr, "%s", qPrintable(options.error));
        return 2;
    }

    MessageBoxPrompt prompt;
    ConsolePrompt console;
    if (options.unattended())
        MessageBoxPrompt::divertTo(&console);
    // The pictures of the guide come from settings and tables of their own.
    QTemporaryDir scratch;
    if (!options.screenshots.isEmpty())
        UnattendedRuns::useScratchSettings(scratch.path());

    Settings settings;
    // --language stands as the language menu's choice.
    if (options.languageGiven)
        settings.setLanguage(options.language);
    LanguageSwitcher languages;
    EffectSoundPlayer sounds;

    VirtualValidator device;
    if (!options.screenshots.isEmpty())
        ScreenshotTour::prepareValidator(device);
    LineProfile simulatedLine = options.simulatedLine();
    SimulatedLinkSource simulated(&device, &simulatedLine);
    // The bench in its own process is opened as a real port on COM1.
    BenchProcess bench;
    bool benchApart = false;
    if (options.benchInOwnProcess()) {
        QString why;
        benchApart = bench.start(BenchProcess::besideProgram(), simulatedLine.toString(),
                                 settings.language(), &why);
        if (!benchApart)
            std::fprintf(stderr,
                         "tarvik: the bench panel cannot start in its own window (%s); it shows "
                         "in this program\n",
                         qPrintable(why));
    }
    SerialPortOpener serialPorts;
    DevicePortOpener devicePort(benchApart ? bench.portPath() : options.device);
    TCommunication portDialog(&prompt);
    ProbingLinkSource probing(options.device.isEmpty() && !benchApart
                                  ? static_cast<PortOpener *>(&serialPorts)
                                  : &devicePort,
                              options.portArguments, &portDialog, &prompt);

    std::unique_ptr<SimulatorPanel> panel;
    if (options.useVirtualValidator() && !options.smoke && !benchApart)
        panel = std::make_unique<SimulatorPanel>(&device, &simulatedLine);

    ShellContext context;
    context.settings = &settings;
    context.languages = &languages;
    context.sounds = &sounds;
    context.prompt = &prompt;
    // The editor stores validators in the data source (the tables of the data directory, or a
    // server); the main window frees it on Exit, after the last editor has closed.
    DataSource *dataSource = nullptr;
    // A lock not free after a second is said where a script's output goes; the window cannot
    // repaint while it waits, and the message after the one bounded wait goes through the
    // prompt.
    TableLock::setWaitNotice([](const QString &text) { qWarning().noquote() << text; });
    // Each validator's history lives in the data source: beside the tables, or on the server.
    setHistoryProgram(QStringLiteral("tarvik"));
    context.createDataModule = [&prompt, &dataSource]() -> std::shared_ptr<void> {
        // Tables that cannot be opened have been reported; the program goes on without them.
        // A source that is not one (a bad address) is said, and there are no records.
        dataSource = nullptr;
        setCurrentHistory(nullptr);
        auto source = std::make_shared<DataSource>();
        if (!source->open(DataSource::resolve(), prompt)) {
            prompt.tell(source->errorString(), UserPrompt::Kind::Error);
            return nullptr;
        }
        dataSource = source.get();
        setCurrentHistory(source->history());
        return source;
    };
    // The repair closes the module's tables around its work and opens them again after it.
    context.repairTables = [&dataSource](QWidget *mainWindow) {
        TDBModule *dataModule = dataSource ? dataSource->tables() : nullptr;
        TableRepairModel model(dataModule ? dataModule->dataDirectory() : DataDirectory::resolve(),
                               dataModule);
        TFormRepair form(model, mainWindow);
        form.exec();
    };
    context.linkSource = options.useVirtualValidator() && !benchApart
                             ? static_cast<LinkSource *>(&simulated)
                             : &probing;
    std::unique_ptr<ScreenshotTour> tour;
    context.showEditor = [&](ValidatorLink &link, QWidget *mainWindow) {
        std::function<void(TFormData &)> afterOpeningRead;
        if (tour) {
            afterOpeningRead = [&](TFormData &editor) { tour->start(editor); };
        } else if (options.unattended()) {
            afterOpeningRead = [&](TFormData &editor) {
                closeUnattended(editor, mainWindow, panel.get(), options.screenshot);
            };
        }
        // Every good read is kept in the data directory's backups, a server's user's too.
        const QString backups =
            dataSource ? QDir((dataSource->tables() ? dataSource->tables()->dataDirectory()
                                                    : DataDirectory::resolve()))
                             .filePath(QStringLiteral("backups"))
                       : QString();
        TFormData::showModal(link, mainWindow, prompt,
                             dataSource ? &dataSource->records() : nullptr, backups,
                             afterOpeningRead);
    };

    TFormMain window(context);
    if (!options.screenshots.isEmpty())
        tour = std::make_unique<ScreenshotTour>(options.screenshots, &window, &device, &prompt);
    // F1 opens the guide at the section of the window it is pressed in.
    HelpKey help(&languages);
    app.installEventFilter(&help);
    QObject::connect(&window, &TFormMain::formClosed, &app, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    // The bench panel sits beside the main window once it shows.
    if (panel) {
        QObject::connect(&window, &TFormMain::linkOpened, panel.get(), [&] {
            if (panel->isVisible())
                return;
            panel->adjustSize();
            panel->move(window.frameGeometry().topRight() + QPoint(12, 0));
            panel->show();
        });
    }
    if (options.reportStartup) {
        QObject::connect(&window, &TFormMain::linkOpened, &window, [] {
            std::printf("tarvik: main window shown with the link open\n");
            std::fflush(stdout);
        });
    }

    if (!window.FormCreate())
        return 1;
    if (options.smoke && !UnattendedRuns::checkDataFiles(languages, settings))
        return 1;
    if (options.unattended()) {
        QTimer::singleShot(0, &window, &QWidget::close);
    }
    const int code = app.exec();
    if (tour && tour->failed()) {
        if (!tour->missing().isEmpty() || tour->oversized().isEmpty())
            std::fprintf(stderr, "tarvik: screenshots: not every window could be pictured%s%s\n",
                         tour->missing().isEmpty() ? "" : ": ",
                         qPrintable(tour->missing().join(QStringLiteral(", "))));
        if (!tour->oversized().isEmpty())
            std::fprintf(stderr, "tarvik: screenshots: windows too big for the screen: %s\n",
                         qPrintable(tour->oversized().join(QStringLiteral(", "))));
        return 1;
    }
    return code;
}

#include "CliContext.h"
#include "Settings.h"

#include <QGuiApplication>
#include <cstdio>
#include <memory>
#include <unistd.h>

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    // Only the configuration sheet draws, and it needs fonts: it runs on the offscreen platform
    // (the command line shows no window), with or without a display. The other commands stay
    // away from the graphical system.
    std::unique_ptr<QCoreApplication> app;
    if (cliCommandName(arguments) == QLatin1String("sheet")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        app = std::make_unique<QGuiApplication>(argc, argv);
    } else {
        app = std::make_unique<QCoreApplication>(argc, argv);
    }
    QCoreApplication::setOrganizationName(QStringLiteral("Brunfeld"));
    QCoreApplication::setApplicationName(QStringLiteral("Tarvik"));
    // The separators and date order the technician chose, else the system locale's.
    Settings settings;
    settings.load();
    setEncodingSettings(settings.encodingSettings());
    QTextStream out(stdout);
    QTextStream err(stderr);
    QStringList args = QCoreApplication::arguments();
    args.removeFirst();
    return runCli(args, out, err, isatty(STDERR_FILENO) != 0);
}

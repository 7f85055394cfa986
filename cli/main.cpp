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
    // The configuration sheet and the windows chart draw, and need fonts: they run on the
    // offscreen platform (the command line shows no window), with or without a display. The
    // other commands stay away from the graphical system.
    const QString command = cliCommandName(arguments);
    const bool drawing =
        command == QLatin1String("sheet") ||
        (command == QLatin1String("overlap") && arguments.contains(QLatin1String("--chart"))) ||
        (command == QLatin1String("batch") && arguments.contains(QLatin1String("--sheets")));
    std::unique_ptr<QCoreApplication> app;
    if (drawing) {
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

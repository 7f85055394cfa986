#include "CliContext.h"
#include "Settings.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <cstdio>
#include <memory>
#include <unistd.h>

int main(int argc, char *argv[])
{
    // A chart is drawn with fonts, which need a graphical application: it runs offscreen, so
    // that no display is needed. The other commands keep to a core application.
    bool drawing = false;
    for (int i = 1; i < argc; ++i)
        drawing = drawing || qstrcmp(argv[i], "--chart") == 0;
    if (drawing)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const std::unique_ptr<QCoreApplication> app =
        drawing ? std::make_unique<QGuiApplication>(argc, argv)
                : std::make_unique<QCoreApplication>(argc, argv);
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

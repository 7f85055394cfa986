#include "CliContext.h"
#include "Settings.h"

#include <QCoreApplication>
#include <cstdio>
#include <unistd.h>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
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

#include "CliContext.h"
#include "Encodings.h"

#include <QCoreApplication>
#include <cstdio>
#include <unistd.h>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Brunfeld"));
    QCoreApplication::setApplicationName(QStringLiteral("Tarvik"));
    setEncodingSettings(EncodingSettings::fromSystemLocale());
    QTextStream out(stdout);
    QTextStream err(stderr);
    QStringList args = QCoreApplication::arguments();
    args.removeFirst();
    return runCli(args, out, err, isatty(STDERR_FILENO) != 0);
}

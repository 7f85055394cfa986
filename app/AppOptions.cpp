#include "AppOptions.h"

#include "Languages.h"
#include "PortChoice.h"

AppOptions AppOptions::parse(const QStringList &arguments)
{
    AppOptions options;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        auto nextValue = [&](QString &target) {
            if (i + 1 >= arguments.size())
                options.error = QStringLiteral("%1 needs a value").arg(argument);
            else
                target = arguments.at(++i);
        };
        if (argument == u"--simulate")
            options.simulate = true;
        else if (argument == u"--smoke")
            options.smoke = true;
        else if (argument == u"--report-startup")
            options.reportStartup = true;
        else if (argument == u"--screenshot")
            nextValue(options.screenshot);
        else if (argument == u"--screenshots")
            nextValue(options.screenshots);
        else if (argument == u"--language") {
            QString name;
            nextValue(name);
            options.languageGiven = true;
            options.language = name.compare(u"local", Qt::CaseInsensitive) == 0
                                   ? QString()
                                   : Languages::code(Languages::indexOf(name.toUpper()));
            if (options.language.isEmpty() && name.compare(u"local", Qt::CaseInsensitive) != 0)
                options.error =
                    QStringLiteral("--language: %1 is not one of en, fr, it, de, local\n")
                        .arg(name);
        } else if (argument == u"--device")
            nextValue(options.device);
        else if (argument == u"--sim-line") {
            nextValue(options.simLine);
            options.simulate = true;
        } else if (argument == u"--help" || argument == u"-h")
            options.help = true;
        else if (argument == u"--version")
            options.version = true;
        else if (argument.startsWith(u"--"))
            options.error = QStringLiteral("unknown option %1\n").arg(argument) + usage();
        else
            options.portArguments.append(argument);
    }
    QString why;
    if (!options.simLine.isEmpty() && !LineProfile::parse(options.simLine, &why))
        options.error = QStringLiteral("--sim-line: %1\n").arg(why);
    return options;
}

LineProfile AppOptions::simulatedLine() const
{
    if (!simLine.isEmpty())
        return LineProfile::parse(simLine, nullptr).value_or(LineProfile::bench());
    return unattended() ? LineProfile::instant() : LineProfile::bench();
}

bool AppOptions::useVirtualValidator() const
{
    if (simulate || !screenshot.isEmpty() || !screenshots.isEmpty())
        return true;
    // An unattended start without a port never probes: it would wait on the port dialog.
    int port = 0;
    const bool portNamed = !device.isEmpty() || !PortFromCommandLine(portArguments, port);
    return smoke && !portNamed;
}

bool AppOptions::benchInOwnProcess() const
{
#ifdef Q_OS_WIN
    return false;
#else
    return simulate && !unattended();
#endif
}

QString AppOptions::usage()
{
    return QStringLiteral(
        "usage: tarvik [COMn] [--device PATH] [--simulate [--sim-line LINE]] [--smoke]\n"
        "              [--screenshot FILE]\n"
        "              [--screenshots DIR] [--language LANG] [--help] [--version]\n"
        "  COMn             the port to use when no validator answers the probe\n"
        "  --device PATH    a system serial port standing as COM1\n"
        "  --simulate       the virtual validator, with its bench panel in a window of its\n"
        "                   own (tarvik-sim --window) on a pseudo-terminal\n"
        "  --sim-line LINE  its line: bench (the default), instant, or bench changed by\n"
        "                   pace,nopace,turnaround=MIN-MAX,echo=MIN-MAX,burst=MS,seed=N,\n"
        "                   split=BYTES:MS\n"
        "  --smoke          start, show the main window, check the data files and end at once\n"
        "  --screenshot F   run against the virtual validator and save the windows as F\n"
        "  --screenshots D  open every window against the virtual validator and save a\n"
        "                   picture of each in D (NAME.png); ends with 1 if one cannot be\n"
        "                   pictured\n"
        "  --language LANG  show the program in en, fr, it, de or local (its own texts), as\n"
        "                   the language menu would; with --screenshots the pictures are\n"
        "                   in that language\n"
        "  --report-startup say on stdout when the main window shows with the link open\n"
        "  --help           print this and end\n"
        "  --version        print the version and end\n"
        "F1 in any window opens the user guide at that window's section.\n");
}

QString AppOptions::versionText()
{
    return QStringLiteral("tarvik " TARVIK_VERSION "\n");
}

// tarvik-sim: a virtual validator on a pseudo-terminal. The first line on stdout is the path of
// the port to open; the device is served until SIGTERM or SIGINT. Bench commands (coins, door,
// cable) come one a line on stdin. With --window the bench panel shows too, and the service
// ends with the panel or with the end of stdin.

#include "BenchCommands.h"
#include "ConfigFile.h"
#include "HelpKey.h"
#include "Languages.h"
#include "LineTiming.h"
#include "PanelWindow.h"
#include "PtyServer.h"
#include "VirtualValidator.h"
#include "WholeFile.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>
#include <unistd.h>
#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif

namespace {

volatile std::sig_atomic_t g_stop = 0;

void onStopSignal(int)
{
    g_stop = 1;
}

void installStopHandlers()
{
    struct sigaction action = {};
    action.sa_handler = onStopSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = 0; // no restart: a waiting poll returns at once
    sigaction(SIGTERM, &action, nullptr);
    sigaction(SIGINT, &action, nullptr);
    // Started in the background from a shell, reading the terminal must not stop the device.
    std::signal(SIGTTIN, SIG_IGN);
}

int fail(const QString &text)
{
    std::fprintf(stderr, "tarvik-sim: %s\n", qPrintable(text));
    return 2;
}

// A number in decimal or with a 0x prefix, at most max.
std::optional<quint32> number(const QString &text, quint32 max)
{
    bool ok = false;
    const qulonglong v = text.trimmed().toULongLong(&ok, 0);
    if (!ok || v > max)
        return std::nullopt;
    return quint32(v);
}

// "A:B" with both parts numbers; B optional when bMax is given a default.
std::optional<std::pair<quint32, quint32>> pair(const QString &text, quint32 aMax, quint32 bMax,
                                                std::optional<quint32> bDefault = {})
{
    const QStringList parts = text.split(u':');
    if (parts.size() > 2 || (parts.size() == 1 && !bDefault))
        return std::nullopt;
    const auto a = number(parts[0], aMax);
    const auto b = parts.size() == 2 ? number(parts[1], bMax) : bDefault;
    if (!a || !b)
        return std::nullopt;
    return std::make_pair(*a, *b);
}

} // namespace

int main(int argc, char *argv[])
{
    // The panel needs a display; the plain device does not.
    bool windowed = false;
    for (int i = 1; i < argc; ++i)
        windowed = windowed || std::strcmp(argv[i], "--window") == 0;
    std::unique_ptr<QCoreApplication> application =
        windowed ? std::make_unique<QApplication>(argc, argv)
                 : std::make_unique<QCoreApplication>(argc, argv);
    QCoreApplication &app = *application;
    QCoreApplication::setApplicationName(QStringLiteral("tarvik-sim"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TARVIK_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Virtual coin validator on a pseudo-terminal. Prints the port path as the "
                       "first line and serves until SIGTERM or SIGINT.\n\n"
                       "Bench commands, one a line on standard input, act between exchanges:\n") +
        BenchCommands::help().trimmed() +
        QStringLiteral("\n\nWith --window the bench panel shows beside the device; the service "
                       "ends when the panel is closed or standard input ends."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption family({QStringLiteral("family")},
                                    QStringLiteral("Firmware family byte (default 0x13)."),
                                    QStringLiteral("byte"), QStringLiteral("0x13"));
    const QCommandLineOption serial({QStringLiteral("serial")},
                                    QStringLiteral("Serial number (default 1001)."),
                                    QStringLiteral("n"), QStringLiteral("1001"));
    const QCommandLineOption load({QStringLiteral("load")},
                                  QStringLiteral("Memory from a configuration file."),
                                  QStringLiteral("file"));
    const QCommandLineOption save(
        {QStringLiteral("save")},
        QStringLiteral("Save the memory to a configuration file on exit."), QStringLiteral("file"));
    const QCommandLineOption line(
        {QStringLiteral("line")},
        QStringLiteral("How rough the line is: \"bench\" (the default: 9600 baud, echo after "
                       "1-5 ms, reply after 2-8 ms, 1 ms adapter bursts), \"instant\", or bench "
                       "changed by a comma list of pace, nopace, turnaround=MIN-MAX (before each "
                       "reply), echo=MIN-MAX (before each count echo), burst=MS (the adapter's "
                       "latency timer), seed=N (replays a random run), split=BYTES:MS (a pause "
                       "inside every reply)."),
        QStringLiteral("line"), QStringLiteral("bench"));
    const QCommandLineOption instant({QStringLiteral("instant")},
                                     QStringLiteral("The same as --line instant."));
    const QCommandLineOption pace({QStringLiteral("pace")},
                                  QStringLiteral("Send at 9600 baud (1.04 ms per byte)."));
    const QCommandLineOption latency(
        {QStringLiteral("latency")},
        QStringLiteral("A fixed turnaround in ms before every echo and reply."),
        QStringLiteral("ms"));
    const QCommandLineOption doorOpen({QStringLiteral("door-open")},
                                      QStringLiteral("Start with the door open."));
    const QCommandLineOption mini(
        {QStringLiteral("mini-programmer")},
        QStringLiteral("Receive a firmware file as the mini-programmer."));
    const QCommandLineOption stopAfter(
        {QStringLiteral("stop-after-block")},
        QStringLiteral("Stop the firmware transfer after block N (55 AA, 55 A5)."),
        QStringLiteral("n"));
    const QCommandLineOption silentAck({QStringLiteral("silent-ack")},
                                       QStringLiteral("Say nothing after a firmware block."));
    const QCommandLineOption firmwareOut({QStringLiteral("firmware-out")},
                                         QStringLiteral("Write the received firmware on exit."),
                                         QStringLiteral("file"));
    const QCommandLineOption wrongEcho({QStringLiteral("wrong-echo")},
                                       QStringLiteral("Echo a wrong count for command CMD."),
                                       QStringLiteral("cmd"));
    const QCommandLineOption refuse(
        {QStringLiteral("refuse")},
        QStringLiteral("Refuse writes of CMD (only its N-th with CMD:N)."),
        QStringLiteral("cmd[:n]"));
    const QCommandLineOption delay({QStringLiteral("delay")},
                                   QStringLiteral("Delay the reply of CMD by MS milliseconds."),
                                   QStringLiteral("cmd:ms"));
    const QCommandLineOption silentAfter({QStringLiteral("silent-after")},
                                         QStringLiteral("Go silent after N exchanges."),
                                         QStringLiteral("n"));
    const QCommandLineOption requestFirmware(
        {QStringLiteral("request-firmware-after")},
        QStringLiteral("Ask for a firmware file (request code 11) MS milliseconds after start."),
        QStringLiteral("ms"));
    const QCommandLineOption quiet({QStringLiteral("quiet")},
                                   QStringLiteral("Do not print exchanges to stderr."));
    const QCommandLineOption costs(
        {QStringLiteral("line-costs")},
        QStringLiteral("On exit, print what the line cost beyond the bytes on the wire."));
    const QCommandLineOption window({QStringLiteral("window")},
                                    QStringLiteral("Show the bench panel (coins, door, cable, "
                                                   "line) in a window of its own."));
    const QCommandLineOption language(
        {QStringLiteral("language")},
        QStringLiteral("The panel's language: FR, IT, EN or DE (default: the program's own)."),
        QStringLiteral("code"));
    const QCommandLineOption parentDeath(
        {QStringLiteral("end-with-parent")},
        QStringLiteral("End when the process that started this one ends (Linux)."));
    const QCommandLineOption exchanges(
        {QStringLiteral("exchanges")},
        QStringLiteral("On exit, write every exchange answered to FILE, one a line: the command "
                       "code, then the channel or slice it named."),
        QStringLiteral("file"));
    parser.addOptions({window, language, parentDeath, exchanges});
    parser.addOptions({family,      serial,    load,     save,  line,        instant,
                       pace,        latency,   doorOpen, mini,  stopAfter,   silentAck,
                       firmwareOut, wrongEcho, refuse,   delay, silentAfter, requestFirmware,
                       quiet,       costs});
    parser.process(app);

    const auto familyByte = number(parser.value(family), 0xFF);
    if (!familyByte)
        return fail(QStringLiteral("--family needs a byte, such as 0x13 or 19"));
    const auto serialNumber = number(parser.value(serial), 0xFFFFFFFFu);
    if (!serialNumber)
        return fail(QStringLiteral("--serial needs a number from 0 to 4294967295"));
    QString lineError;
    std::optional<LineProfile> lineProfile = LineProfile::parse(
        parser.isSet(instant) ? QStringLiteral("instant") : parser.value(line), &lineError);
    if (!lineProfile)
        return fail(QStringLiteral("--line: %1").arg(lineError));
    if (parser.isSet(pace))
        lineProfile->pacing = true;
    if (parser.isSet(latency)) {
        const auto latencyMs = number(parser.value(latency), 10000);
        if (!latencyMs)
            return fail(QStringLiteral("--latency needs milliseconds from 0 to 10000"));
        lineProfile->turnaroundMinMs = lineProfile->turnaroundMaxMs = int(*latencyMs);
        lineProfile->echoMinMs = lineProfile->echoMaxMs = int(*latencyMs);
    }
    std::optional<quint32> requestAfterMs;
    if (parser.isSet(requestFirmware)) {
        requestAfterMs = number(parser.value(requestFirmware), 3600000);
        if (!requestAfterMs)
            return fail(QStringLiteral("--request-firmware-after needs milliseconds"));
    }

    VirtualValidator device(quint8(*familyByte), *serialNumber);
    if (parser.isSet(load)) {
        ConfigImage image;
        QString error;
        if (!loadConfigFile(parser.value(load), image, &error))
            return fail(QStringLiteral("cannot load %1: %2").arg(parser.value(load), error));
        device.setMemory(image);
    }
    device.setDoorOpen(parser.isSet(doorOpen));

    for (const QString &v : parser.values(wrongEcho)) {
        const auto cmd = number(v, 255);
        if (!cmd)
            return fail(QStringLiteral("--wrong-echo needs a command code, not \"%1\"").arg(v));
        device.setWrongEcho(quint8(*cmd));
    }
    for (const QString &v : parser.values(refuse)) {
        const auto p = pair(v, 255, 1000000, 0);
        if (!p)
            return fail(QStringLiteral("--refuse needs CMD or CMD:N, not \"%1\"").arg(v));
        device.setRefusal(quint8(p->first), int(p->second));
    }
    for (const QString &v : parser.values(delay)) {
        const auto p = pair(v, 255, 600000);
        if (!p)
            return fail(QStringLiteral("--delay needs CMD:MS, not \"%1\"").arg(v));
        device.setReplyDelay(quint8(p->first), int(p->second));
    }
    if (parser.isSet(silentAfter)) {
        const auto n = number(parser.value(silentAfter), 1000000000);
        if (!n)
            return fail(QStringLiteral("--silent-after needs a number of exchanges"));
        device.setSilentAfter(int(*n));
    }
    if (parser.isSet(mini)) {
        device.setMiniProgrammer(true);
        if (parser.isSet(silentAck))
            device.setFirmwareAck(VirtualValidator::FirmwareAck::Silent);
        if (parser.isSet(stopAfter)) {
            const auto n = number(parser.value(stopAfter), 1000000000);
            if (!n || *n == 0)
                return fail(QStringLiteral("--stop-after-block needs a block number from 1"));
            device.setStopAfterBlock(int(*n));
        }
    }

    LineTiming timing;
    timing.setProfile(*lineProfile);
    if (!parser.isSet(quiet))
        std::fprintf(stderr, "tarvik-sim: line %s\n", qPrintable(lineProfile->toString()));

    PtyServer server(&device, &timing);
    server.setVerbose(!parser.isSet(quiet));
    // The exchanges answered, one a line: "3 5" is command 3 on channel 5 (-1: none named).
    QByteArray exchangeLines;
    if (parser.isSet(exchanges))
        server.setExchangeSink([&exchangeLines](const SimExchange &exchange) {
            exchangeLines += QByteArray::number(exchange.command) + ' ' +
                             QByteArray::number(exchange.index) + '\n';
        });
    QString error;
    if (!server.open(&error))
        return fail(QStringLiteral("cannot open a pseudo-terminal: %1").arg(error));
    if (requestAfterMs)
        server.runAfter(std::chrono::milliseconds(*requestAfterMs),
                        [&device] { device.requestFirmware(); });

    BenchCommands commands(&device,
                           [&timing](const LineProfile &profile) { timing.setProfile(profile); });
    server.setCommandInput(STDIN_FILENO, [&commands](const QByteArray &line) {
        const BenchCommands::Reply reply = commands.run(QString::fromLocal8Bit(line));
        if (!reply.output.isEmpty()) {
            std::fputs(qPrintable(reply.output), stdout);
            std::fflush(stdout);
        }
        if (!reply.error.isEmpty())
            std::fprintf(stderr, "tarvik-sim: %s\n", qPrintable(reply.error));
    });

    installStopHandlers();
#ifdef Q_OS_LINUX
    // Killed, the program that started the bench takes it with it.
    if (parser.isSet(parentDeath)) {
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
        if (::getppid() == 1)
            g_stop = 1;
    }
#endif
    std::printf("%s\n", qPrintable(server.slavePath()));
    std::fflush(stdout);
    std::unique_ptr<LanguageSwitcher> translations;
    int status = 0;
    if (parser.isSet(window)) {
        translations = std::make_unique<LanguageSwitcher>();
        translations->load(Languages::indexOf(parser.value(language).toUpper()));
        // F1 on the panel opens the guide at the virtual validator, as in the program.
        HelpKey help(translations.get());
        app.installEventFilter(&help);
        status = runWithPanel(server, device, commands, timing.profile(), &g_stop);
    } else {
        server.serve(&g_stop);
    }

    if (parser.isSet(costs)) {
        const LineTiming::Costs &spent = timing.costs();
        std::fprintf(stderr,
                     "tarvik-sim: line costs: %d answers, %.1f ms turnaround, %.1f ms adapter\n",
                     spent.answers, spent.turnaroundMs, spent.adapterMs);
    }
    if (parser.isSet(exchanges) &&
        !WholeFile::write(parser.value(exchanges), exchangeLines, &error))
        status = fail(QStringLiteral("cannot write %1").arg(error));
    if (parser.isSet(save) && !saveConfigFile(parser.value(save), device.memory(), &error))
        status = fail(QStringLiteral("cannot save %1: %2").arg(parser.value(save), error));
    if (parser.isSet(firmwareOut)) {
        if (!WholeFile::write(parser.value(firmwareOut), device.firmwareBytes(), &error))
            status = fail(QStringLiteral("cannot write %1").arg(error));
    }
    return status;
}

#include "CliContext.h"
#include "DataDirectory.h"
#include "DataSource.h"
#include "HistoryRecorder.h"
#include "ServerConnection.h"
#include "TableLock.h"

#include "PortChoice.h"

namespace {

// Splits the global options off the front and back of the command line.
bool parseGlobal(QStringList &args, GlobalOptions &o, QString &error)
{
    QStringList rest;
    for (int i = 0; i < args.size(); ++i) {
        const QString a = args.at(i);
        auto value = [&](QString &into) {
            if (i + 1 >= args.size()) {
                error = a + QStringLiteral(" needs a value");
                return false;
            }
            into = args.at(++i);
            return true;
        };
        if (a == QLatin1String("--device")) {
            if (!value(o.device))
                return false;
        } else if (a == QLatin1String("--port")) {
            if (!value(o.port))
                return false;
            const std::optional<int> number = ComPortFromName(o.port);
            if (!number) {
                error = QStringLiteral("--port takes COM and a port number from 1 to %1, such as "
                                       "COM4 or COM12, not \"%2\"")
                            .arg(kHighestComPort)
                            .arg(o.port);
                return false;
            }
            o.portNumber = *number;
        } else if (a == QLatin1String("--port-timeout")) {
            QString text;
            if (!value(text))
                return false;
            bool ok = false;
            o.portTimeoutMs = text.toInt(&ok);
            if (!ok || o.portTimeoutMs < Transport::kMinReadTimeoutMs ||
                o.portTimeoutMs > Transport::kMaxReadTimeoutMs) {
                error = QStringLiteral("--port-timeout takes milliseconds from %1 to %2, not "
                                       "\"%3\"")
                            .arg(Transport::kMinReadTimeoutMs)
                            .arg(Transport::kMaxReadTimeoutMs)
                            .arg(text);
                return false;
            }
        } else if (a == QLatin1String("--data-dir")) {
            if (!value(o.dataDir))
                return false;
        } else if (a == QLatin1String("--data-source")) {
            if (!value(o.dataSource))
                return false;
        } else if (a == QLatin1String("--trace")) {
            if (!value(o.trace))
                return false;
        } else if (a == QLatin1String("--simulate")) {
            o.simulate = true;
        } else if (a == QLatin1String("--sim-line")) {
            QString text;
            if (!value(text))
                return false;
            QString why;
            const std::optional<LineProfile> line = LineProfile::parse(text, &why);
            if (!line) {
                error = QStringLiteral("--sim-line: ") + why;
                return false;
            }
            o.simLine = *line;
            o.simulate = true;
        } else if (a == QLatin1String("--sim-family")) {
            QString text;
            if (!value(text))
                return false;
            bool ok = false;
            o.simFamily = text.toInt(&ok, 0);
            if (!ok || o.simFamily < 0 || o.simFamily > 255) {
                error = QStringLiteral("--sim-family takes a byte such as 0x13");
                return false;
            }
            o.simulate = true;
        } else {
            rest.append(a);
        }
    }
    const int sources = int(!o.device.isEmpty()) + int(!o.port.isEmpty()) + int(o.simulate);
    if (sources > 1) {
        error = QStringLiteral("--device, --port and --simulate exclude each other");
        return false;
    }
    args = rest;
    return true;
}

} // namespace

QString cliCommandName(const QStringList &arguments)
{
    QStringList args = arguments;
    GlobalOptions options;
    QString error;
    return parseGlobal(args, options, error) && !args.isEmpty() ? args.first() : QString();
}

QString cliUsage(const CliCommandTable &table)
{
    QString text =
        QStringLiteral("usage: tarvik-cli [--device PATH | --port COMn |\n"
                       "                   --simulate [--sim-family BYTE] [--sim-line LINE]]\n"
                       "                  [--port-timeout MS] [--data-dir DIR]\n"
                       "                  [--data-source DIR|postgresql://...] [--trace FILE]\n"
                       "                  COMMAND [ARGS]\n"
                       "       tarvik-cli --help | --version\n\ncommands:\n");
    for (auto it = table.cbegin(); it != table.cend(); ++it)
        text += QStringLiteral("  %1\n      %2\n").arg(it->usage, it->help);
    text += QStringLiteral("\nexit codes: 0 success, 1 the operation failed, 2 bad usage\n");
    return text;
}

int runCli(const QStringList &arguments, QTextStream &out, QTextStream &err,
           bool progressToTerminal)
{
    CliCommandTable table;
    registerLinkCommands(table);
    registerWriteCommands(table);
    registerRecordCommands(table);
    registerEditorCommands(table);
    registerLearnCommands(table);
    registerValueCommands(table);
    registerProfileCommands(table);
    registerMigrateCommands(table);
    registerRepairCommands(table);
    registerDiffCommands(table);
    registerSheetCommands(table);
    registerBatchCommands(table);
    registerHistoryCommands(table);

    QStringList args = arguments;
    if (args.contains(QLatin1String("--help")) || args.contains(QLatin1String("-h"))) {
        out << cliUsage(table);
        return kExitOk;
    }
    if (args.contains(QLatin1String("--version"))) {
        out << "tarvik-cli " << TARVIK_VERSION << Qt::endl;
        return kExitOk;
    }
    GlobalOptions options;
    QString error;
    if (!parseGlobal(args, options, error)) {
        err << "tarvik-cli: " << error << "\n\n" << cliUsage(table);
        return kExitUsage;
    }
    if (args.isEmpty() || !table.contains(args.first())) {
        err << (args.isEmpty() ? QStringLiteral("tarvik-cli: no command")
                               : QStringLiteral("tarvik-cli: unknown command ") + args.first())
            << "\n\n"
            << cliUsage(table);
        return kExitUsage;
    }
    const CliCommand command = table.value(args.takeFirst());
    CliContext context(options, out, err, progressToTerminal);
    // The locks the command takes wait in all at most the one bound, and a wait of more than a
    // second is said.
    const TableLock::WaitBudget wait;
    TableLock::setWaitNotice(
        [&err](const QString &text) { err << "tarvik-cli: " << text << Qt::endl; });
    // What the command does to a validator is kept in its history, in the data source: beside
    // the tables, or on the server (reached on the first event).
    setHistoryProgram(QStringLiteral("tarvik-cli"));
    const QString source =
        DataSource::resolve(options.dataSource.isEmpty() ? options.dataDir : options.dataSource);
    DataSource server;
    std::unique_ptr<HistoryStore> history;
    if (!ServerAddress::isServer(source))
        history = openHistory(DataDirectory::resolve(source), &context.prompt());
    else if (server.open(source, context.prompt()))
        history.reset(); // the server's own
    setCurrentHistory(history ? history.get() : server.history());
    const int code = command.run(context, args);
    setCurrentHistory(nullptr);
    TableLock::setWaitNotice({});
    if (code == kExitUsage)
        err << "usage: tarvik-cli " << command.usage << Qt::endl;
    return code == kExitTrouble ? kExitUsage : code;
}

#include "CliContext.h"
#include "ConfigImage.h"
#include "Messages.h"
#include "PortChoice.h"

namespace {

int probeCommand(CliContext &cli, const QStringList &args)
{
    if (!args.isEmpty())
        return kExitUsage;
    const auto &o = cli.options();
    if (o.simulate || !o.device.isEmpty() || !o.port.isEmpty()) {
        // A named link is probed with the connect command alone.
        TMonnayeur *link = cli.openLink();
        if (!link || !link->CheckPresence(false)) {
            cli.err() << "No validator answered." << Qt::endl;
            return kExitFailed;
        }
        cli.out() << "COM" << (o.port.isEmpty() ? 1 : o.portNumber) << Qt::endl;
        return kExitOk;
    }
    SerialPortOpener opener;
    opener.setReadTimeout(o.portTimeoutMs);
    const ProbeResult probe = FindValidatorPort(opener);
    if (!probe.answered) {
        cli.err() << "No validator answered on COM1 to COM9." << Qt::endl;
        return kExitFailed;
    }
    cli.out() << "COM" << probe.comPortNumber << Qt::endl;
    return kExitOk;
}

int readCommand(CliContext &cli, const QStringList &arguments)
{
    QStringList args = arguments;
    QString output;
    if (!takeOutputOption(args, output) || !args.isEmpty())
        return kExitUsage;
    ConfigImage image = ConfigImage::blank();
    if (!readValidatorImage(cli, image))
        return kExitFailed;
    return writeImageOutput(cli, image, output);
}

} // namespace

void registerLinkCommands(CliCommandTable &table)
{
    table.insert(QStringLiteral("probe"),
                 {QStringLiteral("probe"),
                  QStringLiteral("probes COM1 to COM9 and prints the port that answered"),
                  probeCommand});
    table.insert(QStringLiteral("read"),
                 {QStringLiteral("read [-o FILE]"),
                  QStringLiteral("reads the whole validator into a configuration file "
                                 "(stdout without -o)"),
                  readCommand});
}

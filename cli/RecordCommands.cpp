#include "CliContext.h"
#include "DataSource.h"
#include "DbfTable.h"
#include "Messages.h"
#include "RecordStore.h"
#include "TDBModule.h"

#include <algorithm>

namespace {

QString joined(const QList<int> &channels)
{
    QStringList out;
    for (int c : channels)
        out.append(QString::number(c));
    return out.join(QStringLiteral(", "));
}

int saveCommand(CliContext &cli, const QStringList &args)
{
    QString file, ident, description;
    bool overwrite = false;
    for (int i = 0; i < args.size(); ++i) {
        if (args[i] == QLatin1String("--ident") && i + 1 < args.size())
            ident = args[++i];
        else if (args[i] == QLatin1String("--description") && i + 1 < args.size())
            description = args[++i];
        else if (args[i] == QLatin1String("--overwrite"))
            overwrite = true;
        else if (file.isEmpty() && !args[i].startsWith(u'-'))
            file = args[i];
        else
            return kExitUsage;
    }
    if (file.isEmpty())
        return kExitUsage;
    ConfigImage image;
    if (!readImageInput(cli, file, image))
        return kExitFailed;
    DataSource source;
    if (!openDataSource(cli, source))
        return kExitFailed;
    // "%s exist! Overwrite ?" is answered by --overwrite; the store tells why it failed.
    cli.prompt().setAnswer(overwrite ? UserPrompt::Answer::Yes : UserPrompt::Answer::No);
    return source.records().storeValidator(image, ident, description) ==
                   ValidatorStore::Outcome::Stored
               ? kExitOk
               : kExitFailed;
}

int loadCommand(CliContext &cli, const QStringList &arguments)
{
    QStringList args = arguments;
    QString output;
    if (!takeOutputOption(args, output) || args.size() != 1 || args.first().startsWith(u'-'))
        return kExitUsage;
    const QString ident = args.first();
    DataSource source;
    if (!openDataSource(cli, source, {&TDBModule::Gettoniere}))
        return kExitFailed;
    RecordStore &store = source.records();
    // Opened as the editor opens it, into a blank image.
    ConfigImage image = ConfigImage::blank();
    ValidatorStore::LoadReport report;
    if (!store.loadValidatorInto(ident, image, nullptr, &report)) {
        cli.err() << (store.errorString().isEmpty()
                          ? QStringLiteral("No validator is stored as %1").arg(ident)
                          : store.errorString())
                  << Qt::endl;
        return kExitFailed;
    }
    // Channels a damaged channel table lost open empty, and are named.
    if (!report.missing.isEmpty())
        cli.prompt().tell(messageText(Msg::SavedChannelsMissing, {ident, joined(report.missing)}),
                          UserPrompt::Kind::Warning);
    if (!report.duplicated.isEmpty())
        cli.prompt().tell(
            messageText(Msg::SavedChannelsDuplicated, {ident, joined(report.duplicated)}),
            UserPrompt::Kind::Warning);
    // What the tables do not hold, named as the file names it.
    cli.prompt().tell(QStringLiteral("Not stored in the tables, left not set (ff): version bytes "
                                     "1-2, ident, counters, values bytes 68-74, block2, block13, "
                                     "setting8, status9"),
                      UserPrompt::Kind::Information);
    return writeImageOutput(cli, image, output);
}

int listCommand(CliContext &cli, const QStringList &args)
{
    if (!args.isEmpty())
        return kExitUsage;
    DataSource source;
    if (!openDataSource(cli, source, {&TDBModule::Gettoniere}))
        return kExitFailed;
    RecordStore &store = source.records();
    const auto entries = store.validators();
    // A server that cannot be reached lists nothing and says so.
    if (entries.isEmpty() && !store.errorString().isEmpty()) {
        cli.err() << store.errorString() << Qt::endl;
        return kExitFailed;
    }
    for (const auto &entry : entries)
        cli.out() << entry.identification << '\t' << entry.description << '\t' << entry.version
                  << '\n';
    cli.out() << Qt::flush;
    return kExitOk;
}

int deleteCommand(CliContext &cli, const QStringList &args)
{
    if (args.size() != 1 || args.first().startsWith(u'-'))
        return kExitUsage;
    DataSource source;
    if (!openDataSource(cli, source))
        return kExitFailed;
    RecordStore &store = source.records();
    if (!store.removeValidator(args.first())) {
        cli.err() << (store.errorString().isEmpty()
                          ? QStringLiteral("No validator is stored as %1").arg(args.first())
                          : store.errorString())
                  << Qt::endl;
        return kExitFailed;
    }
    return kExitOk;
}

} // namespace

void registerRecordCommands(CliCommandTable &table)
{
    table.insert(QStringLiteral("save"),
                 {QStringLiteral("save FILE --ident ID [--description TEXT] [--overwrite]"),
                  QStringLiteral("stores the configuration in FILE in the validator tables"),
                  saveCommand});
    table.insert(QStringLiteral("load"),
                 {QStringLiteral("load ID [-o FILE]"),
                  QStringLiteral("writes a stored validator as a configuration file"),
                  loadCommand});
    table.insert(QStringLiteral("list"),
                 {QStringLiteral("list"),
                  QStringLiteral("lists the stored validators: identification, description, "
                                 "version"),
                  listCommand});
    table.insert(QStringLiteral("delete"),
                 {QStringLiteral("delete ID"),
                  QStringLiteral("deletes a stored validator and its channel rows"),
                  deleteCommand});
}

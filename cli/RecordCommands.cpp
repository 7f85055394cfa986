#include "CliContext.h"
#include "DataDirectory.h"
#include "DbfTable.h"
#include "Messages.h"
#include "TDBModule.h"
#include "ValidatorStore.h"

#include <algorithm>

namespace {

// Opens the five tables of the data directory the options name; the first run creates them.
// What cannot be opened, or opens damaged, has been said once, so a command stops without a
// word of its own when a table it reads is not open.
bool openTables(CliContext &cli, TDBModule &db,
                const QList<DbfTable *(TDBModule::*)() const> &reads)
{
    db.open(DataDirectory::resolve(cli.options().dataDir), &cli.prompt());
    return std::all_of(reads.begin(), reads.end(),
                       [&db](auto table) { return (db.*table)()->isOpen(); });
}

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
    TDBModule db;
    openTables(cli, db, {});
    // "%s exist! Overwrite ?" is answered by --overwrite; the store tells why it failed.
    cli.prompt().setAnswer(overwrite ? UserPrompt::Answer::Yes : UserPrompt::Answer::No);
    ValidatorStore store(db, cli.prompt());
    return store.store(image, ident, description) == ValidatorStore::Outcome::Stored ? kExitOk
                                                                                     : kExitFailed;
}

int loadCommand(CliContext &cli, const QStringList &arguments)
{
    QStringList args = arguments;
    QString output;
    if (!takeOutputOption(args, output) || args.size() != 1 || args.first().startsWith(u'-'))
        return kExitUsage;
    const QString ident = args.first();
    TDBModule db;
    if (!openTables(cli, db, {&TDBModule::Gettoniere}))
        return kExitFailed;
    ValidatorStore store(db, cli.prompt());
    // Opened as the editor opens it, into a blank image.
    ConfigImage image = ConfigImage::blank();
    ValidatorStore::LoadReport report;
    if (!store.loadInto(ident, image, nullptr, &report)) {
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
    TDBModule db;
    if (!openTables(cli, db, {&TDBModule::Gettoniere}))
        return kExitFailed;
    ValidatorStore store(db, cli.prompt());
    const auto entries = store.list();
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
    TDBModule db;
    openTables(cli, db, {});
    ValidatorStore store(db, cli.prompt());
    if (!store.remove(args.first())) {
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

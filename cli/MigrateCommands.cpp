#include "CliContext.h"
#include "DataSource.h"
#include "RecordMigration.h"
#include "RecordStore.h"
#include "RecordingPrompt.h"
#include "TDBModule.h"

namespace {

// Opens FROM or TO; a directory whose tables cannot all be opened is not copied from or to.
bool openSide(CliContext &cli, DataSource &source, const QString &named, UserPrompt &prompt)
{
    if (!source.open(DataSource::resolve(named), prompt)) {
        cli.err() << source.errorString() << Qt::endl;
        return false;
    }
    if (source.tables() && !source.tables()->errorString().isEmpty()) {
        cli.err() << source.tables()->errorString() << Qt::endl;
        return false;
    }
    QString error;
    if (!source.test(&error)) {
        cli.err() << error << Qt::endl;
        return false;
    }
    return true;
}

void print(CliContext &cli, const RecordMigration::Report &report)
{
    for (const RecordMigration::Counts &c : report.counts) {
        cli.out() << c.what << ": " << c.copied << " copied, " << c.present << " already there, "
                  << c.checked << " checked";
        if (c.different)
            cli.out() << ", " << c.different << " stored otherwise (left)";
        if (c.failed)
            cli.out() << ", " << c.failed << " failed";
        cli.out() << '\n';
    }
    cli.out() << Qt::flush;
    for (const QString &problem : report.problems)
        cli.err() << problem << '\n';
    cli.err() << Qt::flush;
}

// tarvik-cli migrate FROM TO: copies validators with their channels, coin profiles, value
// tables and the history from one data source to another, each a directory or an address.
int migrateCommand(CliContext &cli, const QStringList &args)
{
    if (args.size() != 2 || args[0].startsWith(u'-') || args[1].startsWith(u'-'))
        return kExitUsage;
    // Nothing is overwritten: a name held otherwise in TO is left and named. What the stores
    // would tell (a Light model's blank channels) is in the report instead.
    RecordingPrompt quiet(UserPrompt::Answer::No);
    DataSource from, to;
    if (!openSide(cli, from, args[0], quiet) || !openSide(cli, to, args[1], quiet))
        return kExitFailed;
    if (from.where() == to.where()) {
        cli.err() << "FROM and TO are the same: " << from.where() << Qt::endl;
        return kExitFailed;
    }
    const RecordMigration::Report records =
        RecordMigration::copyRecords(from.records(), to.records());
    print(cli, records);
    bool ok = records.ok();
    const RecordMigration::Report history =
        RecordMigration::copyHistory(*from.history(), *to.history());
    print(cli, history);
    ok = ok && history.ok();
    return ok ? kExitOk : kExitFailed;
}

} // namespace

void registerMigrateCommands(CliCommandTable &table)
{
    table.insert(QStringLiteral("migrate"),
                 {QStringLiteral("migrate FROM TO"),
                  QStringLiteral("copies validators, channels, coin profiles, value tables and "
                                 "the history from FROM to TO (each a data directory or a "
                                 "postgresql:// address), reads back what it copied and prints "
                                 "the counts; what TO holds already is not copied again"),
                  migrateCommand});
}

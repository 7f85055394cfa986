#include "CliContext.h"
#include "DataSource.h"
#include "DbfTable.h"
#include "RecordStore.h"
#include "TDBModule.h"

namespace {

// tarvik-cli profiles list | delete NAME: the coin profiles of the profile table, as the coin
// profile form lists them (name, tab, description) and deletes them with its navigator.
int profilesCommand(CliContext &cli, const QStringList &arguments)
{
    const QString sub = arguments.value(0);
    const bool list = sub == QLatin1String("list") && arguments.size() == 1;
    const bool remove = sub == QLatin1String("delete") && arguments.size() == 2 &&
                        !arguments.at(1).startsWith(u'-');
    if (!list && !remove)
        return kExitUsage;
    // What cannot be opened, or opens damaged, is said once.
    DataSource source;
    if (!openDataSource(cli, source, {&TDBModule::DemTable}))
        return kExitFailed;
    RecordStore &store = source.records();
    if (list) {
        const QList<ProfileStore::Entry> entries = store.profiles();
        if (entries.isEmpty() && !store.errorString().isEmpty()) {
            cli.err() << store.errorString() << Qt::endl;
            return kExitFailed;
        }
        for (const ProfileStore::Entry &entry : entries)
            cli.out() << entry.name << '\t' << entry.description << '\n';
        cli.out() << Qt::flush;
        return kExitOk;
    }
    if (!store.removeProfile(arguments.at(1))) {
        cli.err() << store.errorString() << Qt::endl;
        return kExitFailed;
    }
    return kExitOk;
}

} // namespace

void registerProfileCommands(CliCommandTable &table)
{
    table.insert(QStringLiteral("profiles"),
                 {QStringLiteral("profiles list | delete NAME"),
                  QStringLiteral("the coin profiles: lists them (name and description), deletes "
                                 "one"),
                  profilesCommand});
}

#include "CliContext.h"
#include "DataDirectory.h"
#include "TableRepair.h"

namespace {

// Repairs the damaged tables among those named (all five without a name) and prints a line
// per table; exit 0 when every one is sound afterwards. The tables are not opened first: a
// damaged one is said once, in its line.
int repairCommand(CliContext &cli, const QStringList &args)
{
    QList<const TableSchema *> tables;
    for (const QString &name : args) {
        const TableSchema *schema = TableRepair::tableNamed(name);
        if (!schema) {
            QStringList names;
            for (const TableSchema *known : TableSchema::all())
                names.append(known->fileName);
            cli.err() << "tarvik-cli: there is no table " << name << "; the tables are "
                      << names.join(QStringLiteral(", ")) << Qt::endl;
            return kExitUsage;
        }
        tables.append(schema);
    }
    QList<const TableSchema *> chosen;
    for (const TableSchema *schema : TableSchema::all()) {
        if (tables.isEmpty() || tables.contains(schema))
            chosen.append(schema);
    }
    TableRepair repair(DataDirectory::resolve(cli.options().dataDir));
    bool sound = true;
    for (const TableRepair::Result &result : repair.repair(chosen)) {
        cli.out() << result.text() << '\n';
        sound = sound && result.sound();
    }
    cli.out() << Qt::flush;
    return sound ? kExitOk : kExitFailed;
}

} // namespace

void registerRepairCommands(CliCommandTable &table)
{
    table.insert(QStringLiteral("repair"),
                 {QStringLiteral("repair [TABLE...]"),
                  QStringLiteral("repairs the damaged tables (all five, or those named): copies "
                                 "each with its index into backups/damaged-<time>/ in the data "
                                 "directory, writes it anew with every record that can be read "
                                 "and rebuilds its index; exit 0 when every table is sound "
                                 "afterwards"),
                  repairCommand});
}

#include "CliContext.h"
#include "ConfigImage.h"
#include "DataSource.h"
#include "DbfTable.h"
#include "Messages.h"
#include "RecordStore.h"
#include "TDBModule.h"
#include "ValueTableModel.h"
#include "ValueTableStore.h"

#include <algorithm>

namespace {

int listValues(CliContext &cli, DataSource &source, const QStringList &args)
{
    if (!args.isEmpty())
        return kExitUsage;
    const QList<ValueTableStore::Entry> entries = source.records().valueTables();
    if (entries.isEmpty() && !source.records().errorString().isEmpty()) {
        cli.err() << source.records().errorString() << Qt::endl;
        return kExitFailed;
    }
    for (const auto &entry : entries)
        cli.out() << entry.name << '\t' << entry.description << '\n';
    cli.out() << Qt::flush;
    return kExitOk;
}

int saveValues(CliContext &cli, DataSource &source, const QStringList &args)
{
    QString name, file, description;
    bool overwrite = false;
    for (int i = 0; i < args.size(); ++i) {
        if (args[i] == QLatin1String("--description") && i + 1 < args.size())
            description = args[++i];
        else if (args[i] == QLatin1String("--overwrite"))
            overwrite = true;
        else if (args[i].startsWith(u'-'))
            return kExitUsage;
        else if (name.isEmpty())
            name = args[i];
        else if (file.isEmpty())
            file = args[i];
        else
            return kExitUsage;
    }
    if (file.isEmpty())
        return kExitUsage;
    if (name.trimmed().isEmpty()) {
        cli.prompt().tell(messageText(Msg::IdentificationMustBeFilled), UserPrompt::Kind::Warning);
        return kExitFailed;
    }
    ConfigImage image;
    if (!readImageInput(cli, file, image))
        return kExitFailed;
    // "%s exist! Overwrite ?" is answered by --overwrite.
    cli.prompt().setAnswer(overwrite ? UserPrompt::Answer::Yes : UserPrompt::Answer::No);
    return source.records().saveValueTable(image.values, name, description, image.isLight()) ==
                   ValueTableStore::Outcome::Saved
               ? kExitOk
               : kExitFailed;
}

int applyValues(CliContext &cli, DataSource &source, const QStringList &arguments)
{
    QStringList args = arguments;
    QString output;
    if (!takeOutputOption(args, output) || args.size() != 2 || args[0].startsWith(u'-') ||
        args[1].startsWith(u'-'))
        return kExitUsage;
    RecordStore &records = source.records();
    const QList<ValueTableStore::Entry> entries = records.valueTables();
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const auto &entry) {
        return entry.name.compare(args[0].trimmed(), Qt::CaseInsensitive) == 0;
    });
    if (found == entries.end()) {
        cli.err() << (records.errorString().isEmpty()
                          ? ValueTableStore::notStoredText(args[0].trimmed())
                          : records.errorString())
                  << Qt::endl;
        return kExitFailed;
    }
    ConfigImage image;
    if (!readImageInput(cli, args[1], image))
        return kExitFailed;
    // As the form does it: open the row into the working copy, then Apply.
    ValueTableModel::Editor editor{[&image] { return image.values; },
                                   [&image](const ValueBlock &block) { image.values = block; },
                                   [] {}};
    ValueTableModel form(editor, image.isLight(), nullptr, &cli.prompt(), &records, false);
    form.FormActivate();
    form.recordClick(int(found - entries.begin()));
    form.BitBtn5Click();
    // A field that did not convert has been told; a half-applied table is not written anywhere.
    if (!records.errorString().isEmpty())
        return kExitFailed;
    form.BitBtn3Click();
    return writeImageOutput(cli, image, output);
}

int deleteValues(CliContext &cli, DataSource &source, const QStringList &args)
{
    if (args.size() != 1 || args.first().startsWith(u'-'))
        return kExitUsage;
    if (!source.records().removeValueTable(args.first())) {
        cli.err() << source.records().errorString() << Qt::endl;
        return kExitFailed;
    }
    return kExitOk;
}

int valuesCommand(CliContext &cli, const QStringList &arguments)
{
    if (arguments.isEmpty())
        return kExitUsage;
    const QString sub = arguments.first();
    const QStringList args = arguments.mid(1);
    using Run = int (*)(CliContext &, DataSource &, const QStringList &);
    Run run = sub == QLatin1String("list")     ? listValues
              : sub == QLatin1String("save")   ? saveValues
              : sub == QLatin1String("apply")  ? applyValues
              : sub == QLatin1String("delete") ? deleteValues
                                               : nullptr;
    if (!run)
        return kExitUsage;
    // What cannot be opened, or opens damaged, is said once; listing and applying need the
    // value table open, saving and deleting say why they are refused.
    DataSource source;
    if (!openDataSource(cli, source))
        return kExitFailed;
    if ((run == listValues || run == applyValues) && source.tables() &&
        !source.tables()->ValueTable()->isOpen())
        return kExitFailed;
    return run(cli, source, args);
}

} // namespace

void registerValueCommands(CliCommandTable &table)
{
    table.insert(QStringLiteral("values"),
                 {QStringLiteral("values list | save NAME FILE [--description TEXT] [--overwrite]"
                                 " | apply NAME FILE [-o OUT] | delete NAME"),
                  QStringLiteral("the value tables: lists them, stores the bases, ratio and "
                                 "channel values of FILE, applies one to FILE, deletes one"),
                  valuesCommand});
}

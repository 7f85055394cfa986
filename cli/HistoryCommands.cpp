// history: each validator's events, their differences, and putting a past state back.
#include "CliContext.h"
#include "Commands.h"
#include "HistoryModel.h"
#include "HistoryRecorder.h"
#include "Messages.h"
#include "RestoreWrite.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QString isoTime(const QDateTime &time)
{
    return time.toUTC().toString(Qt::ISODateWithMs);
}

// The events of serial, said to be unknown when there are none; nothing when the history
// cannot be read or holds no event of it (said).
std::optional<QList<HistoryEvent>> eventsOf(CliContext &cli, HistoryModel &model, quint32 serial)
{
    if (!model.load(serial))
        return std::nullopt;
    if (model.events().isEmpty()) {
        cli.prompt().tell(messageText(Msg::HistoryUnknownSerial, {QString::number(serial)}),
                          UserPrompt::Kind::Error);
        return std::nullopt;
    }
    return model.events();
}

// "3" names the third event, oldest first.
bool eventNumber(CliContext &cli, const QString &text, const HistoryModel &model, int &index)
{
    bool ok = false;
    index = text.toInt(&ok) - 1;
    if (ok && index >= 0 && index < model.events().size())
        return true;
    cli.err() << "tarvik-cli: the history of " << model.serial() << " holds events 1 to "
              << model.events().size() << ", not " << text << Qt::endl;
    return false;
}

int listEvents(CliContext &cli, HistoryModel &model, bool json)
{
    if (json) {
        QJsonArray events;
        for (int i = 0; i < model.events().size(); ++i) {
            const HistoryEvent &event = model.events().at(i);
            QJsonArray changes;
            for (const ConfigChange &change : model.changesAt(i).value_or(QList<ConfigChange>{}))
                changes.append(changeObject(change));
            events.append(
                QJsonObject{{QStringLiteral("time"), isoTime(event.time)},
                            {QStringLiteral("kind"), event.kind},
                            {QStringLiteral("result"), event.result},
                            {QStringLiteral("program"), event.program},
                            {QStringLiteral("machine"), event.machine},
                            {QStringLiteral("user"), event.user},
                            {QStringLiteral("detail"), event.detail},
                            {QStringLiteral("configuration"), event.configuration.has_value()},
                            {QStringLiteral("changes"), changes}});
        }
        const QJsonObject root{{QStringLiteral("serial"), qint64(model.serial())},
                               {QStringLiteral("events"), events}};
        cli.out() << QString::fromUtf8(QJsonDocument(root).toJson(QJsonDocument::Indented));
    } else {
        for (int i = 0; i < model.rows().size(); ++i) {
            const HistoryModel::Row &row = model.rows().at(i);
            cli.out() << (i + 1) << "  " << row.time << "  " << row.kind;
            if (!row.result.isEmpty())
                cli.out() << ", " << row.result;
            cli.out() << "  " << row.program << '\n';
            const std::optional<QList<ConfigChange>> changes = model.changesAt(i);
            if (!changes || changes->isEmpty())
                cli.out() << "    " << row.changes << '\n';
            for (const ConfigChange &change : changes.value_or(QList<ConfigChange>{}))
                cli.out() << "    " << change.text() << '\n';
        }
    }
    cli.out() << Qt::flush;
    return kExitOk;
}

int listSerials(CliContext &cli, bool json)
{
    QString error;
    const std::optional<QList<HistorySerial>> serials = currentHistory()->serials(&error);
    if (!serials) {
        cli.prompt().tell(messageText(Msg::HistoryNotRead, {error}), UserPrompt::Kind::Error);
        return kExitFailed;
    }
    if (json) {
        QJsonArray list;
        for (const HistorySerial &s : *serials)
            list.append(QJsonObject{{QStringLiteral("serial"), qint64(s.serial)},
                                    {QStringLiteral("events"), s.events},
                                    {QStringLiteral("time"), isoTime(s.last.time)},
                                    {QStringLiteral("kind"), s.last.kind},
                                    {QStringLiteral("result"), s.last.result},
                                    {QStringLiteral("program"), s.last.program},
                                    {QStringLiteral("machine"), s.last.machine}});
        cli.out() << QString::fromUtf8(QJsonDocument(QJsonObject{{QStringLiteral("serials"), list}})
                                           .toJson(QJsonDocument::Indented));
    } else {
        for (const HistorySerial &s : *serials) {
            cli.out() << s.serial << "  " << s.events << (s.events == 1 ? " event" : " events")
                      << ", last "
                      << s.last.time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"))
                      << "  " << HistoryModel::kindText(s.last.kind);
            if (!s.last.result.isEmpty())
                cli.out() << ", " << HistoryModel::resultText(s.last.result);
            cli.out() << "  " << s.last.program << ' ' << s.last.machine << '\n';
        }
    }
    cli.out() << Qt::flush;
    return kExitOk;
}

// Writes event index's configuration to the connected validator, which must be the serial's.
int restoreEvent(CliContext &cli, HistoryModel &model, int index, bool verify, bool force)
{
    const HistoryEvent &event = model.events().at(index);
    if (!event.configuration) {
        cli.prompt().tell(messageText(Msg::HistoryNoConfiguration), UserPrompt::Kind::Error);
        return kExitFailed;
    }
    TMonnayeur *link = cli.openLink();
    if (!link)
        return kExitFailed;
    cli.prompt().setAnswer(UserPrompt::Answer::Cancel);
    ConfigImage theirs = ConfigImage::blank();
    if (!link->CheckPresence(true) || !link->ReadBlock(Cmd::ReadVersion, theirs.version.data()) ||
        !link->ReadBlock(Cmd::ReadIdent, theirs.ident.data()))
        return kExitFailed;
    if (!force && theirs.serialNumber() != model.serial()) {
        cli.prompt().tell(
            messageText(Msg::HistoryOtherValidator,
                        {QString::number(theirs.serialNumber()), QString::number(model.serial())}),
            UserPrompt::Kind::Error);
        return kExitFailed;
    }
    if (!force && theirs.familyNibble() != event.configuration->familyNibble()) {
        cli.prompt().tell(
            messageText(Msg::FamilyMismatch,
                        {QString::fromLatin1(familyText(event.configuration->familyByte())),
                         QString::fromLatin1(familyText(theirs.familyByte()))}),
            UserPrompt::Kind::Error);
        return kExitFailed;
    }
    ConfigImage state = *event.configuration;
    FullWriteOptions options;
    options.lastChannelWarning = [&cli](const QString &warning) {
        cli.err() << warning << Qt::endl;
        return true;
    };
    WriteObserver observer;
    observer.progress = [&cli](int gauge) {
        cli.showProgress(messageText(Msg::SavingInProgress), gauge);
    };
    SentBlocks sent;
    // Nothing was read here: the whole state goes.
    const WriteOutcome outcome = restoreWrite(*link, state, options, observer, &sent);
    cli.endProgress();
    return afterWrite(
        cli, *link, outcome, verify, sent,
        {QStringLiteral("restore"), state.serialNumber(), state, QString::number(index + 1)});
}

int historyCommand(CliContext &cli, const QStringList &args)
{
    QStringList rest = args;
    const bool json = rest.removeAll(QStringLiteral("--json")) > 0;
    const bool list = rest.removeAll(QStringLiteral("--list")) > 0;
    const bool noVerify = rest.removeAll(QStringLiteral("--no-verify")) > 0;
    const bool force = rest.removeAll(QStringLiteral("--force")) > 0;
    if (list)
        return rest.isEmpty() ? listSerials(cli, json) : kExitUsage;
    if (rest.isEmpty())
        return kExitUsage;
    bool ok = false;
    const quint32 serial = rest.takeFirst().toUInt(&ok);
    if (!ok) {
        cli.err() << "tarvik-cli: a serial number is a number from 0 to 4294967295" << Qt::endl;
        return kExitUsage;
    }
    HistoryModel model(*currentHistory(), &cli.prompt());
    if (!eventsOf(cli, model, serial))
        return kExitFailed;
    if (rest.isEmpty())
        return listEvents(cli, model, json);
    const QString action = rest.takeFirst();
    if (action == QLatin1String("--diff") && rest.size() == 2) {
        int a = 0, b = 0;
        if (!eventNumber(cli, rest[0], model, a) || !eventNumber(cli, rest[1], model, b))
            return kExitTrouble;
        const std::optional<QList<ConfigChange>> changes = model.compare(a, b);
        if (!changes) {
            cli.prompt().tell(messageText(Msg::HistoryNoConfiguration), UserPrompt::Kind::Error);
            return kExitTrouble;
        }
        return printDifferences(cli, *model.events().at(a).configuration,
                                *model.events().at(b).configuration, json);
    }
    if (action == QLatin1String("--restore") && rest.size() == 1) {
        int a = 0;
        if (!eventNumber(cli, rest[0], model, a))
            return kExitFailed;
        return restoreEvent(cli, model, a, !noVerify, force);
    }
    return kExitUsage;
}

} // namespace

void registerHistoryCommands(CliCommandTable &table)
{
    table.insert(
        QStringLiteral("history"),
        {QStringLiteral("history SERIAL [--json] | history SERIAL --diff A B [--json] |\n"
                        "  history SERIAL --restore A [--no-verify] [--force] | "
                        "history --list [--json]"),
         QStringLiteral("lists the events of the validator with that serial number, oldest "
                        "first, each with what changed since the one before; --diff compares "
                        "events A and B (1 = the oldest) as diff does; --restore writes the "
                        "configuration of event A to the connected validator, which must have "
                        "that serial number (unless --force), then reads it back unless "
                        "--no-verify; --list lists every serial number known with its last "
                        "event. An unknown serial number exits 1"),
         historyCommand});
}

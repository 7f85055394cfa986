#include "Backups.h"
#include "ChangesWrite.h"
#include "CliContext.h"
#include "CloneTarget.h"
#include "Commands.h"
#include "ConfigFile.h"
#include "DataDirectory.h"
#include "FirmwareFile.h"
#include "FirmwareTransfer.h"
#include "HistoryRecorder.h"
#include "Messages.h"
#include "Settings.h"
#include "WriteReport.h"
#include "WriteSequence.h"
#include "WriteVerification.h"

#include <QDir>
#include <QFile>

namespace {

WriteObserver gaugeOnTerminal(CliContext &cli)
{
    WriteObserver observer;
    observer.progress = [&cli](int gauge) {
        cli.showProgress(messageText(Msg::SavingInProgress), gauge);
    };
    return observer;
}

// What a read-back found is what the validator holds: it is kept among the backups, as a read
// is, so that the next write --changes counts from it.
void keepReadBack(CliContext &cli, const VerifyResult &result)
{
    if (result.outcome == VerifyOutcome::ReadBackFailed)
        return;
    const QString backups =
        DataDirectory::resolve(cli.options().dataDir) + QStringLiteral("/backups");
    QString error;
    if (keepBackup(backups, result.readBack, QDateTime::currentDateTime(), &error).isEmpty())
        cli.prompt().tell(messageText(Msg::BackupFailed, {error}), UserPrompt::Kind::Warning);
}

// After a write that finished: reads the validator back, prints what it holds against what
// was sent, and gives the exit code (1 when it differs or could not be read back).
int verifyCommandWrite(CliContext &cli, TMonnayeur &link, const SentBlocks &sent,
                       std::optional<VerifyResult> &result, bool keep)
{
    ReadObserver observer;
    observer.progress = [&cli](int gauge) { cli.showProgress(messageText(Msg::Verifying), gauge); };
    result = verifyWrite(link, sent, observer);
    cli.endProgress();
    if (keep)
        keepReadBack(cli, *result);
    cli.out() << verificationMessage(*result) << Qt::endl;
    return result->outcome == VerifyOutcome::Verified ? kExitOk : kExitFailed;
}

} // namespace

bool parseCloneGroups(const QString &list, CloneGroups &groups, QString &error)
{
    groups = CloneGroups{false, false, false, false, false};
    for (const QString &name : list.split(u',', Qt::SkipEmptyParts)) {
        if (name == QLatin1String("channels"))
            groups.channels = true;
        else if (name == QLatin1String("values"))
            groups.values = true;
        else if (name == QLatin1String("prices"))
            groups.prices = true;
        else if (name == QLatin1String("config"))
            groups.config = true;
        else if (name == QLatin1String("enable"))
            groups.enable = true;
        else {
            error = QStringLiteral("unknown group ") + name;
            return false;
        }
    }
    if (!groups.any())
        error = QStringLiteral("choose at least one group");
    return groups.any();
}

int afterWrite(CliContext &cli, TMonnayeur &link, WriteOutcome outcome, bool verify,
               const SentBlocks &sent, const WrittenState &written, bool keep)
{
    std::optional<VerifyResult> result;
    int code = kExitFailed;
    if (outcome == WriteOutcome::Finished) {
        const int verified = verify ? verifyCommandWrite(cli, link, sent, result, keep) : kExitOk;
        code = stepsRefused(sent.steps).isEmpty() ? verified : kExitFailed;
    }
    // The validator's history, when its serial number is known: a step refused leaves what it
    // holds unknown without the read-back. What was done stands if it cannot be kept.
    const bool readBack = result && result->outcome != VerifyOutcome::ReadBackFailed;
    if (written.serial || readBack) {
        const std::optional<HistoryEvent> event = writeHistoryEvent(
            written.kind, written.serial.value_or(0), outcome, result,
            stepsRefused(sent.steps).isEmpty() ? written.holds : std::nullopt, written.detail);
        if (event)
            keepHistory(currentHistory(), *event, &cli.prompt());
    }
    return code;
}

namespace {

QString familyName(quint8 familyByte)
{
    const QString text = QString::fromLatin1(familyText(familyByte));
    return text.isEmpty() ? QStringLiteral("0x%1").arg(familyByte, 2, 16, QLatin1Char('0')) : text;
}

// A configuration of one family would not suit a validator of another: nothing is sent.
bool sameFamily(CliContext &cli, TMonnayeur &link, const ConfigImage &image)
{
    VersionBlock theirs{};
    if (!link.CheckPresence(true) || !link.ReadBlock(Cmd::ReadVersion, theirs.data()))
        return false;
    if ((theirs[0] >> 4) == image.familyNibble())
        return true;
    cli.prompt().tell(
        messageText(Msg::FamilyMismatch, {familyName(image.familyByte()), familyName(theirs[0])}),
        UserPrompt::Kind::Error);
    return false;
}

// What the validator holds without --since: the newest read backup of its serial number.
bool newestBaseline(CliContext &cli, TMonnayeur &link, ConfigImage &baseline)
{
    IdentRecord theirs{};
    if (!link.CheckPresence(true) || !link.ReadBlock(Cmd::ReadIdent, theirs.data()))
        return false;
    ConfigImage connected = ConfigImage::blank();
    connected.ident = theirs;
    const QString serial = QString::number(connected.serialNumber());
    const QString dir = DataDirectory::resolve(cli.options().dataDir) + QStringLiteral("/backups");
    const QString newest = newestBackup(dir, connected.serialNumber());
    if (newest.isEmpty()) {
        cli.prompt().tell(messageText(Msg::ChangesNoBaseline, {serial}), UserPrompt::Kind::Error);
        cli.err() << "tarvik-cli: no read backup of validator " << serial << " in "
                  << QDir::toNativeSeparators(dir)
                  << ": give --since BASE, or write without --changes" << Qt::endl;
        return false;
    }
    cli.err() << "Changes since " << QDir::toNativeSeparators(newest) << Qt::endl;
    return readImageInput(cli, newest, baseline);
}

// write FILE --changes: only what differs from what the validator holds, then its read-back.
int writeChanges(CliContext &cli, const QString &file, const QString &since,
                 ChangesWriteOptions options, bool verify, quint32 serial)
{
    ConfigImage wanted;
    ConfigImage baseline;
    // Both files are read before the validator is spoken to.
    if (!readImageInput(cli, file, wanted) ||
        (!since.isEmpty() && !readImageInput(cli, since, baseline)))
        return kExitFailed;
    if (options.serialOverride)
        wanted.setSerialNumber(serial);
    TMonnayeur *link = cli.openLink();
    if (!link)
        return kExitFailed;
    if (since.isEmpty() && !newestBaseline(cli, *link, baseline))
        return kExitFailed;
    cli.prompt().setAnswer(UserPrompt::Answer::Cancel);
    options.askConnect = false;
    options.sending = [&](const ChangesPlan &plan) {
        for (const ConfigChange &change : changesSent(baseline, wanted, plan))
            cli.out() << change.text() << Qt::endl;
        cli.out() << plan.blocks() << (plan.blocks() == 1 ? " block" : " blocks") << " to write"
                  << Qt::endl;
    };
    const ChangesWriteResult result =
        changesWrite(*link, baseline, wanted, options, gaugeOnTerminal(cli));
    cli.endProgress();
    if (result.refusal == ChangesRefusal::WrittenSince)
        cli.err() << "tarvik-cli: --force writes the changes all the same" << Qt::endl;
    if (result.refusal == ChangesRefusal::NothingChanged)
        return kExitOk;
    if (result.refusal != ChangesRefusal::None)
        return kExitFailed;
    const bool finished = result.outcome == WriteOutcome::Finished;
    std::optional<VerifyResult> checked;
    int code = finished ? kExitOk : kExitFailed;
    if (verify && finished) {
        ReadObserver observer;
        observer.progress = [&cli](int gauge) {
            cli.showProgress(messageText(Msg::Verifying), gauge);
        };
        checked = verifySentBlocks(*link, baseline, result.sent, observer);
        cli.endProgress();
        keepReadBack(cli, *checked);
        cli.out() << verificationMessage(*checked) << Qt::endl;
        code = checked->outcome == VerifyOutcome::Verified ? kExitOk : kExitFailed;
    }
    // The validator's history: what it holds is known when every block went in.
    const bool complete = finished && stepsRefused(result.sent.steps).isEmpty();
    if (const std::optional<HistoryEvent> event = writeHistoryEvent(
            QStringLiteral("changes"), baseline.serialNumber(), result.outcome, checked,
            complete ? std::optional(expectedAfterWrite(baseline, result.sent)) : std::nullopt,
            file))
        keepHistory(currentHistory(), *event, &cli.prompt());
    return complete ? code : kExitFailed;
}

int writeCommand(CliContext &cli, const QStringList &args)
{
    QString file;
    FullWriteOptions options;
    ConfigImage image;
    quint32 serial = 0;
    bool force = false;
    bool verify = true;
    bool changes = false;
    QString since;
    for (int i = 0; i < args.size(); ++i) {
        if (args[i] == QLatin1String("--force")) {
            force = true;
        } else if (args[i] == QLatin1String("--changes")) {
            changes = true;
        } else if (args[i] == QLatin1String("--since") && i + 1 < args.size()) {
            since = args[++i];
        } else if (args[i] == QLatin1String("--no-verify")) {
            verify = false;
        } else if (args[i] == QLatin1String("--serial") && i + 1 < args.size()) {
            bool ok = false;
            serial = args[++i].toUInt(&ok);
            if (!ok) {
                cli.err() << "tarvik-cli: --serial takes a number from 0 to 4294967295" << Qt::endl;
                return kExitUsage;
            }
            options.serialOverride = true;
        } else if (file.isEmpty() && !args[i].startsWith(u'-')) {
            file = args[i];
        } else {
            return kExitUsage;
        }
    }
    if (file.isEmpty() || (!since.isEmpty() && !changes))
        return kExitUsage;
    if (changes) {
        ChangesWriteOptions changing;
        changing.force = force;
        changing.serialOverride = options.serialOverride;
        return writeChanges(cli, file, since, changing, verify, serial);
    }
    if (!readImageInput(cli, file, image))
        return kExitFailed;
    if (options.serialOverride)
        image.setSerialNumber(serial);

    TMonnayeur *link = cli.openLink();
    if (!link)
        return kExitFailed;
    if (!force && !sameFamily(cli, *link, image))
        return kExitFailed;
    // Nobody answers a dialog here: the connect loop gives up after one try, and the warning
    // about the last channel is printed while the write goes on.
    cli.prompt().setAnswer(UserPrompt::Answer::Cancel);
    options.lastChannelWarning = [&cli](const QString &warning) {
        cli.err() << warning << Qt::endl;
        return true;
    };
    SentBlocks sent;
    const WriteOutcome outcome = fullWrite(*link, image, options, gaugeOnTerminal(cli), &sent);
    cli.endProgress();
    // The write read the validator's own serial number into the image.
    return afterWrite(cli, *link, outcome, verify, sent,
                      {QStringLiteral("write"), image.serialNumber(), image, file});
}

int cloneCommand(CliContext &cli, const QStringList &args)
{
    QString file;
    CloneGroups groups;
    bool verify = true;
    // The "Back up before cloning" setting, unless --no-backup.
    Settings settings;
    settings.load();
    bool backup = settings.backupBeforeCloning();
    for (int i = 0; i < args.size(); ++i) {
        if (args[i] == QLatin1String("--no-verify")) {
            verify = false;
        } else if (args[i] == QLatin1String("--no-backup")) {
            backup = false;
        } else if (args[i] == QLatin1String("--groups") && i + 1 < args.size()) {
            QString error;
            if (!parseCloneGroups(args[++i], groups, error)) {
                cli.err() << "tarvik-cli: " << error << Qt::endl;
                return kExitUsage;
            }
        } else if (file.isEmpty() && !args[i].startsWith(u'-')) {
            file = args[i];
        } else {
            return kExitUsage;
        }
    }
    if (file.isEmpty())
        return kExitUsage;
    ConfigImage image;
    if (!readImageInput(cli, file, image))
        return kExitFailed;
    TMonnayeur *link = cli.openLink();
    if (!link)
        return kExitFailed;
    cli.prompt().setAnswer(UserPrompt::Answer::Cancel);
    ConfigImage target;
    bool known = false;
    if (backup) {
        // The target's own configuration is read and kept first, as a read keeps it; nobody
        // answers here, so a backup that cannot be written stops the clone.
        ReadObserver reading;
        const QString label = messageText(Msg::ValidatorReadingInProgress);
        reading.progress = [&](int gauge) { cli.showProgress(label, gauge); };
        const TargetBackup kept = keepCloneTarget(
            *link, DataDirectory::resolve(cli.options().dataDir) + QStringLiteral("/backups"),
            reading);
        cli.endProgress();
        if (!kept.goOn)
            return kExitFailed;
        cli.err() << messageText(Msg::CloneBackupKept, {kept.file}) << Qt::endl;
        // The target's read is a read of its own in its history.
        if (!kept.file.isEmpty() && loadConfigFile(kept.file, target, nullptr)) {
            known = true;
            keepHistory(currentHistory(),
                        historyEvent(target.serialNumber(), QStringLiteral("read"), {}, target),
                        &cli.prompt());
        }
    }
    SentBlocks sent;
    const WriteOutcome outcome = cloneWrite(*link, image, groups, gaugeOnTerminal(cli), &sent);
    cli.endProgress();
    // The target's history: known by the serial number of its read before, or of its read-back.
    WrittenState written{QStringLiteral("clone"), std::nullopt, std::nullopt, file};
    if (known) {
        written.serial = target.serialNumber();
        written.holds = expectedAfterWrite(target, sent);
    }
    // A clone keeps what its read-back found too, unless the target is not to be kept.
    return afterWrite(cli, *link, outcome, verify, sent, written, backup);
}

int firmwareCommand(CliContext &cli, const QStringList &args)
{
    QStringList rest = args;
    const bool yes = rest.removeAll(QStringLiteral("--yes")) > 0;
    if (rest.size() != 1 || rest.first().startsWith(u'-'))
        return kExitUsage;
    const QString path = rest.first();
    // The whole file is read and checked before anything is sent.
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        cli.err() << path << ": " << file.errorString() << Qt::endl;
        return kExitFailed;
    }
    const QByteArray firmware = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        cli.err() << path << ": " << file.errorString() << Qt::endl;
        return kExitFailed;
    }
    const FirmwareFileCheck check = checkFirmwareFile(firmware);
    if (!check.ok) {
        cli.err() << check.message(path) << Qt::endl;
        return kExitFailed;
    }
    if (firmware.size() > kLargeFirmwareBytes && !yes) {
        cli.err() << "tarvik-cli: " << path << " holds " << firmware.size()
                  << " bytes, more than 1 MB: sent byte by byte at 9600 baud it takes hours. "
                     "Add --yes to send it all the same."
                  << Qt::endl;
        return kExitTrouble;
    }
    cli.err() << "The mini-programmer must be in its upgrade mode: sending " << path << " ("
              << firmware.size() << " bytes) now." << Qt::endl;
    // The mini-programmer is waiting for the file: no connect command goes first.
    if (!cli.openLink())
        return kExitFailed;
    FirmwareTransfer transfer(cli.transport());
    qint64 nextLine = 0;
    transfer.progress = [&](qint64 sent, qint64 total) {
        if (cli.progressToTerminal()) {
            if (sent % FirmwareTransfer::kBlockSize == 0 || sent == total)
                cli.showProgress(QStringLiteral("%1 / %2 bytes").arg(sent).arg(total),
                                 int(sent * 100 / std::max<qint64>(total, 1)));
            return;
        }
        // Not a terminal: a line at every tenth of the file.
        if (sent < nextLine && sent != total)
            return;
        cli.err() << sent << " of " << total << " bytes sent" << Qt::endl;
        nextLine = sent + std::max<qint64>(total / 10, 1);
    };
    const auto result = transfer.FormTransfert(firmware);
    cli.endProgress();
    if (result != FirmwareTransfer::Result::UpgradeOver) {
        cli.err() << messageText(Msg::OperationCancelledByOperator) << Qt::endl;
        return kExitFailed;
    }
    cli.out() << messageText(Msg::UpgradeOver) << Qt::endl;
    if (transfer.portLost()) {
        cli.err() << messageText(Msg::FirmwarePortLost, {QString::number(transfer.bytesWritten()),
                                                         QString::number(firmware.size())})
                  << Qt::endl;
        return kExitFailed;
    }
    return kExitOk;
}

} // namespace

void registerWriteCommands(CliCommandTable &table)
{
    table.insert(QStringLiteral("write"),
                 {QStringLiteral("write FILE [--changes [--since BASE]] [--serial N] [--force] "
                                 "[--no-verify]"),
                  QStringLiteral("writes the whole configuration in FILE to the validator; a "
                                 "file of another firmware family is refused unless --force; "
                                 "then reads it back and prints what it does not hold (exit 1) "
                                 "unless --no-verify. With --changes only what differs from "
                                 "BASE (what the validator holds; by default its newest "
                                 "backup) is written, each difference printed, and only that is "
                                 "read back; a validator that is not BASE's is refused, one "
                                 "programmed since BASE unless --force"),
                  writeCommand});
    table.insert(QStringLiteral("clone"),
                 {QStringLiteral("clone FILE [--groups channels,values,prices,config,enable] "
                                 "[--no-verify] [--no-backup]"),
                  QStringLiteral("keeps the validator's own configuration among the backups "
                                 "(unless --no-backup or the \"Back up before cloning\" setting "
                                 "is off), copies the chosen groups of FILE onto it (another "
                                 "validator of the same family), says how its windows were "
                                 "corrected for its sensors, then reads it back and prints what "
                                 "it does not hold of what was sent (exit 1) unless --no-verify"),
                  cloneCommand});
    table.insert(QStringLiteral("firmware"),
                 {QStringLiteral("firmware FILE [--yes]"),
                  QStringLiteral("streams an S-record firmware file, as stored, to the "
                                 "mini-programmer in its upgrade mode; a file that is not "
                                 "S-record text is refused, one over 1 MB needs --yes"),
                  firmwareCommand});
}

// batch: one configuration onto validator after validator, hands-free, with its log.

#include "BatchLog.h"
#include "BatchRun.h"
#include "Captions.h"
#include "CliContext.h"
#include "ConfigFile.h"
#include "DataDirectory.h"
#include "DataSource.h"
#include "Messages.h"
#include "RecordStore.h"
#include "TDBModule.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QThread>
#include <csignal>

namespace {

volatile std::sig_atomic_t g_interrupted = 0;

void onInterrupt(int)
{
    g_interrupted = 1;
}

// Ctrl+C asks the batch to stop once the validator in hand has its result; the handler is put
// back as it was when the batch ends.
class InterruptStopsBatch final
{
public:
    InterruptStopsBatch()
    {
        g_interrupted = 0;
#ifdef Q_OS_WIN
        m_previous = std::signal(SIGINT, onInterrupt);
#else
        struct sigaction action = {};
        action.sa_handler = onInterrupt;
        sigemptyset(&action.sa_mask);
        action.sa_flags = SA_RESTART; // an exchange in progress goes on
        sigaction(SIGINT, &action, &m_previous);
#endif
    }
    ~InterruptStopsBatch()
    {
#ifdef Q_OS_WIN
        std::signal(SIGINT, m_previous);
#else
        sigaction(SIGINT, &m_previous, nullptr);
#endif
    }
    Q_DISABLE_COPY_MOVE(InterruptStopsBatch)

private:
#ifdef Q_OS_WIN
    void (*m_previous)(int) = SIG_DFL;
#else
    struct sigaction m_previous = {};
#endif
};

struct BatchArguments
{
    QString source;
    BatchSettings settings;
    bool groupsGiven = false;
    QString log;
    int idleSeconds = 0;
};

bool parse(const QStringList &args, BatchArguments &a, QString &error)
{
    auto number = [&](int i, int max, int &out) {
        bool ok = false;
        out = args.value(i).toInt(&ok);
        if (!ok || out < 0 || out > max)
            error = QStringLiteral("%1 takes a number from 0 to %2").arg(args[i - 1]).arg(max);
        return ok && out >= 0 && out <= max;
    };
    for (int i = 0; i < args.size(); ++i) {
        const QString &arg = args[i];
        const bool hasValue = i + 1 < args.size();
        if (arg == QLatin1String("--groups") && hasValue) {
            if (!parseCloneGroups(args[++i], a.settings.groups, error))
                return false;
            a.groupsGiven = true;
        } else if (arg == QLatin1String("--full")) {
            a.settings.full = true;
        } else if (arg == QLatin1String("--count") && hasValue) {
            if (!number(++i, 9999, a.settings.count))
                return false;
        } else if (arg == QLatin1String("--idle-timeout") && hasValue) {
            if (!number(++i, 86400, a.idleSeconds))
                return false;
        } else if (arg == QLatin1String("--log") && hasValue) {
            a.log = args[++i];
        } else if (arg == QLatin1String("--sheets") && hasValue) {
            a.settings.sheetsDirectory = args[++i];
        } else if (arg == QLatin1String("--again")) {
            a.settings.allowRepeat = true;
        } else if (a.source.isEmpty() && !arg.startsWith(u'-')) {
            a.source = arg;
        } else {
            return false;
        }
    }
    if (a.source.isEmpty())
        return false;
    if (a.settings.full == a.groupsGiven) {
        error = QStringLiteral("batch needs either --groups LIST or --full");
        return false;
    }
    a.settings.idleTimeoutMs = a.idleSeconds * 1000;
    return true;
}

// The source: a configuration file, or saved:ID for a validator saved in the tables.
bool loadSource(CliContext &cli, const QString &source, ConfigImage &image, QString &name)
{
    static const QString kSaved = QStringLiteral("saved:");
    if (!source.startsWith(kSaved)) {
        name = QFileInfo(source).completeBaseName();
        return readImageInput(cli, source, image);
    }
    name = source.mid(kSaved.size());
    DataSource records;
    if (!openDataSource(cli, records, {&TDBModule::Gettoniere}))
        return false;
    image = ConfigImage::blank();
    if (records.records().loadValidatorInto(name, image))
        return true;
    cli.err() << messageText(Msg::BatchSourceNotSaved, {name}) << Qt::endl;
    return false;
}

int batchCommand(CliContext &cli, const QStringList &args)
{
    BatchArguments a;
    QString error;
    if (!parse(args, a, error)) {
        if (!error.isEmpty())
            cli.err() << "tarvik-cli: " << error << Qt::endl;
        return kExitUsage;
    }
    if (!a.settings.sheetsDirectory.isEmpty() &&
        !qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        cli.err() << "tarvik-cli: the sheets are drawn only by the program itself" << Qt::endl;
        return kExitFailed;
    }
    QString sourceName;
    if (!loadSource(cli, a.source, a.settings.source, sourceName))
        return kExitFailed;
    const QString dataDir = DataDirectory::resolve(cli.options().dataDir);
    a.settings.backupDirectory = QDir(dataDir).filePath(QStringLiteral("backups"));
    BatchLog log(a.log.isEmpty() ? BatchLog::defaultPath(dataDir, sourceName) : a.log);
    if (!log.open(&error)) {
        cli.err() << messageText(Msg::BatchLogFailed, {error}) << Qt::endl;
        return kExitFailed;
    }
    TMonnayeur *link = cli.openLink();
    if (!link)
        return kExitFailed;
    cli.err() << captionText(Cap::BatchLogIn, {QDir::toNativeSeparators(log.path())}) << Qt::endl;

    BatchRun run(*link, a.settings, &log);
    QString lastStatus;
    run.changed = [&] {
        const QString status = run.status();
        if (status != lastStatus && !status.isEmpty())
            cli.err() << status << Qt::endl;
        lastStatus = status;
    };
    run.progress = [&](int gauge) { cli.showProgress(run.status(), gauge); };
    run.validatorDone = [&](const BatchValidatorResult &done) {
        cli.endProgress();
        const BatchRow &r = done.row;
        QString line = QStringLiteral("%1 %2 %3 s")
                           .arg(r.serial)
                           .arg(batchResultName(r.result))
                           .arg(r.seconds, 0, 'f', 1);
        if (!r.detail.isEmpty())
            line += QStringLiteral(": ") + QString(r.detail).replace(u'\n', QStringLiteral(" / "));
        cli.out() << line << Qt::endl;
    };
    InterruptStopsBatch interrupt;
    run.start();
    while (run.running()) {
        if (g_interrupted)
            run.stop();
        const BatchPhase before = run.phase();
        run.tick();
        // Polling for a validator to come or go leaves the line a breath between polls.
        if (before == run.phase() &&
            (before == BatchPhase::WaitingForValidator || before == BatchPhase::WaitingForUnplug))
            QThread::msleep(BatchRun::kPollPauseMs);
    }
    cli.endProgress();
    if (run.end() == BatchEnd::LogFailed)
        return kExitFailed;
    // A batch that handled no validator programmed nothing.
    return run.allVerified() && !run.rows().isEmpty() ? kExitOk : kExitFailed;
}

} // namespace

void registerBatchCommands(CliCommandTable &table)
{
    table.insert(
        QStringLiteral("batch"),
        {QStringLiteral("batch SOURCE (--groups LIST | --full) [--count N] [--log FILE] "
                        "[--sheets DIR] [--idle-timeout S] [--again]"),
         QStringLiteral(
             "writes SOURCE (a configuration file, or saved:ID for a validator saved in the "
             "tables) onto validator after validator as they are plugged in: the clone's groups "
             "(channels,values,prices,config,enable) corrected for each one's sensors, or the "
             "full write; each is found by its serial number, checked for its family, kept as a "
             "backup, written and read back; one line per validator on stdout and a row in the "
             "CSV log (batches/ in the data directory unless --log); a serial number verified "
             "in this batch is not written again unless --again; --sheets writes each one's "
             "configuration sheet; stops after N validators, on Ctrl+C once the validator in "
             "hand is done, or when none has been plugged for S seconds; exit 0 only when at "
             "least one validator was handled and every one was verified"),
         batchCommand});
}

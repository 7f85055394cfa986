#include "CliContext.h"
#include "HistoryRecorder.h"

#include "Backups.h"
#include "ConfigFile.h"
#include "DataDirectory.h"
#include "DataSource.h"
#include "DbfTable.h"
#include "Messages.h"
#include "PortChoice.h"
#include "PortMap.h"
#include "ReadSequence.h"
#include "SerialTransport.h"
#include "SimulatedLink.h"
#include "TDBModule.h"
#include "TracingTransport.h"

#include <algorithm>

void CliPrompt::tell(const QString &text, Kind)
{
    m_told.append(text);
    m_err << text << Qt::endl;
}

UserPrompt::Answer CliPrompt::ask(const QString &text, Kind, Buttons buttons)
{
    m_told.append(text);
    Answer a = m_answer;
    // Keep the answer within the buttons offered.
    if (buttons == Buttons::OkCancel && (a == Answer::Yes || a == Answer::No))
        a = a == Answer::Yes ? Answer::Ok : Answer::Cancel;
    if ((buttons == Buttons::YesNo || buttons == Buttons::YesNoCancel) &&
        (a == Answer::Ok || a == Answer::Cancel))
        a = a == Answer::Ok ? Answer::Yes : Answer::No;
    // The answer given is printed with the question.
    static const char *const words[] = {"ok", "cancel", "yes", "no"};
    m_err << text << " -> " << words[int(a)] << Qt::endl;
    return a;
}

int CliPrompt::choose(const QString &text, Kind, const QStringList &, const QString &dismiss)
{
    m_told.append(text);
    m_err << text << " -> " << dismiss.toLower() << Qt::endl;
    return -1;
}

CliContext::CliContext(const GlobalOptions &options, QTextStream &out, QTextStream &err,
                       bool progressToTerminal)
    : m_options(options), m_out(out), m_err(err), m_progress(progressToTerminal), m_prompt(err)
{}

CliContext::~CliContext()
{
    m_link.reset();
    if (m_transport)
        m_transport->close();
}

std::unique_ptr<Transport> CliContext::openTransport(int &comPortNumber)
{
    if (m_options.simulate) {
        comPortNumber = 1;
        return makeSimulatedTransport(quint8(m_options.simFamily), m_options.simLine);
    }
    if (!m_options.device.isEmpty()) {
        comPortNumber = 1;
        auto serial = std::make_unique<SerialTransport>();
        if (!serial->open(m_options.device)) {
            m_err << m_options.device << ": " << serial->errorString() << Qt::endl;
            if (serial->permissionDenied())
                m_prompt.tell(messageText(Msg::PortPermissionDenied), UserPrompt::Kind::Error);
            return nullptr;
        }
        return serial;
    }
    SerialPortOpener opener;
    opener.setReadTimeout(m_options.portTimeoutMs);
    if (!m_options.port.isEmpty()) {
        comPortNumber = m_options.portNumber;
    } else {
        const ProbeResult probe = FindValidatorPort(opener);
        if (!probe.answered) {
            m_err << "No validator answered on COM1 to COM9; name the port with --port or "
                     "--device."
                  << Qt::endl;
            if (probe.denied)
                m_prompt.tell(messageText(Msg::PortPermissionDenied), UserPrompt::Kind::Error);
            return nullptr;
        }
        comPortNumber = probe.comPortNumber;
    }
    auto transport = opener.ComInit(comPortNumber);
    if (!transport) {
        m_prompt.tell(messageText(Msg::PortNotFree, {QString::number(comPortNumber)}),
                      UserPrompt::Kind::Error);
        if (opener.lastOpenDenied())
            m_prompt.tell(messageText(Msg::PortPermissionDenied), UserPrompt::Kind::Error);
    }
    return transport;
}

TMonnayeur *CliContext::openLink()
{
    if (m_link)
        return m_link.get();
    int comPortNumber = 1;
    m_transport = openTransport(comPortNumber);
    if (!m_transport)
        return nullptr;
    m_transport->setReadTimeout(m_options.portTimeoutMs);
    Transport *wire = m_transport.get();
    if (!m_options.trace.isEmpty()) {
        m_traceFile = std::make_unique<QFile>(m_options.trace);
        if (!m_traceFile->open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)) {
            m_err << m_options.trace << ": " << m_traceFile->errorString() << Qt::endl;
            return nullptr;
        }
        m_traceStream = std::make_unique<QTextStream>(m_traceFile.get());
        m_tracing = std::make_unique<TracingTransport>(wire, m_traceStream.get());
        wire = m_tracing.get();
    }
    m_link = std::make_unique<TMonnayeur>(wire, &m_prompt, quint8(comPortNumber));
    return m_link.get();
}

void CliContext::showProgress(const QString &label, int percent)
{
    if (!m_progress)
        return;
    m_err << '\r' << label << ' ' << percent << '%' << Qt::flush;
    m_progressShown = true;
}

void CliContext::endProgress()
{
    if (m_progressShown)
        m_err << Qt::endl;
    m_progressShown = false;
}

bool readValidatorImage(CliContext &cli, ConfigImage &image)
{
    TMonnayeur *link = cli.openLink();
    if (!link)
        return false;
    ReadObserver observer;
    const QString label = messageText(Msg::ValidatorReadingInProgress);
    observer.progress = [&](int gauge) { cli.showProgress(label, gauge); };
    const ReadOutcome outcome = readValidator(*link, image, false, observer);
    cli.endProgress();
    if (outcome != ReadOutcome::Done)
        return false; // the link has printed the program's own message

    // Every good read is kept, so that the validator can be put back as it was.
    const QString backups =
        DataDirectory::resolve(cli.options().dataDir) + QStringLiteral("/backups");
    QString error;
    if (keepBackup(backups, image, QDateTime::currentDateTime(), &error).isEmpty())
        cli.prompt().tell(messageText(Msg::BackupFailed, {error}), UserPrompt::Kind::Warning);
    keepHistory(currentHistory(),
                historyEvent(image.serialNumber(), QStringLiteral("read"), {}, image),
                &cli.prompt());
    return true;
}

bool openDataSource(CliContext &cli, DataSource &source,
                    const QList<DbfTable *(TDBModule::*)() const> &reads)
{
    const QString named = DataSource::resolve(
        cli.options().dataSource.isEmpty() ? cli.options().dataDir : cli.options().dataSource);
    if (!source.open(named, cli.prompt())) {
        cli.err() << source.errorString() << Qt::endl;
        return false;
    }
    const TDBModule *tables = source.tables();
    return !tables || std::all_of(reads.begin(), reads.end(),
                                  [tables](auto table) { return (tables->*table)()->isOpen(); });
}

bool readImageInput(CliContext &cli, const QString &path, ConfigImage &image)
{
    QString error;
    if (loadConfigFile(path, image, &error))
        return true;
    cli.err() << error << Qt::endl;
    return false;
}

int writeImageOutput(CliContext &cli, const ConfigImage &image, const QString &path)
{
    if (path.isEmpty()) {
        cli.out() << QString::fromUtf8(configToJson(image)) << Qt::flush;
        return kExitOk;
    }
    QString error;
    if (!saveConfigFile(path, image, &error)) {
        cli.err() << error << Qt::endl;
        return kExitFailed;
    }
    return kExitOk;
}

bool takeOutputOption(QStringList &args, QString &path)
{
    for (int i = 0; i < args.size(); ++i) {
        if (args[i] != QLatin1String("-o") && args[i] != QLatin1String("--output"))
            continue;
        if (i + 1 >= args.size())
            return false;
        path = args[i + 1];
        args.remove(i, 2);
        return true;
    }
    return true;
}

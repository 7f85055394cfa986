#include "BatchRun.h"

#include "Backups.h"
#include "BatchSheet.h"
#include "Commands.h"
#include "HistoryRecorder.h"
#include "HistoryStore.h"
#include "Messages.h"
#include "ReadSequence.h"
#include "RecordingPrompt.h"
#include "TMonnayeur.h"
#include "WriteReport.h"
#include "WriteVerification.h"

namespace {

// While a validator is handled nobody is asked anything: the write's messages are gathered for
// the log's detail, and a question is answered Cancel (or No).
class GatheredMessages final
{
public:
    explicit GatheredMessages(TMonnayeur &link) : m_link(link), m_previous(link.prompt())
    {
        link.setPrompt(&m_prompt);
    }
    ~GatheredMessages() { m_link.setPrompt(m_previous); }
    Q_DISABLE_COPY_MOVE(GatheredMessages)

    QString text() const { return m_prompt.all().join(u'\n'); }

private:
    TMonnayeur &m_link;
    UserPrompt *m_previous;
    RecordingPrompt m_prompt;
};

QString familyName(quint8 familyByte)
{
    const QString text = QString::fromLatin1(familyText(familyByte));
    return text.isEmpty() ? QStringLiteral("0x%1").arg(familyByte, 2, 16, QLatin1Char('0')) : text;
}

} // namespace

BatchRun::BatchRun(TMonnayeur &link, BatchSettings settings, BatchLog *log)
    : m_link(link), m_settings(std::move(settings)), m_log(log)
{}

int BatchRun::verified() const
{
    return int(std::count_if(m_rows.begin(), m_rows.end(),
                             [](const BatchRow &r) { return r.result == BatchResult::Verified; }));
}

int BatchRun::failed() const
{
    return int(std::count_if(m_rows.begin(), m_rows.end(), [](const BatchRow &r) {
        return r.result == BatchResult::Failed || r.result == BatchResult::Mismatch;
    }));
}

int BatchRun::skipped() const
{
    return int(m_rows.size()) - verified() - failed();
}

void BatchRun::start()
{
    m_rows.clear();
    m_done.clear();
    m_stopAsked = false;
    m_end = BatchEnd::None;
    enter(BatchPhase::WaitingForValidator);
}

void BatchRun::enter(BatchPhase phase)
{
    m_phase = phase;
    if (phase == BatchPhase::WaitingForValidator) {
        m_idle.start();
        m_missedPolls = 0;
    }
    if (changed)
        changed();
}

void BatchRun::finish(BatchEnd end)
{
    m_end = end;
    enter(BatchPhase::Finished);
}

void BatchRun::tick()
{
    switch (m_phase) {
    case BatchPhase::WaitingForValidator:
        waitForValidator();
        break;
    case BatchPhase::Found:
        identify();
        break;
    case BatchPhase::Writing:
        write();
        break;
    case BatchPhase::Verifying:
        verify();
        break;
    case BatchPhase::WaitingForUnplug:
        waitForUnplug();
        break;
    case BatchPhase::NotStarted:
    case BatchPhase::Finished:
        break;
    }
}

void BatchRun::waitForValidator()
{
    if (m_stopAsked)
        return finish(BatchEnd::Stopped);
    if (m_settings.idleTimeoutMs > 0 && m_idle.elapsed() >= m_settings.idleTimeoutMs)
        return finish(BatchEnd::IdleTimeout);
    if (!m_link.CheckPresence(false))
        return;
    m_handling.start();
    enter(BatchPhase::Found);
}

void BatchRun::identify()
{
    GatheredMessages quiet(m_link);
    m_link.setLinkGood(true);
    IdentRecord ident{};
    VersionBlock version{};
    if (!m_link.ReadBlock(Cmd::ReadIdent, ident.data()) ||
        !m_link.ReadBlock(Cmd::ReadVersion, version.data())) {
        // Still being plugged in, or gone again: it is looked for anew, and the time without
        // a validator goes on counting.
        m_phase = BatchPhase::WaitingForValidator;
        if (changed)
            changed();
        return;
    }
    ConfigImage theirs = ConfigImage::blank();
    theirs.ident = ident;
    m_serial = theirs.serialNumber();
    m_family = version[0];
    m_backupFile.clear();
    m_writeDetail.clear();

    const auto done = m_done.constFind(m_serial);
    if (done != m_done.cend() && !m_settings.allowRepeat)
        return record(
            BatchResult::AlreadyDone,
            messageText(Msg::BatchAlreadyDone, {done->toString(QStringLiteral("HH:mm:ss"))}));
    // The clone's rule: the firmware's first two version bytes; the full write's: the family.
    const ConfigImage &source = m_settings.source;
    const bool sameFamily =
        m_settings.full ? (version[0] >> 4) == source.familyNibble()
                        : version[0] == source.version[0] && version[1] == source.version[1];
    if (!sameFamily)
        return record(BatchResult::WrongFamily,
                      messageText(Msg::BatchWrongFamily,
                                  {familyName(version[0]), familyName(source.familyByte())}));
    enter(BatchPhase::Writing);
}

void BatchRun::write()
{
    ReadObserver reading;
    reading.progress = [this](int gauge) {
        if (progress)
            progress(gauge);
    };
    WriteObserver writing;
    writing.progress = reading.progress;
    GatheredMessages gathered(m_link);

    // Its own configuration first, so that it can be put back as it was.
    ConfigImage own = ConfigImage::blank();
    if (readValidator(m_link, own, false, reading) != ReadOutcome::Done)
        return record(BatchResult::Failed, messageText(Msg::BatchNotRead));
    QString error;
    m_backupFile =
        keepBackup(m_settings.backupDirectory, own, QDateTime::currentDateTime(), &error);
    if (m_backupFile.isEmpty())
        return record(BatchResult::Failed, messageText(Msg::BatchBackupNotKept, {error}), own);

    m_sent = SentBlocks{};
    WriteOutcome outcome;
    if (m_settings.full) {
        ConfigImage image = m_settings.source;
        FullWriteOptions options;
        // Its last channel is its own reference: it differs from the source's, as expected.
        options.lastChannelWarning = [](const QString &) { return true; };
        outcome = fullWrite(m_link, image, options, writing, &m_sent);
    } else {
        outcome = cloneWrite(m_link, m_settings.source, m_settings.groups, writing, &m_sent);
    }
    switch (outcome) {
    case WriteOutcome::Finished:
        m_writeDetail = m_sent.correction ? correctionText(*m_sent.correction) : QString();
        enter(BatchPhase::Verifying);
        return;
    case WriteOutcome::IncorrectVersion:
        return record(BatchResult::WrongFamily, gathered.text(), own);
    case WriteOutcome::Cancelled:
    case WriteOutcome::NoGroup:
        return record(BatchResult::Failed, messageText(Msg::BatchNothingWritten), own);
    case WriteOutcome::Fault:
        // The write has said what reached it and what may have.
        return record(BatchResult::Failed, gathered.text());
    }
}

void BatchRun::verify()
{
    ReadObserver reading;
    reading.progress = [this](int gauge) {
        if (progress)
            progress(gauge);
    };
    GatheredMessages quiet(m_link);
    const VerifyResult result = verifyWrite(m_link, m_sent, reading);
    const QStringList refused = stepsRefused(m_sent.steps);
    switch (result.outcome) {
    case VerifyOutcome::Verified:
        if (refused.isEmpty())
            return record(BatchResult::Verified, m_writeDetail, result.readBack);
        return record(BatchResult::Mismatch, refused.join(QStringLiteral(", ")), result.readBack);
    case VerifyOutcome::Mismatches:
        return record(BatchResult::Mismatch, verificationMessage(result, 5), result.readBack);
    case VerifyOutcome::ReadBackFailed:
        return record(BatchResult::Failed, messageText(Msg::BatchNotVerified));
    }
}

void BatchRun::waitForUnplug()
{
    if (m_stopAsked)
        return finish(BatchEnd::Stopped);
    if (m_link.CheckPresence(false)) {
        m_missedPolls = 0;
        return;
    }
    if (++m_missedPolls >= kUnplugPolls)
        enter(BatchPhase::WaitingForValidator);
}

void BatchRun::record(BatchResult result, const QString &detail, std::optional<ConfigImage> holds)
{
    BatchValidatorResult done;
    done.row.time = QDateTime::currentDateTime();
    done.row.serial = m_serial;
    done.row.family = m_family;
    done.row.result = result;
    done.row.seconds = m_handling.isValid() ? m_handling.elapsed() / 1000.0 : 0.0;
    done.row.detail = detail;
    if (holds && !m_settings.sheetsDirectory.isEmpty()) {
        QString error;
        if (writeBatchSheet(m_settings.sheetsDirectory, *holds, &error).isEmpty())
            done.row.detail += (detail.isEmpty() ? QString() : QStringLiteral("\n")) +
                               messageText(Msg::BatchSheetNotWritten, {error});
    }
    // The validator's history, for every validator written to, or tried.
    HistoryStore *history = currentHistory();
    const bool tried = result == BatchResult::Verified || result == BatchResult::Mismatch ||
                       result == BatchResult::Failed;
    QString historyError;
    if (history && tried && m_serial != 0 &&
        !history->record(historyEvent(m_serial, QStringLiteral("batch"), batchResultName(result),
                                      holds, done.row.detail),
                         &historyError))
        done.row.detail += (done.row.detail.isEmpty() ? QString() : QStringLiteral("\n")) +
                           messageText(Msg::HistoryNotKept, {historyError});
    done.backupFile = m_backupFile;
    done.holds = std::move(holds);
    if (result == BatchResult::Verified)
        m_done.insert(m_serial, done.row.time);
    m_rows.append(done.row);
    if (m_log && !m_log->append(done.row, &m_logError)) {
        if (validatorDone)
            validatorDone(done);
        return finish(BatchEnd::LogFailed);
    }
    if (validatorDone)
        validatorDone(done);
    if (m_settings.count > 0 && m_rows.size() >= m_settings.count)
        return finish(BatchEnd::CountReached);
    enter(BatchPhase::WaitingForUnplug);
}

QString BatchRun::status() const
{
    const QString serial = QString::number(m_serial);
    switch (m_phase) {
    case BatchPhase::NotStarted:
        return {};
    case BatchPhase::WaitingForValidator:
        return messageText(Msg::BatchPlugNext);
    case BatchPhase::Found:
        return messageText(Msg::BatchFound);
    case BatchPhase::Writing:
        return messageText(Msg::BatchWriting, {serial});
    case BatchPhase::Verifying:
        return messageText(Msg::BatchVerifying, {serial});
    case BatchPhase::WaitingForUnplug:
        break;
    case BatchPhase::Finished:
        switch (m_end) {
        case BatchEnd::IdleTimeout:
            return messageText(Msg::BatchIdle, {QString::number(m_settings.idleTimeoutMs / 1000)});
        case BatchEnd::LogFailed:
            return messageText(Msg::BatchLogFailed, {m_logError});
        default:
            return messageText(Msg::BatchFinished,
                               {QString::number(verified()), QString::number(failed()),
                                QString::number(skipped())});
        }
    }
    if (m_rows.isEmpty())
        return {};
    switch (m_rows.last().result) {
    case BatchResult::Verified:
        return messageText(Msg::BatchVerifiedUnplug, {serial});
    case BatchResult::Mismatch:
        return messageText(Msg::BatchMismatchUnplug, {serial});
    case BatchResult::Failed:
        return messageText(Msg::BatchFailedUnplug, {serial});
    case BatchResult::AlreadyDone:
        return messageText(Msg::BatchAlreadyDoneUnplug, {serial});
    case BatchResult::WrongFamily:
        return messageText(Msg::BatchWrongFamilyUnplug, {serial});
    }
    return {};
}

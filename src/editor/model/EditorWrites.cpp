// The editor's writes and how each one ends: one box that says everything, after the read-back.
#include "Captions.h"
#include "ChangesWrite.h"
#include "CloneTarget.h"
#include "ConfigFile.h"
#include "EditorModel.h"
#include "EditorServices.h"
#include "Messages.h"
#include "RestoreWrite.h"
#include "TMonnayeur.h"
#include "UserPrompt.h"
#include "WriteReport.h"
#include "WriteSequence.h"
#include "WriteVerification.h"

#include <utility>

namespace {

int severity(UserPrompt::Kind kind)
{
    switch (kind) {
    case UserPrompt::Kind::Error:
        return 2;
    case UserPrompt::Kind::Warning:
        return 1;
    default:
        return 0;
    }
}

// Keeps what a write tells (the link's errors, the write's result, what it left), each text
// once, to be said in one box at the end; questions still go to the person at once.
class GatheringPrompt final : public UserPrompt
{
public:
    explicit GatheringPrompt(UserPrompt *person) : m_person(person) {}

    void tell(const QString &text, Kind kind) override
    {
        raise(kind);
        if (!m_texts.contains(text))
            m_texts.append(text);
    }
    Answer ask(const QString &text, Kind kind, Buttons buttons) override
    {
        if (m_person)
            return m_person->ask(text, kind, buttons);
        return buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
    }
    int choose(const QString &text, Kind kind, const QStringList &choices,
               const QString &dismiss) override
    {
        return m_person ? m_person->choose(text, kind, choices, dismiss) : -1;
    }

    void raise(Kind kind)
    {
        if (severity(kind) > severity(m_kind))
            m_kind = kind;
    }
    // Says at once what was kept so far, in one box, and starts again.
    void release()
    {
        if (m_person && !m_texts.isEmpty())
            m_person->tell(text(), m_kind);
        m_texts.clear();
        m_kind = Kind::Information;
    }
    Kind kind() const { return m_kind; }
    QString text() const { return m_texts.join(QLatin1Char('\n')); }

private:
    UserPrompt *m_person;
    QStringList m_texts;
    Kind m_kind = Kind::Information;
};

// The link speaks through another prompt while this lives.
class PromptSwap
{
public:
    PromptSwap(TMonnayeur &link, UserPrompt *prompt) : m_link(link), m_was(link.prompt())
    {
        link.setPrompt(prompt);
    }
    ~PromptSwap() { m_link.setPrompt(m_was); }
    Q_DISABLE_COPY_MOVE(PromptSwap)

private:
    TMonnayeur &m_link;
    UserPrompt *m_was;
};

// A message box must fit the screen: the read-back's first lines, then how many more.
constexpr int kVerificationLines = 20;

} // namespace

void EditorModel::SpeedButton8Click()
{
    if (!m_link)
        return;
    exclusive([&] {
        EHFUBMIN0Exit();
        writeWithEnding({WriteJob::Kind::Full, {}});
        display();
    });
}

void EditorModel::SpeedButton2Click()
{
    if (!m_link)
        return;
    exclusive([&] {
        EHFUBMIN0Exit();
        const std::optional<CloneGroups> groups =
            m_services ? m_services->chooseCloneGroups() : CloneGroups{};
        if (!groups || !groups->any())
            return;
        // The target's own configuration is read and kept first, as a read keeps it.
        const QString backups = m_services && m_services->backupBeforeCloning()
                                    ? m_services->backupDirectory()
                                    : QString();
        m_cloneTarget.reset();
        if (!backups.isEmpty()) {
            showProgress(true, messageText(Msg::ValidatorReadingInProgress));
            ReadObserver reading;
            reading.progress = [&](int gauge) {
                setGauge(gauge);
                flush();
            };
            const TargetBackup kept = keepCloneTarget(*m_link, backups, reading);
            const bool goOn = kept.goOn;
            showProgress(false);
            // The target as read: its history's serial number and what the clone starts from.
            ConfigImage target;
            if (!kept.file.isEmpty() && loadConfigFile(kept.file, target, nullptr)) {
                m_cloneTarget = target;
                if (m_services)
                    m_services->validatorEvent({QStringLiteral("read"),
                                                target.serialNumber(),
                                                WriteOutcome::Finished,
                                                std::nullopt,
                                                target,
                                                {}});
            }
            if (!goOn) {
                display();
                return;
            }
        }
        writeWithEnding({WriteJob::Kind::Clone, *groups});
        display();
    });
}

void EditorModel::restoreState(const ConfigImage &state, const QString &from)
{
    if (!m_link)
        return;
    loadImage(state, true, BaselineSource::Kind::File, from);
    m_restoring = true;
    // Put back on the validator read or written here, only what differs goes.
    if (m_s.baselineFrom.fromValidator() && m_s.baselineFrom.serial == state.serialNumber())
        BtnWriteChangesClick();
    else
        SpeedButton8Click();
    m_restoring = false;
}

void EditorModel::writeWithEnding(WriteJob job)
{
    for (;;) {
        GatheringPrompt gathered(m_s.prompt);
        WriteOutcome outcome = WriteOutcome::Cancelled;
        {
            PromptSwap swap(*m_link, &gathered);
            WriteEnding ending;
            ending.started = [&] { gathered.release(); };
            ending.verified = [&](const VerifyResult &result) {
                gathered.tell(verificationMessage(result, kVerificationLines),
                              result.outcome == VerifyOutcome::Verified
                                  ? UserPrompt::Kind::Information
                                  : UserPrompt::Kind::Warning);
            };
            outcome = oneWrite(job, ending);
        }
        if (!m_s.prompt)
            return;
        if (outcome != WriteOutcome::Fault) {
            if (!gathered.text().isEmpty())
                m_s.prompt->tell(gathered.text(), gathered.kind());
            return;
        }
        // A clone's target was not the validator read: its last read is no backup of it.
        QStringList choices{captionText(Cap::WriteAgain)};
        const bool putBack = m_lastRead.has_value() && job.kind != WriteJob::Kind::Clone;
        if (putBack)
            choices.append(captionText(Cap::PutBack));
        const int chosen = m_s.prompt->choose(gathered.text(), UserPrompt::Kind::Error, choices,
                                              captionText(Cap::Close));
        if (chosen < 0)
            return;
        if (chosen == 1)
            job.kind = WriteJob::Kind::PutBack;
    }
}

WriteOutcome EditorModel::writeImage(ConfigImage &image, FullWriteOptions &options,
                                     SentBlocks &sent, const WriteEnding &ending)
{
    // The label and the gauge show when the gauge starts, after the connect loop and the
    // warnings.
    bool shown = false;
    WriteObserver observer;
    observer.progress = [&](int gauge) {
        if (!std::exchange(shown, true)) {
            ending.started();
            showProgress(true, messageText(Msg::SavingInProgress));
        }
        setGauge(gauge);
        flush();
    };
    const WriteOutcome outcome = m_restoring
                                     ? restoreWrite(*m_link, image, options, observer, &sent)
                                     : fullWrite(*m_link, image, options, observer, &sent);
    showProgress(false);
    return outcome;
}

WriteOutcome EditorModel::oneWrite(const WriteJob &job, const WriteEnding &ending)
{
    SentBlocks sent;
    if (job.kind == WriteJob::Kind::Clone) {
        showProgress(true, messageText(Msg::SavingInProgress));
        bool started = false;
        WriteObserver observer;
        observer.progress = [&](int gauge) {
            if (!std::exchange(started, true))
                ending.started();
            setGauge(gauge);
            flush();
        };
        const WriteOutcome outcome = cloneWrite(*m_link, m_s.image, job.groups, observer, &sent);
        showProgress(false);
        // The image stays the source's: Changes and the modified flag are left as they were.
        std::optional<VerifyResult> result;
        if (outcome == WriteOutcome::Finished) {
            result = verifyAfterWrite(sent);
            if (result) {
                ending.verified(*result);
                // The target as the clone left it, where its state before is kept.
                if (result->outcome != VerifyOutcome::ReadBackFailed &&
                    (!m_services || m_services->backupBeforeCloning()))
                    keepBackup(result->readBack);
            }
        }
        // The target's history: known by its serial number when it was read first or back.
        if (m_services &&
            (m_cloneTarget || (result && result->outcome != VerifyOutcome::ReadBackFailed))) {
            const std::optional<ConfigImage> holds =
                m_cloneTarget ? std::optional(expectedAfterWrite(*m_cloneTarget, sent))
                              : std::nullopt;
            m_services->validatorEvent(
                {QStringLiteral("clone"),
                 m_cloneTarget ? m_cloneTarget->serialNumber() : result->readBack.serialNumber(),
                 outcome,
                 result,
                 holds,
                 {}});
        }
        return outcome;
    }

    FullWriteOptions options;
    ConfigImage backup = m_lastRead ? *m_lastRead : m_s.image;
    const bool putBack = job.kind == WriteJob::Kind::PutBack;
    if (putBack) {
        // The validator's own configuration goes back whatever its last channel now holds.
        options.lastChannelWarning = [](const QString &) { return true; };
    } else {
        options.serialOverride = m_s.flags.serialOverride;
        options.codeTableCheck = m_s.outputType() == 0 && m_s.checked(QStringLiteral("ChkCode"));
        options.lastChannelWarning = [&](const QString &warning) {
            return !m_services || m_services->continueDespite(warning);
        };
    }
    ConfigImage &image = putBack ? backup : m_s.image;
    const WriteOutcome outcome = writeImage(image, options, sent, ending);
    if (!putBack)
        m_s.flags.serialOverride = options.serialOverride;
    const QString kind =
        putBack || m_restoring ? QStringLiteral("restore") : QStringLiteral("write");
    if (outcome != WriteOutcome::Finished) {
        if (m_services)
            m_services->validatorEvent(
                {kind, image.serialNumber(), outcome, std::nullopt, std::nullopt, {}});
        return outcome;
    }
    // The validator now holds the image, unless the read-back shows otherwise: then closing
    // offers to write it again, and Changes counts from what it holds.
    const std::optional<VerifyResult> result = verifyAfterWrite(sent);
    if (result)
        ending.verified(*result);
    if (result && result->outcome != VerifyOutcome::ReadBackFailed)
        keepBackup(result->readBack);
    // A step refused leaves what the validator holds unknown without the read-back.
    if (m_services)
        m_services->validatorEvent(
            {kind,
             image.serialNumber(),
             outcome,
             result,
             stepsRefused(sent.steps).isEmpty() ? std::optional(image) : std::nullopt,
             {}});
    const bool differs = result && result->outcome == VerifyOutcome::Mismatches;
    // Without the read-back, a refused step still leaves something to write again.
    const bool refused = !result && !stepsRefused(sent.steps).isEmpty();
    if (!refused)
        validatorHolds(differs ? result->readBack : image, BaselineSource::Kind::Written);
    // After a put back the editor keeps its own configuration, which the validator now lacks.
    m_s.flags.configModified =
        differs || refused || (putBack && !configDifferences(m_s.baseline, m_s.image).isEmpty());
    return outcome;
}

std::optional<VerifyResult> EditorModel::verifyAfterWrite(const SentBlocks &sent)
{
    if (m_services && !m_services->verifyAfterWrite())
        return std::nullopt;
    // The technician must not take the write for over while the validator is read back.
    showProgress(true, messageText(Msg::VerifyingDoNotUnplug));
    ReadObserver observer;
    observer.progress = [&](int gauge) {
        setGauge(gauge);
        flush();
    };
    // A read into an image of its own: the editor keeps what it shows.
    const VerifyResult result = verifyWrite(*m_link, sent, observer);
    showProgress(false);
    return result;
}

void EditorModel::validatorHolds(const ConfigImage &image, BaselineSource::Kind kind)
{
    m_s.baseline = image;
    m_s.baselineFrom = {kind, {}, image.serialNumber(), QDateTime::currentDateTime()};
    // The History button follows the validator read or written.
    showSheetButtons();
}

bool EditorModel::unwrittenChangesAccepted(bool opening)
{
    if (!m_s.baselineFrom.fromValidator() || !m_s.prompt)
        return true;
    const qsizetype count = configDifferences(m_s.baseline, m_s.image).size();
    if (count == 0)
        return true;
    const Msg question = opening ? Msg::UnwrittenChangesOpen : Msg::UnwrittenChangesStore;
    return m_s.prompt->choose(messageText(question, {QString::number(count)}),
                              UserPrompt::Kind::Confirmation, {captionText(Cap::GoOn)},
                              captionText(Cap::CancelChoice)) == 0;
}

// ---- reading ------------------------------------------------------------------------------

void EditorModel::SpeedButton1Click()
{
    if (!m_link)
        return;
    exclusive([&] {
        m_s.flags.readFailed = false;
        bool shown = false;
        ReadObserver observer;
        observer.progress = [&](int gauge) {
            if (!shown) {
                shown = true;
                showProgress(true, messageText(Msg::ValidatorReadingInProgress));
            }
            setGauge(gauge);
            flush();
        };
        observer.familyKnown = [&](bool light) {
            showModel(light);
            flush();
        };
        observer.pageReached = [&](int page) {
            m_grid.showPage(page);
            flush();
            if (repaintNow)
                repaintNow();
        };
        const ReadOutcome outcome =
            readValidator(*m_link, m_s.image, m_s.flags.promptFlag, observer);
        showProgress(false);
        if (outcome != ReadOutcome::Done) {
            // Nothing partial is shown: the editor closes.
            m_s.flags.readFailed = true;
            if (closeRequested)
                closeRequested();
            return;
        }
        m_s.flags.readOnOpen = false;
        m_s.flags.editChanged = false;
        m_holdsConfiguration = true;
        showSheetButtons();
        m_money.takeFromImage();
        m_counters.takeFromImage();
        display();
        m_s.flags.promptFlag = true;
        m_s.flags.configModified = false;
        validatorHolds(m_s.image, BaselineSource::Kind::Read);
        m_lastRead = m_s.image;
        keepBackup(m_s.image);
        if (m_services)
            m_services->validatorEvent({QStringLiteral("read"),
                                        m_s.image.serialNumber(),
                                        WriteOutcome::Finished,
                                        std::nullopt,
                                        m_s.image,
                                        {}});
    });
}

// ---- writing only what changed ------------------------------------------------------------

void EditorModel::showWriteChanges()
{
    // A box typed into but not yet left counts: its exit comes before the write.
    const bool known = m_link && m_s.baselineFrom.fromValidator();
    m_s.controls.setEnabled(
        QStringLiteral("BtnWriteChanges"),
        known && (m_s.flags.editChanged || !planChanges(m_s.baseline, m_s.image).empty()));
}

void EditorModel::BtnWriteChangesClick()
{
    // Disabled while what the validator holds is not known: Changes then offers the whole write.
    if (!m_link || !m_s.baselineFrom.fromValidator())
        return;
    exclusive([&] {
        EHFUBMIN0Exit();
        writeChanges(m_s.image, false);
        display();
    });
}

void EditorModel::writeChannelAtOnce(int k)
{
    if (!m_link || m_busy || !m_services || !m_services->directWrite() ||
        !m_s.baselineFrom.fromValidator() || k >= m_s.image.channelCount())
        return;
    // What the validator holds with this channel's record, value and enable bit as edited:
    // the other changes wait for a write.
    ConfigImage wanted = m_s.baseline;
    const auto at = std::size_t(k);
    std::copy_n(m_s.image.channels[at].begin(), 15, wanted.channels[at].begin());
    wanted.values[std::size_t(Val::Channel0 + k)] = m_s.image.valueByte(k);
    const auto byte = std::size_t(7 - k / 8);
    const quint8 bit = quint8(1u << (k % 8));
    wanted.enable[byte] = quint8((wanted.enable[byte] & ~bit) | (m_s.image.enable[byte] & bit));
    if (planChanges(m_s.baseline, wanted).empty())
        return; // left without a change: nothing to say
    exclusive([&] { writeChanges(wanted, true); });
}

void EditorModel::writeChanges(const ConfigImage &wanted, bool quiet)
{
    GatheringPrompt gathered(m_s.prompt);
    ChangesWriteResult result;
    std::optional<VerifyResult> verified;
    {
        PromptSwap swap(*m_link, &gathered);
        ChangesWriteOptions options;
        options.serialOverride = m_s.flags.serialOverride;
        bool shown = false;
        WriteObserver observer;
        observer.progress = [&](int gauge) {
            if (!std::exchange(shown, true))
                showProgress(true, messageText(Msg::SavingInProgress));
            setGauge(gauge);
            flush();
        };
        result = changesWrite(*m_link, m_s.baseline, wanted, options, observer);
        showProgress(false);
        const bool wrote =
            result.outcome == WriteOutcome::Finished && result.refusal == ChangesRefusal::None;
        if (wrote && (!m_services || m_services->verifyAfterWrite())) {
            showProgress(true, messageText(Msg::VerifyingDoNotUnplug));
            ReadObserver reading;
            reading.progress = [&](int gauge) {
                setGauge(gauge);
                flush();
            };
            verified = verifySentBlocks(*m_link, m_s.baseline, result.sent, reading);
            showProgress(false);
            if (verified->outcome != VerifyOutcome::ReadBackFailed)
                keepBackup(verified->readBack);
            gathered.tell(verificationMessage(*verified, kVerificationLines),
                          verified->outcome == VerifyOutcome::Verified
                              ? UserPrompt::Kind::Information
                              : UserPrompt::Kind::Warning);
        }
        if (wrote) {
            if (result.plan.ident)
                m_s.flags.serialOverride = false;
            // The validator holds what was sent, or what the read-back found; a refused step
            // leaves the baseline as it was, so that the next write sends it again.
            const bool differs = verified && verified->outcome == VerifyOutcome::Mismatches;
            if (stepsRefused(result.sent.steps).isEmpty())
                validatorHolds(differs ? verified->readBack
                                       : expectedAfterWrite(m_s.baseline, result.sent),
                               BaselineSource::Kind::Written);
            m_s.flags.configModified = !configDifferences(m_s.baseline, m_s.image).isEmpty();
        }
        // The validator's history, once something was sent: what it holds is known when every
        // block went in.
        if (m_services && result.refusal == ChangesRefusal::None && !result.plan.empty()) {
            const bool known = wrote && stepsRefused(result.sent.steps).isEmpty();
            m_services->validatorEvent(
                {m_restoring ? QStringLiteral("restore") : QStringLiteral("changes"),
                 m_s.baseline.serialNumber(),
                 result.outcome,
                 verified,
                 known ? std::optional(m_s.baseline) : std::nullopt,
                 {}});
        }
    }
    const bool good = result.outcome == WriteOutcome::Finished &&
                      gathered.kind() == UserPrompt::Kind::Information;
    if (m_s.prompt && !(quiet && good) && !gathered.text().isEmpty())
        m_s.prompt->tell(gathered.text(), gathered.kind());
}

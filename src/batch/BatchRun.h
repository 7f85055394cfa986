#pragma once

#include "BatchLog.h"
#include "CloneGroups.h"
#include "ConfigImage.h"
#include "WriteSequence.h"

#include <QElapsedTimer>
#include <QHash>
#include <QList>
#include <QString>
#include <functional>
#include <optional>

// What a batch writes, and how.
struct BatchSettings
{
    ConfigImage source = ConfigImage::blank();
    // The full write instead of the clone's groups.
    bool full = false;
    CloneGroups groups;
    // Stop after this many validators handled (0: no limit).
    int count = 0;
    // A serial number verified earlier in this batch is written again.
    bool allowRepeat = false;
    // Stop when no validator has been plugged for this long (0: wait for ever).
    int idleTimeoutMs = 0;
    // Where each validator's own configuration is kept before it is written.
    QString backupDirectory;
    // Where the configuration sheet of what each validator holds goes (empty: no sheets).
    QString sheetsDirectory;
};

// Where a batch stands.
enum class BatchPhase
{
    NotStarted,
    WaitingForValidator, // polling presence until the next one answers
    Found,               // it answered: its identification and family come next
    Writing,             // its backup, then the write
    Verifying,           // read back and compared with what was sent
    WaitingForUnplug,    // its result is known: polling until it no longer answers
    Finished
};

enum class BatchEnd
{
    None,
    CountReached,
    Stopped,
    IdleTimeout,
    LogFailed
};

// Everything known about one validator once its result is: the log's row, the backup of its own
// configuration kept before the write, and what it holds now when that was read.
struct BatchValidatorResult
{
    BatchRow row;
    QString backupFile;
    std::optional<ConfigImage> holds;
};

// A batch run: one configuration onto validator after validator, hands-free. Each tick() does
// one step on the link (a presence poll, the identification, the backup and write, the
// read-back) and returns, so that a window repaints and a Stop is seen between steps. A
// validator in hand is always finished before the run stops.
class BatchRun final
{
public:
    // The log may be null (nothing is written down).
    BatchRun(TMonnayeur &link, BatchSettings settings, BatchLog *log);
    Q_DISABLE_COPY_MOVE(BatchRun)

    void start();
    void tick();
    // Ends the run once the validator in hand (if any) has its result.
    void stop() { m_stopAsked = true; }

    BatchPhase phase() const { return m_phase; }
    bool running() const
    {
        return m_phase != BatchPhase::NotStarted && m_phase != BatchPhase::Finished;
    }
    BatchEnd end() const { return m_end; }
    // Why the log could not be written, when it stopped the run.
    const QString &logError() const { return m_logError; }
    // The serial number of the validator in hand, or of the last one handled.
    quint32 serial() const { return m_serial; }
    const QList<BatchRow> &rows() const { return m_rows; }
    int verified() const;
    int failed() const;  // failed or mismatch
    int skipped() const; // already done or of another family
    bool allVerified() const { return verified() == m_rows.size(); }
    // The technician's one-line status: what to do now, or the last result.
    QString status() const;

    // Called whenever the phase or the status changes.
    std::function<void()> changed;
    // Called once per validator, as soon as its result is known and logged: the one place
    // where a validator's outcome is known.
    std::function<void(const BatchValidatorResult &)> validatorDone;
    // The gauge of the backup read, the write and the read-back, 0 to 100 each.
    std::function<void(int gauge)> progress;

    // How many failed presence polls in a row mean the validator was unplugged.
    static constexpr int kUnplugPolls = 2;
    // The pause between two presence polls, so that polling leaves the line a breath.
    static constexpr int kPollPauseMs = 50;

private:
    void waitForValidator();
    void identify();
    void write();
    void verify();
    void waitForUnplug();
    void record(BatchResult result, const QString &detail, std::optional<ConfigImage> holds = {});
    void enter(BatchPhase phase);
    void finish(BatchEnd end);

    TMonnayeur &m_link;
    BatchSettings m_settings;
    BatchLog *m_log;
    BatchPhase m_phase = BatchPhase::NotStarted;
    BatchEnd m_end = BatchEnd::None;
    bool m_stopAsked = false;
    QString m_logError;
    QList<BatchRow> m_rows;
    // Serial numbers verified in this run, with when.
    QHash<quint32, QDateTime> m_done;

    // The validator in hand.
    quint32 m_serial = 0;
    quint8 m_family = 0;
    QElapsedTimer m_handling;
    QElapsedTimer m_idle;
    int m_missedPolls = 0;
    QString m_backupFile;
    QString m_writeDetail;
    SentBlocks m_sent;
};

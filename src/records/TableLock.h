#pragma once

#include <QString>
#include <functional>

// The operating system's lock on one table, held for the milliseconds of one change (exclusive)
// or of one reading of the table and its index (shared).
//
// The lock is taken on "<table>.lck" beside the table (beside the file a symbolic link to the
// table points to, so that every program sharing that file takes the same lock): a file that is
// created when first needed, never removed and never written, locked with flock() on Linux and
// LockFileEx() on Windows. The system releases it when the program ends, however it ends, so a
// crash never leaves a table locked. Two objects locking the same table exclude each other even
// within one program.
//
// Whoever holds the exclusive lock names itself in "<table>.lck.who" (program, process id and
// host), written to a temporary file and renamed, so that a program that waits in vain can say
// whom it waited for; the note is never read half-written.
class TableLock final
{
public:
    enum class Mode
    {
        Shared,
        Exclusive
    };

    explicit TableLock(const QString &tablePath);
    ~TableLock();
    TableLock(const TableLock &) = delete;
    TableLock &operator=(const TableLock &) = delete;

    // Waits at most waitMs (when negative: what is left of the operation's one wait, see
    // WaitBudget, or waitLimitMs()) for the lock; false when the wait ran out or the lock file
    // cannot be opened (errorString() says which). A wait of more than a second is told to the
    // wait notice.
    bool lock(Mode mode, int waitMs = -1);
    void unlock();
    bool isLocked() const { return m_handle >= 0; }

    // After a failed lock(): the seconds waited (in all, within a WaitBudget) and the holder's
    // note ("program pid on host"),
    // or empty when no note names one.
    double waitedSeconds() const { return m_waited; }
    QString holder() const;
    // Why the last lock() failed, naming the table.
    QString errorString() const { return m_error; }

    static QString lockPathOf(const QString &tablePath);
    // How long a writer waits for another program's lock: 10 s unless set (tests set less),
    // or the environment variable TARVIK_LOCK_WAIT_MS says otherwise.
    static int waitLimitMs();
    static void setWaitLimitMs(int ms);
    // Told once per operation when a lock is not free after a second ("Canaux.dbf is locked by
    // tarvik-cli 3157 on bench: waiting at most 10 s"); tarvik-cli and the program write it to
    // their standard error.
    static void setWaitNotice(std::function<void(const QString &)> notice);

    // One bounded wait for every lock an operation (a save, a delete, a listing, a command)
    // takes: while one lives on a thread, the locks taken there wait in all at most
    // waitLimitMs(), rather than that much each. Only the outermost one counts.
    class WaitBudget final
    {
    public:
        WaitBudget();
        ~WaitBudget();
        WaitBudget(const WaitBudget &) = delete;
        WaitBudget &operator=(const WaitBudget &) = delete;

    private:
        bool m_outermost;
    };

private:
    bool openFile();
    bool tryLock(Mode mode);
    void writeNote();

    QString m_tablePath;
    QString m_lockPath;
    qintptr m_handle = -1;
    Mode m_mode = Mode::Shared;
    double m_waited = 0;
    QString m_error;
};

#include "TableLock.h"

#include "Messages.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>
#include <QThread>
#include <algorithm>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace {

int &configuredWait()
{
    static int ms = -1;
    return ms;
}

QString noteOf(const QString &lockPath)
{
    return lockPath + QStringLiteral(".who");
}

std::function<void(const QString &)> &waitNotice()
{
    static std::function<void(const QString &)> notice;
    return notice;
}

// The wait of the operation under way on this thread.
struct Budget
{
    int depth = 0;
    qint64 waitedMs = 0;
    bool told = false;
};
thread_local Budget budget;

} // namespace

TableLock::TableLock(const QString &tablePath)
    : m_tablePath(tablePath), m_lockPath(lockPathOf(tablePath))
{}

TableLock::~TableLock()
{
    unlock();
}

QString TableLock::lockPathOf(const QString &tablePath)
{
    const QFileInfo info(tablePath);
    if (!info.isSymLink())
        return tablePath + QStringLiteral(".lck");
    const QString target = info.canonicalFilePath();
    return (target.isEmpty() ? info.symLinkTarget() : target) + QStringLiteral(".lck");
}

void TableLock::setWaitNotice(std::function<void(const QString &)> notice)
{
    waitNotice() = std::move(notice);
}

TableLock::WaitBudget::WaitBudget() : m_outermost(budget.depth++ == 0)
{
    if (m_outermost)
        budget = {1, 0, false};
}

TableLock::WaitBudget::~WaitBudget()
{
    --budget.depth;
}

int TableLock::waitLimitMs()
{
    if (configuredWait() >= 0)
        return configuredWait();
    bool ok = false;
    const int fromEnvironment = qEnvironmentVariableIntValue("TARVIK_LOCK_WAIT_MS", &ok);
    return ok && fromEnvironment >= 0 ? fromEnvironment : 10000;
}

void TableLock::setWaitLimitMs(int ms)
{
    configuredWait() = ms;
}

bool TableLock::openFile()
{
#ifdef Q_OS_WIN
    const std::wstring path = m_lockPath.toStdWString();
    HANDLE h = ::CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE,
                             FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                             OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (h == INVALID_HANDLE_VALUE)
        h = ::CreateFileW(path.c_str(), GENERIC_READ,
                          FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                          OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (h == INVALID_HANDLE_VALUE) {
        m_error = QStringLiteral("CreateFile failed (%1)").arg(::GetLastError());
        return false;
    }
    m_handle = reinterpret_cast<qintptr>(h);
#else
    const QByteArray path = QFile::encodeName(m_lockPath);
    int fd = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    if (fd < 0) // a directory that cannot be written: a lock file put there before still serves
        fd = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        m_error = QString::fromLocal8Bit(std::strerror(errno));
        return false;
    }
    m_handle = fd;
#endif
    return true;
}

bool TableLock::tryLock(Mode mode)
{
#ifdef Q_OS_WIN
    OVERLAPPED at{};
    const DWORD flags =
        LOCKFILE_FAIL_IMMEDIATELY | (mode == Mode::Exclusive ? LOCKFILE_EXCLUSIVE_LOCK : 0);
    return ::LockFileEx(reinterpret_cast<HANDLE>(m_handle), flags, 0, 1, 0, &at) != 0;
#else
    return ::flock(int(m_handle), (mode == Mode::Exclusive ? LOCK_EX : LOCK_SH) | LOCK_NB) == 0;
#endif
}

bool TableLock::lock(Mode mode, int waitMs)
{
    unlock();
    m_waited = 0;
    m_error.clear();
    const bool inBudget = budget.depth > 0 && waitMs < 0;
    if (waitMs < 0)
        waitMs =
            inBudget ? int(std::max<qint64>(0, waitLimitMs() - budget.waitedMs)) : waitLimitMs();
    if (!openFile()) {
        m_error = messageText(Msg::RecordsCannotWrite, {QFileInfo(m_lockPath).fileName(), m_error});
        return false;
    }
    const QString name = QFileInfo(m_tablePath).fileName();
    auto whoHolds = [this] {
        const QString who = holder();
        return who.isEmpty() ? messageText(Msg::RecordsLockHolderUnknown) : who;
    };
    QElapsedTimer clock;
    clock.start();
    int pause = 1;
    bool told = inBudget && budget.told;
    while (!tryLock(mode)) {
        const qint64 elapsed = clock.elapsed();
        if (elapsed >= waitMs) {
            if (inBudget)
                budget.waitedMs += elapsed;
            m_waited = double(inBudget ? budget.waitedMs : elapsed) / 1000.0;
            m_error = messageText(mode == Mode::Exclusive ? Msg::RecordsLockWait
                                                          : Msg::RecordsLockWaitRead,
                                  {name, QString::number(m_waited, 'f', 1), whoHolds()});
            unlock();
            return false;
        }
        if (!told && elapsed + (inBudget ? budget.waitedMs : 0) >= 1000) {
            told = true;
            if (inBudget)
                budget.told = true;
            if (waitNotice())
                waitNotice()(messageText(
                    Msg::RecordsLockWaiting,
                    {name, whoHolds(), QString::number(double(waitLimitMs()) / 1000.0, 'f', 0)}));
        }
        QThread::msleep(ulong(pause));
        pause = std::min(pause * 2, 20);
    }
    if (inBudget)
        budget.waitedMs += clock.elapsed();
    m_mode = mode;
    if (mode == Mode::Exclusive)
        writeNote();
    return true;
}

void TableLock::unlock()
{
    if (m_handle < 0)
        return;
#ifdef Q_OS_WIN
    HANDLE h = reinterpret_cast<HANDLE>(m_handle);
    OVERLAPPED at{};
    ::UnlockFileEx(h, 0, 1, 0, &at);
    ::CloseHandle(h);
#else
    // closing the descriptor releases the lock
    ::close(int(m_handle));
#endif
    m_handle = -1;
}

// Only the holder of the exclusive lock writes the note, so one temporary name serves.
void TableLock::writeNote()
{
    const QString note = noteOf(m_lockPath);
    const QString temp = note + QStringLiteral(".tmp");
    // the program's file name tells the program on the bench from tarvik-cli
    QString program = QCoreApplication::instance()
                          ? QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName()
                          : QString();
    if (program.isEmpty())
        program = QStringLiteral("tarvik");
    const QByteArray text = QStringLiteral("%1 %2 on %3\n")
                                .arg(program)
                                .arg(QCoreApplication::applicationPid())
                                .arg(QSysInfo::machineHostName())
                                .toUtf8();
    QFile file(temp);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(text) != text.size())
        return; // the note only serves a message
    file.close();
#ifdef Q_OS_WIN
    ::MoveFileExW(reinterpret_cast<const wchar_t *>(temp.utf16()),
                  reinterpret_cast<const wchar_t *>(note.utf16()), MOVEFILE_REPLACE_EXISTING);
#else
    ::rename(QFile::encodeName(temp).constData(), QFile::encodeName(note).constData());
#endif
}

QString TableLock::holder() const
{
    QFile file(noteOf(m_lockPath));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.read(256)).trimmed();
}

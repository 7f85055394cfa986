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
    return tablePath + QStringLiteral(".lck");
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
    if (waitMs < 0)
        waitMs = waitLimitMs();
    if (!openFile()) {
        m_error = messageText(Msg::RecordsCannotWrite, {QFileInfo(m_lockPath).fileName(), m_error});
        return false;
    }
    QElapsedTimer clock;
    clock.start();
    int pause = 1;
    while (!tryLock(mode)) {
        if (clock.elapsed() >= waitMs) {
            m_waited = double(clock.elapsed()) / 1000.0;
            const QString who = holder();
            m_error =
                messageText(Msg::RecordsLockWait,
                            {QFileInfo(m_tablePath).fileName(), QString::number(m_waited, 'f', 1),
                             who.isEmpty() ? messageText(Msg::RecordsLockHolderUnknown) : who});
            unlock();
            return false;
        }
        QThread::msleep(ulong(pause));
        pause = std::min(pause * 2, 20);
    }
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

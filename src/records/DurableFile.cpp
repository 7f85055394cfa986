#include "DurableFile.h"

#include "WholeFile.h"

#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_WIN
#include <io.h>
#include <windows.h>
#else
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace DurableFile {

#ifdef Q_OS_WIN
namespace {

bool flushToDisk(QFile &file, QString *error)
{
    if (!file.flush()) {
        *error = file.errorString();
        return false;
    }
    if (::_commit(file.handle()) != 0) {
        *error = QString::fromLocal8Bit(std::strerror(errno));
        return false;
    }
    return true;
}

} // namespace
#endif

#ifndef Q_OS_WIN

namespace {

// Writes all of data at offset of fd, checking every write; errno tells why it stopped.
bool writeAllAt(int fd, qint64 offset, const QByteArray &data)
{
    const char *bytes = data.constData();
    qint64 left = data.size();
    while (left > 0) {
        const ssize_t n = ::pwrite(fd, bytes, size_t(left), off_t(offset));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0) {
            if (n == 0)
                errno = ENOSPC;
            return false;
        }
        bytes += n;
        offset += n;
        left -= n;
    }
    return true;
}

bool writeFile(const QString &path, int flags, qint64 offset, const QByteArray &data,
               QString *error)
{
    const int fd = ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC, 0666);
    if (fd < 0) {
        *error = WholeFile::reason(errno);
        return false;
    }
    bool ok = writeAllAt(fd, offset, data) && ::fsync(fd) == 0;
    int failure = ok ? 0 : errno;
    if (::close(fd) != 0 && ok) {
        failure = errno;
        ok = false;
    }
    if (!ok)
        *error = WholeFile::reason(failure);
    return ok;
}

} // namespace

bool write(const QString &path, const QByteArray &data, QString *error)
{
    if (writeFile(path, O_WRONLY | O_CREAT | O_TRUNC, 0, data, error))
        return true;
    QFile::remove(path);
    return false;
}

bool writeAt(const QString &path, qint64 offset, const QByteArray &data, QString *error)
{
    return writeFile(path, O_RDWR, offset, data, error);
}

#else

bool write(const QString &path, const QByteArray &data, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        *error = file.errorString();
        return false;
    }
    if (file.write(data) != data.size() || !flushToDisk(file, error)) {
        if (error->isEmpty())
            *error = file.errorString();
        file.close();
        QFile::remove(path);
        return false;
    }
    return true;
}

bool writeAt(const QString &path, qint64 offset, const QByteArray &data, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite)) {
        *error = file.errorString();
        return false;
    }
    if (!file.seek(offset) || file.write(data) != data.size()) {
        *error = file.errorString();
        return false;
    }
    return flushToDisk(file, error);
}

#endif

bool truncate(const QString &path, qint64 size, QString *error)
{
    QFile file(path);
    if (file.size() <= size)
        return true;
    if (!file.resize(size)) {
        *error = file.errorString(); // a shortening frees space: it fails only on a broken disk
        return false;
    }
    return true;
}

bool replace(const QString &from, const QString &to, QString *error)
{
#ifdef Q_OS_WIN
    if (!::MoveFileExW(reinterpret_cast<const wchar_t *>(from.utf16()),
                       reinterpret_cast<const wchar_t *>(to.utf16()),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
        *error = QStringLiteral("MoveFileEx failed (%1)").arg(::GetLastError());
        return false;
    }
#else
    if (::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0) {
        *error = QString::fromLocal8Bit(std::strerror(errno));
        return false;
    }
#endif
    return true;
}

void syncDirectory(const QString &directory)
{
#ifndef Q_OS_WIN
    const int fd = ::open(QFile::encodeName(directory).constData(), O_RDONLY | O_DIRECTORY);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
#else
    Q_UNUSED(directory);
#endif
}

} // namespace DurableFile

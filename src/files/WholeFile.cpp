#include "WholeFile.h"

#include "Messages.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_WIN
#include <QSaveFile>
#else
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace WholeFile {

QString reason(int osError)
{
#ifdef Q_OS_WIN
    Q_UNUSED(osError);
    return messageText(Msg::WriteDiskError, {QStringLiteral("?")});
#else
    switch (osError) {
    case ENOSPC:
        return messageText(Msg::WriteDiskFull);
#ifdef EDQUOT
    case EDQUOT:
        return messageText(Msg::WriteQuotaFull);
#endif
    case EFBIG:
        return messageText(Msg::WriteDiskFull);
    case EROFS:
        return messageText(Msg::WriteReadOnlyDisk);
    case EACCES:
    case EPERM:
        return messageText(Msg::WriteNotAllowed);
    case ENOENT:
    case ENOTDIR:
        return messageText(Msg::WriteNoFolder);
    default:
        return messageText(Msg::WriteDiskError, {QString::fromLocal8Bit(std::strerror(osError))});
    }
#endif
}

QString destination(const QString &path)
{
    const QFileInfo info(path);
    if (!info.isSymLink())
        return path;
    // A chain of links ends at one file; a link to nothing names where that file would be.
    const QString target = info.canonicalFilePath();
    return target.isEmpty() ? info.symLinkTarget() : target;
}

#ifdef Q_OS_WIN

bool write(const QString &path, const QByteArray &bytes, QString *error)
{
    QSaveFile file(destination(path));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush() ||
        !file.commit()) {
        if (error)
            *error = QStringLiteral("%1: %2").arg(
                QDir::toNativeSeparators(path),
                messageText(Msg::WriteDiskError, {file.errorString()}));
        file.cancelWriting();
        return false;
    }
    return true;
}

#else

namespace {

bool writeAll(int fd, const QByteArray &bytes)
{
    const char *data = bytes.constData();
    qint64 left = bytes.size();
    while (left > 0) {
        const ssize_t n = ::write(fd, data, size_t(left));
        if (n < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        if (n == 0) { // a device that takes nothing more is full
            errno = ENOSPC;
            return false;
        }
        data += n;
        left -= n;
    }
    return true;
}

} // namespace

bool write(const QString &path, const QByteArray &bytes, QString *error)
{
    const QString target = destination(path);
    const QFileInfo info(target);
    const QByteArray temp =
        QFile::encodeName(info.absoluteDir().filePath(QStringLiteral(".") + info.fileName())) +
        ".XXXXXX";
    QByteArray tempName = temp;
    int failure = 0;
    const int fd = ::mkstemp(tempName.data());
    if (fd < 0) {
        failure = errno;
    } else {
        // The file keeps the permissions it had, or those of a new file.
        struct stat old
        {};
        mode_t mode = 0;
        if (::stat(QFile::encodeName(target).constData(), &old) == 0) {
            mode = old.st_mode & 07777;
        } else {
            const mode_t mask = ::umask(0);
            ::umask(mask);
            mode = 0666 & ~mask;
        }
        ::fchmod(fd, mode);
        bool ok = writeAll(fd, bytes) && ::fsync(fd) == 0;
        if (!ok)
            failure = errno;
        if (::close(fd) != 0 && ok) {
            failure = errno;
            ok = false;
        }
        if (ok && ::rename(tempName.constData(), QFile::encodeName(target).constData()) != 0) {
            failure = errno;
            ok = false;
        }
        if (!ok) {
            ::unlink(tempName.constData());
        } else {
            const int dir =
                ::open(QFile::encodeName(info.absolutePath()).constData(), O_RDONLY | O_DIRECTORY);
            if (dir >= 0) {
                ::fsync(dir);
                ::close(dir);
            }
            return true;
        }
    }
    if (error)
        *error = QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(path), reason(failure));
    return false;
}

#endif

} // namespace WholeFile

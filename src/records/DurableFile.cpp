#include "DurableFile.h"

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

namespace {

bool flushToDisk(QFile &file, QString *error)
{
    if (!file.flush()) {
        *error = file.errorString();
        return false;
    }
#ifdef Q_OS_WIN
    const bool ok = ::_commit(file.handle()) == 0;
#else
    const bool ok = ::fsync(file.handle()) == 0;
#endif
    if (!ok) {
        *error = QString::fromLocal8Bit(std::strerror(errno));
        return false;
    }
    return true;
}

} // namespace

bool write(const QString &path, const QByteArray &data, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        *error = file.errorString();
        return false;
    }
    if (file.write(data) != data.size()) {
        *error = file.errorString();
        file.close();
        QFile::remove(path);
        return false;
    }
    if (!flushToDisk(file, error)) {
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

bool truncate(const QString &path, qint64 size, QString *error)
{
    QFile file(path);
    if (file.size() <= size)
        return true;
    if (!file.resize(size)) {
        *error = file.errorString();
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

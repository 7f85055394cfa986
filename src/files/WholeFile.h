#pragma once

#include <QByteArray>
#include <QString>

// Every file the program writes is written whole or not at all: the bytes go to a temporary
// beside the destination, every write is checked, the temporary is flushed to the disk and
// closed, and only then renamed over the destination. A failure removes the temporary and
// leaves the file that was there exactly as it was.
namespace WholeFile {

// Writes bytes as the whole content of path. On failure *error names the file and says what
// happened in plain words ("v.json: No space left on the disk: nothing was written").
bool write(const QString &path, const QByteArray &bytes, QString *error);

// The plain sentence for an operating system error met while writing (ENOSPC, EACCES...).
QString reason(int osError);

// The file a write to path changes: the target of a symbolic link, else path itself.
QString destination(const QString &path);

} // namespace WholeFile

#pragma once

#include <QByteArray>
#include <QString>

// File operations whose effect survives a crash once they return: data is flushed to the disk
// before they report success, and a replacement is one rename.
namespace DurableFile {

// Writes data to a new file at path (replacing any leftover), flushed to the disk.
bool write(const QString &path, const QByteArray &data, QString *error);
// Writes data at offset into an existing file, flushed to the disk.
bool writeAt(const QString &path, qint64 offset, const QByteArray &data, QString *error);
// Shortens an existing file to size (nothing happens when it is not longer).
bool truncate(const QString &path, qint64 size, QString *error);
// Puts from in the place of to in one step: a reader sees either the old or the new file.
bool replace(const QString &from, const QString &to, QString *error);
// Makes the renames done in a directory durable.
void syncDirectory(const QString &directory);

} // namespace DurableFile

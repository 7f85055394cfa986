#pragma once

#include <QDateTime>
#include <QString>

struct ConfigImage;

// Every good read is kept as a configuration file, so that a validator can always be put back
// as it was: <dir>/<yyyyMMdd-HHmmss-zzz>-serial<N>.json. Past kMaxBackups files the oldest are
// dropped.
inline constexpr int kMaxBackups = 200;

// Returns the file written, or empty with the reason in *error.
QString keepBackup(const QString &dir, const ConfigImage &image,
                   const QDateTime &when = QDateTime::currentDateTime(), QString *error = nullptr);

// The newest backup of validator `serial` in dir; empty when there is none.
QString newestBackup(const QString &dir, quint32 serial);

#pragma once

#include "ConfigImage.h"

#include <QByteArray>
#include <QString>

// The configuration file: a validator's whole image as JSON, every block in lowercase hex in
// device byte order, plus a summary for people that loading ignores.
QByteArray configToJson(const ConfigImage &image);
// Checks every key and length; on error names the bad key in *error and leaves image untouched.
bool configFromJson(const QByteArray &json, ConfigImage &image, QString *error);

// File forms. Saving writes a temporary file and renames it, so that a failed save never leaves
// a half-written file behind.
bool loadConfigFile(const QString &path, ConfigImage &image, QString *error);
bool saveConfigFile(const QString &path, const ConfigImage &image, QString *error);

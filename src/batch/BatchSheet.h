#pragma once

#include <QString>

struct ConfigImage;

// The configuration sheet of what a validator of a batch holds, as the editor's "Save as
// PDF..." draws it, under its serial number: <dir>/<serial>.pdf. Needs a QGuiApplication (the
// fonts). Returns the file written, or empty with the reason in *error.
QString writeBatchSheet(const QString &dir, const ConfigImage &image, QString *error);

#pragma once

#include <QString>

// The pictures and sounds shipped in the resources directory beside the program.
namespace ResourceFiles {

// The directory.
QString directory();
// The full path of a file in it; the file may be missing.
QString path(const QString &fileName);

} // namespace ResourceFiles

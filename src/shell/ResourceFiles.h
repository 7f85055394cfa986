#pragma once

#include <QString>

// The program's data files: pictures and sounds (resources/), translations (translations/) and
// the user guide (help/). In a build tree they lie beside the program; once installed, in
// <prefix>/share/tarvik beside <prefix>/bin.
namespace ResourceFiles {

// The folder that holds them for this program.
QString dataDirectory();
// The choice for a program in programDirectory: the first of programDirectory and
// programDirectory/../share/tarvik that holds a resources folder; programDirectory when neither
// does.
QString dataDirectoryFor(const QString &programDirectory);

// The pictures and sounds.
QString directory();
// The full path of a file among them; the file may be missing.
QString path(const QString &fileName);
// The compiled translations (tarvik_fr.qm...).
QString translationsDirectory();
// The user guide (user-guide.html, user-guide.<language>.html and its pictures).
QString helpDirectory();

} // namespace ResourceFiles

#pragma once

#include <QString>
#include <QStringList>

// Which section of the user guide tells about a window. A window is known by its object name and
// by the names of its classes, most derived first; a window the guide does not describe opens
// the guide at its contents.
namespace HelpTopics {

inline const QString kContents = QStringLiteral("contents");

// The section of the first of names that the guide describes, else the contents.
QString sectionFor(const QStringList &names);
// Every section a window leads to, each once; the guide holds an anchor for each.
QStringList sections();
// The guide in helpDirectory for a language ("fr"; empty for the program's own English):
// user-guide.<language>.html where it exists, else user-guide.html.
QString guideFile(const QString &helpDirectory, const QString &language);

} // namespace HelpTopics

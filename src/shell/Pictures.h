#pragma once

#include <QPixmap>
#include <QString>

// The JPEG pictures of the resources directory. A missing or undecodable picture gives an
// empty pixmap: the window shows without it.
namespace Pictures {

QPixmap load(const QString &fileName);
// The flag of a language index (a globe for Local).
QString flagFile(int languageIndex);

inline const QString kMain = QStringLiteral("Tarvik.jpg");
inline const QString kPort = QStringLiteral("Port.jpg");

} // namespace Pictures

#include "Pictures.h"

#include "Languages.h"
#include "ResourceFiles.h"

#include <QImageReader>

namespace Pictures {

QPixmap load(const QString &fileName)
{
    QImageReader reader(ResourceFiles::path(fileName));
    const QImage image = reader.read();
    return image.isNull() ? QPixmap() : QPixmap::fromImage(image);
}

QString flagFile(int languageIndex)
{
    const QString code = Languages::code(languageIndex);
    return code.isEmpty() ? QStringLiteral("FlagLocal.jpg")
                          : QStringLiteral("Flag%1.jpg").arg(code);
}

} // namespace Pictures

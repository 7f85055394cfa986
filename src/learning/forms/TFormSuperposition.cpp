#include "TFormSuperposition.h"

#include "LearningLists.h"

#include <QFontDatabase>

TFormSuperposition::TFormSuperposition(const QStringList &lines, QWidget *parent)
    : ListDialog(std::make_unique<SuperpositionModel>(lines), QStringLiteral("TFormSuperposition"),
                 parent)
{
    if (QWidget *list = findChild<QWidget *>(QStringLiteral("ListBox1")))
        list->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
}

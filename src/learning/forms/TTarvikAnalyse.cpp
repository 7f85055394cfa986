#include "TTarvikAnalyse.h"

#include "LearningLists.h"

#include <QFontDatabase>
#include <QLabel>

TTarvikAnalyse::TTarvikAnalyse(const QStringList &lines, QWidget *parent)
    : ListDialog(std::make_unique<AnalyseModel>(lines), QStringLiteral("TTarvikAnalyse"), parent)
{
    // The header lines stand above the columns of the list.
    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    for (const char *name : {"Header1", "Header2", "ListBox1"}) {
        if (QWidget *widget = findChild<QWidget *>(QLatin1String(name)))
            widget->setFont(fixed);
    }
}

TTarvikAnalyse *TTarvikAnalyse::open(const QStringList &lines, QWidget *parent)
{
    auto *list = new TTarvikAnalyse(lines, parent);
    list->setModal(false);
    list->show();
    return list;
}

#include "TFormSuperposition.h"

#include "LearningLists.h"
#include "WindowsChartView.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QVBoxLayout>

TFormSuperposition::TFormSuperposition(const ConfigImage &image, QWidget *parent)
    : ListDialog(std::make_unique<SuperpositionModel>(image), QStringLiteral("TFormSuperposition"),
                 parent)
{
    auto &overlap = static_cast<SuperpositionModel &>(model());
    m_chart = new WindowsChartView(overlap.chart(), this);
    m_chart->setMinimumSize(560, 420);
    QWidget *list = findChild<QWidget *>(QStringLiteral("ListBox1"));
    auto *column = static_cast<QVBoxLayout *>(layout());
    if (list && column) {
        list->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        // The list keeps its width, the chart takes the rest.
        const int at = column->indexOf(list);
        column->removeWidget(list);
        auto *row = new QHBoxLayout;
        row->addWidget(list, 0);
        row->addWidget(m_chart, 1);
        column->insertLayout(at, row, 1);
    }
    const auto show = overlap.changed;
    overlap.changed = [this, show](const QStringList &names) {
        show(names);
        if (names.contains(SuperpositionModel::chartName()))
            m_chart->update();
    };
}

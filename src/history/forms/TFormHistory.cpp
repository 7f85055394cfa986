#include "TFormHistory.h"

#include "Captions.h"
#include "HistoryModel.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

TFormHistory::TFormHistory(HistoryModel &model, QWidget *parent)
    : QDialog(parent), m_model(model), m_grid(new QTableWidget(this)), m_heading(new QLabel(this)),
      m_differences(new QListWidget(this)), m_restore(new QPushButton(this)),
      m_close(new QPushButton(this))
{
    setObjectName(QStringLiteral("TFormHistory"));
    m_grid->setObjectName(QStringLiteral("GridHistory"));
    m_heading->setObjectName(QStringLiteral("LabelDifferences"));
    m_differences->setObjectName(QStringLiteral("ListDifferences"));
    m_restore->setObjectName(QStringLiteral("BtnRestore"));
    m_close->setObjectName(QStringLiteral("BtnClose"));
    m_heading->setBuddy(m_differences);
    m_heading->setWordWrap(true);
    m_grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_grid->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_grid->verticalHeader()->setVisible(true);
    m_grid->horizontalHeader()->setStretchLastSection(true);
    m_grid->setWordWrap(false);
    m_differences->setSelectionMode(QAbstractItemView::NoSelection);
    m_differences->setWordWrap(true);
    m_differences->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // A laptop's screen: 1366 x 728 holds the window in every language.
    m_grid->setMinimumSize(760, 220);
    m_differences->setMinimumHeight(140);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_restore);
    buttons->addWidget(m_close);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_grid, 3);
    layout->addWidget(m_heading);
    layout->addWidget(m_differences, 2);
    layout->addLayout(buttons);
    m_restore->setVisible(m_model.restoreAvailable());
    m_close->setDefault(true);

    connect(m_grid, &QTableWidget::itemSelectionChanged, this, &TFormHistory::chosen);
    connect(m_restore, &QPushButton::clicked, this, [this] {
        m_model.restore();
        showModel();
    });
    connect(m_close, &QPushButton::clicked, this, &QDialog::accept);
    showModel();
    // The newest event is the one looked at first.
    if (m_grid->rowCount() > 0)
        m_grid->selectRow(m_grid->rowCount() - 1);
}

void TFormHistory::showModel()
{
    setWindowTitle(m_model.title());
    m_grid->setAccessibleName(m_model.title());
    m_restore->setText(captionText(Cap::HistoryRestore));
    m_restore->setAccessibleName(captionText(Cap::HistoryRestore));
    m_close->setText(captionText(Cap::Close));
    m_close->setAccessibleName(captionText(Cap::Close));
    const QStringList titles = HistoryModel::columnTitles();
    const QSignalBlocker quiet(m_grid);
    m_grid->clear();
    m_grid->setColumnCount(int(titles.size()));
    m_grid->setHorizontalHeaderLabels(titles);
    m_grid->setRowCount(int(m_model.rows().size()));
    for (int r = 0; r < m_model.rows().size(); ++r) {
        const HistoryModel::Row &row = m_model.rows().at(r);
        const QStringList cells{row.time, row.kind, row.result, row.program, row.changes};
        for (int c = 0; c < cells.size(); ++c)
            m_grid->setItem(r, c, new QTableWidgetItem(cells.at(c)));
    }
    m_grid->resizeColumnsToContents();
    showDifferences();
}

void TFormHistory::chosen()
{
    QList<int> rows;
    for (const QModelIndex &index : m_grid->selectionModel()->selectedRows())
        rows.append(index.row());
    m_model.choose(rows);
    showDifferences();
}

void TFormHistory::showDifferences()
{
    m_heading->setText(m_model.differencesHeading());
    m_differences->setAccessibleName(m_model.differencesHeading().isEmpty()
                                         ? captionText(Cap::HistoryChanges)
                                         : m_model.differencesHeading());
    m_differences->clear();
    m_differences->addItems(m_model.differences());
    m_restore->setEnabled(m_model.restoreEnabled());
}

void TFormHistory::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_model.load(m_model.serial());
        showModel();
        chosen();
    }
    QDialog::changeEvent(event);
}

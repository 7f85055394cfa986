#include "TFormReadFileData.h"

#include "SavedValidatorsModel.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

template <typename W> W *named(W *widget, const char *name)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

template <typename View> View *grid(const char *name, QWidget *parent)
{
    auto *table = named(new View(parent), name);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->verticalHeader()->hide();
    // One line of text a row, as a data grid shows it.
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
    return table;
}

} // namespace

TFormReadFileData::TFormReadFileData(SavedValidatorsModel &model, QWidget *parent)
    : QDialog(parent), m_model(model), m_filterLabel(named(new QLabel(this), "LFilter")),
      m_filter(named(new QLineEdit(this), "EFilter")),
      m_validators(grid<QTableView>("GridValidators", this)),
      m_channels(grid<QTableWidget>("GridChannels", this)),
      m_open(named(new QPushButton(this), "BtnOpen")),
      m_delete(named(new QPushButton(this), "BtnDelete")),
      m_history(named(new QPushButton(this), "BtnHistory")),
      m_close(named(new QPushButton(this), "BtnClose"))
{
    setObjectName(QStringLiteral("TFormReadFileData"));
    m_filterLabel->setBuddy(m_filter);
    // The validators' grid shows the model's rows as they are: thousands of them, so its
    // columns are sized once, on the rows the view can show, never per keystroke.
    m_validators->setModel(&m_model.table());
    m_validators->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    m_validators->horizontalHeader()->setStretchLastSection(true);
    // Sized once per validator shown, not once per cell filled.
    m_channels->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    m_channels->setColumnCount(int(SavedValidatorsModel::channelColumns().size()));

    auto *filter = new QHBoxLayout;
    filter->addWidget(m_filterLabel);
    filter->addWidget(m_filter, 1);
    auto *grids = new QHBoxLayout;
    grids->addWidget(m_validators, 2);
    grids->addWidget(m_channels, 3);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton *button : {m_open, m_delete, m_history, m_close}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(filter);
    layout->addLayout(grids, 1);
    layout->addLayout(buttons);
    resize(1240, 560);
    m_validators->resizeColumnsToContents();

    connect(m_filter, &QLineEdit::textEdited, this, [this](const QString &text) {
        m_model.setFilter(text);
        showValidators();
    });
    connect(m_validators->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &current) {
                if (current.row() == m_model.current())
                    return;
                m_model.select(current.row());
                showChannels();
            });
    connect(m_validators, &QTableView::doubleClicked, m_open, &QPushButton::click);
    connect(m_open, &QPushButton::clicked, this, [this] {
        if (m_model.BtnOpenClick())
            accept();
    });
    connect(m_delete, &QPushButton::clicked, this, [this] {
        if (m_model.BtnDeleteClick())
            showValidators();
    });
    connect(m_history, &QPushButton::clicked, this, [this] { m_model.BtnHistoryClick(); });
    connect(m_close, &QPushButton::clicked, this, &QDialog::reject);
    showTexts();
    showValidators();
}

void TFormReadFileData::showTexts()
{
    const ControlSet &c = m_model.controls();
    setWindowTitle(c.state(QStringLiteral("TFormReadFileData")).text);
    m_filterLabel->setText(c.state(QStringLiteral("LFilter")).text);
    m_open->setText(c.state(QStringLiteral("BtnOpen")).text);
    m_delete->setText(c.state(QStringLiteral("BtnDelete")).text);
    m_close->setText(c.state(QStringLiteral("BtnClose")).text);
    m_history->setText(c.state(QStringLiteral("BtnHistory")).text);
    m_history->setVisible(c.state(QStringLiteral("BtnHistory")).visible);
    m_validators->setAccessibleName(c.state(QStringLiteral("TFormReadFileData")).text);
    m_channels->setAccessibleName(c.state(QStringLiteral("TFormReadFileData")).text + u' ' +
                                  SavedValidatorsModel::channelColumns().constFirst());
    m_channels->setHorizontalHeaderLabels(SavedValidatorsModel::channelColumns());
    m_channels->resizeColumnsToContents();
}

void TFormReadFileData::showValidators()
{
    // The grid follows the model's filter by itself; the selection is the model's.
    showSelection();
    showChannels();
}

void TFormReadFileData::showSelection()
{
    const QSignalBlocker blocker(m_validators->selectionModel());
    if (m_model.current() >= 0) {
        const QModelIndex current = m_model.table().index(m_model.current(), 0);
        m_validators->selectionModel()->setCurrentIndex(
            current, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        m_validators->scrollTo(current);
    }
}

void TFormReadFileData::showChannels()
{
    const ControlSet &c = m_model.controls();
    m_open->setEnabled(c.state(QStringLiteral("BtnOpen")).enabled);
    m_delete->setEnabled(c.state(QStringLiteral("BtnDelete")).enabled);
    m_history->setEnabled(c.state(QStringLiteral("BtnHistory")).enabled);
    const auto &rows = m_model.channelRows();
    // A keystroke that keeps the same validator leaves its grid as it is.
    if (rows == m_shownChannels && m_channels->rowCount() == rows.size())
        return;
    m_shownChannels = rows;
    m_channels->setUpdatesEnabled(false);
    m_channels->setRowCount(int(rows.size()));
    for (int r = 0; r < rows.size(); ++r) {
        for (int col = 0; col < rows[r].size(); ++col)
            m_channels->setItem(r, col, new QTableWidgetItem(rows[r][col]));
    }
    m_channels->resizeColumnsToContents();
    m_channels->setUpdatesEnabled(true);
}

void TFormReadFileData::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_model.retranslate();
        showTexts();
    }
    QDialog::changeEvent(event);
}

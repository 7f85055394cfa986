#include "TTarvikTolerance.h"

#include "ToleranceModel.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

TTarvikTolerance::TTarvikTolerance(ToleranceModel &model, QWidget *parent)
    : QDialog(parent), m_model(model), m_grid(new QTableWidget(ToleranceModel::kRows, 2, this))
{
    setObjectName(QStringLiteral("TTarvikTolerance"));
    m_grid->setObjectName(QStringLiteral("ValueListEditor1"));
    m_grid->verticalHeader()->hide();
    m_grid->horizontalHeader()->setStretchLastSection(true);
    for (int row = 0; row < ToleranceModel::kRows; ++row) {
        auto *key = new QTableWidgetItem;
        key->setFlags(Qt::ItemIsEnabled);
        m_grid->setItem(row, 0, key);
        auto *value = new QTableWidgetItem;
        value->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_grid->setItem(row, 1, value);
    }
    // Typing goes to the row's value; leaving a row normalises it; a click, every row.
    connect(m_grid, &QTableWidget::itemChanged, this, [this](QTableWidgetItem *item) {
        if (item->column() == 1)
            m_model.type(ToleranceModel::valueName(item->row()), item->text());
    });
    connect(m_grid, &QTableWidget::currentCellChanged, this,
            [this](int, int, int previousRow, int) {
                if (previousRow >= 0)
                    m_model.leave(ToleranceModel::valueName(previousRow));
            });
    connect(m_grid, &QTableWidget::cellClicked, this, [this] { m_model.gridClick(); });

    auto *ok = new QPushButton(this);
    ok->setObjectName(QStringLiteral("BtnOK"));
    ok->setDefault(true);
    auto *cancel = new QPushButton(this);
    cancel->setObjectName(QStringLiteral("BtnCancel"));
    connect(ok, &QPushButton::clicked, this, [this] { m_model.click(QStringLiteral("BtnOK")); });
    connect(cancel, &QPushButton::clicked, this,
            [this] { m_model.click(QStringLiteral("BtnCancel")); });

    auto *column = new QVBoxLayout(this);
    column->addWidget(m_grid);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    column->addLayout(buttons);

    m_model.changed = [this](const QStringList &names) { showControls(names); };
    m_model.closeRequested = [this](bool accepted) { done(accepted ? Accepted : Rejected); };
    showControls(m_model.controlNames());
    m_grid->resizeColumnsToContents();
    resize(sizeHint().width() + 60, m_grid->verticalHeader()->length() + 120);
}

TTarvikTolerance::~TTarvikTolerance()
{
    m_model.changed = nullptr;
    m_model.closeRequested = nullptr;
}

void TTarvikTolerance::showControls(const QStringList &names)
{
    const QSignalBlocker blocker(m_grid);
    for (const QString &name : names) {
        const QString text = m_model.control(name).text;
        if (name == QLatin1String("TTarvikTolerance")) {
            setWindowTitle(text);
        } else if (name == QLatin1String("ColItems") || name == QLatin1String("ColValues")) {
            m_grid->setHorizontalHeaderItem(name == QLatin1String("ColItems") ? 0 : 1,
                                            new QTableWidgetItem(text));
        } else if (name.startsWith(QLatin1String("Key"))) {
            m_grid->item(name.mid(3).toInt() - 1, 0)->setText(text);
        } else if (const int row = ToleranceModel::rowOf(name); row >= 0) {
            m_grid->item(row, 1)->setText(text);
        } else if (auto *button = findChild<QPushButton *>(name)) {
            button->setText(text);
        }
    }
}

void TTarvikTolerance::reject()
{
    if (!m_model.closed())
        m_model.click(QStringLiteral("BtnCancel"));
    else
        QDialog::reject();
}

void TTarvikTolerance::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        m_model.retranslate();
    QDialog::changeEvent(event);
}

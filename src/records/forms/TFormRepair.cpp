#include "TFormRepair.h"

#include "TableRepairModel.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

template <typename W> W *named(W *widget, const char *name)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

} // namespace

TFormRepair::TFormRepair(TableRepairModel &model, QWidget *parent)
    : QDialog(parent), m_model(model), m_tables(named(new QLabel(this), "LTables")),
      m_report(named(new QListWidget(this), "ListReport")),
      m_repair(named(new QPushButton(this), "BtnRepair")),
      m_close(named(new QPushButton(this), "BtnClose"))
{
    setObjectName(QStringLiteral("TFormRepair"));
    m_tables->setBuddy(m_report);
    m_report->setWordWrap(true);
    m_report->setSelectionMode(QAbstractItemView::NoSelection);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton *button : {m_repair, m_close}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_tables);
    layout->addWidget(m_report, 1);
    layout->addLayout(buttons);
    resize(760, 300);

    connect(m_repair, &QPushButton::clicked, this, [this] {
        m_model.BtnRepairClick();
        showState();
    });
    connect(m_close, &QPushButton::clicked, this, &QDialog::reject);
    showState();
}

void TFormRepair::showState()
{
    const ControlSet &c = m_model.controls();
    setWindowTitle(c.state(QStringLiteral("TFormRepair")).text);
    m_tables->setText(c.state(QStringLiteral("LTables")).text);
    m_report->setAccessibleName(c.state(QStringLiteral("ListReport")).accessibleName);
    m_report->clear();
    m_report->addItems(c.state(QStringLiteral("ListReport")).items);
    m_repair->setText(c.state(QStringLiteral("BtnRepair")).text);
    m_repair->setEnabled(c.state(QStringLiteral("BtnRepair")).enabled);
    m_close->setText(c.state(QStringLiteral("BtnClose")).text);
}

void TFormRepair::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_model.retranslate();
        showState();
    }
    QDialog::changeEvent(event);
}

#include "TFormChanges.h"

#include "ChangesModel.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

TFormChanges::TFormChanges(ChangesModel &model, QWidget *parent)
    : QDialog(parent), m_model(model), m_since(new QLabel(this)), m_list(new QListWidget(this)),
      m_write(new QPushButton(this)), m_close(new QPushButton(this))
{
    setObjectName(QStringLiteral("TFormChanges"));
    m_since->setObjectName(QStringLiteral("LabelSince"));
    m_since->setWordWrap(true);
    m_list->setObjectName(QStringLiteral("ListChanges"));
    m_write->setObjectName(QStringLiteral("BtnWriteChanges"));
    m_close->setObjectName(QStringLiteral("BtnClose"));
    m_list->setSelectionMode(QAbstractItemView::NoSelection);
    m_list->setMinimumSize(420, 260);
    // A long line (the sentence of an empty list, a long change) wraps inside the window
    // rather than running past it.
    m_list->setWordWrap(true);
    m_list->setResizeMode(QListView::Adjust);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_write);
    buttons->addWidget(m_close);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_since);
    layout->addWidget(m_list, 1);
    layout->addLayout(buttons);
    m_close->setDefault(true);
    // The list is read, not worked in: the focus starts on Close.
    m_close->setFocus();
    connect(m_close, &QPushButton::clicked, this, &QDialog::accept);
    // The editor writes once the window has closed.
    connect(m_write, &QPushButton::clicked, this, [this] {
        m_model.requestWrite();
        accept();
    });
    showModel();
}

void TFormChanges::showModel()
{
    setWindowTitle(m_model.title());
    m_list->setAccessibleName(m_model.title());
    m_close->setText(m_model.closeCaption());
    m_close->setAccessibleName(m_model.closeCaption());
    m_write->setText(m_model.writeCaption());
    m_write->setAccessibleName(m_model.writeCaption());
    m_write->setVisible(m_model.offer() != ChangesModel::Offer::None);
    m_since->setText(m_model.since());
    m_since->setAccessibleName(m_model.since());
    m_list->clear();
    QFont heading = m_list->font();
    heading.setBold(true);
    for (const ChangesModel::Line &line : m_model.lines()) {
        // The changes sit under their group's name.
        auto *item = new QListWidgetItem(line.text, m_list);
        if (line.heading)
            item->setFont(heading);
    }
}

void TFormChanges::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_model.list();
        showModel();
    }
    QDialog::changeEvent(event);
}

#include "RadioGroup.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QRadioButton>

RadioGroup::RadioGroup(const QString &objectName, int columns, QWidget *parent)
    : QGroupBox(parent), m_buttons(new QButtonGroup(this)), m_grid(new QGridLayout(this)),
      m_columns(qMax(1, columns))
{
    setObjectName(objectName);
    connect(m_buttons, &QButtonGroup::idClicked, this, &RadioGroup::itemClicked);
}

void RadioGroup::setItems(const QStringList &items)
{
    const QList<QAbstractButton *> old = m_buttons->buttons();
    for (QAbstractButton *button : old) {
        m_buttons->removeButton(button);
        delete button;
    }
    // Items fill the first column, then the next, as a radio group with columns does.
    const int rows = (int(items.size()) + m_columns - 1) / m_columns;
    for (int i = 0; i < items.size(); ++i) {
        auto *button = new QRadioButton(items.at(i), this);
        button->setObjectName(objectName() + u'_' + QString::number(i));
        m_buttons->addButton(button, i);
        m_grid->addWidget(button, rows ? i % rows : 0, rows ? i / rows : 0);
    }
}

void RadioGroup::setItemTexts(const QStringList &items)
{
    for (int i = 0; i < items.size() && i < count(); ++i)
        item(i)->setText(items.at(i));
}

int RadioGroup::count() const
{
    return int(m_buttons->buttons().size());
}

QRadioButton *RadioGroup::item(int index) const
{
    return qobject_cast<QRadioButton *>(m_buttons->button(index));
}

int RadioGroup::itemIndex() const
{
    return m_buttons->checkedId();
}

void RadioGroup::setItemIndex(int index)
{
    if (QAbstractButton *button = m_buttons->button(index)) {
        button->setChecked(true);
        return;
    }
    // An exclusive group cannot uncheck its last button directly.
    m_buttons->setExclusive(false);
    for (QAbstractButton *button : m_buttons->buttons())
        button->setChecked(false);
    m_buttons->setExclusive(true);
}

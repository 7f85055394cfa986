#include "ControlSet.h"

#include <algorithm>
#include <stdexcept>

Control &ControlSet::add(const QString &name, ControlKind kind, const QString &parent)
{
    Q_ASSERT(!m_index.contains(name));
    m_index.insert(name, int(m_controls.size()));
    m_controls.push_back(Control{name, kind, parent, {}, {}});
    m_changed.push_back(false);
    return m_controls.back();
}

const Control *ControlSet::find(const QString &name) const
{
    const auto it = m_index.constFind(name);
    return it == m_index.cend() ? nullptr : &m_controls[std::size_t(*it)];
}

const Control &ControlSet::at(const QString &name) const
{
    const Control *control = find(name);
    if (!control)
        throw std::out_of_range("no control " + name.toStdString());
    return *control;
}

Control &ControlSet::edit(const QString &name)
{
    return const_cast<Control &>(at(name));
}

QStringList ControlSet::names() const
{
    QStringList out;
    out.reserve(qsizetype(m_controls.size()));
    for (const Control &c : m_controls)
        out.append(c.name);
    return out;
}

template <typename T>
void ControlSet::assign(const QString &name, T ControlState::*field, const T &value)
{
    Control &control = edit(name);
    if (control.state.*field == value)
        return;
    control.state.*field = value;
    const int i = m_index.value(name);
    if (!m_changed[std::size_t(i)]) {
        m_changed[std::size_t(i)] = true;
        m_changedOrder.push_back(i);
    }
}

void ControlSet::setText(const QString &name, const QString &text)
{
    assign(name, &ControlState::text, text);
}
void ControlSet::setChecked(const QString &name, bool checked)
{
    assign(name, &ControlState::checked, checked);
}
void ControlSet::setItemIndex(const QString &name, int index)
{
    assign(name, &ControlState::itemIndex, index);
}
void ControlSet::setItems(const QString &name, const QStringList &items)
{
    assign(name, &ControlState::items, items);
}
void ControlSet::setVisible(const QString &name, bool visible)
{
    assign(name, &ControlState::visible, visible);
}
void ControlSet::setEnabled(const QString &name, bool enabled)
{
    assign(name, &ControlState::enabled, enabled);
}
void ControlSet::setReadOnly(const QString &name, bool readOnly)
{
    assign(name, &ControlState::readOnly, readOnly);
}
void ControlSet::setValue(const QString &name, int value)
{
    assign(name, &ControlState::value, value);
}
void ControlSet::setAccessibleName(const QString &name, const QString &text)
{
    assign(name, &ControlState::accessibleName, text);
}
void ControlSet::setToolTip(const QString &name, const QString &text)
{
    assign(name, &ControlState::toolTip, text);
}

QStringList ControlSet::takeChanged()
{
    std::sort(m_changedOrder.begin(), m_changedOrder.end());
    QStringList out;
    out.reserve(qsizetype(m_changedOrder.size()));
    for (int i : m_changedOrder) {
        out.append(m_controls[std::size_t(i)].name);
        m_changed[std::size_t(i)] = false;
    }
    m_changedOrder.clear();
    return out;
}

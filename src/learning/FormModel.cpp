#include "FormModel.h"

#include <QCoreApplication>
#include <algorithm>

FormModel::FormModel(const char *context, UserPrompt *prompt) : m_prompt(prompt), m_context(context)
{}

QString FormModel::tr(const char *source) const
{
    return QCoreApplication::translate(m_context, source);
}

void FormModel::caption(const QString &name, const char *source)
{
    m_controls.setText(name, tr(source));
}

std::optional<FormModel::SpinRange> FormModel::spinRange(const QString &name) const
{
    const auto it = m_spins.constFind(name);
    if (it == m_spins.cend())
        return std::nullopt;
    return *it;
}

int FormModel::spinValue(const QString &name) const
{
    return m_controls.state(name).text.toInt();
}

void FormModel::addSpin(const QString &name, int min, int max, const QString &parent)
{
    m_controls.add(name, ControlKind::Edit, parent);
    m_spins.insert(name, {min, max});
    m_controls.setText(name, QString::number(min));
}

void FormModel::setSpinValue(const QString &name, int value)
{
    const SpinRange range = m_spins.value(name);
    m_controls.setText(name, QString::number(std::clamp(value, range.min, range.max)));
}

void FormModel::setSpinMax(const QString &name, int max)
{
    SpinRange &range = m_spins[name];
    if (range.max == max)
        return;
    range.max = max;
    markChanged(name);
    setSpinValue(name, spinValue(name));
}

void FormModel::addTrackBar(const QString &name, const QString &parent)
{
    m_controls.add(name, ControlKind::Gauge, parent);
    m_trackBars.insert(name, {});
}

void FormModel::setTrackBar(const QString &name, const TrackBarState &state)
{
    TrackBarState &bar = m_trackBars[name];
    if (bar == state)
        return;
    bar = state;
    markChanged(name);
}

void FormModel::addList(const QString &name, const QString &parent)
{
    m_controls.add(name, ControlKind::Panel, parent);
    m_lists.insert(name);
}

void FormModel::setTint(const QString &name, Tint tint)
{
    if (m_tints.value(name, Tint::Normal) == tint)
        return;
    m_tints.insert(name, tint);
    markChanged(name);
}

void FormModel::markChanged(const QString &name)
{
    if (!m_extraChanged.contains(name))
        m_extraChanged.append(name);
}

void FormModel::flush()
{
    if (!m_controls.hasChanges() && m_extraChanged.isEmpty())
        return;
    QStringList names = m_controls.takeChanged();
    for (const QString &name : std::as_const(m_extraChanged)) {
        if (!names.contains(name))
            names.append(name);
    }
    m_extraChanged.clear();
    if (changed)
        changed(names);
}

void FormModel::tell(const QString &text, UserPrompt::Kind kind)
{
    // The form shows what it has done so far behind the message.
    flush();
    if (m_prompt)
        m_prompt->tell(text, kind);
}

UserPrompt::Answer FormModel::ask(const QString &text, UserPrompt::Buttons buttons)
{
    flush();
    if (!m_prompt)
        return UserPrompt::Answer::No;
    return m_prompt->ask(text, UserPrompt::Kind::Confirmation, buttons);
}

void FormModel::requestFocus(const QString &name)
{
    if (focusRequested)
        focusRequested(name);
}

void FormModel::close(bool accepted)
{
    m_closed = true;
    m_accepted = accepted;
    flush();
    if (closeRequested)
        closeRequested(accepted);
}

void FormModel::act(const std::function<void()> &work)
{
    ++m_acting;
    work();
    --m_acting;
    flush();
}

const Control *FormModel::lookup(const QString &name, QString *error) const
{
    const Control *control = m_controls.find(name);
    if (!control && error)
        *error = QStringLiteral("no control ") + name;
    return control;
}

bool FormModel::canAct(const Control &control, QString *error) const
{
    for (const Control *c = &control; c;
         c = c->parent.isEmpty() ? nullptr : m_controls.find(c->parent)) {
        if (!c->state.visible || !c->state.enabled) {
            if (error)
                *error = control.name + (c->state.visible ? QStringLiteral(" is disabled")
                                                          : QStringLiteral(" is hidden"));
            return false;
        }
    }
    return true;
}

bool FormModel::type(const QString &name, const QString &text, QString *error)
{
    const Control *control = lookup(name, error);
    if (!control)
        return false;
    if (control->kind != ControlKind::Edit || control->state.readOnly) {
        if (error)
            *error = name + QStringLiteral(" takes no typing");
        return false;
    }
    if (!canAct(*control, error))
        return false;
    act([&] { typed(name, text); });
    return true;
}

bool FormModel::leave(const QString &name, QString *error)
{
    const Control *control = lookup(name, error);
    if (!control)
        return false;
    act([&] { left(name); });
    return true;
}

bool FormModel::click(const QString &name, QString *error)
{
    const Control *control = lookup(name, error);
    if (!control)
        return false;
    if (control->kind != ControlKind::Button && control->kind != ControlKind::Check) {
        if (error)
            *error = name + QStringLiteral(" cannot be clicked");
        return false;
    }
    if (!canAct(*control, error))
        return false;
    act([&] { clicked(name); });
    return true;
}

bool FormModel::pick(const QString &name, int item, QString *error)
{
    const Control *control = lookup(name, error);
    if (!control)
        return false;
    const bool pickable =
        control->kind == ControlKind::Radio || (m_lists.contains(name) && !control->state.readOnly);
    if (!pickable || item < 0 || item >= control->state.items.size()) {
        if (error)
            *error = name + QStringLiteral(" has no item %1").arg(item);
        return false;
    }
    if (!canAct(*control, error))
        return false;
    act([&] { picked(name, item); });
    return true;
}

void FormModel::typed(const QString &name, const QString &text)
{
    if (const auto range = spinRange(name)) {
        bool ok = false;
        const int value = text.trimmed().toInt(&ok);
        if (ok)
            setSpinValue(name, value);
        else
            markChanged(name); // the box shows its number again
        return;
    }
    m_controls.setText(name, text);
    m_controls.takeChanged(); // the box already shows what was typed
}

void FormModel::left(const QString &) {}

void FormModel::clicked(const QString &name)
{
    if (m_controls.at(name).kind == ControlKind::Check)
        m_controls.setChecked(name, !m_controls.state(name).checked);
}

void FormModel::picked(const QString &name, int item)
{
    m_controls.setItemIndex(name, item);
}

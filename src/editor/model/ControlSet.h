#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <vector>

// What kind of widget a control of a form is; the view builds one widget per control.
enum class ControlKind
{
    Edit,   // a line edit
    Label,  // a caption or a value shown read-only
    Check,  // a check box
    Radio,  // a radio group: items and the item index
    Button, // a push button
    Panel,  // a row or a frame holding other controls
    Page,   // a page of a tab widget
    Group,  // a group box
    Gauge,  // a progress bar 0 to 100
    Image   // a small picture one can click: lit while checked, dark otherwise
};

// What one control shows.
struct ControlState
{
    QString text;
    bool checked = false;
    int itemIndex = -1;
    QStringList items;
    bool visible = true;
    bool enabled = true;
    bool readOnly = false;
    int value = 0; // the gauge
    QString accessibleName;
    QString toolTip;
};

struct Control
{
    QString name;
    ControlKind kind = ControlKind::Label;
    QString parent; // the container it sits in (empty: the form)
    QString buddy;  // the label that names it, for edits and radio groups
    ControlState state;
};

// The controls of a form by name, in the order they were added, with the names of those whose
// state changed since the last takeChanged(), so that a view repaints only those.
class ControlSet final
{
public:
    Control &add(const QString &name, ControlKind kind, const QString &parent = {});
    bool contains(const QString &name) const { return m_index.contains(name); }
    const Control *find(const QString &name) const;
    const Control &at(const QString &name) const;
    const ControlState &state(const QString &name) const { return at(name).state; }
    const std::vector<Control> &all() const { return m_controls; }
    QStringList names() const;

    void setText(const QString &name, const QString &text);
    void setChecked(const QString &name, bool checked);
    void setItemIndex(const QString &name, int index);
    void setItems(const QString &name, const QStringList &items);
    void setVisible(const QString &name, bool visible);
    void setEnabled(const QString &name, bool enabled);
    void setReadOnly(const QString &name, bool readOnly);
    void setValue(const QString &name, int value);
    void setAccessibleName(const QString &name, const QString &text);
    void setToolTip(const QString &name, const QString &text);
    void setBuddy(const QString &name, const QString &label) { edit(name).buddy = label; }

    // Names changed since the last call, in control order.
    QStringList takeChanged();
    bool hasChanges() const { return !m_changedOrder.empty(); }

private:
    Control &edit(const QString &name);
    template <typename T> void assign(const QString &name, T ControlState::*field, const T &value);

    std::vector<Control> m_controls;
    QHash<QString, int> m_index;
    std::vector<bool> m_changed;
    std::vector<int> m_changedOrder;
};

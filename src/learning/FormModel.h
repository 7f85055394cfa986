#pragma once

#include "ControlSet.h"
#include "UserPrompt.h"

#include <QHash>
#include <QSet>
#include <functional>
#include <optional>

// The colours a control's text takes, named as the forms have always used them.
enum class Tint
{
    Normal,
    Blue,
    Navy,
    Red,
    Maroon
};

// A track bar over 0..255: where its thumb stands and the range it shows selected.
struct TrackBarState
{
    int position = 0;
    int selectionStart = 0;
    int selectionEnd = 0;
    bool operator==(const TrackBarState &) const = default;
};

// The presentation model of one of the learning forms, without its widgets: every control by
// name with what it shows, and what a person does to them. Spin edits are edit controls with a
// range; track bars are gauge controls with a selection. Views, the tests and scripts drive it
// alike; it opens no window and asks through UserPrompt.
class FormModel
{
public:
    FormModel(const char *context, UserPrompt *prompt);
    virtual ~FormModel() = default;
    Q_DISABLE_COPY_MOVE(FormModel)

    // The translation context of the form's captions.
    const char *context() const { return m_context; }

    const ControlSet &controls() const { return m_controls; }
    bool has(const QString &name) const { return m_controls.contains(name); }
    const ControlState &control(const QString &name) const { return m_controls.state(name); }
    QStringList controlNames() const { return m_controls.names(); }
    Tint tint(const QString &name) const { return m_tints.value(name, Tint::Normal); }
    bool isTrackBar(const QString &name) const { return m_trackBars.contains(name); }
    // A list box: its lines are the control's items.
    bool isList(const QString &name) const { return m_lists.contains(name); }
    TrackBarState trackBar(const QString &name) const { return m_trackBars.value(name); }
    struct SpinRange
    {
        int min = 0;
        int max = 0;
    };
    std::optional<SpinRange> spinRange(const QString &name) const;
    // The number a spin edit shows.
    int spinValue(const QString &name) const;

    // What a person does. Each returns false, with the reason in *error, when the control does
    // not exist or does not take the action (typing into a button, a hidden or disabled one).
    bool type(const QString &name, const QString &text, QString *error = nullptr);
    bool leave(const QString &name, QString *error = nullptr);
    bool click(const QString &name, QString *error = nullptr);
    // An item of a radio group, or a line of a list box.
    bool pick(const QString &name, int item, QString *error = nullptr);

    // True while a handler runs (it may be showing a message): the timer stays out.
    bool acting() const { return m_acting > 0; }
    bool closed() const { return m_closed; }
    bool accepted() const { return m_accepted; }

    // The language changed: every caption again.
    virtual void retranslate() {}

    // Takes the changed controls and tells the view.
    void flush();

    // The view repaints these controls.
    std::function<void(const QStringList &changed)> changed;
    // The form closes; accepted for OK.
    std::function<void(bool accepted)> closeRequested;
    // The focus goes to this control.
    std::function<void(const QString &name)> focusRequested;

protected:
    // The handlers behind the actions; the control exists and takes the action.
    virtual void typed(const QString &name, const QString &text);
    virtual void left(const QString &name);
    virtual void clicked(const QString &name);
    virtual void picked(const QString &name, int item);

    ControlSet &c() { return m_controls; }
    QString tr(const char *source) const;
    // The caption from the form's context.
    void caption(const QString &name, const char *source);

    void addSpin(const QString &name, int min, int max, const QString &parent = {});
    void setSpinValue(const QString &name, int value);
    void setSpinMax(const QString &name, int max);
    void addTrackBar(const QString &name, const QString &parent = {});
    void setTrackBar(const QString &name, const TrackBarState &state);
    void setTint(const QString &name, Tint tint);
    void addList(const QString &name, const QString &parent = {});

    void tell(const QString &text, UserPrompt::Kind kind = UserPrompt::Kind::Information);
    UserPrompt::Answer ask(const QString &text,
                           UserPrompt::Buttons buttons = UserPrompt::Buttons::YesNo);
    void requestFocus(const QString &name);
    // Tells the view to repaint this part, a control or a drawing of the view's own.
    void markChanged(const QString &name);
    void close(bool accepted);
    // Runs a handler as one action: the view repaints when it ends.
    void act(const std::function<void()> &work);

    UserPrompt *m_prompt;

private:
    const Control *lookup(const QString &name, QString *error) const;
    bool canAct(const Control &control, QString *error) const;

    const char *m_context;
    ControlSet m_controls;
    QHash<QString, Tint> m_tints;
    QHash<QString, TrackBarState> m_trackBars;
    QHash<QString, SpinRange> m_spins;
    QSet<QString> m_lists;
    QStringList m_extraChanged;
    int m_acting = 0;
    bool m_closed = false;
    bool m_accepted = false;
};

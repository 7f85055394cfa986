#pragma once

#include "ControlSet.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <functional>

class EditorModel;
class QTabWidget;
class QWidget;

// Keeps the editor's widgets in step with its model: one widget per control, named after it;
// what a person does goes to the model, what the model reports changed comes back into the
// widgets with their signals blocked. It knows widget kinds, nothing of what the controls mean.
class ControlBinder final : public QObject
{
    Q_OBJECT
public:
    ControlBinder(EditorModel &model, QObject *parent = nullptr);
    Q_DISABLE_COPY_MOVE(ControlBinder)

    // The widget of a control inside parent, showing the control's state.
    QWidget *create(const Control &control, QWidget *parent);
    // A page of a tab widget: its caption and visibility belong to the tab.
    QWidget *createPage(const Control &control, QTabWidget *tabs);
    // A widget the view made itself, such as the form, whose caption is the control's text.
    void bindWindow(const QString &name, QWidget *window);

    QWidget *widget(const QString &name) const { return m_widgets.value(name); }
    // Copies these controls' states into their widgets.
    void show(const QStringList &names);

    // The model goes away: nothing more is forwarded to it.
    void detach() { m_model = nullptr; }
    // True while an action of the model runs (it may show dialogs and repaint meanwhile).
    bool acting() const { return m_acting > 0; }
    // Runs one of the model's handlers as an action.
    void act(const std::function<void()> &work);

Q_SIGNALS:
    // An action has ended.
    void actionEnded();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *make(const Control &control, QWidget *parent);
    void apply(const Control &control, QWidget *widget);
    void typed(const QString &name, const QString &text);
    void clicked(const QString &name);
    void picked(const QString &name, int item);
    void left(const QString &name);

    EditorModel *m_model;
    QHash<QString, QWidget *> m_widgets;
    QHash<QString, QTabWidget *> m_tabs;
    QSet<QWidget *> m_windows;
    int m_acting = 0;
};

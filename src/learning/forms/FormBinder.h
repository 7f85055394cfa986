#pragma once

#include "FormModel.h"

#include <QHash>
#include <QObject>
#include <QPalette>
#include <QSet>
#include <functional>

class QWidget;

// Keeps one learning form's widgets in step with its model: one widget per control, named
// after it; what a person does goes to the model, what the model reports changed comes back
// into the widgets with their signals blocked. Spin edits become spin boxes, track bars
// selection sliders, lists list boxes, and a tint the colour of a control's text.
class FormBinder final : public QObject
{
    Q_OBJECT
public:
    explicit FormBinder(FormModel &model, QObject *parent = nullptr);
    Q_DISABLE_COPY_MOVE(FormBinder)

    // The widget of a control inside parent, showing the control's state.
    QWidget *create(const QString &name, QWidget *parent);
    // The form's own window, whose title is the control's text.
    void bindWindow(const QString &name, QWidget *window);
    QWidget *widget(const QString &name) const { return m_widgets.value(name); }

    // Copies these controls' states into their widgets.
    void show(const QStringList &names);
    void showAll();

    // True while an action of the model runs.
    bool acting() const { return m_acting > 0 || m_model.acting(); }

private:
    QWidget *make(const Control &control, QWidget *parent);
    void apply(const Control &control, QWidget *widget);
    void applyTint(const QString &name, QWidget *widget);
    void act(const std::function<void()> &work);
    bool eventFilter(QObject *watched, QEvent *event) override;

    FormModel &m_model;
    QHash<QString, QWidget *> m_widgets;
    QHash<QWidget *, QPalette> m_palettes;
    QSet<QWidget *> m_windows;
    int m_acting = 0;
};

// The colour a tint shows in.
QColor tintColor(Tint tint);

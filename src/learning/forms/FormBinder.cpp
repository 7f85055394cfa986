#include "FormBinder.h"

#include "RadioGroup.h"
#include "SelectionSlider.h"

#include <QCheckBox>
#include <QFocusEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>

QColor tintColor(Tint tint)
{
    switch (tint) {
    case Tint::Blue:
        return QColor(0, 0, 255);
    case Tint::Navy:
        return QColor(0, 0, 128);
    case Tint::Red:
        return QColor(255, 0, 0);
    case Tint::Maroon:
        return QColor(128, 0, 0);
    case Tint::Normal:
        break;
    }
    return {};
}

FormBinder::FormBinder(FormModel &model, QObject *parent) : QObject(parent), m_model(model) {}

QWidget *FormBinder::create(const QString &name, QWidget *parent)
{
    const Control &control = m_model.controls().at(name);
    QWidget *widget = make(control, parent);
    m_palettes.insert(widget, widget->palette());
    apply(control, widget);
    return widget;
}

QWidget *FormBinder::make(const Control &control, QWidget *parent)
{
    const QString name = control.name;
    QWidget *widget = nullptr;
    switch (control.kind) {
    case ControlKind::Edit:
        if (const auto range = m_model.spinRange(name)) {
            auto *spin = new QSpinBox(parent);
            spin->setRange(range->min, range->max);
            connect(spin, &QSpinBox::valueChanged, this, [this, name](int value) {
                act([&] { m_model.type(name, QString::number(value)); });
            });
            widget = spin;
        } else {
            auto *edit = new QLineEdit(parent);
            edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            connect(edit, &QLineEdit::textEdited, this,
                    [this, name](const QString &text) { act([&] { m_model.type(name, text); }); });
            widget = edit;
        }
        widget->installEventFilter(this);
        break;
    case ControlKind::Check: {
        auto *check = new QCheckBox(parent);
        connect(check, &QCheckBox::clicked, this, [this, name] {
            act([&] { m_model.click(name); });
            show({name});
        });
        widget = check;
        break;
    }
    case ControlKind::Radio: {
        auto *group = new RadioGroup(name, 2, parent);
        connect(group, &RadioGroup::itemClicked, this, [this, name](int item) {
            act([&] { m_model.pick(name, item); });
            show({name});
        });
        widget = group;
        break;
    }
    case ControlKind::Button: {
        auto *button = new QPushButton(parent);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this,
                [this, name] { act([&] { m_model.click(name); }); });
        widget = button;
        break;
    }
    case ControlKind::Group:
        widget = new QGroupBox(parent);
        break;
    case ControlKind::Gauge:
        if (m_model.isTrackBar(name)) {
            widget = new SelectionSlider(Qt::Vertical, parent);
        } else {
            auto *gauge = new QProgressBar(parent);
            gauge->setRange(0, 100);
            widget = gauge;
        }
        break;
    case ControlKind::Panel:
        if (m_model.isList(name) && control.state.readOnly) {
            auto *text = new QPlainTextEdit(parent);
            text->setReadOnly(true);
            widget = text;
        } else if (m_model.isList(name)) {
            auto *list = new QListWidget(parent);
            list->setSelectionMode(QAbstractItemView::SingleSelection);
            connect(list, &QListWidget::currentRowChanged, this, [this, name](int row) {
                if (row >= 0)
                    act([&] { m_model.pick(name, row); });
            });
            widget = list;
        } else {
            widget = new QWidget(parent);
        }
        break;
    case ControlKind::Label:
    case ControlKind::Page:
    case ControlKind::Image:
        widget = new QLabel(parent);
        break;
    }
    widget->setObjectName(name);
    m_widgets.insert(name, widget);
    if (!control.buddy.isEmpty()) {
        if (auto *label = qobject_cast<QLabel *>(m_widgets.value(control.buddy)))
            label->setBuddy(widget);
    }
    return widget;
}

void FormBinder::bindWindow(const QString &name, QWidget *window)
{
    m_widgets.insert(name, window);
    m_windows.insert(window);
    show({name});
}

void FormBinder::showAll()
{
    show(m_model.controlNames());
}

void FormBinder::show(const QStringList &names)
{
    for (const QString &name : names) {
        QWidget *widget = m_widgets.value(name);
        const Control *control = m_model.controls().find(name);
        if (widget && control)
            apply(*control, widget);
    }
}

void FormBinder::apply(const Control &control, QWidget *widget)
{
    const ControlState &s = control.state;
    const QSignalBlocker blocker(widget);
    if (m_windows.contains(widget)) {
        widget->setWindowTitle(s.text);
        return;
    }
    if (auto *spin = qobject_cast<QSpinBox *>(widget)) {
        if (const auto range = m_model.spinRange(control.name))
            spin->setRange(range->min, range->max);
        spin->setValue(s.text.toInt());
    } else if (auto *edit = qobject_cast<QLineEdit *>(widget)) {
        if (edit->text() != s.text)
            edit->setText(s.text);
        edit->setReadOnly(s.readOnly);
    } else if (auto *slider = qobject_cast<SelectionSlider *>(widget)) {
        const TrackBarState bar = m_model.trackBar(control.name);
        slider->setValue(bar.position);
        slider->setSelection(bar.selectionStart, bar.selectionEnd);
    } else if (auto *list = qobject_cast<QListWidget *>(widget)) {
        QStringList shown;
        for (int row = 0; row < list->count(); ++row)
            shown.append(list->item(row)->text());
        if (shown != s.items) {
            list->clear();
            list->addItems(s.items);
        }
        if (s.itemIndex >= 0 && s.itemIndex < list->count())
            list->setCurrentRow(s.itemIndex);
    } else if (auto *text = qobject_cast<QPlainTextEdit *>(widget)) {
        const QString joined = s.items.join(u'\n');
        if (text->toPlainText() != joined)
            text->setPlainText(joined);
    } else if (auto *label = qobject_cast<QLabel *>(widget)) {
        label->setText(s.text);
    } else if (auto *check = qobject_cast<QCheckBox *>(widget)) {
        check->setText(s.text);
        check->setChecked(s.checked);
    } else if (auto *group = qobject_cast<RadioGroup *>(widget)) {
        group->setTitle(s.text);
        if (group->count() != s.items.size())
            group->setItems(s.items);
        else
            group->setItemTexts(s.items);
        group->setItemIndex(s.itemIndex);
    } else if (auto *box = qobject_cast<QGroupBox *>(widget)) {
        box->setTitle(s.text);
    } else if (auto *button = qobject_cast<QPushButton *>(widget)) {
        button->setText(s.text);
    } else if (auto *gauge = qobject_cast<QProgressBar *>(widget)) {
        gauge->setValue(s.value);
    }
    applyTint(control.name, widget);
    // A widget shows with its parent unless it was hidden; only a change needs telling.
    const bool hidden = widget->testAttribute(Qt::WA_WState_ExplicitShowHide) && widget->isHidden();
    if (hidden == s.visible)
        widget->setVisible(s.visible);
    if (widget->isEnabledTo(widget->parentWidget()) != s.enabled)
        widget->setEnabled(s.enabled);
    if (widget->toolTip() != s.toolTip)
        widget->setToolTip(s.toolTip);
    if (!s.accessibleName.isEmpty() && widget->accessibleName() != s.accessibleName)
        widget->setAccessibleName(s.accessibleName);
}

void FormBinder::applyTint(const QString &name, QWidget *widget)
{
    const Tint tint = m_model.tint(name);
    QPalette palette = m_palettes.value(widget, widget->palette());
    if (tint != Tint::Normal) {
        const QColor color = tintColor(tint);
        palette.setColor(QPalette::WindowText, color);
        palette.setColor(QPalette::Text, color);
        palette.setColor(QPalette::ButtonText, color);
    }
    if (widget->palette() != palette)
        widget->setPalette(palette);
}

void FormBinder::act(const std::function<void()> &work)
{
    ++m_acting;
    work();
    --m_acting;
}

bool FormBinder::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut) {
        // A dialog or a menu that comes up does not take the person out of the box.
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
            const QString name = watched->objectName();
            act([&] { m_model.leave(name); });
        }
    }
    return QObject::eventFilter(watched, event);
}

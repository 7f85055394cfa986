#include "ControlBinder.h"

#include "EditorModel.h"
#include "RadioGroup.h"

#include <QCheckBox>
#include <QFocusEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

// A lit or a dark lamp.
QIcon lamp(bool lit)
{
    static QIcon lamps[2];
    QIcon &icon = lamps[lit ? 1 : 0];
    if (icon.isNull()) {
        QPixmap pixmap(12, 12);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QColor(60, 60, 60));
        painter.setBrush(lit ? QColor(220, 40, 30) : QColor(170, 170, 170));
        painter.drawEllipse(1, 1, 10, 10);
        painter.end();
        icon = QIcon(pixmap);
    }
    return icon;
}

} // namespace

ControlBinder::ControlBinder(EditorModel &model, QObject *parent) : QObject(parent), m_model(&model)
{}

QWidget *ControlBinder::create(const Control &control, QWidget *parent)
{
    QWidget *widget = make(control, parent);
    apply(control, widget);
    return widget;
}

QWidget *ControlBinder::make(const Control &control, QWidget *parent)
{
    const QString name = control.name;
    QWidget *widget = nullptr;
    switch (control.kind) {
    case ControlKind::Edit: {
        auto *edit = new QLineEdit(parent);
        edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        connect(edit, &QLineEdit::textEdited, this,
                [this, name](const QString &text) { typed(name, text); });
        edit->installEventFilter(this);
        widget = edit;
        break;
    }
    case ControlKind::Check: {
        auto *check = new QCheckBox(parent);
        connect(check, &QCheckBox::clicked, this, [this, name] { clicked(name); });
        check->installEventFilter(this);
        widget = check;
        break;
    }
    case ControlKind::Radio: {
        auto *group = new RadioGroup(name, 1, parent);
        connect(group, &RadioGroup::itemClicked, this,
                [this, name](int item) { picked(name, item); });
        widget = group;
        break;
    }
    case ControlKind::Button: {
        auto *button = new QPushButton(parent);
        // Enter in a box must not press a button of the form.
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, name] { clicked(name); });
        widget = button;
        break;
    }
    case ControlKind::Panel: {
        widget = new QWidget(parent);
        auto *row = new QHBoxLayout(widget);
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(2);
        break;
    }
    case ControlKind::Page: {
        widget = new QWidget(parent);
        auto *column = new QVBoxLayout(widget);
        column->setContentsMargins(4, 2, 4, 2);
        column->setSpacing(1);
        break;
    }
    case ControlKind::Group:
        widget = new QGroupBox(parent);
        break;
    case ControlKind::Gauge: {
        auto *gauge = new QProgressBar(parent);
        gauge->setRange(0, 100);
        widget = gauge;
        break;
    }
    case ControlKind::Label:
        widget = new QLabel(parent);
        break;
    case ControlKind::Image: {
        auto *image = new QToolButton(parent);
        image->setAutoRaise(true);
        image->setIconSize(QSize(12, 12));
        image->setFocusPolicy(Qt::NoFocus);
        connect(image, &QToolButton::clicked, this, [this, name] { clicked(name); });
        widget = image;
        break;
    }
    }
    widget->setObjectName(name);
    m_widgets.insert(name, widget);
    if (!control.buddy.isEmpty()) {
        if (auto *label = qobject_cast<QLabel *>(m_widgets.value(control.buddy)))
            label->setBuddy(widget);
    }
    return widget;
}

QWidget *ControlBinder::createPage(const Control &control, QTabWidget *tabs)
{
    QWidget *page = make(control, tabs);
    m_tabs.insert(control.name, tabs);
    tabs->addTab(page, QString());
    apply(control, page);
    return page;
}

void ControlBinder::bindWindow(const QString &name, QWidget *window)
{
    m_widgets.insert(name, window);
    m_windows.insert(window);
    show({name});
}

void ControlBinder::show(const QStringList &names)
{
    if (!m_model)
        return;
    const ControlSet &controls = m_model->controls();
    for (const QString &name : names) {
        QWidget *widget = m_widgets.value(name);
        const Control *control = controls.find(name);
        if (widget && control)
            apply(*control, widget);
    }
}

void ControlBinder::apply(const Control &control, QWidget *widget)
{
    const ControlState &s = control.state;
    const QSignalBlocker blocker(widget);
    if (m_windows.contains(widget)) {
        widget->setWindowTitle(s.text);
        return;
    }
    if (QTabWidget *tabs = m_tabs.value(control.name)) {
        const int index = tabs->indexOf(widget);
        tabs->setTabText(index, s.text);
        tabs->setTabVisible(index, s.visible);
        // Pages appear as they are filled: the first of them is the one shown.
        const int current = tabs->currentIndex();
        if (s.visible && (index < current || !tabs->isTabVisible(current)))
            tabs->setCurrentIndex(index);
        tabs->setTabEnabled(index, s.enabled);
        tabs->setTabToolTip(index, s.toolTip);
        return;
    }
    switch (control.kind) {
    case ControlKind::Edit: {
        auto *edit = static_cast<QLineEdit *>(widget);
        if (edit->text() != s.text)
            edit->setText(s.text);
        edit->setReadOnly(s.readOnly);
        break;
    }
    case ControlKind::Label:
        static_cast<QLabel *>(widget)->setText(s.text);
        break;
    case ControlKind::Image:
        static_cast<QToolButton *>(widget)->setIcon(lamp(s.checked));
        break;
    case ControlKind::Check: {
        auto *check = static_cast<QCheckBox *>(widget);
        check->setText(s.text);
        check->setChecked(s.checked);
        break;
    }
    case ControlKind::Radio: {
        auto *group = static_cast<RadioGroup *>(widget);
        group->setTitle(s.text);
        if (group->count() != s.items.size())
            group->setItems(s.items);
        else
            group->setItemTexts(s.items);
        group->setItemIndex(s.itemIndex);
        break;
    }
    case ControlKind::Button:
        static_cast<QPushButton *>(widget)->setText(s.text);
        break;
    case ControlKind::Group:
        static_cast<QGroupBox *>(widget)->setTitle(s.text);
        break;
    case ControlKind::Gauge:
        static_cast<QProgressBar *>(widget)->setValue(s.value);
        break;
    case ControlKind::Panel:
    case ControlKind::Page:
        break;
    }
    // A widget shows with its parent unless it was hidden; only a change needs telling.
    const bool hidden = widget->testAttribute(Qt::WA_WState_ExplicitShowHide) && widget->isHidden();
    if (hidden == s.visible)
        widget->setVisible(s.visible);
    if (widget->isEnabledTo(widget->parentWidget()) != s.enabled)
        widget->setEnabled(s.enabled);
    if (widget->accessibleName() != s.accessibleName)
        widget->setAccessibleName(s.accessibleName);
    if (widget->toolTip() != s.toolTip)
        widget->setToolTip(s.toolTip);
}

void ControlBinder::act(const std::function<void()> &work)
{
    if (!m_model)
        return;
    ++m_acting;
    work();
    --m_acting;
    if (m_acting == 0)
        Q_EMIT actionEnded();
}

void ControlBinder::typed(const QString &name, const QString &text)
{
    bool taken = false;
    act([&] { taken = m_model->type(name, text); });
    if (!taken)
        show({name});
}

void ControlBinder::clicked(const QString &name)
{
    act([&] { m_model->click(name); });
    // A click the model did not take leaves the box as the model has it.
    show({name});
}

void ControlBinder::picked(const QString &name, int item)
{
    act([&] { m_model->pick(name, item); });
    show({name});
}

void ControlBinder::left(const QString &name)
{
    act([&] { m_model->leave(name); });
}

bool ControlBinder::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut && m_model) {
        // A dialog or a menu that comes up does not take the person out of the box.
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            left(watched->objectName());
    }
    return QObject::eventFilter(watched, event);
}

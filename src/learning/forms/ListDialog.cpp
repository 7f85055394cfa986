#include "ListDialog.h"

#include "FormBinder.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

ListDialog::ListDialog(std::unique_ptr<FormModel> model, const QString &formName, QWidget *parent)
    : QDialog(parent), m_model(std::move(model)), m_binder(new FormBinder(*m_model, this))
{
    setObjectName(formName);
    setAttribute(Qt::WA_DeleteOnClose);
    auto *column = new QVBoxLayout(this);
    QHBoxLayout *buttons = nullptr;
    for (const Control &control : m_model->controls().all()) {
        if (control.name == formName || !control.parent.isEmpty())
            continue;
        QWidget *widget = m_binder->create(control.name, this);
        if (control.kind == ControlKind::Button) {
            if (!buttons) {
                buttons = new QHBoxLayout;
                buttons->addStretch(1);
            }
            buttons->addWidget(widget);
            static_cast<QPushButton *>(widget)->setDefault(true);
        } else {
            column->addWidget(widget, m_model->isList(control.name) ? 1 : 0);
        }
        if (m_model->isList(control.name))
            widget->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('0')) * 40);
    }
    if (buttons)
        column->addLayout(buttons);
    m_binder->bindWindow(formName, this);
    m_model->changed = [this](const QStringList &names) { m_binder->show(names); };
    m_model->closeRequested = [this](bool accepted) { done(accepted ? Accepted : Rejected); };
}

ListDialog::~ListDialog()
{
    m_model->changed = nullptr;
    m_model->closeRequested = nullptr;
}

void ListDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        m_model->retranslate();
    QDialog::changeEvent(event);
}

#include "TFormCAdjust.h"

#include "CAdjustModel.h"
#include "FormBinder.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSpinBox>

TFormCAdjust::TFormCAdjust(CAdjustModel &model, QWidget *parent)
    : QDialog(parent), m_model(model), m_binder(new FormBinder(model, this))
{
    setObjectName(QStringLiteral("TFormCAdjust"));
    auto *grid = new QGridLayout(this);
    grid->addWidget(m_binder->create(QStringLiteral("Label1"), this), 0, 0);
    QWidget *channel = m_binder->create(QStringLiteral("SpinEdit1"), this);
    channel->installEventFilter(this);
    grid->addWidget(channel, 0, 1);
    grid->addWidget(m_binder->create(QStringLiteral("Label2"), this), 1, 0, 1, 2);
    grid->addWidget(m_binder->create(QStringLiteral("CheckBox1"), this), 2, 0, 1, 2);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_binder->create(QStringLiteral("BtnOK"), this));
    buttons->addWidget(m_binder->create(QStringLiteral("BtnCancel"), this));
    grid->addLayout(buttons, 3, 0, 1, 2);
    m_binder->bindWindow(QStringLiteral("TFormCAdjust"), this);
    m_model.changed = [this](const QStringList &names) { m_binder->show(names); };
    m_model.closeRequested = [this](bool accepted) { done(accepted ? Accepted : Rejected); };
    channel->setFocus();
}

TFormCAdjust::~TFormCAdjust()
{
    m_model.changed = nullptr;
    m_model.closeRequested = nullptr;
}

void TFormCAdjust::reject()
{
    if (!m_model.closed())
        m_model.click(QStringLiteral("BtnCancel"));
    else
        QDialog::reject();
}

bool TFormCAdjust::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        // Ctrl+Break (key code 3) cancels.
        const bool ctrlBreak = (key->key() == Qt::Key_Pause || key->key() == Qt::Key_Cancel) &&
                               (key->modifiers() & Qt::ControlModifier);
        if (enter || ctrlBreak) {
            if (auto *spin = qobject_cast<QSpinBox *>(watched))
                spin->interpretText();
            m_model.click(enter ? QStringLiteral("BtnOK") : QStringLiteral("BtnCancel"));
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void TFormCAdjust::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        m_model.retranslate();
    QDialog::changeEvent(event);
}

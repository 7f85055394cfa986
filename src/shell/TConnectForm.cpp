#include "TConnectForm.h"

#include "Messages.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

TConnectForm::TConnectForm(QWidget *parent) : QDialog(parent), m_label1(new QLabel(this))
{
    setObjectName(QStringLiteral("TConnectForm"));
    setAttribute(Qt::WA_DeleteOnClose);
    m_label1->setObjectName(QStringLiteral("Label1"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_label1);
    retranslateUi();
}

void TConnectForm::retranslateUi()
{
    setWindowTitle(tr("Mini-programmer"));
    m_label1->setText(messageText(Msg::PleaseConnectMiniProgrammer));
}

void TConnectForm::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QDialog::changeEvent(event);
}

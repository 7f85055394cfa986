#include "TCommunication.h"

#include "Messages.h"
#include "Pictures.h"
#include "RadioGroup.h"
#include "UserPrompt.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

TCommunication::TCommunication(UserPrompt *prompt, QWidget *parent)
    : QDialog(parent), m_prompt(prompt), m_label1(new QLabel(this)), m_image1(new QLabel(this)),
      m_comGroup(new RadioGroup(QStringLiteral("ComGroup"), 2)), m_okBtn(new QPushButton(this)),
      m_cancelBtn(new QPushButton(this))
{
    setObjectName(QStringLiteral("TCommunication"));
    m_label1->setObjectName(QStringLiteral("Label1"));
    m_image1->setObjectName(QStringLiteral("Image1"));
    m_okBtn->setObjectName(QStringLiteral("OkBtn"));
    m_cancelBtn->setObjectName(QStringLiteral("CancelBtn"));
    m_okBtn->setDefault(true);
    QFont bold = m_label1->font();
    bold.setBold(true);
    m_label1->setFont(bold);
    m_image1->setPixmap(Pictures::load(Pictures::kPort));

    auto *panel = new QFrame(this);
    panel->setObjectName(QStringLiteral("Panel1"));
    panel->setFrameShape(QFrame::StyledPanel);
    auto *panelLayout = new QVBoxLayout(panel);
    panelLayout->addWidget(m_comGroup);

    auto *top = new QHBoxLayout;
    top->addWidget(m_image1);
    top->addWidget(m_label1, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_okBtn);
    buttons->addWidget(m_cancelBtn);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(panel);
    layout->addLayout(buttons);

    connect(m_okBtn, &QPushButton::clicked, this, &TCommunication::OkBtnClick);
    connect(m_cancelBtn, &QPushButton::clicked, this, &TCommunication::CancelBtnClick);
    retranslateUi();
}

void TCommunication::retranslateUi()
{
    setWindowTitle(tr("Communication"));
    m_label1->setText(tr("Port selection"));
    m_comGroup->setTitle(tr("Port"));
    m_okBtn->setText(tr("OK"));
    m_cancelBtn->setText(tr("&Exit"));
}

void TCommunication::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QDialog::changeEvent(event);
}

std::optional<int> TCommunication::choosePort(const QStringList &items, int selected)
{
    m_comGroup->setItems(items);
    m_comGroup->setItemIndex(selected);
    if (exec() != QDialog::Accepted)
        return std::nullopt;
    return m_comGroup->itemIndex();
}

void TCommunication::OkBtnClick()
{
    if (m_comGroup->itemIndex() < 0) {
        if (m_prompt)
            m_prompt->tell(messageText(Msg::SelectPort), UserPrompt::Kind::Warning);
        return;
    }
    accept();
}

void TCommunication::CancelBtnClick()
{
    reject();
}

#include "TCloningChk.h"

#include <QCheckBox>
#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

TCloningChk::TCloningChk(CloneGroups &choices, QWidget *parent)
    : QDialog(parent), m_choices(choices), m_label(new QLabel(this)),
      m_options(new QGroupBox(this)), m_checkData(addCheck("CheckData")),
      m_checkValue(addCheck("CheckValue")), m_checkPrice(addCheck("CheckPrice")),
      m_checkConfig(addCheck("CheckConfig")), m_checkEnable(addCheck("CheckEnable")),
      m_bitBtn1(new QPushButton(this)), m_bitBtn2(new QPushButton(this))
{
    setObjectName(QStringLiteral("TCloningChk"));
    setAttribute(Qt::WA_DeleteOnClose);
    m_options->setObjectName(QStringLiteral("GroupBox1"));
    m_bitBtn1->setObjectName(QStringLiteral("BitBtn1"));
    m_bitBtn2->setObjectName(QStringLiteral("BitBtn2"));
    m_bitBtn1->setDefault(true);

    auto *checks = new QVBoxLayout(m_options);
    for (QCheckBox *check : {m_checkData, m_checkValue, m_checkPrice, m_checkConfig, m_checkEnable})
        checks->addWidget(check);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_label);
    layout->addWidget(m_options);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_bitBtn1);
    buttons->addWidget(m_bitBtn2);
    layout->addLayout(buttons);

    connect(m_bitBtn1, &QPushButton::clicked, this, &TCloningChk::BitBtn1Click);
    connect(m_bitBtn2, &QPushButton::clicked, this, &TCloningChk::reject);
    retranslateUi();
}

QCheckBox *TCloningChk::addCheck(const char *name)
{
    auto *check = new QCheckBox(m_options);
    check->setObjectName(QLatin1String(name));
    check->setChecked(true);
    return check;
}

void TCloningChk::retranslateUi()
{
    setWindowTitle(tr("Cloning"));
    m_label->setText(tr("Please! Be sure that validator is connected."));
    m_options->setTitle(tr("Options"));
    m_checkData->setText(tr("Channels data"));
    m_checkValue->setText(tr("Values table :"));
    m_checkPrice->setText(tr("Prices table :"));
    m_checkConfig->setText(tr("Configuration :"));
    m_checkEnable->setText(tr("Enable table :"));
    m_bitBtn1->setText(tr("&OK"));
    m_bitBtn2->setText(tr("&Cancel"));
}

void TCloningChk::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QDialog::changeEvent(event);
}

void TCloningChk::BitBtn1Click()
{
    m_choices = {m_checkData->isChecked(), m_checkValue->isChecked(), m_checkPrice->isChecked(),
                 m_checkConfig->isChecked(), m_checkEnable->isChecked()};
    accept();
}

void TCloningChk::reject()
{
    m_choices = CloneGroups{false, false, false, false, false};
    QDialog::reject();
}

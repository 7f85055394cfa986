#include "TFormAvertissementDif.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

TFormAvertissementDif::TFormAvertissementDif(const QString &text, int &warningAnswer,
                                             QWidget *parent)
    : QDialog(parent), m_warningAnswer(warningAnswer), m_memo1(new QPlainTextEdit(text, this)),
      m_bitBtn1(new QPushButton(this)), m_bitBtn2(new QPushButton(this))
{
    setObjectName(QStringLiteral("TFormAvertissementDif"));
    setAttribute(Qt::WA_DeleteOnClose);
    m_memo1->setObjectName(QStringLiteral("Memo1"));
    m_memo1->setReadOnly(true);
    m_bitBtn1->setObjectName(QStringLiteral("BitBtn1"));
    m_bitBtn2->setObjectName(QStringLiteral("BitBtn2"));
    m_bitBtn1->setDefault(true);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_memo1);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_bitBtn1);
    buttons->addWidget(m_bitBtn2);
    layout->addLayout(buttons);
    connect(m_bitBtn1, &QPushButton::clicked, this, &TFormAvertissementDif::BitBtn1Click);
    connect(m_bitBtn2, &QPushButton::clicked, this, &TFormAvertissementDif::reject);
    retranslateUi();
}

void TFormAvertissementDif::retranslateUi()
{
    setWindowTitle(tr("Warning"));
    m_bitBtn1->setText(tr("&Continue"));
    m_bitBtn2->setText(tr("&Cancel"));
}

void TFormAvertissementDif::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QDialog::changeEvent(event);
}

void TFormAvertissementDif::BitBtn1Click()
{
    m_warningAnswer = 0;
    accept();
}

void TFormAvertissementDif::reject()
{
    m_warningAnswer = 1;
    QDialog::reject();
}

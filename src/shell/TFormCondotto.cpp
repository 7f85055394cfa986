#include "TFormCondotto.h"

#include "RadioGroup.h"
#include "ValidatorInit.h"

#include <QEvent>
#include <QPushButton>
#include <QVBoxLayout>

TFormCondotto::TFormCondotto(ConfigImage &image, QWidget *parent)
    : QDialog(parent), m_image(image),
      m_radioGroup1(new RadioGroup(QStringLiteral("RadioGroup1"), 1, this)),
      m_bitBtn1(new QPushButton(this))
{
    setObjectName(QStringLiteral("TFormCondotto"));
    setAttribute(Qt::WA_DeleteOnClose);
    m_bitBtn1->setObjectName(QStringLiteral("BitBtn1"));
    m_bitBtn1->setDefault(true);
    m_radioGroup1->setItems(QStringList(2, QString()));
    // The group opens on the image's current output type.
    m_radioGroup1->setItemIndex(ValidatorInit::outputVending(m_image) ? 1 : 0);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_radioGroup1);
    layout->addWidget(m_bitBtn1, 0, Qt::AlignRight);
    connect(m_bitBtn1, &QPushButton::clicked, this, &TFormCondotto::BitBtn1Click);
    retranslateUi();
}

void TFormCondotto::retranslateUi()
{
    setWindowTitle(tr("Output"));
    m_radioGroup1->setItemTexts({tr("Game"), tr("Vending")});
    m_bitBtn1->setText(tr("&OK"));
}

void TFormCondotto::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QDialog::changeEvent(event);
}

void TFormCondotto::BitBtn1Click()
{
    const int item = m_radioGroup1->itemIndex();
    if (item >= 0)
        ValidatorInit::setOutputVending(m_image, item == 1);
    accept();
}

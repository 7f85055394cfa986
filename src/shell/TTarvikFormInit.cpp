#include "TTarvikFormInit.h"

#include "RadioGroup.h"
#include "ValidatorInit.h"

#include <QCheckBox>
#include <QDate>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

TTarvikFormInit::TTarvikFormInit(ConfigImage &image, bool &initCancelled, QWidget *parent)
    : QDialog(parent), m_image(image), m_initCancelled(initCancelled),
      m_serialLabel(new QLabel(this)), m_edit1(new QLineEdit(this)),
      m_groupSortieInit(new RadioGroup(QStringLiteral("GroupSortieInit"), 1, this)),
      m_razEn(new QCheckBox(this)), m_bitBtn1(new QPushButton(this)),
      m_bitBtn2(new QPushButton(this))
{
    setObjectName(QStringLiteral("TTarvikFormInit"));
    setAttribute(Qt::WA_DeleteOnClose);
    m_edit1->setObjectName(QStringLiteral("Edit1"));
    m_razEn->setObjectName(QStringLiteral("RazEn"));
    m_bitBtn1->setObjectName(QStringLiteral("BitBtn1"));
    m_bitBtn2->setObjectName(QStringLiteral("BitBtn2"));
    m_groupSortieInit->setItems(QStringList(4, QString()));
    m_razEn->setChecked(true);
    m_bitBtn1->setDefault(true);
    m_edit1->setText(ValidatorInit::serialDisplayText(m_image.serialNumber()));

    auto *grid = new QGridLayout(this);
    grid->addWidget(m_serialLabel, 0, 0);
    grid->addWidget(m_edit1, 0, 1);
    grid->addWidget(m_groupSortieInit, 1, 0, 1, 2);
    grid->addWidget(m_razEn, 2, 0, 1, 2);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_bitBtn1);
    buttons->addWidget(m_bitBtn2);
    grid->addLayout(buttons, 3, 0, 1, 2);

    connect(m_razEn, &QCheckBox::clicked, this, &TTarvikFormInit::RazEnClick);
    connect(m_groupSortieInit, &RadioGroup::itemClicked, this,
            &TTarvikFormInit::GroupSortieInitClick);
    connect(m_edit1, &QLineEdit::textEdited, this, [this] { m_serialEdited = true; });
    connect(m_edit1, &QLineEdit::editingFinished, this, &TTarvikFormInit::ENumSerExit);
    connect(m_bitBtn1, &QPushButton::clicked, this, &TTarvikFormInit::BitBtn1Click);
    connect(m_bitBtn2, &QPushButton::clicked, this, &TTarvikFormInit::BitBtn2Click);
    retranslateUi();
}

void TTarvikFormInit::retranslateUi()
{
    setWindowTitle(tr("Validator setting"));
    m_serialLabel->setText(tr("Serial Number :"));
    m_groupSortieInit->setTitle(tr("Outlet"));
    m_groupSortieInit->setItemTexts(
        {tr("Game Fast"), tr("Game"), tr("Vending anti-jam"), tr("Vending")});
    m_razEn->setText(tr("Resetable counter :"));
    m_bitBtn1->setText(tr("&OK"));
    m_bitBtn2->setText(tr("&Cancel"));
}

void TTarvikFormInit::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QDialog::changeEvent(event);
}

void TTarvikFormInit::RazEnClick()
{
    ValidatorInit::setResettableCounter(m_image, m_razEn->isChecked());
}

void TTarvikFormInit::GroupSortieInitClick()
{
    ValidatorInit::setOutletItem(m_image, m_groupSortieInit->itemIndex());
}

void TTarvikFormInit::ENumSerExit()
{
    m_serialEdited = false;
    const quint32 serial = ValidatorInit::storeSerialText(m_image, m_edit1->text());
    m_edit1->setText(ValidatorInit::serialDisplayText(serial));
}

void TTarvikFormInit::BitBtn1Click()
{
    // The edit may still hold the focus: its text is taken as if it had been left.
    if (m_serialEdited)
        ENumSerExit();
    ValidatorInit::applyInitialisation(m_image, QDate::currentDate());
    accept();
}

void TTarvikFormInit::BitBtn2Click()
{
    reject();
}

void TTarvikFormInit::reject()
{
    m_initCancelled = true;
    QDialog::reject();
}

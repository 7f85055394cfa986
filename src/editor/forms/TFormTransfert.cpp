#include "TFormTransfert.h"

#include "ChannelCopyModel.h"

#include <QCheckBox>
#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

template <typename W> W *named(W *widget, const char *name)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

} // namespace

TFormTransfert::TFormTransfert(ChannelCopyModel &model, QWidget *parent)
    : QDialog(parent), m_model(model), m_source(named(new QGroupBox(this), "GroupSource")),
      m_destination(named(new QGroupBox(this), "GroupDestination")),
      m_sourceLabel(named(new QLabel(m_source), "LSource")),
      m_destinationLabel(named(new QLabel(m_destination), "LDestination")),
      m_spinS(named(new QSpinBox(m_source), "SpinEditS")),
      m_spinD(named(new QSpinBox(m_destination), "SpinEditD")),
      m_clear(named(new QCheckBox(m_source), "CheckBox1")),
      m_valuesOnly(named(new QCheckBox(m_destination), "CheckBox2")),
      m_transfert(named(new QPushButton(this), "BitBtn2")),
      m_exit(named(new QPushButton(this), "BitBtn1"))
{
    setObjectName(QStringLiteral("TFormTransfert"));
    m_sourceLabel->setBuddy(m_spinS);
    m_destinationLabel->setBuddy(m_spinD);
    auto *source = new QFormLayout(m_source);
    source->addRow(m_sourceLabel, m_spinS);
    source->addRow(m_clear);
    auto *destination = new QFormLayout(m_destination);
    destination->addRow(m_destinationLabel, m_spinD);
    destination->addRow(m_valuesOnly);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_transfert);
    buttons->addWidget(m_exit);
    auto *layout = new QVBoxLayout(this);
    auto *groups = new QHBoxLayout;
    groups->addWidget(m_source);
    groups->addWidget(m_destination);
    layout->addLayout(groups);
    layout->addLayout(buttons);
    m_transfert->setAutoDefault(false);

    connect(m_spinS, &QSpinBox::valueChanged, this, [this](int v) { m_model.setSource(v); });
    connect(m_spinD, &QSpinBox::valueChanged, this, [this](int v) { m_model.setDestination(v); });
    connect(m_clear, &QCheckBox::toggled, this, [this](bool on) { m_model.setClear(on); });
    connect(m_valuesOnly, &QCheckBox::toggled, this,
            [this](bool on) { m_model.setValuesOnly(on); });
    connect(m_transfert, &QPushButton::clicked, this, [this] { m_model.BitBtn2Click(); });
    connect(m_exit, &QPushButton::clicked, this, &QDialog::accept);
    showModel();
}

void TFormTransfert::showModel()
{
    const ControlSet &c = m_model.controls();
    auto text = [&](const char *name) { return c.state(QLatin1String(name)).text; };
    setWindowTitle(text("TFormTransfert"));
    m_source->setTitle(text("GroupSource"));
    m_destination->setTitle(text("GroupDestination"));
    m_sourceLabel->setText(text("LSource"));
    m_destinationLabel->setText(text("LDestination"));
    m_spinS->setAccessibleName(c.state(QStringLiteral("SpinEditS")).accessibleName);
    m_spinD->setAccessibleName(c.state(QStringLiteral("SpinEditD")).accessibleName);
    m_clear->setText(text("CheckBox1"));
    m_valuesOnly->setText(text("CheckBox2"));
    m_transfert->setText(text("BitBtn2"));
    m_exit->setText(text("BitBtn1"));
    for (QSpinBox *spin : {m_spinS, m_spinD}) {
        const QSignalBlocker blocker(spin);
        spin->setRange(1, m_model.maximum());
        spin->setValue(c.state(spin->objectName()).text.toInt());
    }
    const QSignalBlocker clear(m_clear);
    const QSignalBlocker values(m_valuesOnly);
    m_clear->setChecked(c.state(QStringLiteral("CheckBox1")).checked);
    m_valuesOnly->setChecked(c.state(QStringLiteral("CheckBox2")).checked);
}

void TFormTransfert::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_model.retranslate();
        showModel();
    }
    QDialog::changeEvent(event);
}

#include "SimulatorPanel.h"

#include "ConfigImage.h"
#include "VirtualValidator.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {
template <typename W> W *named(W *widget, const char *name)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}
} // namespace

SimulatorPanel::SimulatorPanel(VirtualValidator *device, QWidget *parent)
    : QWidget(parent, Qt::Window), m_device(device), m_validatorGroup(new QGroupBox(this)),
      m_familyLabel(new QLabel(this)), m_familyBox(named(new QComboBox(this), "FamilyBox")),
      m_serialLabel(new QLabel(this)), m_serialBox(named(new QSpinBox(this), "SerialBox")),
      m_fitBtn(named(new QPushButton(this), "FitBtn")), m_coinGroup(new QGroupBox(this)),
      m_coinBox(named(new QComboBox(this), "CoinBox")),
      m_insertBtn(named(new QPushButton(this), "InsertBtn")),
      m_queueLabel(named(new QLabel(this), "QueueLabel")),
      m_testModeLabel(named(new QLabel(this), "TestModeLabel")),
      m_doorBox(named(new QCheckBox(this), "DoorBox")),
      m_cableBox(named(new QCheckBox(this), "CableBox")),
      m_miniPgmBox(named(new QCheckBox(this), "MiniPgmBox")),
      m_firmwareRequestBtn(named(new QPushButton(this), "FirmwareRequestBtn"))
{
    setObjectName(QStringLiteral("SimulatorPanel"));
    for (quint8 family : kFamilies)
        m_familyBox->addItem(QString::fromLatin1(familyText(family)), family);
    m_serialBox->setRange(1, 99999999);
    const ConfigImage &memory = m_device->memory();
    m_familyBox->setCurrentIndex(qBound(0, int(memory.familyNibble()), 3));
    m_serialBox->setValue(int(qBound<quint32>(1, memory.serialNumber(), 99999999)));
    for (int k = 0; k < CoinGenerator::kindCount(); ++k)
        m_coinBox->addItem(QString(), k); // named in retranslateUi
    m_doorBox->setChecked(m_device->doorOpen());
    m_cableBox->setChecked(m_device->connected());
    m_miniPgmBox->setChecked(m_device->miniProgrammer());

    auto *validator = new QGridLayout(m_validatorGroup);
    validator->addWidget(m_familyLabel, 0, 0);
    validator->addWidget(m_familyBox, 0, 1);
    validator->addWidget(m_serialLabel, 1, 0);
    validator->addWidget(m_serialBox, 1, 1);
    validator->addWidget(m_fitBtn, 2, 0, 1, 2);
    auto *coins = new QGridLayout(m_coinGroup);
    coins->addWidget(m_coinBox, 0, 0);
    coins->addWidget(m_insertBtn, 0, 1);
    coins->addWidget(m_queueLabel, 1, 0, 1, 2);
    coins->addWidget(m_testModeLabel, 2, 0, 1, 2);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_validatorGroup);
    layout->addWidget(m_coinGroup);
    layout->addWidget(m_doorBox);
    layout->addWidget(m_cableBox);
    layout->addWidget(m_miniPgmBox);
    layout->addWidget(m_firmwareRequestBtn);

    connect(m_fitBtn, &QPushButton::clicked, this, &SimulatorPanel::fitValidator);
    connect(m_insertBtn, &QPushButton::clicked, this, &SimulatorPanel::insertCoin);
    connect(m_doorBox, &QCheckBox::toggled, this,
            [this](bool open) { m_device->setDoorOpen(open); });
    connect(m_cableBox, &QCheckBox::toggled, this,
            [this](bool plugged) { m_device->setConnected(plugged); });
    connect(m_miniPgmBox, &QCheckBox::toggled, this,
            [this](bool on) { m_device->setMiniProgrammer(on); });
    connect(m_firmwareRequestBtn, &QPushButton::clicked, this, &SimulatorPanel::requestFirmware);
    // The host takes coins out of the queue as it polls, and its commands switch test mode and
    // the mini-programmer.
    m_refresh.setInterval(250);
    connect(&m_refresh, &QTimer::timeout, this, &SimulatorPanel::refresh);
    m_refresh.start();
    retranslateUi();
}

void SimulatorPanel::retranslateUi()
{
    setWindowTitle(tr("Virtual validator"));
    m_validatorGroup->setTitle(tr("Validator"));
    m_familyLabel->setText(tr("Family :"));
    m_serialLabel->setText(tr("Serial number :"));
    m_fitBtn->setText(tr("Fit a new validator"));
    m_coinGroup->setTitle(tr("Coins"));
    m_insertBtn->setText(tr("Insert"));
    m_doorBox->setText(tr("Door open"));
    m_cableBox->setText(tr("Cable plugged in"));
    m_miniPgmBox->setText(tr("Mini-programmer (firmware upgrade)"));
    m_firmwareRequestBtn->setText(tr("Ask for firmware (code 11)"));
    m_firmwareRequestBtn->setAccessibleName(m_firmwareRequestBtn->text());
    m_testModeLabel->setText(tr("Test mode"));
    m_testModeLabel->setAccessibleName(m_testModeLabel->text());
    for (int i = 0; i < m_coinBox->count(); ++i)
        m_coinBox->setItemText(i, coinName(CoinKind(m_coinBox->itemData(i).toInt())));
    refresh();
}

QString SimulatorPanel::coinName(CoinKind kind)
{
    // Coins go by their face value in every language; the tokens by what they are.
    switch (kind) {
    case CoinKind::GoldenToken:
        return tr("Golden token");
    case CoinKind::SilverToken:
        return tr("Silver token");
    default:
        return QString::fromLatin1(CoinGenerator::preset(kind).name);
    }
}

void SimulatorPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void SimulatorPanel::fitValidator()
{
    const quint8 family = quint8(m_familyBox->currentData().toUInt());
    m_device->setMemory(VirtualValidator::factoryImage(family, quint32(m_serialBox->value())));
    m_device->setDoorOpen(m_doorBox->isChecked());
}

void SimulatorPanel::insertCoin()
{
    m_device->insertCoin(CoinKind(m_coinBox->currentData().toInt()));
    refresh();
}

void SimulatorPanel::requestFirmware()
{
    m_device->requestFirmware();
    refresh();
}

void SimulatorPanel::refresh()
{
    m_queueLabel->setText(tr("Coins waiting : %1").arg(m_device->queuedCoins()));
    m_testModeLabel->setVisible(m_device->testMode());
    // The host's answer to a firmware request switches the mini-programmer on by itself; the
    // box follows without starting a new collection.
    if (m_miniPgmBox->isChecked() != m_device->miniProgrammer()) {
        const QSignalBlocker blocker(m_miniPgmBox);
        m_miniPgmBox->setChecked(m_device->miniProgrammer());
    }
}

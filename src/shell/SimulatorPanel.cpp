#include "SimulatorPanel.h"

#include "BenchPanelModel.h"
#include "ConfigImage.h"
#include "LineProfile.h"
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

SimulatorPanel::SimulatorPanel(VirtualValidator *device, LineProfile *line, QWidget *parent)
    : SimulatorPanel(nullptr, line != nullptr, parent)
{
    m_ownModel = BenchPanelModel::inProcess(device, line);
    m_model = m_ownModel.get();
    build(line != nullptr);
}

SimulatorPanel::~SimulatorPanel() = default;

SimulatorPanel::SimulatorPanel(BenchPanelModel *model, bool showLine, QWidget *parent)
    : QWidget(parent, Qt::Window), m_model(model), m_validatorGroup(new QGroupBox(this)),
      m_familyLabel(new QLabel(this)), m_familyBox(named(new QComboBox(this), "FamilyBox")),
      m_serialLabel(new QLabel(this)), m_serialBox(named(new QSpinBox(this), "SerialBox")),
      m_fitBtn(named(new QPushButton(this), "FitBtn")),
      m_unplugBtn(named(new QPushButton(this), "UnplugBtn")),
      m_plugBtn(named(new QPushButton(this), "PlugBtn")), m_coinGroup(new QGroupBox(this)),
      m_coinBox(named(new QComboBox(this), "CoinBox")),
      m_insertBtn(named(new QPushButton(this), "InsertBtn")),
      m_queueLabel(named(new QLabel(this), "QueueLabel")),
      m_testModeLabel(named(new QLabel(this), "TestModeLabel")),
      m_doorBox(named(new QCheckBox(this), "DoorBox")),
      m_cableBox(named(new QCheckBox(this), "CableBox")),
      m_miniPgmBox(named(new QCheckBox(this), "MiniPgmBox")),
      m_firmwareRequestBtn(named(new QPushButton(this), "FirmwareRequestBtn")),
      m_lineGroup(named(new QGroupBox(this), "LineGroup")),
      m_paceBox(named(new QCheckBox(this), "LinePaceBox")), m_echoLabel(new QLabel(this)),
      m_echoMin(named(new QSpinBox(this), "LineEchoMin")),
      m_echoMax(named(new QSpinBox(this), "LineEchoMax")), m_turnLabel(new QLabel(this)),
      m_turnMin(named(new QSpinBox(this), "LineTurnaroundMin")),
      m_turnMax(named(new QSpinBox(this), "LineTurnaroundMax")), m_burstLabel(new QLabel(this)),
      m_burstBox(named(new QSpinBox(this), "LineBurstBox")), m_splitLabel(new QLabel(this)),
      m_splitAt(named(new QSpinBox(this), "LineSplitAt")),
      m_splitGap(named(new QSpinBox(this), "LineSplitGap")), m_seedLabel(new QLabel(this)),
      m_seedBox(named(new QSpinBox(this), "LineSeedBox"))
{
    setObjectName(QStringLiteral("SimulatorPanel"));
    if (m_model)
        build(showLine);
}

void SimulatorPanel::build(bool showLine)
{
    for (quint8 family : BenchPanelModel::kFamilies)
        m_familyBox->addItem(QString::fromLatin1(familyText(family)), family);
    m_serialBox->setRange(1, 99999999);
    const BenchStatus &status = m_model->status();
    const int familyIndex = m_familyBox->findData(status.familyByte);
    m_familyBox->setCurrentIndex(familyIndex >= 0 ? familyIndex
                                                  : qBound(0, status.familyByte >> 4, 3));
    m_serialBox->setValue(int(qBound<quint32>(1, status.serial, 99999999)));
    for (int k = 0; k < CoinGenerator::kindCount(); ++k)
        m_coinBox->addItem(QString(), k); // named in retranslateUi
    m_doorBox->setChecked(status.doorOpen);
    m_cableBox->setChecked(status.connected);
    m_miniPgmBox->setChecked(status.miniProgrammer);

    m_familyLabel->setBuddy(m_familyBox);
    m_serialLabel->setBuddy(m_serialBox);
    auto *validator = new QGridLayout(m_validatorGroup);
    validator->addWidget(m_familyLabel, 0, 0);
    validator->addWidget(m_familyBox, 0, 1);
    validator->addWidget(m_serialLabel, 1, 0);
    validator->addWidget(m_serialBox, 1, 1);
    validator->addWidget(m_fitBtn, 2, 0, 1, 2);
    validator->addWidget(m_unplugBtn, 3, 0);
    validator->addWidget(m_plugBtn, 3, 1);
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
    buildLineGroup();
    m_lineGroup->setVisible(showLine);
    layout->addWidget(m_lineGroup);

    connect(m_fitBtn, &QPushButton::clicked, this, &SimulatorPanel::fitValidator);
    connect(m_unplugBtn, &QPushButton::clicked, this, &SimulatorPanel::unplugValidator);
    connect(m_plugBtn, &QPushButton::clicked, this, &SimulatorPanel::plugValidator);
    connect(m_insertBtn, &QPushButton::clicked, this, &SimulatorPanel::insertCoin);
    connect(m_doorBox, &QCheckBox::toggled, m_model, &BenchPanelModel::setDoorOpen);
    connect(m_cableBox, &QCheckBox::toggled, m_model, &BenchPanelModel::setCablePlugged);
    connect(m_miniPgmBox, &QCheckBox::toggled, m_model, &BenchPanelModel::setMiniProgrammer);
    connect(m_firmwareRequestBtn, &QPushButton::clicked, this, &SimulatorPanel::requestFirmware);
    connect(m_model, &BenchPanelModel::statusChanged, this, &SimulatorPanel::refresh);
    retranslateUi();
}

void SimulatorPanel::retranslateUi()
{
    setWindowTitle(tr("Virtual validator"));
    m_validatorGroup->setTitle(tr("Validator"));
    m_familyLabel->setText(tr("Family :"));
    m_serialLabel->setText(tr("Serial number :"));
    m_fitBtn->setText(tr("Fit a new validator"));
    m_unplugBtn->setText(tr("Unplug"));
    m_plugBtn->setText(tr("Plug in this serial"));
    m_coinGroup->setTitle(tr("Coins"));
    m_coinBox->setAccessibleName(m_coinGroup->title());
    m_insertBtn->setText(tr("Insert"));
    m_doorBox->setText(tr("Door open"));
    m_cableBox->setText(tr("Cable plugged in"));
    m_miniPgmBox->setText(tr("Mini-programmer (firmware upgrade)"));
    m_firmwareRequestBtn->setText(tr("Ask for firmware (code 11)"));
    m_firmwareRequestBtn->setAccessibleName(m_firmwareRequestBtn->text());
    m_lineGroup->setTitle(tr("Line"));
    m_paceBox->setText(tr("9600 baud pacing"));
    m_echoLabel->setText(tr("Count echo after (ms) :"));
    m_turnLabel->setText(tr("Reply after (ms) :"));
    m_burstLabel->setText(tr("Adapter bursts every (ms) :"));
    m_splitLabel->setText(tr("Pause in replies after byte, for (ms) :"));
    m_seedLabel->setText(tr("Random seed :"));
    // The second box of a pair has no label of its own.
    m_echoMax->setAccessibleName(tr("Count echo after at most (ms)"));
    m_turnMax->setAccessibleName(tr("Reply after at most (ms)"));
    m_splitGap->setAccessibleName(tr("Pause in replies (ms)"));
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

void SimulatorPanel::buildLineGroup()
{
    auto *grid = new QGridLayout(m_lineGroup);
    grid->addWidget(m_paceBox, 0, 0, 1, 3);
    const struct
    {
        QLabel *label;
        QSpinBox *first;
        QSpinBox *second;
        int max;
    } rows[] = {{m_echoLabel, m_echoMin, m_echoMax, 10000},
                {m_turnLabel, m_turnMin, m_turnMax, 10000},
                {m_burstLabel, m_burstBox, nullptr, 255},
                {m_splitLabel, m_splitAt, m_splitGap, 255},
                {m_seedLabel, m_seedBox, nullptr, 999999}};
    int row = 1;
    for (const auto &r : rows) {
        r.label->setBuddy(r.first);
        grid->addWidget(r.label, row, 0);
        for (QSpinBox *box : {r.first, r.second}) {
            if (!box)
                continue;
            box->setRange(0, r.max);
            grid->addWidget(box, row, box == r.first ? 1 : 2);
        }
        ++row;
    }
    m_splitGap->setRange(0, 10000);
    const LineProfile &line = m_model->line();
    m_paceBox->setChecked(line.pacing);
    m_echoMin->setValue(line.echoMinMs);
    m_echoMax->setValue(line.echoMaxMs);
    m_turnMin->setValue(line.turnaroundMinMs);
    m_turnMax->setValue(line.turnaroundMaxMs);
    m_burstBox->setValue(line.burstMs);
    m_splitAt->setValue(line.splitAt);
    m_splitGap->setValue(line.splitGapMs);
    m_seedBox->setValue(int(qMin<quint32>(line.seed, 999999)));
    connect(m_paceBox, &QCheckBox::toggled, this, &SimulatorPanel::takeLine);
    for (QSpinBox *box :
         {m_echoMin, m_echoMax, m_turnMin, m_turnMax, m_burstBox, m_splitAt, m_splitGap, m_seedBox})
        connect(box, &QSpinBox::valueChanged, this, &SimulatorPanel::takeLine);
}

void SimulatorPanel::takeLine()
{
    LineProfile line;
    line.pacing = m_paceBox->isChecked();
    line.echoMinMs = m_echoMin->value();
    line.echoMaxMs = m_echoMax->value();
    line.turnaroundMinMs = m_turnMin->value();
    line.turnaroundMaxMs = m_turnMax->value();
    line.burstMs = m_burstBox->value();
    line.splitAt = m_splitAt->value();
    line.splitGapMs = m_splitGap->value();
    line.seed = quint32(m_seedBox->value());
    m_model->setLine(line);
}

void SimulatorPanel::fitValidator()
{
    m_model->fitValidator(m_familyBox->currentIndex(), quint32(m_serialBox->value()));
}

void SimulatorPanel::unplugValidator()
{
    m_model->unplugValidator();
}

void SimulatorPanel::plugValidator()
{
    m_model->plugValidator(m_familyBox->currentIndex(), quint32(m_serialBox->value()));
}

void SimulatorPanel::insertCoin()
{
    m_model->insertCoin(CoinKind(m_coinBox->currentData().toInt()));
}

void SimulatorPanel::requestFirmware()
{
    m_model->requestFirmware();
}

void SimulatorPanel::refresh()
{
    const BenchStatus &status = m_model->status();
    m_queueLabel->setText(tr("Coins waiting : %1").arg(status.queuedCoins));
    m_testModeLabel->setVisible(status.testMode);
    // The host's commands and a script's lines change the validator too; the boxes follow
    // without sending anything back.
    for (const auto &[box, on] :
         {std::pair{m_miniPgmBox, status.miniProgrammer}, std::pair{m_doorBox, status.doorOpen},
          std::pair{m_cableBox, status.connected}}) {
        if (box->isChecked() != on) {
            const QSignalBlocker blocker(box);
            box->setChecked(on);
        }
    }
}

#include "EditorStandIn.h"

#include "Messages.h"
#include "ReadSequence.h"
#include "ValidatorInit.h"
#include "ValidatorLink.h"

#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace {
QLabel *namedLabel(const char *name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}
} // namespace

EditorStandIn::EditorStandIn(TMonnayeur &link, int comPortNumber, QWidget *parent)
    : QDialog(parent), m_link(link), m_comPortNumber(comPortNumber), m_portLabel(new QLabel(this)),
      m_familyLabel(new QLabel(this)), m_serialLabel(new QLabel(this)),
      m_lPort(namedLabel("LPort", this)), m_lVersionH(namedLabel("LVERSIONH", this)),
      m_eSerial(namedLabel("ESerial", this)), m_gauge(new QProgressBar(this)),
      m_closeBtn(new QPushButton(this))
{
    setObjectName(QStringLiteral("TFormData"));
    m_gauge->setObjectName(QStringLiteral("Gauge1"));
    m_gauge->setRange(0, 100);
    m_gauge->setValue(0);
    m_closeBtn->setObjectName(QStringLiteral("CloseBtn"));
    m_lPort->setText(QStringLiteral("Com%1").arg(m_comPortNumber));

    auto *form = new QFormLayout;
    form->addRow(m_portLabel, m_lPort);
    form->addRow(m_familyLabel, m_lVersionH);
    form->addRow(m_serialLabel, m_eSerial);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_gauge);
    layout->addWidget(m_closeBtn, 0, Qt::AlignRight);
    setMinimumWidth(320);

    connect(m_closeBtn, &QPushButton::clicked, this, &QDialog::accept);
    retranslateUi();
}

void EditorStandIn::retranslateUi()
{
    setWindowTitle(tr("Validator"));
    m_portLabel->setText(tr("Port :"));
    m_familyLabel->setText(tr("Firmware family :"));
    m_serialLabel->setText(tr("Serial number :"));
    m_closeBtn->setText(tr("&Close"));
}

void EditorStandIn::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QDialog::changeEvent(event);
}

void EditorStandIn::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (!m_readStarted)
        QTimer::singleShot(0, this, &EditorStandIn::readNow);
}

void EditorStandIn::readNow()
{
    if (m_readStarted)
        return;
    m_readStarted = true;
    ReadObserver observer;
    observer.progress = [this](int gauge) { m_gauge->setValue(gauge); };
    const ReadOutcome outcome = readValidator(m_link, m_image, true, observer);
    m_readDone = outcome == ReadOutcome::Done;
    if (m_readDone) {
        m_lVersionH->setText(QString::fromLatin1(familyText(m_image.familyByte())));
        const QString serial = ValidatorInit::serialDisplayText(m_image.serialNumber());
        m_eSerial->setText(serial.isEmpty() ? messageText(Msg::NotAvailable) : serial);
    }
    Q_EMIT readFinished(m_readDone);
}

void EditorStandIn::showModal(ValidatorLink &link, QWidget *mainWindow)
{
    if (!link.monnayeur())
        return;
    auto *editor = new EditorStandIn(*link.monnayeur(), link.comPortNumber(), mainWindow);
    editor->setAttribute(Qt::WA_DeleteOnClose);
    editor->setWindowModality(Qt::WindowModal);
    editor->exec();
}

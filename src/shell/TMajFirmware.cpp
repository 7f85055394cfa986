#include "TMajFirmware.h"

#include "CopyAnimation.h"
#include "FileDialog.h"
#include "FirmwareFile.h"
#include "Messages.h"
#include "UserPrompt.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

TMajFirmware::TMajFirmware(Transport *transport, QByteArray firmware, QWidget *parent)
    : QDialog(parent), m_transport(transport), m_firmware(std::move(firmware)),
      m_label1(new QLabel(this)), m_label2(new QLabel(this)), m_animate1(new CopyAnimation(this)),
      m_bitBtn1(new QPushButton(this))
{
    setObjectName(QStringLiteral("TMajFirmware"));
    m_label1->setObjectName(QStringLiteral("Label1"));
    m_label2->setObjectName(QStringLiteral("Label2"));
    m_bitBtn1->setObjectName(QStringLiteral("BitBtn1"));
    m_bitBtn1->setVisible(false);
    QFont bold = m_label2->font();
    bold.setBold(true);
    m_label2->setFont(bold);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_label1, 0, Qt::AlignHCenter);
    layout->addWidget(m_animate1, 0, Qt::AlignHCenter);
    layout->addWidget(m_label2, 0, Qt::AlignHCenter);
    layout->addWidget(m_bitBtn1, 0, Qt::AlignHCenter);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    // The transfer runs once the animation has started and the window is on the screen.
    connect(m_animate1, &CopyAnimation::started, this, &TMajFirmware::FormTransfert,
            Qt::QueuedConnection);
    connect(m_bitBtn1, &QPushButton::clicked, this, &QDialog::accept);
    retranslateUi();
}

QString TMajFirmware::fileFilter()
{
    return QCoreApplication::translate("TMajFirmware", "Fichier Firmware VK2") +
           QStringLiteral(" (*.S19 *.s19)");
}

void TMajFirmware::chooseAndRun(QWidget *parent, Transport *transport, UserPrompt &prompt)
{
    const QString fileName = FileDialog::getOpenFileName(
        parent, QCoreApplication::translate("TMajFirmware", "Firmware upgrade"), fileFilter(),
        QStringLiteral("S19"), QStringLiteral("*.s19"));
    if (fileName.isEmpty() || !transport)
        return;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        prompt.tell(messageText(Msg::FileNotReadable, {fileName}), UserPrompt::Kind::Error);
        return;
    }
    const QByteArray firmware = file.readAll();
    if (!confirmFirmwareTransfer(prompt, fileName, firmware))
        return;
    auto *window = new TMajFirmware(transport, firmware, parent);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->exec();
}

void TMajFirmware::retranslateUi()
{
    setWindowTitle(tr("Upgrade"));
    m_label1->setText(m_result ? messageText(*m_result == FirmwareTransfer::Result::UpgradeOver
                                                 ? Msg::UpgradeOver
                                                 : Msg::OperationCancelledByOperator)
                               : messageText(Msg::UpdatingPleaseWait));
    m_label2->setText(m_lostAt
                          ? messageText(Msg::FirmwarePortLost, {QString::number(m_lostAt->first),
                                                                QString::number(m_lostAt->second)})
                          : messageText(Msg::DontStop));
    m_bitBtn1->setText(tr("OK"));
}

void TMajFirmware::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QDialog::changeEvent(event);
}

void TMajFirmware::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (!m_result && !m_running && !m_animate1->isRunning())
        m_animate1->start();
}

void TMajFirmware::closeEvent(QCloseEvent *event)
{
    // The transfer cannot be interrupted from here: the mini-programmer stops it.
    if (m_running)
        event->ignore();
    else
        QDialog::closeEvent(event);
}

void TMajFirmware::FormTransfert()
{
    if (m_running || m_result)
        return;
    if (!m_transport)
        return;
    m_running = true;
    FirmwareTransfer transfer(m_transport);
    transfer.progress = [](qint64 sent, qint64) {
        // The window keeps drawing between blocks; the user cannot act meanwhile.
        if (sent % FirmwareTransfer::kBlockSize == 0)
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    };
    m_result = transfer.FormTransfert(m_firmware);
    m_running = false;
    m_animate1->stop();
    m_animate1->setVisible(false);
    // A lost port is said under the result; otherwise the second label goes.
    if (transfer.portLost())
        m_lostAt = {transfer.bytesWritten(), qint64(m_firmware.size())};
    m_label2->setVisible(m_lostAt.has_value());
    m_bitBtn1->setVisible(true);
    m_bitBtn1->setDefault(true);
    retranslateUi();
}

#pragma once

#include "FirmwareTransfer.h"

#include <QByteArray>
#include <QDialog>
#include <optional>
#include <utility>

class CopyAnimation;
class QLabel;
class QPushButton;
class Transport;
class UserPrompt;

// "Upgrade": streams a firmware file to the mini-programmer while an animation runs, then shows
// how it ended and its OK button.
class TMajFirmware final : public QDialog
{
    Q_OBJECT
public:
    TMajFirmware(Transport *transport, QByteArray firmware, QWidget *parent = nullptr);

    // The file dialog, then the window for the chosen file. Nothing happens when no file is
    // chosen; a file that cannot be read or is not S-record text is reported, and nothing is
    // sent until the user has said that the mini-programmer is in its upgrade mode.
    static void chooseAndRun(QWidget *parent, Transport *transport, UserPrompt &prompt);
    static QString fileFilter();

    void FormTransfert();
    // How the transfer ended; nothing while it has not run.
    std::optional<FirmwareTransfer::Result> result() const { return m_result; }

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void retranslateUi();

    Transport *m_transport;
    QByteArray m_firmware;
    bool m_running = false;
    std::optional<FirmwareTransfer::Result> m_result;
    // The bytes that left the port and the file's size, when the port was lost on the way.
    std::optional<std::pair<qint64, qint64>> m_lostAt;
    QLabel *m_label1;
    QLabel *m_label2;
    CopyAnimation *m_animate1;
    QPushButton *m_bitBtn1;
};

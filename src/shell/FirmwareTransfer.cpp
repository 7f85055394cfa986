#include "FirmwareTransfer.h"

#include "Transport.h"

#include <QElapsedTimer>

FirmwareTransfer::Result FirmwareTransfer::FormTransfert(const QByteArray &firmware)
{
    m_sent = 0;
    m_written = 0;
    m_handshakeReads = 0;
    int counter = 0;
    // The flag keeps the answer of the last block boundary: a last block answered 0x55 0xAA and
    // then anything but 0x55 0xA5 still ends as cancelled by the operator.
    bool flag = false;
    const QByteArray stopAsked("\x55\xAA", 2);
    const QByteArray stopConfirmed("\x55\xA5", 2);

    for (qsizetype i = 0; i < firmware.size(); ++i) {
        // Write failures do not stop the transfer; the mini-programmer checks what it gets. What
        // left the port is counted, so that a lost port is said at the end.
        if (m_transport->write(firmware.mid(i, 1)) == 1)
            ++m_written;
        ++m_sent;
        if (progress)
            progress(m_sent, firmware.size());
        if (++counter < kBlockSize)
            continue;
        counter = 0;
        ++m_handshakeReads;
        flag = m_transport->read(2) == stopAsked;
        if (!flag)
            continue;
        // Read again until a read returns two bytes, within a bound of our own.
        QElapsedTimer wait;
        wait.start();
        QByteArray answer;
        do {
            answer = m_transport->read(2);
            ++m_handshakeReads;
        } while (answer.size() != 2 && wait.elapsed() < kStopAnswerWaitMs && m_transport->isOpen());
        if (answer.size() != 2)
            return Result::OperationCancelledByOperator;
        if (answer == stopConfirmed)
            break;
    }
    return flag ? Result::OperationCancelledByOperator : Result::UpgradeOver;
}

#pragma once

#include <QByteArray>
#include <functional>

class Transport;

// Streams a firmware file to the mini-programmer exactly as stored, byte by byte (the file has
// been checked to be S-record text before: see FirmwareFile.h). After every
// block of 64 bytes the mini-programmer may answer 0x55 0xAA and then 0x55 0xA5 to stop the
// transfer; any other answer, or none, lets it go on.
class FirmwareTransfer final
{
public:
    enum class Result
    {
        UpgradeOver,                 // "Upgrade over..."
        OperationCancelledByOperator // "Operation cancelled by operator"
    };

    static constexpr int kBlockSize = 64;
    // How long the reads after 0x55 0xAA may go on waiting for the second answer.
    static constexpr int kStopAnswerWaitMs = 5000;

    explicit FirmwareTransfer(Transport *transport) : m_transport(transport) {}

    // Called after every byte with the count sent so far and the total.
    std::function<void(qint64 sent, qint64 total)> progress;

    Result FormTransfert(const QByteArray &firmware);

    qint64 bytesSent() const { return m_sent; }
    // The bytes that left the port: fewer than were sent when the port was lost on the way.
    qint64 bytesWritten() const { return m_written; }
    bool portLost() const { return m_written < m_sent; }
    int handshakeReads() const { return m_handshakeReads; }

private:
    Transport *m_transport;
    qint64 m_sent = 0;
    qint64 m_written = 0;
    int m_handshakeReads = 0;
};

#pragma once

#include "Transport.h"

#include <QSerialPort>
#include <memory>

// The serial port at 9600 baud, 8 data bits, no parity, one stop bit.
class SerialTransport final : public Transport
{
public:
    SerialTransport();
    ~SerialTransport() override;
    Q_DISABLE_COPY_MOVE(SerialTransport)

    // Opens the system port (a name such as "ttyUSB0", "COM3" or a path such as "/dev/pts/3").
    bool open(const QString &systemPort);

    bool isOpen() const override;
    qint64 write(const QByteArray &bytes) override;
    using Transport::read;
    QByteArray read(int count, int firstByteWaitMs) override;
    void purge() override;
    void close() override;
    int readTimeout() const override { return m_readTimeout; }
    void setReadTimeout(int ms) override { m_readTimeout = ms; }
    QString errorString() const override { return m_error; }
    // The last open failed because the system refused this user the port (on Linux, a user
    // outside the dialout group).
    bool permissionDenied() const { return m_permissionDenied; }

private:
    void noteError();
    bool portGone() const;

    std::unique_ptr<QSerialPort> m_port;
    int m_readTimeout = kDefaultReadTimeoutMs;
    QString m_error;
    bool m_permissionDenied = false;
};

#include "SerialTransport.h"

#ifdef Q_OS_UNIX
#include <termios.h>
#endif

SerialTransport::SerialTransport() : m_port(std::make_unique<QSerialPort>()) {}

SerialTransport::~SerialTransport()
{
    close();
}

bool SerialTransport::open(const QString &systemPort)
{
    close();
    m_error.clear();
    m_permissionDenied = false;
    m_port->setPortName(systemPort);
    if (!m_port->open(QIODevice::ReadWrite)) {
        m_permissionDenied = m_port->error() == QSerialPort::PermissionError;
        noteError();
        return false;
    }
    const bool ok =
        m_port->setBaudRate(QSerialPort::Baud9600) && m_port->setDataBits(QSerialPort::Data8) &&
        m_port->setParity(QSerialPort::NoParity) && m_port->setStopBits(QSerialPort::OneStop) &&
        m_port->setFlowControl(QSerialPort::NoFlowControl);
    if (!ok) {
        noteError();
        m_port->close();
        return false;
    }
    m_port->clear();
    return true;
}

bool SerialTransport::isOpen() const
{
    return m_port->isOpen();
}

qint64 SerialTransport::write(const QByteArray &bytes)
{
    if (!m_port->isOpen())
        return -1;
    const qint64 n = m_port->write(bytes);
    if (n < 0) {
        noteError();
        return -1;
    }
    // Blocking semantics, as the program has always had: the bytes have left the port before
    // we go on, so that a reply window starts when the line is free.
    while (m_port->bytesToWrite() > 0) {
        if (!m_port->waitForBytesWritten(1000)) {
            // A time-out leaves the bytes on their way; any other error (the adapter pulled,
            // the other end of the line gone) means they never leave.
            const bool gone = portGone();
            noteError();
            if (!gone)
                return n;
            m_port->close();
            return -1;
        }
    }
#ifdef Q_OS_UNIX
    tcdrain(int(m_port->handle()));
#endif
    return n;
}

QByteArray SerialTransport::read(int count, int firstByteWaitMs)
{
    if (!m_port->isOpen())
        return {};
    const auto take = [this](int max) { return m_port->read(max); };
    const auto wait = [this](int ms) {
        if (m_port->waitForReadyRead(ms) || m_port->bytesAvailable() > 0)
            return true;
        if (portGone()) {
            noteError();
            m_port->close();
            return false;
        }
        return true; // a time-out: the caller looks at its clock
    };
    return readAtLinePace(count, firstByteWaitMs, take, wait);
}

void SerialTransport::purge()
{
    if (m_port->isOpen())
        m_port->clear();
}

void SerialTransport::close()
{
    if (m_port && m_port->isOpen())
        m_port->close();
}

bool SerialTransport::portGone() const
{
    const QSerialPort::SerialPortError error = m_port->error();
    return error != QSerialPort::NoError && error != QSerialPort::TimeoutError;
}

void SerialTransport::noteError()
{
    if (portGone())
        m_error = QStringLiteral("device gone: ") + m_port->errorString();
    else
        m_error = m_port->errorString();
    m_port->clearError();
}

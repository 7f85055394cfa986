#pragma once

#include "Transport.h"

#include <QElapsedTimer>
#include <QTextStream>

// Wraps a transport and writes every byte sent and received, with millisecond timestamps and
// the command each exchange belongs to: what a technician sends to support when a device
// misbehaves.
class TracingTransport final : public Transport
{
public:
    TracingTransport(Transport *inner, QTextStream *log);

    bool isOpen() const override { return m_inner->isOpen(); }
    qint64 write(const QByteArray &bytes) override;
    using Transport::read;
    QByteArray read(int count, int firstByteWaitMs) override;
    void purge() override;
    void close() override { m_inner->close(); }
    int readTimeout() const override { return m_inner->readTimeout(); }
    void setReadTimeout(int ms) override { m_inner->setReadTimeout(ms); }
    void beginExchange(quint8 command) override;
    QString errorString() const override { return m_inner->errorString(); }

private:
    void line(const QString &what, const QByteArray &bytes);

    Transport *m_inner;
    QTextStream *m_log;
    QElapsedTimer m_clock;
    int m_command = -1;
};

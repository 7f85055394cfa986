#pragma once

#include <QByteArray>
#include <QString>

// A byte pipe to the validator or the mini-programmer. Frames are completed by their known
// lengths: a read asks for exactly n bytes and returns what arrived within the port's per-read
// time-out (fewer bytes mean the read failed).
class Transport
{
public:
    virtual ~Transport() = default;

    virtual bool isOpen() const = 0;
    // Writes all bytes; returns how many were written (-1 when the port is gone).
    virtual qint64 write(const QByteArray &bytes) = 0;
    // Reads up to count bytes, waiting at most the per-read time-out (plus the time the bytes
    // take on the wire once they have started to arrive). Returns what arrived.
    virtual QByteArray read(int count) = 0;
    // Clears what is waiting in both directions.
    virtual void purge() = 0;
    virtual void close() = 0;

    // The per-read time-out in milliseconds.
    virtual int readTimeout() const = 0;
    virtual void setReadTimeout(int ms) = 0;

    // Marks the start of a command exchange, so that a trace can name the command that each
    // byte belongs to. Plain transports ignore it.
    virtual void beginExchange(quint8 command) { Q_UNUSED(command) }

    // Text of the last port error ("device gone" after a cable pull), empty when none.
    virtual QString errorString() const = 0;
};

#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>

// A byte pipe to the validator or the mini-programmer. Frames are completed by their known
// lengths: a read asks for exactly n bytes. It waits a while for the first byte; once bytes
// come, it goes on while the line keeps delivering (the gap between two bytes stays under the
// interval time-out), so that a reply handed over in bursts by a USB adapter is one read.
// Fewer bytes than asked mean the read failed.
class Transport
{
public:
    virtual ~Transport() = default;

    virtual bool isOpen() const = 0;
    // Writes all bytes and returns once they have left the port; returns how many were written
    // (-1 when the port is gone).
    virtual qint64 write(const QByteArray &bytes) = 0;
    // Reads up to count bytes: waits at most firstByteWaitMs for the first one, then at most
    // kIntervalTimeoutMs for each next one. Returns what arrived.
    virtual QByteArray read(int count, int firstByteWaitMs) = 0;
    // The same, waiting the port's per-read time-out for the first byte.
    QByteArray read(int count) { return read(count, readTimeout()); }
    // Clears what is waiting in both directions.
    virtual void purge() = 0;
    virtual void close() = 0;

    // The per-read time-out in milliseconds: the wait for a reply's first byte.
    virtual int readTimeout() const = 0;
    virtual void setReadTimeout(int ms) = 0;

    // Marks the start of a command exchange, so that a trace can name the command that each
    // byte belongs to. Plain transports ignore it.
    virtual void beginExchange(quint8 command) { Q_UNUSED(command) }

    // Text of the last port error ("device gone" after a cable pull), empty when none.
    virtual QString errorString() const = 0;

    // The wait for the first byte of a count echo or of one read of a reply: long enough for a
    // validator that takes a few tens of milliseconds to answer behind an adapter that holds
    // bytes back for 16 ms, short enough that the 900 ms reply window can repeat its reads and
    // that polling a validator with no coin to report keeps the window lively.
    // It is the "Port time-out" setting (tarvik-cli --port-timeout), for adapters that are
    // slower to hand the first byte over (Bluetooth and radio serial links), within the range
    // below; the reply window stays 900 ms whatever it is.
    static constexpr int kDefaultReadTimeoutMs = 100;
    static constexpr int kMinReadTimeoutMs = 20;
    static constexpr int kMaxReadTimeoutMs = 5000;
    // The longest gap between two bytes of one reply: a byte takes 1.04 ms at 9600 baud, and a
    // USB adapter holds bytes back for its latency timer (16 ms by default) before handing a
    // burst over; three such waits leave room for a loaded machine.
    static constexpr int kIntervalTimeoutMs = 50;
};

// The read rule shared by every transport. take(max) removes and returns up to max bytes that
// are waiting; wait(ms) blocks until bytes may be waiting or ms have passed, and returns false
// when the port is gone.
template <typename Take, typename Wait>
QByteArray readAtLinePace(int count, int firstByteWaitMs, Take take, Wait wait)
{
    QByteArray out;
    if (count <= 0)
        return out;
    QElapsedTimer clock;
    clock.start();
    qint64 deadline = qMax(firstByteWaitMs, 0);
    while (out.size() < count) {
        const QByteArray got = take(int(count - out.size()));
        if (!got.isEmpty()) {
            out += got;
            deadline = clock.elapsed() + Transport::kIntervalTimeoutMs;
            continue;
        }
        const qint64 left = deadline - clock.elapsed();
        if (left <= 0 || !wait(int(left)))
            break;
    }
    return out;
}

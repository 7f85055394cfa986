#pragma once

#include "LineTiming.h"
#include "Transport.h"

class VirtualValidator;

// An in-process port to a virtual validator that keeps real time, as rough as its line profile
// says: a write returns once its bytes have reached the device, and a read follows the serial
// port's rule (a wait for the first byte, then the interval time-out between bytes). Bytes the
// device sent unasked are on the line by the next read, write or purge, so a read with no
// time-out still finds them.
class SimTransport final : public Transport
{
public:
    explicit SimTransport(VirtualValidator *device);
    Q_DISABLE_COPY_MOVE(SimTransport)

    VirtualValidator *device() const { return m_device; }
    LineTiming &timing() { return m_timing; }
    void setLine(const LineProfile &line) { m_timing.setProfile(line); }
    // Takes the line's roughness from `line` before each write, as a bench panel sets it.
    void followLine(const LineProfile *line) { m_followed = line; }
    // A fixed turnaround between hearing a byte and answering it (1 ms by default).
    void setLatencyMs(int ms) { m_timing.setLatencyMs(ms); }
    // 9600 baud pacing, one byte every 1.0417 ms, in both directions.
    void setPacing(bool on) { m_timing.setPacing(on); }

    // Opens the port again after close(); what the device sent meanwhile is lost.
    void open()
    {
        purge();
        m_open = true;
    }

    bool isOpen() const override { return m_open; }
    qint64 write(const QByteArray &bytes) override;
    using Transport::read;
    QByteArray read(int count, int firstByteWaitMs) override;
    void purge() override;
    void close() override;
    int readTimeout() const override { return m_readTimeout; }
    void setReadTimeout(int ms) override { m_readTimeout = ms; }
    QString errorString() const override { return {}; }

private:
    void collectUnsolicited();

    VirtualValidator *m_device;
    LineTiming m_timing;
    bool m_open = true;
    int m_readTimeout = kDefaultReadTimeoutMs;
    const LineProfile *m_followed = nullptr;
};

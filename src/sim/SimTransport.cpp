#include "SimTransport.h"

#include "VirtualValidator.h"

#include <thread>

SimTransport::SimTransport(VirtualValidator *device) : m_device(device) {}

qint64 SimTransport::write(const QByteArray &bytes)
{
    if (!m_open)
        return -1;
    collectUnsolicited();
    const auto now = LineTiming::Clock::now();
    for (const char b : bytes) {
        const auto heard = m_timing.hostByteArrives(now);
        if (m_device)
            m_timing.schedule(heard, m_device->receive(QByteArray(1, b)));
    }
    return bytes.size();
}

QByteArray SimTransport::read(int count)
{
    QByteArray out;
    if (!m_open || count <= 0)
        return out;
    collectUnsolicited();
    using namespace std::chrono;
    const auto deadline = LineTiming::Clock::now() +
                          milliseconds(m_readTimeout + qint64(count) * kPerByteAllowanceMs);
    for (;;) {
        out += m_timing.take(LineTiming::Clock::now(), count - int(out.size()));
        if (out.size() == count)
            break;
        // Nothing new is produced while we wait: the device answers what it hears, and the
        // bench that makes it speak unasked runs on this thread.
        const auto next = m_timing.readyTime(1);
        if (!next || *next > deadline) {
            std::this_thread::sleep_until(deadline);
            break;
        }
        std::this_thread::sleep_until(*next);
    }
    return out;
}

void SimTransport::purge()
{
    collectUnsolicited(); // already in the receive buffer: dropped with the rest
    m_timing.clear();
}

void SimTransport::collectUnsolicited()
{
    if (m_device && m_device->hasUnsolicited())
        m_timing.scheduleUnasked(LineTiming::Clock::now(), m_device->takeUnsolicited());
}

void SimTransport::close()
{
    m_open = false;
    purge();
}

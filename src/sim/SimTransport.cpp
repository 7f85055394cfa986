#include "SimTransport.h"

#include "VirtualValidator.h"

#include <thread>

SimTransport::SimTransport(VirtualValidator *device) : m_device(device) {}

qint64 SimTransport::write(const QByteArray &bytes)
{
    if (!m_open)
        return -1;
    if (m_followed && *m_followed != m_timing.profile())
        m_timing.setProfile(*m_followed);
    collectUnsolicited();
    const auto now = LineTiming::Clock::now();
    auto heard = now;
    for (const char b : bytes) {
        heard = m_timing.hostByteArrives(now);
        if (m_device)
            m_timing.schedule(heard, m_device->receive(QByteArray(1, b)));
    }
    // As a serial port drains its transmit buffer before the write returns.
    if (heard > now)
        std::this_thread::sleep_until(heard);
    return bytes.size();
}

QByteArray SimTransport::read(int count, int firstByteWaitMs)
{
    if (!m_open)
        return {};
    collectUnsolicited();
    const auto take = [this](int max) { return m_timing.take(LineTiming::Clock::now(), max); };
    // Nothing new is produced while we wait: the device answers what it hears, and the bench
    // that makes it speak unasked runs on this thread.
    const auto wait = [this](int ms) {
        const auto until = LineTiming::Clock::now() + std::chrono::milliseconds(ms);
        const auto next = m_timing.readyTime(1);
        std::this_thread::sleep_until(next && *next < until ? *next : until);
        return true;
    };
    return readAtLinePace(count, firstByteWaitMs, take, wait);
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

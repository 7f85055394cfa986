#include "LineTiming.h"

#include <algorithm>

LineTiming::Clock::time_point LineTiming::hostByteArrives(Clock::time_point sent)
{
    if (!m_pacing)
        return sent;
    m_hostLineFree = std::max(sent, m_hostLineFree) + kByteTime;
    return m_hostLineFree;
}

void LineTiming::schedule(Clock::time_point heard, const QList<DeviceOutput> &outputs)
{
    for (const DeviceOutput &output : outputs)
        put(heard + m_latency + std::chrono::milliseconds(output.delayMs), output.bytes);
}

void LineTiming::scheduleUnasked(Clock::time_point sent, const QByteArray &bytes)
{
    put(sent, bytes);
}

void LineTiming::put(Clock::time_point at, const QByteArray &bytes)
{
    // One wire: a byte never overtakes the bytes sent before it.
    if (!m_pending.empty())
        at = std::max(at, m_pending.back().readyAt);
    if (m_pacing)
        at = std::max(at, m_deviceLineFree);
    for (const char b : bytes) {
        if (m_pacing)
            at += kByteTime;
        m_pending.push_back({at, b});
    }
    if (m_pacing)
        m_deviceLineFree = at;
}

QByteArray LineTiming::take(Clock::time_point now, int max)
{
    QByteArray out;
    while (out.size() < max && !m_pending.empty() && m_pending.front().readyAt <= now) {
        out.append(m_pending.front().byte);
        m_pending.pop_front();
    }
    return out;
}

std::optional<LineTiming::Clock::time_point> LineTiming::readyTime(int n) const
{
    if (n < 1 || n > int(m_pending.size()))
        return std::nullopt;
    return m_pending[std::size_t(n - 1)].readyAt;
}

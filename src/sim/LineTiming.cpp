#include "LineTiming.h"

#include <algorithm>

LineTiming::LineTiming() : m_random(m_profile.seed), m_epoch(Clock::now()) {}

void LineTiming::setProfile(const LineProfile &profile)
{
    m_profile = profile;
    m_random.seed(profile.seed);
}

void LineTiming::setLatencyMs(int ms)
{
    m_profile.turnaroundMinMs = m_profile.turnaroundMaxMs = std::max(ms, 0);
    m_profile.echoMinMs = m_profile.echoMaxMs = std::max(ms, 0);
}

std::chrono::milliseconds LineTiming::draw(int lo, int hi)
{
    hi = std::max(lo, hi);
    if (lo == hi)
        return std::chrono::milliseconds(lo);
    return std::chrono::milliseconds(std::uniform_int_distribution<int>(lo, hi)(m_random));
}

LineTiming::Clock::time_point LineTiming::hostByteArrives(Clock::time_point sent)
{
    if (!m_profile.pacing)
        return sent;
    m_hostLineFree = std::max(sent, m_hostLineFree) + kByteTime;
    return m_hostLineFree;
}

void LineTiming::schedule(Clock::time_point heard, const QList<DeviceOutput> &outputs)
{
    // Each answer starts its own turnaround once the device has heard the byte and has finished
    // sending what it said before (a reply after its count echo).
    for (const DeviceOutput &output : outputs) {
        const Clock::time_point ready = std::max(heard, m_deviceLineFree);
        const auto turnaround = output.echo
                                    ? draw(m_profile.echoMinMs, m_profile.echoMaxMs)
                                    : draw(m_profile.turnaroundMinMs, m_profile.turnaroundMaxMs);
        const auto wait = turnaround + std::chrono::milliseconds(output.delayMs);
        ++m_costs.answers;
        m_costs.turnaroundMs += double(wait.count());
        put(ready + wait, output.bytes, !output.echo);
    }
}

void LineTiming::scheduleUnasked(Clock::time_point sent, const QByteArray &bytes)
{
    put(sent, bytes, false);
}

void LineTiming::put(Clock::time_point at, const QByteArray &bytes, bool reply)
{
    // One wire: a byte never overtakes the bytes sent before it.
    at = std::max(at, m_deviceLineFree);
    const bool split = reply && m_profile.splitGapMs > 0 && bytes.size() > m_profile.splitAt;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        if (split && i == m_profile.splitAt)
            at += std::chrono::milliseconds(m_profile.splitGapMs);
        if (m_profile.pacing)
            at += kByteTime;
        m_pending.push_back({handedOver(at), bytes[i]});
    }
    if (!bytes.isEmpty())
        m_costs.adapterMs +=
            std::chrono::duration<double, std::milli>(m_pending.back().readyAt - at).count();
    m_deviceLineFree = at;
}

LineTiming::Clock::time_point LineTiming::handedOver(Clock::time_point at) const
{
    if (m_profile.burstMs <= 0 || at <= m_epoch)
        return at;
    const auto timer =
        std::chrono::duration_cast<Clock::duration>(std::chrono::milliseconds(m_profile.burstMs));
    const auto ticks = (at - m_epoch + timer - Clock::duration(1)) / timer;
    return m_epoch + ticks * timer;
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

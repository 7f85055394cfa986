#pragma once

#include "VirtualValidator.h"

#include <algorithm>
#include <chrono>
#include <deque>
#include <optional>

// The serial line between the host and the virtual validator in time: when the host's bytes
// reach the device, and when each byte of the device's answers becomes readable (turn-around
// latency, per-command reply delays and, when pacing, 9600 baud: one byte every 1.0417 ms).
class LineTiming final
{
public:
    using Clock = std::chrono::steady_clock;
    // One character of 10 bits at 9600 baud.
    static constexpr std::chrono::nanoseconds kByteTime{1'041'667};

    void setLatencyMs(int ms) { m_latency = std::chrono::milliseconds(std::max(ms, 0)); }
    int latencyMs() const { return int(m_latency.count()); }
    void setPacing(bool on) { m_pacing = on; }
    bool pacing() const { return m_pacing; }

    // The time at which a byte the host sends at `sent` has reached the device.
    Clock::time_point hostByteArrives(Clock::time_point sent);
    // Puts the device's answers to a byte heard at `heard` on the line.
    void schedule(Clock::time_point heard, const QList<DeviceOutput> &outputs);
    // Puts bytes the device sent unasked on the line, readable from `sent` on: there is no
    // turn-around, but they still queue behind what is on the line and keep its pace.
    void scheduleUnasked(Clock::time_point sent, const QByteArray &bytes);

    // Removes and returns up to max bytes that are readable at `now`.
    QByteArray take(Clock::time_point now, int max);
    // When the n-th waiting byte (1-based) becomes readable; nothing when fewer are waiting.
    std::optional<Clock::time_point> readyTime(int n) const;
    int waiting() const { return int(m_pending.size()); }
    // Drops everything on the way to the host.
    void clear() { m_pending.clear(); }

private:
    void put(Clock::time_point at, const QByteArray &bytes);

    struct PendingByte
    {
        Clock::time_point readyAt;
        char byte;
    };

    std::chrono::milliseconds m_latency{1};
    bool m_pacing = false;
    Clock::time_point m_hostLineFree{};
    Clock::time_point m_deviceLineFree{};
    std::deque<PendingByte> m_pending;
};

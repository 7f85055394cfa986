#pragma once

#include "LineProfile.h"
#include "VirtualValidator.h"

#include <chrono>
#include <deque>
#include <optional>
#include <random>

// The serial line between the host and the virtual validator in time: when the host's bytes
// reach the device, and when each byte of the device's answers becomes readable on the host
// (the device's turnaround, per-command reply delays, 9600 baud pacing at one byte every
// 1.0417 ms, pauses inside replies, and the adapter's bursts).
class LineTiming final
{
public:
    using Clock = std::chrono::steady_clock;
    // One character of 10 bits at 9600 baud.
    static constexpr std::chrono::nanoseconds kByteTime{1'041'667};

    LineTiming();

    void setProfile(const LineProfile &profile);
    const LineProfile &profile() const { return m_profile; }
    // A fixed turnaround before echoes and replies alike.
    void setLatencyMs(int ms);
    void setPacing(bool on) { m_profile.pacing = on; }
    bool pacing() const { return m_profile.pacing; }

    // The time at which a byte the host sends at `sent` has reached the device.
    Clock::time_point hostByteArrives(Clock::time_point sent);
    // Puts the device's answers to a byte heard at `heard` on the line, each after its own
    // turnaround.
    void schedule(Clock::time_point heard, const QList<DeviceOutput> &outputs);
    // Puts bytes the device sent unasked on the line from `sent` on: there is no turnaround,
    // but they still queue behind what is on the line and keep its pace.
    void scheduleUnasked(Clock::time_point sent, const QByteArray &bytes);

    // Removes and returns up to max bytes that are readable at `now`.
    QByteArray take(Clock::time_point now, int max);
    // When the n-th waiting byte (1-based) becomes readable; nothing when fewer are waiting.
    std::optional<Clock::time_point> readyTime(int n) const;
    int waiting() const { return int(m_pending.size()); }
    // Drops everything on the way to the host.
    void clear() { m_pending.clear(); }

    // What the line has cost since it began, beyond the bytes' own time on the wire: the
    // device's turnarounds and reply delays, and the adapter's holding back of each answer's
    // last byte.
    struct Costs
    {
        int answers = 0;
        double turnaroundMs = 0;
        double adapterMs = 0;
    };
    const Costs &costs() const { return m_costs; }

private:
    std::chrono::milliseconds draw(int lo, int hi);
    void put(Clock::time_point at, const QByteArray &bytes, bool reply);
    // When the adapter hands over a byte that reached it at `at`.
    Clock::time_point handedOver(Clock::time_point at) const;

    struct PendingByte
    {
        Clock::time_point readyAt;
        char byte;
    };

    LineProfile m_profile;
    std::mt19937 m_random;
    // The adapter's timer runs from here.
    Clock::time_point m_epoch;
    Clock::time_point m_hostLineFree{};
    Clock::time_point m_deviceLineFree{};
    std::deque<PendingByte> m_pending;
    Costs m_costs;
};

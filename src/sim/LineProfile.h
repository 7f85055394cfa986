#pragma once

#include <QString>
#include <optional>

// How rough the line between the host and the virtual validator is: 9600 baud pacing, the
// device's turnaround before each echo and reply (fixed, or drawn from a seeded range so that
// a failing run can be replayed), the USB adapter's latency timer that hands bytes over in
// bursts, and a pause inside every reply.
//
// As text (tarvik-sim --line, tarvik and tarvik-cli --sim-line): "instant", "bench", or a comma
// list such as "pace,turnaround=0-400,echo=0-40,burst=16,seed=7,split=5:20", each item changing
// the bench line. The echo has its own turnaround: a validator echoes the count as soon as it
// has decoded the command, while a reply may wait for its memory.
struct LineProfile
{
    bool pacing = false;
    // Before each reply, and before each count echo.
    int turnaroundMinMs = 1;
    int turnaroundMaxMs = 1;
    int echoMinMs = 1;
    int echoMaxMs = 1;
    quint32 seed = 1;
    // The adapter's latency timer: bytes become readable at multiples of it (0: byte by byte).
    int burstMs = 0;
    // Every reply longer than splitAt bytes stops after them for splitGapMs (0: no pause).
    int splitAt = 0;
    int splitGapMs = 0;

    // Bytes as soon as the device makes them: for fast tests.
    static LineProfile instant();
    // What a bench looks like: paced, a few milliseconds of turnaround, 1 ms adapter bursts.
    static LineProfile bench();

    // Nothing, with the reason in *error, when the text does not describe a line.
    static std::optional<LineProfile> parse(const QString &text, QString *error);
    QString toString() const;

    bool operator==(const LineProfile &) const = default;
};

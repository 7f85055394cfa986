#pragma once

#include <QtGlobal>
#include <algorithm>
#include <cstdio>
#include <vector>

// Prints one line of timings in nanoseconds as milliseconds (min, median, max) against the
// median's target, the label padded to labelWidth and the times with `decimals` places; returns
// the median in milliseconds.
inline double reportMedian(const char *what, std::vector<qint64> ns, double targetMs,
                           int labelWidth, int decimals)
{
    std::sort(ns.begin(), ns.end());
    const double median = double(ns[ns.size() / 2]) / 1e6;
    std::printf("%-*s n=%zu  min %.*f ms  median %.*f ms  max %.*f ms  (target %.0f ms: %s)\n",
                labelWidth, what, ns.size(), decimals, double(ns.front()) / 1e6, decimals, median,
                decimals, double(ns.back()) / 1e6, targetMs, median < targetMs ? "met" : "missed");
    return median;
}

#include "CoinGenerator.h"

#include <algorithm>

namespace {

// Measurement order: HFU low, HFU high, DIM, LF, HFL low, HFL high, AMP. The diameters are far
// apart, so no two coins share a window even after tolerances.
const std::array<CoinPreset, CoinGenerator::kindCount()> kPresets = {{
    {CoinKind::Euro005, "0.05 EUR", 5, {74, 72, 124, 150, 60, 92, 42}},
    {CoinKind::Euro010, "0.10 EUR", 10, {96, 90, 138, 74, 82, 116, 50}},
    {CoinKind::Euro020, "0.20 EUR", 20, {118, 104, 160, 86, 96, 132, 58}},
    {CoinKind::Euro050, "0.50 EUR", 50, {140, 120, 176, 98, 110, 150, 64}},
    {CoinKind::Euro100, "1.00 EUR", 100, {160, 84, 190, 132, 128, 60, 76}},
    {CoinKind::Euro200, "2.00 EUR", 200, {182, 96, 214, 120, 150, 70, 88}},
    {CoinKind::ReferenceToken, "Reference token", 0, {128, 128, 200, 128, 128, 128, 128}},
}};

// The eddy-current readings follow the coil's calibration; diameter and amplitude do not.
constexpr std::array<bool, 7> kFollowsOffset = {true, true, false, true, true, true, false};
constexpr std::array<int, 7> kScatter = {2, 2, 1, 2, 3, 3, 3};

quint8 clampReading(int v)
{
    return quint8(std::clamp(v, 0, 254));
}

} // namespace

const CoinPreset &CoinGenerator::preset(CoinKind kind)
{
    return kPresets[std::size_t(std::clamp(int(kind), 0, kindCount() - 1))];
}

int CoinGenerator::scatter(CoinKind kind, int measurement)
{
    if (kind == CoinKind::ReferenceToken)
        return 1;
    return kScatter[std::size_t(std::clamp(measurement, 0, 6))];
}

SampleBytes CoinGenerator::typical(CoinKind kind, int offset)
{
    SampleBytes out = preset(kind).typical;
    for (std::size_t i = 0; i < out.size(); ++i) {
        if (kFollowsOffset[i])
            out[i] = clampReading(out[i] + offset);
    }
    return out;
}

SampleBytes CoinGenerator::sample(CoinKind kind, int offset)
{
    SampleBytes out = typical(kind, offset);
    for (std::size_t i = 0; i < out.size(); ++i) {
        const int most = scatter(kind, int(i));
        std::uniform_int_distribution<int> spread(-most, most);
        out[i] = clampReading(out[i] + spread(m_rng));
    }
    return out;
}

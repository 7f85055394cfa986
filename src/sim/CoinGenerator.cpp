#include "CoinGenerator.h"

#include <QRegularExpression>
#include <algorithm>

namespace {

// Measurement order: HFU low, HFU high, DIM, LF, HFL low, HFL high, AMP. The diameters are far
// apart, so no two coins share a window even after tolerances. The tokens are of two alloys,
// brass and cupronickel, with diameters between those of the large coins.
const std::array<CoinPreset, CoinGenerator::kindCount()> kPresets = {{
    {CoinKind::Euro005, "0.05 EUR", "euro005", 5, {74, 72, 124, 150, 60, 92, 42}},
    {CoinKind::Euro010, "0.10 EUR", "euro010", 10, {96, 90, 138, 74, 82, 116, 50}},
    {CoinKind::Euro020, "0.20 EUR", "euro020", 20, {118, 104, 160, 86, 96, 132, 58}},
    {CoinKind::Euro050, "0.50 EUR", "euro050", 50, {140, 120, 176, 98, 110, 150, 64}},
    {CoinKind::Euro100, "1.00 EUR", "euro100", 100, {160, 84, 190, 132, 128, 60, 76}},
    {CoinKind::Euro200, "2.00 EUR", "euro200", 200, {182, 96, 214, 120, 150, 70, 88}},
    {CoinKind::GoldenToken, "Golden token", "golden", 0, {128, 118, 200, 128, 128, 112, 128}},
    {CoinKind::SilverToken, "Silver token", "silver", 0, {146, 138, 204, 106, 134, 144, 92}},
}};

// The eddy-current readings follow the coil's calibration; diameter and amplitude do not.
constexpr std::array<bool, 7> kFollowsOffset = {true, true, false, true, true, true, false};
constexpr std::array<int, 7> kCoinScatter = {2, 2, 1, 2, 3, 3, 3};
constexpr std::array<int, 7> kTokenScatter = {2, 2, 1, 2, 2, 2, 2};

quint8 clampReading(int v)
{
    return quint8(std::clamp(v, 0, 254));
}

} // namespace

const CoinPreset &CoinGenerator::preset(CoinKind kind)
{
    return kPresets[std::size_t(std::clamp(int(kind), 0, kindCount() - 1))];
}

std::optional<CoinKind> CoinGenerator::kindNamed(QStringView name)
{
    QString text = name.trimmed().toString().toLower();
    if (text.endsWith(QLatin1String("eur")))
        text = text.chopped(3).trimmed();
    for (const CoinPreset &p : kPresets) {
        if (text == QLatin1String(p.key))
            return p.kind;
    }
    static const QRegularExpression euros(QStringLiteral("^(\\d{1,2})(?:[.,](\\d{1,2}))?$"));
    const QRegularExpressionMatch match = euros.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const QString fraction = match.captured(2).leftJustified(2, u'0');
    const int cents = match.captured(1).toInt() * 100 + fraction.toInt();
    for (const CoinPreset &p : kPresets) {
        if (p.cents != 0 && p.cents == cents)
            return p.kind;
    }
    return std::nullopt;
}

int CoinGenerator::scatter(CoinKind kind, int measurement)
{
    const auto m = std::size_t(std::clamp(measurement, 0, 6));
    return isToken(kind) ? kTokenScatter[m] : kCoinScatter[m];
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

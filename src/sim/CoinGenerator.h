#pragma once

#include "TMonnayeur.h"

#include <QString>
#include <QStringView>
#include <array>
#include <optional>
#include <random>

// The coins and reference tokens a technician has at the bench. Readings are in measurement
// order: HFU low, HFU high, DIM, LF, HFL low, HFL high, AMP.
enum class CoinKind
{
    Euro005,
    Euro010,
    Euro020,
    Euro050,
    Euro100,
    Euro200,
    // The two tokens of the reference set: a recalibration takes HFU low, DIM, LF, HFL low and
    // AMP from the golden tokens, HFU high and HFL high from the silver ones.
    GoldenToken,
    SilverToken,
    Count_
};

struct CoinPreset
{
    CoinKind kind;
    const char *name;    // "0.05 EUR", ..., "Golden token", "Silver token"
    const char *key;     // the name typed at the bench: "euro005", ..., "golden", "silver"
    quint16 cents;       // face value, 0 for the tokens
    SampleBytes typical; // what a validator with no calibration offset reads on average
};

// Gives readings of preset coins with a realistic scatter from a seeded generator, so that a
// run can be repeated exactly.
class CoinGenerator final
{
public:
    explicit CoinGenerator(quint32 seed = 1) : m_rng(seed) {}

    void reseed(quint32 seed) { m_rng.seed(seed); }

    static const CoinPreset &preset(CoinKind kind);
    static constexpr int kindCount() { return int(CoinKind::Count_); }
    static bool isToken(CoinKind kind)
    {
        return kind == CoinKind::GoldenToken || kind == CoinKind::SilverToken;
    }
    // The kind a bench script names, case aside: its key ("euro050", "golden"), or its face
    // value in euros ("0.50", "0,5", "2"), optionally followed by " EUR".
    static std::optional<CoinKind> kindNamed(QStringView name);
    // The largest deviation of one reading from the typical value, per measurement. Reference
    // tokens are made to tighter tolerances than coins and stay within two units.
    static int scatter(CoinKind kind, int measurement);
    // The typical reading on a validator whose sensors read `offset` units high or low.
    static SampleBytes typical(CoinKind kind, int offset);

    // One insertion of the coin: each measurement within +-scatter of the typical reading.
    SampleBytes sample(CoinKind kind, int offset = 0);

private:
    std::mt19937 m_rng;
};

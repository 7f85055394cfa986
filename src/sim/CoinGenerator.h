#pragma once

#include "TMonnayeur.h"

#include <QString>
#include <array>
#include <random>

// The coins a technician has at the bench. Readings are in measurement order: HFU low, HFU high,
// DIM, LF, HFL low, HFL high, AMP.
enum class CoinKind
{
    Euro005,
    Euro010,
    Euro020,
    Euro050,
    Euro100,
    Euro200,
    ReferenceToken,
    Count_
};

struct CoinPreset
{
    CoinKind kind;
    const char *name;    // "0.05 EUR", ..., "Reference token"
    quint16 cents;       // face value, 0 for the token
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
    // The largest deviation of one reading from the typical value, per measurement. Reference
    // tokens are made to tight tolerances and scatter by one unit at most.
    static int scatter(CoinKind kind, int measurement);
    // The typical reading on a validator whose sensors read `offset` units high or low.
    static SampleBytes typical(CoinKind kind, int offset);

    // One insertion of the coin: each measurement within +-scatter of the typical reading.
    SampleBytes sample(CoinKind kind, int offset = 0);

private:
    std::mt19937 m_rng;
};

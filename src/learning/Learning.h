#pragma once

#include "ConfigImage.h"
#include "TMonnayeur.h"

#include <QStringList>
#include <array>

// Coin learning without a window: the seven acceptance windows in the order the validator
// reports its measurements, the rules that widen them coin by coin, the tolerances, and the
// checks that compare samples and channels.

inline constexpr int kWindows = 7;

// One window in measurement order, with the record bytes it is written to (the record keeps
// each window's maximum before its minimum, in another order of windows).
struct WindowPlace
{
    int recordMax;
    int recordMin;
    const char *minEdit;
    const char *maxEdit;
    const char *trackBar;
};
inline constexpr WindowPlace kWindowPlaces[kWindows] = {
    {Rec::HfuLowMax, Rec::HfuLowMin, "HFUMINL", "HFUMINH", "HFUMINBAR"},   // HFU low
    {Rec::HfuHighMax, Rec::HfuHighMin, "HFUMAXL", "HFUMAXH", "HFUMAXBAR"}, // HFU high
    {Rec::DimMax, Rec::DimMin, "DimL", "DimH", "LFMINBAR"},                // DIM
    {Rec::LfMax, Rec::LfMin, "LFLOW", "LFHIGH", "LFmaxBar"},               // LF
    {Rec::HflLowMax, Rec::HflLowMin, "HFLMINL", "HFLMINH", "HFLMINBAR"},   // HFL low
    {Rec::HflHighMax, Rec::HflHighMin, "HFLMAXL", "HFLMAXH", "HFLMAXBAR"}, // HFL high
    {Rec::AmpMax, Rec::AmpMin, "HFLAMPL", "HFLAMPH", "SumBar"},            // amplitude
};

// The fourteen margins, a minimum's then a maximum's per window in measurement order (the rows
// of the tolerance dialog).
struct Tolerances
{
    std::array<quint8, 2 * kWindows> values{4, 4, 4, 4, 1, 1, 2, 2, 8, 8, 8, 8, 8, 8};
    quint8 below(int window) const { return values[std::size_t(2 * window)]; }
    quint8 above(int window) const { return values[std::size_t(2 * window + 1)]; }
    bool operator==(const Tolerances &) const = default;
};

struct Window
{
    quint8 min = 255;
    quint8 max = 0;
    bool operator==(const Window &) const = default;
};
using Windows = std::array<Window, kWindows>;

// The caption of a window in measurement order ("HFU low" ... "AMP"), translated.
QString windowCaption(int window);

// A signed sum held to 0..255.
quint8 clampToByte(int value);

// What one measurement did to its window: the differences shown beside the bounds, and which
// bound it lay outside of (marked red, or the difference hidden when the bound was not set).
struct WindowUpdate
{
    quint8 measure = 255;
    int belowMin = 0; // m - min
    int aboveMax = 0; // m - max
    bool minMarked = false;
    bool maxMarked = false;
    bool minDifferenceHidden = false;
    bool maxDifferenceHidden = false;
};
// The difference as shown: "%d" below 1, "+%d" from 1.
QString differenceText(int difference);

// Updates one window with a measurement. Learning from coins, the window grows to hold it;
// otherwise the window (the bounds typed by hand) only tells where the coin lies.
WindowUpdate updateWindow(Window &window, quint8 measure, bool learningFromCoins);

// The first channel (1-based) whose seven stored windows all hold the sample, 0 when none or
// when the sample has no reading at all.
int matchChannel(const ConfigImage &image, const SampleBytes &sample);

// The learned windows as a channel record (windows in record order, then the substitute).
ChannelBytes learnedRecord(const Windows &windows, quint8 substitute);
// Every maximum up by its margin, every minimum down by its own, held to 0..255.
void applyTolerances(ChannelBytes &record, const Tolerances &tolerances);
// The record, its value and its enable flag into channel k (0-based) of the image, with the
// enable mask rebuilt.
void storeLearnedChannel(ConfigImage &image, int k, const ChannelBytes &record, quint8 value,
                         bool enabled);

// The reference token windows: golden tokens give HFU low, LF, DIM, HFL low and amplitude,
// silver ones HFU high and HFL high. A window narrower than 4 grows by half the shortfall on
// each side (a half to the even neighbour), wrapping around a byte.
enum class TokenSet
{
    Golden,
    Silver
};
void takeReferenceWindows(ChannelBytes &reference, const ChannelBytes &learned, TokenSet set);
inline constexpr int kMinimumReferenceWidth = 4;

// Windows [a, b] and [c, d] share a value.
bool intersect(int a, int b, int c, int d);
// Two channels (1-based), the first below the second.
struct ChannelPair
{
    int first = 0;
    int second = 0;
    bool operator==(const ChannelPair &) const = default;
};
// The two records' windows intersect on all seven measurements (touching ones too).
bool windowsOverlap(const quint8 *a, const quint8 *b);
// Pairs of channels in use whose windows overlap, in the order of the overlap list.
QList<ChannelPair> overlappingPairs(const ConfigImage &image);
// One line of the overlap list: the running count, then the pair.
QString overlapLine(int count, const ChannelPair &pair);
// The overlapping pairs as listed.
QStringList overlapLines(const ConfigImage &image);
// The channels whose windows, widened by the margins, hold a sample, as listed.
QStringList analysisLines(const ConfigImage &image, const SampleBytes &sample,
                          const Tolerances &tolerances);

#pragma once

#include "ConfigImage.h"
#include "Encodings.h"

#include <QDate>
#include <QString>

// The rules of the initialisation and output dialogs over the configuration image. The option
// byte is byte 1 of the options block; commands 14/15 carry the same two bytes.
namespace ValidatorInit {

inline constexpr quint8 kResettableCounterBit = 0x20; // bit 5
inline constexpr quint8 kOutletBits = 0x18;           // bits 4-3
inline constexpr quint8 kOutputVendingBit = 0x10;     // bit 4
// Bits 0, 1, 2 and 7, always set by an initialisation.
inline constexpr quint8 kInitAlwaysSet = 0x87;

// Outlet modes in the order of the radio group.
enum class Outlet
{
    GameFast,       // 00
    Game,           // 01
    VendingAntiJam, // 10
    Vending         // 11
};

// RazEn: checked sets bit 5, unchecked clears it; the other bits stay.
void setResettableCounter(ConfigImage &image, bool on);
// GroupSortieInit: item 1 sets bit 3, item 2 sets bit 4, item 3 both; item 0 or no selection
// (-1) clears both.
void setOutletItem(ConfigImage &image, int item);
// The item that the option byte's bits 4-3 select.
int outletItem(const ConfigImage &image);

// The serial-number edit: the text as a number (not a number: 0), keeping its low 32 bits.
quint32 parseSerialText(const QString &text);
// Stores the number in the identification's serial words; returns it.
quint32 storeSerialText(ConfigImage &image, const QString &text);
// The number as shown back: empty for 0 and for all ones.
QString serialDisplayText(quint32 serial);

// OK of the initialisation: byte 0 = FF, byte 1 |= 0x87, the date word = the day's date packed,
// the counter block cleared.
void applyInitialisation(ConfigImage &image, const QDate &today);
// The initialisation date word (bytes 2-3 of the identification).
Word2 initialisationDate(const ConfigImage &image);

// TFormCondotto: bit 4 of byte 1, set for "Vending", cleared for "Game".
void setOutputVending(ConfigImage &image, bool vending);
bool outputVending(const ConfigImage &image);

} // namespace ValidatorInit

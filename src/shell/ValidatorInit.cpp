#include "ValidatorInit.h"

namespace ValidatorInit {

namespace {
quint8 &optionByte(ConfigImage &image)
{
    return image.options[1];
}
} // namespace

void setResettableCounter(ConfigImage &image, bool on)
{
    if (on)
        optionByte(image) |= kResettableCounterBit;
    else
        optionByte(image) &= quint8(~kResettableCounterBit);
}

void setOutletItem(ConfigImage &image, int item)
{
    quint8 bits = 0;
    switch (item) {
    case 1:
        bits = 0x08;
        break;
    case 2:
        bits = 0x10;
        break;
    case 3:
        bits = 0x18;
        break;
    default:
        break;
    }
    optionByte(image) = quint8((optionByte(image) & ~kOutletBits) | bits);
}

int outletItem(const ConfigImage &image)
{
    return (image.options[1] & kOutletBits) >> 3;
}

quint32 parseSerialText(const QString &text)
{
    bool ok = false;
    const qlonglong number = text.trimmed().toLongLong(&ok);
    return ok ? quint32(quint64(number) & 0xFFFFFFFFu) : 0;
}

quint32 storeSerialText(ConfigImage &image, const QString &text)
{
    const quint32 serial = parseSerialText(text);
    image.setSerialNumber(serial);
    return serial;
}

QString serialDisplayText(quint32 serial)
{
    return serial == 0 || serial == 0xFFFFFFFFu ? QString() : QString::number(serial);
}

void applyInitialisation(ConfigImage &image, const QDate &today)
{
    image.options[0] = 0xFF;
    optionByte(image) |= kInitAlwaysSet;
    const Word2 date = EncodeDate16(today);
    image.ident[2] = date[0];
    image.ident[3] = date[1];
    image.counters.fill(0);
}

Word2 initialisationDate(const ConfigImage &image)
{
    return {image.ident[2], image.ident[3]};
}

void setOutputVending(ConfigImage &image, bool vending)
{
    if (vending)
        optionByte(image) |= kOutputVendingBit;
    else
        optionByte(image) &= quint8(~kOutputVendingBit);
}

bool outputVending(const ConfigImage &image)
{
    return image.options[1] & kOutputVendingBit;
}

} // namespace ValidatorInit

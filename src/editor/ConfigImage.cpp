#include "ConfigImage.h"

#include <algorithm>

ConfigImage ConfigImage::blank()
{
    ConfigImage image;
    image.version.fill(0xFF);
    image.ident.fill(0xFF);
    image.counters.fill(0xFF);
    image.prices.fill(0xFF);
    image.options.fill(0xFF);
    image.enable.fill(0xFF);
    image.values.fill(0xFF);
    image.block2.fill(0xFF);
    image.block13.fill(0xFF);
    image.setting8 = 0xFF;
    image.status9.fill(0xFF);
    for (auto &r : image.channels)
        r.fill(0xFF);
    return image;
}

bool ConfigImage::enableBit(int k) const
{
    return (enable[std::size_t(7 - k / 8)] >> (k % 8)) & 1;
}

void ConfigImage::rebuildEnableBitmap()
{
    enable.fill(0);
    enable[0] = 0xF0;
    // A channel the model does not have is never enabled (25 channels on the Light model).
    for (int k = 0; k < channelCount(); ++k) {
        if (channels[std::size_t(k)][Rec::Enabled] != 0)
            enable[std::size_t(7 - k / 8)] |= quint8(1 << (k % 8));
    }
}

void ConfigImage::refreshRecordCopies()
{
    for (int k = 0; k < kChannels; ++k) {
        auto &r = channels[std::size_t(k)];
        r[Rec::Value] = valueByte(k);
        r[Rec::Enabled] = enableBit(k) ? 1 : 0;
    }
}

quint32 ConfigImage::serialNumber() const
{
    return quint32(ident[4]) << 24 | quint32(ident[5]) << 16 | quint32(ident[6]) << 8 | ident[7];
}

void ConfigImage::setSerialNumber(quint32 serial)
{
    ident[4] = quint8(serial >> 24);
    ident[5] = quint8(serial >> 16);
    ident[6] = quint8(serial >> 8);
    ident[7] = quint8(serial);
}

const char *familyText(quint8 familyByte)
{
    switch (familyByte >> 4) {
    case 0:
        return "5.2";
    case 1:
        return "5.3";
    case 2:
        return "Wake-Up";
    case 3:
        return "Light";
    default:
        return "";
    }
}

bool windowRecordValid(const quint8 *record)
{
    return std::all_of(record, record + 12, [](quint8 b) { return b < 255; });
}

bool channelInUse(const quint8 *record)
{
    return std::all_of(record, record + 12, [](quint8 b) { return b < 255; });
}

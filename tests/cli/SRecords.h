#pragma once

#include <QByteArray>

// An S1 record of 16 data bytes at the address, with its checksum and a CR LF line end.
inline QByteArray s1Record(int address)
{
    QByteArray bytes;
    bytes += char(0x13);
    bytes += char((address >> 8) & 0xFF);
    bytes += char(address & 0xFF);
    for (int i = 0; i < 16; ++i)
        bytes += char(address + i * 7);
    int sum = 0;
    for (char b : bytes)
        sum += quint8(b);
    bytes += char(~sum & 0xFF);
    return "S1" + bytes.toHex().toUpper() + "\r\n";
}

// A firmware file: a header record, `records` data records and the end record.
inline QByteArray sRecordFirmware(int records)
{
    QByteArray file = "S00600004844521B\r\n";
    for (int i = 0; i < records; ++i)
        file += s1Record(i * 16);
    return file + "S9030000FC\r\n";
}

#pragma once

#include <QString>

// Turns COMn into a system port: COMn on Windows; elsewhere the environment variable
// TARVIK_PORTS ("COM1=/dev/ttyUSB0,COM4=/dev/pts/3"), then the "PortMap" settings entry in the
// same form, then the n-th serial port that the system lists.
class PortMap
{
public:
    static QString systemPortFor(int n);
    // Parses "COM1=/dev/ttyUSB0,COM4=/dev/pts/3"; empty when n is not mapped.
    static QString lookup(const QString &map, int n);
};

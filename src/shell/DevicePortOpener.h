#pragma once

#include "PortChoice.h"

#include <QString>

// One system port (a device path) standing as COM1.
class DevicePortOpener final : public SerialPortOpener
{
public:
    explicit DevicePortOpener(QString device) : m_device(std::move(device)) {}

protected:
    QString systemPort(int n) const override { return n == 1 ? m_device : QString(); }

private:
    QString m_device;
};

#pragma once

#include "PortChoice.h"
#include "Transport.h"

#include <QString>

// One system port (a device path) standing as COM1.
class DevicePortOpener final : public PortOpener
{
public:
    explicit DevicePortOpener(QString device) : m_device(std::move(device)) {}
    bool PortComFree(int n) override;
    std::unique_ptr<Transport> ComInit(int n) override;

private:
    QString m_device;
};

#include "DevicePortOpener.h"

#include "SerialTransport.h"

bool DevicePortOpener::PortComFree(int n)
{
    if (n != 1)
        return false;
    SerialTransport probe;
    const bool free = probe.open(m_device);
    probe.close();
    return free;
}

std::unique_ptr<Transport> DevicePortOpener::ComInit(int n)
{
    if (n != 1)
        return nullptr;
    auto transport = std::make_unique<SerialTransport>();
    if (!transport->open(m_device))
        return nullptr;
    return transport;
}

#include "SimulatedLink.h"

#include "SimTransport.h"
#include "VirtualValidator.h"

namespace {

// Owns the virtual validator that sits behind the port.
class OwnedSimulation final : public Transport
{
public:
    OwnedSimulation(quint8 familyByte, const LineProfile &line)
        : m_device(std::make_unique<VirtualValidator>(familyByte)), m_port(m_device.get())
    {
        m_port.setLine(line);
    }
    bool isOpen() const override { return m_port.isOpen(); }
    qint64 write(const QByteArray &bytes) override { return m_port.write(bytes); }
    using Transport::read;
    QByteArray read(int count, int firstByteWaitMs) override
    {
        return m_port.read(count, firstByteWaitMs);
    }
    void purge() override { m_port.purge(); }
    void close() override { m_port.close(); }
    int readTimeout() const override { return m_port.readTimeout(); }
    void setReadTimeout(int ms) override { m_port.setReadTimeout(ms); }
    QString errorString() const override { return m_port.errorString(); }

private:
    std::unique_ptr<VirtualValidator> m_device;
    SimTransport m_port;
};

} // namespace

std::unique_ptr<Transport> makeSimulatedTransport(quint8 familyByte, const LineProfile &line)
{
    return std::make_unique<OwnedSimulation>(familyByte, line);
}

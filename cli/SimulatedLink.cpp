#include "SimulatedLink.h"

#include "SimTransport.h"
#include "VirtualValidator.h"

namespace {

// Owns the virtual validator that sits behind the port.
class OwnedSimulation final : public Transport
{
public:
    explicit OwnedSimulation(quint8 familyByte)
        : m_device(std::make_unique<VirtualValidator>(familyByte)), m_port(m_device.get())
    {}
    bool isOpen() const override { return m_port.isOpen(); }
    qint64 write(const QByteArray &bytes) override { return m_port.write(bytes); }
    QByteArray read(int count) override { return m_port.read(count); }
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

std::unique_ptr<Transport> makeSimulatedTransport(quint8 familyByte)
{
    return std::make_unique<OwnedSimulation>(familyByte);
}

// The firmware transfer against the virtual validator playing the mini-programmer.
#include "FirmwareTransfer.h"
#include "SimTransport.h"
#include "VirtualValidator.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

namespace {

QByteArray firmwareOf(int size)
{
    QByteArray bytes;
    for (int i = 0; i < size; ++i)
        bytes += char("S1130000AF\r\n"[i % 12]);
    return bytes;
}

struct MiniProgrammer
{
    MiniProgrammer() : port(&device)
    {
        device.setMiniProgrammer(true);
        port.setLatencyMs(0);
    }
    VirtualValidator device;
    SimTransport port;
};

TEST(FirmwareTransfer, BlocksAndHandshakes)
{
    struct Case
    {
        int size;
        int handshakes;
    };
    // Shorter than a block: no handshake; exactly one block: one read after its last byte.
    for (const Case c : {Case{10, 0}, Case{64, 1}, Case{64 * 5 + 7, 5}}) {
        MiniProgrammer mini;
        FirmwareTransfer transfer(&mini.port);
        const QByteArray firmware = firmwareOf(c.size);
        EXPECT_EQ(transfer.FormTransfert(firmware), FirmwareTransfer::Result::UpgradeOver);
        EXPECT_EQ(transfer.handshakeReads(), c.handshakes) << c.size;
        EXPECT_EQ(mini.device.firmwareBytes(), firmware);
    }
}

TEST(FirmwareTransfer, OperatorStopsAfterBlockThree)
{
    MiniProgrammer mini;
    mini.device.setStopAfterBlock(3);
    FirmwareTransfer transfer(&mini.port);
    EXPECT_EQ(transfer.FormTransfert(firmwareOf(64 * 10)),
              FirmwareTransfer::Result::OperationCancelledByOperator);
    EXPECT_EQ(transfer.bytesSent(), 64 * 3);
}

TEST(FirmwareTransfer, SilentMiniProgrammerOnlyCostsTheReadTimeOut)
{
    MiniProgrammer mini;
    mini.device.setFirmwareAck(VirtualValidator::FirmwareAck::Silent);
    FirmwareTransfer transfer(&mini.port);
    const QByteArray firmware = firmwareOf(64 * 4);
    EXPECT_EQ(transfer.FormTransfert(firmware), FirmwareTransfer::Result::UpgradeOver);
    EXPECT_EQ(mini.device.firmwareBytes(), firmware);
    EXPECT_EQ(transfer.handshakeReads(), 4);
}

} // namespace

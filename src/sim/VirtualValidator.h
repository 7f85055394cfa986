#pragma once

#include "CoinGenerator.h"
#include "ConfigImage.h"
#include "TMonnayeur.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QSet>
#include <deque>

// Bytes the device puts on the line, sent `delayMs` after the byte that caused them was heard.
struct DeviceOutput
{
    QByteArray bytes;
    int delayMs = 0;
    // The count echo of a command, rather than a reply.
    bool echo = false;
};

// One exchange the device answered: the command and, for 3, 4, 16 and 17, the channel or slice
// index it received (-1 until the data block has arrived, and for other commands).
struct SimExchange
{
    quint8 command = 0;
    int index = -1;
    bool operator==(const SimExchange &) const = default;
};

// The device side of the command protocol over a full memory image, as a pure state machine:
// bytes from the host go in, bytes for the host come out, no clock involved. It also plays the
// mini-programmer receiving a firmware file.
//
// Each known command is answered with the count echo, then the device takes exactly that many
// data bytes and replies: reads return their block, writes store it and answer status 0. A
// channel index past the model's channel count (25 on the Light model) or a value slice past 4
// is refused with status 1 on a write and read back as a record of 255s. Unknown commands, and
// command 0 while no coin is waiting, get no answer at all.
//
// A few bytes are sent unasked: the channel number of each coin accepted in test mode, and the
// mini-programmer's request for firmware. They wait in an outbox that the line takes them from.
class VirtualValidator final
{
public:
    // A factory-fresh validator of the given family and serial number.
    explicit VirtualValidator(quint8 familyByte = 0x13, quint32 serial = 1001);
    // A validator holding the given memory; its sensors' offset follows the memory's serial.
    explicit VirtualValidator(const ConfigImage &memory);
    Q_DISABLE_COPY_MOVE(VirtualValidator)

    // A realistic, fully programmed memory: versions, dates, serial, six coin channels learned
    // with the usual tolerances, the reference tokens' windows in the last channel, values,
    // prices, options and enable bits. Different serials and families give different images.
    static ConfigImage factoryImage(quint8 familyByte, quint32 serial);
    // How many units this serial's sensors read above (or below) a typical validator.
    static int calibrationOffset(quint32 serial);

    // Host-to-device bytes; returns what the device says back, in order.
    QList<DeviceOutput> receive(const QByteArray &bytes);

    const ConfigImage &memory() const { return m_memory; }
    ConfigImage &memory() { return m_memory; }
    // Another validator in the same place: it starts out of test mode.
    void setMemory(const ConfigImage &memory);

    // Every exchange answered since the last clear, in order.
    const QList<SimExchange> &exchangeLog() const { return m_log; }
    void clearExchangeLog() { m_log.clear(); }
    // True while the device waits for the data block of the exchange logged last.
    bool exchangeInProgress() const { return m_awaitingData; }

    // Coins waiting to be measured; command 0 stays silent while none is queued. In test mode
    // the coin is not queued: the number of the channel that accepts it is sent unasked.
    void queueCoin(const SampleBytes &sample);
    // Queues one insertion of a preset coin, read by this validator's own sensors.
    void insertCoin(CoinKind kind);
    void setCoinSeed(quint32 seed) { m_coinGenerator.reseed(seed); }
    int queuedCoins() const { return int(m_coins.size()); }
    void clearCoins() { m_coins.clear(); }

    // Test mode, from command 24 to command 29: each accepted coin sends its channel number.
    bool testMode() const { return m_testMode; }
    // The number (1-based) of the first enabled channel whose seven windows all hold the
    // sample; 0 when none does.
    int acceptingChannel(const SampleBytes &sample) const;

    // Bytes sent unasked since the last call, in the order they were sent.
    QByteArray takeUnsolicited();
    bool hasUnsolicited() const { return !m_unsolicited.isEmpty(); }

    // The door shows in the second half of the status word (command 9): 00 01 while open.
    void setDoorOpen(bool open);
    bool doorOpen() const;

    // The cable: while unplugged the device hears nothing and says nothing. Plugging it back
    // in starts a fresh exchange.
    void setConnected(bool connected);
    bool connected() const { return m_connected; }
    // The cable is pulled right after the n-th write from now that the device accepts, as a
    // technician who pulls a validator in the middle of its write (0: never).
    void setUnplugAfterWrites(int writes) { m_unplugAfterWrites = writes; }

    // Faults. Occurrences are counted from the call that sets the fault.
    // The count echo of the command is one more than its data length; the device then takes
    // the next byte as a new command, as if it had misheard.
    void setWrongEcho(quint8 command, bool on = true);
    // Writes of the command are answered with `status` instead of 0 and not stored: every time,
    // or only its n-th occurrence (1-based) when occurrence > 0.
    void setRefusal(quint8 command, int occurrence = 0, quint8 status = 1);
    // The reply (for commands without a reply, the count echo) comes `ms` late.
    void setReplyDelay(quint8 command, int ms);
    // Answers `exchanges` more exchanges, then hears nothing at all (-1: never).
    void setSilentAfter(int exchanges);
    bool silenced() const { return m_silenced; }
    void clearFaults();

    // Mini-programmer mode: every byte received is firmware; after each 64-byte block the
    // adapter answers two bytes.
    enum class FirmwareAck
    {
        NotAccepted, // 55 00: the transfer goes on
        Silent       // no answer at all
    };
    static constexpr int kFirmwareBlock = 64;
    // Turning the mode on starts a new collection.
    void setMiniProgrammer(bool on);
    // The mini-programmer asks for a firmware file with request code 11. If the next byte it
    // hears is the host's answer, 0, it switches to mini-programmer mode, ready for the
    // transfer; any other byte ends the request unanswered.
    static constexpr quint8 kFirmwareRequest = 11;
    void requestFirmware();
    bool firmwareRequested() const { return m_firmwareRequested; }
    bool miniProgrammer() const { return m_miniProgrammer; }
    void setFirmwareAck(FirmwareAck ack) { m_firmwareAck = ack; }
    // After block n (1-based) answer 55 AA and then 55 A5, and stop collecting (0: never).
    void setStopAfterBlock(int block) { m_stopAfterBlock = block; }
    const QByteArray &firmwareBytes() const { return m_firmware; }
    int firmwareBlocks() const { return int(m_firmware.size()) / kFirmwareBlock; }

private:
    struct Refusal
    {
        int occurrence = 0;
        quint8 status = 1;
        int seen = 0;
    };

    void hear(quint8 byte, QList<DeviceOutput> &out);
    void sendUnasked(quint8 byte);
    void hearFirmware(quint8 byte, QList<DeviceOutput> &out);
    void startExchange(quint8 command, QList<DeviceOutput> &out);
    void finishExchange(QList<DeviceOutput> &out);
    QByteArray execute(quint8 command, const QByteArray &data);
    quint8 storeWrite(quint8 command, const QByteArray &data);
    bool refuses(quint8 command);
    int delayFor(quint8 command) const { return m_replyDelays.value(command, 0); }

    ConfigImage m_memory;
    int m_sensorOffset = 0;
    CoinGenerator m_coinGenerator;
    std::deque<SampleBytes> m_coins;
    QList<SimExchange> m_log;

    // The exchange in progress.
    bool m_awaitingData = false;
    quint8 m_command = 0;
    CommandShape m_shape;
    QByteArray m_data;

    bool m_connected = true;
    int m_unplugAfterWrites = 0;
    QSet<quint8> m_wrongEcho;
    QMap<quint8, Refusal> m_refusals;
    QMap<quint8, int> m_replyDelays;
    int m_silentAfter = -1;
    int m_answeredSinceSilence = 0;
    bool m_silenced = false;

    bool m_testMode = false;
    QByteArray m_unsolicited;

    bool m_miniProgrammer = false;
    bool m_firmwareRequested = false;
    FirmwareAck m_firmwareAck = FirmwareAck::NotAccepted;
    int m_stopAfterBlock = 0;
    bool m_firmwareStopped = false;
    QByteArray m_firmware;
};

#include "VirtualValidator.h"

#include "Encodings.h"

#include <QDate>
#include <algorithm>
#include <cstring>
#include <utility>

namespace {

// Where each measurement's window sits in a channel record (maximum byte, minimum byte).
constexpr std::array<std::pair<int, int>, 7> kWindowBytes = {{
    {Rec::HfuLowMax, Rec::HfuLowMin},
    {Rec::HfuHighMax, Rec::HfuHighMin},
    {Rec::DimMax, Rec::DimMin},
    {Rec::LfMax, Rec::LfMin},
    {Rec::HflLowMax, Rec::HflLowMin},
    {Rec::HflHighMax, Rec::HflHighMin},
    {Rec::AmpMax, Rec::AmpMin},
}};
// The learning tolerances a factory applies on top of the coins' own scatter.
constexpr std::array<int, 7> kFactoryTolerance = {4, 4, 1, 2, 8, 8, 8};
// Reference windows are four units wide, as a recalibration makes them; the tokens' readings
// stay inside.
constexpr int kReferenceHalfWidth = 2;
// The reference channel holds the silver token's readings on HFU high and HFL high (record
// bytes 0/1 and 8/9) and the golden token's on the other five windows.
constexpr std::array<bool, 7> kSilverWindow = {false, true, false, false, false, true, false};

// The coins of a factory set-up, channel k holding coin k, valued in multiples of 0.05.
struct FactoryCoin
{
    CoinKind kind;
    quint8 valueByte;
};
constexpr std::array<FactoryCoin, 6> kFactoryCoins = {{
    {CoinKind::Euro005, 1},
    {CoinKind::Euro010, 2},
    {CoinKind::Euro020, 4},
    {CoinKind::Euro050, 10},
    {CoinKind::Euro100, 20},
    {CoinKind::Euro200, 40},
}};

constexpr quint8 kStatusAccepted = 0;
constexpr quint8 kStatusRefused = 1;

quint8 clampWindow(int v)
{
    return quint8(std::clamp(v, 0, 254));
}

void setWindows(ChannelRecord &record, const SampleBytes &centre, bool withAmplitude,
                const std::array<int, 7> &halfWidth)
{
    for (std::size_t m = 0; m < kWindowBytes.size(); ++m) {
        if (m == 6 && !withAmplitude)
            continue; // no amplitude window on family 0
        record[std::size_t(kWindowBytes[m].first)] = clampWindow(centre[m] + halfWidth[m]);
        record[std::size_t(kWindowBytes[m].second)] = clampWindow(centre[m] - halfWidth[m]);
    }
}

template <std::size_t N> void copyInto(std::array<quint8, N> &block, const QByteArray &data)
{
    std::memcpy(block.data(), data.constData(), std::min<std::size_t>(N, std::size_t(data.size())));
}

template <std::size_t N> QByteArray bytesOf(const std::array<quint8, N> &block)
{
    return QByteArray(reinterpret_cast<const char *>(block.data()), qsizetype(N));
}

} // namespace

VirtualValidator::VirtualValidator(quint8 familyByte, quint32 serial)
    : VirtualValidator(factoryImage(familyByte, serial))
{}

VirtualValidator::VirtualValidator(const ConfigImage &memory)
    : m_memory(memory), m_sensorOffset(calibrationOffset(memory.serialNumber())),
      m_coinGenerator(memory.serialNumber())
{}

void VirtualValidator::setMemory(const ConfigImage &memory)
{
    m_memory = memory;
    m_sensorOffset = calibrationOffset(memory.serialNumber());
    m_testMode = false;
}

int VirtualValidator::calibrationOffset(quint32 serial)
{
    return int(serial % 5) - 2;
}

ConfigImage VirtualValidator::factoryImage(quint8 familyByte, quint32 serial)
{
    ConfigImage image = ConfigImage::blank();
    // Firmware of spring 2002: the editor shows its date-gated controls only for firmware
    // strictly later than 2 Jan, 26 Mar, 14 May and 2 Jun 2002. The default serial 1001 has the
    // newest, which shows them all; the others sit exactly on a threshold. All are before
    // August, so the first date byte is the same for every serial and clones still match.
    const std::array<QDate, 4> firmwareDates = {QDate(2002, 1, 2), QDate(2002, 7, 1),
                                                QDate(2002, 3, 26), QDate(2002, 5, 14)};
    const Word2 firmware = EncodeDate16(firmwareDates[serial % firmwareDates.size()]);
    image.version = {familyByte, firmware[0], firmware[1]};

    // Programmed at the factory through the mini-programmer (255, 0); made on a day in
    // 2003-2004 that follows from the serial.
    image.ident[0] = 0xFF;
    image.ident[1] = 0x00;
    const Word2 made = EncodeDate16(QDate(2003, 1, 6).addDays(qint64(serial % 700)));
    image.ident[2] = made[0];
    image.ident[3] = made[1];
    image.setSerialNumber(serial);

    image.prices = {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 10}; // "00 - Validator", 100 ms pulses
    image.options = {0xFF, 0xCF};                      // validator output, "Vending"
    image.counters.fill(0xFF);                         // counting off
    image.block2 = {0x01, 0x00, quint8(serial >> 8), quint8(serial), 0x00, 0x00};
    image.block13 = {0x0A, 0x14, 0x1E, 0x00, 0x00, 0x00};
    image.setting8 = 0x03;
    image.status9.fill(0x00);

    // Both credit bases 0.05 (decimal word: two decimals, magnitude 5), ratio 1.
    image.values[Val::Base1] = 0x40;
    image.values[Val::Base1 + 1] = 0x05;
    image.values[Val::Base2] = 0x40;
    image.values[Val::Base2 + 1] = 0x05;
    image.values[Val::Conversion] = 0x00;
    image.values[Val::Conversion + 1] = 0x00;
    image.values[Val::Conversion + 2] = 0x00;
    image.values[Val::Conversion + 3] = 0x01;

    const int offset = calibrationOffset(serial);
    const bool withAmplitude = image.longForm();
    std::array<int, 7> coinHalfWidth{};
    for (std::size_t m = 0; m < coinHalfWidth.size(); ++m)
        coinHalfWidth[m] = CoinGenerator::scatter(CoinKind::Euro100, int(m)) + kFactoryTolerance[m];
    for (std::size_t k = 0; k < kFactoryCoins.size(); ++k) {
        ChannelRecord &record = image.channels[k];
        setWindows(record, CoinGenerator::typical(kFactoryCoins[k].kind, offset), withAmplitude,
                   coinHalfWidth);
        record[Rec::Enabled] = 1;
        image.values[Val::Channel0 + k] = kFactoryCoins[k].valueByte;
    }

    std::array<int, 7> referenceHalfWidth{};
    referenceHalfWidth.fill(kReferenceHalfWidth);
    SampleBytes referenceCentre = CoinGenerator::typical(CoinKind::GoldenToken, offset);
    const SampleBytes silver = CoinGenerator::typical(CoinKind::SilverToken, offset);
    for (std::size_t m = 0; m < referenceCentre.size(); ++m) {
        if (kSilverWindow[m])
            referenceCentre[m] = silver[m];
    }
    ChannelRecord &reference = image.channels[std::size_t(image.referenceChannel())];
    setWindows(reference, referenceCentre, withAmplitude, referenceHalfWidth);
    reference[Rec::Enabled] = 0;

    for (auto &record : image.channels) {
        if (record[Rec::Enabled] == 0xFF)
            record[Rec::Enabled] = 0;
    }
    image.rebuildEnableBitmap();
    image.refreshRecordCopies();
    return image;
}

void VirtualValidator::queueCoin(const SampleBytes &sample)
{
    if (!m_testMode) {
        m_coins.push_back(sample);
        return;
    }
    // A coin no channel accepts is returned and says nothing.
    if (const int channel = acceptingChannel(sample); channel > 0)
        sendUnasked(quint8(channel));
}

void VirtualValidator::insertCoin(CoinKind kind)
{
    queueCoin(m_coinGenerator.sample(kind, m_sensorOffset));
}

int VirtualValidator::acceptingChannel(const SampleBytes &sample) const
{
    // Family 0 does not measure the amplitude: its records hold no amplitude window and its
    // samples no amplitude reading, so only the first six windows decide.
    const std::size_t windows = m_memory.longForm() ? kWindowBytes.size() : kWindowBytes.size() - 1;
    for (int k = 0; k < m_memory.channelCount(); ++k) {
        if (!m_memory.enableBit(k)) // the bitmap of command 22, not the record's copy
            continue;
        const ChannelRecord &record = m_memory.channels[std::size_t(k)];
        bool holds = true;
        for (std::size_t m = 0; m < windows && holds; ++m) {
            const quint8 max = record[std::size_t(kWindowBytes[m].first)];
            const quint8 min = record[std::size_t(kWindowBytes[m].second)];
            // A window with 255 at either end is not set and holds nothing.
            holds = min != 0xFF && max != 0xFF && min <= sample[m] && sample[m] <= max;
        }
        if (holds)
            return k + 1;
    }
    return 0;
}

QByteArray VirtualValidator::takeUnsolicited()
{
    return std::exchange(m_unsolicited, {});
}

void VirtualValidator::sendUnasked(quint8 byte)
{
    if (m_connected && !m_silenced)
        m_unsolicited.append(char(byte));
}

void VirtualValidator::setDoorOpen(bool open)
{
    m_memory.status9[2] = 0x00;
    m_memory.status9[3] = open ? 0x01 : 0x00;
}

bool VirtualValidator::doorOpen() const
{
    return m_memory.status9[2] != 0 || m_memory.status9[3] != 0;
}

void VirtualValidator::setConnected(bool connected)
{
    m_connected = connected;
    m_awaitingData = false;
    m_data.clear();
}

void VirtualValidator::setWrongEcho(quint8 command, bool on)
{
    if (on)
        m_wrongEcho.insert(command);
    else
        m_wrongEcho.remove(command);
}

void VirtualValidator::setRefusal(quint8 command, int occurrence, quint8 status)
{
    m_refusals.insert(command, Refusal{std::max(occurrence, 0), status, 0});
}

void VirtualValidator::setReplyDelay(quint8 command, int ms)
{
    if (ms > 0)
        m_replyDelays.insert(command, ms);
    else
        m_replyDelays.remove(command);
}

void VirtualValidator::setSilentAfter(int exchanges)
{
    m_silentAfter = exchanges;
    m_answeredSinceSilence = 0;
    m_silenced = exchanges == 0;
}

void VirtualValidator::clearFaults()
{
    m_wrongEcho.clear();
    m_refusals.clear();
    m_replyDelays.clear();
    setSilentAfter(-1);
}

void VirtualValidator::setMiniProgrammer(bool on)
{
    m_miniProgrammer = on;
    m_firmware.clear();
    m_firmwareStopped = false;
    m_awaitingData = false;
    m_data.clear();
}

void VirtualValidator::requestFirmware()
{
    if (!m_connected || m_silenced)
        return; // nobody hears the request
    sendUnasked(kFirmwareRequest);
    m_firmwareRequested = true;
}

QList<DeviceOutput> VirtualValidator::receive(const QByteArray &bytes)
{
    QList<DeviceOutput> out;
    for (const char b : bytes)
        hear(quint8(b), out);
    return out;
}

void VirtualValidator::hear(quint8 byte, QList<DeviceOutput> &out)
{
    if (!m_connected || m_silenced)
        return;
    // The byte after request code 11 is the host's answer when it is 0, and not command 0.
    // Anything else means the host did not hear the request: it lapses, and the byte is heard
    // as usual.
    if (m_firmwareRequested && !m_awaitingData) {
        m_firmwareRequested = false;
        if (byte == 0) {
            setMiniProgrammer(true);
            return;
        }
    }
    if (m_miniProgrammer) {
        hearFirmware(byte, out);
        return;
    }
    if (!m_awaitingData) {
        startExchange(byte, out);
        return;
    }
    m_data.append(char(byte));
    if (m_data.size() == m_shape.dataLength)
        finishExchange(out);
}

void VirtualValidator::hearFirmware(quint8 byte, QList<DeviceOutput> &out)
{
    if (m_firmwareStopped)
        return;
    m_firmware.append(char(byte));
    if (m_firmware.size() % kFirmwareBlock != 0)
        return;
    const int block = firmwareBlocks();
    if (m_stopAfterBlock > 0 && block == m_stopAfterBlock) {
        // The operator stopped the upgrade: "please stop", then "stopped".
        out.append({QByteArray::fromHex("55aa"), 0});
        out.append({QByteArray::fromHex("55a5"), 0});
        m_firmwareStopped = true;
    } else if (m_firmwareAck == FirmwareAck::NotAccepted) {
        out.append({QByteArray::fromHex("5500"), 0});
    }
}

void VirtualValidator::startExchange(quint8 command, QList<DeviceOutput> &out)
{
    const CommandShape shape = commandShape(command, m_memory.longForm());
    if (!shape.known)
        return; // an unknown command gets no answer at all
    if (command == Cmd::ReadSample && m_coins.empty())
        return; // no coin measured: the validator keeps quiet
    if (m_silentAfter >= 0 && m_answeredSinceSilence >= m_silentAfter) {
        m_silenced = true; // the cable is pulled from here on
        return;
    }
    ++m_answeredSinceSilence;
    m_log.append({command, -1});

    if (m_wrongEcho.contains(command)) {
        out.append({QByteArray(1, char(shape.dataLength + 1)), 0, true});
        return;
    }
    const bool echoOnly = shape.replyLength == 0;
    out.append({QByteArray(1, char(shape.dataLength)), echoOnly ? delayFor(command) : 0, true});

    m_command = command;
    m_shape = shape;
    m_data.clear();
    if (shape.dataLength > 0)
        m_awaitingData = true;
    else
        finishExchange(out);
}

void VirtualValidator::finishExchange(QList<DeviceOutput> &out)
{
    m_awaitingData = false;
    const quint8 command = m_command;
    if (command == Cmd::Execute24)
        m_testMode = true;
    else if (command == Cmd::Execute29)
        m_testMode = false;
    switch (command) {
    case Cmd::WriteChannel:
    case Cmd::ReadChannel:
    case Cmd::WriteValues:
    case Cmd::ReadValues:
        if (!m_log.isEmpty())
            m_log.last().index = quint8(m_data.at(0));
        break;
    default:
        break;
    }
    if (m_shape.replyLength == 0)
        return;
    QByteArray reply = execute(command, m_data);
    reply.resize(m_shape.replyLength, char(0xFF));
    out.append({reply, delayFor(command)});
    // A write's one-byte status of 0: stored.
    const bool stored =
        m_shape.replyLength == 1 && command != Cmd::ReadSetting8 && reply.at(0) == 0;
    if (stored && m_unplugAfterWrites > 0 && --m_unplugAfterWrites == 0)
        setConnected(false);
}

bool VirtualValidator::refuses(quint8 command)
{
    auto it = m_refusals.find(command);
    if (it == m_refusals.end())
        return false;
    ++it->seen;
    return it->occurrence == 0 || it->seen == it->occurrence;
}

QByteArray VirtualValidator::execute(quint8 command, const QByteArray &data)
{
    const bool longForm = m_memory.longForm();
    switch (command) {
    case Cmd::ReadSample: {
        const SampleBytes sample = m_coins.front();
        m_coins.pop_front();
        return bytesOf(sample).left(m_shape.replyLength);
    }
    case Cmd::ReadChannel: {
        const int index = quint8(data.at(0));
        if (index >= m_memory.channelCount())
            return QByteArray(m_shape.replyLength, char(0xFF)); // no such channel
        ChannelBytes record;
        std::memcpy(record.data(), m_memory.channels[std::size_t(index)].data(), record.size());
        return longForm ? bytesOf(record) : bytesOf(TMonnayeur::narrowRecord(record));
    }
    case Cmd::ReadValues: {
        const int slice = quint8(data.at(0));
        if (slice >= kValueSlices)
            return QByteArray(kValueSlice, char(0xFF));
        return bytesOf(m_memory.values).mid(slice * kValueSlice, kValueSlice);
    }
    case Cmd::ReadBlock2:
        return bytesOf(m_memory.block2);
    case Cmd::ReadIdent:
        return bytesOf(m_memory.ident);
    case Cmd::ReadSetting8:
        return QByteArray(1, char(m_memory.setting8));
    case Cmd::ReadStatus:
        return bytesOf(m_memory.status9);
    case Cmd::ReadVersion:
        return bytesOf(m_memory.version);
    case Cmd::ReadBlock13:
        return bytesOf(m_memory.block13);
    case Cmd::ReadOptions:
        return bytesOf(m_memory.options);
    case Cmd::ReadPrices:
        return bytesOf(m_memory.prices);
    case Cmd::ReadCounters:
        return bytesOf(m_memory.counters);
    case Cmd::ReadEnable:
        return bytesOf(m_memory.enable);
    default:
        // Every other command with a reply is a write: one status byte.
        if (refuses(command))
            return QByteArray(1, char(m_refusals.value(command).status));
        return QByteArray(1, char(storeWrite(command, data)));
    }
}

quint8 VirtualValidator::storeWrite(quint8 command, const QByteArray &data)
{
    switch (command) {
    case Cmd::WriteChannel: {
        const int index = quint8(data.at(0));
        if (index >= m_memory.channelCount())
            return kStatusRefused;
        const auto *received = reinterpret_cast<const quint8 *>(data.constData() + 1);
        // A short record has no amplitude window: memory keeps it as not set.
        ChannelBytes record;
        if (m_memory.longForm())
            std::memcpy(record.data(), received, record.size());
        else
            record = TMonnayeur::widenRecord(received);
        std::memcpy(m_memory.channels[std::size_t(index)].data(), record.data(), record.size());
        return kStatusAccepted;
    }
    case Cmd::WriteValues: {
        const int slice = quint8(data.at(0));
        if (slice >= kValueSlices)
            return kStatusRefused;
        std::memcpy(m_memory.values.data() + slice * kValueSlice, data.constData() + 1,
                    kValueSlice);
        return kStatusAccepted;
    }
    case Cmd::WriteIdent:
        copyInto(m_memory.ident, data);
        return kStatusAccepted;
    case Cmd::WriteBlock13:
        copyInto(m_memory.block13, data);
        return kStatusAccepted;
    case Cmd::WriteOptions:
        copyInto(m_memory.options, data);
        return kStatusAccepted;
    case Cmd::WritePrices:
        copyInto(m_memory.prices, data);
        return kStatusAccepted;
    case Cmd::WriteCounters:
        copyInto(m_memory.counters, data);
        return kStatusAccepted;
    case Cmd::WriteEnable:
        copyInto(m_memory.enable, data);
        return kStatusAccepted;
    default:
        return kStatusRefused;
    }
}

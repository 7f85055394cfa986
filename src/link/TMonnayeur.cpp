#include "TMonnayeur.h"

#include "Messages.h"
#include "Transport.h"
#include "UserPrompt.h"

#include <QElapsedTimer>
#include <algorithm>
#include <cstring>

bool Preambule(Transport *transport, quint8 comPortNumber)
{
    Q_UNUSED(transport)
    Q_UNUSED(comPortNumber)
    return true;
}

TMonnayeur::TMonnayeur(Transport *transport, UserPrompt *prompt, quint8 comPortNumber)
    : m_transport(transport), m_prompt(prompt), m_comPortNumber(comPortNumber)
{}

bool TMonnayeur::ReadPort(int count, quint8 *buffer)
{
    return ReadPort(count, buffer, m_transport ? m_transport->readTimeout() : 0);
}

bool TMonnayeur::ReadPort(int count, quint8 *buffer, int firstByteWaitMs)
{
    const QByteArray got = m_transport ? m_transport->read(count, firstByteWaitMs) : QByteArray();
    if (got.size() != count) {
        m_lastLinkError = messageText(Msg::ReadingErrorFromValidator);
        return false;
    }
    std::memcpy(buffer, got.constData(), std::size_t(count));
    return true;
}

bool TMonnayeur::readReply(int count, quint8 *buffer)
{
    // Reads are repeated until one brings the whole reply. Each waits the port's time-out for a
    // first byte, cut to what is left of the window, so that a reply must begin within the
    // window; once it has begun, the read takes it whole at the line's pace. A partial reply
    // (the line went quiet halfway) is dropped by the next read.
    QElapsedTimer window;
    window.start();
    for (;;) {
        const qint64 left = kReplyWindowMs - window.elapsed();
        const int wait = int(std::clamp<qint64>(left, 0, qMax(1, m_transport->readTimeout())));
        if (ReadPort(count, buffer, wait))
            return true;
        if (!m_transport->isOpen() || window.elapsed() >= kReplyWindowMs)
            return false;
    }
}

bool TMonnayeur::strayBytesAfterReplies()
{
    if (m_replyEnded && m_transport && m_transport->isOpen() &&
        !m_transport->read(1, Transport::kIntervalTimeoutMs).isEmpty())
        m_strayBytes = true;
    m_replyEnded = false;
    const bool seen = m_strayBytes;
    m_strayBytes = false;
    return seen;
}

void TMonnayeur::betweenExchanges()
{
    if (!m_betweenExchanges || m_inBetween)
        return;
    m_inBetween = true;
    m_betweenExchanges();
    m_inBetween = false;
}

void TMonnayeur::fail(const QString &text)
{
    m_lastLinkError = text;
}

bool TMonnayeur::SendCommand(const quint8 *data, quint8 command, quint8 replyLength,
                             quint8 dataLength, quint8 *reply, bool awaitReply, bool showMessage)
{
    bool ok = false;
    m_dataSent = false;
    if (m_transport)
        m_transport->beginExchange(command);

    // The line is half-duplex: whatever waits in the receive buffer before a command is a late
    // reply or noise, and would be taken for the count echo. Bytes behind a whole reply are
    // noted: that reply may have been shifted by a byte that came in with it.
    if (m_transport && m_transport->isOpen()) {
        if (m_replyEnded && !m_transport->read(1, 0).isEmpty())
            m_strayBytes = true;
        m_transport->purge();
    }
    m_replyEnded = false;

    // Preamble, command byte, count echo; any failure here is an internal or communication
    // error.
    bool framed = m_transport && m_transport->isOpen() && Preambule(m_transport, m_comPortNumber);
    if (framed)
        framed = m_transport->write(QByteArray(1, char(command))) == 1;
    if (framed)
        framed = ReadPort(1, reply);
    // The count echo must equal the data length before any data byte is sent.
    if (framed)
        framed = reply[0] == dataLength;

    if (!framed) {
        fail(messageText(Msg::InternalOrCommunicationError));
    } else if (dataLength == 255) {
        fail(messageText(Msg::InternalOrCommunicationError));
    } else {
        ok = true;
        if (dataLength > 0) {
            const QByteArray block(reinterpret_cast<const char *>(data), dataLength);
            if (m_transport->write(block) != dataLength) {
                fail(messageText(Msg::CommunicationError));
                ok = false;
            } else {
                m_dataSent = true;
            }
        }
        if (ok && awaitReply) {
            ok = readReply(replyLength, reply);
            // A byte right behind the reply: one of the reply's bytes was not the validator's.
            if (ok && !m_transport->read(1, kStrayByteWaitMs).isEmpty()) {
                m_strayBytes = true;
                fail(messageText(Msg::ReadingErrorFromValidator));
                ok = false;
            }
            m_replyEnded = ok;
        }
    }

    if (!ok && showMessage) {
        if (m_prompt)
            m_prompt->tell(m_lastLinkError, UserPrompt::Kind::Error);
        m_linkGood = false;
    }
    betweenExchanges();
    return ok;
}

bool TMonnayeur::ReadSample(quint8 index, bool extended, SampleBytes &sample)
{
    quint8 reply[256];
    std::memset(reply, 0xFF, sizeof reply);
    const quint8 length = extended ? 7 : 6;
    if (!SendCommand(&index, Cmd::ReadSample, length, 1, reply, true, false))
        return false;
    std::fill(sample.begin(), sample.end(), quint8(0xFF));
    std::memcpy(sample.data(), reply, length);
    return true;
}

bool TMonnayeur::CheckPresence(bool showMessage)
{
    quint8 reply[256] = {};
    return SendCommand(nullptr, Cmd::Connect, 0, 0, reply, false, showMessage);
}

ChannelBytes TMonnayeur::widenRecord(const quint8 *shortRecord)
{
    // A short record omits the amplitude window; its substitute sits in byte 12.
    ChannelBytes record;
    std::memcpy(record.data(), shortRecord, 12);
    record[12] = 0xFF;
    record[13] = 0xFF;
    record[14] = shortRecord[12];
    return record;
}

std::array<quint8, kShortChannelRecord> TMonnayeur::narrowRecord(const ChannelBytes &record)
{
    std::array<quint8, kShortChannelRecord> out{};
    std::memcpy(out.data(), record.data(), 12);
    out[12] = record[14];
    return out;
}

bool TMonnayeur::ReadChannel(quint8 index, bool longForm, ChannelBytes &record)
{
    quint8 reply[256];
    const quint8 length = longForm ? kLongChannelRecord : kShortChannelRecord;
    if (!SendCommand(&index, Cmd::ReadChannel, length, 1, reply, true, true)) {
        // The operation shows the error a second time, as it always has.
        if (m_prompt)
            m_prompt->tell(m_lastLinkError, UserPrompt::Kind::Error);
        return false;
    }
    if (longForm)
        std::memcpy(record.data(), reply, kLongChannelRecord);
    else
        record = widenRecord(reply);
    return true;
}

bool TMonnayeur::writeAccepted(quint8 command, const quint8 *data, quint8 dataLength)
{
    quint8 reply[256] = {};
    if (!SendCommand(data, command, 1, dataLength, reply, true, true))
        return false;
    m_lastStatus = reply[0];
    return reply[0] == 0;
}

bool TMonnayeur::WriteChannel(quint8 index, const ChannelBytes &record, bool longForm)
{
    quint8 data[16] = {};
    data[0] = index;
    if (longForm) {
        std::memcpy(data + 1, record.data(), kLongChannelRecord);
        return writeAccepted(Cmd::WriteChannel, data, 16);
    }
    const auto narrow = narrowRecord(record);
    std::memcpy(data + 1, narrow.data(), kShortChannelRecord);
    return writeAccepted(Cmd::WriteChannel, data, 14);
}

bool TMonnayeur::ReadBlock(quint8 command, quint8 *out)
{
    const CommandShape shape = commandShape(command);
    if (!shape.known || shape.dataLength != 0 || !shape.replyAwaited)
        return false;
    quint8 reply[256];
    if (!SendCommand(nullptr, command, shape.replyLength, 0, reply, true, true))
        return false;
    std::memcpy(out, reply, shape.replyLength);
    return true;
}

bool TMonnayeur::WriteBlock(quint8 command, const quint8 *data)
{
    const CommandShape shape = commandShape(command);
    if (!shape.known || shape.dataLength == 0 || command == Cmd::WriteChannel ||
        command == Cmd::WriteValues)
        return false;
    quint8 buffer[16] = {};
    std::memcpy(buffer, data, shape.dataLength);
    return writeAccepted(command, buffer, shape.dataLength);
}

bool TMonnayeur::ReadValueTable(ValueTableBytes &table)
{
    // All five slices are always asked for; a failed slice keeps what its buffer held.
    bool all = true;
    for (quint8 slice = 0; slice < kValueSlices; ++slice) {
        quint8 reply[256];
        if (SendCommand(&slice, Cmd::ReadValues, kValueSlice, 1, reply, true, true))
            std::memcpy(table.data() + slice * kValueSlice, reply, kValueSlice);
        else
            all = false;
    }
    return all;
}

bool TMonnayeur::WriteValueTable(const ValueTableBytes &table, int *slicesAccepted)
{
    for (quint8 slice = 0; slice < kValueSlices; ++slice) {
        if (slicesAccepted)
            *slicesAccepted = slice;
        quint8 data[16];
        data[0] = slice;
        std::memcpy(data + 1, table.data() + slice * kValueSlice, kValueSlice);
        if (!writeAccepted(Cmd::WriteValues, data, 16))
            return false;
    }
    if (slicesAccepted)
        *slicesAccepted = kValueSlices;
    return true;
}

bool TMonnayeur::ReadValueSlice(quint8 slice, quint8 *out)
{
    quint8 reply[256];
    if (!SendCommand(&slice, Cmd::ReadValues, kValueSlice, 1, reply, true, true))
        return false;
    std::memcpy(out, reply, kValueSlice);
    return true;
}

bool TMonnayeur::WriteValueSlice(quint8 slice, const quint8 *bytes)
{
    quint8 data[16];
    data[0] = slice;
    std::memcpy(data + 1, bytes, kValueSlice);
    return writeAccepted(Cmd::WriteValues, data, 16);
}

bool TMonnayeur::ExecuteCommand(quint8 command)
{
    quint8 reply[256] = {};
    return SendCommand(nullptr, command, 0, 0, reply, false, true);
}

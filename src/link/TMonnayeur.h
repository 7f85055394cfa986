#pragma once

#include "Commands.h"

#include <QString>
#include <array>
#include <functional>

class Transport;
class UserPrompt;

using ChannelBytes = std::array<quint8, kLongChannelRecord>;
using SampleBytes = std::array<quint8, 7>;
using ValueTableBytes = std::array<quint8, kValueSlice * kValueSlices>;

// Called before every command frame with the port number; a mini-programmer that needs a
// wake-up sequence says it here. A directly connected validator needs nothing.
bool Preambule(Transport *transport, quint8 comPortNumber);

// The link object: every exchange with the validator goes through SendCommand.
class TMonnayeur final
{
public:
    TMonnayeur(Transport *transport, UserPrompt *prompt, quint8 comPortNumber = 1);
    Q_DISABLE_COPY_MOVE(TMonnayeur)

    // One command exchange: command byte, count echo, data block, reply within 900 ms.
    bool SendCommand(const quint8 *data, quint8 command, quint8 replyLength, quint8 dataLength,
                     quint8 *reply, bool awaitReply, bool showMessage);
    // One read of exactly count bytes: the first within the port's per-read time-out (or
    // firstByteWaitMs), the others at the line's pace.
    bool ReadPort(int count, quint8 *buffer);
    bool ReadPort(int count, quint8 *buffer, int firstByteWaitMs);

    bool ReadSample(quint8 index, bool extended, SampleBytes &sample);
    bool CheckPresence(bool showMessage);
    bool ReadChannel(quint8 index, bool longForm, ChannelBytes &record);
    bool WriteChannel(quint8 index, const ChannelBytes &record, bool longForm);
    // Reads a fixed-size block (commands 2, 7, 8, 9, 10, 13, 15, 19, 21, 23) into out.
    bool ReadBlock(quint8 command, quint8 *out);
    // Writes a fixed-size block (commands 6, 12, 14, 18, 20, 22); true when accepted.
    bool WriteBlock(quint8 command, const quint8 *data);
    bool ReadValueTable(ValueTableBytes &table);
    // Writes the five slices in turn, stopping at the first that fails; slicesAccepted, when
    // given, receives how many the validator accepted.
    bool WriteValueTable(const ValueTableBytes &table, int *slicesAccepted = nullptr);
    // One 15-byte slice (0 to 4) of the value table, read or written alone.
    bool ReadValueSlice(quint8 slice, quint8 *out);
    bool WriteValueSlice(quint8 slice, const quint8 *bytes);
    bool ExecuteCommand(quint8 command);

    // Short and long channel records.
    static ChannelBytes widenRecord(const quint8 *shortRecord);
    static std::array<quint8, kShortChannelRecord> narrowRecord(const ChannelBytes &record);

    const QString &LastLinkError() const { return m_lastLinkError; }
    // The shared link-good flag: cleared when a shown exchange fails.
    bool linkGood() const { return m_linkGood; }
    void setLinkGood(bool good) { m_linkGood = good; }
    // The status byte of the last write (0 = accepted).
    quint8 lastStatus() const { return m_lastStatus; }
    // Whether the data block of the last exchange left the port: a write that failed after it
    // may have been stored by the validator, one that failed before it was not.
    bool lastDataSent() const { return m_dataSent; }

    Transport *transport() const { return m_transport; }
    UserPrompt *prompt() const { return m_prompt; }
    // Another prompt for what follows (a write that gathers its messages into one box).
    void setPrompt(UserPrompt *prompt) { m_prompt = prompt; }
    quint8 comPortNumber() const { return m_comPortNumber; }

    // The reply window of one exchange, in milliseconds.
    static constexpr int kReplyWindowMs = 900;
    // How long the line must stay quiet after a whole reply: the protocol has no checksum, but
    // a byte that came in with the reply (noise on the line) leaves the reply's last byte
    // behind it, one byte time (1.04 ms) later. A byte within this wait fails the exchange.
    static constexpr int kStrayByteWaitMs = 5;

    // A byte was found after a whole reply since the last call of this function: a reply that
    // was taken as good may be shifted by one byte. Waits the interval time-out once for a
    // byte behind the last reply, so that a sequence asks it once at its end.
    bool strayBytesAfterReplies();

    // Called after every exchange, so that a window can repaint between exchanges; it must not
    // deliver the user's input. Never called from inside itself.
    void setBetweenExchanges(std::function<void()> hook) { m_betweenExchanges = std::move(hook); }
    // True while the hook runs: a timer that would start an exchange of its own waits.
    bool betweenExchangesRunning() const { return m_inBetween; }

private:
    bool writeAccepted(quint8 command, const quint8 *data, quint8 dataLength);
    bool readReply(int count, quint8 *buffer);
    void betweenExchanges();
    void fail(const QString &text);

    Transport *m_transport;
    UserPrompt *m_prompt;
    quint8 m_comPortNumber;
    QString m_lastLinkError;
    bool m_linkGood = true;
    quint8 m_lastStatus = 0;
    bool m_dataSent = false;
    std::function<void()> m_betweenExchanges;
    bool m_inBetween = false;
    // The last exchange ended with a whole reply; bytes waiting at the next command came after it.
    bool m_replyEnded = false;
    bool m_strayBytes = false;
};

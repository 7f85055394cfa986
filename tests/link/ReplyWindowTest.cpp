// The reply window of one exchange: a reply that begins within 900 ms of the command is taken,
// one that begins later is not. The validator's clock advances by the waits the link asks for
// (and the test sleeps them), so a loaded machine can only make the link give up sooner.
#include "TMonnayeur.h"
#include "Transport.h"

#include <QThread>
#include <gtest/gtest.h>
#include <utility>

namespace {

class LateValidator final : public Transport
{
public:
    explicit LateValidator(int replyAtMs) : m_replyAt(replyAtMs) {}
    bool isOpen() const override { return true; }
    qint64 write(const QByteArray &bytes) override
    {
        if (m_echo.isEmpty() && m_clock < 0)
            m_echo = QByteArray(1, '\0'); // the command: no data bytes follow
        return bytes.size();
    }
    using Transport::read;
    QByteArray read(int count, int wait) override
    {
        if (!m_echo.isEmpty()) {
            m_clock = 0; // the reply's time starts with the echo
            return std::exchange(m_echo, {});
        }
        if (m_replied || wait <= 0)
            return {};
        if (m_clock + wait < m_replyAt) {
            QThread::msleep(ulong(wait));
            m_clock += wait;
            return {};
        }
        QThread::msleep(ulong(m_replyAt - m_clock));
        m_clock = m_replyAt;
        m_replied = true;
        return QByteArray(count, '\x42');
    }
    void purge() override {}
    void close() override {}
    int readTimeout() const override { return kDefaultReadTimeoutMs; }
    void setReadTimeout(int) override {}
    QString errorString() const override { return {}; }

private:
    int m_replyAt;
    int m_clock = -1;
    bool m_replied = false;
    QByteArray m_echo;
};

bool exchange(int replyAtMs)
{
    LateValidator line(replyAtMs);
    TMonnayeur link(&line, nullptr);
    quint8 reply[4] = {};
    return link.SendCommand(nullptr, 7, 4, 0, reply, true, false) && reply[3] == 0x42;
}

} // namespace

TEST(ReplyWindow, AReplyMustBeginWithin900Ms)
{
    EXPECT_TRUE(exchange(450));
    EXPECT_FALSE(exchange(905));
}

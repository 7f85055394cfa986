#include "PortChoice.h"
#include "Messages.h"
#include "RecordingPrompt.h"
#include "Transport.h"

#include <gtest/gtest.h>
#include <set>

namespace {

// A port with or without a validator behind it: a validator echoes 0 to the connect command.
class FakePort final : public Transport
{
public:
    explicit FakePort(bool validator) : m_validator(validator) {}
    bool isOpen() const override { return m_open; }
    qint64 write(const QByteArray &bytes) override
    {
        if (m_validator && bytes == QByteArray(1, '\x01'))
            m_pending += '\0';
        return bytes.size();
    }
    using Transport::read;
    QByteArray read(int count, int) override
    {
        const QByteArray out = m_pending.left(count);
        m_pending.remove(0, out.size());
        return out;
    }
    void purge() override { m_pending.clear(); }
    void close() override { m_open = false; }
    int readTimeout() const override { return 0; }
    void setReadTimeout(int) override {}
    QString errorString() const override { return {}; }

private:
    bool m_validator;
    bool m_open = true;
    QByteArray m_pending;
};

class FakeOpener final : public PortOpener
{
public:
    std::set<int> free, validators, unopenable, refused;
    std::vector<int> opened;
    bool PortComFree(int n) override
    {
        m_denied = refused.count(n) > 0;
        return free.count(n) > 0 && !m_denied;
    }
    std::unique_ptr<Transport> ComInit(int n) override
    {
        opened.push_back(n);
        m_denied = refused.count(n) > 0;
        if (unopenable.count(n) || m_denied)
            return nullptr;
        return std::make_unique<FakePort>(validators.count(n) > 0);
    }
    bool lastOpenDenied() const override { return m_denied; }

private:
    bool m_denied = false;
};

class FakeDialog final : public PortDialog
{
public:
    std::optional<int> answer;
    int shown = 0;
    QStringList items;
    std::optional<int> choosePort(const QStringList &list, int) override
    {
        ++shown;
        items = list;
        return answer;
    }
};

TEST(PortChoice, ProbeStopsAtFirstAnsweringPort)
{
    FakeOpener opener;
    opener.free = {1, 2, 3, 4, 5};
    opener.validators = {4, 5};
    const ProbeResult probe = FindValidatorPort(opener);
    EXPECT_TRUE(probe.answered);
    EXPECT_EQ(probe.comPortNumber, 4);
    EXPECT_EQ(probe.items, (QStringList{"Com1", "Com2", "Com3", "Com4"}));

    FakeDialog dialog;
    RecordingPrompt prompt;
    const auto link = OpenValidatorLink(opener, {}, &dialog, &prompt);
    ASSERT_TRUE(link);
    EXPECT_EQ(link->comPortNumber, 4);
    EXPECT_EQ(dialog.shown, 0);
}

TEST(PortChoice, ProbeNeverGoesAboveCom9)
{
    FakeOpener opener;
    for (int n = 1; n <= 12; ++n)
        opener.free.insert(n);
    const ProbeResult probe = FindValidatorPort(opener);
    EXPECT_FALSE(probe.answered);
    EXPECT_EQ(probe.items.size(), 9);
    EXPECT_EQ(probe.items.last(), QStringLiteral("Com9"));
}

TEST(PortChoice, CommandLineRules)
{
    int port = 0;
    EXPECT_FALSE(PortFromCommandLine({"COM2"}, port));
    EXPECT_EQ(port, 2);
    EXPECT_FALSE(PortFromCommandLine({"-x", "/com7", "COM3"}, port));
    EXPECT_EQ(port, 7);
    // Words that are not COM and one digit are passed over, never read by their first digit.
    port = 0;
    EXPECT_TRUE(
        PortFromCommandLine({"COM12", "COM1X", "xCOM1", "COM0", "COM", "/dev/ttyCOM4"}, port));
    EXPECT_EQ(port, 0);
    EXPECT_FALSE(PortFromCommandLine({"COM12", "com5"}, port));
    EXPECT_EQ(port, 5);
}

TEST(PortChoice, PortNamesOfAnyNumberOfDigits)
{
    EXPECT_EQ(ComPortFromName(QStringLiteral("COM12")), 12);
    EXPECT_EQ(ComPortFromName(QStringLiteral("com4")), 4);
    EXPECT_EQ(ComPortFromName(QStringLiteral("COM0012")), 12);
    EXPECT_EQ(ComPortFromName(QStringLiteral("COM255")), 255);
    for (const char *bad : {"COM1X", "xCOM1", "COM", "COM0", "COM256", "COM 4", "COM-1", "4",
                            "COM99999999999", "COM\u0664"})
        EXPECT_EQ(ComPortFromName(QString::fromUtf8(bad)), std::nullopt) << bad;
}

TEST(PortChoice, CommandLineSkipsDialogAndDialogMapsByPosition)
{
    FakeOpener opener;
    FakeDialog dialog;
    RecordingPrompt prompt;
    auto link = OpenValidatorLink(opener, {"COM7"}, &dialog, &prompt);
    ASSERT_TRUE(link);
    EXPECT_EQ(link->comPortNumber, 7);
    EXPECT_EQ(dialog.shown, 0);

    // COM1 busy, Com2 is the first item: choosing it gives port 1, as the program always did.
    opener.free = {2, 3};
    dialog.answer = 0;
    link = OpenValidatorLink(opener, {}, &dialog, &prompt);
    ASSERT_TRUE(link);
    EXPECT_EQ(dialog.items, (QStringList{"Com2", "Com3"}));
    EXPECT_EQ(link->comPortNumber, 1);

    dialog.answer.reset(); // Exit
    EXPECT_FALSE(OpenValidatorLink(opener, {}, &dialog, &prompt));
}

TEST(PortChoice, PortThatCannotOpenSaysSo)
{
    FakeOpener opener;
    opener.unopenable = {7};
    RecordingPrompt prompt;
    EXPECT_FALSE(OpenValidatorLink(opener, {"COM7"}, nullptr, &prompt));
    ASSERT_EQ(prompt.told().size(), 1);
    EXPECT_EQ(prompt.told().first(),
              QStringLiteral("Comunication Port COM7 isn't free or Setting error."));

    // A port the system refuses this user is followed by how to get the right to it.
    opener.refused = {7};
    prompt.clear();
    EXPECT_FALSE(OpenValidatorLink(opener, {"COM7"}, nullptr, &prompt));
    ASSERT_EQ(prompt.told().size(), 2);
    EXPECT_EQ(prompt.told().first(),
              QStringLiteral("Comunication Port COM7 isn't free or Setting error."));
    EXPECT_TRUE(prompt.told().last().contains(QStringLiteral("sudo usermod -aG dialout $USER")));
}

TEST(PortChoice, PortsRefusedInTheProbeAreExplainedBeforeTheDialog)
{
    FakeOpener opener;
    opener.free = {1, 2};
    opener.refused = {2};
    FakeDialog dialog;
    RecordingPrompt prompt;
    EXPECT_FALSE(OpenValidatorLink(opener, {}, &dialog, &prompt));
    EXPECT_EQ(dialog.items, QStringList{"Com1"});
    ASSERT_EQ(prompt.told().size(), 1);
    EXPECT_EQ(prompt.told().first(), messageText(Msg::PortPermissionDenied));

    // Nothing refused: the dialog alone.
    opener.refused.clear();
    prompt.clear();
    EXPECT_FALSE(OpenValidatorLink(opener, {}, &dialog, &prompt));
    EXPECT_TRUE(prompt.told().isEmpty());
}

} // namespace

#include "Languages.h"
#include "LinkSource.h"
#include "Settings.h"
#include "ShellTestSupport.h"
#include "ValidatorInit.h"
#include "ValidatorLink.h"
#include "VirtualValidator.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace ValidatorInit;

TEST(ValidatorInitTest, SerialNumberIsSplitIntoTheIdentificationWords)
{
    ConfigImage image = ConfigImage::blank();
    EXPECT_EQ(storeSerialText(image, QStringLiteral("305419896")), 0x12345678u);
    EXPECT_EQ(image.ident[4], 0x12);
    EXPECT_EQ(image.ident[5], 0x34);
    EXPECT_EQ(image.ident[6], 0x56);
    EXPECT_EQ(image.ident[7], 0x78);
    EXPECT_EQ(serialDisplayText(0x12345678u), QStringLiteral("305419896"));

    // All ones and zero are stored and shown back as empty text; so is text that is no number.
    EXPECT_EQ(storeSerialText(image, QStringLiteral("4294967295")), 0xFFFFFFFFu);
    EXPECT_TRUE(serialDisplayText(image.serialNumber()).isEmpty());
    EXPECT_EQ(storeSerialText(image, QStringLiteral("12ab")), 0u);
    EXPECT_EQ(image.serialNumber(), 0u);
    EXPECT_TRUE(serialDisplayText(0).isEmpty());
    EXPECT_EQ(parseSerialText(QStringLiteral(" 42 ")), 42u);
    EXPECT_EQ(parseSerialText(QStringLiteral("-1")), 0xFFFFFFFFu);
}

TEST(ValidatorInitTest, OptionBitsChangeOnlyTheirOwnBits)
{
    ConfigImage image = ConfigImage::blank();
    image.options = {0x12, 0x45};
    setResettableCounter(image, true);
    EXPECT_EQ(image.options[1], 0x65);
    setResettableCounter(image, false);
    EXPECT_EQ(image.options[1], 0x45);

    const quint8 expected[] = {0x40 | 0x05, 0x48 | 0x05, 0x50 | 0x05, 0x58 | 0x05};
    for (int item = 0; item < 4; ++item) {
        setOutletItem(image, item);
        EXPECT_EQ(image.options[1], expected[item]) << item;
        EXPECT_EQ(outletItem(image), item);
    }
    setOutletItem(image, -1);
    EXPECT_EQ(image.options[1], 0x45);

    setOutputVending(image, true);
    EXPECT_EQ(image.options[1], 0x55);
    setOutputVending(image, false);
    EXPECT_EQ(image.options[1], 0x45);
    EXPECT_EQ(image.options[0], 0x12);
}

TEST(ValidatorInitTest, InitialisationCompletesTheBlocks)
{
    for (quint8 option : {quint8(0x00), quint8(0x38)}) {
        ConfigImage image = ConfigImage::blank();
        image.options = {0x00, option};
        applyInitialisation(image, QDate(2024, 3, 15));
        EXPECT_EQ(image.options[0], 0xFF);
        EXPECT_EQ(image.options[1], option | 0x87);
        EXPECT_EQ(initialisationDate(image), EncodeDate16(QDate(2024, 3, 15)));
        EXPECT_EQ(image.counters, CounterBlock{});
        EXPECT_EQ(image.ident[4], 0xFF); // the serial number is left alone
    }
}

TEST(SettingsTest, FirstRunCreatesTheDefaultsAndChangesAreKept)
{
    TempSettings temp;
    {
        Settings settings;
        EXPECT_EQ(settings.load(), Settings::LoadState::Created);
        EXPECT_FALSE(settings.soundOn());
        EXPECT_TRUE(settings.verifyAfterWrite()); // writes are read back unless switched off
        EXPECT_TRUE(settings.language().isEmpty());
        settings.setSoundOn(true);
        settings.setDirectWrite(true);
        settings.setLanguage(QStringLiteral("DE"));
    }
    QSettings raw(QStringLiteral("Brunfeld"), QStringLiteral("Tarvik"));
    EXPECT_TRUE(raw.contains(QStringLiteral("DefaultSettings/Adjust")));
    EXPECT_TRUE(raw.contains(QStringLiteral("DefaultSettings/PortMap")));
    EXPECT_EQ(raw.value(QStringLiteral("DefaultSettings/Verify")).toString(), "true");

    Settings again;
    EXPECT_EQ(again.load(), Settings::LoadState::Read);
    EXPECT_TRUE(again.soundOn());
    EXPECT_FALSE(again.autoAdjust());
    EXPECT_TRUE(again.directWrite());
    EXPECT_EQ(Languages::indexOf(again.language()), 4);
}

TEST(SettingsTest, UnreadableValuesFallBackAndAreNotOverwrittenUntilAChange)
{
    TempSettings temp;
    QDir().mkpath(temp.dir.filePath(QStringLiteral("Brunfeld")));
    const QByteArray garbage("[DefaultSettings]\nSound=banana\nAdjust=true\nDateFormat=7\n");
    {
        QFile file(temp.file());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(garbage);
    }
    auto contents = [&] {
        QFile file(temp.file());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };

    Settings settings;
    EXPECT_EQ(settings.load(), Settings::LoadState::Unreadable);
    EXPECT_EQ(settings.unreadable(), QStringList({"Sound", "DateFormat"}));
    EXPECT_FALSE(settings.soundOn());
    EXPECT_EQ(contents(), garbage);

    settings.setAutoAdjust(false);
    EXPECT_NE(contents(), garbage);
    Settings again;
    EXPECT_EQ(again.load(), Settings::LoadState::Read);
    EXPECT_FALSE(again.soundOn());
    EXPECT_FALSE(again.autoAdjust());
    QFile kept(temp.file() + QStringLiteral(".unreadable"));
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), garbage);
}

TEST(SettingsTest, AFileThatCannotBeReadIsMovedAsideAndTheDefaultsTakeItsPlace)
{
    TempSettings temp;
    QDir().mkpath(temp.file()); // a directory where the file should be: it cannot be read
    QFile(temp.file() + QStringLiteral("/inside")).open(QIODevice::WriteOnly);
    Settings settings;
    EXPECT_EQ(settings.load(), Settings::LoadState::Unreadable);
    EXPECT_EQ(settings.unreadableFile(), temp.file());
    EXPECT_TRUE(QFile::exists(settings.keptAs() + QStringLiteral("/inside")));
    Settings again;
    EXPECT_EQ(again.load(), Settings::LoadState::Read);
    EXPECT_TRUE(again.unreadableFile().isEmpty());
}

TEST(SettingsTest, PortTimeOutIsKeptWithinItsRangeAndReachesEveryPortOpened)
{
    TempSettings temp;
    {
        Settings settings;
        settings.load();
        EXPECT_EQ(settings.portTimeoutMs(), 100);
        settings.setPortTimeoutMs(650);
    }
    Settings again;
    EXPECT_EQ(again.load(), Settings::LoadState::Read);
    EXPECT_EQ(again.portTimeoutMs(), 650);
    for (const char *bad : {"10", "5001", "slow"}) {
        QSettings(QStringLiteral("Brunfeld"), QStringLiteral("Tarvik"))
            .setValue(QStringLiteral("DefaultSettings/PortTimeout"), QString::fromLatin1(bad));
        Settings unreadable;
        EXPECT_EQ(unreadable.load(), Settings::LoadState::Unreadable) << bad;
        EXPECT_EQ(unreadable.portTimeoutMs(), 100) << bad;
    }

    VirtualValidator device;
    SimulatedLinkSource source(&device);
    ValidatorLink link(nullptr);
    link.setPortTimeout(650);
    ASSERT_TRUE(link.open(source));
    EXPECT_EQ(link.transport()->readTimeout(), 650);
    link.setPortTimeout(300); // changed while the port is open
    EXPECT_EQ(link.transport()->readTimeout(), 300);
}

TEST(SettingsTest, EncodingCharactersOverrideTheLocale)
{
    TempSettings temp;
    Settings settings;
    settings.load();
    settings.set(Settings::Key::DecimalChar, QStringLiteral(","));
    settings.set(Settings::Key::DateChar, QStringLiteral("-"));
    settings.set(Settings::Key::DateFormat, 2);
    Settings again;
    again.load();
    const EncodingSettings e = again.encodingSettings();
    EXPECT_EQ(e.decimalChar, u',');
    EXPECT_EQ(e.dateChar, u'-');
    EXPECT_EQ(e.dateFormatCode, 2);
}

TEST(LanguagesTest, CodesAndLocales)
{
    EXPECT_EQ(Languages::indexOf(QStringLiteral("FR")), 1);
    EXPECT_EQ(Languages::indexOf(QStringLiteral("IT")), 2);
    EXPECT_EQ(Languages::indexOf(QStringLiteral("EN")), 3);
    EXPECT_EQ(Languages::indexOf(QStringLiteral("DE")), 4);
    // Any other value is Local.
    EXPECT_EQ(Languages::indexOf(QStringLiteral("ES")), 0);
    EXPECT_EQ(Languages::indexOf(QStringLiteral("fr")), 0);
    EXPECT_EQ(Languages::localeId(1), 0x040C);
    EXPECT_EQ(Languages::localeId(3), 0x0809);
    EXPECT_TRUE(Languages::code(0).isEmpty());
}

TEST(ValidatorLinkTest, OpensTheProbedPortAndClosesIt)
{
    BenchPorts ports(5, 4);
    ProbingLinkSource source(&ports, {}, nullptr, nullptr);
    ValidatorLink link(nullptr);
    ASSERT_TRUE(link.open(source));
    EXPECT_EQ(link.comPortNumber(), 4);
    EXPECT_TRUE(link.monnayeur()->CheckPresence(false));
    link.close();
    EXPECT_FALSE(link.isOpen());

    ports.openable = false;
    EXPECT_FALSE(link.open(source));
}

#include "ConfigFile.h"
#include "Backups.h"
#include "Messages.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <algorithm>
#include <gtest/gtest.h>

namespace {

ConfigImage sampleImage(quint8 family)
{
    ConfigImage image = ConfigImage::blank();
    image.version = {family, 0x02, 0x10};
    image.setSerialNumber(305419896);
    image.values[0] = 0x41; // base 1: 0.25 (two decimals, magnitude 25)
    image.values[1] = 0x19;
    image.values[Val::Channel0] = 4;
    image.channels[0] = {120, 110, 90, 80, 60, 50, 40, 30, 100, 95, 70, 65, 20, 10, 255, 0, 0};
    image.enable = {0xF0, 0, 0, 0, 0, 0, 0, 0x01};
    return image;
}

QByteArray edited(const QByteArray &json, const std::function<void(QJsonObject &)> &edit)
{
    QJsonObject root = QJsonDocument::fromJson(json).object();
    edit(root);
    return QJsonDocument(root).toJson();
}

// Every byte of every block differs from the bytes of every other block, so that a block read
// into another's place shows.
ConfigImage distinctImage(quint8 family)
{
    ConfigImage image = sampleImage(family);
    quint8 next = 1;
    auto fill = [&](auto &block) {
        for (auto &b : block)
            b = next++;
    };
    fill(image.ident);
    fill(image.counters);
    fill(image.prices);
    fill(image.options);
    fill(image.values);
    fill(image.block2);
    fill(image.block13);
    fill(image.status9);
    image.setting8 = next++;
    for (ChannelRecord &record : image.channels)
        std::for_each(record.begin(), record.begin() + Rec::Value, [&](quint8 &b) { b = next++; });
    return image;
}

TEST(ConfigFile, RoundTripFillsDisplayCopies)
{
    const ConfigImage image = distinctImage(0x13);
    ConfigImage back = ConfigImage::blank();
    QString error;
    ASSERT_TRUE(configFromJson(configToJson(image), back, &error)) << error.toStdString();
    ConfigImage expected = image;
    expected.refreshRecordCopies();
    EXPECT_EQ(back, expected);
    EXPECT_EQ(back.channels[0][Rec::Value], image.values[Val::Channel0]);
    EXPECT_EQ(back.channels[0][Rec::Enabled], 1);

    const QJsonObject root = QJsonDocument::fromJson(configToJson(image)).object();
    EXPECT_EQ(root.value("channelCount").toInt(), 60);
    const QJsonObject again = QJsonDocument::fromJson(configToJson(sampleImage(0x13))).object();
    EXPECT_EQ(again.value("blocks").toObject().value("ident").toString(), "ffffffff12345678");
    EXPECT_EQ(again.value("summary").toObject().value("serialNumber").toInt(), 305419896);
}

TEST(ConfigFile, LoadingNamesTheBadKey)
{
    const QByteArray good = configToJson(sampleImage(0x31));
    struct Case
    {
        std::function<void(QJsonObject &)> edit;
        const char *key;
    };
    const Case cases[] = {
        {[](QJsonObject &r) { r.insert("format", "other"); }, "format"},
        {[](QJsonObject &r) { r.insert("formatVersion", 2); }, "formatVersion"},
        {[](QJsonObject &r) { r.insert("channelCount", 60); }, "channelCount"},
        {[](QJsonObject &r) {
             QJsonObject b = r.value("blocks").toObject();
             b.insert("prices", "0011");
             r.insert("blocks", b);
         },
         "blocks.prices"},
        {[](QJsonObject &r) {
             QJsonObject b = r.value("blocks").toObject();
             b.remove("status9");
             r.insert("blocks", b);
         },
         "blocks.status9"},
        {[](QJsonObject &r) {
             QJsonArray c = r.value("channels").toArray();
             c[7] = QStringLiteral("FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF");
             r.insert("channels", c);
         },
         "channels[7]"},
    };
    for (const Case &c : cases) {
        ConfigImage image = ConfigImage::blank();
        const ConfigImage before = image;
        QString error;
        EXPECT_FALSE(configFromJson(edited(good, c.edit), image, &error)) << c.key;
        EXPECT_TRUE(error.startsWith(QLatin1String(c.key))) << error.toStdString();
        EXPECT_EQ(image, before);
    }
    ConfigImage image;
    QString error;
    EXPECT_FALSE(configFromJson("{ not json", image, &error));
    EXPECT_FALSE(error.isEmpty());
}

TEST(ConfigFile, SaveAndLoadFiles)
{
    QTemporaryDir dir;
    const QString path = dir.filePath("v.json");
    QString error;
    ASSERT_TRUE(saveConfigFile(path, sampleImage(0x02), &error));
    ConfigImage back;
    ASSERT_TRUE(loadConfigFile(path, back, &error));
    EXPECT_EQ(back.familyByte(), 0x02);
    EXPECT_FALSE(loadConfigFile(dir.filePath("missing.json"), back, &error));
    EXPECT_TRUE(error.contains("missing.json"));
    EXPECT_FALSE(saveConfigFile(dir.filePath("no/such/dir/v.json"), back, &error));
    EXPECT_TRUE(error.endsWith(messageText(Msg::WriteNoFolder))) << qPrintable(error);

    // A file reached through a symbolic link is replaced where the link points; the link stays.
    const QString shared = dir.filePath("shared.json");
    ASSERT_TRUE(QFile::link(path, shared));
    ASSERT_TRUE(saveConfigFile(shared, sampleImage(0x13), &error));
    EXPECT_TRUE(QFileInfo(shared).isSymLink());
    ASSERT_TRUE(loadConfigFile(path, back, &error));
    EXPECT_EQ(back.familyByte(), 0x13);
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden).size(), 2); // no temporary
}

// The backups keep at most kMaxBackups good files: an empty one (left by an older version on a
// full disk) is dropped, never counted against a good one (a backup that cannot be written
// prunes nothing: see the full-disk tests of tarvik-cli).
TEST(ConfigFile, BackupsPruneOnlyAfterAGoodWrite)
{
    QTemporaryDir dir;
    QDir backups(dir.path());
    for (int i = 0; i < kMaxBackups; ++i) {
        QFile f(backups.filePath(QStringLiteral("2020%1-serial1.json").arg(i, 4, 10, QChar('0'))));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        if (i != 5)
            f.write("{}");
    }
    QString error;
    const QDateTime when(QDate(2026, 1, 1), QTime(8, 0));
    ASSERT_FALSE(keepBackup(dir.path(), sampleImage(0x02), when, &error).isEmpty());
    const QStringList kept = backups.entryList(QDir::Files, QDir::Name);
    EXPECT_EQ(kept.size(), kMaxBackups);
    EXPECT_TRUE(kept.contains(QStringLiteral("20200000-serial1.json"))); // the oldest good one
    EXPECT_FALSE(kept.contains(QStringLiteral("20200005-serial1.json")));
}

} // namespace

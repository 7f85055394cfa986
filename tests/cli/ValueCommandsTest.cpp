// tarvik-cli values: list, save, apply and delete against a temporary data directory.
#include "ConfigFile.h"
#include "ConfigImage.h"
#include "DbfTable.h"
#include "InProcessCli.h"
#include "ProfileStore.h"
#include "RecordingPrompt.h"
#include "TDBModule.h"
#include "records/TestFiles.h"

#include <gtest/gtest.h>

namespace {

InProcessRun values(const QString &dataDir, const QStringList &args)
{
    return runInProcess(
        QStringList{QStringLiteral("--data-dir"), dataDir, QStringLiteral("values")} + args);
}

class ValueCommands : public CliFixture
{
protected:
    QString db() const { return path("db"); }
};

} // namespace

TEST_F(ValueCommands, SaveListApplyDelete)
{
    ConfigImage source = ConfigImage::blank();
    source.version[0] = 0x13;
    source.values = {0x40, 0x19, 0x40, 0x32}; // bases 0.25 and 0.50, then zeros
    for (int i = 0; i < kChannels; ++i)
        source.values[std::size_t(Val::Channel0 + i)] = quint8(i + 1);
    source.values[64] = 0x00, source.values[65] = 0x10, source.values[66] = 0x00;
    source.values[67] = 0x7D;
    QString error;
    ASSERT_TRUE(saveConfigFile(path("source.json"), source, &error)) << error.toStdString();

    EXPECT_EQ(values(db(), {"save", "Euro", path("source.json"), "--description", "coins"}).code,
              kExitOk);
    const InProcessRun refused = values(db(), {"save", "EURO", path("source.json")});
    EXPECT_EQ(refused.code, kExitFailed);
    EXPECT_TRUE(refused.err.contains(QLatin1String("EURO exist! Overwrite ?")));
    EXPECT_EQ(values(db(), {"save", "EURO", path("source.json"), "--overwrite"}).code, kExitOk);
    EXPECT_EQ(values(db(), {"list"}).out, QLatin1String("EURO\t\n"));

    // Applying replaces the first 68 bytes of the target's value block and keeps the rest.
    ConfigImage target = ConfigImage::blank();
    target.version[0] = 0x13;
    target.values.fill(0x33);
    ASSERT_TRUE(saveConfigFile(path("target.json"), target, &error));
    EXPECT_EQ(values(db(), {"apply", "euro", path("target.json"), "-o", path("out.json")}).code,
              kExitOk);
    ConfigImage applied;
    ASSERT_TRUE(loadConfigFile(path("out.json"), applied, &error)) << error.toStdString();
    for (int i = 0; i < 75; ++i)
        EXPECT_EQ(applied.values[std::size_t(i)],
                  i < 68 ? source.values[std::size_t(i)] : quint8(0x33))
            << "byte " << i;
    EXPECT_EQ(values(db(), {"apply", "nope", path("target.json")}).code, kExitFailed);

    // Another tool left text in CANAL7: the table is not applied and no file is written.
    {
        TDBModule tables;
        ASSERT_TRUE(tables.open(db()));
        const DbfTable &table = *tables.ValueTable();
        const DbfField &field = table.field(table.fieldIndex(QStringLiteral("CANAL7")));
        const int offset = field.offset;
        const int width = field.length;
        const QString file = table.filePath();
        tables.close();
        testfiles::spoilFirstRow(file, offset, width, "  abc ");
    }
    const InProcessRun bad =
        values(db(), {"apply", "euro", path("target.json"), "-o", path("bad.json")});
    EXPECT_EQ(bad.code, kExitFailed);
    EXPECT_TRUE(bad.err.contains(QLatin1String("'abc' is not a valid integer value")))
        << qPrintable(bad.err);
    EXPECT_FALSE(QFile::exists(path("bad.json")));

    const InProcessRun missing = values(db(), {"delete", "nope"});
    EXPECT_EQ(missing.code, kExitFailed);
    EXPECT_TRUE(missing.err.contains(QLatin1String("No value table nope is stored")));
    EXPECT_EQ(values(db(), {"delete", "Euro"}).code, kExitOk);
    EXPECT_TRUE(values(db(), {"list"}).out.isEmpty());
    EXPECT_EQ(values(db(), {"frobnicate"}).code, kExitUsage);
    EXPECT_EQ(values(db(), {"save", "OnlyName"}).code, kExitUsage);
}

// Names the tables cannot hold, typed on the command line: refused with the characters or the
// width named, exit 1, nothing stored, and never found under the name with '?' in it.
TEST_F(ValueCommands, NamesOutsideTheCodePageOrTooLongAreRefused)
{
    QString error;
    ASSERT_TRUE(saveConfigFile(path("v.json"), ConfigImage::blank(), &error));
    const QStringList data{QStringLiteral("--data-dir"), db()};
    for (const QString &name :
         {QStringLiteral("Łódź-1"), QStringLiteral("Kasse 日本"), QString(33, QLatin1Char('K'))}) {
        SCOPED_TRACE(name.toStdString());
        const InProcessRun save =
            runInProcess(data + QStringList{"save", path("v.json"), "--ident", name});
        EXPECT_EQ(save.code, kExitFailed);
        EXPECT_TRUE(save.err.contains(QLatin1String("Nothing was written.")))
            << qPrintable(save.err);
        EXPECT_TRUE(save.err.contains(name.startsWith('K') && name.size() > 30
                                          ? QStringLiteral("at most 30 characters")
                                          : QStringLiteral("its code page has no")));
        const InProcessRun stored = values(db(), {"save", name, path("v.json")});
        EXPECT_EQ(stored.code, kExitFailed);
        EXPECT_EQ(runInProcess(data + QStringList{"load", name}).code, kExitFailed);
    }
    EXPECT_EQ(runInProcess(data + QStringList{"list"}).out, QString());
    EXPECT_EQ(values(db(), {"list"}).out, QString());
}

// tarvik-cli profiles: the coin profiles the learning window saved, listed and deleted.
TEST_F(ValueCommands, ProfilesListAndDelete)
{
    {
        TDBModule module;
        ASSERT_TRUE(module.open(db()));
        RecordingPrompt prompt;
        ProfileStore store(module, prompt);
        for (const char *name : {"Token", "Euro 2"}) {
            ProfileRecord profile;
            profile.name = QLatin1String(name);
            profile.description = QStringLiteral("brass");
            ASSERT_EQ(store.save(profile), ProfileStore::Outcome::Saved);
        }
    }
    auto profiles = [&](const QStringList &args) {
        return runInProcess(QStringList{"--data-dir", db(), "profiles"} + args);
    };
    EXPECT_EQ(profiles({"list"}).out, QLatin1String("Token\tbrass\nEuro 2\tbrass\n"));
    EXPECT_EQ(profiles({"delete", "token"}).code, kExitOk);
    const InProcessRun missing = profiles({"delete", "Token"});
    EXPECT_EQ(missing.code, kExitFailed);
    EXPECT_TRUE(missing.err.contains(QLatin1String("No coin profile Token is stored")));
    EXPECT_EQ(profiles({"list"}).out, QLatin1String("Euro 2\tbrass\n"));
    EXPECT_EQ(profiles({"list", "extra"}).code, kExitUsage);
    EXPECT_EQ(profiles({"remove", "Euro 2"}).code, kExitUsage);
}

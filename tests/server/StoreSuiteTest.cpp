// Every store operation on both kinds of data source, one suite: a data directory of dBase
// tables and a database on the throwaway server.
#include "DataSource.h"
#include "DbfTable.h"
#include "Messages.h"
#include "RecordMigration.h"
#include "RecordStore.h"
#include "RecordingPrompt.h"
#include "TDBModule.h"
#include "TestServer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace {

enum class Kind
{
    Directory,
    Server
};

// A prompt that lets another program act while a question is on the screen.
class QuestionPrompt final : public UserPrompt
{
public:
    void tell(const QString &text, Kind) override { told.append(text); }
    Answer ask(const QString &text, Kind, Buttons) override
    {
        asked.append(text);
        if (whileAsking) {
            auto act = std::move(whileAsking);
            whileAsking = nullptr;
            act();
        }
        return answers.isEmpty() ? Answer::No : answers.takeFirst();
    }
    QStringList told, asked;
    QList<Answer> answers;
    std::function<void()> whileAsking;
};

class StoreSuite : public ::testing::TestWithParam<Kind>
{
protected:
    void SetUp() override
    {
        if (GetParam() == Kind::Server) {
            ASSERT_TRUE(TestServer::available()) << "run under pg_virtualenv";
            source = TestServer::freshDatabase();
        } else {
            source = dir.path();
        }
        store = &open(main, prompt);
    }

    // Another program on the same source, with a prompt of its own.
    RecordStore &open(DataSource &into, UserPrompt &withPrompt)
    {
        into.open(source, withPrompt);
        return into.records();
    }

    QTemporaryDir dir;
    QString source;
    QuestionPrompt prompt;
    DataSource main;
    RecordStore *store = nullptr;
};

ProfileRecord profile(const QString &name, int first)
{
    ProfileRecord p;
    p.name = name;
    p.description = QStringLiteral("of ") + name;
    p.substitute = 3;
    p.enabled = first % 2 == 0;
    p.value = first % 5 == 0 ? std::nullopt : std::optional<int>(253);
    for (int i = 0; i < ProfileRecord::kTolerances; ++i)
        p.tolerances[std::size_t(i)] = i == 4 ? std::nullopt : std::optional<int>(first + i);
    return p;
}

ValueBlock valueBlock(int seed)
{
    ValueBlock block{};
    for (std::size_t i = 0; i < block.size(); ++i)
        block[i] = quint8(seed + int(i));
    return block;
}

} // namespace

TEST_P(StoreSuite, AValidatorIsStoredListedLoadedReplacedOnYesAndDeleted)
{
    ASSERT_EQ(
        store->storeValidator(seededImage(1), QStringLiteral("Bench A"), QStringLiteral("first")),
        ValidatorStore::Outcome::Stored);
    ASSERT_EQ(store->storeValidator(seededImage(2), QStringLiteral("Bench B"), {}),
              ValidatorStore::Outcome::Stored);
    EXPECT_EQ(store->storeValidator(seededImage(2), QStringLiteral("  "), {}),
              ValidatorStore::Outcome::EmptyIdentification);
    const QList<ValidatorStore::Entry> entries = store->validators();
    ASSERT_EQ(entries.size(), 2);
    EXPECT_EQ(entries[0].identification, QStringLiteral("Bench A"));
    EXPECT_EQ(entries[0].description, QStringLiteral("first"));
    EXPECT_EQ(entries[0].version, QStringLiteral("19"));

    // What the tables hold comes back byte for byte, not-set enable bytes included.
    ConfigImage loaded = ConfigImage::blank();
    QString description;
    int family = -1;
    ValidatorStore::LoadReport report;
    ASSERT_TRUE(
        store->loadValidator(QStringLiteral("bench a"), loaded, &description, &family, &report));
    const ConfigImage stored = seededImage(1);
    EXPECT_EQ(loaded.channels, stored.channels);
    EXPECT_EQ(loaded.prices, stored.prices);
    EXPECT_EQ(loaded.options, stored.options);
    EXPECT_EQ(loaded.values, stored.values);
    EXPECT_EQ(family, 0x13);
    EXPECT_EQ(description, QStringLiteral("first"));
    EXPECT_TRUE(report.missing.isEmpty());
    ConfigImage editor = ConfigImage::blank();
    ASSERT_TRUE(store->loadValidatorInto(QStringLiteral("Bench A"), editor));
    EXPECT_EQ(editor.familyByte(), 0x13);
    EXPECT_EQ(editor.channels[2][Rec::Enabled], 0); // not set opens disabled

    // An existing name, in any case, is replaced only on Yes.
    prompt.answers = {UserPrompt::Answer::No};
    EXPECT_EQ(store->storeValidator(seededImage(9), QStringLiteral("BENCH A"), {}),
              ValidatorStore::Outcome::NotOverwritten);
    ASSERT_TRUE(store->loadValidator(QStringLiteral("Bench A"), loaded, nullptr, nullptr, nullptr));
    EXPECT_EQ(loaded.prices, stored.prices);
    prompt.answers = {UserPrompt::Answer::Yes};
    EXPECT_EQ(store->storeValidator(seededImage(9), QStringLiteral("Bench A"), {}),
              ValidatorStore::Outcome::Stored);
    ASSERT_TRUE(store->loadValidator(QStringLiteral("Bench A"), loaded, nullptr, nullptr, nullptr));
    EXPECT_EQ(loaded.channels, seededImage(9).channels);
    EXPECT_EQ(prompt.asked,
              QStringList({messageText(Msg::ExistOverwrite, {QStringLiteral("BENCH A")}),
                           messageText(Msg::ExistOverwrite, {QStringLiteral("Bench A")})}));
    EXPECT_EQ(store->validators().size(), 2);

    EXPECT_TRUE(store->removeValidator(QStringLiteral("bench a")));
    EXPECT_FALSE(store->removeValidator(QStringLiteral("Bench A")));
    EXPECT_EQ(store->errorString(),
              messageText(Msg::RecordsNotStored, {QStringLiteral("Bench A")}));
    EXPECT_FALSE(
        store->loadValidator(QStringLiteral("Bench A"), loaded, nullptr, nullptr, nullptr));
    EXPECT_EQ(store->validators().size(), 1);
}

TEST_P(StoreSuite, AValidatorAnotherProgramStoredWhileAskingIsAskedAboutAgain)
{
    ASSERT_EQ(store->storeValidator(seededImage(1), QStringLiteral("V1"), {}),
              ValidatorStore::Outcome::Stored);
    RecordingPrompt otherPrompt(UserPrompt::Answer::Yes);
    DataSource otherSource;
    RecordStore &other = open(otherSource, otherPrompt);
    // While this program asks, the other stores its own version: the agreement was about
    // what was shown, so the question comes again and No keeps the other's.
    prompt.whileAsking = [&] {
        ASSERT_EQ(other.storeValidator(seededImage(5), QStringLiteral("V1"), {}),
                  ValidatorStore::Outcome::Stored);
    };
    prompt.answers = {UserPrompt::Answer::Yes, UserPrompt::Answer::No};
    EXPECT_EQ(store->storeValidator(seededImage(7), QStringLiteral("V1"), {}),
              ValidatorStore::Outcome::NotOverwritten);
    EXPECT_EQ(prompt.asked.size(), 2);
    ConfigImage loaded = ConfigImage::blank();
    ASSERT_TRUE(other.loadValidator(QStringLiteral("V1"), loaded, nullptr, nullptr, nullptr));
    EXPECT_EQ(loaded.channels, seededImage(5).channels);

    // A name another program stored while this one was not asking at all is asked about.
    prompt.asked.clear();
    prompt.answers = {UserPrompt::Answer::No};
    ASSERT_EQ(other.storeValidator(seededImage(3), QStringLiteral("V2"), {}),
              ValidatorStore::Outcome::Stored);
    EXPECT_EQ(store->storeValidator(seededImage(8), QStringLiteral("v2"), {}),
              ValidatorStore::Outcome::NotOverwritten);
    EXPECT_EQ(prompt.asked.size(), 1);
}

TEST_P(StoreSuite, ProfilesKeepEveryFieldBlanksIncludedAndTheirPlace)
{
    for (int i = 0; i < 3; ++i)
        ASSERT_EQ(store->saveProfile(profile(QStringLiteral("P%1").arg(i), i * 5)),
                  ProfileStore::Outcome::Saved);
    EXPECT_EQ(store->saveProfile(profile(QStringLiteral(" "), 1)),
              ProfileStore::Outcome::EmptyName);
    for (int i = 0; i < 3; ++i) {
        const std::optional<ProfileRecord> p = store->loadProfile(QStringLiteral("p%1").arg(i));
        ASSERT_TRUE(p);
        const ProfileRecord want = profile(QStringLiteral("P%1").arg(i), i * 5);
        EXPECT_EQ(p->name, want.name);
        EXPECT_EQ(p->description, want.description);
        EXPECT_EQ(p->substitute, want.substitute);
        EXPECT_EQ(p->enabled, want.enabled);
        EXPECT_EQ(p->value, want.value);
        EXPECT_EQ(p->tolerances, want.tolerances);
    }
    EXPECT_FALSE(store->loadProfile(QStringLiteral("none")));
    EXPECT_TRUE(store->errorString().isEmpty());

    // Replaced on Yes, in its place.
    prompt.answers = {UserPrompt::Answer::No, UserPrompt::Answer::Yes};
    EXPECT_EQ(store->saveProfile(profile(QStringLiteral("P0"), 40)),
              ProfileStore::Outcome::NotOverwritten);
    EXPECT_EQ(store->saveProfile(profile(QStringLiteral("P0"), 40)), ProfileStore::Outcome::Saved);
    EXPECT_EQ(store->loadProfile(QStringLiteral("P0"))->tolerances[0], 40);
    QStringList names;
    for (const ProfileStore::Entry &e : store->profiles())
        names.append(e.name);
    EXPECT_EQ(names, QStringList({"P0", "P1", "P2"}));

    EXPECT_TRUE(store->removeProfile(QStringLiteral("p1")));
    EXPECT_FALSE(store->removeProfile(QStringLiteral("P1")));
    EXPECT_EQ(store->errorString(), messageText(Msg::ProfileNotStored, {QStringLiteral("P1")}));
    EXPECT_EQ(store->profiles().size(), 2);
}

TEST_P(StoreSuite, ValueTablesKeepBasesRatioAndChannelsTheLightModelsTwentyFive)
{
    const ValueBlock full = valueBlock(1);
    ASSERT_EQ(store->saveValueTable(full, QStringLiteral("Euro"), QStringLiteral("coins"), false),
              ValueTableStore::Outcome::Saved);
    ASSERT_EQ(store->saveValueTable(valueBlock(50), QStringLiteral("Light"), {}, true),
              ValueTableStore::Outcome::Saved);
    ValueBlock block{};
    ValueTableStore::Entry entry;
    ASSERT_TRUE(store->openValueTable(QStringLiteral("euro"), block, false, &entry));
    EXPECT_TRUE(store->errorString().isEmpty());
    EXPECT_EQ(entry.description, QStringLiteral("coins"));
    // Bytes 68 to 74 are not kept.
    EXPECT_TRUE(std::equal(block.begin(), block.begin() + Val::Conversion + 4, full.begin()));

    // A Light model's table opened for the full model stops at its first blank channel.
    ValueBlock light{};
    ASSERT_TRUE(store->openValueTable(QStringLiteral("Light"), light, false, nullptr));
    EXPECT_EQ(store->errorString(), messageText(Msg::NotValidInteger, {QString()}));
    EXPECT_EQ(light[Val::Channel0 + 24], valueBlock(50)[Val::Channel0 + 24]);
    EXPECT_EQ(light[Val::Channel0 + 25], 0);

    prompt.answers = {UserPrompt::Answer::Yes};
    EXPECT_EQ(store->saveValueTable(valueBlock(9), QStringLiteral("EURO"), {}, false),
              ValueTableStore::Outcome::Saved);
    QStringList names;
    for (const ValueTableStore::Entry &e : store->valueTables())
        names.append(e.name);
    EXPECT_EQ(names, QStringList({"EURO", "Light"}));
    EXPECT_TRUE(store->removeValueTable(QStringLiteral("Euro")));
    EXPECT_FALSE(store->openValueTable(QStringLiteral("Euro"), block, false, nullptr));
    EXPECT_EQ(store->errorString(), ValueTableStore::notStoredText(QStringLiteral("Euro")));
}

TEST_P(StoreSuite, MigrateCopiesEverythingThereAndBackAndTwiceCopiesNothing)
{
    ASSERT_EQ(store->storeValidator(seededImage(1), QStringLiteral("M1"), QStringLiteral("d")),
              ValidatorStore::Outcome::Stored);
    ASSERT_EQ(store->storeValidator(seededImage(2), QStringLiteral("M2"), {}),
              ValidatorStore::Outcome::Stored);
    ASSERT_EQ(store->saveProfile(profile(QStringLiteral("P"), 5)), ProfileStore::Outcome::Saved);
    ASSERT_EQ(store->saveValueTable(valueBlock(3), QStringLiteral("Full"), {}, false),
              ValueTableStore::Outcome::Saved);
    ASSERT_EQ(store->saveValueTable(valueBlock(4), QStringLiteral("Light"), {}, true),
              ValueTableStore::Outcome::Saved);

    // To the other kind of source and back into a third.
    QTemporaryDir backDir;
    const QString other = GetParam() == Kind::Server ? backDir.path() : TestServer::freshDatabase();
    const QString third = GetParam() == Kind::Server ? TestServer::freshDatabase()
                                                     : backDir.filePath(QStringLiteral("back"));
    RecordingPrompt quiet(UserPrompt::Answer::No);
    DataSource there, back;
    ASSERT_TRUE(there.open(other, quiet));
    ASSERT_TRUE(back.open(third, quiet));

    auto counts = [](const RecordMigration::Report &r) {
        QList<QList<int>> out;
        for (const auto &c : r.counts)
            out.append({c.copied, c.present, c.checked, c.different, c.failed});
        return out;
    };
    RecordMigration::Report report = RecordMigration::copyRecords(*store, there.records());
    EXPECT_TRUE(report.ok()) << report.problems.join(u'\n').toStdString();
    EXPECT_EQ(counts(report),
              (QList<QList<int>>{{2, 0, 2, 0, 0}, {1, 0, 1, 0, 0}, {2, 0, 2, 0, 0}}));
    report = RecordMigration::copyRecords(*store, there.records());
    EXPECT_EQ(counts(report),
              (QList<QList<int>>{{0, 2, 2, 0, 0}, {0, 1, 1, 0, 0}, {0, 2, 2, 0, 0}}));
    report = RecordMigration::copyRecords(there.records(), back.records());
    EXPECT_TRUE(report.ok()) << report.problems.join(u'\n').toStdString();

    // The third holds what the first held.
    ConfigImage a = ConfigImage::blank(), b = ConfigImage::blank();
    int familyA = -1, familyB = -1;
    QString descA, descB;
    ASSERT_TRUE(store->loadValidator(QStringLiteral("M1"), a, &descA, &familyA, nullptr));
    ASSERT_TRUE(back.records().loadValidator(QStringLiteral("M1"), b, &descB, &familyB, nullptr));
    EXPECT_EQ(a, b);
    EXPECT_EQ(descB, QStringLiteral("d"));
    EXPECT_EQ(familyB, familyA);
    ValueBlock light{};
    ASSERT_TRUE(back.records().openValueTable(QStringLiteral("Light"), light, false, nullptr));
    EXPECT_FALSE(back.records().errorString().isEmpty()); // still a Light model's table

    // A directory written from the server is read by dbfread as the directory's own are.
    if (back.tables()) {
        QProcess dbfread;
        dbfread.start(QStringLiteral(TARVIK_PYTHON), {QStringLiteral(TARVIK_DBFREAD_SCRIPT),
                                                      back.tables()->Channel()->filePath()});
        ASSERT_TRUE(dbfread.waitForFinished(60000));
        ASSERT_EQ(dbfread.exitCode(), 0) << dbfread.readAllStandardError().toStdString();
        const QJsonObject dump = QJsonDocument::fromJson(dbfread.readAllStandardOutput()).object();
        EXPECT_EQ(dump.value(QLatin1String("records")).toArray().size(), 120);
    }

    // A name held otherwise in the target is left as it is and named.
    prompt.answers = {UserPrompt::Answer::Yes};
    ASSERT_EQ(store->storeValidator(seededImage(8), QStringLiteral("M2"), {}),
              ValidatorStore::Outcome::Stored);
    report = RecordMigration::copyRecords(*store, there.records());
    EXPECT_FALSE(report.ok());
    EXPECT_EQ(report.counts[0].different, 1);
    ASSERT_TRUE(there.records().loadValidator(QStringLiteral("M2"), b, nullptr, nullptr, nullptr));
    EXPECT_EQ(b.channels, seededImage(2).channels);
}

INSTANTIATE_TEST_SUITE_P(BothSources, StoreSuite, ::testing::Values(Kind::Directory, Kind::Server),
                         [](const ::testing::TestParamInfo<Kind> &info) {
                             return info.param == Kind::Directory ? std::string("Directory")
                                                                  : std::string("Server");
                         });

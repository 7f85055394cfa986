#include "DataDirectory.h"
#include "DbfTable.h"
#include "DbfTableModel.h"
#include "IndexChecker.h"
#include "Messages.h"
#include "ProfileStore.h"
#include "RecordingPrompt.h"
#include "TDBModule.h"
#include "TableSchema.h"
#include "ValidatorStore.h"
#include "ValueTableStore.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>

namespace {

class DataModuleTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settingsDir.path());
        // The data directory's setting is written with the native format: never the user's own.
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settingsDir.path());
        qunsetenv(DataDirectory::kEnvironmentVariable);
        DataDirectory::setConfigured({});
        dataDir = QDir(root.path()).filePath(QStringLiteral("TarvikDB"));
    }

    QStringList checkAll() const
    {
        QStringList problems;
        for (const TableSchema *s : TableSchema::all()) {
            QList<ExpectedTag> tags;
            for (const TagDef &t : s->tags)
                tags.append({t.name, t.unique});
            problems += checkIndex(QDir(dataDir).filePath(s->fileName),
                                   QDir(dataDir).filePath(s->indexFileName), tags);
        }
        return problems;
    }

    // An image with every byte distinct enough to catch a field mixed up with another.
    static ConfigImage sampleImage()
    {
        ConfigImage image = ConfigImage::blank();
        image.version = {0x12, 3, 4};
        image.options = {0xA5, 0x3C};
        for (int i = 0; i < 75; ++i)
            image.values[std::size_t(i)] = quint8(i * 3);
        image.prices = {1, 2, 3, 4, 250, 255};
        for (int k = 0; k < kChannels; ++k) {
            for (int b = 0; b < kChannelRecordSize; ++b)
                image.channels[std::size_t(k)][std::size_t(b)] = quint8((k * 17 + b) % 250);
            image.channels[std::size_t(k)][Rec::Enabled] = k % 3 == 0 ? 255 : quint8(k % 2);
        }
        return image;
    }

    QTemporaryDir settingsDir;
    QTemporaryDir root;
    QString dataDir;
};

// An explicit path beats TARVIK_DB, which beats the setting, which beats the default.
TEST_F(DataModuleTest, DataDirectoryPrecedence)
{
    EXPECT_EQ(DataDirectory::resolve(), DataDirectory::defaultPath());
    EXPECT_TRUE(DataDirectory::defaultPath().endsWith(QLatin1String("TarvikDB")));
    DataDirectory::setConfigured(QStringLiteral("/from/settings"));
    EXPECT_EQ(DataDirectory::resolve(), QStringLiteral("/from/settings"));
    QSettings raw(QStringLiteral("Brunfeld"), QStringLiteral("Tarvik"));
    EXPECT_EQ(raw.value(QStringLiteral("DefaultSettings/DataDirectory")).toString(),
              QStringLiteral("/from/settings"));
    qputenv(DataDirectory::kEnvironmentVariable, "/from/env");
    EXPECT_EQ(DataDirectory::resolve(), QStringLiteral("/from/env"));
    EXPECT_EQ(DataDirectory::resolve(QStringLiteral("/explicit/")), QStringLiteral("/explicit"));
    qunsetenv(DataDirectory::kEnvironmentVariable);
}

// The first run creates the directory and the five empty tables with valid indexes, and says
// so once; a table lost later is created again with a notice naming it.
TEST_F(DataModuleTest, FirstRunCreatesTablesOnce)
{
    RecordingPrompt prompt;
    {
        TDBModule db;
        ASSERT_TRUE(db.open(dataDir, &prompt)) << db.errorString().toStdString();
        ASSERT_EQ(prompt.told().size(), 1);
        EXPECT_EQ(prompt.told().at(0), messageText(Msg::RecordsDirectoryCreated, {dataDir}));
        for (const TableSchema *s : TableSchema::all())
            EXPECT_TRUE(QFile::exists(QDir(dataDir).filePath(s->fileName)));
    }
    EXPECT_TRUE(checkAll().isEmpty()) << checkAll().join(QLatin1Char('\n')).toStdString();
    prompt.clear();
    {
        TDBModule db;
        ASSERT_TRUE(db.open(dataDir, &prompt));
        EXPECT_TRUE(prompt.told().isEmpty());
    }
    QFile::remove(QDir(dataDir).filePath(QStringLiteral("Valeurs.dbf")));
    QFile::remove(QDir(dataDir).filePath(QStringLiteral("Valeurs.MDX")));
    TDBModule db;
    ASSERT_TRUE(db.open(dataDir, &prompt));
    ASSERT_EQ(prompt.told().size(), 1);
    EXPECT_TRUE(prompt.told().at(0).contains(QLatin1String("Valeurs.dbf")));
}

// Deleting a validator deletes the channel rows of its identification in any case, and only
// those; a validator without channels goes alone.
TEST_F(DataModuleTest, DeletingValidatorCascades)
{
    TDBModule db;
    ASSERT_TRUE(db.open(dataDir));
    DbfTable &v = *db.Gettoniere();
    DbfTable &c = *db.Channel();
    for (const char *ident : {"ABC", "LONE"})
        v.setValue(v.appendRecord(), QStringLiteral("IDENT"), QString::fromLatin1(ident));
    for (const char *owner : {"abc", "ABC", "other", "Abc"})
        c.setValue(c.appendRecord(), QStringLiteral("MONNAYEUR"), QString::fromLatin1(owner));
    ASSERT_TRUE(v.commit() && c.commit());

    EXPECT_EQ(db.MonnayeurSource()->rowCount(), 2);
    ASSERT_TRUE(db.MonnayeurSource()->removeRows(0, 1));
    EXPECT_EQ(db.MonnayeurSource()->rowCount(), 1);
    EXPECT_EQ(c.liveRows(), std::vector<int>{2});
    EXPECT_EQ(db.CanauxSource()->rowCount(), 1);
    ASSERT_TRUE(db.deleteValidator(1));
    EXPECT_EQ(c.liveRows(), std::vector<int>{2});
    EXPECT_TRUE(v.liveRows().empty());
    EXPECT_TRUE(checkAll().isEmpty()) << checkAll().join(QLatin1Char('\n')).toStdString();
}

// The item models show fields by name and commit edits through the engine.
TEST_F(DataModuleTest, ModelsEditThroughTheEngine)
{
    {
        TDBModule db;
        ASSERT_TRUE(db.open(dataDir));
        DbfTableModel &m = *db.ValueSource();
        EXPECT_EQ(m.columnCount(), 65);
        EXPECT_EQ(m.headerData(0, Qt::Horizontal).toString(), QStringLiteral("IDENTI"));
        ASSERT_TRUE(m.insertRows(0, 2));
        ASSERT_TRUE(m.setData(m.index(1, 0), QStringLiteral("Euro")));
        ASSERT_TRUE(m.setData(m.index(1, 5), 253));
        EXPECT_FALSE(m.setData(m.index(1, 5), 12345678));
        EXPECT_FALSE(m.lastError().isEmpty());
        EXPECT_EQ(m.data(m.index(1, 5)).toString(), QStringLiteral("253"));
    }
    TDBModule db;
    ASSERT_TRUE(db.open(dataDir));
    EXPECT_EQ(db.ValueSource()->rowCount(), 2);
    EXPECT_EQ(db.ValueTable()->locate(QStringLiteral("IDENTI"), QStringLiteral("EURO")), 1);
    EXPECT_EQ(db.ValueTable()->value(1, QStringLiteral("CANAL1")).toInt(), 253);
}

// A stored validator loads back into the same channel table, value block, options and prices;
// the rows hold the documented encodings.
TEST_F(DataModuleTest, StoreAndLoadValidator)
{
    TDBModule db;
    ASSERT_TRUE(db.open(dataDir));
    RecordingPrompt prompt;
    ValidatorStore store(db, prompt);
    const ConfigImage image = sampleImage();
    ASSERT_EQ(store.store(image, QStringLiteral("  Shop 12 "), QStringLiteral("corner")),
              ValidatorStore::Outcome::Stored);
    EXPECT_EQ(prompt.told(), QStringList{messageText(Msg::FileSaved, {QStringLiteral("Shop 12")})});

    const DbfTable &v = *db.Gettoniere();
    const DbfTable &c = *db.Channel();
    EXPECT_EQ(v.text(0, QStringLiteral("VERSION")), QStringLiteral("18"));
    EXPECT_EQ(v.value(0, QStringLiteral("OPTION")).toDouble(), 0xA53C);
    EXPECT_EQ(v.value(0, QStringLiteral("BASE2")).toDouble(), 6 << 8 | 9);
    EXPECT_EQ(v.value(0, QStringLiteral("CONVERSION")).toDouble(),
              double(quint32(192) << 24 | quint32(195) << 16 | 198 << 8 | 201));
    EXPECT_EQ(v.value(0, QStringLiteral("PRIX4")).toInt(), 250);
    ASSERT_EQ(c.recordCount(), 60);
    EXPECT_EQ(c.value(59, QStringLiteral("CANAL")).toInt(), 60);
    EXPECT_EQ(c.value(1, QStringLiteral("HFUHIGHMAX")).toInt(), 17);
    EXPECT_EQ(c.value(1, QStringLiteral("VALEUR")).toInt(), image.channels[1][Rec::Value]);
    EXPECT_TRUE(c.value(0, QStringLiteral("VALID")).isNull());
    EXPECT_TRUE(c.value(1, QStringLiteral("VALID")).toBool());

    ConfigImage loaded;
    QString description;
    ASSERT_TRUE(store.load(QStringLiteral("SHOP 12"), loaded, &description));
    EXPECT_EQ(description, QStringLiteral("corner"));
    EXPECT_EQ(loaded.channels, image.channels);
    EXPECT_EQ(loaded.options, image.options);
    EXPECT_EQ(loaded.prices, image.prices);
    for (int i = 0; i < 68; ++i) {
        const quint8 want = i >= 4 && i < 64 ? image.channels[std::size_t(i - 4)][Rec::Value]
                                             : image.values[std::size_t(i)];
        EXPECT_EQ(loaded.values[std::size_t(i)], want) << "value byte " << i;
    }
    EXPECT_EQ(loaded.values[68], 255);
    EXPECT_EQ(loaded.version, ConfigImage::blank().version);
    EXPECT_EQ(loaded.counters, ConfigImage::blank().counters);
    EXPECT_EQ(store.list().size(), 1);
    EXPECT_EQ(store.list().at(0).version, QStringLiteral("18"));
}

// Storing: an empty identification stores nothing; an existing one (in any case) is replaced
// only on Yes; removing takes the channels too.
TEST_F(DataModuleTest, StoreAsksBeforeOverwriting)
{
    TDBModule db;
    ASSERT_TRUE(db.open(dataDir));
    RecordingPrompt prompt(UserPrompt::Answer::No);
    ValidatorStore store(db, prompt);
    ConfigImage image = sampleImage();

    // A name cut to its field, or with '?' for what the code page lacks, would be found as
    // another validator: it is refused, and nothing is written.
    const auto files = [&] {
        QByteArray all;
        for (const DbfTable *t : {db.Gettoniere(), db.Channel()}) {
            QFile f(t->filePath());
            f.open(QIODevice::ReadOnly);
            all += f.readAll();
        }
        return all;
    };
    const QByteArray empty = files();
    const QString longName(31, QLatin1Char('L'));
    const QString validators = TableSchema::gettoniere().fileName;
    const QList<std::pair<QString, QString>> refused = {
        {longName, messageText(Msg::NameTooLong, {longName, validators + " (IDENT)", "30"})},
        {QStringLiteral("Łódź-1"),
         messageText(Msg::NameOutsideCodePage, {QStringLiteral("Łódź-1"), validators, "Ł, ź"})},
        {QStringLiteral("Kasse 日本"),
         messageText(Msg::NameOutsideCodePage,
                     {QStringLiteral("Kasse 日本"), validators, QStringLiteral("日, 本")})}};
    for (const auto &[name, message] : refused) {
        prompt.clear();
        EXPECT_EQ(store.store(image, name, {}), ValidatorStore::Outcome::Failed);
        EXPECT_EQ(prompt.told(), QStringList{message});
        EXPECT_FALSE(store.load(name, image));
    }
    EXPECT_EQ(store.store(image, QStringLiteral("ok"), QString(31, QLatin1Char('d'))),
              ValidatorStore::Outcome::Failed);
    EXPECT_EQ(files(), empty);
    EXPECT_TRUE(store.list().isEmpty());
    ASSERT_EQ(store.store(image, QString(30, QLatin1Char('L')), QStringLiteral("Żółw")),
              ValidatorStore::Outcome::Failed);
    prompt.clear();
    EXPECT_EQ(store.store(image, QStringLiteral("  "), {}),
              ValidatorStore::Outcome::EmptyIdentification);
    EXPECT_EQ(prompt.told(), QStringList{messageText(Msg::IdentificationMustBeFilled)});
    ASSERT_EQ(store.store(image, QStringLiteral("abc"), QStringLiteral("one")),
              ValidatorStore::Outcome::Stored);
    const QByteArray before = [&] {
        QFile f(db.Channel()->filePath());
        f.open(QIODevice::ReadOnly);
        return f.readAll();
    }();

    prompt.clear();
    image.prices[0] = 99;
    EXPECT_EQ(store.store(image, QStringLiteral("ABC"), QStringLiteral("two")),
              ValidatorStore::Outcome::NotOverwritten);
    EXPECT_EQ(prompt.asked(),
              QStringList{messageText(Msg::ExistOverwrite, {QStringLiteral("ABC")})});
    QFile f(db.Channel()->filePath());
    f.open(QIODevice::ReadOnly);
    EXPECT_EQ(f.readAll(), before);

    prompt.setNextAnswers({UserPrompt::Answer::Yes});
    ASSERT_EQ(store.store(image, QStringLiteral("ABC"), QStringLiteral("two")),
              ValidatorStore::Outcome::Stored);
    ASSERT_EQ(store.list().size(), 1);
    EXPECT_EQ(store.list().at(0).identification, QStringLiteral("ABC"));
    EXPECT_EQ(db.Channel()->liveRows().size(), 60u);
    ConfigImage loaded;
    ASSERT_TRUE(store.load(QStringLiteral("abc"), loaded));
    EXPECT_EQ(loaded.prices[0], 99);

    ASSERT_TRUE(store.remove(QStringLiteral("Abc")));
    EXPECT_TRUE(store.list().isEmpty());
    EXPECT_TRUE(db.Channel()->liveRows().empty());
    EXPECT_FALSE(store.load(QStringLiteral("abc"), loaded));
    EXPECT_EQ(store.errorString(), messageText(Msg::RecordsNotStored, {QStringLiteral("abc")}));
    EXPECT_TRUE(checkAll().isEmpty()) << checkAll().join(QLatin1Char('\n')).toStdString();
}

// Answers Yes, or what it is told, and lets another program act while its first question
// waits for the answer.
class MeanwhilePrompt final : public UserPrompt
{
public:
    std::function<void()> meanwhile;
    QList<Answer> answers;
    QStringList asked;

    void tell(const QString &, Kind) override {}
    Answer ask(const QString &text, Kind, Buttons) override
    {
        asked.append(text);
        if (meanwhile)
            std::exchange(meanwhile, {})();
        return answers.isEmpty() ? Answer::Yes : answers.takeFirst();
    }
};

// Two programs on one directory (two data modules here): while this one's question waits,
// the other stores or changes the same row; the question comes again, about the row as the
// other left it, and nothing the other stored is lost unseen.
TEST_F(DataModuleTest, ARowChangedWhileTheQuestionWaitsIsAskedAboutAgain)
{
    TDBModule here, there;
    ASSERT_TRUE(here.open(dataDir));
    ASSERT_TRUE(there.open(dataDir));
    MeanwhilePrompt prompt;
    RecordingPrompt yes(UserPrompt::Answer::Yes);
    const QString overwrite = messageText(Msg::ExistOverwrite, {QStringLiteral("EURO")});

    ValueTableStore values(here, prompt), theirValues(there, yes);
    ValueBlock block{};
    ASSERT_EQ(theirValues.save(block, QStringLiteral("EURO"), QStringLiteral("first"), false),
              ValueTableStore::Outcome::Saved);
    prompt.meanwhile = [&] {
        theirValues.save(block, QStringLiteral("EURO"), QStringLiteral("second"), false);
    };
    ASSERT_EQ(values.save(block, QStringLiteral("EURO"), QStringLiteral("mine"), false),
              ValueTableStore::Outcome::Saved);
    EXPECT_EQ(prompt.asked, QStringList({overwrite, overwrite}));
    ASSERT_EQ(theirValues.list().size(), 1);
    EXPECT_EQ(theirValues.list().at(0).description, QStringLiteral("mine"));

    prompt.asked.clear();
    ValidatorStore validators(here, prompt), theirValidators(there, yes);
    const ConfigImage image = ConfigImage::blank();
    ASSERT_EQ(theirValidators.store(image, QStringLiteral("EURO"), QStringLiteral("1")),
              ValidatorStore::Outcome::Stored);
    prompt.meanwhile = [&] {
        theirValidators.store(image, QStringLiteral("EURO"), QStringLiteral("2"));
    };
    prompt.answers = {UserPrompt::Answer::Yes, UserPrompt::Answer::No};
    EXPECT_EQ(validators.store(image, QStringLiteral("EURO"), QStringLiteral("3")),
              ValidatorStore::Outcome::NotOverwritten);
    EXPECT_EQ(prompt.asked, QStringList({overwrite, overwrite}));
    ASSERT_EQ(theirValidators.list().size(), 1);
    EXPECT_EQ(theirValidators.list().at(0).description, QStringLiteral("2"));

    // a delete of a profile the other changed since this one listed it
    ProfileStore profiles(here, prompt), theirProfiles(there, yes);
    ProfileRecord p;
    p.name = QStringLiteral("2 EUR");
    ASSERT_EQ(theirProfiles.save(p), ProfileStore::Outcome::Saved);
    ASSERT_EQ(profiles.list().size(), 1);
    p.description = QStringLiteral("changed");
    ASSERT_EQ(theirProfiles.save(p), ProfileStore::Outcome::Saved);
    prompt.asked.clear();
    prompt.answers = {UserPrompt::Answer::No};
    EXPECT_FALSE(profiles.remove(QStringLiteral("2 EUR")));
    EXPECT_EQ(prompt.asked,
              QStringList{messageText(Msg::RecordsChangedMeanwhile, {QStringLiteral("2 EUR")})});
    EXPECT_EQ(theirProfiles.list().size(), 1);
    EXPECT_TRUE(profiles.remove(QStringLiteral("2 EUR"))); // as read now: no question
    EXPECT_TRUE(theirProfiles.list().isEmpty());
    EXPECT_TRUE(checkAll().isEmpty());
}

} // namespace

namespace {

// Value table and profile names are held to the same rule: refused, with nothing written,
// when the code page lacks a character or the field is too short; the name then is not found
// under the name with '?' in it.
TEST_F(DataModuleTest, ValueTableAndProfileNamesRoundTripOrAreRefused)
{
    TDBModule db;
    ASSERT_TRUE(db.open(dataDir));
    RecordingPrompt prompt(UserPrompt::Answer::Yes);
    ValueTableStore values(db, prompt);
    ProfileStore profiles(db, prompt);
    const ValueBlock block = sampleImage().values;
    for (const QString &name : {QStringLiteral("Łódź"), QString(33, QLatin1Char('x'))}) {
        prompt.clear();
        EXPECT_EQ(values.save(block, name, {}, false), ValueTableStore::Outcome::Failed);
        ProfileRecord p;
        p.name = name;
        EXPECT_EQ(profiles.save(p), ProfileStore::Outcome::Failed);
        ASSERT_EQ(prompt.told().size(), 2);
        EXPECT_TRUE(prompt.told().at(0).endsWith(QLatin1String("Nothing was written.")));
    }
    EXPECT_EQ(db.ValueTable()->recordCount(), 0);
    EXPECT_EQ(db.DemTable()->recordCount(), 0);
    EXPECT_EQ(values.save(block, QStringLiteral("Zürich"), {}, false),
              ValueTableStore::Outcome::Saved);
    EXPECT_EQ(values.list().size(), 1);
    EXPECT_EQ(values.list().at(0).name, QStringLiteral("Zürich"));
}

} // namespace

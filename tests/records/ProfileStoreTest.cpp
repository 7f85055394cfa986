// Coin profiles in the profile table, as Tarvik and python3-dbfread read them back.
#include "ProfileStore.h"
#include "DbfTable.h"
#include "RecordingPrompt.h"
#include "TDBModule.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// The live rows of a table as dbfread gives them, each as field name -> text (null for blank).
QList<QJsonObject> dbfreadRows(const QString &path)
{
    QProcess p;
    p.start(QStringLiteral(TARVIK_PYTHON), {QStringLiteral(TARVIK_DBFREAD_SCRIPT), path});
    if (!p.waitForFinished(60000) || p.exitCode() != 0) {
        ADD_FAILURE() << "dbfread failed: " << p.readAllStandardError().toStdString();
        return {};
    }
    const QJsonObject dump = QJsonDocument::fromJson(p.readAllStandardOutput()).object();
    const QJsonArray fields = dump.value(QLatin1String("fields")).toArray();
    QList<QJsonObject> rows;
    for (const QJsonValue &record : dump.value(QLatin1String("records")).toArray()) {
        QJsonObject row;
        for (qsizetype f = 0; f < fields.size(); ++f)
            row.insert(fields.at(f).toString(), record.toArray().at(f));
        rows.append(row);
    }
    return rows;
}

ProfileRecord profile(const QString &name, bool enabled, int first)
{
    ProfileRecord p;
    p.name = name;
    p.description = QStringLiteral("description of ") + name;
    p.substitute = 7;
    p.enabled = enabled;
    p.value = 40;
    for (int i = 0; i < ProfileRecord::kTolerances; ++i)
        p.tolerances[std::size_t(i)] = first + i;
    return p;
}

class ProfileStoreTest : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(db.open(dir.path())); }

    bool haveDbfread() const { return QFileInfo(QStringLiteral(TARVIK_PYTHON)).isExecutable(); }
    QString tablePath() const { return db.DemTable()->filePath(); }

    QTemporaryDir dir;
    TDBModule db;
    RecordingPrompt prompt{UserPrompt::Answer::No};
    ProfileStore store{db, prompt};
};

} // namespace

TEST_F(ProfileStoreTest, EveryFieldLandsInItsColumn)
{
    ProfileRecord p = profile(QStringLiteral("  Euro 2  "), false, 10);
    p.value.reset();
    ASSERT_EQ(store.save(p), ProfileStore::Outcome::Saved);
    EXPECT_EQ(store.save(profile(QStringLiteral("   "), true, 0)),
              ProfileStore::Outcome::EmptyName);
    if (!haveDbfread())
        GTEST_SKIP() << "python3 with dbfread not found";
    const QList<QJsonObject> rows = dbfreadRows(tablePath());
    ASSERT_EQ(rows.size(), 1);
    const QJsonObject &row = rows.first();
    EXPECT_EQ(row.value(QLatin1String("NOM")).toString(), QLatin1String("Euro 2"));
    EXPECT_EQ(row.value(QLatin1String("DESCRIPT")).toString(),
              QLatin1String("description of   Euro 2"));
    EXPECT_EQ(row.value(QLatin1String("SUB")).toString(), QLatin1String("7"));
    EXPECT_EQ(row.value(QLatin1String("ENABLE")).toString(), QLatin1String("False"));
    EXPECT_TRUE(row.value(QLatin1String("VALEUR")).isNull());
    for (int i = 0; i < ProfileRecord::kTolerances; ++i)
        EXPECT_EQ(
            row.value(QLatin1String(ProfileStore::toleranceFields()[std::size_t(i)])).toString(),
            QString::number(10 + i))
            << ProfileStore::toleranceFields()[std::size_t(i)];
}

TEST_F(ProfileStoreTest, AnExistingNameIsReplacedInPlaceOnlyOnYes)
{
    ASSERT_EQ(store.save(profile(QStringLiteral("Coin"), true, 1)), ProfileStore::Outcome::Saved);
    ASSERT_EQ(store.save(profile(QStringLiteral("Other"), true, 2)), ProfileStore::Outcome::Saved);
    ASSERT_TRUE(prompt.asked().isEmpty());

    prompt.setNextAnswers({UserPrompt::Answer::No});
    EXPECT_EQ(store.save(profile(QStringLiteral("COIN"), false, 50)),
              ProfileStore::Outcome::NotOverwritten);
    EXPECT_EQ(prompt.asked(), QStringList{QStringLiteral("COIN exist! Overwrite ?")});
    EXPECT_FALSE(db.DemTable()->hasPendingChanges());
    EXPECT_EQ(store.load(QStringLiteral("coin"))->tolerances[0], 1);

    prompt.setNextAnswers({UserPrompt::Answer::Yes});
    EXPECT_EQ(store.save(profile(QStringLiteral(" coin "), false, 60)),
              ProfileStore::Outcome::Saved);
    const QList<ProfileStore::Entry> entries = store.list();
    ASSERT_EQ(entries.size(), 2);
    EXPECT_EQ(entries.at(0).name, QLatin1String("coin")); // in its place, as now typed
    EXPECT_EQ(entries.at(1).name, QLatin1String("Other"));
    const auto loaded = store.load(QStringLiteral("COIN"));
    ASSERT_TRUE(loaded);
    EXPECT_FALSE(loaded->enabled);
    EXPECT_EQ(loaded->tolerances[13], 73);

    if (!haveDbfread())
        GTEST_SKIP() << "python3 with dbfread not found";
    const QList<QJsonObject> rows = dbfreadRows(tablePath());
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows.at(0).value(QLatin1String("NOM")).toString(), QLatin1String("coin"));
    EXPECT_EQ(rows.at(0).value(QLatin1String("HFULOWMIN")).toString(), QLatin1String("60"));
    EXPECT_EQ(rows.at(0).value(QLatin1String("ENABLE")).toString(), QLatin1String("False"));
    EXPECT_EQ(rows.at(1).value(QLatin1String("HFULOWMIN")).toString(), QLatin1String("2"));
}

TEST_F(ProfileStoreTest, EnableReadsBackWithoutRegardToCase)
{
    ASSERT_EQ(store.save(profile(QStringLiteral("Off"), false, 1)), ProfileStore::Outcome::Saved);
    ASSERT_EQ(store.save(profile(QStringLiteral("On"), true, 1)), ProfileStore::Outcome::Saved);
    // A third row as another dBase tool writes a true flag: a lower-case t.
    ASSERT_EQ(store.save(profile(QStringLiteral("Lower"), false, 1)), ProfileStore::Outcome::Saved);
    const DbfTable &table = *db.DemTable();
    const DbfField &enable = table.field(table.fieldIndex(QStringLiteral("ENABLE")));
    QFile file(tablePath());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray bytes = file.readAll();
    file.close();
    const int headerLength = quint8(bytes[8]) | quint8(bytes[9]) << 8;
    const int recordLength = quint8(bytes[10]) | quint8(bytes[11]) << 8;
    const int at = headerLength + 2 * recordLength + enable.offset;
    ASSERT_EQ(bytes[at], 'F');
    bytes[at] = 't';
    db.close();
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    ASSERT_TRUE(db.open(dir.path()));

    EXPECT_FALSE(store.load(QStringLiteral("off"))->enabled);
    EXPECT_TRUE(store.load(QStringLiteral("ON"))->enabled);
    EXPECT_TRUE(store.load(QStringLiteral("lower"))->enabled);
    EXPECT_FALSE(store.load(QStringLiteral("missing")));

    if (!haveDbfread())
        GTEST_SKIP() << "python3 with dbfread not found";
    const QList<QJsonObject> rows = dbfreadRows(tablePath());
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rows.at(0).value(QLatin1String("ENABLE")).toString(), QLatin1String("False"));
    EXPECT_EQ(rows.at(1).value(QLatin1String("ENABLE")).toString(), QLatin1String("True"));
    EXPECT_EQ(rows.at(2).value(QLatin1String("ENABLE")).toString(), QLatin1String("True"));
}

TEST_F(ProfileStoreTest, RemoveDeletesOneProfile)
{
    ASSERT_EQ(store.save(profile(QStringLiteral("A"), true, 1)), ProfileStore::Outcome::Saved);
    ASSERT_EQ(store.save(profile(QStringLiteral("B"), true, 1)), ProfileStore::Outcome::Saved);
    EXPECT_TRUE(store.remove(QStringLiteral("a")));
    EXPECT_FALSE(store.remove(QStringLiteral("a")));
    ASSERT_EQ(store.list().size(), 1);
    EXPECT_EQ(store.list().first().name, QLatin1String("B"));
}

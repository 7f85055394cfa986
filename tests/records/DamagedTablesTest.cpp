// Damaged tables: what is intact opens read-only and is said once, writes to the damaged table
// are refused, and the repair keeps exactly the rows that can be read (checked by dbfread and
// TDbf), with the damaged files copied into backups/.
#include "DbfTable.h"
#include "IndexChecker.h"
#include "Messages.h"
#include "RecordingPrompt.h"
#include "TDBModule.h"
#include "TableLock.h"
#include "TableRepair.h"
#include "TableSchema.h"
#include "TestFiles.h"
#include "ValidatorStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtEndian>
#include <functional>
#include <gtest/gtest.h>

namespace {

using namespace testfiles;

// The ways a channel table gets damaged, and what can be read of it afterwards.
struct Damage
{
    const char *what;
    std::function<QByteArray(QByteArray)> apply;
    int kept;
    qint64 unreadable;
    QString problem;
};

// Three validators stored: 180 channel rows, V0's first, then V1's, then V2's.
class DamagedTablesTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        dataDir = QDir(root.path()).filePath(QStringLiteral("TarvikDB"));
        {
            TDBModule db;
            ASSERT_TRUE(db.open(dataDir));
            RecordingPrompt prompt(UserPrompt::Answer::Yes);
            ValidatorStore store(db, prompt);
            for (int v = 0; v < 3; ++v) {
                ConfigImage image = ConfigImage::blank();
                for (int k = 0; k < kChannels; ++k)
                    image.channels[std::size_t(k)].fill(quint8(v * 60 + k));
                ASSERT_EQ(store.store(image, QStringLiteral("V%1").arg(v), QStringLiteral("d")),
                          ValidatorStore::Outcome::Stored);
            }
        }
        channels = readAll(path(s.fileName));
        index = readAll(path(s.indexFileName));
        header = qFromLittleEndian<quint16>(channels.constData() + 8);
        record = qFromLittleEndian<quint16>(channels.constData() + 10);
        ASSERT_EQ(channels.size(), header + 180 * record + 1);
    }

    QString path(const QString &name) const { return QDir(dataDir).filePath(name); }

    QList<Damage> damages() const
    {
        const QString name = s.fileName;
        auto truncated = [&](int kept, int of) {
            return messageText(Msg::RecordsTruncated,
                               {name, QString::number(kept), QString::number(of)});
        };
        const int h = header, r = record;
        return {
            {"cut inside a record", [=](QByteArray b) { return b.left(h + 17 * r + 5); }, 17, 163,
             truncated(17, 180)},
            {"cut at a record boundary", [=](QByteArray b) { return b.left(h + 60 * r); }, 60, 120,
             truncated(60, 180)},
            {"count past the end",
             [](QByteArray b) {
                 qToLittleEndian<quint32>(1000, b.data() + 4);
                 return b;
             },
             180, 820, truncated(180, 1000)},
            {"cut inside the header", [](QByteArray b) { return b.left(100); }, 0, 180,
             messageText(Msg::RecordsHeaderTruncated, {name})},
            {"header and record lengths",
             [](QByteArray b) {
                 qToLittleEndian<quint16>(40, b.data() + 8);
                 b[10] = char(b[10] + 1);
                 return b;
             },
             180, 0, messageText(Msg::RecordsBadHeader, {name})},
            {"field descriptor",
             [](QByteArray b) {
                 b[32 + 32 * 2 + 11] = 0x01; // HFUHIGHMAX of no known type
                 return b;
             },
             180, 0, messageText(Msg::RecordsBadField, {name, QStringLiteral("HFUHIGHMAX")})},
            // Another tool's slips: the header length off by 7 either way (pointing into the
            // first row, or into the descriptors), a field length of 255, a lowered count whose
            // rows the index still names.
            {"header length 7 too long",
             [=](QByteArray b) {
                 qToLittleEndian<quint16>(quint16(h + 7), b.data() + 8);
                 return b;
             },
             180, 0, messageText(Msg::RecordsBadHeader, {name})},
            {"header length 7 too short",
             [=](QByteArray b) {
                 qToLittleEndian<quint16>(quint16(h - 7), b.data() + 8);
                 return b;
             },
             180, 0, messageText(Msg::RecordsBadHeader, {name})},
            {"field length 255",
             [](QByteArray b) {
                 b[32 + 16] = char(255); // MONNAYEUR
                 return b;
             },
             180, 0, messageText(Msg::RecordsBadHeader, {name})},
            {"count lowered",
             [](QByteArray b) {
                 qToLittleEndian<quint32>(100, b.data() + 4);
                 return b;
             },
             180, 0, messageText(Msg::RecordsRowsPastCount, {name, "100", "180"})},
        };
    }

    const TableSchema &s = TableSchema::channel();
    QTemporaryDir root;
    QString dataDir;
    QByteArray channels, index;
    int header = 0, record = 0;
};

// The damaged table opens read-only with what can be read and is said once; the validators
// load with the channels that are left, and writes that touch it are refused and leave every
// file as it was.
TEST_F(DamagedTablesTest, WhatIsIntactOpensAndWritesToItAreRefused)
{
    const QByteArray validators = readAll(path(TableSchema::gettoniere().fileName));
    for (const Damage &d : damages()) {
        SCOPED_TRACE(d.what);
        const QByteArray bad = d.apply(channels);
        writeAll(path(s.fileName), bad);
        RecordingPrompt prompt(UserPrompt::Answer::Yes);
        TDBModule db;
        EXPECT_TRUE(db.open(dataDir, &prompt));
        ASSERT_EQ(prompt.told(), QStringList{messageText(Msg::RecordsDamaged, {d.problem})});
        const DbfTable &table = *db.Channel();
        EXPECT_TRUE(table.isReadOnly());
        EXPECT_EQ(table.recordCount(), d.kept);
        EXPECT_EQ(table.unreadableRecords(), d.unreadable);
        EXPECT_FALSE(db.Gettoniere()->isReadOnly());

        ValidatorStore store(db, prompt);
        EXPECT_EQ(store.list().size(), 3);
        ConfigImage image;
        ValidatorStore::LoadReport report;
        ASSERT_TRUE(store.load(QStringLiteral("V0"), image, nullptr, &report));
        EXPECT_EQ(report.missing.size(), 60 - std::min(d.kept, 60));
        if (d.kept > 5) {
            EXPECT_EQ(image.channels[5][0], 5);
        }

        prompt.clear();
        const QString refusal = messageText(Msg::RecordsDamagedRefused, {s.fileName});
        EXPECT_EQ(store.store(image, QStringLiteral("V9"), {}), ValidatorStore::Outcome::Failed);
        EXPECT_FALSE(store.remove(QStringLiteral("V1")));
        EXPECT_EQ(store.errorString(), refusal);
        EXPECT_EQ(prompt.told(), QStringList{refusal});
        EXPECT_TRUE(prompt.asked().isEmpty()); // refused before "Overwrite ?" is asked
        EXPECT_EQ(readAll(path(s.fileName)), bad);
        EXPECT_EQ(readAll(path(TableSchema::gettoniere().fileName)), validators);
    }
}

// Repair copies the damaged files aside, keeps exactly the rows that can be read with the
// header bytes of the table, rebuilds the index, and leaves the sound tables untouched; a
// second repair finds nothing to do. dbfread reads the rows, TDbf seeks them through the index.
TEST_F(DamagedTablesTest, RepairKeepsExactlyTheReadableRecords)
{
    const bool haveDbfread = QFileInfo(QStringLiteral(TARVIK_PYTHON)).isExecutable();
    QTemporaryDir build;
    const QString tdbf = QDir(build.path()).filePath(QStringLiteral("tdbf_check"));
    if (QFileInfo(QStringLiteral(TARVIK_FPC)).isExecutable())
        run(QStringLiteral(TARVIK_FPC),
            {QStringLiteral("-O1"), QStringLiteral("-FU") + build.path(),
             QStringLiteral("-o") + tdbf, QStringLiteral(TARVIK_TDBF_SOURCE)});
    const QByteArray validators = readAll(path(TableSchema::gettoniere().fileName));

    for (const Damage &d : damages()) {
        SCOPED_TRACE(d.what);
        QDir(path(QStringLiteral("backups"))).removeRecursively();
        const QByteArray bad = d.apply(channels);
        writeAll(path(s.fileName), bad);
        writeAll(path(s.indexFileName), index);

        TableRepair repair(dataDir);
        const QList<TableRepair::Result> results = repair.repair();
        // and a line for validators whose every channel row was lost, when there are
        ASSERT_GE(results.size(), 5);
        for (qsizetype i = 5; i < results.size(); ++i)
            EXPECT_EQ(results.at(i).state, TableRepair::State::ChannelsMissing);
        const TableRepair::Result &r = results.at(1);
        EXPECT_EQ(r.state, TableRepair::State::Repaired) << r.text().toStdString();
        EXPECT_EQ(r.problem, d.problem);
        EXPECT_EQ(r.kept, d.kept);
        EXPECT_EQ(r.unreadable, d.unreadable);
        for (int t : {0, 2, 3, 4})
            EXPECT_EQ(results.at(t).state, TableRepair::State::Sound);
        EXPECT_EQ(readAll(path(TableSchema::gettoniere().fileName)), validators);

        const QDir backup(repair.backupDirectory());
        EXPECT_EQ(repair.backupDirectory(), r.backup);
        EXPECT_TRUE(backup.dirName().startsWith(QLatin1String("damaged-")));
        EXPECT_EQ(readAll(backup.filePath(s.fileName)), bad);
        EXPECT_EQ(readAll(backup.filePath(s.indexFileName)), index);

        // the header as it was but for date and count; the first rows byte for byte
        const QByteArray repaired = readAll(path(s.fileName));
        ASSERT_EQ(repaired.size(), header + d.kept * record + 1);
        for (int i = 0; i < header; ++i) {
            if (i < 1 || i > 7) {
                ASSERT_EQ(repaired.at(i), channels.at(i)) << "header byte " << i;
            }
        }
        EXPECT_EQ(qFromLittleEndian<quint32>(repaired.constData() + 4), quint32(d.kept));
        EXPECT_EQ(repaired.mid(header, d.kept * record), channels.mid(header, d.kept * record));
        EXPECT_TRUE(checkIndex(path(s.fileName), path(s.indexFileName),
                               {{QStringLiteral("MONNAYEUR"), false}})
                        .isEmpty());
        {
            DbfTable t;
            ASSERT_TRUE(t.open(path(s.fileName), &s));
            EXPECT_TRUE(t.notices().isEmpty()) << t.notices().join(' ').toStdString();
            EXPECT_FALSE(t.isReadOnly());
        }

        if (haveDbfread) {
            const QJsonObject dump =
                QJsonDocument::fromJson(
                    run(QStringLiteral(TARVIK_PYTHON),
                        {QStringLiteral(TARVIK_DBFREAD_SCRIPT), path(s.fileName)}))
                    .object();
            const QJsonArray rows = dump.value(QLatin1String("records")).toArray();
            ASSERT_EQ(rows.size(), d.kept);
            for (int i = 0; i < d.kept; ++i) {
                EXPECT_EQ(rows.at(i).toArray().at(0).toString(), QStringLiteral("V%1").arg(i / 60));
                EXPECT_EQ(rows.at(i).toArray().at(1).toString().toInt(), i % 60 + 1);
            }
        }
        if (QFileInfo(tdbf).isExecutable() && d.kept > 0) {
            // TDbf on a case-sensitive file system wants the index's extension in lower case
            const QString lower = path(QStringLiteral("Canaux.mdx"));
            ASSERT_TRUE(QFile::rename(path(s.indexFileName), lower));
            const QString out =
                QString::fromLatin1(run(tdbf, {path(s.fileName), QStringLiteral("MONNAYEUR"),
                                               QStringLiteral("MONNAYEUR")}));
            EXPECT_TRUE(out.startsWith(QStringLiteral("rows %1 misordered 0 misses 0").arg(d.kept)))
                << out.toStdString();
            ASSERT_TRUE(QFile::rename(lower, path(s.indexFileName)));
        }

        const QByteArray fixedIndex = readAll(path(s.indexFileName));
        TableRepair again(dataDir);
        for (const TableRepair::Result &result : again.repair()) {
            if (result.state != TableRepair::State::ChannelsMissing) { // said, kept
                EXPECT_EQ(result.state, TableRepair::State::Sound) << result.text().toStdString();
            }
        }
        EXPECT_TRUE(again.backupDirectory().isEmpty());
        EXPECT_EQ(readAll(path(s.fileName)), repaired);
        EXPECT_EQ(readAll(path(s.indexFileName)), fixedIndex);
    }
}

// A header whose field lengths cannot be mended would give rows that do not read back: the
// repair says so and leaves the table and its index as they were.
TEST_F(DamagedTablesTest, RepairRefusesRowsItCannotReadBack)
{
    QByteArray bad = channels;
    bad[32 + 16] = char(255);            // MONNAYEUR
    bad[10] = char(quint8(bad[10]) + 1); // and the record length: no single field mends both
    writeAll(path(s.fileName), bad);
    TableRepair repair(dataDir);
    const TableRepair::Result r = repair.repair().at(1);
    EXPECT_EQ(r.state, TableRepair::State::Failed);
    EXPECT_EQ(r.text(),
              messageText(Msg::RepairFailed, {s.fileName, messageText(Msg::RepairNotReadBack)}));
    EXPECT_EQ(readAll(path(s.fileName)), bad);
    EXPECT_EQ(readAll(path(s.indexFileName)), index);
}

// A damaged table reached through a symbolic link (a shared folder linked into the data
// directory) is mended where the link points; the link stays a link.
TEST_F(DamagedTablesTest, RepairOfALinkedTableKeepsTheLink)
{
    const QString shared = QDir(root.path()).filePath(QStringLiteral("shared.dbf"));
    writeAll(shared, channels.left(header + 60 * record));
    ASSERT_TRUE(QFile::remove(path(s.fileName)));
    ASSERT_TRUE(QFile::link(shared, path(s.fileName)));
    TableRepair repair(dataDir);
    const TableRepair::Result r = repair.repair().at(1);
    EXPECT_EQ(r.state, TableRepair::State::Repaired) << qPrintable(r.text());
    EXPECT_TRUE(QFileInfo(path(s.fileName)).isSymLink());
    EXPECT_EQ(readAll(shared).size(), header + 60 * record + 1);
}

// A file of which nothing can be read is said once and left as it is; the other tables work.
TEST_F(DamagedTablesTest, UnreadableTableIsLeftAsItIs)
{
    const QString validators = path(TableSchema::gettoniere().fileName);
    QByteArray bad = readAll(validators);
    bad[0] = 0x30;
    writeAll(validators, bad);
    RecordingPrompt prompt;
    TDBModule db;
    EXPECT_FALSE(db.open(dataDir, &prompt));
    const QString problem = messageText(Msg::RecordsNotDbase, {TableSchema::gettoniere().fileName});
    EXPECT_EQ(prompt.told(), QStringList{messageText(Msg::RecordsUnreadable, {problem})});
    EXPECT_EQ(db.Channel()->recordCount(), 180);
    EXPECT_FALSE(db.Channel()->isReadOnly());
    ValidatorStore store(db, prompt);
    EXPECT_FALSE(store.remove(QStringLiteral("V1")));
    EXPECT_EQ(store.errorString(),
              messageText(Msg::RecordsNotOpen, {TableSchema::gettoniere().fileName}));
    db.close();

    const TableRepair::Result r = TableRepair(dataDir).repair().at(0);
    EXPECT_EQ(r.state, TableRepair::State::Unreadable);
    EXPECT_FALSE(r.sound());
    EXPECT_EQ(r.text(), messageText(Msg::RecordsUnreadable, {problem}));
    EXPECT_EQ(readAll(validators), bad);
    EXPECT_FALSE(QFileInfo::exists(path(QStringLiteral("backups"))));
}

// A missing index cannot be rebuilt while another program holds the table's lock: the table is
// not read after the one wait, which is said with whom it waited for, and the repair rebuilds
// only the index once it is free.
TEST_F(DamagedTablesTest, IndexRebuiltOnceTheTableIsFree)
{
    QFile::remove(path(s.indexFileName));
    TableLock::setWaitLimitMs(100);
    {
        TableLock elsewhere(path(s.fileName));
        ASSERT_TRUE(elsewhere.lock(TableLock::Mode::Exclusive));
        RecordingPrompt prompt;
        TDBModule db;
        EXPECT_FALSE(db.open(dataDir, &prompt));
        EXPECT_FALSE(db.Channel()->isOpen());
        EXPECT_TRUE(db.Gettoniere()->isOpen());
        ASSERT_EQ(prompt.told().size(), 1);
        EXPECT_TRUE(prompt.told().at(0).contains(QLatin1String("holding the lock; nothing read")))
            << prompt.told().at(0).toStdString();
        db.close();
        const TableRepair::Result held = TableRepair(dataDir).repair().at(1);
        EXPECT_EQ(held.state, TableRepair::State::Failed);
        EXPECT_TRUE(held.text().contains(QLatin1String("holding the lock; nothing written")))
            << held.text().toStdString();
    }
    TableLock::setWaitLimitMs(-1);
    EXPECT_EQ(TableRepair(dataDir).check().at(1).state, TableRepair::State::IndexUnusable);
    TableRepair repair(dataDir);
    const TableRepair::Result r = repair.repair().at(1);
    EXPECT_EQ(r.state, TableRepair::State::IndexRebuilt) << r.text().toStdString();
    EXPECT_EQ(readAll(path(s.fileName)), channels);
    EXPECT_EQ(readAll(QDir(repair.backupDirectory()).filePath(s.fileName)), channels);
    EXPECT_TRUE(
        checkIndex(path(s.fileName), path(s.indexFileName), {{QStringLiteral("MONNAYEUR"), false}})
            .isEmpty());
}

} // namespace

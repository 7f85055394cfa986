#include "DbfTable.h"
#include "IndexChecker.h"
#include "Messages.h"
#include "TableLock.h"
#include "TableRepair.h"
#include "TableSchema.h"
#include "TestFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

using namespace testfiles;

QList<ExpectedTag> expectedTags(const TableSchema &s)
{
    QList<ExpectedTag> tags;
    for (const TagDef &t : s.tags)
        tags.append({t.name, t.unique});
    return tags;
}

class DbfTableTest : public ::testing::Test
{
protected:
    void TearDown() override { DbfTable::setCommitHook({}); }

    QString path(const QString &name) const { return QDir(dir.path()).filePath(name); }

    // A created table with its index, opened.
    void make(DbfTable &t, const TableSchema &s)
    {
        QString error;
        if (!QFile::exists(path(s.fileName))) {
            ASSERT_TRUE(DbfTable::create(path(s.fileName), s, &error)) << error.toStdString();
        }
        ASSERT_TRUE(t.open(path(s.fileName), &s)) << t.errorString().toStdString();
    }

    QStringList check(const TableSchema &s) const
    {
        return checkIndex(path(s.fileName), path(s.indexFileName), expectedTags(s));
    }

    QTemporaryDir dir;
};

// Every table takes a row with every field set, keeps it across a reopen, and its index stays
// valid; names are found whatever their case.
TEST_F(DbfTableTest, EveryTableRoundTrips)
{
    for (const TableSchema *s : TableSchema::all()) {
        SCOPED_TRACE(s->fileName.toStdString());
        {
            DbfTable t;
            make(t, *s);
            EXPECT_TRUE(t.notices().isEmpty());
            for (int row = 0; row < 3; ++row) {
                const int rec = t.appendRecord();
                for (int i = 0; i < s->fields.size(); ++i) {
                    const FieldDef &f = s->fields.at(i);
                    QVariant v;
                    switch (f.kind) {
                    case FieldKind::String:
                        v = QStringLiteral("Ké%1-%2").arg(row).arg(i);
                        break;
                    case FieldKind::SmallInt:
                        v = row * 100 + i;
                        break;
                    case FieldKind::Float:
                        v = 4294967295.0 - row;
                        break;
                    case FieldKind::Boolean:
                        v = row % 2 == 0;
                        break;
                    }
                    ASSERT_TRUE(t.setValue(rec, f.name.toLower(), v)) << f.name.toStdString();
                }
            }
            ASSERT_TRUE(t.commit()) << t.errorString().toStdString();
        }
        EXPECT_TRUE(check(*s).isEmpty()) << check(*s).join(QLatin1Char('\n')).toStdString();
        DbfTable t;
        ASSERT_TRUE(t.open(path(s->fileName), s));
        EXPECT_TRUE(t.notices().isEmpty());
        ASSERT_EQ(t.recordCount(), 3);
        for (int i = 0; i < s->fields.size(); ++i) {
            const FieldDef &f = s->fields.at(i);
            const QVariant v = t.value(2, f.name);
            switch (f.kind) {
            case FieldKind::String:
                EXPECT_EQ(v.toString(), QStringLiteral("Ké2-%1").arg(i).left(f.width));
                break;
            case FieldKind::SmallInt:
                EXPECT_EQ(v.toInt(), 200 + i);
                break;
            case FieldKind::Float:
                EXPECT_EQ(v.toDouble(), 4294967293.0);
                break;
            case FieldKind::Boolean:
                EXPECT_TRUE(v.toBool());
                break;
            }
        }
    }
}

// The profile set table has 59 channel fields: CANAL46 (channel 47) does not exist.
TEST_F(DbfTableTest, ProfileSetsHaveFiftyNineChannelNames)
{
    const TableSchema &s = TableSchema::detTablle();
    DbfTable t;
    make(t, s);
    int channelFields = 0;
    for (int f = 0; f < t.fieldCount(); ++f)
        channelFields += t.field(f).name.startsWith(QLatin1String("CANAL"));
    EXPECT_EQ(channelFields, 59);
    EXPECT_EQ(t.fieldIndex(QStringLiteral("CANAL46")), -1);
    EXPECT_EQ(detChannelField(47), QString());
    EXPECT_EQ(detChannelField(48), QStringLiteral("CANAL47"));

    const int rec = t.appendRecord();
    for (int channel = 1; channel <= 60; ++channel) {
        const QString name = detChannelField(channel);
        if (!name.isEmpty()) {
            ASSERT_TRUE(t.setValue(rec, name, QStringLiteral("P%1").arg(channel)));
        }
    }
    EXPECT_FALSE(t.setValue(rec, QStringLiteral("CANAL46"), QStringLiteral("x")));
    ASSERT_TRUE(t.commit());
    DbfTable again;
    ASSERT_TRUE(again.open(path(s.fileName), &s));
    EXPECT_EQ(again.text(0, QStringLiteral("CANAL45")), QStringLiteral("P46"));
    EXPECT_EQ(again.text(0, QStringLiteral("CANAL47")), QStringLiteral("P48"));
    EXPECT_EQ(again.text(0, QStringLiteral("CANAL59")), QStringLiteral("P60"));
}

// A unique tag lists only the first live row of each key; locating ignores case; deleting
// flags the row and keeps its place.
TEST_F(DbfTableTest, UniqueTagsLocateAndDelete)
{
    const TableSchema &s = TableSchema::valueTable();
    DbfTable t;
    make(t, s);
    for (const char *name : {"beta", "Alpha", "beta", "BETA", "alpha"}) {
        const int rec = t.appendRecord();
        t.setValue(rec, QStringLiteral("IDENTI"), QString::fromLatin1(name));
    }
    ASSERT_TRUE(t.commit());
    EXPECT_TRUE(check(s).isEmpty()) << check(s).join(QLatin1Char('\n')).toStdString();

    EXPECT_EQ(t.locate(QStringLiteral("identi"), QStringLiteral("ALPHA ")), 1);
    EXPECT_EQ(t.locateAll(QStringLiteral("IDENTI"), QStringLiteral("Beta")),
              (std::vector<int>{0, 2, 3}));
    ASSERT_TRUE(t.deleteRecord(0));
    EXPECT_EQ(t.locate(QStringLiteral("IDENTI"), QStringLiteral("beta")), 2);
    ASSERT_TRUE(t.commit());
    // the first live "beta" (row 3 in the file) is now the one indexed
    EXPECT_TRUE(check(s).isEmpty()) << check(s).join(QLatin1Char('\n')).toStdString();
    EXPECT_TRUE(t.isDeleted(0));
    EXPECT_EQ(t.recordCount(), 5);
    EXPECT_EQ(t.liveRows(), (std::vector<int>{1, 2, 3, 4}));
}

// A value that does not fit is refused; rollback drops pending changes.
TEST_F(DbfTableTest, RefusesValuesThatDoNotFitAndRollsBack)
{
    const TableSchema &s = TableSchema::gettoniere();
    DbfTable t;
    make(t, s);
    const int rec = t.appendRecord();
    EXPECT_FALSE(t.setValue(rec, QStringLiteral("PRIX0"), 12345678));
    EXPECT_TRUE(t.errorString().contains(QLatin1String("PRIX0")));
    EXPECT_FALSE(t.setValue(rec, QStringLiteral("PRIX0"), QStringLiteral("abc")));
    EXPECT_TRUE(t.setValue(rec, QStringLiteral("IDENT"), QString(40, QLatin1Char('x'))));
    EXPECT_EQ(t.text(rec, QStringLiteral("IDENT")).size(), 30);
    t.rollback();
    EXPECT_EQ(t.recordCount(), 0);
    EXPECT_FALSE(t.hasPendingChanges());
}

// A level-7 table built from the documented layout is read, and written back differs from
// the original only in what changed.
TEST_F(DbfTableTest, Level7TableReadAndWrittenBack)
{
    struct F
    {
        const char *name;
        char type;
        int length, decimals;
    };
    const F fields[] = {{"NAME", 'C', 12, 0},
                        {"COUNT", 'I', 4, 0},
                        {"AMOUNT", 'O', 8, 0},
                        {"SMALL", 'N', 6, 0},
                        {"OK", 'L', 1, 0}};
    const QByteArray properties = QByteArray::fromHex("0000300000003000000030003000aa55");
    const int headerLength = 68 + 48 * 5 + 1 + properties.size();
    const int recordLength = 1 + 12 + 4 + 8 + 6 + 1;
    QByteArray h(headerLength, '\0');
    h[0] = 0x04;
    h[1] = 120;
    h[2] = 5;
    h[3] = 17;
    qToLittleEndian<quint32>(3, h.data() + 4);
    qToLittleEndian<quint16>(quint16(headerLength), h.data() + 8);
    qToLittleEndian<quint16>(quint16(recordLength), h.data() + 10);
    h[28] = 1; // the NAME field has a tag in the production index, missing here
    h[29] = 0x57;
    std::memcpy(h.data() + 32, "DBWINUS0", 8);
    for (int i = 0; i < 5; ++i) {
        char *d = h.data() + 68 + 48 * i;
        std::memcpy(d, fields[i].name, std::strlen(fields[i].name));
        d[32] = fields[i].type;
        d[33] = char(fields[i].length);
        d[34] = char(fields[i].decimals);
        d[44] = char(0x5A); // a byte the engine must keep
    }
    h[68 + 37] = 1;
    h[68 + 48 * 5] = 0x0D;
    std::memcpy(h.data() + 68 + 48 * 5 + 1, properties.constData(), std::size_t(properties.size()));
    // I: big-endian, sign bit flipped; O: big-endian, positive with the sign bit set,
    // negative all bits inverted
    const QByteArray rows = QByteArray(" ") + "first       " + QByteArray::fromHex("80000007") +
                            QByteArray::fromHex("c004000000000000") + "    42" + "T" +
                            QByteArray(" ") + "second      " + QByteArray::fromHex("7ffffffe") +
                            QByteArray::fromHex("4007ffffffffffff") + "    -3" + "F" +
                            QByteArray("*") + "third       " + QByteArray(4, '\0') +
                            QByteArray(8, '\0') + "      " + "?";
    const QByteArray original = h + rows + QByteArray(1, 0x1A);
    writeAll(path(QStringLiteral("LEVEL7.DBF")), original);

    {
        DbfTable t;
        ASSERT_TRUE(t.open(path(QStringLiteral("LEVEL7.DBF")))) << t.errorString().toStdString();
        EXPECT_TRUE(t.isLevel7());
        ASSERT_EQ(t.notices().size(), 1); // the index was built, as a level-7 (version 3) one
        EXPECT_EQ(t.index().version(), 3);
        EXPECT_EQ(t.value(0, QStringLiteral("COUNT")).toLongLong(), 7);
        EXPECT_EQ(t.value(1, QStringLiteral("COUNT")).toLongLong(), -2);
        EXPECT_EQ(t.value(0, QStringLiteral("AMOUNT")).toDouble(), 2.5);
        EXPECT_EQ(t.value(1, QStringLiteral("AMOUNT")).toDouble(), -1.5);
        EXPECT_TRUE(t.value(2, QStringLiteral("AMOUNT")).isNull());
        EXPECT_EQ(t.value(1, QStringLiteral("SMALL")).toInt(), -3);
        EXPECT_TRUE(t.isDeleted(2));
        ASSERT_TRUE(t.setValue(1, QStringLiteral("COUNT"), 9));
        ASSERT_TRUE(t.setValue(1, QStringLiteral("AMOUNT"), -1.5)); // unchanged
        ASSERT_TRUE(t.commit());
    }
    const QByteArray written = readAll(path(QStringLiteral("LEVEL7.DBF")));
    ASSERT_EQ(written.size(), original.size());
    const qint64 countAt = headerLength + recordLength + 1 + 12;
    for (qint64 i = 0; i < written.size(); ++i) {
        if ((i >= 1 && i <= 3) || (i >= countAt && i < countAt + 4))
            continue;
        ASSERT_EQ(written.at(i), original.at(i)) << "byte " << i;
    }
    EXPECT_EQ(written.mid(countAt, 4), QByteArray::fromHex("80000009"));
    EXPECT_TRUE(checkIndex(path(QStringLiteral("LEVEL7.DBF")), path(QStringLiteral("LEVEL7.MDX")),
                           {{QStringLiteral("NAME"), false}})
                    .isEmpty());

    // Cut inside its last row, it is repaired with its two whole rows and its header as it was
    // (driver name, descriptor bytes, properties) but for the date and the count.
    writeAll(path(QStringLiteral("LEVEL7.DBF")), written.left(headerLength + 2 * recordLength + 7));
    TableRepair repair(dir.path());
    const TableRepair::Result r = repair.repairFile(path(QStringLiteral("LEVEL7.DBF")), nullptr);
    EXPECT_EQ(r.state, TableRepair::State::Repaired) << r.text().toStdString();
    EXPECT_EQ(r.kept, 2);
    EXPECT_EQ(r.unreadable, 1);
    const QByteArray repaired = readAll(path(QStringLiteral("LEVEL7.DBF")));
    ASSERT_EQ(repaired.size(), headerLength + 2 * recordLength + 1);
    for (int i = 0; i < repaired.size() - 1; ++i) {
        if (i < 1 || i > 7) {
            ASSERT_EQ(repaired.at(i), written.at(i)) << "byte " << i;
        }
    }
    EXPECT_EQ(qFromLittleEndian<quint32>(repaired.constData() + 4), 2u);
    EXPECT_TRUE(checkIndex(path(QStringLiteral("LEVEL7.DBF")), path(QStringLiteral("LEVEL7.MDX")),
                           {{QStringLiteral("NAME"), false}})
                    .isEmpty());
}

// A level-4 table from another engine keeps its header bytes (language driver, reserved
// bytes, field flags) when written back; only the date, the count and the rows change.
TEST_F(DbfTableTest, KeepsForeignHeaderBytes)
{
    const TableSchema &s = TableSchema::gettoniere();
    DbfTable made;
    make(made, s);
    made.close();
    QByteArray bytes = readAll(path(s.fileName));
    bytes[29] = 0x1B; // DB437US0
    bytes[14] = 0x01; // reserved bytes another engine wrote
    bytes[32 + 32 + 20] = 0x07;
    writeAll(path(s.fileName), bytes);
    QFile::remove(path(s.indexFileName));

    DbfTable t;
    ASSERT_TRUE(t.open(path(s.fileName), &s));
    ASSERT_EQ(t.notices().size(), 1); // the missing index was rebuilt
    EXPECT_TRUE(t.notices().at(0).contains(s.indexFileName));
    const int rec = t.appendRecord();
    t.setValue(rec, QStringLiteral("IDENT"), QStringLiteral("X"));
    ASSERT_TRUE(t.commit());
    const QByteArray after = readAll(path(s.fileName));
    const int headerLength = qFromLittleEndian<quint16>(bytes.constData() + 8);
    for (int i = 0; i < headerLength; ++i) {
        if (i < 1 || i > 7) {
            EXPECT_EQ(after.at(i), bytes.at(i)) << "header byte " << i;
        }
    }
    EXPECT_TRUE(check(s).isEmpty());
}

// Tables of which nothing can be read are refused with a message naming the file and the
// fault, and left untouched (damaged tables that can be read in part: DamagedTablesTest).
TEST_F(DbfTableTest, UnreadableTablesAreRefusedUntouched)
{
    const TableSchema &s = TableSchema::channel();
    DbfTable made;
    make(made, s);
    for (int i = 0; i < 3; ++i)
        made.appendRecord();
    ASSERT_TRUE(made.commit());
    made.close();
    const QByteArray good = readAll(path(s.fileName));

    struct Case
    {
        const char *what;
        std::function<QByteArray(QByteArray)> damage;
        const TableSchema *schema;
        Msg expected;
    };
    const Case cases[] = {
        {"not dbase",
         [](QByteArray b) {
             b[0] = 0x30;
             return b;
         },
         &s, Msg::RecordsNotDbase},
        // without the fields it is known to have, a table needs a whole descriptor list
        {"tiny", [](QByteArray b) { return b.left(5); }, nullptr, Msg::RecordsHeaderTruncated},
        {"bad field",
         [](QByteArray b) {
             b[32 + 11] = 0x01;
             return b;
         },
         nullptr, Msg::RecordsBadField},
        {"missing field", [](QByteArray) { return QByteArray(); }, &TableSchema::gettoniere(),
         Msg::RecordsFieldMissing},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        const QByteArray bad = c.damage(good);
        if (!bad.isEmpty())
            writeAll(path(s.fileName), bad);
        DbfTable t;
        EXPECT_FALSE(t.open(path(s.fileName), c.schema));
        EXPECT_TRUE(t.errorString().contains(s.fileName)) << t.errorString().toStdString();
        const QString pattern = QString::fromLatin1(messageSource(c.expected))
                                    .section(QLatin1String("%s"), 1, 1)
                                    .left(12);
        EXPECT_TRUE(t.errorString().contains(pattern)) << t.errorString().toStdString();
        EXPECT_EQ(readAll(path(s.fileName)), bad.isEmpty() ? good : bad);
        writeAll(path(s.fileName), good);
    }
}

// A damaged or stale index is rebuilt from its table, with a notice saying why.
TEST_F(DbfTableTest, DamagedIndexIsRebuilt)
{
    const TableSchema &s = TableSchema::channel();
    DbfTable made;
    make(made, s);
    for (int i = 0; i < 100; ++i) {
        const int rec = made.appendRecord();
        made.setValue(rec, QStringLiteral("MONNAYEUR"), QStringLiteral("V%1").arg(i % 7));
    }
    ASSERT_TRUE(made.commit());
    made.close();
    const QByteArray index = readAll(path(s.indexFileName));

    const std::pair<const char *, std::function<void(QByteArray &)>> damages[] = {
        {"header", [](QByteArray &b) { b[22] = 7; }},
        {"pages", [](QByteArray &b) { qToLittleEndian<quint32>(99999, b.data() + 2048 + 1024); }},
        {"keys", [](QByteArray &b) { b[2048 + 1024 * 2 + 12] = 'Z'; }},
        {"truncated", [](QByteArray &b) { b.chop(1024); }},
    };
    for (const auto &[what, damage] : damages) {
        SCOPED_TRACE(what);
        QByteArray bad = index;
        damage(bad);
        writeAll(path(s.indexFileName), bad);
        DbfTable t;
        ASSERT_TRUE(t.open(path(s.fileName), &s));
        ASSERT_EQ(t.notices().size(), 1);
        EXPECT_TRUE(t.notices().at(0).contains(QLatin1String("rebuilt")));
        EXPECT_TRUE(check(s).isEmpty()) << check(s).join(QLatin1Char('\n')).toStdString();
    }
}

// Crashes at every step of a commit, on both the append and the replace path, leave the old
// or the new table, and after the next open an index that matches it.
TEST_F(DbfTableTest, CrashAtAnyStepLeavesOldOrNewPair)
{
    const TableSchema &s = TableSchema::gettoniere();
    const DbfTable::CommitStep steps[] = {
        DbfTable::CommitStep::WriteIndexTemp, DbfTable::CommitStep::AppendRecords,
        DbfTable::CommitStep::UpdateHeader,   DbfTable::CommitStep::WriteTableTemp,
        DbfTable::CommitStep::ReplaceTable,   DbfTable::CommitStep::ReplaceIndex};
    for (bool appending : {true, false}) {
        for (DbfTable::CommitStep crashAt : steps) {
            SCOPED_TRACE(testing::Message() << "append " << appending << " step " << int(crashAt));
            QFile::remove(path(s.fileName));
            QFile::remove(path(s.indexFileName));
            {
                DbfTable t;
                make(t, s);
                for (int i = 0; i < 40; ++i)
                    t.setValue(t.appendRecord(), QStringLiteral("IDENT"), QString::number(i));
                ASSERT_TRUE(t.commit());
                bool reached = false;
                DbfTable::setCommitHook([&](DbfTable::CommitStep step) {
                    reached |= step == crashAt;
                    return step == crashAt ? DbfTable::HookAction::Crash
                                           : DbfTable::HookAction::Continue;
                });
                if (appending)
                    t.setValue(t.appendRecord(), QStringLiteral("IDENT"), QStringLiteral("new"));
                else
                    t.deleteRecord(3);
                const bool committed = t.commit();
                DbfTable::setCommitHook({});
                if (!reached) {
                    EXPECT_TRUE(committed);
                    continue;
                }
                EXPECT_FALSE(committed);
                // a power cut in the middle of writing leaves a partial temporary or tail
                for (const QString &temp :
                     {path(s.fileName) + QStringLiteral(".tarvik-tmp"),
                      path(s.indexFileName) + QStringLiteral(".tarvik-tmp")}) {
                    if (QFile::exists(temp))
                        writeAll(temp, readAll(temp).left(100));
                }
                if (crashAt == DbfTable::CommitStep::AppendRecords) {
                    QFile f(path(s.fileName));
                    f.open(QIODevice::Append);
                    f.write("partial");
                }
            }
            DbfTable t;
            ASSERT_TRUE(t.open(path(s.fileName), &s)) << t.errorString().toStdString();
            const bool isNew = appending ? t.recordCount() == 41 : t.isDeleted(3);
            const bool isOld = t.recordCount() == 40 && !t.isDeleted(3);
            EXPECT_TRUE(isNew || isOld);
            // only the new table with the old index needs the index rebuilt
            EXPECT_EQ(t.notices().size(), crashAt == DbfTable::CommitStep::ReplaceIndex ? 1 : 0);
            EXPECT_TRUE(check(s).isEmpty()) << check(s).join(QLatin1Char('\n')).toStdString();
            EXPECT_FALSE(QFile::exists(path(s.fileName) + QStringLiteral(".tarvik-tmp")));
            // and the table takes the next change normally
            t.setValue(t.appendRecord(), QStringLiteral("IDENT"), QStringLiteral("after"));
            ASSERT_TRUE(t.commit());
            EXPECT_TRUE(check(s).isEmpty());
        }
    }
}

// A write that fails (a full disk) leaves the files as they were and says which file.
TEST_F(DbfTableTest, FailedWriteLosesNothing)
{
    const TableSchema &s = TableSchema::demTable();
    DbfTable t;
    make(t, s);
    t.setValue(t.appendRecord(), QStringLiteral("NOM"), QStringLiteral("kept"));
    ASSERT_TRUE(t.commit());
    const QByteArray table = readAll(path(s.fileName));
    const QByteArray index = readAll(path(s.indexFileName));
    for (auto failAt : {DbfTable::CommitStep::WriteIndexTemp, DbfTable::CommitStep::AppendRecords,
                        DbfTable::CommitStep::WriteTableTemp}) {
        DbfTable::setCommitHook([failAt](DbfTable::CommitStep step) {
            return step == failAt ? DbfTable::HookAction::Fail : DbfTable::HookAction::Continue;
        });
        if (failAt == DbfTable::CommitStep::WriteTableTemp)
            t.deleteRecord(0);
        else
            t.setValue(t.appendRecord(), QStringLiteral("NOM"), QStringLiteral("lost"));
        EXPECT_FALSE(t.commit());
        EXPECT_TRUE(t.errorString().contains(QLatin1String("cannot be written")));
        t.rollback();
        EXPECT_EQ(readAll(path(s.fileName)), table);
        EXPECT_EQ(readAll(path(s.indexFileName)), index);
        EXPECT_EQ(QDir(dir.path()).entryList({QStringLiteral("*.tarvik-tmp")}).size(), 0);

        DbfTable::setCommitHook({});
        t.setValue(t.appendRecord(), QStringLiteral("NOM"), QStringLiteral("retried"));
        ASSERT_TRUE(t.commit()) << t.errorString().toStdString(); // a failure is not lasting
        t.close();
        writeAll(path(s.fileName), table); // back to the pair of the first commit
        writeAll(path(s.indexFileName), index);
        ASSERT_TRUE(t.open(path(s.fileName), &s));
    }
}

// A table another program wrote since it was read is not overwritten.
TEST_F(DbfTableTest, RefusesToOverwriteChangesMadeElsewhere)
{
    const TableSchema &s = TableSchema::demTable();
    DbfTable t;
    make(t, s);
    QByteArray bytes = readAll(path(s.fileName));
    bytes.insert(bytes.size() - 1, QByteArray(t.field(0).length + 200, ' '));
    writeAll(path(s.fileName), bytes); // as a foreign tool appending a row would
    t.setValue(t.appendRecord(), QStringLiteral("NOM"), QStringLiteral("mine"));
    EXPECT_FALSE(t.commit());
    EXPECT_EQ(t.errorString(), messageText(Msg::RecordsChangedElsewhere, {s.fileName}));
    EXPECT_EQ(readAll(path(s.fileName)), bytes);
}

// A table in a directory that cannot be written opens read-only with a notice.
TEST_F(DbfTableTest, ReadOnlyDirectoryOpensReadOnly)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "permissions do not bind root";
    const TableSchema &s = TableSchema::demTable();
    QString error;
    ASSERT_TRUE(DbfTable::create(path(s.fileName), s, &error));
    QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::ExeOwner);
    DbfTable t;
    const bool opened = t.open(path(s.fileName), &s);
    QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    ASSERT_TRUE(opened);
    EXPECT_TRUE(t.isReadOnly());
    EXPECT_EQ(t.notices(), QStringList{messageText(Msg::RecordsReadOnly, {s.fileName})});
    EXPECT_EQ(t.appendRecord(), -1);
}

// Two programs hold one table open, both writable: each change takes the lock for its own
// moment, first reads what the other stored, and lands. A program that holds the lock past
// the wait is named, and nothing is written.
TEST_F(DbfTableTest, TableIsSharedAndEveryChangeLands)
{
    const TableSchema &s = TableSchema::valueTable();
    DbfTable first;
    make(first, s);
    DbfTable second;
    ASSERT_TRUE(second.open(path(s.fileName), &s));
    EXPECT_FALSE(second.isReadOnly());
    EXPECT_TRUE(second.notices().isEmpty());
    for (int i = 0; i < 3; ++i) {
        for (DbfTable *t : {&first, &second}) {
            ASSERT_TRUE(t->lockForChange()) << t->errorString().toStdString();
            const int r = t->appendRecord();
            ASSERT_TRUE(t->setValue(r, QStringLiteral("IDENTI"),
                                    QStringLiteral("%1-%2").arg(t == &first).arg(i)));
            ASSERT_TRUE(t->commit()) << t->errorString().toStdString();
            t->unlockChange();
        }
    }
    // an overwrite in place by one, then a delete by the other, of the same row
    ASSERT_TRUE(first.lockForChange());
    ASSERT_TRUE(first.setValue(0, QStringLiteral("DESCRIP"), QStringLiteral("changed")));
    ASSERT_TRUE(first.commit());
    first.unlockChange();
    ASSERT_TRUE(second.lockForChange());
    EXPECT_EQ(second.text(0, QStringLiteral("DESCRIP")), QStringLiteral("changed"));
    ASSERT_TRUE(second.deleteRecord(5));
    ASSERT_TRUE(second.commit());
    second.unlockChange();
    ASSERT_TRUE(first.refresh());
    EXPECT_EQ(first.liveRows().size(), 5u);
    EXPECT_TRUE(check(s).isEmpty());

    TableLock::setWaitLimitMs(150);
    TableLock elsewhere(path(s.fileName));
    ASSERT_TRUE(elsewhere.lock(TableLock::Mode::Exclusive));
    const QByteArray before = readAll(path(s.fileName));
    EXPECT_FALSE(first.lockForChange());
    EXPECT_TRUE(first.errorString().startsWith(s.fileName + QStringLiteral(": waited 0.")))
        << first.errorString().toStdString();
    EXPECT_TRUE(first.errorString().contains(QStringLiteral(" %1 on ").arg(getpid())));
    first.setValue(first.appendRecord(), QStringLiteral("IDENTI"), QStringLiteral("late"));
    EXPECT_FALSE(first.commit()); // a commit without the lock waits for it too
    EXPECT_EQ(readAll(path(s.fileName)), before);
    first.rollback();
    // A reader's shared lock holds off such a commit as well.
    elsewhere.unlock();
    ASSERT_TRUE(elsewhere.lock(TableLock::Mode::Shared));
    first.setValue(first.appendRecord(), QStringLiteral("IDENTI"), QStringLiteral("late"));
    EXPECT_FALSE(first.commit());
    EXPECT_EQ(readAll(path(s.fileName)), before);
    first.rollback();
    elsewhere.unlock();
    TableLock::setWaitLimitMs(-1);
}

} // namespace

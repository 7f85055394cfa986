#include "DbfTable.h"
#include "IndexChecker.h"
#include "RecordingPrompt.h"
#include "TDBModule.h"
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
#include <gtest/gtest.h>

// Tarvik's files as other programs read them: contents through python3-dbfread, index trees
// through index_dump of libdbd-xbase-perl, and both through Free Pascal's TDbf, which also
// writes into the index.
namespace {

using namespace testfiles;

// A data directory with every table holding rows, some deleted, and duplicate keys.
class ExternalReadersTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(db.open(dir.path()));
        RecordingPrompt prompt(UserPrompt::Answer::Yes);
        ValidatorStore store(db, prompt);
        ConfigImage image = ConfigImage::blank();
        for (int k = 0; k < kChannels; ++k)
            image.channels[std::size_t(k)].fill(quint8(k));
        for (const char *ident : {"Zeta", "alpha", "Mid é", "alpha", "beta"})
            ASSERT_EQ(store.store(image, QString::fromUtf8(ident), QStringLiteral("d")),
                      ValidatorStore::Outcome::Stored);
        for (DbfTable *t : {db.DemTable(), db.DetTablle(), db.ValueTable()}) {
            const QString key = t->field(0).name;
            for (const char *name : {"b", "a", "b", "c"})
                t->setValue(t->appendRecord(), key, QString::fromLatin1(name));
            t->setValue(0, t->field(2).name, 7);
            t->deleteRecord(3);
            ASSERT_TRUE(t->commit());
        }
    }

    QTemporaryDir dir;
    TDBModule db;
};

TEST_F(ExternalReadersTest, DbfreadReadsWhatTarvikWrote)
{
    if (!QFileInfo(QStringLiteral(TARVIK_PYTHON)).isExecutable())
        GTEST_SKIP() << "python3 with dbfread not found";
    for (DbfTable *t :
         {db.Gettoniere(), db.Channel(), db.DemTable(), db.DetTablle(), db.ValueTable()}) {
        SCOPED_TRACE(t->fileName().toStdString());
        const QJsonObject dump =
            QJsonDocument::fromJson(run(QStringLiteral(TARVIK_PYTHON),
                                        {QStringLiteral(TARVIK_DBFREAD_SCRIPT), t->filePath()}))
                .object();
        EXPECT_EQ(dump.value(QLatin1String("mdx")).toInt(), 1);
        EXPECT_EQ(dump.value(QLatin1String("language")).toInt(), 0x57);
        const QJsonArray fields = dump.value(QLatin1String("fields")).toArray();
        ASSERT_EQ(fields.size(), t->fieldCount());
        for (int f = 0; f < t->fieldCount(); ++f)
            EXPECT_EQ(fields.at(f).toString(), t->field(f).name);
        const QJsonArray records = dump.value(QLatin1String("records")).toArray();
        const std::vector<int> live = t->liveRows();
        ASSERT_EQ(std::size_t(records.size()), live.size());
        EXPECT_EQ(dump.value(QLatin1String("deleted")).toInt(),
                  t->recordCount() - int(live.size()));
        for (std::size_t i = 0; i < live.size(); ++i) {
            const QJsonArray values = records.at(qsizetype(i)).toArray();
            for (int f = 0; f < t->fieldCount(); ++f) {
                const QJsonValue theirs = values.at(f);
                const QVariant ours = t->value(live[i], f);
                if (ours.isNull()) {
                    EXPECT_TRUE(theirs.isNull() || theirs.toString().isEmpty());
                } else if (t->field(f).type == 'C') {
                    EXPECT_EQ(theirs.toString(), ours.toString());
                } else if (t->field(f).type == 'L') {
                    EXPECT_EQ(theirs.toString(),
                              ours.toBool() ? QLatin1String("True") : QLatin1String("False"));
                } else {
                    EXPECT_EQ(theirs.toString().toDouble(), ours.toDouble());
                }
            }
        }
    }
}

TEST_F(ExternalReadersTest, IndexDumpWalksEveryTag)
{
    if (!QFileInfo(QStringLiteral(TARVIK_INDEX_DUMP)).isExecutable())
        GTEST_SKIP() << "index_dump not found";
    for (DbfTable *t :
         {db.Gettoniere(), db.Channel(), db.DemTable(), db.DetTablle(), db.ValueTable()}) {
        SCOPED_TRACE(t->fileName().toStdString());
        const TableSchema &s = *t->schema();
        const QString tags =
            QString::fromLatin1(run(QStringLiteral(TARVIK_INDEX_DUMP), {t->indexPath()}));
        EXPECT_EQ(tags.trimmed(), s.tags.at(0).name);

        // what the tag must hold: live rows by key, then row number; the first row of each
        // key for a unique tag
        const int f = t->fieldIndex(s.tags.at(0).field);
        std::vector<std::pair<QByteArray, int>> wanted;
        for (int r : t->liveRows())
            wanted.push_back({t->rawField(r, f), r + 1});
        std::sort(wanted.begin(), wanted.end());
        QStringList expected;
        for (std::size_t i = 0; i < wanted.size(); ++i) {
            if (s.tags.at(0).unique && i > 0 && wanted[i].first == wanted[i - 1].first)
                continue;
            expected << QString::fromLatin1(wanted[i].first + ' ' +
                                            QByteArray::number(wanted[i].second));
        }
        const QString dump = QString::fromLatin1(
            run(QStringLiteral(TARVIK_INDEX_DUMP), {t->indexPath(), s.tags.at(0).name}));
        EXPECT_EQ(dump.split(QLatin1Char('\n'), Qt::SkipEmptyParts), expected);
    }
}

// TDbf finds every row through our index in key order, then appends rows through it; the
// index it leaves passes our own open-time check and the independent checker.
TEST_F(ExternalReadersTest, TdbfSeeksAndWritesThroughOurIndex)
{
    if (!QFileInfo(QStringLiteral(TARVIK_FPC)).isExecutable())
        GTEST_SKIP() << "fpc not found";
    QTemporaryDir build;
    const QString program = QDir(build.path()).filePath(QStringLiteral("tdbf_check"));
    run(QStringLiteral(TARVIK_FPC),
        {QStringLiteral("-O1"), QStringLiteral("-FU") + build.path(),
         QStringLiteral("-o") + program, QStringLiteral(TARVIK_TDBF_SOURCE)});
    ASSERT_TRUE(QFileInfo(program).isExecutable());

    DbfTable &channels = *db.Channel();
    const QString table = channels.filePath();
    const QString index = channels.indexPath();
    channels.close();
    // TDbf on a case-sensitive file system looks for the index with a lower-case extension
    const QString lower = index.left(index.size() - 3) + QStringLiteral("mdx");
    ASSERT_TRUE(QFile::rename(index, lower));
    const QString args =
        QString::fromLatin1(run(program, {table, QStringLiteral("MONNAYEUR"),
                                          QStringLiteral("MONNAYEUR"), QStringLiteral("900")}));
    EXPECT_TRUE(args.startsWith(QLatin1String("rows 240 misordered 0 misses 0")))
        << args.toStdString();
    ASSERT_TRUE(QFile::rename(lower, index));

    ASSERT_TRUE(channels.open(table, &TableSchema::channel()));
    EXPECT_TRUE(channels.notices().isEmpty())
        << channels.notices().join(QLatin1Char(' ')).toStdString();
    EXPECT_EQ(channels.recordCount(), 1200);
    EXPECT_TRUE(checkIndex(table, index, {{QStringLiteral("MONNAYEUR"), false}}).isEmpty());
}

} // namespace

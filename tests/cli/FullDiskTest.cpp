// Every file tarvik-cli writes, on a disk that is full: the command fails, says so in plain
// words, and every file that was there is left byte for byte; the tables keep no row of the
// failed save, for Tarvik and for dbfread. The disk is a small tmpfs (mounting needs root:
// the test is skipped where it is not allowed).
#include "InProcessCli.h"
#include "SimProcess.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QProcess>
#include <gtest/gtest.h>

namespace {

const QString kDiskFull = QStringLiteral("No space left on the disk: nothing was written");

class FullDisk : public CliFixture
{
protected:
    void SetUp() override
    {
        CliFixture::SetUp();
        disk = dir.filePath(QStringLiteral("disk"));
        ASSERT_TRUE(QDir().mkpath(disk));
        QProcess mount;
        mount.start(QStringLiteral("mount"),
                    {QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("-o"),
                     QStringLiteral("size=1m"), QStringLiteral("tarvik-full"), disk});
        if (!mount.waitForFinished(30000) || mount.exitStatus() != QProcess::NormalExit ||
            mount.exitCode() != 0)
            GTEST_SKIP() << "cannot mount a tmpfs here";
        mounted = true;
        qputenv("TARVIK_DB", QFile::encodeName(path("db")));
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    void TearDown() override
    {
        if (mounted)
            QProcess::execute(QStringLiteral("umount"), {QStringLiteral("-l"), disk});
    }

    QString path(const char *name) const { return QDir(disk).filePath(QLatin1String(name)); }

    // Fills the disk, keeping `reserve` pages that free() gives back one by one.
    void fill(int reserve)
    {
        for (int i = 0; i < reserve; ++i)
            writeBytes(QDir(disk).filePath(QStringLiteral("reserve%1").arg(i)), 4096);
        QFile filler(path("fill"));
        ASSERT_TRUE(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        const QByteArray chunk(4096, 'f');
        while (filler.write(chunk) == chunk.size()) {
        }
    }
    void free(int page)
    {
        QFile::remove(QDir(disk).filePath(QStringLiteral("reserve%1").arg(page)));
    }

    static void writeBytes(const QString &file, int size)
    {
        QFile f(file);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        ASSERT_EQ(f.write(QByteArray(size, 'r')), size);
    }

    // Every file on the disk but the fillers, with its bytes.
    QMap<QString, QByteArray> files() const
    {
        QMap<QString, QByteArray> all;
        QDirIterator it(disk, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString file = it.next();
            const QString name = QDir(disk).relativeFilePath(file);
            // The lock files name the program holding them: they are not data.
            if (name.startsWith(QLatin1String("fill")) ||
                name.startsWith(QLatin1String("reserve")) || name.contains(QLatin1String(".lck")))
                continue;
            QFile f(file);
            all.insert(name, f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("?"));
        }
        return all;
    }

    // The files added, gone or changed since `before`.
    QStringList changedSince(const QMap<QString, QByteArray> &before) const
    {
        const QMap<QString, QByteArray> now = files();
        QStringList changed;
        for (auto it = now.begin(); it != now.end(); ++it) {
            if (before.value(it.key(), QByteArray("\x01gone")) != it.value())
                changed.append(it.key());
        }
        for (auto it = before.begin(); it != before.end(); ++it) {
            if (!now.contains(it.key()))
                changed.append(it.key());
        }
        return changed;
    }

    QString disk;
    bool mounted = false;
};

// The live rows of a table as dbfread reads them; -1 when it cannot.
int dbfreadRows(const QString &table)
{
    if (!QFileInfo(QStringLiteral(TARVIK_PYTHON)).isExecutable())
        return -1;
    QProcess p;
    p.start(QStringLiteral(TARVIK_PYTHON), {QStringLiteral(TARVIK_DBFREAD_SCRIPT), table});
    if (!p.waitForFinished(60000) || p.exitCode() != 0)
        return -2;
    return int(QJsonDocument::fromJson(p.readAllStandardOutput())
                   .object()
                   .value(QLatin1String("records"))
                   .toArray()
                   .size());
}

TEST_F(FullDisk, EveryWritingCommandFailsAndLeavesTheFilesAsTheyWere)
{
    // What a technician has on the disk: a read, its backup, a stored validator, a sheet, a
    // chart and an edited copy.
    const QString config = path("v.json");
    ASSERT_EQ(runTarvikCli({"--simulate", "read", "-o", config}).exitCode, 0);
    ASSERT_EQ(runTarvikCli({"save", config, "--ident", "A1"}).exitCode, 0);
    ASSERT_EQ(runTarvikCli({"load", "A1", "-o", path("a1.json")}).exitCode, 0);
    ASSERT_EQ(runTarvikCli({"edit", config, "-o", path("e.json")}).exitCode, 0);
    ASSERT_EQ(runTarvikCli({"sheet", config, "-o", path("s.pdf")}).exitCode, 0);
    ASSERT_EQ(runTarvikCli({"overlap", config, "--chart", path("c.png")}).exitCode, 0);
    ASSERT_EQ(runTarvikCli({"values", "save", "EURO", config}).exitCode, 0);
    const QMap<QString, QByteArray> before = files();
    ASSERT_EQ(QDir(path("db/backups")).entryList(QDir::Files).size(), 1);
    fill(0);

    const QList<QStringList> commands = {
        {"--simulate", "read", "-o", config},
        {"load", "A1", "-o", path("a1.json")},
        {"edit", config, "-o", path("e.json")},
        {"sheet", config, "-o", path("s.pdf")},
        {"overlap", config, "--chart", path("c.png")},
        {"save", config, "--ident", "B2"},
        {"save", config, "--ident", "A1", "--overwrite"},
        {"values", "save", "EURO", config, "--overwrite", "--description", "other"},
        {"delete", "A1"},
    };
    // A read happens even when its file cannot be written: the validator's history may keep it
    // (in the room its file's last block has left) or say it could not; it stays readable.
    const QString history = QStringLiteral("db/history/1001.tvh");
    auto changedBesidesHistory = [&] {
        QStringList changed = changedSince(before);
        changed.removeAll(history);
        return changed;
    };
    for (const QStringList &command : commands) {
        SCOPED_TRACE(command.join(' ').toStdString());
        const CliRun run = runTarvikCli(command);
        EXPECT_NE(run.exitCode, 0);
        EXPECT_TRUE(run.err.contains(kDiskFull)) << qPrintable(run.err);
        EXPECT_EQ(changedBesidesHistory(), QStringList());
    }

    // A read whose backup cannot be kept is done all the same, and says so; the good backup
    // stays, and no empty one is kept.
    const CliRun read = runTarvikCli({"--simulate", "read"});
    EXPECT_EQ(read.exitCode, 0);
    EXPECT_TRUE(read.out.contains(QLatin1String("tarvik-config")));
    EXPECT_TRUE(read.err.contains(QLatin1String("The backup of this read could not be written")));
    EXPECT_TRUE(read.err.contains(kDiskFull)) << qPrintable(read.err);
    EXPECT_EQ(changedBesidesHistory(), QStringList());
    const CliRun listed = runTarvikCli({"history", "1001"});
    EXPECT_EQ(listed.exitCode, 0) << qPrintable(listed.err);
    EXPECT_TRUE(listed.out.startsWith(QLatin1String("1  "))) << qPrintable(listed.out);
}

// A save that runs out of space part of the way through (its index written, its rows not all
// appended): whatever the space left, the tables are as they were, byte for byte, and dbfread
// finds no row of the failed save.
TEST_F(FullDisk, ASaveCutShortLeavesNoRowBehind)
{
    const QString config = path("v.json");
    ASSERT_EQ(runTarvikCli({"--simulate", "read", "-o", config}).exitCode, 0);
    ASSERT_EQ(runTarvikCli({"save", config, "--ident", "A1"}).exitCode, 0);
    const QString channels = path("db/Canaux.dbf");
    const int rows = dbfreadRows(channels);
    const QMap<QString, QByteArray> before = files();
    constexpr int kPages = 16;
    fill(kPages);
    bool stored = false;
    for (int page = 0; page < kPages && !stored; ++page) {
        SCOPED_TRACE(page);
        free(page);
        const CliRun run = runTarvikCli({"save", config, "--ident", "B2"});
        stored = run.exitCode == 0;
        if (stored)
            break;
        EXPECT_TRUE(run.err.contains(kDiskFull)) << qPrintable(run.err);
        EXPECT_EQ(changedSince(before), QStringList());
        EXPECT_EQ(dbfreadRows(channels), rows);
        const CliRun list = runTarvikCli({"list"});
        EXPECT_FALSE(list.out.contains(QLatin1String("B2")));
    }
    EXPECT_TRUE(stored) << "16 pages hold a save";
    EXPECT_EQ(dbfreadRows(channels), rows < 0 ? rows : rows + 60);
}

} // namespace

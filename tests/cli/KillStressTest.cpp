// tarvik-cli killed (SIGKILL) at random instants while it saves, overwrites and deletes
// validators: after every kill, the next program to open the directory sees each validator
// whole, from one save (its row and its 60 channel rows carry the save's generation), or as it
// was before, and python3-dbfread and Perl XBase read the same validators as `list` shows.
#include "ConfigFile.h"
#include "ConfigImage.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>
#include <map>
#include <optional>

#include <csignal>

namespace {

struct CliRun
{
    int exit = -1;
    QString out, err;
};

CliRun cli(const QString &dir, const QStringList &args)
{
    QProcess p;
    p.start(QStringLiteral(TARVIK_CLI_PATH), QStringList{QStringLiteral("--data-dir"), dir} + args);
    p.waitForFinished(120000);
    return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1,
            QString::fromUtf8(p.readAllStandardOutput()),
            QString::fromUtf8(p.readAllStandardError())};
}

// A save of generation g: the validator row (prices 0-1) and every channel row (bytes 0-1)
// carry it.
ConfigImage imageOf(int g)
{
    ConfigImage image = ConfigImage::blank();
    image.prices[0] = quint8(g / 250);
    image.prices[1] = quint8(g % 250);
    for (int k = 0; k < kChannels; ++k) {
        image.channels[std::size_t(k)][0] = quint8(g / 250);
        image.channels[std::size_t(k)][1] = quint8(g % 250);
        image.channels[std::size_t(k)][2] = quint8(k);
    }
    return image;
}

// What a reader sees of one validator: "description<TAB>row gen<TAB>rows<TAB>channels<TAB>gens".
QString whole(int g)
{
    return QStringLiteral("gen %1\t%1\t60\t60\t%1").arg(g);
}

QStringList readerLines(const char *program, const char *script, const QString &dir)
{
    QProcess p;
    p.start(QString::fromLatin1(program), {QString::fromLatin1(script), dir});
    p.waitForFinished(120000);
    EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
    QStringList lines =
        QString::fromUtf8(p.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    lines.sort();
    return lines;
}

// Where the kill landed, from what the killed program left on disk.
QString landing(const QString &dir)
{
    const QDir d(dir);
    const QStringList journals = d.entryList({QStringLiteral("*.tarvik-journal")});
    if (!journals.isEmpty()) {
        QFile file(d.filePath(journals.first()));
        file.open(QIODevice::ReadOnly);
        return QJsonDocument::fromJson(file.readAll())
                       .object()
                       .value(QLatin1String("decided"))
                       .toBool()
                   ? QStringLiteral("decided, journal left")
                   : QStringLiteral("rows appended, journal says prepared");
    }
    if (!d.entryList({QStringLiteral("*.tarvik-tmp")}).isEmpty())
        return QStringLiteral("preparing, temporaries left");
    return QStringLiteral("no commit under way");
}

TEST(KillStress, EveryValidatorWholeAfterEachKill)
{
    if (!QFileInfo(QStringLiteral(TARVIK_PYTHON)).isExecutable())
        GTEST_SKIP() << "python3 with dbfread not found";
    const int kills = qEnvironmentVariableIntValue("TARVIK_KILLS") > 0
                          ? qEnvironmentVariableIntValue("TARVIK_KILLS")
                          : 300;
    QTemporaryDir root;
    root.setAutoRemove(qEnvironmentVariableIsEmpty("TARVIK_KEEP_DIR"));
    const QString dir = QDir(root.path()).filePath(QStringLiteral("db"));
    const QStringList idents = {QStringLiteral("K1"), QStringLiteral("K2"), QStringLiteral("K3"),
                                QStringLiteral("K4"), QStringLiteral("K5")};
    std::map<QString, int> stored; // the generation each stored validator holds
    int generation = 0;
    auto fileOf = [&](int g) {
        const QString path = QDir(root.path()).filePath(QStringLiteral("gen%1.json").arg(g));
        QString error;
        EXPECT_TRUE(saveConfigFile(path, imageOf(g), &error)) << error.toStdString();
        return path;
    };
    // Fill the tables somewhat, and time a save so that the kills fall within one.
    for (const QString &ident : idents.mid(0, 3)) {
        ++generation;
        const CliRun r =
            cli(dir, {QStringLiteral("save"), fileOf(generation), QStringLiteral("--ident"), ident,
                      QStringLiteral("--description"), QStringLiteral("gen %1").arg(generation)});
        ASSERT_EQ(r.exit, 0) << r.err.toStdString();
        stored[ident] = generation;
    }
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 3; ++i) { // overwrites of K1 with what it holds
        const CliRun r = cli(dir, {QStringLiteral("save"), fileOf(1), QStringLiteral("--ident"),
                                   QStringLiteral("K1"), QStringLiteral("--description"),
                                   QStringLiteral("gen 1"), QStringLiteral("--overwrite")});
        ASSERT_EQ(r.exit, 0) << r.err.toStdString();
    }
    const qint64 runMs = std::max<qint64>(clock.elapsed() / 3, 25);

    QRandomGenerator random(quint32(qEnvironmentVariableIntValue("TARVIK_KILL_SEED") + 27));
    std::map<QString, int> landings, outcomes;
    for (int n = 0; n < kills; ++n) {
        const QString ident = idents.at(int(random.bounded(idents.size())));
        const bool remove = random.bounded(4) == 0;
        const int g = ++generation;
        QStringList args =
            remove ? QStringList{QStringLiteral("delete"), ident}
                   : QStringList{QStringLiteral("save"),          fileOf(g),
                                 QStringLiteral("--ident"),       ident,
                                 QStringLiteral("--description"), QStringLiteral("gen %1").arg(g),
                                 QStringLiteral("--overwrite")};
        const QString kind = remove                     ? QStringLiteral("delete")
                             : stored.count(ident) != 0 ? QStringLiteral("overwrite")
                                                        : QStringLiteral("save");
        // The kill falls at a random instant of the last 20 ms of a run, where the commit is.
        const qint64 at = std::max<qint64>(0, runMs - 20) + qint64(random.bounded(21));
        QProcess p;
        p.start(QStringLiteral(TARVIK_CLI_PATH),
                QStringList{QStringLiteral("--data-dir"), dir} + args);
        ASSERT_TRUE(p.waitForStarted(60000));
        QThread::usleep(ulong(at * 1000));
        ::kill(pid_t(p.processId()), SIGKILL);
        p.waitForFinished(60000);
        const bool finished = p.exitStatus() == QProcess::NormalExit;
        ++landings[kind + QStringLiteral(": ") +
                   (finished ? QStringLiteral("finished before the kill") : landing(dir))];

        // The next program completes or drops what the killed one left, and reads.
        const CliRun list = cli(dir, {QStringLiteral("list")});
        ASSERT_EQ(list.exit, 0) << list.err.toStdString();
        std::map<QString, int> listed;
        for (const QString &line : list.out.split(u'\n', Qt::SkipEmptyParts)) {
            const QStringList f = line.split(u'\t');
            ASSERT_GE(f.size(), 2);
            ASSERT_TRUE(f.at(1).startsWith(QLatin1String("gen "))) << line.toStdString();
            listed[f.at(0)] = f.at(1).mid(4).toInt();
        }
        // The touched validator is as before or as the killed command left it; no other changed.
        std::map<QString, int> before = stored, after = stored;
        if (remove)
            after.erase(ident);
        else
            after[ident] = g;
        const bool old = listed == before, now = listed == after;
        ASSERT_TRUE(old || now) << "kill " << n << " (" << kind.toStdString() << " of "
                                << ident.toStdString() << " at " << at << " ms)";
        ++outcomes[kind + (now && !old ? QStringLiteral(": done") : QStringLiteral(": not done"))];
        stored = listed;

        // Whole in the tables, as both other readers see them.
        QStringList expected;
        for (const auto &[name, gen] : stored)
            expected.append(name + u'\t' + whole(gen));
        expected.sort();
        ASSERT_EQ(readerLines(TARVIK_PYTHON, TARVIK_STORED_PY, dir), expected)
            << "kill " << n << " in " << dir.toStdString();
        ASSERT_EQ(readerLines("perl", TARVIK_STORED_PL, dir), expected) << "kill " << n;
        // and as tarvik-cli loads the one touched
        if (stored.count(ident)) {
            const CliRun load = cli(dir, {QStringLiteral("load"), ident});
            ASSERT_EQ(load.exit, 0) << load.err.toStdString();
            ConfigImage image;
            QString error;
            ASSERT_TRUE(configFromJson(load.out.toUtf8(), image, &error)) << error.toStdString();
            ConfigImage want = imageOf(stored[ident]);
            EXPECT_EQ(image.prices[0], want.prices[0]);
            EXPECT_EQ(image.prices[1], want.prices[1]);
            for (int k = 0; k < kChannels; ++k)
                ASSERT_EQ(image.channels[std::size_t(k)][1], want.channels[std::size_t(k)][1]);
        }
    }
    EXPECT_TRUE(QDir(dir).entryList({QStringLiteral("*.tarvik-journal")}).isEmpty());
    std::printf("%d kills, a save timed at %lld ms, kills at %lld-%lld ms\n", kills,
                static_cast<long long>(runMs),
                static_cast<long long>(std::max<qint64>(0, runMs - 20)),
                static_cast<long long>(std::max<qint64>(0, runMs - 20) + 20));
    for (const auto &[what, count] : landings)
        std::printf("  %-55s %d\n", qPrintable(what), count);
    for (const auto &[what, count] : outcomes)
        std::printf("  %-55s %d\n", qPrintable(what), count);
}

} // namespace

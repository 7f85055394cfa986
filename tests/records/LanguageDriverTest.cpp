#include "LanguageDriver.h"
#include "DbfTable.h"
#include "Messages.h"
#include "RecordingPrompt.h"
#include "TDBModule.h"
#include "TableSchema.h"
#include "TestFiles.h"
#include "ValidatorStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

// Tables of the Western European language drivers: their text in the driver's code page and
// their keys in the driver's order, proved against Free Pascal's TDbf, which makes the tables
// and then seeks through, and regenerates, the index Tarvik leaves.
namespace {

using namespace testfiles;

TEST(LanguageDriverTest, CodePagesAndOrders)
{
    const LanguageDriver *we = LanguageDriver::byId(0x58);
    const LanguageDriver *de437 = LanguageDriver::byName(u"db437de0");
    const LanguageDriver *it850 = LanguageDriver::byId(0x12);
    ASSERT_TRUE(we && de437 && it850);
    EXPECT_STREQ(it850->name, "DB850IT1");
    EXPECT_EQ(LanguageDriver::byId(0x64), nullptr); // a FoxPro driver
    EXPECT_EQ(LanguageDriver::byName(u"DBWINXX0"), nullptr);

    // "Émile, ß, €" in each code page, and back
    EXPECT_EQ(we->encode(u"Émile ß €"), QByteArray("\xC9mile \xDF \x80"));
    EXPECT_EQ(de437->encode(u"Émile ß €"), QByteArray("\x90mile \xE1 ?"));
    EXPECT_EQ(it850->encode(u"Émile ø"), QByteArray("\x90mile \x9B"));
    for (const LanguageDriver *d : {we, de437, it850}) {
        QByteArray every(256, '\0');
        for (int b = 0; b < 256; ++b)
            every[b] = char(b);
        EXPECT_EQ(d->encode(d->decode(every.constData(), 256)), every) << d->name;
    }

    // byte order for the US drivers; lower before upper, accents beside their letter, for
    // the others
    auto less = [](const LanguageDriver &d, const QString &a, const QString &b) {
        const QByteArray x = d.encode(a), y = d.encode(b);
        return d.compare(x.constData(), y.constData(), std::size_t(x.size())) < 0;
    };
    EXPECT_TRUE(less(*LanguageDriver::byId(0x57), u"Z"_qs, u"a"_qs));
    EXPECT_TRUE(less(*we, u"a"_qs, u"Z"_qs));
    EXPECT_TRUE(less(*we, u"e"_qs, u"É"_qs));
    EXPECT_TRUE(less(*we, u"É"_qs, u"f"_qs));
    EXPECT_TRUE(less(*de437, u"ü"_qs, u"v"_qs));
}

QString mdx(const QString &table)
{
    return DbfTable::findInDirectory(QFileInfo(table).absolutePath(),
                                     QFileInfo(table).completeBaseName() + QStringLiteral(".mdx"));
}

QString fieldSpec(const TableSchema &s)
{
    QStringList parts;
    for (const FieldDef &f : s.fields) {
        switch (f.kind) {
        case FieldKind::String:
            parts << QStringLiteral("%1:C:%2").arg(f.name).arg(f.width);
            break;
        case FieldKind::SmallInt:
            parts << f.name + QStringLiteral(":S");
            break;
        case FieldKind::Float:
            parts << f.name + QStringLiteral(":F");
            break;
        case FieldKind::Boolean:
            parts << f.name + QStringLiteral(":L");
            break;
        }
    }
    return parts.join(QLatin1Char(','));
}

struct DriverCase
{
    int level;
    quint8 driver;
};

class TdbfLanguageTest : public ::testing::TestWithParam<DriverCase>
{
protected:
    static void SetUpTestSuite()
    {
        if (!QFileInfo(QStringLiteral(TARVIK_FPC)).isExecutable())
            return;
        s_build = new QTemporaryDir;
        s_program = QDir(s_build->path()).filePath(QStringLiteral("tdbf_collation"));
        run(QStringLiteral(TARVIK_FPC),
            {QStringLiteral("-O1"), QStringLiteral("-FU") + s_build->path(),
             QStringLiteral("-o") + s_program, QStringLiteral(TARVIK_TDBF_COLLATION)});
    }
    static void TearDownTestSuite()
    {
        delete s_build;
        s_build = nullptr;
    }
    void SetUp() override
    {
        if (!s_build || !QFileInfo(s_program).isExecutable())
            GTEST_SKIP() << "fpc not found";
    }

    ToolRun tdbf(const QStringList &arguments) const
    {
        const ToolRun r = runTool(s_program, arguments);
        if (r.exitCode != 0 && r.exitCode != 1) // 1: a walk that missed keys, reported by it
            ADD_FAILURE() << "tdbf_collation: " << r.err.toStdString();
        return r;
    }

    // Keys starting with every printable byte, and names in mixed case with accents.
    static QByteArray keys(const LanguageDriver &d)
    {
        QByteArray lines;
        for (int b = 0x21; b < 0x100; ++b)
            lines += char(b) + QByteArray("key\n");
        const char *names[] = {"Émile",  "émile",  "EMILE", "emile", "Zoë",   "ZOE",   "Müller",
                               "MULLER", "muller", "Ça va", "ca va", "Ñandú", "nandu", "Åsa",
                               "åsa",    "Øre",    "öre",   "Ærø",   "aero",  "Ïle"};
        for (int n = 0; n < 10; ++n) {
            for (const char *name : names)
                lines += d.encode(QString::fromUtf8(name) + QLatin1Char(' ') + QString::number(n)) +
                         '\n';
        }
        return lines;
    }

    // The rows of a table in its tag's order as TDbf walks them, after seeking every key.
    QStringList walk(const QString &table, const QString &tag) const
    {
        const ToolRun p = tdbf({QStringLiteral("walk"), table, tag, tag});
        QStringList lines = QString::fromLatin1(p.out).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        EXPECT_EQ(p.exitCode, 0) << (lines.isEmpty() ? "" : lines.last().toStdString());
        if (!lines.isEmpty())
            lines.removeLast(); // "misses N"
        return lines;
    }

    static QTemporaryDir *s_build;
    static QString s_program;
};

QTemporaryDir *TdbfLanguageTest::s_build = nullptr;
QString TdbfLanguageTest::s_program;

TEST_P(TdbfLanguageTest, SavesIntoTablesOfAnotherEngineKeepingItsKeyOrder)
{
    const DriverCase c = GetParam();
    const LanguageDriver &driver = *LanguageDriver::byId(c.driver);
    SCOPED_TRACE(std::string(driver.name) + " level " + std::to_string(c.level));
    QTemporaryDir dir;
    const QString keysFile = dir.filePath(QStringLiteral("keys.txt"));
    {
        QFile f(keysFile);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(keys(driver));
    }
    const QString data = dir.filePath(QStringLiteral("db"));
    QDir().mkpath(data);
    const QList<std::pair<const TableSchema *, QString>> tables = {
        {&TableSchema::gettoniere(), QStringLiteral("IDENT")},
        {&TableSchema::channel(), QStringLiteral("MONNAYEUR")}};
    for (const auto &[schema, tag] : tables) {
        ASSERT_EQ(tdbf({QStringLiteral("create"), QDir(data).filePath(schema->fileName),
                        QString::number(c.level), QString::number(c.driver), fieldSpec(*schema),
                        tag, keysFile})
                      .exitCode,
                  0);
    }

    {
        TDBModule db;
        RecordingPrompt prompt(UserPrompt::Answer::Yes);
        ASSERT_TRUE(db.open(data, &prompt)) << db.errorString().toStdString();
        for (DbfTable *t : {db.Gettoniere(), db.Channel()}) {
            // the index TDbf built passes Tarvik's own check: same order, nothing rebuilt
            EXPECT_FALSE(t->isReadOnly()) << t->notices().join(u' ').toStdString();
            EXPECT_EQ(t->driver(), &driver);
        }
        EXPECT_EQ(db.notices().size(), 1) << db.notices().join(u'\n').toStdString();
        // tables Tarvik adds take the driver the others share
        for (DbfTable *t : {db.DemTable(), db.DetTablle(), db.ValueTable()})
            EXPECT_EQ(t->languageDriver(), c.driver);

        DbfTable &validators = *db.Gettoniere();
        const int muller = validators.locate(QStringLiteral("IDENT"), u"MÜLLER 3"_qs);
        ASSERT_GE(muller, 0);
        EXPECT_EQ(validators.text(muller, 0), u"Müller 3"_qs);

        prompt.clear();
        ValidatorStore store(db, prompt);
        ConfigImage image = ConfigImage::blank();
        EXPECT_EQ(store.store(image, u"Émile Nouveau"_qs, u"neuf"_qs),
                  ValidatorStore::Outcome::Stored);
        EXPECT_EQ(store.store(image, u"ÉMILE 4"_qs, u"remplacé"_qs),
                  ValidatorStore::Outcome::Stored);
        EXPECT_TRUE(store.remove(u"zoë 2"_qs));
        ASSERT_EQ(prompt.told().size(), 2); // "File %s saved" twice
        EXPECT_TRUE(prompt.told().at(0).contains(u"Émile Nouveau"_qs));
        const int added = validators.locate(QStringLiteral("IDENT"), u"émile nouveau"_qs);
        ASSERT_GE(added, 0);
        EXPECT_EQ(quint8(validators.rawField(added, 0).at(0)),
                  driver.codePage == LanguageDriver::CodePage::Windows1252 ? 0xC9 : 0x90);
    }

    // TDbf finds every key through Tarvik's index, and its own regenerated index orders the
    // rows the same way, key for key
    const QString copy = dir.filePath(QStringLiteral("copy"));
    QDir().mkpath(copy);
    for (const auto &[schema, tag] : tables) {
        const QString table = DbfTable::findInDirectory(data, schema->fileName);
        const QString index = DbfTable::findInDirectory(data, schema->indexFileName);
        const QStringList ours = walk(table, tag);
        EXPECT_GT(ours.size(), 400);
        const QString copied = QDir(copy).filePath(QFileInfo(table).fileName());
        ASSERT_TRUE(QFile::copy(table, copied));
        ASSERT_TRUE(QFile::copy(index, QDir(copy).filePath(QFileInfo(index).fileName())));
        ASSERT_EQ(tdbf({QStringLiteral("regen"), copied}).exitCode, 0);
        EXPECT_EQ(ours, walk(copied, tag)) << schema->fileName.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Drivers, TdbfLanguageTest,
                         ::testing::Values(DriverCase{4, 0x58}, DriverCase{7, 0x58},
                                           DriverCase{4, 0x0F}, DriverCase{7, 0x12}),
                         [](const auto &info) {
                             return QStringLiteral("Level%1Driver%2")
                                 .arg(info.param.level)
                                 .arg(info.param.driver, 2, 16, QLatin1Char('0'))
                                 .toStdString();
                         });

// What cannot be kept stays read-only with its reason: a driver this program does not know,
// a descending tag, a tag on an expression.
TEST_F(TdbfLanguageTest, RefusesWhatItCannotKeep)
{
    QTemporaryDir dir;
    const QString keysFile = dir.filePath(QStringLiteral("keys.txt"));
    {
        QFile f(keysFile);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("b\na\nc\n");
    }
    const TableSchema &s = TableSchema::gettoniere();
    struct Refusal
    {
        const char *name;
        int driver;
        const char *tagMode; // "desc", "expr", or "unknown" for a driver changed afterwards
        Msg expected;
    };
    for (const Refusal &r :
         {Refusal{"UNKNOWN.DBF", 0x57, "unknown", Msg::RecordsLanguageUnsupported},
          Refusal{"DESC.DBF", 0x58, "desc", Msg::RecordsTagUnsupported},
          Refusal{"EXPR.DBF", 0x58, "expr", Msg::RecordsTagUnsupported}}) {
        SCOPED_TRACE(r.name);
        const QString path = dir.filePath(QString::fromLatin1(r.name));
        ASSERT_EQ(tdbf({QStringLiteral("create"), path, QStringLiteral("4"),
                        QString::number(r.driver), fieldSpec(s), QStringLiteral("IDENT"), keysFile})
                      .exitCode,
                  0);
        if (QLatin1String(r.tagMode) == u"unknown") {
            // a driver TDbf has no order for either: 0x64, a FoxPro one, in both headers
            for (const auto &[file, at] : {std::pair{path, 29}, std::pair{mdx(path), 31}}) {
                QFile f(file);
                ASSERT_TRUE(f.open(QIODevice::ReadWrite));
                f.seek(at);
                f.write("\x64", 1);
            }
        } else {
            ASSERT_EQ(
                tdbf({QStringLiteral("addtag"), path, QStringLiteral("OTHER"),
                      QLatin1String(r.tagMode) == u"desc" ? QStringLiteral("DESCRIPTIO")
                                                          : QStringLiteral("IDENT+DESCRIPTIO"),
                      QString::fromLatin1(r.tagMode)})
                    .exitCode,
                0);
        }
        DbfTable t;
        ASSERT_TRUE(t.open(path)) << t.errorString().toStdString();
        EXPECT_TRUE(t.isReadOnly());
        EXPECT_EQ(t.recordCount(), 3);
        EXPECT_EQ(t.text(0, 0), u"b"_qs);
        const QString reason = r.expected == Msg::RecordsLanguageUnsupported
                                   ? messageText(r.expected, {t.fileName(), QStringLiteral("0x64")})
                                   : messageText(r.expected, {t.fileName(), QStringLiteral("OTHER"),
                                                              t.index().tags().at(1).expression});
        EXPECT_TRUE(t.notices().contains(reason)) << t.notices().join(u'\n').toStdString();
        EXPECT_EQ(t.appendRecord(), -1);
    }
}

} // namespace

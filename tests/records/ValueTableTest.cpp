// Value tables: the store as Tarvik and python3-dbfread read it back, and the form's model.
#include "DbfTable.h"
#include "Encodings.h"
#include "Messages.h"
#include "RecordingPrompt.h"
#include "TDBModule.h"
#include "TestFiles.h"
#include "ValueTableModel.h"
#include "ValueTableStore.h"

#include "TestFiles.h"
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

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

double number(const QJsonObject &row, const char *field)
{
    return row.value(QLatin1String(field)).toString().toDouble();
}

// Base 1 = 0.25 (40 19), base 2 = 0.50 (40 32), ratio 12.5 (00 10 00 7D), channel i worth i,
// bytes 68 to 74 from `carried`.
ValueBlock sampleBlock(quint8 carried = 0xA0)
{
    ValueBlock b;
    b.fill(0);
    b[0] = 0x40, b[1] = 0x19, b[2] = 0x40, b[3] = 0x32;
    for (int i = 0; i < kChannels; ++i)
        b[std::size_t(Val::Channel0 + i)] = quint8(i);
    b[64] = 0x00, b[65] = 0x10, b[66] = 0x00, b[67] = 0x7D;
    for (int i = 68; i < 75; ++i)
        b[std::size_t(i)] = quint8(carried + i);
    return b;
}

class ValueTableTest : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(db.open(dir.path())); }
    bool haveDbfread() const { return QFileInfo(QStringLiteral(TARVIK_PYTHON)).isExecutable(); }
    QString tablePath() const { return db.ValueTable()->filePath(); }

    QTemporaryDir dir;
    TDBModule db;
    RecordingPrompt prompt{UserPrompt::Answer::No};
    ValueTableStore store{db, prompt};
};

} // namespace

TEST_F(ValueTableTest, SaveOverwriteOpenAndDelete)
{
    const ValueBlock block = sampleBlock();
    ASSERT_EQ(store.save(block, QStringLiteral(" Euro "), QStringLiteral("coins"), false),
              ValueTableStore::Outcome::Saved);
    ASSERT_EQ(store.save(block, QStringLiteral("Other"), {}, false),
              ValueTableStore::Outcome::Saved);
    EXPECT_EQ(store.save(block, QStringLiteral("  "), {}, false),
              ValueTableStore::Outcome::EmptyName);

    // A name differing only in case asks; No leaves the row, Yes replaces it in place.
    ValueBlock changed = block;
    changed[Val::Channel0 + 59] = 200;
    EXPECT_EQ(store.save(changed, QStringLiteral("EURO"), QStringLiteral("new"), false),
              ValueTableStore::Outcome::NotOverwritten);
    EXPECT_EQ(prompt.asked(), QStringList{QStringLiteral("EURO exist! Overwrite ?")});
    prompt.setNextAnswers({UserPrompt::Answer::Yes});
    ASSERT_EQ(store.save(changed, QStringLiteral("EURO"), QStringLiteral("new"), false),
              ValueTableStore::Outcome::Saved);
    ASSERT_EQ(store.list().size(), 2);
    EXPECT_EQ(store.list().at(0).name, QLatin1String("EURO"));
    EXPECT_EQ(store.find(QStringLiteral("euro")), 0);

    // Opening keeps the working copy's bytes 68 to 74.
    ValueBlock opened = sampleBlock(0x10);
    opened.fill(7);
    ValueTableStore::Entry entry;
    ASSERT_TRUE(store.open(QStringLiteral("eURo"), opened, false, &entry));
    EXPECT_EQ(entry.description, QLatin1String("new"));
    for (int i = 0; i < 68; ++i)
        EXPECT_EQ(opened[std::size_t(i)], changed[std::size_t(i)]) << "byte " << i;
    for (int i = 68; i < 75; ++i)
        EXPECT_EQ(opened[std::size_t(i)], 7) << "byte " << i;
    EXPECT_TRUE(prompt.told().isEmpty());

    if (haveDbfread()) {
        const QList<QJsonObject> rows = dbfreadRows(tablePath());
        ASSERT_EQ(rows.size(), 2);
        const QJsonObject &row = rows.first();
        EXPECT_EQ(row.value(QLatin1String("IDENTI")).toString(), QLatin1String("EURO"));
        EXPECT_EQ(row.value(QLatin1String("DESCRIP")).toString(), QLatin1String("new"));
        EXPECT_EQ(number(row, "BASE1"), 0x4019);
        EXPECT_EQ(number(row, "BASE2"), 0x4032);
        EXPECT_EQ(number(row, "CONVERT"), 0x0010007D);
        for (int c = 1; c <= 60; ++c)
            EXPECT_EQ(number(row, QStringLiteral("CANAL%1").arg(c).toLatin1().constData()),
                      c == 60 ? 200 : c - 1)
                << c;
    }

    EXPECT_TRUE(store.remove(QStringLiteral("euro")));
    EXPECT_FALSE(store.remove(QStringLiteral("euro")));
    EXPECT_EQ(store.errorString(), QLatin1String("No value table euro is stored"));
    ASSERT_EQ(store.list().size(), 1);
    if (haveDbfread()) {
        EXPECT_EQ(dbfreadRows(tablePath()).size(), 1);
    }
}

TEST_F(ValueTableTest, LightKeepsChannels26To60OutOfTheTable)
{
    ASSERT_EQ(store.save(sampleBlock(), QStringLiteral("Light"), {}, true),
              ValueTableStore::Outcome::Saved);
    ValueBlock opened;
    opened.fill(99);
    ASSERT_TRUE(store.open(0, opened, true));
    for (int i = 0; i < kChannels; ++i)
        EXPECT_EQ(opened[std::size_t(Val::Channel0 + i)], i < 25 ? i : 99) << i;
    if (!haveDbfread())
        GTEST_SKIP() << "python3 with dbfread not found";
    const QJsonObject row = dbfreadRows(tablePath()).value(0);
    EXPECT_EQ(number(row, "CANAL25"), 24);
    EXPECT_TRUE(row.value(QLatin1String("CANAL26")).isNull());
    EXPECT_TRUE(row.value(QLatin1String("CANAL60")).isNull());
}

TEST_F(ValueTableTest, OpeningStopsAtAFieldThatIsNotAnIntegerAndKeepsTheRest)
{
    ASSERT_EQ(store.save(sampleBlock(), QStringLiteral("Bad"), {}, false),
              ValueTableStore::Outcome::Saved);
    const DbfTable &table = *db.ValueTable();
    const int offset = table.field(table.fieldIndex(QStringLiteral("CANAL7"))).offset;
    const int width = table.field(table.fieldIndex(QStringLiteral("CANAL7"))).length;
    const QString path = tablePath();
    db.close();
    // Another tool left text in CANAL7.
    testfiles::spoilFirstRow(path, offset, width, "  abc ");
    ASSERT_TRUE(db.open(dir.path()));

    // The bases, the ratio and channels 1 to 6 come from the row; channel 7 on keep theirs.
    ValueBlock opened;
    opened.fill(99);
    EXPECT_TRUE(store.open(0, opened, false));
    EXPECT_EQ(prompt.told(), QStringList{QStringLiteral("'abc' is not a valid integer value")});
    EXPECT_EQ(store.conversionError(), prompt.told().constFirst());
    const ValueBlock saved = sampleBlock();
    for (int i = 0; i < 75; ++i)
        EXPECT_EQ(opened[std::size_t(i)],
                  i < Val::Channel0 + 6 || (i >= 64 && i < 68) ? saved[std::size_t(i)] : 99)
            << "byte " << i;
}

namespace {

class ValueTableModelTest : public ValueTableTest
{
protected:
    ValueBlock editor = sampleBlock();
    bool modified = false;
};

} // namespace

TEST_F(ValueTableModelTest, ResetThenExitLeavesEveryByteAt255)
{
    ValueTableModel form(editor, &modified, false, nullptr, &prompt, &store, false);
    bool closed = false;
    form.closeRequested = [&] { closed = true; };
    form.FormActivate();
    EXPECT_EQ(form.cell(0, 0), QLatin1String("Channels"));
    EXPECT_EQ(form.cell(3, 0), QLatin1String("  3"));
    EXPECT_EQ(form.cell(0, 1), QLatin1String(" 1-10"));
    EXPECT_EQ(form.cell(0, 6), QLatin1String("51-60"));
    EXPECT_EQ(form.cell(5, 1), QLatin1String("  1.00")); // channel 5: 4 x 0.25
    EXPECT_EQ(form.cell(1, 4), QLatin1String(" 15.00")); // channel 31: 30 x 0.50
    EXPECT_EQ(form.control(QStringLiteral("LabeledEdit3")).text, QLatin1String("    12.5"));
    EXPECT_FALSE(form.control(QStringLiteral("BitBtn4")).visible);

    form.click(QStringLiteral("BitBtn6"));
    EXPECT_EQ(editor, sampleBlock()) << "nothing reaches the editor before Apply";
    EXPECT_TRUE(form.cell(5, 1).isEmpty());
    form.click(QStringLiteral("BitBtn1"));
    ValueBlock cleared;
    cleared.fill(255);
    EXPECT_EQ(editor, cleared);
    EXPECT_TRUE(modified);
    EXPECT_TRUE(closed);
}

TEST_F(ValueTableModelTest, RightDoesNotStoreTheCellAClickDoes)
{
    ValueTableModel form(editor, &modified, false, nullptr, &prompt, &store, false);
    form.FormActivate();
    form.gridType(QStringLiteral("2.00")); // channel 1, base 0.25
    form.gridKey(ValueTableModel::GridKey::Right);
    form.click(QStringLiteral("BitBtn3"));
    EXPECT_EQ(editor[Val::Channel0], 0) << "Right left channel 1 unstored";
    EXPECT_EQ(form.cell(1, 1), QLatin1String("  0.00"));

    form.gridClick(1, 1);
    form.gridType(QStringLiteral("2.00"));
    form.gridClick(4, 2);
    EXPECT_EQ(form.workingCopy()[Val::Channel0], 8);
    form.gridType(QStringLiteral("1"));
    form.gridKey(ValueTableModel::GridKey::Down); // channel 14 stored on the way down
    EXPECT_EQ(form.workingCopy()[Val::Channel0 + 13], 4);
    EXPECT_EQ(form.currentRow(), 3);
    form.click(QStringLiteral("BitBtn3"));
    EXPECT_EQ(editor[Val::Channel0], 8);
    EXPECT_EQ(editor[70], sampleBlock()[70]);
}

// A value past the base's 252 steps is held at the largest and said; every value cell tells its
// step and largest amount, the headers nothing.
TEST_F(ValueTableModelTest, AValueOverTheMaximumIsCorrectedAndSaid)
{
    ValueTableModel form(editor, &modified, false, nullptr, &prompt, &store, false);
    form.FormActivate();
    EXPECT_EQ(form.cellTip(1, 1),
              QStringLiteral("An amount in steps of 0.25, at most 63.00; "
                             "-P1- or -P2- pays price 1 or 2; empty: no value"));
    EXPECT_EQ(form.cellTip(1, 4).left(27), QStringLiteral("An amount in steps of 0.50,"));
    EXPECT_TRUE(form.cellTip(0, 1).isEmpty());
    EXPECT_TRUE(form.cellTip(1, 0).isEmpty());
    prompt.clear();
    form.gridClick(1, 1);
    form.gridType(QStringLiteral("500"));
    form.gridClick(2, 1);
    EXPECT_EQ(form.workingCopy()[Val::Channel0], kValueMaximum);
    EXPECT_EQ(prompt.told(), QStringList{messageText(Msg::ValueOverMaximum)});
}

TEST_F(ValueTableModelTest, LightLayoutSaveAndOpen)
{
    ValueTableModel form(editor, &modified, true, nullptr, &prompt, &store, true);
    form.FormActivate();
    EXPECT_EQ(form.control(QStringLiteral("LabeledEdit1Label")).text,
              QLatin1String("Channels 1 to 24 : "));
    EXPECT_FALSE(form.control(QStringLiteral("LabeledEdit2")).visible);
    EXPECT_FALSE(form.control(QStringLiteral("LabeledEdit3")).visible);
    EXPECT_EQ(form.rowCount(), 4);
    EXPECT_TRUE(form.control(QStringLiteral("BitBtn4")).visible);
    EXPECT_EQ(form.control(QStringLiteral("BitBtn2")).toolTip, QLatin1String("Save a record"));

    QString focused;
    form.focusRequested = [&](const QString &name) { focused = name; };
    form.click(QStringLiteral("BitBtn2"));
    EXPECT_EQ(prompt.told(), QStringList{QStringLiteral("Identification field must be filled")});
    EXPECT_EQ(focused, QLatin1String("LabeledEdit4"));

    form.type(QStringLiteral("LabeledEdit4"), QStringLiteral("Small"));
    form.click(QStringLiteral("BitBtn2"));
    ASSERT_EQ(form.records().size(), 1);
    form.click(QStringLiteral("BitBtn6"));
    form.click(QStringLiteral("DBNavigator1First"));
    form.click(QStringLiteral("BitBtn5"));
    for (int i = 0; i < kChannels; ++i)
        EXPECT_EQ(form.workingCopy()[std::size_t(Val::Channel0 + i)], i < 25 ? i : 255) << i;

    prompt.setNextAnswers({UserPrompt::Answer::Ok});
    form.click(QStringLiteral("DBNavigator1Delete"));
    EXPECT_TRUE(form.records().isEmpty());
    EXPECT_TRUE(store.list().isEmpty());
}

// A table saved from a Light validator (CANAL26 to CANAL60 blank) opened and applied on a
// 60-channel validator: channels 26 to 60 keep their values.
TEST_F(ValueTableModelTest, ALightTableNeverErasesChannels26To60)
{
    ValueBlock light = sampleBlock();
    for (int i = 0; i < kLightChannels; ++i)
        light[std::size_t(Val::Channel0 + i)] = quint8(100 + i);
    ASSERT_EQ(store.save(light, QStringLiteral("Light"), {}, true),
              ValueTableStore::Outcome::Saved);
    ValueTableModel form(editor, &modified, false, nullptr, &prompt, &store, false);
    form.FormActivate();
    form.click(QStringLiteral("DBNavigator1First"));
    form.click(QStringLiteral("BitBtn5"));
    EXPECT_EQ(form.control(QStringLiteral("LabeledEdit4")).text, QLatin1String("Light"));
    EXPECT_EQ(prompt.told(), QStringList{QStringLiteral("'' is not a valid integer value")});
    form.click(QStringLiteral("BitBtn3"));
    for (int i = 0; i < kChannels; ++i)
        EXPECT_EQ(editor[std::size_t(Val::Channel0 + i)], i < 25 ? 100 + i : i) << i;
}

#include "SimTransport.h"
#include "VirtualValidator.h"

// Load reads the validator's table into the working copy; Transfert sends the working copy.
TEST(ValueTableLink, LoadAndTransfertReachTheValidator)
{
    VirtualValidator device(0x13, 1001);
    SimTransport port(&device);
    port.setLatencyMs(0);
    RecordingPrompt prompt(UserPrompt::Answer::Cancel);
    TMonnayeur link(&port, &prompt);
    ValueBlock editorBlock;
    editorBlock.fill(0x11);
    bool modified = false;
    ValueTableModel model(editorBlock, &modified, false, &link, &prompt, nullptr, true);
    model.FormCreate();
    model.FormActivate();
    model.BitBtn7Click();
    model.BitBtn3Click(); // Apply: the editor gets what was loaded
    EXPECT_EQ(editorBlock, device.memory().values);
    EXPECT_TRUE(modified);

    model.BitBtn6Click(); // Reset
    model.BitBtn4Click();
    EXPECT_EQ(prompt.told().last(),
              QStringLiteral("Table of values transferred in the validator!"));
    ValueBlock cleared;
    cleared.fill(255);
    EXPECT_EQ(device.memory().values, cleared);

    // A validator that does not answer: Load asks to connect it, Cancel changes nothing.
    device.setConnected(false);
    model.BitBtn7Click();
    EXPECT_EQ(prompt.asked().last(), QStringLiteral("Connect validator "));
    model.BitBtn4Click();
    EXPECT_EQ(prompt.told().last(), QStringLiteral("Fault during save operation !"));
}

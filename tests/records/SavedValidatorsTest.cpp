// The browser of saved validators: filter, open into the editor, delete with the channels.
#include "DbfTable.h"
#include "EditorModel.h"
#include "EditorServices.h"
#include "Messages.h"
#include "ProfileStore.h"
#include "RecordingPrompt.h"
#include "SavedValidatorsModel.h"
#include "SavedValidatorsTable.h"
#include "TDBModule.h"
#include "TableSchema.h"
#include "ValidatorStoreTables.h"
#include "ValueTableModel.h"
#include "ValueTableStore.h"
#include "VirtualValidator.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

TEST(SavedValidators, FilterOpenIntoTheEditorAndDelete)
{
    QTemporaryDir root;
    TDBModule db;
    ASSERT_TRUE(db.open(QDir(root.path()).filePath(QStringLiteral("TarvikDB"))));
    RecordingPrompt prompt(UserPrompt::Answer::Yes);
    ValidatorStore store(db, prompt);
    ConfigImage shop = VirtualValidator::factoryImage(0x13, 1001);
    shop.prices[5] = 20;
    ConfigImage bar = VirtualValidator::factoryImage(0x23, 1002);
    ASSERT_EQ(store.store(shop, QStringLiteral("SHOP-12"), QStringLiteral("corner shop")),
              ValidatorStore::Outcome::Stored);
    ASSERT_EQ(store.store(bar, QStringLiteral("BAR-3"), QStringLiteral("station bar")),
              ValidatorStore::Outcome::Stored);

    // An editor holding another validator: the blocks the tables do not hold stay its own.
    DefaultEditorServices services;
    EditorModel editor(&prompt, &services);
    const ConfigImage held = VirtualValidator::factoryImage(0x13, 4242);
    editor.loadImage(held, false);

    SavedValidatorsModel browser(db, prompt, &editor);
    ASSERT_EQ(browser.rows().size(), 2);
    browser.setFilter(QStringLiteral("SHOP"));
    ASSERT_EQ(browser.rows().size(), 1);
    browser.setFilter(QStringLiteral("station"));
    ASSERT_EQ(browser.rows().size(), 1);
    EXPECT_EQ(browser.rows().first().identification, QStringLiteral("BAR-3"));
    ASSERT_EQ(browser.channelRows().size(), 60);
    EXPECT_EQ(browser.channelRows().at(0).size(), SavedValidatorsModel::channelColumns().size());

    browser.setFilter(QStringLiteral("shop"));
    prompt.clear();
    ASSERT_TRUE(browser.BtnOpenClick());
    EXPECT_TRUE(prompt.told().isEmpty());
    const ConfigImage &opened = editor.image();
    EXPECT_EQ(opened.channels, shop.channels);
    EXPECT_EQ(opened.prices[5], 20);
    EXPECT_EQ(opened.enable, shop.enable);
    EXPECT_EQ(opened.serialNumber(), 4242u); // the identification is not in the tables
    EXPECT_EQ(opened.counters, held.counters);
    EXPECT_TRUE(editor.flags().configModified);
    EXPECT_EQ(editor.control("EHFUBMIN0").text, ByteToText(3, shop.channels[0][Rec::HfuLowMin]));

    // The family byte comes from the tables too.
    browser.setFilter(QStringLiteral("bar"));
    ASSERT_TRUE(browser.BtnOpenClick());
    EXPECT_EQ(editor.image().version[0], 0x23);
    EXPECT_EQ(editor.image().enable, bar.enable);
    prompt.setNextAnswers({UserPrompt::Answer::No});
    EXPECT_FALSE(browser.BtnDeleteClick());
    ASSERT_TRUE(browser.BtnDeleteClick());
    EXPECT_TRUE(browser.rows().isEmpty());
    EXPECT_EQ(store.list().size(), 1);
    EXPECT_EQ(db.Channel()->liveRows().size(), 60u);
}

TEST(SavedValidators, MissingChannelRowsOpenEmptyAndAreNamed)
{
    QTemporaryDir root;
    TDBModule db;
    ASSERT_TRUE(db.open(QDir(root.path()).filePath(QStringLiteral("TarvikDB"))));
    RecordingPrompt prompt(UserPrompt::Answer::Yes);
    ValidatorStore store(db, prompt);
    ASSERT_EQ(store.store(VirtualValidator::factoryImage(0x13, 1001), QStringLiteral("V"), {}),
              ValidatorStore::Outcome::Stored);
    DbfTable &channels = *db.Channel();
    for (int row : channels.liveRows()) {
        const int canal = channels.value(row, QStringLiteral("CANAL")).toInt();
        if (canal == 2 || canal == 3) {
            ASSERT_TRUE(channels.deleteRecord(row));
        }
    }
    ASSERT_TRUE(channels.commit());

    DefaultEditorServices services;
    EditorModel editor(&prompt, &services);
    editor.loadImage(VirtualValidator::factoryImage(0x13, 1001), false);
    SavedValidatorsModel browser(db, prompt, &editor);
    prompt.clear();
    ASSERT_TRUE(browser.BtnOpenClick());
    EXPECT_EQ(prompt.told(), QStringList{"V has no row for channels 2, 3: they open empty."});
    EXPECT_EQ(editor.control("EHFUBMIN1").text, QString());
    EXPECT_FALSE(editor.image().enableBit(1));
}

// The saved validators and the value tables are listed under their active index (IDENT,
// IDENTI) in the order of the table's language driver; the coin profiles, opened without one,
// in file order.
TEST(SavedValidators, ListedInTheOrderOfTheirIndex)
{
    QTemporaryDir root;
    const QString dir = QDir(root.path()).filePath(QStringLiteral("TarvikDB"));
    ASSERT_TRUE(QDir().mkpath(dir));
    // DBWINWE0: lower case before upper, both before the next letter.
    const LanguageDriver *western = LanguageDriver::byId(0x58);
    ASSERT_TRUE(western);
    for (const TableSchema *schema : TableSchema::all()) {
        QString error;
        ASSERT_TRUE(
            DbfTable::create(QDir(dir).filePath(schema->fileName), *schema, &error, *western))
            << error.toStdString();
    }
    TDBModule db;
    ASSERT_TRUE(db.open(dir));
    RecordingPrompt prompt(UserPrompt::Answer::Yes);
    ValidatorStore validators(db, prompt);
    ValueTableStore values(db, prompt);
    ProfileStore profiles(db, prompt);
    const ConfigImage image = VirtualValidator::factoryImage(0x13, 1001);
    const QStringList names = {QStringLiteral("zulu"), QStringLiteral("Beta"),
                               QStringLiteral("alpha")};
    for (int i = 0; i < names.size(); ++i) {
        ValueBlock block = image.values;
        block[Val::Channel0] = quint8(i);
        ASSERT_EQ(validators.store(image, names[i], {}), ValidatorStore::Outcome::Stored);
        ASSERT_EQ(values.save(block, names[i], {}, false), ValueTableStore::Outcome::Saved);
        ProfileRecord profile;
        profile.name = names[i];
        ASSERT_EQ(profiles.save(profile), ProfileStore::Outcome::Saved);
    }

    SavedValidatorsModel browser(db, prompt, nullptr);
    QStringList listed;
    for (const auto &entry : browser.rows())
        listed.append(entry.identification);
    EXPECT_EQ(listed, (QStringList{"alpha", "Beta", "zulu"}));

    ValueBlock editor = image.values;
    bool modified = false;
    ValueTableModel form(editor, &modified, false, nullptr, &prompt, &values, false);
    form.FormActivate();
    listed.clear();
    for (const ValueTableStore::Entry &entry : form.records())
        listed.append(entry.name);
    EXPECT_EQ(listed, (QStringList{"alpha", "Beta", "zulu"}));
    EXPECT_EQ(values.find(QStringLiteral("ZULU")), 2);
    form.recordClick(1);
    form.click(QStringLiteral("BitBtn5"));
    EXPECT_EQ(form.workingCopy()[Val::Channel0], 1); // Beta's

    listed.clear();
    for (const ProfileStore::Entry &entry : profiles.list())
        listed.append(entry.name);
    EXPECT_EQ(listed, names);
}

// The editor's "save in the tables" with an identification the tables cannot hold: the
// editor's prompt says which characters, and nothing is stored.
TEST(SavedValidators, TheEditorSaysWhichCharactersTheTablesCannotHold)
{
    QTemporaryDir root;
    TDBModule db;
    ASSERT_TRUE(db.open(QDir(root.path()).filePath(QStringLiteral("TarvikDB"))));
    RecordingPrompt prompt(UserPrompt::Answer::Yes);
    struct Services : DefaultEditorServices
    {
        explicit Services(ValidatorTables &t) : tables_(t) {}
        ValidatorTables *tables() override { return &tables_; }
        ValidatorTables &tables_;
    };
    ValidatorStoreTables tables(db, prompt);
    Services services(tables);
    EditorModel editor(&prompt, &services);
    editor.loadImage(VirtualValidator::factoryImage(0x13, 1001), false);
    editor.type(QStringLiteral("EIdent"), QStringLiteral("Łódź-1"));
    editor.leave(QStringLiteral("EIdent"));
    prompt.clear();
    ASSERT_TRUE(editor.click(QStringLiteral("SpeedButton4")));
    EXPECT_EQ(prompt.told(),
              QStringList{messageText(Msg::NameOutsideCodePage,
                                      {QStringLiteral("Łódź-1"), TableSchema::gettoniere().fileName,
                                       QStringLiteral("Ł, ź")})});
    EXPECT_EQ(db.Gettoniere()->recordCount(), 0);
    EXPECT_EQ(db.Channel()->recordCount(), 0);
}

// The browser speaks the editor's words: captions for headers, the family as the editor shows
// it, the channel windows minimum first in the editor's order, and nothing where a byte is not
// set. The filter takes identification, description or serial number, and keeps the chosen
// validator chosen while it is shown.
TEST(SavedValidators, ColumnsInTheEditorsWordsAndAFilterInMemory)
{
    QTemporaryDir root;
    TDBModule db;
    ASSERT_TRUE(db.open(QDir(root.path()).filePath(QStringLiteral("TarvikDB"))));
    RecordingPrompt prompt(UserPrompt::Answer::Yes);
    ValidatorStore store(db, prompt);
    ConfigImage shop = VirtualValidator::factoryImage(0x13, 1001);
    ChannelRecord &first = shop.channels[0];
    for (int b = 0; b < 15; ++b)
        first[std::size_t(b)] = quint8(10 + b); // every window byte its own
    shop.channels[9].fill(255);                 // an empty channel
    ASSERT_EQ(store.store(shop, QStringLiteral("SHOP-12"), QStringLiteral("Bar du Port")),
              ValidatorStore::Outcome::Stored);
    ASSERT_EQ(store.store(VirtualValidator::factoryImage(0x23, 1002), QStringLiteral("BAR-3"),
                          QStringLiteral("station")),
              ValidatorStore::Outcome::Stored);

    SavedValidatorsModel browser(db, prompt, nullptr);
    SavedValidatorsTable &table = browser.table();
    EXPECT_EQ(SavedValidatorsTable::headers(),
              (QStringList{"Identification", "Description", "Serial Number", "Version"}));
    EXPECT_EQ(table.headerData(3, Qt::Horizontal).toString(), QStringLiteral("Version"));
    ASSERT_EQ(table.rowCount(), 2);
    EXPECT_EQ(table.index(0, 0).data().toString(), QStringLiteral("BAR-3"));
    EXPECT_EQ(table.index(0, 3).data().toString(), QStringLiteral("Wake-Up"));
    EXPECT_EQ(table.index(1, 3).data().toString(), QStringLiteral("5.3")); // stored as "19"
    EXPECT_EQ(table.index(1, 2).data().toString(), QString()); // the tables keep no serial

    const QStringList columns = SavedValidatorsModel::channelColumns();
    EXPECT_EQ(columns.mid(0, 5), (QStringList{"Channel", "HFU low min", "HFU low max",
                                              "HFU high min", "HFU high max"}));
    EXPECT_EQ(columns.mid(15), (QStringList{"Enable", "Value", "Sub"}));

    // "port" is in SHOP-12's description only: it becomes the chosen one, with its channels.
    browser.setFilter(QStringLiteral("PORT"));
    ASSERT_EQ(table.rowCount(), 1);
    ASSERT_EQ(browser.current(), 0);
    const QList<QStringList> &channels = browser.channelRows();
    ASSERT_EQ(channels.size(), 60);
    const QStringList &one = channels.at(0);
    ASSERT_EQ(one.size(), columns.size());
    EXPECT_EQ(one.at(0), QStringLiteral("1"));
    EXPECT_EQ(one.at(1), QString::number(first[Rec::HfuLowMin]));
    EXPECT_EQ(one.at(4), QString::number(first[Rec::HfuHighMax]));
    EXPECT_EQ(one.at(5), QString::number(first[Rec::DimMin]));
    EXPECT_EQ(one.at(13), QString::number(first[Rec::AmpMin]));
    EXPECT_EQ(one.at(17), QString::number(first[Rec::Substitute]));
    EXPECT_FALSE(one.at(16).isEmpty()); // the value as an amount
    const QStringList &empty = channels.at(9);
    EXPECT_EQ(empty.at(0), QStringLiteral("10"));
    for (int col = 1; col < empty.size(); ++col)
        EXPECT_EQ(empty.at(col), QString()) << columns.at(col).toStdString();

    // Identification, case aside; the chosen validator stays chosen while it shows.
    browser.setFilter(QStringLiteral("sHoP"));
    EXPECT_EQ(browser.current(), 0);
    browser.setFilter(QString());
    ASSERT_EQ(table.rowCount(), 2);
    EXPECT_EQ(browser.current(), 1);
    EXPECT_EQ(table.row(browser.current()).identification, QStringLiteral("SHOP-12"));
    // Two fields never make one match; nothing shown, nothing chosen.
    browser.setFilter(QStringLiteral("12 bar"));
    EXPECT_EQ(table.rowCount(), 0);
    EXPECT_EQ(browser.current(), -1);
    EXPECT_TRUE(browser.channelRows().isEmpty());
}

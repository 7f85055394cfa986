// The editor's reads and writes in the history, the History window's model over them, and a
// state put back through the editor; in process, against the virtual validator.
#include "HistoryModel.h"
#include "Captions.h"
#include "EditorModel.h"
#include "EditorServices.h"
#include "Encodings.h"
#include "HistoryFiles.h"
#include "HistoryRecorder.h"
#include "Messages.h"
#include "RecordingPrompt.h"
#include "SimTransport.h"
#include "TMonnayeur.h"
#include "VirtualValidator.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class HistoryServices final : public DefaultEditorServices
{
public:
    explicit HistoryServices(UserPrompt &prompt) : m_prompt(prompt) {}
    void validatorEvent(const ValidatorEvent &event) override
    {
        keepValidatorEvent(event, &m_prompt);
    }
    bool historyAvailable() override { return true; }

private:
    UserPrompt &m_prompt;
};

struct Bench
{
    Bench()
        : history(dir.path()), device(std::make_unique<VirtualValidator>(0x13, 1001)),
          port(std::make_unique<SimTransport>(device.get())),
          link(std::make_unique<TMonnayeur>(port.get(), &prompt)), services(prompt),
          editor(&prompt, &services, link.get())
    {
        setEncodingSettings(EncodingSettings{u'.', u'/', 1});
        port->setLatencyMs(0);
        setCurrentHistory(&history);
    }
    ~Bench() { setCurrentHistory(nullptr); }
    void edit(const QString &name, const QString &text)
    {
        ASSERT_TRUE(editor.type(name, text));
        ASSERT_TRUE(editor.leave(name));
    }
    QList<HistoryEvent> events() const
    {
        return history.events(1001).value_or(QList<HistoryEvent>{});
    }

    QTemporaryDir dir;
    HistoryFiles history;
    RecordingPrompt prompt{UserPrompt::Answer::Yes};
    std::unique_ptr<VirtualValidator> device;
    std::unique_ptr<SimTransport> port;
    std::unique_ptr<TMonnayeur> link;
    HistoryServices services;
    EditorModel editor;
};

TEST(HistoryModel, TheEditorsReadAndWriteAreListedWithTheirChangesComparedAndTheFirstPutBack)
{
    Bench b;
    EXPECT_FALSE(b.editor.control(QStringLiteral("BtnHistory")).enabled);
    b.editor.SpeedButton1Click();
    // The connected validator's history, once it was read.
    EXPECT_TRUE(b.editor.control(QStringLiteral("BtnHistory")).visible);
    EXPECT_TRUE(b.editor.control(QStringLiteral("BtnHistory")).enabled);
    const ConfigImage first = b.device->memory();
    b.edit(QStringLiteral("EHFUBMIN0"), QStringLiteral("71"));
    b.editor.SpeedButton8Click();
    b.editor.SpeedButton1Click();

    HistoryModel model(b.history, &b.prompt);
    ASSERT_TRUE(model.load(1001));
    ASSERT_EQ(model.events().size(), 3);
    EXPECT_EQ(model.events().at(0).kind, QStringLiteral("read"));
    EXPECT_EQ(model.events().at(1).kind, QStringLiteral("write"));
    EXPECT_EQ(model.events().at(1).result, QStringLiteral("verified"));
    EXPECT_EQ(model.events().at(2).kind, QStringLiteral("read"));
    EXPECT_TRUE(model.events().at(1).program.startsWith(QStringLiteral("tarvik ")));
    // The write names the window it changed, in the editor's words.
    QStringList written;
    const QList<ConfigChange> changes = model.changesAt(1).value_or(QList<ConfigChange>{});
    for (const ConfigChange &change : changes)
        written.append(change.key);
    EXPECT_TRUE(written.contains(QStringLiteral("channel.1.hfu_low_min")))
        << qPrintable(written.join(' '));
    EXPECT_TRUE(model.rows().at(1).changes.contains(QStringLiteral("71")));
    EXPECT_EQ(model.rows().at(2).changes, captionText(Cap::HistoryNoChange));
    model.choose({2, 0});
    EXPECT_EQ(model.differencesHeading(), captionText(Cap::HistoryComparison, {"1", "3"}));
    EXPECT_EQ(model.differences().size(), model.compare(0, 2)->size());

    // Restore: what will change is asked first; No writes nothing.
    model.setRestore([&](const ConfigImage &state) {
        b.editor.restoreState(state, model.title());
        return true;
    });
    model.choose({0});
    ASSERT_TRUE(model.restoreEnabled());
    b.prompt.setNextAnswers({UserPrompt::Answer::No});
    EXPECT_FALSE(model.restore());
    EXPECT_EQ(model.events().size(), 3);
    EXPECT_TRUE(b.prompt.asked().last().contains(QStringLiteral("71")));
    model.choose({0});
    EXPECT_TRUE(model.restore());
    ASSERT_EQ(model.events().size(), 4);
    EXPECT_EQ(model.events().at(3).kind, QStringLiteral("restore"));
    EXPECT_EQ(model.events().at(3).result, QStringLiteral("verified"));
    // The validator holds its first configuration again, but for the date it was programmed.
    for (const ConfigChange &change : configDifferences(first, b.device->memory()))
        EXPECT_EQ(change.key, QStringLiteral("ident.programming_date"))
            << qPrintable(change.text());
}

TEST(HistoryModel, AWriteTheHistoryCannotKeepStillWritesAndSaysSo)
{
    Bench b;
    b.editor.SpeedButton1Click();
    // The history's folder becomes a file: nothing more can be kept.
    ASSERT_TRUE(QDir(b.history.directory()).removeRecursively());
    QFile blocker(b.history.directory());
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    b.prompt.clear();
    b.edit(QStringLiteral("EHFUBMIN0"), QStringLiteral("72"));
    b.editor.SpeedButton8Click();
    EXPECT_EQ(b.device->memory().channels[0][Rec::HfuLowMin], 72);
    const QString notKept = messageText(Msg::HistoryNotKept, {QString()});
    EXPECT_TRUE(std::any_of(b.prompt.told().begin(), b.prompt.told().end(),
                            [&](const QString &text) { return text.startsWith(notKept); }))
        << qPrintable(b.prompt.told().join('\n'));
}

TEST(HistoryModel, AnUnknownConfigurationIsSaidAndCannotBePutBack)
{
    QTemporaryDir dir;
    HistoryFiles store(dir.path());
    ConfigImage image = VirtualValidator::factoryImage(0x13, 5);
    ASSERT_TRUE(store.record(historyEvent(5, QStringLiteral("read"), {}, image)));
    HistoryEvent failed = historyEvent(5, QStringLiteral("write"), QStringLiteral("failed"));
    failed.time = failed.time.addMSecs(5);
    ASSERT_TRUE(store.record(failed));
    RecordingPrompt prompt(UserPrompt::Answer::Yes);
    HistoryModel model(store, &prompt);
    ASSERT_TRUE(model.load(5));
    int writes = 0;
    model.setRestore([&](const ConfigImage &) { return ++writes > 0; });
    EXPECT_EQ(model.rows().at(0).changes, captionText(Cap::HistoryFirst));
    EXPECT_EQ(model.rows().at(1).changes, captionText(Cap::HistoryUnknown));
    EXPECT_EQ(model.rows().at(1).result, captionText(Cap::HistoryFailed));
    model.choose({1});
    EXPECT_FALSE(model.restoreEnabled());
    EXPECT_FALSE(model.compare(0, 1));
    // The newest known state is the one chosen: nothing to put back.
    model.choose({0});
    EXPECT_FALSE(model.restore());
    EXPECT_EQ(writes, 0);
    EXPECT_EQ(prompt.told().size(), 1);
}

} // namespace

#include "GuiEditorServices.h"

#include "BatchModel.h"
#include "DataDirectory.h"
#include "TFormBatch.h"
#include "ValidatorStore.h"

#include "ChannelCopyModel.h"
#include "EditorModel.h"
#include "HistoryModel.h"
#include "HistoryRecorder.h"
#include "SavedValidatorsModel.h"
#include "TFormChanges.h"
#include "TFormHistory.h"
#include "TFormReadFileData.h"
#include "TFormTransfert.h"
#include "TFormValue.h"
#include "ValueTableModel.h"
#include "ValueTableStore.h"
#include "WindowsChartPainter.h"

#include "Captions.h"
#include "EffectSoundPlayer.h"
#include "FileDialog.h"
#include "GuiLearning.h"
#include "LearningFlows.h"
#include "Messages.h"
#include "RecordStore.h"
#include "Settings.h"
#include "TCloningChk.h"
#include "TConnectForm.h"
#include "TFormAvertissementDif.h"
#include "TFormCondotto.h"
#include "TFormProfilC.h"
#include "TMajFirmware.h"
#include "TMonnayeur.h"
#include "TTarvikFormInit.h"
#include "UserPrompt.h"
#include "ValidatorStoreTables.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <utility>

namespace {

std::optional<QString> g_nextSaveName;

const QString kConfigFilter = QStringLiteral("*.json");
const QString kSheetFilter = QStringLiteral("*.pdf");

// The name the next save dialog was told to return, taken once.
std::optional<QString> takeNextSaveName()
{
    return std::exchange(g_nextSaveName, std::nullopt);
}

QString askSaveFileName(QWidget *window, const QString &caption, const QString &filter,
                        const QString &suffix, const QString &suggested)
{
    if (const std::optional<QString> next = takeNextSaveName())
        return *next;
    QFileDialog dialog(window, caption, QString(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile(suggested);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return dialog.selectedFiles().constFirst();
}

} // namespace

GuiEditorServices::GuiEditorServices(UserPrompt &prompt, RecordStore *records,
                                     const QString &backupDirectory)
    : m_prompt(prompt), m_records(records), m_backupDirectory(backupDirectory)
{}

GuiEditorServices::~GuiEditorServices() = default;

void GuiEditorServices::setNextSaveFileName(const QString &fileName)
{
    g_nextSaveName = fileName;
}

// The dialogs below free themselves when closed; their answers come back through the
// references they were given.

std::optional<CloneGroups> GuiEditorServices::chooseCloneGroups()
{
    CloneGroups groups;
    if ((new TCloningChk(groups, m_window))->exec() != QDialog::Accepted)
        return std::nullopt;
    return groups;
}

bool GuiEditorServices::continueDespite(const QString &warning)
{
    int answer = 1;
    (new TFormAvertissementDif(warning, answer, m_window))->exec();
    return answer == 0;
}

bool GuiEditorServices::initialise(ConfigImage &image)
{
    bool cancelled = false;
    const int result = (new TTarvikFormInit(image, cancelled, m_window))->exec();
    return result == QDialog::Accepted && !cancelled;
}

bool GuiEditorServices::chooseOutput(ConfigImage &image)
{
    return (new TFormCondotto(image, m_window))->exec() == QDialog::Accepted;
}

QString GuiEditorServices::openConfigFileName()
{
    return FileDialog::getOpenFileName(m_window, captionText(Cap::OpenFile), kConfigFilter,
                                       QStringLiteral("json"));
}

QString GuiEditorServices::saveConfigFileName(const QString &suggested)
{
    return askSaveFileName(m_window, captionText(Cap::SaveFile), kConfigFilter,
                           QStringLiteral("json"), suggested);
}

QString GuiEditorServices::saveSheetFileName(const QString &suggested)
{
    return askSaveFileName(m_window, captionText(Cap::SaveSheetPdf), kSheetFilter,
                           QStringLiteral("pdf"), suggested);
}

void GuiEditorServices::printSheet(const std::function<int(QPagedPaintDevice &)> &paint)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setDocName(captionText(Cap::SheetTitle));
    QPrintPreviewDialog preview(&printer, m_window);
    preview.setWindowTitle(captionText(Cap::PrintSheet));
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview,
                     [&paint](QPrinter *chosen) { paint(*chosen); });
    preview.exec();
}

SheetChart GuiEditorServices::sheetChart(const ConfigImage &image)
{
    return sheetWindowsChart(image);
}

void GuiEditorServices::firmwareRequested(TMonnayeur &link)
{
    // The mini-programmer waits for its file; the reminder stays up while the file is chosen.
    QPointer<TConnectForm> reminder = new TConnectForm(m_window);
    reminder->show();
    const QString fileName = FileDialog::getOpenFileName(
        m_window, QCoreApplication::translate("TMajFirmware", "Firmware upgrade"),
        TMajFirmware::fileFilter(), QStringLiteral("S19"), QStringLiteral("*.s19"));
    if (reminder)
        reminder->close();
    if (fileName.isEmpty())
        return;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        m_prompt.tell(messageText(Msg::FileNotReadable, {fileName}), UserPrompt::Kind::Error);
        return;
    }
    TMajFirmware transfer(link.transport(), file.readAll(), m_window);
    transfer.exec();
}

ValidatorTables *GuiEditorServices::tables()
{
    if (!m_records)
        return nullptr;
    if (!m_tables)
        m_tables = std::make_unique<ValidatorStoreTables>(*m_records);
    return m_tables.get();
}

QString GuiEditorServices::backupDirectory()
{
    return m_backupDirectory;
}

bool GuiEditorServices::verifyAfterWrite()
{
    Settings settings;
    settings.load();
    return settings.verifyAfterWrite();
}

bool GuiEditorServices::directWrite()
{
    Settings settings;
    settings.load();
    return settings.directWrite();
}

bool GuiEditorServices::backupBeforeCloning()
{
    Settings settings;
    settings.load();
    return settings.backupBeforeCloning();
}

// ---- coin learning ------------------------------------------------------------------------

void GuiEditorServices::playCoin()
{
    if (!m_sounds)
        m_sounds = std::make_unique<EffectSoundPlayer>();
    m_sounds->play(Sound::Coin);
}

template <typename Flow> auto GuiEditorServices::withLearning(const ConfigImage &image, Flow flow)
{
    // The settings are read again each time: the main window may have changed them.
    Settings settings;
    settings.load();
    GuiLearningWindows windows(m_window);
    GuiLearningServices services(
        m_window, &m_prompt, [this, &image](int channel) -> std::optional<CoinProfile> {
            return TFormProfilC::choose(m_window, m_records, m_prompt, channel, image);
        });
    LearningContext context;
    context.prompt = &m_prompt;
    context.services = &services;
    context.windows = &windows;
    context.autoAdjust = settings.autoAdjust();
    context.directWrite = settings.directWrite();
    context.soundOn = settings.soundOn();
    context.coinSound = [this] { playCoin(); };
    context.learnChannel = settings.learnChannel();
    context.learnChannelUsed = [&settings](int channel) { settings.setLearnChannel(channel); };
    return flow(context);
}

bool GuiEditorServices::learnCoins(TMonnayeur &link, ConfigImage &image)
{
    return withLearning(image, [&](const LearningContext &context) {
        return LearningFlows::learnCoins(link, image, context);
    });
}

bool GuiEditorServices::calibrateReference(TMonnayeur &link, ConfigImage &image)
{
    return withLearning(image, [&](const LearningContext &context) {
        return LearningFlows::calibrateReference(link, image, context);
    });
}

bool GuiEditorServices::controlChannel(TMonnayeur &link, ConfigImage &image)
{
    return withLearning(image, [&](const LearningContext &context) {
        return LearningFlows::controlChannel(link, image, context);
    });
}

void GuiEditorServices::checkOverlap(const ConfigImage &image)
{
    withLearning(image, [&](const LearningContext &context) {
        LearningFlows::checkOverlap(image, context);
        return true;
    });
}

void GuiEditorServices::copyChannel(ChannelCopyModel &copy)
{
    TFormTransfert form(copy, m_window);
    form.exec();
}

void GuiEditorServices::showChanges(ChangesModel &changes)
{
    TFormChanges form(changes, m_window);
    form.exec();
}

void GuiEditorServices::editValueTable(EditorModel &editor)
{
    ValueTableModel::Editor access;
    access.block = [&editor] { return editor.image().values; };
    access.apply = [&editor](const ValueBlock &block) {
        ConfigImage image = editor.image();
        image.values = block;
        editor.editImage(image);
    };
    access.modified = [&editor] { editor.flags().configModified = true; };

    // The switch as the main window left it: read again each time the form opens.
    Settings settings;
    settings.load();
    ValueTableModel model(access, editor.image().isLight(), editor.link(), &m_prompt, m_records,
                          settings.directWrite());
    TFormValue form(model, m_window);
    form.exec();
}

void GuiEditorServices::browseSavedValidators(EditorModel &editor)
{
    if (!m_records)
        return;
    SavedValidatorsModel model(*m_records, m_prompt, &editor);
    TFormReadFileData form(model, m_window);
    if (HistoryStore *history = currentHistory()) {
        model.setHistory(
            [history](const QString &identification) {
                return serialSavedAs(*history, identification);
            },
            [this, &editor, &form](quint32 serial) {
                const QPointer<QWidget> window = m_window;
                m_window = &form;
                showHistory(editor, serial);
                m_window = window;
            });
    }
    form.exec();
}

void GuiEditorServices::validatorEvent(const ValidatorEvent &event)
{
    keepValidatorEvent(event, &m_prompt);
}

bool GuiEditorServices::historyAvailable()
{
    return currentHistory() != nullptr;
}

void GuiEditorServices::showHistory(EditorModel &editor, quint32 serial)
{
    HistoryStore *history = currentHistory();
    if (!history)
        return;
    HistoryModel model(*history, &m_prompt);
    if (!model.load(serial))
        return;
    // The editor writes to the validator connected: a state of its own history only, and
    // against what it holds as far as the editor knows.
    const BaselineSource &from = editor.baselineFrom();
    if (editor.hasLink() && from.fromValidator() && from.serial == serial) {
        model.setRestore(
            [&editor, &model](const ConfigImage &state) {
                editor.restoreState(state, model.title());
                return true;
            },
            [&editor]() -> std::optional<ConfigImage> { return editor.baseline(); });
    }
    TFormHistory form(model, m_window);
    form.exec();
}

void GuiEditorServices::runBatch(EditorModel &editor)
{
    if (!editor.link())
        return;
    BatchModel::Sources sources;
    if (editor.holdsConfiguration())
        sources.editorImage = editor.image();
    sources.chooseFile = [this] { return openConfigFileName(); };
    if (m_records) {
        for (const ValidatorStore::Entry &entry : m_records->validators())
            sources.saved.append(entry.identification);
        sources.loadSaved = [this](const QString &identification, ConfigImage &image, QString *) {
            return m_records->loadValidatorInto(identification, image);
        };
    }
    // The batch's logs go beside the backups, in the data directory of this bench.
    sources.dataDirectory = m_backupDirectory.isEmpty()
                                ? DataDirectory::resolve()
                                : QFileInfo(m_backupDirectory).absolutePath();
    if (!m_sounds)
        m_sounds = std::make_unique<EffectSoundPlayer>();
    BatchModel model(editor.link(), &m_prompt, m_sounds.get(), std::move(sources));
    TFormBatch form(model, m_window);
    form.exec();
}

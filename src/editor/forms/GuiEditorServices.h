#pragma once

#include "EditorServices.h"

#include <QPointer>
#include <QWidget>
#include <memory>

class EffectSoundPlayer;
class RecordStore;
class UserPrompt;
class ValidatorStoreTables;
struct LearningContext;

// What the editor asks of the world, answered with the program's windows: the small dialogs,
// the file dialogs, the firmware window and the tables of the data module.
class GuiEditorServices final : public EditorServices
{
public:
    // db may be null: no tables and no backups.
    // records may be null: no tables. Backups go into backupDirectory (none when empty).
    GuiEditorServices(UserPrompt &prompt, RecordStore *records,
                      const QString &backupDirectory = {});
    ~GuiEditorServices() override;
    Q_DISABLE_COPY_MOVE(GuiEditorServices)

    // The window the dialogs open over.
    void setWindow(QWidget *window) { m_window = window; }

    // The next save dialog returns this name without showing (an empty name: cancelled); the
    // open dialogs are answered through FileDialog.
    static void setNextSaveFileName(const QString &fileName);

    std::optional<CloneGroups> chooseCloneGroups() override;
    bool continueDespite(const QString &warning) override;
    bool initialise(ConfigImage &image) override;
    bool chooseOutput(ConfigImage &image) override;
    QString openConfigFileName() override;
    QString saveConfigFileName(const QString &suggested) override;
    void firmwareRequested(TMonnayeur &link) override;
    ValidatorTables *tables() override;
    QString backupDirectory() override;
    // The "Verify" setting as the main window left it.
    bool verifyAfterWrite() override;
    bool directWrite() override;
    // The "Back up before cloning" setting.
    bool backupBeforeCloning() override;

    // Coin learning, the reference calibration, the channel control and the overlap check,
    // with the learning windows and the "Sound", "Adjust" and "DirectWrite" settings.
    bool learningAvailable() override { return true; }
    bool learnCoins(TMonnayeur &link, ConfigImage &image) override;
    bool calibrateReference(TMonnayeur &link, ConfigImage &image) override;
    bool controlChannel(TMonnayeur &link, ConfigImage &image) override;
    void checkOverlap(const ConfigImage &image) override;

    // The channel copy dialog, the value table form and the saved validators browser.
    bool copyDialogAvailable() override { return true; }
    void copyChannel(ChannelCopyModel &copy) override;
    void showChanges(ChangesModel &changes) override;
    bool valueTablesAvailable() override { return true; }
    void editValueTable(EditorModel &editor) override;
    bool savedValidatorsAvailable() override { return m_records != nullptr; }
    void browseSavedValidators(EditorModel &editor) override;
    // The Batch window over the editor's link, with the program's sounds.
    bool batchAvailable() override { return true; }
    void runBatch(EditorModel &editor) override;

    // Each validator's history, in the history the program keeps (currentHistory()): the
    // editor's reads and writes are kept there; the History window over the editor.
    void validatorEvent(const ValidatorEvent &event) override;
    bool historyAvailable() override;
    void showHistory(EditorModel &editor, quint32 serial) override;

    // The configuration sheet: its file dialog (answered by setNextSaveFileName too), the
    // print preview with the system's print dialog, and its windows chart.
    QString saveSheetFileName(const QString &suggested) override;
    void printSheet(const std::function<int(QPagedPaintDevice &)> &paint) override;
    SheetChart sheetChart(const ConfigImage &image) override;

private:
    // Runs a learning procedure with the windows and the settings as they are now.
    template <typename Flow> auto withLearning(const ConfigImage &image, Flow flow);
    void playCoin();

    UserPrompt &m_prompt;
    RecordStore *m_records;
    QString m_backupDirectory;
    QPointer<QWidget> m_window;
    std::unique_ptr<ValidatorStoreTables> m_tables;
    std::unique_ptr<EffectSoundPlayer> m_sounds;
};

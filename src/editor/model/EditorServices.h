#pragma once

#include "CloneGroups.h"
#include "ConfigSheet.h"
#include "ValidatorEvent.h"

#include <QString>
#include <optional>

class QPagedPaintDevice;
struct ConfigImage;
class ChangesModel;
class ChannelCopyModel;
class EditorModel;
class TMonnayeur;

// Where the editor keeps validators in the tables: one validator row and its channel rows per
// identification.
class ValidatorTables
{
public:
    virtual ~ValidatorTables() = default;
    enum class Outcome
    {
        Stored,
        NotOverwritten,
        Failed
    };
    // Asks "%s exist! Overwrite ?" itself when the identification is taken; says "File %s
    // saved" when stored.
    virtual Outcome storeValidator(const ConfigImage &image, const QString &identification,
                                   const QString &description) = 0;
};

// What the editor asks of the world besides the link and the person's answers: the small
// dialogs, the file dialogs and the tables. The GUI answers with its windows, the CLI with its
// flags, the tests with canned answers.
class EditorServices
{
public:
    virtual ~EditorServices() = default;

    // The cloning dialog: the groups to copy, nothing when cancelled.
    virtual std::optional<CloneGroups> chooseCloneGroups() = 0;
    // The warning dialog with Continue and Cancel: true for Continue.
    virtual bool continueDespite(const QString &warning) = 0;
    // The initialisation dialog over the image; false when cancelled.
    virtual bool initialise(ConfigImage &image) = 0;
    // The output dialog over the image; false when nothing was chosen.
    virtual bool chooseOutput(ConfigImage &image) = 0;
    // The file dialogs; empty when cancelled.
    virtual QString openConfigFileName() = 0;
    virtual QString saveConfigFileName(const QString &suggested) = 0;
    // The mini-programmer asked for a firmware file (its request has been answered): the
    // file dialog, then the transfer window.
    virtual void firmwareRequested(TMonnayeur &link) = 0;
    // The tables; nothing when they could not be opened.
    virtual ValidatorTables *tables() = 0;
    // Where every good read is kept; empty: nowhere.
    virtual QString backupDirectory() = 0;
    // The "Verify after write" switch: a write that finished is read back and compared.
    virtual bool verifyAfterWrite() { return true; }
    // The "Direct write" switch: leaving a box of a channel's row writes that channel's change
    // at once, and checks it.
    virtual bool directWrite() { return false; }
    // The "Back up before cloning" switch: a clone reads the target and keeps its own
    // configuration in the backup directory before writing over it.
    virtual bool backupBeforeCloning() { return true; }

    // The coin learning windows, where the program has them: without them their buttons do
    // not show.
    virtual bool learningAvailable() { return false; }
    // Coin learning (ten samples at least), the reference calibration (five tokens of each
    // set), the channel control: each may change the image and says whether it did.
    virtual bool learnCoins(TMonnayeur &, ConfigImage &) { return false; }
    virtual bool calibrateReference(TMonnayeur &, ConfigImage &) { return false; }
    virtual bool controlChannel(TMonnayeur &, ConfigImage &) { return false; }
    // The list of overlapping channels, or "No overlapping !".
    virtual void checkOverlap(const ConfigImage &) {}

    // The value table form over this editor's value block.
    virtual bool valueTablesAvailable() { return false; }
    virtual void editValueTable(EditorModel &) {}

    // The browser of the validators saved in the tables, over this editor.
    virtual bool savedValidatorsAvailable() { return false; }
    virtual void browseSavedValidators(EditorModel &) {}

    // The Batch window: this editor's configuration, a file or a saved validator onto
    // validator after validator, over this editor's link.
    virtual bool batchAvailable() { return false; }
    virtual void runBatch(EditorModel &) {}

    // The channel copy dialog over its model, where the program has it.
    virtual bool copyDialogAvailable() { return false; }
    virtual void copyChannel(ChannelCopyModel &) {}

    // The Changes window over its model, once the model has listed the changes.
    virtual void showChanges(ChangesModel &) {}
    // The configuration sheet. "Save as PDF...": the file dialog, empty when cancelled.
    virtual QString saveSheetFileName(const QString &) { return {}; }
    // "Print...": the print dialog with its preview; paint draws the sheet on the printer the
    // person chose and returns the pages drawn (0: the printer could not be drawn on).
    virtual void printSheet(const std::function<int(QPagedPaintDevice &)> &) {}
    // The windows chart the sheet shows for an image; empty: the sheet has no chart.
    virtual SheetChart sheetChart(const ConfigImage &) { return {}; }

    // Each validator's history: a read or a write the editor did is kept there. A write whose
    // event cannot be kept still stands; the services say the history could not be kept.
    virtual void validatorEvent(const ValidatorEvent &) {}
    // The History window of a serial number, where the program has it; restoring goes through
    // the editor given.
    virtual bool historyAvailable() { return false; }
    virtual void showHistory(EditorModel &, quint32) {}
};

// Answers as a script would: every group, Continue, no dialogs, no files, no tables.
class DefaultEditorServices : public EditorServices
{
public:
    std::optional<CloneGroups> chooseCloneGroups() override { return CloneGroups{}; }
    bool continueDespite(const QString &) override { return true; }
    bool initialise(ConfigImage &) override { return false; }
    bool chooseOutput(ConfigImage &) override { return false; }
    QString openConfigFileName() override { return {}; }
    QString saveConfigFileName(const QString &) override { return {}; }
    void firmwareRequested(TMonnayeur &) override {}
    ValidatorTables *tables() override { return nullptr; }
    QString backupDirectory() override { return {}; }
};

#pragma once

#include "ChangesModel.h"
#include "ChannelCopyModel.h"
#include "ChannelGridModel.h"
#include "ConfigSheet.h"
#include "CountersModel.h"
#include "EditorState.h"
#include "IdentityModel.h"
#include "MoneyModel.h"
#include "OptionsModel.h"
#include "SerialTestModel.h"
#include "WriteVerification.h"

#include <functional>
#include <optional>

class EditorServices;
class TMonnayeur;
class UserPrompt;

// The editor TFormData without its widgets: every control by name with what it shows, the
// editor's flags, the handlers, and the one configuration image while the editor is open. The
// window, tarvik-cli show and edit, and the tests all drive this one model.
class EditorModel final
{
public:
    // link may be null: an editor over a file, with nothing to read or write.
    EditorModel(UserPrompt *prompt, EditorServices *services, TMonnayeur *link = nullptr);
    Q_DISABLE_COPY_MOVE(EditorModel)

    // The controls.
    const ControlSet &controls() const { return m_s.controls; }
    bool has(const QString &name) const { return m_s.controls.contains(name); }
    // The base an amount typed into the box is read against, when the box takes an amount: a
    // channel value (its channel's base), or a price slot that holds one under the output type
    // (base 1). Nothing for every other box.
    std::optional<DecimalWord> amountBase(const QString &name) const;
    const ControlState &control(const QString &name) const { return m_s.controls.state(name); }
    QStringList controlNames() const { return m_s.controls.names(); }

    // What a person does. Each returns false, with the reason in *error, when the control does
    // not exist or the action does not fit it (typing into a check box, a hidden or disabled
    // control).
    bool type(const QString &name, const QString &text, QString *error = nullptr);
    bool leave(const QString &name, QString *error = nullptr);
    bool click(const QString &name, QString *error = nullptr);
    bool pick(const QString &name, int item, QString *error = nullptr);

    // The view repaints these controls after every action.
    std::function<void(const QStringList &changed)> changed;
    // The view repaints at once, while a read or a write is going on.
    std::function<void()> repaintNow;
    // The editor closes itself (a read that failed, Close).
    std::function<void()> closeRequested;
    // The focus goes back to a box whose entry was refused.
    std::function<void(const QString &name)> focusRequested;

    const ConfigImage &image() const { return m_s.image; }
    // The image as last read, opened or written, which the Changes window compares with.
    const ConfigImage &baseline() const { return m_s.baseline; }
    // Takes an image from a file or a saved validator (named by from) and shows it. The Changes
    // window goes on comparing with what the connected validator was last read or written
    // holding; when it was neither, with the image opened.
    void loadImage(const ConfigImage &image, bool modified,
                   BaselineSource::Kind kind = BaselineSource::Kind::File,
                   const QString &from = {});
    // Before storing in the tables or opening another configuration: when the editor holds
    // changes the validator it read or wrote lacks, asks whether to go on; true to go on.
    bool unwrittenChangesAccepted(bool opening);
    const BaselineSource &baselineFrom() const { return m_s.baselineFrom; }
    // Takes an image another window changed (the value tables) and shows it as an edit.
    void editImage(const ConfigImage &image);
    EditorFlags &flags() { return m_s.flags; }
    const EditorFlags &flags() const { return m_s.flags; }
    bool hasLink() const { return m_link != nullptr; }
    TMonnayeur *link() const { return m_link; }

    // The handlers.
    void FormActivate();
    void SpeedButton1Click(); // read
    void SpeedButton8Click(); // full write
    // Writes only what Changes lists to the validator the editor read or wrote, then reads
    // that back; enabled while Changes lists something and the validator's configuration is
    // known.
    void BtnWriteChangesClick();
    void SpeedButton2Click(); // clone
    void SpeedButton4Click(); // store in the tables
    void BitBtn1Click();      // close
    // Whether the editor may close; asks "Save on validator?" when the image was changed.
    bool FormCloseQuery();
    void EHFUBMIN0Change();
    void EHFUBMIN0Exit();
    void BtnOpenFileClick();
    void BtnSaveFileClick();
    void BtnInitClick();
    void BtnOutputClick();
    // The channel copy dialog's model; copies act on this editor's image.
    ChannelCopyModel &channelCopy() { return m_copy; }
    void BtnCopyClick();
    // The Changes window's model; the button takes the form into the image and opens it.
    ChangesModel &changes() { return m_changes; }
    void BtnChangesClick();
    // The configuration sheet of what the editor shows: "Print..." and "Save as PDF...", enabled
    // once the editor holds a configuration (read or loaded).
    void BtnPrintClick();
    void BtnPdfClick();
    bool holdsConfiguration() const { return m_holdsConfiguration; }
    SheetOptions sheetOptions() const;
    // Puts a configuration from the validator's history back: the editor shows it, then writes
    // it as the full write does, kept in the history as a restore. The validator read (when it
    // is the one connected) gets only what differs once the changes write can send that.
    void restoreState(const ConfigImage &state, const QString &from);
    // The History window of the validator read or written.
    void BtnHistoryClick();
    // Coin learning, reference calibration, channel control and the overlap check.
    void learningClick(const QString &button);

    // The editor's timer, every kTimerMs: the serial test and the mini-programmer's requests.
    // It does nothing while another exchange or a dialog uses the link.
    void tick();
    static constexpr int kTimerMs = 50;
    bool testRunning() const { return m_test.running(); }

    // The language changed: every caption again.
    void retranslate();
    // Takes the changed controls and tells the view.
    void flush();

private:
    // Runs a handler that may use the link or open a dialog; the timer stays out meanwhile.
    void exclusive(const std::function<void()> &work);
    void display();
    void showModel(bool light);
    void showPagesOfImage();
    void setGauge(int value);
    void showProgress(bool shown, const QString &label = {});
    void stopExchange();
    // A write and its one box at the end: the write's own result, what the validator refused
    // and the read-back's result together; after a fault, the link's error and what reached
    // the validator, with "Write again" and "Put back as it was" (the last read).
    struct WriteJob
    {
        enum class Kind
        {
            Full,
            Clone,
            PutBack
        };
        Kind kind = Kind::Full;
        CloneGroups groups;
    };
    // What a write hands to its ending: the gauge started (what was said before it, the
    // warnings, shows at once), and the read-back's result.
    struct WriteEnding
    {
        std::function<void()> started;
        std::function<void(const VerifyResult &)> verified;
    };
    void writeWithEnding(WriteJob job);
    WriteOutcome oneWrite(const WriteJob &job, const WriteEnding &ending);
    WriteOutcome writeImage(ConfigImage &image, FullWriteOptions &options, SentBlocks &sent,
                            const WriteEnding &ending);
    // Reads the validator back after a write that finished, when the setting is on; nothing
    // when the setting is off.
    std::optional<VerifyResult> verifyAfterWrite(const SentBlocks &sent);
    void validatorHolds(const ConfigImage &image, BaselineSource::Kind kind);
    // The changes write of wanted over what the validator holds, with its read-back; quiet:
    // a write that went well says nothing (Direct write), only trouble shows.
    void writeChanges(const ConfigImage &wanted, bool quiet);
    // Direct write: the change of channel k, once its box is left.
    void writeChannelAtOnce(int k);
    void showWriteChanges();
    const Control *lookup(const QString &name, QString *error) const;
    bool canAct(const Control &control, QString *error) const;
    // Keeps what the validator holds among the backups: after a read, and after a write's
    // read-back, so that a changes write elsewhere counts from what it holds now.
    void keepBackup(const ConfigImage &holds);
    void exitBox(const QString &name);
    bool clickSetting(const QString &name);
    void pickType(int item);
    void showImage(const ConfigImage &image);
    void showSheetButtons();

    EditorState m_s;
    EditorServices *m_services;
    TMonnayeur *m_link;
    ChannelGridModel m_grid;
    IdentityModel m_identity;
    MoneyModel m_money;
    OptionsModel m_options;
    CountersModel m_counters;
    SerialTestModel m_test;
    ChannelCopyModel m_copy;
    ChangesModel m_changes;
    // The configuration last read from the validator: what "Put back as it was" writes.
    std::optional<ConfigImage> m_lastRead;
    bool m_busy = false;
    // A write puts back a state from the history.
    bool m_restoring = false;
    // The clone's target as read before the clone wrote over it.
    std::optional<ConfigImage> m_cloneTarget;
    bool m_holdsConfiguration = false;
};

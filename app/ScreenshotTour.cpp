#include "ScreenshotTour.h"

#include "Commands.h"
#include "EditorModel.h"
#include "FileDialog.h"
#include "HelpTopics.h"
#include "HelpWindow.h"
#include "MessageBoxPrompt.h"
#include "Messages.h"
#include "RecordingPrompt.h"
#include "ResourceFiles.h"
#include "Screenshot.h"
#include "Settings.h"
#include "TCommunication.h"
#include "TConnectForm.h"
#include "TFormAvertissementDif.h"
#include "TFormData.h"
#include "TFormMain.h"
#include "TFormRefChannel.h"
#include "VirtualValidator.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QSpinBox>
#include <QTableWidget>
#include <cstdio>

namespace {

constexpr int kPollMs = 50;
// Polls a shown window waits before its picture, so that it has laid out and painted.
constexpr int kSettlePolls = 6;

// A short S-record file for the firmware window; the mini-programmer checks nothing here.
constexpr char kFirmware[] =
    "S00F000068656C6C6F202020202000003C\r\n"
    "S11F00007C0802A6900100049421FFF07C6C1B787C8C23783C6000003863000026\r\n"
    "S11F001C4BFFFFE5398000007D83637880010014382100107C0803A64E800020E9\r\n"
    "S9030000FC\r\n";

// Inserts coins once, then is ready when the form has counted them.
std::function<bool(QWidget *)> afterCoins(VirtualValidator *device, CoinKind kind, int count,
                                          int channel = 0)
{
    auto inserted = std::make_shared<bool>(false);
    return [=](QWidget *form) {
        auto *coins = form->findChild<QLabel *>(QStringLiteral("LabelCoins"));
        if (!coins)
            return false;
        if (!*inserted) {
            *inserted = true;
            if (auto *spin = form->findChild<QSpinBox *>(QStringLiteral("SpinEdit1"));
                spin && channel > 0)
                spin->setValue(channel);
            for (int i = 0; i < count; ++i)
                device->insertCoin(kind);
        }
        return coins->text() == QString::number(count);
    };
}

} // namespace

ScreenshotTour::ScreenshotTour(QString directory, TFormMain *mainWindow, VirtualValidator *device,
                               UserPrompt *prompt)
    : m_directory(std::move(directory)), m_main(mainWindow), m_device(device), m_prompt(prompt),
      m_firmwareFile(m_scratch.filePath(QStringLiteral("new.s19")))
{
    m_poll.setInterval(kPollMs);
    connect(&m_poll, &QTimer::timeout, this, &ScreenshotTour::poll);
}

ScreenshotTour::~ScreenshotTour() = default;

void ScreenshotTour::prepareValidator(VirtualValidator &device)
{
    ConfigImage &memory = device.memory();
    memory.channels[6] = memory.channels[5];
    memory.values[std::size_t(Val::Channel0 + 6)] = memory.valueByte(5);
}

void ScreenshotTour::start(TFormData &editor)
{
    m_editor = &editor;
    QDir().mkpath(m_directory);
    QFile firmware(m_firmwareFile);
    if (firmware.open(QIODevice::WriteOnly))
        firmware.write(kFirmware);
    firmware.close();

    // One validator in the tables, for the editor's boxes and the browser.
    typeInEditor(QStringLiteral("EIdent"), QStringLiteral("SHOP-12"));
    typeInEditor(QStringLiteral("EDescription"), QStringLiteral("Bar du Port, machine 2"));
    editor.model().click(QStringLiteral("SpeedButton4"));
    pictureSheet();

    buildSteps();
    m_poll.start();
    beginStep();
}

void ScreenshotTour::pictureSheet()
{
    // The first page of the configuration sheet, as "Print..." draws it.
    const QString file = QDir(m_directory).filePath(QStringLiteral("sheet.png"));
    const EditorModel &model = m_editor->model();
    if (!sheetPageImage(sheetContent(model), model.sheetOptions(), 1).save(file)) {
        std::fprintf(stderr, "tarvik: screenshots: cannot write %s\n", qPrintable(file));
        m_missing.append(QStringLiteral("sheet"));
        return;
    }
    std::printf("tarvik: screenshots: %s\n", qPrintable(file));
    std::fflush(stdout);
}

void ScreenshotTour::pictureVerification(const QString &editor)
{
    m_device->setRefusal(Cmd::WriteEnable);
    RecordingPrompt told;
    UserPrompt *before = MessageBoxPrompt::divertedTo();
    MessageBoxPrompt::divertTo(&told);
    click(editor, QStringLiteral("Enable0"));
    click(editor, QStringLiteral("SpeedButton8"));
    MessageBoxPrompt::divertTo(before);
    m_device->clearFaults();
    // The box the write's prompt shows for the read-back's finding.
    QMessageBox box(QMessageBox::Warning, QApplication::applicationName(),
                    told.told().isEmpty() ? QString() : told.told().constLast(), QMessageBox::Ok,
                    m_editor);
    box.setObjectName(QStringLiteral("VerificationMessage"));
    box.exec();
}

void ScreenshotTour::typeInEditor(const QString &control, const QString &text)
{
    // As a person types: the box shows the text, the model takes it, then the box is left.
    if (auto *box = m_editor->findChild<QLineEdit *>(control))
        box->setText(text);
    m_editor->model().type(control, text);
    m_editor->model().leave(control);
}

void ScreenshotTour::click(const QString &window, const QString &button)
{
    QWidget *form = shownWindow(window);
    auto *target = form ? form->findChild<QAbstractButton *>(button) : nullptr;
    if (target)
        target->click();
    else
        std::fprintf(stderr, "tarvik: screenshots: no button %s in %s\n", qPrintable(button),
                     qPrintable(window));
}

void ScreenshotTour::buildSteps()
{
    const QString editor = QStringLiteral("TFormData");
    const QString learning = QStringLiteral("TFormProgCoin");
    auto editorButton = [this, editor](const char *name) {
        return [this, editor, name] { click(editor, QLatin1String(name)); };
    };
    auto parameters = [this] { return m_main->findChild<QMenu *>(QStringLiteral("Parametres1")); };

    m_steps = {
        {QStringLiteral("main-window"), QStringLiteral("TFormMain"), {}, {}, {}, true},
        {QStringLiteral("virtual-validator"), QStringLiteral("SimulatorPanel"), {}, {}, {}, true},
        {QStringLiteral("editor"), editor, {}, {}, {}, true},
        // A window box and a price edited, then what the write would change, with "Write
        // changes". Direct write (on for the value tables' picture) would write the window at
        // once: it is off while the boxes are edited.
        {QStringLiteral("changes"), QStringLiteral("TFormChanges"),
         [this, editor] {
             Settings settings;
             settings.load();
             settings.setDirectWrite(false);
             typeInEditor(QStringLiteral("EHFUBMIN4"), QStringLiteral("150"));
             typeInEditor(QStringLiteral("Eprix1"), QStringLiteral("1.20"));
             settings.setDirectWrite(true);
             click(editor, QStringLiteral("BtnChanges"));
         }},
        // The validator's history: the edits above written (their message answered), then the
        // events with what each changed.
        {QStringLiteral("history"), QStringLiteral("TFormHistory"),
         [this, editor] {
             RecordingPrompt written(UserPrompt::Answer::Ok);
             UserPrompt *before = MessageBoxPrompt::divertedTo();
             MessageBoxPrompt::divertTo(&written);
             m_editor->model().click(QStringLiteral("SpeedButton8"));
             MessageBoxPrompt::divertTo(before);
             click(editor, QStringLiteral("BtnHistory"));
         }},
        {QStringLiteral("parameters"), QStringLiteral("TFormMain"),
         [this, parameters] {
             QMenuBar *bar = m_main->menuBar();
             QMenu *menu = parameters();
             menu->popup(bar->mapToGlobal(bar->actionGeometry(menu->menuAction()).bottomLeft()));
         },
         [parameters](QWidget *) { return parameters()->isVisible(); },
         [parameters](QWidget *) { parameters()->hide(); }},
        {QStringLiteral("port-choice"), QStringLiteral("TCommunication"),
         [this] {
             TCommunication dialog(m_prompt, m_editor);
             dialog.choosePort(
                 {QStringLiteral("Com1"), QStringLiteral("Com2"), QStringLiteral("Com3")}, 0);
         }},
        {QStringLiteral("validator-setting"), QStringLiteral("TTarvikFormInit"),
         editorButton("BtnInit")},
        {QStringLiteral("output"), QStringLiteral("TFormCondotto"), editorButton("BtnOutput")},
        {QStringLiteral("cloning"), QStringLiteral("TCloningChk"), editorButton("SpeedButton2")},
        {QStringLiteral("warning"), QStringLiteral("TFormAvertissementDif"),
         [this] {
             int answer = 1;
             (new TFormAvertissementDif(
                  messageText(Msg::LastChannelDiffers, {QStringLiteral("60")}), answer, m_editor))
                 ->exec();
         }},
        // Ten 1.00 coins for channel 8; Anal&yse then asks the tolerances and lists the
        // channels that accept the next coin; the profiles come from Se&lect....
        {QStringLiteral("learning"),
         learning,
         editorButton("BtnLearn"),
         afterCoins(m_device, CoinKind::Euro100, 10, 8),
         {},
         true},
        {QStringLiteral("tolerances"),
         QStringLiteral("TTarvikTolerance"),
         [this, learning] { click(learning, QStringLiteral("BtnAnalyse")); },
         {},
         [this](QWidget *) { click(QStringLiteral("TTarvikTolerance"), QStringLiteral("BtnOK")); }},
        {QStringLiteral("analysis"),
         QStringLiteral("TTarvikAnalyse"),
         [this] { m_device->insertCoin(CoinKind::Euro100); },
         {},
         [](QWidget *window) { window->close(); }},
        {QStringLiteral("coin-profiles"),
         QStringLiteral("TFormProfilC"),
         [this, learning] { click(learning, QStringLiteral("BtnSelect")); },
         {},
         [this, learning](QWidget *window) {
             static_cast<QDialog *>(window)->reject();
             QTimer::singleShot(0, this,
                                [this, learning] { click(learning, QStringLiteral("BtnCancel")); });
         }},
        {QStringLiteral("calibration"), learning, editorButton("BtnReference"),
         afterCoins(m_device, CoinKind::GoldenToken, 5)},
        {QStringLiteral("reference-channel"), QStringLiteral("TFormRefChannel"),
         [this] { (new TFormRefChannel(m_editor))->exec(); }},
        {QStringLiteral("channel-control"), QStringLiteral("TFormCAdjust"),
         editorButton("BtnControl")},
        {QStringLiteral("overlap"), QStringLiteral("TFormSuperposition"),
         editorButton("BtnOverlap")},
        {QStringLiteral("channel-copy"), QStringLiteral("TFormTransfert"), editorButton("BtnCopy")},
        {QStringLiteral("value-tables"), QStringLiteral("TFormValue"), editorButton("BtnValues")},
        {QStringLiteral("saved-validators"), QStringLiteral("TFormReadFileData"),
         editorButton("BtnSaved")},
        {QStringLiteral("repair"), QStringLiteral("TFormRepair"),
         [this] { m_main->Repairtables1Click(); }},
        {QStringLiteral("data-source"), QStringLiteral("TFormDataSource"),
         [this] { m_main->Datasource1Click(); }},
        {QStringLiteral("firmware"), QStringLiteral("TMajFirmware"),
         [this] {
             m_device->setMiniProgrammer(true);
             FileDialog::setNextFileName(m_firmwareFile);
             // The mini-programmer is in its upgrade mode: the question is answered OK.
             RecordingPrompt upgradeMode(UserPrompt::Answer::Ok);
             UserPrompt *before = MessageBoxPrompt::divertedTo();
             MessageBoxPrompt::divertTo(&upgradeMode);
             m_main->Firmware1Click();
             MessageBoxPrompt::divertTo(before);
             m_device->setMiniProgrammer(false);
         },
         [](QWidget *window) {
             auto *ok = window->findChild<QAbstractButton *>(QStringLiteral("BitBtn1"));
             return ok && ok->isVisible();
         },
         [this](QWidget *) { click(QStringLiteral("TMajFirmware"), QStringLiteral("BitBtn1")); }},
        // F1 in the learning window opens the guide there.
        {QStringLiteral("help-window"),
         QStringLiteral("HelpWindow"),
         [this] {
             auto *help = new HelpWindow(m_editor);
             help->setAttribute(Qt::WA_DeleteOnClose);
             help->showSection(HelpTopics::guideFile(ResourceFiles::helpDirectory(), {}),
                               HelpTopics::sectionFor({QStringLiteral("TFormProgCoin")}));
             help->show();
         },
         {},
         [](QWidget *window) { window->close(); }},
        {QStringLiteral("mini-programmer"),
         QStringLiteral("TConnectForm"),
         [this] { (new TConnectForm(m_editor))->show(); },
         {},
         [](QWidget *window) { window->close(); }},
        // A batch during its run: the editor's configuration onto the validator, another one,
        // then the first again (already done); the validator in place is put back after.
        {QStringLiteral("batch"), QStringLiteral("TFormBatch"),
         [this, editor] {
             m_batchMemory = m_device->memory();
             click(editor, QStringLiteral("BtnBatch"));
         },
         [this](QWidget *window) { return batchRunUntil(window, 3); },
         [this](QWidget *window) { endBatch(window); }},
        // Last, as it writes to the validator: a write whose enable mask the validator refuses
        // ends at 100, and the read-back says what it does not hold.
        {QStringLiteral("verification"), QStringLiteral("VerificationMessage"),
         [this, editor] { afterBatchWindow([this, editor] { pictureVerification(editor); }); }},
    };
    // Three validators written and read back at the line's pace.
    for (Step &step : m_steps) {
        if (step.picture == QLatin1String("batch"))
            step.timeoutMs = 120000;
    }
}

bool ScreenshotTour::batchRunUntil(QWidget *window, int rows)
{
    m_batchWindow = window;
    auto *grid = window->findChild<QTableWidget *>(QStringLiteral("GridDone"));
    auto *start = window->findChild<QAbstractButton *>(QStringLiteral("BtnStart"));
    auto *stop = window->findChild<QAbstractButton *>(QStringLiteral("BtnStop"));
    if (!grid || !start || !stop)
        return false;
    if (!stop->isEnabled()) {
        if (grid->rowCount() == 0 && start->isEnabled())
            start->click();
        return false;
    }
    // Each validator is taken away once its result shows, and the next one plugged in when the
    // batch asks for it: 1002, then 1001 again.
    if (m_device->connected() && grid->rowCount() > m_batchSwaps && m_batchSwaps + 1 < rows) {
        ++m_batchSwaps;
        m_device->setConnected(false);
        return false;
    }
    auto *status = window->findChild<QLabel *>(QStringLiteral("LblStatus"));
    if (!m_device->connected() && status && status->text() == messageText(Msg::BatchPlugNext)) {
        m_device->setMemory(m_batchSwaps == 1 ? VirtualValidator::factoryImage(0x13, 1002)
                                              : m_batchMemory);
        m_device->setConnected(true);
        return false;
    }
    return grid->rowCount() >= rows;
}

void ScreenshotTour::endBatch(QWidget *window)
{
    if (auto *stop = window->findChild<QAbstractButton *>(QStringLiteral("BtnStop"));
        stop && stop->isEnabled())
        stop->click();
    // The run ends at its next step; then the window closes and the validator is as it was.
    auto *close = window->findChild<QAbstractButton *>(QStringLiteral("BtnClose"));
    if (close && close->isEnabled()) {
        close->click();
        m_device->setMemory(m_batchMemory);
        m_device->setConnected(true);
        return;
    }
    QTimer::singleShot(kPollMs, window, [this, window] { endBatch(window); });
}

void ScreenshotTour::afterBatchWindow(const std::function<void()> &then)
{
    // Gone, not only hidden: the editor's button that opened it has returned.
    if (m_batchWindow) {
        QTimer::singleShot(kPollMs, this, [this, then] { afterBatchWindow(then); });
        return;
    }
    then();
}

QWidget *ScreenshotTour::shownWindow(const QString &objectName) const
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible() && window->objectName() == objectName)
            return window;
    }
    return nullptr;
}

void ScreenshotTour::beginStep()
{
    ++m_index;
    if (m_index >= m_steps.size()) {
        finish();
        return;
    }
    m_settled = 0;
    m_stepOpened = false;
    m_clock.start();
}

void ScreenshotTour::poll()
{
    if (m_index < 0 || m_index >= m_steps.size())
        return;
    // Not between two exchanges of an operation: its window is still at work.
    if (const TMonnayeur *link = m_main->link().monnayeur();
        link && link->betweenExchangesRunning())
        return;
    const Step &step = m_steps.at(m_index);
    if (!m_stepOpened) {
        m_stepOpened = true;
        // The previous window has gone before the next one is asked for; opening may wait in
        // the new window's own event loop, where this timer goes on.
        if (step.open)
            QTimer::singleShot(0, this, step.open);
        return;
    }
    QWidget *window = shownWindow(step.window);
    if (window && (!step.ready || step.ready(window)) && ++m_settled >= kSettlePolls) {
        picture(window);
        if (step.close)
            QTimer::singleShot(0, window, [close = step.close, window] { close(window); });
        else if (!step.keepOpen)
            QTimer::singleShot(0, window, [window] {
                if (auto *dialog = qobject_cast<QDialog *>(window))
                    dialog->reject();
                else
                    window->close();
            });
        beginStep();
        return;
    }
    if (m_clock.elapsed() > step.timeoutMs) {
        std::fprintf(stderr, "tarvik: screenshots: %s (%s) did not show\n",
                     qPrintable(step.picture), qPrintable(step.window));
        m_missing.append(step.picture);
        beginStep();
    }
}

void ScreenshotTour::measure(QWidget *window)
{
    // Without a window manager the frame is the window itself: the allowance stands for one.
    QSize outer = window->frameGeometry().size();
    if (outer == window->size())
        outer += QSize(2 * kBorder, kTitleBar + kBorder);
    const QString name = m_steps.at(m_index).picture;
    const QString size =
        QStringLiteral("%1 %2x%3").arg(name).arg(outer.width()).arg(outer.height());
    std::printf("tarvik: screenshots: size with its frame %s\n", qPrintable(size));
    if (outer.width() * outer.height() > m_largestArea) {
        m_largestArea = outer.width() * outer.height();
        m_largest = size;
    }
    if (outer.width() > kScreenWidth || outer.height() > kScreenHeight) {
        std::fprintf(stderr, "tarvik: screenshots: %s is larger than %dx%d with its frame\n",
                     qPrintable(size), kScreenWidth, kScreenHeight);
        m_oversized.append(size);
    }
}

void ScreenshotTour::picture(QWidget *window)
{
    measure(window);
    const QString file = QDir(m_directory).filePath(m_steps.at(m_index).picture + ".png");
    // An open menu of the window shows over it.
    QList<QWidget *> popups;
    const QList<QMenu *> menus = window->findChildren<QMenu *>();
    for (QMenu *menu : menus) {
        if (menu->isVisible())
            popups.append(menu);
    }
    if (!saveWindowPicture(window, popups, file)) {
        std::fprintf(stderr, "tarvik: screenshots: cannot write %s\n", qPrintable(file));
        m_missing.append(m_steps.at(m_index).picture);
        return;
    }
    std::printf("tarvik: screenshots: %s\n", qPrintable(file));
    std::fflush(stdout);
}

void ScreenshotTour::finish()
{
    m_finished = true;
    m_poll.stop();
    std::printf("tarvik: screenshots: the largest window with its frame: %s\n",
                qPrintable(m_largest));
    std::fflush(stdout);
    // A window left over by a step that failed must not hold the editor open.
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *dialog = qobject_cast<QDialog *>(window);
        if (dialog && dialog->isVisible() && dialog != m_editor)
            dialog->reject();
    }
    if (m_editor) {
        m_editor->model().flags().configModified = false;
        m_editor->close();
    }
}

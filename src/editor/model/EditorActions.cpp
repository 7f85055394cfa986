// The editor's handlers that reach beyond the form: writing, cloning, storing, files, the
// small dialogs, closing and the timer.
#include "Backups.h"
#include "CloneTarget.h"
#include "ConfigFile.h"
#include "EditorModel.h"
#include "EditorServices.h"
#include "Messages.h"
#include "TMonnayeur.h"
#include "UserPrompt.h"
#include "WriteReport.h"
#include "WriteSequence.h"
#include "WriteVerification.h"

#include <QFileInfo>
#include <utility>

void EditorModel::SpeedButton4Click()
{
    exclusive([&] {
        EHFUBMIN0Exit();
        display();
        const QString identification = m_s.text(QStringLiteral("EIdent")).trimmed();
        if (identification.isEmpty()) {
            m_s.tell(messageText(Msg::IdentificationMustBeFilled));
            return;
        }
        ValidatorTables *tables = m_services ? m_services->tables() : nullptr;
        if (!tables) {
            m_s.tell(messageText(Msg::TablesUnavailable));
            return;
        }
        if (!unwrittenChangesAccepted(false))
            return;
        const ValidatorTables::Outcome stored = tables->storeValidator(
            m_s.image, identification, m_s.text(QStringLiteral("EDescription")).trimmed());
        // The validator read or written is the one the saved validator came from: its history
        // notes the name, so that the browser finds the history of what it saved.
        if (stored == ValidatorTables::Outcome::Stored && m_services &&
            m_s.baselineFrom.fromValidator()) {
            const ValidatorEvent event{QStringLiteral("store"),
                                       m_s.baselineFrom.serial,
                                       WriteOutcome::Finished,
                                       std::nullopt,
                                       m_s.baseline,
                                       identification};
            m_services->validatorEvent(event);
        }
    });
}

void EditorModel::stopExchange()
{
    if (m_link && m_link->linkGood())
        m_test.stop();
}

void EditorModel::BitBtn1Click()
{
    exclusive([&] {
        stopExchange();
        EHFUBMIN0Exit();
    });
    if (closeRequested)
        closeRequested();
}

bool EditorModel::FormCloseQuery()
{
    bool close = true;
    exclusive([&] {
        stopExchange();
        EHFUBMIN0Exit();
        if (!m_s.flags.configModified || !m_s.prompt)
            return;
        switch (m_s.prompt->ask(messageText(Msg::SaveOnValidator), UserPrompt::Kind::Confirmation,
                                UserPrompt::Buttons::YesNoCancel)) {
        case UserPrompt::Answer::Yes:
            SpeedButton8Click();
            break;
        case UserPrompt::Answer::Cancel:
            close = false;
            break;
        default:
            break;
        }
    });
    return close;
}

void EditorModel::BtnOpenFileClick()
{
    exclusive([&] {
        EHFUBMIN0Exit();
        if (!unwrittenChangesAccepted(true))
            return;
        const QString path = m_services ? m_services->openConfigFileName() : QString();
        if (path.isEmpty())
            return;
        ConfigImage image = ConfigImage::blank();
        QString error;
        if (!loadConfigFile(path, image, &error)) {
            // A malformed file names its bad key and changes nothing.
            if (m_s.prompt)
                m_s.prompt->tell(error, UserPrompt::Kind::Error);
            return;
        }
        // The validator does not hold what the file holds: closing offers to write it.
        loadImage(image, true, BaselineSource::Kind::File, QFileInfo(path).fileName());
    });
}

void EditorModel::BtnSaveFileClick()
{
    exclusive([&] {
        EHFUBMIN0Exit();
        const QString suggested = QStringLiteral("validator-%1.json").arg(m_s.image.serialNumber());
        const QString path = m_services ? m_services->saveConfigFileName(suggested) : QString();
        if (path.isEmpty())
            return;
        QString error;
        if (!saveConfigFile(path, m_s.image, &error) && m_s.prompt)
            m_s.prompt->tell(error, UserPrompt::Kind::Error);
    });
}

void EditorModel::BtnInitClick()
{
    exclusive([&] {
        EHFUBMIN0Exit();
        ConfigImage image = m_s.image;
        if (!m_services || !m_services->initialise(image))
            return;
        m_s.image = image;
        // The next full write gives the validator the serial number typed in the dialog.
        m_s.flags.serialOverride = true;
        m_s.flags.configModified = true;
        display();
    });
}

void EditorModel::BtnOutputClick()
{
    exclusive([&] {
        EHFUBMIN0Exit();
        ConfigImage image = m_s.image;
        if (!m_services || !m_services->chooseOutput(image))
            return;
        if (image.options != m_s.image.options)
            m_s.flags.configModified = true;
        m_s.image = image;
        display();
    });
}

void EditorModel::BtnCopyClick()
{
    if (!m_services)
        return;
    exclusive([&] {
        EHFUBMIN0Exit();
        m_copy.open();
        m_services->copyChannel(m_copy);
    });
}

void EditorModel::BtnChangesClick()
{
    exclusive([&] {
        m_changes.open();
        showWriteChanges();
        // Without a validator's configuration to count from, only the whole write can go.
        using Offer = ChangesModel::Offer;
        const bool known = m_s.baselineFrom.fromValidator();
        m_changes.setOffer(!m_link ? Offer::None
                           : known ? (m_s.controls.state(QStringLiteral("BtnWriteChanges")).enabled
                                          ? Offer::Changes
                                          : Offer::None)
                                   : Offer::Whole);
        if (m_services)
            m_services->showChanges(m_changes);
    });
    // The window's button closed it: the editor writes, with its gauge.
    switch (m_changes.takeWriteRequest()) {
    case ChangesModel::Offer::Changes:
        BtnWriteChangesClick();
        break;
    case ChangesModel::Offer::Whole:
        SpeedButton8Click();
        break;
    case ChangesModel::Offer::None:
        break;
    }
}

SheetOptions EditorModel::sheetOptions() const
{
    SheetOptions options;
    if (m_services)
        options.drawChart = m_services->sheetChart(m_s.image);
    return options;
}

void EditorModel::BtnPrintClick()
{
    if (!m_services || !m_holdsConfiguration)
        return;
    exclusive([&] {
        EHFUBMIN0Exit();
        const SheetContent content = sheetContent(*this);
        const SheetOptions options = sheetOptions();
        m_services->printSheet([&](QPagedPaintDevice &printer) {
            const int pages = paintSheet(printer, content, options);
            if (pages == 0 && m_s.prompt)
                m_s.prompt->tell(messageText(Msg::SheetNotPrinted), UserPrompt::Kind::Error);
            return pages;
        });
    });
}

void EditorModel::BtnPdfClick()
{
    if (!m_services || !m_holdsConfiguration)
        return;
    exclusive([&] {
        EHFUBMIN0Exit();
        const QString suggested = QStringLiteral("validator-%1.pdf").arg(m_s.image.serialNumber());
        const QString path = m_services->saveSheetFileName(suggested);
        if (path.isEmpty())
            return;
        QString error;
        // A sheet that cannot be written leaves the file that was there, and the editor, as
        // they were.
        if (!saveSheetPdf(path, sheetContent(*this), sheetOptions(), &error) && m_s.prompt)
            m_s.prompt->tell(messageText(Msg::SheetNotWritten, {path, error}),
                             UserPrompt::Kind::Error);
    });
}

void EditorModel::learningClick(const QString &button)
{
    if (!m_services)
        return;
    exclusive([&] {
        EHFUBMIN0Exit();
        if (button == QLatin1String("BtnOverlap")) {
            m_services->checkOverlap(m_s.image);
            return;
        }
        if (!m_link)
            return;
        bool changed = false;
        if (button == QLatin1String("BtnLearn"))
            changed = m_services->learnCoins(*m_link, m_s.image);
        else if (button == QLatin1String("BtnReference"))
            changed = m_services->calibrateReference(*m_link, m_s.image);
        else
            changed = m_services->controlChannel(*m_link, m_s.image);
        if (changed)
            m_s.flags.configModified = true;
        display();
    });
}

void EditorModel::tick()
{
    if (m_busy || !m_link)
        return;
    exclusive([&] { m_test.tick(m_services); });
}

void EditorModel::keepBackup(const ConfigImage &holds)
{
    const QString dir = m_services ? m_services->backupDirectory() : QString();
    if (dir.isEmpty())
        return;
    QString error;
    if (::keepBackup(dir, holds, QDateTime::currentDateTime(), &error).isEmpty() && m_s.prompt)
        m_s.prompt->tell(messageText(Msg::BackupFailed, {error}), UserPrompt::Kind::Warning);
}

void EditorModel::BtnHistoryClick()
{
    exclusive([&] {
        EHFUBMIN0Exit();
        if (m_services && m_s.baselineFrom.fromValidator())
            m_services->showHistory(*this, m_s.baselineFrom.serial);
    });
}

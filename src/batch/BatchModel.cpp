#include "BatchModel.h"

#include "Captions.h"
#include "ConfigFile.h"
#include "Messages.h"
#include "SoundPlayer.h"
#include "UserPrompt.h"

#include <QDir>
#include <QFileInfo>

namespace {

enum SourceItem
{
    FromEditor,
    FromFile,
    FromSaved
};

struct GroupBox
{
    const char *name;
    Cap caption;
};
constexpr GroupBox kGroups[] = {{"ChkChannels", Cap::BatchGroupChannels},
                                {"ChkValues", Cap::BatchGroupValues},
                                {"ChkPrices", Cap::BatchGroupPrices},
                                {"ChkConfig", Cap::BatchGroupConfig},
                                {"ChkEnable", Cap::BatchGroupEnable}};

// What the technician sets before Start: locked while the batch runs.
constexpr const char *kSettings[] = {"GroupSource", "ESourceFile", "BtnBrowse", "CbSaved",
                                     "ChkChannels", "ChkValues",   "ChkPrices", "ChkConfig",
                                     "ChkEnable",   "ChkFull",     "ECount",    "ChkAllowRepeat",
                                     "ChkSheets"};

QString name(const char *text)
{
    return QLatin1String(text);
}

QString familyName(quint8 familyByte)
{
    const QString text = QString::fromLatin1(familyText(familyByte));
    return text.isEmpty() ? QStringLiteral("0x%1").arg(familyByte, 2, 16, QLatin1Char('0')) : text;
}

} // namespace

BatchModel::BatchModel(TMonnayeur *link, UserPrompt *prompt, SoundPlayer *sounds, Sources sources)
    : m_link(link), m_prompt(prompt), m_sounds(sounds), m_sources(std::move(sources))
{
    build();
    retranslate();
    m_controls.takeChanged();
}

BatchModel::~BatchModel() = default;

void BatchModel::build()
{
    ControlSet &c = m_controls;
    c.add(name("TFormBatch"), ControlKind::Label);
    c.add(name("GroupSource"), ControlKind::Radio);
    c.setItemIndex(name("GroupSource"), m_sources.editorImage ? FromEditor : FromFile);
    c.add(name("ESourceFile"), ControlKind::Edit);
    c.add(name("BtnBrowse"), ControlKind::Button);
    c.add(name("CbSaved"), ControlKind::Radio);
    c.setItems(name("CbSaved"), m_sources.saved);
    c.setItemIndex(name("CbSaved"), m_sources.saved.isEmpty() ? -1 : 0);
    c.add(name("GroupWhat"), ControlKind::Group);
    for (const GroupBox &box : kGroups) {
        c.add(name(box.name), ControlKind::Check, name("GroupWhat"));
        c.setChecked(name(box.name), true);
    }
    c.add(name("ChkFull"), ControlKind::Check, name("GroupWhat"));
    c.add(name("LblCount"), ControlKind::Label);
    c.add(name("ECount"), ControlKind::Edit);
    c.setText(name("ECount"), QStringLiteral("0"));
    c.setBuddy(name("ECount"), name("LblCount"));
    c.add(name("ChkAllowRepeat"), ControlKind::Check);
    c.add(name("ChkSound"), ControlKind::Check);
    c.setChecked(name("ChkSound"), true);
    c.add(name("ChkSheets"), ControlKind::Check);
    c.add(name("BtnStart"), ControlKind::Button);
    c.add(name("BtnStop"), ControlKind::Button);
    c.add(name("BtnClose"), ControlKind::Button);
    c.add(name("LblStatus"), ControlKind::Label);
    c.add(name("Gauge"), ControlKind::Gauge);
    c.add(name("LblVerified"), ControlKind::Label);
    c.add(name("LblFailed"), ControlKind::Label);
    c.add(name("LblSkipped"), ControlKind::Label);
    c.add(name("LblLog"), ControlKind::Label);
    c.add(name("GridDone"), ControlKind::Panel);
    showSource();
    showRun();
}

void BatchModel::retranslate()
{
    ControlSet &c = m_controls;
    c.setText(name("TFormBatch"), captionText(Cap::BatchTitle));
    c.setItems(name("GroupSource"),
               {captionText(Cap::BatchSourceEditor), captionText(Cap::BatchSourceFile),
                captionText(Cap::BatchSourceSaved)});
    c.setText(name("GroupSource"), captionText(Cap::BatchSource));
    c.setAccessibleName(name("GroupSource"), captionText(Cap::BatchSource));
    c.setAccessibleName(name("ESourceFile"), captionText(Cap::BatchSourceFile));
    c.setAccessibleName(name("CbSaved"), captionText(Cap::BatchSourceSaved));
    c.setText(name("BtnBrowse"), captionText(Cap::BatchBrowse));
    c.setText(name("GroupWhat"), captionText(Cap::BatchGroups));
    for (const GroupBox &box : kGroups)
        c.setText(name(box.name), captionText(box.caption));
    c.setText(name("ChkFull"), captionText(Cap::BatchFullWrite));
    c.setText(name("LblCount"), captionText(Cap::BatchCount));
    c.setText(name("ChkAllowRepeat"), captionText(Cap::BatchAllowRepeat));
    c.setText(name("ChkSound"), captionText(Cap::BatchSound));
    c.setText(name("ChkSheets"), captionText(Cap::BatchSheets));
    c.setText(name("BtnStart"), captionText(Cap::BatchStart));
    c.setText(name("BtnStop"), captionText(Cap::BatchStop));
    c.setText(name("BtnClose"), captionText(Cap::Close));
    c.setAccessibleName(name("Gauge"), captionText(Cap::BatchTitle));
    c.setAccessibleName(name("GridDone"), captionText(Cap::BatchDone));
    for (Row &row : m_rows)
        row.cells[3] = resultCaption(row.result);
    m_gridChanged = true;
    showRun();
    flush();
}

QStringList BatchModel::columnTitles()
{
    return {captionText(Cap::BatchColTime),    captionText(Cap::BatchColSerial),
            captionText(Cap::BatchColFamily),  captionText(Cap::BatchColResult),
            captionText(Cap::BatchColSeconds), captionText(Cap::BatchColDetail)};
}

QString BatchModel::resultCaption(BatchResult result)
{
    switch (result) {
    case BatchResult::Verified:
        return captionText(Cap::BatchResultVerified);
    case BatchResult::Mismatch:
        return captionText(Cap::BatchResultMismatch);
    case BatchResult::Failed:
        return captionText(Cap::BatchResultFailed);
    case BatchResult::AlreadyDone:
        return captionText(Cap::BatchResultAlreadyDone);
    case BatchResult::WrongFamily:
        return captionText(Cap::BatchResultWrongFamily);
    }
    return {};
}

QColor BatchModel::resultColour(BatchResult result)
{
    switch (result) {
    case BatchResult::Verified:
        return QColor(0xc8, 0xe6, 0xc9);
    case BatchResult::Mismatch:
    case BatchResult::Failed:
        return QColor(0xff, 0xcd, 0xd2);
    case BatchResult::AlreadyDone:
    case BatchResult::WrongFamily:
        return QColor(0xff, 0xe0, 0xb2);
    }
    return {};
}

void BatchModel::showSource()
{
    ControlSet &c = m_controls;
    const int item = c.state(name("GroupSource")).itemIndex;
    c.setVisible(name("ESourceFile"), item == FromFile);
    c.setVisible(name("BtnBrowse"), item == FromFile);
    c.setVisible(name("CbSaved"), item == FromSaved);
    const bool full = c.state(name("ChkFull")).checked;
    for (const GroupBox &box : kGroups)
        c.setEnabled(name(box.name), !full && !running());
}

void BatchModel::showRun()
{
    ControlSet &c = m_controls;
    const bool busy = running();
    for (const char *setting : kSettings)
        c.setEnabled(name(setting), !busy);
    if (!busy)
        showSource();
    c.setEnabled(name("BtnStart"), !busy && m_link);
    c.setEnabled(name("BtnStop"), busy);
    c.setEnabled(name("BtnClose"), !busy);
    c.setText(name("LblStatus"), m_run ? m_run->status() : QString());
    c.setAccessibleName(name("LblStatus"), c.state(name("LblStatus")).text);
    c.setVisible(name("Gauge"), busy);
    // The gauge belongs to the validator in hand: empty while the batch waits.
    const bool working =
        m_run && (m_run->phase() == BatchPhase::Writing || m_run->phase() == BatchPhase::Verifying);
    if (!working)
        c.setValue(name("Gauge"), 0);
    const int verified = m_run ? m_run->verified() : 0;
    const int failed = m_run ? m_run->failed() : 0;
    const int skipped = m_run ? m_run->skipped() : 0;
    c.setText(name("LblVerified"),
              captionText(Cap::BatchVerifiedCount, {QString::number(verified)}));
    c.setText(name("LblFailed"), captionText(Cap::BatchFailedCount, {QString::number(failed)}));
    c.setText(name("LblSkipped"), captionText(Cap::BatchSkippedCount, {QString::number(skipped)}));
    c.setText(name("LblLog"),
              m_log ? captionText(Cap::BatchLogIn, {QDir::toNativeSeparators(m_log->path())})
                    : QString());
}

void BatchModel::flush()
{
    QStringList names = m_controls.takeChanged();
    if (m_gridChanged) {
        names.append(name("GridDone"));
        m_gridChanged = false;
    }
    if (!names.isEmpty() && changed)
        changed(names);
}

void BatchModel::tell(const QString &text)
{
    if (m_prompt)
        m_prompt->tell(text, UserPrompt::Kind::Warning);
}

void BatchModel::type(const QString &control, const QString &text)
{
    if ((control == QLatin1String("ESourceFile") || control == QLatin1String("ECount")) &&
        m_controls.state(control).enabled)
        m_controls.setText(control, text);
    flush();
}

void BatchModel::pick(const QString &control, int item)
{
    if ((control == QLatin1String("GroupSource") || control == QLatin1String("CbSaved")) &&
        m_controls.state(control).enabled) {
        m_controls.setItemIndex(control, item);
        showSource();
    }
    flush();
}

void BatchModel::click(const QString &control)
{
    // A control that is not offered does nothing (a setting while the batch runs).
    if (!m_controls.contains(control) || !m_controls.state(control).enabled)
        return;
    if (control == QLatin1String("BtnStart")) {
        start();
    } else if (control == QLatin1String("BtnStop")) {
        if (m_run)
            m_run->stop();
    } else if (control == QLatin1String("BtnBrowse")) {
        const QString file = m_sources.chooseFile ? m_sources.chooseFile() : QString();
        if (!file.isEmpty())
            m_controls.setText(name("ESourceFile"), file);
    } else if (m_controls.contains(control) && m_controls.at(control).kind == ControlKind::Check) {
        m_controls.setChecked(control, !m_controls.state(control).checked);
        showSource();
    }
    flush();
}

bool BatchModel::takeSource(ConfigImage &image, QString &sourceName)
{
    const int item = m_controls.state(name("GroupSource")).itemIndex;
    QString error;
    if (item == FromEditor && m_sources.editorImage) {
        image = *m_sources.editorImage;
        sourceName = QStringLiteral("serial%1").arg(image.serialNumber());
        return true;
    }
    if (item == FromFile) {
        const QString file = m_controls.state(name("ESourceFile")).text.trimmed();
        if (file.isEmpty()) {
            tell(messageText(Msg::BatchNoSource));
            return false;
        }
        if (!loadConfigFile(file, image, &error)) {
            tell(error);
            return false;
        }
        sourceName = QFileInfo(file).completeBaseName();
        return true;
    }
    if (item == FromSaved) {
        const ControlState &saved = m_controls.state(name("CbSaved"));
        if (saved.itemIndex < 0 || saved.itemIndex >= saved.items.size() || !m_sources.loadSaved) {
            tell(messageText(Msg::BatchNoSource));
            return false;
        }
        sourceName = saved.items.at(saved.itemIndex);
        image = ConfigImage::blank();
        if (!m_sources.loadSaved(sourceName, image, &error)) {
            tell(error.isEmpty() ? messageText(Msg::BatchSourceNotSaved, {sourceName}) : error);
            return false;
        }
        return true;
    }
    tell(messageText(Msg::BatchNoSource));
    return false;
}

void BatchModel::start()
{
    if (!m_link || running())
        return;
    BatchSettings settings;
    QString sourceName;
    if (!takeSource(settings.source, sourceName))
        return;
    settings.full = m_controls.state(name("ChkFull")).checked;
    settings.groups = CloneGroups{
        m_controls.state(name("ChkChannels")).checked, m_controls.state(name("ChkValues")).checked,
        m_controls.state(name("ChkPrices")).checked, m_controls.state(name("ChkConfig")).checked,
        m_controls.state(name("ChkEnable")).checked};
    if (!settings.full && !settings.groups.any()) {
        tell(messageText(Msg::BatchNoGroup));
        return;
    }
    bool ok = false;
    settings.count = m_controls.state(name("ECount")).text.trimmed().toInt(&ok);
    if (!ok || settings.count < 0 || settings.count > 9999) {
        tell(messageText(Msg::BatchCountInvalid));
        return;
    }
    settings.allowRepeat = m_controls.state(name("ChkAllowRepeat")).checked;
    settings.backupDirectory = QDir(m_sources.dataDirectory).filePath(QStringLiteral("backups"));
    auto log =
        std::make_unique<BatchLog>(BatchLog::defaultPath(m_sources.dataDirectory, sourceName));
    QString error;
    if (!log->open(&error)) {
        tell(messageText(Msg::BatchLogFailed, {error}));
        return;
    }
    // The sheets beside the log, in a directory named after it.
    if (m_controls.state(name("ChkSheets")).checked) {
        const QFileInfo info(log->path());
        settings.sheetsDirectory = info.absoluteDir().filePath(info.completeBaseName());
    }
    m_log = std::move(log);
    m_rows.clear();
    m_gridChanged = true;
    m_run = std::make_unique<BatchRun>(*m_link, std::move(settings), m_log.get());
    m_run->changed = [this] {
        showRun();
        flush();
    };
    m_run->progress = [this](int gauge) {
        m_controls.setValue(name("Gauge"), gauge);
        flush();
    };
    m_run->validatorDone = [this](const BatchValidatorResult &done) {
        addRow(done);
        if (validatorDone)
            validatorDone(done);
    };
    m_run->start();
    showRun();
}

void BatchModel::addRow(const BatchValidatorResult &done)
{
    const BatchRow &r = done.row;
    m_rows.append({{r.time.toString(QStringLiteral("HH:mm:ss")), QString::number(r.serial),
                    familyName(r.family), resultCaption(r.result),
                    QString::number(r.seconds, 'f', 1), r.detail},
                   r.result});
    m_gridChanged = true;
    showRun();
    flush();
    // The technician is at the bench, not at the screen.
    if (m_sounds && m_controls.state(name("ChkSound")).checked)
        m_sounds->play(r.result == BatchResult::Verified ? Sound::Coin : Sound::Chimes);
}

void BatchModel::tick()
{
    if (!running())
        return;
    m_run->tick();
    showRun();
    flush();
}

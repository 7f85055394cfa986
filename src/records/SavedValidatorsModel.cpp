#include "SavedValidatorsModel.h"

#include "DirectoryRecords.h"

#include "Captions.h"
#include "DbfTable.h"
#include "EditorModel.h"
#include "Encodings.h"
#include "Messages.h"
#include "TDBModule.h"
#include "UserPrompt.h"

namespace {

// The record bytes of the windows in the order of the editor's channel columns.
constexpr int kWindowBytes[] = {Rec::HfuLowMin, Rec::HfuLowMax, Rec::HfuHighMin, Rec::HfuHighMax,
                                Rec::DimMin,    Rec::DimMax,    Rec::LfMin,      Rec::LfMax,
                                Rec::HflLowMin, Rec::HflLowMax, Rec::HflHighMin, Rec::HflHighMax,
                                Rec::AmpMin,    Rec::AmpMax};
// The mark of an enabled channel in the Enable column.
const QString kEnabledMark = QStringLiteral("\u2713");

// The family as the editor shows it ("5.3"); the stored text when it is no family byte.
QString familyOf(const QString &stored)
{
    bool ok = false;
    const int byte = stored.trimmed().toInt(&ok);
    if (ok && byte >= 0 && byte <= 255) {
        const QString text = QString::fromLatin1(familyText(quint8(byte)));
        if (!text.isEmpty())
            return text;
    }
    return stored.trimmed();
}

QString joined(const QList<int> &channels)
{
    QStringList out;
    for (int c : channels)
        out.append(QString::number(c));
    return out.join(QStringLiteral(", "));
}

} // namespace

SavedValidatorsModel::SavedValidatorsModel(TDBModule &db, UserPrompt &prompt, EditorModel *editor)
    : m_db(&db), m_prompt(prompt), m_editor(editor),
      m_own(std::make_unique<DirectoryRecords>(db, prompt)), m_store(*m_own)
{
    init();
}

SavedValidatorsModel::SavedValidatorsModel(RecordStore &store, UserPrompt &prompt,
                                           EditorModel *editor)
    : m_prompt(prompt), m_editor(editor), m_store(store)
{
    init();
}

SavedValidatorsModel::~SavedValidatorsModel() = default;

void SavedValidatorsModel::init()
{
    ControlSet &c = m_controls;
    c.add(QStringLiteral("TFormReadFileData"), ControlKind::Label);
    c.add(QStringLiteral("LFilter"), ControlKind::Label);
    c.add(QStringLiteral("EFilter"), ControlKind::Edit);
    c.setBuddy(QStringLiteral("EFilter"), QStringLiteral("LFilter"));
    c.add(QStringLiteral("BtnOpen"), ControlKind::Button);
    c.add(QStringLiteral("BtnDelete"), ControlKind::Button);
    c.add(QStringLiteral("BtnHistory"), ControlKind::Button);
    c.setVisible(QStringLiteral("BtnHistory"), false);
    c.add(QStringLiteral("BtnClose"), ControlKind::Button);
    retranslate();
    reload();
    c.takeChanged();
}

void SavedValidatorsModel::retranslate()
{
    ControlSet &c = m_controls;
    c.setText(QStringLiteral("TFormReadFileData"), captionText(Cap::SavedValidators));
    c.setText(QStringLiteral("LFilter"), captionText(Cap::Filter));
    c.setText(QStringLiteral("BtnOpen"), captionText(Cap::Open));
    c.setText(QStringLiteral("BtnDelete"), captionText(Cap::Delete));
    c.setText(QStringLiteral("BtnHistory"), captionText(Cap::History));
    c.setText(QStringLiteral("BtnClose"), captionText(Cap::CloseButton));
    m_table.retranslate();
}

QStringList SavedValidatorsModel::channelColumns()
{
    QStringList columns{captionText(Cap::ChannelNumber, {QString()}).trimmed()};
    for (int col = int(Cap::ColHfuLowMin); col <= int(Cap::ColSub); ++col)
        columns.append(captionText(Cap(col)));
    return columns;
}

QList<SavedValidatorsTable::Row> SavedValidatorsModel::rows() const
{
    QList<SavedValidatorsTable::Row> shown;
    for (int r = 0; r < m_table.rowCount(); ++r)
        shown.append(m_table.row(r));
    return shown;
}

void SavedValidatorsModel::setFilter(const QString &text)
{
    m_controls.setText(QStringLiteral("EFilter"), text);
    // A stat of the two files, not a read: another program's store shows at the next key, and
    // so does a store this program read meanwhile (opening or deleting reads the tables).
    // A server is asked again at each key.
    const DbfTable *validators = m_db ? m_db->Gettoniere() : nullptr;
    if (!m_db || (validators && validators->isOpen() &&
                  (validators->changedOnDisk() || validators->diskStateKey() != m_listedState))) {
        reload();
        return;
    }
    m_table.setFilter(text);
    const int kept = m_currentIdent.isEmpty() ? -1 : m_table.find(m_currentIdent);
    select(kept >= 0 ? kept : 0);
}

void SavedValidatorsModel::reload()
{
    QList<SavedValidatorsTable::Row> all;
    const QList<ValidatorStore::Entry> entries = m_store.validators();
    m_listedState = m_db && m_db->Gettoniere() ? m_db->Gettoniere()->diskStateKey() : QString();
    all.reserve(entries.size());
    // The tables hold no serial number: it stays empty until a history keeps one.
    for (const ValidatorStore::Entry &entry : entries)
        all.append({entry.identification, entry.description, QString(), familyOf(entry.version)});
    m_table.setFilter(m_controls.state(QStringLiteral("EFilter")).text);
    m_table.setRows(std::move(all));
    m_currentIdent.clear();
    select(m_table.rowCount() > 0 ? 0 : -1);
}

void SavedValidatorsModel::select(int row)
{
    m_current = row >= 0 && row < m_table.rowCount() ? row : -1;
    m_controls.setEnabled(QStringLiteral("BtnOpen"), m_current >= 0 && m_editor);
    m_controls.setEnabled(QStringLiteral("BtnDelete"), m_current >= 0);
    m_controls.setEnabled(QStringLiteral("BtnHistory"), m_current >= 0);
    const QString ident = m_current >= 0 ? m_table.row(m_current).identification : QString();
    // The same validator keeps the channels already read.
    if (ident.isEmpty() || ident != m_currentIdent)
        loadChannels();
}

void SavedValidatorsModel::loadChannels()
{
    m_channelRows.clear();
    m_currentIdent.clear();
    ConfigImage image = ConfigImage::blank();
    if (m_current < 0 || !m_store.loadValidator(m_table.row(m_current).identification, image,
                                                nullptr, nullptr, nullptr))
        return;
    m_currentIdent = m_table.row(m_current).identification;
    const DecimalWord bases[2] = {
        FormatDecimalWord({image.values[Val::Base1], image.values[Val::Base1 + 1]}),
        FormatDecimalWord({image.values[Val::Base2], image.values[Val::Base2 + 1]})};
    for (int k = 0; k < kChannels; ++k) {
        const ChannelRecord &record = image.channels[std::size_t(k)];
        QStringList row{QString::number(k + 1)};
        for (int b : kWindowBytes)
            row.append(ByteToText(3, record[std::size_t(b)]).trimmed());
        row.append(record[Rec::Enabled] == 1 ? kEnabledMark : QString());
        const DecimalWord &base = bases[k < 30 ? 0 : 1];
        row.append(
            FormatChannelValue(base.decimals, 0, base.magnitude, record[Rec::Value]).trimmed());
        row.append(ByteToText(3, record[Rec::Substitute]).trimmed());
        m_channelRows.append(row);
    }
}

bool SavedValidatorsModel::BtnOpenClick()
{
    if (m_current < 0 || !m_editor)
        return false;
    const QString ident = m_table.row(m_current).identification;
    if (!m_editor->unwrittenChangesAccepted(true))
        return false;
    ConfigImage image = m_editor->image();
    ValidatorStore::LoadReport report;
    if (!m_store.loadValidatorInto(ident, image, nullptr, &report)) {
        m_prompt.tell(m_store.errorString(), UserPrompt::Kind::Error);
        return false;
    }
    // What the validator holds differs from what the editor now shows.
    m_editor->loadImage(image, true, BaselineSource::Kind::Record, ident);
    const int count = image.channelCount();
    QList<int> missing;
    for (int c : report.missing) {
        if (c <= count)
            missing.append(c);
    }
    if (!missing.isEmpty())
        m_prompt.tell(messageText(Msg::SavedChannelsMissing, {ident, joined(missing)}),
                      UserPrompt::Kind::Warning);
    if (!report.duplicated.isEmpty())
        m_prompt.tell(messageText(Msg::SavedChannelsDuplicated, {ident, joined(report.duplicated)}),
                      UserPrompt::Kind::Warning);
    return true;
}

bool SavedValidatorsModel::BtnDeleteClick()
{
    if (m_current < 0)
        return false;
    const QString ident = m_table.row(m_current).identification;
    // A table that cannot be changed is said before anything is asked.
    if (!m_store.canChangeValidators()) {
        m_prompt.tell(m_store.errorString(), UserPrompt::Kind::Error);
        return false;
    }
    if (m_prompt.ask(messageText(Msg::DeleteSavedValidator, {ident}),
                     UserPrompt::Kind::Confirmation,
                     UserPrompt::Buttons::YesNo) != UserPrompt::Answer::Yes)
        return false;
    if (!m_store.removeValidator(ident)) {
        m_prompt.tell(m_store.errorString(), UserPrompt::Kind::Error);
        return false;
    }
    reload();
    return true;
}

void SavedValidatorsModel::setHistory(
    std::function<std::optional<quint32>(const QString &identification)> serialOf,
    std::function<void(quint32)> show)
{
    m_serialOf = std::move(serialOf);
    m_showHistory = std::move(show);
    m_controls.setVisible(QStringLiteral("BtnHistory"), m_serialOf && m_showHistory);
}

void SavedValidatorsModel::BtnHistoryClick()
{
    if (m_current < 0 || !m_serialOf || !m_showHistory)
        return;
    const QString ident = m_table.row(m_current).identification;
    if (const std::optional<quint32> serial = m_serialOf(ident))
        m_showHistory(*serial);
    else
        m_prompt.tell(messageText(Msg::HistoryUnknownSaved, {ident}),
                      UserPrompt::Kind::Information);
}

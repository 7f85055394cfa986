#include "SavedValidatorsModel.h"

#include "Captions.h"
#include "EditorModel.h"
#include "Messages.h"
#include "UserPrompt.h"

namespace {

// The record bytes in the order of the channel grid's columns.
constexpr int kColumnBytes[] = {Rec::HfuHighMax, Rec::HfuHighMin, Rec::HfuLowMax, Rec::HfuLowMin,
                                Rec::LfMax,      Rec::LfMin,      Rec::DimMax,    Rec::DimMin,
                                Rec::HflHighMax, Rec::HflHighMin, Rec::HflLowMax, Rec::HflLowMin,
                                Rec::AmpMax,     Rec::AmpMin,     Rec::Substitute};

QString joined(const QList<int> &channels)
{
    QStringList out;
    for (int c : channels)
        out.append(QString::number(c));
    return out.join(QStringLiteral(", "));
}

} // namespace

SavedValidatorsModel::SavedValidatorsModel(TDBModule &db, UserPrompt &prompt, EditorModel *editor)
    : m_db(db), m_prompt(prompt), m_editor(editor), m_store(db, prompt)
{
    ControlSet &c = m_controls;
    c.add(QStringLiteral("TFormReadFileData"), ControlKind::Label);
    c.add(QStringLiteral("LFilter"), ControlKind::Label);
    c.add(QStringLiteral("EFilter"), ControlKind::Edit);
    c.setBuddy(QStringLiteral("EFilter"), QStringLiteral("LFilter"));
    c.add(QStringLiteral("BtnOpen"), ControlKind::Button);
    c.add(QStringLiteral("BtnDelete"), ControlKind::Button);
    c.add(QStringLiteral("BtnClose"), ControlKind::Button);
    retranslate();
    refresh();
    c.takeChanged();
}

void SavedValidatorsModel::retranslate()
{
    ControlSet &c = m_controls;
    c.setText(QStringLiteral("TFormReadFileData"), captionText(Cap::SavedValidators));
    c.setText(QStringLiteral("LFilter"), captionText(Cap::Filter));
    c.setText(QStringLiteral("BtnOpen"), captionText(Cap::Open));
    c.setText(QStringLiteral("BtnDelete"), captionText(Cap::Delete));
    c.setText(QStringLiteral("BtnClose"), captionText(Cap::CloseButton));
}

QStringList SavedValidatorsModel::channelColumns()
{
    return {
        QStringLiteral("CANAL"),      QStringLiteral("HFUHIGHMAX"), QStringLiteral("HFUHIGHMIN"),
        QStringLiteral("HFULOWMAX"),  QStringLiteral("HFULOWMIN"),  QStringLiteral("LFMAX"),
        QStringLiteral("LFMIN"),      QStringLiteral("DIMMAX"),     QStringLiteral("DIMMIN"),
        QStringLiteral("HFLHIGHMAX"), QStringLiteral("HFLHIGHMIN"), QStringLiteral("HFLLOWMAX"),
        QStringLiteral("HFLLOWMIN"),  QStringLiteral("HFLAMPMAX"),  QStringLiteral("HFLAMPMIN"),
        QStringLiteral("SUBSTITUTE"), QStringLiteral("VALID"),      QStringLiteral("VALEUR")};
}

void SavedValidatorsModel::setFilter(const QString &text)
{
    m_controls.setText(QStringLiteral("EFilter"), text);
    refresh();
}

void SavedValidatorsModel::refresh()
{
    const QString filter = m_controls.state(QStringLiteral("EFilter")).text.trimmed();
    m_rows.clear();
    for (const ValidatorStore::Entry &entry : m_store.list()) {
        if (filter.isEmpty() || entry.identification.contains(filter, Qt::CaseInsensitive) ||
            entry.description.contains(filter, Qt::CaseInsensitive))
            m_rows.append(entry);
    }
    select(m_rows.isEmpty() ? -1 : 0);
}

void SavedValidatorsModel::select(int row)
{
    m_current = row >= 0 && row < m_rows.size() ? row : -1;
    m_controls.setEnabled(QStringLiteral("BtnOpen"), m_current >= 0 && m_editor);
    m_controls.setEnabled(QStringLiteral("BtnDelete"), m_current >= 0);
    loadChannels();
}

void SavedValidatorsModel::loadChannels()
{
    m_channelRows.clear();
    ConfigImage image = ConfigImage::blank();
    if (m_current < 0 || !m_store.load(m_rows.at(m_current).identification, image))
        return;
    for (int k = 0; k < kChannels; ++k) {
        const ChannelRecord &record = image.channels[std::size_t(k)];
        QStringList row{QString::number(k + 1)};
        for (int b : kColumnBytes)
            row.append(QString::number(record[std::size_t(b)]));
        row.append(record[Rec::Enabled] == 255 ? QString() : QString::number(record[Rec::Enabled]));
        row.append(QString::number(record[Rec::Value]));
        m_channelRows.append(row);
    }
}

bool SavedValidatorsModel::BtnOpenClick()
{
    if (m_current < 0 || !m_editor)
        return false;
    const QString ident = m_rows.at(m_current).identification;
    if (!m_editor->unwrittenChangesAccepted(true))
        return false;
    ConfigImage image = m_editor->image();
    ValidatorStore::LoadReport report;
    if (!m_store.loadInto(ident, image, nullptr, &report)) {
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
    const QString ident = m_rows.at(m_current).identification;
    // A table that cannot be changed is said before anything is asked.
    if (!m_store.canChange()) {
        m_prompt.tell(m_store.errorString(), UserPrompt::Kind::Error);
        return false;
    }
    if (m_prompt.ask(messageText(Msg::DeleteSavedValidator, {ident}),
                     UserPrompt::Kind::Confirmation,
                     UserPrompt::Buttons::YesNo) != UserPrompt::Answer::Yes)
        return false;
    if (!m_store.remove(ident)) {
        m_prompt.tell(m_store.errorString(), UserPrompt::Kind::Error);
        return false;
    }
    refresh();
    return true;
}

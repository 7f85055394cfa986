#include "ChangesModel.h"

#include "Captions.h"
#include "EditorState.h"

#include <utility>

ChangesModel::ChangesModel(const EditorState &editor, std::function<void()> copyForm)
    : m_editor(editor), m_copyForm(std::move(copyForm))
{}

void ChangesModel::open()
{
    if (m_copyForm)
        m_copyForm();
    list();
}

namespace {

QString sinceText(const BaselineSource &from)
{
    const QString serial = QString::number(from.serial);
    const QString at = from.at.toString(QStringLiteral("HH:mm"));
    switch (from.kind) {
    case BaselineSource::Kind::Read:
        return captionText(Cap::SinceRead, {serial, at});
    case BaselineSource::Kind::Written:
        return captionText(Cap::SinceWritten, {serial, at});
    case BaselineSource::Kind::Record:
        return captionText(Cap::SinceRecord, {from.name});
    case BaselineSource::Kind::File:
        return captionText(Cap::SinceFile, {from.name});
    case BaselineSource::Kind::None:
        break;
    }
    return captionText(Cap::SinceStart);
}

} // namespace

void ChangesModel::list()
{
    m_since = sinceText(m_editor.baselineFrom);
    m_changes = configDifferences(m_editor.baseline, m_editor.image);
    m_lines.clear();
    if (m_changes.isEmpty()) {
        m_lines.append({captionText(Cap::NoChanges), false});
        return;
    }
    // The differences come group by group: a heading wherever the group changes.
    for (qsizetype i = 0; i < m_changes.size(); ++i) {
        const ConfigChange &change = m_changes.at(i);
        if (i == 0 || m_changes.at(i - 1).group != change.group)
            m_lines.append({changeGroupName(change.group), true});
        m_lines.append({change.text(), false});
    }
}

QString ChangesModel::title() const
{
    return captionText(Cap::Changes);
}

QString ChangesModel::writeCaption() const
{
    return captionText(m_offer == Offer::Whole ? Cap::WriteValidator : Cap::WriteChanges);
}

QString ChangesModel::closeCaption() const
{
    return captionText(Cap::Close);
}

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

void ChangesModel::list()
{
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

QString ChangesModel::closeCaption() const
{
    return captionText(Cap::Close);
}

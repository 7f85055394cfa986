#pragma once

#include "ControlSet.h"
#include "ValidatorStore.h"

class EditorModel;
class TDBModule;
class UserPrompt;

// The browser of saved validators TFormReadFileData ("Saved validators"): the validators of
// the tables with a filter, the channels of the selected one, and Open (into the editor) and
// Delete (with its channels).
class SavedValidatorsModel final
{
public:
    SavedValidatorsModel(TDBModule &db, UserPrompt &prompt, EditorModel *editor);

    const ControlSet &controls() const { return m_controls; }
    ControlSet &controls() { return m_controls; }

    // The validators whose identification or description holds the filter (without regard to
    // case), in table order.
    const QList<ValidatorStore::Entry> &rows() const { return m_rows; }
    void setFilter(const QString &text);
    int current() const { return m_current; }
    void select(int row);

    // The selected validator's channels: one row per channel, the columns of channelColumns().
    static QStringList channelColumns();
    const QList<QStringList> &channelRows() const { return m_channelRows; }

    // Opens the selected validator in the editor, marked modified so that closing asks to
    // write it; says which channels had no row or more than one.
    bool BtnOpenClick();
    // Deletes the selected validator with its channels, once the person agrees.
    bool BtnDeleteClick();

    void retranslate();

private:
    void refresh();
    void loadChannels();

    TDBModule &m_db;
    UserPrompt &m_prompt;
    EditorModel *m_editor;
    ValidatorStore m_store;
    ControlSet m_controls;
    QList<ValidatorStore::Entry> m_rows;
    QList<QStringList> m_channelRows;
    int m_current = -1;
};

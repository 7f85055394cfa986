#pragma once

#include "ControlSet.h"
#include "SavedValidatorsTable.h"
#include "ValidatorStore.h"

#include <functional>
#include <memory>
#include <optional>

class EditorModel;
class RecordStore;
class TDBModule;
class UserPrompt;

// The browser of saved validators TFormReadFileData ("Saved validators"): the validators of
// the tables in the editor's words with a filter, the channels of the selected one in the
// editor's order and captions, and Open (into the editor) and Delete (with its channels).
class SavedValidatorsModel final
{
public:
    SavedValidatorsModel(RecordStore &store, UserPrompt &prompt, EditorModel *editor);
    // Over the tables of a data module.
    SavedValidatorsModel(TDBModule &db, UserPrompt &prompt, EditorModel *editor);
    ~SavedValidatorsModel();
    Q_DISABLE_COPY_MOVE(SavedValidatorsModel)

    const ControlSet &controls() const { return m_controls; }
    ControlSet &controls() { return m_controls; }

    // The validators whose identification, description or serial number holds the filter
    // (without regard to case), in key order: the grid's model, filtered in memory.
    SavedValidatorsTable &table() { return m_table; }
    QList<SavedValidatorsTable::Row> rows() const;
    // Filters the list read once; the tables are read again only when another program changed
    // them. The selected validator stays selected while it is shown, else the first is.
    void setFilter(const QString &text);
    int current() const { return m_current; }
    void select(int row);

    // The selected validator's channels: one row per channel, the columns of channelColumns()
    // (the channel, then the editor's columns: windows minimum first, Enable, Value, Sub);
    // what is not set is empty.
    static QStringList channelColumns();
    const QList<QStringList> &channelRows() const { return m_channelRows; }

    // Opens the selected validator in the editor, marked modified so that closing asks to
    // write it; says which channels had no row or more than one.
    bool BtnOpenClick();
    // Deletes the selected validator with its channels, once the person agrees.
    bool BtnDeleteClick();

    // The History window of the selected validator, where the program has it: serialOf finds
    // the serial number its history knows it by, show opens the window. Without them BtnHistory
    // does not show.
    void setHistory(std::function<std::optional<quint32>(const QString &identification)> serialOf,
                    std::function<void(quint32)> show);
    // Opens the selected validator's history, or says that none is known.
    void BtnHistoryClick();

    void retranslate();

private:
    // Reads every stored validator again.
    void reload();
    void loadChannels();

    void init();

    TDBModule *m_db = nullptr; // the data module's tables; nothing for a server
    UserPrompt &m_prompt;
    EditorModel *m_editor;
    std::unique_ptr<RecordStore> m_own; // over the data module's tables, when made so
    RecordStore &m_store;
    ControlSet m_controls;
    SavedValidatorsTable m_table;
    QList<QStringList> m_channelRows;
    int m_current = -1;
    QString m_currentIdent; // whose channels m_channelRows hold
    QString m_listedState;  // the validator table's disk state when the list was read
    std::function<std::optional<quint32>(const QString &)> m_serialOf;
    std::function<void(quint32)> m_showHistory;
};

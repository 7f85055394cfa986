#pragma once

#include "ConfigImage.h"
#include "ControlSet.h"
#include "ValueTableStore.h"

#include <memory>

#include <QString>
#include <array>
#include <functional>

class RecordStore;
class TMonnayeur;
class UserPrompt;

// The value table form TFormValue ("Values Table") without its widgets: the two credit bases,
// the ratio and the value of every channel as one grid over a private copy of the editor's
// 75-byte value block. The copy can be read from and sent to the validator, saved to and
// opened from the value table, cleared, and applied to the editor.
class ValueTableModel final
{
public:
    // How the form reaches the editor: the block it copies when activated, where Apply puts
    // the working copy, and the editor's ConfigModified flag.
    struct Editor
    {
        std::function<ValueBlock()> block;
        std::function<void(const ValueBlock &)> apply;
        std::function<void()> modified;
    };
    // link and store may be null (no validator, no tables): their buttons are then disabled.
    // directWrite makes "&Transfert" visible.
    ValueTableModel(Editor editor, bool light, TMonnayeur *link, UserPrompt *prompt,
                    RecordStore *store, bool directWrite);
    // Over the value table of a data module.
    ValueTableModel(Editor editor, bool light, TMonnayeur *link, UserPrompt *prompt,
                    ValueTableStore *store, bool directWrite);
    ~ValueTableModel();
    // Over the editor's block and flag themselves.
    ValueTableModel(ValueBlock &editorBlock, bool *configModified, bool light, TMonnayeur *link,
                    UserPrompt *prompt, ValueTableStore *store, bool directWrite);
    Q_DISABLE_COPY_MOVE(ValueTableModel)

    static constexpr int kColumns = 11; // the header column and channels 1 to 10 of a row
    static constexpr int kRows = 7;     // the header row and six rows of ten channels

    const ControlSet &controls() const { return m_controls; }
    const ControlState &control(const QString &name) const { return m_controls.state(name); }
    bool light() const { return m_light; }
    const ValueBlock &workingCopy() const { return m_copy; }

    // The grid TableauValue: rows shown (4 on the Light model), texts, the current cell.
    int rowCount() const { return m_light ? 4 : kRows; }
    QString cell(int column, int row) const
    {
        return m_cells[std::size_t(row)][std::size_t(column)];
    }
    // A value cell's unit and largest amount (its channel's base); empty for the headers.
    QString cellTip(int column, int row) const;
    int currentColumn() const { return m_column; }
    int currentRow() const { return m_row; }

    // The data grid DBGrid1 over the value table: column titles, rows, the current row.
    QStringList gridTitles() const;
    const QList<ValueTableStore::Entry> &records() const { return m_records; }
    int currentRecord() const { return m_record; }

    // What a person does in the boxes LabeledEdit1 to LabeledEdit5.
    void type(const QString &name, const QString &text);
    void leave(const QString &name);
    // BitBtn1 to BitBtn7 and the navigator's buttons (DBNavigator1First, Prior, Next, Last,
    // Delete).
    void click(const QString &name);

    // The grid. Typing replaces the text of a cell just entered and extends it afterwards.
    enum class GridKey
    {
        Tab,
        BackTab,
        Up,
        Down,
        PageUp,
        PageDown,
        Left,
        Right,
        Enter,
        Backspace
    };
    void gridType(const QString &text);
    // Tab, Page Up, Up, Page Down and Down store the current cell first; the others do not.
    void gridKey(GridKey key);
    // A click stores the current cell, then moves to the clicked one.
    void gridClick(int column, int row);
    // A click or a double click (which opens it) in DBGrid1.
    void recordClick(int row);
    void recordDoubleClick(int row);

    // The handlers.
    void FormCreate();
    void FormActivate();
    void ShowTable();
    // False when a base box or the cell does not convert: it is said, the entry stays as typed
    // and the focus goes back to it.
    bool StoreCurrentCell();
    void BitBtn7Click(); // Load
    void BitBtn4Click(); // Transfert
    bool BitBtn3Click(); // Apply; false when an entry did not convert
    void BitBtn1Click(); // Exit
    void BitBtn6Click(); // Reset
    void BitBtn2Click(); // Save
    void BitBtn5Click(); // Open
    void refreshRecords();

    void retranslate();

    // The view repaints these controls (and the grids) after every action.
    std::function<void(const QStringList &changed)> changed;
    // The form closes (Exit).
    std::function<void()> closeRequested;
    // The focus goes to a box (the name on an empty Save).
    std::function<void(const QString &name)> focusRequested;

private:
    void init();
    void flush();
    void tell(const QString &text, int kind) const;
    void setBaseEdit(const QString &name, const QString &text);
    void moveTo(int column, int row);
    // Each parse that fails says so and stops the store where it is.
    bool storeBases();
    bool refuse(const QString &box, const QString &text);
    void configModified();

    Editor m_editor;
    bool m_light;
    TMonnayeur *m_link;
    UserPrompt *m_prompt;
    std::unique_ptr<RecordStore> m_own; // over the data module's table, when made so
    RecordStore *m_store;
    bool m_directWrite;
    ControlSet m_controls;
    ValueBlock m_copy{};
    std::array<std::array<QString, kColumns>, kRows> m_cells;
    int m_column = 1;
    int m_row = 1;
    bool m_cellEntered = true; // the next character typed replaces the cell's text
    bool m_changed = false;    // a base box changed since the table was shown
    QList<ValueTableStore::Entry> m_records;
    int m_record = -1;
};

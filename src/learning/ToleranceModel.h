#pragma once

#include "FormModel.h"
#include "Learning.h"

// The tolerance dialog TTarvikTolerance without its widgets: a grid of fourteen rows, a fixed
// key ("HFU low min." ... "HFL amp max.") and an editable value shown "%7d", under the titles
// "Items" and "Values". A click in the grid normalises every row, leaving a row normalises it.
class ToleranceModel final : public FormModel
{
public:
    static constexpr int kRows = 2 * kWindows;

    explicit ToleranceModel(UserPrompt *prompt);

    static QString keyName(int row);   // "Key1" .. "Key14"
    static QString valueName(int row); // "Value1" .. "Value14"
    // The row of a value control, -1 for another control.
    static int rowOf(const QString &name);

    // The caller's margins into the rows.
    void load(const Tolerances &tolerances);
    // The rows back into the margins, each kept to its low eight bits. False, after the
    // conversion error, when a row is not an integer: the rows before it are stored, that row
    // and the ones after keep their margins.
    bool readBack(Tolerances &tolerances);

    // A click anywhere in the grid: every row re-read and shown "%7d".
    void gridClick();
    // The current row left with Tab, an arrow or a page key: that row only.
    void normaliseRow(int row);

    void retranslate() override;

protected:
    void left(const QString &name) override;
    void clicked(const QString &name) override;

private:
    bool parseRow(int row, int &value);
};

#pragma once

#include "ControlSet.h"

#include <QHash>
#include <QSet>

class QGridLayout;
class QWidget;

// Lays out the controls of the editor's groups on a grid of two columns: a caption beside the
// box it names, a few controls that belong together on one line, any other control on a line
// of its own.
class GroupGrid final
{
public:
    explicit GroupGrid(const ControlSet &controls);

    // Places a control's widget in its group; caption is the label that names it, if any.
    void place(QWidget *group, QWidget *widget, const Control &control, QWidget *caption);

private:
    QGridLayout *gridOf(QWidget *group);

    QSet<QString> m_captions;
    QHash<QWidget *, int> m_rows;
    // The line each shared line started on, by its first control.
    QHash<QString, int> m_lineRows;
    QHash<QString, QWidget *> m_lineBoxes;
};

#include "GroupGrid.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QStringList>
#include <QWidget>

namespace {

// Controls that share a line. Two fill the two columns; more sit side by side across both.
const QList<QStringList> &sharedLines()
{
    static const QList<QStringList> lines = [] {
        QList<QStringList> out = {
            {QStringLiteral("LTestChannel"), QStringLiteral("LTestChannelValue")},
            {QStringLiteral("LTestAmount"), QStringLiteral("LTestAmountValue")},
            {QStringLiteral("ChkCode"), QStringLiteral("LCodeState")},
            {QStringLiteral("LCounter1"), QStringLiteral("LCounterValue1")},
            {QStringLiteral("LCounter2"), QStringLiteral("LCounterValue2")},
            {QStringLiteral("CounterEnable"), QStringLiteral("RazEnable")},
            {QStringLiteral("Button1"), QStringLiteral("Button2")},
        };
        // Each code box with its lamps, an on and an off lamp per bit, bit 5 first.
        const char *const lamps[3][12] = {
            {"ImageLed", "Image38", "Image15", "Image39", "Image16", "Image40", "Image17",
             "Image41", "Image18", "Image42", "Image19", "Image43"},
            {"Image20", "Image44", "Image21", "Image45", "Image22", "Image46", "Image23", "Image47",
             "Image24", "Image48", "Image25", "Image49"},
            {"Image32", "Image56", "Image33", "Image57", "Image34", "Image58", "Image35", "Image59",
             "Image36", "Image60", "Image37", "Image61"},
        };
        for (int i = 0; i < 3; ++i) {
            QStringList line{QStringLiteral("Edit%1").arg(i + 1)};
            for (const char *lamp : lamps[i])
                line.append(QLatin1String(lamp));
            out.append(line);
        }
        QStringList bits;
        for (int i = 0; i < 16; ++i)
            bits.append(QStringLiteral("LBit%1").arg(i));
        bits.append(QStringLiteral("LOptionHex"));
        out.append(bits);
        return out;
    }();
    return lines;
}

const QStringList *lineOf(const QString &name)
{
    for (const QStringList &line : sharedLines()) {
        if (line.contains(name))
            return &line;
    }
    return nullptr;
}

} // namespace

GroupGrid::GroupGrid(const ControlSet &controls)
{
    for (const Control &control : controls.all()) {
        if (!control.buddy.isEmpty())
            m_captions.insert(control.buddy);
    }
}

QGridLayout *GroupGrid::gridOf(QWidget *group)
{
    if (auto *grid = qobject_cast<QGridLayout *>(group->layout()))
        return grid;
    auto *grid = new QGridLayout(group);
    grid->setContentsMargins(6, 2, 6, 4);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(2);
    grid->setColumnStretch(1, 1);
    return grid;
}

void GroupGrid::place(QWidget *group, QWidget *widget, const Control &control, QWidget *caption)
{
    // A caption goes with the box it names.
    if (m_captions.contains(control.name))
        return;
    QGridLayout *grid = gridOf(group);
    int &row = m_rows[group];
    if (caption) {
        grid->addWidget(caption, row, 0);
        grid->addWidget(widget, row, 1);
        ++row;
        return;
    }
    const QStringList *line = lineOf(control.name);
    if (!line) {
        grid->addWidget(widget, row++, 0, 1, 2);
        return;
    }
    const QString &first = line->constFirst();
    if (line->size() == 2) {
        if (control.name == first) {
            m_lineRows.insert(first, row);
            grid->addWidget(widget, row++, 0);
        } else {
            grid->addWidget(widget, m_lineRows.value(first, row), 1);
        }
        return;
    }
    QWidget *box = m_lineBoxes.value(first);
    if (!box) {
        box = new QWidget(group);
        auto *layout = new QHBoxLayout(box);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(6);
        grid->addWidget(box, row++, 0, 1, 2, Qt::AlignLeft);
        m_lineBoxes.insert(first, box);
    }
    static_cast<QHBoxLayout *>(box->layout())->addWidget(widget);
}

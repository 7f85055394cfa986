#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

class EditorModel;

// One line of a group of the sheet: a caption and what the editor shows beside it, or a check
// box drawn as the editor draws it.
struct SheetField
{
    QString label;
    QString value;
    std::optional<bool> checked; // set: a check box instead of a text
};

struct SheetSection
{
    QString title;
    QList<SheetField> fields;
};

// One channel in use, its boxes as the editor's row shows them.
struct SheetChannel
{
    int number = 0;       // 1 to 60
    QStringList windows;  // the fourteen window boxes, in the order of the row
    bool enabled = false; // its "Enable" box
    QString value;
    QString substitute;
};

// What the configuration sheet says: the editor's own captions and the texts and checks of its
// controls, taken after the editor has shown the configuration, so that the paper says exactly
// what the screen says.
struct SheetContent
{
    QString title;
    SheetSection identity;
    QString channelsTitle;
    QStringList channelHeaders; // the channel, the fourteen windows, enable, value, substitute
    QList<SheetChannel> channels;
    QString noChannel;            // said instead of an empty table
    QList<SheetSection> settings; // prices, bases, type, options, counters
    QString chartTitle;
};

// The sheet of the configuration the editor shows. The channels listed are those in use (every
// window but the amplitude's set), among the channels of its model.
SheetContent sheetContent(const EditorModel &editor);

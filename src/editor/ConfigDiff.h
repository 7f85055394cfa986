#pragma once

#include "ConfigImage.h"

#include <QList>
#include <QString>

// The groups a difference belongs to: the clone write's groups, then the identification and the
// counters, which only the full write sends.
enum class ChangeGroup
{
    Channels,
    Values,
    Prices,
    Config,
    Enable,
    Identification,
    Counters
};

// One field that differs between two configurations, in the editor's words and units.
struct ConfigChange
{
    ChangeGroup group = ChangeGroup::Channels;
    int channel = -1; // 0-based; -1 when the field is not a channel's
    QString key;      // stable, for scripts: "channel.5.hfu_low_min", "price.1", "ident.serial"
    QString where;    // "Channel 5", or empty
    QString field;    // "HFU low min", "Value P1", "Serial Number"
    QString before;   // as the editor shows it
    QString after;

    // "Channel 5: HFU low min 67 → 70", "Value P1: 1.00 → 1.20", "Channel 12: enabled → disabled"
    QString text() const;
};

// Every field that differs from `before` to `after`, group by group in the order above, channels
// in order. Only bytes that differ are formatted, so that two equal images cost one comparison
// per block. The validator's own blocks (the ones read with commands 2, 8, 9 and 13) are not
// compared.
QList<ConfigChange> configDifferences(const ConfigImage &before, const ConfigImage &after);

// The group's name as the cloning dialog says it, in the chosen language.
QString changeGroupName(ChangeGroup group);
// The group's name for scripts: "channels", "values", "prices", "config", "enable",
// "identification", "counters".
const char *changeGroupKey(ChangeGroup group);

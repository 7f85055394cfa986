#pragma once

#include "ConfigImage.h"

#include <QMap>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <functional>

class VirtualValidator;
struct LineProfile;

// What a bench script tells the virtual validator, one command a line: coins and tokens into
// the slot, the door, the cable, a new validator, the mini-programmer, the line. tarvik-sim reads
// them from its standard input; its bench panel sends the same lines.
class BenchCommands final
{
public:
    // `onLine` takes a new line profile ("line ..."); without it the command is refused.
    explicit BenchCommands(VirtualValidator *device,
                           std::function<void(const LineProfile &)> onLine = {})
        : m_device(device), m_onLine(std::move(onLine))
    {}
    Q_DISABLE_COPY_MOVE(BenchCommands)

    struct Reply
    {
        QString output; // for standard output: the command list
        QString error;  // one line for standard error when the command was not understood
    };
    // Runs one line on the device. A blank line does nothing; a line not understood changes
    // nothing.
    Reply run(QStringView line);
    // The commands, one a line, each with what it does.
    static QString help();

    static constexpr int kMostCoins = 1000;

private:
    Reply coin(QStringList arguments);
    Reply fit(const QStringList &arguments);
    Reply changeLine(const QStringList &arguments);
    Reply plug(const QStringList &arguments);
    Reply unplug(const QStringList &arguments);
    // The validator in place goes back on the rack with the memory it has now.
    void shelve();

    VirtualValidator *m_device;
    // The validators that were plugged before, by serial number, with their memory as they
    // were unplugged; the one in place is filed under m_inPlace.
    QMap<quint32, ConfigImage> m_rack;
    quint32 m_inPlace = 0;
    bool m_inPlaceKnown = false;
    std::function<void(const LineProfile &)> m_onLine;
};

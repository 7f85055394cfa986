#pragma once

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

    VirtualValidator *m_device;
    std::function<void(const LineProfile &)> m_onLine;
};

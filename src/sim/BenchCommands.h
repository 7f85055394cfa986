#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

class VirtualValidator;

// What a bench script tells the virtual validator, one command a line: coins and tokens into
// the slot, the door, the cable. tarvik-sim reads them from its standard input.
class BenchCommands final
{
public:
    explicit BenchCommands(VirtualValidator *device) : m_device(device) {}
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

    VirtualValidator *m_device;
};

#pragma once

#include "LineProfile.h"

#include <QString>
#include <QStringList>

// The command line of the tarvik program.
struct AppOptions
{
    bool simulate = false;      // --simulate: the virtual validator, with its bench panel
    bool smoke = false;         // --smoke: start, show the main window, close at once
    bool reportStartup = false; // --report-startup: say on stdout when the link is open
    bool help = false;          // --help: print the usage and end
    bool version = false;       // --version: print the version and end
    QString screenshot;         // --screenshot FILE: grab the windows into FILE and end
    QString screenshots;        // --screenshots DIR: picture every window into DIR and end
    QString device;             // --device PATH: this system port stands as COM1
    QString simLine;            // --sim-line LINE: how rough the virtual validator's line is
    QString language;           // --language en|fr|it|de|local: its code ("FR"; empty: Local)
    bool languageGiven = false;
    QStringList portArguments; // the other arguments; one may name the port (COM4)
    QString error;             // not empty: bad usage

    static AppOptions parse(const QStringList &arguments);
    static QString usage();
    static QString versionText();
    // No one at the screen: messages go to the error stream and nothing waits for a click.
    bool unattended() const { return smoke || !screenshot.isEmpty() || !screenshots.isEmpty(); }
    bool useVirtualValidator() const;
    // The virtual validator with its bench panel in a process of its own on a pseudo-terminal
    // (--simulate with someone at the screen, where pseudo-terminals exist); else in this one.
    bool benchInOwnProcess() const;
    // The virtual validator's line: --sim-line, else a bench's, or an instant one when nobody
    // watches (pictures and the smoke start).
    LineProfile simulatedLine() const;
};

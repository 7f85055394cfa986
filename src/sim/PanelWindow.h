#pragma once

#include <QString>
#include <csignal>

class BenchCommands;
class PtyServer;
class VirtualValidator;
struct LineProfile;

// tarvik-sim --window: the validator is served on a thread of its own while the bench panel
// runs in the main thread, so that nothing the program shows can block it. The panel's actions
// and the lines on standard input reach the serving loop as bench commands through a pipe; the
// end of standard input (the program that started the bench has ended) closes the panel.
// Serves until the panel is closed, the input ends or *stop is set by a signal.
int runWithPanel(PtyServer &server, VirtualValidator &device, BenchCommands &commands,
                 const LineProfile &line, volatile std::sig_atomic_t *stop);

#pragma once

#include <QApplication>

// The one application object of history_tests: the History window needs widgets, the runs of
// tarvik-cli an event loop.
inline void testApplication()
{
    static int argc = 1;
    static char name[] = "history_tests";
    static char *argv[] = {name, nullptr};
    if (!QCoreApplication::instance())
        new QApplication(argc, argv);
}

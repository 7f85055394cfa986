#pragma once

#include <QString>

// The window program needs a display. Without one it says so on stderr and ends with 1, rather
// than letting the window system's library abort with advice to reinstall.
namespace DisplayCheck {

// Why no display can be reached, before any is tried (on X11 and Wayland systems: none of
// DISPLAY, WAYLAND_DISPLAY and QT_QPA_PLATFORM is set); empty when one may be.
QString missingDisplay();

// While the application object is made: a display that is named but cannot be opened ends the
// program with the message and exit code 1. end() restores the usual message handling and hands
// on what was held back.
void begin();
void end();

} // namespace DisplayCheck

#pragma once

// Which windows of the program are open: the first is its main window, the last the one in front.

#include <windows.h>

namespace platform {

// Null while no window is open.
HWND main_window();
HWND front_window();

// To be told when a dialog is set up, and when it has ended; the last to open is the first to close.
void note_open_window(HWND window);
void note_closed_window();

} // namespace platform

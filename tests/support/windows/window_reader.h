#pragma once

// Reads the error dialogs and message boxes of a process and closes them, as a user in a hurry does.

#include <string>
#include <vector>

#include <windows.h>

class window_reader {
public:
    explicit window_reader(DWORD of_process) : process(of_process) {}

    // Reads each window that has come up since the last call, and presses its OK.
    void close_open_windows();
    // All that was read: "title: text" with plain line feeds and one at the end.
    const std::string& read() const { return texts; }

private:
    static BOOL CALLBACK next_window(HWND window, LPARAM reader);
    void look_at(HWND window);

    DWORD process;
    std::vector<HWND> closed;
    std::string texts;
};

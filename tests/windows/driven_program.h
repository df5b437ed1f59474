#pragma once

// A program of the build with windows, which a test looks at and presses from outside.

#include "platform/windows/system_handle.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <windows.h>

// All of these wait for what they need, and fail the test after half a minute.
class driven_program {
public:
    // name: of a program of the build, without its ending. environment: what it has beside that of the test.
    driven_program(const std::string& name, const std::vector<std::string>& arguments,
                   const std::map<std::string, std::string>& environment = {});
    driven_program(const driven_program&) = delete;
    driven_program& operator=(const driven_program&) = delete;
    ~driven_program(); // ends it, should it still run

    std::string line();                    // the next line of its standard output, without its end; empty at the end
    void go_on();                          // writes a line to its standard input
    HWND dialog(const std::string& title); // a window of its own with that title, which is to be seen
    HWND window_with(const std::string& title) const; // the same without waiting; null if there is none
    bool has_dialog() const;                          // whether any window of it is to be seen
    DWORD status();                                   // waits for its end

private:
    platform::system_handle process;
    platform::system_handle output;
    platform::system_handle input;
    DWORD process_id = 0;
};

// The text of a window in another process, whether that takes messages or not.
std::string caption_of(HWND window);
// The text of a control, whose program takes messages.
std::string text_of(HWND dialog, int control);
bool is_shown(HWND dialog, int control);

// As if the user pressed it. The second comes back at once, while the first waits for the program.
void press(HWND dialog, int button);
void write(HWND dialog, int control, const std::string& text);

// What the clipboard holds as text.
std::string clipboard_text();
void empty_clipboard();

// Whether it came true within half a minute.
bool comes_true(const std::function<bool()>& question);

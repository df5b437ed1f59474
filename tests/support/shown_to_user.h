#pragma once

// What a user sees of an action.

#include <functional>
#include <memory>
#include <string>

// Somebody who sits at the desktop while a test program runs: on Windows each dialog and message box of the process is
// read and closed with OK. Nothing elsewhere, where none waits for anybody.
class attended_desktop {
public:
    attended_desktop();
    attended_desktop(const attended_desktop&) = delete;
    attended_desktop& operator=(const attended_desktop&) = delete;
    ~attended_desktop();

private:
    class attendant;
    std::unique_ptr<attendant> somebody;
};

// Runs the action and gives what the user was shown meanwhile: what it wrote to standard error, and each dialog and
// message box as "title: text" with plain line feeds and one at the end, as the console shows them. The desktop must
// be attended.
std::string shown_to_user(const std::function<void()>& action);

// Runs the action and gives what it writes to standard output through platform/, byte for byte.
std::string written_to_output(const std::function<void()>& action);

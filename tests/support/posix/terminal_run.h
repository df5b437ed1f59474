#pragma once

// Runs a program on a terminal of its own, as if somebody sat there and answered its questions.

#include "tests/support/run_program.h"

#include <string>
#include <vector>

// One step of the talk: when the terminal shows `question` behind all that was answered before, `answer` is typed.
struct terminal_exchange {
    std::string question;
    std::string answer; // with its line feed; "\x04" is the end of input
};

struct terminal_outcome {
    int status = -1;   // 0 is success
    std::string shown; // all that the terminal has shown, byte for byte
};

// All three standard streams are the terminal, which tells no width, shows nothing of what is typed and leaves line
// feeds as they are. A program that shows nothing more for half a minute, although it has not ended, is ended with a
// failure of the test.
terminal_outcome run_on_terminal(const program_start& start, const std::vector<terminal_exchange>& talk);

// The rows of a screen of 100 columns (terminal_screen.h) when the command has ended that was started there, with what
// was typed among them. command: for the shell.
std::vector<std::string> rows_left_on_terminal(const std::string& command,
                                               const std::vector<terminal_exchange>& talk = {});

// One argument of a command line, quoted for the shell.
std::string shell_quoted(const std::string& argument);

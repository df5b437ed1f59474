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
    std::string shown; // all that the terminal has shown, byte for byte; what is typed is not shown
};

// All three standard streams are the terminal. A program that shows nothing more for half a minute, although it has not
// ended, is ended with a failure of the test.
terminal_outcome run_on_terminal(const program_start& start, const std::vector<terminal_exchange>& talk);

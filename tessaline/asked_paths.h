#pragma once

// The two paths when the program was started by hand: the user is asked for them.

#include <optional>
#include <string>

// The model to convert; the one of the last time is offered, and the answer is remembered where the system keeps such
// things. Nothing if the question was dismissed or nobody can be asked.
std::optional<std::string> ask_for_model();

// The stream to write, with the model's name and the ending "xml" offered. Whatever the ending, an ordinary stream is
// written. Nothing as above.
std::optional<std::string> ask_for_stream(const std::string& input_path);

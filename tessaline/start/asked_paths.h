#pragma once

// The two paths when the program was started by hand: the user is asked for them.

#include "platform/platform.h"

#include <optional>
#include <string>

// What the two questions offer. The model of the last time is known only where the system has a registry.
platform::file_question question_for_model();
platform::file_question question_for_stream(const std::string& input_path);

// The model to convert; the one of the last time is offered, and the answer is remembered where the system keeps such
// things. Nothing if the question was dismissed or nobody can be asked.
std::optional<std::string> ask_for_model();

// The stream to write, with the model's name and the ending "xml" offered. Whatever the ending, an ordinary stream is
// written. Nothing as above.
std::optional<std::string> ask_for_stream(const std::string& input_path);

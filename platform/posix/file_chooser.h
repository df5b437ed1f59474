#pragma once

// Asking for a file name in a dialogue of lines.

#include "platform/platform.h"

#include <iosfwd>
#include <optional>
#include <string>

namespace platform {

// Shows title and default name on `prompt` and reads one line from `input`. The line without blanks around it; the
// default name for an empty line; nothing at the end of input, or if both are empty.
std::optional<std::string> ask_for_name(const file_question& question, std::istream& input, std::ostream& prompt);

// Whether an answer means yes: its first letter is y or Y.
bool ask_to_replace(const std::string& name, std::istream& input, std::ostream& prompt);

} // namespace platform

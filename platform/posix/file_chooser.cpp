// Asks for a file on the terminal, where there is one.

#include "platform/posix/file_chooser.h"

#include <iostream>

namespace platform {

std::optional<std::string> ask_for_name(const file_question& question, std::istream& input, std::ostream& prompt) {
    prompt << question.title;
    if (!question.default_name.empty())
        prompt << " [" << question.default_name << "]";
    prompt << ": " << std::flush;
    std::string line;
    if (!std::getline(input, line))
        return std::nullopt;
    const auto start = line.find_first_not_of(" \t\r");
    if (start == std::string::npos)
        return question.default_name.empty() ? std::nullopt : std::optional(question.default_name);
    const auto last = line.find_last_not_of(" \t\r");
    return line.substr(start, last - start + 1);
}

bool ask_to_replace(const std::string& name, std::istream& input, std::ostream& prompt) {
    prompt << name << " exists. Replace it? [y/N]: " << std::flush;
    std::string line;
    return std::getline(input, line) && !line.empty() && (line[0] == 'y' || line[0] == 'Y');
}

bool can_ask_for_file() {
    return is_terminal(standard_stream::input) && is_terminal(standard_stream::error);
}

std::optional<std::string> ask_for_file_to_open(const file_question& question) {
    return can_ask_for_file() ? ask_for_name(question, std::cin, std::cerr) : std::nullopt;
}

std::optional<std::string> ask_for_file_to_save(const file_question& question) {
    if (!can_ask_for_file())
        return std::nullopt;
    auto name = ask_for_name(question, std::cin, std::cerr);
    if (name && question.asks_before_overwriting && exists(*name) && !ask_to_replace(*name, std::cin, std::cerr))
        return std::nullopt;
    return name;
}

} // namespace platform

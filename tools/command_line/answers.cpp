#include "tools/command_line/answers.h"

#include "text/one_line.h"

#include <algorithm>
#include <cstdio>
#include <string>

namespace {

void complain(std::string_view text) {
    std::fwrite(text.data(), 1, text.size(), stderr);
}

// The status of a program that has answered: 0, or that of an output which takes nothing.
int answer(std::string_view name, std::string_view text, int status_of_full_output) {
    const bool is_written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    if (std::fflush(stdout) == 0 && is_written)
        return 0;
    complain(std::string(name) + ": standard output takes nothing\n");
    return status_of_full_output;
}

bool is_unknown(std::string_view argument, std::initializer_list<std::string_view> options) {
    return argument.size() > 1 && argument.front() == '-' &&
           std::none_of(options.begin(), options.end(), [argument](std::string_view option) {
               return option.ends_with('=') ? argument.starts_with(option) : argument == option;
           });
}

} // namespace

std::optional<int> answer_at_once(int argc, const char* const* argv, std::string_view name, std::string_view usage,
                                  std::initializer_list<std::string_view> options, int status_of_full_output) {
    const std::string_view only = argc == 2 ? argv[1] : "";
    if (only == "--help")
        return answer(name, usage, status_of_full_output);
    if (only == "--version")
        return answer(name, std::string(name) + " " TESSALINE_VERSION "\n", status_of_full_output);
    for (int i = 1; i < argc; ++i)
        if (is_unknown(argv[i], options)) {
            complain(std::string(name) + ": unknown option " + on_one_line(argv[i]) + "\n");
            return 2;
        }
    return std::nullopt;
}

int refuse_command_line(std::string_view usage) {
    complain(usage);
    return 2;
}

#include "tools/command_line/answers.h"

#include "text/one_line.h"

#include <algorithm>
#include <cstdio>
#include <string>

namespace {

void print(std::FILE* to, std::string_view text) {
    std::fwrite(text.data(), 1, text.size(), to);
}

bool is_unknown(std::string_view argument, std::initializer_list<std::string_view> options) {
    return argument.size() > 1 && argument.front() == '-' &&
           std::none_of(options.begin(), options.end(), [argument](std::string_view option) {
               return option.ends_with('=') ? argument.starts_with(option) : argument == option;
           });
}

} // namespace

std::optional<int> answer_at_once(int argc, const char* const* argv, std::string_view name, std::string_view usage,
                                  std::initializer_list<std::string_view> options) {
    const std::string_view only = argc == 2 ? argv[1] : "";
    if (only == "--help") {
        print(stdout, usage);
        return 0;
    }
    if (only == "--version") {
        print(stdout, std::string(name) + " " TESSALINE_VERSION "\n");
        return 0;
    }
    for (int i = 1; i < argc; ++i)
        if (is_unknown(argv[i], options)) {
            print(stderr, std::string(name) + ": unknown option " + on_one_line(argv[i]) + "\n");
            return 2;
        }
    return std::nullopt;
}

int refuse_command_line(std::string_view usage) {
    print(stderr, usage);
    return 2;
}

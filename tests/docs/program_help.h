#pragma once

// The programs of the project, what each answers to "--help", and the options in it.

#include "tests/support/run_program.h"

#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace program_help {

inline const std::vector<std::string>& programs() {
    static const std::vector<std::string> names = {"tessaline",  "tessaline-run", "batch-check", "batch-to-glb",
                                                   "batch-view", "skp-dump",      "skp-to-glb",  "skp-view"};
    return names;
}

inline std::string help_of(const std::string& program) {
    return run_program({PROGRAMS "/" + program + PROGRAM_ENDING, {"--help"}}).output;
}

// The option at the beginning of a word, without what stands around it: "--json" of "[--json=FILE]"; empty for none.
inline std::string option_in(const std::string& word) {
    static const std::regex form(R"re(^\[?(--?[a-z][a-z_-]*))re");
    std::smatch found;
    return std::regex_search(word, found, form) ? found[1].str() : "";
}

inline std::set<std::string> options_in(const std::string& text) {
    std::set<std::string> options;
    std::istringstream words(text);
    for (std::string word; words >> word;)
        if (const std::string option = option_in(word); !option.empty())
            options.insert(option);
    return options;
}

// All of a program. What each knows need not stand in its text.
inline std::set<std::string> options_of(const std::string& program) {
    std::set<std::string> options = options_in(help_of(program));
    options.insert({"--help", "--version"});
    return options;
}

} // namespace program_help

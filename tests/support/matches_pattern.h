#pragma once

// A matcher for texts by an extended regular expression of POSIX: GoogleTest's own knows fewer of them on Windows than
// elsewhere.

#include <gmock/gmock.h>

#include <regex>
#include <string>

MATCHER_P(MatchesPattern, pattern, "matches " + testing::PrintToString(pattern)) {
    return std::regex_match(std::string(arg), std::regex(pattern, std::regex::extended));
}

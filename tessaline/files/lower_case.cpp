// Names in lower case.

#include "tessaline/files/lower_case.h"

#include <algorithm>

void set_lower_case(std::string& out, std::string_view text) {
    out.assign(text);
    std::transform(out.begin(), out.end(), out.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
}

std::string lower_case(std::string_view text) {
    std::string lower;
    set_lower_case(lower, text);
    return lower;
}

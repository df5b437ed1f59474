#include "qlw/trimmed.h"

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view white_space = " \t\n\v\f\r";
    const std::size_t from = text.find_first_not_of(white_space);
    if (from == std::string_view::npos)
        return {};
    return text.substr(from, text.find_last_not_of(white_space) - from + 1);
}

#include "text/path_end.h"

std::string_view last_component(std::string_view path) {
    constexpr std::string_view separators = "/\\";
    const std::size_t end = path.find_last_not_of(separators);
    path = path.substr(0, end == std::string_view::npos ? 0 : end + 1);
    const std::size_t last = path.find_last_of(separators);
    return last == std::string_view::npos ? path : path.substr(last + 1);
}

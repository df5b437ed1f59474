#pragma once

#include <string_view>

// Takes the first line off a text and gives it without its end, CR LF or LF. The last one needs no end.
inline std::string_view take_line(std::string_view& text) {
    const std::size_t feed = text.find('\n');
    std::string_view line = text.substr(0, feed);
    text.remove_prefix(feed == std::string_view::npos ? text.size() : feed + 1);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

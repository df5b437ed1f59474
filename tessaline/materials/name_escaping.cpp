// How names are escaped for the file system, read back, and stripped of what a file name might not bear.

#include "tessaline/materials/name_escaping.h"

#include "qlw/text_format.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace {

constexpr std::string_view safe_characters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-_. []()";
constexpr std::string_view filter_keeps = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 _-#()[]<>";

constexpr std::size_t digits_of_escape = 2;

bool counts_as_escaped(std::string_view name) {
    const std::size_t percent = name.find('%');
    if (percent == std::string_view::npos)
        return false;
    const std::string_view behind = name.substr(percent + 1);
    return behind >= "0" && behind <= "9";
}

char escaped_byte(std::string_view digits) {
    constexpr int base = 16;
    return static_cast<char>(std::strtoul(std::string(digits).c_str(), nullptr, base));
}

} // namespace

std::string url_encode_name(std::string_view name) {
    if (counts_as_escaped(name))
        return std::string(name);
    std::string escaped;
    for (const char c : name)
        if (safe_characters.find(c) != std::string_view::npos)
            escaped += c;
        else
            escaped += format_text("%%%2x", static_cast<unsigned char>(c)).value_or(std::string());
    return escaped;
}

std::string url_decode_name(std::string_view name) {
    std::string decoded;
    while (!name.empty()) {
        const std::size_t percent = std::min(name.find('%'), name.size());
        decoded += name.substr(0, percent);
        name.remove_prefix(percent);
        if (name.empty())
            break;
        decoded += escaped_byte(name.substr(1, digits_of_escape));
        name.remove_prefix(std::min(name.size(), 1 + digits_of_escape));
    }
    return decoded;
}

std::string filter_file_name(std::string_view name) {
    std::string kept;
    std::copy_if(name.begin(), name.end(), std::back_inserter(kept),
                 [](char c) { return filter_keeps.find(c) != std::string_view::npos; });
    return kept;
}

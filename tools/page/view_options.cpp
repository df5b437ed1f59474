#include "tools/page/view_options.h"

#include <charconv>
#include <string_view>

namespace {

constexpr std::size_t longest_side = 8192; // as many pixels as a picture in memory may have

std::optional<std::size_t> side(std::string_view text) {
    std::size_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < 1 || value > longest_side)
        return std::nullopt;
    return value;
}

bool read_size(std::string_view text, view_options& options) {
    const std::size_t cross = text.find('x');
    if (cross == std::string_view::npos)
        return false;
    const auto width = side(text.substr(0, cross));
    const auto height = side(text.substr(cross + 1));
    options.width = width.value_or(0);
    options.height = height.value_or(0);
    return width && height;
}

} // namespace

std::optional<view_options> read_view_options(int argc, const char* const* argv) {
    view_options options;
    bool needs_picture = false;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        const char* value = i + 1 < argc ? argv[i + 1] : "";
        if (argument == "--clear") {
            options.is_clear = needs_picture = true;
            continue;
        }
        std::string* const text = argument == "-o"      ? &options.page_file
                                  : argument == "--png" ? &options.picture_file
                                                        : nullptr;
        if (text != nullptr || argument == "--size") {
            if (*value == '\0' || (text == nullptr && !read_size(value, options)))
                return std::nullopt;
            if (text != nullptr)
                *text = value;
            else
                needs_picture = true;
            ++i;
        } else if (options.input.empty()) {
            options.input = argument;
        } else {
            return std::nullopt;
        }
    }
    const bool asks = !options.page_file.empty() || !options.picture_file.empty();
    if (options.input.empty() || !asks || (needs_picture && options.picture_file.empty()))
        return std::nullopt;
    return options;
}

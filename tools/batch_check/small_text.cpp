#include "tools/batch_check/small_text.h"

namespace batch_check {

std::optional<small_text> small_text::read(const batch_files& files, const std::string& file, code wrong_end,
                                           findings& found) {
    auto bytes = whole_file(files, file, most_bytes);
    if (!bytes)
        return std::nullopt;
    small_text text;
    text.bytes = *std::move(bytes);
    std::size_t first_wrong = 0;
    std::size_t wrong = 0;
    for (std::size_t start = 0; start < text.bytes.size();) {
        if (text.starts.size() == most_lines)
            return std::nullopt;
        text.starts.push_back(start);
        const std::size_t feed = text.bytes.find('\n', start);
        const bool is_right = feed != std::string::npos && feed > start && text.bytes[feed - 1] == '\r';
        if (!is_right && wrong++ == 0)
            first_wrong = text.starts.size();
        start = feed == std::string::npos ? text.bytes.size() : feed + 1;
    }
    if (wrong > 0)
        found.add(wrong_end, file, first_wrong,
                  std::to_string(wrong) + " lines do not end in CR LF; this is the first");
    return text;
}

std::string_view small_text::line(std::size_t index) const {
    const std::size_t end = index + 1 < starts.size() ? starts[index + 1] : bytes.size();
    std::string_view text = std::string_view(bytes).substr(starts[index], end - starts[index]);
    if (text.ends_with('\n'))
        text.remove_suffix(1);
    if (text.ends_with('\r'))
        text.remove_suffix(1);
    return text;
}

} // namespace batch_check

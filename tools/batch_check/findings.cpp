#include "tools/batch_check/findings.h"

#include "text/one_line.h"

#include <algorithm>

namespace batch_check {

void findings::add(code what, std::string file, std::size_t line, std::string text) {
    if (ignored_codes.contains(what))
        return;
    if (++counts[static_cast<std::size_t>(what)] <= kept_of_a_code)
        all.push_back({what, std::move(file), line, std::move(text)});
}

std::uint64_t findings::count(severity weight) const {
    std::uint64_t sum = 0;
    for (const code_entry& entry : all_codes())
        if (entry.weight == weight)
            sum += count(entry.what);
    return sum;
}

std::uint64_t findings::left_out(code what) const {
    return count(what) - std::min<std::uint64_t>(count(what), kept_of_a_code);
}

namespace {

// Where a full name begins in a line: "/", "\\" or a drive letter behind nothing, or behind what separates words,
// keys from values, and values from each other; the end of the text if it begins behind so many bytes, or nowhere.
std::size_t start_of_full_name(std::string_view text, std::size_t most_bytes) {
    constexpr std::string_view separating = " \t;:=,(\"'";
    for (std::size_t i = 0; i < std::min(text.size(), most_bytes); ++i) {
        if (i > 0 && separating.find(text[i - 1]) == std::string_view::npos)
            continue;
        const std::string_view rest = text.substr(i);
        if (rest[0] == '/' || rest.starts_with("\\\\") ||
            (rest.size() > 2 && rest[1] == ':' && (rest[2] == '\\' || rest[2] == '/')))
            return i;
    }
    return text.size();
}

} // namespace

std::string in_quotes(std::string_view text) {
    constexpr std::size_t most_bytes = 80;
    const std::size_t start = start_of_full_name(text, most_bytes); // lines may be of many megabytes
    const std::size_t separator = text.find_last_of("/\\");
    std::string shown(text.substr(0, std::min(start, most_bytes + 1)));
    if (start < text.size())
        shown.append(".../").append(text.substr(separator + 1, most_bytes + 1));
    if (shown.size() > most_bytes)
        shown = shown.substr(0, most_bytes) + "...";
    return '"' + on_one_line(shown) + '"';
}

} // namespace batch_check

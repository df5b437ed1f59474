#include "tools/batch_check/codes.h"

#include "tools/batch_check/code_table.h"

#include <algorithm>

namespace batch_check {

std::span<const code_entry> all_codes() {
    return code_table;
}

const code_entry& entry_of(code what) {
    return code_table[static_cast<std::size_t>(what)];
}

std::optional<code> code_named(std::string_view name) {
    const auto found = std::find_if(code_table.begin(), code_table.end(),
                                    [name](const code_entry& entry) { return entry.name == name; });
    return found == code_table.end() ? std::nullopt : std::optional(found->what);
}

std::string_view name_of(severity weight) {
    switch (weight) {
    case severity::note:
        return "note";
    case severity::warning:
        return "warning";
    case severity::error:
        break;
    }
    return "error";
}

std::string code_list() {
    constexpr std::size_t name_width = 28;
    constexpr std::size_t weight_width = 9;
    std::string list;
    for (const code_entry& entry : code_table) {
        std::string line(entry.name);
        line.resize(name_width, ' ');
        line += name_of(entry.weight);
        line.resize(name_width + weight_width, ' ');
        list.append(line).append(entry.meaning).append("\n");
    }
    return list;
}

} // namespace batch_check

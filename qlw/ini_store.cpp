// Reads ini files once and rewrites them beside other processes that do the same.

#include "qlw/ini_store.h"

#include "platform/platform.h"

#include <optional>
#include <utility>

namespace {

constexpr std::uint64_t largest_file = 4u << 20; // some 600 settings of at most 4,096 bytes take less

// The text on the disk, empty for a missing file; nothing for one that is not to be touched.
std::optional<ini_text> text_on_disk(const std::string& name) {
    const auto bytes = platform::read_file(name, largest_file);
    if (bytes)
        return ini_text(std::string(reinterpret_cast<const char*>(bytes->data()), bytes->size()));
    return platform::exists(name) ? std::nullopt : std::optional<ini_text>(std::in_place);
}

} // namespace

const ini_text& ini_store::file(const std::string& name) {
    const auto known = files.find(name);
    if (known != files.end())
        return known->second;
    return files.emplace(name, text_on_disk(name).value_or(ini_text())).first->second;
}

ini_write ini_store::write(const std::string& name, std::string_view section, std::string_view key,
                           std::string_view value) {
    // A look shows a whole file, and mostly there is nothing to do.
    std::optional<ini_text> text = text_on_disk(name);
    files.insert_or_assign(name, text.value_or(ini_text()));
    if (!text || !text->set_value(section, key, value))
        return ini_write::ended;
    const auto edit = [&](const std::string& bytes) -> std::optional<std::string> {
        text.emplace(bytes);
        const bool is_changed = text->set_value(section, key, value);
        // What is larger the next run would not read.
        return is_changed && text->bytes().size() <= largest_file ? std::optional(text->bytes()) : std::nullopt;
    };
    const platform::edit_result edited = platform::edit_file(name, largest_file, patience_left, edit);
    if (edited == platform::edit_result::held_elsewhere && std::exchange(patience_left, 0) > 0)
        return ini_write::gave_up_waiting;
    if (edited == platform::edit_result::done && text->bytes().size() <= largest_file)
        files.insert_or_assign(name, *std::move(text));
    return ini_write::ended;
}

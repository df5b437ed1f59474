// The texts that a path may have in the registry or, in the company's own tree, in an ini file.

#include "qlw/ini_file.h"
#include "qlw/profile_state.h"
#include "qlw/qlw_trace.h"
#include "qlw/registry_access.h"
#include "qlw/registry_path.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::string_view common_section = "Common";
constexpr std::string_view user_file = "Profile";
constexpr std::array<std::string_view, 4> user_facts = {"Phone", "Email", "User Name", "Company"};
constexpr platform::registry_hive local_machine = platform::registry_hive::local_machine;

int refused(int line, std::string_view format, std::string_view path, std::string_view reason) {
    cl_trace::here("set_registry_string_data", trace_level::user_error, __builtin_FILE(), line)
        .report(format, path, reason);
    return 0;
}

// The last piece of a path without its backslash; the whole of a path without one.
std::string_view last_piece(std::string_view path) {
    return path.substr(path.rfind('\\') + 1);
}

std::string_view ini_file_of(std::string_view path) {
    const std::string_view key = last_piece(path);
    if (std::find(user_facts.begin(), user_facts.end(), key) != user_facts.end())
        return user_file;
    return last_piece(path.substr(0, path.size() - key.size() - 1));
}

// Makes each key on the way that is missing, but not the first: the system's own. Gives the reason of a failure.
std::string_view make_keys(platform::registry& registry, const std::string& key) {
    std::size_t end = key.find('\\');
    if (!registry.has_key(local_machine, key.substr(0, end)))
        return "nextpiece could not be opened";
    while (end != std::string::npos) {
        end = key.find('\\', end + 1);
        const std::string part = key.substr(0, end);
        if (!registry.has_key(local_machine, part) && !registry.make_key(local_machine, part))
            return "Key value could not be created";
    }
    return {};
}

} // namespace

int set_registry_string_data(std::string_view path, std::string_view value) {
    if (lies_in_company_tree(path)) {
        write_string_to_ini_file(common_section, last_piece(path), value, {});
        return 1;
    }
    const auto pieces = split_off_hive(path);
    const auto names = pieces ? split_off_value_name(pieces->rest) : std::nullopt;
    if (!names)
        return refused(__LINE__, "Cannot parse registry key: '%s' %s", path, "Key must contain a backslash");
    if (hive_named(pieces->hive) != local_machine)
        return 0;
    platform::registry& registry = *profile_state().registry;
    const std::string key(names->key);
    if (const std::string_view reason = make_keys(registry, key); !reason.empty())
        return refused(__LINE__, "Cannot create registry key: %s:  %s", path, reason);
    if (!registry.write_text(local_machine, key, std::string(names->value_name), std::string(value)))
        return refused(__LINE__, "Cannot set registry key: %s: %s", path, "Value cannot be set");
    return 1;
}

std::string get_from_registry_both(std::string_view path, std::string_view default_value) {
    if (lies_in_company_tree(path))
        if (const auto found = find_in_ini_file(common_section, last_piece(path), ini_file_of(path)))
            return *found;
    for (const char* hive : {"HKEY_CURRENT_USER\\", "HKEY_LOCAL_MACHINE\\"}) {
        std::string found = get_string_from_registry(std::string(hive).append(path), {}, true);
        if (!found.empty())
            return found;
    }
    return std::string(default_value);
}

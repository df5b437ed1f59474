// Where the ini files lie, and the trace of what was found in them.

#include "qlw/ini_file.h"

#include "platform/platform.h"
#include "qlw/profile_state.h"
#include "qlw/qlw_identity.h"
#include "qlw/qlw_std.h"
#include "qlw/qlw_trace.h"

namespace {

constexpr std::size_t longest_value = 4095; // a buffer of 4,096 bytes with its closing zero
constexpr std::string_view last_resort_base = "Profile";

// The folder of the profile's files; empty where the user has no folder for settings.
std::string profile_folder() {
    const std::string folder = platform::user_config_folder();
    return folder.empty() ? folder : folder + platform::path_separator + std::string(company_name);
}

std::string profile_file_name(std::string_view file_base) {
    std::string name = profile_folder();
    if (name.empty())
        return name;
    if (file_base.empty())
        file_base = ini_base_name.empty() ? last_resort_base : ini_base_name;
    name += platform::path_separator;
    return name.append(file_base).append(".ini");
}

std::optional<std::string> value_in(const std::string& file, std::string_view section, std::string_view key) {
    auto value = profile_state().ini_files.file(file).value(section, key);
    if (value && value->size() > longest_value)
        value->resize(longest_value);
    return value;
}

// shown: what the trace names as the value if there is none.
std::optional<std::string> find_traced(std::string_view section, std::string_view key, std::string_view file_base,
                                       std::string_view shown) {
    const std::string file = profile_file_name(file_base);
    std::optional<std::string> value;
    if (!file.empty()) {
        if (!profile_state().ini_files.holds(file))
            make_directory_tree(profile_folder());
        value = value_in(file, section, key);
    }
    cl_trace("qlw_std", __LINE__, "get_string_from_ini_file", trace_level::plain, 0)
        .report("get_string_from_ini_file: %s: [%s] %s: %s", file, section, key, value ? *value : shown);
    return value;
}

// Where a default file of that name lies; empty for a bare name where the system has no place for such files.
std::string default_file_name(std::string_view file) {
    std::string name(file.empty() ? application_name : file);
    if (name.find(platform::path_separator) != std::string::npos)
        return name;
    const std::string folder = platform::shared_ini_folder();
    return folder.empty() ? folder : folder + platform::path_separator + name;
}

} // namespace

std::string get_string_from_ini_file(std::string_view section, std::string_view key, std::string_view default_value,
                                     std::string_view file_base) {
    const std::string_view fallback = default_value.substr(0, longest_value);
    return find_traced(section, key, file_base, fallback).value_or(std::string(fallback));
}

std::optional<std::string> find_in_ini_file(std::string_view section, std::string_view key,
                                            std::string_view file_base) {
    return find_traced(section, key, file_base, "(not there)");
}

void write_string_to_ini_file(std::string_view section, std::string_view key, std::string_view value,
                              std::string_view file_base) {
    const std::string file = profile_file_name(file_base);
    if (file.empty() || !make_directory_tree(profile_folder()))
        return;
    if (profile_state().ini_files.write(file, section, key, value) == ini_write::gave_up_waiting)
        cl_trace::here("write_string_to_ini_file", trace_level::user_error)
            .report("Cannot write profile: '%s' is held by another program. Settings of this run may not be kept",
                    file);
}

std::string get_string_from_default_ini(std::string_view section, std::string_view key, std::string_view default_value,
                                        std::string_view file) {
    const std::string fallback(default_value.substr(0, longest_value));
    const std::string name = default_file_name(file);
    return name.empty() ? fallback : value_in(name, section, key).value_or(fallback);
}

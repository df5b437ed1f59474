// A setting of the user: in the profile's ini file, else in the registry of an older version, else the default.

#include "qlw/qlw_profile.h"

#include "qlw/ini_file.h"
#include "qlw/qlw_identity.h"
#include "qlw/registry_access.h"
#include "qlw/text_numbers.h"

#include <optional>

namespace {

constexpr std::string_view profile_file = "Profile";

std::string registry_path_of(std::string_view section, std::string_view key) {
    std::string path = "HKEY_CURRENT_USER\\Software\\";
    path.append(company_name).append("\\Profile\\").append(section).append("\\").append(key);
    return path;
}

} // namespace

std::string get_profile_string(std::string_view section, std::string_view key, std::string_view default_value,
                               bool quiet) {
    if (const auto found = find_in_ini_file(section, key, profile_file))
        return *found;
    return get_string_from_registry(registry_path_of(section, key), default_value, quiet);
}

int get_profile_int(std::string_view section, std::string_view key, int default_value, bool quiet) {
    if (const auto found = find_in_ini_file(section, key, profile_file))
        return decimal_value(*found);
    return get_int_from_registry(registry_path_of(section, key), default_value, quiet);
}

double get_profile_double(std::string_view section, std::string_view key, double default_value, bool quiet) {
    if (const auto found = find_in_ini_file(section, key, profile_file))
        return double_value(*found);
    return get_double_from_registry(registry_path_of(section, key), default_value, quiet);
}

void write_profile_string(std::string_view section, std::string_view key, std::string_view value) {
    write_string_to_ini_file(section, key, value, profile_file);
}

void write_profile_int(std::string_view section, std::string_view key, int value) {
    write_profile_string(section, key, integer_text(value));
}

void write_profile_double(std::string_view section, std::string_view key, double value) {
    write_profile_string(section, key, number_text(value));
}

std::string cl_profile::get_string(std::string_view section, std::string_view key, std::string_view default_value,
                                   bool quiet) {
    return get_profile_string(section, key, default_value, quiet);
}

int cl_profile::get_int(std::string_view section, std::string_view key, int default_value, bool quiet) {
    return get_profile_int(section, key, default_value, quiet);
}

double cl_profile::get_double(std::string_view section, std::string_view key, double default_value, bool quiet) {
    return get_profile_double(section, key, default_value, quiet);
}

void cl_profile::write_string(std::string_view section, std::string_view key, std::string_view value) {
    write_profile_string(section, key, value);
}

void cl_profile::write_int(std::string_view section, std::string_view key, int value) {
    write_profile_int(section, key, value);
}

void cl_profile::write_double(std::string_view section, std::string_view key, double value) {
    write_profile_double(section, key, value);
}

std::string cl_profile::get_default_ini_string(std::string_view section, std::string_view key,
                                               std::string_view default_value) {
    return get_string_from_default_ini(section, key, default_value, {});
}

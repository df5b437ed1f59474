#include "qlw/qlw_profile.h"

std::string get_profile_string(std::string_view, std::string_view, std::string_view default_value, bool) {
    return std::string(default_value);
}

int get_profile_int(std::string_view, std::string_view, int default_value, bool) {
    return default_value;
}

double get_profile_double(std::string_view, std::string_view, double default_value, bool) {
    return default_value;
}

void write_profile_string(std::string_view, std::string_view, std::string_view) {}

void write_profile_int(std::string_view, std::string_view, int) {}

void write_profile_double(std::string_view, std::string_view, double) {}

std::string get_string_from_default_ini(std::string_view, std::string_view, std::string_view default_value,
                                        std::string_view) {
    return std::string(default_value);
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

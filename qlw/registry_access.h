#pragma once

// Reading and writing the registry by path, and the company's own tree, which has moved into ini files.
// A system without a registry answers every read with its default and refuses every write.
// quiet: a missing key is expected and no line is traced for it.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

// The outcome of one read.
struct cl_registry_result {
    static constexpr std::size_t capacity = 4096;
    std::array<char, capacity> data{};
    std::uint32_t size = capacity; // bytes of the value
    std::uint32_t type = 0;        // the system's code: 1 text, 3 binary, 4 a 32-bit number

    // Reads a text; true if there is one. A value of another type is reported to the user. What is missing under
    // "SOFTWARE\" of the local machine is looked for where programs of 32 bits keep it. A value above the capacity
    // counts as missing. type_name: how the reports call a text.
    bool read_registry_entry(std::string_view path, std::string_view type_name, bool quiet);

    // The data up to its first zero byte.
    std::string text() const;
};

// The value at a path, or `default_value` if it is missing or of another type. Numbers are found under the path as it
// is only.
std::string get_string_from_registry(std::string_view path, std::string_view default_value, bool quiet);
int get_int_from_registry(std::string_view path, int default_value, bool quiet);
double get_double_from_registry(std::string_view path, double default_value, bool quiet);

// Stores a text at a path, making the keys above it. What lies in the company's own tree goes into the program's own
// ini file instead, section "Common", under the last piece of the path. Otherwise only the local machine is written. 1
// on success. Failures are reported to the user and give 0; so does a path of another hive, which is not reported.
int set_registry_string_data(std::string_view path, std::string_view value);

// The text at a path without hive: in the company's own tree first that of its ini file, then that of the current user,
// then that of the local machine, then `default_value`. The ini file is "Profile" for what is known of the user, else
// the one named as the last folder of the path.
std::string get_from_registry_both(std::string_view path, std::string_view default_value);

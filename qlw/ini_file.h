#pragma once

// The ini files of the user's profile, which lie in the company's folder among the user's settings, and the fallback
// file of an installation.

#include <optional>
#include <string>
#include <string_view>

// What stands under a section and a key of the profile's file "<file_base>.ini", else `default_value`, in either case
// at most 4,095 bytes. file_base: empty means the program's own file. The case of names does not count. The company's
// folder is made if it is missing; a place where that fails holds nothing. The answer is traced.
std::string get_string_from_ini_file(std::string_view section, std::string_view key, std::string_view default_value,
                                     std::string_view file_base);

// The same with nothing for what is missing.
std::optional<std::string> find_in_ini_file(std::string_view section, std::string_view key, std::string_view file_base);

// Stores a value in such a file. A value that stands there already leaves the file alone. Failures are silent,
// but that a file held by another process is waited for once in a run, and the user told if that was in vain.
void write_string_to_ini_file(std::string_view section, std::string_view key, std::string_view value,
                              std::string_view file_base);

// What the installation's own default file holds, at most 4,095 bytes, else `default_value`; asked when the profile
// lacks a key. file: its name as it is, no ending added; empty means the application's name. A bare name is looked up
// where the system keeps such files; one that keeps none has no default file.
std::string get_string_from_default_ini(std::string_view section, std::string_view key, std::string_view default_value,
                                        std::string_view file);

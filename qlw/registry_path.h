#pragma once

// Registry paths: one text holds hive, key path and value name, separated by backslashes on every platform.

#include "platform/platform.h"

#include <optional>
#include <string>
#include <string_view>

struct hive_and_rest {
    std::string_view hive; // the text in front of the first backslash
    std::string_view rest; // behind it: key path and value name
};
// Nothing if there is no backslash, or it stands in front.
std::optional<hive_and_rest> split_off_hive(std::string_view path);

// The hive of that name; nothing for any but "HKEY_LOCAL_MACHINE" and "HKEY_CURRENT_USER".
std::optional<platform::registry_hive> hive_named(std::string_view name);

struct key_and_value_name {
    std::string_view key;
    std::string_view value_name; // behind the last backslash
};
// Nothing if there is no backslash.
std::optional<key_and_value_name> split_off_value_name(std::string_view rest);

// Where a program of 32 bits keeps the same thing on a machine of 64; nothing for what is not divided like that: all
// but what stands under "SOFTWARE\" of the local machine.
std::optional<std::string> form_for_32_bits(platform::registry_hive hive, std::string_view rest);

// Whether the path, with or without hive, lies in the company's own tree. What does is kept in ini files now, but for
// the settings of cloud rendering, which stay in the registry.
bool lies_in_company_tree(std::string_view path);

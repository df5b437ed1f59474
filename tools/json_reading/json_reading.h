#pragma once

// Reading reports, which may come from anywhere: JSON of any depth, with values of any kind. Nothing here throws but
// for lack of memory.

#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>

namespace json_reading {

using json = nlohmann::ordered_json;

// Bytes of a report beyond which it is none: the findings in it are bounded, and so are the settings.
inline constexpr std::uint64_t largest_report = std::uint64_t{1} << 26U;

// Levels of a value beyond which nothing is kept. Copying and writing a value take a level of the stack for each level
// of it; a report has four.
inline constexpr int deepest_value = 16;

// The value of the text; what lies deeper in it than deepest_value is left out. What is no JSON gives a value that is
// null for everything below.
json parsed(std::string_view text);

// On one line, or with so many blanks for each level if indentation is not -1. Bytes that are no UTF-8 are replaced.
std::string written(const json& value, int indentation = -1);

// What the object holds under the key; null if `object` is no object or lacks it. It belongs to the object.
const json& value_in(const json& object, const char* key);

// The text under the key; empty for a value of another kind.
std::string text_in(const json& object, const char* key);
// The whole number from 0 on under the key; nothing for any other value.
std::optional<std::uint64_t> count_in(const json& object, const char* key);

} // namespace json_reading

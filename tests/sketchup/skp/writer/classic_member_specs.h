#pragma once

// The table of classic_member_table.cpp, taken apart.

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

// The layouts, in the words that classic_member_table.cpp explains.
std::string_view classic_member_table();

namespace classic_table {

struct condition {
    std::size_t member = 0;
    std::uint32_t mask = 0xFFFFFFFF;
    std::optional<std::uint32_t> value; // to be met; else anything but zero will do
    bool inverted = false;
};

struct member {
    std::string type;
    std::size_t times = 1; // of "u32*16"; of an array the bytes of an element
    std::string name;
    std::set<std::string> classes;
    std::string gate; // the class whose layout number counts
    std::uint32_t from = 0;
    std::uint32_t to = 0xFFFFFFFF;
    std::optional<condition> when;
};

struct class_spec {
    std::string name;
    std::vector<member> members;
};

using class_specs = std::map<std::string, class_spec, std::less<>>;

// By class. Throws std::logic_error if a condition names a member that the class lacks.
class_specs parse_table();

} // namespace classic_table

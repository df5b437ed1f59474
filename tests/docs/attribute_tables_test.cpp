// The pages list the attributes that the program knows, and no others.

#include "tests/docs/pages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>

namespace {

using keys_by_dictionary = std::map<std::string, std::set<std::string>>;

// The first group of every match.
std::set<std::string> matches_of(const std::string& text, const std::regex& form) {
    std::set<std::string> found;
    for (std::sregex_iterator at(text.begin(), text.end(), form), end; at != end; ++at)
        found.insert((*at)[1]);
    return found;
}

// What stands as a key at the beginning of the rows of a table: {"key", ...
const std::regex key_of_row(R"re(\{"([^"]+)",)re");

// The tables of the source, by the dictionaries that it names beside them.
keys_by_dictionary keys_in_source() {
    const std::string text = pages::text_of("tessaline/parameters/attribute_overrides.cpp");
    const std::regex choice(R"re(dictionary == "(\w+)"\)\s+return (\w+);)re");
    keys_by_dictionary keys;
    for (std::sregex_iterator at(text.begin(), text.end(), choice), end; at != end; ++at) {
        const std::size_t table = text.find("attribute_rule " + (*at)[2].str() + "[]");
        keys[(*at)[1]] = matches_of(text.substr(table, text.find("};", table) - table), key_of_row);
    }
    return keys;
}

// The tables of the page, each behind a line that names its dictionary.
keys_by_dictionary keys_in_page(const std::string& page) {
    keys_by_dictionary keys;
    std::string dictionary;
    for (const std::string& line : pages::lines_of(pages::text_of(page))) {
        if (line.starts_with("Dictionary `"))
            dictionary = pages::codes_in(line).at(0);
        else if (line.starts_with('#'))
            dictionary.clear();
        if (dictionary.empty() || !line.starts_with("| `"))
            continue;
        for (const std::string& key : pages::codes_in(pages::cells_of(line).at(0))) {
            const bool is_new = keys[dictionary].insert(key).second;
            EXPECT_TRUE(is_new) << key << " stands twice";
        }
    }
    return keys;
}

TEST(AttributeTables, of_objects_are_those_of_the_program) {
    const keys_by_dictionary known = keys_in_source();
    EXPECT_EQ(known.size(), 4U);
    EXPECT_EQ(keys_in_page("docs/lamp-file.md"), known);
}

TEST(AttributeTables, of_materials_are_those_of_the_program) {
    std::set<std::string> known = matches_of(pages::text_of("tessaline/materials/material_keys.cpp"), key_of_row);
    known.merge(
        matches_of(pages::text_of("tessaline/materials/edited_material.cpp"), std::regex(R"re(= "(ORNZyn[^"]+)")re")));
    EXPECT_GT(known.size(), 30U);
    std::set<std::string> described;
    for (const pages::row& row : pages::rows_under("docs/material-file.md", "Key")) {
        for (const std::string& key : pages::codes_in(row.at(0))) {
            const bool is_new = described.insert(key).second;
            EXPECT_TRUE(is_new) << key << " stands twice";
        }
    }
    EXPECT_EQ(described, known);
}

} // namespace

// The page of the settings lists them as the table of the program does, and explains those that the program asks for.

#include "qlw/settings_table.h"
#include "tests/docs/pages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <map>
#include <regex>
#include <set>

namespace {

const std::string page = "docs/settings.md";

std::string number_text(double number) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.9g", number);
    return text.data();
}

std::string type_of(const setting_row& setting) {
    switch (setting.kind) {
    case setting_kind::boolean:
        return "boolean";
    case setting_kind::integer:
        return "integer";
    case setting_kind::real:
        return "number";
    case setting_kind::text:
        return "text";
    case setting_kind::color:
        return "colour";
    case setting_kind::point:
        return "point";
    }
    return "";
}

std::string default_of(const setting_row& setting) {
    switch (setting.kind) {
    case setting_kind::boolean:
    case setting_kind::integer:
        return std::to_string(setting.whole_default);
    case setting_kind::real:
        return number_text(setting.real_default);
    case setting_kind::text:
        return setting.text_default.empty() ? "" : "`" + std::string(setting.text_default) + "`";
    case setting_kind::color:
        return std::to_string(setting.color_default);
    case setting_kind::point:
        return "(0, 0, 0)";
    }
    return "";
}

std::string kept_in(const setting_row& setting) {
    if (setting.save_type == OPTION_GLOBAL)
        return "option file";
    return is_kept_in_profile(setting.save_type) ? "profile" : "one run";
}

// By name; of rows with one name the last counts, as in the program.
std::map<std::string_view, const setting_row*> settings() {
    std::map<std::string_view, const setting_row*> by_name;
    for (const setting_row& setting : settings_table())
        by_name[setting.name] = &setting;
    return by_name;
}

// What the sources ask for by name, and what they set.
std::set<std::string> names_in_sources() {
    const std::regex in_call(R"re([gs]et_global_\w+\("(\w+)")re");
    const std::regex in_text(R"re("(\w+)")re");
    const auto known = settings();
    std::set<std::string> names;
    const auto add = [&](const std::string& text, const std::regex& form, bool must_be_known) {
        for (std::sregex_iterator at(text.begin(), text.end(), form), end; at != end; ++at)
            if (const std::string name = (*at)[1]; !must_be_known || known.contains(name))
                names.insert(name);
    };
    for (const char* room : {"tessaline", "Vellane_Zyn", "skp_ruby", "qlw"}) {
        const std::string folder = std::string(TESSALINE_SOURCE_DIR) + "/" + room;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
            if (entry.path().extension() != ".cpp" || entry.path().filename() == "settings_table_data.cpp")
                continue;
            const std::string text = text_of_file(entry.path().string());
            add(text, in_call, false);
            add(text, in_text, true);
        }
    }
    return names;
}

// The table as the page must have it. Run this test after a change of the settings, and copy what it says.
TEST(SettingsPage, lists_the_settings_of_the_program_with_their_defaults) {
    std::string table = "| Name | Type | Default | Kept in |\n|---|---|---|---|\n";
    for (const auto& [name, setting] : settings())
        table += "| `" + std::string(name) + "` | " + type_of(*setting) + " | " + default_of(*setting) + " | " +
                 kept_in(*setting) + " |\n";
    EXPECT_TRUE(pages::text_of(page).ends_with("\n" + table)) << table;
}

TEST(SettingsPage, explains_the_settings_that_the_program_asks_for_and_no_others) {
    const std::set<std::string> asked = names_in_sources();
    EXPECT_GT(asked.size(), 30U);
    std::vector<std::string> explained;
    for (const pages::row& row : pages::rows_under(page, "Setting"))
        explained.push_back(pages::codes_in(row.at(0)).at(0));
    EXPECT_THAT(explained, testing::UnorderedElementsAreArray(asked));
}

TEST(SettingsPage, gives_what_it_explains_the_default_of_the_table) {
    const auto known = settings();
    for (const pages::row& row : pages::rows_under(page, "Setting")) {
        const std::string name = pages::codes_in(row.at(0)).at(0);
        const auto found = known.find(name);
        EXPECT_EQ(row.at(1), found == known.end() ? "not set" : default_of(*found->second)) << name;
    }
}

} // namespace

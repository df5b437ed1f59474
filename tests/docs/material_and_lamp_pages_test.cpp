// The pages of the material and the lamp file are right and complete: the checker takes their examples, which hold
// every line, and each line has a row.

#include "tests/docs/pages.h"
#include "tests/support/files_in_memory.h"
#include "tests/support/page_examples.h"
#include "tools/batch_check/check_lamp.h"
#include "tools/batch_check/check_material.h"
#include "tools/batch_check/first_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr std::string_view line_end = "\r\n";
const std::string material_page = "docs/material-file.md";
const std::string lamp_page = "docs/lamp-file.md";

// A material is known to the stream by the name that it gives itself.
std::string found_in_material(const std::string& text) {
    constexpr std::string_view key = "Matl: ";
    const std::string name = text.substr(key.size(), text.find('\r') - key.size());
    const files_in_memory files({{"wall.qlobj", text}});
    batch_check::findings found;
    batch_check::check_material(files, "wall.qlobj", name, found);
    return batch_check::finding_lines(found);
}

std::string found_in_lamp(const std::string& text, bool is_direct) {
    const files_in_memory files({{"light_0.txt", text}});
    batch_check::findings found;
    batch_check::check_lamp(files, "light_0.txt", is_direct, found);
    return batch_check::finding_lines(found);
}

// The table has a row for each of these lines, in their order, which begin as the first column says; what the last
// column shows is one of them.
void expect_rows(const std::string& page, const std::vector<std::string>& lines,
                 const std::vector<std::string>& shown) {
    const std::vector<pages::row> rows = pages::rows_under(page, "Line");
    ASSERT_EQ(rows.size(), lines.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        ASSERT_EQ(rows[i].size(), 3U) << rows[i][0];
        const std::string key = pages::codes_in(rows[i][0]).at(0);
        EXPECT_THAT(lines[i], testing::StartsWith(key));
        const std::string example = pages::codes_in(rows[i][2]).at(0);
        EXPECT_THAT(example, testing::StartsWith(key));
        EXPECT_THAT(shown, testing::Contains(example));
    }
}

TEST(MaterialPage, the_checker_takes_every_example) {
    const std::vector<pages::example> examples = pages::examples_of(material_page, "material");
    ASSERT_FALSE(examples.empty());
    for (const pages::example& example : examples)
        EXPECT_EQ(found_in_material(example.text(line_end)), "") << material_page << ", line " << example.line;
    for (const std::string& plain : page_examples("material-file.md", "## Lines"))
        EXPECT_EQ(found_in_material(plain), "");
}

TEST(MaterialPage, every_line_that_says_something_has_a_row_in_the_order_of_the_file) {
    const pages::example example = pages::examples_of(material_page, "material").at(0);
    std::vector<std::string> telling = example.lines;
    std::erase_if(telling, [](const std::string& line) { return line[0] == '#' && !line.starts_with("#;Color:"); });
    expect_rows(material_page, telling, example.lines);
}

TEST(LampPage, the_checker_takes_every_example) {
    const std::vector<pages::example> examples = pages::examples_of(lamp_page, "lamp");
    ASSERT_FALSE(examples.empty());
    for (const pages::example& example : examples)
        EXPECT_EQ(found_in_lamp(example.text(line_end), true), "") << lamp_page << ", line " << example.line;
}

TEST(LampPage, every_line_has_a_row_in_the_order_of_the_file) {
    const pages::example example = pages::examples_of(lamp_page, "lamp").at(0);
    expect_rows(lamp_page, example.lines, example.lines);
}

} // namespace

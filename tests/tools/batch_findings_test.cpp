// How findings are counted, kept and quoted, and that the manual lists every code.

#include "tests/support/temporary_folder.h"
#include "tools/batch_check/findings.h"
#include "tools/batch_check/first_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace {

using namespace batch_check;

TEST(BatchFindings, the_first_twenty_of_a_code_are_kept_and_all_are_counted) {
    findings found;
    for (int i = 0; i < 50; ++i)
        found.add(code::orphan, std::to_string(i), 0, "left over");
    found.add(code::lamp_line, "light_0.txt", 3, "wrong");
    EXPECT_EQ(found.kept().size(), 21U);
    EXPECT_EQ(found.kept()[19].file, "19");
    EXPECT_EQ(found.count(code::orphan), 50U);
    EXPECT_EQ(found.left_out(code::orphan), 30U);
    EXPECT_EQ(found.left_out(code::lamp_line), 0U);
    EXPECT_EQ(found.count(severity::warning), 50U);
    EXPECT_EQ(found.count(severity::error), 1U);
    EXPECT_EQ(sum_of(found), "1 error, 50 warnings, no notes");
}

TEST(BatchFindings, what_is_ignored_is_neither_kept_nor_counted) {
    findings found({code::orphan});
    found.add(code::orphan, "a", 0, "left over");
    EXPECT_TRUE(found.kept().empty());
    EXPECT_EQ(found.count(severity::warning), 0U);
}

TEST(BatchFindings, quotes_are_short_and_name_no_place_of_the_disk) {
    EXPECT_EQ(in_quotes("MATL;10"), "\"MATL;10\"");
    EXPECT_EQ(in_quotes("PLNM;/home/somebody/batch/Plants/Oak"), "\"PLNM;.../Oak\"");
    EXPECT_EQ(in_quotes("Image_Path: /home/somebody/a b.png"), "\"Image_Path: .../a b.png\"");
    EXPECT_EQ(in_quotes("C:\\batch\\Plants\\Oak"), "\".../Oak\"");
    EXPECT_EQ(in_quotes("\\\\server\\share\\Oak"), "\".../Oak\"");
    EXPECT_EQ(in_quotes("Oak/Ash"), "\"Oak/Ash\"");
    EXPECT_EQ(in_quotes(std::string("a\0b\n", 4)), "\"a\\x00b\\x0a\"");
    EXPECT_EQ(in_quotes(std::string(100, 'x')), '"' + std::string(80, 'x') + "...\"");
    EXPECT_EQ(in_quotes("MATF;" + std::string(500, 'x') + " /home/somebody").size(), 85U);
}

TEST(BatchFindings, quotes_know_a_full_name_behind_every_sign_that_separates) {
    EXPECT_EQ(in_quotes("foo=/home/secret/x"), "\"foo=.../x\"");
    EXPECT_EQ(in_quotes("(/home/secret/x"), "\"(.../x\"");
    EXPECT_EQ(in_quotes("foo\"/home/secret/x"), "\"foo\".../x\"");
    EXPECT_EQ(in_quotes("'/home/secret/x"), "\"'.../x\"");
    EXPECT_EQ(in_quotes("foo:/home/secret/x"), "\"foo:.../x\"");
    EXPECT_EQ(in_quotes("1,/home/secret/x"), "\"1,.../x\"");
    EXPECT_EQ(in_quotes("foo\t/home/secret/x"), "\"foo\\x09.../x\"");
    EXPECT_EQ(in_quotes("foo=C:\\secret\\x"), "\"foo=.../x\"");
    EXPECT_EQ(in_quotes("foo:\\\\server\\secret\\x"), "\"foo:.../x\"");
}

TEST(BatchCodes, have_names_of_lower_case_words_each_of_its_own) {
    std::set<std::string_view> names;
    for (const code_entry& entry : all_codes()) {
        EXPECT_TRUE(names.insert(entry.name).second) << entry.name;
        EXPECT_EQ(entry.name.find_first_not_of("abcdefghijklmnopqrstuvwxyz-"), std::string_view::npos) << entry.name;
        EXPECT_EQ(code_named(entry.name), entry.what);
        EXPECT_EQ(entry_of(entry.what).name, entry.name);
    }
    EXPECT_EQ(code_named("no-such-code"), std::nullopt);
    EXPECT_EQ(code_named(""), std::nullopt);
}

// The table of the page, put together from the table of the program.
TEST(BatchCodes, the_page_of_the_checker_lists_them_as_the_program_does) {
    std::string table = "| Code | Severity | Meaning |\n|---|---|---|\n";
    for (const code_entry& entry : all_codes())
        table += "| `" + std::string(entry.name) + "` | " + std::string(name_of(entry.weight)) + " | " +
                 std::string(entry.meaning) + " |\n";
    const std::string page = text_of_file(std::string(TESSALINE_SOURCE_DIR) + "/docs/checker.md");
    EXPECT_NE(page.find("\n" + table + "\n"), std::string::npos) << table;
}

TEST(BatchCodes, their_list_is_a_line_each) {
    const std::string list = code_list();
    EXPECT_THAT(list, testing::StartsWith("not-a-batch                 error    The folder cannot be read, or "));
    EXPECT_EQ(static_cast<std::size_t>(std::count(list.begin(), list.end(), '\n')), all_codes().size());
}

} // namespace

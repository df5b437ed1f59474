// How much of a small text file is read.

#include "tools/batch_check/small_text.h"

#include "tests/support/files_in_memory.h"

#include <gtest/gtest.h>

namespace {

using batch_check::small_text;

std::optional<small_text> read(const std::string& text, batch_check::findings& found) {
    return small_text::read(files_in_memory({{"a.txt", text}}), "a.txt", batch_check::code::lamp_line_end, found);
}

TEST(SmallText, of_a_million_lines_is_read_and_of_one_more_is_not) {
    batch_check::findings found;
    const std::string million(1000000, '\n');
    const auto text = read(million, found);
    ASSERT_TRUE(text.has_value());
    EXPECT_EQ(text->line_count(), 1000000U);
    EXPECT_EQ(found.kept().at(0).text, "1000000 lines do not end in CR LF; this is the first");
    EXPECT_FALSE(read(million + "a", found).has_value());
}

TEST(SmallText, has_lines_without_their_ends) {
    batch_check::findings found;
    const auto text = read("one\r\n\r\nthree\nfour", found);
    ASSERT_TRUE(text.has_value());
    ASSERT_EQ(text->line_count(), 4U);
    EXPECT_EQ(text->line(0), "one");
    EXPECT_EQ(text->line(1), "");
    EXPECT_EQ(text->line(2), "three");
    EXPECT_EQ(text->line(3), "four");
    ASSERT_EQ(found.kept().size(), 1U);
    EXPECT_EQ(found.kept()[0].line, 3U);
    EXPECT_EQ(found.kept()[0].text, "2 lines do not end in CR LF; this is the first");
}

} // namespace

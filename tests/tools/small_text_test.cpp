// How much of a small text file is read.

#include "tools/batch_check/small_text.h"

#include "tests/support/files_in_memory.h"
#include "tests/tools/small_batch.h"
#include "tools/batch_check/check_batch.h"
#include "tools/batch_check/first_screen.h"

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

// Files that are there and cannot be read count as missing, and not as left over. Ahead of lamp 0 stand 110 lines: 9 of
// the head, two declarations of 3, faces of 17, 20 and 21, glowing ones with 35, and two of the lamp itself.
TEST(SmallText, that_cannot_be_read_is_named_once) {
    small_batch::files_by_name files = small_batch::still();
    files["ZynBatch_Lights/light_0.txt"] = std::string(1000001, '\n');
    files["ZynBatch_Materials/COL%3a0012_Wall.qlobj"] = std::string(1000001, '\n');
    EXPECT_EQ(batch_check::finding_lines(batch_check::check_batch(files_in_memory(files, small_batch::folder)).found),
              "error material-missing: batch_file.txt, line 10: \"COL%3a0012_Wall.OrnMaterial\" has a file that cannot "
              "be read\n"
              "error lamp-missing: batch_file.txt, line 111: lamp 0 has a file that cannot be read\n");
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

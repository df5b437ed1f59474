#include "qlw/trimmed.h"

#include <gtest/gtest.h>

namespace {

TEST(Trimmed, white_space_goes_at_both_ends_and_stays_inside) {
    EXPECT_EQ(trimmed("  two  words\t\r\n"), "two  words");
    EXPECT_EQ(trimmed("\v\fa\f\v"), "a");
    EXPECT_EQ(trimmed("a"), "a");
}

TEST(Trimmed, nothing_is_left_of_white_space_alone) {
    EXPECT_EQ(trimmed(" \t\n\v\f\r"), "");
    EXPECT_EQ(trimmed(""), "");
}

TEST(Trimmed, bytes_beyond_ascii_and_zero_bytes_are_no_white_space) {
    EXPECT_EQ(trimmed(" \xC2\xA0x "), "\xC2\xA0x");
    EXPECT_EQ(trimmed(std::string_view(" \0 ", 3)), std::string_view("\0", 1));
}

} // namespace

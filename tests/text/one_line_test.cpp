#include "text/one_line.h"

#include <gtest/gtest.h>

TEST(OnOneLine, control_characters_are_spelt_by_their_number) {
    EXPECT_EQ(on_one_line(std::string_view("a\0b\n\x1f\x7f", 6)), "a\\x00b\\x0a\\x1f\\x7f");
}

TEST(OnOneLine, every_other_byte_stays) {
    EXPECT_EQ(on_one_line(" ~\\x0a\xc3\xa4\xff"), " ~\\x0a\xc3\xa4\xff");
    EXPECT_EQ(on_one_line(""), "");
}

#include "qlw/color_text.h"

#include <gtest/gtest.h>

TEST(ColorText, a_colour_is_written_as_red_green_blue_in_lower_case) {
    EXPECT_EQ(color_to_text(0x1000FF), "#ff0010");
    EXPECT_EQ(color_to_text(0), "#000000");
    EXPECT_EQ(color_to_text(0xABCDEF), "#efcdab");
}

TEST(ColorText, the_highest_byte_of_a_colour_is_not_written) {
    EXPECT_EQ(color_to_text(0xFF000001), "#010000");
}

TEST(ColorText, a_number_sign_leads_three_hexadecimal_pairs) {
    EXPECT_EQ(text_to_color("#ff0010"), 0x1000FFu);
    EXPECT_EQ(text_to_color("#FF0010"), 0x1000FFu);
}

TEST(ColorText, a_hexadecimal_pair_that_is_missing_or_unreadable_is_zero) {
    EXPECT_EQ(text_to_color("#"), 0u);
    EXPECT_EQ(text_to_color("#0a"), 0x0Au);
    EXPECT_EQ(text_to_color("#0a1"), 0x010Au);
    EXPECT_EQ(text_to_color("#zz0b0c"), 0x0C0B00u);
}

TEST(ColorText, a_list_in_parentheses_holds_decimal_parts) {
    EXPECT_EQ(text_to_color("rgb(255,0,16)"), 0x1000FFu);
    EXPECT_EQ(text_to_color("rgb(1, 2, 3)"), 0x030201u);
}

TEST(ColorText, each_decimal_part_keeps_its_low_byte) {
    EXPECT_EQ(text_to_color("rgb(257,-1,512)"), 0x00FF01u); // 257 = 0x101, -1 = 0xFFFFFFFF, 512 = 0x200
}

TEST(ColorText, the_last_letter_of_a_list_is_dropped_whatever_it_is) {
    EXPECT_EQ(text_to_color("rgb(1,2,34"), 0x030201u);
}

TEST(ColorText, a_list_without_a_comma_is_zero) {
    EXPECT_EQ(text_to_color("rgb(1)"), 0u);
    EXPECT_EQ(text_to_color("rgb("), 0u);
}

TEST(ColorText, a_list_with_one_comma_is_red_alone) {
    EXPECT_EQ(text_to_color("rgb(7,8)"), 7u);
}

TEST(ColorText, any_other_text_is_a_decimal_number_without_a_mask) {
    EXPECT_EQ(text_to_color("16711680"), 0xFF0000u);
    EXPECT_EQ(text_to_color("4294967295"), 0xFFFFFFFFu);
    EXPECT_EQ(text_to_color(""), 0u);
}

TEST(ColorText, a_list_in_capitals_is_no_list_and_so_zero) {
    EXPECT_EQ(text_to_color("RGB(1,2,3)"), 0u);
}

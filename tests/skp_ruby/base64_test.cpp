// Base64 text.

#include "skp_ruby/base64.h"

#include <gtest/gtest.h>

namespace {

TEST(Base64, groups_of_four_letters_give_three_bytes) {
    EXPECT_EQ(decode_base64("TWFu"), "Man");
    EXPECT_EQ(decode_base64("TWFuTWFu"), "ManMan");
}

TEST(Base64, a_last_group_of_two_or_three_gives_one_byte_or_two) {
    EXPECT_EQ(decode_base64("TQ=="), "M");
    EXPECT_EQ(decode_base64("TWE="), "Ma");
    EXPECT_EQ(decode_base64("TQ"), "M");
    EXPECT_EQ(decode_base64("TWE"), "Ma");
}

TEST(Base64, a_single_letter_left_over_gives_nothing) {
    EXPECT_EQ(decode_base64("T"), "");
    EXPECT_EQ(decode_base64("TWFuT"), "Man");
}

TEST(Base64, the_alphabet_runs_from_A_to_the_slash) {
    // 000000 000001 ... : the first four letters are 00 10 83 in hexadecimal, and so on in steps.
    EXPECT_EQ(decode_base64("ABCD"), std::string("\x00\x10\x83", 3));
    EXPECT_EQ(decode_base64("XYZa"), "\x5d\x86\x5a"); // 23 24 25 26
    EXPECT_EQ(decode_base64("yz01"), "\xcb\x3d\x35"); // 50 51 52 53
    EXPECT_EQ(decode_base64("89+/"), "\xf3\xdf\xbf"); // 60 61 62 63
}

TEST(Base64, it_ends_at_the_first_sign_of_equality) {
    EXPECT_EQ(decode_base64("TWFu=TWFu"), "Man");
    EXPECT_EQ(decode_base64("=TWFu"), "");
}

TEST(Base64, it_ends_at_the_first_character_outside_the_alphabet) {
    for (const char stop : {'\n', '\r', ' ', '-', '_', '\0', '\xc3'})
        EXPECT_EQ(decode_base64(std::string("TWE") + stop + "uTWFu"), "Ma") << static_cast<int>(stop);
}

TEST(Base64, nothing_gives_nothing) {
    EXPECT_EQ(decode_base64(""), "");
}

TEST(Base64, bits_left_over_are_dropped) {
    EXPECT_EQ(decode_base64("TR"), "M"); // 010011 010001: the last four bits stand in no byte
}

} // namespace

// How names of materials and pictures are escaped for the file system.

#include "tessaline/materials/name_escaping.h"

#include <gtest/gtest.h>

namespace {

const std::string safe = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-_. []()";

TEST(NameEscaping, letters_digits_and_a_few_signs_stay_as_they_are) {
    EXPECT_EQ(url_encode_name(safe), safe);
    EXPECT_EQ(url_encode_name("Brick Wall"), "Brick Wall");
    EXPECT_EQ(url_encode_name(""), "");
}

TEST(NameEscaping, any_other_byte_becomes_a_percent_sign_and_two_small_digits) {
    EXPECT_EQ(url_encode_name("R&D"), "R%26D");
    EXPECT_EQ(url_encode_name("a/b\\c:d*e"), "a%2fb%5cc%3ad%2ae");
    EXPECT_EQ(url_encode_name("<#1>"), "%3c%231%3e");
    EXPECT_EQ(url_encode_name("~\x7f"), "%7e%7f");
}

TEST(NameEscaping, a_letter_of_several_bytes_is_escaped_byte_by_byte) {
    EXPECT_EQ(url_encode_name("\xC3\xA9t\xC3\xA9\xFF"), "%c3%a9t%c3%a9%ff");
}

TEST(NameEscaping, a_byte_below_16_becomes_a_percent_sign_a_blank_and_one_digit) {
    EXPECT_EQ(url_encode_name("a\tb"), "a% 9b");
    EXPECT_EQ(url_encode_name("\r\n"), "% d% a");
    EXPECT_EQ(url_encode_name(std::string("a\0b", 3)), "a% 0b");
    EXPECT_EQ(url_encode_name("\x10"), "%10");
}

TEST(NameEscaping, a_name_with_a_digit_up_to_8_behind_the_first_percent_sign_counts_as_escaped) {
    for (const std::string name : {"50%5", "%0", "a%26b&c", "%8\xC3\xA9", "%2f/../x", "%20%zz"})
        EXPECT_EQ(url_encode_name(name), name);
}

TEST(NameEscaping, a_9_behind_the_first_percent_sign_counts_as_escaped_only_at_the_end) {
    EXPECT_EQ(url_encode_name("&%9"), "&%9");
    EXPECT_EQ(url_encode_name("&%90"), "%26%2590");
    EXPECT_EQ(url_encode_name("&%9f"), "%26%259f");
}

TEST(NameEscaping, any_other_percent_sign_is_escaped) {
    EXPECT_EQ(url_encode_name("50% off"), "50%25 off");
    EXPECT_EQ(url_encode_name("100%"), "100%25");
    EXPECT_EQ(url_encode_name("%a%20"), "%25a%2520");
    EXPECT_EQ(url_encode_name("%\xFF"), "%25%ff");
}

TEST(NameUnescaping, a_name_without_a_percent_sign_stays_as_it_is) {
    EXPECT_EQ(url_decode_name(safe), safe);
    EXPECT_EQ(url_decode_name("&/\n"), "&/\n");
    EXPECT_EQ(url_decode_name(""), "");
}

TEST(NameUnescaping, an_escape_becomes_its_byte_in_either_case_of_the_digits) {
    EXPECT_EQ(url_decode_name("R%26D"), "R&D");
    EXPECT_EQ(url_decode_name("%c3%A9%fF%20%25"), "\xC3\xA9\xFF %");
}

TEST(NameUnescaping, a_blank_may_stand_for_the_first_digit) {
    EXPECT_EQ(url_decode_name("a% 9b"), "a\tb");
}

TEST(NameUnescaping, three_characters_go_whatever_they_are) {
    EXPECT_EQ(url_decode_name("a%5zb"), "a\x05"
                                        "b");
    EXPECT_EQ(url_decode_name("a%zzb"), std::string("a\0b", 3));
    EXPECT_EQ(url_decode_name("a%-1b"), "a\xFF"
                                        "b");
    EXPECT_EQ(url_decode_name("a%0xb"), std::string("a\0b", 3));
    EXPECT_EQ(url_decode_name("%%26"), std::string("\0"
                                                   "6",
                                                   2));
}

TEST(NameUnescaping, the_name_may_end_within_an_escape) {
    EXPECT_EQ(url_decode_name("50%5"), "50\x05");
    EXPECT_EQ(url_decode_name("50%"), std::string("50\0", 3));
}

TEST(NameUnescaping, gives_back_every_name_that_was_escaped) {
    std::string every_byte;
    for (int byte = 0; byte < 256; ++byte)
        every_byte += static_cast<char>(byte);
    EXPECT_EQ(url_decode_name(url_encode_name(every_byte)), every_byte);
}

TEST(NameFilter, keeps_letters_digits_the_blank_and_a_few_signs) {
    EXPECT_EQ(filter_file_name("Az09 _-#()[]<>"), "Az09 _-#()[]<>");
    EXPECT_EQ(filter_file_name(""), "");
}

TEST(NameFilter, drops_everything_else) {
    EXPECT_EQ(filter_file_name("../a.b%2f\\c:d\xC3\xA9\n*?\"|&"), "ab2fcd");
    EXPECT_EQ(filter_file_name(std::string("a\0b", 3)), "ab");
    EXPECT_EQ(filter_file_name("..."), "");
}

} // namespace

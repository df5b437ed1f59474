// Hexadecimal text that is spread over several values.

#include "tessaline/files/hex_chunks.h"

#include <gtest/gtest.h>

namespace {

hex_header header_of(std::string_view text) {
    hex_header header;
    header.read(text);
    return header;
}

TEST(HexChunks, the_header_has_three_fields_each_with_its_end) {
    const hex_header header = header_of("800001;3;name;and more");
    EXPECT_EQ(header.total_length, "800001");
    EXPECT_EQ(header.chunk_count, 3);
    EXPECT_EQ(header.last_field, "name");
    EXPECT_TRUE(header.is_complete());
}

TEST(HexChunks, a_field_that_is_missing_or_empty_stays_as_it_was) {
    hex_header header = header_of("5;1;x;");
    header.read("6;2");
    EXPECT_EQ(header.total_length, "6");
    EXPECT_EQ(header.chunk_count, 1);
    EXPECT_EQ(header.last_field, "x");
    header.read(";7;8;9;"); // nothing in front of the first end: no field is taken at all
    EXPECT_EQ(header.total_length, "6");
    EXPECT_EQ(header.chunk_count, 1);
    EXPECT_EQ(header.last_field, "x");
}

TEST(HexChunks, a_header_without_length_or_last_field_is_incomplete) {
    for (const char* text : {"", ";", "5", "5;", "5;1", "5;1;", "5;1;x", "5;;x;"})
        EXPECT_FALSE(header_of(text).is_complete()) << text;
    EXPECT_TRUE(header_of("5;0;x;").is_complete());
    EXPECT_TRUE(header_of("five;one;x;").is_complete());
}

TEST(HexChunks, a_count_that_is_no_number_is_0_and_one_beyond_32_bits_the_largest) {
    EXPECT_EQ(header_of("5;one;x;").chunk_count, 0);
    EXPECT_EQ(header_of("5;9000000000;x;").chunk_count, 2147483647);
    EXPECT_EQ(header_of("5;-3;x;").chunk_count, -3);
}

TEST(HexChunks, a_count_is_decimal_with_zeros_in_front_too) {
    EXPECT_EQ(header_of("5;010;x;").chunk_count, 10);
}

TEST(HexChunks, each_chunk_takes_400000_characters_and_the_last_what_is_left) {
    const std::string a(400000, 'a');
    EXPECT_EQ(assembled_hex_text(header_of("400003;2;x;"), {{0, a}, {1, "bcd"}}), a + "bcd");
}

TEST(HexChunks, a_chunk_that_is_too_long_is_cut_where_the_next_begins) {
    EXPECT_EQ(assembled_hex_text(header_of("400001;2;x;"), {{0, std::string(400005, 'a')}, {1, "bcd"}}),
              std::string(400000, 'a') + "b");
}

TEST(HexChunks, the_text_is_cut_at_the_total_length) {
    EXPECT_EQ(assembled_hex_text(header_of("3;1;x;"), {{0, "abcde"}}), "abc");
}

TEST(HexChunks, chunks_above_the_count_do_not_count) {
    const std::string a(400000, 'a');
    EXPECT_EQ(assembled_hex_text(header_of("800000;1;x;"), {{0, a}, {1, "b"}}), a);
    EXPECT_EQ(assembled_hex_text(header_of("800000;0;x;"), {{0, a}}), "");
    EXPECT_EQ(assembled_hex_text(header_of("800000;-1;x;"), {{0, a}}), "");
}

TEST(HexChunks, the_text_ends_at_a_chunk_that_is_missing_or_short) {
    const std::string a(400000, 'a');
    EXPECT_EQ(assembled_hex_text(header_of("1200000;3;x;"), {{0, a}, {2, "c"}}), a);
    EXPECT_EQ(assembled_hex_text(header_of("1200000;3;x;"), {{0, a}, {1, "b"}, {2, "c"}}), a + "b");
    EXPECT_EQ(assembled_hex_text(header_of("1200000;3;x;"), {{1, "b"}}), "");
}

TEST(HexChunks, a_length_near_the_limit_of_32_bits_costs_no_room) {
    for (const char* length : {"2147483647", "2147483648", "4294967295", "9000000000", "99999999999999999999999"})
        EXPECT_EQ(assembled_hex_text(header_of(std::string(length) + ";2147483647;x;"), {{0, "ab"}, {2147483646, "z"}}),
                  "ab")
            << length;
}

TEST(HexChunks, a_length_of_0_or_below_or_no_number_gives_nothing) {
    for (const char* length : {"0", "-1", "-2147483648", "five"})
        EXPECT_EQ(assembled_hex_text(header_of(std::string(length) + ";1;x;"), {{0, "ab"}}), "") << length;
}

} // namespace

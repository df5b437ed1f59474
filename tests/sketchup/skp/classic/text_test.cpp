#include "sketchup/skp/classic/text.h"

#include "tests/sketchup/skp/classic/classic_bytes.h"

#include <gtest/gtest.h>

using classic::assembler;

namespace {

std::string read(const assembler& a) {
    skp::byte_cursor in(a.bytes);
    const std::string text = skp::utf8_from(skp::read_stored_text(in));
    EXPECT_TRUE(in.at_end());
    return text;
}

assembler wide_mark() {
    return assembler().u8(0xFF).u16(0xFFFE);
}

} // namespace

TEST(StoredText, a_narrow_string_begins_with_its_length_in_a_byte) {
    EXPECT_EQ(read(assembler().u8(3).characters("abc")), "abc");
    EXPECT_EQ(read(assembler().u8(0)), "");
}

TEST(StoredText, a_narrow_string_of_255_characters_has_a_longer_length) {
    EXPECT_EQ(read(assembler().u8(0xFF).u16(255).characters(std::string(255, 'x'))), std::string(255, 'x'));
}

TEST(StoredText, a_narrow_string_of_65535_characters_has_the_longest_length) {
    EXPECT_EQ(read(assembler().u8(0xFF).u16(0xFFFF).u32(65535).characters(std::string(65535, 'x'))),
              std::string(65535, 'x'));
}

TEST(StoredText, a_wide_string_counts_units) {
    EXPECT_EQ(read(wide_mark().u8(2).u16('h').u16('i')), "hi");
    EXPECT_EQ(read(wide_mark().u8(0)), "");
}

TEST(StoredText, a_wide_string_has_three_forms_of_length_too) {
    assembler longer = wide_mark().u8(0xFF).u16(255);
    assembler longest = wide_mark().u8(0xFF).u16(0xFFFF).u32(65535);
    for (int i = 0; i < 65535; ++i) {
        if (i < 255)
            longer.u16('x');
        longest.u16('x');
    }
    EXPECT_EQ(read(longer), std::string(255, 'x'));
    EXPECT_EQ(read(longest), std::string(65535, 'x'));
}

TEST(StoredText, narrow_characters_are_windows_1252) {
    // e acute, euro sign, one of the five holes
    EXPECT_EQ(read(assembler().u8(3).u8(0xE9).u8(0x80).u8(0x81)), "\xC3\xA9\xE2\x82\xAC\xEF\xBF\xBD");
}

TEST(StoredText, a_surrogate_pair_becomes_one_character) {
    // U+1F600 is D83D DE00 in UTF-16 and F0 9F 98 80 in UTF-8
    EXPECT_EQ(read(wide_mark().u8(2).u16(0xD83D).u16(0xDE00)), "\xF0\x9F\x98\x80");
}

TEST(StoredText, an_unpaired_surrogate_becomes_the_replacement_character) {
    const std::string replacement = "\xEF\xBF\xBD";
    EXPECT_EQ(read(wide_mark().u8(1).u16(0xD83D)), replacement);
    EXPECT_EQ(read(wide_mark().u8(2).u16(0xDE00).u16('a')), replacement + "a");
    EXPECT_EQ(read(wide_mark().u8(2).u16(0xD83D).u16('a')), replacement + "a");
}

TEST(StoredText, a_length_beyond_the_end_fails) {
    EXPECT_THROW(read(assembler().u8(4).characters("abc")), skp::format_error);
    EXPECT_THROW(read(wide_mark().u8(2).u16('h')), skp::format_error);
    EXPECT_THROW(read(wide_mark().u8(0xFF).u16(0xFFFF).u32(0xFFFFFFFF)), skp::format_error);
    EXPECT_THROW(read(assembler().u8(0xFF).u16(0xFFFF).u32(0xFFFFFFFF)), skp::format_error);
}

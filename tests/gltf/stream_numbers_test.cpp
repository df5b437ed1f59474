#include "tests/support/temporary_folder.h"
#include "tools/batch_glb/stream_numbers.h"
#include "tools/batch_reading/file_lines.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <gtest/gtest.h>
#include <random>

TEST(StreamNumbers, are_the_nearest_doubles_to_their_texts) {
    std::mt19937_64 engine(5);
    std::uniform_real_distribution<double> uniform(-2000, 2000);
    for (int i = 0; i < 200000; ++i) {
        char text[40] = {};
        const int digits = 1 + i % 15;
        std::snprintf(text, sizeof text, "%.*g", digits, uniform(engine) * std::pow(10, i % 7 - 3));
        double expected = 0;
        std::from_chars(text, text + sizeof text, expected);
        ASSERT_EQ(read_real(text), expected) << text;
        const std::string number = text;
        std::string three = "(" + number;
        three.append(",").append(number).append(",").append(number).append(")");
        const auto triple = read_triple(three);
        ASSERT_EQ(triple, (std::array<double, 3>{expected, expected, expected})) << text;
    }
}

TEST(StreamNumbers, end_at_the_first_character_that_is_no_digit_whatever_it_is) {
    for (int c = 0; c < 256; ++c) {
        if ((c >= '0' && c <= '9') || c == '.' || c == 'e' || c == 'E')
            continue;
        const std::string text = std::string("12.34") + static_cast<char>(c) + "5678901";
        std::string_view left = text;
        double number = 0;
        ASSERT_TRUE(take_number(left, number)) << c;
        EXPECT_EQ(number, 12.34) << c;
        EXPECT_EQ(left, std::string_view(text).substr(5)) << c;
    }
}

TEST(StreamNumbers, of_more_digits_than_a_double_has_are_rounded_once) {
    EXPECT_EQ(read_real("9007199254740993"), 9007199254740992.0); // 2^53 + 1, halfway, to the even one
    EXPECT_EQ(read_real("0.1000000000000000055511151231257827021181583404541015625"), 0.1);
    EXPECT_EQ(read_real("123456789012345678901234567890"), 123456789012345678901234567890.0);
}

TEST(StreamNumbers, in_triples_may_have_blanks_behind_commas_and_nothing_else) {
    EXPECT_EQ(read_triple("(1,-2.5,3e-05)"), (std::array<double, 3>{1, -2.5, 3e-05}));
    EXPECT_EQ(read_triple("(1, 2, 3)"), (std::array<double, 3>{1, 2, 3}));
    EXPECT_TRUE(std::isnan((*read_triple("(nan,inf,-inf)"))[0]));
    for (const char* wrong :
         {"", "(", "()", "(1,2)", "(1,2,3,4)", "1,2,3", "(1,2,3) ", "(,2,3)", "(1,2,.)", "(--1,2,3)"})
        EXPECT_FALSE(read_triple(wrong)) << wrong;
}

TEST(StreamNumbers, of_corners_are_whole_and_three) {
    EXPECT_EQ(read_corners("0,1,2"), (std::array<int, 3>{0, 1, 2}));
    EXPECT_EQ(read_corners("0, 1, 2"), (std::array<int, 3>{0, 1, 2}));
    for (const char* wrong : {"", "0,1", "0,1,2,3", "0,1,2.5", "0,1,99999999999"})
        EXPECT_FALSE(read_corners(wrong)) << wrong;
}

TEST(FileLines, are_the_same_however_small_the_block_is) {
    const temporary_folder folder;
    const std::string file = folder.write("a", "one\r\n\r\nthree is longer\nfour");
    for (std::size_t block = 1; block < 30; ++block) {
        file_lines lines;
        ASSERT_TRUE(lines.open(file, block));
        std::vector<std::string> found;
        for (std::string_view line; lines.next(line);)
            found.emplace_back(line);
        EXPECT_EQ(found, (std::vector<std::string>{"one", "", "three is longer", "four"})) << block;
        EXPECT_EQ(lines.number(), 4U);
    }
}

TEST(FileLines, of_a_missing_file_are_told_and_of_an_empty_one_none) {
    const temporary_folder folder;
    file_lines lines;
    EXPECT_FALSE(lines.open(folder / "none"));
    ASSERT_TRUE(lines.open(folder.write("empty", "")));
    std::string_view line;
    EXPECT_FALSE(lines.next(line));
}

TEST(FileLines, of_more_than_64_MiB_end_the_reading) {
    const temporary_folder folder;
    const std::string file = folder.write("a", "one\n");
    std::filesystem::resize_file(file, (std::uintmax_t{1} << 26U) + 10);
    file_lines lines;
    ASSERT_TRUE(lines.open(file));
    std::string_view line;
    EXPECT_TRUE(lines.next(line));
    EXPECT_FALSE(lines.is_too_long());
    EXPECT_FALSE(lines.next(line));
    EXPECT_TRUE(lines.is_too_long());
    EXPECT_EQ(lines.number(), 1U);
}

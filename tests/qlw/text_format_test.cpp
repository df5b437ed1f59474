#include "qlw/text_format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

namespace {

constexpr auto misfit = std::nullopt;

TEST(TextFormat, text_is_taken_as_it_stands_between_conversions) {
    EXPECT_EQ(format_text(""), "");
    EXPECT_EQ(format_text("no conversion"), "no conversion");
    EXPECT_EQ(format_text("100%% of %s, %s", "a", std::string("b")), "100% of a, b");
    EXPECT_EQ(format_text("%s", std::string_view("view")), "view");
}

TEST(TextFormat, text_is_padded_and_cut) {
    EXPECT_EQ(format_text("[%5s][%-5s][%.2s][%5.1s]", "abc", "abc", "abc", "abc"), "[  abc][abc  ][ab][    a]");
}

TEST(TextFormat, the_flag_for_zeros_fills_text_with_blanks) {
    EXPECT_EQ(format_text("[%05s]", "abc"), "[  abc]");
}

TEST(TextFormat, integers_have_the_forms_of_printf) {
    EXPECT_EQ(format_text("%d %i %u", -7, 8, 9u), "-7 8 9");
    EXPECT_EQ(format_text("%x %06x %02x %X", 255, 0xabcd, 10, 0xabcdef90), "ff 00abcd 0a ABCDEF90");
    EXPECT_EQ(format_text("[%5d][%-5d][%05d][%+d][% d]", 42, 42, -42, 42, 42), "[   42][42   ][-0042][+42][ 42]");
    EXPECT_EQ(format_text("%.3d [%6.3d]", 7, -7), "007 [  -007]");
    EXPECT_EQ(format_text("%o", 8), "10");
}

TEST(TextFormat, integers_keep_their_own_size_whatever_the_length_letters) {
    EXPECT_EQ(format_text("%x", -1), "ffffffff");
    EXPECT_EQ(format_text("%lx", std::int64_t{-1}), "ffffffffffffffff");
    EXPECT_EQ(format_text("%d", std::int64_t{5000000000}), "5000000000");
    EXPECT_EQ(format_text("%lld", std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ(format_text("%d", 4294967295u), "-1");
    EXPECT_EQ(format_text("%zu", std::size_t{3}), "3");
    EXPECT_EQ(format_text("%d %d", true, static_cast<short>(-3)), "1 -3");
}

TEST(TextFormat, a_letter_is_written_by_its_code) {
    EXPECT_EQ(format_text("%c%c[%3c]", 'S', 67, 'x'), "SC[  x]");
}

TEST(TextFormat, real_numbers_have_the_forms_of_printf) {
    EXPECT_EQ(format_text("%f %g %e", 1.5, 1.5, 1.5), "1.500000 1.5 1.500000e+00");
    EXPECT_EQ(format_text("%.9g %.6g", 0.1 + 0.2, 100000000.0), "0.3 1e+08");
    EXPECT_EQ(format_text("[%5.2f][%6.1f][%.1f][%-8.2f]", 0.5, 2.25, 3.14, 1.0), "[ 0.50][   2.2][3.1][1.00    ]");
    EXPECT_EQ(format_text("%lg", 12.25), "12.25");
    EXPECT_EQ(format_text("%08.2f|%+.0f", -1.5, 2.0), "-0001.50|+2");
    EXPECT_EQ(format_text("%g", 1.5f), "1.5");
    EXPECT_EQ(format_text("%G %E", 1e-10, 1.0), "1E-10 1.000000E+00");
    EXPECT_EQ(format_text("%g", -0.0), "-0");
}

TEST(TextFormat, infinity_is_a_word_that_is_never_filled_with_zeros) {
    EXPECT_EQ(format_text("%06g", -std::numeric_limits<double>::infinity()), "  -inf");
}

TEST(TextFormat, what_is_not_a_number_is_a_word_without_a_minus) {
    const double no_number = std::numeric_limits<double>::quiet_NaN();
    const double negative = std::copysign(no_number, -1);
    EXPECT_EQ(format_text("%g|%f|%.9g", no_number, no_number, no_number), "nan|nan|nan");
    EXPECT_EQ(format_text("%g|%f|%.9g", negative, negative, negative), "nan|nan|nan");
    EXPECT_EQ(format_text("[%06g][%-5f][%F]", negative, negative, negative), "[   nan][nan  ][NAN]");
}

TEST(TextFormat, the_largest_number_with_the_longest_fraction_fits) {
    const auto text = format_text("%.500f", -std::numeric_limits<double>::max());
    ASSERT_TRUE(text.has_value());
    EXPECT_EQ(text->size(), 1u + 309u + 1u + 500u);
}

TEST(TextFormat, random_numbers_come_out_as_from_printf) {
    std::mt19937_64 random(20190326);
    for (int i = 0; i < 20000; i++) {
        const auto bits = random();
        const double value =
            std::ldexp(static_cast<double>(static_cast<std::int64_t>(bits)), static_cast<int>(random() % 200) - 163);
        char expected[1000];
        for (const char* format : {"%.9g", "%.6g", "%f", "%5.2f", "%6.1f", "%.1f", "%12.3e"}) {
            std::snprintf(expected, sizeof expected, format, value);
            ASSERT_EQ(format_text(format, value), expected) << format;
        }
        std::snprintf(expected, sizeof expected, "%06x %d", static_cast<unsigned>(bits), static_cast<int>(bits));
        ASSERT_EQ(format_text("%06x %d", static_cast<unsigned>(bits), static_cast<int>(bits)), expected);
    }
}

TEST(TextFormat, a_missing_argument_does_not_fit) {
    EXPECT_EQ(format_text("%s"), misfit);
    EXPECT_EQ(format_text("%d %d", 1), misfit);
}

TEST(TextFormat, an_argument_of_another_type_does_not_fit) {
    EXPECT_EQ(format_text("%s", 1), misfit);
    EXPECT_EQ(format_text("%d", 1.0), misfit);
    EXPECT_EQ(format_text("%g", 1), misfit);
    EXPECT_EQ(format_text("%d", "1"), misfit);
    EXPECT_EQ(format_text("%c", "x"), misfit);
}

TEST(TextFormat, an_unknown_or_incomplete_conversion_does_not_fit) {
    EXPECT_EQ(format_text("%q", 1), misfit);
    EXPECT_EQ(format_text("50%"), misfit);
    EXPECT_EQ(format_text("%5", 1), misfit);
    EXPECT_EQ(format_text("%l", 1), misfit);
    EXPECT_EQ(format_text("%n", 1), misfit);
    EXPECT_EQ(format_text("%*d", 5, 1), misfit);
    EXPECT_EQ(format_text("%501d", 1), misfit);
    EXPECT_EQ(format_text("%99999999999d", 1), misfit);
    EXPECT_EQ(format_text("%.501f", 1.0), misfit);
}

TEST(TextFormat, arguments_left_over_are_ignored) {
    EXPECT_EQ(format_text("%d", 1, 2, "three"), "1");
}

TEST(TextFormat, a_format_that_does_not_fit_appends_nothing) {
    std::string out = "kept";
    const text_argument arguments[] = {1};
    EXPECT_FALSE(append_formatted(out, "%d and %d", arguments));
    EXPECT_EQ(out, "kept");
    EXPECT_TRUE(append_formatted(out, " %d", arguments));
    EXPECT_EQ(out, "kept 1");
}

TEST(TextFormat, a_null_pointer_is_shown_as_such) {
    EXPECT_EQ(format_text("%s", static_cast<const char*>(nullptr)), "(null)");
}

} // namespace

#include "qlw/text_numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

TEST(TextNumbers, a_decimal_number_ends_at_the_first_letter_that_is_no_digit) {
    EXPECT_EQ(decimal_value("12abc"), 12);
    EXPECT_EQ(decimal_value("3.9"), 3);
    EXPECT_EQ(decimal_value("7 8"), 7);
}

TEST(TextNumbers, a_text_without_a_number_is_zero) {
    EXPECT_EQ(decimal_value(""), 0);
    EXPECT_EQ(decimal_value("   "), 0);
    EXPECT_EQ(decimal_value("x1"), 0);
    EXPECT_EQ(decimal_value("-"), 0);
    EXPECT_EQ(decimal_value("0x10"), 0);
    EXPECT_EQ(double_value(""), 0.0);
    EXPECT_EQ(double_value("x1"), 0.0);
}

TEST(TextNumbers, white_space_and_one_sign_may_stand_in_front) {
    EXPECT_EQ(decimal_value(" \t\n5"), 5);
    EXPECT_EQ(decimal_value("+5"), 5);
    EXPECT_EQ(decimal_value(" -5"), -5);
    EXPECT_EQ(decimal_value("--5"), 0);
    EXPECT_EQ(decimal_value("- 5"), 0);
}

TEST(TextNumbers, decimal_digits_are_an_unsigned_number_of_32_bits) {
    EXPECT_EQ(decimal_value("2147483647"), 2147483647);
    EXPECT_EQ(decimal_value("2147483648"), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(decimal_value("4294967295"), -1);
    EXPECT_EQ(decimal_value("4294967296"), -1);
    EXPECT_EQ(decimal_value("-4294967296"), -1);
    EXPECT_EQ(decimal_value("99999999999999999999999999"), -1);
    EXPECT_EQ(decimal_value("-2147483648"), std::numeric_limits<std::int32_t>::min());
}

TEST(TextNumbers, a_double_ends_where_the_number_ends) {
    EXPECT_EQ(double_value("1.5)"), 1.5);
    EXPECT_EQ(double_value(" -2e3x"), -2000.0);
    EXPECT_EQ(double_value(std::string_view("12345", 2)), 12.0);
}

TEST(TextNumbers, a_double_is_written_with_nine_significant_digits) {
    EXPECT_EQ(number_text(0.1), "0.1");
    EXPECT_EQ(number_text(1.0 / 3.0), "0.333333333");
    EXPECT_EQ(number_text(1234567891.0), "1.23456789e+09");
    EXPECT_EQ(number_text(-2.0), "-2");
    EXPECT_EQ(number_text(1e-9), "1e-09");
}

TEST(TextNumbers, the_text_of_a_double_is_the_text_of_printf) {
    std::mt19937_64 random(20240517);
    std::uniform_real_distribution<double> mantissa(-1.0, 1.0);
    std::uniform_int_distribution<int> exponent(-300, 300);
    for (int i = 0; i < 20000; ++i) {
        const double number = std::ldexp(mantissa(random), exponent(random));
        char expected[64];
        std::snprintf(expected, sizeof expected, "%.9g", number);
        ASSERT_EQ(number_text(number), expected) << "value " << i << " of seed 20240517";
    }
}

TEST(TextNumbers, an_integer_is_written_as_signed_decimal) {
    EXPECT_EQ(integer_text(-1), "-1");
    EXPECT_EQ(integer_text(600), "600");
}

#include "tools/batch_check/number_forms.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <random>
#include <string>

namespace {

using namespace batch_check;

std::string spelt(const char* conversion, double value) {
    char text[400];
    std::snprintf(text, sizeof text, conversion, value);
    return text;
}

// A number of every size, most of them with few digits, as a model has them.
double any_number(std::mt19937_64& random) {
    const auto digits = static_cast<double>(static_cast<std::int64_t>(random() % 2000000001) - 1000000000);
    const int exponent = static_cast<int>(random() % 60) - 40;
    return random() % 3 == 0 ? std::round(digits / 1e6) * std::pow(10, exponent) : digits * std::pow(10, exponent);
}

TEST(NumberForms, every_number_is_taken_as_the_conversion_spells_it_and_has_its_value) {
    std::mt19937_64 random(14);
    for (int i = 0; i < 300000; ++i) {
        const std::string text = spelt("%.9g", any_number(random));
        const auto value = shortest_number(text);
        ASSERT_TRUE(value.has_value()) << text;
        ASSERT_EQ(*value, std::strtod(text.c_str(), nullptr)) << text;
    }
}

// Whatever is made of a number by putting in, taking out or changing one character is taken exactly if the conversion
// spells what it says in that way.
TEST(NumberForms, a_changed_number_is_taken_only_if_it_is_still_spelt_as_the_conversion_spells_it) {
    std::mt19937_64 random(15);
    const std::string characters = "0123456789.-+e";
    for (int i = 0; i < 300000; ++i) {
        std::string text = spelt("%.9g", any_number(random));
        const std::size_t at = random() % text.size();
        const char other = characters[random() % characters.size()];
        switch (random() % 3) {
        case 0:
            text[at] = other;
            break;
        case 1:
            text.insert(at, 1, other);
            break;
        default:
            text.erase(at, 1);
        }
        char* end = nullptr;
        const double value = std::strtod(text.c_str(), &end);
        const bool is_right = !text.empty() && *end == '\0' && std::isfinite(value) && spelt("%.9g", value) == text;
        ASSERT_EQ(shortest_number(text).has_value(), is_right) << text;
    }
}

TEST(NumberForms, whole_numbers_have_32_bits_and_one_spelling) {
    EXPECT_EQ(whole_number("0"), 0);
    EXPECT_EQ(whole_number("-1"), -1);
    EXPECT_EQ(whole_number("2147483647"), 2147483647);
    EXPECT_EQ(whole_number("-2147483648"), -2147483647 - 1);
    for (const char* wrong : {"", "-", "-0", "00", "01", "-01", "+1", " 1", "1 ", "1.0", "2147483648", "0x1", "one"})
        EXPECT_FALSE(whole_number(wrong)) << wrong;
}

TEST(NumberForms, six_decimals_are_as_the_conversion_writes_them) {
    std::mt19937_64 random(16);
    for (int i = 0; i < 50000; ++i) {
        const std::string text = spelt("%f", any_number(random));
        ASSERT_TRUE(six_decimals(text).has_value()) << text;
        ASSERT_EQ(*six_decimals(text), std::strtod(text.c_str(), nullptr)) << text;
    }
    EXPECT_TRUE(six_decimals(spelt("%f", 1.7976931348623157e308)));
    for (const char* wrong : {"", ".", "1", "1.", "1.00000", "1.0000000", "01.000000", ".000000", "-.000000",
                              "+1.000000", "1,000000", "1.00000a", "inf", "nan", "12345678901234567891.000000"})
        EXPECT_FALSE(six_decimals(wrong)) << wrong;
}

TEST(NumberForms, a_triple_is_snapped_and_has_its_separator) {
    triple read{};
    EXPECT_EQ(read_snapped_triple("(1,-2.5,1e-07)", ",", read), triple_form::right);
    EXPECT_EQ(read, (triple{1, -2.5, 1e-7}));
    EXPECT_EQ(read_snapped_triple("(1, 0, 3)", ", ", read), triple_form::right);
    EXPECT_EQ(read, (triple{1, 0, 3}));
    for (const char* wrong : {"", "(", "()", "(1,2)", "(1,2,3,4)", "(1,2,3", "1,2,3)", "(1,2,3) ", "(1, 2, 3)",
                              "(1,2,)", "(1,-0,3)", "(1,9.99999999e-08,3)", "(1,inf,x)"}) {
        EXPECT_EQ(read_snapped_triple(wrong, ",", read), triple_form::wrong) << wrong;
        EXPECT_EQ(read, triple{}) << wrong;
    }
    EXPECT_EQ(read_snapped_triple("(1,2,3)", ", ", read), triple_form::wrong);
    for (const char* endless : {"(inf,0,0)", "(0,-inf,0)", "(0,0,nan)", "(nan,nan,nan)"})
        EXPECT_EQ(read_snapped_triple(endless, ",", read), triple_form::not_finite) << endless;
}

TEST(NumberForms, corners_are_three_whole_numbers_that_fit_32_bits) {
    std::array<int, 3> read{};
    EXPECT_TRUE(read_corners("0,1,2", ",", read));
    EXPECT_EQ(read, (std::array<int, 3>{0, 1, 2}));
    EXPECT_TRUE(read_corners("10, 11, 2147483637", ", ", read));
    EXPECT_EQ(read[2], 2147483637);
    for (const char* wrong :
         {"", "1,2", "1,2,3,4", "1,2,", ",1,2", "01,2,3", "-1,2,3", "1, 2, 3", "1,2,4294967296", "1,2,x"})
        EXPECT_FALSE(read_corners(wrong, ",", read)) << wrong;
}

TEST(NumberForms, dates_are_a_month_a_day_a_year_and_a_time_with_its_zone) {
    EXPECT_TRUE(is_date("09/09/2001  01:46:40 GMT"));
    EXPECT_TRUE(is_date("12/31/1999  23:59:59 "));
    EXPECT_TRUE(is_date("Invalid DateTime"));
    EXPECT_FALSE(is_date("09/09/2001  01:46:40"));
    EXPECT_FALSE(is_date("9/9/2001  01:46:40 GMT"));
    EXPECT_FALSE(is_date(""));
}

} // namespace

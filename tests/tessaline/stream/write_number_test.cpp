#include "tessaline/stream/write_number.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>
#include <string>

namespace {

std::string written(double value) {
    std::array<char, number_room> buffer{};
    return {buffer.data(), write_number(buffer.data(), value)};
}

std::string written_integer(int value) {
    std::array<char, number_room> buffer{};
    return {buffer.data(), write_integer(buffer.data(), value)};
}

std::string printed(double value) {
    if (std::isnan(value))
        return "nan";
    std::array<char, 64> buffer{};
    const int size = std::snprintf(buffer.data(), buffer.size(), "%.9g", value);
    return {buffer.data(), static_cast<std::size_t>(size)};
}

// The kinds of values that a vertex holds, and those where a conversion goes wrong if it can.
class number_source {
public:
    explicit number_source(std::uint64_t seed) : engine(seed) {}

    double mixed() {
        switch (engine() % 4) {
        case 0:
            return std::array{0.0, 1.0, -1.0}[engine() % 3];
        case 1:
            return uniform(0, 4); // a texture coordinate
        case 2:
            return uniform(-500, 500); // a world point in metres
        default:
            return inches_on_a_grid();
        }
    }
    double metres() { return uniform(-500, 500); }
    double inches_on_a_grid() { return std::round(uniform(-20000, 20000) * 16) / 16 * 0.0254; }
    double unit_component() { return std::sin(uniform(-4, 4)); }
    double short_decimal() {
        return std::round(uniform(-100000, 100000)) / std::pow(10, static_cast<int>(engine() % 6));
    }
    double any_bits() {
        const std::uint64_t bits = engine();
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }
    double wide_magnitude() { return uniform(-10, 10) * std::pow(10, static_cast<int>(engine() % 34) - 22); }
    // Halves, quarters and so on: the digit behind the ninth is often exactly a half.
    double dyadic_tie() {
        const auto whole = static_cast<double>(engine() % 2000000000);
        return std::ldexp(whole, -static_cast<int>(engine() % 30));
    }
    double neighbour_of_a_power_of_ten() {
        double value = std::pow(10, static_cast<int>(engine() % 32) - 20);
        const int steps = static_cast<int>(engine() % 9) - 4;
        for (int i = 0; i != std::abs(steps); ++i)
            value = std::nextafter(value, steps < 0 ? 0 : 1e300);
        return value;
    }
    // The double nearest to a ten-digit number that ends in 5.
    double ten_digit_half() {
        const auto digits = static_cast<double>(1000000000 + engine() % 9000000000);
        const double half = std::floor(digits / 10) * 10 + 5;
        return half / std::pow(10, static_cast<int>(engine() % 28));
    }

private:
    double uniform(double from, double to) { return std::uniform_real_distribution<double>(from, to)(engine); }
    std::mt19937_64 engine;
};

constexpr int values_of_a_kind = 2000000 / 9 + 1;

void expect_as_printed(double (number_source::*kind)()) {
    constexpr std::uint64_t seed = 20240917;
    number_source source(seed);
    for (int i = 0; i != values_of_a_kind; ++i) {
        const double value = (source.*kind)();
        ASSERT_EQ(written(value), printed(value))
            << "seed " << seed << ", value " << i << ": " << std::hexfloat << value;
    }
}

} // namespace

TEST(NumberText, a_metre_value_keeps_nine_digits) {
    EXPECT_EQ(written(1234.56789), "1234.56789");
    EXPECT_EQ(written(0.1), "0.1");
    EXPECT_EQ(written(2.54), "2.54");
    EXPECT_EQ(written(-16.256), "-16.256");
    EXPECT_EQ(written(1.0 / 3.0), "0.333333333");
    EXPECT_EQ(written(2.0 / 3.0), "0.666666667");
}

TEST(NumberText, a_whole_number_has_no_point) {
    EXPECT_EQ(written(0.0), "0");
    EXPECT_EQ(written(1.0), "1");
    EXPECT_EQ(written(-1.0), "-1");
    EXPECT_EQ(written(100.0), "100");
    EXPECT_EQ(written(120000000.0), "120000000");
    EXPECT_EQ(written(123456789.0), "123456789");
}

TEST(NumberText, an_exponent_below_minus_four_gives_exponent_form) {
    EXPECT_EQ(written(0.0001), "0.0001");
    EXPECT_EQ(written(0.000123456789), "0.000123456789");
    EXPECT_EQ(written(1e-05), "1e-05");
    EXPECT_EQ(written(0.0000125), "1.25e-05");
    EXPECT_EQ(written(-1e-07), "-1e-07");
    EXPECT_EQ(written(1e-15), "1e-15");
}

TEST(NumberText, ten_digits_before_the_point_give_exponent_form) {
    EXPECT_EQ(written(12345678901.0), "1.23456789e+10");
    EXPECT_EQ(written(1e9), "1e+09");
    EXPECT_EQ(written(1e100), "1e+100");
}

TEST(NumberText, nines_that_round_up_carry_into_a_new_digit) {
    EXPECT_EQ(written(999999999.4), "999999999");
    EXPECT_EQ(written(999999999.5), "1e+09");
    EXPECT_EQ(written(999999999.99), "1e+09");
    EXPECT_EQ(written(9.9999999999), "10");
    EXPECT_EQ(written(0.99999999999), "1");
    EXPECT_EQ(written(0.000099999999999), "0.0001");
}

TEST(NumberText, a_tie_goes_to_the_even_digit) {
    EXPECT_EQ(written(100000000.5), "100000000");
    EXPECT_EQ(written(100000001.5), "100000002");
    EXPECT_EQ(written(-100000002.5), "-100000002");
}

TEST(NumberText, values_outside_the_fast_range_are_exact_too) {
    EXPECT_EQ(written(1e-19), "1e-19");
    EXPECT_EQ(written(std::nextafter(1e-19, 0)), "1e-19");
    EXPECT_EQ(written(1e-20), "1e-20");
    EXPECT_EQ(written(5e-324), "4.94065646e-324");
    EXPECT_EQ(written(std::numeric_limits<double>::max()), "1.79769313e+308");
}

TEST(NumberText, infinity_and_negative_zero_read_as_in_the_c_library) {
    EXPECT_EQ(written(-0.0), "-0");
    EXPECT_EQ(written(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(written(-std::numeric_limits<double>::infinity()), "-inf");
}

TEST(NumberText, what_is_not_a_number_has_neither_sign_nor_kind) {
    const double no_number = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(written(no_number), "nan");
    EXPECT_EQ(written(std::copysign(no_number, -1)), "nan");
}

TEST(NumberText, integers_are_signed_decimals) {
    EXPECT_EQ(written_integer(0), "0");
    EXPECT_EQ(written_integer(-1), "-1");
    EXPECT_EQ(written_integer(2147483647), "2147483647");
    EXPECT_EQ(written_integer(std::numeric_limits<int>::min()), "-2147483648");
}

TEST(Snapping, only_what_is_below_1e_7_becomes_plain_zero) {
    EXPECT_EQ(written(snapped(-0.00000005)), "0");
    EXPECT_EQ(written(snapped(-0.0)), "0");
    EXPECT_EQ(written(snapped(9.99e-08)), "0");
    EXPECT_EQ(written(snapped(1e-07)), "1e-07");
    EXPECT_EQ(written(snapped(-1e-07)), "-1e-07");
    EXPECT_TRUE(std::isnan(snapped(std::numeric_limits<double>::quiet_NaN())));
}

TEST(NumberTextProperty, vertex_data_reads_as_printf_gives_it) {
    expect_as_printed(&number_source::mixed);
}
TEST(NumberTextProperty, metres_read_as_printf_gives_them) {
    expect_as_printed(&number_source::metres);
}
TEST(NumberTextProperty, inches_on_a_grid_read_as_printf_gives_them) {
    expect_as_printed(&number_source::inches_on_a_grid);
}
TEST(NumberTextProperty, unit_components_read_as_printf_gives_them) {
    expect_as_printed(&number_source::unit_component);
}
TEST(NumberTextProperty, short_decimals_read_as_printf_gives_them) {
    expect_as_printed(&number_source::short_decimal);
}
TEST(NumberTextProperty, any_64_bits_read_as_printf_gives_them) {
    expect_as_printed(&number_source::any_bits);
}
TEST(NumberTextProperty, wide_magnitudes_read_as_printf_gives_them) {
    expect_as_printed(&number_source::wide_magnitude);
}
TEST(NumberTextProperty, dyadic_ties_read_as_printf_gives_them) {
    expect_as_printed(&number_source::dyadic_tie);
}
TEST(NumberTextProperty, neighbours_of_powers_of_ten_read_as_printf_gives_them) {
    expect_as_printed(&number_source::neighbour_of_a_power_of_ten);
}
TEST(NumberTextProperty, ten_digit_halves_read_as_printf_gives_them) {
    expect_as_printed(&number_source::ten_digit_half);
}

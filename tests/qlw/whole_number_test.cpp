#include "qlw/whole_number.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();

TEST(WholeNumber, the_fraction_is_cut_off_towards_zero) {
    EXPECT_EQ(cut_toward_zero(2.9), 2);
    EXPECT_EQ(cut_toward_zero(-2.9), -2);
    EXPECT_EQ(cut_toward_zero(0.0), 0);
}

TEST(WholeNumber, the_ends_of_32_bits_fit) {
    EXPECT_EQ(cut_toward_zero(2147483647.9), 2147483647);
    EXPECT_EQ(cut_toward_zero(-2147483648.0), lowest);
}

TEST(WholeNumber, what_does_not_fit_is_the_lowest_integer) {
    EXPECT_EQ(cut_toward_zero(2147483648.0), lowest);
    EXPECT_EQ(cut_toward_zero(-1e300), lowest);
    EXPECT_EQ(cut_toward_zero(std::numeric_limits<double>::infinity()), lowest);
    EXPECT_EQ(cut_toward_zero(std::numeric_limits<double>::quiet_NaN()), lowest);
}

} // namespace

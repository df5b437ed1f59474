#include "qlw/qlw_math.h"

#include "captured_trace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const fpt one_two_three{1, 2, 3};

void expect_zero_without_sign(double value) {
    EXPECT_EQ(value, 0.0);
    EXPECT_FALSE(std::signbit(value));
}

} // namespace

TEST(Points, a_vector_is_scaled_to_the_length_asked_for) {
    fpt vector{3, 0, -4};
    vector.make_unit(1.0);
    EXPECT_DOUBLE_EQ(vector.x, 0.6);
    EXPECT_EQ(vector.y, 0.0);
    EXPECT_DOUBLE_EQ(vector.z, -0.8);
    vector.make_unit(10.0);
    EXPECT_DOUBLE_EQ(vector.x, 6.0);
    EXPECT_DOUBLE_EQ(vector.z, -8.0);
}

TEST(Points, a_zero_vector_stays_zero_and_is_not_reported) {
    captured_trace trace;
    fpt vector;
    vector.make_unit(1.0);
    EXPECT_EQ(vector, (fpt{0, 0, 0}));
    EXPECT_THAT(trace.take(), IsEmpty());
}

TEST(Points, a_vector_without_a_finite_length_is_reported_and_left_alone) {
    captured_trace trace;
    fpt vector{1e200, 2, std::numeric_limits<double>::infinity()};
    vector.make_unit(1.0);
    EXPECT_EQ(vector, (fpt{1e200, 2, std::numeric_limits<double>::infinity()}));
    EXPECT_THAT(trace.take(), ElementsAre(traced_line{"qlw_math", "fpt::make_unit",
                                                      "REPORT: Try/Catch Error during punit: 1e+200,2,inf"}));
}

TEST(Points, the_cross_product_follows_the_right_hand_rule) {
    EXPECT_EQ(cross({1, 0, 0}, {0, 1, 0}), (fpt{0, 0, 1}));
    EXPECT_EQ(cross({1, 2, 3}, {4, 5, 6}), (fpt{-3, 6, -3})); // 2x6 - 3x5, 3x4 - 1x6, 1x5 - 2x4
    EXPECT_EQ(dot({1, 2, 3}, {4, 5, 6}), 32.0);
}

TEST(Points, a_value_exactly_at_the_limit_is_not_snapped) {
    EXPECT_EQ(snap_to_zero(1e-7, 1e-7), 1e-7);
    EXPECT_EQ(snap_to_zero(-1e-7, 1e-7), -1e-7);
    expect_zero_without_sign(snap_to_zero(-0.99e-7, 1e-7));
    expect_zero_without_sign(snap_to_zero(-0.0, 1e-7));
}

TEST(PointText, a_point_is_written_with_a_blank_behind_each_comma) {
    EXPECT_EQ(fpt_to_text({1, -2.5, 1.0 / 3.0}), "(1, -2.5, 0.333333333)");
}

TEST(PointText, a_component_below_1e_7_is_written_as_plain_zero) {
    EXPECT_EQ(fpt_to_text({1, 0.00000001, -0.00000001}), "(1, 0, 0)");
    EXPECT_EQ(fpt_to_text({1e-7, -1e-7, -0.0}), "(1e-07, -1e-07, 0)");
}

TEST(PointText, the_three_text_forms_of_a_point_are_the_same_point) {
    EXPECT_EQ(text_to_fpt("V(1,2,3)"), one_two_three);
    EXPECT_EQ(text_to_fpt("(1,2,3)"), one_two_three);
    EXPECT_EQ(text_to_fpt("1,2,3"), one_two_three);
    EXPECT_EQ(text_to_fpt("(1, 2, 3)"), one_two_three);
}

TEST(PointText, a_missing_or_unreadable_component_is_zero) {
    EXPECT_EQ(text_to_fpt("(1,2)"), (fpt{1, 2, 0}));
    EXPECT_EQ(text_to_fpt("(,x,3)"), (fpt{0, 0, 3}));
    EXPECT_EQ(text_to_fpt(""), (fpt{0, 0, 0}));
}

TEST(PointText, what_follows_the_third_component_is_ignored) {
    EXPECT_EQ(text_to_fpt("1,2,3,4"), one_two_three);
}

TEST(PointText, only_one_v_and_one_parenthesis_are_passed_over) {
    EXPECT_EQ(text_to_fpt("VV(1,2,3)"), (fpt{0, 2, 3}));
    EXPECT_EQ(text_to_fpt("((1,2,3)"), (fpt{0, 2, 3}));
    EXPECT_EQ(text_to_fpt("v(1,2,3)"), (fpt{0, 2, 3}));
}

// 1, 2 and 3 as doubles are 3FF0..., 4000... and 4008...; from the low byte on: six 00, F0 3F; seven 00, 40; six 00,
// 08 40.
TEST(PointText, a_binary_point_holds_three_doubles_from_the_low_byte_on) {
    EXPECT_EQ(text_to_fpt("B32AAAAAAAA8D8AAAAAAAAAQAAAAAAAAAhA"), one_two_three);
}

TEST(PointText, letters_outside_the_base64_alphabet_count_but_carry_nothing) {
    EXPECT_EQ(text_to_fpt("B35AAAA\nAAAA8D8AAAAA AAAAQAAAAAAAAAhA="), one_two_three);
}

TEST(PointText, the_count_of_a_binary_point_limits_what_is_read) {
    EXPECT_EQ(text_to_fpt("B11AAAAAAAA8D8AAAAAAAAAQAAAAAAAAAhA"), (fpt{1, 0, 0})); // 11 letters: 66 bits, 8 bytes
    EXPECT_EQ(text_to_fpt("B00AAAAAAAA8D8AAAAAAAAAQAAAAAAAAAhA"), (fpt{0, 0, 0}));
}

TEST(PointText, a_nul_ends_a_binary_point) {
    using namespace std::string_view_literals;
    EXPECT_EQ(text_to_fpt("B32AAAAAAAA8D8\0AAAAAAAAAQAAAAAAAAhA"sv), (fpt{1, 0, 0}));
}

TEST(PointText, every_cut_of_a_binary_point_gives_a_point) {
    const std::string_view text = "B32AAAAAAAA8D8AAAAAAAAAQAAAAAAAAAhA";
    for (std::size_t length = 0; length < 14; ++length)
        EXPECT_EQ(text_to_fpt(text.substr(0, length)).y, 0.0) << length;
    EXPECT_EQ(text_to_fpt(text.substr(0, 14)).x, 1.0);
    EXPECT_EQ(text_to_fpt("B-9AAAAAAAA8D8"), (fpt{0, 0, 0}));
}

TEST(PointEquality, all_three_components_must_agree) {
    EXPECT_TRUE(fpt_equal({1, 2, 3}, {1, 2, 3.00000009}, 1e-7));
    EXPECT_FALSE(fpt_equal({1, 2, 3}, {1, 2, 3.0000002}, 1e-7));
    EXPECT_FALSE(fpt_equal({1, 2, 3}, {1, 2.1, 3}, 1e-7));
    EXPECT_FALSE(fpt_equal({1, 2, 3}, {1.1, 2, 3}, 1e-7));
}

TEST(PointEquality, a_difference_of_exactly_the_tolerance_is_a_difference) {
    EXPECT_FALSE(fpt_equal({0, 0, 0}, {0.5, 0, 0}, 0.5));
    EXPECT_TRUE(fpt_equal({0, 0, 0}, {0.25, 0, 0}, 0.5));
}

TEST(PointEquality, large_coordinates_are_compared_as_a_ratio) {
    EXPECT_TRUE(fpt_equal({1000000, 0, 0}, {1000000.009, 0, 0}, 1e-7)); // 1000000 x 1e-7 x 0.1 = 0.01
    EXPECT_TRUE(fpt_equal({-1000000, 0, 0}, {-1000000.009, 0, 0}, 1e-7));
    EXPECT_FALSE(fpt_equal({1000000, 0, 0}, {1000000.011, 0, 0}, 1e-7));
}

TEST(LampIntensity, a_lamp_has_one_watt_at_least) {
    EXPECT_EQ(lumens_to_watts(17, 0), 1.0);
    EXPECT_EQ(lumens_to_watts(0, 0), 1.0);
    EXPECT_EQ(lumens_to_watts(-100, 5), 1.0);
    EXPECT_EQ(watts_to_lumens(0, 0), 17.0);
}

TEST(LampIntensity, a_watt_is_17_lumens) {
    EXPECT_DOUBLE_EQ(lumens_to_watts(1000, 0), 1000.0 / 17.0);
    EXPECT_EQ(watts_to_lumens(60, 0), 1020.0);
}

TEST(LampIntensity, a_step_rounds_to_its_multiples) {
    EXPECT_EQ(lumens_to_watts(1000, 5), 60.0);  // 58.82 / 5 = 11.76, 12 steps
    EXPECT_EQ(lumens_to_watts(975, 5), 55.0);   // 57.35 / 5 = 11.47, 11 steps
    EXPECT_EQ(watts_to_lumens(58, 50), 1000.0); // 986 / 50 = 19.72, 20 steps
    EXPECT_EQ(lumens_to_watts(34, 5), 1.0);     // 2 / 5 = 0.4, no step, and so the least
}

TEST(LampIntensity, half_a_step_is_rounded_downwards) {
    EXPECT_EQ(lumens_to_watts(17 * 12.5, 5), 10.0); // 2.5 + 0.49999 is below 3
    EXPECT_EQ(lumens_to_watts(1000, -5), 1000.0 / 17.0);
}

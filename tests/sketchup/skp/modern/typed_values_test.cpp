#include "sketchup/skp/modern/typed_values.h"

#include "sketchup/skp/modern/model_data.h"
#include "tests/sketchup/skp/modern/record_bytes.h"

#include <gtest/gtest.h>

using namespace record_bytes;
using sketchup::typed_value;
using sketchup::value_code;

namespace {

typed_value value_in(const bytes& payload) {
    return skp::modern::read_typed_value(skp::byte_cursor(payload));
}

// An array in an array, so many times.
bytes nested_arrays(int depth) {
    bytes inner;
    for (int i = 0; i < depth; ++i)
        inner = rec(14510, rec(14500, inner));
    return inner;
}

} // namespace

TEST(ModernTypedValues, an_empty_payload_is_nil) {
    EXPECT_EQ(value_in({}), typed_value{});
}

TEST(ModernTypedValues, each_type_has_the_code_after_its_tag) {
    EXPECT_EQ(value_in(rec(14501, u8(200))), (typed_value{value_code::byte, std::int64_t{200}}));
    EXPECT_EQ(value_in(rec(14502, raw(std::int16_t{-5}))), (typed_value{value_code::int16, std::int64_t{-5}}));
    EXPECT_EQ(value_in(rec(14503, i32(-70000))), (typed_value{value_code::int32, std::int64_t{-70000}}));
    EXPECT_EQ(value_in(rec(14504, raw(0.5f))), (typed_value{value_code::float32, 0.5}));
    EXPECT_EQ(value_in(rec(14505, doubles({2.25}))), (typed_value{value_code::float64, 2.25}));
    EXPECT_EQ(value_in(rec(14506, u8(1))), (typed_value{value_code::boolean, true}));
    EXPECT_EQ(value_in(rec(14507, {1, 2, 3, 4})), (typed_value{value_code::color, sketchup::rgba{1, 2, 3, 4}}));
    EXPECT_EQ(value_in(rec(14509, text("lamp"))), (typed_value{value_code::string, std::string("lamp")}));
    EXPECT_EQ(value_in(rec(14511, doubles({39.5}))), (typed_value{value_code::length, 39.5}));
    EXPECT_EQ(value_in(rec(14512, doubles({1}))), (typed_value{value_code::measure_13, 1.0}));
    EXPECT_EQ(value_in(rec(14515, doubles({4}))), (typed_value{value_code::measure_16, 4.0}));
    EXPECT_EQ(value_in(rec(14516, doubles({1, 2, 3}))), (typed_value{value_code::point, sketchup::vec3{1, 2, 3}}));
    EXPECT_EQ(value_in(rec(14517, doubles({1, 2, 3}))), (typed_value{value_code::vector, sketchup::vec3{1, 2, 3}}));
    EXPECT_EQ(value_in(rec(14518, doubles({0, 0, 1}))),
              (typed_value{value_code::unit_vector, sketchup::vec3{0, 0, 1}}));
}

TEST(ModernTypedValues, a_transformation_keeps_the_thirteen_numbers_of_the_file) {
    const typed_value v = value_in(rec(14519, doubles({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13})));
    EXPECT_EQ(v.code, value_code::transformation);
    EXPECT_EQ((std::get<std::array<double, 13>>(v.data)),
              (std::array<double, 13>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13}));
}

TEST(ModernTypedValues, a_time_may_have_four_bytes_or_eight) {
    EXPECT_EQ(value_in(rec(14508, raw(std::uint32_t{4000000000}))),
              (typed_value{value_code::time, std::int64_t{4000000000}}));
    EXPECT_EQ(value_in(rec(14508, raw(std::int64_t{5000000000}))),
              (typed_value{value_code::time, std::int64_t{5000000000}}));
}

TEST(ModernTypedValues, an_array_holds_values_of_any_type_and_arrays) {
    const typed_value v = value_in(
        rec(14510, rec(14500) + rec(14500, rec(14503, i32(1))) + rec(14500, rec(14510, rec(14500, rec(14509))))));
    const auto& elements = std::get<std::vector<typed_value>>(v.data);
    ASSERT_EQ(elements.size(), 3u);
    EXPECT_EQ(elements[0].code, value_code::nil);
    EXPECT_EQ(elements[1], (typed_value{value_code::int32, std::int64_t{1}}));
    const auto& inner = std::get<std::vector<typed_value>>(elements[2].data);
    ASSERT_EQ(inner.size(), 1u);
    EXPECT_EQ(inner[0], (typed_value{value_code::string, std::string()}));
}

TEST(ModernTypedValues, an_array_may_be_empty) {
    EXPECT_EQ(value_in(rec(14510)), (typed_value{value_code::array, std::vector<typed_value>{}}));
}

TEST(ModernTypedValues, an_unknown_type_is_nil) {
    EXPECT_EQ(value_in(rec(14520, u8(1))).code, value_code::nil);
    EXPECT_EQ(value_in(rec(60000, u8(1))).code, value_code::nil);
    EXPECT_EQ(value_in(rec(14755, u8(1))).code, value_code::nil); // 255 types on
}

TEST(ModernTypedValues, a_value_that_is_cut_short_is_an_error) {
    EXPECT_THROW(value_in(rec(14503, bytes(3, 0))), skp::format_error);
    EXPECT_THROW(value_in(rec(14519, bytes(13 * 8 - 1, 0))), skp::format_error);
}

TEST(ModernTypedValues, arrays_nest_down_to_a_limit) {
    EXPECT_NO_THROW(value_in(nested_arrays(skp::modern::deepest_containers)));
    EXPECT_THROW(value_in(nested_arrays(skp::modern::deepest_containers + 1)), skp::format_error);
}

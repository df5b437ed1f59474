#include "sketchup/skp/classic/typed_values.h"

#include "tests/sketchup/skp/classic/classic_bytes.h"

#include <gtest/gtest.h>

using classic::assembler;
using sketchup::typed_value;
using sketchup::value_code;

namespace {

typed_value read(const assembler& a) {
    skp::archive in(a.bytes, 0, true);
    const typed_value value = skp::read_typed_value(in);
    EXPECT_TRUE(in.at_end());
    return value;
}

} // namespace

TEST(TypedValues, nil_has_no_payload) {
    EXPECT_EQ(read(assembler().u8(0)), typed_value{});
}

TEST(TypedValues, whole_numbers_keep_their_sign_but_a_byte_has_none) {
    EXPECT_EQ(read(assembler().u8(2).u8(200)), (typed_value{value_code::byte, std::int64_t{200}}));
    EXPECT_EQ(read(assembler().u8(3).u16(0xFFFE)), (typed_value{value_code::int16, std::int64_t{-2}}));
    EXPECT_EQ(read(assembler().u8(4).u32(0xFFFFFFFD)), (typed_value{value_code::int32, std::int64_t{-3}}));
    EXPECT_EQ(read(assembler().u8(9).u32(0xFFFFFFFF)), (typed_value{value_code::time, std::int64_t{4294967295}}));
}

TEST(TypedValues, real_numbers_and_measures_are_doubles) {
    EXPECT_EQ(read(assembler().u8(5).f32(0.5f)), (typed_value{value_code::float32, 0.5}));
    EXPECT_EQ(read(assembler().u8(6).f64(0.1)), (typed_value{value_code::float64, 0.1}));
    EXPECT_EQ(read(assembler().u8(12).f64(39.37)), (typed_value{value_code::length, 39.37}));
    for (unsigned code = 13; code <= 16; ++code)
        EXPECT_EQ(read(assembler().u8(code).f64(2)), (typed_value{static_cast<value_code>(code), 2.0})) << code;
}

TEST(TypedValues, flags_colours_and_strings) {
    EXPECT_EQ(read(assembler().u8(7).u8(1)), (typed_value{value_code::boolean, true}));
    EXPECT_EQ(read(assembler().u8(7).u8(0)), (typed_value{value_code::boolean, false}));
    EXPECT_EQ(read(assembler().u8(8).u8(1).u8(2).u8(3).u8(4)),
              (typed_value{value_code::color, sketchup::rgba{1, 2, 3, 4}}));
    EXPECT_EQ(read(assembler().u8(10).text("lamp")), (typed_value{value_code::string, std::string("lamp")}));
}

TEST(TypedValues, points_and_vectors) {
    EXPECT_EQ(read(assembler().u8(17).v3(1, 2, 3)), (typed_value{value_code::point, sketchup::vec3{1, 2, 3}}));
    EXPECT_EQ(read(assembler().u8(18).v3(1, 2, 3)), (typed_value{value_code::vector, sketchup::vec3{1, 2, 3}}));
    EXPECT_EQ(read(assembler().u8(19).v3(0, 0, 1)), (typed_value{value_code::unit_vector, sketchup::vec3{0, 0, 1}}));
}

TEST(TypedValues, a_transformation_is_thirteen_numbers) {
    assembler a;
    a.u8(20);
    std::array<double, 13> numbers{};
    for (std::size_t i = 0; i < 13; ++i)
        a.f64(numbers[i] = static_cast<double>(i) + 0.5);
    EXPECT_EQ(read(a), (typed_value{value_code::transformation, numbers}));
}

TEST(TypedValues, arrays_hold_values_of_any_type_and_other_arrays) {
    const typed_value inner{value_code::array, std::vector<typed_value>{{value_code::boolean, true}}};
    const typed_value outer{value_code::array,
                            std::vector<typed_value>{{value_code::int32, std::int64_t{7}}, inner, {}}};
    EXPECT_EQ(read(assembler().u8(11).u32(3).u8(4).u32(7).u8(11).u32(1).u8(7).u8(1).u8(0)), outer);
    EXPECT_EQ(read(assembler().u8(11).u32(0)), (typed_value{value_code::array, std::vector<typed_value>{}}));
}

TEST(TypedValues, unknown_codes_are_refused) {
    EXPECT_THROW(read(assembler().u8(1).zeros(8)), skp::format_error);
    EXPECT_THROW(read(assembler().u8(21).zeros(8)), skp::format_error);
    EXPECT_THROW(read(assembler().u8(255)), skp::format_error);
}

TEST(TypedValues, an_array_with_more_elements_than_bytes_is_refused) {
    EXPECT_THROW(read(assembler().u8(11).u32(5).zeros(4)), skp::format_error);
    EXPECT_THROW(read(assembler().u8(11).u32(0xFFFFFFFF)), skp::format_error);
}

TEST(TypedValues, arrays_nest_as_deep_as_the_limit_and_no_deeper) {
    const auto nested = [](int depth) {
        assembler a;
        for (int i = 0; i < depth; ++i)
            a.u8(11).u32(1);
        return a.u8(0);
    };
    EXPECT_EQ(read(nested(skp::deepest_array_nesting)).code, value_code::array);
    EXPECT_THROW(read(nested(skp::deepest_array_nesting + 1)), skp::format_error);
}

// 65536 elements are free; beyond them a file may have one for every four bytes.
TEST(TypedValues, an_array_of_a_hundred_thousand_nils_in_as_many_bytes_is_refused_while_numbers_are_read) {
    EXPECT_THROW(read(assembler().u8(11).u32(100000).zeros(100000)), skp::format_error);
    assembler numbers;
    numbers.u8(11).u32(100000);
    for (unsigned i = 0; i < 100000; ++i)
        numbers.u8(4).u32(i);
    EXPECT_EQ(std::get<std::vector<typed_value>>(read(numbers).data).size(), 100000U);
}

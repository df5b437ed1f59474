#include "tests/sketchup/api/test_model.h"

#include "sketchup/api/typed_values.h"

#include <functional>
#include <gtest/gtest.h>
#include <map>

using sketchup::typed_value;
using sketchup::value_code;
using sketchup::vec3;

namespace {

typed_value integer(value_code code, std::int64_t value) {
    return {code, value};
}
typed_value real(value_code code, double value) {
    return {code, value};
}

// A value that holds what a file stored.
struct stored_value : test_value {
    explicit stored_value(const typed_value& stored) {
        sketchup::api::set_value(*sketchup::api::object_of(ref), stored);
    }
};

template<class Out>
std::function<SUResult(SUTypedValueRef)> read(SUResult (*get)(SUTypedValueRef, Out*)) {
    return [get](SUTypedValueRef value) {
        Out out{};
        return get(value, &out);
    };
}

SUResult read_string(SUTypedValueRef value) {
    test_string out;
    return SUTypedValueGetString(value, &out.ref);
}

SUResult read_vector(SUTypedValueRef value) {
    double out[3] = {};
    return SUTypedValueGetVector3d(value, out);
}

const std::map<SUTypedValueType, std::function<SUResult(SUTypedValueRef)>> getters = {
    {SUTypedValueType_Byte, read(SUTypedValueGetByte)},
    {SUTypedValueType_Short, read(SUTypedValueGetInt16)},
    {SUTypedValueType_Int32, read(SUTypedValueGetInt32)},
    {SUTypedValueType_Float, read(SUTypedValueGetFloat)},
    {SUTypedValueType_Double, read(SUTypedValueGetDouble)},
    {SUTypedValueType_Bool, read(SUTypedValueGetBool)},
    {SUTypedValueType_Color, read(SUTypedValueGetColor)},
    {SUTypedValueType_Time, read(SUTypedValueGetTime)},
    {SUTypedValueType_String, read_string},
    {SUTypedValueType_Vector3D, read_vector},
    {SUTypedValueType_Array, read(SUTypedValueGetNumArrayItems)},
};

} // namespace

TEST(TypedValue, answers_the_getter_of_its_own_type_and_no_other) {
    const std::vector<std::pair<typed_value, SUTypedValueType>> values = {
        {typed_value{}, SUTypedValueType_Empty},
        {integer(value_code::byte, 65), SUTypedValueType_Byte},
        {integer(value_code::int16, -3), SUTypedValueType_Short},
        {integer(value_code::int32, 7), SUTypedValueType_Int32},
        {real(value_code::float32, 0.5), SUTypedValueType_Float},
        {real(value_code::float64, 0.5), SUTypedValueType_Double},
        {real(value_code::length, 12), SUTypedValueType_Double},
        {real(value_code::measure_13, 1), SUTypedValueType_Double},
        {real(value_code::measure_14, 1), SUTypedValueType_Double},
        {real(value_code::measure_15, 1), SUTypedValueType_Double},
        {real(value_code::measure_16, 1), SUTypedValueType_Double},
        {{value_code::boolean, true}, SUTypedValueType_Bool},
        {{value_code::color, sketchup::rgba{1, 2, 3, 4}}, SUTypedValueType_Color},
        {integer(value_code::time, 1), SUTypedValueType_Time},
        {{value_code::string, std::string("a")}, SUTypedValueType_String},
        {{value_code::point, vec3{1, 2, 3}}, SUTypedValueType_Vector3D},
        {{value_code::vector, vec3{1, 2, 3}}, SUTypedValueType_Vector3D},
        {{value_code::unit_vector, vec3{0, 0, 1}}, SUTypedValueType_Vector3D},
        {{value_code::array, std::vector<typed_value>{}}, SUTypedValueType_Array},
        {{value_code::transformation, std::array<double, 13>{}}, SUTypedValueType_Array},
    };
    for (const auto& [stored, type] : values) {
        const stored_value value(stored);
        EXPECT_EQ(value.type(), type) << "code " << static_cast<int>(stored.code);
        for (const auto& [getters_type, get] : getters)
            EXPECT_EQ(get(value.ref), getters_type == type ? SU_ERROR_NONE : SU_ERROR_NO_DATA)
                << "code " << static_cast<int>(stored.code) << " read as " << getters_type;
    }
}

TEST(TypedValue, gives_what_was_stored) {
    char byte = 0;
    EXPECT_EQ(SUTypedValueGetByte(stored_value(integer(value_code::byte, 65)).ref, &byte), SU_ERROR_NONE);
    EXPECT_EQ(byte, 'A');
    int16_t number16 = 0;
    EXPECT_EQ(SUTypedValueGetInt16(stored_value(integer(value_code::int16, -3)).ref, &number16), SU_ERROR_NONE);
    EXPECT_EQ(number16, -3);
    int32_t number32 = 0;
    EXPECT_EQ(SUTypedValueGetInt32(stored_value(integer(value_code::int32, -70000)).ref, &number32), SU_ERROR_NONE);
    EXPECT_EQ(number32, -70000);
    float single = 0;
    EXPECT_EQ(SUTypedValueGetFloat(stored_value(real(value_code::float32, 0.5)).ref, &single), SU_ERROR_NONE);
    EXPECT_EQ(single, 0.5f);
    double inches = 0;
    EXPECT_EQ(SUTypedValueGetDouble(stored_value(real(value_code::length, 39.37)).ref, &inches), SU_ERROR_NONE);
    EXPECT_EQ(inches, 39.37);
    bool truth = false;
    EXPECT_EQ(SUTypedValueGetBool(stored_value({value_code::boolean, true}).ref, &truth), SU_ERROR_NONE);
    EXPECT_TRUE(truth);
    SUColor color{};
    const stored_value painted({value_code::color, sketchup::rgba{1, 2, 3, 4}});
    EXPECT_EQ(SUTypedValueGetColor(painted.ref, &color), SU_ERROR_NONE);
    EXPECT_EQ(std::vector<int>({color.red, color.green, color.blue, color.alpha}), std::vector<int>({1, 2, 3, 4}));
    int64_t seconds = 0;
    EXPECT_EQ(SUTypedValueGetTime(stored_value(integer(value_code::time, 5000000000)).ref, &seconds), SU_ERROR_NONE);
    EXPECT_EQ(seconds, 5000000000);
    double vector[3] = {};
    EXPECT_EQ(SUTypedValueGetVector3d(stored_value({value_code::point, vec3{1, 2, 3}}).ref, vector), SU_ERROR_NONE);
    EXPECT_EQ(vector[0] + 10 * vector[1] + 100 * vector[2], 321);
    EXPECT_EQ(text_from(SUTypedValueGetString, stored_value({value_code::string, std::string("Stuhl")}).ref), "Stuhl");
}

TEST(TypedValue, leaves_the_output_of_a_failed_getter_alone) {
    const stored_value value(real(value_code::float64, 0.5));
    int32_t number = 7;
    double vector[3] = {7, 7, 7};
    EXPECT_EQ(SUTypedValueGetInt32(value.ref, &number), SU_ERROR_NO_DATA);
    EXPECT_EQ(SUTypedValueGetVector3d(value.ref, vector), SU_ERROR_NO_DATA);
    EXPECT_EQ(number, 7);
    EXPECT_EQ(vector[2], 7);
}

TEST(TypedValue, tells_null_outputs_from_invalid_ones) {
    const stored_value value({value_code::string, std::string("a")});
    SUStringRef not_created = SU_INVALID;
    EXPECT_EQ(SUTypedValueGetString(value.ref, nullptr), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_EQ(SUTypedValueGetString(value.ref, &not_created), SU_ERROR_INVALID_OUTPUT);
    EXPECT_EQ(SUTypedValueGetDouble(value.ref, nullptr), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_EQ(SUTypedValueGetVector3d(value.ref, nullptr), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_EQ(SUTypedValueGetType(SU_INVALID, nullptr), SU_ERROR_INVALID_INPUT);
}

TEST(TypedValue, of_an_array_gives_items_that_belong_to_it) {
    const typed_value inner = {value_code::array, std::vector<typed_value>{integer(value_code::int32, 5)}};
    const stored_value array({value_code::array, std::vector<typed_value>{real(value_code::float64, 1.5), inner}});
    size_t count = 0;
    EXPECT_EQ(SUTypedValueGetNumArrayItems(array.ref, &count), SU_ERROR_NONE);
    EXPECT_EQ(count, 2u);
    SUTypedValueRef items[2] = {SU_INVALID, SU_INVALID}, again[2] = {SU_INVALID, SU_INVALID}, nested = SU_INVALID;
    EXPECT_EQ(SUTypedValueGetArrayItems(array.ref, 2, items, &count), SU_ERROR_NONE);
    EXPECT_EQ(SUTypedValueGetArrayItems(array.ref, 2, again, &count), SU_ERROR_NONE);
    EXPECT_TRUE(same(items[1], again[1]));
    double number = 0;
    EXPECT_EQ(SUTypedValueGetDouble(items[0], &number), SU_ERROR_NONE);
    EXPECT_EQ(number, 1.5);
    EXPECT_EQ(SUTypedValueGetArrayItems(items[1], 1, &nested, &count), SU_ERROR_NONE);
    int32_t five = 0;
    EXPECT_EQ(SUTypedValueGetInt32(nested, &five), SU_ERROR_NONE);
    EXPECT_EQ(five, 5);
    EXPECT_EQ(SUTypedValueRelease(&items[0]), SU_ERROR_INVALID_INPUT);
    sketchup::api::set_value(*sketchup::api::object_of(array.ref), {});
    EXPECT_EQ(SUTypedValueGetInt32(nested, &five), SU_ERROR_INVALID_INPUT) << "items go when the array is filled anew";
}

TEST(TypedValue, of_a_transformation_gives_its_sixteen_numbers) {
    const std::array<double, 13> stored = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 0.5};
    const stored_value value({value_code::transformation, stored});
    SUTypedValueRef items[16] = {};
    size_t count = 0;
    EXPECT_EQ(SUTypedValueGetArrayItems(value.ref, 16, items, &count), SU_ERROR_NONE);
    ASSERT_EQ(count, 16u);
    std::vector<double> numbers;
    for (const SUTypedValueRef item : items) {
        double number = 0;
        EXPECT_EQ(SUTypedValueGetDouble(item, &number), SU_ERROR_NONE);
        numbers.push_back(number);
    }
    EXPECT_EQ(numbers, std::vector<double>({1, 4, 7, 0, 2, 5, 8, 0, 3, 6, 9, 0, 10, 11, 12, 0.5}));
}

TEST(TypedValue, is_created_once_and_released_once) {
    SUTypedValueRef value = SU_INVALID;
    EXPECT_EQ(SUTypedValueCreate(nullptr), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_EQ(SUTypedValueCreate(&value), SU_ERROR_NONE);
    EXPECT_EQ(SUTypedValueCreate(&value), SU_ERROR_OVERWRITE_VALID);
    EXPECT_EQ(SUTypedValueRelease(&value), SU_ERROR_NONE);
    EXPECT_FALSE(SUIsValid(value));
    EXPECT_EQ(SUTypedValueRelease(&value), SU_ERROR_INVALID_INPUT);
    EXPECT_EQ(SUTypedValueRelease(nullptr), SU_ERROR_NULL_POINTER_INPUT);
}

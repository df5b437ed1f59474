#include "tessaline/parameters/attributes.h"

#include "tests/tessaline/reader_fixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using sketchup::rgba;
using sketchup::typed_value;
using sketchup::value_code;
using testing::ElementsAre;
using testing::IsEmpty;

class Attributes : public reader_test {
protected:
    // The list after reading the entity behind a face, each row as "dictionary/key/value".
    static std::vector<std::string> rows_of(SUFaceRef face) {
        read_attributes(SUFaceToEntity(face));
        std::vector<std::string> rows;
        for (const cl_tsl_attribute& row : attribute_list)
            rows.push_back(row.dictionary + "/" + row.key + "/" + row.value);
        return rows;
    }

    // The row of one value in a model of its own.
    std::string text_of(typed_value value) {
        builder.attribute(builder.root().square(1), "d", "k", std::move(value));
        open();
        read_attributes(SUFaceToEntity(faces().front()));
        return attribute_list.at(0).value;
    }

    // Sets the setting `key` from one value of the model's dictionary.
    void set_from(const std::string& key, typed_value value) {
        builder.attribute(builder.root().square(1), "d", key, std::move(value));
        open();
        SUAttributeDictionaryRef dictionary = SU_INVALID;
        std::size_t count = 0;
        SUEntityGetAttributeDictionaries(SUFaceToEntity(faces().front()), 1, &dictionary, &count);
        SUTypedValueRef typed = SU_INVALID;
        SUTypedValueCreate(&typed);
        SUAttributeDictionaryGetValue(dictionary, key.c_str(), &typed);
        set_global_from_value(key, typed);
        SUTypedValueRelease(&typed);
    }
};

} // namespace

TEST_F(Attributes, rows_keep_the_order_of_the_model) {
    const auto face = builder.root().square(1);
    builder.attribute(face, "qlw_lamp", "sorndll_lamp_type", sketchup::text("spot"));
    builder.attribute(face, "qlw_lamp", "ivl_lamp_channel", sketchup::whole_number(-3));
    builder.attribute(face, "other", "a", sketchup::truth(true));
    open();
    EXPECT_THAT(rows_of(faces().front()),
                ElementsAre("qlw_lamp/sorndll_lamp_type/spot", "qlw_lamp/ivl_lamp_channel/-3", "other/a/1"));
}

TEST_F(Attributes, an_entity_without_dictionaries_leaves_the_list_empty) {
    builder.attribute(builder.root().square(1), "d", "k", sketchup::text("v"));
    builder.root().square(2);
    open();
    EXPECT_THAT(rows_of(faces()[0]), ElementsAre("d/k/v"));
    EXPECT_THAT(rows_of(faces()[1]), IsEmpty());
}

TEST_F(Attributes, an_entity_that_cannot_be_asked_leaves_the_list_empty) {
    attribute_list.push_back({"d", "k", "v"});
    read_attributes(SU_INVALID);
    EXPECT_THAT(attribute_list, IsEmpty());
}

TEST_F(Attributes, a_double_has_six_decimals) {
    EXPECT_EQ(text_of(sketchup::real_number(0.5)), "0.500000");
}

TEST_F(Attributes, a_float_has_six_decimals) {
    EXPECT_EQ(text_of({value_code::float32, -2.25}), "-2.250000");
}

TEST_F(Attributes, a_true_boolean_reads_as_one) {
    const std::string text = text_of(sketchup::truth(true));
    EXPECT_EQ(text, "1");
    EXPECT_TRUE(text_is_true(text));
}

TEST_F(Attributes, a_false_boolean_reads_as_zero) {
    EXPECT_EQ(text_of(sketchup::truth(false)), "0");
}

TEST_F(Attributes, a_colour_has_a_blank_behind_each_comma) {
    EXPECT_EQ(text_of({value_code::color, rgba{255, 128, 0, 64}}), "(255, 128, 0, 64)");
}

TEST_F(Attributes, a_byte_is_a_character) {
    EXPECT_EQ(text_of({value_code::byte, std::int64_t{'Q'}}), "Q");
}

TEST_F(Attributes, integers_are_decimals) {
    EXPECT_EQ(text_of({value_code::int16, std::int64_t{-32768}}), "-32768");
}

TEST_F(Attributes, an_integer_of_more_than_16_bits_is_a_decimal) {
    EXPECT_EQ(text_of(sketchup::whole_number(100000)), "100000");
}

TEST_F(Attributes, the_lowest_integer_of_32_bits_is_a_decimal) {
    EXPECT_EQ(text_of(sketchup::whole_number(-2147483647 - 1)), "-2147483648");
}

TEST_F(Attributes, a_point_has_no_text) {
    EXPECT_EQ(text_of({value_code::point, sketchup::vec3{1, 2, 3}}), "");
}

TEST_F(Attributes, a_vector_has_no_text) {
    EXPECT_EQ(text_of({value_code::vector, sketchup::vec3{1, 2, 3}}), "");
}

TEST_F(Attributes, a_string_is_itself) {
    EXPECT_EQ(text_of(sketchup::text("Bäume; \"x\"")), "Bäume; \"x\"");
}

TEST_F(Attributes, a_time_has_no_text) {
    EXPECT_EQ(text_of({value_code::time, std::int64_t{1700000000}}), "");
}

TEST_F(Attributes, an_array_has_no_text) {
    EXPECT_EQ(text_of({value_code::array, std::vector<typed_value>{sketchup::text("a")}}), "");
}

TEST(TextIsTrue, only_true_and_one_say_yes) {
    EXPECT_TRUE(text_is_true("true"));
    EXPECT_TRUE(text_is_true("1"));
    for (const char* const text : {"", "TRUE", "True", "yes", "2", "1 ", "0"})
        EXPECT_FALSE(text_is_true(text)) << text;
}

TEST_F(Attributes, the_text_two_makes_a_boolean_setting_true) {
    set_from("bvl_something", sketchup::text("2"));
    EXPECT_TRUE(get_global_bool("bvl_something"));
}

TEST_F(Attributes, the_text_true_makes_a_boolean_setting_false) {
    set_global_bool("bvl_something", true);
    set_from("bvl_something", sketchup::text("true"));
    EXPECT_FALSE(get_global_bool("bvl_something"));
}

TEST_F(Attributes, an_integer_setting_gets_the_number_at_the_start_of_the_text) {
    set_from("ivl_something", sketchup::text("42 and more"));
    EXPECT_EQ(get_global_int("ivl_something"), 42);
}

TEST_F(Attributes, a_double_setting_gets_the_six_decimals_of_the_text) {
    set_from("rvl_something", sketchup::real_number(1.23456789));
    EXPECT_EQ(get_global_double("rvl_something"), 1.234568);
}

TEST_F(Attributes, a_string_setting_gets_the_text_of_any_value) {
    set_from("svl_something", sketchup::whole_number(7));
    EXPECT_EQ(get_global_string("svl_something"), "7");
}

TEST_F(Attributes, a_time_sets_an_integer_to_zero) {
    set_global_int("ivl_something", 5);
    set_from("ivl_something", {value_code::time, std::int64_t{1700000000}});
    EXPECT_EQ(get_global_int("ivl_something"), 0);
}

TEST_F(Attributes, a_key_in_upper_case_sets_nothing) {
    set_from("Ivl_something", sketchup::whole_number(7));
    EXPECT_EQ(global_variables.lookup("Ivl_something"), nullptr);
}

TEST_F(Attributes, points_and_colours_cannot_be_set) {
    set_from("pvl_something", sketchup::text("(1,2,3)"));
    EXPECT_EQ(global_variables.lookup("pvl_something"), nullptr);
}

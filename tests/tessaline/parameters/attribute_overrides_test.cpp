// Which attributes of an object change the parameters of its level, and which an outer object has settled already.

#include "tests/support/trace_capture.h"
#include "tests/tessaline/reader_fixture.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace {

constexpr const char* lamp = "qlw_lamp";
constexpr const char* properties = "Vellane_object_properties";
constexpr const char* overrides = "qlw_overrides";
constexpr const char* placement_settings = "qlw_placement_settings";

struct row {
    const char* key;
    const char* value;
};

class AttributeOverrides : public reader_test {
protected:
    // Stores the rows of one object, all of one dictionary, in the level that is current.
    static bool store(const char* dictionary, std::initializer_list<row> rows) {
        attribute_list.clear();
        for (const row& one : rows)
            attribute_list.push_back({dictionary, one.key, one.value});
        return current_oparms->store_attributes_in_oparms("Group");
    }
    // An object inside the one before.
    static void go_inside() { current_oparms = oparms_array.push(); }

    static cl_slp_light& light() { return current_oparms->light; }
};

// A field that holds a real number, by the dictionary and key that fill it.
struct real_key {
    const char* dictionary;
    const char* key;
    double cl_slp_light::*field;
};
const std::vector<real_key> real_keys = {
    {lamp, "rorndll_beam_length", &cl_slp_light::beam_length},
    {lamp, "rorndll_lamp_beam_angle", &cl_slp_light::beam_angle},
    {lamp, "rorndll_lamp_field_angle", &cl_slp_light::field_angle},
    {lamp, "rorndll_lamp_size", &cl_slp_light::size},
    {lamp, "rorndll_lamp_width", &cl_slp_light::width},
    {lamp, "rorndll_lamp_length", &cl_slp_light::length},
    {properties, "beam_angle", &cl_slp_light::beam_angle},
    {properties, "field_angle", &cl_slp_light::field_angle},
    {overrides, "beam_angle_override", &cl_slp_light::beam_angle},
    {overrides, "field_angle_override", &cl_slp_light::field_angle},
};

struct integer_key {
    const char* dictionary;
    const char* key;
    int cl_slp_light::*field;
};
const std::vector<integer_key> integer_keys = {
    {lamp, "ivl_lamp_channel", &cl_slp_light::channel},
    {lamp, "ies_pattern", &cl_slp_light::ies_pattern},
    {properties, "ies_pattern", &cl_slp_light::ies_pattern},
    {properties, "lamp_channel", &cl_slp_light::channel},
    {properties, "light_direction", &cl_slp_light::light_direction},
    {properties, "light_orientation", &cl_slp_light::light_orientation},
    {overrides, "light_channel_override_value", &cl_slp_light::channel},
    {overrides, "ies_pattern_override", &cl_slp_light::ies_pattern},
    {placement_settings, "light_channel_override_value", &cl_slp_light::channel},
};

struct text_key {
    const char* dictionary;
    const char* key;
    shared_text cl_slp_light::*field;
};
const std::vector<text_key> text_keys = {
    {lamp, "sorndll_lamp_type", &cl_slp_light::lamp_type},
    {lamp, "sorndll_lamp_unit", &cl_slp_light::lamp_unit},
    {lamp, "spotlight_shape", &cl_slp_light::spotlight_shape},
    {lamp, "ies_file_name", &cl_slp_light::ies_file_name},
    {properties, "ies_file_name", &cl_slp_light::ies_file_name},
    {properties, "lamp_unit", &cl_slp_light::lamp_unit},
    {properties, "spotlight_shape", &cl_slp_light::spotlight_shape},
    {overrides, "light_category", &cl_slp_light::light_category},
    {overrides, "spotlight_shape_override", &cl_slp_light::spotlight_shape},
    {overrides, "ies_file_name_override", &cl_slp_light::ies_file_name},
};

struct flag_key {
    const char* key;
    bool cl_slp_oparms::*field;
};
const std::vector<flag_key> flag_keys = {
    {"alpha_channel", &cl_slp_oparms::alpha_channel},
    {"caustics", &cl_slp_oparms::caustics},
    {"daylight", &cl_slp_oparms::daylight},
    {"gather", &cl_slp_oparms::gather},
    {"invisible", &cl_slp_oparms::invisible},
    {"monte_carlo", &cl_slp_oparms::monte_carlo},
    {"thick", &cl_slp_oparms::thick},
};

} // namespace

TEST_F(AttributeOverrides, an_object_without_attributes_says_nothing_of_lamps) {
    EXPECT_FALSE(store(lamp, {}));
}

TEST_F(AttributeOverrides, four_dictionaries_speak_of_lamps) {
    for (const char* dictionary : {lamp, properties, overrides, placement_settings})
        EXPECT_TRUE(store(dictionary, {{"no such key", "1"}})) << dictionary;
    for (const char* dictionary : {"GSU_ContributorsInfo", "TempShadowInfo", "QLW_lamp", "qlw_lamp ", "other"})
        EXPECT_FALSE(store(dictionary, {{"ivl_lamp_channel", "1"}})) << dictionary;
    EXPECT_EQ(light().channel, -1);
}

TEST_F(AttributeOverrides, keys_are_compared_with_regard_to_case) {
    store(lamp, {{"IVL_lamp_channel", "3"}, {"ivl_lamp_channel ", "4"}});
    EXPECT_EQ(light().channel, -1);
}

TEST_F(AttributeOverrides, keys_of_another_dictionary_mean_nothing) {
    store(lamp, {{"lamp_channel", "3"}, {"light_channel_override_value", "3"}});
    store(properties, {{"ivl_lamp_channel", "3"}});
    store(placement_settings, {{"reflection", "0.5"}, {"spotlight_shape_override", "round"}});
    EXPECT_EQ(light().channel, -1);
    EXPECT_EQ(current_oparms->reflection, 0);
    EXPECT_EQ(light().spotlight_shape, "");
}

TEST_F(AttributeOverrides, each_real_number_is_taken_once_and_then_stays) {
    for (const real_key& one : real_keys) {
        go_inside();
        light() = {};
        store(one.dictionary, {{one.key, "12.5 degrees"}});
        EXPECT_EQ(light().*one.field, 12.5) << one.key;
        go_inside();
        store(one.dictionary, {{one.key, "7"}});
        EXPECT_EQ(light().*one.field, 12.5) << one.key;
    }
}

TEST_F(AttributeOverrides, each_integer_is_taken_once_and_then_stays) {
    for (const integer_key& one : integer_keys) {
        go_inside();
        light() = {};
        store(one.dictionary, {{one.key, "3"}});
        EXPECT_EQ(light().*one.field, 3) << one.key;
        go_inside();
        store(one.dictionary, {{one.key, "5"}});
        EXPECT_EQ(light().*one.field, 3) << one.key;
    }
}

TEST_F(AttributeOverrides, each_text_is_taken_once_and_then_stays) {
    for (const text_key& one : text_keys) {
        go_inside();
        light() = {};
        store(one.dictionary, {{one.key, "first"}});
        EXPECT_EQ(light().*one.field, "first") << one.key;
        go_inside();
        store(one.dictionary, {{one.key, "second"}});
        EXPECT_EQ(light().*one.field, "first") << one.key;
    }
}

TEST_F(AttributeOverrides, each_flag_of_an_object_stays_once_it_is_set) {
    for (const flag_key& one : flag_keys) {
        store(properties, {{one.key, "false"}});
        EXPECT_FALSE(current_oparms->*one.field) << one.key;
        store(properties, {{one.key, "1"}});
        EXPECT_TRUE(current_oparms->*one.field) << one.key;
        store(properties, {{one.key, "false"}});
        EXPECT_TRUE(current_oparms->*one.field) << one.key;
    }
}

TEST_F(AttributeOverrides, only_true_and_1_say_yes) {
    for (const char* value : {"yes", "TRUE", "True", "2", "", " true"}) {
        store(properties, {{"alpha_channel", value}});
        EXPECT_FALSE(current_oparms->alpha_channel) << value;
    }
    store(properties, {{"alpha_channel", "true"}});
    EXPECT_TRUE(current_oparms->alpha_channel);
}

TEST_F(AttributeOverrides, a_number_that_cannot_be_read_is_a_lamp_of_no_strength) {
    store(lamp, {{"rorndll_lamp_size", "large"}, {"ivl_lamp_channel", "none"}});
    EXPECT_EQ(light().size, 0);
    EXPECT_EQ(light().channel, 0);
}

TEST_F(AttributeOverrides, a_group_on_channel_3_keeps_its_faces_off_channel_5) {
    store(properties, {{"lamp_channel", "3"}});
    go_inside();
    store(properties, {{"lamp_channel", "5"}});
    EXPECT_EQ(light().channel, 3);
}

TEST_F(AttributeOverrides, an_inner_object_fills_in_what_the_outer_left_open) {
    store(lamp, {{"sorndll_lamp_type", "spot"}});
    go_inside();
    store(lamp, {{"sorndll_lamp_type", "bulb"}, {"rorndll_lamp_beam_angle", "40"}});
    EXPECT_EQ(light().lamp_type, "spot");
    EXPECT_EQ(light().beam_angle, 40);
    current_oparms = oparms_array.pop();
    EXPECT_EQ(light().beam_angle, -1);
}

TEST_F(AttributeOverrides, the_type_of_a_light_is_open_while_it_is_0) {
    store(properties, {{"light_type", "0"}, {"light_type", "3"}, {"light_type", "1"}});
    EXPECT_EQ(light().light_type, 3);
}

TEST_F(AttributeOverrides, the_name_of_a_light_type_has_no_effect) {
    EXPECT_TRUE(store(properties, {{"light_type_string", "spot"}}));
    EXPECT_EQ(light().lamp_type, "");
    EXPECT_EQ(light().light_type, 0);
}

TEST_F(AttributeOverrides, a_ground_cover_is_taken_once) {
    store(properties, {{"sgroundcover_file", "c:\\grass.orn"}, {"igroundcover_orientation", "2"}});
    store(properties, {{"sgroundcover_file", "other"}, {"igroundcover_orientation", "1"}});
    EXPECT_EQ(current_oparms->groundcover_file, "c:\\grass.orn");
    EXPECT_EQ(current_oparms->groundcover_orientation, 2);
}

TEST_F(AttributeOverrides, a_reflection_always_counts) {
    store(overrides, {{"reflection", "0.5"}});
    go_inside();
    store(overrides, {{"reflection", "0.25"}});
    EXPECT_EQ(current_oparms->reflection, 0.25);
}

TEST_F(AttributeOverrides, treating_as_a_single_light_stays_once_it_is_said) {
    store(overrides, {{"treat_as_single_light", "0"}});
    EXPECT_FALSE(light().treat_as_single_light);
    store(overrides, {{"treat_as_single_light", "2"}, {"treat_as_single_light", "0"}});
    EXPECT_TRUE(light().treat_as_single_light);
}

// ---- intensities

TEST_F(AttributeOverrides, sixty_watts_are_1025_lumens) {
    store(lamp, {{"rorndll_lamp_intensity", "60"}});
    EXPECT_EQ(light().intensity, 60);
    EXPECT_EQ(light().intensity_lumens, 1025); // 60 x 17 = 1020, 40.8 steps of 25, rounded to 41
    EXPECT_FALSE(light().use_object_color);
}

TEST_F(AttributeOverrides, a_hundred_lumens_are_5_watts_and_few_lumens_1_watt) {
    store(lamp, {{"rorndll_lamp_intensity_lumens", "100"}});
    EXPECT_EQ(light().intensity, 5); // 100 / 17 = 5.88, 1.18 steps of 5, rounded to 1
    EXPECT_EQ(light().intensity_lumens, 100);
    go_inside();
    light() = {};
    store(lamp, {{"rorndll_lamp_intensity_lumens", "30"}});
    EXPECT_EQ(light().intensity, 1); // 30 / 17 = 1.76, 0.35 steps of 5, rounded to 0, and 1 is the least
    EXPECT_EQ(light().intensity_lumens, 30);
}

TEST_F(AttributeOverrides, whichever_intensity_comes_first_settles_both) {
    store(lamp, {{"rorndll_lamp_intensity", "60"}, {"rorndll_lamp_intensity_lumens", "100"}});
    EXPECT_EQ(light().intensity, 60);
    EXPECT_EQ(light().intensity_lumens, 1025);
}

TEST_F(AttributeOverrides, an_intensity_of_the_object_brings_the_colour_of_the_object) {
    store(properties, {{"lamp_intensity", "60"}});
    EXPECT_EQ(light().intensity, 60);
    EXPECT_EQ(light().intensity_lumens, 1025);
    EXPECT_TRUE(light().use_object_color);
    go_inside();
    light() = {};
    store(properties, {{"lamp_intensity_lumens", "100"}});
    EXPECT_EQ(light().intensity, 5);
    EXPECT_EQ(light().intensity_lumens, 100);
    EXPECT_TRUE(light().use_object_color);
}

TEST_F(AttributeOverrides, an_intensity_that_is_set_keeps_its_colour_too) {
    store(lamp, {{"rorndll_lamp_intensity", "60"}});
    store(properties, {{"lamp_intensity", "40"}, {"lamp_intensity_lumens", "100"}});
    EXPECT_EQ(light().intensity, 60);
    EXPECT_FALSE(light().use_object_color);
}

TEST_F(AttributeOverrides, a_lamp_of_no_watts_is_open_to_lumens_above_0) {
    store(lamp, {{"rorndll_lamp_intensity", "0"}});
    EXPECT_EQ(light().intensity_lumens, 17); // no lamp is darker than 17 lumens
    store(properties, {{"lamp_intensity_lumens", "0"}});
    EXPECT_EQ(light().intensity_lumens, 17);
    EXPECT_FALSE(light().use_object_color);
    store(properties, {{"lamp_intensity", "60"}});
    EXPECT_EQ(light().intensity, 0);
    store(properties, {{"lamp_intensity_lumens", "850"}});
    EXPECT_EQ(light().intensity, 50); // 850 / 17
    EXPECT_EQ(light().intensity_lumens, 850);
    EXPECT_TRUE(light().use_object_color);
}

TEST_F(AttributeOverrides, fifty_percent_halve_a_lamp_that_is_set) {
    for (const char* dictionary : {overrides, placement_settings}) {
        go_inside();
        light() = {};
        store(lamp, {{"rorndll_lamp_intensity", "60"}});
        go_inside();
        store(dictionary, {{"intensity_override_mode", "%"}, {"intensity_override_value", "50"}});
        EXPECT_EQ(light().intensity, 30) << dictionary;
        EXPECT_EQ(light().intensity_lumens, 512.5) << dictionary;
    }
}

TEST_F(AttributeOverrides, a_percentage_acts_on_an_intensity_that_nobody_has_set) {
    store(overrides, {{"intensity_override_mode", "%"}, {"intensity_override_value", "200"}});
    EXPECT_EQ(light().intensity, -2);
    EXPECT_EQ(light().intensity_lumens, -2);
}

// Half of -1 is not open to the intensity of a lamp any more, but to an override, which asks for nothing but below 0.
TEST_F(AttributeOverrides, half_of_an_intensity_that_nobody_has_set_is_open_to_overrides_alone) {
    store(overrides, {{"intensity_override_mode", "%"}, {"intensity_override_value", "50"}});
    store(lamp, {{"rorndll_lamp_intensity", "60"}, {"rorndll_lamp_intensity_lumens", "100"}});
    store(properties, {{"lamp_intensity", "60"}, {"lamp_intensity_lumens", "100"}});
    EXPECT_EQ(light().intensity, -0.5);
    EXPECT_EQ(light().intensity_lumens, -0.5);
    store(overrides, {{"intensity_override_value", "60"}});
    EXPECT_EQ(light().intensity, 60);
    EXPECT_EQ(light().intensity_lumens, 1025);
}

TEST_F(AttributeOverrides, an_override_in_lumens_leaves_a_lamp_that_is_set) {
    for (const char* mode : {"L", "lumens", "l"}) {
        go_inside();
        light() = {};
        store(lamp, {{"rorndll_lamp_intensity", "60"}});
        store(overrides, {{"intensity_override_mode", mode}, {"intensity_override_value", "50"}});
        EXPECT_EQ(light().intensity, 60) << mode;
        EXPECT_EQ(light().intensity_lumens, 1025) << mode;
    }
}

TEST_F(AttributeOverrides, a_lamp_of_no_watts_is_set_and_open_to_no_override) {
    store(lamp, {{"rorndll_lamp_intensity", "0"}});
    store(overrides, {{"intensity_override_mode", "L"}, {"intensity_override_value", "850"}});
    store(overrides, {{"intensity_override_mode", "W"}, {"intensity_override_value", "60"}});
    EXPECT_EQ(light().intensity, 0);
}

// 850 / 17 is 50.
TEST_F(AttributeOverrides, any_mode_that_begins_with_L_fills_an_open_lamp_in_lumens) {
    for (const char* mode : {"L", "l", "Lamp"}) {
        go_inside();
        light() = {};
        store(overrides, {{"intensity_override_mode", mode}, {"intensity_override_value", "850"}});
        EXPECT_EQ(light().intensity, 50) << mode;
        EXPECT_EQ(light().intensity_lumens, 850) << mode;
    }
}

TEST_F(AttributeOverrides, an_L_further_back_in_the_mode_counts_as_watts) {
    store(overrides, {{"intensity_override_mode", "XL"}, {"intensity_override_value", "60"}});
    EXPECT_EQ(light().intensity, 60);
    EXPECT_EQ(light().intensity_lumens, 1025);
}

TEST_F(AttributeOverrides, an_override_in_lumens_or_watts_fills_an_open_lamp_and_says_so) {
    const trace_capture trace;
    store(overrides, {{"intensity_override_mode", "lumens"}, {"intensity_override_value", "850.5"}});
    EXPECT_EQ(light().intensity, 50); // 850.5 / 17 = 50.03, 10.006 steps of 5
    EXPECT_EQ(light().intensity_lumens, 850.5);
    go_inside();
    light() = {};
    store(placement_settings, {{"intensity_override_mode", "Watts"}, {"intensity_override_value", "60"}});
    EXPECT_EQ(light().intensity, 60);
    EXPECT_EQ(light().intensity_lumens, 1025);
    EXPECT_EQ(trace.text_without_line_numbers(),
              "slp_oparms(#): cl_slp_oparms::store_attributes_in_oparms():: OVERRIDE LUMENS: 850.5\n"
              "slp_oparms(#): cl_slp_oparms::store_attributes_in_oparms():: OVERRIDE WATTS: 60\n");
}

TEST_F(AttributeOverrides, an_override_without_a_mode_is_in_watts) {
    store(overrides, {{"intensity_override_value", "50"}});
    EXPECT_EQ(light().intensity, 50);
    EXPECT_EQ(light().intensity_lumens, 850); // 50 x 17 = 850, 34 steps of 25
    store(overrides, {{"intensity_override_value", "70"}});
    EXPECT_EQ(light().intensity, 50);
}

TEST_F(AttributeOverrides, a_mode_behind_its_value_comes_too_late) {
    store(lamp, {{"rorndll_lamp_intensity", "60"}});
    store(overrides, {{"intensity_override_value", "50"}, {"intensity_override_mode", "%"}});
    EXPECT_EQ(light().intensity, 60);
    go_inside();
    light() = {};
    store(overrides, {{"intensity_override_value", "50"}, {"intensity_override_mode", "%"}});
    EXPECT_EQ(light().intensity, 50);
}

TEST_F(AttributeOverrides, a_mode_holds_for_the_object_that_names_it_alone) {
    store(lamp, {{"rorndll_lamp_intensity", "60"}});
    store(overrides, {{"intensity_override_mode", "%"}});
    store(overrides, {{"intensity_override_value", "50"}});
    EXPECT_EQ(light().intensity, 60);
}

// ---- colours

TEST_F(AttributeOverrides, a_colour_is_kept_with_red_first) {
    store(lamp, {{"cqlw_lamp_color", "#ff8040"}});
    EXPECT_EQ(light().color, 0xff8040);
    store(lamp, {{"cqlw_lamp_color", "#010203"}});
    EXPECT_EQ(light().color, 0xff8040);
}

TEST_F(AttributeOverrides, colours_come_in_three_forms) {
    store(overrides, {{"light_color_override_value", "rgb(255,128,64)"}});
    EXPECT_EQ(light().color, 0xff8040);
    go_inside();
    light() = {};
    store(overrides, {{"light_color_override_value", "16711680"}}); // 0xff0000 with red in the low byte is blue
    EXPECT_EQ(light().color, 0x0000ff);
}

TEST_F(AttributeOverrides, a_decimal_colour_has_all_its_bits) {
    store(lamp, {{"cqlw_lamp_color", "197121"}}); // 0x030201
    EXPECT_EQ(light().color, 0x010203);
    go_inside();
    light() = {};
    store(lamp, {{"cqlw_lamp_color", "4278387201"}}); // 0xff030201
    EXPECT_EQ(light().color, static_cast<int>(0xff010203));
}

TEST_F(AttributeOverrides, the_colour_of_a_placement_is_traced) {
    const trace_capture trace;
    store(placement_settings, {{"light_color_override_value", "#0a1428"}});
    EXPECT_EQ(light().color, 0x0a1428);
    // Bytes from the low one up: 0x28, 0x14, 0x0a.
    EXPECT_EQ(trace.text_without_line_numbers(),
              "slp_oparms(#): cl_slp_oparms::store_attributes_in_oparms():: qlw_placement_settings, color: 0x0a1428\n"
              "slp_oparms(#): cl_slp_oparms::store_attributes_in_oparms():: qlw_placement_settings, (#0a1428) "
              "lamp_color: 0x0a1428, R: 40 G: 20 B: 10\n");
}

TEST_F(AttributeOverrides, the_paint_of_the_object_is_its_lamp_colour_with_blue_first) {
    builder.element(builder.root().square(1)).material = builder.material("Amber", {255, 128, 64, 255});
    open();
    SUFaceGetFrontMaterial(faces().front(), &current_oparms->material);
    store(properties, {{"lamp_color", "#010203"}});
    EXPECT_EQ(light().color, 0x4080ff);
}

TEST_F(AttributeOverrides, an_object_without_paint_has_no_lamp_colour_whatever_was_set) {
    store(lamp, {{"cqlw_lamp_color", "#ff8040"}});
    store(properties, {{"lamp_color", "#010203"}});
    EXPECT_EQ(light().color, 0);
}

// ---- hiding

TEST_F(AttributeOverrides, the_lamp_says_whether_it_is_hidden_until_an_override_locks_it) {
    store(lamp, {{"bvl_lamp_hide", "true"}});
    EXPECT_TRUE(light().hide);
    store(lamp, {{"bvl_lamp_hide", "false"}});
    EXPECT_FALSE(light().hide);
}

TEST_F(AttributeOverrides, an_override_of_hiding_holds_for_good) {
    for (const char* dictionary : {overrides, placement_settings}) {
        go_inside();
        light() = {};
        store(dictionary, {{"lamp_hide_override_value", "0"}});
        store(lamp, {{"bvl_lamp_hide", "true"}});
        go_inside();
        store(lamp, {{"bvl_lamp_hide", "true"}});
        EXPECT_FALSE(light().hide) << dictionary;
        store(dictionary, {{"lamp_hide_override_value", "2"}});
        EXPECT_TRUE(light().hide) << dictionary;
    }
}

// What a lamp becomes: its final values, its number, its file.

#include "tessaline/walk/lamps.h"

#include "tests/support/trace_capture.h"
#include "tests/tessaline/reader_fixture.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace {

// The x axis looks along y, the y axis along z, the z axis along x, each at another length; the origin is moved.
constexpr transform16 turned{0, 2, 0, 0, 0, 0, 3, 0, 4, 0, 0, 0, 100, 200, 300, 1};

class Lamps : public reader_test {
protected:
    Lamps() {
        set_global_bool("bvl_artificial_lighting", true);
        set_global_int("ivl_light_balance", 50);
        set_global_int("ivl_channel_ceiling", 3);
        set_global_int("ivl_channel_other", 2);
        set_global_bool("bvl_auto_lighting_channels", false);
        set_global_int("ivl_lighting_channels", 2);
    }

    static cl_slp_light typed(const std::string& type) {
        cl_slp_light light;
        light.lamp_type = type;
        return light;
    }

    int add(cl_slp_light& light, const transform16& transform = identity16) {
        return light.add_lamp(reader, transform);
    }
    std::string file(int number) const {
        return batch.read("ZynBatch_Lights/light_" + std::to_string(number) + ".txt");
    }
    // What stands behind the tag in the file of the lamp added last.
    std::string field(const std::string& tag) const {
        const std::string text = "\n" + file(reader.ilights_saved - 1);
        const std::size_t start = text.find("\n" + tag + ";");
        if (start == std::string::npos)
            return "no such field";
        const std::size_t behind = start + tag.size() + 2;
        return text.substr(behind, text.find("\r\n", behind) - behind);
    }
};

} // namespace

TEST_F(Lamps, a_file_holds_twenty_lines_in_their_order) {
    cl_slp_light light = typed("spot");
    light.hide = true;
    light.use_object_color = true;
    light.color = 0x00ff8040;
    light.channel = 1;
    light.beam_length = 96;
    light.beam_angle = 30;
    light.field_angle = 45.5;
    light.intensity = 60;
    light.intensity_lumens = 1025;
    light.length = 12;
    light.size = 1000;
    light.width = 6.25;
    light.spotlight_shape = "square";
    light.ies_file_name = "down; light.ies";
    light.ies_pattern = 4;
    EXPECT_EQ(add(light, {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 100, 0, 0, 1}), 0);
    // 100 inches are 2.54 metres; 1000 x 0.0254 x 0.0254 is 0.64516.
    EXPECT_EQ(file(0), lines({"location;(2.540000,0.000000,0.645160)",
                              "direction;(0.000000,0.000000,1.000000)",
                              "xaxis;(1.000000,0.000000,0.000000)",
                              "hide;1",
                              "use_object_color;1",
                              "color;#ff8040",
                              "channel;1",
                              "beam_length;96.000000",
                              "beam_angle;30.000000",
                              "field_angle;45.500000",
                              "intensity;60.000000",
                              "intensity_lumens;1025.000000",
                              "length;12.000000",
                              "size;1000.000000",
                              "width;6.250000",
                              "type;spot",
                              "unit;Watts",
                              "spotlight_shape;square",
                              "ies_file_name;down; light.ies",
                              "ies_pattern;4"}));
}

TEST_F(Lamps, a_lamp_that_says_nothing_but_its_type_has_minus_one_everywhere) {
    cl_slp_light light = typed("rect");
    add(light);
    EXPECT_EQ(file(0), lines({"location;(0.000000,0.000000,0.000000)",
                              "direction;(0.000000,0.000000,-1.000000)",
                              "xaxis;(1.000000,0.000000,0.000000)",
                              "hide;0",
                              "use_object_color;0",
                              "color;#ffffff",
                              "channel;2",
                              "beam_length;-1.000000",
                              "beam_angle;-1.000000",
                              "field_angle;-1.000000",
                              "intensity;-1.000000",
                              "intensity_lumens;-1.000000",
                              "length;-1.000000",
                              "size;-1.000000",
                              "width;-1.000000",
                              "type;rect",
                              "unit;Watts",
                              "spotlight_shape;",
                              "ies_file_name;",
                              "ies_pattern;-1"}));
}

TEST_F(Lamps, lamps_count_from_0) {
    for (int number = 0; number != 3; ++number) {
        cl_slp_light light = typed("rect");
        EXPECT_EQ(add(light), number);
    }
    EXPECT_TRUE(batch.has("ZynBatch_Lights/light_2.txt"));
    EXPECT_EQ(reader.ilights_saved, 3);
}

TEST_F(Lamps, a_file_that_cannot_be_made_uses_up_its_number_without_a_word) {
    batch.make_folder("ZynBatch_Lights/light_0.txt");
    const trace_capture trace;
    cl_slp_light first = typed("rect");
    cl_slp_light second = typed("rect");
    EXPECT_EQ(add(first), 0);
    EXPECT_EQ(add(second), 1);
    EXPECT_TRUE(batch.has("ZynBatch_Lights/light_1.txt"));
    EXPECT_EQ(trace.text_without_line_numbers(), "slp_oparms(#): cl_slp_light::add_lamp():: ilights_saved: 0\n"
                                                 "slp_oparms(#): cl_slp_light::add_lamp():: ilights_saved: 1\n");
}

TEST_F(Lamps, a_folder_that_cannot_be_made_is_not_reported) {
    batch.write("ZynBatch_Lights", "a file in the way");
    const trace_capture trace;
    cl_slp_light light = typed("rect");
    EXPECT_EQ(add(light), 0);
    EXPECT_EQ(trace.text_without_line_numbers(), "slp_oparms(#): cl_slp_light::add_lamp():: ilights_saved: 0\n");
}

// ---- types

TEST_F(Lamps, each_type_has_its_place_and_direction) {
    struct placed {
        const char* type;
        const char* location;
        const char* direction;
        bool is_direct;
    };
    // The origin (100, 200, 300) is (2.54, 5.08, 7.62) metres; a spot of size 10 stands 10 x 0.0254 x 0.0254 =
    // 0.0064516 further along its z axis, which is the x of the world.
    const char* const nowhere = "(0.000000,0.000000,0.000000)";
    const char* const along_z = "(1.000000,0.000000,0.000000)";
    const char* const down = "(0.000000,0.000000,-1.000000)";
    for (const placed& expected :
         {placed{"bulb", "(2.540000,5.080000,7.620000)", down, true},
          placed{"spot", "(2.546452,5.080000,7.620000)", along_z, true}, placed{"bulb_glow", nowhere, down, false},
          placed{"spot_glow", nowhere, along_z, false}, placed{"spot_beams", nowhere, along_z, false},
          placed{"rect", nowhere, down, false}, placed{"rect_glow", nowhere, along_z, false},
          placed{"linear_glow", nowhere, along_z, false}, placed{"round_glow", nowhere, along_z, false},
          placed{"any other", nowhere, along_z, false}}) {
        cl_slp_light light = typed(expected.type);
        light.size = 10;
        add(light, turned);
        EXPECT_EQ(field("location"), expected.location) << expected.type;
        EXPECT_EQ(field("direction"), expected.direction) << expected.type;
        EXPECT_EQ(field("type"), expected.type);
        EXPECT_EQ(light.direct_light, expected.is_direct) << expected.type;
    }
}

TEST_F(Lamps, a_number_stands_for_a_type_when_no_type_is_named) {
    for (const auto& [number, type] : std::vector<std::pair<int, std::string>>{{1, "rect_glow"},
                                                                               {2, "bulb_glow"},
                                                                               {3, "spot_glow"},
                                                                               {4, "spot_glow"},
                                                                               {5, "bulb_glow"},
                                                                               {99, "bulb_glow"}}) {
        cl_slp_light light;
        light.light_type = number;
        add(light);
        EXPECT_EQ(field("type"), type) << number;
        EXPECT_FALSE(light.direct_light);
    }
    cl_slp_light named = typed("bulb");
    named.light_type = 1;
    add(named);
    EXPECT_EQ(field("type"), "bulb");
}

TEST_F(Lamps, a_number_below_0_is_a_lamp_without_a_type) {
    cl_slp_light light;
    light.light_type = -1;
    EXPECT_TRUE(is_lamp(light));
    add(light, turned);
    EXPECT_EQ(field("type"), "");
    EXPECT_EQ(field("direction"), "(1.000000,0.000000,0.000000)");
}

// ---- directions

TEST_F(Lamps, six_codes_name_a_direction_by_the_axes_of_the_lamp) {
    // -0 is what turning 0 round gives, and %f shows it.
    const std::vector<std::string> directions = {
        "(-1.000000,-0.000000,-0.000000)", "(1.000000,0.000000,0.000000)",  // the z axis looks along x
        "(-0.000000,-1.000000,-0.000000)", "(0.000000,1.000000,0.000000)",  // the x axis along y
        "(-0.000000,-0.000000,-1.000000)", "(0.000000,0.000000,1.000000)"}; // the y axis along z
    for (int code = 0; code != 6; ++code) {
        cl_slp_light light = typed("bulb");
        light.light_direction = code;
        add(light, turned);
        EXPECT_EQ(field("direction"), directions[static_cast<std::size_t>(code)]) << code;
    }
}

TEST_F(Lamps, any_other_code_leaves_the_direction_of_the_type) {
    for (const int code : {-2, -1, 6, 100}) {
        cl_slp_light light = typed("bulb");
        light.light_direction = code;
        add(light, turned);
        EXPECT_EQ(field("direction"), "(0.000000,0.000000,-1.000000)") << code;
    }
}

TEST_F(Lamps, the_direction_stays_in_the_level) {
    cl_slp_light light = typed("spot_glow");
    add(light, turned);
    EXPECT_EQ(light.direction, (fpt{1, 0, 0}));
}

TEST_F(Lamps, a_placement_squeezed_flat_has_no_direction) {
    cl_slp_light light = typed("spot");
    add(light, {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1});
    EXPECT_EQ(field("direction"), "(0.000000,0.000000,0.000000)");
}

// ---- intensities

TEST_F(Lamps, lumens_without_watts_are_divided_by_17) {
    cl_slp_light light = typed("rect");
    light.intensity_lumens = 170;
    add(light);
    EXPECT_EQ(field("intensity"), "10.000000");
    EXPECT_EQ(field("intensity_lumens"), "170.000000");
}

TEST_F(Lamps, watts_without_lumens_are_multiplied_by_17) {
    cl_slp_light light = typed("rect");
    light.intensity = 10;
    add(light);
    EXPECT_EQ(field("intensity_lumens"), "170.000000");
}

TEST_F(Lamps, half_a_watt_without_lumens_is_multiplied_too) {
    cl_slp_light light = typed("bulb");
    light.intensity = 0.5;
    add(light);
    EXPECT_EQ(field("intensity_lumens"), "8.500000");
}

TEST_F(Lamps, an_intensity_of_0_is_completed_by_the_other) {
    cl_slp_light no_lumens = typed("rect");
    no_lumens.intensity = 10;
    no_lumens.intensity_lumens = 0;
    add(no_lumens);
    EXPECT_EQ(field("intensity_lumens"), "170.000000");
    cl_slp_light no_watts = typed("rect");
    no_watts.intensity = 0;
    no_watts.intensity_lumens = 17; // what a lamp of 0 watts is given
    add(no_watts);
    EXPECT_EQ(field("intensity"), "1.000000");
}

TEST_F(Lamps, intensities_of_nothing_stay_as_they_are) {
    cl_slp_light light = typed("rect");
    light.intensity = 0;
    light.intensity_lumens = -2;
    add(light);
    EXPECT_EQ(field("intensity"), "0.000000");
    EXPECT_EQ(field("intensity_lumens"), "-2.000000");
}

TEST_F(Lamps, a_lamp_of_minus_1_watt_is_written_with_the_factor_of_the_balance) {
    set_global_int("ivl_light_balance", 25);
    cl_slp_light light = typed("rect");
    add(light);
    EXPECT_EQ(field("intensity"), "-0.500000"); // t = 1 - 0.25 = 0.75; (1 - 0.75) x 2 = 0.5
}

TEST_F(Lamps, the_balance_stays_in_the_level_and_counts_again_for_a_lamp_below) {
    set_global_int("ivl_light_balance", 25);
    cl_slp_light light = typed("bulb");
    light.intensity = 40;
    add(light);
    EXPECT_EQ(field("intensity"), "20.000000");
    cl_slp_light below = light;
    add(below);
    EXPECT_EQ(field("intensity"), "10.000000");
}

TEST_F(Lamps, the_balance_falls_in_a_line_below_the_middle_and_rises_steeply_above) {
    for (const auto& [balance, factor] : std::vector<std::pair<int, double>>{
             {1, 0.02}, {10, 0.2}, {50, 1.0}, {60, 20.8}, {99, 98.02}}) { // 60: t = 0.4; 0.1 x 198 + 1
        set_global_int("ivl_light_balance", balance);
        EXPECT_NEAR(light_balance_factor(), factor, 1e-12) << balance;
        EXPECT_EQ(get_global_int("ivl_light_balance"), balance);
    }
}

TEST_F(Lamps, a_balance_out_of_range_is_mended_in_the_settings) {
    for (const auto& [balance, mended] :
         std::vector<std::pair<int, int>>{{100, 99}, {std::numeric_limits<int>::max(), 99}, {0, 1}, {-5, 1}}) {
        set_global_int("ivl_light_balance", balance);
        EXPECT_NEAR(light_balance_factor(), mended == 99 ? 98.02 : 0.02, 1e-12) << balance;
        EXPECT_EQ(get_global_int("ivl_light_balance"), mended);
    }
}

TEST_F(Lamps, without_artificial_lighting_the_balance_is_the_middle_and_stays_in_the_settings) {
    set_global_bool("bvl_artificial_lighting", false);
    set_global_int("ivl_light_balance", 150);
    EXPECT_EQ(light_balance_factor(), 1.0);
    EXPECT_EQ(get_global_int("ivl_light_balance"), 150);
}

// ---- angles, colour, hiding

TEST_F(Lamps, a_beam_wider_than_its_field_gets_the_widest_field) {
    cl_slp_light light = typed("spot");
    light.beam_angle = 60;
    light.field_angle = 40;
    add(light);
    EXPECT_EQ(field("beam_angle"), "60.000000");
    EXPECT_EQ(field("field_angle"), "180.000000");
}

TEST_F(Lamps, a_beam_without_a_field_gets_the_widest_too) {
    cl_slp_light light = typed("spot");
    light.beam_angle = 0;
    add(light);
    EXPECT_EQ(field("field_angle"), "180.000000");
}

TEST_F(Lamps, angles_that_are_not_set_stay_so) {
    cl_slp_light light = typed("spot");
    add(light);
    EXPECT_EQ(field("beam_angle"), "-1.000000");
    EXPECT_EQ(field("field_angle"), "-1.000000");
}

TEST_F(Lamps, a_colour_has_six_digits_or_as_many_as_it_needs) {
    const auto shown = [this](unsigned color) {
        cl_slp_light light = typed("rect");
        light.color = static_cast<int>(color);
        add(light);
        return field("color");
    };
    EXPECT_EQ(shown(0x0a14), "#000a14");
    EXPECT_EQ(shown(1), "#000001");
    EXPECT_EQ(shown(0xff010203), "#ff010203");
}

TEST_F(Lamps, a_lamp_without_a_colour_is_white) {
    builder.root().square(1);
    open();
    attribute_list.push_back({"Vellane_object_properties", "lamp_color", "#ff0000"});
    current_oparms->store_attributes_in_oparms("Group"); // no paint: the colour is taken away
    current_oparms->light.lamp_type = "rect";
    add(current_oparms->light);
    EXPECT_EQ(field("color"), "#ffffff");
    EXPECT_EQ(current_oparms->light.color, 0xffffff);
}

TEST_F(Lamps, bulbs_that_are_not_shown_are_hidden_in_every_file) {
    set_global_bool("bvl_show_bulbs", false);
    cl_slp_light light = typed("bulb");
    add(light);
    EXPECT_EQ(field("hide"), "1");
    EXPECT_TRUE(light.hide);
}

// ---- channels

TEST_F(Lamps, channel_0_is_that_of_the_ceiling_for_three_types_and_the_other_one_for_all_else) {
    for (const auto& [type, channel] : std::vector<std::pair<std::string, std::string>>{{"rect_glow", "3"},
                                                                                        {"linear_glow", "3"},
                                                                                        {"round_glow", "3"},
                                                                                        {"rect", "2"},
                                                                                        {"bulb", "2"},
                                                                                        {"spot", "2"},
                                                                                        {"bulb_glow", "2"},
                                                                                        {"spot_glow", "2"},
                                                                                        {"spot_beams", "2"},
                                                                                        {"any other", "2"}}) {
        cl_slp_light light = typed(type);
        light.channel = 0;
        add(light);
        EXPECT_EQ(field("channel"), channel) << type;
        EXPECT_EQ(light.channel, 0) << "the level keeps what was said";
    }
}

TEST_F(Lamps, a_channel_that_is_not_set_is_the_other_one_on_the_ceiling_too) {
    cl_slp_light light = typed("rect_glow");
    add(light);
    EXPECT_EQ(field("channel"), "2");
}

TEST_F(Lamps, a_ceiling_channel_of_0_falls_to_the_other_one) {
    set_global_int("ivl_channel_ceiling", 0);
    cl_slp_light light = typed("rect_glow");
    light.channel = 0;
    add(light);
    EXPECT_EQ(field("channel"), "2");
}

TEST_F(Lamps, a_channel_beyond_those_there_are_makes_room_for_itself) {
    set_global_bool("bvl_auto_lighting_channels", true);
    set_global_int("ivl_lighting_channels", 4);
    cl_slp_light light = typed("bulb");
    light.channel = 7;
    add(light);
    EXPECT_EQ(get_global_int("ivl_lighting_channels"), 8);
    light.channel = 3;
    add(light);
    EXPECT_EQ(get_global_int("ivl_lighting_channels"), 8);
    light.channel = 8;
    add(light);
    EXPECT_EQ(get_global_int("ivl_lighting_channels"), 9);
}

TEST_F(Lamps, without_automatic_channels_none_is_added) {
    cl_slp_light light = typed("bulb");
    light.channel = 7;
    add(light);
    EXPECT_EQ(get_global_int("ivl_lighting_channels"), 2);
    EXPECT_EQ(field("channel"), "7");
}

TEST_F(Lamps, the_highest_channel_that_a_number_can_have_does_no_harm) {
    set_global_bool("bvl_auto_lighting_channels", true);
    cl_slp_light light = typed("bulb");
    light.channel = std::numeric_limits<int>::max();
    add(light);
    EXPECT_EQ(field("channel"), "2147483647");
}

// ---- the record

TEST_F(Lamps, a_record_is_kept_for_each_lamp) {
    cl_slp_light light = typed("spot");
    light.beam_angle = 30.9;
    light.field_angle = 45;
    light.intensity_lumens = 850.9;
    light.channel = 4;
    light.color = 0xff8040;
    add(light, turned);
    cl_slp_light huge = typed("rect");
    huge.intensity_lumens = 1e300;
    add(huge);
    ASSERT_EQ(reader.lights.size(), 2u);
    const cl_lp_light& record = reader.lights[0];
    EXPECT_EQ(record.name, "Light_0");
    EXPECT_TRUE(record.enabled);
    EXPECT_EQ(record.strength, 850);
    EXPECT_EQ(record.strength_unit, "Lumens");
    EXPECT_EQ(record.beam_angle, 30);
    EXPECT_EQ(record.channel, 4);
    EXPECT_FALSE(record.use_object_color);
    EXPECT_EQ(record.color, 0xff8040);
    EXPECT_EQ(record.mode, "Normal");
    EXPECT_EQ(record.direction, (fpt{1, 0, 0}));
    EXPECT_EQ(reader.lights[1].name, "Light_1");
    EXPECT_EQ(reader.lights[1].beam_angle, -1);
}

TEST(LightRecord, a_fresh_record_shines_down_in_white) {
    const cl_lp_light fresh;
    EXPECT_EQ(fresh.name, "");
    EXPECT_FALSE(fresh.enabled);
    EXPECT_EQ(fresh.strength, 0);
    EXPECT_EQ(fresh.strength_unit, "Lumens");
    EXPECT_EQ(fresh.beam_angle, 45);
    EXPECT_EQ(fresh.channel, 0);
    EXPECT_TRUE(fresh.use_object_color);
    EXPECT_EQ(fresh.color, 0xffffff);
    EXPECT_EQ(fresh.mode, "Normal");
    EXPECT_EQ(fresh.direction, (fpt{0, 0, -1}));
}

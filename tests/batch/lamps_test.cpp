// What lamps leave in a batch folder: their blocks, their direct lights, their files.

#include "tests/batch/batch_runner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>

namespace {

using namespace sketchup;

constexpr const char* lamp = "qlw_lamp";
constexpr const char* properties = "Vellane_object_properties";
constexpr const char* overrides = "qlw_overrides";
constexpr const char* placement_settings = "qlw_placement_settings";

using values = std::initializer_list<std::pair<const char*, typed_value>>;

void say(model_builder& m, entity_place owner, const char* dictionary, values all) {
    for (const auto& [key, value] : all)
        m.attribute(owner, dictionary, key, value);
}

void set(model_builder& m, values settings) {
    say(m, m.root().list(), "qlw_globals", settings);
}

// A group at that height that is a lamp of that type and holds a square of 10 inches.
list_builder add_lamp(model_builder& m, const std::string& type, double z = 0) {
    list_builder group = m.root().group("lamp", moved({0, 0, z}));
    group.square(10);
    say(m, group.placement(), lamp, {{"sorndll_lamp_type", text(type)}});
    return group;
}

// The x axis looks along y, the y axis along z, the z axis along x.
constexpr transform turned = {0, 1, 0, 0, 0, 0, 1, 0, 1, 0, 0, 0, 100, 200, 300, 1};

// ---- types

class LampType : public testing::TestWithParam<std::string> {};

TEST_P(LampType, has_its_block_and_its_file_as_a_group_and_as_a_component) {
    batch b;
    model_builder m;
    list_builder group = add_lamp(m, GetParam(), 100);
    say(m, group.placement(), lamp,
        {{"cqlw_lamp_color", text("#ff8040")},
         {"ivl_lamp_channel", whole_number(0)},
         {"rorndll_lamp_beam_angle", real_number(30)},
         {"rorndll_lamp_field_angle", real_number(45)},
         {"rorndll_lamp_intensity", real_number(60)},
         {"rorndll_lamp_size", real_number(10)}});
    list_builder component = m.component("fitting");
    component.square(10);
    say(m, component.list(), lamp, {{"sorndll_lamp_type", text(GetParam())}, {"rorndll_lamp_size", real_number(20)}});
    const entity_place instance = m.root().instance(component, turned);
    say(m, instance, properties, {{"lamp_intensity_lumens", real_number(850)}, {"lamp_channel", whole_number(5)}});
    b.put_model(m);
    expect_run(b, "lamp_" + GetParam());
}

INSTANTIATE_TEST_SUITE_P(LampsBatch, LampType,
                         testing::Values("bulb", "spot", "bulb_glow", "spot_glow", "spot_beams", "rect", "rect_glow",
                                         "linear_glow", "round_glow"),
                         [](const testing::TestParamInfo<std::string>& type) { return type.param; });

TEST(LampsBatch, a_number_stands_for_the_type_of_a_lamp) {
    batch b;
    model_builder m;
    list_builder group = m.root().group();
    group.square(10);
    say(m, group.placement(), properties, {{"light_type", whole_number(2)}, {"light_direction", whole_number(0)}});
    b.put_model(m);
    expect_run(b, "lamp_by_number");
}

// ---- lamps and lamps

TEST(LampsBatch, lamps_inside_a_lamp_are_parts_of_it) {
    batch b;
    model_builder m;
    list_builder outer = add_lamp(m, "rect_glow");
    list_builder inner = outer.group("inner", moved({0, 0, 10}));
    inner.square(10);
    m.element(inner.placement()).layer = m.layer("Inner");
    say(m, inner.placement(), lamp, {{"sorndll_lamp_type", text("bulb")}});
    list_builder component = m.component("innermost");
    component.square(10);
    say(m, component.list(), lamp, {{"sorndll_lamp_type", text("spot_beams")}});
    inner.instance(component, moved({0, 0, 10}));
    say(m, component.square(20), lamp, {{"sorndll_lamp_type", text("rect")}});
    add_lamp(m, "rect", 50);
    b.put_model(m);
    expect_run(b, "lamps_inside_a_lamp");
}

// A direct light has no block that would keep what is inside from being lamps of their own, and the intensities that
// they inherit are balanced already.
TEST(LampsBatch, each_group_inside_a_bulb_is_a_bulb) {
    batch b;
    model_builder m;
    set(m, {{"ivl_light_balance", whole_number(25)}});
    list_builder outer = add_lamp(m, "bulb");
    say(m, outer.placement(), lamp, {{"rorndll_lamp_intensity", real_number(60)}});
    outer.group("inner", moved({0, 0, 10})).square(10);
    m.root().square(10);
    b.put_model(m);
    expect_run(b, "groups_inside_a_bulb");
}

TEST(LampsBatch, each_face_that_is_a_lamp_has_a_block_of_its_own) {
    batch b;
    model_builder m;
    list_builder group = m.root().group("panels", after(moved({0, 0, 50}), scaled(-1, 1, 1)));
    say(m, group.square(10), lamp, {{"sorndll_lamp_type", text("rect_glow")}, {"bvl_lamp_hide", truth(true)}});
    say(m, m.root().square(10), lamp, {{"sorndll_lamp_type", text("bulb")}});
    say(m, m.root().face({{20, 0, 0}, {30, 0, 0}, {30, 10, 0}, {20, 10, 0}}), properties,
        {{"light_type", whole_number(1)}});
    m.root().face({{40, 0, 0}, {50, 0, 0}, {50, 10, 0}, {40, 10, 0}});
    b.put_model(m);
    expect_run(b, "face_lamps");
}

TEST(LampsBatch, a_mirrored_and_scaled_lamp_has_axes_of_unit_length) {
    batch b;
    model_builder m;
    const transform where = after(moved({100, 0, 0}), scaled(-2, 3, 4));
    list_builder spot = m.root().group("spot", where);
    say(m, spot.placement(), lamp, {{"sorndll_lamp_type", text("spot")}, {"rorndll_lamp_size", real_number(1000)}});
    list_builder panel = m.root().group("panel", where);
    panel.square(10);
    say(m, panel.placement(), lamp, {{"sorndll_lamp_type", text("rect")}});
    say(m, panel.placement(), properties, {{"light_direction", whole_number(3)}});
    b.put_model(m);
    expect_run(b, "mirrored_lamps");
}

// ---- hiding

// A lamp, a group that is none, and a face beside them.
void put_lamp_on_hidden_layer(batch& b, bool lets_lamps_through) {
    model_builder m;
    const sketchup::index off = m.layer("Off", false);
    list_builder group = add_lamp(m, "rect");
    m.element(group.placement()).layer = off;
    list_builder plain = m.root().group("plain", moved({0, 0, 10}));
    plain.square(10);
    m.element(plain.placement()).layer = off;
    m.root().square(10);
    set(m, {{"bvl_process_invisible_lights", truth(lets_lamps_through)}});
    b.put_model(m);
}

TEST(LampsBatch, a_lamp_on_a_hidden_layer_is_left_out) {
    batch b;
    put_lamp_on_hidden_layer(b, false);
    expect_run(b, "lamp_on_hidden_layer");
}

// What is no lamp stays out, but its level stays on the stack: the face counts as being on its layer.
TEST(LampsBatch, a_lamp_on_a_hidden_layer_is_let_through_unseen) {
    batch b;
    put_lamp_on_hidden_layer(b, true);
    expect_run(b, "lamp_let_through");
}

// Its shape stays out, and its level stays on the stack: the face behind it counts as a part of a bulb.
TEST(LampsBatch, a_direct_light_on_a_hidden_layer_is_let_through_without_its_shape) {
    batch b;
    model_builder m;
    m.element(add_lamp(m, "bulb", 100).placement()).layer = m.layer("Off", false);
    m.root().square(10);
    set(m, {{"bvl_process_invisible_lights", truth(true)}});
    b.put_model(m);
    expect_run(b, "direct_light_let_through");
}

TEST(LampsBatch, a_lamp_that_hides_its_shape_has_an_invisible_block) {
    batch b;
    model_builder m;
    say(m, add_lamp(m, "rect").placement(), lamp, {{"bvl_lamp_hide", truth(true)}});
    set(m, {{"bvl_process_invisible_lights", truth(true)}});
    b.put_model(m);
    expect_run(b, "hidden_lamp");
}

TEST(LampsBatch, while_bulbs_are_not_shown_every_lamp_is_hidden) {
    batch b;
    model_builder m;
    add_lamp(m, "rect");
    add_lamp(m, "bulb", 100);
    say(m, m.root().square(10), lamp, {{"sorndll_lamp_type", text("rect_glow")}});
    set(m, {{"bvl_show_bulbs", truth(false)}});
    b.put_model(m);
    expect_run(b, "bulbs_not_shown");
}

// The glow of a beam stays visible where a lamp is hidden, whatever the case of its layer; what is invisible does not.
TEST(LampsBatch, an_invisible_object_is_invisible_on_the_layer_of_beam_glow_too) {
    batch b;
    model_builder m;
    const sketchup::index glow = m.layer("QLW_Lamp_Beam_Glow");
    list_builder invisible = m.root().group();
    m.element(invisible.square(10)).layer = glow;
    say(m, invisible.placement(), properties, {{"invisible", truth(true)}});
    list_builder hidden = m.root().group();
    m.element(hidden.square(10)).layer = glow;
    say(m, hidden.placement(), lamp, {{"bvl_lamp_hide", truth(true)}});
    hidden.face({{20, 0, 0}, {30, 0, 0}, {30, 10, 0}, {20, 10, 0}});
    b.put_model(m);
    expect_run(b, "invisible_and_hidden");
}

// The instance speaks first, so what it sets stays; only what always counts is taken from the definition.
TEST(LampsBatch, the_definition_wins_over_its_instance_where_a_key_always_counts) {
    batch b;
    model_builder m;
    list_builder component = m.component("fitting");
    component.square(10);
    say(m, component.list(), lamp,
        {{"sorndll_lamp_type", text("rect")},
         {"ivl_lamp_channel", whole_number(7)},
         {"rorndll_lamp_size", real_number(3)}});
    say(m, component.list(), overrides, {{"lamp_hide_override_value", whole_number(0)}});
    const entity_place instance = m.root().instance(component);
    say(m, instance, lamp, {{"ivl_lamp_channel", whole_number(5)}});
    say(m, instance, overrides, {{"lamp_hide_override_value", whole_number(1)}});
    b.put_model(m);
    expect_run(b, "definition_and_instance");
}

// The shade makes the block; the glow of the beam follows it as an ordinary mesh, seen though the lamp is hidden; the
// helper shapes are never shown.
TEST(LampsBatch, the_beams_of_a_spot_follow_its_block) {
    batch b;
    model_builder m;
    list_builder component = m.component("spot");
    component.square(10);
    const auto on_layer = [&](const char* layer, double z) {
        const sketchup::index at = m.layer(layer);
        m.element(component.face({{0, 0, z}, {10, 0, z}, {10, 10, z}, {0, 10, z}})).layer = at;
    };
    on_layer("QLW_Lamp_Beam_Glow", 10);
    on_layer("QLW_Lamp_Beams", 20);
    component.edge({0, 0, 0}, {0, 0, 5});
    say(m, component.list(), lamp, {{"sorndll_lamp_type", text("spot_beams")}, {"bvl_lamp_hide", truth(true)}});
    m.root().instance(component, moved({0, 0, 100}));
    m.root().square(10);
    b.put_model(m);
    expect_run(b, "spot_with_beams");
}

// ---- intensities

// The instance speaks ahead of its definition, so its percentage meets an intensity that nobody has set, and -0.5 is
// not open any more.
TEST(LampsBatch, overrides_fill_in_or_multiply_by_their_mode) {
    batch b;
    model_builder m;
    list_builder outer = m.root().group("outer");
    say(m, outer.placement(), lamp, {{"rorndll_lamp_intensity", real_number(60)}});
    const entity_place halved = outer.group("halved").placement();
    say(m, halved, lamp, {{"sorndll_lamp_type", text("rect")}});
    say(m, halved, overrides, {{"intensity_override_mode", text("%")}, {"intensity_override_value", real_number(50)}});
    const auto lamp_with = [&m](const char* dictionary, values all) {
        const entity_place group = m.root().group().placement();
        say(m, group, lamp, {{"sorndll_lamp_type", text("rect")}});
        say(m, group, dictionary, all);
    };
    lamp_with(placement_settings, {{"intensity_override_mode", text("lumens")},
                                   {"intensity_override_value", real_number(850)},
                                   {"light_channel_override_value", whole_number(4)},
                                   {"lamp_hide_override_value", whole_number(1)},
                                   {"light_color_override_value", text("rgb(255,128,64)")}});
    lamp_with(overrides, {{"intensity_override_value", real_number(60)}});
    lamp_with(overrides, {{"intensity_override_value", real_number(50)}, {"intensity_override_mode", text("%")}});
    list_builder component = m.component("fitting");
    say(m, component.list(), lamp, {{"sorndll_lamp_type", text("rect")}, {"rorndll_lamp_intensity", real_number(60)}});
    say(m, m.root().instance(component), overrides,
        {{"intensity_override_mode", text("%")}, {"intensity_override_value", real_number(50)}});
    say(m, m.root().instance(component), overrides,
        {{"intensity_override_mode", text("W")}, {"intensity_override_value", real_number(40)}});
    b.put_model(m);
    expect_run(b, "override_modes");
}

// A bulb of 60 watts alone under a setting of the balance.
void put_bulb(batch& b, std::initializer_list<std::pair<const char*, typed_value>> settings) {
    model_builder m;
    const entity_place group = m.root().group().placement();
    say(m, group, lamp,
        {{"sorndll_lamp_type", text("bulb")},
         {"rorndll_lamp_intensity", real_number(60)},
         {"ivl_lamp_channel", whole_number(7)}});
    set(m, settings);
    b.put_model(m);
}

TEST(LampsBatch, the_balance_dims_and_brightens_every_lamp) {
    for (const auto& [balance, case_name] :
         {std::pair{1, "balance_low"}, std::pair{50, "balance_middle"}, std::pair{99, "balance_high"}}) {
        batch b;
        put_bulb(b, {{"ivl_light_balance", whole_number(balance)}});
        expect_run(b, case_name);
    }
}

TEST(LampsBatch, a_balance_out_of_range_counts_as_the_end_of_the_range) {
    for (const auto& [balance, case_name] :
         {std::pair{0, "balance_low"}, std::pair{-7, "balance_low"}, std::pair{100, "balance_high"}}) {
        batch b;
        put_bulb(b, {{"ivl_light_balance", whole_number(balance)}});
        expect_run(b, case_name);
    }
}

TEST(LampsBatch, without_artificial_lighting_the_balance_is_the_middle) {
    batch b;
    put_bulb(b, {{"ivl_light_balance", whole_number(150)}, {"bvl_artificial_lighting", truth(false)}});
    expect_run(b, "balance_middle");
}

TEST(LampsBatch, what_lamps_mend_in_the_settings_goes_to_the_parent) {
    batch b;
    put_bulb(b, {});
    b.put("option_globals.txt", "ivl_light_balance; 150\r\nivl_lighting_channels; 4\r\n");
    b.run();
    const std::string options = b.read("option_globals.txt");
    EXPECT_THAT(options, testing::HasSubstr("\r\nivl_light_balance; 99\r\n"));
    EXPECT_THAT(options, testing::HasSubstr("\r\nivl_lighting_channels; 8\r\n")); // channel 7 makes room for itself
}

// ---- what glows

// A square of 10 inches that starts at that x.
entity_place add_field(list_builder list, double x) {
    return list.face({{x, 0, 0}, {x + 10, 0, 0}, {x + 10, 10, 0}, {x, 10, 0}});
}

// The list of the group ends inside its block; in the model's own list other faces end the blocks. The cold material is
// declared inside the block that its face ends.
TEST(LampsBatch, faces_in_a_row_with_one_glowing_material_share_a_block) {
    batch b;
    model_builder m;
    const sketchup::index warm = m.material("Warm_glow80", {255, 214, 140, 255});
    const sketchup::index cold = m.material("Cold_glow40", {170, 210, 255, 255});
    list_builder group = m.root().group();
    m.face(add_field(group, 0)).back_material = warm;
    m.element(add_field(group, 20)).material = warm;
    for (const double x : {0.0, 20.0, 40.0})
        m.element(add_field(m.root(), x)).material = warm;
    m.element(add_field(m.root(), 60)).material = cold;
    add_field(m.root(), 80);
    b.put_model(m);
    expect_run(b, "glowing_faces");
}

// It shows its two sides, one after the other, without a word of their materials: the block has one for all.
TEST(LampsBatch, a_face_that_glows_on_its_back_only_belongs_to_the_block) {
    batch b;
    model_builder m;
    const sketchup::index warm = m.material("Warm_glow80", {255, 214, 140, 255});
    const sketchup::index plain = m.material("Plain", {10, 20, 30, 255});
    m.element(add_field(m.root(), 0)).material = warm;
    const entity_place other = add_field(m.root(), 20);
    m.element(other).material = plain;
    m.face(other).back_material = warm;
    b.put_model(m);
    expect_run(b, "glowing_back");
}

TEST(LampsBatch, while_bulbs_are_not_shown_what_glows_is_invisible) {
    batch b;
    model_builder m;
    m.element(m.root().square(10)).material = m.material("Warm_glow80", {255, 214, 140, 255});
    set(m, {{"bvl_show_bulbs", truth(false)}});
    b.put_model(m);
    expect_run(b, "glow_not_shown");
}

// A picture of 2 by 2 pixels; a pixel is an inch. Rows from the lowest up, each padded to four bytes.
const std::vector<std::uint8_t> dots = {'B', 'M', 70,  0,   0,   0,   0, 0, 0, 0, 54, 0, 0, 0,        // file
                                        40,  0,   0,   0,   2,   0,   0, 0, 2, 0, 0,  0, 1, 0, 24, 0, // 2 by 2 by 24
                                        0,   0,   0,   0,   16,  0,   0, 0, 0, 0, 0,  0, 0, 0, 0,  0,
                                        0,   0,   0,   0,   0,   0,   0, 0,  //
                                        255, 0,   0,   0,   255, 0,   0, 0,  // blue, green
                                        0,   0,   255, 255, 255, 255, 0, 0}; // red, white

// The picture takes four numbers of the lamp's block; the face behind it numbers on.
TEST(LampsBatch, a_picture_inside_a_lamp_stands_in_its_block) {
    batch b;
    model_builder m;
    list_builder outer = add_lamp(m, "rect");
    list_builder inner = outer.group();
    inner.square(10);
    inner.image(m.image_definition(dots, "dots.bmp", 2, 2), moved({0, 0, 10}));
    set(m, {{"rvl_image_offset", real_number(0)}});
    b.put_model(m);
    expect_run(b, "picture_in_a_lamp");
}

// ---- ground cover

void put_covered_square(batch& b, const std::string& cover) {
    model_builder m;
    list_builder group = m.root().group();
    group.square(10);
    say(m, group.placement(), properties,
        {{"sgroundcover_file", text(cover)}, {"igroundcover_orientation", whole_number(2)}});
    b.put_model(m);
}

TEST(LampsBatch, a_ground_cover_is_copied_to_the_plants) {
    batch b;
    put_covered_square(b, b.surrounding().write("covers/grass.orn", "green"));
    expect_run(b, "ground_cover");
}

TEST(LampsBatch, a_ground_cover_that_is_there_already_stays) {
    batch b;
    put_covered_square(b, b.surrounding().write("covers/grass.orn", "green"));
    b.put("Plants/grass.orn", "brown");
    expect_run(b, "ground_cover_already_there");
}

TEST(LampsBatch, a_ground_cover_that_is_nowhere_is_named_as_it_stands) {
    batch b;
    put_covered_square(b, "C:\\covers\\grass.orn");
    expect_run(b, "ground_cover_nowhere");
}

} // namespace

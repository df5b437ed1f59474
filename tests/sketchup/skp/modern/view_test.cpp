// Cameras, rendering options, shadow settings and scenes of the archive container.

#include "tests/sketchup/skp/modern/record_bytes.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace record_bytes;
using sketchup::no_index;
using sketchup::value_code;
using sketchup::vec3;

namespace {

bytes camera(double eye_x) {
    return rec(13500, rec(13501, doubles({eye_x, 2, 3})) + rec(13502, doubles({4, 5, 6})) +
                          rec(13503, doubles({0, 1, 0})) + rec(13504, doubles({1})) + rec(13506, u8(0)) +
                          rec(13508, doubles({50})) + rec(13507, doubles({133})) + rec(13509, doubles({1.5})) +
                          rec(13510, u8(0)) + rec(13514, u8(1)));
}

const sketchup::typed_value* option(const sketchup::rendering_options& options, const std::string& name) {
    const auto found = std::ranges::find(options.values, name, &sketchup::attribute::key);
    return found == options.values.end() ? nullptr : &found->value;
}

bytes scene(std::uint64_t persistent_id, const std::string& name, const bytes& rest = {}) {
    return rec(29000, rec(28500, entity(persistent_id) + rec(28501, text(name))) + rest);
}

bytes scenes(const bytes& list, const bytes& rest = {}) {
    return rec(519, rec(28000, rec(28001, list) + rest));
}

} // namespace

TEST(ModernCamera, has_its_fields) {
    const auto m = read_parts(rec(506, camera(1)));
    EXPECT_EQ(m->camera.eye, (vec3{1, 2, 3}));
    EXPECT_EQ(m->camera.target, (vec3{4, 5, 6}));
    EXPECT_EQ(m->camera.up, (vec3{0, 1, 0}));
    EXPECT_FALSE(m->camera.perspective);
    EXPECT_EQ(m->camera.field_of_view, 50);
    EXPECT_EQ(m->camera.height, 133);
    EXPECT_EQ(m->camera.aspect, 1.5);
    EXPECT_FALSE(m->camera.fov_is_vertical);
    EXPECT_TRUE(m->camera.two_dimensional);
}

TEST(ModernRenderingOptions, have_the_names_and_types_of_the_interface) {
    const auto m = read_parts(rec(
        507, rec(29500, rec(29501, i32(2)) + rec(29511, u8(1)) + rec(29532, {225, 225, 200, 255}) + rec(29545, u8(0)) +
                            rec(29548, doubles({0.25})) + rec(29513, u8(1)) + rec(29571, u8(1)))));
    ASSERT_EQ(m->rendering_options.values.size(), 5u);
    EXPECT_EQ(*option(m->rendering_options, "RenderMode"), (sketchup::typed_value{value_code::int32, std::int64_t{2}}));
    EXPECT_EQ(*option(m->rendering_options, "DisplayColorByLayer"), (sketchup::typed_value{value_code::boolean, true}));
    EXPECT_EQ(*option(m->rendering_options, "FaceFrontColor"),
              (sketchup::typed_value{value_code::color, sketchup::rgba{225, 225, 200, 255}}));
    EXPECT_EQ(*option(m->rendering_options, "DrawGround"), (sketchup::typed_value{value_code::boolean, false}));
    EXPECT_EQ(*option(m->rendering_options, "InactiveFade"), (sketchup::typed_value{value_code::float64, 0.25}));
}

TEST(ModernRenderingOptions, one_number_tells_whether_section_planes_and_cuts_are_shown) {
    const auto m = read_parts(rec(507, rec(29500, rec(29557, i32(2)))));
    EXPECT_EQ(option(m->rendering_options, "DisplaySectionPlanes")->data,
              sketchup::typed_value({value_code::boolean, false}).data);
    EXPECT_EQ(option(m->rendering_options, "DisplaySectionCuts")->data,
              sketchup::typed_value({value_code::boolean, true}).data);
}

TEST(ModernRenderingOptions, hidden_things_are_drawn_if_hidden_geometry_or_objects_are) {
    const auto drawn = [](const bytes& fields) {
        const auto m = read_parts(rec(507, rec(29500, fields)));
        const sketchup::typed_value* v = option(m->rendering_options, "DrawHidden");
        return v == nullptr ? -1 : std::get<bool>(v->data) ? 1 : 0;
    };
    EXPECT_EQ(drawn(rec(29568, u8(0)) + rec(29569, u8(1))), 1);
    EXPECT_EQ(drawn(rec(29568, u8(1))), 1);
    EXPECT_EQ(drawn(rec(29568, u8(0)) + rec(29569, u8(0))), 0);
    EXPECT_EQ(drawn(rec(29514, u8(0)) + rec(29569, u8(1))), 0);
    EXPECT_EQ(drawn({}), -1);
}

TEST(ModernShadowInfo, has_its_fields_and_dictionaries) {
    const bytes fields = rec(26001, raw(std::uint32_t{1636378200})) + rec(26002, u8(1)) +
                         rec(26003, text("Boulder (CO)")) + rec(26004, text("USA")) + rec(26005, doubles({-105.25})) +
                         rec(26006, doubles({40})) + rec(26007, doubles({-7})) + rec(26008, doubles({1, 0, 0})) +
                         rec(26009, u8(1)) + rec(26010, u8(1)) + rec(26011, u8(0)) + rec(26012, u8(0)) +
                         rec(26013, u8(1)) + rec(26014, i32(70)) + rec(26015, i32(20)) + rec(26016, u8(1));
    const auto m = read_parts(rec(516, rec(26000, entity(0, rec(14003, rec(14004, text("sun")))) + fields)));
    const sketchup::shadow_info& s = m->shadow_info;
    EXPECT_EQ(s.time, 1636378200);
    EXPECT_TRUE(s.daylight_saving);
    EXPECT_EQ(s.city, "Boulder (CO)");
    EXPECT_EQ(s.country, "USA");
    EXPECT_EQ(s.longitude, -105.25);
    EXPECT_EQ(s.latitude, 40);
    EXPECT_EQ(s.time_zone, -7);
    EXPECT_EQ(s.north, (vec3{1, 0, 0}));
    EXPECT_TRUE(s.display_shadows);
    EXPECT_TRUE(s.display_north);
    EXPECT_FALSE(s.display_on_all_faces);
    EXPECT_FALSE(s.display_on_ground);
    EXPECT_TRUE(s.edges_cast_shadows);
    EXPECT_EQ(s.light, 70);
    EXPECT_EQ(s.dark, 20);
    EXPECT_TRUE(s.use_sun_for_all_shading);
    ASSERT_EQ(s.dictionaries.count, 1u);
    EXPECT_EQ(m->dictionaries[s.dictionaries.first].name, "sun");
}

TEST(ModernScenes, keep_their_order_and_one_is_active) {
    const auto m = read_parts(scenes(scene(30, "front") + scene(31, "back"), rec(28002, id(31))));
    ASSERT_EQ(m->scenes.size(), 2u);
    EXPECT_EQ(m->scenes[0].name, "front");
    EXPECT_EQ(m->scenes[1].name, "back");
    EXPECT_EQ(m->active_scene, 1u);
    EXPECT_EQ(read_parts(scenes(scene(30, "front"), rec(28002, id(99))))->active_scene, no_index);
    EXPECT_EQ(read_parts(scenes(scene(30, "front")))->active_scene, no_index);
}

TEST(ModernScenes, hold_what_they_keep_of_the_view) {
    const bytes kept = rec(29001, i32(0x1FF)) + rec(29002, camera(9)) + rec(29005, rec(29500, rec(29545, u8(1)))) +
                       rec(29006, rec(26000, rec(26009, u8(1)))) + rec(29008, id_list({2, 99})) +
                       rec(29009, id_list({71, 72})) + rec(29015, u8(0));
    const bytes section = rec(10500, drawing(71) + rec(10501, plane_up()));
    const auto m = read_parts(layers(layer(1, "Layer0") + layer(2, "walls")) + content(rec(5007, section)) +
                              scenes(scene(30, "all", kept) + scene(31, "nothing")));
    ASSERT_EQ(m->scenes.size(), 2u);
    const sketchup::scene& all = m->scenes[0];
    EXPECT_EQ(all.flags, 0x1FFu);
    ASSERT_EQ(all.camera, 0u);
    EXPECT_EQ(m->cameras[0].eye.x, 9);
    ASSERT_TRUE(all.rendering_options);
    EXPECT_NE(option(*all.rendering_options, "DrawGround"), nullptr);
    ASSERT_TRUE(all.shadow_info);
    EXPECT_TRUE(all.shadow_info->display_shadows);
    EXPECT_EQ(all.hidden_layers, (std::vector<sketchup::index>{1}));
    EXPECT_EQ(all.active_section_planes, (std::vector<sketchup::index>{0}));
    EXPECT_FALSE(all.in_slide_show);
    const sketchup::scene& nothing = m->scenes[1];
    EXPECT_EQ(nothing.camera, no_index);
    EXPECT_FALSE(nothing.rendering_options);
    EXPECT_FALSE(nothing.shadow_info);
    EXPECT_TRUE(nothing.in_slide_show);
}

TEST(ModernScenes, one_without_an_id_is_left_out) {
    EXPECT_TRUE(read_parts(scenes(rec(29000, rec(28500, rec(28501, text("lost"))))))->scenes.empty());
}

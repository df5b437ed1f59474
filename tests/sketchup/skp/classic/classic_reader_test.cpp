#include "sketchup/skp/classic/classic_reader.h"

#include "sketchup/model/model.h"
#include "sketchup/skp/format_error.h"
#include "sketchup/skp/read_model.h"
#include "tests/sketchup/skp/classic/classic_bytes.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using classic::small_model;

const sketchup::attribute* option(const sketchup::model& m, const std::string& name) {
    const auto& values = m.rendering_options.values;
    const auto found = std::ranges::find(values, name, &sketchup::attribute::key);
    return found == values.end() ? nullptr : &*found;
}

} // namespace

TEST(ClassicReader, an_empty_model_has_its_layer_and_settings) {
    const auto m = skp::read_model(small_model().file());
    EXPECT_EQ(m->version, (sketchup::version_number{6, 4, 112}));
    EXPECT_FALSE(m->is_modern);
    EXPECT_EQ(m->guid[0], 1);
    EXPECT_EQ(m->guid[15], 16);
    EXPECT_EQ(m->description, "a small model");
    ASSERT_EQ(m->layers.size(), 1u);
    EXPECT_EQ(m->layers[0].name, "Layer0");
    EXPECT_FALSE(m->layers[0].hidden);
    const sketchup::material& of_layer = m->materials[m->layers[0].material];
    EXPECT_TRUE(of_layer.is_private);
    EXPECT_EQ(of_layer.color, (sketchup::rgba{1, 2, 3, 255}));
    EXPECT_TRUE(m->listed_materials.empty());
    EXPECT_TRUE(m->definitions.empty());
    EXPECT_EQ(m->active_scene, sketchup::no_index);
}

TEST(ClassicReader, ids_count_from_one_in_reading_order) {
    const auto m = skp::read_model(small_model().file());
    EXPECT_EQ(m->id, 1);
    EXPECT_EQ(m->camera.id, 2);
    EXPECT_EQ(m->rendering_options.id, 3);
    EXPECT_EQ(m->root.id, 4);
    EXPECT_EQ(m->layers[0].id, 5);
    EXPECT_EQ(m->materials[0].id, 6);
    EXPECT_EQ(m->shadow_info.id, 7);
}

TEST(ClassicReader, the_sun_is_stored_city_first_and_longitude_first) {
    const auto m = skp::read_model(small_model().file());
    const sketchup::shadow_info& s = m->shadow_info;
    EXPECT_EQ(s.time, 1604842200);
    EXPECT_EQ(s.city, "Boulder");
    EXPECT_EQ(s.country, "USA");
    EXPECT_EQ(s.longitude, -105.25);
    EXPECT_EQ(s.latitude, 40.5);
    EXPECT_EQ(s.time_zone, -7);
    EXPECT_EQ(s.north, (sketchup::vec3{0, 1, 0}));
    EXPECT_TRUE(s.display_on_all_faces);
    EXPECT_FALSE(s.edges_cast_shadows);
    EXPECT_EQ(s.light, 80);
    EXPECT_EQ(s.dark, 45);
}

TEST(ClassicReader, whether_shadows_are_shown_comes_from_the_rendering_options) {
    const auto m = skp::read_model(small_model().file());
    EXPECT_TRUE(m->shadow_info.display_shadows);
    EXPECT_EQ(option(*m, "DisplayShadows"), nullptr);
}

TEST(ClassicReader, rendering_options_bear_the_names_and_types_of_the_interface) {
    using sketchup::value_code;
    const auto m = skp::read_model(small_model().file());
    const auto value = [&m](const std::string& name) {
        const sketchup::attribute* found = option(*m, name);
        return found != nullptr ? found->value : sketchup::typed_value{};
    };
    EXPECT_EQ(value("RenderMode"), (sketchup::typed_value{value_code::int32, std::int64_t{2}}));
    EXPECT_EQ(value("DisplayColorByLayer"), (sketchup::typed_value{value_code::boolean, false}));
    EXPECT_EQ(value("Texture"), (sketchup::typed_value{value_code::boolean, true}));
    EXPECT_EQ(value("FaceFrontColor"), (sketchup::typed_value{value_code::color, sketchup::rgba{225, 200, 180, 255}}));
    EXPECT_EQ(value("InactiveFade"), (sketchup::typed_value{value_code::float64, 0.25}));
    EXPECT_EQ(value("DrawGround"), (sketchup::typed_value{value_code::boolean, false}));
    EXPECT_EQ(value("GroundTransparency"), (sketchup::typed_value{value_code::int32, std::int64_t{50}}));
    EXPECT_EQ(value("DisplaySectionPlanes"), (sketchup::typed_value{value_code::boolean, false}));
    EXPECT_EQ(value("DisplaySectionCuts"), (sketchup::typed_value{value_code::boolean, true}));
    EXPECT_EQ(value("DisplayWatermarks"), (sketchup::typed_value{value_code::boolean, true}));
}

TEST(ClassicReader, options_that_came_later_are_not_in_an_old_record) {
    const auto m = skp::read_model(small_model().file());
    EXPECT_NE(option(*m, "DrawHidden"), nullptr);
    EXPECT_EQ(option(*m, "DrawHiddenGeometry"), nullptr);
    EXPECT_EQ(option(*m, "DrawBackEdges"), nullptr);
    EXPECT_EQ(option(*m, "SectionCutFilled"), nullptr);
}

TEST(ClassicReader, bytes_behind_the_model_are_refused) {
    std::vector<std::uint8_t> bytes = small_model().file();
    bytes.push_back(0);
    EXPECT_THROW(skp::read_model(bytes), skp::format_error);
}

TEST(ClassicReader, every_shortened_file_is_refused) {
    const std::vector<std::uint8_t> bytes = small_model().file();
    for (std::size_t size = 0; size < bytes.size(); ++size)
        EXPECT_THROW(skp::read_model({bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size)}),
                     skp::format_error)
            << size;
}

TEST(ClassicReader, any_single_damaged_byte_is_survived) {
    const std::vector<std::uint8_t> bytes = small_model().file();
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        for (const unsigned flip : {0x01u, 0x80u, 0xFFu}) {
            std::vector<std::uint8_t> damaged = bytes;
            damaged[i] = static_cast<std::uint8_t>(damaged[i] ^ flip);
            try {
                EXPECT_NE(skp::read_model(damaged), nullptr);
            } catch (const skp::format_error&) {
                continue;
            }
        }
    }
}

TEST(ClassicReader, a_message_names_the_class_and_the_offset) {
    small_model small;
    small.entities = small.empty;
    small.entities.u32(1).new_class("CFace").drawing().zeros(4 * 8).u32(900000);
    const std::vector<std::uint8_t> file = small.file();
    try {
        skp::read_model(file);
        FAIL() << "opened";
    } catch (const skp::format_error& e) {
        EXPECT_EQ(e.why, skp::failure::damaged);
        EXPECT_NE(std::string(e.what()).find(", CFace: count 900000 needs 1800000 bytes, "), std::string::npos)
            << e.what();
    }
}

TEST(ClassicReader, a_model_without_any_layer_gets_the_default_one) {
    small_model small;
    std::vector<std::uint8_t> file = small.file();
    const std::string name = "CLayer";
    const auto at = std::search(file.begin(), file.end(), name.begin(), name.end());
    ASSERT_NE(at, file.end());
    // Cut out the layer: its tag (6 + 6), body and the tag of the active one; the count in front of it becomes zero.
    const std::size_t tag = static_cast<std::size_t>(at - file.begin()) - 6;
    const std::size_t body = 2 + 16 + 1 + small.layer_material.bytes.size() + 4;
    file.erase(file.begin() + static_cast<std::ptrdiff_t>(tag),
               file.begin() + static_cast<std::ptrdiff_t>(tag + 12 + body + 2));
    file[tag - 4] = 0;
    const auto m = skp::read_model(file);
    ASSERT_EQ(m->layers.size(), 1u);
    EXPECT_EQ(m->layers[0].name, "Layer0");
}

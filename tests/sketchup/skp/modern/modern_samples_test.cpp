// Every real model of the archive container gives the figures that were established for it by independent means.

#include "sketchup/model/model.h"
#include "sketchup/skp/format_error.h"
#include "sketchup/skp/read_model.h"
#include "tests/samples_folder.h"
#include "tests/sketchup/skp/model_figures.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

namespace {

using nlohmann::json;

json expected_figures(const std::string& folder) {
    std::ifstream file(folder + "expected.json");
    return json::parse(file);
}

// Leaves out what needs more than a reader: sizes of pictures, and all that follows from placing the content.
json readable_part(json expected) {
    for (const char* key : {"opens", "bytes", "placed", "written", "written_turned"})
        expected.erase(key);
    for (json& material : expected["materials"])
        material.erase("pixels");
    return expected;
}

const sketchup::face* face_with_id(const sketchup::model& m, std::int64_t persistent_id) {
    const auto found = std::ranges::find(m.faces, persistent_id, &sketchup::face::persistent_id);
    return found == m.faces.end() ? nullptr : &*found;
}

} // namespace

TEST(ModernSamples, every_model_gives_the_figures_established_for_it) {
    const std::string folder = samples_folder();
    if (folder.empty())
        GTEST_SKIP() << "no folder of sample models";
    const json all = expected_figures(folder);
    int models = 0;
    for (const auto& [name, expected] : all.items()) {
        if (!expected["opens"] || expected["container"] != "modern")
            continue;
        SCOPED_TRACE(name);
        ++models;
        std::unique_ptr<sketchup::model> m;
        ASSERT_NO_THROW(m = skp::read_model(file_bytes(folder + name)));
        const json found = model_figures(*m);
        const json wanted = readable_part(expected);
        for (const auto& [key, value] : wanted.items())
            EXPECT_EQ(found.value(key, json()).dump(), value.dump()) << key;
    }
    EXPECT_GE(models, 16);
}

TEST(ModernSamples, a_file_that_asks_for_a_newer_reader_is_refused_as_too_new) {
    const std::string folder = samples_folder();
    if (folder.empty())
        GTEST_SKIP() << "no folder of sample models";
    try {
        skp::read_model(file_bytes(folder + "testup-skp-vff-hard-block.skp"));
        FAIL() << "opened";
    } catch (const skp::format_error& e) {
        EXPECT_EQ(e.why, skp::failure::too_new) << e.what();
    }
}

TEST(ModernSamples, a_file_of_an_unknown_layout_opens_if_it_asks_for_no_newer_reader) {
    const std::string folder = samples_folder();
    if (folder.empty())
        GTEST_SKIP() << "no folder of sample models";
    const auto m = skp::read_model(file_bytes(folder + "testup-skp-vff-soft-block.skp"));
    EXPECT_EQ(m->version, (sketchup::version_number{22, 0, 0}));
    EXPECT_TRUE(m->is_modern);
}

TEST(ModernSamples, the_guid_of_the_model_comes_from_the_summary) {
    const std::string folder = samples_folder();
    if (folder.empty())
        GTEST_SKIP() << "no folder of sample models";
    const auto m = skp::read_model(file_bytes(folder + "testup-2021.skp"));
    // 35929446-5a06-475f-9590-b9b14c1b2876, its first three groups little-endian
    const sketchup::guid wanted = {0x46, 0x94, 0x92, 0x35, 0x06, 0x5a, 0x5f, 0x47,
                                   0x95, 0x90, 0xb9, 0xb1, 0x4c, 0x1b, 0x28, 0x76};
    EXPECT_EQ(m->guid, wanted);
}

TEST(ModernSamples, every_picture_is_handed_out_as_it_stands_in_the_file) {
    const std::string folder = samples_folder();
    if (folder.empty())
        GTEST_SKIP() << "no folder of sample models";
    for (const char* name : {"testup-uv_tile_at.skp", "playdate-cabinet.skp", "projectm6-map.skp"}) {
        const auto m = skp::read_model(file_bytes(folder + name));
        ASSERT_FALSE(m->pictures.empty()) << name;
        for (const sketchup::picture& p : m->pictures) {
            const std::vector<std::uint8_t> bytes = p.load();
            ASSERT_GT(bytes.size(), 4u) << p.name;
            const bool is_jpeg = bytes[0] == 0xFF && bytes[1] == 0xD8;
            const bool is_png = bytes[0] == 0x89 && bytes[1] == 'P';
            EXPECT_TRUE(is_jpeg || is_png) << p.name;
        }
    }
}

TEST(ModernSamples, an_image_whose_material_lost_its_picture_is_read_without_one) {
    const std::string folder = samples_folder();
    if (folder.empty())
        GTEST_SKIP() << "no folder of sample models";
    const auto m = skp::read_model(file_bytes(folder + "testup-missing_material.skp"));
    ASSERT_EQ(m->faces.size(), 1u);
    const sketchup::index painted = m->faces[0].material;
    ASSERT_NE(painted, sketchup::no_index);
    EXPECT_TRUE(m->materials[painted].is_private);
    EXPECT_EQ(m->materials[painted].texture, sketchup::no_index);
    EXPECT_TRUE(m->pictures.empty());
}

TEST(ModernSamples, faces_have_the_known_uses_of_their_texture) {
    const std::string folder = samples_folder();
    if (folder.empty())
        GTEST_SKIP() << "no folder of sample models";
    const auto m = skp::read_model(file_bytes(folder + "testup-uv_tile_at_variations.skp"));
    struct use {
        std::int64_t face;
        bool positioned;
        bool projected;
    };
    for (const use& u : {use{27806, true, false}, use{27870, true, false}, use{28026, true, false},
                         use{27997, true, false}, use{27916, true, true}, use{28072, true, true}}) {
        const sketchup::face* f = face_with_id(*m, u.face);
        ASSERT_NE(f, nullptr) << u.face;
        ASSERT_NE(f->texture_mapping, sketchup::no_index) << u.face;
        const sketchup::side_mapping& front = m->texture_mappings[f->texture_mapping].front;
        EXPECT_EQ(front.positioned, u.positioned) << u.face;
        EXPECT_EQ(front.projected, u.projected) << u.face;
    }
    ASSERT_NE(face_with_id(*m, 27788), nullptr);
    EXPECT_EQ(face_with_id(*m, 27788)->texture_mapping, sketchup::no_index);
}

TEST(ModernSamples, a_layer_stands_in_its_folder) {
    const std::string folder = samples_folder();
    if (folder.empty())
        GTEST_SKIP() << "no folder of sample models";
    const auto m = skp::read_model(file_bytes(folder + "wfc-kenny_nature_kit_ground-tagged-weighted.skp"));
    ASSERT_EQ(m->layer_folders.size(), 1u);
    EXPECT_EQ(m->layer_folders[0].name, "Assets");
    EXPECT_FALSE(m->layer_folders[0].hidden);
    ASSERT_EQ(m->layers.size(), 2u);
    EXPECT_EQ(m->layers[0].folder, sketchup::no_index);
    EXPECT_EQ(m->layers[1].name, "Tiles");
    EXPECT_EQ(m->layers[1].folder, 0u);
}

TEST(ModernSamples, every_loop_closes_over_shared_vertices) {
    const std::string folder = samples_folder();
    if (folder.empty())
        GTEST_SKIP() << "no folder of sample models";
    const auto m = skp::read_model(file_bytes(folder + "openskp-Untitled.skp"));
    const auto from = [&m](const sketchup::edge_use& u) {
        const sketchup::edge& e = m->edges[u.edge];
        return u.reversed ? e.end : e.start;
    };
    const auto to = [&m](const sketchup::edge_use& u) {
        const sketchup::edge& e = m->edges[u.edge];
        return u.reversed ? e.start : e.end;
    };
    ASSERT_FALSE(m->loops.empty());
    for (const sketchup::loop& l : m->loops)
        for (sketchup::index i = 0; i < l.uses.count; ++i)
            EXPECT_EQ(to(m->edge_uses[l.uses.first + i]), from(m->edge_uses[l.uses.first + (i + 1) % l.uses.count]));
}

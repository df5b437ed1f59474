// Small models, through their files and the C interface, and what becomes of them.

#include "image/encode_picture.h"
#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "tests/gltf/read_glb.h"
#include "tests/support/temporary_folder.h"
#include "tools/model_opening/opened_model.h"
#include "tools/skp_glb/skp_glb.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

using nlohmann::json;
using sketchup::entity_kind;
using sketchup::entity_place;
using sketchup::list_builder;
using sketchup::model_builder;

namespace {

using numbers = std::vector<double>;

constexpr double ten_inches = 0.254;

class made_model {
public:
    read_glb convert(const skp_glb_options& options = {}) {
        const auto bytes = skp::write_classic(*builder.finish(), skp::classic_version::v17);
        const opened_model opened(
            folder.write("model.skp", {reinterpret_cast<const char*>(bytes.data()), bytes.size()}));
        EXPECT_TRUE(opened.is_open());
        result = write_skp_glb(opened.model(), "model.skp", folder / "out.glb", options);
        EXPECT_EQ(result.failure, "");
        EXPECT_FALSE(platform::exists(folder / "out.glb.picture.png"));
        return read_glb(folder / "out.glb");
    }

    temporary_folder folder;
    model_builder builder;
    skp_glb_result result;
};

// Of one primitive, the triangles or the lines.
std::vector<json> primitives(const json& mesh, bool lines) {
    std::vector<json> found;
    for (const json& each : mesh["primitives"])
        if (each.contains("mode") == lines)
            found.push_back(each);
    return found;
}

std::vector<std::uint8_t> small_picture(image::picture_format format) {
    return image::encode_picture(*image::picture::make({2, 2, 24}), format);
}

} // namespace

TEST(SkpGlb, puts_loose_faces_into_the_mesh_of_the_root_in_metres) {
    made_model made;
    made.builder.root().square(10);
    const read_glb glb = made.convert();
    const json root = glb.node("model.skp");
    EXPECT_EQ(root["rotation"], json({-0.70710677, 0, 0, 0.70710677}));
    const auto faces = primitives(glb.mesh_of("model.skp"), false);
    ASSERT_EQ(faces.size(), 1U);
    EXPECT_EQ(glb.indices(faces[0]).size(), 6U);
    const json range = glb.text["accessors"][faces[0]["attributes"]["POSITION"].get<std::size_t>()];
    EXPECT_EQ(range["max"], json({double{0.254F}, double{0.254F}, 0.0}));
    EXPECT_FALSE(faces[0]["attributes"].contains("TEXCOORD_0"));
    EXPECT_EQ(glb.material_of(faces[0])["name"], "no material");
    EXPECT_EQ(glb.material_of(faces[0])["doubleSided"], true);
    const auto edges = primitives(glb.mesh_of("model.skp"), true);
    ASSERT_EQ(edges.size(), 1U);
    EXPECT_EQ(edges[0]["extras"], json({{"edges", true}}));
    EXPECT_EQ(glb.indices(edges[0]).size(), 8U);                // four edges
    EXPECT_EQ(glb.attribute(edges[0], "POSITION").size(), 12U); // four corners
    EXPECT_EQ(glb.extras()["kind"], "model");
    EXPECT_EQ(glb.extras()["counts"]["triangles"], 2);
    EXPECT_EQ(glb.extras()["box_metres"], json({{0, 0, 0}, {ten_inches, ten_inches, 0}}));
}

TEST(SkpGlb, shares_the_mesh_of_a_definition_among_its_placements) {
    made_model made;
    list_builder bolt = made.builder.component("bolt");
    bolt.square(10);
    made.builder.root().instance(bolt, sketchup::moved({100, 0, 0}), "left");
    made.builder.root().instance(bolt, sketchup::moved({0, 0, 100}));
    const read_glb glb = made.convert();
    EXPECT_EQ(glb.node("left")["mesh"], glb.node("bolt")["mesh"]);
    EXPECT_EQ(glb.node("left")["translation"], json({2.54, 0, 0}));
    EXPECT_EQ(glb.node("bolt")["translation"], json({0, 0, 2.54}));
    EXPECT_EQ(glb.node("left")["extras"], json({{"layer", "Layer0"}}));
    EXPECT_EQ(glb.text["meshes"].size(), 1U);
    EXPECT_EQ(glb.text["meshes"][0]["name"], "bolt");
    EXPECT_EQ(glb.extras()["counts"]["triangles"], 2);
    EXPECT_EQ(glb.extras()["counts"]["triangles_placed"], 4);
    EXPECT_EQ(glb.extras()["counts"]["placements"], 2);
}

TEST(SkpGlb, has_a_second_mesh_only_where_an_inherited_material_looks_different) {
    made_model made;
    const sketchup::index red = made.builder.material("Red", {255, 0, 0, 255});
    list_builder bare = made.builder.component("bare");
    bare.square(10);
    list_builder painted = made.builder.component("painted");
    const entity_place face = painted.square(10);
    made.builder.face(face).material = red;
    made.builder.face(face).back_material = red;
    for (const list_builder& each : {bare, painted}) {
        const entity_place in_red = made.builder.root().instance(each, sketchup::identity_transform, "red one");
        made.builder.placement(in_red).material = red;
        made.builder.root().instance(each);
    }
    const read_glb glb = made.convert();
    ASSERT_EQ(glb.text["meshes"].size(), 3U); // two of the bare one, one of the painted one
    const json in_red = glb.mesh_of("red one");
    EXPECT_EQ(glb.material_of(primitives(in_red, false)[0])["name"], "Red");
    EXPECT_EQ(glb.material_of(primitives(in_red, false)[0])["pbrMetallicRoughness"]["baseColorFactor"],
              json({1, 0, 0, 1}));
    EXPECT_EQ(glb.material_of(primitives(glb.mesh_of("bare"), false)[0])["name"], "no material");
}

TEST(SkpGlb, nests_nodes_as_placements_nest) {
    made_model made;
    list_builder outer = made.builder.root().group("outer", sketchup::moved({10, 0, 0}));
    list_builder inner = outer.group("inner");
    inner.square(10);
    const read_glb glb = made.convert();
    const std::size_t child = glb.node("outer")["children"][0];
    EXPECT_EQ(glb.text["nodes"][child]["name"], "inner");
    EXPECT_FALSE(glb.node("outer").contains("mesh"));
    EXPECT_TRUE(glb.node("inner").contains("mesh"));
}

TEST(SkpGlb, draws_both_sides_of_a_face_that_is_painted_in_two_ways) {
    made_model made;
    const entity_place face = made.builder.root().square(10);
    made.builder.face(face).material = made.builder.material("Red", {255, 0, 0, 255});
    made.builder.face(face).back_material = made.builder.material("Blue", {0, 0, 255, 255}, 0.5);
    const read_glb glb = made.convert();
    const auto sides = primitives(glb.mesh_of("model.skp"), false);
    ASSERT_EQ(sides.size(), 2U);
    EXPECT_EQ(glb.material_of(sides[0])["name"], "Red");
    EXPECT_FALSE(glb.material_of(sides[0]).contains("doubleSided"));
    EXPECT_EQ(glb.material_of(sides[1])["name"], "Blue");
    EXPECT_EQ(glb.material_of(sides[1])["alphaMode"], "BLEND");
    EXPECT_EQ(glb.material_of(sides[1])["pbrMetallicRoughness"]["baseColorFactor"], json({0, 0, 1, 0.5}));
    EXPECT_EQ(glb.attribute(sides[0], "NORMAL")[2], 1);
    EXPECT_EQ(glb.attribute(sides[1], "NORMAL")[2], -1);
    const numbers front = glb.indices(sides[0]);
    EXPECT_EQ(glb.indices(sides[1]), (numbers{front[0], front[2], front[1], front[3], front[5], front[4]}));
}

TEST(SkpGlb, embeds_a_jpeg_as_the_model_holds_it_with_v_downwards) {
    made_model made;
    const auto picture = small_picture(image::picture_format::jpeg);
    const sketchup::index oak = made.builder.textured_material("Oak", picture, "oak.jpg", 5, 10);
    const entity_place face = made.builder.root().square(10);
    made.builder.face(face).material = oak;
    const read_glb glb = made.convert();
    ASSERT_EQ(glb.text["images"].size(), 1U);
    EXPECT_EQ(glb.text["images"][0]["mimeType"], "image/jpeg");
    const json view = glb.text["bufferViews"][glb.text["images"][0]["bufferView"].get<std::size_t>()];
    EXPECT_EQ(glb.buffer.substr(view["byteOffset"], view["byteLength"]), std::string(picture.begin(), picture.end()));
    // Ten inches are two tiles of 5 across and one of 10 upwards: u to 2, and v from 1 at the bottom to 0.
    const json part = primitives(glb.mesh_of("model.skp"), false)[0];
    const numbers positions = glb.attribute(part, "POSITION");
    const numbers coordinates = glb.attribute(part, "TEXCOORD_0");
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_NEAR(coordinates[2 * i], positions[3 * i] / ten_inches * 2, 1e-6);
        EXPECT_NEAR(coordinates[2 * i + 1], 1 - positions[3 * i + 1] / ten_inches, 1e-6);
    }
}

TEST(SkpGlb, lays_an_inherited_picture_as_large_as_its_tile) {
    made_model made;
    const sketchup::index oak =
        made.builder.textured_material("Oak", small_picture(image::picture_format::png), "oak.png", 5, 10);
    list_builder group = made.builder.root().group("bare");
    group.square(10);
    made.builder.placement(group.placement()).material = oak;
    const read_glb glb = made.convert();
    const json part = primitives(glb.mesh_of("bare"), false)[0];
    EXPECT_EQ(glb.material_of(part)["name"], "Oak");
    const numbers positions = glb.attribute(part, "POSITION");
    const numbers coordinates = glb.attribute(part, "TEXCOORD_0");
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_NEAR(coordinates[2 * i], positions[3 * i] / ten_inches * 2, 1e-6);
}

TEST(SkpGlb, leaves_out_what_is_hidden_unless_it_is_asked_for) {
    for (const bool keep : {false, true}) {
        made_model made;
        const sketchup::index off = made.builder.layer("Off", false);
        list_builder hidden = made.builder.root().group("hidden");
        hidden.square(10);
        made.builder.placement(hidden.placement()).hidden = true;
        list_builder switched = made.builder.root().group("switched off");
        switched.square(10);
        made.builder.placement(switched.placement()).layer = off;
        const entity_place face = made.builder.root().face({{0, 0, 5}, {10, 0, 5}, {0, 10, 5}});
        made.builder.face(face).hidden = true;
        const read_glb glb = made.convert({.keep_hidden = keep});
        EXPECT_EQ(glb.extras()["layers"],
                  json({{{"name", "Layer0"}, {"visible", true}}, {{"name", "Off"}, {"visible", false}}}));
        if (!keep) {
            EXPECT_TRUE(glb.node("hidden").is_null());
            EXPECT_TRUE(glb.node("switched off").is_null());
            EXPECT_TRUE(primitives(glb.mesh_of("model.skp"), false).empty());
            continue;
        }
        EXPECT_EQ(glb.node("hidden")["extras"], json({{"layer", "Layer0"}, {"hidden", true}}));
        EXPECT_EQ(glb.node("switched off")["extras"], json({{"layer", "Off"}, {"hidden", true}}));
        EXPECT_EQ(primitives(glb.mesh_of("model.skp"), false)[0]["extras"], json({{"hidden", true}}));
    }
}

TEST(SkpGlb, names_the_layer_of_faces_that_are_not_on_the_default_one) {
    made_model made;
    const entity_place face = made.builder.root().square(10);
    made.builder.face(face).layer = made.builder.layer("Walls");
    EXPECT_EQ(primitives(made.convert().mesh_of("model.skp"), false)[0]["extras"], json({{"layer", "Walls"}}));
}

TEST(SkpGlb, writes_attributes_only_when_asked) {
    for (const bool asked : {false, true}) {
        made_model made;
        list_builder lamp = made.builder.component("lamp");
        lamp.square(10);
        const entity_place placed = made.builder.root().instance(lamp);
        made.builder.attribute(placed, "maker", "name", sketchup::text("Anna"));
        made.builder.attribute(placed, "maker", "year", sketchup::whole_number(1999));
        made.builder.attribute(placed, "maker", "good", sketchup::truth(true));
        const read_glb glb = made.convert({.with_attributes = asked});
        const json extras = glb.node("lamp")["extras"];
        if (asked)
            EXPECT_EQ(extras["attributes"], json({{"maker", {{"name", "Anna"}, {"year", 1999}, {"good", true}}}}));
        else
            EXPECT_FALSE(extras.contains("attributes"));
    }
}

TEST(SkpGlb, has_the_cameras_of_the_model_and_its_scenes) {
    made_model made;
    sketchup::camera& own = made.builder.model().camera;
    own.eye = {0, -100, 0};
    own.target = {0, 0, 0};
    own.field_of_view = 40;
    sketchup::camera& kept = made.builder.scene_camera(made.builder.scene("Top"));
    kept.eye = {0, 0, 200};
    kept.target = {0, 0, 0};
    kept.up = {0, 1, 0};
    kept.perspective = false;
    kept.height = 100;
    const read_glb glb = made.convert();
    EXPECT_EQ(glb.extras()["views"], json({"view of the model", "Top"}));
    const json view = glb.node("view of the model");
    EXPECT_EQ(view["translation"], json({0, -2.54, 0}));
    const json camera = glb.text["cameras"][view["camera"].get<std::size_t>()];
    EXPECT_NEAR(camera["perspective"]["yfov"].get<double>(), 40 * std::numbers::pi / 180, 1e-6);
    const json top = glb.node("Top");
    EXPECT_EQ(top["translation"], json({0, 0, 5.08}));
    EXPECT_FALSE(top.contains("rotation")); // it looks down already, as cameras do by themselves
    EXPECT_EQ(glb.text["cameras"][top["camera"].get<std::size_t>()]["orthographic"]["ymag"], 1.27);
}

TEST(SkpGlb, splits_a_placement_that_shears_into_two_nodes) {
    made_model made;
    list_builder part = made.builder.component("part");
    part.square(10);
    sketchup::transform sheared = sketchup::identity_transform;
    sheared[4] = 1;
    made.builder.root().instance(part, sheared);
    const read_glb glb = made.convert();
    const json outer = glb.node("part");
    EXPECT_FALSE(outer.contains("mesh"));
    const json inner = glb.text["nodes"][outer["children"][0].get<std::size_t>()];
    EXPECT_TRUE(inner.contains("mesh"));
    EXPECT_TRUE(inner.contains("rotation"));
}

TEST(SkpGlb, stands_a_node_in_each_section_plane) {
    made_model made;
    made.builder.root().section_plane({0, 0, 1, -100}, true);
    const read_glb glb = made.convert();
    const json plane = glb.node("section plane 1");
    EXPECT_EQ(plane["translation"], json({0, 0, 2.54}));
    EXPECT_EQ(plane["extras"], json({{"section_plane", true}, {"name", "section plane 1"}, {"active", true}}));
    EXPECT_EQ(glb.extras()["section_planes"], json({{{"name", "section plane 1"}, {"plane", {0, 0, 1, -2.54}}}}));
}

TEST(SkpGlb, lists_section_planes_where_they_are_placed_and_none_that_is_hidden) {
    made_model made;
    list_builder group = made.builder.root().group("inner", sketchup::moved({0, 0, 50}));
    group.section_plane({0, 0, 1, -100}, false);
    list_builder mirrored = made.builder.root().group("mirrored", sketchup::scaled(1, 1, -2));
    mirrored.section_plane({0, 0, 1, -100}, false);
    list_builder hidden = made.builder.root().group("hidden");
    hidden.section_plane({1, 0, 0, 0}, false);
    made.builder.placement(hidden.placement()).hidden = true;
    const read_glb glb = made.convert();
    // z = 150 inches are 3.81 m; z = 100 mirrored and twice as far is z = -200, 5.08 m, and it looks down.
    EXPECT_EQ(glb.extras()["section_planes"], json({{{"name", "section plane 1"}, {"plane", {0, 0, 1, -3.81}}},
                                                    {{"name", "section plane 2"}, {"plane", {0, 0, -1, -5.08}}}}));
    EXPECT_EQ(glb.node("section plane 1")["translation"], json({0, 0, 2.54})); // within its group
}

TEST(SkpGlb, places_an_image_as_a_rectangle_of_it) {
    made_model made;
    const sketchup::index image =
        made.builder.image_definition(small_picture(image::picture_format::png), "cat.png", 2, 2);
    made.builder.root().image(image, sketchup::scaled(10, 10, 10));
    const read_glb glb = made.convert();
    const json quad = glb.mesh_of("cat.png")["primitives"][0];
    const double pixels = double{static_cast<float>(2 * 0.0254)};
    EXPECT_EQ(glb.attribute(quad, "POSITION"), (numbers{0, 0, 0, pixels, 0, 0, pixels, pixels, 0, 0, pixels, 0}));
    EXPECT_EQ(glb.attribute(quad, "TEXCOORD_0"), (numbers{0, 1, 1, 1, 1, 0, 0, 0}));
    EXPECT_EQ(glb.node("cat.png")["scale"], json({10, 10, 10}));
    EXPECT_TRUE(glb.material_of(quad)["pbrMetallicRoughness"].contains("baseColorTexture"));
}

TEST(SkpGlb, paints_by_layer_where_the_model_does) {
    made_model made;
    made.builder.set_option("DisplayColorByLayer", sketchup::truth(true));
    const entity_place face = made.builder.root().square(10);
    made.builder.face(face).material = made.builder.material("Red", {255, 0, 0, 255});
    made.builder.face(face).layer = made.builder.layer("Green layer", true, {0, 255, 0, 255});
    const read_glb glb = made.convert();
    EXPECT_EQ(
        glb.material_of(primitives(glb.mesh_of("model.skp"), false)[0])["pbrMetallicRoughness"]["baseColorFactor"],
        json({0, 1, 0, 1}));
}

TEST(SkpGlb, of_an_empty_model_is_a_scene_with_its_root) {
    made_model made;
    const read_glb glb = made.convert();
    EXPECT_TRUE(glb.node("model.skp").contains("rotation"));
    EXPECT_FALSE(glb.text.contains("meshes"));
    EXPECT_TRUE(glb.extras()["box_metres"].is_null());
}

TEST(SkpGlb, bears_placements_a_thousand_deep) {
    made_model made;
    list_builder list = made.builder.root().group("0");
    for (int depth = 1; depth < 1000; ++depth)
        list = list.group(std::to_string(depth));
    list.square(10);
    const read_glb glb = made.convert();
    EXPECT_TRUE(glb.node("999").contains("mesh"));
    EXPECT_EQ(glb.extras()["counts"]["placements"], 1000);
}

TEST(SkpGlb, of_many_placements_takes_less_than_200_bytes_for_each) {
    std::array<std::uint64_t, 2> sizes{};
    for (const int count : {1, 20001}) {
        made_model made;
        list_builder bolt = made.builder.component("bolt");
        bolt.box({0, 0, 0}, {1, 1, 1});
        for (int i = 0; i < count; ++i)
            made.builder.root().instance(bolt,
                                         sketchup::after(sketchup::moved({i * 1.37, i % 1000 * 0.731, i % 77 * 3.9}),
                                                         sketchup::turned_about_z(i * 1.3)));
        made.convert();
        sizes[count == 1 ? 0 : 1] = *platform::file_size(made.folder / "out.glb");
    }
    EXPECT_LT(sizes[1] - sizes[0], 20000U * 200);
}

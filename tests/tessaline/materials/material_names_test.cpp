// What a material is called, and under which names its files go.

#include "tessaline/materials/material_names.h"

#include "sketchup/api/handles.h"
#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/link.h"

#include <gtest/gtest.h>

namespace {

// The name that a material of this name gets.
std::string name_of(const std::string& stored) {
    sketchup::model_builder builder;
    builder.material(stored, {});
    auto model = builder.finish();
    skp::link(*model);
    SUInitialize();
    SUModelRef opened = sketchup::api::adopt_model(std::move(model));
    SUMaterialRef material = SU_INVALID;
    std::size_t count = 0;
    SUModelGetMaterials(opened, 1, &material, &count);
    const std::string name = get_material_name(material);
    SUModelRelease(&opened);
    SUTerminate();
    return name;
}

std::string file_of(const material_key& key) {
    return file_names_of(key).file;
}

TEST(MaterialNames, an_ordinary_name_comes_back_as_it_is) {
    for (const char* name : {"Brick", "Brick Wall (2) [old]", "R&D", "a/b\\c:d*e?f\"g<h>i|j",
                             "Stra\xC3\x9F"
                             "e"})
        EXPECT_EQ(name_of(name), name);
    EXPECT_EQ(name_of(""), "");
}

TEST(MaterialNames, an_escaped_name_comes_back_unescaped) {
    EXPECT_EQ(name_of("R%26D"), "R&D");
    EXPECT_EQ(name_of("50%5"), "50\x05");
    EXPECT_EQ(name_of("50% off"), "50% off"); // what follows the sign is no escape: it is escaped, and unescaped again
}

TEST(MaterialNames, a_name_counts_512_units_of_utf_16) {
    EXPECT_EQ(name_of(std::string(513, 'a')), std::string(512, 'a'));
    std::string two_bytes;  // one unit each
    std::string four_bytes; // two units each
    for (int i = 0; i != 512; ++i)
        two_bytes += "\xC3\xA4";
    for (int i = 0; i != 256; ++i)
        four_bytes += "\xF0\x9F\xA7\xB1";
    EXPECT_EQ(name_of(two_bytes + "x"), two_bytes);
    EXPECT_EQ(name_of(four_bytes + "x"), four_bytes);
    EXPECT_EQ(name_of("x" + four_bytes), "x" + four_bytes.substr(0, four_bytes.size() - 4)) << "cut at a whole letter";
}

TEST(MaterialNames, the_name_of_no_material_is_empty) {
    EXPECT_EQ(get_material_name(SU_INVALID), "");
}

TEST(MaterialNames, each_star_becomes_a_word) {
    EXPECT_EQ(working_name_of("*1"), "Material1");
    EXPECT_EQ(working_name_of("a*b*"), "aMaterialbMaterial");
    EXPECT_EQ(working_name_of("plain"), "plain");
}

TEST(MaterialFileNames, a_textured_material_is_numbered_by_its_texture) {
    const material_file_names names =
        file_names_of({.working_name = "Brick", .material_id = 12, .texture_id = 7, .is_textured = true});
    EXPECT_EQ(names.file, "TEX%3a0007_Brick.OrnMaterial");
    EXPECT_EQ(names.object_file, "TEX%3a0007_Brick.qlobj");
    EXPECT_EQ(names.base, "Brick.OrnMaterial");
    EXPECT_EQ(names.encoded_name, "Brick");
    EXPECT_EQ(names.number, 7);
}

TEST(MaterialFileNames, without_a_texture_id_the_material_id_stands_in) {
    EXPECT_EQ(file_of({.working_name = "Brick", .material_id = 12, .is_textured = true}),
              "TEX%3a0012_Brick.OrnMaterial");
}

TEST(MaterialFileNames, a_texture_id_of_0_is_one) {
    EXPECT_EQ(file_of({.working_name = "Brick", .material_id = 12, .texture_id = 0, .is_textured = true}),
              "TEX%3a0000_Brick.OrnMaterial");
}

TEST(MaterialFileNames, among_scattered_components_a_textured_material_is_numbered_by_itself) {
    const material_file_names names = file_names_of(
        {.working_name = "Brick", .material_id = 12, .texture_id = 7, .is_textured = true, .is_scattered = true});
    EXPECT_EQ(names.file, "TEX%3a0012_Brick.OrnMaterial");
    EXPECT_EQ(names.number, 12);
}

TEST(MaterialFileNames, a_material_without_texture_is_numbered_by_itself) {
    EXPECT_EQ(file_of({.working_name = "Material1", .material_id = 12, .texture_id = 7}),
              "COL%3a0012_Material1.OrnMaterial");
    EXPECT_EQ(file_of({.working_name = "Red", .material_id = 123456}), "COL%3a123456_Red.OrnMaterial");
}

TEST(MaterialFileNames, what_is_no_face_asks_for_an_image) {
    EXPECT_EQ(file_of({.working_name = "Brick", .material_id = 12, .texture_id = 7, .is_face = false}),
              "IMG%3a0007_Brick.OrnMaterial");
    EXPECT_EQ(file_of({.working_name = "Brick", .material_id = 12, .is_face = false}), "IMG%3a0012_Brick.OrnMaterial");
}

TEST(MaterialFileNames, where_colours_go_by_layer_the_name_stands_alone) {
    const material_file_names names = file_names_of(
        {.working_name = "Wall", .material_id = 12, .texture_id = 7, .is_textured = true, .by_layer = true});
    EXPECT_EQ(names.file, "Wall.OrnMaterial");
    EXPECT_EQ(names.object_file, "Wall.qlobj");
    EXPECT_EQ(names.number, 12);
}

TEST(MaterialFileNames, where_colours_go_by_layer_a_reflection_sets_materials_apart) {
    const material_file_names names =
        file_names_of({.working_name = "Wall", .material_id = 12, .by_layer = true, .layer_reflection = 50});
    EXPECT_EQ(names.file, "COL%3a0012_Wall_ref50.OrnMaterial");
    EXPECT_EQ(names.base, "Wall_ref50.OrnMaterial");
    EXPECT_EQ(names.encoded_name, "Wall");
    EXPECT_EQ(file_of({.working_name = "Wall", .material_id = 12, .by_layer = true, .layer_reflection = 0}),
              "COL%3a0012_Wall_ref00.OrnMaterial");
}

TEST(MaterialFileNames, what_cannot_stand_in_a_file_name_is_escaped) {
    EXPECT_EQ(file_of({.working_name = "R&D/x\\y", .material_id = 1}), "COL%3a0001_R%26D%2fx%5cy.OrnMaterial");
    EXPECT_EQ(file_of({.working_name = "Stra\xC3\x9F"
                                       "e 1",
                       .material_id = 1}),
              "COL%3a0001_Stra%c3%9fe 1.OrnMaterial");
}

TEST(MaterialFileNames, every_ending_in_the_name_changes_for_the_text_file) {
    EXPECT_EQ(object_file_name("a.OrnMaterial.OrnMaterial"), "a.qlobj.qlobj");
}

} // namespace

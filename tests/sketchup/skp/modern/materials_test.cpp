// Materials of the archive container: records, documents and pictures.

#include "tests/sketchup/skp/modern/record_bytes.h"

#include <gtest/gtest.h>

using namespace record_bytes;
using sketchup::no_index;

namespace {

bytes material(std::uint64_t persistent_id, const std::string& folder, const bytes& rest = {}) {
    return rec(13000, entity(persistent_id) + rec(13004, text(folder)) + rest);
}

bytes document(const std::string& attributes, const std::string& inside = "") {
    return text("<m:materialDocument xmlns:m=\"http://sketchup.google.com/schemas/sketchup/1.0/material\" "
                "xmlns:t=\"http://sketchup.google.com/schemas/1.0/types\"><m:material " +
                attributes + ">" + inside + "</m:material></m:materialDocument>");
}

bytes textured(const std::string& name, const std::string& path) {
    return document("name=\"" + name + "\" type=\"1\"",
                    "<m:texture textureFilename=\"oak.jpg\" xScale=\"12\" yScale=\"6\"><m:images><m:image path=\"" +
                        path + "\"/></m:images></m:texture>");
}

} // namespace

TEST(ModernMaterials, take_their_fields_from_the_document_in_their_folder) {
    const auto m = read_parts(materials(material(5, "_auto_6", rec(13002, u8(0)))),
                              {{"materials/_auto_6/material.xml",
                                document("name=\"&lt;auto&gt;6\" colorRed=\"7\" useTrans=\"1\" trans=\"0.25\"")}});
    ASSERT_EQ(m->materials.size(), 1u);
    EXPECT_EQ(m->materials[0].name, "<auto>6");
    EXPECT_EQ(m->materials[0].persistent_id, 5);
    EXPECT_EQ(m->materials[0].color.red, 7);
    EXPECT_EQ(m->materials[0].transparency, 0.25);
    EXPECT_TRUE(m->materials[0].use_transparency);
    EXPECT_EQ(m->listed_materials, (std::vector<sketchup::index>{0}));
}

TEST(ModernMaterials, private_ones_are_not_listed) {
    const auto m = read_parts(materials(material(5, "a", rec(13002, u8(1))) + material(6, "b")));
    EXPECT_EQ(m->materials.size(), 2u);
    EXPECT_EQ(m->listed_materials, (std::vector<sketchup::index>{1}));
}

TEST(ModernMaterials, one_without_a_document_has_the_name_of_its_folder) {
    const auto m = read_parts(materials(material(5, "oak")));
    ASSERT_EQ(m->materials.size(), 1u);
    EXPECT_EQ(m->materials[0].name, "oak");
    EXPECT_EQ(m->materials[0].type, sketchup::material_type::solid);
    EXPECT_EQ(m->materials[0].texture, no_index);
}

TEST(ModernMaterials, one_without_an_id_is_left_out) {
    EXPECT_TRUE(read_parts(materials(rec(13000, rec(13004, text("oak")))))->materials.empty());
}

TEST(ModernMaterials, a_folder_belongs_to_the_first_material_that_names_it) {
    const auto m = read_parts(materials(material(5, "oak") + material(6, "oak")),
                              {{"materials/oak/material.xml", document("name=\"Oak\"")}});
    ASSERT_EQ(m->materials.size(), 2u);
    EXPECT_EQ(m->materials[0].name, "Oak");
    EXPECT_EQ(m->materials[1].name, "oak");
}

TEST(ModernMaterials, a_texture_has_its_tile_and_its_picture) {
    const auto m =
        read_parts(materials(material(5, "oak")), {{"materials/oak/material.xml", textured("Oak", "./oak.jpg")},
                                                   {"materials/oak/oak.jpg", {0xFF, 0xD8, 1}}});
    ASSERT_EQ(m->textures.size(), 1u);
    EXPECT_EQ(m->materials[0].texture, 0u);
    EXPECT_EQ(m->textures[0].width, 12);
    EXPECT_EQ(m->textures[0].height, 6);
    EXPECT_EQ(m->textures[0].file_name, "oak.jpg");
    ASSERT_EQ(m->textures[0].picture, 0u);
    EXPECT_EQ(m->pictures[0].load(), (bytes{0xFF, 0xD8, 1}));
}

TEST(ModernMaterials, share_a_picture_by_its_path_from_the_root) {
    const auto m = read_parts(materials(material(5, "oak") + material(6, "oak1") + material(7, "oak2")),
                              {{"materials/oak/material.xml", textured("Oak", "./oak.jpg")},
                               {"materials/oak1/material.xml", textured("Oak1", "materials/oak/oak.jpg")},
                               {"materials/oak2/material.xml", textured("Oak2", "oak.jpg")},
                               {"materials/oak/oak.jpg", {0xFF, 0xD8, 1}},
                               {"materials/oak2/oak.jpg", {0xFF, 0xD8, 2}}});
    ASSERT_EQ(m->textures.size(), 3u);
    EXPECT_EQ(m->pictures.size(), 2u);
    EXPECT_EQ(m->textures[1].picture, m->textures[0].picture);
    EXPECT_EQ(m->pictures[m->textures[2].picture].load(), (bytes{0xFF, 0xD8, 2}));
}

TEST(ModernMaterials, a_texture_without_its_picture_has_none) {
    const auto m = read_parts(materials(material(5, "oak") + material(6, "elm")),
                              {{"materials/oak/material.xml", textured("Oak", "./oak.jpg")},
                               {"materials/elm/material.xml", textured("Elm", "")}});
    ASSERT_EQ(m->textures.size(), 2u);
    EXPECT_EQ(m->textures[0].picture, no_index);
    EXPECT_EQ(m->textures[1].picture, no_index);
    EXPECT_TRUE(m->pictures.empty());
}

TEST(ModernMaterials, take_their_attribute_dictionaries_from_the_document) {
    const auto m =
        read_parts(materials(material(5, "oak")),
                   {{"materials/oak/material.xml",
                     document("name=\"Oak\"",
                              "<t:AttributeDictionaries><t:AttributeDictionary name=\"qlw\"><t:Attribute key=\"a\" "
                              "type=\"4\">3</t:Attribute></t:AttributeDictionary></t:AttributeDictionaries>")}});
    ASSERT_EQ(m->materials[0].dictionaries.count, 1u);
    const sketchup::attribute_dictionary& d = m->dictionaries[m->materials[0].dictionaries.first];
    EXPECT_EQ(d.name, "qlw");
    EXPECT_NE(d.id, 0);
    ASSERT_EQ(d.entries.size(), 1u);
    EXPECT_EQ(std::get<std::int64_t>(d.entries[0].value.data), 3);
}

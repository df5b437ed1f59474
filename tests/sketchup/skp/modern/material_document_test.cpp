#include "sketchup/skp/modern/material_document.h"

#include "sketchup/skp/format_error.h"

#include <gtest/gtest.h>

#include <clocale>

using sketchup::value_code;
using skp::format_error;
using skp::modern::material_document;

namespace {

const std::string head = R"(<?xml version="1.0" encoding="UTF-8" standalone="no" ?>
<materialDocument xmlns="http://sketchup.google.com/schemas/sketchup/1.0/material"
 xmlns:mat="http://sketchup.google.com/schemas/sketchup/1.0/material"
 xmlns:n0="http://sketchup.google.com/schemas/1.0/types">)";
const std::string tail = "</materialDocument>";

material_document read_xml(const std::string& xml) {
    return skp::modern::read_material_document({reinterpret_cast<const std::uint8_t*>(xml.data()), xml.size()},
                                               "material.xml");
}

material_document read(const std::string& material) {
    return read_xml(head + material + tail);
}

} // namespace

TEST(MaterialDocument, has_the_fields_of_a_plain_material) {
    const material_document m = read(R"(<mat:material name="[Wood] &lt;1&gt;" type="0" colorRed="255" colorGreen="213"
        colorBlue="98" colorizeType="0" trans="0.55" useTrans="1" hasTexture="0"/>)");
    EXPECT_EQ(m.name, "[Wood] <1>");
    EXPECT_EQ(m.color, (sketchup::rgba{255, 213, 98, 255}));
    EXPECT_EQ(m.type, sketchup::material_type::solid);
    EXPECT_EQ(m.transparency, 0.55);
    EXPECT_TRUE(m.use_transparency);
    EXPECT_FALSE(m.texture);
}

TEST(MaterialDocument, a_leftover_transparency_is_not_in_use) {
    EXPECT_FALSE(read(R"(<mat:material name="a" trans="0.5" useTrans="0"/>)").use_transparency);
    EXPECT_FALSE(read(R"(<mat:material name="a" trans="0.5"/>)").use_transparency);
}

TEST(MaterialDocument, has_the_fields_of_a_texture) {
    const material_document m = read(R"(<mat:material name="a" type="2" colorizeType="1">
        <mat:pbrMR xScale="1" yScale="1"/>
        <mat:texture textureFilename="C:\pictures\oak.jpg" xScale="20" yScale="39.5" avgColor="4278321922">
        <mat:images><mat:image id="1" path="./oak.jpg" file_name="oak.jpg"/></mat:images></mat:texture></mat:material>)");
    EXPECT_EQ(m.type, sketchup::material_type::colorized);
    EXPECT_EQ(m.colorize_type, 1u);
    ASSERT_TRUE(m.texture);
    EXPECT_EQ(m.texture->file_name, "C:\\pictures\\oak.jpg");
    EXPECT_EQ(m.texture->width, 20);
    EXPECT_EQ(m.texture->height, 39.5);
    EXPECT_EQ(m.texture->average_color, (sketchup::rgba{0x02, 0x03, 0x02, 0xFF})); // 0xFF020302
    EXPECT_EQ(m.texture->picture_path, "./oak.jpg");
}

TEST(MaterialDocument, the_name_of_the_image_stands_in_for_a_missing_file_name) {
    const material_document m = read(R"(<mat:material name="a"><mat:texture textureFilename="">
        <mat:images><mat:image path="./x.png" file_name="oak.png"/></mat:images></mat:texture></mat:material>)");
    ASSERT_TRUE(m.texture);
    EXPECT_EQ(m.texture->file_name, "oak.png");
}

TEST(MaterialDocument, elements_are_known_by_namespace_whatever_the_prefix) {
    const material_document m =
        read_xml(R"(<x:materialDocument xmlns:x="http://sketchup.google.com/schemas/sketchup/1.0/material">
        <material name="wrong"/><y:material xmlns:y="http://elsewhere" name="wrong too"/>
        <material xmlns="http://sketchup.google.com/schemas/sketchup/1.0/material" name="right"/></x:materialDocument>)");
    EXPECT_EQ(m.name, "right");
}

TEST(MaterialDocument, holds_the_attribute_dictionaries_of_the_material) {
    const material_document m = read(R"(<mat:material name="a"><n0:AttributeDictionaries count="2">
        <n0:AttributeDictionary name="qlw" count="4">
          <n0:Attribute key="s" type="10">
            <![CDATA[ one <two>]]]]><![CDATA[> three ]]>
          </n0:Attribute>
          <n0:Attribute key="i" type="4">-50002</n0:Attribute>
          <n0:Attribute key="d" type="6">0.25</n0:Attribute>
          <n0:Attribute key="b" type="7">1</n0:Attribute>
          <n0:Attribute key="n" type="0"/>
          <n0:Attribute key="unknown form" type="11">1, 2</n0:Attribute>
          <n0:Attribute key="plain" type="10">text</n0:Attribute>
        </n0:AttributeDictionary>
        <n0:AttributeDictionary name="empty" count="0"/></n0:AttributeDictionaries></mat:material>)");
    ASSERT_EQ(m.dictionaries.size(), 2u);
    EXPECT_EQ(m.dictionaries[0].name, "qlw");
    EXPECT_EQ(m.dictionaries[0].entries,
              (std::vector<sketchup::attribute>{{"s", {value_code::string, std::string(" one <two>]]> three ")}},
                                                {"i", {value_code::int32, std::int64_t{-50002}}},
                                                {"d", {value_code::float64, 0.25}},
                                                {"b", {value_code::boolean, true}},
                                                {"n", {}},
                                                {"plain", {value_code::string, std::string("text")}}}));
    EXPECT_EQ(m.dictionaries[1].name, "empty");
}

TEST(MaterialDocument, numbers_that_are_missing_wrong_or_too_large_are_zero) {
    const material_document m =
        read(R"(<mat:material name="a" type="7" colorRed="256" colorGreen="-1" colorBlue="x"/>)");
    EXPECT_EQ(m.color, (sketchup::rgba{0, 0, 0, 255}));
    EXPECT_EQ(m.type, sketchup::material_type::solid);
}

TEST(MaterialDocument, a_decimal_point_is_a_point_in_every_locale) {
    const bool changed = std::setlocale(LC_NUMERIC, "de_DE.UTF-8") != nullptr;
    const double transparency = read(R"(<mat:material name="a" trans="0.25" useTrans="1"/>)").transparency;
    if (changed)
        std::setlocale(LC_NUMERIC, "C");
    EXPECT_EQ(transparency, 0.25);
}

TEST(MaterialDocument, a_document_type_is_refused) {
    EXPECT_THROW(read_xml("<!DOCTYPE materialDocument [<!ENTITY a \"aaaa\">]>" + head.substr(head.find('\n')) +
                          "<mat:material name=\"&a;\"/>" + tail),
                 format_error);
}

TEST(MaterialDocument, what_is_not_well_formed_or_no_material_is_refused) {
    EXPECT_THROW(read_xml(""), format_error);
    EXPECT_THROW(read_xml("PNG"), format_error);
    EXPECT_THROW(read_xml(head + "<mat:material"), format_error);
    EXPECT_THROW(read_xml(head + tail), format_error);
}

TEST(MaterialDocument, with_as_many_prefixes_as_elements_is_read_in_one_go) {
    // Looked up one after the other, these would take ten thousand million comparisons.
    constexpr int count = 100000;
    std::string declarations;
    std::string attributes;
    for (int i = 0; i < count; ++i) {
        const std::string prefix = "p" + std::to_string(i);
        declarations += " xmlns:" + prefix + "=\"http://sketchup.google.com/schemas/1.0/types\"";
        attributes +=
            "<" + prefix + ":Attribute key=\"k\" type=\"3\">" + std::to_string(i) + "</" + prefix + ":Attribute>";
    }
    const material_document m = read(
        "<mat:material" + declarations + " name=\"a\"><n0:AttributeDictionaries><n0:AttributeDictionary name=\"d\">" +
        attributes + "</n0:AttributeDictionary></n0:AttributeDictionaries></mat:material>");
    ASSERT_EQ(m.dictionaries.size(), 1u);
    EXPECT_EQ(m.dictionaries[0].entries.size(), 100000u);
}

TEST(MaterialDocument, of_more_than_64_mib_is_refused) {
    const std::string material = R"(<mat:material name="a"/>)";
    const std::size_t limit = 67108864; // 64 x 1024 x 1024
    const std::string blanks(limit - head.size() - material.size() - tail.size(), ' ');
    EXPECT_EQ(read(material + blanks).name, "a");
    EXPECT_THROW(read(material + blanks + ' '), format_error);
}

TEST(MaterialDocument, replaces_what_is_no_utf_8) {
    const material_document m = read("<mat:material name=\"caf\xE9\"><n0:AttributeDictionaries>"
                                     "<n0:AttributeDictionary name=\"\xFF\"><n0:Attribute key=\"k\x80\" type=\"10\">"
                                     "\xC3</n0:Attribute></n0:AttributeDictionary></n0:AttributeDictionaries>"
                                     "</mat:material>");
    EXPECT_EQ(m.name, "caf\xEF\xBF\xBD");
    ASSERT_EQ(m.dictionaries.size(), 1u);
    EXPECT_EQ(m.dictionaries[0].name, "\xEF\xBF\xBD");
    ASSERT_EQ(m.dictionaries[0].entries.size(), 1u);
    EXPECT_EQ(m.dictionaries[0].entries[0].key, "k\xEF\xBF\xBD");
    EXPECT_EQ(std::get<std::string>(m.dictionaries[0].entries[0].value.data), "\xEF\xBF\xBD");
}

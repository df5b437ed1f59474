#include "tests/support/temporary_folder.h"
#include "tools/batch_glb/material_look.h"

#include <gtest/gtest.h>

namespace {

gltf::json material_from(const std::string& lines) {
    const temporary_folder folder;
    gltf::glb_writer writer(folder / "a.glb");
    const auto look = read_material_look("Matl: a.OrnMaterial\r\n" + lines);
    EXPECT_TRUE(look);
    return material_json(*look, writer);
}

double number(const gltf::json& material, const char* name) {
    return material["pbrMetallicRoughness"][name];
}

} // namespace

TEST(MaterialLook, of_a_plain_colour_is_matt) {
    const gltf::json plain = material_from("Disp: Paint\r\nColor: 3302600\r\nRefr: 1\r\n");
    EXPECT_EQ(plain["name"], "Paint");
    // 200, 100, 50 of 255 without gamma
    EXPECT_NEAR(plain["pbrMetallicRoughness"]["baseColorFactor"][0].get<double>(), 0.57758, 1e-5);
    EXPECT_NEAR(plain["pbrMetallicRoughness"]["baseColorFactor"][1].get<double>(), 0.12744, 1e-5);
    EXPECT_NEAR(plain["pbrMetallicRoughness"]["baseColorFactor"][2].get<double>(), 0.03190, 1e-5);
    EXPECT_EQ(number(plain, "metallicFactor"), 0);
    EXPECT_EQ(number(plain, "roughnessFactor"), 1);
    EXPECT_FALSE(plain.contains("extensions"));
    EXPECT_FALSE(plain.contains("alphaMode"));
}

TEST(MaterialLook, that_breaks_the_light_is_glass) {
    const gltf::json glass = material_from("Trans: 0.65\r\nRefl: 0.5\r\nRefr: 1.33\r\n");
    EXPECT_EQ(glass["extensions"]["KHR_materials_transmission"]["transmissionFactor"], 0.65);
    EXPECT_EQ(glass["extensions"]["KHR_materials_ior"]["ior"], 1.33);
    EXPECT_EQ(glass["pbrMetallicRoughness"]["baseColorFactor"][3], 1);
    EXPECT_EQ(number(glass, "metallicFactor"), 0);
    EXPECT_FALSE(material_from("Trans: 0.65\r\nRefr: 1.5\r\n")["extensions"].contains("KHR_materials_ior"));
}

TEST(MaterialLook, that_does_not_break_the_light_is_see_through) {
    const gltf::json shade = material_from("Trans: 0.25\r\nRefr: 1\r\n");
    EXPECT_EQ(shade["alphaMode"], "BLEND");
    EXPECT_EQ(shade["pbrMetallicRoughness"]["baseColorFactor"][3], 0.75);
    EXPECT_FALSE(shade.contains("extensions"));
}

TEST(MaterialLook, that_reflects_is_polished_metal_and_a_mirror_from_four_fifths_on) {
    const gltf::json half = material_from("Refl: 0.5\r\n");
    EXPECT_EQ(number(half, "metallicFactor"), 0.5);
    EXPECT_EQ(number(half, "roughnessFactor"), 0.525); // 1 - 0.5 x 0.95
    const gltf::json mirror = material_from("Refl: 0.95\r\n");
    EXPECT_EQ(number(mirror, "metallicFactor"), 1);
    EXPECT_EQ(number(mirror, "roughnessFactor"), 0.05);
    EXPECT_EQ(number(material_from("Refl: 0.95\r\nBlurry: 1\r\n"), "roughnessFactor"), 0.4);
    EXPECT_EQ(number(material_from("OrnMaterial Type: Metal\r\n"), "metallicFactor"), 1);
}

TEST(MaterialLook, that_glows_gives_off_its_colour) {
    const gltf::json glow = material_from("Color: 255\r\nGlow: 0.5\r\nSelfGlow: 0.3\r\n");
    EXPECT_EQ(glow["emissiveFactor"], gltf::json({1, 0, 0}));
    EXPECT_EQ(glow["extensions"]["KHR_materials_emissive_strength"]["emissiveStrength"], 0.8);
    EXPECT_FALSE(material_from("Glow: 1\r\n").contains("extensions"));
}

TEST(MaterialLook, that_glows_beyond_measure_glows_as_brightly_as_there_is) {
    const gltf::json glow = material_from("Glow: 1e308\r\nSelfGlow: 1e308\r\n");
    EXPECT_EQ(glow["extensions"]["KHR_materials_emissive_strength"]["emissiveStrength"], 1e6);
}

TEST(MaterialLook, is_sound_whatever_the_numbers_are) {
    const gltf::json odd = material_from("Trans: 7\r\nRefl: nan\r\nRefr: inf\r\nGlow: -3\r\n");
    EXPECT_EQ(odd["pbrMetallicRoughness"]["baseColorFactor"][3], 0);
    EXPECT_EQ(number(odd, "roughnessFactor"), 1);
    EXPECT_FALSE(odd.contains("emissiveFactor"));
    for (const char* refraction : {"0", "0.5", "0.999999", "-2", "1e300"}) {
        const gltf::json glass =
            material_from(std::string("OrnMaterial Type: Glass\r\nTrans: 0.5\r\nRefr: ") + refraction + "\r\n");
        ASSERT_TRUE(glass["extensions"].contains("KHR_materials_transmission")) << refraction;
        const bool says_it = glass["extensions"].contains("KHR_materials_ior");
        EXPECT_EQ(says_it, std::string(refraction) == "1e300"); // the others are below what the format allows
        if (says_it) {
            EXPECT_EQ(glass["extensions"]["KHR_materials_ior"]["ior"], 100);
        }
    }
    EXPECT_FALSE(read_material_look("no material"));
}

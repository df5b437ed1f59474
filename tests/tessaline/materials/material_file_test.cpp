// The text file of a material, line by line.

#include "tessaline/materials/material_file.h"

#include "tests/support/page_examples.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/trace_capture.h"
#include "tests/tessaline/stream_text.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

std::string file_of(const cl_material_params& params, const std::string& matl_line) {
    const temporary_folder folder;
    write_material_file(params, matl_line, folder / "x.qlobj");
    return folder.read("x.qlobj");
}

// Every value differs from every other and from its default.
cl_material_params odd_params() {
    cl_material_params p;
    p.values.material_type = "the type";
    p.values.base_material = "the base";
    p.display_name = "shown";
    p.orig_name = "original";
    p.image_path = "/batch/TX0007_Brick.JPG";
    p.use_entity_color = 1;
    p.icon_color = 0x000001;
    p.topiary_orientation = 2;
    p.tile_x = 0.1;
    p.tile_y = 1.0 / 3;
    p.image_width = 640;
    p.values.refraction = 1.3;
    p.values.light_channel = 5;
    p.values.glow = 0.25;
    p.values.color = 200U | 100U << 8U | 50U << 16U; // 200 + 25600 + 3276800
    p.values.transparency = 0.3;
    p.values.reflection = 0.95;
    p.values.translucency = 1e-10;
    p.values.auto_bump = true;
    p.values.blurry = true;
    p.values.bump_color_strength = 12345678901.0;
    p.values.bump_intensity = 7.5;
    p.values.marbled = true;
    p.marble_strength = 8.5;
    p.marble_scale = 9.5;
    p.values.glow_lumens = 99;
    p.values.xml_initial_opacity = 0.75;
    p.values.self_glow = 2;
    p.filter = "a filter";
    p.category = "a category";
    return p;
}

TEST(MaterialFile, has_38_lines_each_with_its_value) {
    EXPECT_EQ(file_of(odd_params(), "TEX%3a0007_Brick.OrnMaterial"), lines({
                                                                         "Matl: TEX%3a0007_Brick.OrnMaterial",
                                                                         "Disp: shown",
                                                                         "Orig: original",
                                                                         "#",
                                                                         "OrnMaterial Type: the type",
                                                                         "Base_Material: the base",
                                                                         "Use_Entity_Color: 1",
                                                                         "Color: 3302600",
                                                                         "#;Color: RGB(200,100,50)",
                                                                         "IconColor: 1",
                                                                         "Trans: 0.3",
                                                                         "Translucency: 1e-10",
                                                                         "Refl: 0.95",
                                                                         "Refr: 1.29999995",
                                                                         "IrayInitialOpacity: 0.75",
                                                                         "#",
                                                                         "# Glow is a pct = 1.0 = 100 watts",
                                                                         "Glow: 0.25",
                                                                         "Glow_Lumens: 425",
                                                                         "SelfGlow: 2",
                                                                         "#",
                                                                         "Blurry: 1",
                                                                         "Glossy: 0",
                                                                         "#;For Select Material dialog and 3D PDF",
                                                                         "Filter: a filter",
                                                                         "Category: a category",
                                                                         "Image_Path: /batch/TX0007_Brick.JPG",
                                                                         "ImageWidth: 640",
                                                                         "TileX: 0.1",
                                                                         "TileY: 0.333333333",
                                                                         "AutoBump: 1",
                                                                         "ColorStrength: 1.23456789e+10",
                                                                         "BumpStrength: 7.5",
                                                                         "Marbled: 1",
                                                                         "MarbleScale: 9.5",
                                                                         "MarbleStrength: 8.5",
                                                                         "TopiaryOrientation: 2",
                                                                         "#",
                                                                     }));
}

TEST(MaterialFile, of_a_record_that_nobody_filled_has_the_defaults) {
    EXPECT_EQ(file_of({}, ""), lines({
                                   "Matl: ",
                                   "Disp: ",
                                   "Orig: ",
                                   "#",
                                   "OrnMaterial Type: ",
                                   "Base_Material: ",
                                   "Use_Entity_Color: 0",
                                   "Color: 16777215",
                                   "#;Color: RGB(255,255,255)",
                                   "IconColor: 16777215",
                                   "Trans: 0",
                                   "Translucency: 0",
                                   "Refl: 0",
                                   "Refr: 0",
                                   "IrayInitialOpacity: 1",
                                   "#",
                                   "# Glow is a pct = 1.0 = 100 watts",
                                   "Glow: 0",
                                   "Glow_Lumens: 0",
                                   "SelfGlow: 0",
                                   "#",
                                   "Blurry: 0",
                                   "Glossy: 0",
                                   "#;For Select Material dialog and 3D PDF",
                                   "Filter: ",
                                   "Category: ",
                                   "Image_Path: ",
                                   "ImageWidth: 0",
                                   "TileX: 0",
                                   "TileY: 0",
                                   "AutoBump: 0",
                                   "ColorStrength: 1",
                                   "BumpStrength: 5",
                                   "Marbled: 0",
                                   "MarbleScale: 0",
                                   "MarbleStrength: 0",
                                   "TopiaryOrientation: 0",
                                   "#",
                               }));
}

TEST(MaterialFile, of_a_plain_material_is_the_example_of_the_documentation) {
    cl_material_params params;
    params.display_name = params.orig_name = "R&D";
    params.values.color = 200U | 100U << 8U | 50U << 16U;
    params.values.refraction = 1;
    params.values.bump_color_strength = params.values.bump_intensity = 0;
    EXPECT_EQ(file_of(params, "COL%3a0012_R%26D.OrnMaterial"), page_examples("material-file.md", "## Lines").at(0));
}

TEST(MaterialFile, a_glow_of_a_quarter_has_425_lumens_whatever_else_was_said) {
    cl_material_params params;
    params.values.glow = 0.25;
    params.values.glow_lumens = 800;
    const std::string text = file_of(params, "");
    EXPECT_NE(text.find("\r\nGlow: 0.25\r\nGlow_Lumens: 425\r\n"), std::string::npos) << text;
}

TEST(MaterialFile, takes_the_place_of_an_old_one) {
    const temporary_folder folder;
    folder.write("x.qlobj", std::string(5000, 'x'));
    write_material_file({}, "", folder / "x.qlobj");
    EXPECT_EQ(folder.read("x.qlobj").substr(0, 16), "Matl: \r\nDisp: \r\n");
    EXPECT_LT(folder.read("x.qlobj").size(), 1000U);
}

TEST(MaterialFile, that_cannot_be_opened_is_left_out_without_a_word) {
    const temporary_folder folder;
    const trace_capture trace; // a dialog is shown only while there is tracing
    testing::internal::CaptureStderr();
    write_material_file({}, "", folder / "missing/x.qlobj");
    write_material_file({}, "", folder / std::string(300, 'x'));
    write_material_file({}, "", folder.name());
    write_material_file({}, "", "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(trace.text(), "");
    EXPECT_TRUE(std::filesystem::is_empty(folder.name()));
}

} // namespace

#include "tools/batch_reading/material_reader.h"

#include <gtest/gtest.h>

namespace {

TEST(MaterialReader, takes_name_colour_transparency_and_picture) {
    const auto found =
        read_material_file("Matl: TEX%3a0007_Brick.OrnMaterial\r\nDisp: Brick\r\n#\r\nColor: 3302600\r\n"
                           "#;Color: RGB(200,100,50)\r\nIconColor: 16777215\r\nTrans: 0.25\r\n"
                           "Translucency: 0.5\r\nImage_Path: /a b/TX0007_Brick.JPG\r\nImageWidth: 0\r\n");
    ASSERT_TRUE(found);
    EXPECT_EQ(found->name, "TEX%3a0007_Brick.OrnMaterial");
    EXPECT_EQ(found->color, 3302600u);
    EXPECT_EQ(found->transparency, 0.25);
    EXPECT_EQ(found->image_path, "/a b/TX0007_Brick.JPG");
}

TEST(MaterialReader, reads_lines_of_either_end_and_keeps_defaults) {
    const auto found = read_material_file("Matl: a.OrnMaterial\nImage_Path: \n");
    ASSERT_TRUE(found);
    EXPECT_EQ(found->name, "a.OrnMaterial");
    EXPECT_EQ(found->color, 0xffffffu);
    EXPECT_EQ(found->transparency, 0);
    EXPECT_EQ(found->image_path, "");
}

TEST(MaterialReader, gives_nothing_for_a_file_that_names_no_material) {
    EXPECT_FALSE(read_material_file(""));
    EXPECT_FALSE(read_material_file("Disp: a\r\nMatl: a\r\n"));
}

TEST(MaterialReader, knows_the_file_of_a_material) {
    EXPECT_EQ(file_of_material("COL%3a0012_Wall.OrnMaterial"), "COL%3a0012_Wall.qlobj");
    EXPECT_EQ(file_of_material("a.OrnMaterial.OrnMaterial"), "a.OrnMaterial.qlobj");
}

} // namespace

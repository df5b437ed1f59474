// Faces of glowing materials: which of them share a block, and what stands at its head.

#include "tests/tessaline/run_fixture.h"
#include "tests/tessaline/settled_faces.h"

namespace {

using GlowingFaces = settled_faces_test;
using GlowingFacesOfARun = run_fixture;

const std::string illum_head = lines(
    {"#; Process Material Illum MESH", "MESH;", "TLAY;Layer0", "CULL;0", "MPUV;1", "MATL;10", "MPU2;1", "MAT2;10"});
const std::string hidden_illum_head = lines({"#; Process Material Illum MESH", "MESH;", "INVS;1", "SHDW;0",
                                             "TLAY;Layer0", "CULL;0", "MPUV;1", "MATL;10", "MPU2;1", "MAT2;10"});

TEST_F(GlowingFaces, faces_of_one_glowing_material_share_a_block_and_number_on) {
    for (int i = 0; i != 4; ++i)
        builder.root().face({{0, 0, 0}, {100, 0, 0}, {100, 100, 0}, {0, 100, 0}});
    open();
    write_face(0, glowing(10), side(0));
    write_face(1, glowing(10), side(0));
    write_face(2, side(0), glowing(10));
    write_face(3, side(0), side(0)); // ends the block
    EXPECT_EQ(stream_text(), lines({"#; Process Material Illum MESH", "MESH;", "TLAY;Layer0", "CULL;0", "MPUV;1",
                                    "MATL;10", "MPU2;1", "MAT2;10"}) +
                                 square_from(0) + square_from(4) + square_from(8) + end_of_block + plain_head +
                                 square_from(0) + end_of_block);
    EXPECT_EQ(reader.blocks.state().mesh_count, 1);
    EXPECT_EQ(reader.blocks.state().illum_material, -1);
}

TEST_F(GlowingFaces, a_lamp_face_of_a_glowing_material_glows_and_is_no_lamp) {
    builder.root().square(100);
    open();
    current_oparms->light.lamp_type = "rect_glow";
    EXPECT_EQ(write_first_face(glowing(10), side(0)), 1);
    EXPECT_EQ(stream_text(), lines({"#; Process Material Illum MESH", "MESH;", "TLAY;Layer0", "CULL;0", "MPUV;1",
                                    "MATL;10", "MPU2;1", "MAT2;10"}) +
                                 square_from(0)); // what follows the faces of the list ends the block
    EXPECT_EQ(reader.ilights_saved, 0);
    EXPECT_EQ(reader.blocks.state().vertex_base, 4);
}

TEST_F(GlowingFaces, a_glowing_face_inside_a_lamp_block_is_a_face_of_the_lamp) {
    builder.root().square(100);
    open();
    open_lamp_block();
    EXPECT_EQ(write_first_face(glowing(10), side(0)), 1);
    EXPECT_EQ(stream_text(), lamp_head + lines({"TLAY;Layer0", "CULL;0", "MATL;10", "MAT2;10"}) + square_from(0));
    EXPECT_FALSE(reader.blocks.state().in_illum_mesh);
}

// The glow has a block, although the other faces of such a light have none.
TEST_F(GlowingFaces, a_glowing_face_of_a_direct_light_has_a_block) {
    builder.root().square(100);
    open();
    current_oparms->light.lamp_type = "bulb";
    current_oparms->light.direct_light = true;
    write_first_face(glowing(10), side(0));
    write_first_face(side(0), side(0));
    EXPECT_EQ(stream_text(), lines({"#; Process Material Illum MESH", "MESH;", "TLAY;Layer0", "CULL;0", "MPUV;1",
                                    "MATL;10", "MPU2;1", "MAT2;10"}) +
                                 square_from(0) + end_of_block + lines({"TLAY;Layer0", "CULL;0", "MATL;0", "MAT2;0"}) +
                                 square_from(0) + end_of_block);
    EXPECT_EQ(reader.blocks.state().mesh_count, 1);
}

// The second face shows both its sides without a word of their materials; the first of a block never does.
TEST_F(GlowingFaces, the_face_that_opens_a_glowing_block_has_one_pass_and_those_behind_it_as_many_as_the_setting_says) {
    set_global_int("ivl_2_sided_faces", 2);
    builder.root().square(100);
    open();
    write_first_face(glowing(10), side(11));
    EXPECT_EQ(reader.blocks.state().vertex_base, 4);
    write_first_face(glowing(10), side(11));
    EXPECT_EQ(reader.blocks.state().vertex_base, 12);
}

// The first face of the list: its front is painted and does not glow, its back does.
TEST_F(GlowingFaces, a_plain_front_with_a_glowing_back_opens_the_block_of_the_back) {
    builder.root().square(100);
    open();
    write_first_face(side(10), glowing(11));
    EXPECT_EQ(stream_text(), lines({"#; Process Material Illum MESH", "MESH;", "TLAY;Layer0", "CULL;0", "MPUV;1",
                                    "MATL;11", "MPU2;1", "MAT2;11"}) +
                                 square_from(0));
    EXPECT_EQ(reader.blocks.state().illum_material, 11);
    EXPECT_EQ(reader.blocks.state().vertex_base, 4);
}

TEST_F(GlowingFacesOfARun, a_square_that_glows_on_its_back_alone_has_the_material_of_its_back) {
    sketchup::model_builder m;
    const auto square = m.root().square(10);
    m.element(square).material = m.material("Plain", {200, 100, 50, 255});
    m.face(square).back_material = m.material("Warm_glow80", {255, 214, 140, 255});
    const auto body_lines = body_of(m);
    EXPECT_THAT(tagged(body_lines, "MATI"), testing::ElementsAre("MATI;10", "MATI;11"));
    EXPECT_THAT(tagged(body_lines, "MATL"), testing::ElementsAre("MATL;11"));
}

TEST_F(GlowingFaces, the_faces_of_a_hidden_lamp_glow_unseen) {
    builder.root().square(100);
    open();
    current_oparms->light.hide = true;
    write_first_face(glowing(10), side(0));
    EXPECT_EQ(stream_text(), hidden_illum_head + square_from(0));
}

TEST_F(GlowingFaces, the_faces_of_an_invisible_object_glow_unseen) {
    builder.root().square(100);
    open();
    current_oparms->invisible = true;
    write_first_face(glowing(10), side(0));
    EXPECT_EQ(stream_text(), hidden_illum_head + square_from(0));
}

} // namespace

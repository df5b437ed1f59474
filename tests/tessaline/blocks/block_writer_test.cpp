// Which block is open after what, and what closes it.

#include "tests/tessaline/reader_fixture.h"

#include <gtest/gtest.h>

namespace {

class BlockWriter : public reader_test {
protected:
    void open_illum_mesh(int material) { blocks.begin_illum_mesh("Walls", true, material, 0, false, false); }

    // One side of a face of so many vertices, on the layer "Walls".
    void write_face(int vertices, bool bare = false) {
        blocks.begin_face_pass({.label = "face", .layer_name = "Walls"}, {.layer_name = "Walls"}, bare);
        blocks.end_face_pass(vertices, false);
    }

    block_writer& blocks = reader.blocks;
};

const std::string state_lines = lines({"TLAY;Walls", "CULL;0", "MATL;0", "MAT2;0"});
const std::string illum_head = lines(
    {"#; Process Material Illum MESH", "MESH;", "TLAY;Walls", "CULL;0", "MPUV;1", "MATL;11", "MPU2;1", "MAT2;11"});

} // namespace

TEST_F(BlockWriter, a_lamp_block_gathers_faces_and_pictures_until_its_depth_is_left) {
    blocks.open_lamp_block(4, false, 2);
    write_face(3);
    blocks.begin_image_mesh();
    blocks.end_image_mesh(4);
    EXPECT_EQ(blocks.state().vertex_base, 7);
    EXPECT_FALSE(blocks.has_lamp_of_depth(1));
    EXPECT_TRUE(blocks.has_lamp_of_depth(2));
    blocks.close_lamp_block();
    EXPECT_FALSE(blocks.has_lamp_of_depth(2));
    EXPECT_EQ(blocks.state().lamp_block_depth, -1);
    EXPECT_EQ(blocks.state().vertex_base, 0);
    EXPECT_EQ(stream_text(), lines({"#; Process Group Lamp", "MESH;", "LITE;4"}) + state_lines +
                                 lines({"#;", "#;INSERT IMAGE IN LAMP", "EMSH; END OF LAMP"}));
}

TEST_F(BlockWriter, inside_a_lamp_nothing_else_begins) {
    EXPECT_TRUE(blocks.takes_lamps());
    EXPECT_TRUE(blocks.takes_glow());
    blocks.open_lamp_block(0, false, 0);
    EXPECT_FALSE(blocks.takes_lamps());
    EXPECT_FALSE(blocks.takes_glow());
    blocks.want_beam_pass();
    EXPECT_FALSE(blocks.begin_beam_pass());
}

TEST_F(BlockWriter, a_wanted_beam_pass_begins_once_and_takes_no_lamps) {
    EXPECT_FALSE(blocks.begin_beam_pass());
    blocks.want_beam_pass();
    EXPECT_TRUE(blocks.begin_beam_pass());
    EXPECT_FALSE(blocks.begin_beam_pass()) << "it runs already";
    EXPECT_FALSE(blocks.takes_lamps());
    EXPECT_TRUE(blocks.takes_glow());
    blocks.end_beam_pass();
    EXPECT_TRUE(blocks.takes_lamps());
    EXPECT_FALSE(blocks.begin_beam_pass()) << "a second walk needs a second lamp";
}

TEST_F(BlockWriter, an_illuminated_block_leaves_the_same_behind_whichever_way_it_ends) {
    open_illum_mesh(11);
    write_face(3);
    EXPECT_EQ(blocks.state().vertex_base, 3);
    blocks.leave_illum_mesh_unless(0, 11);
    EXPECT_TRUE(blocks.state().in_illum_mesh);
    blocks.leave_illum_mesh_unless(12, 0);
    EXPECT_FALSE(blocks.state().in_illum_mesh);
    EXPECT_EQ(blocks.state().illum_material, -1);
    EXPECT_EQ(blocks.state().vertex_base, 0);
    EXPECT_EQ(blocks.state().mesh_count, 1);

    open_illum_mesh(11);
    write_face(3);
    blocks.end_face_list();
    EXPECT_FALSE(blocks.state().in_illum_mesh);
    EXPECT_EQ(blocks.state().illum_material, -1);
    EXPECT_EQ(blocks.state().vertex_base, 0);
    EXPECT_EQ(blocks.state().mesh_count, 2);

    blocks.end_face_list(); // none is open
    EXPECT_EQ(blocks.state().mesh_count, 2);
    EXPECT_EQ(stream_text(), illum_head + lines({"EMSH;"}) + illum_head + lines({"EMSH; END OF ILLUM material"}));
}

TEST_F(BlockWriter, a_bare_face_has_its_state_and_a_close_and_tells_no_block) {
    write_face(3, true);
    EXPECT_FALSE(block_seen);
    write_face(3);
    EXPECT_TRUE(block_seen);
    write_face(3, true);
    EXPECT_EQ(stream_text(), state_lines + lines({"EMSH;", "#; face", "MESH;"}) + state_lines + lines({"EMSH;"}) +
                                 state_lines + lines({"EMSH;"}));
}

TEST_F(BlockWriter, a_face_lamp_counts_on_until_it_ends) {
    blocks.begin_face_lamp_mesh(0, false, false);
    blocks.end_face_pass(4, true);
    EXPECT_EQ(blocks.state().vertex_base, 4);
    EXPECT_EQ(blocks.state().lamp_count, 1);
    blocks.end_face_lamp();
    EXPECT_EQ(blocks.state().vertex_base, 0);
}

TEST_F(BlockWriter, an_edge_block_behind_any_block_closes_once_more_and_the_last_close_forgets_them) {
    blocks.change_edge_mesh();
    blocks.change_edge_mesh();
    blocks.end_edge_meshes();
    blocks.end_edge_meshes();
    const std::string head = lines({"#;MESH for Edges", "MESH;", "TLAY;Layer0", "CULL;0", "MATL;1", "MAT2;1"});
    const std::string close = lines({"EMSH; Edges"});
    EXPECT_EQ(stream_text(), head + close + head + close);
}

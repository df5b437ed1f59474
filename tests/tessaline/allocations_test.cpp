// A face costs no allocation of its own once the buffers are warm.

#include "tests/tessaline/count_allocations.h"
#include "tests/tessaline/painted_model.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using Allocations = reader_test;

} // namespace

TEST_F(Allocations, the_second_thousand_vertices_and_faces_of_the_stream_add_none) {
    const auto write_thousand = [this] {
        const fpt uvq{0.25, 0.5, 1};
        for (int i = 0; i != 1000; ++i) {
            reader.blocks.begin_mesh({.label = "ProcessFace MESH", .layer_name = "A layer with a name that is long"});
            reader.blocks.write_mesh_state({.layer_name = "A layer with a name that is long", .uses_uv = true});
            reader.stream.write_vertex(i, {0, 0, 1}, &uvq, {i * 0.0254, 1.0 / 3, 0});
            reader.stream.write_face(i, i + 1, i + 2);
            reader.blocks.end_mesh("");
        }
    };
    write_thousand();
    EXPECT_EQ(allocations_during(write_thousand), 0);
}

TEST_F(Allocations, the_second_thousand_faces_add_none) {
    const auto face = builder.root().square(100);
    builder.element(face).layer = builder.layer("A layer with a name that is long");
    open();
    const SUFaceRef square = faces().front();
    current_oparms = oparms_array.push();
    const auto write_thousand = [&] {
        for (int i = 0; i != 1000; ++i)
            reader.ProcessFace(square, identity16, false, "");
    };
    write_thousand();
    EXPECT_EQ(allocations_during(write_thousand), 0);
}

// As the walk does it: a level of its own for each face, below an object that says much.
TEST_F(Allocations, the_levels_of_the_second_thousand_faces_add_none) {
    current_oparms->layer_name = "A layer with a name that is long";
    current_oparms->groundcover_file = "c:\\covers\\a ground cover with a name that is long.orn";
    const auto walk_thousand = [&] {
        for (int i = 0; i != 1000; ++i) {
            current_oparms = oparms_array.push();
            current_oparms = oparms_array.pop();
        }
    };
    walk_thousand();
    EXPECT_EQ(allocations_during(walk_thousand), 0);
}

using PaintedAllocations = painted_model_test;

// Two textures, one of them inherited on one side, and a plain material with a long name: each face asks for two.
TEST_F(PaintedAllocations, the_second_thousand_painted_faces_add_none) {
    const auto brick = textured(12, "A textured material with a name that is long");
    const auto plain_one = plain(13, "A plain material with a name that is long, too");
    square(brick, plain_one);
    square(plain_one, brick);
    square(brick);
    open_painted();
    const std::vector<SUFaceRef> squares = faces();
    const auto write_thousand = [&] {
        for (int i = 0; i != 1000; ++i)
            reader.ProcessFace(squares[static_cast<std::size_t>(i) % squares.size()], identity16, false, "");
    };
    write_thousand();
    EXPECT_EQ(material_records.size(), 3U);
    EXPECT_EQ(allocations_during(write_thousand), 0);
}

TEST_F(PaintedAllocations, the_second_thousand_faces_in_the_colours_of_their_layers_add_none) {
    theApp.color_by_layer = true;
    square(sketchup::no_index);
    builder.model().layers[0].material = textured(12, "A textured material with a name that is long");
    open_painted();
    const SUFaceRef face = faces().front();
    current_oparms->reflection = 50;
    const auto write_thousand = [&] {
        for (int i = 0; i != 1000; ++i)
            reader.ProcessFace(face, identity16, false, "");
    };
    write_thousand();
    EXPECT_EQ(material_records.size(), 1U);
    EXPECT_EQ(allocations_during(write_thousand), 0);
}

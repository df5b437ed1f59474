// A face costs no allocation of its own once the buffers are warm.

#include "tests/tessaline/count_allocations.h"
#include "tests/tessaline/reader_fixture.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using Allocations = reader_test;

} // namespace

TEST_F(Allocations, the_second_thousand_vertices_and_faces_of_the_stream_add_none) {
    const auto write_thousand = [this] {
        const fpt uvq{0.25, 0.5, 1};
        for (int i = 0; i != 1000; ++i) {
            reader.begin_mesh({.label = "ProcessFace MESH", .layer_name = "A layer with a name that is long"});
            reader.write_mesh_state({.layer_name = "A layer with a name that is long", .uses_uv = true});
            reader.stream.write_vertex(i, {0, 0, 1}, &uvq, {i * 0.0254, 1.0 / 3, 0});
            reader.stream.write_face(i, i + 1, i + 2);
            reader.end_mesh("");
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

// What is right and wrong in the edges at the end of a stream.

#include "tests/tools/stream_pieces.h"

namespace stream_pieces {
namespace {

TEST(StreamCheckOfEdges, wants_the_sides_of_a_beam_square_to_one_another) {
    const lines close_edges = {"EMSH; Edges"};
    lines beam = beams(1);
    beam[3] = "NORM;(0,1,0)";
    expect_bad(12, code::stream_edges, {edges, edge_head, beam, close_edges});
    beam = beams(1);
    for (std::string& line : beam)
        if (line == "NORM;(0,1,0)")
            line = "NORM;(0.6,0.8,0)";
    expect_bad(65, code::stream_edges, {edges, edge_head, beam, close_edges});
}

TEST(StreamCheckOfEdges, wants_edges_on_Layer0) {
    lines elsewhere = edge_head;
    elsewhere[2] = "TLAY;Walls";
    expect_bad(5, code::stream_edges, {edges, elsewhere, beams(1)});
}

TEST(StreamCheckOfEdges, takes_edge_blocks_at_the_end) {
    const lines close_edges = {"EMSH; Edges"};
    expect_good({edges, edge_head, beams(2), close_edges});
    expect_good({face_block, edges, close_edges, edge_head, beams(1), close_edges});
    expect_bad(20, code::stream_stray_close, {face_block, edges, edge_head, beams(1), close_edges});
    expect_bad(65, code::stream_stray_close, {edges, edge_head, beams(1)});
    expect_bad(3, code::stream_order, {edges, {"#;"}, close_edges, edge_head});
}

TEST(StreamCheckOfEdges, the_first_edge_block_holds_999_edges_and_the_others_1000) {
    const lines close_edges = {"EMSH; Edges"};
    expect_good({edges, edge_head, beams(999), close_edges, edge_head, beams(1000), close_edges, edge_head, beams(1),
                 close_edges});
    // 17 lines ahead of the first beam; a beam has 4 sides of 4 vertices of 3 lines and 2 triangles: 56.
    expect_first(found_in({head, pass, edges, edge_head, beams(1000), close_edges, end}), code::stream_edges,
                 17 + 1000 * 56 + 1);
    expect_first(
        found_in({head, pass, edges, edge_head, beams(998), close_edges, edge_head, beams(1), close_edges, end}),
        code::stream_edges, 17 + 998 * 56 + 2);
}

TEST(StreamCheckOfEdges, takes_the_edges_of_a_3d_document) {
    const lines line = {"#;",   "MESH;", "EDGE;1", "TLAY;Edges", "EDG1;(0, 0, 0)", "EDG2;(10, 0, 0)", "EDGN;(0, 0, 1)",
                        "EMSH;"};
    expect_good({face_block, edges, line, line});
    lines wrong = line;
    wrong[4] = "EDG1;(0,0,0)";
    expect_bad(7, code::stream_number, {edges, wrong});
    wrong = line;
    wrong[6] = "EDGN;(0, 0, 2)";
    expect_bad(9, code::stream_direction, {edges, wrong});
    expect_bad(11, code::stream_order, {edges, line, {"#;"}, edge_head, beams(1), {"EMSH; Edges"}});
}

} // namespace
} // namespace stream_pieces

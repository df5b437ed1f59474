// The grammar of the edges at the end of a stream.

#include "tests/batch/stream_pieces.h"

namespace stream_pieces {
namespace {

TEST(StreamGrammar, wants_the_sides_of_a_beam_square_to_one_another) {
    const lines close_edges = {"EMSH; Edges"};
    lines beam = beams(1);
    beam[3] = "NORM;(0,1,0)";
    expect_bad(12, "the corners of a side have one normal, found \"NORM;(0,1,0)\"",
               {edges, edge_head, beam, close_edges});
    beam = beams(1);
    for (std::string& line : beam)
        if (line == "NORM;(0,1,0)")
            line = "NORM;(0.6,0.8,0)";
    expect_bad(65, "these are no normals of a beam, found \"EMSH; Edges\"", {edges, edge_head, beam, close_edges});
}

TEST(StreamGrammar, wants_edges_on_Layer0) {
    lines elsewhere = edge_head;
    elsewhere[2] = "TLAY;Walls";
    expect_bad(5, "edges count as being on \"Layer0\", found \"TLAY;Walls\"", {edges, elsewhere, beams(1)});
}

TEST(StreamGrammar, takes_edge_blocks_at_the_end) {
    const lines close_edges = {"EMSH; Edges"};
    expect_good({edges, edge_head, beams(2), close_edges});
    expect_good({face_block, edges, close_edges, edge_head, beams(1), close_edges});
    expect_bad(20, "\"EMSH; Edges\" must stand here, found \"#;MESH for Edges\"",
               {face_block, edges, edge_head, beams(1), close_edges});
    expect_bad(65, "\"EMSH; Edges\" must stand here, found \"#;\"", {edges, edge_head, beams(1)});
    expect_bad(4, "\"END;\" must stand here, found \"EMSH; Edges\"", {edges, {"#;"}, close_edges, edge_head});
}

TEST(StreamGrammar, the_first_edge_block_holds_999_edges_and_the_others_1000) {
    const lines close_edges = {"EMSH; Edges"};
    expect_good({edges, edge_head, beams(999), close_edges, edge_head, beams(1000), close_edges, edge_head, beams(1),
                 close_edges});
    const auto overfull = fault_of({head, pass, edges, edge_head, beams(1000), close_edges, end});
    ASSERT_TRUE(overfull.has_value());
    EXPECT_TRUE(overfull->reason.starts_with("the block of edges is overfull")) << *overfull;
    const auto split =
        fault_of({head, pass, edges, edge_head, beams(998), close_edges, edge_head, beams(1), close_edges, end});
    ASSERT_TRUE(split.has_value());
    EXPECT_TRUE(split->reason.starts_with("the block of edges before is not full")) << *split;
}

TEST(StreamGrammar, takes_the_edges_of_a_3d_document) {
    const lines line = {"#;",   "MESH;", "EDGE;1", "TLAY;Edges", "EDG1;(0, 0, 0)", "EDG2;(10, 0, 0)", "EDGN;(0, 0, 1)",
                        "EMSH;"};
    expect_good({face_block, edges, line, line});
    lines wrong = line;
    wrong[4] = "EDG1;(0,0,0)";
    expect_bad(7, "this is no triple of numbers in their shortest form, found \"EDG1;(0,0,0)\"", {edges, wrong});
    wrong = line;
    wrong[6] = "EDGN;(0, 0, 2)";
    expect_bad(9, "this is no unit vector, found \"EDGN;(0, 0, 2)\"", {edges, wrong});
    expect_bad(12, "\"END;\" must stand here, found \"#;MESH for Edges\"",
               {edges, line, {"#;"}, edge_head, beams(1), {"EMSH; Edges"}});
}

} // namespace
} // namespace stream_pieces

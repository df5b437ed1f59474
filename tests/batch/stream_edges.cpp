// The edges at the end of a stream.

#include "tests/batch/stream_items.h"

namespace {

constexpr int edge_material = 1;
constexpr int vertices_of_beam = 16;

} // namespace

void stream_items::take_edges() {
    lines.take("#;");
    lines.take("#;EDGES");
    // For a 3D document each edge is a block of its own, and nothing is closed behind the last.
    bool is_for_document = false;
    while (lines.at("#;") && lines.next_is("MESH;")) {
        take_edge_line();
        is_for_document = true;
    }
    if (is_for_document || at_end())
        return;
    take_edge_blocks();
}

void stream_items::take_edge_line() {
    lines.take("#;");
    lines.take("MESH;");
    lines.take("EDGE;1");
    lines.take("TLAY;Edges");
    lines.take_triple("EDG1;", ", ");
    lines.take_triple("EDG2;", ", ");
    lines.take_unit_or_zero("EDGN;", ", "); // zero for a line without length
    lines.take("EMSH;");
}

void stream_items::take_edge_blocks() {
    constexpr int most_edges = 1000;
    int edges_wanted = most_edges - 1; // the count that ends a block starts at 1
    bool is_first = true;
    int edges = 0;
    while (true) {
        if (block_seen)
            lines.take("EMSH; Edges");
        if (!lines.at("#;MESH for Edges"))
            return;
        if (!is_first && edges != edges_wanted)
            lines.fail("the block of edges before is not full");
        edges_wanted = is_first ? most_edges - 1 : most_edges;
        is_first = false;
        block_seen = true;
        edges = take_edge_block(edges_wanted);
    }
}

int stream_items::take_edge_block(int most_edges) {
    lines.take("#;MESH for Edges");
    lines.take("MESH;");
    if (!lines.at("TLAY;Layer0"))
        lines.fail("edges count as being on \"Layer0\"");
    take_layer_of_geometry();
    lines.take("CULL;0");
    lines.take("MATL;" + std::to_string(edge_material));
    lines.take("MAT2;" + std::to_string(edge_material));
    int edges = 0;
    while (lines.at_tag("NORM;")) {
        take_beam(edges * vertices_of_beam);
        if (++edges > most_edges)
            lines.fail("the block of edges is overfull");
    }
    if (edges == 0)
        lines.fail("a block of edges has at least one");
    return edges;
}

void stream_items::take_beam(int first) {
    std::array<std::array<double, 3>, 4> normals{};
    for (std::size_t side = 0; side < normals.size(); ++side) {
        for (int corner = 0; corner < 4; ++corner) {
            const std::array<double, 3> normal = lines.take_unit_or_zero("NORM;", ",");
            if (corner != 0 && normal != normals[side])
                lines.fail_before("the corners of a side have one normal");
            normals[side] = normal;
            lines.take_triple("VERT;", ",");
            lines.take("ADDV;" + std::to_string(first + corner));
        }
        const auto at = [first](int corner) { return std::to_string(first + corner); };
        lines.take("FACE;" + at(0) + "," + at(1) + "," + at(2));
        lines.take("FACE;" + at(2) + "," + at(3) + "," + at(0));
        first += 4;
    }
    if (normals[0] != normals[1] || normals[2] != normals[3] || !is_square(normals[0], normals[2]))
        lines.fail("these are no normals of a beam");
}

// The edges at the end of a stream.

#include "tools/batch_check/stream_check.h"

#include <array>
#include <cmath>

namespace batch_check {
namespace {

constexpr int vertices_of_beam = 16;

bool is_square(const triple& v, const triple& w) {
    constexpr double tolerance = 1e-6; // the text has nine digits, and what is below 1e-7 was cut off
    return std::abs(v[0] * w[0] + v[1] * w[1] + v[2] * w[2]) < tolerance;
}

} // namespace

void stream_check::take_edges() {
    open = inside::edges;
    lines.take("#;");
    lines.take("#;EDGES");
    // For a 3D document each edge is a block of its own, and nothing is closed behind the last.
    bool is_for_document = false;
    while (lines.at("#;") && lines.next_is("MESH;")) {
        take_edge_line();
        is_for_document = true;
    }
    if (!is_for_document && !at_end_of_body())
        take_edge_blocks();
    if (!at_end_of_body())
        lines.refuse_order("only the end stands behind the edges");
}

void stream_check::take_edge_line() {
    lines.take("#;");
    lines.take("MESH;");
    lines.take("EDGE;1");
    lines.take("TLAY;Edges");
    lines.take_triple("EDG1;", ", ");
    lines.take_triple("EDG2;", ", ");
    lines.take_unit_or_zero("EDGN;", ", "); // zero for a line without length
    lines.take("EMSH;");
    ++facts.edges;
}

void stream_check::take_edge_blocks() {
    constexpr int most_edges = 1000;
    int edges_wanted = most_edges - 1; // the count that ends a block starts at 1
    bool is_first = true;
    int edges = 0;
    while (true) {
        if (block_seen && !lines.take_if("EMSH; Edges"))
            lines.report(code::stream_stray_close, "\"EMSH; Edges\" must stand ahead of this");
        if (!lines.at("#;MESH for Edges"))
            return;
        if (!is_first && edges != edges_wanted)
            lines.report(code::stream_edges, "the block of edges before this line is not full");
        edges_wanted = is_first ? most_edges - 1 : most_edges;
        is_first = false;
        block_seen = true;
        edges = take_edge_block(edges_wanted);
    }
}

int stream_check::take_edge_block(int most_edges) {
    lines.take("#;MESH for Edges");
    lines.take("MESH;");
    ++facts.meshes;
    if (lines.at_tag("TLAY;") && !lines.at("TLAY;Layer0"))
        lines.report(code::stream_edges, "edges count as being on \"Layer0\"");
    take_layer_of_geometry();
    lines.take("CULL;0");
    lines.take_this_number("MATL;", edge_material, code::stream_material_number);
    lines.take_this_number("MAT2;", edge_material, code::stream_material_number);
    int edges = 0;
    while (lines.at_tag("NORM;")) {
        take_beam(edges * vertices_of_beam);
        if (++edges == most_edges + 1)
            lines.report(code::stream_edges, "the block of edges before this line is overfull");
    }
    if (edges == 0)
        lines.report(code::stream_empty_mesh, "a block of edges has at least one");
    return edges;
}

void stream_check::take_beam(int first) {
    std::array<triple, 4> normals{};
    for (triple& normal : normals) {
        const std::string line_of_normal(lines.line());
        for (int corner = 0; corner < 4; ++corner) {
            if (lines.at_tag("NORM;") && !lines.at(line_of_normal))
                lines.report(code::stream_edges, "the corners of a side have one normal");
            normal = lines.take_unit_or_zero("NORM;");
            take_position();
            lines.take_this_number("ADDV;", first + corner, code::stream_vertex_number);
        }
        const auto at = [first](int corner) { return std::to_string(first + corner); };
        take_this_triangle("FACE;" + at(0) + "," + at(1) + "," + at(2));
        take_this_triangle("FACE;" + at(2) + "," + at(3) + "," + at(0));
        first += 4;
    }
    facts.vertices += vertices_of_beam;
    ++facts.edges;
    if (normals[0] != normals[1] || normals[2] != normals[3] || !is_square(normals[0], normals[2]))
        lines.report(code::stream_edges, "the normals ahead of this line are not those of a beam");
}

} // namespace batch_check

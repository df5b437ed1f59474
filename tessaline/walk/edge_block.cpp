// How the collected edges become geometry at the end of the stream: beams for a rendering, which knows only triangles,
// and true lines for a 3D document. Works on the table of edges and the view alone: the model is closed by
// then.

#include "qlw/qlw_globals.h"
#include "tessaline/faces/edge_geometry.h"
#include "tessaline/state/run_state.h"
#include "tessaline/stream/length_units.h"
#include "tessaline/walk/SketchUpReader.h"

#include <cmath>
#include <string_view>

namespace {

constexpr int edges_of_a_block = 1000;

constexpr double inches_per_metre = 39.37007874015748;
constexpr double radians_per_degree = 0.017453292519943295;

double wanted_pixels() {
    const double width = get_global_double("rvl_edge_line_width");
    return get_global_string("sqlw_extract_mode") == "3dpdf" ? get_global_double("rvl_edge_lines") : width;
}

fpt midpoint(const fpt& p, const fpt& q) {
    return (p + q) * 0.5;
}

fpt corner_of_beam(const fpt& end, const beam_offset& offset, const fpt& a, const fpt& b) {
    return end + a * offset.of_a + b * offset.of_b;
}

} // namespace

void SketchUpReader::write_edge_lines() {
    if (edge_records.empty())
        return;
    const bool as_lines = theApp.extract_mode == document_extract_mode;
    edge_block_state state;
    state.pixels = wanted_pixels();
    stream.write_comment("");
    stream.write_comment("EDGES");
    for (const cl_tsl_edge& edge : edge_records) {
        if (as_lines)
            write_edge_as_line(edge, state.pixels);
        else
            write_edge_as_beam(edge, state);
    }
    if (!as_lines)
        blocks.end_edge_meshes();
}

// The sizes mix units: the distance is in metres and the line in inches here, and a field of view is taken as degrees
// for a line and as it stands for a beam. What is drawn and what is left out depends on it, so it stays.

void SketchUpReader::write_edge_as_line(const cl_tsl_edge& edge, double pixels) {
    const fpt start_metres = metres_from_inches(edge.start);
    const fpt end_metres = metres_from_inches(edge.end);
    const fpt start = start_metres * inches_per_metre;
    const fpt end = end_metres * inches_per_metre;
    const fpt line = end - start;
    const double size =
        perspective_size(std::sin(view.field_of_view * radians_per_degree),
                         magnitude(midpoint(start_metres, end_metres) - view.eye), pixels, view.pixel_height);
    if (!(size < magnitude(line))) // so that a size that is no number leaves the edge out
        return;
    fpt normal = frame_of(line).b;
    normal.make_unit(1);
    blocks.begin_line_mesh();
    stream.write_line(start, end, normal);
    blocks.end_line_mesh();
}

void SketchUpReader::write_edge_as_beam(const cl_tsl_edge& edge, edge_block_state& state) {
    if (view.pixel_height == 0)
        view.pixel_height = get_global_int("ivl_resy");
    const fpt start = metres_from_inches(edge.start);
    const fpt end = metres_from_inches(edge.end);
    const fpt line = end - start;
    const double size = view.camera_type == "ortho"
                            ? parallel_size(view.ortho_height, state.pixels, view.pixel_height)
                            : perspective_size(std::sin(view.field_of_view), magnitude(midpoint(start, end) - view.eye),
                                               state.pixels, view.pixel_height);
    const double half_size = size / 2;
    if (!(half_size < magnitude(line)))
        return;
    ++state.edges;
    if (edge.layer != state.last_layer || (block_seen && state.edges % edges_of_a_block == 0))
        change_edge_block(edge.layer, state);
    line_frame frame = frame_of(line);
    frame.a.make_unit(half_size / 2);
    frame.b.make_unit(half_size / 2);
    write_edge_box(start, end, frame.b, frame.a, state.local_vertices);
}

void SketchUpReader::change_edge_block(int layer, edge_block_state& state) {
    blocks.change_edge_mesh();
    state.last_layer = layer;
    state.local_vertices = 0;
}

void SketchUpReader::write_edge_box(const fpt& start, const fpt& end, const fpt& b, const fpt& a, int& local_vertices) {
    const int vertex_base = blocks.state().vertex_base;
    fpt unit_a = a;
    fpt unit_b = b;
    unit_a.make_unit(1);
    unit_b.make_unit(1);
    for (const beam_side& side : beam_sides) {
        const fpt& normal = side.faces_along_a ? unit_a : unit_b;
        for (const fpt& corner : {corner_of_beam(start, side.first, a, b), corner_of_beam(start, side.second, a, b),
                                  corner_of_beam(end, side.second, a, b), corner_of_beam(end, side.first, a, b)})
            stream.write_vertex(vertex_base + local_vertices++, normal, nullptr, corner);
        const int k = vertex_base + local_vertices;
        stream.write_face(k - 4, k - 3, k - 2);
        stream.write_face(k - 2, k - 1, k - 4);
    }
}

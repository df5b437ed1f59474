// What a block holds: the state lines and the mesh of each side.

#include "tools/batch_check/stream_check.h"

#include <algorithm>
#include <utility>

namespace batch_check {

int stream_check::take_face_in_block(int first) {
    return take_sides([this, next = first]() mutable {
        const shown_side taken = take_side(next);
        next += taken.vertices;
        return taken;
    });
}

bool stream_check::at_side() {
    return lines.at_tag("TLAY;") || lines.at("EMSH; Face") || lines.at("#; ProcessFace MESH");
}

stream_check::shown_side stream_check::take_side(int first) {
    take_layer_of_geometry();
    is_alone = lines.at("CULL;1");
    const uvq_use uvq = take_materials();
    return {take_mesh(first, uvq), is_alone};
}

void stream_check::take_layer_of_geometry() {
    const std::string_view layer = lines.payload("TLAY;");
    const bool is_listed = layer_count > 0 && table_names.contains(layer);
    if (layer != last_layer || layer_names.empty()) {
        last_layer = layer;
        if (layer_names.insert(last_layer).second)
            count_kept(last_layer.size());
    }
    lines.skip();
    if (!is_listed)
        return;
    check_layer_list(lines.payload("LYRS;"));
    lines.skip();
}

void stream_check::check_layer_list(std::string_view list) {
    do {
        const std::optional<int> index = whole_number(take_field(list, ","));
        if (index && *index >= 0 && *index < layer_count)
            continue;
        if (!index)
            lines.report(code::stream_number, "no list of whole numbers");
        else
            lines.report(code::stream_layer_number, "no layer has the number " + std::to_string(*index));
        return;
    } while (!list.empty());
}

stream_check::uvq_use stream_check::take_materials() {
    if (lines.take_if("CULL;1")) {
        take_material_number("MATL;");
        return lines.take_if("MPUV;1") ? uvq_use::all_or_none : uvq_use::never;
    }
    lines.take("CULL;0");
    const bool is_textured = lines.take_if("MPUV;1");
    const int material = take_material_number("MATL;");
    if (is_textured)
        lines.take("MPU2;1");
    take_back_material(material);
    return is_textured ? uvq_use::always : uvq_use::never;
}

int stream_check::take_material_number(std::string_view tag) {
    const std::optional<int> number = whole_number(lines.payload(tag));
    shown_material = number.value_or(no_material);
    const int index = shown_material - first_material;
    if (!number) {
        lines.report(code::stream_number, "no whole number");
    } else if (index >= 0 && index < std::ssize(facts.materials)) {
        facts.materials[static_cast<std::size_t>(index)].is_used = true;
    } else if (shown_material != no_material) {
        ++facts.sides_without_declaration;
        lines.report(code::stream_material_number, "no material has this number");
    }
    lines.skip();
    return shown_material;
}

void stream_check::take_back_material(int front) {
    lines.take_this_number("MAT2;", front, code::stream_material_number);
}

int stream_check::take_mesh(int first, uvq_use uvq) {
    int count = 0;
    while (lines.at_tag("NORM;")) {
        lines.take_unit_or_zero("NORM;");
        const bool has_uvq = lines.at_tag("UVQ;");
        if (uvq == uvq_use::all_or_none)
            uvq = has_uvq ? uvq_use::always : uvq_use::never;
        if (has_uvq)
            take_uvq(uvq == uvq_use::always);
        else if (uvq == uvq_use::always)
            lines.report(code::stream_texture_coordinates, "\"UVQ;\" must stand ahead of this");
        take_position();
        lines.take_this_number("ADDV;", first + count++, code::stream_vertex_number);
    }
    if (count == 0)
        lines.report(code::stream_empty_mesh, "a mesh has at least one vertex");
    facts.vertices += static_cast<std::uint64_t>(count);
    while (lines.at_tag("FACE;"))
        take_triangle(first, first + count);
    return count;
}

void stream_check::take_uvq(bool belongs_here) {
    if (!belongs_here)
        lines.report(code::stream_texture_coordinates, "this mesh has no texture coordinates");
    else if (!lines.line().ends_with(",1)"))
        lines.report(code::stream_texture_coordinates, "the third texture coordinate of a face is 1");
    lines.take_triple("UVQ;");
}

void stream_check::take_position() {
    const triple at = lines.take_triple("VERT;");
    for (std::size_t i = 0; i < at.size(); ++i) {
        facts.low[i] = std::min(facts.low[i], at[i]);
        facts.high[i] = std::max(facts.high[i], at[i]);
    }
}

void stream_check::take_triangle(int first, int end) {
    std::array<int, 3> corners{};
    if (!read_corners(lines.payload("FACE;"), ",", corners))
        lines.report(code::stream_number, "no three vertex numbers");
    else if (std::any_of(corners.begin(), corners.end(), [&](int corner) { return corner < first || corner >= end; }))
        lines.report(code::stream_corner, "the mesh has no vertex of this number");
    else if (corners[0] == corners[1] || corners[1] == corners[2] || corners[2] == corners[0])
        lines.report(code::stream_corner, "a triangle has three different corners");
    lines.skip();
    ++facts.triangles;
    const int index = shown_material - first_material;
    if (index >= 0 && index < std::ssize(facts.materials))
        ++facts.materials[static_cast<std::size_t>(index)].triangles;
    else if (shown_material == no_material)
        ++facts.triangles_without;
}

void stream_check::take_this_triangle(const std::string& line) {
    if (!lines.at_tag("FACE;"))
        lines.refuse_without(line);
    if (!lines.at(line))
        lines.report(code::stream_corner, in_quotes(line) + " must stand here");
    lines.skip();
    ++facts.triangles;
}

} // namespace batch_check

// The quads of placed images.

#include "tools/batch_check/stream_check.h"

namespace batch_check {

void stream_check::take_image_block() {
    open = inside::image;
    lines.take("#;");
    lines.take("#;NEW MESH for Image");
    lines.take("MESH");
    ++facts.meshes;
    take_image(0);
    lines.take("EMSH;");
}

int stream_check::take_image(int first) {
    take_layer_of_geometry();
    lines.take("CULL;0");
    lines.take_if("SHDW;0");
    lines.take("MPUV;1");
    const int index = take_material_number("MATL;") - first_material;
    lines.take("MPU2;1");
    take_back_material(first_material); // whatever that is
    int number = first;
    for (const char* uvq : {"UVQ;(0,0,0)", "UVQ;(1,0,0)", "UVQ;(1,1,0)", "UVQ;(0,1,0)"}) {
        lines.take_unit_or_zero("NORM;");
        if (!lines.at_tag("UVQ;"))
            lines.refuse_without(uvq);
        if (!lines.at(uvq))
            lines.report(code::stream_texture_coordinates, in_quotes(uvq) + " must stand here");
        lines.skip();
        take_position();
        lines.take_this_number("ADDV;", number++, code::stream_vertex_number);
    }
    const auto at = [first](int corner) { return std::to_string(first + corner); };
    take_this_triangle("FACE;" + at(0) + ", " + at(1) + ", " + at(2));
    take_this_triangle("FACE;" + at(2) + ", " + at(3) + ", " + at(0));
    facts.vertices += 4;
    if (index >= 0 && index < std::ssize(facts.materials))
        facts.materials[static_cast<std::size_t>(index)].triangles += 2;
    return 4;
}

} // namespace batch_check

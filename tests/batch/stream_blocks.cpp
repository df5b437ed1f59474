// The blocks of faces, lamps and images.

#include "tests/batch/stream_items.h"

void stream_items::take_face_block() {
    inside_direct_light = false; // all that is in one counts as a lamp and has no block
    take_sides([this] { return take_block_of_side(); });
}

stream_items::shown_side stream_items::take_block_of_side() {
    if (block_seen)
        lines.take("EMSH; Face");
    block_seen = true;
    lines.take("#; ProcessFace MESH");
    lines.take("MESH;");
    lines.take_if("SHDW;0");
    if (lines.at_tag("GCOR;")) {
        lines.take_signed_number("GCOR;");
        lines.take_text("GNDC;");
    }
    take_invisible();
    const shown_side taken = take_side(0);
    lines.take("EMSH;");
    return taken;
}

void stream_items::take_face_lamp_block() {
    if (block_seen)
        lines.take("EMSH; Close for new Face Lamp MESH");
    block_seen = true;
    lines.take("#; Process Face Lamp MESH");
    take_lamp_head();
    // A face that cannot be cut into triangles leaves the block of its lamp open and empty.
    if (!lines.at_tag("TLAY;"))
        return;
    take_face_in_block(0);
    lines.take("EMSH; END OF LAMP");
}

void stream_items::take_lamp_block() {
    lines.take("#; Process Group Lamp");
    take_lamp_head();
    int vertices = 0;
    while (!lines.take_if("EMSH; END OF LAMP")) {
        if (lines.at_tag("TLAY;")) {
            vertices += take_face_in_block(vertices);
        } else if (lines.at("#;") && lines.next_is("#;INSERT IMAGE IN LAMP")) {
            lines.skip();
            lines.skip();
            vertices += take_image(vertices);
        } else if (!take_item_of_any_place()) {
            lines.fail("this cannot stand in the block of a lamp");
        }
    }
}

void stream_items::take_lamp_head() {
    inside_direct_light = false;
    lines.take("MESH;");
    lines.take("LITE;" + std::to_string(lamp_count++));
    take_invisible();
}

void stream_items::take_illuminated_block() {
    lines.take("#; Process Material Illum MESH");
    lines.take("MESH;");
    take_invisible();
    take_layer_of_geometry();
    lines.take("CULL;0");
    lines.take("MPUV;1");
    const int material = take_material_number("MATL;");
    if (material == no_material)
        lines.fail_before("no material does not glow");
    lines.take("MPU2;1");
    lines.take("MAT2;" + std::to_string(material));
    int vertices = 0;
    while (!lines.take_if("EMSH;") && !lines.take_if("EMSH; END OF ILLUM material")) {
        if (lines.at_tag("NORM;"))
            vertices += take_mesh(vertices, uvq_use::all_or_none);
        else if (lines.at_tag("MATF;")) // only faces stand between the first and the last of the block
            take_material();
        else
            lines.fail("this cannot stand in an illuminated block");
    }
}

void stream_items::take_invisible() {
    if (lines.take_if("INVS;1"))
        lines.take("SHDW;0");
}

int stream_items::take_face_in_block(int first) {
    return take_sides([this, next = first]() mutable {
        const shown_side taken = take_side(next);
        next += taken.vertices;
        return taken;
    });
}

stream_items::shown_side stream_items::take_side(int first) {
    take_layer_of_geometry();
    const bool is_alone = lines.at("CULL;1");
    return {take_mesh(first, take_materials()), is_alone};
}

void stream_items::take_layer_of_geometry() {
    const std::string_view layer = lines.take_text("TLAY;");
    if (!is_animation() || !layer_names.contains(layer))
        return;
    for (const int layer_index : lines.take_whole_numbers("LYRS;", ","))
        if (layer_index >= layer_count)
            lines.fail_before("no layer has this number");
}

stream_items::uvq_use stream_items::take_materials() {
    if (lines.take_if("CULL;1")) {
        take_material_number("MATL;");
        return lines.take_if("MPUV;1") ? uvq_use::all_or_none : uvq_use::never;
    }
    lines.take("CULL;0");
    const bool is_textured = lines.take_if("MPUV;1");
    const int material = take_material_number("MATL;");
    if (is_textured)
        lines.take("MPU2;1");
    lines.take("MAT2;" + std::to_string(material));
    return is_textured ? uvq_use::always : uvq_use::never;
}

int stream_items::take_material_number(std::string_view tag) {
    const int number = lines.take_whole_number(tag);
    if (number != no_material && (number < first_material || number >= first_material + material_count))
        lines.fail_before("no material has this number");
    return number;
}

int stream_items::take_mesh(int first, uvq_use uvq) {
    int count = 0;
    while (lines.at_tag("NORM;")) {
        lines.take_unit_or_zero("NORM;", ",");
        if (uvq == uvq_use::all_or_none)
            uvq = lines.at_tag("UVQ;") ? uvq_use::always : uvq_use::never;
        if (uvq == uvq_use::always)
            take_uvq();
        lines.take_triple("VERT;", ",");
        lines.take("ADDV;" + std::to_string(first + count++));
    }
    if (count == 0)
        lines.fail("a mesh has at least one vertex");
    while (lines.at_tag("FACE;"))
        take_triangle(first, first + count);
    return count;
}

void stream_items::take_uvq() {
    if (lines.take_triple("UVQ;", ",")[2] != 1)
        lines.fail_before("the third texture coordinate of a face is 1");
}

void stream_items::take_triangle(int first, int end) {
    const std::vector<int> corners = lines.take_whole_numbers("FACE;", ",");
    if (corners.size() != 3)
        lines.fail_before("a triangle has three corners");
    for (const int corner : corners)
        if (corner < first || corner >= end)
            lines.fail_before("the mesh has no vertex of this number");
}

void stream_items::take_image_block() {
    lines.take("#;");
    lines.take("#;NEW MESH for Image");
    lines.take("MESH");
    take_image(0);
    lines.take("EMSH;");
}

int stream_items::take_image(int first) {
    take_layer_of_geometry();
    lines.take("CULL;0");
    lines.take_if("SHDW;0");
    lines.take("MPUV;1");
    take_material_number("MATL;");
    lines.take("MPU2;1");
    lines.take("MAT2;10");
    int number = first;
    for (const char* uvq : {"UVQ;(0,0,0)", "UVQ;(1,0,0)", "UVQ;(1,1,0)", "UVQ;(0,1,0)"}) {
        lines.take_unit_or_zero("NORM;", ",");
        lines.take(uvq);
        lines.take_triple("VERT;", ",");
        lines.take("ADDV;" + std::to_string(number++));
    }
    const auto at = [first](int corner) { return std::to_string(first + corner); };
    lines.take("FACE;" + at(0) + ", " + at(1) + ", " + at(2));
    lines.take("FACE;" + at(2) + ", " + at(3) + ", " + at(0));
    return 4;
}

// The blocks of faces, of lamps and of faces that glow.

#include "tools/batch_check/stream_check.h"

namespace batch_check {

void stream_check::take_stray_close(std::string_view close) {
    if (block_seen) {
        if (!lines.take_if(close))
            lines.report(code::stream_stray_close, in_quotes(close) + " must stand ahead of this");
    } else if (lines.at(close)) {
        lines.report(code::stream_stray_close, "no block was opened before");
        lines.skip();
    }
    block_seen = true;
}

void stream_check::take_face_block() {
    inside_direct_light = false; // all that is in one counts as a lamp and has no block
    open = inside::face;
    take_sides([this] { return take_block_of_side(); });
}

stream_check::shown_side stream_check::take_block_of_side() {
    take_stray_close("EMSH; Face");
    lines.take("#; ProcessFace MESH");
    lines.take("MESH;");
    ++facts.meshes;
    lines.take_if("SHDW;0");
    if (lines.at_tag("GCOR;")) {
        lines.take_whole_number("GCOR;");
        const std::size_t line = lines.number();
        std::string name = lines.take_text("GNDC;");
        if (facts.ground_covers.empty() || facts.ground_covers.back().name != name) {
            count_kept(name.size());
            facts.ground_covers.push_back({std::move(name), line});
        }
    }
    take_invisible();
    const shown_side taken = take_side(0);
    lines.take("EMSH;");
    return taken;
}

void stream_check::take_face_lamp_block() {
    take_stray_close("EMSH; Close for new Face Lamp MESH");
    lines.take("#; Process Face Lamp MESH");
    take_lamp_head();
    // A face that cannot be cut into triangles leaves the block of its lamp open and empty.
    if (!lines.at_tag("TLAY;"))
        return;
    take_face_in_block(0);
    lines.take("EMSH; END OF LAMP");
}

void stream_check::take_lamp_block() {
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
            lines.refuse_order("this cannot stand in the block of a lamp");
        }
    }
}

void stream_check::take_lamp_head() {
    inside_direct_light = false;
    open = inside::lamp;
    lines.take("MESH;");
    ++facts.meshes;
    const std::size_t line = lines.number();
    lines.take_this_number("LITE;", static_cast<int>(facts.lamps.size()), code::stream_lamp_number);
    count_kept();
    facts.lamps.push_back({line, false});
    take_invisible();
}

void stream_check::take_illuminated_block() {
    open = inside::glow;
    lines.take("#; Process Material Illum MESH");
    lines.take("MESH;");
    ++facts.meshes;
    take_invisible();
    take_layer_of_geometry();
    lines.take("CULL;0");
    lines.take("MPUV;1");
    if (lines.at("MATL;0"))
        lines.report(code::stream_material_number, "no material does not glow");
    const int material = take_material_number("MATL;");
    lines.take("MPU2;1");
    take_back_material(material);
    int vertices = 0;
    while (!lines.take_if("EMSH;") && !lines.take_if("EMSH; END OF ILLUM material")) {
        if (lines.at_tag("NORM;"))
            vertices += take_mesh(vertices, uvq_use::all_or_none);
        else if (lines.at_tag("MATF;")) // only faces stand between the first and the last of the block
            take_material();
        else
            lines.refuse_order("this cannot stand in an illuminated block");
    }
}

void stream_check::take_invisible() {
    if (lines.take_if("INVS;1"))
        lines.take("SHDW;0");
}

} // namespace batch_check

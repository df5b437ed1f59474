// The items of a stream that are no blocks.

#include "tools/batch_check/stream_check.h"

namespace batch_check {

void stream_check::take_item() {
    if (lines.at("EMSH; Face") || lines.at("#; ProcessFace MESH"))
        take_face_block();
    else if (lines.at("EMSH; Close for new Face Lamp MESH") || lines.at("#; Process Face Lamp MESH"))
        take_face_lamp_block();
    else if (lines.at("#; Process Group Lamp"))
        take_lamp_block();
    else if (lines.at("#; Process Material Illum MESH"))
        take_illuminated_block();
    else if (lines.at("#;") && lines.next_is("#;NEW MESH for Image"))
        take_image_block();
    else if (lines.at("#; Process Group LGHT Lamp Direct Light") || lines.at("#; Process Instance Lamp Direct Light"))
        take_direct_light();
    else if (lines.at_tag("TLAY;") && inside_direct_light)
        take_bare_face();
    else if (!take_item_of_any_place())
        lines.refuse_order("no item begins so");
}

bool stream_check::take_item_of_any_place() {
    if (lines.at_tag("MATF;"))
        take_material();
    else if (lines.at_tag("CLPN;"))
        take_section_plane();
    else if (lines.at("#;PLANT"))
        take_plant();
    else if (lines.at_tag("RPCP;"))
        take_rpc();
    else
        return false;
    return true;
}

void stream_check::take_material() {
    const std::size_t line = lines.number();
    const std::string name(lines.payload("MATF;"));
    if (!material_names.insert(name).second)
        lines.report(code::stream_declaration, "the name is declared already");
    lines.skip();
    count_kept(name.size()); // among the names
    count_kept(name.size()); // as a material
    lines.take("MTX2;1");
    const int number = first_material + static_cast<int>(facts.materials.size());
    lines.take_this_number("MATI;", number, code::stream_declaration);
    facts.materials.push_back({name, line});
}

void stream_check::take_section_plane() {
    if (lines.at("CLPN;(0,0,0)"))
        lines.report(code::stream_direction, "a plane has a direction");
    lines.take_unit_or_zero("CLPN;");
    lines.take_triple("CLPP;");
}

void stream_check::take_plant() {
    lines.take("#;PLANT");
    const bool has_own_file = lines.at("PLLB;OrnPlant");
    lines.take_text("PLLB;");
    const std::size_t line = lines.number();
    std::string name = lines.take_text("PLNM;");
    if (has_own_file) {
        count_kept(name.size());
        facts.plants.push_back({std::move(name), line});
    }
    lines.take_triple("PLLC;");
    // A plant of a library that gives no ratio of its height and none of its width; and a scattered one, which has
    // no size either.
    if (!lines.take_if("PLDM;inf") && !lines.take_if("PLDM;nan"))
        lines.take_real("PLDM;");
    lines.take_whole_number("PLSN;");
    lines.take_real("PLRT;");
    lines.take_real("PLSC;");
    lines.take("PLNT;1");
    lines.take("#");
}

void stream_check::take_rpc() {
    lines.take_triple("RPCP;");
    for (const char* axis : {"RPCX;", "RPCY;", "RPCZ;"})
        lines.take_unit_or_zero(axis); // zero if the object is squeezed flat
    for (const char* scale : {"RPSX;", "RPSY;", "RPSZ;"}) {
        if (lines.at_tag(std::string(scale) + "-"))
            lines.report(code::stream_number, "a length is not negative");
        lines.take_real(scale);
    }
    lines.take_text("RPCL;");
    lines.take_text("RPCN;");
    lines.take("#");
}

void stream_check::take_direct_light() {
    lines.skip();
    const std::size_t line = lines.number();
    lines.take_this_number("LGHT;", static_cast<int>(facts.lamps.size()), code::stream_lamp_number);
    count_kept();
    facts.lamps.push_back({line, true});
    inside_direct_light = true;
}

void stream_check::take_bare_face() {
    open = inside::face;
    take_sides([this] {
        ++facts.meshes;
        const shown_side taken = take_side(0);
        lines.take("EMSH;");
        return taken;
    });
}

} // namespace batch_check

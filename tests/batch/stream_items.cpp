// The frame of a stream, and the items of its body that are no blocks.

#include "tests/batch/stream_items.h"

#include "platform/platform.h"

void stream_items::take_stream() {
    take_head();
    while (!at_end() && !at_edges())
        take_item();
    if (at_edges())
        take_edges();
    lines.take("#;");
    lines.take("END;");
    if (!lines.at_end())
        lines.fail("nothing may stand behind \"END;\"");
}

void stream_items::take_head() {
    lines.take("#;Tessaline Geometry, new extractor");
    lines.take_date();
    lines.take("DFFC;ffffff");
    lines.take("DFBC;ffffff");
    lines.take("DFEC;000000");
    lines.take("#;");
    while (lines.at_tag("LYIN;"))
        take_layer();
    lines.take("#;");
    lines.take("PASS;0");
    lines.take("#;");
}

void stream_items::take_layer() {
    lines.take("LYIN;" + std::to_string(layer_count++));
    layer_names.emplace(lines.take_text("LYNM;"));
}

void stream_items::take_item() {
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
        lines.fail("no item begins so");
}

bool stream_items::take_item_of_any_place() {
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

void stream_items::take_material() {
    lines.take_text("MATF;");
    lines.take("MTX2;1");
    lines.take("MATI;" + std::to_string(first_material + material_count++));
}

void stream_items::take_section_plane() {
    lines.take_unit("CLPN;", ",");
    lines.take_triple("CLPP;", ",");
}

void stream_items::take_plant() {
    lines.take("#;PLANT");
    const bool has_own_data = lines.at("PLLB;OrnPlant");
    lines.take_text("PLLB;");
    if (!is_plant_file(lines.take_text("PLNM;")) && has_own_data)
        lines.fail_before("data of its own lie in the folder of plants");
    lines.take_triple("PLLC;", ",");
    // A plant of a library that gives no ratio of its height and none of its width; and a scattered one, which has
    // no size either.
    if (!lines.take_if("PLDM;inf") && !lines.take_if("PLDM;nan"))
        lines.take_real("PLDM;");
    lines.take_signed_number("PLSN;");
    lines.take_real("PLRT;");
    lines.take_real("PLSC;");
    lines.take("PLNT;1");
    lines.take("#");
}

bool stream_items::is_plant_file(std::string_view name) {
    constexpr std::string_view folder = platform::path_separator == '/' ? "/Plants/" : "\\Plants\\";
    const std::size_t at = name.rfind(folder);
    return at != std::string_view::npos && name.find(folder.front(), at + folder.size()) == std::string_view::npos;
}

void stream_items::take_rpc() {
    lines.take_triple("RPCP;", ",");
    for (const char* axis : {"RPCX;", "RPCY;", "RPCZ;"})
        lines.take_unit_or_zero(axis, ","); // zero if the object is squeezed flat
    for (const char* scale : {"RPSX;", "RPSY;", "RPSZ;"}) {
        if (lines.at_tag(std::string(scale) + "-"))
            lines.fail("the length of an axis is not negative");
        lines.take_real(scale);
    }
    lines.take_text("RPCL;");
    lines.take_text("RPCN;");
    lines.take("#");
}

void stream_items::take_direct_light() {
    lines.skip();
    lines.take("LGHT;" + std::to_string(lamp_count++));
    inside_direct_light = true;
}

void stream_items::take_bare_face() {
    take_sides([this] {
        const shown_side taken = take_side(0);
        lines.take("EMSH;");
        return taken;
    });
}

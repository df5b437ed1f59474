// What stands at the head of each block. Reads the parameters of the level, the layer table and the run's folders.

#include "tessaline/blocks/block_writer.h"

#include "qlw/qlw_globals.h"
#include "tessaline/state/run_state.h"
#include "text/letter_case.h"

namespace {

constexpr int edge_material = 1; // of every edge

bool shows_head(const mesh_head& head) {
    return !head.invisible && (!head.hide || is_beam_glow_layer(lower_case(head.layer_name)));
}

bool shows_bulb(bool hide, bool invisible) {
    return !hide && !invisible && get_global_bool("bvl_show_bulbs");
}

} // namespace

void block_writer::begin_mesh(const mesh_head& head) {
    stream.write_block_label(head.label);
    stream.write_mesh_opening();
    if (!head.casts_shadows)
        stream.write_no_shadow();
    if (!head.groundcover_file.empty())
        stream.write_ground_cover(head.groundcover_orientation,
                                  cover.placed(head.groundcover_file, theApp.batch_folder));
    if (!shows_head(head))
        stream.write_invisible();
}

void block_writer::write_mesh_state(const mesh_state& state) {
    write_layer(state.layer_name);
    stream.write_culling(state.two_sided);
    if (state.two_sided) {
        stream.write_front_material(state.pass == face_pass::front ? state.front_material : state.back_material);
        if (state.uses_uv)
            stream.write_front_textured();
        return;
    }
    // The other order of the two records is what the consumer has always been given for one-sided blocks.
    if (state.uses_uv)
        stream.write_front_textured();
    stream.write_front_material(state.front_material);
    if (state.uses_uv)
        stream.write_back_textured();
    stream.write_back_material(state.front_material);
}

void block_writer::write_layer_list(std::string_view layer_name) {
    const int index = layers.index_of(std::string(layer_name));
    if (index < 0)
        return;
    std::string chain = current_oparms->layer_chain.str();
    if (!chain.empty())
        chain += ',';
    stream.write_layer_chain(chain + std::to_string(index));
}

void block_writer::write_layer(std::string_view layer_name) {
    stream.write_layer_name(layer_name);
    if (theApp.is_doing_animation)
        write_layer_list(layer_name);
}

void block_writer::end_mesh(std::string_view label) {
    stream.write_mesh_closing(label);
}

void block_writer::begin_lamp_mesh(std::string_view label, int lamp_number, bool forced_hidden) {
    stream.write_stream_line("#; Process %s", label);
    stream.write_mesh_opening();
    stream.write_lamp_shape(lamp_number);
    if (forced_hidden || !shows_bulb(current_oparms->light.hide, current_oparms->invisible))
        stream.write_invisible();
}

void block_writer::begin_face_lamp_mesh(int lamp_number, bool hide, bool invisible) {
    close_if_any_was_seen("Close for new Face Lamp MESH");
    block_seen = true;
    now.vertex_base = 0;
    ++now.lamp_count;
    stream.write_comment(" Process Face Lamp MESH");
    stream.write_mesh_opening();
    stream.write_lamp_shape(lamp_number);
    if (!shows_bulb(hide, invisible))
        stream.write_invisible();
}

void block_writer::begin_illum_mesh(std::string_view layer_name, bool front_is_illuminated, int front_material,
                                    int back_material, bool hide, bool invisible) {
    stream.write_comment(" Process Material Illum MESH");
    stream.write_mesh_opening();
    if (!shows_bulb(hide, invisible))
        stream.write_invisible();
    now.vertex_base = 0;
    now.in_illum_mesh = true;
    now.illum_material = front_is_illuminated ? front_material : back_material;
    write_mesh_state({.layer_name = layer_name, .front_material = now.illum_material, .uses_uv = true});
}

void block_writer::begin_edge_mesh(std::string_view layer_name) {
    stream.write_comment("MESH for Edges");
    stream.write_mesh_opening();
    write_layer(layer_name);
    stream.write_culling(false);
    stream.write_front_material(edge_material);
    stream.write_back_material(edge_material);
}

void block_writer::write_direct_light(std::string_view label, int lamp_number) {
    ++now.lamp_count;
    stream.write_stream_line("#; Process %s Direct Light", label);
    stream.write_direct_light(lamp_number);
}

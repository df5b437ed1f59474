// Which block is open, and what ends it. Sets and clears block_seen.

#include "tessaline/blocks/block_writer.h"

#include "tessaline/state/run_state.h"

namespace {

constexpr std::string_view label_of_edges = "Edges";
constexpr std::string_view layer_of_lines = "Edges";
constexpr std::string_view layer_of_beams = default_layer_name; // whatever layers the edges are on

} // namespace

// ---- lamps

void block_writer::open_lamp_block(int lamp_number, bool forced_hidden, int depth) {
    now.vertex_base = 0;
    begin_lamp_mesh("Group Lamp", lamp_number, forced_hidden); // instances too: consumers know no other label
    ++now.lamp_count;
    now.lamp_block_open = true;
    now.lamp_block_depth = depth;
}

void block_writer::close_lamp_block() {
    end_mesh("END OF LAMP");
    now.lamp_block_open = false;
    now.lamp_block_depth = -1;
    now.vertex_base = 0;
}

// ---- beams

void block_writer::want_beam_pass() {
    if (takes_lamps())
        now.beam_pass_wanted = true;
}

bool block_writer::begin_beam_pass() {
    if (!now.beam_pass_wanted || now.beam_pass_running)
        return false;
    now.beam_pass_running = true;
    return true;
}

void block_writer::end_beam_pass() {
    now.beam_pass_wanted = false;
    now.beam_pass_running = false;
}

// ---- illuminated blocks

void block_writer::leave_illum_mesh_unless(int front_material, int back_material) {
    if (now.in_illum_mesh && front_material != now.illum_material && back_material != now.illum_material)
        end_illum_mesh("");
}

void block_writer::end_face_list() {
    if (now.in_illum_mesh)
        end_illum_mesh("END OF ILLUM material");
}

void block_writer::end_illum_mesh(std::string_view label) {
    end_mesh(label);
    ++now.mesh_count;
    now.in_illum_mesh = false;
    now.illum_material = -1;
    now.vertex_base = 0;
}

// ---- faces

void block_writer::close_if_any_was_seen(std::string_view label) {
    if (block_seen)
        end_mesh(label);
}

void block_writer::begin_face_pass(const mesh_head& head, const mesh_state& state, bool bare) {
    if (now.in_illum_mesh)
        return; // its head says all of its faces' state
    if (!now.lamp_block_open && !bare) {
        close_if_any_was_seen("Face");
        block_seen = true;
        begin_mesh(head);
        now.vertex_base = 0;
    }
    write_mesh_state(state);
}

void block_writer::end_face_pass(int vertices, bool face_lamp) {
    if (now.lamp_block_open || face_lamp || now.in_illum_mesh) {
        now.vertex_base += vertices; // the next face of the block numbers on
        return;
    }
    end_mesh("");
    now.vertex_base = 0;
}

void block_writer::end_face_lamp() {
    end_mesh("END OF LAMP");
    now.vertex_base = 0;
}

// ---- pictures

void block_writer::begin_image_mesh() {
    stream.write_comment("");
    if (now.lamp_block_open) {
        stream.write_comment("INSERT IMAGE IN LAMP");
        return;
    }
    stream.write_comment("NEW MESH for Image");
    stream.write_image_mesh_opening();
}

void block_writer::end_image_mesh(int vertices) {
    if (now.lamp_block_open) {
        now.vertex_base += vertices;
        return;
    }
    end_mesh("");
    now.vertex_base = 0;
}

// ---- edges

void block_writer::change_edge_mesh() {
    close_if_any_was_seen(label_of_edges);
    if (now.lamp_block_open)
        return;
    now.vertex_base = 0;
    begin_edge_mesh(layer_of_beams);
    block_seen = true;
}

void block_writer::end_edge_meshes() {
    close_if_any_was_seen(label_of_edges);
    block_seen = false;
}

void block_writer::begin_line_mesh() {
    stream.write_comment("");
    stream.write_mesh_opening();
    stream.write_line_mark();
    stream.write_layer_name(layer_of_lines);
}

void block_writer::end_line_mesh() {
    end_mesh("");
    now.vertex_base = 0;
}

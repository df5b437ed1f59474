#pragma once

// The blocks of the stream: what opens and closes each, what stands at its head, and which of them is open. The walk
// asks what is open and says what it meets; nothing else changes that state.

#include "tessaline/faces/face_sides.h"
#include "tessaline/plants/ground_cover.h"
#include "tessaline/stream/geometry_stream.h"

#include <string_view>

// Which block is open. A lamp block cannot hold another, and an illuminated block lasts no longer than the faces of one
// list, so at most one of the two is open.
struct block_state {
    int vertex_base = 0;            // added to a mesh's own vertex numbers; 0 in every block that gathers nothing
    bool lamp_block_open = false;   // a group or instance lamp block is open
    int lamp_block_depth = -1;      // the depth of the walk at which it opened
    bool in_illum_mesh = false;     // an illuminated block is open
    int illum_material = -1;        // its material number
    bool beam_pass_wanted = false;  // the current lamp is of the type "spot_beams"
    bool beam_pass_running = false; // its entities are being walked a second time
    int mesh_count = 0;             // illuminated blocks closed so far
    int lamp_count = 0;             // lamps met so far
};

// What a face passes to begin_mesh about its block.
struct mesh_head {
    std::string_view label{};
    bool casts_shadows = true;
    std::string_view groundcover_file{}; // empty: none
    int groundcover_orientation = -1;
    bool invisible = false;
    bool hide = false;
    std::string_view layer_name{};
};

// What a pass of a face passes to write_mesh_state.
struct mesh_state {
    std::string_view layer_name{};
    bool two_sided = false;
    face_pass pass = face_pass::front;
    int front_material = 0;
    int back_material = 0;
    bool uses_uv = false;
};

class block_writer {
public:
    // out: outlives the writer.
    explicit block_writer(geometry_stream& out) : stream(out) {}

    const block_state& state() const { return now; }

    // ---- block_writer.cpp: what opens and closes, and what is open then

    // The block of a lamp made from a group or an instance; everything that is met while it is open goes into it.
    // depth: of the walk. forced_hidden: its layer is off, and only lamps are let through.
    void open_lamp_block(int lamp_number, bool forced_hidden, int depth);
    bool has_lamp_of_depth(int depth) const { return now.lamp_block_open && now.lamp_block_depth == depth; }
    void close_lamp_block();

    // The second walk over a lamp with beams, which stands outside its block. It is wanted when the lamp is met, and
    // begins when the block has closed; begin_beam_pass gives false if there is none to begin. No lamp counts as one in
    // it, so that none begins another.
    void want_beam_pass();
    bool begin_beam_pass();
    void end_beam_pass();

    // Whether a lamp that is met is one: none is inside another, nor in the second walk.
    bool takes_lamps() const { return !now.lamp_block_open && !now.beam_pass_running; }

    // An illuminated block ends at the first face that has its material on neither side, and at the end of the list.
    void leave_illum_mesh_unless(int front_material, int back_material);
    void end_face_list();
    // Whether a glowing face opens such a block here.
    bool takes_glow() const { return !now.lamp_block_open && !now.in_illum_mesh; }

    // One side of a face. bare: it stands outside of any block, or in that of the face's own lamp, so that none opens.
    void begin_face_pass(const mesh_head& head, const mesh_state& state, bool bare);
    // vertices: that it has written. face_lamp: the block is that of the face's own lamp.
    void end_face_pass(int vertices, bool face_lamp);
    void end_face_lamp();

    // A placed picture: a block of its own, or a part of the open lamp block.
    void begin_image_mesh();
    void end_image_mesh(int vertices);

    // The edge blocks at the end of the stream. A close goes ahead of each if any block was ever opened, be it closed
    // or not: consumers count on it. Inside an open lamp block none opens.
    void change_edge_mesh();
    void end_edge_meshes();
    // A true line is a block of its own.
    void begin_line_mesh();
    void end_line_mesh();

    // ---- mesh_heads.cpp: what stands at the head of each

    void begin_mesh(const mesh_head& head);
    void write_mesh_state(const mesh_state& state);
    void write_layer_list(std::string_view layer_name);
    void write_layer(std::string_view layer_name); // its name, and in an animation its list
    void end_mesh(std::string_view label);
    void begin_lamp_mesh(std::string_view label, int lamp_number, bool forced_hidden);
    void begin_face_lamp_mesh(int lamp_number, bool hide, bool invisible);
    void begin_illum_mesh(std::string_view layer_name, bool front_is_illuminated, int front_material, int back_material,
                          bool hide, bool invisible);
    void begin_edge_mesh(std::string_view layer_name);
    // A lamp without geometry: no block, the next face's lines stand bare.
    void write_direct_light(std::string_view label, int lamp_number);

private:
    void end_illum_mesh(std::string_view label);
    // block_seen tells that any block was opened before, not that one is open now; the extra close is part of the
    // format.
    void close_if_any_was_seen(std::string_view label);

    geometry_stream& stream;
    block_state now;
    ground_cover cover; // where that of the objects at hand lies
};

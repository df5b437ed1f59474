#pragma once

// One function for each item of a stream; each takes its lines or reports a fault. What the items say that others
// depend on (numbers, layers, what is open) is kept here.

#include "tests/batch/line_reader.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

class stream_items {
    // The state lines and the mesh of one pass over a face.
    struct shown_side {
        int vertices = 0;
        bool is_alone = false; // seen from its front only
    };
    enum class uvq_use { never, always, all_or_none };

public:
    explicit stream_items(std::vector<std::string_view> all_lines) : lines(std::move(all_lines)) {}

    // All of it, to its end.
    void take_stream();

private:
    // ---- stream_items.cpp: the frame, and the items that are no blocks

    void take_head();
    void take_layer();
    bool is_animation() const { return layer_count != 0; } // every model has a layer
    bool at_end() const { return lines.at_end() || (lines.at("#;") && lines.next_is("END;")); }
    bool at_edges() const { return lines.at("#;") && lines.next_is("#;EDGES"); }

    void take_item();
    // What may also stand inside a block that gathers faces. False, with nothing taken, if none of them stands here.
    bool take_item_of_any_place();
    void take_material();
    void take_section_plane();
    void take_plant();
    // The full name of a file right in the folder of plants.
    static bool is_plant_file(std::string_view name);
    void take_rpc();
    void take_direct_light();
    // The shape of a lamp that has no block: what a face block holds, without its first lines.
    void take_bare_face();

    // ---- stream_blocks.cpp: blocks of faces, lamps and images

    void take_face_block();
    shown_side take_block_of_side();
    void take_face_lamp_block();
    void take_lamp_block();
    void take_lamp_head();
    void take_illuminated_block();
    void take_invisible();
    void take_image_block();
    int take_image(int first);

    // A face that shows each of its sides alone gives two, of the same vertices; otherwise one stands for both.
    // Gives how many vertices there are in all.
    template<class Take>
    int take_sides(Take take) {
        const shown_side front = take();
        if (!front.is_alone)
            return front.vertices;
        const shown_side back = take();
        if (!back.is_alone)
            lines.fail_before("the other side of this face must be one-sided too");
        if (back.vertices != front.vertices)
            lines.fail_before("the two sides of this face have other vertices");
        return front.vertices + back.vertices;
    }

    // Both sides inside a block that gathers faces. first: the number of the first vertex.
    int take_face_in_block(int first);
    shown_side take_side(int first);
    void take_layer_of_geometry();
    uvq_use take_materials();
    int take_material_number(std::string_view tag);
    int take_mesh(int first, uvq_use uvq);
    void take_uvq();
    void take_triangle(int first, int end);

    // ---- stream_edges.cpp

    void take_edges();
    void take_edge_line();
    // The close ahead of a block closes the one before, be it closed or not.
    void take_edge_blocks();
    int take_edge_block(int most_edges);
    // Opposite sides have the same normal, and the normals of neighbours are square to one another.
    void take_beam(int first);

    static constexpr int no_material = 0;
    static constexpr int first_material = 10;

    line_reader lines;
    int layer_count = 0;
    std::set<std::string, std::less<>> layer_names;
    int material_count = 0;
    int lamp_count = 0;
    bool inside_direct_light = false; // or behind one, with no block since
    bool block_seen = false;          // a face block, face lamp block or edge block was opened before
};

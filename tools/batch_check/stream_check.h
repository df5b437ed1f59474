#pragma once

// One function for each item of a stream; each takes its lines. What the items say that others depend on (numbers,
// layers, what is open) is kept here.

#include "tools/batch_check/stream_facts.h"
#include "tools/batch_check/stream_lines.h"

#include <set>
#include <string>
#include <string_view>

namespace batch_check {

class stream_check {
    // The state lines and the mesh of one pass over a face.
    struct shown_side {
        int vertices = 0;
        bool is_alone = false; // seen from its front only
    };
    enum class uvq_use { never, always, all_or_none };
    // What is being taken: where the check goes on behind a fault depends on it.
    enum class inside { nothing, face, lamp, glow, image, edges };

    struct given_up {}; // thrown where the rest of the stream is not to be read

public:
    // most_kept: as check_stream takes it.
    stream_check(byte_source& stream, const std::string& file, findings& to, stream_facts& into,
                 std::uint64_t most_kept)
        : lines(stream, file, to), file_name(file), found(to), facts(into), most_kept_bytes(most_kept) {}

    // All of it, to its end.
    void take_stream();

private:
    // ---- stream_check.cpp: the frame

    void take_parts();
    void take_head();
    void take_layer();
    void take_body();
    bool at_end_of_body();
    void take_end();
    void report_lines();
    // Goes on to what may begin an item, or behind the end of the block that was being taken.
    void recover();
    bool begins_item();
    bool ends_what_is_open() const;
    // Declarations and lamps count though they are passed over.
    void note_passed_over();
    // Counts what is about to be kept of the stream; gives up if that is too much.
    void count_kept(std::size_t bytes_of_name = 0);

    // ---- stream_items.cpp: the items that are no blocks

    void take_item();
    // What may also stand inside a block that gathers faces. False, with nothing taken, if none of them stands here.
    bool take_item_of_any_place();
    void take_material();
    void take_section_plane();
    void take_plant();
    void take_rpc();
    void take_direct_light();
    // The shape of a lamp that has no block: what a face block holds, without its first lines.
    void take_bare_face();

    // ---- stream_blocks.cpp: blocks of faces, lamps and glowing faces

    void take_stray_close(std::string_view close);
    void take_face_block();
    shown_side take_block_of_side();
    void take_face_lamp_block();
    void take_lamp_block();
    void take_lamp_head();
    void take_illuminated_block();
    void take_invisible();

    // ---- stream_sides.cpp: what a block holds

    // A face that shows each of its sides alone gives two, of the same vertices; otherwise one stands for both.
    // Gives how many vertices there are in all.
    template<class Take>
    int take_sides(Take take);
    // Both sides inside a block that gathers faces. first: the number of the first vertex.
    int take_face_in_block(int first);
    shown_side take_side(int first);
    bool at_side();
    void take_layer_of_geometry();
    // The first fault of a list is a finding: one list may have millions.
    void check_layer_list(std::string_view list);
    uvq_use take_materials();
    int take_material_number(std::string_view tag);
    void take_back_material(int front);
    int take_mesh(int first, uvq_use uvq);
    void take_uvq(bool belongs_here);
    void take_position();
    void take_triangle(int first, int end);
    void take_this_triangle(const std::string& line);

    // ---- stream_images.cpp

    void take_image_block();
    int take_image(int first);

    // ---- stream_edges.cpp

    void take_edges();
    void take_edge_line();
    // The close ahead of a block closes the one before, be it closed or not.
    void take_edge_blocks();
    int take_edge_block(int most_edges);
    // Opposite sides have the same normal, and the normals of neighbours are square to one another.
    void take_beam(int first);

    static constexpr int no_material = 0;
    static constexpr int edge_material = 1;
    static constexpr int first_material = 10;

    stream_lines lines;
    std::string file_name;
    findings& found;
    stream_facts& facts;

    int layer_count = 0; // of the table that an animation has; every model has a layer
    std::set<std::string, std::less<>> table_names;
    std::set<std::string, std::less<>> layer_names;
    std::string last_layer;
    std::set<std::string, std::less<>> material_names;
    std::uint64_t most_kept_bytes;
    std::uint64_t kept_bytes = 0;
    std::string passed_name; // of a declaration that is being passed over

    inside open = inside::nothing;
    int shown_material = no_material; // number of the last "MATL;"
    bool inside_direct_light = false; // or behind one, with no block since
    bool block_seen = false;          // a face block, face lamp block or edge block was opened before
    bool is_at_front = false;         // the first of two sides is being taken
    bool is_alone = false;            // the side that is being taken is seen from its front only
    bool owes_no_back = false;        // the next side that is alone is the second of a face whose first was faulty
    bool is_given_up = false;
};

template<class Take>
int stream_check::take_sides(Take take) {
    const bool is_second = owes_no_back;
    owes_no_back = false;
    is_at_front = !is_second;
    const shown_side front = take();
    is_at_front = is_alone = false;
    if (!front.is_alone || is_second)
        return front.vertices;
    if (!at_side()) {
        if (!lines.at_end())
            lines.report(code::stream_two_sides, "the other side of the face before must stand here");
        return front.vertices;
    }
    const shown_side back = take();
    is_alone = false;
    if (!back.is_alone)
        lines.report(code::stream_two_sides, "the face before this line is one-sided on its first side alone");
    else if (back.vertices != front.vertices)
        lines.report(code::stream_two_sides, "the sides of the face before this line have other vertices");
    return front.vertices + back.vertices;
}

} // namespace batch_check

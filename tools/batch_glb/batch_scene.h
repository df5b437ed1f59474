#pragma once

// What a stream builds up: triangles by layer and material, lines, lamps, plants, planes.

#include "tools/batch_glb/batch_materials.h"
#include "tools/batch_glb/block_vertices.h"
#include "tools/batch_glb/placed_things.h"
#include "tools/batch_glb/stream_records.h"
#include "tools/gltf/vertex_data.h"

#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <unordered_map>
#include <utility>
#include <vector>

// A lamp, and where its shape lies.
struct seen_lamp {
    std::string layer;
    gltf::float_range shape;
};

struct batch_counts {
    std::uint64_t triangles = 0;
    std::uint64_t triangles_unseen = 0;   // of blocks that the camera does not see; they are not in the file
    std::uint64_t triangles_left_out = 0; // with corners that do not exist or have no place
    std::uint64_t lines = 0;
    std::uint64_t blocks = 0;
};

class batch_scene : public record_taker {
public:
    batch_scene(std::string batch_folder, gltf::glb_writer& to);

    void block_begins() override;
    void block_ends() override;
    void vertex(int number, const stream_corner& corner) override;
    void triangle(const std::array<int, 3>& corners, std::uint64_t line) override;
    void record(std::string_view tag, std::string_view payload) override;
    bool goes_on() override { return !writer.has_failed() && !too_many; }

    // Adds a mesh and a node for each layer, and those of the lines. Gives the nodes.
    std::vector<std::size_t> finish();

    const batch_counts& counts() const { return found; }
    const gltf::float_range& box() const { return bounds; }
    const std::map<int, seen_lamp>& lamps() const { return lamps_by_number; }
    const placed_things& things() const { return placed; }
    batch_materials& materials() { return known; }
    const std::vector<std::string>& layers() const { return layer_names; }
    bool has_too_many_parts() const { return too_many; }
    // What was left out because there was no room for it, in words; empty if nothing was.
    std::string left_out() const { return room.note(); }

private:
    // Triangles of one layer and one look.
    struct part {
        part(gltf::byte_spool& spool, bool textured) : data(spool, true, textured), lines(spool.begin()) {}
        gltf::growing_primitive data;
        gltf::byte_spool::strand lines; // JSON: which triangle stands in which line of the stream
        std::uint64_t triangles = 0;
        std::uint64_t last_line = 0;
    };
    struct part_key {
        std::size_t layer = 0;
        std::size_t slot = 0;
        bool two_sided = false;
        bool with_picture = false;
        bool is_of_lamp = false; // so that what a lamp lights up can be told from the rest of its material
        int lamp_number = 0;
        auto operator<=>(const part_key&) const = default;
    };
    struct block_state {
        int material = 0;
        int back_material = 0;
        bool one_sided = false;
        bool unseen = false;
        std::string layer;
    };

    static constexpr std::size_t most_parts = std::size_t{1} << 18U;

    bool is_edge_block() const { return state.material == batch_materials::of_edges; }
    void set_state(std::string_view tag, std::string_view payload);
    void begin_lamp(std::string_view payload);
    void end_of_line(std::string_view payload, bool is_second);
    void add_beam_corner(const gltf::float3& position);
    void add_line(const gltf::float3& from, const gltf::float3& to);
    std::size_t layer_number(const std::string& name);
    part* current_part(bool has_coordinates);
    std::uint32_t vertex_in(part& to, block_vertex& vertex, const std::array<block_vertex*, 3>& triangle);
    void note_line(part& to, std::uint64_t line);
    std::size_t add_layer_node(std::size_t layer, const std::vector<std::pair<part_key, part*>>& parts);
    void add_primitive(const part_key& key, part& from);
    std::size_t add_edges_node();

    gltf::glb_writer& writer;
    kept_records room; // for materials, placed things and lamps
    batch_materials known;
    placed_things placed;
    block_vertices vertices;
    block_state state;
    std::map<part_key, part> parts;
    std::array<part*, 2> current{}; // of the present state, without and with coordinates
    std::vector<std::string> layer_names;
    std::unordered_map<std::string, std::size_t> layer_numbers;
    gltf::growing_primitive edges;
    std::array<std::array<double, 3>, 2> beam{}; // sums of the corners at either end
    int beam_corners = 0;
    gltf::float3 line_start{};
    std::map<int, seen_lamp> lamps_by_number;
    std::pair<const int, seen_lamp>* lamp = nullptr; // whose shape comes
    batch_counts found;
    gltf::float_range bounds;
    bool too_many = false;
};

#include "tools/batch_glb/batch_scene.h"

#include "platform/platform.h"
#include "tools/batch_glb/stream_numbers.h"
#include "tools/gltf/numbers.h"

#include <cmath>

namespace {

using gltf::metres_in_an_inch;
constexpr int corners_of_a_beam = 16; // four sides of four; of each two at its start and then two at its end
constexpr double corners_of_an_end = 8;

double square_length(const gltf::float3& v) {
    return double{v[0]} * v[0] + double{v[1]} * v[1] + double{v[2]} * v[2];
}

gltf::float3 normal_of(const gltf::float3& a, const gltf::float3& b, const gltf::float3& c) {
    const std::array<double, 3> u = {double{b[0]} - a[0], double{b[1]} - a[1], double{b[2]} - a[2]};
    const std::array<double, 3> v = {double{c[0]} - a[0], double{c[1]} - a[1], double{c[2]} - a[2]};
    return gltf::unit_vector(u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0]);
}

} // namespace

batch_scene::batch_scene(std::string batch_folder, gltf::glb_writer& to)
    : writer(to), known(std::move(batch_folder), to, room), placed(room), edges(to.spool(), false, false) {}

void batch_scene::block_begins() {
    ++found.blocks;
    vertices.clear();
    state = {};
    current = {};
    lamp = nullptr;
    beam_corners = 0;
}

void batch_scene::block_ends() {
    vertices.clear();
    state = {};
    current = {};
    lamp = nullptr;
    beam_corners = 0;
}

void batch_scene::vertex(int number, const stream_corner& corner) {
    if (is_edge_block())
        add_beam_corner(corner.position);
    else
        vertices.add(number, corner);
}

// The mean of the corners at an end is the end itself.
void batch_scene::add_beam_corner(const gltf::float3& position) {
    if (beam_corners == 0)
        beam = {};
    std::array<double, 3>& sum = beam[beam_corners % 4 < 2 ? 0 : 1];
    for (std::size_t i = 0; i < 3; ++i)
        sum[i] += double{position[i]} / corners_of_an_end;
    if (++beam_corners < corners_of_a_beam)
        return;
    beam_corners = 0;
    std::array<gltf::float3, 2> ends{};
    for (std::size_t end = 0; end < 2; ++end)
        for (std::size_t i = 0; i < 3; ++i)
            ends[end][i] = static_cast<float>(beam[end][i]);
    add_line(ends[0], ends[1]);
}

void batch_scene::add_line(const gltf::float3& from, const gltf::float3& to) {
    if (!gltf::is_finite(from) || !gltf::is_finite(to))
        return;
    const std::uint32_t first = edges.add_vertex(from, {}, {});
    const std::array<std::uint32_t, 2> both = {first, edges.add_vertex(to, {}, {})};
    edges.add_indices(both);
    bounds.include(from);
    bounds.include(to);
    ++found.lines;
}

std::size_t batch_scene::layer_number(const std::string& name) {
    const auto [entry, is_new] = layer_numbers.try_emplace(name, layer_names.size());
    if (is_new)
        layer_names.push_back(name);
    return entry->second;
}

// Null if there are more parts than can be kept.
batch_scene::part* batch_scene::current_part(bool has_coordinates) {
    part*& chosen = current[has_coordinates ? 1 : 0];
    if (chosen != nullptr)
        return chosen;
    std::size_t slot = known.slot_of(state.material);
    if (state.material == batch_materials::none && !state.one_sided)
        slot = known.slot_of(state.back_material);
    const part_key key{.layer = layer_number(state.layer),
                       .slot = slot,
                       .two_sided = !state.one_sided,
                       .with_picture = has_coordinates && known.has_picture(slot),
                       .is_of_lamp = lamp != nullptr,
                       .lamp_number = lamp != nullptr ? lamp->first : 0};
    const auto known_part = parts.find(key);
    if (known_part != parts.end())
        return chosen = &known_part->second;
    too_many = parts.size() >= most_parts;
    if (too_many)
        return nullptr;
    return chosen = &parts.try_emplace(key, writer.spool(), key.with_picture).first->second;
}

// triangle: that of the corner, for a vertex without a sound normal.
std::uint32_t batch_scene::vertex_in(part& to, block_vertex& vertex, const std::array<block_vertex*, 3>& triangle) {
    if (vertex.owner == &to)
        return vertex.index;
    const stream_corner& corner = vertex.corner;
    gltf::float3 normal = corner.normal;
    const double square = square_length(normal);
    if (!(std::abs(square - 1) < 1e-5)) // nine digits leave less
        normal =
            square > 0 && std::isfinite(square)
                ? gltf::unit_vector(normal[0], normal[1], normal[2])
                : normal_of(triangle[0]->corner.position, triangle[1]->corner.position, triangle[2]->corner.position);
    gltf::float2 at{};
    if (std::isfinite(corner.coordinates[0]) && std::isfinite(corner.coordinates[1]))
        at = {corner.coordinates[0], 1 - corner.coordinates[1]};
    vertex.index = to.data.add_vertex(corner.position, normal, at);
    vertex.owner = &to;
    return vertex.index;
}

// One entry for each row of triangles whose lines follow one another.
void batch_scene::note_line(part& to, std::uint64_t line) {
    if (to.triangles == 0 || line != to.last_line + 1)
        writer.spool().append(to.lines, (to.triangles == 0 ? "[" : ",[") + std::to_string(to.triangles) + "," +
                                            std::to_string(line) + "]");
    to.last_line = line;
    ++to.triangles;
}

void batch_scene::triangle(const std::array<int, 3>& corners, std::uint64_t line) {
    if (is_edge_block())
        return;
    std::array<block_vertex*, 3> at{};
    for (std::size_t i = 0; i < 3; ++i) {
        at[i] = vertices.find(corners[i]);
        if (at[i] == nullptr || !gltf::is_finite(at[i]->corner.position)) {
            ++found.triangles_left_out;
            return;
        }
    }
    if (lamp != nullptr)
        for (const block_vertex* each : at)
            lamp->second.shape.include(each->corner.position);
    if (state.unseen) {
        ++found.triangles_unseen;
        return;
    }
    part* const to = current_part(at[0]->corner.has_coordinates);
    if (to == nullptr)
        return;
    std::array<std::uint32_t, 3> indices{};
    for (std::size_t i = 0; i < 3; ++i)
        indices[i] = vertex_in(*to, *at[i], at);
    to->data.add_indices(indices);
    note_line(*to, line);
    ++found.triangles;
}

void batch_scene::record(std::string_view tag, std::string_view payload) {
    if (tag == "MATF")
        known.name_next(payload);
    else if (tag == "MATI") {
        if (const auto number = read_integer(payload)) {
            known.declare(*number);
            current = {};
        }
    } else if (tag == "LITE" || tag == "LGHT")
        begin_lamp(payload);
    else if (tag == "EDG1" || tag == "EDG2")
        end_of_line(payload, tag == "EDG2");
    else if (!placed.take(tag, payload))
        set_state(tag, payload);
}

void batch_scene::set_state(std::string_view tag, std::string_view payload) {
    if (tag == "TLAY") {
        state.layer = payload;
        if (lamp != nullptr && lamp->second.layer.empty() && !state.layer.empty() && room.keep(state.layer.size()))
            lamp->second.layer = state.layer;
    } else if (tag == "CULL")
        state.one_sided = payload == "1";
    else if (tag == "MATL")
        state.material = read_integer(payload).value_or(0);
    else if (tag == "MAT2")
        state.back_material = read_integer(payload).value_or(0);
    else if (tag == "INVS")
        state.unseen = payload == "1";
    else
        return;
    current = {};
}

void batch_scene::begin_lamp(std::string_view payload) {
    const auto number = read_integer(payload);
    if (!number)
        return;
    const bool is_known = lamps_by_number.contains(*number);
    lamp = is_known || room.keep(0) ? &*lamps_by_number.try_emplace(*number).first : nullptr;
    current = {};
}

void batch_scene::end_of_line(std::string_view payload, bool is_second) {
    const auto inches = read_triple(payload);
    if (!inches)
        return;
    gltf::float3 end{};
    for (std::size_t i = 0; i < 3; ++i)
        end[i] = static_cast<float>((*inches)[i] * metres_in_an_inch);
    if (is_second)
        add_line(line_start, end);
    else
        line_start = end;
}

// The list of lines may be as long as the stream, so it goes from strand to strand.
void batch_scene::add_primitive(const part_key& key, part& from) {
    const std::size_t material = known.material_of(key.slot, key.two_sided, key.with_picture);
    gltf::json primitive = from.data.put(writer, gltf::primitive_mode::triangles);
    primitive["material"] = material;
    std::string text = gltf::text_of(primitive);
    text.pop_back();
    text += ",\"extras\":{";
    if (key.is_of_lamp)
        text += "\"lamp_number\":" + std::to_string(key.lamp_number) + ",";
    writer.extend(gltf::list::meshes, text + "\"lines\":[");
    writer.extend(gltf::list::meshes, from.lines);
    writer.extend(gltf::list::meshes, "]}}");
}

std::size_t batch_scene::add_layer_node(std::size_t layer, const std::vector<std::pair<part_key, part*>>& parts_of_it) {
    const gltf::json name = platform::utf8_from_own(layer_names[layer]);
    const std::size_t number =
        writer.add_text(gltf::list::meshes, "{\"name\":" + gltf::text_of(name) + ",\"primitives\":[");
    for (const auto& [key, each] : parts_of_it) {
        if (writer.has_failed()) // a long name of many materials makes a text without end
            break;
        if (each != parts_of_it.front().second)
            writer.extend(gltf::list::meshes, ",");
        add_primitive(key, *each);
    }
    writer.extend(gltf::list::meshes, "]}");
    return writer.add(gltf::list::nodes,
                      {{"name", name}, {"mesh", number}, {"extras", {{"layer", name}, {"visible", true}}}});
}

std::size_t batch_scene::add_edges_node() {
    gltf::json primitive = edges.put(writer, gltf::primitive_mode::lines);
    primitive["material"] = known.material_of(known.slot_of(batch_materials::of_edges), false, false);
    primitive["extras"] = {{"edges", true}};
    const std::size_t mesh =
        writer.add(gltf::list::meshes, {{"name", "edges"}, {"primitives", {primitive}}, {"extras", {{"edges", true}}}});
    return writer.add(gltf::list::nodes, {{"name", "edges"}, {"mesh", mesh}, {"extras", {{"edges", true}}}});
}

std::vector<std::size_t> batch_scene::finish() {
    std::vector<std::vector<std::pair<part_key, part*>>> by_layer(layer_names.size());
    for (auto& [key, each] : parts)
        if (each.data.index_count() > 0) {
            by_layer[key.layer].emplace_back(key, &each);
            bounds.include(each.data.range());
        }
    std::vector<std::size_t> nodes;
    for (std::size_t layer = 0; layer < by_layer.size(); ++layer)
        if (!by_layer[layer].empty())
            nodes.push_back(add_layer_node(layer, by_layer[layer]));
    if (edges.index_count() > 0)
        nodes.push_back(add_edges_node());
    return nodes;
}

#include "tools/gltf/vertex_data.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace gltf {

static_assert(std::endian::native == std::endian::little, "numbers go into the file as they lie in memory");

namespace {

// Those of the format.
constexpr int type_float = 5126;
constexpr int type_16_bits = 5123;
constexpr int type_32_bits = 5125;
constexpr int target_vertices = 34962;
constexpr int target_indices = 34963;
constexpr std::uint64_t most_16_bit_vertices = 65535; // the number 65535 itself means something else

template<class Item>
std::string_view bytes_of(const std::vector<Item>& items) {
    return {reinterpret_cast<const char*>(items.data()), items.size() * sizeof(Item)};
}

template<class Item>
std::string_view bytes_of_one(const Item& item) {
    return {reinterpret_cast<const char*>(item.data()), sizeof(Item)};
}

std::size_t add_view(glb_writer& to, std::uint64_t offset, std::uint64_t size, int target) {
    return to.add(list::bufferViews, {{"buffer", 0}, {"byteOffset", offset}, {"byteLength", size}, {"target", target}});
}

std::size_t add_vectors(glb_writer& to, std::uint64_t offset, std::uint64_t count, std::size_t components,
                        const float_range* range = nullptr) {
    json accessor = {{"bufferView", add_view(to, offset, count * components * sizeof(float), target_vertices)},
                     {"componentType", type_float},
                     {"count", count},
                     {"type", components == 3 ? "VEC3" : "VEC2"}};
    if (range) {
        accessor["min"] = {range->low[0], range->low[1], range->low[2]};
        accessor["max"] = {range->high[0], range->high[1], range->high[2]};
    }
    return to.add(list::accessors, accessor);
}

std::size_t add_numbers(glb_writer& to, std::uint64_t offset, std::uint64_t count, bool short_ones) {
    const std::uint64_t size = count * (short_ones ? 2 : 4);
    return to.add(list::accessors, {{"bufferView", add_view(to, offset, size, target_indices)},
                                    {"componentType", short_ones ? type_16_bits : type_32_bits},
                                    {"count", count},
                                    {"type", "SCALAR"}});
}

json primitive_of(json attributes, std::size_t indices, primitive_mode mode) {
    json result = {{"attributes", std::move(attributes)}, {"indices", indices}};
    if (mode != primitive_mode::triangles)
        result["mode"] = static_cast<int>(mode);
    return result;
}

} // namespace

bool is_finite(const float3& v) {
    return std::isfinite(v[0]) && std::isfinite(v[1]) && std::isfinite(v[2]);
}

float3 unit_vector(double x, double y, double z) {
    const double size = std::sqrt(x * x + y * y + z * z);
    if (!(size > 0) || !std::isfinite(size))
        return {0, 0, 1};
    return {static_cast<float>(x / size), static_cast<float>(y / size), static_cast<float>(z / size)};
}

void float_range::include(const float3& point) {
    if (is_empty)
        low = high = point;
    is_empty = false;
    for (std::size_t i = 0; i < 3; ++i) {
        low[i] = std::min(low[i], point[i]);
        high[i] = std::max(high[i], point[i]);
    }
}

void float_range::include(const float_range& other) {
    if (other.is_empty)
        return;
    include(other.low);
    include(other.high);
}

json add_primitive(glb_writer& to, const primitive_data& data, primitive_mode mode) {
    float_range range;
    for (const float3& point : data.positions)
        range.include(point);
    const std::size_t count = data.positions.size();
    json attributes = {{"POSITION", add_vectors(to, to.put(bytes_of(data.positions)), count, 3, &range)}};
    if (!data.normals.empty())
        attributes["NORMAL"] = add_vectors(to, to.put(bytes_of(data.normals)), count, 3);
    if (!data.coordinates.empty())
        attributes["TEXCOORD_0"] = add_vectors(to, to.put(bytes_of(data.coordinates)), count, 2);
    const bool short_ones = count <= most_16_bit_vertices;
    std::uint64_t offset = 0;
    if (short_ones)
        offset = to.put(bytes_of(std::vector<std::uint16_t>(data.indices.begin(), data.indices.end())));
    else
        offset = to.put(bytes_of(data.indices));
    return primitive_of(std::move(attributes), add_numbers(to, offset, data.indices.size(), short_ones), mode);
}

growing_primitive::growing_primitive(byte_spool& spool, bool has_normals, bool has_coordinates)
    : bytes(&spool), positions(spool.begin()), with_normals(has_normals), with_coordinates(has_coordinates) {
    if (with_normals)
        normals = spool.begin();
    if (with_coordinates)
        coordinates = spool.begin();
    numbers = spool.begin();
}

std::uint32_t growing_primitive::add_vertex(const float3& position, const float3& normal, const float2& at) {
    bytes->append(positions, bytes_of_one(position));
    if (with_normals)
        bytes->append(normals, bytes_of_one(normal));
    if (with_coordinates)
        bytes->append(coordinates, bytes_of_one(at));
    box.include(position);
    return vertices++;
}

void growing_primitive::add_indices(std::span<const std::uint32_t> indices) {
    bytes->append(numbers, {reinterpret_cast<const char*>(indices.data()), indices.size_bytes()});
    indices_added += indices.size();
}

json growing_primitive::put(glb_writer& to, primitive_mode mode) const {
    json attributes = {{"POSITION", add_vectors(to, to.put_strand(positions), vertices, 3, &box)}};
    if (with_normals)
        attributes["NORMAL"] = add_vectors(to, to.put_strand(normals), vertices, 3);
    if (with_coordinates)
        attributes["TEXCOORD_0"] = add_vectors(to, to.put_strand(coordinates), vertices, 2);
    const bool short_ones = vertices <= most_16_bit_vertices;
    const std::uint64_t offset =
        to.put_strand(numbers, short_ones ? glb_writer::width::from_32_to_16_bits : glb_writer::width::as_it_is);
    return primitive_of(std::move(attributes), add_numbers(to, offset, indices_added, short_ones), mode);
}

} // namespace gltf

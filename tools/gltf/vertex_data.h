#pragma once

// From vertices and indices to accessors.

#include "tools/gltf/glb_writer.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace gltf {

using float3 = std::array<float, 3>;
using float2 = std::array<float, 2>;

bool is_finite(const float3& v);

// A vector of length 1; up, along z, for what has no length or is not finite.
float3 unit_vector(double x, double y, double z);

// The least and the greatest of each component: what a file must say of positions, to the bit.
struct float_range {
    float3 low{};
    float3 high{};
    bool is_empty = true;
    void include(const float3& point);
    void include(const float_range& other);
};

// Triangles with one material, or lines. Everything in it must be finite; normals are unit vectors.
struct primitive_data {
    std::vector<float3> positions;
    std::vector<float3> normals;        // one for each position, or none
    std::vector<float2> coordinates;    // of the picture, v downwards; one for each position, or none
    std::vector<std::uint32_t> indices; // three for each triangle, two for each line
};

enum class primitive_mode { lines = 1, triangles = 4 };

// Puts the data into the file at once. Gives the primitive: "attributes", "indices", "mode"; the caller adds the
// material. data: with at least one index.
json add_primitive(glb_writer& to, const primitive_data& data, primitive_mode mode);

// The same for data that grows piece by piece among other data.
class growing_primitive {
public:
    growing_primitive(byte_spool& spool, bool has_normals, bool has_coordinates);

    // Gives the number of the vertex, from 0.
    std::uint32_t add_vertex(const float3& position, const float3& normal, const float2& at);
    void add_indices(std::span<const std::uint32_t> indices);

    std::uint64_t index_count() const { return indices_added; }
    const float_range& range() const { return box; }

    // As add_primitive; nothing may be added any more. To be called with at least one index.
    json put(glb_writer& to, primitive_mode mode) const;

private:
    byte_spool* bytes;
    byte_spool::strand positions = 0;
    byte_spool::strand normals = 0;
    byte_spool::strand coordinates = 0;
    byte_spool::strand numbers = 0;
    bool with_normals;
    bool with_coordinates;
    std::uint32_t vertices = 0;
    std::uint64_t indices_added = 0;
    float_range box;
};

} // namespace gltf

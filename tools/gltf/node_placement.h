#pragma once

// Where a node stands: translation, rotation and scale, the three that viewers agree on.

#include "tools/gltf/glb_writer.h"

#include <array>

namespace gltf {

using double3 = std::array<double, 3>;
using double4 = std::array<double, 4>; // of a rotation: x, y, z, w

// A linear map and a translation: x goes to axes[0] * x + axes[1] * y + axes[2] * z + origin.
struct frame {
    std::array<double3, 3> axes{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
    double3 origin{};
};

// One node, or two where the map shears: a rotation and a scale cannot say that, two of each can. What stands in
// `inner` then belongs to a node within the first.
struct node_placement {
    double3 translation{};
    double4 rotation{0, 0, 0, 1};
    double3 scale{1, 1, 1};
    bool is_sheared = false;
    double4 inner_rotation{0, 0, 0, 1};
};

// A map that mirrors gets a negative scale. What is not finite counts as 0.
node_placement placement_of(const frame& where);

// Adds "translation", "rotation" and "scale" to a node, those that do something.
void place(json& node, const node_placement& where);

// The rotation of a node whose -z axis looks along `direction` and whose y axis lies as near to `up` as that allows.
// Neither needs to be unit; a direction without length looks down.
double4 rotation_looking(const double3& direction, const double3& up);

// The rotation that turns z up into y up.
inline constexpr double4 from_z_up = {-0.70710678118654757, 0, 0, 0.70710678118654757};

json rotation_json(const double4& rotation);

} // namespace gltf

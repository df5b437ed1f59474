#include "sketchup/model/straightened_side.h"

#include "sketchup/model/loop_corners.h"
#include "sketchup/model/vector_math.h"

#include <algorithm>
#include <limits>

namespace sketchup {

plane_extent extent_in_plane(const model& m, const face& f) {
    if (f.loops.count == 0)
        return {};
    const plane_axes axes = axes_of_plane(f.plane.normal());
    constexpr double infinity = std::numeric_limits<double>::infinity();
    double least_u = infinity, least_v = infinity, greatest_u = -infinity, greatest_v = -infinity;
    const index_range outline = m.loops[f.loops.first].uses; // holes lie within
    for (index corner = outline.first; corner < outline.first + outline.count; ++corner) {
        const vec3& p = corner_position(m, corner);
        least_u = std::min(least_u, dot(p, axes.u));
        least_v = std::min(least_v, dot(p, axes.v));
        greatest_u = std::max(greatest_u, dot(p, axes.u));
        greatest_v = std::max(greatest_v, dot(p, axes.v));
    }
    if (outline.count == 0)
        return {};
    return {least_u, least_v, greatest_u - least_u, greatest_v - least_v};
}

side_coordinates straightened_coordinates(const model& m, const face& f) {
    const plane_extent extent = extent_in_plane(m, f);
    side_mapping moved;
    moved.positioned = true;
    moved.matrix = {1, 0, 0, 0, 1, 0, extent.u, extent.v, 1};
    return side_coordinates(f.plane.normal(), moved, extent.width, extent.height);
}

} // namespace sketchup

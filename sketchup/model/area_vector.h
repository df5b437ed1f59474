#pragma once

#include "sketchup/model/vector_math.h"

#include <span>

namespace sketchup {

// Twice the area of a closed polygon, as a vector against which it runs counter-clockwise; the last point is not
// repeated. Newell's sum, so that the polygon need not be quite flat.
inline vec3 area_vector(std::span<const vec3> points) {
    vec3 sum;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const vec3& p = points[i];
        const vec3& q = points[i + 1 < points.size() ? i + 1 : 0];
        sum.x += (p.y - q.y) * (p.z + q.z);
        sum.y += (p.z - q.z) * (p.x + q.x);
        sum.z += (p.x - q.x) * (p.y + q.y);
    }
    return sum;
}

} // namespace sketchup

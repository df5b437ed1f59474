#include "sketchup/model/face_area.h"

#include "sketchup/model/loop_corners.h"
#include "sketchup/model/vector_math.h"

#include <algorithm>

namespace sketchup {

namespace {

// Differences from the first corner keep the digits that far coordinates would drown.
template<typename Place>
double loop_area(const model& m, const loop& l, const Place& place) {
    if (l.uses.count < 3) {
        return 0;
    }
    const index first = l.uses.first;
    const vec3 origin = place(corner_position(m, first));
    vec3 sum;
    vec3 previous = place(corner_position(m, first + 1)) - origin;
    for (index i = 2; i < l.uses.count; ++i) {
        const vec3 next = place(corner_position(m, first + i)) - origin;
        sum = sum + cross(previous, next);
        previous = next;
    }
    return length(sum) / 2;
}

template<typename Place>
double area(const model& m, const face& f, const Place& place) {
    double result = 0;
    for (index l = 0; l < f.loops.count; ++l) {
        const double part = loop_area(m, m.loops[f.loops.first + l], place);
        result += l == 0 ? part : -part;
    }
    return std::isfinite(result) ? std::max(result, 0.0) : 0;
}

} // namespace

double face_area(const model& m, const face& f) {
    return area(m, f, [](const vec3& p) { return p; });
}

double face_area(const model& m, const face& f, const transform& placed) {
    return area(m, f, [&placed](const vec3& p) { return transform_point(placed, p); });
}

} // namespace sketchup

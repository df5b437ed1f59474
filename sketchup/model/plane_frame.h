#pragma once

// A plane as two axes at right angles, so that lengths and areas in it are those of space.

#include "sketchup/model/sweep_plane.h"
#include "sketchup/model/vector_math.h"

#include <cmath>

namespace sketchup {

class plane_frame {
public:
    // normal: of length 1. The first axis lies across the coordinate axis that is furthest from the normal; in a plane
    // across a coordinate axis both are coordinate axes, and nothing is rounded.
    plane_frame(const vec3& origin, const vec3& normal) : origin_(origin) {
        const vec3 size = {std::abs(normal.x), std::abs(normal.y), std::abs(normal.z)};
        const vec3 across = size.x <= size.y && size.x <= size.z ? vec3{1, 0, 0}
                            : size.y <= size.z                   ? vec3{0, 1, 0}
                                                                 : vec3{0, 0, 1};
        t_axis_ = normalized_or(cross(normal, across), across);
        s_axis_ = cross(t_axis_, normal);
    }

    // What runs counter-clockwise against the normal does so in (s, t).
    sweep_point project(const vec3& p) const {
        const vec3 from_origin = p - origin_;
        return {dot(from_origin, s_axis_), dot(from_origin, t_axis_)};
    }
    vec3 lift(const sweep_point& p) const { return origin_ + s_axis_ * p.s + t_axis_ * p.t; }

private:
    vec3 origin_;
    vec3 s_axis_;
    vec3 t_axis_;
};

} // namespace sketchup

#pragma once

// The plane in which the tessellator sweeps: the face dropped along the longest axis of its normal.

#include "sketchup/model/values.h"

#include <cmath>

namespace sketchup {

struct sweep_point {
    double s = 0;
    double t = 0;
    friend bool operator==(const sweep_point&, const sweep_point&) = default;
};

// The order of the sweep: by s, at equal s by t.
inline bool swept_before(const sweep_point& a, const sweep_point& b) {
    return a.s < b.s || (a.s == b.s && a.t < b.t);
}

// Above zero if a, b, c turn counter-clockwise: twice the area of their triangle.
inline double turn(const sweep_point& a, const sweep_point& b, const sweep_point& c) {
    return (b.s - a.s) * (c.t - b.t) - (b.t - a.t) * (c.s - b.s);
}

// libGLU's projection: with i the axis of the normal's largest component (the first of equal ones), s is the coordinate
// after i in the circle x, y, z and t the one after that, negated where the normal points down the axis, so that loops
// which run counter-clockwise against the normal do so in (s, t).
class sweep_plane {
public:
    explicit sweep_plane(const vec3& normal) {
        const double x = std::abs(normal.x);
        const double y = std::abs(normal.y);
        const double z = std::abs(normal.z);
        if (z > x && z > y) {
            s_ = &vec3::x;
            t_ = &vec3::y;
            sign_ = normal.z > 0 ? 1 : -1;
        } else if (y > x) {
            s_ = &vec3::z;
            t_ = &vec3::x;
            sign_ = normal.y > 0 ? 1 : -1;
        } else {
            s_ = &vec3::y;
            t_ = &vec3::z;
            sign_ = normal.x > 0 ? 1 : -1;
        }
    }

    sweep_point project(const vec3& p) const { return {p.*s_, sign_ * (p.*t_)}; }

private:
    double vec3::*s_;
    double vec3::*t_;
    double sign_;
};

} // namespace sketchup

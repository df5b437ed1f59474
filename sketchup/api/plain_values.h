#pragma once

// Between the value types of the model and those of the C interface.

#include "sketchup/model/values.h"
#include "sketchup/SketchUpAPI.h"

#include <algorithm>

namespace sketchup::api {

inline SUPoint3D to_point(const vec3& p) {
    return {p.x, p.y, p.z};
}
inline SUVector3D to_vector(const vec3& v) {
    return {v.x, v.y, v.z};
}
inline vec3 from_point(const SUPoint3D& p) {
    return {p.x, p.y, p.z};
}
inline SUPlane3D to_plane(const plane& p) {
    return {p.a, p.b, p.c, p.d};
}
inline SUColor to_color(const rgba& c) {
    return {c.red, c.green, c.blue, c.alpha};
}
inline SUBoundingBox3D to_box(const box& b) {
    return {to_point(b.minimum), to_point(b.maximum)};
}
inline SUTransformation to_transformation(const transform& t) {
    SUTransformation result;
    std::copy(t.begin(), t.end(), result.values);
    return result;
}

} // namespace sketchup::api

#pragma once

// Arithmetic of points, vectors and placements; everything in double precision, no fused operations.

#include "sketchup/model/values.h"

#include <algorithm>
#include <cmath>

namespace sketchup {

inline vec3 operator+(const vec3& a, const vec3& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline vec3 operator-(const vec3& a, const vec3& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline vec3 operator-(const vec3& a) {
    return {-a.x, -a.y, -a.z};
}
inline vec3 operator*(const vec3& a, double factor) {
    return {a.x * factor, a.y * factor, a.z * factor};
}
inline vec3 operator/(const vec3& a, double divisor) {
    return {a.x / divisor, a.y / divisor, a.z / divisor};
}

inline double dot(const vec3& a, const vec3& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline vec3 cross(const vec3& a, const vec3& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double length(const vec3& a) {
    return std::sqrt(dot(a, a));
}

inline bool is_finite(const vec3& a) {
    return std::isfinite(a.x) && std::isfinite(a.y) && std::isfinite(a.z);
}

// `a` with length 1, or `fallback` if `a` has no direction (length zero, not finite, or too small or large to square).
inline vec3 normalized_or(const vec3& a, const vec3& fallback) {
    const double size = length(a);
    return size > 0 && std::isfinite(size) ? a / size : fallback;
}

// What divides a placed point. Files keep a uniform scale as its reciprocal here; a zero, which would throw every point
// to infinity, counts as 1.
inline double weight(const transform& t) {
    return t[15] == 0 ? 1 : t[15];
}

// A point through a placement, weight included.
inline vec3 transform_point(const transform& t, const vec3& p) {
    const double w = weight(t);
    return {(t[0] * p.x + t[4] * p.y + t[8] * p.z + t[12]) / w, (t[1] * p.x + t[5] * p.y + t[9] * p.z + t[13]) / w,
            (t[2] * p.x + t[6] * p.y + t[10] * p.z + t[14]) / w};
}

// A vector through a placement: as a point, but not moved. Lengths change with the scale.
inline vec3 transform_vector(const transform& t, const vec3& v) {
    const double w = weight(t);
    return {(t[0] * v.x + t[4] * v.y + t[8] * v.z) / w, (t[1] * v.x + t[5] * v.y + t[9] * v.z) / w,
            (t[2] * v.x + t[6] * v.y + t[10] * v.z) / w};
}

// The placement of a child in the space of its grandparent: first `child`, then `parent`. The weights multiply.
inline transform compose(const transform& parent, const transform& child) {
    transform product;
    const double child_weight = weight(child);
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 4; ++column) {
            const double* c = &child[4 * column];
            product[4 * column + row] = parent[row] * c[0] + parent[4 + row] * c[1] + parent[8 + row] * c[2];
        }
        product[12 + row] += parent[12 + row] * child_weight;
    }
    product[3] = product[7] = product[11] = 0;
    product[15] = weight(parent) * child_weight;
    return product;
}

// Grows a box to hold a point. A coordinate that is no number leaves its two bounds as they are.
inline void include(box& b, const vec3& p) {
    b.minimum = {std::min(b.minimum.x, p.x), std::min(b.minimum.y, p.y), std::min(b.minimum.z, p.z)};
    b.maximum = {std::max(b.maximum.x, p.x), std::max(b.maximum.y, p.y), std::max(b.maximum.z, p.z)};
}

// Grows a box to hold another; an empty one adds nothing.
inline void include(box& b, const box& other) {
    if (!other.is_empty()) {
        include(b, other.minimum);
        include(b, other.maximum);
    }
}

} // namespace sketchup

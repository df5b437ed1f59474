// The arithmetic of a face on its way to the world.

#include "tessaline/faces/face_geometry.h"

#include "qlw/qlw_matrix.h"
#include "tessaline/stream/write_number.h"

namespace {

constexpr double same_corner = 1e-7; // inches

} // namespace

fpt transform_point(const transform16& matrix, const fpt& point) {
    const auto& m = matrix;
    return {point.x * m[0] + point.y * m[4] + point.z * m[8] + m[12],
            point.x * m[1] + point.y * m[5] + point.z * m[9] + m[13],
            point.x * m[2] + point.y * m[6] + point.z * m[10] + m[14]};
}

fpt transform_normal(const transform16& matrix, const fpt& normal, const fpt& point) {
    const axis_points beside = axis_points_of_plane(point, {snapped(normal.x), snapped(normal.y), snapped(normal.z)});
    const fpt centre = transform_point(matrix, point);
    fpt result = cross(transform_point(matrix, beside.x) - centre, transform_point(matrix, beside.y) - centre);
    result.make_unit(1.0);
    return result;
}

bool corners_coincide(const fpt& p, const fpt& q) {
    return fpt_equal(p, q, same_corner);
}

fpt longest_edge_vector(std::span<const edge_ends> edges) {
    fpt longest{0, 1, 0};
    double best = 0;
    for (const edge_ends& edge : edges) {
        const fpt vector{edge.start.x - edge.end.x, edge.end.y - edge.start.y, edge.end.z - edge.start.z};
        const double length = magnitude(vector);
        if (length > best) {
            best = length;
            longest = vector;
        }
    }
    return longest;
}

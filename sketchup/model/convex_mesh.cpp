#include "sketchup/model/convex_mesh.h"

#include "sketchup/model/sweep_plane.h"

#include <array>
#include <cstddef>

namespace sketchup {

namespace {

// Below this sine of the angle at a corner the outcome of the sweep may hang on rounding. It is a thousand times and
// more what the differences of coordinates and their products can lose.
constexpr double least_sine = 1e-9;

// Whether all corners turn left by an angle that rounding cannot hide. Squares that overflow or vanish say no.
bool turns_left_everywhere(std::span<const sweep_point> corners) {
    sweep_point in = {corners.front().s - corners.back().s, corners.front().t - corners.back().t};
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const sweep_point& next = corners[i + 1 < corners.size() ? i + 1 : 0];
        const sweep_point out = {next.s - corners[i].s, next.t - corners[i].t};
        const double turn = in.s * out.t - in.t * out.s;
        const double squares = (in.s * in.s + in.t * in.t) * (out.s * out.s + out.t * out.t);
        if (!(turn > 0 && turn * turn > least_sine * least_sine * squares)) {
            return false;
        }
        in = out;
    }
    return true;
}

void fill(std::span<const vec3> points, std::span<const std::size_t> order, std::span<const std::uint32_t> triangles,
          face_mesh& out) {
    out.vertices.resize(order.size());
    out.corners.resize(order.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        out.vertices[i] = points[order[i]];
        out.corners[i] = static_cast<index>(order[i]);
    }
    out.triangles.assign(triangles.begin(), triangles.end());
}

// The sweep closes a triangle at the corner that it meets last and begins with it.
void fill_triangle(std::span<const vec3> points, std::span<const sweep_point> swept, face_mesh& out) {
    std::size_t last = 0;
    for (std::size_t i = 1; i < 3; ++i) {
        last = swept_before(swept[last], swept[i]) ? i : last;
    }
    const std::array<std::size_t, 3> order = {last, (last + 1) % 3, (last + 2) % 3};
    constexpr std::array<std::uint32_t, 3> triangles = {0, 1, 2};
    fill(points, order, triangles, out);
}

// The diagonal of a convex quadrilateral is the one that misses the corner met first, whichever chains the others lie
// on.
void fill_quadrilateral(std::span<const vec3> points, std::span<const sweep_point> swept, face_mesh& out) {
    std::size_t first = 0;
    for (std::size_t i = 1; i < 4; ++i) {
        first = swept_before(swept[i], swept[first]) ? i : first;
    }
    const std::array<std::size_t, 4> order = {(first + 1) % 4, (first + 3) % 4, first, (first + 2) % 4};
    constexpr std::array<std::uint32_t, 6> triangles = {0, 1, 2, 1, 0, 3};
    fill(points, order, triangles, out);
}

} // namespace

bool convex_mesh(std::span<const vec3> points, const vec3& normal, face_mesh& out) {
    const std::size_t count = points.size();
    if (count != 3 && count != 4) {
        return false;
    }
    const sweep_plane plane(normal);
    std::array<sweep_point, 4> projected;
    for (std::size_t i = 0; i < count; ++i) {
        projected[i] = plane.project(points[i]);
    }
    const std::span<const sweep_point> swept(projected.data(), count);
    // Three or four left turns cannot wind twice: each is below half a turn and together they are whole turns.
    if (!turns_left_everywhere(swept)) {
        return false;
    }
    if (count == 3) {
        fill_triangle(points, swept, out);
    } else {
        fill_quadrilateral(points, swept, out);
    }
    return true;
}

} // namespace sketchup

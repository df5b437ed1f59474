#include "sketchup/model/face_openings.h"

#include "sketchup/model/area_vector.h"
#include "sketchup/model/loop_corners.h"
#include "sketchup/model/opening_tolerance.h"

#include <algorithm>
#include <cmath>

namespace sketchup {
namespace {

// The plane of a face, and which way its outline runs.
struct face_side_up {
    vec3 normal; // unit
    double offset = 0;
    bool is_counter_clockwise = true;
};

// Without a direction the normal is zero.
face_side_up side_up(const model& m, const face& f) {
    face_side_up up;
    const double size = length(f.plane.normal());
    if (!(size > 0) || !std::isfinite(size))
        return up;
    up.normal = f.plane.normal() / size;
    up.offset = f.plane.d / size;
    std::vector<vec3> outline;
    const index_range uses = f.loops.count == 0 ? index_range() : m.loops[f.loops.first].uses;
    for (index i = 0; i < uses.count; ++i)
        outline.push_back(corner_position(m, uses.first + i));
    up.is_counter_clockwise = !(dot(area_vector(outline), up.normal) < 0);
    return up;
}

// Empty if nothing is left of the outline.
std::vector<vec3> projected(const plane_outline& flat, const transform& placed, const face_side_up& up) {
    std::vector<vec3> points;
    points.reserve(flat.size());
    for (const point2& p : flat) {
        const vec3 there = transform_point(placed, {p.x, p.y, 0});
        points.push_back(there - up.normal * (dot(up.normal, there) + up.offset));
        if (!is_finite(points.back()))
            return {};
    }
    const double twice_area = dot(area_vector(points), up.normal);
    if (!(std::abs(twice_area) >= 2 * opening_tolerance * opening_tolerance) || !std::isfinite(twice_area))
        return {};
    if ((twice_area > 0) == up.is_counter_clockwise)
        std::ranges::reverse(points);
    return points;
}

} // namespace

face_openings::face_openings(const model& m, std::size_t points, std::size_t steps) : m_(m), outlines_(m, steps) {
    for (; usable_cutters_ < m.cutters.size(); ++usable_cutters_) {
        const placement& cutter = m.placements[m.cutters[usable_cutters_]];
        if (!is_drawn(m, cutter))
            continue;
        for (const plane_outline& o : outlines_.of(cutter.definition)) {
            if (o.size() > points)
                return;
            points -= o.size();
        }
    }
}

const std::vector<opening>& face_openings::of(const face& f) {
    if (!may_have_openings(f))
        return none_;
    const auto [found, is_new] = found_.try_emplace(static_cast<index>(&f - m_.faces.data()));
    if (!is_new)
        return found->second;
    const face_side_up up = side_up(m_, f);
    const index end = std::min(f.cutters.first + f.cutters.count, usable_cutters_);
    for (index i = f.cutters.first; i < end; ++i) {
        const placement& cutter = m_.placements[m_.cutters[i]];
        if (!is_drawn(m_, cutter))
            continue;
        for (const plane_outline& o : outlines_.of(cutter.definition))
            if (std::vector<vec3> points = projected(o, cutter.transform, up); !points.empty())
                found->second.push_back({std::move(points)});
    }
    return found->second;
}

} // namespace sketchup

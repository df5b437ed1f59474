#include "sketchup/model/sweep_cost.h"

#include <algorithm>

namespace sketchup {

// Whether two lines cross at an inner point of both or lie upon each other along more than a point.
bool sweep_cost::cross(const line& a, const line& b) {
    if (std::max(a.from.t, a.to.t) < std::min(b.from.t, b.to.t) ||
        std::max(b.from.t, b.to.t) < std::min(a.from.t, a.to.t)) {
        return false;
    }
    const double b_from = turn(a.from, a.to, b.from);
    const double b_to = turn(a.from, a.to, b.to);
    const double a_from = turn(b.from, b.to, a.from);
    const double a_to = turn(b.from, b.to, a.to);
    const bool on_one_line = b_from == 0 && b_to == 0 && a_from == 0 && a_to == 0;
    const bool cross_inside = b_from != 0 && b_to != 0 && a_from != 0 && a_to != 0 && (b_from > 0) != (b_to > 0) &&
                              (a_from > 0) != (a_to > 0);
    // The caller has seen to it that the two stand beside each other in the sweep.
    return on_one_line || cross_inside;
}

void sweep_cost::collect(std::span<const vec3> points, std::span<const std::uint32_t> loop_sizes,
                         const sweep_plane& plane) {
    lines_.clear();
    std::size_t first = 0;
    for (const std::size_t size : loop_sizes) {
        for (std::size_t i = 0; i < size; ++i) {
            const sweep_point a = plane.project(points[first + i]);
            const sweep_point b = plane.project(points[first + (i + 1) % size]);
            lines_.push_back(swept_before(a, b) ? line{a, b} : line{b, a});
        }
        first += size;
    }
    std::sort(lines_.begin(), lines_.end(), [](const line& a, const line& b) { return swept_before(a.from, b.from); });
}

bool sweep_cost::is_bearable(std::span<const vec3> points, std::span<const std::uint32_t> loop_sizes,
                             const vec3& normal) {
    if (points.size() <= always_cheap) {
        return true;
    }
    collect(points, loop_sizes, sweep_plane(normal));
    std::size_t crossings = 0;
    std::size_t pairs = 0;
    active_.clear();
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const line& entering = lines_[i];
        std::erase_if(active_, [&](std::size_t other) { return !swept_before(entering.from, lines_[other].to); });
        for (const std::size_t other : active_) {
            crossings += cross(entering, lines_[other]) ? 1 : 0;
        }
        pairs += active_.size();
        if (crossings > most_crossings * points.size() || pairs > most_pairs_) {
            return false;
        }
        active_.push_back(i);
    }
    return true;
}

} // namespace sketchup

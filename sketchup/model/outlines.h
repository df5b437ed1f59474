#pragma once

// Closed outlines in a plane that share a table of points, and their lines.

#include "sketchup/model/model.h"
#include "sketchup/model/sweep_plane.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace sketchup {

// Loops of numbers of points; the loops of the face come first.
struct outlines {
    std::vector<sweep_point> points;
    std::vector<std::vector<index>> loops;
    std::size_t face_loops = 0;

    bool is_of_face(std::size_t loop) const { return loop < face_loops; }
};

// Twice the area of a loop, above zero if it runs counter-clockwise. Differences from the first point keep the digits
// that far coordinates would drown.
inline double doubled_area(std::span<const sweep_point> points, std::span<const index> loop) {
    double sum = 0;
    for (std::size_t i = 2; i < loop.size(); ++i) {
        sum += turn(points[loop[0]], points[loop[i - 1]], points[loop[i]]);
    }
    return sum;
}

// The line that leaves a point of a loop for the next one.
struct outline_line {
    sweep_point from;
    sweep_point to;
    index loop = 0;
    index place = 0; // of `from` in the loop

    double least_s() const { return std::min(from.s, to.s); }
    double greatest_s() const { return std::max(from.s, to.s); }
    double least_t() const { return std::min(from.t, to.t); }
    double greatest_t() const { return std::max(from.t, to.t); }
};

// All lines, in the order of their least s.
inline std::vector<outline_line> lines_of(const outlines& shape) {
    std::vector<outline_line> lines;
    for (std::size_t l = 0; l < shape.loops.size(); ++l) {
        const std::vector<index>& loop = shape.loops[l];
        for (std::size_t i = 0; i < loop.size(); ++i) {
            lines.push_back({shape.points[loop[i]], shape.points[loop[i + 1 < loop.size() ? i + 1 : 0]],
                             static_cast<index>(l), static_cast<index>(i)});
        }
    }
    std::stable_sort(lines.begin(), lines.end(),
                     [](const outline_line& a, const outline_line& b) { return a.least_s() < b.least_s(); });
    return lines;
}

// Calls visit(one, other) for every two lines whose boxes are no more than `margin` apart, until it gives false. Takes
// from `pairs_left` the pairs that stand side by side in s, however far apart in t. False if that runs out or a visit
// gave false.
template<typename Visit>
bool for_each_near_pair(std::span<const outline_line> lines, double margin, std::size_t& pairs_left,
                        const Visit& visit) {
    std::vector<const outline_line*> active;
    for (const outline_line& entering : lines) {
        std::erase_if(active,
                      [&](const outline_line* other) { return other->greatest_s() + margin < entering.least_s(); });
        if (active.size() > pairs_left) {
            return false;
        }
        pairs_left -= active.size();
        const double least = entering.least_t() - margin;
        const double greatest = entering.greatest_t() + margin;
        for (const outline_line* other : active) {
            if (other->least_t() <= greatest && other->greatest_t() >= least && !visit(*other, entering)) {
                return false;
            }
        }
        active.push_back(&entering);
    }
    return true;
}

} // namespace sketchup

#include "sketchup/model/plane_cut.h"

#include "sketchup/model/outline_contacts.h"
#include "sketchup/model/plane_frame.h"
#include "sketchup/model/snap_outlines.h"
#include "sketchup/model/subtract_outlines.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace sketchup {

namespace {

// Products of four coordinates must not overflow; no model comes near.
constexpr double largest_coordinate = 1e70;

bool is_usable(const vec3& p) {
    // Also false for what is no number.
    return std::abs(p.x) <= largest_coordinate && std::abs(p.y) <= largest_coordinate &&
           std::abs(p.z) <= largest_coordinate;
}

struct extent {
    sweep_point least;
    sweep_point greatest;
    bool holds(const sweep_point& p) const {
        return p.s >= least.s && p.s <= greatest.s && p.t >= least.t && p.t <= greatest.t;
    }
};

extent extent_of(const outlines& shape, const std::vector<index>& loop) {
    extent found = {shape.points[loop.front()], shape.points[loop.front()]};
    for (const index number : loop) {
        const sweep_point& p = shape.points[number];
        found.least = {std::min(found.least.s, p.s), std::min(found.least.t, p.t)};
        found.greatest = {std::max(found.greatest.s, p.s), std::max(found.greatest.t, p.t)};
    }
    return found;
}

class face_cutter {
public:
    face_cutter(const loop_list& face, const vec3& normal, const loop_list& openings, const cut_limits& limits)
        : face_(face), openings_(openings), limits_(limits), frame_(face.points.front(), normal),
          pairs_left_(limits.most_pairs) {}

    plane_cut run() {
        plane_cut cut = cut_outlines();
        cut.pairs = limits_.most_pairs - pairs_left_;
        return cut;
    }

private:
    plane_cut cut_outlines() {
        add_face();
        add_openings();
        const outline_survey found = survey(shape_, limits_.tolerance, pairs_left_);
        if (found.is_unfit || shape_.loops.size() == shape_.face_loops) {
            return {};
        }
        const bool is_clear = std::find(found.touched.begin(), found.touched.end(), true) == found.touched.end();
        if (is_clear) {
            switch (sort_clear_openings()) {
            case clear_case::too_many:
                return {};
            case clear_case::apart:
                return with_holes();
            case clear_case::one_holds_another:
                break;
            }
        }
        return subtracted(found);
    }

    enum class clear_case { apart, one_holds_another, too_many };

    void add_loops(const loop_list& loops, bool (face_cutter::*is_wanted)(std::span<const vec3>) const) {
        std::size_t first = 0;
        for (const index size : loops.sizes) {
            const std::span<const vec3> points = loops.points.subspan(first, size);
            std::vector<index> numbers;
            if ((this->*is_wanted)(points)) {
                for (std::size_t i = 0; i < size; ++i) {
                    numbers.push_back(static_cast<index>(shape_.points.size() + i));
                }
                shape_.loops.push_back(std::move(numbers));
            }
            // The number of a point is its place in the two lists, so those passed over count as well.
            for (const vec3& p : points) {
                shape_.points.push_back(frame_.project(p));
            }
            first += size;
        }
    }

    void add_face() {
        add_loops(face_, &face_cutter::has_points);
        shape_.face_loops = shape_.loops.size();
    }

    void add_openings() { add_loops(openings_, &face_cutter::is_opening); }

    bool has_points(std::span<const vec3> points) const { return !points.empty(); }

    bool is_opening(std::span<const vec3> points) const {
        return points.size() >= 3 && std::all_of(points.begin(), points.end(), is_usable);
    }

    bool has_area(const std::vector<index>& loop) const {
        return std::abs(doubled_area(shape_.points, loop)) / 2 > limits_.tolerance * limits_.tolerance;
    }

    // How many of some loops hold a point.
    std::size_t loops_around(const sweep_point& p, std::size_t first, std::size_t end, std::size_t self) {
        std::size_t count = 0;
        for (std::size_t l = first; l < end; ++l) {
            const std::size_t cost = extents_[l].holds(p) ? shape_.loops[l].size() : 1;
            pairs_left_ -= std::min(cost, pairs_left_);
            if (l != self && extents_[l].holds(p) && is_inside(shape_, l, p)) {
                ++count;
            }
        }
        return count;
    }

    // Finds the openings that become holes and drops those beside the face. No two outlines touch, so that one point of
    // each says where it lies.
    clear_case sort_clear_openings() {
        for (const std::vector<index>& loop : shape_.loops) {
            extents_.push_back(extent_of(shape_, loop));
        }
        const std::size_t loops = shape_.loops.size();
        const std::size_t face_loops = shape_.face_loops;
        std::vector<std::vector<index>> inside;
        for (std::size_t l = 0; l < loops; ++l) {
            const sweep_point& p = shape_.points[shape_.loops[l].front()];
            if (loops_around(p, face_loops, loops, l) > 0) {
                return pairs_left_ == 0 ? clear_case::too_many : clear_case::one_holds_another;
            }
            if (!shape_.is_of_face(l) && has_area(shape_.loops[l]) && loops_around(p, 0, face_loops, l) % 2 == 1) {
                inside.push_back(shape_.loops[l]);
            }
            if (pairs_left_ == 0) {
                return clear_case::too_many;
            }
        }
        shape_.loops.resize(face_loops);
        std::move(inside.begin(), inside.end(), std::back_inserter(shape_.loops));
        return clear_case::apart;
    }

    plane_cut with_holes() const {
        if (shape_.loops.size() == shape_.face_loops) {
            return {};
        }
        plane_cut cut = collected(shape_.loops);
        // The openings are inside, so they leave as many pieces as there were.
        cut.pieces = 1;
        for (std::size_t l = 0; l < shape_.loops.size(); ++l) {
            const double area = std::abs(doubled_area(shape_.points, shape_.loops[l])) / 2;
            cut.area += l == 0 ? area : -area;
        }
        cut.area = std::max(cut.area, 0.0);
        return cut;
    }

    plane_cut subtracted(const outline_survey& found) {
        snap(shape_, found.contacts, limits_.tolerance);
        contours left;
        if (!subtract(shape_, limits_.tolerance, left)) {
            return {};
        }
        plane_cut cut = collected(left.loops);
        cut.pieces = left.pieces;
        cut.area = left.area;
        return cut;
    }

    plane_cut collected(const std::vector<std::vector<index>>& loops) const {
        plane_cut cut;
        cut.is_whole = false;
        for (const std::vector<index>& loop : loops) {
            cut.sizes.push_back(static_cast<index>(loop.size()));
            for (const index number : loop) {
                cut.points.push_back(point(number));
            }
        }
        return cut;
    }

    cut_point point(index number) const {
        const std::size_t of_face = face_.points.size();
        if (number < of_face) {
            return {face_.points[number], cut_origin::face, number};
        }
        const std::size_t of_opening = number - of_face;
        if (of_opening >= openings_.points.size()) {
            return {frame_.lift(shape_.points[number]), cut_origin::crossing, no_index};
        }
        const vec3& stored = openings_.points[of_opening];
        const bool was_moved = frame_.project(stored) != shape_.points[number];
        return {was_moved ? frame_.lift(shape_.points[number]) : stored, cut_origin::opening,
                static_cast<index>(of_opening)};
    }

    loop_list face_;
    loop_list openings_;
    cut_limits limits_;
    plane_frame frame_;
    std::size_t pairs_left_;
    outlines shape_; // the points of the face, those of the openings, then crossings
    std::vector<extent> extents_;
};

} // namespace

plane_cut cut_openings(const loop_list& face, const vec3& normal, const loop_list& openings, const cut_limits& limits) {
    const vec3 unit = normalized_or(normal, {});
    const bool is_usable_face = unit != vec3{} && !face.points.empty() && !openings.points.empty() &&
                                std::all_of(face.points.begin(), face.points.end(), is_usable);
    return is_usable_face ? face_cutter(face, unit, openings, limits).run() : plane_cut{};
}

} // namespace sketchup

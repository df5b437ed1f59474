#pragma once

// From loose lines in a plane to the outlines of the areas that they close.

#include <cstddef>
#include <span>
#include <vector>

namespace sketchup {

struct point2 {
    double x = 0;
    double y = 0;
    friend bool operator==(const point2&, const point2&) = default;
};

struct segment2 {
    point2 from;
    point2 to;
};

// A closed polygon, counter-clockwise, the last point not repeated. It may touch itself in a point.
using plane_outline = std::vector<point2>;

// How much may still be done. A step is about a nanosecond.
class work_allowance {
public:
    explicit work_allowance(std::size_t steps) : left_(steps) {}
    // Takes steps off. False, and all are gone, if so many were not left.
    bool spend(std::size_t steps) {
        const bool is_enough = steps <= left_;
        left_ = is_enough ? left_ - steps : 0;
        return is_enough;
    }

private:
    std::size_t left_;
};

// The largest coordinate that a segment may have, in inches; at a tolerance of 1e-3 the positions of all points can
// still be told apart.
inline constexpr double largest_plane_coordinate = 1e9;

// The outer boundaries of what segments close: one for each part that hangs together, in the order of the segments that
// come first in each part. Points on straight sides stay.
// segments: any number in any order, doubled ones too; none without length counts, nor one with a coordinate that is no
// number or beyond the largest. tolerance: points closer than this are one; above 0.
// What closes nothing is left out first: loose ends, open chains, and bars between closed parts. Left out are also
// outlines inside another one and those with an area under the square of the tolerance.
// Segments that cross without a common point give an outline that may cross itself; it is one of those that are there.
// Gives nothing if the allowance does not suffice: 1024 steps a segment, and four for each side of another outline that
// an outline has to be compared with to know whether it lies inside.
std::vector<plane_outline> outlines_of(std::span<const segment2> segments, double tolerance, work_allowance& allowance);

// The area that a polygon encloses; negative if it runs clockwise.
double signed_area(std::span<const point2> polygon);

} // namespace sketchup

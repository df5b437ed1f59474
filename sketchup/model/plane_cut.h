#pragma once

// What openings leave of a face.

#include "sketchup/model/model.h"
#include "sketchup/model/opening_tolerance.h"

#include <cstddef>
#include <span>
#include <vector>

namespace sketchup {

// Closed loops one after the other, the last point of each not repeated.
struct loop_list {
    std::span<const vec3> points; // inches
    std::span<const index> sizes; // how many points each loop has
};

enum class cut_origin : std::uint8_t {
    face,    // a point of the face, where it lies in the model to the last bit
    opening, // a point of an opening; perhaps moved by no more than the tolerance
    crossing // where two outlines cross
};

struct cut_point {
    vec3 position;
    cut_origin origin = cut_origin::crossing;
    index number = no_index; // in the points of the face or in those of the openings
};

// Contours that the odd rule fills.
struct plane_cut {
    bool is_whole = true; // nothing was taken off; there are no contours then, and no area is given
    std::vector<cut_point> points;
    std::vector<index> sizes; // of the contours; none if nothing is left
    std::size_t pieces = 0;   // polygons, which may touch in points
    double area = 0;          // square inches
    std::size_t pairs = 0;    // of lines side by side, that were looked at
};

struct cut_limits {
    // Outlines closer than this are joined, pieces narrower are dropped; inches. At 0 nothing is moved or dropped.
    double tolerance = opening_tolerance;
    // Pairs of lines side by side in the plane that are worth looking at for one face, about 0.3 s.
    std::size_t most_pairs = 20'000'000;
};

// Takes openings off a face. face: the outline first, any winding; normal: of the face's plane, any length; openings:
// outlines in that plane, any winding, in any position, overlapping or not. Openings without area or with a coordinate
// that is no number are passed over.
//
// If all openings that meet the face lie inside it, further than the tolerance from its loops and from one another,
// they become further loops behind the face's own and no other point appears. Else outlines are snapped together, taken
// off, and what is narrower than the tolerance is dropped: several pieces may come of it, or none.
//
// The face stays whole if no opening takes anything off it, if it or an opening crosses itself, if a corner or the
// normal is unusable, if an opening is thousands of times larger than the face, and if the outlines are so long or so
// entangled that the work would be out of proportion: more than most_pairs pairs of lines side by side, or more than
// eight crossings and contacts for each point (see outline_contacts.h). Never fails.
plane_cut cut_openings(const loop_list& face, const vec3& normal, const loop_list& openings,
                       const cut_limits& limits = {});

} // namespace sketchup

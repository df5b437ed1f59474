#pragma once

// Where outlines of openings meet the loops of a face and one another.

#include "sketchup/model/outlines.h"

#include <cstddef>
#include <vector>

namespace sketchup {

// A point of one loop that is within the tolerance of a line of another one, at least one of the two an opening.
struct outline_contact {
    index loop = 0; // of the point
    index place = 0;
    index line_loop = 0;
    index line_place = 0;
};

struct outline_survey {
    // A loop crosses itself, or two loops of the face cross each other, by more than the tolerance; or the outlines are
    // so entangled that working on would be out of all proportion.
    bool is_unfit = false;
    // For each loop whether an opening comes within the tolerance of it, or it of one, or so near that rounding cannot
    // tell.
    std::vector<bool> touched;
    std::vector<outline_contact> contacts;
};

// Crossings and contacts allowed for each point, beyond the first thousand.
inline constexpr std::size_t most_contacts = 8;

// pairs_left: how many pairs of lines side by side may be looked at; what is used is taken off.
outline_survey survey(const outlines& shape, double tolerance, std::size_t& pairs_left);

// Whether a point lies in a loop, by the odd rule.
bool is_inside(const outlines& shape, std::size_t loop, const sweep_point& p);

// Where on a line, from 0 to 1, the point nearest to `p` lies.
double nearest_place(const sweep_point& from, const sweep_point& to, const sweep_point& p);

sweep_point point_on(const sweep_point& from, const sweep_point& to, double place);

double distance(const sweep_point& a, const sweep_point& b);

} // namespace sketchup

#pragma once

// The part of a face outside its openings, as contours.

#include "sketchup/model/outlines.h"

#include <vector>

namespace sketchup {

// Loops of numbers of points, fit for the odd rule; no loop meets a point twice.
struct contours {
    std::vector<std::vector<index>> loops;
    std::size_t pieces = 0;
    double area = 0;
};

// What is left of the face's loops (odd rule) without the union of the other loops, whichever way they run, each by the
// odd rule. Points that it meets keep their numbers, bit for bit; where lines cross, points are added to shape.points.
// Pieces whose mean width is below `least_width` are left out. Each loop begins with its lowest number, outlines
// counter-clockwise, holes clockwise, in the order of these numbers, the holes of a piece after its outline. False if
// an opening reaches beyond the grid: 2,000 to 4,000 times the size of the face.
//
// The work is done by Clipper 6 on a grid of whole numbers, 2^50 steps to the size of the face; crossings are rounded
// to the grid, so that whatever the outlines are, the result is closed. Of the libraries at hand it does just this: one
// file that needs the C++ library alone and builds unchanged for Windows. GEOS is 25 times as large, CGAL brings
// arithmetic libraries along, and the tessellator's own winding rules cannot tell pieces from one another.
bool subtract(outlines& shape, double least_width, contours& out);

} // namespace sketchup

#pragma once

// The geometry of edge lines: how thick a line is to look as wide as it should, which directions stand square to it,
// and the corners of the beam that stands for it.

#include "qlw/qlw_math.h"

#include <array>

// Two directions square to a line, and to one another: a = line x reference, b = line x a. The reference is (1, 0, 0)
// for a line that is steeper than it is wide in x and in y, else (0, 0, 1). Neither is made unit; both are zero if the
// line is.
struct line_frame {
    fpt a;
    fpt b;
};
line_frame frame_of(const fpt& line);

// The size, at that distance, of what covers `pixels` of the picture's height in a perspective view.
// sine: of the field of view. pixel_height: 0 gives what the division gives.
double perspective_size(double sine, double distance, double pixels, int pixel_height);

// The same in a parallel view, whatever the distance. ortho_height: of what the picture shows.
double parallel_size(double ortho_height, double pixels, int pixel_height);

// One of the four sides of a beam: its corners are start + first, start + second, end + second, end + first, each
// offset given as multiples (1 or -1) of a and b.
struct beam_offset {
    double of_a = 1;
    double of_b = 1;
};
struct beam_side {
    bool faces_along_a = true; // its normal is a made unit, else b; of two opposite sides both have the same
    beam_offset first;
    beam_offset second;
};

// The sides in the order of the stream. A beam has no caps.
inline constexpr std::array<beam_side, 4> beam_sides{{
    {true, {1, -1}, {1, 1}},
    {true, {-1, -1}, {-1, 1}},
    {false, {-1, 1}, {1, 1}},
    {false, {-1, -1}, {1, -1}},
}};

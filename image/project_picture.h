#pragma once

// A picture that repeats itself in all directions, seen through a perspective.

#include "image/picture_pyramid.h"

namespace image {

// A place in homogeneous coordinates: the picture is looked up at x / q, y / q, where 1 is its width or height and y
// runs downwards from its upper edge.
struct projected_place {
    double x = 0;
    double y = 0;
    double q = 0;
};

// Which place stands where in a new picture: `start` in its upper left corner, start + across in the upper right one,
// start + down in the lower left one, and linear in between.
struct perspective {
    projected_place start;
    projected_place across;
    projected_place down;
};

// A picture of this size and of the depth of `source`; empty if there is no such picture. Each pixel is the mean of the
// area that it shows, or nearly: it mixes the colours of at most 8 places, however large the area, from the finest
// level of the pyramid on which so many are a pixel apart. An area that is a pixel of the source gives that pixel, one
// of 2 × 2, 2 × 4 or 1 × 8 whole pixels their mean. Between pixels colours are mixed, each channel by itself. Where the
// perspective has no place, the mean of the whole source stands.
// source: not empty.
picture project_picture(const picture_pyramid& source, const perspective& through, std::uint32_t width,
                        std::uint32_t height);

} // namespace image

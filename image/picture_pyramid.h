#pragma once

// A picture with smaller copies of itself, for looking up the mean of an area at a bounded cost.

#include "image/picture.h"

#include <vector>

namespace image {

// Level 0 is the picture; each further level has half the width and height, rounded down but never to 0, the last a
// single pixel. Every pixel of a level is the mean of the part of the level below that it covers, where the widths or
// heights do not divide by parts of pixels. Channels are mixed one by one: colours are not weighted with alpha. All
// smaller levels together take a third of the picture's memory.
class picture_pyramid {
public:
    // No levels.
    picture_pyramid() = default;

    // An empty picture has no levels. A picture stands for its pyramid wherever one is asked for.
    picture_pyramid(picture source);

    bool is_empty() const { return levels_.empty(); }
    std::size_t level_count() const { return levels_.size(); }

    // number: below level_count().
    const picture& level(std::size_t number) const { return levels_[number]; }

private:
    std::vector<picture> levels_;
};

} // namespace image

#pragma once

// The picture that the texture writer makes for a side whose texture is distorted in perspective: what the side shows,
// seen straight on. With it go the coordinates of straightened_side.h.

#include "image/picture_pyramid.h"
#include "sketchup/model/texture_coordinates.h"

namespace sketchup {

// No side of a straightened picture is longer, however far the face reaches.
inline constexpr std::uint32_t longest_straightened_side = 2048;

// The size of a straightened picture for which the face asks for width × height pixels: that, rounded up, no side
// longer than longest_side, and both together no more than four times the pixels of `source`: a perspective that shows
// one part twice as fine in both directions keeps all of it. What is more the longer side gives, which is the one along
// which the perspective squeezes most, until both are the same. No number counts as 1, infinity as endless.
image::picture_extent straightened_extent(double width, double height, const image::picture_extent& source,
                                          std::uint32_t longest_side = longest_straightened_side);

// The side as a picture: it covers the face's extent in the axes of its plane, v up. The pixels that it asks for are as
// fine as those of the source at the corner of the face where they lie closest, so that no part of the face loses
// detail and none is drawn finer than it is; if the horizon of the mapping crosses the face there is no such corner,
// and straightened_extent alone bounds them. Each pixel is the mean of the area that it shows, at a cost that does not
// grow with the area. Where the mapping has no place, the picture's mean stands.
// source: the picture of the side's texture, not empty. Alpha is kept, and mixed as another channel.
image::picture straighten_texture(const image::picture_pyramid& source, const model& m, const face& f, face_side side,
                                  std::uint32_t longest_side = longest_straightened_side);

} // namespace sketchup

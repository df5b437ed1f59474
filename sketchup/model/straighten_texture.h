#pragma once

// The picture that the texture writer makes for a side whose texture is distorted in perspective: what the side shows,
// seen straight on. With it go the coordinates of straightened_side.h.

#include "image/picture.h"
#include "sketchup/model/texture_coordinates.h"

namespace sketchup {

// No side of a straightened picture is longer, however far the face reaches.
inline constexpr std::uint32_t longest_straightened_side = 2048;

// The side as a picture: it covers the face's extent in the axes of its plane, v up. Its pixels are as fine as those of
// `source` where they lie closest on the face, as long as longest_straightened_side allows; between pixels colours are
// mixed. Where the mapping has no place (at its horizon), the picture is black.
// source: the picture of the side's texture, not empty. Alpha is kept.
image::picture straighten_texture(const image::picture& source, const model& m, const face& f, face_side side,
                                  std::uint32_t longest_side = longest_straightened_side);

} // namespace sketchup

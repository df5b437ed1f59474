#include "image/picture.h"

namespace image {

std::optional<picture> picture::make(const picture_extent& extent, std::uint64_t limit) {
    const std::uint64_t pixels = std::uint64_t{extent.width} * extent.height;
    const bool has_known_depth = extent.bits_per_pixel == 24 || extent.bits_per_pixel == 32;
    if (pixels == 0 || pixels > limit || !has_known_depth)
        return std::nullopt;
    picture made;
    made.extent_ = extent;
    made.bytes_.resize(static_cast<std::size_t>(pixels) * made.bytes_per_pixel());
    return made;
}

} // namespace image

#include "sketchup/api/padded_rows.h"

#include <algorithm>

namespace sketchup::api {
namespace {

std::size_t padded_row(const image::picture_extent& extent) {
    const std::size_t bytes = std::size_t{extent.width} * (extent.bits_per_pixel == 32 ? 4 : 3);
    return (bytes + 3) / 4 * 4;
}

} // namespace

std::size_t padded_size(const image::picture_extent& extent) {
    return padded_row(extent) * extent.height;
}

void copy_from_padded_rows(const unsigned char* bytes, image::picture& target) {
    const std::size_t stride = padded_row(target.extent());
    for (std::uint32_t y = 0; y < target.height(); ++y)
        std::copy_n(bytes + y * stride, target.bytes_per_row(), target.row(y));
}

void copy_to_padded_rows(const image::picture& source, unsigned char* bytes) {
    const std::size_t stride = padded_row(source.extent());
    for (std::uint32_t y = 0; y < source.height(); ++y) {
        unsigned char* const padding = std::copy_n(source.row(y), source.bytes_per_row(), bytes + y * stride);
        std::fill(padding, bytes + (y + 1) * stride, static_cast<unsigned char>(0));
    }
}

} // namespace sketchup::api

#include "tools/batch_check/check_picture.h"

#include "image/decode_picture.h"
#include "image/picture_format.h"
#include "image/picture_rows.h"
#include "image/reencode_picture.h"
#include "tools/content_hash/content_hash.h"

#include <span>
#include <vector>

namespace batch_check {
namespace {

using picture_bytes = std::span<const std::uint8_t>;

// Bytes: four channels of 16 bits for each pixel of the largest picture that is decoded whole.
constexpr std::uint64_t largest_file = image::most_pixels * 8;

bool all_rows_decode(image::row_source& rows) {
    const image::picture_extent extent = rows.extent();
    // At most four megabytes: no PNG is wider than a million pixels for its library, and no JPEG than 65,535.
    std::vector<std::uint8_t> row(std::size_t{extent.width} * static_cast<std::size_t>(extent.bits_per_pixel / 8));
    for (std::uint32_t y = 0; y < extent.height; ++y)
        if (!rows.next_row(row.data()))
            return false;
    return true;
}

// extent: as the header announces it.
void check_pixels(picture_bytes bytes, const image::picture_extent& extent, const std::string& file, findings& found) {
    const std::uint64_t pixels = std::uint64_t{extent.width} * extent.height;
    bool is_sound = false;
    if (pixels <= image::most_pixels) {
        is_sound = image::decode_picture(bytes).has_value();
    } else {
        const auto rows = pixels <= image::most_pixels_by_rows ? image::rows_of(bytes) : nullptr;
        if (!rows) {
            found.add(code::picture_large, file, 0, "too many pixels to be decoded; the header alone was read");
            return;
        }
        is_sound = all_rows_decode(*rows);
    }
    if (!is_sound)
        found.add(code::picture_damaged, file, 0, "the picture cannot be decoded");
}

} // namespace

std::optional<picture_facts> check_picture(const batch_files& files, const std::string& file, findings& found) {
    if (const auto size = files.size(file); size && *size > largest_file) {
        found.add(code::picture_large, file, 0, "too large a file to be read");
        return picture_facts{*size, {}};
    }
    const auto text = whole_file(files, file, largest_file);
    if (!text)
        return std::nullopt;
    const picture_bytes bytes(reinterpret_cast<const std::uint8_t*>(text->data()), text->size());
    const auto extent = image::picture_size(bytes);
    check_pixels(bytes, extent.value_or(image::picture_extent{}), file, found);
    const image::picture_format named = image::format_of_name(file);
    if (extent && named != image::picture_format::unknown && named != image::format_of_bytes(bytes))
        found.add(code::picture_format, file, 0, "the picture has another format than its name says");
    return picture_facts{text->size(), content_hash_of(*text)};
}

} // namespace batch_check

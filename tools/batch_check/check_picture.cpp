#include "tools/batch_check/check_picture.h"

#include "image/decode_picture.h"
#include "image/picture_format.h"
#include "image/picture_rows.h"
#include "tools/content_hash/content_hash.h"

#include <memory>
#include <span>
#include <vector>

namespace batch_check {
namespace {

using picture_bytes = std::span<const std::uint8_t>;

constexpr std::uint64_t largest_file = std::uint64_t{1} << 30U; // bytes; of a larger one nothing is looked at

bool all_rows_decode(image::row_source& rows) {
    const image::picture_extent extent = rows.extent();
    std::vector<std::uint8_t> row(std::size_t{extent.width} * 4);
    for (std::uint32_t y = 0; y < extent.height; ++y)
        if (!rows.next_row(row.data()))
            return false;
    return true;
}

// A picture of more pixels than memory is given for.
void check_large(picture_bytes bytes, image::picture_format format, const std::string& file, findings& found) {
    const std::unique_ptr<image::row_source> rows = format == image::picture_format::png    ? image::png_rows(bytes)
                                                    : format == image::picture_format::jpeg ? image::jpeg_rows(bytes)
                                                                                            : nullptr;
    if (!rows)
        found.add(code::picture_large, file, 0, "too large to be decoded; its header alone was read");
    else if (rows->extent().width > image::most_pixels || !all_rows_decode(*rows))
        found.add(code::picture_damaged, file, 0, "the picture cannot be decoded");
}

} // namespace

std::optional<picture_facts> check_picture(const batch_files& files, const std::string& file, findings& found) {
    const auto text = whole_file(files, file, largest_file);
    if (!text)
        return std::nullopt;
    const picture_bytes bytes(reinterpret_cast<const std::uint8_t*>(text->data()), text->size());
    const image::picture_format format = image::format_of_bytes(bytes);
    const auto extent = image::picture_size(bytes);
    if (extent && std::uint64_t{extent->width} * extent->height > image::most_pixels)
        check_large(bytes, format, file, found);
    else if (!image::decode_picture(bytes))
        found.add(code::picture_damaged, file, 0, "the picture cannot be decoded");
    const image::picture_format named = image::format_of_name(file);
    if (extent && named != image::picture_format::unknown && named != format)
        found.add(code::picture_format, file, 0, "the picture has another format than its name says");
    return picture_facts{text->size(), content_hash_of(*text)};
}

} // namespace batch_check

#include "image/reencode_picture.h"

#include "image/decode_picture.h"
#include "platform/platform.h"

#include <vector>

namespace image {
namespace {

std::unique_ptr<row_sink> file_of(picture_format format, const picture_extent& extent, const byte_sink& out) {
    switch (format) {
    case picture_format::png:
        return png_file(extent, out);
    case picture_format::jpeg:
        return jpeg_file(extent, out);
    default:
        return nullptr;
    }
}

} // namespace

bool reencode_rows(std::span<const std::uint8_t> file, picture_format wanted, const byte_sink& out,
                   std::uint64_t limit) {
    const std::unique_ptr<row_source> source = rows_of(file);
    if (!source || std::uint64_t{source->extent().width} * source->extent().height > limit)
        return false;
    const picture_extent extent = source->extent();
    const std::unique_ptr<row_sink> sink = file_of(wanted, extent, out);
    if (!sink)
        return false;
    std::vector<std::uint8_t> row(std::size_t{extent.width} * static_cast<std::size_t>(extent.bits_per_pixel / 8));
    for (std::uint32_t y = 0; y < extent.height; ++y)
        if (!source->next_row(row.data()) || !sink->put_row(row.data()))
            return false;
    return sink->end();
}

bool write_reencoded(const std::string& file_name, std::span<const std::uint8_t> file, std::uint64_t limit) {
    platform::file made;
    if (!made.open(file_name, platform::open_mode::write))
        return false;
    const auto append = [&made](std::span<const std::uint8_t> bytes) {
        return made.write_all({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    };
    const bool written = reencode_rows(file, format_of_name(file_name), append, limit);
    if (made.close() && written)
        return true;
    platform::delete_file(file_name);
    return false;
}

} // namespace image

#include "image/picture_rows.h"

#include "image/picture_format.h"

#include <new>

namespace image {

bool is_taken(const byte_sink& out, std::span<const std::uint8_t> bytes) noexcept {
    try {
        return out(bytes);
    } catch (const std::bad_alloc&) {
        return false;
    }
}

byte_sink appending_to(std::vector<std::uint8_t>& bytes) {
    return [&bytes](std::span<const std::uint8_t> piece) {
        bytes.insert(bytes.end(), piece.begin(), piece.end());
        return true;
    };
}

bool put_picture(row_sink& sink, const picture& source) {
    for (std::uint32_t y = 0; y < source.height(); ++y)
        if (!sink.put_row(source.row(y)))
            return false;
    return sink.end();
}

std::unique_ptr<row_source> rows_of(std::span<const std::uint8_t> file) {
    switch (format_of_bytes(file)) {
    case picture_format::png:
        return png_rows(file);
    case picture_format::jpeg:
        return jpeg_rows(file);
    default:
        return nullptr;
    }
}

} // namespace image

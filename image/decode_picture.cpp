#include "image/decode_picture.h"

#include "image/codecs.h"
#include "image/picture_format.h"

namespace image {

std::optional<picture_extent> picture_size(std::span<const std::uint8_t> file) {
    switch (format_of_bytes(file)) {
    case picture_format::png:
        return png_extent(file);
    case picture_format::jpeg:
        return jpeg_extent(file);
    case picture_format::bmp:
        return bmp_extent(file);
    case picture_format::tiff:
        return tiff_extent(file);
    case picture_format::tga:
        return tga_extent(file);
    case picture_format::gif:
        return gif_extent(file);
    case picture_format::psd:
        return psd_extent(file);
    default:
        return std::nullopt;
    }
}

std::optional<picture> decode_picture(std::span<const std::uint8_t> file, std::uint64_t limit) {
    switch (format_of_bytes(file)) {
    case picture_format::png:
        return decode_png(file, limit);
    case picture_format::jpeg:
        return decode_jpeg(file, limit);
    case picture_format::bmp:
        return decode_bmp(file, limit);
    case picture_format::tiff:
        return decode_tiff(file, limit);
    case picture_format::tga:
        return decode_tga(file, limit);
    case picture_format::gif:
        return decode_gif(file, limit);
    case picture_format::psd:
        return decode_psd(file, limit);
    default:
        return std::nullopt;
    }
}

} // namespace image

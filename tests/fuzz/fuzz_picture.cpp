// Decodes any bytes as a picture; what comes out must have the announced size and survive a round trip, and what is
// encoded anew row by row must have that size too.

#include "image/decode_picture.h"
#include "image/encode_picture.h"
#include "image/reencode_picture.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <vector>

namespace {

constexpr std::uint64_t most_pixels = 1 << 16; // so that an input takes milliseconds
constexpr std::uint64_t most_pixels_written = 1 << 12;

void expect(bool holds) {
    if (!holds)
        std::abort();
}

void write_and_read(const image::picture& decoded) {
    using enum image::picture_format;
    expect(image::decode_picture(image::encode_picture(decoded, png)) == decoded);
    expect(image::decode_picture(image::encode_picture(decoded, tiff)) == decoded);
    const auto from_bmp = image::decode_picture(image::encode_picture(decoded, bmp));
    expect(from_bmp && (decoded.has_alpha() || from_bmp == decoded));
    expect(image::decode_picture(image::encode_picture(decoded, jpeg)).has_value());
}

void encode_anew(std::span<const std::uint8_t> file) {
    using enum image::picture_format;
    for (const image::picture_format wanted : {png, jpeg}) {
        std::vector<std::uint8_t> made;
        if (!image::reencode_rows(file, wanted, image::appending_to(made), most_pixels_written))
            continue;
        const auto announced = image::picture_size(file);
        const auto encoded = image::picture_size(made);
        expect(announced && encoded && encoded->width == announced->width && encoded->height == announced->height);
        expect(image::decode_picture(made).has_value());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    encode_anew({data, size});
    const auto announced = image::picture_size({data, size});
    const auto decoded = image::decode_picture({data, size}, most_pixels);
    if (!decoded)
        return 0;
    expect(announced == decoded->extent());
    if (std::uint64_t{decoded->width()} * decoded->height() <= most_pixels_written)
        write_and_read(*decoded);
    return 0;
}

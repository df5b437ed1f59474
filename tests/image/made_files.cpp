#include "tests/image/made_files.h"

#include "image/encode_picture.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <jpeglib.h>
#include <png.h>

namespace {

void append(png_structp png, png_bytep bytes, std::size_t count) {
    auto& file = *static_cast<std::vector<std::uint8_t>*>(png_get_io_ptr(png));
    file.insert(file.end(), bytes, bytes + count);
}

void flush(png_structp /*png*/) {}

// A JPEG of the given samples as libjpeg writes it.
std::vector<std::uint8_t> made_jpeg(std::uint32_t width, std::uint32_t height, J_COLOR_SPACE space, int components,
                                    std::vector<std::uint8_t> samples, bool is_progressive, bool has_ink_marker) {
    jpeg_compress_struct info{};
    jpeg_error_mgr errors{};
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&info, &bytes, &size);
    info.image_width = width;
    info.image_height = height;
    info.input_components = components;
    info.in_color_space = space;
    jpeg_set_defaults(&info);
    jpeg_set_quality(&info, 95, TRUE);
    info.write_Adobe_marker = has_ink_marker ? TRUE : FALSE;
    if (is_progressive)
        jpeg_simple_progression(&info);
    jpeg_start_compress(&info, TRUE);
    for (std::uint32_t y = 0; y < height; ++y) {
        std::uint8_t* row = samples.data() + std::size_t{y} * width * static_cast<std::size_t>(components);
        jpeg_write_scanlines(&info, &row, 1);
    }
    jpeg_finish_compress(&info);
    std::vector<std::uint8_t> file(bytes, bytes + size);
    jpeg_destroy_compress(&info);
    std::free(bytes);
    return file;
}

// Where the marker FF `code` stands next; the end if there is none.
std::size_t marker_at(const std::vector<std::uint8_t>& jpeg, std::uint8_t code, std::size_t from) {
    const std::array<std::uint8_t, 2> marker = {0xFF, code};
    const auto found =
        std::search(jpeg.begin() + static_cast<std::ptrdiff_t>(from), jpeg.end(), marker.begin(), marker.end());
    return static_cast<std::size_t>(found - jpeg.begin());
}

} // namespace

std::vector<std::uint8_t> made_png(const png_plan& plan, const std::vector<std::vector<std::uint8_t>>& rows) {
    std::vector<std::uint8_t> file;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_write_fn(png, &file, append, flush);
    png_set_IHDR(png, info, plan.width, plan.height, plan.bit_depth, plan.color_type,
                 plan.is_interlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE, 0, 0);
    std::vector<png_color> palette;
    for (std::size_t i = 0; i + 2 < plan.palette.size(); i += 3)
        palette.push_back({plan.palette[i], plan.palette[i + 1], plan.palette[i + 2]});
    if (!palette.empty())
        png_set_PLTE(png, info, palette.data(), static_cast<int>(palette.size()));
    if (!plan.alphas.empty())
        png_set_tRNS(png, info, plan.alphas.data(), static_cast<int>(plan.alphas.size()), nullptr);
    png_write_info(png, info);
    std::vector<png_bytep> pointers;
    for (const std::vector<std::uint8_t>& row : rows)
        pointers.push_back(const_cast<png_bytep>(row.data()));
    if (!pointers.empty()) {
        png_write_image(png, pointers.data());
        png_write_end(png, info);
    }
    png_destroy_write_struct(&png, &info);
    return file;
}

std::vector<std::uint8_t> small_palette_png() {
    return made_png({3, 2, 1, 3, true, {255, 0, 0, 0, 255, 0}, {0, 255}}, {{0b01000000}, {0b11100000}});
}

std::vector<std::uint8_t> png_that_announces(std::uint32_t width, std::uint32_t height) {
    std::vector<std::uint8_t> file = made_png({width, height, 8, 2, false, {}, {}}, {});
    // An empty IDAT chunk, where the pixels would begin, with its checksum.
    for (const int byte : {0, 0, 0, 0, 0x49, 0x44, 0x41, 0x54, 0x35, 0xAF, 0x06, 0x1E})
        file.push_back(static_cast<std::uint8_t>(byte));
    return file;
}

std::vector<std::uint8_t> progressive_jpeg(const image::picture& source) {
    return made_jpeg(source.width(), source.height(), JCS_EXT_BGR, 3, source.bytes(), true, false);
}

std::vector<std::uint8_t> grey_jpeg(std::uint32_t width, std::uint32_t height, std::uint8_t grey) {
    return made_jpeg(width, height, JCS_GRAYSCALE, 1, std::vector<std::uint8_t>(std::size_t{width} * height, grey),
                     false, false);
}

std::vector<std::uint8_t> ink_jpeg(std::initializer_list<int> inks, bool is_inverted) {
    std::vector<std::uint8_t> samples;
    for (int pixel = 0; pixel < 64; ++pixel)
        for (const int ink : inks)
            samples.push_back(static_cast<std::uint8_t>(is_inverted ? 255 - ink : ink));
    return made_jpeg(8, 8, JCS_CMYK, 4, samples, false, is_inverted);
}

std::vector<std::uint8_t> jpeg_of_many_scans(std::uint32_t width, std::uint32_t height, int repetitions) {
    std::vector<std::uint8_t> file = progressive_jpeg(*image::picture::make({8, 8, 24}));
    const std::size_t frame = marker_at(file, 0xC2, 0);
    file[frame + 5] = static_cast<std::uint8_t>(height >> 8);
    file[frame + 6] = static_cast<std::uint8_t>(height & 255);
    file[frame + 7] = static_cast<std::uint8_t>(width >> 8);
    file[frame + 8] = static_cast<std::uint8_t>(width & 255);
    constexpr std::uint8_t start_of_scan = 0xDA;
    constexpr std::uint8_t tables = 0xC4; // stand before each scan
    const std::size_t second = marker_at(file, start_of_scan, marker_at(file, start_of_scan, 0) + 1);
    const std::size_t after = marker_at(file, tables, second);
    const std::vector<std::uint8_t> scan(file.begin() + static_cast<std::ptrdiff_t>(second),
                                         file.begin() + static_cast<std::ptrdiff_t>(after));
    file.resize(after);
    for (int i = 0; i < repetitions; ++i)
        file.insert(file.end(), scan.begin(), scan.end());
    return file;
}

std::vector<std::uint8_t> bytes_of(std::string_view hexadecimal) {
    std::vector<std::uint8_t> bytes;
    std::string digits;
    for (const char c : hexadecimal) {
        if (std::isxdigit(static_cast<unsigned char>(c)))
            digits += c;
        if (digits.size() == 2) {
            bytes.push_back(static_cast<std::uint8_t>(std::stoi(digits, nullptr, 16)));
            digits.clear();
        }
    }
    return bytes;
}

std::vector<std::uint8_t> rle8_bmp() {
    return bytes_of("42 4D 00 00 00 00 00 00 00 00 42 00 00 00" // pixels at 66
                    "28 00 00 00 04 00 00 00 02 00 00 00 01 00 08 00 01 00 00 00 00 00 00 00"
                    "00 00 00 00 00 00 00 00 03 00 00 00 00 00 00 00"
                    "00 00 00 00 00 00 FF 00 00 FF 00 00" // palette: blue, green, red, unused
                    "04 02 00 00"                         // the bottom row: four of 2, end of row
                    "02 01 00 03 02 00 00 00 00 01");     // two of 1; three as they are, padded; end of picture
}

std::vector<std::uint8_t> packed_tga() {
    return bytes_of("00 00 0A 00 00 00 00 00 00 00 00 00 03 00 02 00 18 00"
                    "82 FF 00 00"
                    "02 00 00 FF 00 FF 00 FF FF FF");
}

std::vector<std::uint8_t> small_gif() {
    return bytes_of("47 49 46 38 39 61 02 00 02 00 81 00 00" // GIF89a, screen 2 × 2, a palette of 4
                    "00 00 00 FF 00 00 00 FF 00 00 00 FF"
                    "2C 00 00 00 00 02 00 02 00 00" // frame
                    "02 03 44 34 05 00 3B");        // codes of 3 bits: 4 (clear) 0 1 2, then of 4 bits: 3 5 (end)
}

std::vector<std::uint8_t> packed_psd() {
    return bytes_of("38 42 50 53 00 01 00 00 00 00 00 00 00 03 00 00 00 01 00 00 00 02 00 08 00 03" // RGB, 8 bits
                    "00 00 00 00 00 00 00 00 00 00 00 00" // no palette, no resources, no layers
                    "00 01 00 02 00 03 00 02"             // packed; rows of 2, 3 and 2 bytes
                    "FF 0A 01 0B 0C FF 0D");              // a run of 2, 2 as they are, a run of 2
}

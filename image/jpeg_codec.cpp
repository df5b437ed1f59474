// JPEG through libjpeg. The library leaves a function by a jump when something is wrong, and a jump must not pass over
// an object with a destructor: so every function that sets a jump target holds plain values only.

#include "image/codecs.h"

#include <cstdio>
#include <cstdlib>
#include <limits>

#include <jpeglib.h>

#include <csetjmp>

namespace image {
namespace {

constexpr int quality = 95; // no difference to be seen; with the colours at full resolution

// A progressive file of a few kilobytes may announce thousands of passes over a huge picture. Real ones have about ten.
constexpr std::uint64_t most_pixels_times_scans = std::uint64_t{1} << 30;
constexpr int most_scans = 500;

struct jumping_errors {
    jpeg_error_mgr base;
    std::jmp_buf target;
};

// The common base of both structs of the library; `err` is the first member of what it points to.
[[noreturn]] void jump_out(j_common_ptr info) {
    std::longjmp(reinterpret_cast<jumping_errors*>(info->err)->target, 1);
}

void keep_silent(j_common_ptr /*info*/) {}
void count_nothing(j_common_ptr /*info*/, int /*level*/) {}

jpeg_error_mgr* prepare(jumping_errors& errors) {
    jpeg_std_error(&errors.base);
    errors.base.error_exit = jump_out;
    errors.base.output_message = keep_silent;
    errors.base.emit_message = count_nothing;
    return &errors.base;
}

void stop_after_many_scans(j_common_ptr common) {
    const auto& info = *reinterpret_cast<jpeg_decompress_struct*>(common);
    const std::uint64_t pixels = std::uint64_t{info.image_width} * info.image_height;
    const auto scans = static_cast<std::uint64_t>(info.input_scan_number);
    // A first scan is always allowed: the number of pixels has its own limit.
    if (scans > 1 && (scans > most_scans || scans * pixels > most_pixels_times_scans))
        jump_out(common);
}

struct jpeg_reader {
    jpeg_reader() { info.err = prepare(errors); }
    jpeg_reader(const jpeg_reader&) = delete;
    jpeg_reader& operator=(const jpeg_reader&) = delete;
    ~jpeg_reader() { jpeg_destroy_decompress(&info); }

    jpeg_decompress_struct info{};
    jumping_errors errors{};
    jpeg_progress_mgr progress{};
};

bool read_header(jpeg_reader& reader, byte_view file) {
    if (setjmp(reader.errors.target))
        return false;
    jpeg_create_decompress(&reader.info);
    reader.progress.progress_monitor = stop_after_many_scans;
    reader.info.progress = &reader.progress;
    jpeg_mem_src(&reader.info, file.data(), static_cast<unsigned long>(file.size()));
    return jpeg_read_header(&reader.info, TRUE) == JPEG_HEADER_OK;
}

picture_extent extent_of(const jpeg_reader& reader) {
    return {reader.info.image_width, reader.info.image_height, 24};
}

// Reads a row of inks and mixes them. Print programs store them inverted and say so by a marker of their own.
void read_row_of_inks(jpeg_decompress_struct& info, std::uint8_t* inks, std::uint8_t* pixels) {
    jpeg_read_scanlines(&info, &inks, 1);
    const unsigned flip = info.saw_Adobe_marker ? 0 : 255;
    for (std::size_t x = 0; x < info.output_width; ++x) {
        const unsigned black = inks[4 * x + 3] ^ flip;
        for (std::size_t channel = 0; channel < 3; ++channel)
            pixels[3 * x + channel] = static_cast<std::uint8_t>((inks[4 * x + 2 - channel] ^ flip) * black / 255);
    }
}

void read_rows(jpeg_decompress_struct& info, picture& target, byte_list& inks) {
    for (std::uint32_t y = 0; y < target.height(); ++y) {
        std::uint8_t* row = target.row(y);
        if (info.output_components == 4)
            read_row_of_inks(info, inks.data(), row);
        else
            jpeg_read_scanlines(&info, &row, 1);
    }
}

bool read_pixels(jpeg_reader& reader, picture& target, byte_list& inks) {
    if (setjmp(reader.errors.target))
        return false;
    const bool has_inks = reader.info.num_components == 4;
    reader.info.out_color_space = has_inks ? JCS_CMYK : JCS_EXT_BGR;
    if (!jpeg_start_decompress(&reader.info) || reader.info.output_components != (has_inks ? 4 : 3))
        return false;
    read_rows(reader.info, target, inks);
    return true;
}

struct jpeg_writer {
    jpeg_writer() { info.err = prepare(errors); }
    jpeg_writer(const jpeg_writer&) = delete;
    jpeg_writer& operator=(const jpeg_writer&) = delete;
    ~jpeg_writer() {
        jpeg_destroy_compress(&info);
        std::free(bytes); // NOLINT(cppcoreguidelines-owning-memory): the library allocates it so
    }

    jpeg_compress_struct info{};
    jumping_errors errors{};
    unsigned char* bytes = nullptr; // made by the library with malloc
    unsigned long size = 0;
};

void write_rows(jpeg_compress_struct& info, const picture& source) {
    for (std::uint32_t y = 0; y < source.height(); ++y) {
        auto* row = const_cast<std::uint8_t*>(source.row(y)); // the library's signature; it only reads
        jpeg_write_scanlines(&info, &row, 1);
    }
}

bool write_file(jpeg_writer& writer, const picture& source) {
    if (setjmp(writer.errors.target))
        return false;
    jpeg_create_compress(&writer.info);
    jpeg_mem_dest(&writer.info, &writer.bytes, &writer.size);
    writer.info.image_width = source.width();
    writer.info.image_height = source.height();
    writer.info.input_components = source.has_alpha() ? 4 : 3;
    writer.info.in_color_space = source.has_alpha() ? JCS_EXT_BGRX : JCS_EXT_BGR;
    jpeg_set_defaults(&writer.info);
    jpeg_set_quality(&writer.info, quality, TRUE);
    writer.info.comp_info[0].h_samp_factor = writer.info.comp_info[0].v_samp_factor = 1;
    writer.info.optimize_coding = TRUE;
    jpeg_start_compress(&writer.info, TRUE);
    write_rows(writer.info, source);
    jpeg_finish_compress(&writer.info);
    return true;
}

} // namespace

std::optional<picture_extent> jpeg_extent(byte_view file) {
    jpeg_reader reader;
    if (!read_header(reader, file))
        return std::nullopt;
    return extent_of(reader);
}

std::optional<picture> decode_jpeg(byte_view file, std::uint64_t limit) {
    jpeg_reader reader;
    if (!read_header(reader, file))
        return std::nullopt;
    std::optional<picture> decoded = picture::make(extent_of(reader), limit);
    byte_list inks(decoded && reader.info.num_components == 4 ? decoded->width() * std::size_t{4} : 0);
    if (!decoded || !read_pixels(reader, *decoded, inks))
        return std::nullopt;
    return decoded;
}

byte_list encode_jpeg(const picture& source) {
    jpeg_writer writer;
    if (!write_file(writer, source))
        return {};
    return {writer.bytes, writer.bytes + writer.size};
}

} // namespace image

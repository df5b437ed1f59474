// PNG through libpng. The library leaves a function by a jump when something is wrong, and a jump must not pass over an
// object with a destructor: so every function that sets a jump target holds plain values only, and what owns memory
// lives in its caller.

#include "image/codecs.h"
#include "image/picture_rows.h"

#include <png.h>

#include <csetjmp>
#include <cstring>
#include <utility>

namespace image {
namespace {

// A third of the time of the library's own level 6, for files that are a few percent longer.
constexpr int compression_level = 3;

[[noreturn]] void jump_out(png_structp png, png_const_charp /*message*/) {
    png_longjmp(png, 1);
}

void keep_silent(png_structp /*png*/, png_const_charp /*message*/) {}

struct unread_bytes {
    const std::uint8_t* next;
    std::size_t left;
};

void take_bytes(png_structp png, png_bytep out, std::size_t count) {
    auto& source = *static_cast<unread_bytes*>(png_get_io_ptr(png));
    if (count > source.left)
        png_error(png, "ends early");
    std::memcpy(out, source.next, count);
    source.next += count;
    source.left -= count;
}

class png_reader {
public:
    explicit png_reader(byte_view file)
        : source_{file.data(), file.size()},
          png(png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, jump_out, keep_silent)),
          info(png ? png_create_info_struct(png) : nullptr) {
        if (info)
            png_set_read_fn(png, &source_, take_bytes);
    }
    png_reader(const png_reader&) = delete;
    png_reader& operator=(const png_reader&) = delete;
    ~png_reader() { png_destroy_read_struct(&png, &info, nullptr); }

private:
    unread_bytes source_;

public:
    png_structp png;
    png_infop info;
};

// Texts, profiles and suggested palettes would be unpacked for nothing.
void skip_unused_chunks(png_structp png) {
    static const png_byte names[] = "iCCP\0iTXt\0tEXt\0zTXt\0sPLT\0eXIf\0hIST";
    png_set_keep_unknown_chunks(png, PNG_HANDLE_CHUNK_NEVER, names, sizeof names / 5);
}

// Reads up to the first pixel and asks for 8-bit channels, blue first.
bool read_header(png_structp png, png_infop info) {
    if (setjmp(png_jmpbuf(png)))
        return false;
    skip_unused_chunks(png);
    png_read_info(png, info);
    png_set_scale_16(png);
    png_set_expand(png);
    png_set_gray_to_rgb(png);
    png_set_bgr(png);
    png_set_interlace_handling(png);
    png_read_update_info(png, info);
    return png_get_bit_depth(png, info) == 8 && png_get_channels(png, info) >= 3;
}

picture_extent extent_of(const png_reader& reader) {
    return {png_get_image_width(reader.png, reader.info), png_get_image_height(reader.png, reader.info),
            png_get_channels(reader.png, reader.info) == 4 ? 32 : 24};
}

void read_rows(png_structp png, picture& target) {
    // Interlaced pictures come in seven passes, each of which adds pixels to all rows.
    const int passes = png_set_interlace_handling(png);
    for (int pass = 0; pass < passes; ++pass)
        for (std::uint32_t y = 0; y < target.height(); ++y)
            png_read_row(png, target.row(y), nullptr);
    png_read_end(png, nullptr);
}

bool read_pixels(png_structp png, picture& target) {
    if (setjmp(png_jmpbuf(png)))
        return false;
    read_rows(png, target);
    return true;
}

// One row of a picture that comes in a single pass; behind the last one also what ends the file.
bool read_row(png_structp png, std::uint8_t* row, bool is_last) {
    if (setjmp(png_jmpbuf(png)))
        return false;
    png_read_row(png, row, nullptr);
    if (is_last)
        png_read_end(png, nullptr);
    return true;
}

class png_row_source final : public row_source {
public:
    explicit png_row_source(byte_view file) : reader(file) {
        if (reader.info && read_header(reader.png, reader.info) &&
            png_get_interlace_type(reader.png, reader.info) == PNG_INTERLACE_NONE)
            size = extent_of(reader);
    }

    bool is_sound() const { return size.height > 0; }
    picture_extent extent() const override { return size; }
    bool next_row(std::uint8_t* row) override { return read_row(reader.png, row, ++rows_asked == size.height); }

private:
    png_reader reader;
    picture_extent size;
    std::uint32_t rows_asked = 0;
};

void hand_on(png_structp png, png_bytep bytes, std::size_t count) {
    if (!is_taken(*static_cast<const byte_sink*>(png_get_io_ptr(png)), {bytes, count}))
        png_error(png, "not taken");
}

void flush_nothing(png_structp /*png*/) {}

class png_writer {
public:
    png_writer()
        : png(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, jump_out, keep_silent)),
          info(png ? png_create_info_struct(png) : nullptr) {}
    png_writer(const png_writer&) = delete;
    png_writer& operator=(const png_writer&) = delete;
    ~png_writer() { png_destroy_write_struct(&png, &info); }

    png_structp png;
    png_infop info;
};

bool begin_file(png_structp png, png_infop info, const picture_extent& extent, const byte_sink* out) {
    if (setjmp(png_jmpbuf(png)))
        return false;
    png_set_write_fn(png, const_cast<byte_sink*>(out), hand_on, flush_nothing); // handed back as it is
    png_set_compression_level(png, compression_level);
    png_set_IHDR(png, info, extent.width, extent.height, 8,
                 extent.bits_per_pixel == 32 ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, info);
    png_set_bgr(png);
    return true;
}

bool write_row(png_structp png, const std::uint8_t* row) {
    if (setjmp(png_jmpbuf(png)))
        return false;
    png_write_row(png, row);
    return true;
}

bool end_file(png_structp png, png_infop info) {
    if (setjmp(png_jmpbuf(png)))
        return false;
    png_write_end(png, info);
    return true;
}

class png_row_sink final : public row_sink {
public:
    png_row_sink(const picture_extent& extent, const byte_sink& out)
        : begun(writer.info && begin_file(writer.png, writer.info, extent, &out)) {}

    bool has_begun() const { return begun; }
    bool put_row(const std::uint8_t* row) override { return write_row(writer.png, row); }
    bool end() override { return end_file(writer.png, writer.info); }

private:
    png_writer writer;
    bool begun;
};

} // namespace

std::optional<picture_extent> png_extent(byte_view file) {
    const png_reader reader(file);
    if (!reader.info || !read_header(reader.png, reader.info))
        return std::nullopt;
    return extent_of(reader);
}

std::optional<picture> decode_png(byte_view file, std::uint64_t limit) {
    const png_reader reader(file);
    if (!reader.info || !read_header(reader.png, reader.info))
        return std::nullopt;
    std::optional<picture> decoded = picture::make(extent_of(reader), limit);
    if (!decoded || !read_pixels(reader.png, *decoded))
        return std::nullopt;
    return decoded;
}

std::unique_ptr<row_source> png_rows(byte_view file) {
    auto rows = std::make_unique<png_row_source>(file);
    return rows->is_sound() ? std::move(rows) : nullptr;
}

std::unique_ptr<row_sink> png_file(const picture_extent& extent, const byte_sink& out) {
    auto file = std::make_unique<png_row_sink>(extent, out);
    return file->has_begun() ? std::move(file) : nullptr;
}

byte_list encode_png(const picture& source) {
    byte_list file;
    const byte_sink append = appending_to(file);
    const std::unique_ptr<row_sink> sink = png_file(source.extent(), append);
    return sink && put_picture(*sink, source) ? file : byte_list();
}

} // namespace image

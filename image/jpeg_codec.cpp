// JPEG through libjpeg. The library leaves a function by a jump when something is wrong, and a jump must not pass over
// an object with a destructor: so every function that sets a jump target holds plain values only.

#include "image/codecs.h"
#include "image/picture_rows.h"

#include <cstdio>

#include <jpeglib.h>

#include <array>
#include <csetjmp>
#include <utility>

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

bool begin_reading(jpeg_reader& reader) {
    if (setjmp(reader.errors.target))
        return false;
    const bool has_inks = reader.info.num_components == 4;
    reader.info.out_color_space = has_inks ? JCS_CMYK : JCS_EXT_BGR;
    return jpeg_start_decompress(&reader.info) && reader.info.output_components == (has_inks ? 4 : 3);
}

// inks: room for a row of them, if the picture has such.
bool read_row(jpeg_reader& reader, std::uint8_t* row, std::uint8_t* inks) {
    if (setjmp(reader.errors.target))
        return false;
    if (reader.info.output_components == 4)
        read_row_of_inks(reader.info, inks, row);
    else
        jpeg_read_scanlines(&reader.info, &row, 1);
    return true;
}

class jpeg_row_source final : public row_source {
public:
    explicit jpeg_row_source(byte_view file) : has_header(read_header(reader, file)) {}

    // Until this is called nothing is asked for that grows with the picture.
    bool begin() {
        if (!has_header || !begin_reading(reader))
            return false;
        inks.resize(reader.info.output_components == 4 ? std::size_t{4} * reader.info.output_width : 0);
        return true;
    }
    // False if all of it has to be unpacked before the first row can be.
    bool comes_in_rows() { return has_header && !jpeg_has_multiple_scans(&reader.info); }
    picture_extent extent() const override { return has_header ? extent_of(reader) : picture_extent{}; }
    bool next_row(std::uint8_t* row) override { return read_row(reader, row, inks.data()); }

private:
    jpeg_reader reader;
    bool has_header;
    byte_list inks;
};

struct jpeg_writer {
    jpeg_writer() { info.err = prepare(errors); }
    jpeg_writer(const jpeg_writer&) = delete;
    jpeg_writer& operator=(const jpeg_writer&) = delete;
    ~jpeg_writer() { jpeg_destroy_compress(&info); }

    jpeg_compress_struct info{};
    jumping_errors errors{};
    jpeg_destination_mgr target{};
    std::array<JOCTET, 1U << 16U> room{};
    const byte_sink* out = nullptr;
};

jpeg_writer& writer_of(j_compress_ptr info) {
    return *static_cast<jpeg_writer*>(info->client_data);
}

void make_room(j_compress_ptr info) {
    jpeg_writer& writer = writer_of(info);
    writer.target.next_output_byte = writer.room.data();
    writer.target.free_in_buffer = writer.room.size();
}

void hand_on(j_compress_ptr info, std::size_t count) {
    const jpeg_writer& writer = writer_of(info);
    if (!is_taken(*writer.out, {writer.room.data(), count}))
        jump_out(reinterpret_cast<j_common_ptr>(info));
}

boolean hand_on_full_room(j_compress_ptr info) {
    hand_on(info, writer_of(info).room.size()); // all of it, whatever the library has set free_in_buffer to
    make_room(info);
    return TRUE;
}

void hand_on_rest(j_compress_ptr info) {
    const jpeg_writer& writer = writer_of(info);
    hand_on(info, writer.room.size() - writer.target.free_in_buffer);
}

// is_optimal: the shortest codes for this very picture, which is kept in memory until they are known.
bool begin_file(jpeg_writer& writer, const picture_extent& extent, bool is_optimal) {
    if (setjmp(writer.errors.target))
        return false;
    jpeg_create_compress(&writer.info);
    writer.info.client_data = &writer;
    writer.target.init_destination = make_room;
    writer.target.empty_output_buffer = hand_on_full_room;
    writer.target.term_destination = hand_on_rest;
    writer.info.dest = &writer.target;
    const bool has_alpha = extent.bits_per_pixel == 32;
    writer.info.image_width = extent.width;
    writer.info.image_height = extent.height;
    writer.info.input_components = has_alpha ? 4 : 3;
    writer.info.in_color_space = has_alpha ? JCS_EXT_BGRX : JCS_EXT_BGR;
    jpeg_set_defaults(&writer.info);
    jpeg_set_quality(&writer.info, quality, TRUE);
    writer.info.comp_info[0].h_samp_factor = writer.info.comp_info[0].v_samp_factor = 1;
    writer.info.optimize_coding = is_optimal ? TRUE : FALSE;
    jpeg_start_compress(&writer.info, TRUE);
    return true;
}

bool write_row(jpeg_writer& writer, const std::uint8_t* row) {
    if (setjmp(writer.errors.target))
        return false;
    auto* pixels = const_cast<std::uint8_t*>(row); // the library's signature; it only reads
    return jpeg_write_scanlines(&writer.info, &pixels, 1) == 1;
}

bool end_file(jpeg_writer& writer) {
    if (setjmp(writer.errors.target))
        return false;
    jpeg_finish_compress(&writer.info);
    return true;
}

class jpeg_row_sink final : public row_sink {
public:
    explicit jpeg_row_sink(const byte_sink& out) { writer.out = &out; }

    bool begin(const picture_extent& extent, bool is_optimal) { return begin_file(writer, extent, is_optimal); }
    bool put_row(const std::uint8_t* row) override { return write_row(writer, row); }
    bool end() override { return end_file(writer); }

private:
    jpeg_writer writer;
};

} // namespace

std::optional<picture_extent> jpeg_extent(byte_view file) {
    jpeg_reader reader;
    if (!read_header(reader, file))
        return std::nullopt;
    return extent_of(reader);
}

std::unique_ptr<row_source> jpeg_rows(byte_view file) {
    auto rows = std::make_unique<jpeg_row_source>(file);
    return rows->comes_in_rows() && rows->begin() ? std::move(rows) : nullptr;
}

std::optional<picture> decode_jpeg(byte_view file, std::uint64_t limit) {
    jpeg_row_source rows(file);
    std::optional<picture> decoded = picture::make(rows.extent(), limit);
    if (!decoded || !rows.begin())
        return std::nullopt;
    for (std::uint32_t y = 0; y < decoded->height(); ++y)
        if (!rows.next_row(decoded->row(y)))
            return std::nullopt;
    return decoded;
}

std::unique_ptr<row_sink> jpeg_file(const picture_extent& extent, const byte_sink& out) {
    auto file = std::make_unique<jpeg_row_sink>(out);
    return file->begin(extent, false) ? std::move(file) : nullptr;
}

byte_list encode_jpeg(const picture& source) {
    byte_list file;
    const byte_sink append = appending_to(file);
    jpeg_row_sink sink(append);
    return sink.begin(source.extent(), true) && put_picture(sink, source) ? file : byte_list();
}

} // namespace image

// TIFF through libtiff, from and to memory.

#include "image/codecs.h"

#include <tiffio.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <utility>

namespace image {
namespace {

// What a single table or strip of a damaged file may ask for: as much as the largest picture takes.
constexpr tmsize_t most_bytes_at_once = static_cast<tmsize_t>(most_pixels * 4);

// A file in memory with a place in it. Reading takes from `file`, writing changes `written`.
struct memory_file {
    byte_view file;
    byte_list written;
    std::uint64_t place = 0;
};

memory_file& behind(thandle_t handle) {
    return *static_cast<memory_file*>(handle);
}

tmsize_t read_bytes(thandle_t handle, void* out, tmsize_t count) {
    memory_file& m = behind(handle);
    if (count <= 0 || m.place >= m.file.size())
        return 0;
    const std::size_t taken = std::min(static_cast<std::size_t>(count), m.file.size() - m.place);
    std::memcpy(out, m.file.data() + m.place, taken);
    m.place += taken;
    return static_cast<tmsize_t>(taken);
}

tmsize_t read_nothing(thandle_t /*handle*/, void* /*out*/, tmsize_t /*count*/) {
    return 0;
}

tmsize_t write_nothing(thandle_t /*handle*/, void* /*bytes*/, tmsize_t /*count*/) {
    return 0;
}

// No exception may pass through the library, which is C.
tmsize_t write_bytes(thandle_t handle, void* bytes, tmsize_t count) {
    memory_file& m = behind(handle);
    if (count <= 0)
        return 0;
    const auto size = static_cast<std::size_t>(count);
    try {
        m.written.resize(std::max<std::size_t>(m.written.size(), m.place + size));
    } catch (const std::exception&) {
        return 0;
    }
    std::memcpy(m.written.data() + m.place, bytes, size);
    m.place += size;
    return count;
}

toff_t size_of_file(thandle_t handle) {
    return std::max(behind(handle).file.size(), behind(handle).written.size());
}

toff_t go_to(thandle_t handle, toff_t offset, int from) {
    memory_file& m = behind(handle);
    const std::uint64_t base = from == SEEK_CUR ? m.place : from == SEEK_END ? size_of_file(handle) : 0;
    return m.place = base + offset;
}

int close_nothing(thandle_t /*handle*/) {
    return 0;
}

int keep_silent(TIFF* /*tiff*/, void* /*data*/, const char* /*module*/, const char* /*format*/, va_list /*values*/) {
    return 1; // handled: the process-wide handler, which prints, is not called
}

struct closer {
    void operator()(TIFF* tiff) const { TIFFClose(tiff); }
    void operator()(TIFFOpenOptions* options) const { TIFFOpenOptionsFree(options); }
};
using open_tiff = std::unique_ptr<TIFF, closer>;

open_tiff open(memory_file& m, const char* mode, TIFFReadWriteProc read, TIFFReadWriteProc write) {
    const std::unique_ptr<TIFFOpenOptions, closer> options(TIFFOpenOptionsAlloc());
    if (!options)
        return nullptr;
    TIFFOpenOptionsSetMaxSingleMemAlloc(options.get(), most_bytes_at_once);
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), keep_silent, nullptr);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), keep_silent, nullptr);
    return open_tiff(TIFFClientOpenExt("", mode, &m, read, write, go_to, close_nothing, size_of_file, nullptr, nullptr,
                                       options.get()));
}

open_tiff open_to_read(memory_file& m) {
    return open(m, "rm", read_bytes, write_nothing); // m: no mapping of the file
}

bool has_alpha(TIFF* tiff) {
    std::uint16_t extra_count = 0;
    std::uint16_t* extras = nullptr;
    TIFFGetFieldDefaulted(tiff, TIFFTAG_EXTRASAMPLES, &extra_count, &extras);
    // One more sample than the colours need, of unspecified meaning, is alpha in practice.
    std::uint16_t samples = 0;
    TIFFGetFieldDefaulted(tiff, TIFFTAG_SAMPLESPERPIXEL, &samples);
    return extra_count > 0 && extras && (extras[0] != EXTRASAMPLE_UNSPECIFIED || samples == 4);
}

std::optional<picture_extent> extent_of(TIFF* tiff) {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    if (!TIFFGetField(tiff, TIFFTAG_IMAGEWIDTH, &width) || !TIFFGetField(tiff, TIFFTAG_IMAGELENGTH, &height) ||
        width == 0 || height == 0)
        return std::nullopt;
    return picture_extent{width, height, has_alpha(tiff) ? 32 : 24};
}

// The library multiplies colours by an alpha that they were not multiplied by yet, which loses them; told that they
// were, it leaves them alone.
void leave_colours_alone(TIFF* tiff) {
    std::uint16_t extra_count = 0;
    std::uint16_t* extras = nullptr;
    TIFFGetFieldDefaulted(tiff, TIFFTAG_EXTRASAMPLES, &extra_count, &extras);
    if (extra_count == 0 || extras[0] != EXTRASAMPLE_UNASSALPHA)
        return;
    const std::uint16_t multiplied[] = {EXTRASAMPLE_ASSOCALPHA};
    TIFFSetField(tiff, TIFFTAG_EXTRASAMPLES, 1, multiplied);
}

void copy_pixels(const std::vector<std::uint32_t>& raster, picture& target) {
    const std::uint32_t* pixel = raster.data();
    for (std::uint32_t y = 0; y < target.height(); ++y) {
        std::uint8_t* out = target.row(y);
        for (std::uint32_t x = 0; x < target.width(); ++x, ++pixel) {
            *out++ = static_cast<std::uint8_t>(TIFFGetB(*pixel));
            *out++ = static_cast<std::uint8_t>(TIFFGetG(*pixel));
            *out++ = static_cast<std::uint8_t>(TIFFGetR(*pixel));
            if (target.has_alpha())
                *out++ = static_cast<std::uint8_t>(TIFFGetA(*pixel));
        }
    }
}

void describe(TIFF* tiff, const picture& source) {
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, source.width());
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, source.height());
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, 8);
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, source.has_alpha() ? 4 : 3);
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(tiff, TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
    TIFFSetField(tiff, TIFFTAG_COMPRESSION, COMPRESSION_LZW);
    TIFFSetField(tiff, TIFFTAG_PREDICTOR, PREDICTOR_HORIZONTAL);
    TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, TIFFDefaultStripSize(tiff, 0));
    if (source.has_alpha()) {
        const std::uint16_t not_multiplied[] = {EXTRASAMPLE_UNASSALPHA};
        TIFFSetField(tiff, TIFFTAG_EXTRASAMPLES, 1, not_multiplied);
    }
}

bool write_rows(TIFF* tiff, const picture& source) {
    byte_list row(source.bytes_per_row());
    for (std::uint32_t y = 0; y < source.height(); ++y) {
        std::copy_n(source.row(y), row.size(), row.begin());
        for (std::size_t pixel = 0; pixel < row.size(); pixel += source.bytes_per_pixel())
            std::swap(row[pixel], row[pixel + 2]); // a file has red first
        if (TIFFWriteScanline(tiff, row.data(), y, 0) != 1)
            return false;
    }
    return true;
}

} // namespace

std::optional<picture_extent> tiff_extent(byte_view file) {
    memory_file m{file, {}};
    const open_tiff tiff = open_to_read(m);
    return tiff ? extent_of(tiff.get()) : std::nullopt;
}

std::optional<picture> decode_tiff(byte_view file, std::uint64_t limit) {
    memory_file m{file, {}};
    const open_tiff tiff = open_to_read(m);
    const std::optional<picture_extent> extent = tiff ? extent_of(tiff.get()) : std::nullopt;
    std::optional<picture> decoded = extent ? picture::make(*extent, limit) : std::nullopt;
    if (!decoded)
        return std::nullopt;
    leave_colours_alone(tiff.get());
    std::vector<std::uint32_t> raster(std::size_t{extent->width} * extent->height);
    constexpr int stop_on_error = 1;
    if (!TIFFReadRGBAImageOriented(tiff.get(), extent->width, extent->height, raster.data(), ORIENTATION_TOPLEFT,
                                   stop_on_error))
        return std::nullopt;
    copy_pixels(raster, *decoded);
    return decoded;
}

byte_list encode_tiff(const picture& source) {
    memory_file m;
    open_tiff tiff = open(m, "wl", read_nothing, write_bytes); // l: least byte first on every machine
    if (!tiff)
        return {};
    describe(tiff.get(), source);
    if (!write_rows(tiff.get(), source) || !TIFFWriteDirectory(tiff.get()))
        return {};
    tiff.reset();
    return std::move(m.written);
}

} // namespace image

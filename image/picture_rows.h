#pragma once

// Pictures row by row: what is read and what is written never stands in memory as a whole.

#include "image/picture.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

namespace image {

// Takes the bytes of a file piece by piece; false, or std::bad_alloc, ends the work.
using byte_sink = std::function<bool(std::span<const std::uint8_t>)>;

// The same, for a library that no exception may pass through.
bool is_taken(const byte_sink& out, std::span<const std::uint8_t> bytes) noexcept;

// Appends the bytes to these, which must outlive it.
byte_sink appending_to(std::vector<std::uint8_t>& bytes);

// A picture file on its way out of its bytes, which must outlive it.
class row_source {
public:
    virtual ~row_source() = default;
    virtual picture_extent extent() const = 0;
    // The next row from the top, as picture::row lays it out; to be called once for each. False if it is damaged: no
    // other may then be asked for.
    virtual bool next_row(std::uint8_t* row) = 0;
};

// A picture file on its way into a sink, which must outlive it.
class row_sink {
public:
    virtual ~row_sink() = default;
    // The next row from the top, as picture::row lays it out. False if that fails; no other may then follow.
    virtual bool put_row(const std::uint8_t* row) = 0;
    // What stands behind the last row; to be called once, when all have been put.
    virtual bool end() = 0;
};

// Puts all rows and what stands behind them.
bool put_picture(row_sink& sink, const picture& source);

// Rows of a PNG that is not interlaced, and of a JPEG that is not progressive; null for any other and for a damaged
// header. The size is not limited.
std::unique_ptr<row_source> png_rows(std::span<const std::uint8_t> file);
std::unique_ptr<row_source> jpeg_rows(std::span<const std::uint8_t> file);

// The same by the first bytes of the file; null for every other format too.
std::unique_ptr<row_source> rows_of(std::span<const std::uint8_t> file);

// A file of these formats; null if it cannot be begun, as for a side that the format cannot hold. JPEG drops alpha.
std::unique_ptr<row_sink> png_file(const picture_extent& extent, const byte_sink& out);
std::unique_ptr<row_sink> jpeg_file(const picture_extent& extent, const byte_sink& out);

} // namespace image

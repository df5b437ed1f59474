#include "sketchup/skp/writer/record_sink.h"

#include "sketchup/skp/text_encoding.h"

#include <limits>
#include <stdexcept>

namespace skp {

namespace {

unsigned bytes_of(std::uint64_t id) {
    unsigned count = 1;
    while (count < 8 && (id >> (8 * count)) != 0)
        ++count;
    return count;
}

void put_id(byte_sink& bytes, std::uint64_t id) {
    for (unsigned i = 0; i < bytes_of(id); ++i)
        bytes.u8(static_cast<std::uint8_t>(id >> (8 * i)));
}

} // namespace

void record_sink::set_length(std::size_t length_at) {
    const std::size_t length = bytes_.count() - length_at - sizeof(std::uint32_t);
    if (length > std::numeric_limits<std::uint32_t>::max())
        throw std::length_error("a record of 4 GiB or more");
    bytes_.set_u32(length_at, static_cast<std::uint32_t>(length));
}

void record_sink::doubles(std::uint16_t tag, std::span<const double> values) {
    record(tag, [&] {
        for (const double value : values)
            bytes_.f64(value);
    });
}

void record_sink::text(std::uint16_t tag, std::string_view value) {
    record(tag, [&] { bytes_.raw(well_formed_utf8(value)); });
}

void record_sink::id(std::uint16_t tag, std::uint64_t value) {
    record(tag, [&] { put_id(bytes_, value); });
}

void record_sink::ids(std::uint16_t tag, std::span<const std::uint64_t> values) {
    record(tag, [&] {
        for (const std::uint64_t value : values) {
            bytes_.u8(static_cast<std::uint8_t>(bytes_of(value)));
            put_id(bytes_, value);
        }
    });
}

} // namespace skp

#pragma once

// Collects the records of model.dat: a tag, a length, a payload that may hold records again.

#include "sketchup/model/values.h"
#include "sketchup/skp/writer/byte_sink.h"

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace skp {

class record_sink {
public:
    // A record whose payload is what `content` adds. Throws std::length_error if that is 4 GiB or more.
    template<class Content>
    void record(std::uint16_t tag, Content content) {
        bytes_.u16(tag);
        const std::size_t length_at = bytes_.count();
        bytes_.u32(0);
        content();
        set_length(length_at);
    }
    void empty(std::uint16_t tag) {
        record(tag, [] {});
    }

    // Records with one value.
    void u8(std::uint16_t tag, std::uint8_t value) {
        record(tag, [&] { bytes_.u8(value); });
    }
    void boolean(std::uint16_t tag, bool value) {
        record(tag, [&] { bytes_.boolean(value); });
    }
    void u16(std::uint16_t tag, std::uint16_t value) {
        record(tag, [&] { bytes_.u16(value); });
    }
    void i32(std::uint16_t tag, std::int32_t value) {
        record(tag, [&] { bytes_.i32(value); });
    }
    void u32(std::uint16_t tag, std::uint32_t value) {
        record(tag, [&] { bytes_.u32(value); });
    }
    void f32(std::uint16_t tag, float value) {
        record(tag, [&] { bytes_.f32(value); });
    }
    void f64(std::uint16_t tag, double value) {
        record(tag, [&] { bytes_.f64(value); });
    }
    void v3(std::uint16_t tag, const sketchup::vec3& value) {
        record(tag, [&] { bytes_.v3(value); });
    }
    void rgba(std::uint16_t tag, const sketchup::rgba& value) {
        record(tag, [&] { bytes_.rgba(value); });
    }
    void raw(std::uint16_t tag, std::span<const std::uint8_t> value) {
        record(tag, [&] { bytes_.raw(value); });
    }
    void doubles(std::uint16_t tag, std::span<const double> values);
    // UTF-8; every byte that is none becomes U+FFFD.
    void text(std::uint16_t tag, std::string_view value);
    // An id in as few bytes as it takes.
    void id(std::uint16_t tag, std::uint64_t value);
    // Ids in one payload, each behind its size.
    void ids(std::uint16_t tag, std::span<const std::uint64_t> values);

    std::vector<std::uint8_t> take() { return bytes_.take(); }

private:
    void set_length(std::size_t length_at);

    byte_sink bytes_;
};

} // namespace skp

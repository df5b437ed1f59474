#pragma once

// Collects little-endian values; the counterpart of byte_cursor.

#include "sketchup/model/values.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <vector>

namespace skp {

static_assert(std::endian::native == std::endian::little, "the sink copies values as they stand in memory");

class byte_sink {
public:
    void u8(std::uint8_t value) { put(value); }
    void u16(std::uint16_t value) { put(value); }
    void u32(std::uint32_t value) { put(value); }
    void u64(std::uint64_t value) { put(value); }
    void i32(std::int32_t value) { put(value); }
    void f32(float value) { put(value); }
    void f64(double value) { put(value); }
    void boolean(bool value) { u8(value ? 1 : 0); }
    void size(std::size_t value) { u32(static_cast<std::uint32_t>(value)); }
    void v3(const sketchup::vec3& value) {
        f64(value.x);
        f64(value.y);
        f64(value.z);
    }
    void rgba(const sketchup::rgba& value) {
        u8(value.red);
        u8(value.green);
        u8(value.blue);
        u8(value.alpha);
    }
    void raw(std::span<const std::uint8_t> bytes) { append(bytes.data(), bytes.size()); }
    void raw(std::string_view bytes) { append(bytes.data(), bytes.size()); }

    // Sets bytes that were written before, the first of them at that count.
    void set_u32(std::size_t at, std::uint32_t value) { std::memcpy(bytes_.data() + at, &value, sizeof(value)); }
    void set_u64(std::size_t at, std::uint64_t value) { std::memcpy(bytes_.data() + at, &value, sizeof(value)); }

    std::size_t count() const { return bytes_.size(); }
    std::vector<std::uint8_t> take() { return std::move(bytes_); }

private:
    template<class T>
    void put(T value) {
        append(&value, sizeof(T));
    }
    // Not in the header: the writers recurse along the nesting of a model, and growing a vector in place would make
    // each of their stack frames several times as large.
    void append(const void* first, std::size_t count);

    std::vector<std::uint8_t> bytes_;
};

} // namespace skp

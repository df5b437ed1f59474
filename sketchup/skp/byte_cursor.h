#pragma once

// Reads little-endian values from a span of bytes; every step is checked against the bytes that are left.

#include "sketchup/model/values.h"
#include "sketchup/skp/format_error.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>

namespace skp {

static_assert(std::endian::native == std::endian::little, "the cursor copies little-endian values as they stand");

class byte_cursor {
public:
    // base: the offset of the first byte, for messages.
    explicit byte_cursor(std::span<const std::uint8_t> bytes, std::uint64_t base = 0) : bytes_(bytes), base_(base) {}

    std::uint64_t offset() const { return base_ + position_; }
    std::size_t left() const { return bytes_.size() - position_; }
    bool at_end() const { return position_ == bytes_.size(); }

    // What is being read; stands in the messages. Must outlive the cursor's use of it: a literal.
    void set_where(const char* where) { where_ = where; }
    const char* where() const { return where_; }

    std::uint8_t u8() { return value<std::uint8_t>(); }
    std::uint16_t u16() { return value<std::uint16_t>(); }
    std::uint32_t u32() { return value<std::uint32_t>(); }
    std::uint64_t u64() { return value<std::uint64_t>(); }
    std::int32_t i32() { return value<std::int32_t>(); }
    float f32() { return value<float>(); }
    double f64() { return value<double>(); }
    bool boolean() { return u8() != 0; }
    sketchup::vec3 v3() {
        need(3 * sizeof(double));
        const double x = f64(), y = f64(), z = f64();
        return {x, y, z};
    }
    sketchup::rgba rgba() {
        const std::span<const std::uint8_t> b = bytes(4);
        return {b[0], b[1], b[2], b[3]};
    }
    std::span<const std::uint8_t> bytes(std::size_t count) {
        need(count);
        const auto result = bytes_.subspan(position_, count);
        position_ += count;
        return result;
    }
    void skip(std::size_t count) { bytes(count); }

    // A u32 count of things of at least smallest bytes each; fails if so many cannot be left.
    std::uint32_t count(std::size_t smallest) {
        const std::uint32_t n = u32();
        const std::uint64_t size = static_cast<std::uint64_t>(n) * smallest;
        if (size > left()) [[unlikely]]
            fail_short("count " + std::to_string(n) + " ", size);
        return n;
    }

    [[noreturn]] void fail(const std::string& reason) const {
        throw format_error(failure::damaged, offset(), where_, reason);
    }

private:
    void need(std::size_t size) const {
        if (size > left()) [[unlikely]]
            fail_short("", size);
    }
    // Apart from the checks, which stand at every value and are to stay small.
    [[noreturn]] void fail_short(const std::string& what, std::uint64_t size) const;
    template<class T>
    T value() {
        need(sizeof(T));
        T result;
        std::memcpy(&result, bytes_.data() + position_, sizeof(T));
        position_ += sizeof(T);
        return result;
    }

    std::span<const std::uint8_t> bytes_;
    std::size_t position_ = 0;
    std::uint64_t base_;
    const char* where_ = "file";
};

} // namespace skp

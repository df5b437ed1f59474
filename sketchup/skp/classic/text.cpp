#include "sketchup/skp/classic/text.h"

#include <array>
#include <cstddef>

namespace skp {
namespace {

constexpr char32_t replacement = 0xFFFD;

// The characters 0x80 to 0x9F of Windows-1252; all others are those of Unicode.
constexpr std::array<char16_t, 32> windows_1252_high = {0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                        0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD,
                                                        0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                        0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

void append_utf8(std::string& out, char32_t c) {
    const auto put = [&out](char32_t byte) { out.push_back(static_cast<char>(static_cast<unsigned char>(byte))); };
    if (c < 0x80) {
        put(c);
    } else if (c < 0x800) {
        put(0xC0 | (c >> 6));
        put(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        put(0xE0 | (c >> 12));
        put(0x80 | ((c >> 6) & 0x3F));
        put(0x80 | (c & 0x3F));
    } else {
        put(0xF0 | (c >> 18));
        put(0x80 | ((c >> 12) & 0x3F));
        put(0x80 | ((c >> 6) & 0x3F));
        put(0x80 | (c & 0x3F));
    }
}

std::string utf8_from_windows_1252(std::span<const std::uint8_t> bytes) {
    std::string out;
    out.reserve(bytes.size());
    for (const std::uint8_t b : bytes)
        append_utf8(out, b >= 0x80 && b < 0xA0 ? windows_1252_high[b - 0x80u] : b);
    return out;
}

std::string utf8_from_utf16(std::span<const std::uint8_t> bytes) {
    const std::size_t units = bytes.size() / 2;
    const auto unit = [bytes](std::size_t i) { return static_cast<char32_t>(bytes[2 * i] | (bytes[2 * i + 1] << 8)); };
    const auto is_high = [](char32_t c) { return c >= 0xD800 && c < 0xDC00; };
    const auto is_low = [](char32_t c) { return c >= 0xDC00 && c < 0xE000; };
    std::string out;
    out.reserve(units);
    for (std::size_t i = 0; i < units; ++i) {
        const char32_t c = unit(i);
        if (is_high(c) && i + 1 < units && is_low(unit(i + 1))) {
            append_utf8(out, 0x10000 + ((c - 0xD800) << 10) + (unit(i + 1) - 0xDC00));
            ++i;
        } else {
            append_utf8(out, is_high(c) || is_low(c) ? replacement : c);
        }
    }
    return out;
}

// What follows the two bytes FF FE FF: the number of units in one, three or seven bytes.
std::uint32_t wide_length(byte_cursor& in) {
    const std::uint8_t shortest = in.u8();
    if (shortest != 0xFF)
        return shortest;
    const std::uint16_t middle = in.u16();
    return middle != 0xFFFF ? middle : in.u32();
}

} // namespace

stored_text read_stored_text(byte_cursor& in) {
    const std::uint8_t shortest = in.u8();
    if (shortest != 0xFF)
        return {false, in.bytes(shortest)};
    const std::uint16_t middle = in.u16();
    if (middle == 0xFFFE) {
        const std::uint64_t size = 2 * static_cast<std::uint64_t>(wide_length(in));
        if (size > in.left())
            in.fail("string of " + std::to_string(size) + " bytes, " + std::to_string(in.left()) + " left");
        return {true, in.bytes(static_cast<std::size_t>(size))};
    }
    return {false, in.bytes(middle != 0xFFFF ? middle : in.u32())};
}

std::string utf8_from(const stored_text& text) {
    return text.wide ? utf8_from_utf16(text.bytes) : utf8_from_windows_1252(text.bytes);
}

} // namespace skp

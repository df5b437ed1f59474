#include "sketchup/skp/writer/written_guids.h"

#include <cstddef>

namespace skp {

namespace {

// Spreads the bits of a number; different numbers give different results, as every step can be undone.
std::uint64_t spread(std::uint64_t x) {
    x = (x ^ (x >> 30U)) * 0xBF58476D1CE4E5B9U;
    x = (x ^ (x >> 27U)) * 0x94D049BB133111EBU;
    return x ^ (x >> 31U);
}

} // namespace

sketchup::guid written_guid(const sketchup::guid& own, guid_owner owner, sketchup::index at) {
    if (own != sketchup::guid{})
        return own;
    constexpr std::uint64_t golden = 0x9E3779B97F4A7C15U; // begins both halves away from zero
    const std::uint64_t number = static_cast<std::uint64_t>(owner) << 32U | at;
    const std::uint64_t halves[] = {spread(number + golden), spread(number + 2 * golden)};
    sketchup::guid made{};
    for (std::size_t i = 0; i < made.size(); ++i)
        made[i] = static_cast<std::uint8_t>(halves[i / 8] >> (8 * (i % 8)));
    // As a guid of random bits says of itself: version 4 in the high bits of the third group, whose low byte is first,
    // and variant 1 in those of the fourth. Neither touches the first half's 52 other bits or the second's 62, and the
    // first 52 tell fewer than 2^34 numbers apart.
    made[7] = static_cast<std::uint8_t>((made[7] & 0x0FU) | 0x40U);
    made[8] = static_cast<std::uint8_t>((made[8] & 0x3FU) | 0x80U);
    return made;
}

} // namespace skp

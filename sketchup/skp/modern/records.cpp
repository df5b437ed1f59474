#include "sketchup/skp/modern/records.h"

#include "sketchup/skp/text_encoding.h"

#include <algorithm>

namespace skp::modern {

std::optional<byte_cursor> descend(byte_cursor container, std::initializer_list<std::uint16_t> path) {
    for (const std::uint16_t tag : path) {
        std::optional<byte_cursor> next;
        for (const record& r : records(container)) {
            if (r.tag != tag)
                continue;
            next = r.payload;
            break;
        }
        if (!next)
            return std::nullopt;
        container = *next;
    }
    return container;
}

std::size_t count_of(byte_cursor container, std::uint16_t tag) {
    std::size_t count = 0;
    for (const record& r : records(container))
        count += r.tag == tag;
    return count;
}

bool looks_like_records(byte_cursor payload) {
    constexpr std::size_t head = sizeof(std::uint16_t) + sizeof(std::uint32_t);
    while (payload.left() >= head) {
        payload.u16();
        const std::uint32_t length = payload.u32();
        if (length > payload.left())
            return false;
        payload.skip(length);
    }
    return payload.at_end();
}

std::uint64_t id_in(byte_cursor payload) {
    if (payload.left() > sizeof(std::uint64_t))
        payload.fail("an id of " + std::to_string(payload.left()) + " bytes");
    std::uint64_t id = 0;
    for (unsigned shift = 0; !payload.at_end(); shift += 8)
        id |= static_cast<std::uint64_t>(payload.u8()) << shift;
    return id;
}

std::string bytes_in(byte_cursor payload) {
    const std::span<const std::uint8_t> bytes = payload.bytes(payload.left());
    return {bytes.begin(), bytes.end()};
}

std::string text_in(byte_cursor payload) {
    return well_formed_utf8(bytes_in(payload));
}

sketchup::guid guid_in(byte_cursor payload) {
    sketchup::guid id{};
    std::ranges::copy(payload.bytes(id.size()), id.begin());
    return id;
}

} // namespace skp::modern

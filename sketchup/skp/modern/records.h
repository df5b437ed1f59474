#pragma once

// The framing of model.dat: records of a tag, a length and a payload, which may hold records again. Whether it does
// follows from the tag alone. Nothing is decoded before it is asked for.

#include "sketchup/skp/byte_cursor.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <optional>
#include <string>

namespace skp::modern {

struct record {
    std::uint16_t tag = 0;
    byte_cursor payload{{}};
};

// The records of one container, for a range-based loop: for (const record& r : records(payload)).
// Each step throws format_error if a record does not end where its container does or before.
class records {
public:
    explicit records(byte_cursor container) : container_(container) {}

    class iterator {
    public:
        explicit iterator(byte_cursor left) : left_(left) { ++*this; }
        const record& operator*() const { return now_; }
        const record* operator->() const { return &now_; }
        iterator& operator++() {
            ended_ = left_.at_end();
            if (!ended_) {
                now_.tag = left_.u16();
                const std::uint32_t length = left_.u32();
                const std::uint64_t begin = left_.offset();
                now_.payload = byte_cursor(left_.bytes(length), begin);
                now_.payload.set_where(left_.where());
            }
            return *this;
        }
        bool operator==(std::default_sentinel_t) const { return ended_; }

    private:
        byte_cursor left_;
        record now_;
        bool ended_ = false;
    };

    iterator begin() const { return iterator(container_); }
    std::default_sentinel_t end() const { return {}; }

private:
    byte_cursor container_;
};

// The payload of the first record with the first tag, in it that of the first with the second tag, and so on.
std::optional<byte_cursor> descend(byte_cursor container, std::initializer_list<std::uint16_t> path);

// How many records of the container have the tag.
std::size_t count_of(byte_cursor container, std::uint16_t tag);

// Whether the payload is a sequence of records that fills it exactly; true for an empty one. Only for payloads of
// unknown tags: others can look like records by accident.
bool looks_like_records(byte_cursor payload);

// Primitive payloads. The whole payload is one value; bytes behind a value of fixed size are passed over.

// An integer of 0 to 8 bytes; 0, which nothing has for an id, for an empty payload. Fails for more bytes.
std::uint64_t id_in(byte_cursor payload);
// The bytes as they stand, and as text: what is no UTF-8 becomes U+FFFD.
std::string bytes_in(byte_cursor payload);
std::string text_in(byte_cursor payload);
sketchup::guid guid_in(byte_cursor payload);

template<std::size_t n>
std::array<double, n> doubles_in(byte_cursor payload) {
    std::array<double, n> numbers;
    for (double& number : numbers)
        number = payload.f64();
    return numbers;
}

// Calls act(id) for each integer of a list of them, each of which has its size in front.
template<class Action>
void for_each_id(byte_cursor payload, Action act) {
    while (!payload.at_end()) {
        const std::uint8_t size = payload.u8();
        act(id_in(byte_cursor(payload.bytes(size), payload.offset())));
    }
}

} // namespace skp::modern

#pragma once

// Assembles documents of the archive container record by record, and the files around them.

#include "sketchup/model/model.h"
#include "sketchup/skp/format_error.h"

#include <cstdint>
#include <initializer_list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace record_bytes {

using bytes = std::vector<std::uint8_t>;

inline bytes operator+(bytes a, const bytes& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

template<class T>
bytes raw(T value) {
    const auto* first = reinterpret_cast<const std::uint8_t*>(&value);
    return {first, first + sizeof(T)};
}

inline bytes u8(std::uint8_t value) {
    return {value};
}
inline bytes i32(std::int32_t value) {
    return raw(value);
}
inline bytes doubles(std::initializer_list<double> values) {
    bytes all;
    for (const double v : values)
        all = all + raw(v);
    return all;
}
inline bytes text(const std::string& value) {
    return {value.begin(), value.end()};
}
inline bytes guid(std::uint8_t fill) {
    return bytes(16, fill);
}

// An integer without its leading zero bytes.
inline bytes id(std::uint64_t value) {
    bytes all;
    for (; value != 0; value >>= 8)
        all.push_back(static_cast<std::uint8_t>(value));
    return all;
}

inline bytes id_list(std::initializer_list<std::uint64_t> ids) {
    bytes all;
    for (const std::uint64_t i : ids) {
        const bytes one = id(i);
        all.push_back(static_cast<std::uint8_t>(one.size()));
        all = all + one;
    }
    return all;
}

inline bytes rec(std::uint16_t tag, const bytes& payload = {}) {
    return raw(tag) + raw(static_cast<std::uint32_t>(payload.size())) + payload;
}

// Records that most documents need.
inline bytes entity(std::uint64_t persistent_id, const bytes& attachments = {}) {
    const bytes held = attachments.empty() ? bytes() : rec(1501, rec(14001, rec(14002, attachments)));
    return rec(1500, rec(1502, id(persistent_id)) + held);
}
inline bytes drawing(std::uint64_t persistent_id, const bytes& rest = rec(2003, u8(0x06))) {
    return rec(2000, entity(persistent_id) + rest);
}
inline bytes vertex(std::uint64_t persistent_id, double x, double y, double z = 0) {
    return rec(2500, entity(persistent_id) + rec(2501, doubles({x, y, z})));
}
inline bytes edge(std::uint64_t persistent_id, std::uint64_t from, std::uint64_t to, const bytes& rest = {}) {
    return rec(3000, drawing(persistent_id) + rec(3001, id(from)) + rec(3002, id(to)) + rest);
}
inline bytes use(std::uint64_t of_edge, bool reversed = false) {
    return rec(4000, rec(4001, id(of_edge)) + rec(4002, u8(reversed)));
}
inline bytes loop(const bytes& uses) {
    return rec(4500, rec(4501, uses));
}
inline bytes plane_up() {
    return doubles({0, 0, 1, 0});
}

// The lists of vertices 1 to 4 and edges 11 to 14 around a square of 10 inches.
inline bytes square_lists() {
    return rec(5001, vertex(1, 0, 0) + vertex(2, 10, 0) + vertex(3, 10, 10) + vertex(4, 0, 10)) +
           rec(5002, edge(11, 1, 2) + edge(12, 2, 3) + edge(13, 3, 4) + edge(14, 4, 1));
}
inline bytes square_loop() {
    return loop(use(11) + use(12) + use(13) + use(14));
}
inline bytes square_face(std::uint64_t persistent_id) {
    return rec(3500, drawing(persistent_id) + rec(3501, plane_up()) + rec(3502, square_loop()));
}

// The model's own elements, a definition, the list of definitions, of materials and of layers.
inline bytes content(const bytes& lists) {
    return rec(502, rec(5000, rec(2000, rec(2003, u8(0x06))) + lists));
}
inline bytes definition(std::uint64_t persistent_id, const std::string& name, const bytes& lists = {},
                        std::int32_t kind = 0) {
    return rec(5500, rec(5000, drawing(persistent_id) + lists) + rec(5502, text(name)) + rec(5507, i32(kind)));
}
inline bytes definitions(const bytes& list) {
    return rec(505, rec(6000, rec(6001, list)));
}
inline bytes materials(const bytes& list) {
    return rec(503, rec(12500, rec(12501, list)));
}
inline bytes layers(const bytes& list, const bytes& rest = {}) {
    return rec(504, rec(15000, rec(15001, list) + rest));
}
inline bytes layer(std::uint64_t persistent_id, const std::string& name, const bytes& rest = {}) {
    return rec(15500, entity(persistent_id) + rec(15501, text(name)) + rest);
}
inline bytes instance(std::uint64_t persistent_id, std::uint64_t of_definition, const bytes& rest = {}) {
    return rec(6500, drawing(persistent_id) + rec(6503, id(of_definition)) + rest);
}

using entries = std::map<std::string, bytes>;

// The model that model.dat with these parts describes; beside it lie the entries. Not linked.
std::unique_ptr<sketchup::model> read_parts(const bytes& parts, const entries& beside = {});

// A ZIP archive of the entries, in the order of their names.
bytes archive_of(const entries& all);

// A whole file of version 21.0.339.
bytes file_of(const entries& all, std::uint16_t lowest_reader = 1, std::uint16_t layout = 8);
inline bytes file_of_parts(const bytes& parts) {
    return file_of({{"model.dat", rec(500, parts)}});
}

// Why the file is refused; nothing if it opens.
std::optional<skp::failure> refusal(const bytes& file);

} // namespace record_bytes

// Section planes. Their numbers are those that another reader of such files reports; no file that holds one was at
// hand. So what looks like a list of them under a number that nothing else has is taken for one too: such a record is
// known by what the classic container stores.

#include "sketchup/skp/modern/model_data_reader.h"
#include "sketchup/skp/modern/tags.h"

#include <utility>

namespace skp::modern {
namespace {

constexpr std::size_t plane_size = 4 * sizeof(double);

// The length of the UTF-8 sequence that a byte begins; 0 for a control character or a byte that begins none.
std::size_t sequence_length(std::uint8_t lead) {
    if (lead < 0x20)
        return 0;
    if (lead < 0x80)
        return 1;
    if (lead < 0xC2)
        return 0;
    return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
}

// Whether the payload could be a name: empty, or UTF-8 without control characters.
bool looks_like_text(byte_cursor payload) {
    while (!payload.at_end()) {
        const std::size_t length = sequence_length(payload.u8());
        if (length == 0 || length - 1 > payload.left())
            return false;
        for (std::size_t i = 1; i < length; ++i)
            if ((payload.u8() & 0xC0) != 0x80)
                return false;
    }
    return true;
}

struct plane_parts {
    std::optional<byte_cursor> drawing;
    std::optional<byte_cursor> plane;
    std::vector<std::string> texts;
    bool has_loops = false;
};

plane_parts parts_of(byte_cursor in) {
    plane_parts parts;
    for (const record& r : records(in)) {
        if (r.tag == tag::drawing_element)
            parts.drawing = r.payload;
        else if (r.tag == tag::face_loops)
            parts.has_loops = true;
        else if (r.payload.left() == plane_size && !parts.plane)
            parts.plane = r.payload;
        else if (parts.texts.size() < 2 && looks_like_text(r.payload))
            parts.texts.push_back(text_in(r.payload));
    }
    return parts;
}

sketchup::plane plane_in(byte_cursor payload) {
    const auto numbers = doubles_in<4>(payload);
    return {numbers[0], numbers[1], numbers[2], numbers[3]};
}

} // namespace

// unknown: the payloads of an entity list that no known tag claims. Those that hold section planes are lists of them;
// one that holds the id of such a plane tells which is active.
void model_data_reader::read_unknown_lists(const std::vector<byte_cursor>& unknown, sketchup::entity_list& list) {
    for (const byte_cursor& payload : unknown)
        if (looks_like_records(payload))
            for (const record& r : records(payload))
                if (looks_like_records(r.payload))
                    read_possible_section_plane(r.payload, list);
    for (const byte_cursor& payload : unknown) {
        if (payload.left() == 0 || payload.left() > sizeof(std::uint64_t))
            continue;
        const auto active = section_planes_.find(id_in(payload));
        if (active != section_planes_.end() && list.active_section_plane == sketchup::no_index)
            list.active_section_plane = active->second;
    }
}

// A drawing element with four numbers, which has no loops, and texts for its name and symbol.
void model_data_reader::read_possible_section_plane(byte_cursor in, sketchup::entity_list& list) {
    in.set_where("section plane");
    const plane_parts parts = parts_of(in);
    if (!parts.drawing || !parts.plane || parts.has_loops)
        return;
    sketchup::section_plane s;
    s.plane = plane_in(*parts.plane);
    if (!parts.texts.empty())
        s.name = parts.texts[0];
    if (parts.texts.size() > 1)
        s.symbol = parts.texts[1];
    keep_section_plane(*parts.drawing, std::move(s), list);
}

// 17500. Without a plane there is nothing that cuts.
void model_data_reader::read_section_plane(byte_cursor in, sketchup::entity_list& list) {
    in.set_where("section plane");
    sketchup::section_plane s;
    std::optional<byte_cursor> drawing, plane;
    for (const record& r : records(in)) {
        switch (r.tag) {
        case tag::drawing_element:
            drawing = r.payload;
            break;
        case tag::section_plane_plane:
            plane = r.payload;
            break;
        case tag::section_plane_name:
            s.name = text_in(r.payload);
            break;
        case tag::section_plane_symbol:
            s.symbol = text_in(r.payload);
            break;
        }
    }
    if (!drawing || !plane)
        return;
    s.plane = plane_in(*plane);
    keep_section_plane(*drawing, std::move(s), list);
}

// 5012
void model_data_reader::read_active_section_plane(byte_cursor id, sketchup::entity_list& list) {
    const auto active = section_planes_.find(id_in(id));
    if (active != section_planes_.end())
        list.active_section_plane = active->second;
}

void model_data_reader::keep_section_plane(byte_cursor drawing, sketchup::section_plane s,
                                           sketchup::entity_list& list) {
    const auto place = static_cast<index>(m_.section_planes.size());
    s.id = m_.give_id();
    read_drawing_element(drawing, s);
    if (s.persistent_id != 0)
        section_planes_.emplace(static_cast<std::uint64_t>(s.persistent_id), place);
    m_.section_planes.push_back(std::move(s));
    list.section_planes.push_back(place);
}

} // namespace skp::modern

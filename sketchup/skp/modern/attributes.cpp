// What every element begins with: its id, its attribute dictionaries, and the fields of drawing elements.

#include "sketchup/skp/modern/model_data.h"
#include "sketchup/skp/modern/model_data_reader.h"
#include "sketchup/skp/modern/tags.h"
#include "sketchup/skp/modern/typed_values.h"

#include <iterator>
#include <utility>

namespace skp::modern {
namespace {

enum flag : std::uint8_t {
    flag_hidden = 0x01,
    flag_casts_shadows = 0x02,
    flag_receives_shadows = 0x04,
    flag_soft = 0x08,
    flag_smooth = 0x10,
    flag_locked = 0x20,
};

std::vector<sketchup::attribute> read_entries(byte_cursor in) {
    std::vector<sketchup::attribute> entries;
    entries.reserve(count_of(in, tag::typed_value));
    std::optional<std::string> key;
    for (const record& r : records(in)) {
        if (r.tag == tag::dictionary_key) {
            key = text_in(r.payload);
        } else if (r.tag == tag::typed_value && key) {
            entries.push_back({std::move(*key), read_typed_value(r.payload)});
            key.reset();
        }
    }
    return entries;
}

} // namespace

// texture_mapping: where to put that of a face, which lies among its dictionaries; null for others.
void model_data_reader::read_entity(byte_cursor in, sketchup::entity& e, std::optional<byte_cursor>* texture_mapping) {
    for (const record& r : records(in)) {
        if (r.tag == tag::entity_id)
            e.persistent_id = static_cast<std::int64_t>(id_in(r.payload));
        else if (r.tag == tag::entity_attachments)
            e.dictionaries = read_attachments(r.payload, texture_mapping);
    }
}

model_data_reader::drawing_flags model_data_reader::read_drawing_element(byte_cursor in, sketchup::drawing_element& e,
                                                                         std::optional<byte_cursor>* texture_mapping) {
    std::uint8_t flags = flag_casts_shadows | flag_receives_shadows;
    for (const record& r : records(in)) {
        byte_cursor value = r.payload;
        switch (r.tag) {
        case tag::entity:
            read_entity(value, e, texture_mapping);
            break;
        case tag::drawing_material:
            e.material = materials_.find(id_in(value));
            break;
        case tag::drawing_layer: {
            const index layer = layers_.find(id_in(value));
            e.layer = layer == sketchup::no_index ? 0 : layer; // unknown: the default layer
            break;
        }
        case tag::drawing_flags:
            flags = value.u8();
            break;
        }
    }
    e.hidden = (flags & flag_hidden) != 0;
    e.casts_shadows = (flags & flag_casts_shadows) != 0;
    e.receives_shadows = (flags & flag_receives_shadows) != 0;
    return {(flags & flag_soft) != 0, (flags & flag_smooth) != 0, (flags & flag_locked) != 0};
}

sketchup::index_range model_data_reader::read_attachments(byte_cursor holder,
                                                          std::optional<byte_cursor>* texture_mapping) {
    std::vector<sketchup::attribute_dictionary> found;
    const std::optional<byte_cursor> list = descend(holder, {tag::attachments, tag::attachment_list});
    if (!list)
        return {};
    for (const record& r : records(*list)) {
        if (r.tag == tag::dictionary)
            found.push_back(read_dictionary(r.payload));
        else if (r.tag == tag::texture_mapping && texture_mapping != nullptr)
            *texture_mapping = r.payload;
    }
    return keep_dictionaries(found);
}

sketchup::attribute_dictionary model_data_reader::read_dictionary(byte_cursor in) {
    in.set_where("attribute dictionary");
    if (++dictionary_depth_ > deepest_containers)
        in.fail("dictionaries nest deeper than " + std::to_string(deepest_containers));
    sketchup::attribute_dictionary d;
    d.id = m_.give_id();
    for (const record& r : records(in)) {
        byte_cursor value = r.payload;
        if (r.tag == tag::dictionary_base) {
            if (const auto base = descend(value, {tag::entity}))
                read_entity(*base, d);
        } else if (r.tag == tag::dictionary_name) {
            d.name = text_in(value);
        } else if (r.tag == tag::dictionary_entries) {
            d.entries = read_entries(value);
        } else if (r.tag == tag::dictionary_read_only) {
            d.read_only = value.i32() != 0;
        }
    }
    --dictionary_depth_;
    return d;
}

// The dictionaries of one owner become neighbours in the model.
sketchup::index_range model_data_reader::keep_dictionaries(std::vector<sketchup::attribute_dictionary>& found) {
    if (found.empty())
        return {};
    const sketchup::index_range range{static_cast<index>(m_.dictionaries.size()), static_cast<index>(found.size())};
    m_.dictionaries.insert(m_.dictionaries.end(), std::make_move_iterator(found.begin()),
                           std::make_move_iterator(found.end()));
    return range;
}

} // namespace skp::modern

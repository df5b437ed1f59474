// Entities, attribute dictionaries and typed values in the archive container.

#include "sketchup/skp/writer/modern_bodies.h"
#include "sketchup/skp/writer/modern_tags.h"

#include <algorithm>
#include <string>
#include <vector>

namespace skp {

namespace tag = modern::tag;

using sketchup::attribute;
using sketchup::attribute_dictionary;
using sketchup::typed_value;
using sketchup::value_code;

namespace {

// In the order of the keys' bytes, in which the program looks them up.
void write_entries(record_sink& out, const std::vector<attribute>& entries) {
    std::vector<const attribute*> sorted;
    for (const attribute& entry : entries)
        sorted.push_back(&entry);
    std::ranges::stable_sort(sorted, {}, [](const attribute* a) -> const std::string& { return a->key; });
    for (const attribute* entry : sorted) {
        out.text(tag::dictionary_key, entry->key);
        write_typed_value(out, entry->value);
    }
}

void write_dictionary(modern_output& o, const attribute_dictionary& d) {
    record_sink& out = o.out;
    out.record(tag::dictionary, [&] {
        out.record(tag::dictionary_base, [&] {
            if (d.dictionaries.count > 0)
                write_entity(o, d, 0);
        });
        out.text(tag::dictionary_name, d.name);
        out.record(tag::dictionary_entries, [&] { write_entries(out, d.entries); });
        out.i32(tag::dictionary_read_only, d.read_only ? 1 : 0);
    });
}

void write_side_mapping(record_sink& out, const sketchup::side_mapping& side) {
    out.record(tag::side_mapping, [&] {
        out.i32(tag::side_mapping_use, (side.positioned ? 1 : 0) | (side.projected ? 2 : 0));
        out.doubles(tag::side_mapping_matrix, side.matrix);
        out.v3(tag::side_mapping_direction, side.direction);
        out.empty(tag::side_mapping_pins); // they follow from the matrix
    });
}

void write_texture_mapping(record_sink& out, const sketchup::texture_mapping& mapping) {
    out.record(tag::texture_mapping, [&] {
        out.empty(tag::dictionary_base);
        out.record(tag::texture_mapping_front, [&] { write_side_mapping(out, mapping.front); });
        out.record(tag::texture_mapping_back, [&] { write_side_mapping(out, mapping.back); });
    });
}

// Sets a text of the dictionary, or adds it.
void set_text(attribute_dictionary& d, const char* key, const std::string& value) {
    const typed_value text{value_code::string, value};
    const auto found = std::ranges::find(d.entries, key, &attribute::key);
    if (found != d.entries.end())
        found->value = text;
    else
        d.entries.push_back({key, text});
}

} // namespace

void write_value(record_sink& out, std::uint16_t number, const typed_value& value) {
    const auto integer = [&value] { return std::get<std::int64_t>(value.data); };
    switch (value.code) {
    case value_code::byte:
        out.u8(number, static_cast<std::uint8_t>(integer()));
        break;
    case value_code::int16:
        out.u16(number, static_cast<std::uint16_t>(integer()));
        break;
    case value_code::int32:
    case value_code::time:
        out.u32(number, static_cast<std::uint32_t>(integer()));
        break;
    case value_code::float32:
        out.f32(number, static_cast<float>(std::get<double>(value.data)));
        break;
    case value_code::boolean:
        out.boolean(number, std::get<bool>(value.data));
        break;
    case value_code::color:
        out.rgba(number, std::get<sketchup::rgba>(value.data));
        break;
    case value_code::string:
        out.text(number, std::get<std::string>(value.data));
        break;
    case value_code::array:
        out.record(number, [&] {
            for (const typed_value& element : std::get<std::vector<typed_value>>(value.data))
                write_typed_value(out, element);
        });
        break;
    case value_code::point:
    case value_code::vector:
    case value_code::unit_vector:
        out.v3(number, std::get<sketchup::vec3>(value.data));
        break;
    case value_code::transformation:
        out.doubles(number, std::get<std::array<double, 13>>(value.data));
        break;
    default: // float64, length and the other measures
        out.f64(number, std::get<double>(value.data));
    }
}

void write_typed_value(record_sink& out, const typed_value& value) {
    const auto of_type = static_cast<std::uint16_t>(tag::typed_value + static_cast<int>(value.code) - 1);
    out.record(tag::typed_value, [&] {
        if (value.code != value_code::nil)
            write_value(out, of_type, value);
    });
}

void write_entity(modern_output& o, const sketchup::entity& e, std::uint64_t id,
                  const sketchup::texture_mapping* mapping) {
    o.out.record(tag::entity, [&] {
        if (id != 0)
            o.out.id(tag::entity_id, id);
        if (e.dictionaries.count > 0 || mapping != nullptr)
            o.out.record(tag::entity_attachments, [&] { write_attachments(o, e.dictionaries, mapping); });
    });
}

void write_attachments(modern_output& o, sketchup::index_range dictionaries, const sketchup::texture_mapping* mapping) {
    o.out.record(tag::attachments, [&] {
        o.out.record(tag::attachment_list, [&] {
            if (mapping != nullptr)
                write_texture_mapping(o.out, *mapping);
            for (sketchup::index i = 0; i < dictionaries.count; ++i)
                write_dictionary(o, o.model.dictionaries[dictionaries.first + i]);
        });
    });
}

// The description of the model is an entry of the file's own dictionary here, which always exists.
void write_properties(modern_output& o) {
    constexpr std::string_view properties_name = "ModelProperties";
    std::vector<attribute_dictionary> own;
    for (sketchup::index i = 0; i < o.model.properties.count; ++i)
        own.push_back(o.model.dictionaries[o.model.properties.first + i]);
    auto properties = std::ranges::find(own, properties_name, &attribute_dictionary::name);
    if (properties == own.end()) {
        attribute_dictionary made;
        made.name = properties_name;
        set_text(made, "Description", {});
        for (const char* key : {"IsClassified", "IsDynamic"})
            made.entries.push_back({key, {value_code::boolean, false}});
        properties = own.insert(own.end(), std::move(made));
    }
    if (!o.model.description.empty())
        set_text(*properties, "Description", o.model.description);
    o.out.record(tag::attachments, [&] {
        o.out.record(tag::attachment_list, [&] {
            for (const attribute_dictionary& d : own)
                write_dictionary(o, d);
        });
    });
}

} // namespace skp

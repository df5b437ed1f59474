// Entities, attribute dictionaries and typed values in the classic container.

#include "sketchup/skp/writer/classic_bodies.h"

#include <algorithm>
#include <span>

namespace skp {

using sketchup::index_range;
using sketchup::typed_value;
using sketchup::value_code;

namespace {

void write_dictionary(classic_output& c, const sketchup::attribute_dictionary& dictionary) {
    object_archive& out = c.out;
    write_entity(c, dictionary);
    out.u32(0);
    out.str(dictionary.name);
    for (const sketchup::attribute& entry : dictionary.entries) {
        if (entry.key.empty()) // would end the list
            continue;
        out.str(entry.key);
        write_typed_value(c, entry.value);
    }
    out.str({});
    if (out.number("CAttributeNamed") >= 1)
        out.u32(dictionary.read_only ? 1 : 0);
}

void write_mapping(classic_output& c, const sketchup::texture_mapping& mapping) {
    object_archive& out = c.out;
    write_plain_entity(c);
    out.u32(0);
    for (const sketchup::side_mapping* side : {&mapping.front, &mapping.back}) {
        for (const double number : side->matrix)
            out.f64(number);
        out.v3(side->direction);
    }
    out.u32(0); // pins of the front, which follow from the matrix
    out.u32(0); // pins of the back
    for (const sketchup::side_mapping* side : {&mapping.front, &mapping.back})
        out.u32((side->positioned ? 1U : 0U) | (side->projected ? 2U : 0U));
}

void write_container(classic_output& c, index_range dictionaries, const sketchup::texture_mapping* mapping) {
    object_archive& out = c.out;
    write_plain_entity(c);
    if (mapping != nullptr)
        out.object("CFaceTextureCoords", [&] { write_mapping(c, *mapping); });
    for (sketchup::index i = 0; i < dictionaries.count; ++i) {
        const auto& dictionary = c.model.dictionaries[dictionaries.first + i];
        out.object("CAttributeNamed", [&] { write_dictionary(c, dictionary); });
    }
    out.null();
}

// A mask of the bytes that are not zero, then those bytes, the lowest first.
void write_persistent_id(classic_output& c, std::int64_t id) {
    object_archive& out = c.out;
    if (out.number("CEntity") < 5)
        return;
    const auto bits = static_cast<std::uint64_t>(id);
    std::uint8_t mask = 0;
    for (unsigned i = 0; i < 8; ++i)
        if (((bits >> (8 * i)) & 0xFFU) != 0)
            mask = static_cast<std::uint8_t>(mask | (1U << i));
    out.u8(mask);
    for (unsigned i = 0; i < 8; ++i)
        if ((mask & (1U << i)) != 0)
            out.u8(static_cast<std::uint8_t>(bits >> (8 * i)));
}

// Whether files always give an id to what is of that kind. The others have one only if the model does.
bool is_always_numbered(sketchup::entity_kind kind, const object_archive& out) {
    using enum sketchup::entity_kind;
    constexpr int first_with_numbered_definitions = 29; // layout of CSketchUpModel, as far as samples tell
    switch (kind) {
    case component_definition:
        return out.number("CSketchUpModel") >= first_with_numbered_definitions;
    case vertex:
    case edge:
    case face:
    case curve:
    case group:
    case component_instance:
    case image:
    case section_plane:
    case annotation:
    case scene:
        return true;
    default:
        return false;
    }
}

// What the files of a version always say in "ModelProperties".
struct file_property {
    const char* key;
    value_code code;
    int from; // layout of CSketchUpModel
};
constexpr file_property file_properties[] = {
    {"Description", value_code::string, 29},
    {"IsClassified", value_code::boolean, 24},
    {"IsDynamic", value_code::boolean, 21},
    {"Name", value_code::string, 29},
};
constexpr std::string_view name_of_properties = "ModelProperties";

typed_value no_value(value_code code) {
    return code == value_code::boolean ? typed_value{code, false} : typed_value{code, std::string()};
}

// The model's own dictionary with what it lacks; null: a new one with all that a file says.
sketchup::attribute_dictionary completed(const sketchup::attribute_dictionary* own, int layout) {
    sketchup::attribute_dictionary made = own == nullptr ? sketchup::attribute_dictionary() : *own;
    made.name = name_of_properties;
    for (const file_property& one : file_properties)
        if ((own == nullptr || layout >= one.from) &&
            std::ranges::find(made.entries, one.key, &sketchup::attribute::key) == made.entries.end())
            made.entries.push_back({one.key, no_value(one.code)});
    return made;
}

} // namespace

// The file's own dictionaries: a container that hangs on nothing else. "ModelProperties" is always among them.
void write_properties(classic_output& c) {
    object_archive& out = c.out;
    const int layout = out.number("CSketchUpModel");
    const std::span<const sketchup::attribute_dictionary> own =
        std::span(c.model.dictionaries).subspan(c.model.properties.first, c.model.properties.count);
    out.object("CAttributeContainer", [&] {
        write_plain_entity(c);
        bool is_there = false;
        for (const sketchup::attribute_dictionary& one : own) {
            const bool is_that = one.name == name_of_properties;
            is_there = is_there || is_that;
            out.object("CAttributeNamed", [&] { write_dictionary(c, is_that ? completed(&one, layout) : one); });
        }
        if (!is_there)
            out.object("CAttributeNamed", [&] { write_dictionary(c, completed(nullptr, layout)); });
        out.null();
    });
}

void mention_container(classic_output& c, const sketchup::entity& e, const sketchup::texture_mapping* mapping) {
    if (e.dictionaries.count > 0 || mapping != nullptr)
        c.out.object("CAttributeContainer", [&] { write_container(c, e.dictionaries, mapping); });
    else
        c.out.null();
}

void write_entity(classic_output& c, const sketchup::entity& e, const sketchup::texture_mapping* mapping) {
    mention_container(c, e, mapping);
    const bool is_given = e.persistent_id == 0 && is_always_numbered(e.kind, c.out);
    write_persistent_id(c, is_given ? static_cast<std::int64_t>(c.next_id++) : e.persistent_id);
}

void write_plain_entity(classic_output& c) {
    c.out.null();
    write_persistent_id(c, 0);
}

void write_typed_value(classic_output& c, const typed_value& value) {
    object_archive& out = c.out;
    out.u8(static_cast<std::uint8_t>(value.code));
    switch (value.code) {
    case value_code::nil:
        break;
    case value_code::byte:
        out.u8(static_cast<std::uint8_t>(std::get<std::int64_t>(value.data)));
        break;
    case value_code::int16:
        out.u16(static_cast<std::uint16_t>(std::get<std::int64_t>(value.data)));
        break;
    case value_code::int32:
    case value_code::time:
        out.u32(static_cast<std::uint32_t>(std::get<std::int64_t>(value.data)));
        break;
    case value_code::float32:
        out.f32(static_cast<float>(std::get<double>(value.data)));
        break;
    case value_code::boolean:
        out.boolean(std::get<bool>(value.data));
        break;
    case value_code::color:
        out.rgba(std::get<sketchup::rgba>(value.data));
        break;
    case value_code::string:
        out.str(std::get<std::string>(value.data));
        break;
    case value_code::array: {
        const auto& elements = std::get<std::vector<typed_value>>(value.data);
        out.size(elements.size());
        for (const typed_value& element : elements)
            write_typed_value(c, element);
        break;
    }
    case value_code::point:
    case value_code::vector:
    case value_code::unit_vector:
        out.v3(std::get<sketchup::vec3>(value.data));
        break;
    case value_code::transformation:
        for (const double number : std::get<std::array<double, 13>>(value.data))
            out.f64(number);
        break;
    default: // float64, length and the other measures
        out.f64(std::get<double>(value.data));
    }
}

} // namespace skp

// What every body begins with: attribute containers with their dictionaries, persistent ids, the drawing fields.

#include "sketchup/skp/classic/model_reader.h"
#include "sketchup/skp/classic/typed_values.h"

#include <array>
#include <bit>
#include <iterator>
#include <utility>

namespace skp {
namespace {

std::array<double, 9> read_matrix(archive& in) {
    std::array<double, 9> m{};
    for (double& n : m)
        n = in.f64();
    return m;
}

void skip_pins(archive& in) {
    constexpr std::size_t pin_size = 4 * sizeof(double);
    in.skip(in.count(pin_size) * pin_size);
}

void set_use(sketchup::side_mapping& side, std::uint32_t flags) {
    side.positioned = (flags & 1) != 0;
    side.projected = (flags & 2) != 0;
}

} // namespace

// CEntity. Gives the texture mapping that stood among the attributes, which only a face may keep.
model_reader::index model_reader::read_entity(sketchup::entity& e) {
    index texture_mapping = sketchup::no_index;
    if (layout_.entity == 1)
        skip_numbers(1);
    if (layout_.entity >= 3) {
        const container attributes = container_ref();
        e.dictionaries = attributes.dictionaries;
        texture_mapping = attributes.texture_mapping;
    }
    e.persistent_id = read_persistent_id();
    return texture_mapping;
}

void model_reader::skip_entity() {
    sketchup::entity unused(sketchup::entity_kind::model);
    read_entity(unused);
}

// Zero bytes of an id are left out; a mask tells which are there.
std::int64_t model_reader::read_persistent_id() {
    if (layout_.entity < 4)
        return 0;
    if (layout_.entity == 4)
        return static_cast<std::int64_t>(in_.u64());
    const std::uint8_t mask = in_.u8();
    const std::span<const std::uint8_t> stored = in_.bytes(static_cast<std::size_t>(std::popcount(mask)));
    std::uint64_t id = 0;
    unsigned places = mask;
    for (const std::uint8_t byte : stored) {
        id |= static_cast<std::uint64_t>(byte) << (8 * std::countr_zero(places));
        places &= places - 1; // without the lowest
    }
    return static_cast<std::int64_t>(id);
}

// CDrawingElement
model_reader::drawing_fields model_reader::read_drawing(sketchup::drawing_element& e) {
    const int d = layout_.drawing_element;
    drawing_fields fields;
    fields.texture_mapping = read_entity(e);
    e.material = ref(object_class::material).place;
    e.hidden = d >= 1 && in_.boolean();
    if (d >= 6) {
        e.casts_shadows = in_.boolean();
        e.receives_shadows = in_.boolean();
    }
    fields.soft = d >= 7 && in_.boolean();
    fields.smooth = d >= 8 && in_.boolean();
    fields.locked = d >= 9 && in_.boolean();
    if (d == 2 && in_.boolean())
        ref(listed_classes);
    if (d >= 4) {
        const index layer = ref(object_class::layer).place;
        e.layer = layer == sketchup::no_index ? 0 : layer; // none: the default layer
    }
    return fields;
}

model_reader::container model_reader::container_ref() {
    const object found = ref(object_class::attribute_container);
    if (found.is_null())
        return {};
    if (!containers_[found.place].complete)
        in_.fail("an attribute container holds itself");
    return containers_[found.place];
}

// CAttributeContainer. The dictionaries of one container become neighbours in the model, so they wait until those that
// are nested in them are there.
void model_reader::read_attribute_container(std::uint32_t slot) {
    const auto place = static_cast<index>(containers_.size());
    containers_.emplace_back();
    in_.set_place(slot, place);
    const std::size_t first_open = open_dictionaries_.size();
    container result;
    skip_entity();
    for (;;) {
        const object element = ref({object_class::attribute_named, object_class::face_texture_coords});
        if (element.is_null())
            break;
        if (element.what == object_class::face_texture_coords)
            result.texture_mapping = element.place;
    }
    result.dictionaries = {static_cast<index>(m_.dictionaries.size()),
                           static_cast<index>(open_dictionaries_.size() - first_open)};
    const auto first = open_dictionaries_.begin() + static_cast<std::ptrdiff_t>(first_open);
    m_.dictionaries.insert(m_.dictionaries.end(), std::make_move_iterator(first),
                           std::make_move_iterator(open_dictionaries_.end()));
    open_dictionaries_.erase(first, open_dictionaries_.end());
    result.complete = true;
    containers_[place] = result;
}

// CAttributeNamed
void model_reader::read_attribute_named(std::uint32_t) {
    sketchup::attribute_dictionary d;
    if (!in_properties_)
        d.id = m_.give_id();
    read_entity(d); // its attributes are the dictionaries nested in this one
    skip_numbers(1);
    d.name = in_.text();
    d.entries = read_entries();
    d.read_only = layout_.attribute_named >= 1 && in_.u32() != 0;
    open_dictionaries_.push_back(std::move(d));
}

// Keys with their values; an empty key ends them.
std::vector<sketchup::attribute> model_reader::read_entries() {
    std::vector<sketchup::attribute> entries;
    for (;;) {
        std::string key = in_.text();
        if (key.empty())
            return entries;
        sketchup::typed_value value = read_typed_value(in_);
        entries.push_back({std::move(key), std::move(value)});
    }
}

// CFaceTextureCoords
void model_reader::read_face_texture_coords(std::uint32_t slot) {
    const int number = layout_.face_texture_coords;
    sketchup::texture_mapping mapping;
    skip_entity();
    skip_numbers(1);
    mapping.front.matrix = read_matrix(in_);
    if (number >= 1)
        mapping.front.direction = in_.v3();
    if (number >= 2) {
        mapping.back.matrix = read_matrix(in_);
        mapping.back.direction = in_.v3();
    }
    if (number >= 3) {
        skip_pins(in_);
        skip_pins(in_);
    }
    if (number >= 4) {
        set_use(mapping.front, in_.u32());
        set_use(mapping.back, in_.u32());
    }
    in_.set_place(slot, static_cast<index>(m_.texture_mappings.size()));
    m_.texture_mappings.push_back(mapping);
}

} // namespace skp

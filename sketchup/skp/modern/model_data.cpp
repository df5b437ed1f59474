#include "sketchup/skp/modern/model_data.h"

#include "sketchup/skp/modern/model_data_reader.h"
#include "sketchup/skp/modern/tags.h"

#include <utility>

namespace skp::modern {
namespace {

constexpr std::initializer_list<std::uint16_t> id_of_definition = {tag::entities, tag::drawing_element, tag::entity,
                                                                   tag::entity_id};

std::string entry_text(const sketchup::attribute_dictionary& d, const char* key) {
    for (const sketchup::attribute& a : d.entries)
        if (a.key == key && a.value.code == sketchup::value_code::string)
            return std::get<std::string>(a.value.data);
    return {};
}

// The record that the whole document is.
byte_cursor model_record(byte_cursor document) {
    const std::optional<byte_cursor> model = descend(document, {tag::model});
    if (!model)
        document.fail("no model");
    return *model;
}

} // namespace

// In the order of the file, so that ids follow it; elements may name definitions that come later. A part that is not
// there is read as an empty one.
void model_data_reader::read(byte_cursor document) {
    const byte_cursor model = model_record(document);
    const auto part = [&model](std::initializer_list<std::uint16_t> path) {
        return descend(model, path).value_or(byte_cursor({}));
    };
    m_.id = m_.give_id();
    m_.properties = read_attachments(part({tag::model_properties}));
    if (m_.properties.count > 0)
        m_.description = entry_text(m_.dictionaries[m_.properties.first], "Description");
    m_.camera = read_camera(part({tag::model_camera, tag::camera}));
    m_.rendering_options = read_rendering_options(part({tag::model_rendering_options, tag::rendering_options}));
    m_.shadow_info = read_shadow_info(part({tag::model_shadow_info, tag::shadow_info}));
    const byte_cursor layers = part({tag::model_layers, tag::layer_manager});
    const byte_cursor layer_list = descend(layers, {tag::layer_list}).value_or(byte_cursor({}));
    const byte_cursor materials = part({tag::model_materials, tag::material_manager, tag::material_list});
    materials_.reset(count_of(materials, tag::material) + count_of(layer_list, tag::layer));
    read_materials(materials);
    read_layers(layer_list);
    if (const auto root_folder = descend(layers, {tag::layer_root_folder, tag::layer_folder}))
        read_folder(*root_folder, sketchup::no_index, 0);
    read_content(part({tag::model_definitions, tag::definition_manager, tag::definition_list}),
                 part({tag::model_content, tag::entities}));
    read_scenes(part({tag::model_scenes, tag::scene_manager}));
}

// The definitions and the model's own elements.
void model_data_reader::read_content(byte_cursor definition_list, byte_cursor root) {
    const std::vector<byte_cursor> definitions = index_definitions(definition_list);
    reserve_elements(definitions, root);
    for (std::size_t i = 0; i < definitions.size(); ++i)
        read_definition(definitions[i], m_.definitions[i]);
    sketchup::drawing_element unused(sketchup::entity_kind::entities);
    read_entities(root, unused, m_.root);
}

// Puts every definition with an id into the model, still empty. Gives the payloads, in the same order.
std::vector<byte_cursor> model_data_reader::index_definitions(byte_cursor list) {
    std::vector<byte_cursor> definitions;
    definitions_.reset(count_of(list, tag::definition));
    for (const record& r : records(list)) {
        if (r.tag != tag::definition)
            continue;
        const std::optional<byte_cursor> id = descend(r.payload, id_of_definition);
        if (!id)
            continue;
        definitions_.insert(id_in(*id), static_cast<index>(definitions.size()));
        definitions.push_back(r.payload);
    }
    m_.definitions.resize(definitions.size());
    return definitions;
}

// The arrays get their size at once: growing list by list would copy them again and again.
void model_data_reader::reserve_elements(const std::vector<byte_cursor>& definitions, byte_cursor root) {
    list_counts counts{};
    for (const byte_cursor& definition : definitions)
        if (const auto content = descend(definition, {tag::entities}))
            add_counts(*content, counts);
    add_counts(root, counts);
    m_.vertices.reserve(counts[vertices]);
    m_.curves.reserve(counts[curves] + counts[arcs]);
    m_.edges.reserve(counts[edges]);
    m_.faces.reserve(counts[faces]);
    m_.placements.reserve(counts[instances] + counts[groups] + counts[images]);
    m_.annotations.reserve(counts[guide_lines] + counts[guide_points] + counts[texts] + counts[dimensions]);
}

void read_model_data(std::span<const std::uint8_t> data, std::shared_ptr<entry_source> beside, sketchup::model& m) {
    byte_cursor document(data);
    document.set_where("model.dat");
    model_data_reader(std::move(beside), m).read(document);
}

} // namespace skp::modern

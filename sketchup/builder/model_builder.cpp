// What belongs to the model as a whole while it is being built: definitions, layers, materials, scenes, attributes.

#include "sketchup/builder/model_builder.h"

#include "sketchup/model/picture_format.h"

#include <array>
#include <stdexcept>

namespace sketchup {

namespace {

constexpr std::string_view material_prefix = "Layer_"; // the program names a layer's private material so

} // namespace

model_builder::model_builder() : model_(std::make_unique<sketchup::model>()) {
    model_->camera.eye = {100, -100, 100};
    layer("Layer0");
}

list_builder model_builder::component(std::string_view name) {
    return {*this, add_definition(name, definition_kind::component)};
}

index model_builder::image_definition(std::vector<std::uint8_t> picture_file, std::string_view file_name,
                                      double pixels_wide, double pixels_high) {
    const index made =
        add_definition("Image#" + std::to_string(model_->definitions.size() + 1), definition_kind::image);
    sketchup::material painted;
    painted.name = file_name;
    painted.type = material_type::textured;
    painted.is_private = true;
    painted.texture = add_texture(add_picture(std::move(picture_file), file_name), file_name, pixels_wide, pixels_high);
    const index material_at = add(model_->materials, std::move(painted));
    list_builder content(*this, made);
    const entity_place rectangle =
        content.face({{0, 0, 0}, {pixels_wide, 0, 0}, {pixels_wide, pixels_high, 0}, {0, pixels_high, 0}});
    face(rectangle).material = material_at;
    face(rectangle).back_material = material_at;
    return made;
}

index model_builder::layer(std::string_view name, bool visible, rgba color) {
    sketchup::material shown;
    shown.name = std::string(material_prefix) + std::string(name);
    shown.color = color;
    shown.is_private = true;
    sketchup::layer made;
    made.name = name;
    made.hidden = !visible;
    made.material = add(model_->materials, std::move(shown));
    return add(model_->layers, std::move(made));
}

index model_builder::layer_folder(std::string_view name, index parent, bool visible) {
    sketchup::layer_folder made;
    made.name = name;
    made.parent = parent;
    made.hidden = !visible;
    model_->layer_folders.push_back(std::move(made));
    return static_cast<index>(model_->layer_folders.size() - 1);
}

index model_builder::material(std::string_view name, rgba color, double opacity) {
    sketchup::material made;
    made.name = name;
    made.color = color;
    made.transparency = 1 - opacity;
    made.use_transparency = opacity < 1;
    const index at = add(model_->materials, std::move(made));
    model_->listed_materials.push_back(at);
    return at;
}

index model_builder::textured_material(std::string_view name, std::vector<std::uint8_t> picture_file,
                                       std::string_view file_name, double tile_width, double tile_height) {
    const index at = material(name, {128, 128, 128, 0});
    const index picture_at = add_picture(std::move(picture_file), file_name);
    model_->materials[at].texture = add_texture(picture_at, file_name, tile_width, tile_height);
    model_->materials[at].type = material_type::textured;
    return at;
}

index model_builder::scene(std::string_view name, bool active) {
    sketchup::scene made;
    made.name = name;
    const index at = add(model_->scenes, std::move(made));
    if (active)
        model_->active_scene = at;
    return at;
}

camera& model_builder::scene_camera(index scene) {
    index& at = model_->scenes[scene].camera;
    if (at == no_index)
        at = add(model_->cameras, camera());
    return model_->cameras[at];
}

entity_place model_builder::dictionary(entity_place owner, std::string_view name) {
    std::vector<index>& of_owner = dictionaries_of_[owner];
    for (const index one : of_owner)
        if (dictionaries_[one].name == name)
            return {entity_kind::attribute_dictionary, one};
    attribute_dictionary made;
    made.name = name;
    of_owner.push_back(add(dictionaries_, std::move(made)));
    return {entity_kind::attribute_dictionary, of_owner.back()};
}

void model_builder::attribute(entity_place owner, std::string_view dictionary_name, std::string_view key,
                              typed_value value) {
    const entity_place where = dictionary(owner, dictionary_name);
    dictionaries_[where.at].entries.push_back({std::string(key), std::move(value)});
}

void model_builder::set_option(std::string_view name, typed_value value) {
    std::vector<sketchup::attribute>& values = model_->rendering_options.values;
    for (sketchup::attribute& one : values)
        if (one.key == name) {
            one.value = std::move(value);
            return;
        }
    values.push_back({std::string(name), std::move(value)});
}

texture_mapping& model_builder::mapping(entity_place where) {
    index& at = face(where).texture_mapping;
    if (at == no_index) {
        at = static_cast<index>(model_->texture_mappings.size());
        model_->texture_mappings.emplace_back();
    }
    return model_->texture_mappings[at];
}

entity_list& model_builder::list_of(index definition) {
    return definition == no_index ? model_->root : model_->definitions[definition].entities;
}

entity& model_builder::entity_at(entity_place where) {
    switch (where.kind) {
    case entity_kind::entities:
        return where.at == no_index ? static_cast<entity&>(model_->root) : model_->definitions[where.at];
    case entity_kind::component_definition:
        return model_->definitions[where.at];
    case entity_kind::layer:
        return model_->layers[where.at];
    case entity_kind::material:
        return model_->materials[where.at];
    case entity_kind::texture:
        return model_->textures[where.at];
    case entity_kind::vertex:
        return model_->vertices[where.at];
    case entity_kind::curve:
        return model_->curves[where.at];
    case entity_kind::scene:
        return model_->scenes[where.at];
    case entity_kind::rendering_options:
        return model_->rendering_options;
    case entity_kind::shadow_info:
        return model_->shadow_info;
    default:
        return element(where);
    }
}

drawing_element& model_builder::element(entity_place where) {
    switch (where.kind) {
    case entity_kind::face:
        return model_->faces[where.at];
    case entity_kind::edge:
        return model_->edges[where.at];
    case entity_kind::section_plane:
        return model_->section_planes[where.at];
    case entity_kind::annotation:
        return model_->annotations[where.at];
    case entity_kind::group:
    case entity_kind::component_instance:
    case entity_kind::image:
        return model_->placements[where.at];
    default:
        throw std::invalid_argument("a place that is no drawing element");
    }
}

index model_builder::add_definition(std::string_view name, definition_kind kind) {
    component_definition made;
    made.what = kind;
    made.name = name;
    return add(model_->definitions, std::move(made));
}

index model_builder::add_picture(std::vector<std::uint8_t> picture_file, std::string_view file_name) {
    picture made;
    made.name = file_name;
    made.format = picture_format(picture_file);
    made.load = [bytes = std::make_shared<const std::vector<std::uint8_t>>(std::move(picture_file))] { return *bytes; };
    model_->pictures.push_back(std::move(made));
    return static_cast<index>(model_->pictures.size() - 1);
}

index model_builder::add_texture(index picture, std::string_view file_name, double tile_width, double tile_height) {
    texture made;
    made.picture = picture;
    made.file_name = file_name;
    made.width = tile_width;
    made.height = tile_height;
    return add(model_->textures, std::move(made));
}

// The dictionaries of one owner become neighbours in the model. Those nested in a dictionary find it where it went.
void model_builder::place_dictionaries() {
    std::vector<index> place(dictionaries_.size());
    std::map<entity_place, index_range> ranges;
    for (const auto& [owner, of_owner] : dictionaries_of_) {
        ranges[owner] = {static_cast<index>(model_->dictionaries.size()), static_cast<index>(of_owner.size())};
        for (const index one : of_owner) {
            place[one] = static_cast<index>(model_->dictionaries.size());
            model_->dictionaries.push_back(std::move(dictionaries_[one]));
        }
    }
    for (const auto& [owner, range] : ranges) {
        if (owner.kind == entity_kind::model)
            model_->properties = range;
        else if (owner.kind == entity_kind::attribute_dictionary)
            model_->dictionaries[place[owner.at]].dictionaries = range;
        else
            entity_at(owner).dictionaries = range;
    }
    for (component_definition& d : model_->definitions)
        d.entities.dictionaries = d.dictionaries;
}

std::unique_ptr<sketchup::model> model_builder::finish() {
    place_dictionaries();
    dictionaries_.clear();
    dictionaries_of_.clear();
    vertices_.clear();
    edges_.clear();
    return std::move(model_);
}

} // namespace sketchup

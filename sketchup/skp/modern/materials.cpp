// Materials: their records, the documents that describe them, and the pictures of their textures.

#include "sketchup/skp/modern/model_data_reader.h"
#include "sketchup/skp/modern/tags.h"
#include "sketchup/skp/text_encoding.h"

#include <string_view>
#include <utility>

namespace skp::modern {
namespace {

std::string folder_path(const std::string& folder) {
    return "materials/" + folder + "/";
}

} // namespace

// 12501
void model_data_reader::read_materials(byte_cursor list) {
    for (const record& r : records(list)) {
        if (r.tag != tag::material)
            continue;
        const index place = read_material(r.payload);
        if (place != sketchup::no_index && !m_.materials[place].is_private)
            m_.listed_materials.push_back(place);
    }
}

// 13000. One without an id, which nothing can be painted with, is left out.
model_data_reader::index model_data_reader::read_material(byte_cursor in) {
    in.set_where("material");
    std::optional<byte_cursor> base;
    std::string folder;
    sketchup::material material;
    for (const record& r : records(in)) {
        byte_cursor value = r.payload;
        if (r.tag == tag::entity)
            base = value;
        else if (r.tag == tag::material_folder)
            folder = bytes_in(value);
        else if (r.tag == tag::material_private)
            material.is_private = value.boolean();
    }
    if (!base)
        return sketchup::no_index;
    material.id = m_.give_id();
    read_entity(*base, material);
    material.name = well_formed_utf8(folder);
    take_document(folder, material);
    const auto place = static_cast<index>(m_.materials.size());
    materials_.insert(static_cast<std::uint64_t>(material.persistent_id), place);
    m_.materials.push_back(std::move(material));
    return place;
}

// A folder belongs to one material. Where a second one names it, it is not read again: a short record could else make
// us unpack a long document any number of times.
void model_data_reader::take_document(const std::string& folder, sketchup::material& material) {
    const std::string name = folder_path(folder) + "material.xml";
    if (!beside_->has(name) || !used_folders_.insert(folder).second)
        return;
    material_document document = read_material_document(beside_->read(name), name);
    material.name = std::move(document.name);
    material.color = document.color;
    material.type = document.type;
    material.colorize_type = document.colorize_type;
    material.transparency = document.transparency;
    material.use_transparency = document.use_transparency;
    for (sketchup::attribute_dictionary& d : document.dictionaries)
        d.id = m_.give_id();
    if (!document.dictionaries.empty())
        material.dictionaries = keep_dictionaries(document.dictionaries);
    if (document.texture)
        material.texture = read_texture(*document.texture, folder);
}

model_data_reader::index model_data_reader::read_texture(const texture_fields& fields, const std::string& folder) {
    const auto place = static_cast<index>(m_.textures.size());
    sketchup::texture& t = m_.textures.emplace_back();
    t.id = m_.give_id();
    t.file_name = fields.file_name;
    t.width = fields.width;
    t.height = fields.height;
    t.average_color = fields.average_color;
    t.picture = picture_of(folder, fields.picture_path);
    return place;
}

// Copies and recoloured copies of a material name the picture of the first one by its path from the root.
model_data_reader::index model_data_reader::picture_of(const std::string& folder, const std::string& path) {
    constexpr std::string_view here = "./";
    const std::string rest = path.starts_with(here) ? path.substr(here.size()) : path;
    std::string name = folder_path(folder) + rest;
    if (!beside_->has(name))
        name = rest;
    if (rest.empty() || !beside_->has(name))
        return sketchup::no_index;
    const auto [known, is_new] = pictures_.emplace(name, static_cast<index>(m_.pictures.size()));
    if (is_new) {
        sketchup::picture& picture = m_.pictures.emplace_back();
        picture.name = name;
        picture.load = [beside = beside_, name] { return beside->read(name); };
    }
    return known->second;
}

} // namespace skp::modern

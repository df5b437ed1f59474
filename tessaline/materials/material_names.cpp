// How the names of a material's files are made from its name and from what tells it apart.

#include "tessaline/materials/material_names.h"

#include "qlw/replace_all.h"
#include "qlw/text_format.h"
#include "tessaline/materials/name_escaping.h"
#include "tessaline/model/model_text.h"

#include <cstddef>

namespace {

constexpr std::string_view material_ending = ".OrnMaterial";
constexpr std::string_view object_ending = ".qlobj";
constexpr std::string_view escaped_colon = "%3a"; // a colon cannot stand in a file name
constexpr std::size_t longest_name = 512;         // UTF-16 units

// Cuts UTF-8 to as many UTF-16 units, at a whole letter.
void cut_to_units(std::string& text, std::size_t units) {
    constexpr unsigned continues = 0x80; // 10xxxxxx
    constexpr unsigned first_of_four = 0xf0;
    for (std::size_t at = 0; at != text.size(); ++at) {
        const auto byte = static_cast<unsigned char>(text[at]);
        if ((byte & 0xc0U) == continues)
            continue;
        const std::size_t taken = byte >= first_of_four ? 2 : 1;
        if (taken > units) {
            text.resize(at);
            return;
        }
        units -= taken;
    }
}

std::string numbered(std::string_view prefix, std::int32_t number, std::string_view base) {
    return format_text("%s%s%04d_%s", prefix, escaped_colon, number, base).value_or(std::string());
}

std::string_view prefix_of(const material_key& key) {
    if (!key.is_face)
        return "IMG";
    return key.is_textured ? "TEX" : "COL";
}

std::int32_t number_of(const material_key& key) {
    const bool goes_by_texture = !key.is_face || (key.is_textured && !key.is_scattered);
    return goes_by_texture && key.texture_id != -1 ? key.texture_id : key.material_id;
}

// Where colours go by layer: the plain name, but for objects with a reflection of their own.
void name_by_layer(material_file_names& names, const material_key& key) {
    names.number = key.material_id;
    if (key.layer_reflection) {
        names.base = format_text("%s_ref%02d%s", names.encoded_name, *key.layer_reflection, material_ending)
                         .value_or(std::string());
        names.file = numbered("COL", key.material_id, names.base);
    } else {
        names.file = names.base;
    }
}

} // namespace

std::string get_material_name(SUMaterialRef material) {
    std::string name = name_by(SUMaterialGetName, material);
    cut_to_units(name, longest_name);
    return url_decode_name(url_encode_name(name));
}

std::string working_name_of(std::string_view name) {
    std::string working(name);
    replace_all(working, "*", "Material");
    return working;
}

material_file_names file_names_of(const material_key& key) {
    material_file_names names;
    names.encoded_name = url_encode_name(key.working_name);
    names.base = names.encoded_name + std::string(material_ending);
    if (key.by_layer) {
        name_by_layer(names, key);
    } else {
        names.number = number_of(key);
        names.file = numbered(prefix_of(key), names.number, names.base);
    }
    names.object_file = object_file_name(names.file);
    return names;
}

std::string object_file_name(std::string material_file_name) {
    replace_all(material_file_name, material_ending, object_ending);
    return material_file_name;
}

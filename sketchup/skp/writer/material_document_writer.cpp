#include "sketchup/skp/writer/material_document_writer.h"

#include "sketchup/skp/modern/formats.h"
#include "sketchup/skp/text_encoding.h"
#include "sketchup/skp/writer/written_colors.h"
#include "sketchup/skp/writer/xml_text.h"

#include <iterator>
#include <optional>
#include <pugixml.hpp>

namespace skp {

using sketchup::no_index;
using sketchup::typed_value;
using sketchup::value_code;

namespace {

constexpr const char* material_namespace = "http://sketchup.google.com/schemas/sketchup/1.0/material";
constexpr const char* types_namespace = "http://sketchup.google.com/schemas/1.0/types";

std::string flag(bool value) {
    return value ? "1" : "0";
}

// The text form of a value; none for a type whose form is not known.
std::optional<std::string> text_of(const typed_value& value) {
    if (value.code == value_code::nil)
        return std::string();
    if (const auto* integer = std::get_if<std::int64_t>(&value.data))
        return decimal(*integer);
    if (const auto* real = std::get_if<double>(&value.data))
        return decimal(*real);
    if (const auto* truth = std::get_if<bool>(&value.data))
        return flag(*truth);
    if (const auto* text = std::get_if<std::string>(&value.data))
        return well_formed_utf8(*text);
    return std::nullopt;
}

void add_attribute(pugi::xml_node dictionary, const sketchup::attribute& entry) {
    const std::optional<std::string> text = text_of(entry.value);
    if (!text)
        return;
    pugi::xml_node element = dictionary.append_child("n0:Attribute");
    set(element, "key", entry.key);
    set(element, "type", decimal(static_cast<int>(entry.value.code)));
    if (entry.value.code == value_code::string)
        element.append_child(pugi::node_cdata).set_value(text->c_str());
    else if (entry.value.code != value_code::nil)
        element.append_child(pugi::node_pcdata).set_value(text->c_str());
}

void add_dictionaries(pugi::xml_node parent, const sketchup::model& m, sketchup::index_range dictionaries) {
    if (dictionaries.count == 0)
        return;
    pugi::xml_node all = parent.append_child("n0:AttributeDictionaries");
    set(all, "xmlns:n0", types_namespace);
    set(all, "count", decimal(dictionaries.count));
    for (sketchup::index i = 0; i < dictionaries.count; ++i) {
        const sketchup::attribute_dictionary& d = m.dictionaries[dictionaries.first + i];
        pugi::xml_node element = all.append_child("n0:AttributeDictionary");
        set(element, "name", d.name);
        pugi::xml_attribute count = element.append_attribute("count");
        for (const sketchup::attribute& entry : d.entries)
            add_attribute(element, entry);
        count.set_value(decimal(std::distance(element.begin(), element.end())).c_str());
    }
}

void add_texture(pugi::xml_node parent, const sketchup::model& m, const sketchup::texture& t,
                 const std::string& picture, std::uint16_t format) {
    pugi::xml_node element = parent.append_child("mat:texture");
    set(element, "textureFilename", t.file_name);
    set(element, "xScale", decimal(t.width));
    set(element, "yScale", decimal(t.height));
    set(element, "avgColor", decimal(packed(written_average(m, t))));
    pugi::xml_node images = element.append_child("mat:images");
    if (picture.empty())
        return;
    pugi::xml_node image = images.append_child("mat:image");
    set(image, "id", "1");
    set(image, "path", picture);
    if (format >= modern::format_2024)
        set(image, "file_name", t.file_name.substr(t.file_name.find_last_of("/\\") + 1));
}

// How metallic, rough, uneven and shaded the surface is: not at all. texture: may be null.
void add_surface(pugi::xml_node parent, const sketchup::texture* texture) {
    pugi::xml_node element = parent.append_child("mat:pbrMR");
    set(element, "xScale", decimal(texture == nullptr ? 1.0 : texture->width));
    set(element, "yScale", decimal(texture == nullptr ? 1.0 : texture->height));
    const auto add = [&element](const char* name, const char* value) {
        element.append_child(name).append_child(pugi::node_pcdata).set_value(value);
    };
    for (const char* name :
         {"mat:enable_metalness", "mat:enable_roughness", "mat:enable_normal", "mat:enable_occlusion"})
        add(name, "0");
    for (const char* name : {"mat:metallicFactor", "mat:roughnessFactor", "mat:normalMapStyle", "mat:normalScale",
                             "mat:occlusionStrength"})
        add(name, "1");
    add("mat:baseColorFactor", "4294967295"); // white
}

void add_material(pugi::xml_node parent, const sketchup::model& m, const sketchup::material& material,
                  const std::string& picture, std::uint16_t format) {
    pugi::xml_node element = parent.append_child("mat:material");
    set(element, "name", material.name);
    set(element, "type", decimal(static_cast<unsigned>(material.type)));
    if (format >= modern::format_2024)
        set(element, "workflow", "0");
    set(element, "colorRed", decimal(int{material.color.red}));
    set(element, "colorGreen", decimal(int{material.color.green}));
    set(element, "colorBlue", decimal(int{material.color.blue}));
    set(element, "colorizeType", decimal(material.colorize_type));
    set(element, "trans", decimal(material.transparency));
    set(element, "useTrans", flag(material.use_transparency));
    if (format >= modern::format_2025)
        set(element, "pbrPromoState", "0");
    set(element, "hasTexture", flag(material.texture != no_index));
    if (material.texture != no_index)
        add_texture(element, m, m.textures[material.texture], picture, format);
    if (format >= modern::format_2024)
        add_surface(element, material.texture == no_index ? nullptr : &m.textures[material.texture]);
    add_dictionaries(element, m, material.dictionaries);
}

} // namespace

std::string material_document_text(const sketchup::model& m, const sketchup::material& material,
                                   const std::string& picture, std::uint16_t format) {
    pugi::xml_document document;
    add_material(add_root(document, "materialDocument", "mat", material_namespace), m, material, picture, format);
    return text_of(document);
}

} // namespace skp

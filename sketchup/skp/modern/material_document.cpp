#include "sketchup/skp/modern/material_document.h"

#include "sketchup/skp/format_error.h"
#include "sketchup/skp/modern/xml_names.h"
#include "sketchup/skp/text_encoding.h"

#include <charconv>
#include <pugixml.hpp>
#include <string_view>
#include <utility>

namespace skp::modern {
namespace {

using sketchup::value_code;

constexpr std::string_view material_namespace = "http://sketchup.google.com/schemas/sketchup/1.0/material";
// An element of four bytes takes 64 in memory. What users store in the attributes of a material, files as text among
// it, stays far below.
constexpr std::size_t most_document_bytes = 64U << 20;

constexpr std::string_view types_namespace = "http://sketchup.google.com/schemas/1.0/types";

// Not the parser's own conversions, which follow the locale. The default for a text that is no number.
template<class T>
T number_in(const char* text, T missing = {}) {
    const std::string_view digits = text;
    T number{};
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return result.ec == std::errc{} ? number : missing;
}

template<class T>
T number(pugi::xml_node element, const char* attribute) {
    return number_in<T>(element.attribute(attribute).value());
}

// What is no UTF-8 becomes U+FFFD.
std::string text(pugi::xml_node element, const char* attribute) {
    return well_formed_utf8(element.attribute(attribute).value());
}

std::uint8_t channel(pugi::xml_node element, const char* attribute) {
    return number<std::uint8_t>(element, attribute);
}

// 0xAABBGGRR
sketchup::rgba color_from(std::uint32_t packed) {
    const auto byte = [packed](int shift) { return static_cast<std::uint8_t>(packed >> shift); };
    return {byte(0), byte(8), byte(16), byte(24)};
}

// The CDATA sections alone, since some writers put line breaks around them; all text where there is none.
std::string text_of(pugi::xml_node element) {
    std::string sections, plain;
    for (const pugi::xml_node part : element.children())
        (part.type() == pugi::node_cdata ? sections : plain) += part.value();
    const bool has_sections = element.find_child([](pugi::xml_node n) { return n.type() == pugi::node_cdata; });
    return well_formed_utf8(has_sections ? sections : plain);
}

// The value of an attribute whose type is numbered as in the classic container; nothing for a type whose text form
// is not known.
std::optional<sketchup::typed_value> value_of(pugi::xml_node element) {
    const auto code = static_cast<value_code>(number<std::uint8_t>(element, "type"));
    const std::string text = text_of(element);
    const auto value = [code](auto data) { return sketchup::typed_value{code, std::move(data)}; };
    switch (code) {
    case value_code::nil:
        return sketchup::typed_value{};
    case value_code::byte:
    case value_code::int16:
    case value_code::int32:
    case value_code::time:
        return value(number_in<std::int64_t>(text.c_str()));
    case value_code::float32:
    case value_code::float64:
    case value_code::length:
    case value_code::measure_13:
    case value_code::measure_14:
    case value_code::measure_15:
    case value_code::measure_16:
        return value(number_in<double>(text.c_str()));
    case value_code::boolean:
        return value(number_in<int>(text.c_str()) != 0);
    case value_code::string:
        return value(text);
    default:
        return std::nullopt;
    }
}

sketchup::attribute_dictionary read_dictionary(pugi::xml_node element, xml_names& names) {
    sketchup::attribute_dictionary d;
    d.name = text(element, "name");
    for (const pugi::xml_node entry : element.children())
        if (names.matches(entry, types_namespace, "Attribute"))
            if (auto value = value_of(entry))
                d.entries.push_back({text(entry, "key"), std::move(*value)});
    return d;
}

texture_fields read_texture(pugi::xml_node element, xml_names& names) {
    texture_fields t;
    t.file_name = text(element, "textureFilename");
    t.width = number<double>(element, "xScale");
    t.height = number<double>(element, "yScale");
    t.average_color = color_from(number<std::uint32_t>(element, "avgColor"));
    const pugi::xml_node images = names.child(element, material_namespace, "images");
    const pugi::xml_node image = names.child(images, material_namespace, "image");
    t.picture_path = image.attribute("path").value();
    if (t.file_name.empty())
        t.file_name = text(image, "file_name");
    return t;
}

material_document read_material(pugi::xml_node element, xml_names& names) {
    material_document m;
    m.name = text(element, "name");
    m.color = {channel(element, "colorRed"), channel(element, "colorGreen"), channel(element, "colorBlue"), 255};
    const auto type = number<std::uint32_t>(element, "type");
    if (type <= static_cast<std::uint32_t>(sketchup::material_type::colorized))
        m.type = static_cast<sketchup::material_type>(type);
    m.colorize_type = number<std::uint32_t>(element, "colorizeType");
    m.transparency = number<double>(element, "trans");
    m.use_transparency = number<int>(element, "useTrans") == 1;
    if (const pugi::xml_node texture = names.child(element, material_namespace, "texture"))
        m.texture = read_texture(texture, names);
    for (const pugi::xml_node d : names.child(element, types_namespace, "AttributeDictionaries").children())
        if (names.matches(d, types_namespace, "AttributeDictionary"))
            m.dictionaries.push_back(read_dictionary(d, names));
    return m;
}

bool declares_document_type(const pugi::xml_document& document) {
    return document.find_child([](pugi::xml_node n) { return n.type() == pugi::node_doctype; });
}

} // namespace

material_document read_material_document(std::span<const std::uint8_t> xml, const std::string& where) {
    if (xml.size() > most_document_bytes)
        throw format_error(failure::damaged, 0, where, "is longer than any description of a material");
    pugi::xml_document document;
    const pugi::xml_parse_result result =
        document.load_buffer(xml.data(), xml.size(), pugi::parse_default | pugi::parse_doctype);
    if (!result)
        throw format_error(failure::damaged, static_cast<std::uint64_t>(result.offset), where, result.description());
    if (declares_document_type(document))
        throw format_error(failure::damaged, 0, where, "declares a document type");
    xml_names names;
    const pugi::xml_node root = names.child(document, material_namespace, "materialDocument");
    const pugi::xml_node material = names.child(root, material_namespace, "material");
    if (!material)
        throw format_error(failure::damaged, 0, where, "describes no material");
    return read_material(material, names);
}

} // namespace skp::modern

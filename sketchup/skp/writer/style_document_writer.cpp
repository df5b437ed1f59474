#include "sketchup/skp/writer/style_document_writer.h"

#include "sketchup/skp/modern/formats.h"
#include "sketchup/skp/modern/option_fields.h"
#include "sketchup/skp/writer/modern_option_values.h"
#include "sketchup/skp/writer/written_lists.h"
#include "sketchup/skp/writer/xml_text.h"

#include <algorithm>
#include <pugixml.hpp>

namespace skp {

using sketchup::typed_value;
using sketchup::value_code;

namespace {

constexpr const char* style_namespace = "http://sketchup.google.com/schemas/sketchup/1.0/style";
constexpr const char* types_namespace = "http://sketchup.google.com/schemas/1.0/types";
constexpr const char* watermarks_namespace = "http://sketchup.google.com/schemas/sketchup/1.0/wmlist";

constexpr int draw_hidden_item = 7010;
constexpr int watermarks_item = 5001;

struct style_item {
    int number;
    std::uint16_t field; // of the rendering options; 0 for one that they do not have
    std::uint16_t first_format = 0;
    // Of an item that is no field:
    value_code type = value_code::boolean;
    double usual = 0;
};

constexpr style_item items[] = {
    {1000, 29505},
    {1001, 29506},
    {1002, 29512},
    {1004, 29517},
    {1005, 29518},
    {1006, 29519},
    {1007, 29520},
    {1008, 29521},
    {1009, 29522},
    {1010, 29523},
    {1011, 29524},
    {1012, 29525},
    {1014, 29528},
    {1015, 0},
    {1016, 29516},
    {2001, 29501},
    {2002, 29532},
    {2003, 29533},
    {2004, 29502},
    {2005, 29503},
    {2006, 29559},
    {2007, 29504},
    {2008, 29560},
    {4000, 29527},
    {4001, 29541},
    {4002, 29544},
    {4003, 29543},
    {4004, 29545},
    {4005, 29547},
    {4006, 29546},
    {4007, 0, modern::format_2023, value_code::int32},
    {5000, 29534},
    {watermarks_item, 0},
    {7000, 29529},
    {7001, 29530},
    {7002, 29531},
    {7003, 29552},
    {7004, 29553},
    {7005, 29554},
    {7008, 29507},
    {draw_hidden_item, 0},
    {7011, 29511},
    {7012, 29510},
    {7013, modern::section_display_tag},
    {7014, 29556},
    {7015, 29558},
    {7016, 29555},
    {7017, 29568},
    {7018, 29569},
    {8000, 29564},
    {8001, 29565},
    {8002, 29566},
    {8003, 29567},
    {8100, 29571, modern::format_2024},
    {8101, 0, modern::format_2024, value_code::boolean, 1},
    {8102, 29573, modern::format_2024},
    {8103, 29574, modern::format_2024},
    {8104, 0, modern::format_2024, value_code::int16, 32},
};

typed_value value_of(const style_item& item, const sketchup::rendering_options& options) {
    const auto field = std::ranges::find(modern::option_fields(), item.field, &modern::option_field::tag);
    if (field != modern::option_fields().end())
        return written_field(*field, options);
    if (item.number == draw_hidden_item) {
        const typed_value* hidden = written_option(options, "DrawHidden");
        return hidden == nullptr ? typed_value{value_code::boolean, false} : *hidden;
    }
    if (item.type == value_code::boolean)
        return {item.type, item.usual != 0};
    return {item.type, static_cast<std::int64_t>(item.usual)};
}

// The numbers of types in these documents, which are others than anywhere else.
int type_number(value_code code, std::uint16_t format) {
    switch (code) {
    case value_code::boolean:
        return 1;
    case value_code::int16:
        return 3;
    case value_code::float32:
        return 6;
    case value_code::float64:
        return 7;
    case value_code::color:
        return format >= modern::format_2024 ? 5 : 4;
    default:
        return 4; // whole numbers of 32 bits
    }
}

std::string value_text(const typed_value& value) {
    if (const auto* truth = std::get_if<bool>(&value.data))
        return *truth ? "1" : "0";
    if (const auto* color = std::get_if<sketchup::rgba>(&value.data))
        return decimal(static_cast<std::int32_t>(packed(*color)));
    if (const auto* integer = std::get_if<std::int64_t>(&value.data))
        return decimal(*integer);
    return decimal(std::get<double>(value.data));
}

void add_no_watermarks(pugi::xml_node variant) {
    constexpr int list = 13;
    set(variant, "type", decimal(list));
    set(variant, "xmlns:n0", watermarks_namespace);
    set(variant.append_child("n0:wmlist"), "count", "0");
}

} // namespace

std::string style_document_text(const std::string& name, const sketchup::rendering_options& options,
                                std::uint16_t format) {
    pugi::xml_document document;
    pugi::xml_node style = add_root(document, "styleDocument", "sty", style_namespace).append_child("sty:style");
    set(style, "xmlns:t", types_namespace);
    set(style, "name", name);
    set(style, "desc", "The rendering options of the model.");
    for (const style_item& item : items) {
        if (format < item.first_format)
            continue;
        pugi::xml_node element = style.append_child("sty:item");
        set(element, "id", decimal(item.number));
        pugi::xml_node variant = element.append_child("t:variant");
        if (item.number == watermarks_item) {
            add_no_watermarks(variant);
            continue;
        }
        const typed_value value = value_of(item, options);
        set(variant, "type", decimal(type_number(value.code, format)));
        variant.append_child(pugi::node_pcdata).set_value(value_text(value).c_str());
    }
    return text_of(document);
}

} // namespace skp

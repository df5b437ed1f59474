// Which key of a material's attributes sets which value.

#include "tessaline/materials/material_keys.h"

#include "qlw/text_numbers.h"
#include "qlw/whole_number.h"
#include "tessaline/parameters/attributes.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <variant>

namespace {

using values = material_values;

struct unused {}; // the key is known and its value goes nowhere
struct cut_real { // a real number, of which the integer part counts
    std::int32_t values::*field;
};
using destination =
    std::variant<unused, bool values::*, std::int32_t values::*, double values::*, std::string values::*, cut_real>;

struct material_key_row {
    std::string_view key;
    destination goes_to;
};

constexpr std::array<material_key_row, 35> rows{{
    {"Auto Bump", &values::auto_bump},
    {"Blurry", &values::blurry},
    {"Glossy", &values::glossy},
    {"Glow_intensity", &values::glow},
    {"Glow_intensity_lumens", &values::glow_lumens},
    {"Highlight_intensity", &values::reflection},
    {"Imetallic", &values::metallic},
    {"Ior", &values::refraction},
    {"LightChannel", cut_real{&values::light_channel}},
    {"Bump-Marbled", &values::marbled},
    {"Bump-Marbled-Strength", &values::marble_strength},
    {"Bump-Marbled-Scale", &values::marble_scale},
    {"Bump-Rubble", &values::rubble},
    {"Bump-Wrinkled", &values::wrinkled},
    {"Bump-Sandpaper", &values::sandpaper},
    {"Bump-Pyramid", &values::pyramid},
    {"Self_Glow_intensity", &values::self_glow},
    {"set_thick", &values::thick},
    {"Sharpness", &values::sharpness},
    {"Translucency", &values::translucency},
    {"Translucent", unused{}},
    {"Type", &values::type_number},
    {"OrnMaterial Type", &values::material_type},
    {"Base_Material", &values::base_material},
    {"XML_file_name", &values::xml_file_name},
    {"XML_initial_opacity", &values::xml_initial_opacity},
    {"XML_scale_x", &values::xml_scale_x},
    {"XML_scale_y", &values::xml_scale_y},
    {"Marevo_XML_File", &values::marevo_xml_file},
    {"OrnMaterial x2_mult", unused{}},
    {"OrnZyn Texture_0", unused{}},
    {"Bump_color_strength", &values::bump_color_strength},
    {"Bump_intensity", &values::bump_intensity},
    {"Sorn_library", &values::sorn_library},
    {"Sorn_material_name", &values::sorn_material_name},
}};

struct setter {
    values& target;
    const std::string& text;

    void operator()(unused) const {}
    void operator()(bool values::*field) const { target.*field = text_is_true(text); }
    void operator()(std::int32_t values::*field) const { target.*field = decimal_value(text); }
    void operator()(double values::*field) const { target.*field = double_value(text); }
    void operator()(std::string values::*field) const { target.*field = text; }
    void operator()(cut_real number) const { target.*number.field = cut_toward_zero(double_value(text)); }
};

} // namespace

bool set_material_value(material_values& values, std::string_view key, const std::string& text) {
    const auto row =
        std::find_if(rows.begin(), rows.end(), [key](const material_key_row& each) { return each.key == key; });
    if (row == rows.end())
        return false;
    std::visit(setter{values, text}, row->goes_to);
    return true;
}

#include "tools/batch_glb/material_look.h"

#include "text/letter_case.h"
#include "tools/batch_glb/stream_numbers.h"
#include "tools/batch_reading/text_lines.h"
#include "tools/gltf/numbers.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double polished = 0.05;   // roughness; a perfect mirror would show nothing where nothing surrounds it
constexpr double mirror_from = 0.8; // reflection from which a material is a mirror
constexpr double blurred = 0.4;     // least roughness of what reflects in a blur
constexpr double of_window_glass = 1.5;
constexpr double least_refraction = 1; // what the format allows; less, in a file, breaks no light
constexpr double most_refraction = 100;
constexpr double brightest_glow = 1e6; // a hundred megawatts; what is beyond single precision would not glow at all

void take_value(std::string_view key, std::string_view value, material_look& look) {
    if (key == "Disp")
        look.display_name = value;
    else if (key == "OrnMaterial Type")
        look.type = value;
    else if (key == "Refl")
        take_real(value, look.reflection);
    else if (key == "Refr")
        take_real(value, look.refraction);
    else if (key == "Glow")
        take_real(value, look.glow);
    else if (key == "SelfGlow")
        take_real(value, look.self_glow);
    else if (key == "Blurry")
        look.blurry = value == "1";
    else if (key == "Glossy")
        look.glossy = value == "1";
}

std::array<double, 3> light_of(std::uint32_t blue_green_red) {
    std::array<double, 3> result{};
    for (unsigned i = 0; i < 3; ++i)
        result[i] = gltf::short_number(gltf::linear_channel((blue_green_red >> 8 * i & 255) / 255.0));
    return result;
}

double within_one(double number) {
    return std::isfinite(number) ? std::clamp(number, 0.0, 1.0) : 0;
}

void add_glass(gltf::json& material, const material_look& look, double clear, gltf::glb_writer& uses) {
    uses.use_extension("KHR_materials_transmission");
    material["extensions"]["KHR_materials_transmission"] = {{"transmissionFactor", gltf::short_number(clear)}};
    // The format takes window glass for granted.
    if (look.refraction < least_refraction || look.refraction == of_window_glass)
        return;
    uses.use_extension("KHR_materials_ior");
    material["extensions"]["KHR_materials_ior"] = {
        {"ior", gltf::short_number(std::min(look.refraction, most_refraction))}};
}

void add_glow(gltf::json& material, const std::array<double, 3>& color, double glow, gltf::glb_writer& uses) {
    material["emissiveFactor"] = color;
    if (glow == 1)
        return;
    uses.use_extension("KHR_materials_emissive_strength");
    material["extensions"]["KHR_materials_emissive_strength"] = {{"emissiveStrength", gltf::short_number(glow)}};
}

} // namespace

std::optional<material_look> read_material_look(std::string_view text) {
    std::optional<read_material> basics = read_material_file(text);
    if (!basics)
        return std::nullopt;
    material_look look;
    look.basics = std::move(*basics);
    while (!text.empty()) {
        const std::string_view line = take_line(text);
        const std::size_t colon = line.find(": ");
        if (colon != std::string_view::npos)
            take_value(line.substr(0, colon), line.substr(colon + 2), look);
    }
    return look;
}

gltf::json material_json(const material_look& look, gltf::glb_writer& uses) {
    const double clear = within_one(look.basics.transparency);
    const double reflection = within_one(look.reflection);
    const std::string type = lower_case(look.type);
    const bool is_glass = clear > 0 && (look.refraction > 1 || type.find("glass") != std::string::npos);
    const bool is_metal = type.find("metal") != std::string::npos;
    const std::array<double, 3> color = light_of(look.basics.color);
    double roughness = reflection >= mirror_from || is_glass ? polished : 1 - reflection * (1 - polished);
    if (look.blurry)
        roughness = std::max(roughness, blurred);
    if (look.glossy)
        roughness = std::min(roughness, blurred);
    const double metallic = is_metal || (reflection >= mirror_from && clear == 0) ? 1 : clear > 0 ? 0 : reflection;
    gltf::json material = {
        {"name", look.display_name},
        {"pbrMetallicRoughness",
         {{"baseColorFactor", {color[0], color[1], color[2], is_glass ? 1 : gltf::short_number(1 - clear)}},
          {"metallicFactor", gltf::short_number(metallic)},
          {"roughnessFactor", gltf::short_number(roughness)}}}};
    if (is_glass)
        add_glass(material, look, clear, uses);
    else if (clear > 0)
        material["alphaMode"] = "BLEND";
    const double glow = std::min(std::max(0.0, look.glow) + std::max(0.0, look.self_glow), brightest_glow);
    if (glow > 0)
        add_glow(material, color, glow, uses);
    return material;
}

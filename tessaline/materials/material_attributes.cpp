// What a renderer needs to know of a material beyond its colour, opacity and picture. Reads the attribute list of the
// run and the settings.

#include "tessaline/materials/material_attributes.h"

#include "qlw/qlw_globals.h"
#include "qlw/qlw_trace.h"
#include "qlw/text_numbers.h"
#include "tessaline/materials/edited_material.h"
#include "tessaline/materials/material_keys.h"
#include "tessaline/state/run_state.h"
#include "Vellane_Zyn/wizard_materials.h"

#include <algorithm>
#include <limits>

namespace {

constexpr std::string_view material_dictionary = "Vellane_material";
constexpr double seen_as_opaque = 0.001;
constexpr double whitest = 0.9; // transparency beyond it turns a colour no whiter

// Applies all rows of the attribute list.
void apply_attributes(material_values& values, edited_material& edited) {
    for (const cl_tsl_attribute& row : attribute_list)
        if (row.dictionary == material_dictionary && !set_material_value(values, row.key, row.value) &&
            !edited.take(row.key, row.value))
            cl_trace::here("SketchUpReader::get_material_number", trace_level::plain)
                .report("SKEY NOT USED: %s", row.key);
}

std::uint32_t moved_to_white(std::uint32_t byte, double share) {
    const double moved = 255 - (255 - static_cast<double>(byte)) * (1 - share);
    return static_cast<std::uint32_t>(std::clamp(moved, 0.0, 255.0));
}

// A clear thing shows less of its colour.
std::uint32_t shown_color(const SUColor& color, const material_values& values) {
    std::uint32_t red = color.red;
    std::uint32_t green = color.green;
    std::uint32_t blue = color.blue;
    if (values.transparency > seen_as_opaque && values.material_type == "SketchUp" &&
        get_global_bool("bvl_move_transparency_towards_white")) {
        const double share = std::min(values.transparency, whitest);
        red = moved_to_white(red, share);
        green = moved_to_white(green, share);
        blue = moved_to_white(blue, share);
    }
    return red | green << 8U | blue << 16U;
}

void settle_color(material_values& values, SUMaterialRef material) {
    SUColor color{};
    SUMaterialGetColor(material, &color);
    values.transparency = 1 - values.opacity;
    values.color = shown_color(color, values);
}

// Sets the values that the kind of the material implies, and the kind.
void set_implied(cl_wizard_materials& wizard) {
    constexpr bool keep = true;
    if (wizard.translucency > 0) {
        wizard.set_wizard_material_defaults(cl_wizard_materials::lamp_shade, keep);
    } else if (wizard.glow > 0) {
        wizard.set_wizard_material_defaults(cl_wizard_materials::glowing, keep);
    } else if (wizard.transparency > 0) {
        const auto transparency = static_cast<float>(wizard.transparency);
        wizard.set_wizard_material_defaults(cl_wizard_materials::clear, !keep);
        wizard.transparency = static_cast<double>(transparency);
    } else if (wizard.reflection > 0.8) {
        wizard.set_wizard_material_defaults(cl_wizard_materials::mirror, keep);
    } else if (wizard.reflection > 0) {
        wizard.set_wizard_material_defaults(cl_wizard_materials::reflective, keep);
    } else {
        wizard.type = cl_wizard_materials::no_kind_found;
    }
}

// Completes the values by what the kind of material that they suggest implies.
void guess_kind(material_values& values) {
    cl_wizard_materials wizard;
    wizard.metallic = values.metallic;
    wizard.blurry = values.blurry;
    wizard.glossy = values.glossy;
    wizard.reflection = values.reflection;
    wizard.sharpness = values.sharpness;
    wizard.transparency = values.transparency;
    wizard.translucency = values.translucency;
    wizard.color = wizard.second_color = values.color;
    wizard.refraction = values.refraction;
    wizard.thick = values.thick;
    wizard.glow = values.glow_lumens > 0 ? values.glow_lumens : values.glow;
    set_implied(wizard);
    values.metallic = wizard.metallic;
    values.blurry = wizard.blurry;
    values.glossy = wizard.glossy;
    values.reflection = wizard.reflection;
    values.sharpness = wizard.sharpness;
    values.translucency = wizard.translucency;
    values.refraction = wizard.refraction;
    // The renderer adjusts for itself what the file says: the kind's transparency goes no further.
}

// The next light of the model that asks for no channel gets one behind all that are taken.
void claim_light_channel(const material_values& values) {
    if ((values.glow > 0 || values.glow_lumens > 0) && get_global_bool("bvl_auto_lighting_channels") &&
        values.light_channel >= get_global_int("ivl_lighting_channels") &&
        values.light_channel < std::numeric_limits<std::int32_t>::max())
        set_global_int("ivl_lighting_channels", values.light_channel + 1);
}

} // namespace

// The longer word "_metallic" is no suffix word, though names have it: it has never been one.
void apply_suffix_word(material_values& values, std::string_view working_name) {
    const std::size_t from = working_name.rfind('_');
    if (from == std::string_view::npos)
        return;
    const std::string_view text = working_name.substr(from);
    const auto number_behind = [text](std::string_view word) {
        return text.starts_with(word) ? double_value(text.substr(word.size())) : 0;
    };
    if (const double percent = number_behind("_ref"); percent > 0) {
        values.reflection = percent * 0.01;
        values.sharpness = 1.0;
    } else if (const double passing = number_behind("_trluc"); passing > 0) {
        values.opacity = 0.5;
        values.translucency = passing * 0.01;
    } else if (const double clear = number_behind("_trans"); clear > 0) {
        values.opacity = 1 - clear / 100;
    } else if (const double glow = number_behind("_glow"); glow > 0) {
        values.glow = glow / 100;
    }
}

material_values evaluate_material(const material_values& start, std::string_view working_name, SUMaterialRef material,
                                  const std::string& folder, const std::string& file_name) {
    material_values values = start;
    apply_suffix_word(values, working_name);

    edited_material edited;
    apply_attributes(values, edited);
    std::string restored;
    if (edited.is_complete())
        restored = restore_edited_material(edited, folder, file_name);
    settle_color(values, material);
    if (values.type_number != 0) {
        values.edited_file = restored;
    } else {
        guess_kind(values);
        apply_attributes(values, edited); // what a material says itself wins over its kind
        settle_color(values, material);
    }
    claim_light_channel(values);
    return values;
}

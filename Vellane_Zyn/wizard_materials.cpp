// Which values each kind of material brings.

#include "Vellane_Zyn/wizard_materials.h"

#include "qlw/qlw_globals.h"
#include "qlw/qlw_trace.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

using enum cl_wizard_materials::kinds;

constexpr std::uint32_t white = 0xffffff;

// A value that a type sets: not at all, always, or only in a record whose values are not to be kept.
struct implied {
    std::optional<double> value{};
    bool gives_way = false;

    void apply(double& field, bool keep) const {
        if (value && !(gives_way && keep))
            field = *value;
    }
};

constexpr implied untouched{};

constexpr implied always(double value) {
    return {value, false};
}

constexpr implied unless_kept(double value) {
    return {value, true};
}

struct material_kind {
    std::int32_t type;
    const char* suffix;
    implied reflection;
    double sharpness;
    bool metallic;
    implied refraction;
    implied translucency;
    implied transparency;
    std::optional<bool> thick;
    implied glow;
};

// clang-format off
constexpr std::array<material_kind, 12> kind_table{{
    {no_kind, "", unless_kept(0), 1.0, false, untouched, always(0), unless_kept(0), {}, untouched},
    {no_kind_found, "", unless_kept(0), 1.0, false, untouched, always(0), unless_kept(0), {}, untouched},
    {matte, " - Matte", unless_kept(0), 1.0, false, untouched, always(0), always(0), {}, untouched},
    {reflective, " - Reflective", unless_kept(0.6), 0.9, true, untouched, always(0), always(0), {}, untouched},
    {glass, " - Glass", always(0.5), 1.0, false, always(1.5), always(0), always(1.0), true, untouched},
    {lamp_shade, " - Lamp Shade", always(0), 1.0, false, untouched, unless_kept(1.0), always(0.5), {}, untouched},
    {metal, " - Metal", unless_kept(0.9), 1.0, true, untouched, always(0), always(0), {}, untouched},
    {plastic, " - Plastic", unless_kept(0.25), 0.2, false, untouched, always(0), always(0), {}, untouched},
    {mirror, " - Mirror", unless_kept(1.0), 1.0, false, untouched, always(0), always(0), {}, untouched},
    {water, " - Water", unless_kept(0.3), 0.8, false, untouched, always(0.6), always(0.5), {}, untouched},
    {clear, " - Clear", always(0.5), 1.0, false, always(1.5), always(0), unless_kept(1.0), false, untouched},
    {glowing, " - Glow", always(0), 1.0, false, untouched, always(0), always(0), {}, unless_kept(0.5)},
}};
// clang-format on

bool is_no_kind(std::int32_t type) {
    return type == no_kind || type == no_kind_found;
}

} // namespace

void cl_wizard_materials::reset() {
    const std::uint32_t kept_color = color;
    const std::uint32_t kept_second_color = second_color;
    *this = {};
    color = kept_color;
    second_color = kept_second_color;
}

void cl_wizard_materials::set_wizard_material_defaults(std::int32_t wanted_type, bool keep) {
    if (!keep)
        reset();
    type = wanted_type;
    const auto kind = std::find_if(kind_table.begin(), kind_table.end(),
                                   [wanted_type](const material_kind& each) { return each.type == wanted_type; });
    if (kind == kind_table.end()) {
        cl_trace::here("cl_wizard_materials::set_wizard_material_defaults", trace_level::plain)
            .report("Material Type not known: %d", wanted_type);
        return;
    }
    kind->reflection.apply(reflection, keep);
    sharpness = kind->sharpness;
    metallic = kind->metallic;
    blurry = false;
    glossy = false;
    kind->refraction.apply(refraction, keep);
    kind->translucency.apply(translucency, keep);
    kind->transparency.apply(transparency, keep);
    thick = kind->thick.value_or(thick);
    kind->glow.apply(glow, keep);
    if (is_no_kind(type) && !keep)
        color = second_color = white;
    type_suffix = kind->suffix;
}

double adjust_transparency(double transparency, double translucency) {
    if (translucency > 0 || !get_global_bool("bvl_adjust_transparency"))
        return transparency;
    if (transparency < 0.2)
        return transparency * 2.5;
    return (transparency - 0.2) * 0.5 / 0.8 + 0.5;
}

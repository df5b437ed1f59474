// What the classic container demands about fonts, units, previews and the like, though a model built in memory has none
// of its own.

#include "sketchup/skp/writer/blank_preview.h"
#include "sketchup/skp/writer/classic_bodies.h"
#include "sketchup/skp/writer/usual_settings.h"

namespace skp {

namespace {

constexpr sketchup::rgba black{0, 0, 0, 255};
constexpr sketchup::rgba dark_grey{63, 63, 63, 255};
constexpr sketchup::rgba red{255, 0, 0, 255};

// Whether files of the version know units of areas and volumes.
bool has_units_of_areas(const object_archive& out) {
    return out.number("CSketchUpModel") >= 29;
}

bool is_unit_of_areas(const sketchup::attribute& option) {
    return option.key.starts_with("Area") || option.key.starts_with("Volume");
}

void write_provider(classic_output& c, const option_provider& provider) {
    object_archive& out = c.out;
    out.str(provider.name);
    for (const sketchup::attribute& option : provider.options) {
        if (is_unit_of_areas(option) && !has_units_of_areas(out))
            continue;
        out.str(option.key);
        write_typed_value(c, option.value);
    }
    out.str({});
}

} // namespace

void mention_font(classic_output& c) {
    object_archive& out = c.out;
    out.object("CSkFont", &c.font, [&] {
        write_plain_entity(c);
        out.str("Arial");
        out.boolean(false); // bold
        out.boolean(false); // italic
        out.u32(12);        // points
        out.boolean(false); // size in the world
        out.f64(1);
    });
}

// Form 2 is that of versions from 7 to 2017, form 3 that of 2020 and, when such a program saves it, of 6.
void write_options(classic_output& c) {
    object_archive& out = c.out;
    const int layout = out.number("CSketchUpModel");
    const bool is_form_2 = layout >= 21 && layout < 29;
    out.u32(is_form_2 ? 2 : 3);
    const std::vector<option_provider>& providers = usual_option_providers();
    out.size(providers.size() + 1);
    for (const option_provider& one : providers)
        write_provider(c, one);
    write_provider(c, {"PrintOptions", {}});
}

void write_line_styles(classic_output& c) {
    object_archive& out = c.out;
    write_plain_entity(c);
    out.size(usual_line_styles().size());
    for (const line_style& one : usual_line_styles())
        out.object("CCustomLineStyle", [&] {
            write_plain_entity(c);
            out.str(one.name);
            out.str(one.pattern);
            out.f64(1); // width
            out.f64(1); // scale
            out.f64(1);
        });
}

// A picture of its own for each place that has one.
void write_preview(classic_output& c) {
    object_archive& out = c.out;
    constexpr std::uint32_t png = 4;
    out.object("CDib", [&] {
        out.u32(png);
        out.size(blank_preview().size());
        out.raw(blank_preview());
    });
}

// The numbers without a name have no known meaning; they are those of a new model.
void write_dimension_style(classic_output& c) {
    object_archive& out = c.out;
    write_plain_entity(c);
    out.u32(0);
    mention_font(c);
    out.boolean(false);
    out.boolean(true);
    for (const std::uint32_t number : {5U, 10U, 1U, 1U, 10U})
        out.u32(number);
    out.boolean(false);
    out.rgba(red);
    out.boolean(true);
    out.boolean(false);
    out.f64(0.6);
    out.boolean(false);
    out.f64(10);
    out.rgba(dark_grey);
    out.rgba(black);
    out.u32(3);
}

void write_text_style(classic_output& c) {
    object_archive& out = c.out;
    write_plain_entity(c);
    mention_font(c);
    out.u32(2);
    out.u32(1);
    out.boolean(false);
    out.u32(3);
    out.boolean(true);
    out.rgba(dark_grey);
    out.rgba(dark_grey);
    mention_font(c);
}

void write_fonts(classic_output& c) {
    write_plain_entity(c);
    c.out.size(1);
    mention_font(c);
}

} // namespace skp

// What the classic container demands about fonts and drawing styles, though a model built in memory has none of its
// own.

#include "sketchup/skp/writer/classic_bodies.h"

namespace skp {

namespace {

constexpr char the_font = 0; // stands for the one font object of a file
constexpr sketchup::rgba black{0, 0, 0, 255};

} // namespace

void mention_font(classic_output& c) {
    object_archive& out = c.out;
    out.object("CSkFont", &the_font, [&] {
        write_plain_entity(c);
        out.str("Arial");
        out.boolean(false); // bold
        out.boolean(false); // italic
        out.u32(12);        // points
        out.boolean(false); // size in the world
        out.f64(1);
    });
}

void write_options(classic_output& c) {
    c.out.u32(3); // form
    c.out.size(0);
}

void write_dimension_style(classic_output& c) {
    object_archive& out = c.out;
    write_plain_entity(c);
    out.u32(0);
    mention_font(c);
    out.boolean(false);
    out.boolean(false);
    for (int i = 0; i < 5; ++i)
        out.u32(0);
    out.boolean(false);
    out.rgba(black);
    out.boolean(false);
    out.boolean(false);
    out.f64(0);
    out.boolean(false);
    out.f64(0);
    out.rgba(black);
    out.rgba(black);
    out.u32(0);
}

void write_text_style(classic_output& c) {
    object_archive& out = c.out;
    write_plain_entity(c);
    mention_font(c);
    out.u32(0);
    out.u32(0);
    out.boolean(false);
    out.u32(0);
    out.boolean(false);
    out.rgba(black);
    out.rgba(black);
    mention_font(c);
}

void write_fonts(classic_output& c) {
    write_plain_entity(c);
    c.out.size(1);
    mention_font(c);
}

} // namespace skp

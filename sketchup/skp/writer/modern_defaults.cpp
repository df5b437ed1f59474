// What the archive container demands about fonts, texts and dimensions, though a model built in memory has none of its
// own. Numbers without a name have no known meaning; their sizes and values are those of all files.

#include "sketchup/skp/writer/modern_bodies.h"
#include "sketchup/skp/writer/modern_tags.h"

namespace skp {

namespace tag = modern::tag;

namespace {

constexpr sketchup::rgba black{0, 0, 0, 255};

} // namespace

void write_fonts(modern_output& o) {
    record_sink& out = o.out;
    out.record(tag::font_manager, [&] {
        out.record(tag::font_list, [&] {
            out.record(tag::font, [&] {
                write_entity(o, sketchup::entity(sketchup::entity_kind::model), o.font);
                out.text(tag::font_name, "Arial");
                out.boolean(20502, false);
                out.boolean(20503, false);
                out.i32(tag::font_points, 12);
                out.boolean(20505, false);
                out.f64(tag::font_world_size, 1);
            });
        });
    });
}

void write_text_defaults(modern_output& o) {
    record_sink& out = o.out;
    out.record(tag::text_defaults, [&] {
        out.id(22501, o.font);
        out.id(22502, o.font);
        out.i32(22503, 0);
        out.i32(22504, 0);
        out.boolean(22505, false);
        out.i32(22506, 0);
        out.boolean(22507, false);
        out.rgba(22508, black);
        out.rgba(22509, black);
    });
}

void write_dimension_defaults(modern_output& o) {
    record_sink& out = o.out;
    out.record(tag::dimension_defaults, [&] {
        out.id(24501, o.font);
        out.boolean(24502, false);
        out.boolean(24503, false);
        for (std::uint16_t number = 24504; number <= 24508; ++number)
            out.i32(number, 0);
        out.boolean(24509, false);
        out.rgba(24510, black);
        out.boolean(24511, false);
        out.boolean(24512, false);
        out.f64(24513, 0);
        out.boolean(24514, false);
        out.f64(24515, 0);
        out.rgba(24516, black);
        out.rgba(24517, black);
        out.i32(24518, 0);
    });
}

} // namespace skp

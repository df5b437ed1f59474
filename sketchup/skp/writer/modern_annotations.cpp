// Guides, texts and dimensions in the archive container. A model keeps what they are, not where they lie: all are
// written at the origin, dimensions an inch long, and say nothing.

#include "sketchup/skp/writer/modern_bodies.h"
#include "sketchup/skp/writer/modern_tags.h"

#include <array>

namespace skp {

namespace tag = modern::tag;

using sketchup::annotation;
using sketchup::annotation_kind;

namespace {

constexpr double without_end = 1e30; // how far a guide line goes

void write_guide_line(modern_output& o, const annotation& a) {
    record_sink& out = o.out;
    out.record(tag::guide, [&] { write_drawing_element(o, a, o.ids.of(&a)); });
    // Point, direction, start, end.
    out.doubles(tag::guide_line_figures, std::array{0.0, 0.0, 0.0, 1.0, 0.0, 0.0, -without_end, without_end});
    out.u16(tag::guide_line_stipple, 0xFFFF); // unbroken
}

void write_guide_point(modern_output& o, const annotation& a) {
    record_sink& out = o.out;
    out.record(tag::guide, [&] { write_drawing_element(o, a, o.ids.of(&a)); });
    out.v3(tag::guide_point_position, {});
    out.v3(tag::guide_point_origin, {});
    out.boolean(tag::guide_point_has_origin, false);
}

// A free point that holds on to nothing.
void write_attachment(modern_output& o, const sketchup::vec3& point = {}) {
    constexpr std::int32_t free_point = 1;
    record_sink& out = o.out;
    out.record(tag::attachment, [&] {
        out.i32(tag::attachment_kind, free_point);
        out.v3(tag::attachment_point, point);
        for (const std::uint16_t end : {tag::attachment_first, tag::attachment_second})
            out.record(end, [&] { out.record(tag::attached_to, [&] { out.empty(tag::attached_path); }); });
    });
}

void write_text(modern_output& o, const annotation& a) {
    record_sink& out = o.out;
    write_drawing_element(o, a, o.ids.of(&a));
    out.text(tag::text_content, {});
    out.f64(tag::text_screen_x, 0);
    out.f64(tag::text_screen_y, 0);
    out.record(tag::text_attachment, [&] { write_attachment(o); });
    out.v3(tag::text_leader, {});
    out.boolean(22006, false);
    out.v3(22007, {0, 1, 0});
    out.boolean(22008, false);
    out.id(tag::text_font, o.font);
    out.i32(22010, 0);
    out.i32(22011, 1);
    out.boolean(22012, false);
    out.i32(22013, 0);
    out.i32(22014, 0);
}

void write_linear_dimension(modern_output& o, const annotation& a) {
    record_sink& out = o.out;
    out.record(tag::dimension, [&] {
        write_drawing_element(o, a, o.ids.of(&a));
        out.text(tag::dimension_text, {});
        out.id(tag::dimension_font, o.font);
        out.boolean(23003, false);
        out.i32(23004, 3);
    });
    out.record(tag::linear_dimension_start, [&] { write_attachment(o); });
    out.record(tag::linear_dimension_end, [&] { write_attachment(o, {1, 0, 0}); });
    out.v3(tag::linear_dimension_x_axis, {1, 0, 0});
    out.v3(tag::linear_dimension_normal, {0, 0, 1});
    out.i32(23505, 1);
    out.f64(23507, 0); // stands before 23506
    out.f64(tag::linear_dimension_offset, 1);
    out.i32(23508, 3);
}

} // namespace

std::uint16_t annotation_tag(annotation_kind what) {
    switch (what) {
    case annotation_kind::guide_line:
        return tag::guide_line;
    case annotation_kind::guide_point:
        return tag::guide_point;
    case annotation_kind::text:
        return tag::text;
    case annotation_kind::linear_dimension:
        return tag::linear_dimension;
    default:
        return 0;
    }
}

void write_annotation(modern_output& o, const annotation& a) {
    o.out.record(annotation_tag(a.what), [&] {
        switch (a.what) {
        case annotation_kind::guide_line:
            return write_guide_line(o, a);
        case annotation_kind::guide_point:
            return write_guide_point(o, a);
        case annotation_kind::text:
            return write_text(o, a);
        default:
            return write_linear_dimension(o, a);
        }
    });
}

} // namespace skp

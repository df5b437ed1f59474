// Guides, texts and dimensions in the classic container. A model keeps what they are, not where they lie: all are
// written at the origin and say nothing.

#include "sketchup/skp/writer/classic_bodies.h"

namespace skp {

namespace {

constexpr double without_end = 1e30; // how far a guide line goes

void write_guide_line(classic_output& c) {
    object_archive& out = c.out;
    out.v3({0, 0, 0}); // point
    out.v3({1, 0, 0}); // direction
    out.f64(-without_end);
    out.f64(without_end);
    out.u32(0); // stipple
}

void write_guide_point(classic_output& c) {
    object_archive& out = c.out;
    out.v3({0, 0, 0}); // position
    out.v3({0, 0, 0}); // other end
    out.boolean(false);
}

// A free point that holds on to nothing.
void write_point_reference(classic_output& c) {
    object_archive& out = c.out;
    out.u32(1); // kind: free
    out.u32(4); // form
    out.v3({0, 0, 0});
    out.null(); // entity
    out.null(); // second entity
    out.size(0);
    out.size(0);
}

void write_text(classic_output& c) {
    object_archive& out = c.out;
    mention_font(c);
    out.f64(0); // place on the screen
    out.f64(0);
    write_point_reference(c);
    out.v3({0, 0, 0}); // leader
    out.v3({0, 1, 0}); // view direction
    out.u32(2);        // kind of leader
    out.u32(1);        // line weight
    out.boolean(false);
    out.boolean(false);
    out.u32(3);         // arrow
    out.boolean(false); // the leader is shown
    out.str({});
    out.boolean(false);
    out.u32(0);
}

void write_dimension(classic_output& c) {
    object_archive& out = c.out;
    out.str({});
    mention_font(c);
    out.boolean(false); // in space
    out.u32(0);         // arrow
}

void write_linear_dimension(classic_output& c) {
    object_archive& out = c.out;
    write_dimension(c);
    write_point_reference(c);
    write_point_reference(c);
    out.v3({0, 0, 1}); // normal
    out.v3({1, 0, 0}); // x axis
    out.u32(0);        // kind
    out.f64(0);        // y
    out.f64(0);        // x
    out.u32(0);        // place of the text
}

void write_radial_dimension(classic_output& c) {
    object_archive& out = c.out;
    write_dimension(c);
    out.null(); // edge
    out.f64(0); // parameter
    out.f64(1); // ratio
    out.boolean(false);
    out.v3({0, 0, 0}); // centre
    out.v3({0, 0, 1}); // normal
    out.v3({1, 0, 0}); // x axis
    out.f64(0);        // angles
    out.f64(0);
    out.v3({0, 1, 0}); // y axis
}

void write_polyline(classic_output& c) {
    c.out.size(0);
}

struct annotation_class {
    sketchup::annotation_kind what;
    std::string_view name;
    void (*write)(classic_output&); // behind the drawing element
};

constexpr annotation_class classes[] = {
    {sketchup::annotation_kind::guide_line, "CConstructionLine", write_guide_line},
    {sketchup::annotation_kind::guide_point, "CConstructionPoint", write_guide_point},
    {sketchup::annotation_kind::text, "CText", write_text},
    {sketchup::annotation_kind::linear_dimension, "CDimensionLinear", write_linear_dimension},
    {sketchup::annotation_kind::radial_dimension, "CDimensionRadial", write_radial_dimension},
    {sketchup::annotation_kind::polyline, "CPolyline3d", write_polyline},
};

} // namespace

void mention_annotation(classic_output& c, sketchup::index annotation) {
    const sketchup::annotation& a = c.model.annotations[annotation];
    for (const annotation_class& one : classes)
        if (one.what == a.what)
            c.out.object(one.name, &a, [&] {
                write_drawing_element(c, a);
                one.write(c);
            });
}

} // namespace skp

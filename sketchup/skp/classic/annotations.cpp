// Guides, texts and dimensions: what is drawn for the draughtsman. Their kind, layer, visibility and attributes are
// kept, their layout on the screen is passed over.

#include "sketchup/skp/classic/model_reader.h"

namespace skp {

using sketchup::annotation;
using sketchup::annotation_kind;

annotation model_reader::begin_annotation(std::uint32_t slot, annotation_kind what) {
    annotation a = begin(m_.annotations, slot);
    a.what = what;
    read_drawing(a);
    return a;
}

// CConstructionGeometry
void model_reader::read_construction_geometry(std::uint32_t slot) {
    annotation a = begin_annotation(slot, annotation_kind::guide_line);
    keep(m_.annotations, slot, a);
}

// CConstructionPoint
void model_reader::read_construction_point(std::uint32_t slot) {
    annotation a = begin_annotation(slot, annotation_kind::guide_point);
    in_.v3();      // position
    in_.v3();      // other end
    in_.boolean(); // has another end
    keep(m_.annotations, slot, a);
}

// CConstructionLine
void model_reader::read_construction_line(std::uint32_t slot) {
    annotation a = begin_annotation(slot, annotation_kind::guide_line);
    in_.v3(); // point
    in_.v3(); // direction
    if (layout_.construction_line >= 1) {
        skip_doubles(2); // lower and upper parameter
        skip_numbers(1); // stipple
    }
    keep(m_.annotations, slot, a);
}

// CPolyline3d
void model_reader::read_polyline(std::uint32_t slot) {
    annotation a = begin_annotation(slot, annotation_kind::polyline);
    constexpr std::size_t point_size = 3 * sizeof(double);
    in_.skip(in_.count(point_size) * point_size);
    keep(m_.annotations, slot, a);
}

// CText
void model_reader::read_text(std::uint32_t slot) {
    annotation a = begin_annotation(slot, annotation_kind::text);
    ref(object_class::font);
    skip_doubles(2); // place on the screen
    read_point_reference();
    in_.v3();        // leader
    in_.v3();        // view direction
    skip_numbers(2); // kind of leader, line weight
    in_.boolean();
    in_.boolean();
    skip_numbers(1); // arrow
    in_.boolean();   // the leader is shown
    in_.text();
    in_.boolean();
    skip_numbers(1);
    keep(m_.annotations, slot, a);
}

// CDimensionLinear
void model_reader::read_dimension_linear(std::uint32_t slot) {
    annotation a = begin_annotation(slot, annotation_kind::linear_dimension);
    read_dimension_base();
    read_point_reference();
    read_point_reference();
    in_.v3();        // normal
    in_.v3();        // x axis
    skip_numbers(1); // kind
    skip_doubles(2); // y, x
    if (layout_.dimension_linear >= 6)
        skip_numbers(1); // place of the text
    keep(m_.annotations, slot, a);
}

// CDimensionRadial
void model_reader::read_dimension_radial(std::uint32_t slot) {
    annotation a = begin_annotation(slot, annotation_kind::radial_dimension);
    read_dimension_base();
    const object edge = ref(object_class::edge);
    skip_doubles(2); // parameter, ratio
    in_.boolean();   // a diameter
    if (edge.is_null()) {
        in_.v3();        // centre
        in_.v3();        // normal
        in_.v3();        // x axis
        skip_doubles(2); // angles
        in_.v3();        // y axis
    }
    keep(m_.annotations, slot, a);
}

// CDimension, behind its drawing element
void model_reader::read_dimension_base() {
    in_.text();
    if (layout_.dimension >= 1) {
        ref(object_class::font);
        in_.boolean();   // in space
        skip_numbers(1); // arrow
    }
}

// A point that a text or a dimension holds on to. It may introduce geometry that its list names later.
void model_reader::read_point_reference() {
    skip_numbers(1); // kind
    const std::uint32_t form = in_.u32();
    in_.v3();
    ref(pointed_classes);
    if (form >= 1)
        ref(pointed_classes);
    skip_list(listed_classes); // the instances on the way
    if (form >= 4)
        skip_list(listed_classes);
}

// CSkFont
void model_reader::read_font(std::uint32_t) {
    skip_entity();
    in_.text();      // face
    in_.boolean();   // bold
    in_.boolean();   // italic
    skip_numbers(1); // points
    if (layout_.font >= 1) {
        in_.boolean();   // world size in use
        skip_doubles(1); // world size
    }
}

} // namespace skp

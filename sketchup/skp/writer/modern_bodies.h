#pragma once

// The records of model.dat as the writer forms them, one function a class, in the order of the file. The counterpart of
// each stands in the modern reader under the same name with `read_`.

#include "sketchup/model/model.h"
#include "sketchup/skp/writer/id_book.h"
#include "sketchup/skp/writer/material_files.h"
#include "sketchup/skp/writer/record_sink.h"
#include "sketchup/skp/writer/written_boxes.h"

#include <cstdint>

namespace skp {

struct modern_output {
    const sketchup::model& model;
    std::uint16_t format; // one of skp/modern/formats.h
    const material_files& files;
    id_book ids;
    std::uint64_t font;             // id of the one font
    std::uint64_t style;            // id of the one display style
    std::uint64_t first_line_style; // id of the first; the others follow it
    written_boxes boxes;
    record_sink out;
};

// modern_attributes.cpp
// id: 0 for what nothing refers to. mapping: of a face, among its dictionaries; may be null.
void write_entity(modern_output& o, const sketchup::entity& e, std::uint64_t id,
                  const sketchup::texture_mapping* mapping = nullptr);
void write_attachments(modern_output& o, sketchup::index_range dictionaries,
                       const sketchup::texture_mapping* mapping = nullptr);
void write_properties(modern_output& o);
// The record of that number that holds a value other than nil.
void write_value(record_sink& out, std::uint16_t number, const sketchup::typed_value& value);
// A value in the record that says its type.
void write_typed_value(record_sink& out, const sketchup::typed_value& value);

// modern_geometry.cpp
struct drawing_flags {
    bool soft = false;
    bool smooth = false;
    bool locked = false;
};
void write_drawing_element(modern_output& o, const sketchup::drawing_element& e, std::uint64_t id,
                           drawing_flags flags = {}, const sketchup::texture_mapping* mapping = nullptr);
void write_vertex(modern_output& o, const sketchup::vertex& v);
void write_edge(modern_output& o, const sketchup::edge& e);
void write_face(modern_output& o, const sketchup::face& f);
void write_section_plane(modern_output& o, const sketchup::section_plane& s);
// edges: those of the curve in the order of the list that holds them.
void write_curve(modern_output& o, const sketchup::curve& c, const std::vector<sketchup::index>& edges);

// modern_annotations.cpp
// The tag of the records of a kind, 0 for one that the container is not known to hold.
std::uint16_t annotation_tag(sketchup::annotation_kind what);
void write_annotation(modern_output& o, const sketchup::annotation& a);

// modern_components.cpp
void write_definitions(modern_output& o);
// owner: the definition; of the model's own list a stand-in with the list's dictionaries. id: 0 for none.
// box: what the list is drawn in.
void write_entities(modern_output& o, const sketchup::entity_list& list, const sketchup::drawing_element& owner,
                    std::uint64_t id, const sketchup::box& box);
void write_behavior(modern_output& o, const sketchup::component_behavior& behavior);

// modern_materials.cpp
void write_materials(modern_output& o);
void write_layers(modern_output& o);

// modern_views.cpp
void write_camera(modern_output& o, const sketchup::camera& camera);
void write_rendering_options(modern_output& o, const sketchup::rendering_options& options);
void write_shadow_info(modern_output& o, const sketchup::shadow_info& info);
void write_axes(modern_output& o);
void write_scenes(modern_output& o);

// modern_defaults.cpp
void write_fonts(modern_output& o);
void write_text_defaults(modern_output& o);
void write_dimension_defaults(modern_output& o);
void write_options(modern_output& o);
void write_line_styles(modern_output& o);
void write_styles(modern_output& o);

} // namespace skp

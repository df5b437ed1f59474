#pragma once

// The bodies of the classic classes as the writer forms them, one function a class, in the order of the file. The
// counterpart of each stands in the classic reader under the same name with `read_`.

#include "sketchup/model/model.h"
#include "sketchup/skp/classic/option_fields.h"
#include "sketchup/skp/writer/object_archive.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace skp {

struct classic_output {
    const sketchup::model& model;
    object_archive& out;
    std::vector<std::uint32_t> edges_of_curves; // how many edges each curve has
    std::uint64_t next_id = 1;                  // larger than all persistent ids of the model and those given out
    std::size_t next_id_at = 0;                 // where the file states it
    char font = 0;                              // these stand for the one font and the one style of a file
    char style = 0;
};

// classic_attributes.cpp
void write_entity(classic_output& c, const sketchup::entity& e, const sketchup::texture_mapping* mapping = nullptr);
void mention_container(classic_output& c, const sketchup::entity& e, // null if the entity carries nothing
                       const sketchup::texture_mapping* mapping = nullptr);
void write_plain_entity(classic_output& c); // of what has neither attributes nor an id
void write_properties(classic_output& c);
void write_typed_value(classic_output& c, const sketchup::typed_value& value);

// classic_materials.cpp
void write_material(classic_output& c, const sketchup::material& m);
void mention_material(classic_output& c, sketchup::index material);
void write_layer_manager(classic_output& c);
void write_definition_layers(classic_output& c);
void mention_layer(classic_output& c, sketchup::index layer);

// classic_geometry.cpp
void write_drawing_element(classic_output& c, const sketchup::drawing_element& e, bool soft = false,
                           bool smooth = false, bool locked = false,
                           const sketchup::texture_mapping* mapping = nullptr);
void mention_face(classic_output& c, sketchup::index face);
// Whether every corner of the loop turns to the same side and the loop goes round once. normal: of its face.
bool is_convex(const sketchup::model& m, const sketchup::loop& loop, const sketchup::vec3& normal, bool is_outer);
void mention_edge(classic_output& c, sketchup::index edge);

// classic_components.cpp
// owner: the definition; of the model's own list a stand-in with the list's dictionaries and id.
void write_component(classic_output& c, const sketchup::entity_list& list, const sketchup::drawing_element& owner,
                     bool is_root);
void write_behavior(classic_output& c, const sketchup::component_behavior& behavior);

// classic_annotations.cpp
void mention_annotation(classic_output& c, sketchup::index annotation);

// classic_views.cpp
void write_camera(classic_output& c, const sketchup::camera& camera);
void write_rendering_options(classic_output& c, const sketchup::rendering_options& options,
                             const sketchup::shadow_info& shadows);
void write_shadow_info(classic_output& c, const sketchup::shadow_info& info);
// The value of an option of that type: the model's, else the usual one, else zero. name: null gives zero, but the flag
// of the shadows and the numbers of the sections need none.
void write_option(object_archive& out, option_type type, const char* name, const sketchup::rendering_options& options,
                  const sketchup::shadow_info& shadows);
void write_axes(classic_output& c);
void write_scenes(classic_output& c);

// classic_styles.cpp
void write_options(classic_output& c);
void write_dimension_style(classic_output& c);
void write_text_style(classic_output& c);
void write_fonts(classic_output& c);
void mention_font(classic_output& c);
void write_line_styles(classic_output& c);
void write_preview(classic_output& c);

// classic_style_items.cpp
void write_styles(classic_output& c);
void mention_style(classic_output& c);

} // namespace skp

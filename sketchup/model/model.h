#pragma once

// A SketchUp model in memory: flat arrays of plain structs that refer to one another by index. A handle of the C
// interface is a pointer to one of these structs, so no array grows once the model is linked.

#include "sketchup/model/values.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace sketchup {

struct model;

// Position in one of the model's arrays.
using index = std::uint32_t;
inline constexpr index no_index = 0xFFFFFFFF;

// A run of neighbours in one of the model's arrays.
struct index_range {
    index first = 0;
    index count = 0;
};

enum class entity_kind : std::uint8_t {
    model,
    entities,
    vertex,
    edge,
    face,
    group,
    component_instance,
    image,
    section_plane,
    annotation,
    curve,
    component_definition,
    layer,
    material,
    texture,
    attribute_dictionary,
    scene,
    camera,
    rendering_options,
    shadow_info,
};

// What everything with an identity begins with. The kind lets the C interface refuse a handle of another kind.
struct entity {
    explicit entity(entity_kind k) : kind(k) {}
    entity_kind kind;
    std::int32_t id = 0;            // handed out in reading order from 1 by model::give_id; never stored in a file
    std::int64_t persistent_id = 0; // 0 where the file stores none
    index_range dictionaries;       // in model::dictionaries
    model* owner = nullptr;         // set by link()
};

struct drawing_element : entity {
    using entity::entity;
    index material = no_index; // in model::materials; of a face: the front side's
    index layer = 0;           // in model::layers; 0 is the default layer
    bool hidden = false;
    bool casts_shadows = true;
    bool receives_shadows = true;
};

struct attribute_dictionary : entity { // its own `dictionaries` are those nested in it
    attribute_dictionary() : entity(entity_kind::attribute_dictionary) {}
    std::string name;
    std::vector<attribute> entries; // in the order of the file
    bool read_only = false;
};

struct vertex : entity {
    vertex() : entity(entity_kind::vertex) {}
    vec3 position;
};

struct curve : entity {
    curve() : entity(entity_kind::curve) {}
    bool is_arc = false;
    bool is_polygon = false;
    // Only of an arc; the axes are as long as the radius, the angles in radians, equal for a circle.
    vec3 center, normal, x_axis, y_axis;
    double start_angle = 0;
    double end_angle = 0;
};

struct edge : drawing_element {
    edge() : drawing_element(entity_kind::edge) {}
    index start = no_index;
    index end = no_index;
    index curve = no_index;
    bool soft = false;
    bool smooth = false;
    index_range faces; // in model::faces_of_edges; filled by link()
};

// One step of a loop. The corner that it leaves from is the edge's end if reversed, else its start.
struct edge_use {
    index edge = no_index;
    bool reversed = false;
    std::int64_t persistent_id = 0;
};

struct loop {
    index_range uses; // in model::edge_uses
};

// How the texture of one side of a face lies: [s t 1] · matrix ~ [x y 1], from inches of the texture to inches in the
// axes of the face's plane (of the plane across `direction`, if projected). Row by row.
struct side_mapping {
    bool positioned = false;
    bool projected = false;
    std::array<double, 9> matrix{1, 0, 0, 0, 1, 0, 0, 0, 1};
    vec3 direction;
};

struct texture_mapping {
    side_mapping front;
    side_mapping back;
};

struct face : drawing_element {
    face() : drawing_element(entity_kind::face) {}
    sketchup::plane plane;
    index_range loops; // in model::loops; the first is the outline, counter-clockwise against the normal
    index back_material = no_index;
    index texture_mapping = no_index; // in model::texture_mappings
    index_range cutters; // in model::cutters: what cuts openings into it, in the order of the file; filled by link()
};

// A group, a component instance or a placed image, told apart by `kind`.
struct placement : drawing_element {
    explicit placement(entity_kind k) : drawing_element(k) {}
    index definition = no_index;
    sketchup::transform transform = identity_transform; // the weight as stored
    std::string name;
    sketchup::guid guid{};
    bool locked = false;
};

struct section_plane : drawing_element {
    section_plane() : drawing_element(entity_kind::section_plane) {}
    sketchup::plane plane;
    std::string name;
    std::string symbol;
};

enum class annotation_kind : std::uint8_t {
    guide_line,
    guide_point,
    text,
    linear_dimension,
    radial_dimension,
    polyline
};

// What is drawn for the draughtsman and never rendered; kept for counts, attributes and boxes.
struct annotation : drawing_element {
    annotation() : drawing_element(entity_kind::annotation) {}
    annotation_kind what = annotation_kind::text;
};

// A face, or a placement of the kind that it says.
struct glue_end {
    entity_kind kind = entity_kind::face;
    index at = no_index;
    friend bool operator==(const glue_end&, const glue_end&) = default;
};

// That a placement lies on a face, or on another placement, and moves with it.
struct glue_relation {
    glue_end base;
    glue_end glued;
    friend bool operator==(const glue_relation&, const glue_relation&) = default;
};

// The content of the model or of one definition. Its own dictionaries are those of the model or the definition.
struct entity_list : entity {
    entity_list() : entity(entity_kind::entities) {}
    // Each in the order of the file.
    std::vector<index> faces;
    std::vector<index> edges;
    std::vector<index> groups;    // in model::placements
    std::vector<index> instances; // in model::placements
    std::vector<index> images;    // in model::placements
    std::vector<index> section_planes;
    std::vector<index> annotations;
    index active_section_plane = no_index;
    std::vector<glue_relation> glue; // both ends are there, though a damaged file may name those of another list
};

enum class definition_kind : std::uint8_t { component = 0, group = 1, image = 2 };

struct component_behavior {
    bool glues = false;
    bool cuts_opening = false;
    std::uint32_t snap_to = 0; // 0 any, 1 horizontal, 2 vertical, 3 sloped
    bool always_faces_camera = false;
    bool shadow_faces_sun = false;
    std::uint32_t no_scale_mask = 0;
};

struct component_definition : drawing_element {
    component_definition() : drawing_element(entity_kind::component_definition) {}
    definition_kind what = definition_kind::component;
    entity_list entities; // shares this definition's dictionaries
    sketchup::guid guid{};
    std::string name;
    std::string description;
    std::string path;
    std::uint32_t time = 0; // seconds since 1970
    vec3 insertion_point;
    component_behavior behavior;
};

struct layer : entity {
    layer() : entity(entity_kind::layer) {}
    std::string name;
    bool hidden = false;
    index material = no_index; // gives the layer's colour
    std::uint32_t page_behavior = 0;
    index folder = no_index; // in model::layer_folders
};

struct layer_folder {
    std::string name;
    index parent = no_index;
    bool hidden = false;
};

// The bytes of a picture file (JPEG, PNG, BMP, TIFF …; its signature tells which).
struct picture {
    std::string name; // entry or format, for messages
    std::uint32_t format =
        0; // as the classic container numbers it: 1 JPEG, 2 BMP, 3 TIFF, 4 PNG, 7 TGA, 8 PSD; 0 unknown
    std::uint32_t quality = 0;
    // Gives the stored bytes, unpacking them if need be. Throws skp::format_error if they are damaged.
    std::function<std::vector<std::uint8_t>()> load;
};

struct texture : entity {
    texture() : entity(entity_kind::texture) {}
    index picture = no_index; // in model::pictures; none if the file lacks it
    double width = 0;         // of one tile, inches
    double height = 0;
    std::string file_name; // as stored: a bare name or a path of any platform
    rgba average_color;
    index material = no_index; // whose texture it is; set by link()
};

enum class material_type : std::uint32_t { solid = 0, textured = 1, colorized = 2 };

struct material : entity {
    material() : entity(entity_kind::material) {}
    std::string name; // with the brackets of library materials
    rgba color;
    material_type type = material_type::solid;
    std::uint32_t colorize_type = 0; // 0 shift, 1 tint
    double transparency = 0;         // 0 opaque … 1 clear
    bool use_transparency = false;
    bool is_private = false;  // of a layer or an image; not in the host's list
    index texture = no_index; // in model::textures
};

struct camera : entity {
    camera() : entity(entity_kind::camera) {}
    vec3 eye;
    vec3 target;
    vec3 up{0, 0, 1};
    bool perspective = true;
    double field_of_view = 35; // degrees
    double height = 0;         // of a parallel view, inches
    double aspect = 0;         // 0: that of the window
    bool fov_is_vertical = true;
    bool two_dimensional = false;
};

// Rendering options by the names of the C interface ("DrawGround", "FaceFrontColor", …), in the order of the file.
struct rendering_options : entity {
    rendering_options() : entity(entity_kind::rendering_options) {}
    std::vector<attribute> values;
};

struct shadow_info : entity {
    shadow_info() : entity(entity_kind::shadow_info) {}
    std::int64_t time = 0; // seconds since 1970 of the local clock taken as if it were UTC
    bool daylight_saving = false;
    std::string city;
    std::string country;
    double longitude = 0; // degrees, east positive
    double latitude = 0;  // degrees, north positive
    double time_zone = 0; // hours east of UTC
    vec3 north{0, 1, 0};  // unit, in the model's xy plane
    bool display_shadows = false;
    bool display_north = false;
    bool display_on_all_faces = true;
    bool display_on_ground = true;
    bool edges_cast_shadows = false;
    std::int32_t light = 80;
    std::int32_t dark = 45;
    bool use_sun_for_all_shading = false;
};

struct scene : entity {
    scene() : entity(entity_kind::scene) {}
    std::string name;
    std::string description;
    std::uint32_t flags = 0; // which of the following the scene keeps, as stored
    index camera = no_index; // in model::cameras
    std::optional<sketchup::rendering_options> rendering_options;
    std::optional<sketchup::shadow_info> shadow_info;
    std::vector<index> hidden_layers;
    std::vector<index> active_section_planes;
    bool in_slide_show = true;
};

struct version_number {
    int major = 0;
    int minor = 0;
    int build = 0;
    friend bool operator==(const version_number&, const version_number&) = default;
};

struct model : entity {
    model() : entity(entity_kind::model) {}
    model(const model&) = delete;
    model& operator=(const model&) = delete;

    version_number version;
    sketchup::guid guid{};
    bool is_modern = false; // read from the archive container
    std::string description;
    index_range properties; // the file's own dictionaries, not those of the user

    entity_list root;                              // its dictionaries are the user's dictionaries of the model
    std::vector<component_definition> definitions; // in the host's order, all kinds mixed
    std::vector<layer> layers;                     // in the host's order; the default layer first
    std::vector<layer_folder> layer_folders;
    std::vector<material> materials;     // those of `listed_materials` and the private ones
    std::vector<index> listed_materials; // what the host lists, in its order
    std::vector<scene> scenes;
    index active_scene = no_index;
    sketchup::camera camera;
    sketchup::rendering_options rendering_options;
    sketchup::shadow_info shadow_info;

    std::vector<vertex> vertices;
    std::vector<curve> curves;
    std::vector<edge> edges;
    std::vector<edge_use> edge_uses;
    std::vector<loop> loops;
    std::vector<face> faces;
    std::vector<texture_mapping> texture_mappings;
    std::vector<placement> placements;
    std::vector<section_plane> section_planes;
    std::vector<annotation> annotations;
    std::vector<texture> textures;
    std::vector<picture> pictures;
    std::vector<sketchup::camera> cameras; // of scenes
    std::vector<attribute_dictionary> dictionaries;
    std::vector<index> faces_of_edges; // filled by link()
    std::vector<index> cutters;        // in placements; filled by link()

    // The next entity id. Ids begin at 1 and follow the reading order, so that a file always gives the same ones.
    std::int32_t give_id() { return ++last_id; }

private:
    std::int32_t last_id = 0;
};

} // namespace sketchup

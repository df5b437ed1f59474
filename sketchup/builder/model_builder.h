#pragma once

// Builds a model in memory with C++ code, for tests, fuzz seeds and examples. Lengths are inches.
//
//     model_builder m;
//     list_builder lamp = m.root().group("lamp");
//     const entity_place side = lamp.square(40);
//     m.face(side).material = m.material("Glow", {255, 240, 200, 255});
//     m.mapping(side).front.positioned = true;
//     m.attribute(lamp.placement(), "qlw_lamp", "type", text("1"));
//     m.set_option("DrawGround", truth(true));
//     std::vector<std::uint8_t> file = skp::write_classic(*m.finish(), skp::classic_version::v17);
//
// What has a name here is what takes more than one step; everything else is a field of the structs of model.h, reached
// through face(), edge(), placement(), definition(), element() and model().

#include "sketchup/model/model.h"

#include <cstdint>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace sketchup {

class model_builder;

// One entity of a model that is being built: it stays right while the model's arrays grow.
struct entity_place {
    entity_kind kind = entity_kind::model;
    // In the array of that kind, a member of the model: {entity_kind::layer, m.layer("Walls")}. For `entities` the
    // definition, no_index for the model itself; for a dictionary what model_builder::dictionary gave. The model, the
    // rendering options and the shadow info have none; the attributes of `model` are the file's own, not the user's.
    index at = no_index;
    auto operator<=>(const entity_place&) const = default;
};

// Attribute and option values. Those of other types are written as {value_code::…, data}.
typed_value text(std::string_view value);
typed_value whole_number(std::int32_t value);
typed_value real_number(double value);
typed_value truth(bool value);

// Placements.
transform moved(const vec3& by);
transform scaled(double x, double y, double z);
transform turned_about_z(double degrees);
transform after(const transform& outer, const transform& inner); // inner first, then outer

// Adds to one entity list: that of the model, of a group or of a component. Points closer than 1e-9 inch in every
// coordinate are one vertex; two vertices share one edge, as in the program.
class list_builder {
public:
    // A face with holes. outline, holes: at least 3 points each, in one plane, the last not repeated; the outline
    // counter-clockwise seen from the front. Holes are turned to run clockwise. Gives the face.
    entity_place face(std::span<const vec3> outline, std::span<const std::vector<vec3>> holes = {});
    entity_place face(std::initializer_list<vec3> outline);
    // A square of that side in the plane z = 0, from the origin, looking up.
    entity_place square(double side);
    // The six outward faces of a box between two corners; corner `low` below `high` in every coordinate.
    std::vector<entity_place> box(const vec3& low, const vec3& high);
    entity_place edge(const vec3& from, const vec3& to);
    // A curve whose parts are the edges between the points.
    std::vector<entity_place> polyline_curve(std::span<const vec3> points);
    // An arc of that many chords, counter-clockwise about the third axis. x_axis, y_axis: at right angles and as long
    // as the radius; angles in radians from the x axis. Gives its edges.
    std::vector<entity_place> arc(const vec3& center, const vec3& x_axis, const vec3& y_axis, double start_angle,
                                  double end_angle, int chords);
    entity_place section_plane(const plane& where, bool active = false, std::string_view name = {});
    // A guide, text or dimension. Where it lies and what it says is not kept in a model.
    entity_place annotation(annotation_kind what);

    // A group with a definition of its own; adds to it through the result.
    list_builder group(std::string_view name = {}, const transform& where = identity_transform);
    // A second group that shares the definition of `other`.
    entity_place copy_of_group(const list_builder& other, const transform& where);
    // A placement of a component.
    entity_place instance(const list_builder& component, const transform& where = identity_transform,
                          std::string_view name = {});
    // A placement of an image made by model_builder::image_definition.
    entity_place image(index image_definition, const transform& where = identity_transform);

    // Glues a placement to a face, or to another placement, of this list. The transform of the placement is left as it
    // is: one that is to cut an opening has its plane z = 0 in the face's plane.
    void glue(entity_place placement, entity_place to);

    // The group through which this list was made. Only for groups.
    entity_place placement() const { return placement_; }
    // The list itself: the model's or the definition's attributes hang on it.
    entity_place list() const { return {entity_kind::entities, definition_}; }
    index definition() const { return definition_; }

private:
    friend class model_builder;
    list_builder(model_builder& builder, index definition, entity_place placement = {})
        : builder_(&builder), definition_(definition), placement_(placement) {}
    entity_list& entities() const;
    index vertex_at(const vec3& point) const;
    edge_use use_between(index from, index to) const;
    index add_loop(std::span<const vec3> points) const;
    std::vector<entity_place> edges_of_curve(curve made, std::span<const vec3> points);
    entity_place place(entity_kind kind, index definition, const transform& where, std::string_view name) const;

    model_builder* builder_;
    index definition_;
    entity_place placement_;
};

class model_builder {
public:
    // An empty model with the layer "Layer0".
    model_builder();

    list_builder root() { return {*this, no_index}; }
    // A component without a placement yet; adds to its content through the result.
    list_builder component(std::string_view name);
    // The hidden definition of an image of that many pixels, with a private material of that picture.
    index image_definition(std::vector<std::uint8_t> picture_file, std::string_view file_name, double pixels_wide,
                           double pixels_high);

    index layer(std::string_view name, bool visible = true, rgba color = {255, 255, 255, 255});
    // A folder of layers, within `parent` if that is one; a layer enters it by its field `folder`.
    index layer_folder(std::string_view name, index parent = no_index, bool visible = true);
    index material(std::string_view name, rgba color, double opacity = 1);
    // picture_file: a whole JPEG, PNG or BMP file; tile size in inches.
    index textured_material(std::string_view name, std::vector<std::uint8_t> picture_file, std::string_view file_name,
                            double tile_width, double tile_height);
    // A scene that keeps nothing of the view yet.
    index scene(std::string_view name, bool active = false);
    // The camera that the scene keeps, made at the first call. The reference holds until the next camera.
    camera& scene_camera(index scene);

    // The dictionary of that name on the entity, made at the first call. As the owner of others it nests them.
    entity_place dictionary(entity_place owner, std::string_view name);
    // Appends a value to that dictionary. key: not empty.
    void attribute(entity_place owner, std::string_view dictionary, std::string_view key, typed_value value);
    // Sets a rendering option of the model by its name in the C interface ("DrawGround", "FaceFrontColor", …).
    // Those that are not set get their usual values when the model is written.
    void set_option(std::string_view name, typed_value value);

    // The struct behind a place, to be changed. The reference holds until the next addition to the model.
    drawing_element& element(entity_place where);
    sketchup::face& face(entity_place where) { return model_->faces[where.at]; }
    // How textures lie on the face: at first in neither side's way, which is the default of both.
    texture_mapping& mapping(entity_place face);
    sketchup::edge& edge(entity_place where) { return model_->edges[where.at]; }
    sketchup::placement& placement(entity_place where) { return model_->placements[where.at]; }
    component_definition& definition(const list_builder& list) { return model_->definitions[list.definition()]; }
    sketchup::model& model() { return *model_; }

    // Hands out the model, with its attributes in place, not linked: a writer takes it so, skp::link makes it readable.
    // The builder is empty afterwards.
    std::unique_ptr<sketchup::model> finish();

private:
    friend class list_builder;
    entity& entity_at(entity_place where);
    void place_dictionaries();
    entity_list& list_of(index definition);
    index add_definition(std::string_view name, definition_kind kind);
    index add_picture(std::vector<std::uint8_t> picture_file, std::string_view file_name);
    index add_texture(index picture, std::string_view file_name, double tile_width, double tile_height);
    template<class T>
    index add(std::vector<T>& array, T value) {
        value.id = model_->give_id();
        array.push_back(std::move(value));
        return static_cast<index>(array.size() - 1);
    }

    std::unique_ptr<sketchup::model> model_;
    std::vector<attribute_dictionary> dictionaries_;                               // in the order of their making
    std::map<entity_place, std::vector<index>> dictionaries_of_;                   // in dictionaries_, by owner
    std::map<std::tuple<index, long long, long long, long long>, index> vertices_; // by list and point
    std::map<std::tuple<index, index>, index> edges_;                              // by lower and higher vertex
};

} // namespace sketchup

#pragma once

// Reads the body of a classic file into a model. Each class of the file has one function that follows its fields in
// their order; object_table.cpp names them all. Members are grouped by the file that holds them.

#include "sketchup/model/model.h"
#include "sketchup/skp/classic/archive.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace skp {

// How deep objects may be introduced inside one another. A definition that is introduced at its first placement takes
// two steps, so 1000 of them fit and some more. The reader recurses along them with about 300 bytes of stack a step,
// which keeps the deepest file within the smallest stack in use, one megabyte.
inline constexpr int deepest_object_nesting = 2100;

class model_reader {
public:
    // file: the whole file, kept alive by the pictures. in: stands behind the header's last string. m: empty.
    model_reader(std::shared_ptr<const std::vector<std::uint8_t>> file, archive& in, sketchup::model& m);

    // Reads to the last byte. Throws format_error.
    void read();

private:
    using index = sketchup::index;
    using body_reader = void (model_reader::*)(std::uint32_t slot);

    struct class_entry {
        const char* name;
        object_class what;
        body_reader read;
    };
    static const class_entry object_table[];
    friend object_class class_named(std::string_view name);
    friend const char* name_of(object_class c);

    // An object that a tag named, and where it is kept: an index into the array of its class.
    struct object {
        object_class what = object_class::none;
        index place = sketchup::no_index;
        bool is_null() const { return what == object_class::none; }
    };

    // What an attribute container held. The element that owns it takes it over.
    struct container {
        sketchup::index_range dictionaries;
        index texture_mapping = sketchup::no_index;
        bool complete = false;
    };

    // The fields of a drawing element that only some kinds keep.
    struct drawing_fields {
        bool soft = false;
        bool smooth = false;
        bool locked = false;
        index texture_mapping = sketchup::no_index;
    };

    // Picture bytes as they stand in the file. They become a picture of the model when a texture asks for them.
    struct stored_picture {
        std::uint32_t format = 4;
        std::uint32_t quality = 0;
        std::size_t offset = 0;
        std::size_t size = 0;
        index picture = sketchup::no_index;
    };

    struct stored_material {
        sketchup::material material;
        std::optional<sketchup::texture> texture;
    };

    // While one of these lives, messages speak of that class.
    class reading {
    public:
        reading(archive& in, const char* what) : in_(in), before_(in.where()) { in_.set_where(what); }
        ~reading() { in_.set_where(before_); }
        reading(const reading&) = delete;
        reading& operator=(const reading&) = delete;

    private:
        archive& in_;
        const char* before_;
    };

    // A new element of one of the model's arrays: it has its place and its id before its body is read, since the body
    // may hold objects that refer to it. keep() puts it where its place is.
    template<class T, class... Arguments>
    T begin(std::vector<T>& elements, std::uint32_t slot, Arguments... arguments) {
        in_.set_place(slot, static_cast<index>(elements.size()));
        elements.emplace_back(arguments...).id = m_.give_id();
        return elements.back();
    }
    template<class T>
    void keep(std::vector<T>& elements, std::uint32_t slot, T& finished) {
        elements[in_.place_of(slot)] = std::move(finished);
    }

    // object_table.cpp
    [[noreturn]] void fail_expected(class_set accepted, object_class found);
    void read_object(const object_tag& tag);

    // objects.cpp
    object ref(class_set accepted);
    object required_ref(class_set accepted);
    object introduced_here(object_class what);
    std::uint32_t list_count();
    void skip_list(class_set accepted);
    void skip_numbers(std::size_t count) { in_.skip(count * sizeof(std::uint32_t)); }
    void skip_doubles(std::size_t count) { in_.skip(count * sizeof(double)); }

    // model_order.cpp
    void read_model_head();
    void read_root();
    void read_model_tail();
    void read_style_list();
    void finish_definitions();
    void finish_layers();

    // attributes.cpp
    index read_entity(sketchup::entity& e);
    void skip_entity();
    drawing_fields read_drawing(sketchup::drawing_element& e);
    std::int64_t read_persistent_id();
    container container_ref();
    void read_attribute_container(std::uint32_t slot);
    void read_attribute_named(std::uint32_t slot);
    void read_face_texture_coords(std::uint32_t slot);
    std::vector<sketchup::attribute> read_entries();

    // geometry.cpp
    void read_vertex(std::uint32_t slot);
    void read_edge(std::uint32_t slot);
    void read_curve(std::uint32_t slot);
    void read_arc_curve(std::uint32_t slot);
    void read_curve_fields(sketchup::curve& c);
    void read_edge_use(std::uint32_t slot);
    void read_loop(std::uint32_t slot);
    void read_face(std::uint32_t slot);
    void read_section_plane(std::uint32_t slot);
    sketchup::plane read_plane();

    // components.cpp
    void read_component(sketchup::drawing_element& base, sketchup::entity_list& list, bool is_root);
    void read_definition_list(bool is_root);
    void read_entity_list(sketchup::entity_list& list);
    void read_relationships(sketchup::entity_list& list);
    void read_relationship(std::uint32_t slot);
    sketchup::glue_end glue_end_ref(class_set accepted);
    void read_component_definition(std::uint32_t slot);
    void read_definition_rest(sketchup::component_definition& d);
    sketchup::component_behavior read_component_behavior();
    void read_component_instance(std::uint32_t slot) {
        read_placement(slot, sketchup::entity_kind::component_instance);
    }
    void read_group(std::uint32_t slot) { read_placement(slot, sketchup::entity_kind::group); }
    void read_image(std::uint32_t slot) { read_placement(slot, sketchup::entity_kind::image); }
    void read_placement(std::uint32_t slot, sketchup::entity_kind kind);
    void read_placement_rest(sketchup::placement& p);

    // annotations.cpp
    void read_construction_geometry(std::uint32_t slot);
    void read_construction_point(std::uint32_t slot);
    void read_construction_line(std::uint32_t slot);
    void read_polyline(std::uint32_t slot);
    void read_text(std::uint32_t slot);
    void read_dimension_linear(std::uint32_t slot);
    void read_dimension_radial(std::uint32_t slot);
    void read_dimension_base();
    void read_point_reference();
    void read_font(std::uint32_t slot);
    sketchup::annotation begin_annotation(std::uint32_t slot, sketchup::annotation_kind what);

    // materials.cpp
    void read_material_manager(bool is_root);
    void read_material(std::uint32_t slot);
    stored_material read_material_body(std::int32_t id);
    sketchup::texture read_texture();
    void keep_texture(stored_material& stored);
    void read_dib(std::uint32_t slot);
    index read_dib_body();
    index picture_of(index stored);

    // layers.cpp
    void read_layer_manager(bool is_root);
    void read_layer(std::uint32_t slot);
    stored_material read_display_material();
    void read_layer_group(std::uint32_t slot);
    void read_layer_group_body(index folder);
    void read_line_style(std::uint32_t slot);

    // view.cpp
    void read_camera(std::uint32_t slot);
    sketchup::camera read_old_camera();
    sketchup::camera camera_ref();
    void read_thumbnail(std::uint32_t slot);
    sketchup::shadow_info read_shadow_info();
    void skip_axes();

    // scenes.cpp
    void read_page_list();
    void read_view_page(std::uint32_t slot);
    void read_kept_settings(sketchup::scene& s);
    void read_kept_lists(sketchup::scene& s);
    void read_page_rest(sketchup::scene& s);

    // rendering_options.cpp
    sketchup::rendering_options read_rendering_options(bool& display_shadows);

    // styles.cpp
    void skip_options();
    void skip_dimension_style();
    void skip_text_style();
    void read_style(std::uint32_t slot);
    void skip_style_item(std::uint32_t style_form);
    void skip_sketchy_edges();
    void skip_style_value();
    void read_watermark(std::uint32_t slot);
    void read_background_image(std::uint32_t slot);
    void read_schema_zip_file(std::uint32_t slot);

    std::shared_ptr<const std::vector<std::uint8_t>> file_;
    archive& in_;
    sketchup::model& m_;
    const layout_numbers& layout_;

    int depth_ = 0;
    index open_loop_ = sketchup::no_index; // the loop whose uses are being read
    bool in_properties_ = false;           // in the file's own dictionaries: none is handed out, so none takes an id
    bool in_private_layers_ = false;       // in the list of layers that a definition has for itself

    // These two hold one another, so they wait for the model where their addresses stay when more are introduced.
    std::deque<sketchup::component_definition> definitions_;
    std::deque<sketchup::placement> placements_;
    std::vector<container> containers_;
    std::vector<sketchup::attribute_dictionary> open_dictionaries_; // of unfinished containers, the innermost's last
    std::vector<stored_picture> stored_pictures_;
    std::vector<sketchup::camera> cameras_; // every camera of the file; a few become those of the model and its scenes
    std::vector<sketchup::glue_relation> relations_;
    std::vector<index> definition_order_; // as the root lists them
    std::vector<index> layer_order_;      // as the root lists them
};

} // namespace skp

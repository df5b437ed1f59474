#pragma once

// Reads model.dat into a model. Each class of the document has one function that looks at its records by tag; a table
// names those of entity lists. Members are grouped by the file that holds them.

#include "sketchup/model/model.h"
#include "sketchup/skp/modern/entry_source.h"
#include "sketchup/skp/modern/id_table.h"
#include "sketchup/skp/modern/material_document.h"
#include "sketchup/skp/modern/records.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace skp::modern {

class model_data_reader {
public:
    // beside: the documents and pictures of materials. m: empty.
    model_data_reader(std::shared_ptr<entry_source> beside, sketchup::model& m) : beside_(std::move(beside)), m_(m) {}

    // document: model.dat. Throws format_error.
    void read(byte_cursor document);

private:
    using index = sketchup::index;

    // The kinds of elements of an entity list, in the order of the file; the rows of list_table.
    enum list_row : std::size_t {
        vertices,
        curves,
        arcs,
        edges,
        faces,
        instances,
        groups,
        images,
        section_planes,
        guide_lines,
        guide_points,
        texts,
        dimensions,
        list_rows,
    };
    struct list_entry {
        std::uint16_t list;
        std::uint16_t item;
        std::vector<index> sketchup::entity_list::*members; // none for what is no drawing element
        void (model_data_reader::*read)(byte_cursor item, sketchup::entity_list& list);
    };
    static const std::array<list_entry, list_rows> list_table;
    using list_counts = std::array<std::size_t, list_rows>;

    // The fields of a drawing element that only some kinds keep.
    struct drawing_flags {
        bool soft = false;
        bool smooth = false;
        bool locked = false;
    };

    // model_data.cpp
    void read_content(byte_cursor definition_list, byte_cursor root);
    std::vector<byte_cursor> index_definitions(byte_cursor list);
    void reserve_elements(const std::vector<byte_cursor>& definitions, byte_cursor root);

    // attributes.cpp
    void read_entity(byte_cursor in, sketchup::entity& e, std::optional<byte_cursor>* texture_mapping = nullptr);
    drawing_flags read_drawing_element(byte_cursor in, sketchup::drawing_element& e,
                                       std::optional<byte_cursor>* texture_mapping = nullptr);
    sketchup::index_range read_attachments(byte_cursor holder, std::optional<byte_cursor>* texture_mapping = nullptr);
    sketchup::attribute_dictionary read_dictionary(byte_cursor in);
    sketchup::index_range keep_dictionaries(std::vector<sketchup::attribute_dictionary>& found);

    // entity_lists.cpp
    void read_entities(byte_cursor in, sketchup::drawing_element& base, sketchup::entity_list& list);
    void read_lists(const std::array<std::optional<byte_cursor>, list_rows>& lists, sketchup::entity_list& list);
    static void add_counts(byte_cursor in, list_counts& counts);
    void read_annotation(std::optional<byte_cursor> drawing, sketchup::annotation_kind what,
                         sketchup::entity_list& list);
    void read_guide_line(byte_cursor in, sketchup::entity_list& list);
    void read_guide_point(byte_cursor in, sketchup::entity_list& list);
    void read_text(byte_cursor in, sketchup::entity_list& list);
    void read_linear_dimension(byte_cursor in, sketchup::entity_list& list);

    // glue.cpp
    void read_glue(const std::vector<byte_cursor>& managers, sketchup::entity_list& list);

    // section_planes.cpp
    void read_section_plane(byte_cursor in, sketchup::entity_list& list);
    void read_active_section_plane(byte_cursor id, sketchup::entity_list& list);
    void read_unknown_lists(const std::vector<byte_cursor>& unknown, sketchup::entity_list& list);
    void read_possible_section_plane(byte_cursor in, sketchup::entity_list& list);
    void keep_section_plane(byte_cursor drawing, sketchup::section_plane s, sketchup::entity_list& list);

    // geometry.cpp
    void read_vertex(byte_cursor in, sketchup::entity_list& list);
    void read_curve(byte_cursor in, sketchup::entity_list& list);
    void read_arc(byte_cursor in, sketchup::entity_list& list);
    void read_curve_base(byte_cursor in, sketchup::curve& c);
    void keep_curve(const sketchup::curve& c);
    void read_edge(byte_cursor in, sketchup::entity_list& list);
    void read_face(byte_cursor in, sketchup::entity_list& list);
    bool read_loops(byte_cursor in);
    bool read_loop(byte_cursor in);
    index read_texture_mapping(byte_cursor in);

    // components.cpp
    void read_definition(byte_cursor in, sketchup::component_definition& d);
    void read_instance(byte_cursor in, sketchup::entity_list& list);
    void read_group(byte_cursor in, sketchup::entity_list& list);
    void read_image(byte_cursor in, sketchup::entity_list& list);
    void read_placement(std::optional<byte_cursor> in, sketchup::entity_kind kind, std::vector<index>& members);

    // materials.cpp
    void read_materials(byte_cursor list);
    index read_material(byte_cursor in);
    void take_document(const std::string& folder, sketchup::material& material);
    index read_texture(const texture_fields& fields, const std::string& folder);
    index picture_of(const std::string& folder, const std::string& path);

    // layers.cpp
    void read_layers(byte_cursor list);
    void read_layer(byte_cursor in);
    void read_folder(byte_cursor in, index place, int depth);

    // view.cpp
    sketchup::camera read_camera(byte_cursor in);
    sketchup::shadow_info read_shadow_info(byte_cursor in);

    // rendering_options.cpp
    sketchup::rendering_options read_rendering_options(byte_cursor in);

    // scenes.cpp
    void read_scenes(byte_cursor manager);
    void read_scene(byte_cursor in);
    void read_scene_base(byte_cursor in, sketchup::scene& s);

    std::shared_ptr<entry_source> beside_;
    sketchup::model& m_;

    // Of the whole model.
    id_table materials_;
    id_table layers_;
    id_table definitions_;
    id_table scenes_;
    std::unordered_map<std::uint64_t, index> section_planes_;
    std::unordered_set<std::string> used_folders_; // of materials
    std::unordered_map<std::string, index> pictures_;

    // Of the entity list that is being read.
    id_table vertices_;
    id_table curves_;
    id_table edges_;
    int dictionary_depth_ = 0;
};

} // namespace skp::modern

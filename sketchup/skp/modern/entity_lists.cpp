// The content of the model or of one definition: lists of elements by kind, and annotations, which need no more.

#include "sketchup/skp/modern/model_data_reader.h"
#include "sketchup/skp/modern/tags.h"

#include <algorithm>

namespace skp::modern {

using sketchup::annotation_kind;
using sketchup::entity_list;

// In the order of the file, which is also that in which elements refer to one another.
const std::array<model_data_reader::list_entry, model_data_reader::list_rows> model_data_reader::list_table = {{
    {tag::entities_vertices, tag::vertex, nullptr, &model_data_reader::read_vertex},
    {tag::entities_curves, tag::curve, nullptr, &model_data_reader::read_curve},
    {tag::entities_arcs, tag::arc, nullptr, &model_data_reader::read_arc},
    {tag::entities_edges, tag::edge, &entity_list::edges, &model_data_reader::read_edge},
    {tag::entities_faces, tag::face, &entity_list::faces, &model_data_reader::read_face},
    {tag::entities_instances, tag::placement, &entity_list::instances, &model_data_reader::read_instance},
    {tag::entities_groups, tag::group, &entity_list::groups, &model_data_reader::read_group},
    {tag::entities_images, tag::image, &entity_list::images, &model_data_reader::read_image},
    {tag::entities_section_planes, tag::section_plane, &entity_list::section_planes,
     &model_data_reader::read_section_plane},
    {tag::entities_guide_lines, tag::guide_line, &entity_list::annotations, &model_data_reader::read_guide_line},
    {tag::entities_guide_points, tag::guide_point, &entity_list::annotations, &model_data_reader::read_guide_point},
    {tag::entities_texts, tag::text, &entity_list::annotations, &model_data_reader::read_text},
    {tag::entities_dimensions, tag::linear_dimension, &entity_list::annotations,
     &model_data_reader::read_linear_dimension},
}};

namespace {

bool is_known_but_unused(std::uint16_t number) {
    constexpr std::uint16_t unused[] = {tag::entities_order, tag::entities_has_box, tag::entities_box};
    return std::ranges::find(unused, number) != std::end(unused);
}

bool may_be_of_entities(std::uint16_t number) {
    constexpr std::uint16_t numbers_of_a_class = 500;
    return number > tag::entities && number < tag::entities + numbers_of_a_class;
}

} // namespace

// 5000. base: takes the fields that the list holds for its owner.
void model_data_reader::read_entities(byte_cursor in, sketchup::drawing_element& base, entity_list& list) {
    in.set_where("entities");
    std::array<std::optional<byte_cursor>, list_rows> lists;
    std::vector<byte_cursor> glue;
    std::optional<byte_cursor> active_section_plane;
    std::vector<byte_cursor> unknown;
    list.id = m_.give_id();
    for (const record& r : records(in)) {
        const auto row = std::ranges::find(list_table, r.tag, &list_entry::list);
        if (row != list_table.end())
            lists[static_cast<std::size_t>(row - list_table.begin())] = r.payload;
        else if (r.tag == tag::drawing_element)
            read_drawing_element(r.payload, base);
        else if (r.tag == tag::entities_glue)
            glue.push_back(r.payload);
        else if (r.tag == tag::entities_active_section_plane)
            active_section_plane = r.payload;
        else if (may_be_of_entities(r.tag) && !is_known_but_unused(r.tag))
            unknown.push_back(r.payload);
    }
    list.dictionaries = base.dictionaries;
    list.persistent_id = base.persistent_id;
    read_lists(lists, list);
    read_glue(glue, list);
    if (active_section_plane)
        read_active_section_plane(*active_section_plane, list);
    read_unknown_lists(unknown, list);
}

void model_data_reader::read_lists(const std::array<std::optional<byte_cursor>, list_rows>& lists, entity_list& list) {
    list_counts counts{};
    for (std::size_t row = 0; row < list_rows; ++row)
        if (lists[row])
            counts[row] = count_of(*lists[row], list_table[row].item);
    vertices_.reset(counts[vertices]);
    curves_.reset(counts[curves] + counts[arcs]);
    edges_.reset(counts[edges]);
    for (std::size_t row = 0; row < list_rows; ++row) {
        if (!lists[row])
            continue;
        const list_entry& kind = list_table[row];
        if (kind.members != nullptr)
            (list.*kind.members).reserve((list.*kind.members).size() + counts[row]);
        for (const record& item : records(*lists[row]))
            if (item.tag == kind.item)
                (this->*kind.read)(item.payload, list);
    }
}

// How many elements of each kind the content holds, added to counts.
void model_data_reader::add_counts(byte_cursor in, list_counts& counts) {
    for (const record& r : records(in)) {
        const auto row = std::ranges::find(list_table, r.tag, &list_entry::list);
        if (row != list_table.end())
            counts[static_cast<std::size_t>(row - list_table.begin())] += count_of(r.payload, row->item);
    }
}

void model_data_reader::read_annotation(std::optional<byte_cursor> drawing, annotation_kind what, entity_list& list) {
    if (!drawing)
        return;
    list.annotations.push_back(static_cast<index>(m_.annotations.size()));
    sketchup::annotation& a = m_.annotations.emplace_back();
    a.id = m_.give_id();
    a.what = what;
    read_drawing_element(*drawing, a);
}

// 17001
void model_data_reader::read_guide_line(byte_cursor in, entity_list& list) {
    read_annotation(descend(in, {tag::guide, tag::drawing_element}), annotation_kind::guide_line, list);
}

// 17004
void model_data_reader::read_guide_point(byte_cursor in, entity_list& list) {
    read_annotation(descend(in, {tag::guide, tag::drawing_element}), annotation_kind::guide_point, list);
}

// 22000
void model_data_reader::read_text(byte_cursor in, entity_list& list) {
    read_annotation(descend(in, {tag::drawing_element}), annotation_kind::text, list);
}

// 23500
void model_data_reader::read_linear_dimension(byte_cursor in, entity_list& list) {
    read_annotation(descend(in, {tag::dimension, tag::drawing_element}), annotation_kind::linear_dimension, list);
}

} // namespace skp::modern

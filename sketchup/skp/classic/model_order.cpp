// The body of a classic file from the version map to the last byte: which part follows which, and since when.
//
// The numbers of CSketchUpModel and the releases that write them: 10 is SketchUp 3, 12 is said to be 4 and 5, 18 is 6,
// 21 and 22 are 7, 22 is 8 and 2013, 24 is 2014 and 2015, 25 is 2016, 26 is 2017, 28 is 2018, 29 is 2019 and 2020. No
// release is known for the others, so a condition here may lie anywhere between two of these.

#include "sketchup/skp/classic/model_reader.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace skp {

void model_reader::read() {
    in_.read_version_map();
    in_.set_where("CSketchUpModel");
    m_.id = m_.give_id();
    read_model_head();
    read_root();
    read_model_tail();
    if (!in_.at_end())
        in_.fail(std::to_string(in_.left()) + " bytes behind the model");
    finish_definitions();
    finish_layers();
}

// All before the root component.
void model_reader::read_model_head() {
    const int number = layout_.model;
    if (number >= 7)
        skip_numbers(2); // the second is a code page
    if (number >= 18)
        skip_numbers(1); // product family
    if (number >= 26)
        in_.u64(); // next persistent id
    if (number > 3) {
        ref(object_class::dib); // thumbnail
        in_.boolean();          // to be made anew
    }
    read_component_behavior(); // of the model when it is used as a component
    m_.description = in_.text();
    if (number >= 21) {
        skip_options();
        in_properties_ = true;
        m_.properties = container_ref().dictionaries;
        in_properties_ = false;
        ref(object_class::dib); // a second thumbnail
    }
    m_.camera = number >= 11 ? camera_ref() : read_old_camera();
    m_.rendering_options = read_rendering_options(m_.shadow_info.display_shadows);
    skip_numbers(1);
    if (number >= 18)
        skip_numbers(1); // checked flag
}

void model_reader::read_root() {
    sketchup::drawing_element unused(sketchup::entity_kind::entities);
    read_component(unused, m_.root, true);
}

// All behind the root component.
void model_reader::read_model_tail() {
    const int number = layout_.model;
    const bool display_shadows = m_.shadow_info.display_shadows;
    m_.shadow_info = read_shadow_info();
    m_.shadow_info.display_shadows = display_shadows;
    read_page_list();
    skip_axes();
    skip_numbers(16);
    if (number < 21)
        skip_options();
    if (number >= 8)
        skip_dimension_style();
    if (number >= 10)
        skip_text_style();
    skip_entity(); // of the font manager
    skip_list(object_class::font);
    if (number >= 29) {
        skip_entity(); // of the line style manager
        skip_list(object_class::line_style);
    }
    if (number == 13 || number > 14)
        ref(object_class::background_image);
    if (number >= 14)
        read_style_list();
    if (number >= 16) {
        skip_entity(); // of the watermark manager
        skip_list(object_class::watermark);
    }
    if (number >= 20)
        skip_numbers(1);
    if (number >= 22)
        in_.boolean();
    if (number >= 24)
        skip_list(object_class::schema_zip_file);
    if (number > 26)
        skip_numbers(1);
}

// CSkpStyleManager
void model_reader::read_style_list() {
    skip_entity();
    const std::uint32_t count = list_count();
    for (std::uint32_t i = 0; i < count; ++i)
        ref(object_class::style);
    if (count == 0)
        return;
    ref(object_class::style); // the active one
    ref(object_class::style); // the current settings
    in_.boolean();            // these differ from it
}

namespace {

using sketchup::index;
using sketchup::no_index;

// The new position of each of count elements: those that are listed in the order of the list, the others behind them.
std::vector<index> new_positions(const std::vector<index>& listed, std::size_t count) {
    std::vector<index> position(count, no_index);
    index next = 0;
    for (const index i : listed)
        if (position[i] == no_index)
            position[i] = next++;
    for (index& p : position)
        if (p == no_index)
            p = next++;
    return position;
}

template<class Elements, class T>
void put_in_order(Elements& elements, const std::vector<index>& position, std::vector<T>& sorted) {
    sorted.resize(elements.size());
    for (std::size_t i = 0; i < elements.size(); ++i)
        sorted[position[i]] = std::move(elements[i]);
}

template<class T>
void move_layers(std::vector<T>& elements, const std::vector<index>& position) {
    for (T& e : elements)
        e.layer = position[e.layer];
}

} // namespace

// A definition may have been written inside the list of another one; the root's list tells the order.
void model_reader::finish_definitions() {
    const std::vector<index> position = new_positions(definition_order_, definitions_.size());
    put_in_order(definitions_, position, m_.definitions);
    m_.placements.reserve(placements_.size());
    for (sketchup::placement& p : placements_) {
        p.definition = position[p.definition];
        m_.placements.push_back(std::move(p));
    }
}

// Likewise the layers, of which the first is the default one and always there.
void model_reader::finish_layers() {
    if (m_.layers.empty()) {
        sketchup::layer& l = m_.layers.emplace_back();
        l.id = m_.give_id();
        l.name = "Layer0";
    }
    const std::vector<index> position = new_positions(layer_order_, m_.layers.size());
    if (std::ranges::is_sorted(position))
        return;
    std::vector<sketchup::layer> listed;
    put_in_order(m_.layers, position, listed);
    m_.layers = std::move(listed);
    move_layers(m_.definitions, position);
    move_layers(m_.edges, position);
    move_layers(m_.faces, position);
    move_layers(m_.placements, position);
    move_layers(m_.section_planes, position);
    move_layers(m_.annotations, position);
    for (sketchup::scene& s : m_.scenes)
        for (index& l : s.hidden_layers)
            l = position[l];
}

} // namespace skp

#pragma once

// The version map of a classic file: which layout of each class the file uses.

#include <cstdint>
#include <string_view>

namespace skp {

// The map's number for each class whose layout changed; -1 for a class that the map does not name. Base classes and
// classes that never have a tag count too: their numbers gate their part of every body.
struct layout_numbers {
    static constexpr int absent = -1;
    int attribute_named = absent;
    int camera = absent;
    int component_behavior = absent;
    int component_instance = absent; // of groups and images too
    int construction_line = absent;
    int curve = absent;
    int custom_line_style = absent;
    int dib = absent;
    int dimension = absent;
    int dimension_linear = absent;
    int drawing_element = absent;
    int edge = absent;
    int entity = absent;
    int face = absent;
    int face_texture_coords = absent;
    int font = absent;
    int layer = absent;
    int layer_group = absent;
    int layer_manager = absent;
    int material_manager = absent;
    int model = absent;
    int rendering_options = absent;
    int section_plane = absent;
    int text_style = absent;
    int texture = absent;
    int thumbnail = absent;
    int view_page = absent;

    // Notes the number of a class by its name in the file. Classes with one layout only are passed over.
    void note(std::string_view class_name, std::uint32_t number);
};

} // namespace skp

#pragma once

// The classes whose objects stand behind tags in a classic file, and sets of them.

#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace skp {

enum class object_class : std::uint8_t {
    none, // the null tag
    version_map,
    attribute_container,
    attribute_named,
    face_texture_coords,
    vertex,
    edge,
    curve,
    arc_curve,
    edge_use,
    loop,
    face,
    component_definition,
    component_instance,
    group,
    image,
    relationship,
    section_plane,
    construction_geometry,
    construction_line,
    construction_point,
    polyline,
    text,
    dimension_linear,
    dimension_radial,
    font,
    material,
    dib,
    layer,
    layer_group,
    line_style,
    camera,
    thumbnail,
    view_page,
    style,
    watermark,
    background_image,
    schema_zip_file,
};

// Which classes may stand at a place.
class class_set {
public:
    constexpr class_set(object_class only) : bits_(bit(only)) {}
    constexpr class_set(std::initializer_list<object_class> classes) {
        for (const object_class c : classes)
            bits_ |= bit(c);
    }
    constexpr bool contains(object_class c) const { return (bits_ & bit(c)) != 0; }
    friend constexpr class_set operator|(class_set a, class_set b) {
        a.bits_ |= b.bits_;
        return a;
    }

private:
    static constexpr std::uint64_t bit(object_class c) { return std::uint64_t{1} << static_cast<unsigned>(c); }
    std::uint64_t bits_ = 0;
};

// Everything that an entity list may hold.
inline constexpr class_set listed_classes = {
    object_class::edge,
    object_class::face,
    object_class::component_instance,
    object_class::group,
    object_class::image,
    object_class::section_plane,
    object_class::construction_geometry,
    object_class::construction_line,
    object_class::construction_point,
    object_class::polyline,
    object_class::text,
    object_class::dimension_linear,
    object_class::dimension_radial,
};

// What a text, a dimension or a relation may point at.
inline constexpr class_set pointed_classes =
    listed_classes | class_set{object_class::vertex, object_class::curve, object_class::arc_curve};

// By the name in the file; none if there is no such class.
object_class class_named(std::string_view name);

// The name in the file, for messages; a literal.
const char* name_of(object_class c);

} // namespace skp

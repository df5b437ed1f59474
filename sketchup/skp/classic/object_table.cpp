// Which class name of a file is which class, and which function reads it.

#include "sketchup/skp/classic/model_reader.h"

#include <string>

namespace skp {

// In the order of object_class. The version map stands before the model and is read by the archive.
const model_reader::class_entry model_reader::object_table[] = {
    {"CVersionMap", object_class::version_map, nullptr},
    {"CAttributeContainer", object_class::attribute_container, &model_reader::read_attribute_container},
    {"CAttributeNamed", object_class::attribute_named, &model_reader::read_attribute_named},
    {"CFaceTextureCoords", object_class::face_texture_coords, &model_reader::read_face_texture_coords},
    {"CVertex", object_class::vertex, &model_reader::read_vertex},
    {"CEdge", object_class::edge, &model_reader::read_edge},
    {"CCurve", object_class::curve, &model_reader::read_curve},
    {"CArcCurve", object_class::arc_curve, &model_reader::read_arc_curve},
    {"CEdgeUse", object_class::edge_use, &model_reader::read_edge_use},
    {"CLoop", object_class::loop, &model_reader::read_loop},
    {"CFace", object_class::face, &model_reader::read_face},
    {"CComponentDefinition", object_class::component_definition, &model_reader::read_component_definition},
    {"CComponentInstance", object_class::component_instance, &model_reader::read_component_instance},
    {"CGroup", object_class::group, &model_reader::read_group},
    {"CImage", object_class::image, &model_reader::read_image},
    {"CRelationship", object_class::relationship, &model_reader::read_relationship},
    {"CSectionPlane", object_class::section_plane, &model_reader::read_section_plane},
    {"CConstructionGeometry", object_class::construction_geometry, &model_reader::read_construction_geometry},
    {"CConstructionLine", object_class::construction_line, &model_reader::read_construction_line},
    {"CConstructionPoint", object_class::construction_point, &model_reader::read_construction_point},
    {"CPolyline3d", object_class::polyline, &model_reader::read_polyline},
    {"CText", object_class::text, &model_reader::read_text},
    {"CDimensionLinear", object_class::dimension_linear, &model_reader::read_dimension_linear},
    {"CDimensionRadial", object_class::dimension_radial, &model_reader::read_dimension_radial},
    {"CSkFont", object_class::font, &model_reader::read_font},
    {"CMaterial", object_class::material, &model_reader::read_material},
    {"CDib", object_class::dib, &model_reader::read_dib},
    {"CLayer", object_class::layer, &model_reader::read_layer},
    {"CLayerGroup", object_class::layer_group, &model_reader::read_layer_group},
    {"CCustomLineStyle", object_class::line_style, &model_reader::read_line_style},
    {"CCamera", object_class::camera, &model_reader::read_camera},
    {"CThumbnail", object_class::thumbnail, &model_reader::read_thumbnail},
    {"CViewPage", object_class::view_page, &model_reader::read_view_page},
    {"CSkpStyle", object_class::style, &model_reader::read_style},
    {"CWatermark", object_class::watermark, &model_reader::read_watermark},
    {"CBackgroundImage", object_class::background_image, &model_reader::read_background_image},
    {"CSchemaZipFile", object_class::schema_zip_file, &model_reader::read_schema_zip_file},
};

object_class class_named(std::string_view name) {
    for (const model_reader::class_entry& c : model_reader::object_table)
        if (name == c.name)
            return c.what;
    return object_class::none;
}

const char* name_of(object_class what) {
    for (const model_reader::class_entry& c : model_reader::object_table)
        if (what == c.what)
            return c.name;
    return "null";
}

void model_reader::fail_expected(class_set accepted, object_class found) {
    std::string names;
    for (const class_entry& entry : object_table)
        if (accepted.contains(entry.what))
            names += (names.empty() ? "" : " or ") + std::string(name_of(entry.what));
    in_.fail("expected " + names + ", found " + name_of(found));
}

void model_reader::read_object(const object_tag& tag) {
    if (depth_ == deepest_object_nesting)
        in_.fail("objects nest deeper than " + std::to_string(deepest_object_nesting));
    const class_entry& entry = object_table[static_cast<std::size_t>(tag.what) - 1]; // in the order of the classes
    const reading here(in_, entry.name);
    ++depth_;
    (this->*entry.read)(tag.slot);
    --depth_;
}

} // namespace skp

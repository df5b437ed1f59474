// Which value of a new material goes where.

#include "tessaline/materials/material_records.h"

cl_material_params params_of(const new_material& material) {
    const material_values& values = material.evaluated.values;
    cl_material_params params;
    params.material_type = values.material_type;
    params.base_material = values.base_material;
    params.xml_file_name = values.xml_file_name;
    params.xml_scale_x = values.xml_scale_x;
    params.xml_scale_y = values.xml_scale_y;
    params.marevo_xml_file = values.marevo_xml_file;
    params.iray_initial_opacity = values.xml_initial_opacity;
    params.display_name = params.short_name = params.orig_name = material.working_name;
    params.file_name = material.base_file_name;
    params.image_path = params.render_image_path = material.texture.image_path;
    params.base_color = params.color = values.color;
    params.tile_x = material.texture.tile_x;
    params.tile_y = material.texture.tile_y;
    params.is_textured = material.is_textured;
    params.metallic = values.metallic;
    params.refraction = static_cast<float>(values.refraction);
    params.thick = values.thick;
    params.light_channel = values.light_channel;
    params.glow = params.glow_percent = values.glow;
    params.glow_lumens = values.glow_lumens;
    params.self_glow = values.self_glow;
    params.transparency = values.transparency;
    params.reflection = values.reflection;
    params.translucency = values.translucency;
    params.auto_bump = values.auto_bump;
    params.blurry = values.blurry;
    params.glossy = values.glossy;
    params.color_strength = values.bump_color_strength;
    params.bump_strength = values.bump_intensity;
    params.marbled = values.marbled;
    params.rubble = values.rubble;
    params.wrinkled = values.wrinkled;
    params.sandpaper = values.sandpaper;
    params.pyramid = values.pyramid;
    params.sharpness = values.sharpness;
    return params;
}

cl_tsl_material record_of(const new_material& material) {
    const material_values& values = material.evaluated.values;
    cl_tsl_material record;
    record.material_id = material.material_id;
    record.name = material.working_name;
    record.material_type = values.material_type;
    record.base_material = values.base_material;
    record.xml_file_name = values.xml_file_name;
    record.xml_scale_x = values.xml_scale_x;
    record.xml_scale_y = values.xml_scale_y;
    record.xml_initial_opacity = values.xml_initial_opacity;
    record.marevo_xml_file = values.marevo_xml_file;
    record.image_path = material.texture.image_path;
    record.edited_file = material.evaluated.edited_file;
    record.has_glow = values.glow > 0;
    if (record.has_glow)
        record.glow = values.glow;
    record.color = values.color;
    record.opacity = material.opacity;
    record.refraction = values.refraction;
    record.translucency = values.translucency;
    if (values.reflection > 0)
        record.reflection = values.reflection;
    record.sharpness = values.sharpness;
    record.tile_x = material.texture.tile_x;
    record.tile_y = material.texture.tile_y;
    record.metallic = values.metallic;
    record.marbled = values.marbled;
    record.marble_strength = values.marble_strength;
    record.marble_scale = values.marble_scale;
    record.rubble = values.rubble;
    record.wrinkled = values.wrinkled;
    record.sandpaper = values.sandpaper;
    record.pyramid = values.pyramid;
    return record;
}

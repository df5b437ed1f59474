// How a material is told to the renderer. The order of the lines is that in which the consumer reads them.

#include "tessaline/materials/material_file.h"

#include "qlw/qlw_math.h"
#include "qlw/qlw_text_files.h"

namespace {

constexpr double lumens_of_full_glow = 100 * lumens_per_watt; // a glow of 1 is a lamp of 100 watts

void write_names(cl_output_file& file, const cl_material_params& params, const std::string& matl_line) {
    file.write_format("Matl: %s\n", matl_line);
    file.write_format("Disp: %s\n", params.display_name);
    file.write_format("Orig: %s\n", params.orig_name);
    file.write_format("#\n");
    file.write_format("OrnMaterial Type: %s\n", params.values.material_type);
    file.write_format("Base_Material: %s\n", params.values.base_material);
}

void write_colors(cl_output_file& file, const cl_material_params& params) {
    const std::uint32_t color = params.values.color;
    file.write_format("Use_Entity_Color: %d\n", params.use_entity_color);
    file.write_format("Color: %d\n", color);
    file.write_format("#;Color: RGB(%d,%d,%d)\n", color & 0xffU, color >> 8U & 0xffU, color >> 16U & 0xffU);
    file.write_format("IconColor: %d\n", params.icon_color);
}

void write_optics(cl_output_file& file, const cl_material_params& params) {
    file.write_format("Trans: %0.9g\n", params.values.transparency);
    file.write_format("Translucency: %0.9g\n", params.values.translucency);
    file.write_format("Refl: %0.9g\n", params.values.reflection);
    file.write_format("Refr: %0.9g\n", static_cast<double>(static_cast<float>(params.values.refraction)));
    file.write_format("IrayInitialOpacity: %0.9g\n", params.values.xml_initial_opacity);
    file.write_format("#\n");
    file.write_format("# Glow is a pct = 1.0 = 100 watts\n");
    file.write_format("Glow: %0.9g\n", params.values.glow);
    file.write_format("Glow_Lumens: %0.9g\n", params.values.glow * lumens_of_full_glow);
    file.write_format("SelfGlow: %0.9g\n", params.values.self_glow);
    file.write_format("#\n");
    file.write_format("Blurry: %d\n", params.values.blurry);
    file.write_format("Glossy: %d\n", params.values.glossy);
}

void write_picture(cl_output_file& file, const cl_material_params& params) {
    file.write_format("#;For Select Material dialog and 3D PDF\n");
    file.write_format("Filter: %s\n", params.filter);
    file.write_format("Category: %s\n", params.category);
    file.write_format("Image_Path: %s\n", params.image_path);
    file.write_format("ImageWidth: %d\n", params.image_width);
    file.write_format("TileX: %0.9g\n", params.tile_x);
    file.write_format("TileY: %0.9g\n", params.tile_y);
}

void write_surface(cl_output_file& file, const cl_material_params& params) {
    file.write_format("AutoBump: %d\n", params.values.auto_bump);
    file.write_format("ColorStrength: %0.9g\n", params.values.bump_color_strength);
    file.write_format("BumpStrength: %0.9g\n", params.values.bump_intensity);
    file.write_format("Marbled: %d\n", params.values.marbled);
    file.write_format("MarbleScale: %0.9g\n", params.marble_scale);
    file.write_format("MarbleStrength: %0.9g\n", params.marble_strength);
    file.write_format("TopiaryOrientation: %d\n", params.topiary_orientation);
    file.write_format("#\n");
}

} // namespace

void write_material_file(const cl_material_params& params, const std::string& matl_line, const std::string& path) {
    cl_output_file file;
    if (path.empty() || !file.open(path, output_file_mode::quiet))
        return;
    write_names(file, params, matl_line);
    write_colors(file, params);
    write_optics(file, params);
    write_picture(file, params);
    write_surface(file, params);
}

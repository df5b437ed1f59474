// How the text file of a lamp is spelt.

#include "tessaline/lamps/lamp_file.h"

#include "qlw/qlw_text_files.h"

namespace {

void write_vector(cl_output_file& file, std::string_view format, const fpt& vector) {
    file.write_format(format, vector.x, vector.y, vector.z);
}

} // namespace

void write_lamp_file(const std::string& path, const cl_slp_light& light, const placed_lamp& placed) {
    cl_output_file file;
    if (!file.open(path, output_file_mode::quiet))
        return;
    write_vector(file, "location;(%f,%f,%f)\n", placed.location);
    write_vector(file, "direction;(%f,%f,%f)\n", placed.direction);
    write_vector(file, "xaxis;(%f,%f,%f)\n", {1, 0, 0});
    file.write_format("hide;%d\n", light.hide);
    file.write_format("use_object_color;%d\n", light.use_object_color);
    file.write_format("color;#%06x\n", light.color);
    file.write_format("channel;%d\n", placed.channel);
    file.write_format("beam_length;%f\n", light.beam_length);
    file.write_format("beam_angle;%f\n", light.beam_angle);
    file.write_format("field_angle;%f\n", light.field_angle);
    file.write_format("intensity;%f\n", light.intensity);
    file.write_format("intensity_lumens;%f\n", light.intensity_lumens);
    file.write_format("length;%f\n", light.length);
    file.write_format("size;%f\n", light.size);
    file.write_format("width;%f\n", light.width);
    file.write_format("type;%s\n", light.lamp_type.str());
    file.write_format("unit;%s\n", "Watts"); // whatever unit the object names
    file.write_format("spotlight_shape;%s\n", light.spotlight_shape.str());
    file.write_format("ies_file_name;%s\n", light.ies_file_name.str());
    file.write_format("ies_pattern;%d\n", light.ies_pattern);
}

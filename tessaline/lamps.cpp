// What is a lamp, and which number it gets.

#include "tessaline/lamps.h"

#include "tessaline/SketchUpReader.h"

bool is_lamp(const cl_slp_light& light) {
    return !light.lamp_type.empty() || light.light_type != 0;
}

int cl_slp_light::add_lamp(SketchUpReader& reader, const transform16&) {
    direct_light = direct_light || lamp_type == "bulb" || lamp_type == "spot";
    return reader.ilights_saved++;
}

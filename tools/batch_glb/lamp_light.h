#pragma once

// From a lamp file to a light of a GLB.

#include "tools/gltf/node_placement.h"

#include <string>
#include <string_view>

// What a lamp file says of the light; docs/lamp-file.md. Numbers that are not finite count as not said.
struct lamp_file {
    gltf::double3 location{}; // metres
    gltf::double3 direction{0, 0, -1};
    std::array<double, 3> color{1, 1, 1}; // 0 to 1, as pictures have it
    double beam_angle = -1;               // degrees, from edge to edge
    double field_angle = -1;
    double watts = -1;
    double lumens = -1;
    std::string type;
};

lamp_file read_lamp_file(std::string_view text);

// The lumens that count: those of the file, else 17 for each of its watts, else 0.
double lumens_of(const lamp_file& lamp);

// A light as KHR_lights_punctual has it: a point for bulbs and lamps of other types, a cone for spots, and for what
// shines from a plane (rect_glow, linear_glow, round_glow) the half space in front of it. Candela are such that all the
// light together is that of the lumens.
gltf::json light_of(const lamp_file& lamp);

// Whether it shines in a direction.
bool is_directed(const lamp_file& lamp);

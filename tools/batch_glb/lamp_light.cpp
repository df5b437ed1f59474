#include "tools/batch_glb/lamp_light.h"

#include "tools/batch_glb/stream_numbers.h"
#include "tools/batch_reading/text_lines.h"
#include "tools/gltf/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>

namespace {

constexpr double pi = std::numbers::pi;
constexpr double lumens_of_a_watt = 17;
constexpr double widest_cone = pi / 2; // half of it, which is how the format counts
constexpr double usual_cone = pi / 4;  // where a lamp says none

void take_triple(std::string_view value, gltf::double3& into) {
    const auto triple = read_triple(value);
    if (triple && std::all_of(triple->begin(), triple->end(), [](double part) { return std::isfinite(part); }))
        into = *triple;
}

// "#rrggbb"
void take_color(std::string_view value, std::array<double, 3>& into) {
    unsigned color = 0;
    if (value.size() != 7 || value.front() != '#')
        return;
    const auto [end, error] = std::from_chars(value.data() + 1, value.data() + value.size(), color, 16);
    if (error != std::errc() || end != value.data() + value.size())
        return;
    into = {(color >> 16U & 255) / 255.0, (color >> 8U & 255) / 255.0, (color & 255) / 255.0};
}

void take_value(std::string_view key, std::string_view value, lamp_file& lamp) {
    if (key == "location")
        take_triple(value, lamp.location);
    else if (key == "direction")
        take_triple(value, lamp.direction);
    else if (key == "color")
        take_color(value, lamp.color);
    else if (key == "beam_angle")
        take_real(value, lamp.beam_angle);
    else if (key == "field_angle")
        take_real(value, lamp.field_angle);
    else if (key == "intensity")
        take_real(value, lamp.watts);
    else if (key == "intensity_lumens")
        take_real(value, lamp.lumens);
    else if (key == "type")
        lamp.type = value;
}

bool is_plane(const lamp_file& lamp) {
    return lamp.type == "rect_glow" || lamp.type == "linear_glow" || lamp.type == "round_glow";
}

bool is_spot(const lamp_file& lamp) {
    return lamp.type == "spot" || lamp.type == "spot_glow" || lamp.type == "spot_beams";
}

double half_in_radians(double degrees) {
    return degrees / 2 * pi / 180;
}

} // namespace

lamp_file read_lamp_file(std::string_view text) {
    lamp_file lamp;
    while (!text.empty()) {
        const std::string_view line = take_line(text);
        const std::size_t semicolon = line.find(';');
        if (semicolon != std::string_view::npos)
            take_value(line.substr(0, semicolon), line.substr(semicolon + 1), lamp);
    }
    return lamp;
}

double lumens_of(const lamp_file& lamp) {
    const double found = lamp.lumens > 0 ? lamp.lumens : lamp.watts > 0 ? lamp.watts * lumens_of_a_watt : 0;
    return gltf::short_number(found);
}

bool is_directed(const lamp_file& lamp) {
    return is_plane(lamp) || is_spot(lamp);
}

// The light of a cone falls from its inner to its outer angle with the square of how far the cosine has gone, the
// format's own formula. Over the sphere that is 2 pi ((1 - inner) + (inner - outer) / 3), with the cosines of both.
gltf::json light_of(const lamp_file& lamp) {
    gltf::json light;
    for (const double channel : lamp.color)
        light["color"].push_back(gltf::short_number(gltf::linear_channel(channel)));
    const double lumens = lumens_of(lamp);
    if (is_plane(lamp)) {
        light["type"] = "spot";
        light["spot"] = {{"innerConeAngle", 0}, {"outerConeAngle", gltf::short_number(widest_cone - 1e-6)}};
        light["intensity"] = gltf::short_number(lumens / (2 * pi / 3));
        return light;
    }
    if (!is_spot(lamp)) {
        light["type"] = "point";
        light["intensity"] = gltf::short_number(lumens / (4 * pi));
        return light;
    }
    const double widest = lamp.field_angle > 0 ? lamp.field_angle : lamp.beam_angle;
    const double outer = widest > 0 ? std::clamp(half_in_radians(widest), 0.001, widest_cone - 1e-6) : usual_cone;
    const double inner =
        std::clamp(half_in_radians(std::max(0.0, lamp.beam_angle)), 0.0, outer - 0.0005); // the outer must be wider
    const double sphere = 2 * pi * (1 - std::cos(inner) + (std::cos(inner) - std::cos(outer)) / 3);
    light["type"] = "spot";
    light["spot"] = {{"innerConeAngle", gltf::short_number(inner)}, {"outerConeAngle", gltf::short_number(outer)}};
    light["intensity"] = gltf::short_number(lumens / sphere);
    return light;
}

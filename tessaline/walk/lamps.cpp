// What is a lamp, and how it is placed, numbered and kept. Reads the lamp settings of the run and changes two of them;
// reads the batch folder.

#include "tessaline/walk/lamps.h"

#include "platform/platform.h"
#include "qlw/qlw_globals.h"
#include "qlw/qlw_trace.h"
#include "qlw/whole_number.h"
#include "tessaline/files/paths.h"
#include "tessaline/lamps/lamp_file.h"
#include "tessaline/state/run_state.h"
#include "tessaline/stream/length_units.h"
#include "tessaline/walk/SketchUpReader.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace {

constexpr double widest_field = 180.0; // degrees
constexpr int white = 0xffffff;

// ---- types

enum class lamp_place {
    nowhere,   // the block in the stream is the place
    at_origin, // of the lamp's own axes
    ahead,     // of that origin, along the z axis, by the lamp's size
};

struct lamp_kind {
    std::string_view type;
    lamp_place place;
    bool shines_along_z; // of its own axes; otherwise straight down in the world
    bool is_on_ceiling;  // channel 0 is that of ceiling lamps

    bool is_direct() const { return place != lamp_place::nowhere; }
};

constexpr lamp_kind any_other_kind{{}, lamp_place::nowhere, true, false};

constexpr std::array lamp_kinds{
    lamp_kind{"bulb", lamp_place::at_origin, false, false},
    lamp_kind{"spot", lamp_place::ahead, true, false},
    lamp_kind{"bulb_glow", lamp_place::nowhere, false, false},
    lamp_kind{"spot_glow", lamp_place::nowhere, true, false},
    lamp_kind{"spot_beams", lamp_place::nowhere, true, false},
    lamp_kind{"rect", lamp_place::nowhere, false, false},
    lamp_kind{"rect_glow", lamp_place::nowhere, true, true},
    lamp_kind{"linear_glow", lamp_place::nowhere, true, true},
    lamp_kind{"round_glow", lamp_place::nowhere, true, true},
};

const lamp_kind& kind_of(std::string_view type) {
    for (const lamp_kind& kind : lamp_kinds)
        if (kind.type == type)
            return kind;
    return any_other_kind;
}

// light_type: above 0.
std::string_view type_of_number(int light_type) {
    if (light_type == 1)
        return "rect_glow";
    return light_type == 3 || light_type == 4 ? "spot_glow" : "bulb_glow";
}

// ---- what a lamp leaves open

void complete_intensities(cl_slp_light& light) {
    if (light.intensity > 0 && light.intensity_lumens <= 0)
        light.intensity_lumens = light.intensity * lumens_per_watt;
    if (light.intensity <= 0 && light.intensity_lumens > 0)
        light.intensity = light.intensity_lumens / lumens_per_watt;
}

void settle(cl_slp_light& light) {
    complete_intensities(light);
    if (light.beam_angle > light.field_angle)
        light.field_angle = widest_field;
    if (light.color == 0)
        light.color = white;
    if (light.lamp_type.empty() && light.light_type > 0)
        light.lamp_type = type_of_number(light.light_type);
    light.direct_light = is_direct_light(light);
}

// ---- where it is

fpt unit(fpt vector) {
    vector.make_unit(1);
    return vector;
}

// In inches, but for the size of a spot, whose metres count as inches here: the consumer has always been given it so.
fpt location_of(const cl_slp_light& light, const transform16& transform) {
    switch (kind_of(light.lamp_type).place) {
    case lamp_place::at_origin:
        return origin_image(transform);
    case lamp_place::ahead:
        return origin_image(transform) + unit(vector_image(transform, {0, 0, 1})) * light.size * metres_per_inch;
    case lamp_place::nowhere:
        break;
    }
    return {};
}

fpt direction_of(const cl_slp_light& light, const transform16& transform) {
    constexpr fpt axes[] = {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}}; // by the codes 0 and 1, 2 and 3, 4 and 5
    constexpr int codes = 6;
    const int code = light.light_direction;
    if (code < 0 || code >= codes)
        return kind_of(light.lamp_type).shines_along_z ? unit(vector_image(transform, axes[0])) : fpt{0, 0, -1};
    const fpt along = unit(vector_image(transform, axes[code / 2]));
    return code % 2 == 0 ? -along : along;
}

// ---- channels

int channel_of(const cl_slp_light& light) {
    int channel = light.channel;
    if (channel == 0 && kind_of(light.lamp_type).is_on_ceiling)
        channel = get_global_int("ivl_channel_ceiling");
    return channel < 1 ? get_global_int("ivl_channel_other") : channel;
}

// The channels are counted from 0, so the highest one in use makes one more.
void make_room_for_channel(int channel) {
    if (!get_global_bool("bvl_auto_lighting_channels") || channel < get_global_int("ivl_lighting_channels"))
        return;
    const std::uint32_t count = static_cast<std::uint32_t>(channel) + 1; // a model may name the highest integer
    set_global_int("ivl_lighting_channels", static_cast<int>(count));
}

// ---- what is kept

cl_lp_light record_of(const cl_slp_light& light, int number, int channel) {
    cl_lp_light record;
    record.name = "Light_" + std::to_string(number);
    record.enabled = true;
    record.strength = cut_toward_zero(light.intensity_lumens);
    record.beam_angle = cut_toward_zero(light.beam_angle);
    record.channel = channel;
    record.use_object_color = light.use_object_color;
    record.color = light.color;
    record.direction = light.direction;
    return record;
}

} // namespace

bool is_lamp(const cl_slp_light& light) {
    return !light.lamp_type.empty() || light.light_type != 0;
}

bool is_direct_light(const cl_slp_light& light) {
    return light.direct_light || kind_of(light.lamp_type).is_direct();
}

double light_balance_factor() {
    constexpr int middle = 50;
    const int wanted = get_global_int("ivl_light_balance");
    int balance = middle;
    if (get_global_bool("bvl_artificial_lighting")) {
        balance = std::clamp(wanted, 1, 99);
        if (balance != wanted)
            set_global_int("ivl_light_balance", balance);
    }
    const double darkness = 1.0 - balance * 0.01;
    return darkness >= 0.5 ? (1.0 - darkness) * 2.0 : (0.5 - darkness) * 198.0 + 1.0;
}

int cl_slp_light::add_lamp(SketchUpReader& reader, const transform16& transform) {
    settle(*this);
    direction = direction_of(*this, transform);
    const int channel_in_use = channel_of(*this);
    make_room_for_channel(channel_in_use);
    if (!get_global_bool("bvl_show_bulbs"))
        hide = true;
    const double factor = light_balance_factor();
    intensity *= factor;
    intensity_lumens *= factor;

    const int number = reader.ilights_saved++;
    reader.lights.push_back(record_of(*this, number, channel_in_use));
    const std::string folder = joined(theApp.batch_folder, theApp.lights_folder);
    platform::make_folder(folder);
    cl_trace("slp_oparms", __LINE__, "cl_slp_light::add_lamp", trace_level::plain, 0)
        .report("ilights_saved: %d", number);
    write_lamp_file(joined(folder, "light_" + std::to_string(number) + ".txt"), *this,
                    {metres_from_inches(location_of(*this, transform)), direction, channel_in_use});
    return number;
}

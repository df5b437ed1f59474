// Which attributes of an object change the parameters of its level: one table for each dictionary. Reads the attribute
// list of the run.

#include "qlw/color_text.h"
#include "qlw/qlw_trace.h"
#include "qlw/text_numbers.h"
#include "tessaline/parameters/attributes.h"
#include "tessaline/state/run_state.h"
#include "tessaline/state/slp_oparms.h"
#include "text/letter_case.h"

#include <algorithm>
#include <span>

namespace {

// The steps in which a lamp's intensity on the one scale follows from that on the other.
constexpr double watt_step = 5.0;
constexpr double lumen_step = 25.0;
constexpr double not_set = -1.0;

// One object's attributes on their way into the parameters of its level.
struct storing {
    cl_slp_oparms& level;
    cl_slp_light& light;
    std::string override_mode; // in capitals; of the last row that named one
};

template<class... Arguments>
void trace(int line, std::string_view format, const Arguments&... arguments) {
    cl_trace("slp_oparms", line, "cl_slp_oparms::store_attributes_in_oparms", trace_level::plain, 0)
        .report(format, arguments...);
}

struct attribute_rule {
    std::string_view key;
    void (*store)(storing& into, const std::string& value);
};

// ---- values that an outer object has set already stay

template<auto field>
void text_if_open(storing& into, const std::string& value) {
    if ((into.light.*field).empty())
        into.light.*field = value;
}

template<auto field>
void real_if_open(storing& into, const std::string& value) {
    if (into.light.*field == not_set)
        into.light.*field = double_value(value);
}

template<auto field>
void integer_if_open(storing& into, const std::string& value) {
    if (into.light.*field == -1)
        into.light.*field = decimal_value(value);
}

template<auto field>
void yes_if_open(storing& into, const std::string& value) {
    if (!(into.level.*field))
        into.level.*field = text_is_true(value);
}

void light_type_if_open(storing& into, const std::string& value) {
    if (into.light.light_type == 0)
        into.light.light_type = decimal_value(value);
}

void single_light_if_open(storing& into, const std::string& value) {
    if (!into.light.treat_as_single_light)
        into.light.treat_as_single_light = decimal_value(value) != 0;
}

void cover_file_if_open(storing& into, const std::string& value) {
    if (into.level.groundcover_file.empty())
        into.level.groundcover_file = value;
}

void cover_orientation_if_open(storing& into, const std::string& value) {
    if (into.level.groundcover_orientation == -1)
        into.level.groundcover_orientation = decimal_value(value);
}

// ---- colours

// 0xRRGGBB of a text; the highest byte, which only a decimal number can have, stays.
int lamp_color_of(const std::string& value) {
    const color_ref color = text_to_color(value);
    return static_cast<int>((color & 0xFF00FF00) | (color & 0xFF) << 16 | (color >> 16 & 0xFF));
}

void color_if_open(storing& into, const std::string& value) {
    if (into.light.color == 0)
        into.light.color = lamp_color_of(value);
}

void traced_color_if_open(storing& into, const std::string& value) {
    if (into.light.color != 0)
        return;
    const int color = lamp_color_of(value);
    into.light.color = color;
    trace(__LINE__, "qlw_placement_settings, color: 0x%06x", color);
    trace(__LINE__, "qlw_placement_settings, (%s) lamp_color: 0x%06x, R: %d G: %d B: %d", value, into.light.color,
          into.light.color & 0xFF, into.light.color >> 8 & 0xFF, into.light.color >> 16 & 0xFF);
}

// The paint of the object is the colour of its lamp, in the order 0xBBGGRR, which the consumer has always been given;
// what the row says is not looked at.
void color_of_paint(storing& into, const std::string&) {
    SUColor paint{};
    if (SUIsValid(into.level.material))
        SUMaterialGetColor(into.level.material, &paint);
    into.light.color = paint.red | paint.green << 8 | paint.blue << 16;
}

// ---- intensities

void set_watts(cl_slp_light& light, double watts) {
    light.intensity = watts;
    light.intensity_lumens = watts_to_lumens(watts, lumen_step);
}

void set_lumens(cl_slp_light& light, double lumens) {
    light.intensity_lumens = lumens;
    light.intensity = lumens_to_watts(lumens, watt_step);
}

void watts_if_open(storing& into, const std::string& value) {
    if (into.light.intensity == not_set)
        set_watts(into.light, double_value(value));
}

void lumens_if_open(storing& into, const std::string& value) {
    if (into.light.intensity == not_set)
        set_lumens(into.light, double_value(value));
}

void own_watts_if_open(storing& into, const std::string& value) {
    if (into.light.intensity != not_set)
        return;
    set_watts(into.light, double_value(value));
    into.light.use_object_color = true;
}

// A lamp of no watts is open to lumens as well.
void own_lumens_if_open(storing& into, const std::string& value) {
    const double lumens = double_value(value);
    if (into.light.intensity != not_set && !(into.light.intensity == 0 && lumens > 0))
        return;
    set_lumens(into.light, lumens);
    into.light.use_object_color = true;
}

void take_override_mode(storing& into, const std::string& value) {
    into.override_mode = in_capitals(value);
}

// A percentage acts on what outer objects have set, and on -1 of an intensity that nobody has; all else only fills in.
void override_intensity(storing& into, const std::string& value) {
    cl_slp_light& light = into.light;
    const double number = double_value(value);
    if (into.override_mode == "%") {
        light.intensity *= number * 0.01;
        light.intensity_lumens *= number * 0.01;
        return;
    }
    if (!(light.intensity < 0))
        return;
    if (into.override_mode.starts_with('L')) {
        set_lumens(light, number);
        trace(__LINE__, "OVERRIDE LUMENS: %g", light.intensity_lumens);
    } else {
        set_watts(light, number);
        trace(__LINE__, "OVERRIDE WATTS: %g", light.intensity);
    }
}

// ---- other rules

void hide_unless_locked(storing& into, const std::string& value) {
    if (!into.light.hide_locked)
        into.light.hide = text_is_true(value);
}

void hide_for_good(storing& into, const std::string& value) {
    into.light.hide = decimal_value(value) != 0;
    into.light.hide_locked = true;
}

void set_reflection(storing& into, const std::string& value) {
    into.level.reflection = double_value(value);
}

// ---- the dictionaries

using lamp = cl_slp_light;
using object = cl_slp_oparms;

constexpr attribute_rule lamp_rules[] = {
    {"sorndll_lamp_type", text_if_open<&lamp::lamp_type>},
    {"bvl_lamp_hide", hide_unless_locked},
    {"cqlw_lamp_color", color_if_open},
    {"ivl_lamp_channel", integer_if_open<&lamp::channel>},
    {"rorndll_beam_length", real_if_open<&lamp::beam_length>},
    {"rorndll_lamp_beam_angle", real_if_open<&lamp::beam_angle>},
    {"rorndll_lamp_field_angle", real_if_open<&lamp::field_angle>},
    {"rorndll_lamp_intensity", watts_if_open},
    {"rorndll_lamp_intensity_lumens", lumens_if_open},
    {"rorndll_lamp_size", real_if_open<&lamp::size>},
    {"rorndll_lamp_width", real_if_open<&lamp::width>},
    {"rorndll_lamp_length", real_if_open<&lamp::length>},
    {"sorndll_lamp_unit", text_if_open<&lamp::lamp_unit>},
    {"spotlight_shape", text_if_open<&lamp::spotlight_shape>},
    {"ies_file_name", text_if_open<&lamp::ies_file_name>},
    {"ies_pattern", integer_if_open<&lamp::ies_pattern>},
};

// "light_type_string" belongs here too: a name for people, without effect.
constexpr attribute_rule property_rules[] = {
    {"alpha_channel", yes_if_open<&object::alpha_channel>},
    {"beam_angle", real_if_open<&lamp::beam_angle>},
    {"caustics", yes_if_open<&object::caustics>},
    {"daylight", yes_if_open<&object::daylight>},
    {"field_angle", real_if_open<&lamp::field_angle>},
    {"gather", yes_if_open<&object::gather>},
    {"ies_file_name", text_if_open<&lamp::ies_file_name>},
    {"ies_pattern", integer_if_open<&lamp::ies_pattern>},
    {"igroundcover_orientation", cover_orientation_if_open},
    {"invisible", yes_if_open<&object::invisible>},
    {"lamp_channel", integer_if_open<&lamp::channel>},
    {"lamp_color", color_of_paint},
    {"lamp_intensity", own_watts_if_open},
    {"lamp_intensity_lumens", own_lumens_if_open},
    {"lamp_unit", text_if_open<&lamp::lamp_unit>},
    {"light_direction", integer_if_open<&lamp::light_direction>},
    {"light_orientation", integer_if_open<&lamp::light_orientation>},
    {"light_type", light_type_if_open},
    {"monte_carlo", yes_if_open<&object::monte_carlo>},
    {"sgroundcover_file", cover_file_if_open},
    {"spotlight_shape", text_if_open<&lamp::spotlight_shape>},
    {"thick", yes_if_open<&object::thick>},
};

constexpr attribute_rule override_rules[] = {
    {"reflection", set_reflection},
    {"light_category", text_if_open<&lamp::light_category>},
    {"intensity_override_mode", take_override_mode},
    {"intensity_override_value", override_intensity},
    {"light_channel_override_value", integer_if_open<&lamp::channel>},
    {"lamp_hide_override_value", hide_for_good},
    {"treat_as_single_light", single_light_if_open},
    {"light_color_override_value", color_if_open},
    {"spotlight_shape_override", text_if_open<&lamp::spotlight_shape>},
    {"beam_angle_override", real_if_open<&lamp::beam_angle>},
    {"field_angle_override", real_if_open<&lamp::field_angle>},
    {"ies_pattern_override", integer_if_open<&lamp::ies_pattern>},
    {"ies_file_name_override", text_if_open<&lamp::ies_file_name>},
};

constexpr attribute_rule placement_rules[] = {
    {"intensity_override_mode", take_override_mode},
    {"intensity_override_value", override_intensity},
    {"light_channel_override_value", integer_if_open<&lamp::channel>},
    {"lamp_hide_override_value", hide_for_good},
    {"light_color_override_value", traced_color_if_open},
};

// The rules of a dictionary; none if it says nothing about objects.
std::span<const attribute_rule> rules_of(std::string_view dictionary) {
    if (dictionary == "qlw_lamp")
        return lamp_rules;
    if (dictionary == "Vellane_object_properties")
        return property_rules;
    if (dictionary == "qlw_overrides")
        return override_rules;
    if (dictionary == "qlw_placement_settings")
        return placement_rules;
    return {};
}

} // namespace

bool cl_slp_oparms::store_attributes_in_oparms(std::string_view) {
    bool found = false;
    storing into{*this, light, {}};
    for (const cl_tsl_attribute& row : attribute_list) {
        const std::span<const attribute_rule> rules = rules_of(row.dictionary);
        found = found || !rules.empty();
        for (const attribute_rule& rule : rules)
            if (rule.key == row.key)
                rule.store(into, row.value);
    }
    return found;
}

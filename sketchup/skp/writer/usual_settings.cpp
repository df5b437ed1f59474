#include "sketchup/skp/writer/usual_settings.h"

namespace skp {

namespace {

using sketchup::attribute;
using sketchup::value_code;

attribute number(const char* name, std::int64_t value) {
    return {name, {value_code::int32, value}};
}
attribute real(const char* name, double value) {
    return {name, {value_code::float64, value}};
}
attribute flag(const char* name, bool value) {
    return {name, {value_code::boolean, value}};
}

const std::vector<option_provider> providers = {
    {"UnitsOptions",
     {
         number("LengthPrecision", 0), // digits behind the point
         number("LengthFormat", 0),    // decimal
         number("LengthUnit", 2),      // millimetres
         flag("LengthSnapEnabled", true),
         real("LengthSnapLength", 1 / 25.4), // inches
         number("AnglePrecision", 1),
         flag("AngleSnapEnabled", true),
         real("SnapAngle", 15), // degrees
         flag("SuppressUnitsDisplay", false),
         flag("ForceInchDisplay", false),
         number("AreaUnit", 4),   // square metres
         number("VolumeUnit", 4), // cubic metres
         number("AreaPrecision", 2),
         number("VolumePrecision", 2),
     }},
    {"PageOptions", {flag("ShowTransition", true), real("TransitionTime", 2)}}, // seconds
    {"SlideshowOptions", {flag("LoopSlideshow", true), real("SlideTime", 1)}},  // seconds
    {"NamedOptions", {}},
};

constexpr line_style styles[] = {
    {"Solid Basic", "16.0"},
    {"Short dash", "6.0, -6.0"},
    {"Dash", "12.0, -6.0"},
    {"Dot", "1.0, -6.0"},
    {"Dash dot", "12.0, -6.0, 1.0, -6.0"},
    {"Dash double-dot", "12.0, -6.0, 1.0, -6.0, 1.0, -6.0"},
    {"Dash triple-dot", "12.0, -6.0, 1.0, -6.0, 1.0, -6.0, 1.0, -6.0"},
    {"Double-dash dot", "12.0, -6.0, 12.0, -6.0, 1.0, -6.0"},
    {"Double-dash double-dot", "12.0, -6.0, 12.0, -6.0, 1.0, -6.0, 1.0, -6.0"},
    {"Double-dash triple-dot", "12.0, -6.0, 12.0, -6.0, 1.0, -6.0, 1.0, -6.0, 1.0, -6.0"},
    {"Long-dash dash", "36.0, -10.0, 12.0, -10.0"},
    {"Long-dash double-dash", "36.0, -10.0, 12.0, -10.0, 12.0, -10.0"},
};

} // namespace

const std::vector<option_provider>& usual_option_providers() {
    return providers;
}

std::span<const line_style> usual_line_styles() {
    return styles;
}

} // namespace skp

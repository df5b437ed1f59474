#include "sketchup/api/shadow_values.h"

#include "sketchup/model/sun_position.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <iterator>
#include <numbers>
#include <string>

namespace sketchup::api {
namespace {

typed_value boolean(bool value) {
    return {value_code::boolean, value};
}
typed_value number(double value) {
    return {value_code::float64, value};
}
typed_value whole(std::int64_t value) {
    return {value_code::int32, value};
}
typed_value text(const std::string& value) {
    return {value_code::string, value};
}
typed_value moment(std::int64_t seconds) {
    return {value_code::time, seconds};
}

// 1 for the first of January. The stored time holds the local date as if it were UTC.
int day_of_year(std::int64_t seconds) {
    using namespace std::chrono;
    const sys_days day = floor<days>(sys_seconds(std::chrono::seconds(seconds)));
    const year_month_day date(day);
    return static_cast<int>((day - sys_days(date.year() / January / 1)).count()) + 1;
}

// From the model's y axis to north, clockwise seen from above, 0 to 360.
double north_angle_degrees(const vec3& north) {
    const double degrees = std::atan2(north.x, north.y) * 180 / std::numbers::pi;
    return degrees < 0 ? degrees + 360 : degrees;
}

typed_value direction_to_sun(const shadow_info& info) {
    const auto direction = sun_direction(info);
    return direction ? typed_value{value_code::vector, *direction} : typed_value{};
}

typed_value sunrise(const shadow_info& info) {
    const auto hours = sunrise_and_sunset(info);
    return hours ? moment(hours->rise) : typed_value{};
}

typed_value sunset(const shadow_info& info) {
    const auto hours = sunrise_and_sunset(info);
    return hours ? moment(hours->set) : typed_value{};
}

struct named_value {
    std::string_view key;
    typed_value (*get)(const shadow_info&); // nil if there is no such moment or direction
};

constexpr named_value values[] = {
    {"City", [](const shadow_info& i) { return text(i.city); }},
    {"Country", [](const shadow_info& i) { return text(i.country); }},
    {"Dark", [](const shadow_info& i) { return whole(i.dark); }},
    {"DayOfYear", [](const shadow_info& i) { return whole(day_of_year(i.time)); }},
    {"DaylightSavings", [](const shadow_info& i) { return boolean(i.daylight_saving); }},
    {"DisplayNorth", [](const shadow_info& i) { return boolean(i.display_north); }},
    {"DisplayOnAllFaces", [](const shadow_info& i) { return boolean(i.display_on_all_faces); }},
    {"DisplayOnGroundPlane", [](const shadow_info& i) { return boolean(i.display_on_ground); }},
    {"DisplayShadows", [](const shadow_info& i) { return boolean(i.display_shadows); }},
    {"EdgesCastShadows", [](const shadow_info& i) { return boolean(i.edges_cast_shadows); }},
    {"Latitude", [](const shadow_info& i) { return number(i.latitude); }},
    {"Light", [](const shadow_info& i) { return whole(i.light); }},
    {"Longitude", [](const shadow_info& i) { return number(i.longitude); }},
    {"NorthAngle", [](const shadow_info& i) { return number(north_angle_degrees(i.north)); }},
    {"ShadowTime", [](const shadow_info& i) { return moment(i.time); }},
    {"ShadowTime_time_t", [](const shadow_info& i) { return moment(i.time); }},
    {"SunDirection", direction_to_sun},
    {"SunRise", sunrise},
    {"SunRise_time_t", sunrise},
    {"SunSet", sunset},
    {"SunSet_time_t", sunset},
    {"TZOffset", [](const shadow_info& i) { return number(i.time_zone); }},
    {"UseSunForAllShading", [](const shadow_info& i) { return boolean(i.use_sun_for_all_shading); }},
};

} // namespace

std::optional<typed_value> shadow_value(const shadow_info& info, std::string_view key) {
    const auto found =
        std::find_if(std::begin(values), std::end(values), [key](const named_value& v) { return v.key == key; });
    if (found == std::end(values))
        return std::nullopt;
    typed_value value = found->get(info);
    if (value.code == value_code::nil)
        return std::nullopt;
    return value;
}

} // namespace sketchup::api

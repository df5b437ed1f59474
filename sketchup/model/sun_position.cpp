#include "sketchup/model/sun_position.h"

#include "sketchup/model/vector_math.h"

#include <cmath>
#include <numbers>

namespace sketchup {
namespace {

constexpr double seconds_in_day = 86400;
constexpr double seconds_in_hour = 3600;
constexpr double degrees_in_circle = 360;
constexpr double radians_in_degree = std::numbers::pi / 180;

// Noon of the first of January 2000, from which the formulas count, in seconds since 1970: 10957.5 days.
constexpr double epoch_2000 = 10957.5 * seconds_in_day;
constexpr double days_in_century = 36525;

// 34 minutes of arc that the air lifts the sun at the horizon, and 16 of the sun's own radius.
constexpr double altitude_at_rise = -50.0 / 60 * radians_in_degree;

// Each step comes about two hundred times nearer: the sun's declination changes by less than half a degree a day.
constexpr int steps_to_rise = 4;

// Moments beyond this many seconds, three million years, are of no use to anybody and would not fit a whole number.
constexpr double last_moment = 1e14;

// The sun seen from the centre of the earth, in radians.
struct celestial_place {
    double right_ascension;
    double declination;
};

double radians(double degrees) {
    return std::fmod(degrees, degrees_in_circle) * radians_in_degree;
}

// utc: seconds since 1970. Chapter 25, "low accuracy"; the numbers are degrees.
celestial_place place_of_sun(double utc) {
    const double t = (utc - epoch_2000) / seconds_in_day / days_in_century;
    const double mean_longitude = 280.46646 + t * (36000.76983 + t * 0.0003032);
    const double anomaly = radians(357.52911 + t * (35999.05029 - t * 0.0001537));
    const double center = (1.914602 - t * (0.004817 + t * 0.000014)) * std::sin(anomaly) +
                          (0.019993 - t * 0.000101) * std::sin(2 * anomaly) + 0.000289 * std::sin(3 * anomaly);
    constexpr double aberration = 0.00569;
    const double longitude = radians(mean_longitude + center - aberration);
    const double obliquity = radians(23.4392911 - t * (0.0130042 + t * (1.64e-7 - t * 5.04e-7)));
    return {std::atan2(std::cos(obliquity) * std::sin(longitude), std::cos(longitude)),
            std::asin(std::sin(obliquity) * std::sin(longitude))};
}

// How far the sky has turned over the meridian of that longitude, in radians. Chapter 12.
double sidereal_time(double utc, double longitude_degrees) {
    const double days = (utc - epoch_2000) / seconds_in_day;
    const double t = days / days_in_century;
    // The whole turns of each day are taken out first: multiplied out, they would cost digits.
    const double turned = std::fmod(days, 1.0) * degrees_in_circle;
    return radians(280.46061837 + turned + 0.98564736629 * days + 0.000387933 * t * t + longitude_degrees);
}

// How far west of the meridian the sun stands, in radians, between half a turn east and half a turn west.
double hour_angle(double utc, double longitude_degrees) {
    return std::remainder(sidereal_time(utc, longitude_degrees) - place_of_sun(utc).right_ascension,
                          2 * std::numbers::pi);
}

// What the local clock is ahead of UTC, in seconds.
double clock_offset(const shadow_info& info) {
    return info.time_zone * seconds_in_hour + (info.daylight_saving ? seconds_in_hour : 0);
}

// When the sun stands on the meridian, in UTC, next to the moment given.
double noon_near(double utc, double longitude_degrees) {
    for (int step = 0; step < steps_to_rise; ++step)
        utc -= hour_angle(utc, longitude_degrees) / (2 * std::numbers::pi) * seconds_in_day;
    return utc;
}

// The hour angle at which a body of that declination crosses the horizon, in radians; no number if it never does.
double half_day_arc(double declination, double latitude) {
    return std::acos((std::sin(altitude_at_rise) - std::sin(latitude) * std::sin(declination)) /
                     (std::cos(latitude) * std::cos(declination)));
}

// side: -1 for the rise before that noon, 1 for the set behind it. Chapter 15.
double crossing(double noon, double side, const shadow_info& info) {
    const double latitude = radians(info.latitude);
    double utc = noon;
    for (int step = 0; step < steps_to_rise; ++step) {
        const double wanted = side * half_day_arc(place_of_sun(utc).declination, latitude);
        // Near a polar day the sun crosses about midnight, where the hour angle jumps; the difference must not.
        const double away = std::remainder(wanted - hour_angle(utc, info.longitude), 2 * std::numbers::pi);
        utc += away / (2 * std::numbers::pi) * seconds_in_day;
    }
    return utc;
}

bool is_moment(double seconds) {
    return std::abs(seconds) < last_moment; // false for what is no number
}

} // namespace

std::optional<vec3> sun_direction(const shadow_info& info) {
    const double utc = static_cast<double>(info.time) - clock_offset(info);
    const double latitude = radians(info.latitude);
    const double west = hour_angle(utc, info.longitude);
    const double declination = place_of_sun(utc).declination;
    const double northward =
        std::cos(latitude) * std::sin(declination) - std::sin(latitude) * std::cos(declination) * std::cos(west);
    const double eastward = -std::cos(declination) * std::sin(west);
    const double upward =
        std::sin(latitude) * std::sin(declination) + std::cos(latitude) * std::cos(declination) * std::cos(west);

    const vec3 north = normalized_or({info.north.x, info.north.y, 0}, {0, 1, 0});
    const vec3 east = {north.y, -north.x, 0};
    const vec3 direction = north * northward + east * eastward + vec3{0, 0, upward};
    if (!is_finite(direction))
        return std::nullopt;
    return direction;
}

std::optional<daylight> sunrise_and_sunset(const shadow_info& info) {
    const double midnight = std::floor(static_cast<double>(info.time) / seconds_in_day) * seconds_in_day;
    const double offset = clock_offset(info);
    const double noon = noon_near(midnight + seconds_in_day / 2 - offset, info.longitude);
    const double rise = crossing(noon, -1, info) + offset;
    const double set = crossing(noon, 1, info) + offset;
    if (!is_moment(rise) || !is_moment(set))
        return std::nullopt;
    return daylight{std::llround(rise), std::llround(set)};
}

} // namespace sketchup

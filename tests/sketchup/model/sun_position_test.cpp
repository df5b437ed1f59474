#include "sketchup/model/sun_position.h"

#include "sketchup/model/vector_math.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>
#include <numbers>

namespace sketchup {
namespace {

constexpr double degree = std::numbers::pi / 180;
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

// The promise of the header, with the parallax that published places may hold.
constexpr double agreement_degrees = 0.015;

struct clock_time {
    int year, month, day, hour, minute, second;
};

std::int64_t seconds_of(const clock_time& c) {
    using namespace std::chrono;
    const sys_days day = year(c.year) / month(static_cast<unsigned>(c.month)) / c.day;
    return day.time_since_epoch().count() * 86400LL + c.hour * 3600 + c.minute * 60 + c.second;
}

shadow_info at(double latitude, double longitude, double time_zone, const clock_time& clock) {
    shadow_info info;
    info.latitude = latitude;
    info.longitude = longitude;
    info.time_zone = time_zone;
    info.time = seconds_of(clock);
    return info;
}

double altitude(const shadow_info& info) {
    return std::asin(sun_direction(info)->z) / degree;
}

// Clockwise from the y axis.
double azimuth(const shadow_info& info) {
    const vec3 d = *sun_direction(info);
    const double angle = std::atan2(d.x, d.y) / degree;
    return angle < 0 ? angle + 360 : angle;
}

void expect_same(const vec3& a, const vec3& b) {
    EXPECT_LT(length(a - b), 1e-9) << a.x << " " << a.y << " " << a.z << ", " << b.x << " " << b.y << " " << b.z;
}

// The worked example of Reda and Andreas, "Solar Position Algorithm for Solar Radiation Applications", NREL 2008:
// azimuth 194.340241, elevation without refraction 39.872046.
const shadow_info golden = at(39.742476, -105.1786, -7, {2003, 10, 17, 12, 30, 30});

} // namespace

TEST(SunPosition, agrees_with_the_published_example_of_golden) {
    EXPECT_NEAR(azimuth(golden), 194.340241, agreement_degrees);
    EXPECT_NEAR(altitude(golden), 39.872046, agreement_degrees);
    EXPECT_NEAR(length(*sun_direction(golden)), 1, 1e-12);
}

TEST(SunPosition, stands_at_its_declination_over_the_pole) {
    // Meeus, example 25.a: 1992 October 13 at 0 h, declination -7.78507.
    EXPECT_NEAR(altitude(at(90, 0, 0, {1992, 10, 13, 0, 0, 0})), -7.78507, agreement_degrees);
}

TEST(SunPosition, is_on_the_meridian_that_the_equation_of_time_tells) {
    // Meeus, example 28.a: at the same moment the sun is 13.70949 minutes ahead of the clock. At 0 h in Greenwich it
    // is noon by the sun at 180 degrees less 13.70949 x 15 / 60 = 3.42737 degrees.
    EXPECT_NEAR(azimuth(at(50, 176.57263, 0, {1992, 10, 13, 0, 0, 0})), 180, agreement_degrees);
}

TEST(SunPosition, crosses_the_equator_at_the_equinox) {
    // 2024 March 20 at 03:06 and September 22 at 12:44; the declination changes by a hundredth of a degree in 36 min.
    EXPECT_NEAR(altitude(at(90, 0, 0, {2024, 3, 20, 3, 6, 0})), 0, agreement_degrees);
    EXPECT_NEAR(altitude(at(90, 0, 0, {2024, 9, 22, 12, 44, 0})), 0, agreement_degrees);
}

TEST(SunPosition, stands_as_high_as_the_obliquity_at_the_solstice) {
    // 23.4361 degrees in 2024.
    EXPECT_NEAR(altitude(at(90, 0, 0, {2024, 6, 20, 20, 51, 0})), 23.4361, agreement_degrees);
    EXPECT_NEAR(altitude(at(90, 0, 0, {2024, 12, 21, 9, 21, 0})), -23.4361, agreement_degrees);
}

TEST(SunPosition, noon_of_the_summer_solstice_is_the_highest_of_the_place) {
    // 90 - 46.95 + 23.436; noon in Bern on 2024 June 20: 12:00 + 30:12 for the 7.55 degrees to the zone's meridian,
    // + 1:47 that the sun is late. Altitude changes by less than 0.001 degrees in the half minute about noon.
    shadow_info bern = at(46.95, 7.45, 1, {2024, 6, 20, 12, 31, 59});
    EXPECT_NEAR(altitude(bern), 66.486, agreement_degrees);
    EXPECT_NEAR(azimuth(bern), 180, 0.2);
}

TEST(SunPosition, stands_in_the_north_at_noon_in_the_south) {
    // Sydney, 151.2 east: noon by the sun is 4.8 minutes before that of the zone; on 2024 December 21 it is 2 early.
    const shadow_info sydney = at(-33.87, 151.2, 10, {2024, 12, 21, 11, 53, 20});
    EXPECT_NEAR(altitude(sydney), 90 - 33.87 + 23.436, 0.02);
    EXPECT_GT(sun_direction(sydney)->y, 0);
}

TEST(SunPosition, rises_in_the_east) {
    EXPECT_GT(sun_direction(at(0, 0, 0, {2024, 3, 20, 7, 0, 0}))->x, 0.9);
    EXPECT_LT(sun_direction(at(0, 0, 0, {2024, 3, 20, 17, 0, 0}))->x, -0.9);
}

TEST(SunPosition, is_below_the_horizon_at_night) {
    EXPECT_LT(sun_direction(at(46.95, 7.45, 1, {2024, 6, 20, 0, 30, 0}))->z, -0.3);
}

TEST(SunPosition, the_clock_counts_in_the_time_zone) {
    const shadow_info one_zone_east = at(39.742476, -105.1786, -6, {2003, 10, 17, 13, 30, 30});
    expect_same(*sun_direction(one_zone_east), *sun_direction(golden));
    const shadow_info half_zone = at(39.742476, -105.1786, -6.5, {2003, 10, 17, 13, 0, 30});
    expect_same(*sun_direction(half_zone), *sun_direction(golden));
}

TEST(SunPosition, daylight_saving_puts_the_clock_an_hour_ahead) {
    shadow_info summer = at(39.742476, -105.1786, -7, {2003, 10, 17, 13, 30, 30});
    summer.daylight_saving = true;
    expect_same(*sun_direction(summer), *sun_direction(golden));
}

TEST(SunPosition, follows_the_north_of_the_model) {
    const vec3 straight = *sun_direction(golden);
    shadow_info turned = golden;
    turned.north = {1, 0, 0}; // a quarter clockwise, and all directions with it
    expect_same(*sun_direction(turned), {straight.y, -straight.x, straight.z});
    turned.north = {std::sin(30 * degree), std::cos(30 * degree), 0};
    EXPECT_NEAR(azimuth(turned), azimuth(golden) + 30, 1e-9);
    EXPECT_NEAR(altitude(turned), altitude(golden), 1e-9);
}

TEST(SunPosition, takes_north_along_y_if_it_has_no_direction) {
    for (const vec3& north : {vec3{0, 0, 0}, vec3{0, 0, 5}, vec3{not_a_number, 0, 0}, vec3{0, 7, 3}}) {
        shadow_info info = golden;
        info.north = north;
        expect_same(*sun_direction(info), *sun_direction(golden));
    }
}

TEST(SunPosition, is_nowhere_for_a_place_that_is_no_number) {
    for (const double broken : {not_a_number, std::numeric_limits<double>::infinity()}) {
        EXPECT_FALSE(sun_direction(at(broken, 0, 0, {2024, 1, 1, 12, 0, 0})));
        EXPECT_FALSE(sun_direction(at(0, broken, 0, {2024, 1, 1, 12, 0, 0})));
        EXPECT_FALSE(sun_direction(at(0, 0, broken, {2024, 1, 1, 12, 0, 0})));
        EXPECT_FALSE(sunrise_and_sunset(at(broken, 0, 0, {2024, 1, 1, 12, 0, 0})));
        EXPECT_FALSE(sunrise_and_sunset(at(0, broken, 0, {2024, 1, 1, 12, 0, 0})));
        EXPECT_FALSE(sunrise_and_sunset(at(0, 0, broken, {2024, 1, 1, 12, 0, 0})));
    }
    EXPECT_FALSE(sunrise_and_sunset(at(0, 0, 1e300, {2024, 1, 1, 12, 0, 0})));
}

TEST(SunPosition, has_a_direction_at_any_moment_of_a_file) {
    for (const std::int64_t time : {std::int64_t{0}, std::int64_t{-1}, std::int64_t{0xFFFFFFFF}}) {
        shadow_info info = golden;
        info.time = time;
        EXPECT_NEAR(length(*sun_direction(info)), 1, 1e-12) << time;
    }
}

TEST(Sunrise, agrees_with_the_published_calculator_of_golden) {
    // The calculator of NREL for the same place on 2015 January 2: 07:21:55 and 16:47:43.
    const auto hours = sunrise_and_sunset(at(39.742476, -105.1786, -7, {2015, 1, 2, 12, 0, 0}));
    ASSERT_TRUE(hours);
    EXPECT_NEAR(double(hours->rise), double(seconds_of({2015, 1, 2, 7, 21, 55})), 5);
    EXPECT_NEAR(double(hours->set), double(seconds_of({2015, 1, 2, 16, 47, 43})), 5);
}

TEST(Sunrise, agrees_with_the_tables_of_london_on_its_own_clock) {
    // 2024 June 21, summer time: 04:43 and 21:21; a table rounds to the minute.
    shadow_info london = at(51.5074, -0.1278, 0, {2024, 6, 21, 23, 59, 59});
    london.daylight_saving = true;
    const auto hours = sunrise_and_sunset(london);
    ASSERT_TRUE(hours);
    EXPECT_NEAR(double(hours->rise), double(seconds_of({2024, 6, 21, 4, 43, 0})), 60);
    EXPECT_NEAR(double(hours->set), double(seconds_of({2024, 6, 21, 21, 21, 0})), 60);
}

TEST(Sunrise, is_the_same_all_day_long) {
    const auto early = sunrise_and_sunset(at(-33.87, 151.2, 10, {2024, 1, 5, 0, 0, 0}));
    const auto late = sunrise_and_sunset(at(-33.87, 151.2, 10, {2024, 1, 5, 23, 59, 59}));
    ASSERT_TRUE(early && late);
    EXPECT_EQ(early->rise, late->rise);
    EXPECT_EQ(early->set, late->set);
}

TEST(Sunrise, puts_the_centre_of_the_sun_50_minutes_of_arc_below_the_horizon) {
    for (const double latitude : {-60.0, -20.0, 0.0, 45.0, 64.0})
        for (const int month : {1, 3, 6, 10, 12}) {
            shadow_info info = at(latitude, 100, 7, {2010, month, 21, 12, 0, 0});
            const auto hours = sunrise_and_sunset(info);
            ASSERT_TRUE(hours) << latitude << " " << month;
            info.time = hours->rise;
            EXPECT_NEAR(altitude(info), -50.0 / 60, 0.005) << latitude << " " << month;
            EXPECT_GT(sun_direction(info)->x, 0);
            info.time = hours->set;
            EXPECT_NEAR(altitude(info), -50.0 / 60, 0.005) << latitude << " " << month;
            EXPECT_LT(sun_direction(info)->x, 0);
        }
}

TEST(Sunrise, is_not_there_on_a_polar_day_or_night) {
    EXPECT_FALSE(sunrise_and_sunset(at(69.65, 18.96, 1, {2024, 6, 21, 12, 0, 0})));
    EXPECT_FALSE(sunrise_and_sunset(at(69.65, 18.96, 1, {2024, 12, 21, 12, 0, 0})));
    EXPECT_FALSE(sunrise_and_sunset(at(90, 0, 0, {2024, 6, 21, 12, 0, 0})));
}

} // namespace sketchup

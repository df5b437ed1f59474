// Which settings the sun of the model becomes.

#include "tessaline/reading/sun.h"

#include "tests/tessaline/run_fixture.h"

#include "sketchup/api/handles.h"
#include "sketchup/skp/link.h"

#include <cmath>
#include <numbers>

namespace {

using sketchup::model_builder;
using testing::HasSubstr;

constexpr double degree = std::numbers::pi / 180;

// Golden, Colorado, 2003 October 17, 12:30:30; azimuth 194.340241 clockwise from north, altitude 39.872046.
void stand_in_golden(sketchup::shadow_info& info) {
    info.latitude = 39.742476;
    info.longitude = -105.1786;
    info.time_zone = -7;
    info.time = 1066393830;
}

TEST(SunAngles, straight_overhead_has_the_azimuth_zero) {
    EXPECT_EQ(sun_angles_of({0, 0, 1}).azimuth, 0);
    EXPECT_EQ(sun_angles_of({0, 0, 1}).altitude, std::numbers::pi / 2);
}

TEST(SunAngles, no_direction_gives_zero) {
    EXPECT_EQ(sun_angles_of({0, 0, 0}).azimuth, 0);
    EXPECT_EQ(sun_angles_of({0, 0, 0}).altitude, 0);
}

TEST(SunAngles, the_azimuth_takes_all_four_quadrants) {
    EXPECT_DOUBLE_EQ(sun_angles_of({1, 1, 0}).azimuth, 45 * degree);
    EXPECT_DOUBLE_EQ(sun_angles_of({-1, 1, 0}).azimuth, 135 * degree);
    EXPECT_DOUBLE_EQ(sun_angles_of({-1, -1, 0}).azimuth, -135 * degree);
    EXPECT_DOUBLE_EQ(sun_angles_of({1, -1, 0}).azimuth, -45 * degree);
}

TEST(SunAngles, the_altitude_is_negative_below_the_ground) {
    EXPECT_DOUBLE_EQ(sun_angles_of({3, 4, -5}).altitude, -45 * degree); // 5 down on 5 along the ground
}

class Sun : public run_fixture {
protected:
    ~Sun() override {
        if (SUIsValid(open_model))
            SUModelRelease(&open_model);
    }
    void read() {
        auto model = builder.finish();
        skp::link(*model);
        open_model = sketchup::api::adopt_model(std::move(model));
        read_sun();
    }
    sketchup::shadow_info& info() { return builder.model().shadow_info; }

    model_builder builder;
};

TEST_F(Sun, its_angles_are_radians_counted_from_the_x_axis) {
    stand_in_golden(info());
    read();
    // 90 - 194.34 is -104.34 degrees from the x axis towards the y axis.
    for (const char* name : {"rzyn_sun_azimuth", "rskp_sun_azimuth"})
        EXPECT_NEAR(get_global_double(name), -104.340241 * degree, 0.015 * degree) << name;
    for (const char* name : {"rzyn_sun_altitude", "rskp_sun_altitude"})
        EXPECT_NEAR(get_global_double(name), 39.872046 * degree, 0.015 * degree) << name;
}

TEST_F(Sun, turns_with_the_north_of_the_model) {
    stand_in_golden(info());
    info().north = {1, 0, 0};
    read();
    EXPECT_NEAR(get_global_double("rskp_sun_azimuth"), (-194.340241 + 360) * degree, 0.015 * degree);
}

TEST_F(Sun, the_place_and_its_clock_become_settings) {
    stand_in_golden(info());
    info().daylight_saving = true;
    read();
    EXPECT_TRUE(get_global_bool("bskp_sun_daylight_time"));
    EXPECT_EQ(get_global_double("rskp_sun_latitude"), 39.742476);
    EXPECT_EQ(get_global_double("rskp_sun_longitude"), -105.1786);
    EXPECT_EQ(get_global_double("rskp_sun_timezone"), -7);
    EXPECT_EQ(get_global_double("rzyn_sun_latitude"), 40) << "the renderer's own place stays";
}

TEST_F(Sun, replaces_what_the_settings_held) {
    set_global_bool("bskp_sun_daylight_time", true);
    set_global_double("rskp_sun_timezone", 5);
    info().time_zone = 0;
    read();
    EXPECT_FALSE(get_global_bool("bskp_sun_daylight_time"));
    EXPECT_EQ(get_global_double("rskp_sun_timezone"), 0);
}

TEST_F(Sun, a_model_without_a_sun_direction_stores_zero) {
    info().latitude = std::nan("");
    set_global_double("rzyn_sun_azimuth", 1);
    set_global_double("rzyn_sun_altitude", 1);
    read();
    for (const char* name : {"rzyn_sun_azimuth", "rzyn_sun_altitude", "rskp_sun_azimuth", "rskp_sun_altitude"})
        EXPECT_EQ(get_global_double(name), 0) << name;
}

TEST_F(Sun, without_an_open_model_all_is_zero) {
    for (const char* name : {"rzyn_sun_azimuth", "rskp_sun_altitude", "rskp_sun_latitude", "rskp_sun_timezone"})
        set_global_double(name, 1);
    SUSetInvalid(open_model);
    read_sun();
    for (const char* name : {"rzyn_sun_azimuth", "rskp_sun_altitude", "rskp_sun_latitude", "rskp_sun_timezone"})
        EXPECT_EQ(get_global_double(name), 0) << name;
}

TEST_F(Sun, overrides_the_option_file_and_reaches_it) {
    batch.write("option_globals.txt", "rskp_sun_latitude;12\nrzyn_sun_altitude;9\n");
    stand_in_golden(info());
    body_of(builder);
    const std::string text = "\r\n" + batch.read("option_globals.txt");
    EXPECT_THAT(text, HasSubstr("\r\nrskp_sun_latitude; 39.742476\r\n"));
    EXPECT_THAT(text, HasSubstr("\r\nbskp_sun_daylight_time; 0\r\n"));
    EXPECT_THAT(text, HasSubstr("\r\nrskp_sun_longitude; -105.1786\r\n"));
    EXPECT_THAT(text, HasSubstr("\r\nrskp_sun_timezone; -7\r\n"));
    EXPECT_THAT(text, HasSubstr("\r\nrzyn_sun_altitude; 0.69")); // 39.87 degrees
}

TEST_F(Sun, gives_way_to_the_settings_of_the_model) {
    stand_in_golden(info());
    builder.attribute(builder.root().list(), "qlw_globals", "rzyn_sun_altitude", sketchup::real_number(0.25));
    body_of(builder);
    EXPECT_EQ(get_global_double("rzyn_sun_altitude"), 0.25);
}

} // namespace

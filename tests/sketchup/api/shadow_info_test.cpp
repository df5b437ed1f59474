#include "tests/sketchup/api/test_model.h"

#include "sketchup/api/shadow_values.h"

#include <gtest/gtest.h>

#include <cmath>

using sketchup::shadow_info;
using sketchup::typed_value;
using sketchup::value_code;
using sketchup::api::shadow_value;

TEST(ShadowInfo, gives_every_stored_value_in_its_type) {
    shadow_info info;
    info.city = "Bern";
    info.country = "Switzerland";
    info.latitude = 46.95;
    info.longitude = 7.45;
    info.time_zone = 1;
    info.time = 1000;
    info.daylight_saving = info.display_shadows = info.display_north = info.edges_cast_shadows = true;
    info.light = 70;
    info.dark = 40;
    const std::vector<std::pair<std::string, typed_value>> expected = {
        {"City", {value_code::string, std::string("Bern")}},
        {"Country", {value_code::string, std::string("Switzerland")}},
        {"Dark", {value_code::int32, std::int64_t{40}}},
        {"DaylightSavings", {value_code::boolean, true}},
        {"DisplayNorth", {value_code::boolean, true}},
        {"DisplayOnAllFaces", {value_code::boolean, true}},
        {"DisplayOnGroundPlane", {value_code::boolean, true}},
        {"DisplayShadows", {value_code::boolean, true}},
        {"EdgesCastShadows", {value_code::boolean, true}},
        {"Latitude", {value_code::float64, 46.95}},
        {"Light", {value_code::int32, std::int64_t{70}}},
        {"Longitude", {value_code::float64, 7.45}},
        {"ShadowTime", {value_code::time, std::int64_t{1000}}},
        {"ShadowTime_time_t", {value_code::time, std::int64_t{1000}}},
        {"TZOffset", {value_code::float64, 1.0}},
        {"UseSunForAllShading", {value_code::boolean, false}},
    };
    for (const auto& [key, value] : expected)
        EXPECT_EQ(shadow_value(info, key), value) << key;
    EXPECT_FALSE(shadow_value(info, "NoSuchKey"));
}

TEST(ShadowInfo, counts_the_days_of_the_stored_year_from_one) {
    const auto day = [](std::int64_t time) {
        shadow_info info;
        info.time = time;
        return std::get<std::int64_t>(shadow_value(info, "DayOfYear")->data);
    };
    EXPECT_EQ(day(0), 1);            // 1 January 1970
    EXPECT_EQ(day(86399), 1);        // its last second
    EXPECT_EQ(day(86400), 2);        //
    EXPECT_EQ(day(-1), 365);         // 31 December 1969
    EXPECT_EQ(day(1036670400), 311); // 7 November 2002, noon: 304 days to the end of October, and 7
    EXPECT_EQ(day(1735603200), 366); // 31 December 2024
}

TEST(ShadowInfo, measures_north_clockwise_from_the_y_axis) {
    const auto angle = [](double x, double y) {
        shadow_info info;
        info.north = {x, y, 0};
        return std::get<double>(shadow_value(info, "NorthAngle")->data);
    };
    EXPECT_DOUBLE_EQ(angle(0, 1), 0);
    EXPECT_DOUBLE_EQ(angle(1, 0), 90);
    EXPECT_DOUBLE_EQ(angle(0, -1), 180);
    EXPECT_DOUBLE_EQ(angle(-1, 0), 270);
}

TEST(ShadowInfo, is_asked_through_a_handle) {
    sketchup::model_builder builder;
    builder.model().shadow_info.latitude = 46.95;
    test_model opened(builder);
    SUShadowInfoRef info = SU_INVALID;
    EXPECT_EQ(SUModelGetShadowInfo(opened.ref, &info), SU_ERROR_NONE);
    test_value value;
    double latitude = 0;
    EXPECT_EQ(SUShadowInfoGetValue(info, "Latitude", &value.ref), SU_ERROR_NONE);
    EXPECT_EQ(SUTypedValueGetDouble(value.ref, &latitude), SU_ERROR_NONE);
    EXPECT_EQ(latitude, 46.95);
    SUTypedValueRef not_created = SU_INVALID;
    EXPECT_EQ(SUShadowInfoGetValue(info, "Latitude", &not_created), SU_ERROR_INVALID_OUTPUT);
    EXPECT_EQ(SUShadowInfoGetValue(SU_INVALID, "Latitude", &value.ref), SU_ERROR_INVALID_INPUT);
}

TEST(ShadowInfo, works_out_where_the_sun_stands) {
    shadow_info info; // Golden, Colorado, 2003 October 17, 12:30:30
    info.latitude = 39.742476;
    info.longitude = -105.1786;
    info.time_zone = -7;
    info.time = 1066393830;
    const auto direction = shadow_value(info, "SunDirection");
    ASSERT_TRUE(direction);
    EXPECT_EQ(direction->code, value_code::vector);
    // Azimuth 194.34 clockwise from y, altitude 39.87: cos 39.87 x sin 194.34, cos 39.87 x cos 194.34, sin 39.87.
    const auto to_sun = std::get<sketchup::vec3>(direction->data);
    EXPECT_NEAR(to_sun.x, -0.1901, 3e-4);
    EXPECT_NEAR(to_sun.y, -0.7437, 3e-4);
    EXPECT_NEAR(to_sun.z, 0.6411, 3e-4);
}

TEST(ShadowInfo, works_out_when_the_sun_rises_and_sets_on_the_local_clock) {
    shadow_info info; // the same place, 2015 January 2, noon
    info.latitude = 39.742476;
    info.longitude = -105.1786;
    info.time_zone = -7;
    info.time = 1420200000;
    const auto seconds = [&info](const char* key) {
        const auto value = shadow_value(info, key);
        EXPECT_EQ(value->code, value_code::time) << key;
        return double(std::get<std::int64_t>(value->data) - 1420156800); // since midnight
    };
    for (const char* key : {"SunRise", "SunRise_time_t"})
        EXPECT_NEAR(seconds(key), 26515, 5) << key; // 07:21:55
    for (const char* key : {"SunSet", "SunSet_time_t"})
        EXPECT_NEAR(seconds(key), 60463, 5) << key; // 16:47:43
}

TEST(ShadowInfo, has_no_sunrise_on_a_polar_day) {
    shadow_info info;
    info.latitude = 80;
    info.time = 1718971200; // 2024 June 21, noon
    for (const char* key : {"SunRise", "SunRise_time_t", "SunSet", "SunSet_time_t"})
        EXPECT_FALSE(shadow_value(info, key)) << key;
    EXPECT_TRUE(shadow_value(info, "SunDirection"));
}

TEST(ShadowInfo, has_no_sun_over_no_place) {
    shadow_info info;
    info.latitude = std::nan("");
    EXPECT_FALSE(shadow_value(info, "SunDirection"));
}

TEST(ShadowInfo, gives_the_direction_to_the_sun_as_a_vector) {
    sketchup::model_builder builder;
    test_model opened(builder);
    SUShadowInfoRef info = SU_INVALID;
    SUModelGetShadowInfo(opened.ref, &info);
    test_value value;
    EXPECT_EQ(SUShadowInfoGetValue(info, "SunDirection", &value.ref), SU_ERROR_NONE);
    EXPECT_EQ(value.type(), SUTypedValueType_Vector3D);
    double direction[3]{};
    EXPECT_EQ(SUTypedValueGetVector3d(value.ref, direction), SU_ERROR_NONE);
    EXPECT_NEAR(direction[0] * direction[0] + direction[1] * direction[1] + direction[2] * direction[2], 1, 1e-12);
    EXPECT_EQ(SUShadowInfoGetValue(info, "SunRise", &value.ref), SU_ERROR_NONE);
    EXPECT_EQ(value.type(), SUTypedValueType_Time);
}

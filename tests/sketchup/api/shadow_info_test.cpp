#include "tests/sketchup/api/test_model.h"

#include "sketchup/api/shadow_values.h"

#include <gtest/gtest.h>

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

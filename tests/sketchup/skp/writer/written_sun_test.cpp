#include "sketchup/skp/writer/written_sun.h"

#include <gtest/gtest.h>

TEST(WrittenSun, a_place_and_a_time_stay_as_they_are) {
    sketchup::shadow_info sun;
    sun.time = 5;
    sun.latitude = 52.5;
    const sketchup::shadow_info written = skp::written_sun(sun);
    EXPECT_EQ(written.time, 5);
    EXPECT_EQ(written.latitude, 52.5);
    EXPECT_EQ(written.longitude, 0);
    EXPECT_EQ(written.city, "");
}

TEST(WrittenSun, what_has_neither_gets_those_of_a_new_document) {
    const sketchup::shadow_info written = skp::written_sun({});
    EXPECT_EQ(written.time, 1604842200);
    EXPECT_EQ(written.city, "Boulder (CO)");
    EXPECT_EQ(written.time_zone, -7);
}

TEST(WrittenSun, a_place_of_that_name_at_no_position_is_left_there) {
    sketchup::shadow_info sun;
    sun.country = "Nowhere";
    EXPECT_EQ(skp::written_sun(sun).latitude, 0);
}

#include "platform/platform.h"
#include "tests/support/environment.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ctime>

namespace {

TEST(Clock, counts_seconds_since_the_epoch) {
    EXPECT_NEAR(platform::seconds_since_epoch(), static_cast<double>(std::time(nullptr)), 2.0);
}

TEST(RunDate, is_now_unless_the_environment_fixes_it) {
    const with_environment unset("SOURCE_DATE_EPOCH", std::nullopt);
    EXPECT_NEAR(static_cast<double>(platform::run_date()), static_cast<double>(std::time(nullptr)), 2.0);
}

TEST(RunDate, is_the_moment_that_the_environment_fixes) {
    const with_environment fixed("SOURCE_DATE_EPOCH", "1000000000");
    EXPECT_EQ(platform::run_date(), 1000000000);
}

TEST(RunDate, is_now_if_the_environment_holds_no_whole_number) {
    for (const char* value : {"", "yesterday", "100x", "1.5", "99999999999999999999"}) {
        const with_environment fixed("SOURCE_DATE_EPOCH", value);
        EXPECT_NEAR(static_cast<double>(platform::run_date()), static_cast<double>(std::time(nullptr)), 2.0) << value;
    }
}

TEST(RunDate, a_fixed_date_is_written_in_universal_time_wherever_the_machine_stands) {
    const with_environment zone("TZ", "EST5EDT");
    const with_environment fixed("SOURCE_DATE_EPOCH", "1000000000");
    EXPECT_EQ(platform::run_date_text("%m/%d/%Y  %H:%M:%S %Z"), "09/09/2001  01:46:40 GMT");
}

TEST(LocalTime, is_written_in_the_zone_of_the_machine) {
    const with_environment zone("TZ", "EST5EDT");
    EXPECT_EQ(platform::local_time_text(1000000000, "%m/%d/%Y  %H:%M:%S"), "09/08/2001  21:46:40");
    EXPECT_EQ(platform::local_time_text(1000000000, "%X"), "21:46:40");
}

TEST(LocalTime, only_a_zone_mark_of_its_own_becomes_the_zone) {
    const with_environment zone("TZ", "UTC0");
    EXPECT_EQ(platform::local_time_text(1000000000, "%Z %%Z %Z%%%Z Z"), "UTC %Z UTC%UTC Z");
}

TEST(LocalTime, a_machine_on_universal_time_says_so) {
    const with_environment zone("TZ", "UTC0");
    EXPECT_EQ(platform::local_time_text(1000000000, "%H:%M %Z"), "01:46 UTC");
}

TEST(LocalTime, is_empty_for_a_year_beyond_the_calendar) {
    EXPECT_EQ(platform::local_time_text(INT64_MAX, "%X"), "");
}

} // namespace

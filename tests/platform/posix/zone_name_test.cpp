#include "platform/platform.h"
#include "tests/support/environment.h"

#include <gtest/gtest.h>

namespace {

TEST(ZoneName, is_that_of_summer_or_winter) {
    const with_environment zone("TZ", "EST5EDT");
    EXPECT_EQ(platform::local_time_text(1000000000, "%Z"), "EDT"); // a day in September
    EXPECT_EQ(platform::local_time_text(1010000000, "%Z"), "EST"); // one in January
}

} // namespace

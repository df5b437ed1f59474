#include "qlw/qlw_profile.h"

#include "qlw/ini_file.h"

#include <gtest/gtest.h>

TEST(UserProfile, a_key_that_was_never_written_gives_the_default) {
    EXPECT_EQ(get_profile_string("Globals", "svl_never_written", "ZZZ", true), "ZZZ");
    EXPECT_EQ(get_profile_int("Globals", "ivl_never_written", -99999, true), -99999);
    EXPECT_EQ(get_profile_double("Globals", "rvl_never_written", 1.5, true), 1.5);
    EXPECT_EQ(get_string_from_default_ini("Globals", "svl_never_written", "ZZZ", ""), "ZZZ");
}

TEST(UserProfile, the_settings_see_the_same_profile) {
    cl_profile profile;
    EXPECT_EQ(profile.get_string("Globals", "svl_never_written", "xxx", true), "xxx");
    EXPECT_EQ(profile.get_int("Globals", "ivl_never_written", 7, true), 7);
    EXPECT_EQ(profile.get_double("Globals", "rvl_never_written", 2.5, true), 2.5);
    EXPECT_EQ(profile.get_default_ini_string("Globals", "svl_never_written", "ZZZ"), "ZZZ");
}

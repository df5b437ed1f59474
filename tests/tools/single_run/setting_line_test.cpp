#include "tools/single_run/setting_line.h"

#include <gtest/gtest.h>

namespace {

TEST(SettingLine, a_value_that_the_converter_would_read_as_something_else_is_complained_about) {
    EXPECT_EQ(complaint_about_setting("ivl_resx", "640"), "");
    EXPECT_EQ(complaint_about_setting("ivl_resx", "640 px"),
              "the setting ivl_resx takes a whole number of 32 bits, not 640 px");
    EXPECT_EQ(complaint_about_setting("ivl_resx", "2147483648"),
              "the setting ivl_resx takes a whole number of 32 bits, not 2147483648");
    EXPECT_EQ(complaint_about_setting("bvl_show_bulbs", "true"), "");
    EXPECT_EQ(complaint_about_setting("bvl_show_bulbs", "yes"),
              "the setting bvl_show_bulbs takes 0, 1, true or false, not yes");
    EXPECT_EQ(complaint_about_setting("rvl_edge_line_width", "1.5"), "");
    EXPECT_EQ(complaint_about_setting("rvl_edge_line_width", "1,5"),
              "the setting rvl_edge_line_width takes a number, not 1,5");
    EXPECT_EQ(complaint_about_setting("ivl_no_such_thing", "1"), "there is no setting ivl_no_such_thing");
}

TEST(SettingLine, no_value_of_any_kind_holds_the_end_of_a_line) {
    EXPECT_EQ(complaint_about_setting("pzyn_sun_time", "(1,2,3)"), "");
    EXPECT_EQ(complaint_about_setting("pzyn_sun_time", "(1,\r\n2,\n3)"), "the setting pzyn_sun_time takes one line");
    EXPECT_EQ(complaint_about_setting("pzyn_sun_time", "(1,\r2,3)"), "the setting pzyn_sun_time takes one line");
    EXPECT_EQ(complaint_about_setting("sqlw_extract_mode", "a\nb"), "the setting sqlw_extract_mode takes one line");
    EXPECT_EQ(complaint_about_setting("ivl_resx", "640\n"), "the setting ivl_resx takes one line");
}

TEST(SettingLine, what_is_not_finite_is_no_number) {
    for (const char* value : {"inf", "-inf", "nan", "infinity"}) {
        EXPECT_EQ(complaint_about_setting("rvl_edge_line_width", value),
                  std::string("the setting rvl_edge_line_width takes a number, not ") + value);
        EXPECT_EQ(complaint_about_setting("pzyn_sun_time", std::string("(0, ") + value + ", 0)"),
                  std::string("the setting pzyn_sun_time takes a point (x, y, z), not (0, ") + value + ", 0)");
    }
}

TEST(SettingLine, a_line_is_what_the_option_file_holds) {
    EXPECT_EQ(setting_line("ivl_resx", "640"), "ivl_resx; 640\r\n");
    EXPECT_EQ(setting_line("bvl_show_bulbs", "true"), "bvl_show_bulbs; 1\r\n");
    EXPECT_EQ(setting_line("bvl_show_bulbs", "0"), "bvl_show_bulbs; 0\r\n");
}

TEST(SettingLine, a_backslash_in_a_text_is_doubled_as_reading_halves_it) {
    EXPECT_EQ(setting_line("sqlw_extract_mode", "a\\b"), "sqlw_extract_mode; a\\\\b\r\n");
}

} // namespace

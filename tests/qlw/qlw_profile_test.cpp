#include "qlw/qlw_profile.h"

#include "profile_fixture.h"
#include "qlw/qlw_globals.h"

#include <filesystem>

namespace {

using testing::IsEmpty;

class UserProfile : public profile_fixture {
protected:
    UserProfile() { global_variables.reset(); }
    ~UserProfile() override { global_variables.reset(); }
};

TEST_F(UserProfile, a_key_that_was_never_written_gives_the_default) {
    EXPECT_EQ(get_profile_string("Globals", "svl_never_written", "ZZZ", true), "ZZZ");
    EXPECT_EQ(get_profile_int("Globals", "ivl_never_written", -99999, true), -99999);
    EXPECT_EQ(get_profile_double("Globals", "rvl_never_written", 1.5, true), 1.5);
    EXPECT_THAT(reported(), IsEmpty());
}

TEST_F(UserProfile, values_are_read_from_the_file_whatever_the_case_of_their_names) {
    write_ini("Profile", "[globals]\r\nSVL_NAME=a b\r\nivl_number=-5\r\nrvl_size=2.5\r\n");
    EXPECT_EQ(get_profile_string("Globals", "svl_name", "-", true), "a b");
    EXPECT_EQ(get_profile_int("Globals", "ivl_number", 7, true), -5);
    EXPECT_EQ(get_profile_double("Globals", "rvl_size", 7, true), 2.5);
}

TEST_F(UserProfile, a_value_in_the_file_that_is_no_number_is_0) {
    write_ini("Profile", "[Globals]\r\nivl_number=many\r\nrvl_size=\r\n");
    EXPECT_EQ(get_profile_int("Globals", "ivl_number", 7, true), 0);
    EXPECT_EQ(get_profile_double("Globals", "rvl_size", 7, true), 0);
}

TEST_F(UserProfile, the_file_wins_over_the_registry) {
    write_ini("Profile", "[Globals]\r\nivl_number=1\r\nsvl_name=\r\n");
    registry->put_number("HKCU\\Software\\Quillon Systems\\Profile\\Globals\\ivl_number", 4, std::int32_t{2});
    registry->put_text("HKCU\\Software\\Quillon Systems\\Profile\\Globals\\svl_name", "old");
    EXPECT_EQ(get_profile_int("Globals", "ivl_number", 7, true), 1);
    EXPECT_EQ(get_profile_string("Globals", "svl_name", "-", true), "");
}

TEST_F(UserProfile, what_the_file_lacks_is_read_from_the_registry_of_an_older_version) {
    registry->put_number("HKCU\\Software\\Quillon Systems\\Profile\\Globals\\ivl_number", 4, std::int32_t{2});
    registry->put_number("HKCU\\Software\\Quillon Systems\\Profile\\Globals\\rvl_size", 3, 2.5);
    registry->put_text("HKCU\\Software\\Quillon Systems\\Profile\\Globals\\svl_name", "old");
    EXPECT_EQ(get_profile_int("Globals", "ivl_number", 7, true), 2);
    EXPECT_EQ(get_profile_double("Globals", "rvl_size", 7, true), 2.5);
    EXPECT_EQ(get_profile_string("Globals", "svl_name", "-", true), "old");
}

TEST_F(UserProfile, a_missing_key_is_reported_unless_it_is_expected) {
    get_profile_string("Globals", "svl_name", "-", true);
    EXPECT_THAT(reported(), IsEmpty());
    get_profile_string("Globals", "svl_name", "-", false);
    EXPECT_THAT(reported(),
                testing::ElementsAre(traced_line{"registry_access", "cl_registry_result::read_registry_entry",
                                                 "REPORT: Cannot locate registry entry: HKEY_CURRENT_USER\\Software\\"
                                                 "Quillon Systems\\Profile\\Globals\\svl_name"}));
}

TEST_F(UserProfile, values_are_written_as_text) {
    write_profile_string("Globals", "svl_name", "a b");
    write_profile_int("Globals", "ivl_number", -5);
    write_profile_double("Globals", "rvl_size", 1.0 / 3);
    EXPECT_EQ(ini("Profile"), "[Globals]\r\nsvl_name=a b\r\nivl_number=-5\r\nrvl_size=0.333333333\r\n");
}

TEST_F(UserProfile, a_write_never_makes_a_registry_key) {
    write_profile_int("Globals", "ivl_number", 5);
    write_profile_double("Globals", "rvl_size", 5);
    write_profile_string("Globals", "svl_name", "a");
    EXPECT_THAT(registry->keys, IsEmpty());
    EXPECT_TRUE(registry->values.empty());
}

TEST_F(UserProfile, the_settings_see_the_same_profile) {
    cl_profile profile;
    profile.write_string("Globals", "svl_name", "a");
    profile.write_int("Globals", "ivl_number", 7);
    profile.write_double("Globals", "rvl_size", 2.5);
    EXPECT_EQ(profile.get_string("Globals", "svl_name", "xxx", true), "a");
    EXPECT_EQ(profile.get_int("Globals", "ivl_number", 0, true), 7);
    EXPECT_EQ(profile.get_double("Globals", "rvl_size", 0, true), 2.5);
    EXPECT_EQ(profile.get_default_ini_string("Globals", "svl_name", "ZZZ"), "ZZZ");
}

TEST_F(UserProfile, the_table_of_settings_takes_its_values_from_one_reading_of_the_file) {
    write_ini("Profile", "[Globals]\r\nivl_save_image_action=3\r\nsvl_last_scheme=Night\r\n"
                         "rvlb_camera_height=60\r\ncvl_bkgnd_fill_color=#ff0010\r\nivl_max_azure_minutes=0\r\n");
    get_profile_string("Globals", "svl_never_written", "-", true);
    write_ini("Profile", "[Globals]\r\nivl_save_image_action=9\r\n");
    register_all_globals();
    EXPECT_EQ(get_global_int("ivl_save_image_action"), 3);
    EXPECT_EQ(get_global_int("ivl_max_azure_minutes"), 15); // 0 stands for the default
    EXPECT_EQ(global_variables.lookup("svl_last_scheme")->get_string(), "Night");
    EXPECT_EQ(global_variables.lookup("rvlb_camera_height")->get_double(), 60);
    EXPECT_EQ(global_variables.lookup("cvl_bkgnd_fill_color")->get_COLORREF(), 0x1000ffu);
}

TEST_F(UserProfile, filling_the_table_of_settings_writes_nothing) {
    register_all_globals();
    EXPECT_TRUE(std::filesystem::is_empty(folder / "config/Quillon Systems"));
}

TEST_F(UserProfile, reading_a_string_real_or_colour_setting_adds_its_key_and_reading_a_number_does_not) {
    write_ini("Profile", "; mine\r\n[Globals]\r\nsvl_last_scheme=Night\r\n");
    register_all_globals();
    EXPECT_EQ(get_global_string("svl_last_scheme"), "Night");
    EXPECT_EQ(get_global_double("rvlb_camera_height"), 50);
    EXPECT_EQ(get_global_COLORREF("corndll_grass_color"), 0x64c88cu);
    EXPECT_EQ(get_global_int("ivl_txtr_dpi"), 72);
    EXPECT_EQ(get_global_bool("bvl_zyn_unknown"), false);
    EXPECT_EQ(ini("Profile"), "; mine\r\n[Globals]\r\nsvl_last_scheme=Night\r\nrvlb_camera_height=50\r\n"
                              "corndll_grass_color=#8cc864\r\n");
}

TEST_F(UserProfile, reading_a_point_setting_adds_its_three_keys) {
    global_variables.create_variable("pvl_place", SAVE_PROFILE).set_fpt({1, 2.5, 1.0 / 3});
    EXPECT_EQ(get_global_fpt("pvl_place").y, 2.5);
    EXPECT_EQ(ini("Profile"), "[Globals]\r\npvl_place_x=1\r\npvl_place_y=2.5\r\npvl_place_z=0.333333333\r\n");
}

TEST_F(UserProfile, a_run_with_an_unwritable_home_goes_on_without_a_message) {
    folder.write("config", "a file in the way of the folder");
    register_all_globals();
    EXPECT_EQ(get_global_string("svl_last_scheme"), "Scheme 1");
    set_global_int("ivl_save_image_action", 4);
    EXPECT_EQ(get_global_int("ivl_save_image_action"), 4);
    // What every run tells, wherever its home is.
    EXPECT_THAT(reported(), testing::ElementsAre(traced_line{"qlw_globals", "report_global_not_preset",
                                                             "REPORT: Global not preset properly: "
                                                             "ivl_max_azure_minutes"}));
}

} // namespace

// What a run reads from the user's settings, and what it leaves in them.

#include "tests/batch/batch_runner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace sketchup;
using testing::HasSubstr;
using testing::Not;

const std::string settings_folder = "home/.config/Quillon Systems";
const std::string profile_file = settings_folder + "/Profile.ini";

void put_square(batch& b) {
    model_builder m;
    m.root().square(10);
    b.put_model(m);
}

TEST(ProfileBatch, a_run_leaves_an_empty_folder_where_there_were_no_settings) {
    batch b;
    put_square(b);
    expect_run(b, "one_square");
    EXPECT_TRUE(b.surrounding().has(settings_folder));
    EXPECT_TRUE(std::filesystem::is_empty(b.surrounding() / settings_folder));
}

TEST(ProfileBatch, a_home_that_takes_no_settings_changes_nothing_and_is_not_told_of) {
    batch b;
    put_square(b);
    b.surrounding().write("home/.config", "a file in the way of the folder");
    expect_run(b, "one_square");
    EXPECT_EQ(b.surrounding().read("home/.config"), "a file in the way of the folder");
}

// Every line of the option file that names a setting of the profile stores it there, in the order of the lines. Looking
// at a text, a number with a fraction or a colour adds its key, even if its value is the one that the line wants.
TEST(ProfileBatch, settings_of_the_profile_in_the_option_file_go_to_the_profile_alone) {
    batch b;
    put_square(b);
    b.surrounding().write(profile_file, "; mine\r\n[Globals]\r\nIVL_Txtr_DPI = 150\r\n\r\n[Other]\r\nx=1\r\n");
    b.put("option_globals.txt", "ivl_txtr_dpi; 96\r\n"
                                "bvl_use_watts; 1\r\n"
                                "bvl_accept_rpc_drops; 1\r\n" // as it is: no key
                                "svl_last_scheme; Scheme 1\r\n"
                                "svl_auto_image_folder; c:\\\\pictures\r\n" // kept there under another save type
                                "rvlb_camera_height; 60\r\n"
                                "corndll_grass_color; 6604940\r\n" // 0x64c88c, as it is: red 8c, green c8, blue 64
                                "cvl_bkgnd_fill_color; 255\r\n");
    EXPECT_EQ(b.run().errors, quiet_errors);
    EXPECT_EQ(b.surrounding().read(profile_file), "; mine\r\n[Globals]\r\n"
                                                  "IVL_Txtr_DPI = 96\r\n"
                                                  "bvl_use_watts=1\r\n"
                                                  "svl_last_scheme=Scheme 1\r\n"
                                                  "svl_auto_image_folder=c:\\pictures\r\n"
                                                  "rvlb_camera_height=60\r\n"
                                                  "corndll_grass_color=#8cc864\r\n"
                                                  "cvl_bkgnd_fill_color=#ff0000\r\n"
                                                  "\r\n[Other]\r\nx=1\r\n");
    const std::string options = b.read("option_globals.txt");
    for (const char* name : {"ivl_txtr_dpi", "bvl_use_watts", "svl_last_scheme", "svl_auto_image_folder",
                             "rvlb_camera_height", "corndll_grass_color", "cvl_bkgnd_fill_color"})
        EXPECT_THAT(options, Not(HasSubstr(name)));
}

TEST(ProfileBatch, settings_of_the_profile_in_the_model_go_to_the_profile) {
    batch b;
    model_builder m;
    m.attribute(m.root().list(), "qlw_globals", "svl_last_scheme", text("Night"));
    m.root().square(10);
    b.put_model(m);
    expect_run(b, "one_square");
    EXPECT_EQ(b.surrounding().read(profile_file), "[Globals]\r\nsvl_last_scheme=Night\r\n");
    EXPECT_EQ(b.folders(), folders_of_every_run());
}

} // namespace

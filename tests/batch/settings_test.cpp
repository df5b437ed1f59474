// What the option file and the model's own settings do, and what a run leaves of them.

#include "tests/batch/batch_runner.h"

#include <array>
#include <gtest/gtest.h>

namespace {

using namespace sketchup;

// Where the sun stands is worked out from the model's place and time, which these tests are not about.
std::string without_sun(const std::string& options) {
    constexpr std::array<std::string_view, 8> names = {
        "rzyn_sun_azimuth;",       "rzyn_sun_altitude;", "rskp_sun_azimuth;",   "rskp_sun_altitude;",
        "bskp_sun_daylight_time;", "rskp_sun_latitude;", "rskp_sun_longitude;", "rskp_sun_timezone;"};
    std::string kept;
    for (std::size_t start = 0; start < options.size();) {
        const std::string line =
            options.substr(start, options.find('\n', start) + 1 - start); // the file ends in a line end
        bool is_sun = false;
        for (const std::string_view name : names)
            is_sun = is_sun || line.starts_with(name);
        kept += is_sun ? std::string() : line;
        start += line.size();
    }
    return kept;
}

void expect_run_without_sun(batch& b, const std::string& case_name) {
    EXPECT_EQ(b.run().errors, quiet_errors);
    b.put("option_globals.txt", without_sun(b.read("option_globals.txt")));
    expect_batch(b, case_name);
}

void put_square(batch& b, model_builder& m) {
    m.root().square(10);
    b.put_model(m);
}

// Sorted, without comments, with the settings that the file did not name, and without the two image filters. A name
// that no setting has survives, a setting of the user's profile does not.
TEST(SettingsBatch, an_option_file_is_obeyed_and_written_anew) {
    batch b;
    model_builder m;
    put_square(b, m);
    b.put("option_globals.txt", "# from the parent\r\n"
                                "\r\n"
                                ";value\r\n"
                                "svl_kept_for_the_parent;c:\\\\temp\\\\x\r\n"
                                "ivl_resx;800\r\n"
                                "  ivl_2_sided_faces ;  2  \r\n"
                                "rvl_fog_pmin_x; 1e-9\r\n"
                                "cvl_fog_color; 255\n"
                                "pzyn_sun_date; (1, 2.5, -3)\r\n"
                                "ivl_image_filters; 3\r\n"
                                "bvl_use_watts; 0\r\n");
    expect_run_without_sun(b, "option_file");
}

TEST(SettingsBatch, every_kind_of_line_is_read_and_what_goes_through_the_file_comes_back_in_its_form) {
    batch b;
    model_builder m;
    put_square(b, m);
    b.put("option_globals.txt", "# bvl_ground_plane; 1\r\n" // skipped: no name, or a name of no type
                                "  #bvl_ground_plane; 1\r\n"
                                "\r\n"
                                " \t \n"
                                ";bvl_ground_plane; 1\r\n"
                                "  ; value\r\n"
                                "bvl_ground_plane 1\r\n"
                                "xvl_no_type; 1\r\n"
                                "Bvl_ground_plane; 1\r\n"
                                "bvl_kept_flag;7\r\n" // flags: any number but 0
                                "bvl_sun_on; -1\n"
                                "bvl_sky_visible; yes\r\n"
                                "bvl_remember_filters; 1\r\n" // so both filters are written
                                "ivl_image_filters; 3\r\n"
                                "svl_image_filters; blur, sharp\r\n"
                                "ivl_kept_number;\r\n" // numbers: what stands at the start of the value
                                "  ivl_kept_other  ;  -12 and more  \r\n"
                                "ivl_resx;+800\r\n"
                                "ivl_ResX; 7\r\n"
                                "rvl_kept_size; 0.12345678912\r\n"
                                "rvl_kept_tiny;1e-9\r\n"
                                "rvl_gamma_factor; 25e-1x\r\n"
                                "pvl_kept_point; V(1,2.5,-3)\r\n"
                                "pzyn_sun_time; 1\r\n"
                                "cvl_kept_color; 16777215\n"
                                "cvl_fog_color; 255\r\n"
                                "svl_kept_path; c:\\\\temp\\\\x;y\r\n" // texts: pairs of backslashes become one
                                "svl_kept_break; one\\ntwo\r\n"
                                "svl_kept_lone; a\\b\\\r\n"
                                "svl_kept_cr; a\rb\r\n"
                                "svl_kept_number; # 5\r\n"
                                "svl_kept_empty;\r\n"
                                "svl_kept_blank;   \r\n"
                                "svl_sky_hdr;\r\n"
                                "bvl_use_watts; 1\r\n" // kept elsewhere, or nowhere
                                "svl_auto_image_folder; pictures\r\n"
                                "rvl_average_luminance; 2\r\n"
                                "bzyn_is_from_batch; 1\r\n"
                                "ivl_kept_other; 13"); // the last of two lines, without an end
    expect_run_without_sun(b, "every_kind_of_option_line");
}

TEST(SettingsBatch, an_option_file_is_written_anew_when_nothing_changed) {
    batch b;
    model_builder m;
    put_square(b, m);
    b.put("option_globals.txt", "ivl_2_sided_faces; 2\r\n");
    b.run();
    const files_by_name first = b.files();
    b.run();
    EXPECT_EQ(differences(first, b.files()), std::vector<std::string>());
    EXPECT_NE(first.at("option_globals.txt").find("\r\nivl_2_sided_faces; 2\r\n"), std::string::npos);
}

TEST(SettingsBatch, the_model_has_the_last_word_over_the_option_file) {
    batch b;
    model_builder m;
    const entity_place list = m.root().list();
    m.attribute(list, "qlw_globals", "ivl_2_sided_faces", whole_number(2));
    m.attribute(list, "qlw_globals", "bvl_remember_filters", text("1"));
    m.attribute(list, "qlw_globals", "ivl_image_filters", text("3"));
    m.attribute(list, "qlw_globals", "svl_image_filters", text("a\r\nb"));
    m.attribute(list, "qlw_globals", "bvl_sun_on", truth(true));
    m.attribute(list, "qlw_globals", "Ivl_resx", whole_number(5));
    m.attribute(list, "another dictionary", "ivl_resx", whole_number(5));
    put_square(b, m);
    b.put("option_globals.txt", "ivl_2_sided_faces; 0\r\nbvl_sun_on; 0\r\n");
    expect_run_without_sun(b, "settings_of_the_model");
}

TEST(SettingsBatch, without_an_option_file_none_is_left) {
    batch b;
    model_builder m;
    m.attribute(m.root().list(), "qlw_globals", "ivl_2_sided_faces", whole_number(2));
    put_square(b, m);
    expect_run(b, "two_sided_square");
}

TEST(SettingsBatch, a_face_without_materials_has_one_block_in_the_modes_0_and_1) {
    for (const int mode : {0, 1}) {
        batch b;
        model_builder m;
        m.attribute(m.root().list(), "qlw_globals", "ivl_2_sided_faces", whole_number(mode));
        put_square(b, m);
        expect_run(b, "one_square");
    }
}

} // namespace

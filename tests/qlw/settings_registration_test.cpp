#include "settings_expected.h"
#include "settings_fixture.h"

#include "qlw/color_text.h"
#include "qlw/settings_table.h"

#include <algorithm>
#include <set>
#include <sstream>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class RegisteredSettings : public settings_fixture {
protected:
    RegisteredSettings() {
        register_all_globals();
        reports_at_registration = reported();
    }

    std::vector<std::string> reports_at_registration;
};

// Name, save type, type and default of a setting, in the form of the expected list.
std::string described(const std::string& name) {
    const cl_variable_base& variable = *global_variables.lookup(name);
    std::string value = variable.get_string();
    if (variable.variable_type == 5)
        value = color_to_text(variable.get_COLORREF());
    std::ostringstream text;
    text << name << ' ' << variable.save_type << ' ' << variable.variable_type << (value.empty() ? "" : " ") << value;
    return text.str();
}

std::vector<std::string> lines_of(std::string_view text) {
    std::vector<std::string> lines;
    std::istringstream stream{std::string(text)};
    for (std::string line; std::getline(stream, line);)
        if (!line.empty())
            lines.push_back(line);
    return lines;
}

std::ptrdiff_t rows_of(save_types type) {
    const auto rows = settings_table();
    return std::count_if(rows.begin(), rows.end(), [=](const setting_row& row) { return row.save_type == type; });
}

std::ptrdiff_t rows_of(setting_kind kind) {
    const auto rows = settings_table();
    return std::count_if(rows.begin(), rows.end(), [=](const setting_row& row) { return row.kind == kind; });
}

} // namespace

TEST_F(RegisteredSettings, every_setting_has_its_save_type_type_and_default) {
    const std::vector<std::string> names = get_global_names();
    const std::vector<std::string> expected = lines_of(settings_expected);
    ASSERT_EQ(names.size(), expected.size());
    for (std::size_t i = 0; i < names.size(); ++i)
        EXPECT_EQ(described(names[i]), expected[i]);
}

TEST_F(RegisteredSettings, a_restored_default_is_the_value_at_the_start) {
    const std::vector<std::string> expected = lines_of(settings_expected);
    for (const std::string& name : get_global_names()) {
        cl_variable_base& variable = *global_variables.lookup(name);
        variable.set_int(123456);
        variable.set_fpt({1, 2, 3});
        variable.restore_default();
    }
    const std::vector<std::string> names = get_global_names();
    ASSERT_EQ(names.size(), expected.size());
    for (std::size_t i = 0; i < names.size(); ++i)
        EXPECT_EQ(described(names[i]), expected[i]);
}

TEST(SettingsTableRows, each_save_type_has_its_number_of_rows) {
    EXPECT_EQ(rows_of(OPTION_GLOBAL), 316);
    EXPECT_EQ(rows_of(SAVE_PROFILE), 222);
    EXPECT_EQ(rows_of(OPTION_NON_DATABASE_GLOBAL), 23);
    EXPECT_EQ(rows_of(SAVE_NONE), 81);
    EXPECT_EQ(rows_of(SAVE_NONE_7), 5);
    EXPECT_EQ(settings_table().size(), 647u);
}

TEST(SettingsTableRows, each_kind_has_its_number_of_rows) {
    EXPECT_EQ(rows_of(setting_kind::boolean), 201);
    EXPECT_EQ(rows_of(setting_kind::integer), 203);
    EXPECT_EQ(rows_of(setting_kind::real), 122);
    EXPECT_EQ(rows_of(setting_kind::text), 106);
    EXPECT_EQ(rows_of(setting_kind::color), 13);
    EXPECT_EQ(rows_of(setting_kind::point), 2);
}

TEST(SettingsTableRows, no_name_stands_twice) {
    std::set<std::string_view> names;
    for (const setting_row& row : settings_table())
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
}

TEST(SettingsTableRows, two_integers_alone_carry_flags) {
    std::vector<std::string_view> zero_means_default;
    std::vector<std::string_view> report_if_new;
    for (const setting_row& row : settings_table()) {
        if (row.zero_means_default)
            zero_means_default.push_back(row.name);
        if (row.report_if_new)
            report_if_new.push_back(row.name);
    }
    EXPECT_THAT(zero_means_default, ElementsAre("ivl_lighting_channels", "ivl_max_azure_minutes"));
    EXPECT_THAT(report_if_new, ElementsAre("ivl_max_azure_minutes"));
}

TEST(SettingsTableRows, seven_integers_have_a_name_of_a_boolean) {
    std::vector<std::string_view> names;
    for (const setting_row& row : settings_table())
        if (row.kind == setting_kind::integer && row.name.starts_with('b'))
            names.push_back(row.name);
    EXPECT_THAT(names, ElementsAre("bvl_lowend_section_planes", "bzyn_sun_daylight_time", "bvl_zoom_all",
                                   "bvl_show_light_warning", "bvl_show_lighting_panel", "bvl_open_scene_image_folder",
                                   "bvl_render_scene_stills"));
}

TEST_F(RegisteredSettings, the_one_flagged_row_is_reported_and_no_other) {
    EXPECT_THAT(reports_at_registration, ElementsAre("REPORT: Global not preset properly: ivl_max_azure_minutes"));
}

TEST_F(RegisteredSettings, each_setting_that_the_profile_keeps_is_asked_for_once) {
    EXPECT_EQ(profile.reads, 222 + 23);
    EXPECT_EQ(profile.loud_reads, 0);
    EXPECT_THAT(profile.written, IsEmpty());
}

TEST_F(RegisteredSettings, a_stored_zero_leaves_the_minutes_at_their_default) {
    reset_settings();
    global_variables.use_profile(profile);
    profile.values["Globals/ivl_max_azure_minutes"] = "0";
    profile.values["Globals/ivl_lighting_channels"] = "0";
    register_all_globals();
    EXPECT_EQ(get_global_int("ivl_max_azure_minutes"), 15);
    EXPECT_EQ(get_global_int("ivl_lighting_channels"), 2);
}

TEST_F(RegisteredSettings, registering_again_keeps_the_values) {
    set_global_int("ivl_resx", 1234);
    register_all_globals();
    EXPECT_EQ(get_global_int("ivl_resx"), 1234);
    EXPECT_EQ(global_variables.size(), 647u);
    EXPECT_THAT(reported(), IsEmpty());
}

TEST_F(RegisteredSettings, the_settings_that_a_conversion_reads_start_as_it_expects_them) {
    for (const char* name : {"bcomm_use_extraction_log_file", "bvl_display_all_plants_as_2d_images", "bvl_ground_plane",
                             "bvl_lowend_render_mode", "bvl_plant_random_rotation", "bvl_process_invisible_lights",
                             "bvl_remember_filters"})
        EXPECT_FALSE(get_global_bool(name)) << name;
    for (const char* name : {"bvl_adjust_transparency", "bvl_artificial_lighting", "bvl_auto_lighting_channels",
                             "bvl_ground_plane_opaque", "bvl_lowend_section_planes",
                             "bvl_move_transparency_towards_white", "bvl_show_bulbs", "bvl_synchronize_sky_and_ground"})
        EXPECT_TRUE(get_global_bool(name)) << name;
    EXPECT_EQ(get_global_int("ivl_2_sided_faces"), 1);
    EXPECT_EQ(get_global_int("ivl_channel_ceiling"), 3);
    EXPECT_EQ(get_global_int("ivl_channel_other"), 2);
    EXPECT_EQ(get_global_int("ivl_edge_lines"), 0);
    EXPECT_EQ(get_global_int("ivl_image_filters"), 0);
    EXPECT_EQ(get_global_int("ivl_light_balance"), 50);
    EXPECT_EQ(get_global_int("ivl_lighting_channels"), 2);
    EXPECT_EQ(get_global_int("ivl_max_image_resolution"), 1000);
    EXPECT_EQ(get_global_int("ivl_plant_random_height"), 1);
    EXPECT_EQ(get_global_int("ivl_plant_season"), 1);
    EXPECT_EQ(get_global_int("ivl_resx"), 600);
    EXPECT_EQ(get_global_int("ivl_resy"), 420);
    EXPECT_EQ(get_global_int("ivl_section_planes"), 0);
    EXPECT_EQ(get_global_double("rvl_edge_line_width"), 2.0);
    EXPECT_EQ(get_global_double("rvl_image_offset"), 0.05);
    EXPECT_EQ(get_global_double("rzyn_sun_altitude"), 0.5);
    EXPECT_EQ(get_global_double("rzyn_sun_azimuth"), 0.17);
    EXPECT_EQ(get_global_string("svl_image_filters"), "");
    EXPECT_EQ(get_global_string("sqlw_extract_mode"), "");
    EXPECT_THAT(reported(), IsEmpty());
}

TEST_F(RegisteredSettings, two_settings_that_a_conversion_reads_are_in_no_row_and_read_as_zero) {
    EXPECT_EQ(get_global_double("rvl_edge_lines"), 0.0);
    EXPECT_EQ(get_global_int("iql3d_pdf_section_planes"), 0);
    EXPECT_THAT(reported(), ElementsAre("REPORT: Global not preset properly: rvl_edge_lines",
                                        "REPORT: Global not preset properly: iql3d_pdf_section_planes"));
}

TEST_F(RegisteredSettings, the_settings_that_a_conversion_writes_take_their_place_beside_the_rows) {
    for (const char* name : {"rzyn_sun_azimuth", "rzyn_sun_altitude", "ivl_light_balance", "ivl_lighting_channels"})
        EXPECT_EQ(global_variables.find_global(name, OPTION_GLOBAL).save_type, OPTION_GLOBAL) << name;
    for (const char* name : {"rskp_sun_azimuth", "rskp_sun_altitude", "rskp_sun_latitude", "rskp_sun_longitude",
                             "rskp_sun_timezone", "bskp_sun_daylight_time"}) {
        EXPECT_EQ(global_variables.lookup(name), nullptr) << name;
        EXPECT_EQ(global_variables.find_global(name).save_type, SAVE_UNKNOWN) << name;
    }
    EXPECT_THAT(reported(), IsEmpty());
}

#include "qlw/qlw_globals.h"

#include "settings_fixture.h"

#include <algorithm>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ReadingASetting : public settings_fixture {};
class WritingASetting : public settings_fixture {};
class FindingASetting : public settings_fixture {};
class SettingsTable : public settings_fixture {};

} // namespace

TEST_F(ReadingASetting, each_reader_gives_the_value_of_its_type) {
    preset_global_int("ivl_x", OPTION_GLOBAL, 600, false, false);
    preset_global_bool("bvl_x", OPTION_GLOBAL, true);
    preset_global_string("svl_x", OPTION_GLOBAL, "text", false);
    preset_global_double("rvl_x", OPTION_GLOBAL, 0.5);
    preset_global_fpt("pvl_x", {1, 2, 3});
    preset_global_COLORREF("cvl_x", OPTION_GLOBAL, 0xE4E4E4);
    EXPECT_EQ(get_global_int("ivl_x"), 600);
    EXPECT_TRUE(get_global_bool("bvl_x"));
    EXPECT_EQ(get_global_string("svl_x"), "text");
    EXPECT_EQ(get_global_double("rvl_x"), 0.5);
    EXPECT_EQ(get_global_fpt("pvl_x"), (fpt{1, 2, 3}));
    EXPECT_EQ(get_global_COLORREF("cvl_x"), 0xE4E4E4u);
    EXPECT_THAT(reported(), IsEmpty());
}

TEST_F(ReadingASetting, any_integer_but_zero_is_true) {
    preset_global_int("bvl_x", OPTION_GLOBAL, -2, false, false);
    EXPECT_TRUE(get_global_bool("bvl_x"));
    set_global_int("bvl_x", 0);
    EXPECT_FALSE(get_global_bool("bvl_x"));
}

TEST_F(ReadingASetting, an_unknown_name_is_zero_and_reported_once) {
    EXPECT_EQ(get_global_int("iql3d_pdf_section_planes"), 0);
    EXPECT_THAT(trace.take(), ElementsAre(traced_line{"qlw_globals", "report_global_not_preset",
                                                      "REPORT: Global not preset properly: iql3d_pdf_section_planes"}));
    EXPECT_EQ(get_global_int("iql3d_pdf_section_planes"), 0);
    EXPECT_THAT(reported(), IsEmpty());
}

TEST_F(ReadingASetting, each_reader_makes_an_unknown_setting_with_the_zero_of_its_type) {
    EXPECT_EQ(get_global_double("rvl_edge_lines"), 0.0);
    EXPECT_EQ(get_global_string("svl_new"), "");
    EXPECT_EQ(get_global_fpt("pvl_new"), (fpt{}));
    EXPECT_EQ(get_global_COLORREF("cvl_new"), 0u);
    EXPECT_FALSE(get_global_bool("bvl_new"));
    EXPECT_THAT(reported(), ElementsAre("REPORT: Global not preset properly: rvl_edge_lines",
                                        "REPORT: Global not preset properly: svl_new",
                                        "REPORT: Global not preset properly: pvl_new",
                                        "REPORT: Global not preset properly: cvl_new",
                                        "REPORT: Global not preset properly: bvl_new"));
    for (const std::string& name : get_global_names())
        EXPECT_EQ(global_variables.lookup(name)->save_type, SAVE_UNKNOWN) << name;
    EXPECT_EQ(profile.reads, 0); // the profile is not asked for a setting made by reading
}

TEST_F(ReadingASetting, an_integer_under_a_name_of_a_double_is_zero_without_a_lookup) {
    preset_global_double("rvl_x", OPTION_GLOBAL, 5);
    EXPECT_EQ(get_global_int("rvl_x"), 0);
    EXPECT_EQ(get_global_int("rvl_unknown"), 0);
    EXPECT_THAT(reported(), ElementsAre("*** ERROR: Integer globals should start with 'i': 'rvl_x'",
                                        "*** ERROR: Integer globals should start with 'i': 'rvl_unknown'"));
    EXPECT_EQ(global_variables.lookup("rvl_unknown"), nullptr);
}

TEST_F(ReadingASetting, a_boolean_under_a_name_of_an_integer_is_reported_and_still_read) {
    preset_global_int("ivl_x", OPTION_GLOBAL, 1, false, false);
    EXPECT_TRUE(get_global_bool("ivl_x"));
    EXPECT_THAT(reported(), ElementsAre("*** ERROR: bool globals should start with 'b': 'ivl_x'"));
}

TEST_F(ReadingASetting, the_other_readers_go_on_under_a_wrong_name_and_convert) {
    preset_global_int("ivl_x", OPTION_GLOBAL, 7, false, false);
    EXPECT_EQ(get_global_double("ivl_x"), 7.0);
    EXPECT_EQ(get_global_string("ivl_x"), "7");
    EXPECT_EQ(get_global_fpt("ivl_x"), (fpt{}));
    EXPECT_EQ(get_global_COLORREF("ivl_x"), 0u);
    EXPECT_EQ(reported().size(), 4u);
}

TEST_F(ReadingASetting, the_empty_name_gives_the_empty_text_and_makes_nothing) {
    EXPECT_EQ(get_global_string(""), "");
    EXPECT_EQ(global_variables.size(), 0u);
}

TEST_F(ReadingASetting, texts_doubles_points_and_colours_go_back_to_the_profile_but_integers_and_booleans_do_not) {
    preset_global_int("ivl_x", SAVE_PROFILE, 1, false, false);
    preset_global_bool("bvl_x", OPTION_NON_DATABASE_GLOBAL, true);
    preset_global_string("svl_x", SAVE_PROFILE, "a", false);
    preset_global_double("rvl_x", OPTION_NON_DATABASE_GLOBAL, 2);
    preset_global_COLORREF("cvl_x", SAVE_PROFILE, 0x030201);
    preset_global_fpt("pvl_x", {1, 2, 3});
    global_variables.lookup("pvl_x")->set_save_type(SAVE_PROFILE);
    get_global_int("ivl_x");
    get_global_bool("bvl_x");
    EXPECT_THAT(profile.written, IsEmpty());
    get_global_string("svl_x");
    get_global_double("rvl_x");
    get_global_fpt("pvl_x");
    get_global_COLORREF("cvl_x");
    EXPECT_THAT(profile.written,
                ElementsAre("Globals/svl_x=a", "Globals/rvl_x=double 2", "Globals/pvl_x_x=double 1",
                            "Globals/pvl_x_y=double 2", "Globals/pvl_x_z=double 3", "Globals/cvl_x=#010203"));
}

TEST_F(WritingASetting, each_writer_stores_its_value_and_marks_the_setting_as_written) {
    set_global_int("ivl_x", -3);
    set_global_bool("bvl_x", true);
    set_global_string("svl_x", "text");
    set_global_double("rvl_x", 0.5);
    set_global_fpt("pvl_x", {1, 2, 3});
    set_global_COLORREF("cvl_x", 0xFF030201);
    EXPECT_THAT(reported(), IsEmpty());
    EXPECT_EQ(get_global_int("ivl_x"), -3);
    EXPECT_TRUE(get_global_bool("bvl_x"));
    EXPECT_EQ(get_global_string("svl_x"), "text");
    EXPECT_EQ(get_global_double("rvl_x"), 0.5);
    EXPECT_EQ(get_global_fpt("pvl_x"), (fpt{1, 2, 3}));
    EXPECT_EQ(global_variables.lookup("cvl_x")->get_int(), 0x030201); // masked to 24 bits
    for (const std::string& name : get_global_names())
        EXPECT_EQ(global_variables.lookup(name)->value_set, 1) << name;
}

TEST_F(WritingASetting, a_boolean_under_a_new_name_makes_an_integer_that_goes_to_the_option_file) {
    set_global_bool("bskp_sun_daylight_time", true);
    const cl_variable_base* variable = global_variables.lookup("bskp_sun_daylight_time");
    ASSERT_NE(variable, nullptr);
    EXPECT_NE(dynamic_cast<const cl_variable_int*>(variable), nullptr);
    EXPECT_EQ(variable->get_int(), 1);
    EXPECT_EQ(variable->save_type, SAVE_UNKNOWN);
}

TEST_F(WritingASetting, an_integer_under_a_wrong_name_is_reported_and_not_stored) {
    set_global_int("rvl_x", 5);
    EXPECT_EQ(global_variables.lookup("rvl_x"), nullptr);
    EXPECT_THAT(reported(), ElementsAre("*** ERROR: Integer globals should start with 'i': 'rvl_x'"));
}

TEST_F(WritingASetting, the_other_writers_go_on_under_a_wrong_name) {
    set_global_bool("rvl_x", true);
    set_global_string("rvl_y", "2.5");
    set_global_double("ivl_x", 2.9);
    set_global_fpt("rvl_z", {1, 2, 3});
    set_global_COLORREF("rvl_z", 5);
    EXPECT_EQ(reported().size(), 5u);
    EXPECT_EQ(get_global_double("rvl_x"), 1.0);
    EXPECT_EQ(get_global_double("rvl_y"), 2.5);
    EXPECT_EQ(get_global_int("ivl_x"), 2);
    EXPECT_EQ(get_global_double("rvl_z"), 0.0);
}

TEST_F(WritingASetting, every_type_goes_to_the_profile_if_it_is_kept_there) {
    set_global_int("ivl_x", 1, SAVE_PROFILE);
    set_global_bool("bvl_x", true, SAVE_PROFILE);
    set_global_string("svl_x", "a", SAVE_PROFILE);
    set_global_double("rvl_x", 2, OPTION_NON_DATABASE_GLOBAL);
    set_global_fpt("pvl_x", {1, 2, 3}, SAVE_PROFILE);
    set_global_COLORREF("cvl_x", 0x030201, SAVE_PROFILE);
    set_global_int("ivl_y", 1, OPTION_GLOBAL);
    set_global_string("svl_y", "a", SAVE_NONE);
    EXPECT_THAT(profile.written,
                ElementsAre("Globals/ivl_x=int 1", "Globals/bvl_x=int 1", "Globals/svl_x=a", "Globals/rvl_x=double 2",
                            "Globals/pvl_x_x=double 1", "Globals/pvl_x_y=double 2", "Globals/pvl_x_z=double 3",
                            "Globals/cvl_x=#010203"));
}

TEST_F(FindingASetting, the_first_letter_of_a_name_makes_the_type) {
    EXPECT_EQ(global_variables.find_global("bvl_x").variable_type, 1);
    EXPECT_EQ(global_variables.find_global("ivl_x").variable_type, 1);
    EXPECT_EQ(global_variables.find_global("svl_x").variable_type, 2);
    EXPECT_EQ(global_variables.find_global("rvl_x").variable_type, 3);
    EXPECT_EQ(global_variables.find_global("pvl_x").variable_type, 4);
    EXPECT_EQ(global_variables.find_global("cvl_x").variable_type, 5);
}

TEST_F(FindingASetting, a_name_of_an_unexpected_letter_makes_a_double) {
    for (const char* name : {"xvl_new", "Ivl_new", "1", ""})
        EXPECT_NE(dynamic_cast<cl_variable_double*>(&global_variables.find_global(name)), nullptr) << name;
}

TEST_F(FindingASetting, a_missing_setting_is_made_with_the_expected_save_type_and_not_reported) {
    EXPECT_EQ(global_variables.find_global("ivl_x", OPTION_GLOBAL).save_type, OPTION_GLOBAL);
    EXPECT_EQ(global_variables.find_global("ivl_y").save_type, SAVE_UNKNOWN);
    EXPECT_EQ(profile.reads, 0);
    EXPECT_THAT(reported(), IsEmpty());
}

TEST_F(FindingASetting, a_missing_setting_of_the_profile_is_read_from_it) {
    profile.values["Globals/ivl_x"] = "12";
    profile.values["Globals/svl_x"] = "text";
    EXPECT_EQ(global_variables.find_global("ivl_x", SAVE_PROFILE).get_int(), 12);
    EXPECT_EQ(global_variables.find_global("svl_x", OPTION_NON_DATABASE_GLOBAL).get_string(), "text");
}

TEST_F(FindingASetting, a_profile_that_cannot_be_read_is_reported_and_the_setting_stays) {
    profile.throws_on_read = true;
    EXPECT_EQ(global_variables.find_global("ivl_x", SAVE_PROFILE).get_int(), 0);
    EXPECT_THAT(trace.take(), ElementsAre(traced_line{"qlw_globals", "cl_global_variable_array::find_global",
                                                      "REPORT: Could not load global: ivl_x"}));
    EXPECT_NE(global_variables.lookup("ivl_x"), nullptr);
}

TEST_F(FindingASetting, an_unexpected_save_type_leaves_a_line_and_changes_nothing) {
    const std::string option_global = "OPTION_GLOBAL NOT SET PROPERLY: ivl_x";
    const std::string non_database = "OPTION_NON_DATABASE_GLOBAL NOT SET PROPERLY: ivl_x";
    struct expectation {
        save_types actual;
        save_types expected;
        std::string message; // empty: none
    };
    const std::vector<expectation> expectations{
        {OPTION_GLOBAL, SAVE_UNKNOWN, ""},
        {OPTION_NON_DATABASE_GLOBAL, SAVE_UNKNOWN, ""},
        {OPTION_GLOBAL, OPTION_GLOBAL, ""},
        {SAVE_PROFILE, OPTION_GLOBAL, option_global},
        {OPTION_NON_DATABASE_GLOBAL, OPTION_GLOBAL, option_global},
        {OPTION_GLOBAL, SAVE_PROFILE, option_global},
        {OPTION_GLOBAL, OPTION_NON_DATABASE_GLOBAL, option_global},
        {SAVE_PROFILE, OPTION_NON_DATABASE_GLOBAL, non_database},
        {OPTION_NON_DATABASE_GLOBAL, SAVE_PROFILE, non_database},
        {OPTION_NON_DATABASE_GLOBAL, OPTION_NON_DATABASE_GLOBAL, ""},
        {SAVE_PROFILE, SAVE_NONE, ""},
    };
    for (const expectation& each : expectations) {
        reset_settings();
        global_variables.create_variable("ivl_x", each.actual);
        EXPECT_EQ(global_variables.find_global("ivl_x", each.expected).save_type, each.actual);
        std::vector<traced_line> expected;
        if (!each.message.empty())
            expected.push_back({"qlw_globals", "cl_global_variable_array::find_global", each.message});
        EXPECT_EQ(trace.take(), expected) << each.actual << " found, " << each.expected << " expected";
    }
}

TEST_F(SettingsTable, names_are_compared_exactly) {
    set_global_int("ivl_x", 1);
    EXPECT_EQ(global_variables.lookup("ivl_X"), nullptr);
    EXPECT_EQ(global_variables.lookup("ivl_x "), nullptr);
    EXPECT_EQ(global_variables.lookup("ivl_"), nullptr);
    EXPECT_NE(global_variables.lookup("ivl_x"), nullptr);
}

TEST_F(SettingsTable, names_come_out_sorted_by_byte) {
    for (const char* name : {"rvl_b", "ivl_z", "ivl_Z", "ivl", "r\xC3\xA9", "ra"})
        global_variables.create_variable(name, SAVE_NONE);
    EXPECT_THAT(get_global_names(), ElementsAre("ivl", "ivl_Z", "ivl_z", "ra", "rvl_b", "r\xC3\xA9"));
}

TEST_F(SettingsTable, no_settings_have_no_names) {
    EXPECT_THAT(get_global_names(), IsEmpty());
}

TEST_F(SettingsTable, a_reset_forgets_all_settings_and_the_profile_of_a_test) {
    set_global_int("ivl_x", 1);
    reset_settings();
    EXPECT_EQ(global_variables.size(), 0u);
    EXPECT_NE(&global_variables.profile(), &profile);
}

TEST_F(SettingsTable, a_setting_keeps_its_address_while_others_are_added) {
    const cl_variable_base* first = &global_variables.create_variable("ivl_first", SAVE_NONE);
    for (int i = 0; i < 5000; ++i)
        global_variables.create_variable("ivl_" + std::to_string(i), SAVE_NONE);
    EXPECT_EQ(global_variables.lookup("ivl_first"), first);
}

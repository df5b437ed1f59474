#include "settings_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class PresettingASetting : public settings_fixture {
protected:
    template<class Class>
    const Class& setting(std::string_view name) const {
        return dynamic_cast<const Class&>(*global_variables.lookup(name));
    }
};

} // namespace

TEST_F(PresettingASetting, a_new_setting_takes_its_default_as_value) {
    preset_global_int("ivl_x", OPTION_GLOBAL, 600, false, false);
    preset_global_bool("bvl_x", OPTION_GLOBAL, true);
    preset_global_string("svl_x", SAVE_NONE, "Sun", false);
    preset_global_double("rvl_x", OPTION_GLOBAL, 1.23);
    preset_global_fpt("pvl_x", {1, 2, 3});
    preset_global_COLORREF("cvl_x", OPTION_GLOBAL, 0x64C88C);
    EXPECT_EQ(setting<cl_variable_int>("ivl_x").value, 600);
    EXPECT_EQ(setting<cl_variable_int>("ivl_x").default_value, 600);
    EXPECT_EQ(setting<cl_variable_int>("bvl_x").value, 1);
    EXPECT_EQ(setting<cl_variable_int>("bvl_x").default_value, 1);
    EXPECT_EQ(setting<cl_variable_string>("svl_x").value, "Sun");
    EXPECT_EQ(setting<cl_variable_string>("svl_x").default_value, "Sun");
    EXPECT_EQ(setting<cl_variable_string>("svl_x").save_type, SAVE_NONE);
    EXPECT_EQ(setting<cl_variable_double>("rvl_x").value, 1.23);
    EXPECT_EQ(setting<cl_variable_double>("rvl_x").default_value, 1.23);
    EXPECT_EQ(setting<cl_variable_fpt>("pvl_x").value, (fpt{1, 2, 3}));
    EXPECT_EQ(setting<cl_variable_fpt>("pvl_x").default_value, (fpt{1, 2, 3}));
    EXPECT_EQ(setting<cl_variable_fpt>("pvl_x").save_type, OPTION_GLOBAL);
    EXPECT_EQ(setting<cl_variable_COLORREF>("cvl_x").value, 0x64C88Cu);
    EXPECT_EQ(setting<cl_variable_COLORREF>("cvl_x").default_value, 0x64C88Cu);
    EXPECT_THAT(reported(), IsEmpty());
    EXPECT_EQ(profile.reads, 0);
}

TEST_F(PresettingASetting, a_second_preset_changes_save_type_and_default_and_leaves_the_value) {
    preset_global_int("ivl_x", OPTION_GLOBAL, 1, true, true);
    preset_global_bool("bvl_x", OPTION_GLOBAL, false);
    preset_global_string("svl_x", OPTION_GLOBAL, "one", false);
    preset_global_double("rvl_x", OPTION_GLOBAL, 1);
    preset_global_COLORREF("cvl_x", OPTION_GLOBAL, 1);
    reported();
    profile.values = {{"Globals/ivl_x", "9"}, {"Globals/svl_x", "nine"}, {"Globals/rvl_x", "9"}};
    preset_global_int("ivl_x", SAVE_PROFILE, 2, true, true);
    preset_global_bool("bvl_x", SAVE_PROFILE, true);
    preset_global_string("svl_x", SAVE_PROFILE, "two", false);
    preset_global_double("rvl_x", SAVE_PROFILE, 2);
    preset_global_COLORREF("cvl_x", SAVE_PROFILE, 2);
    EXPECT_EQ(setting<cl_variable_int>("ivl_x").value, 1);
    EXPECT_EQ(setting<cl_variable_int>("ivl_x").default_value, 2);
    EXPECT_EQ(setting<cl_variable_int>("bvl_x").value, 0);
    EXPECT_EQ(setting<cl_variable_int>("bvl_x").default_value, 1);
    EXPECT_EQ(setting<cl_variable_string>("svl_x").value, "one");
    EXPECT_EQ(setting<cl_variable_string>("svl_x").default_value, "two");
    EXPECT_EQ(setting<cl_variable_double>("rvl_x").value, 1.0);
    EXPECT_EQ(setting<cl_variable_double>("rvl_x").default_value, 2.0);
    EXPECT_EQ(setting<cl_variable_COLORREF>("cvl_x").value, 1u);
    EXPECT_EQ(setting<cl_variable_COLORREF>("cvl_x").default_value, 2u);
    EXPECT_EQ(global_variables.lookup("ivl_x")->save_type, SAVE_PROFILE);
    EXPECT_THAT(reported(), ElementsAre("REPORT: Setting save type to SAVE_PROFILE from (4): ivl_x",
                                        "REPORT: Setting save type to SAVE_PROFILE from (4): bvl_x",
                                        "REPORT: Setting save type to SAVE_PROFILE from (4): svl_x",
                                        "REPORT: Setting save type to SAVE_PROFILE from (4): rvl_x",
                                        "REPORT: Setting save type to SAVE_PROFILE from (4): cvl_x"));
}

TEST_F(PresettingASetting, a_second_preset_of_a_point_moves_it_to_the_option_file) {
    global_variables.create_variable("pvl_x", SAVE_NONE).set_fpt({7, 8, 9});
    preset_global_fpt("pvl_x", {1, 2, 3});
    EXPECT_EQ(setting<cl_variable_fpt>("pvl_x").value, (fpt{7, 8, 9}));
    EXPECT_EQ(setting<cl_variable_fpt>("pvl_x").default_value, (fpt{1, 2, 3}));
    EXPECT_EQ(setting<cl_variable_fpt>("pvl_x").save_type, OPTION_GLOBAL);
    EXPECT_THAT(reported(), ElementsAre("REPORT: Setting save type to OPTION_GLOBAL: pvl_x"));
}

TEST_F(PresettingASetting, a_kept_default_makes_the_text_the_value_alone) {
    preset_global_string("scomm_company", SAVE_NONE, "Somebody", true);
    EXPECT_EQ(setting<cl_variable_string>("scomm_company").value, "Somebody");
    EXPECT_EQ(setting<cl_variable_string>("scomm_company").default_value, "");
    preset_global_string("scomm_company", SAVE_NONE, "Other", true);
    EXPECT_EQ(setting<cl_variable_string>("scomm_company").value, "Somebody");
    EXPECT_EQ(setting<cl_variable_string>("scomm_company").default_value, "");
}

TEST_F(PresettingASetting, a_value_in_the_profile_wins_and_is_asked_for_quietly) {
    profile.values = {{"Globals/ivl_x", "12"},
                      {"Globals/bvl_x", "0"},
                      {"Globals/svl_x", ""},
                      {"Globals/rvl_x", "0.25"},
                      {"Globals/cvl_x", "rgb(1,2,3)"}};
    preset_global_int("ivl_x", SAVE_PROFILE, 1, false, false);
    preset_global_bool("bvl_x", SAVE_PROFILE, true);
    preset_global_string("svl_x", OPTION_NON_DATABASE_GLOBAL, "text", false);
    preset_global_double("rvl_x", SAVE_PROFILE, 1);
    preset_global_COLORREF("cvl_x", SAVE_PROFILE, 0xFFFFFF);
    EXPECT_EQ(setting<cl_variable_int>("ivl_x").value, 12);
    EXPECT_EQ(setting<cl_variable_int>("ivl_x").default_value, 1);
    EXPECT_EQ(setting<cl_variable_int>("bvl_x").value, 0);
    EXPECT_EQ(setting<cl_variable_string>("svl_x").value, "");
    EXPECT_EQ(setting<cl_variable_double>("rvl_x").value, 0.25);
    EXPECT_EQ(setting<cl_variable_COLORREF>("cvl_x").value, 0x030201u);
    EXPECT_EQ(profile.reads, 5);
    EXPECT_EQ(profile.loud_reads, 0);
    EXPECT_THAT(profile.written, IsEmpty());
}

TEST_F(PresettingASetting, the_default_file_is_asked_for_what_the_profile_lacks_but_for_doubles) {
    profile.default_file = {{"Globals/ivl_x", "15 or so"},
                            {"Globals/svl_x", "from file"},
                            {"Globals/rvl_x", "9"},
                            {"Globals/cvl_x", "#010203"}};
    preset_global_int("ivl_x", SAVE_PROFILE, 1, false, false);
    preset_global_string("svl_x", SAVE_PROFILE, "text", false);
    preset_global_double("rvl_x", SAVE_PROFILE, 1);
    preset_global_COLORREF("cvl_x", OPTION_NON_DATABASE_GLOBAL, 0xFFFFFF);
    EXPECT_EQ(get_global_int("ivl_x"), 15);
    EXPECT_EQ(get_global_string("svl_x"), "from file");
    EXPECT_EQ(get_global_double("rvl_x"), 1.0);
    EXPECT_EQ(get_global_COLORREF("cvl_x"), 0x030201u);
}

TEST_F(PresettingASetting, the_default_stands_where_neither_profile_nor_default_file_has_the_key) {
    preset_global_int("ivl_x", SAVE_PROFILE, 15, false, false);
    preset_global_string("svl_x", SAVE_PROFILE, "text", false);
    preset_global_double("rvl_x", SAVE_PROFILE, 1.5);
    preset_global_COLORREF("cvl_x", SAVE_PROFILE, 0x64C88C);
    EXPECT_EQ(get_global_int("ivl_x"), 15);
    EXPECT_EQ(get_global_string("svl_x"), "text");
    EXPECT_EQ(get_global_double("rvl_x"), 1.5);
    EXPECT_EQ(get_global_COLORREF("cvl_x"), 0x64C88Cu);
}

TEST_F(PresettingASetting, the_profile_is_asked_for_no_other_save_type) {
    profile.values = {{"Globals/ivl_x", "9"}, {"Globals/svl_x", "nine"}};
    profile.default_file = profile.values;
    for (const save_types type : {SAVE_NONE, SAVE_DATABASE, OPTION_GLOBAL, SAVE_NONE_7}) {
        reset_settings();
        global_variables.use_profile(profile);
        preset_global_int("ivl_x", type, 1, false, false);
        preset_global_string("svl_x", type, "one", false);
        EXPECT_EQ(get_global_int("ivl_x"), 1) << type;
        EXPECT_EQ(get_global_string("svl_x"), "one") << type;
    }
    EXPECT_EQ(profile.reads, 0);
}

TEST_F(PresettingASetting, a_stored_zero_gives_way_to_the_default_where_zero_means_unset) {
    profile.values["Globals/ivl_x"] = "0";
    profile.values["Globals/ivl_y"] = "0";
    profile.default_file["Globals/ivl_z"] = "none";
    preset_global_int("ivl_x", SAVE_PROFILE, 15, true, false);
    preset_global_int("ivl_y", SAVE_PROFILE, 15, false, false);
    preset_global_int("ivl_z", SAVE_PROFILE, 15, true, false);
    EXPECT_EQ(get_global_int("ivl_x"), 15);
    EXPECT_EQ(get_global_int("ivl_y"), 0);
    EXPECT_EQ(get_global_int("ivl_z"), 15);
}

TEST_F(PresettingASetting, a_new_setting_is_reported_where_that_was_asked_for_and_it_is_ever_saved) {
    preset_global_int("ivl_x", OPTION_GLOBAL, 1, false, true);
    EXPECT_THAT(reported(), ElementsAre("REPORT: Global not preset properly: ivl_x"));
    preset_global_int("ivl_x", OPTION_GLOBAL, 1, false, true);
    preset_global_int("ivl_y", SAVE_NONE, 1, false, true);
    EXPECT_THAT(reported(), IsEmpty());
}

TEST_F(PresettingASetting, an_integer_of_a_wrong_name_is_reported_and_not_made) {
    preset_global_int("rvl_x", OPTION_GLOBAL, 1, false, false);
    EXPECT_EQ(global_variables.size(), 0u);
    EXPECT_THAT(reported(), ElementsAre("*** ERROR: Integer globals should start with 'i': 'rvl_x'"));
}

TEST_F(PresettingASetting, another_type_of_a_wrong_name_is_reported_and_made_as_its_letter_tells) {
    preset_global_bool("rvl_x", OPTION_GLOBAL, true);
    preset_global_string("ivl_x", OPTION_GLOBAL, "12", false);
    EXPECT_EQ(reported().size(), 2u);
    EXPECT_EQ(get_global_double("rvl_x"), 1.0);
    EXPECT_EQ(get_global_int("ivl_x"), 12);
}

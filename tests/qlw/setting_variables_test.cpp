#include "qlw/setting_variables.h"

#include "settings_fixture.h"

#include <limits>
#include <memory>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::vector<std::unique_ptr<cl_variable_base>> one_of_each_class() {
    std::vector<std::unique_ptr<cl_variable_base>> variables;
    variables.push_back(std::make_unique<cl_variable_int>("ivl_x", SAVE_NONE));
    variables.push_back(std::make_unique<cl_variable_string>("svl_x", SAVE_NONE, ""));
    variables.push_back(std::make_unique<cl_variable_double>("rvl_x", SAVE_NONE, 0.0));
    variables.push_back(std::make_unique<cl_variable_fpt>("pvl_x", SAVE_NONE, fpt{}));
    variables.push_back(std::make_unique<cl_variable_COLORREF>("cvl_x", SAVE_NONE));
    return variables;
}

class SettingSaveType : public settings_fixture {};
class SettingInProfile : public settings_fixture {};

} // namespace

TEST(SettingVariable, each_class_has_its_type_number_and_starts_unwritten) {
    std::int32_t type = 1;
    for (const auto& variable : one_of_each_class()) {
        EXPECT_EQ(variable->variable_type, type++);
        EXPECT_EQ(variable->save_type, SAVE_NONE);
        EXPECT_EQ(variable->value_set, 0);
    }
}

TEST(SettingVariable, a_setting_starts_with_zero_or_with_what_its_constructor_got) {
    EXPECT_EQ(cl_variable_int("i", SAVE_NONE).value, 0);
    EXPECT_EQ(cl_variable_COLORREF("c", SAVE_NONE).value, 0u);
    EXPECT_EQ(cl_variable_string("s", SAVE_NONE, "start").value, "start");
    EXPECT_EQ(cl_variable_double("r", SAVE_NONE, 2.5).value, 2.5);
    EXPECT_EQ(cl_variable_fpt("p", SAVE_NONE, {1, 2, 3}).value, (fpt{1, 2, 3}));
}

TEST(IntegerSetting, answers_as_integer_text_and_double_and_with_zero_otherwise) {
    cl_variable_int variable("ivl_x", SAVE_NONE);
    variable.set_int(-7);
    EXPECT_EQ(variable.get_int(), -7);
    EXPECT_EQ(variable.get_string(), "-7");
    EXPECT_EQ(variable.get_double(), -7.0);
    EXPECT_EQ(variable.get_fpt(), (fpt{}));
    EXPECT_EQ(variable.get_COLORREF(), 0u);
}

TEST(IntegerSetting, takes_the_decimal_number_of_a_text) {
    cl_variable_int variable("ivl_x", SAVE_NONE);
    variable.set_string("800 pixels");
    EXPECT_EQ(variable.value, 800);
    variable.set_string("4294967295");
    EXPECT_EQ(variable.value, -1);
    variable.set_string("many");
    EXPECT_EQ(variable.value, 0);
}

TEST(IntegerSetting, a_double_is_cut_toward_zero) {
    cl_variable_int variable("ivl_x", SAVE_NONE);
    variable.set_double(2.9);
    EXPECT_EQ(variable.value, 2);
    variable.set_double(-2.9);
    EXPECT_EQ(variable.value, -2);
}

TEST(IntegerSetting, a_double_beyond_32_bits_becomes_the_lowest_integer) {
    cl_variable_int variable("ivl_x", SAVE_NONE);
    constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
    for (const double number : {2147483648.0, -1e300, std::numeric_limits<double>::quiet_NaN()}) {
        variable.set_double(number);
        EXPECT_EQ(variable.value, lowest) << number;
    }
    variable.set_double(2147483647.9);
    EXPECT_EQ(variable.value, 2147483647);
    variable.set_double(-2147483648.9);
    EXPECT_EQ(variable.value, lowest);
}

TEST(IntegerSetting, points_and_colours_are_not_taken) {
    cl_variable_int variable("ivl_x", SAVE_NONE);
    variable.set_int(5);
    variable.set_fpt({1, 2, 3});
    variable.set_COLORREF(9);
    EXPECT_EQ(variable.value, 5);
}

TEST(StringSetting, answers_as_text_and_as_the_number_at_its_start) {
    cl_variable_string variable("svl_x", SAVE_NONE, "12.75 m");
    EXPECT_EQ(variable.get_string(), "12.75 m");
    EXPECT_EQ(variable.get_int(), 12);
    EXPECT_EQ(variable.get_double(), 12.75);
    EXPECT_EQ(variable.get_fpt(), (fpt{}));
    EXPECT_EQ(variable.get_COLORREF(), 0u);
}

TEST(StringSetting, takes_numbers_as_their_text) {
    cl_variable_string variable("svl_x", SAVE_NONE, "");
    variable.set_int(-3);
    EXPECT_EQ(variable.value, "-3");
    variable.set_double(1.0 / 3.0);
    EXPECT_EQ(variable.value, "0.333333333");
    variable.set_double(1e-8);
    EXPECT_EQ(variable.value, "0");
    variable.set_fpt({1, 2, 3});
    variable.set_COLORREF(9);
    EXPECT_EQ(variable.value, "0");
}

TEST(DoubleSetting, the_text_of_a_double_below_1e_7_is_zero) {
    EXPECT_EQ(cl_variable_double("r", SAVE_NONE, 1e-8).get_string(), "0");
    EXPECT_EQ(cl_variable_double("r", SAVE_NONE, -1e-8).get_string(), "0");
    EXPECT_EQ(cl_variable_double("r", SAVE_NONE, -1e-7).get_string(), "-1e-07");
    EXPECT_EQ(cl_variable_double("r", SAVE_NONE, 1.23).get_string(), "1.23");
}

TEST(DoubleSetting, the_integer_of_a_double_is_rounded_and_an_exact_half_downwards) {
    EXPECT_EQ(cl_variable_double("r", SAVE_NONE, 2.50001).get_int(), 3);
    EXPECT_EQ(cl_variable_double("r", SAVE_NONE, 2.5).get_int(), 2);
    EXPECT_EQ(cl_variable_double("r", SAVE_NONE, 2.9).get_int(), 3);
    EXPECT_EQ(cl_variable_double("r", SAVE_NONE, -2.5).get_int(), -3);
}

TEST(DoubleSetting, the_integer_of_a_large_double_keeps_its_low_32_bits) {
    EXPECT_EQ(cl_variable_double("r", SAVE_NONE, 4294967295.0).get_int(), -1);
    EXPECT_EQ(cl_variable_double("r", SAVE_NONE, 4294967298.0).get_int(), 2);
    EXPECT_EQ(cl_variable_double("r", SAVE_NONE, 1e300).get_int(), 0);
    EXPECT_EQ(cl_variable_double("r", SAVE_NONE, std::numeric_limits<double>::quiet_NaN()).get_int(), 0);
}

TEST(DoubleSetting, takes_integers_and_texts) {
    cl_variable_double variable("rvl_x", SAVE_NONE, 0);
    variable.set_int(-4);
    EXPECT_EQ(variable.get_double(), -4.0);
    variable.set_string("0.5 and more");
    EXPECT_EQ(variable.get_double(), 0.5);
    variable.set_fpt({1, 2, 3});
    variable.set_COLORREF(9);
    EXPECT_EQ(variable.get_double(), 0.5);
    EXPECT_EQ(variable.get_fpt(), (fpt{}));
    EXPECT_EQ(variable.get_COLORREF(), 0u);
}

TEST(PointSetting, the_text_of_a_point_has_small_components_as_zero) {
    EXPECT_EQ(cl_variable_fpt("p", SAVE_NONE, {1, 0.00000001, 2}).get_string(), "(1, 0, 2)");
}

TEST(PointSetting, reads_a_text_in_parentheses_alone) {
    cl_variable_fpt variable("pvl_x", SAVE_NONE, {9, 9, 9});
    variable.set_string("( 1, 2,\t3)");
    EXPECT_EQ(variable.value, (fpt{1, 2, 3}));
    variable.set_string("(1,2)");
    EXPECT_EQ(variable.value, (fpt{1, 2, 0}));
    variable.set_string("(1 ,2,3)"); // no white space is passed over in front of a comma
    EXPECT_EQ(variable.value, (fpt{1, 0, 0}));
    variable.set_string("1,2,3");
    EXPECT_EQ(variable.value, (fpt{0, 0, 0}));
}

TEST(PointSetting, numbers_and_colours_are_not_taken_and_answered_with_zero) {
    cl_variable_fpt variable("pvl_x", SAVE_NONE, {1, 2, 3});
    variable.set_int(5);
    variable.set_double(5);
    variable.set_COLORREF(5);
    EXPECT_EQ(variable.get_fpt(), (fpt{1, 2, 3}));
    EXPECT_EQ(variable.get_int(), 0);
    EXPECT_EQ(variable.get_double(), 0.0);
    EXPECT_EQ(variable.get_COLORREF(), 0u);
}

TEST(ColorSetting, has_no_text_of_its_own) {
    cl_variable_COLORREF variable("cvl_x", SAVE_NONE);
    variable.set_COLORREF(0x1000FF);
    EXPECT_EQ(variable.get_string(), "");
    EXPECT_EQ(variable.get_double(), 0.0);
    EXPECT_EQ(variable.get_fpt(), (fpt{}));
}

TEST(ColorSetting, an_integer_sets_all_32_bits_and_a_colour_24) {
    cl_variable_COLORREF variable("cvl_x", SAVE_NONE);
    variable.set_int(0x12345678);
    EXPECT_EQ(variable.get_int(), 0x12345678);
    EXPECT_EQ(variable.get_COLORREF(), 0x345678u);
    variable.set_COLORREF(0x12345678);
    EXPECT_EQ(variable.get_int(), 0x345678);
}

TEST(ColorSetting, takes_a_text_by_the_rules_of_colour_texts) {
    cl_variable_COLORREF variable("cvl_x", SAVE_NONE);
    variable.set_string("#ff0010");
    EXPECT_EQ(variable.value, 0x1000FFu);
    variable.set_double(3);
    variable.set_fpt({1, 2, 3});
    EXPECT_EQ(variable.value, 0x1000FFu);
}

TEST(SettingDefault, a_setting_takes_the_default_of_its_own_type_alone) {
    auto variables = one_of_each_class();
    for (const auto& variable : variables) {
        variable->set_default_int(4);
        variable->set_default_string("four");
        variable->set_default_double(4.5);
        variable->set_default_fpt({4, 5, 6});
        variable->set_default_COLORREF(0xFF000004);
        EXPECT_EQ(variable->get_int(), 0) << variable->name;
        variable->restore_default();
    }
    EXPECT_EQ(variables[0]->get_int(), 4);
    EXPECT_EQ(variables[1]->get_string(), "four");
    EXPECT_EQ(variables[2]->get_double(), 4.5);
    EXPECT_EQ(variables[3]->get_fpt(), (fpt{4, 5, 6}));
    EXPECT_EQ(variables[4]->get_int(), static_cast<std::int32_t>(0xFF000004)); // a default is not masked
}

TEST(SettingDefault, a_point_within_1e_7_of_its_default_stays) {
    cl_variable_fpt variable("pvl_x", SAVE_NONE, {1.00000005, 2, 3});
    variable.set_default_fpt({1, 2, 3});
    variable.restore_default();
    EXPECT_EQ(variable.value.x, 1.00000005);
    variable.set_fpt({1.0000002, 2, 3});
    variable.restore_default();
    EXPECT_EQ(variable.value.x, 1.0);
}

TEST_F(SettingSaveType, a_change_into_each_stored_type_is_reported) {
    cl_variable_int variable("ivl_x", SAVE_NONE);
    variable.set_save_type(SAVE_PROFILE);
    variable.set_save_type(SAVE_DATABASE);
    variable.set_save_type(OPTION_GLOBAL);
    variable.set_save_type(OPTION_NON_DATABASE_GLOBAL);
    const auto line = [](const char* text) {
        return traced_line{"setting_variables", "cl_variable_base::set_save_type", text};
    };
    EXPECT_THAT(trace.take(), ElementsAre(line("REPORT: Setting save type to SAVE_PROFILE from (1): ivl_x"),
                                          line("REPORT: Setting save type to SAVE_DATABASE: ivl_x"),
                                          line("REPORT: Setting save type to OPTION_GLOBAL: ivl_x"),
                                          line("REPORT: Setting save type to OPTION_NON_DATABASE_GLOBAL: ivl_x")));
    EXPECT_EQ(variable.save_type, OPTION_NON_DATABASE_GLOBAL);
}

TEST_F(SettingSaveType, the_type_that_a_setting_has_is_set_in_silence) {
    for (const save_types type : {SAVE_PROFILE, SAVE_DATABASE, OPTION_GLOBAL, OPTION_NON_DATABASE_GLOBAL}) {
        cl_variable_int variable("ivl_x", type);
        variable.set_save_type(type);
    }
    EXPECT_THAT(reported(), IsEmpty());
}

TEST_F(SettingSaveType, a_setting_never_leaves_the_stored_types_again) {
    for (const save_types type : {SAVE_UNKNOWN, SAVE_NONE, SAVE_NONE_6, SAVE_NONE_7, SAVE_NONE_8}) {
        cl_variable_int variable("ivl_x", OPTION_GLOBAL);
        variable.set_save_type(type);
        EXPECT_EQ(variable.save_type, OPTION_GLOBAL) << type;
    }
    EXPECT_THAT(reported(), IsEmpty());
}

TEST_F(SettingInProfile, each_class_writes_its_own_form) {
    for (const save_types type : {SAVE_PROFILE, OPTION_NON_DATABASE_GLOBAL}) {
        profile.written.clear();
        cl_variable_int integer("ivl_x", type);
        integer.value = -5;
        integer.write_to_profile(profile);
        cl_variable_string("svl_x", type, "a b").write_to_profile(profile);
        cl_variable_double("rvl_x", type, 0.5).write_to_profile(profile);
        cl_variable_fpt("pvl_x", type, {1, 2.5, -3}).write_to_profile(profile);
        cl_variable_COLORREF color("cvl_x", type);
        color.value = 0x1000FF;
        color.write_to_profile(profile);
        EXPECT_THAT(profile.written,
                    ElementsAre("Globals/ivl_x=int -5", "Globals/svl_x=a b", "Globals/rvl_x=double 0.5",
                                "Globals/pvl_x_x=double 1", "Globals/pvl_x_y=double 2.5", "Globals/pvl_x_z=double -3",
                                "Globals/cvl_x=#ff0010"))
            << type;
    }
}

TEST_F(SettingInProfile, nothing_is_written_for_the_other_save_types) {
    for (const save_types type :
         {SAVE_UNKNOWN, SAVE_NONE, SAVE_DATABASE, OPTION_GLOBAL, SAVE_NONE_6, SAVE_NONE_7, SAVE_NONE_8}) {
        for (const auto& variable : one_of_each_class()) {
            variable->save_type = type;
            variable->write_to_profile(profile);
        }
    }
    EXPECT_THAT(profile.written, IsEmpty());
}

TEST_F(SettingInProfile, each_class_reads_its_own_form_whatever_the_save_type) {
    profile.values = {{"Globals/ivl_x", "12"},  {"Globals/svl_x", "text"}, {"Globals/rvl_x", "0.25"},
                      {"Globals/pvl_x_x", "1"}, {"Globals/pvl_x_z", "3"},  {"Globals/cvl_x", "#0a0b0c"}};
    auto variables = one_of_each_class();
    for (const auto& variable : variables)
        variable->read_from_profile(profile);
    EXPECT_EQ(variables[0]->get_int(), 12);
    EXPECT_EQ(variables[1]->get_string(), "text");
    EXPECT_EQ(variables[2]->get_double(), 0.25);
    EXPECT_EQ(variables[3]->get_fpt(), (fpt{1, 0, 3}));
    EXPECT_EQ(variables[4]->get_int(), 0x0C0B0A);
}

TEST_F(SettingInProfile, what_the_profile_lacks_becomes_zero_and_is_asked_for_loudly) {
    auto variables = one_of_each_class();
    for (const auto& variable : variables) {
        variable->set_int(5);
        variable->set_fpt({5, 5, 5});
        variable->read_from_profile(profile);
        EXPECT_EQ(variable->get_int(), 0) << variable->name;
        EXPECT_EQ(variable->get_fpt(), (fpt{})) << variable->name;
    }
    EXPECT_EQ(variables[1]->get_string(), "");
    EXPECT_EQ(profile.loud_reads, 7); // three of them for the point
}

#include "qlw/registry_access.h"

#include "profile_fixture.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RegistryAccess : public profile_fixture {};

// What each way of reading reports at level 1.
traced_line of_text(const std::string& message) {
    return {"registry_access", "cl_registry_result::read_registry_entry", "REPORT: " + message};
}
traced_line of_int(const std::string& message) {
    return {"registry_access", "get_int_from_registry", "REPORT: " + message};
}
traced_line of_double(const std::string& message) {
    return {"registry_access", "get_double_from_registry", "REPORT: " + message};
}

TEST_F(RegistryAccess, a_text_is_read_by_its_path) {
    registry->put_text("HKLM\\SOFTWARE\\Maker\\Owner", "Ann");
    EXPECT_EQ(get_string_from_registry("HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Owner", "nobody", false), "Ann");
    EXPECT_EQ(get_string_from_registry("HKEY_CURRENT_USER\\SOFTWARE\\Maker\\Owner", "nobody", true), "nobody");
    EXPECT_THAT(reported(), IsEmpty());
}

TEST_F(RegistryAccess, a_result_holds_data_size_and_type) {
    registry->put_text("HKLM\\SOFTWARE\\Maker\\Owner", "Ann");
    cl_registry_result result;
    EXPECT_EQ(result.size, 4096u);
    ASSERT_TRUE(result.read_registry_entry("HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Owner", "CString", false));
    EXPECT_EQ(result.text(), "Ann");
    EXPECT_EQ(result.size, 4u); // with the closing zero
    EXPECT_EQ(result.type, 1u);
}

TEST_F(RegistryAccess, the_buffer_is_zeroed_before_each_read) {
    registry->put_text("HKLM\\SOFTWARE\\Maker\\Owner", "Ann");
    cl_registry_result result;
    ASSERT_TRUE(result.read_registry_entry("HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Owner", "CString", false));
    EXPECT_FALSE(result.read_registry_entry("HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Other", "CString", false));
    EXPECT_EQ(result.text(), "");
    EXPECT_EQ(result.size, 4096u);
}

TEST_F(RegistryAccess, a_path_without_a_backslash_gives_the_default_and_a_line) {
    EXPECT_EQ(get_string_from_registry("Owner", "nobody", true), "nobody");
    EXPECT_EQ(get_string_from_registry("\\Owner", "nobody", true), "nobody");
    EXPECT_EQ(get_int_from_registry("Owner", 7, true), 7);
    EXPECT_EQ(get_double_from_registry("Owner", 7.5, true), 7.5);
    EXPECT_THAT(reported(), ElementsAre(of_text("Cannot parse registry key Owner - Key must contain a backslash"),
                                        of_text("Cannot parse registry key \\Owner - Key must contain a backslash"),
                                        of_int("Cannot parse registry key Owner - Key must contain a backslash"),
                                        of_double("Cannot parse registry key Owner - Key must contain a backslash")));
}

TEST_F(RegistryAccess, a_path_without_a_key_between_hive_and_value_gives_the_same_line) {
    EXPECT_EQ(get_string_from_registry("HKEY_LOCAL_MACHINE\\Owner", "nobody", true), "nobody");
    EXPECT_EQ(get_int_from_registry("HKEY_LOCAL_MACHINE\\Owner", 7, true), 7);
    EXPECT_THAT(
        reported(),
        ElementsAre(of_text("Cannot parse registry key HKEY_LOCAL_MACHINE\\Owner - Key must contain a backslash"),
                    of_int("Cannot parse registry key HKEY_LOCAL_MACHINE\\Owner - Key must contain a backslash")));
}

TEST_F(RegistryAccess, any_third_hive_gives_the_default_and_a_line) {
    EXPECT_EQ(get_string_from_registry("HKEY_CLASSES_ROOT\\a\\b", "nobody", true), "nobody");
    EXPECT_EQ(get_int_from_registry("HKEY_USERS\\a\\b", 7, true), 7);
    EXPECT_EQ(get_double_from_registry("HKEY_USERS\\a\\b", 7.5, true), 7.5);
    EXPECT_THAT(reported(), ElementsAre(of_text("Registry key must start with HKEY: HKEY_CLASSES_ROOT\\a\\b"),
                                        of_int("Registry key must start with HKEY: HKEY_USERS\\a\\b"),
                                        of_double("Registry key must start with HKEY: HKEY_USERS\\a\\b")));
}

TEST_F(RegistryAccess, a_text_under_the_32_bit_branch_of_the_local_machine_is_found_on_the_second_try) {
    registry->put_text("HKLM\\SOFTWARE\\WOW6432Node\\Maker\\Owner", "Ann");
    EXPECT_EQ(get_string_from_registry("HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Owner", "nobody", true), "Ann");
    EXPECT_EQ(registry->reads, 2);
}

TEST_F(RegistryAccess, a_missing_value_in_a_key_that_exists_is_looked_for_in_the_32_bit_branch) {
    registry->put_text("HKLM\\SOFTWARE\\Maker\\Other", "x");
    registry->put_text("HKLM\\SOFTWARE\\WOW6432Node\\Maker\\Owner", "Ann");
    EXPECT_EQ(get_string_from_registry("HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Owner", "nobody", false), "Ann");
    EXPECT_THAT(reported(), IsEmpty());
}

TEST_F(RegistryAccess, there_is_no_second_try_under_the_current_user_or_outside_software) {
    registry->put_text("HKCU\\SOFTWARE\\WOW6432Node\\Maker\\Owner", "Ann");
    EXPECT_EQ(get_string_from_registry("HKEY_CURRENT_USER\\SOFTWARE\\Maker\\Owner", "nobody", true), "nobody");
    EXPECT_EQ(get_string_from_registry("HKEY_LOCAL_MACHINE\\SYSTEM\\Maker\\Owner", "nobody", true), "nobody");
    EXPECT_EQ(registry->reads, 2);
}

TEST_F(RegistryAccess, numbers_are_not_looked_for_in_the_32_bit_branch) {
    registry->put_number("HKLM\\SOFTWARE\\WOW6432Node\\Maker\\Count", 4, std::int32_t{5});
    EXPECT_EQ(get_int_from_registry("HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Count", 7, true), 7);
    EXPECT_EQ(registry->reads, 1);
}

TEST_F(RegistryAccess, a_missing_key_is_told_once_for_each_try_unless_it_is_expected) {
    get_string_from_registry("HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Owner", "nobody", true);
    EXPECT_THAT(reported(), IsEmpty());
    get_string_from_registry("HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Owner", "nobody", false);
    EXPECT_THAT(reported(),
                ElementsAre(of_text("Cannot locate registry entry: HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Owner"),
                            of_text("Cannot locate registry entry: HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Owner")));
    get_int_from_registry("HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Count", 7, true);
    EXPECT_THAT(reported(), IsEmpty());
    get_int_from_registry("HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Count", 7, false);
    get_double_from_registry("HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Size", 7, false);
    EXPECT_THAT(
        reported(),
        ElementsAre(of_int("Cannot locate registry entry: Count: HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Count"),
                    of_double("Cannot locate registry entry: Size: HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Size")));
}

TEST_F(RegistryAccess, a_number_in_the_place_of_a_text_is_an_error) {
    registry->put_number("HKLM\\SOFTWARE\\Maker\\Owner", 4, std::int32_t{5});
    registry->put_text("HKLM\\SOFTWARE\\WOW6432Node\\Maker\\Owner", "Ann");
    EXPECT_EQ(get_string_from_registry("HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Owner", "nobody", true), "nobody");
    EXPECT_THAT(reported(), ElementsAre(traced_line{"registry_access", "cl_registry_result::read_registry_entry",
                                                    "*** ERROR: Cannot parse registry key - Value is not a CString: "
                                                    "HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Owner (4)",
                                                    in_a_dialog}));
}

TEST_F(RegistryAccess, a_text_that_exceeds_the_buffer_counts_as_missing) {
    registry->put_text("HKLM\\SYSTEM\\Maker\\Fits", std::string(4095, 'x'));
    registry->put_text("HKLM\\SYSTEM\\Maker\\Long", std::string(4096, 'x'));
    EXPECT_EQ(get_string_from_registry("HKEY_LOCAL_MACHINE\\SYSTEM\\Maker\\Fits", "-", true), std::string(4095, 'x'));
    EXPECT_EQ(get_string_from_registry("HKEY_LOCAL_MACHINE\\SYSTEM\\Maker\\Long", "-", true), "-");
}

TEST_F(RegistryAccess, numbers_are_read_in_the_form_of_their_type) {
    registry->put_number("HKCU\\Software\\Maker\\Count", 4, std::int32_t{-5});
    registry->put_number("HKCU\\Software\\Maker\\Size", 3, 2.5);
    EXPECT_EQ(get_int_from_registry("HKEY_CURRENT_USER\\Software\\Maker\\Count", 7, false), -5);
    EXPECT_EQ(get_double_from_registry("HKEY_CURRENT_USER\\Software\\Maker\\Size", 7, false), 2.5);
    EXPECT_THAT(reported(), IsEmpty());
}

TEST_F(RegistryAccess, a_text_in_the_place_of_a_number_gives_the_default_and_a_line) {
    registry->put_text("HKCU\\Software\\Maker\\Count", "5");
    EXPECT_EQ(get_int_from_registry("HKEY_CURRENT_USER\\Software\\Maker\\Count", 7, true), 7);
    EXPECT_EQ(get_double_from_registry("HKEY_CURRENT_USER\\Software\\Maker\\Count", 7.5, true), 7.5);
    EXPECT_THAT(reported(), ElementsAre(of_int("Cannot parse registry key - Value is not a DWORD: Count: "
                                               "HKEY_CURRENT_USER\\Software\\Maker\\Count (1)"),
                                        of_double("Cannot parse registry key - Value is not a Double: Count: "
                                                  "HKEY_CURRENT_USER\\Software\\Maker\\Count (1)")));
}

TEST_F(RegistryAccess, a_number_of_the_wrong_size_gives_the_default) {
    registry->put_number("HKCU\\Software\\Maker\\Count", 4, std::int16_t{5});
    registry->put_number("HKCU\\Software\\Maker\\Size", 3, 2.5F);
    EXPECT_EQ(get_int_from_registry("HKEY_CURRENT_USER\\Software\\Maker\\Count", 7, true), 7);
    EXPECT_EQ(get_double_from_registry("HKEY_CURRENT_USER\\Software\\Maker\\Size", 7.5, true), 7.5);
}

TEST_F(RegistryAccess, an_exception_of_the_registry_gives_the_default_and_a_line) {
    registry->throws_on_read = true;
    EXPECT_EQ(get_int_from_registry("HKEY_CURRENT_USER\\Software\\Maker\\Count", 7, true), 7);
    EXPECT_EQ(get_double_from_registry("HKEY_CURRENT_USER\\Software\\Maker\\Size", 7.5, true), 7.5);
    EXPECT_THAT(reported(), ElementsAre(of_int("Registry error: Count: HKEY_CURRENT_USER\\Software\\Maker\\Count"),
                                        of_double("Registry error: Size: HKEY_CURRENT_USER\\Software\\Maker\\Size")));
}

TEST_F(RegistryAccess, a_system_without_a_registry_answers_with_the_default) {
    reset_profile_state();
    EXPECT_EQ(get_string_from_registry("HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Owner", "nobody", true), "nobody");
    EXPECT_EQ(get_int_from_registry("HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Count", 7, true), 7);
    EXPECT_EQ(get_double_from_registry("HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Size", 7.5, true), 7.5);
    EXPECT_THAT(reported(), IsEmpty());
}

} // namespace

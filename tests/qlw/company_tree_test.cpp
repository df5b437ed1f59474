#include "profile_fixture.h"
#include "qlw/registry_access.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CompanyTree : public profile_fixture {};

traced_line refusal(const std::string& message) {
    return {"company_tree", "set_registry_string_data", "*** ERROR: " + message, in_a_dialog};
}

TEST_F(CompanyTree, a_text_written_into_it_goes_to_the_common_section_of_the_programs_own_file) {
    EXPECT_EQ(set_registry_string_data("SOFTWARE\\Quillon Systems\\QLW DEBUG\\LastSKP", "/models/a.skp"), 1);
    EXPECT_EQ(ini("Tessaline"), "[Common]\r\nLastSKP=/models/a.skp\r\n");
    EXPECT_THAT(registry->keys, IsEmpty());
    EXPECT_THAT(reported(), IsEmpty());
}

TEST_F(CompanyTree, what_is_known_of_the_user_is_read_from_the_profile) {
    write_ini("Profile", "[Common]\nPhone=1\nEmail=2\nUser Name=3\nCompany=4\nFax=5\n");
    EXPECT_EQ(get_from_registry_both("SOFTWARE\\Quillon Systems\\Phone", "-"), "1");
    EXPECT_EQ(get_from_registry_both("SOFTWARE\\Quillon Systems\\Email", "-"), "2");
    EXPECT_EQ(get_from_registry_both("SOFTWARE\\Quillon Systems\\Tessaline\\User Name", "-"), "3");
    EXPECT_EQ(get_from_registry_both("SOFTWARE\\Quillon Systems\\Company", "-"), "4");
    EXPECT_EQ(get_from_registry_both("SOFTWARE\\Quillon Systems\\Fax", "-"), "-");
}

TEST_F(CompanyTree, anything_else_is_read_from_the_file_named_as_the_last_folder) {
    write_ini("QLW DEBUG", "[Common]\nLastSKP=/models/a.skp\n");
    write_ini("Quillon Systems", "[Common]\nFax=5\n");
    EXPECT_EQ(get_from_registry_both("SOFTWARE\\Quillon Systems\\QLW DEBUG\\LastSKP", "-"), "/models/a.skp");
    EXPECT_EQ(get_from_registry_both("SOFTWARE\\Quillon Systems\\Fax", "-"), "5");
}

TEST_F(CompanyTree, an_empty_text_in_the_file_hides_the_registry) {
    write_ini("Profile", "[Common]\nPhone=\n");
    registry->put_text("HKCU\\SOFTWARE\\Quillon Systems\\Phone", "1");
    EXPECT_EQ(get_from_registry_both("SOFTWARE\\Quillon Systems\\Phone", "-"), "");
}

TEST_F(CompanyTree, what_the_file_lacks_is_read_from_the_current_user_and_then_from_the_local_machine) {
    registry->put_text("HKLM\\SOFTWARE\\Quillon Systems\\Phone", "machine");
    EXPECT_EQ(get_from_registry_both("SOFTWARE\\Quillon Systems\\Phone", "-"), "machine");
    registry->put_text("HKCU\\SOFTWARE\\Quillon Systems\\Phone", "user");
    EXPECT_EQ(get_from_registry_both("SOFTWARE\\Quillon Systems\\Phone", "-"), "user");
    registry->put_text("HKCU\\SOFTWARE\\Quillon Systems\\Phone", "");
    EXPECT_EQ(get_from_registry_both("SOFTWARE\\Quillon Systems\\Phone", "-"), "machine");
    EXPECT_THAT(reported(), IsEmpty());
}

TEST_F(CompanyTree, a_path_outside_it_is_never_looked_for_in_a_file) {
    write_ini("Maker", "[Common]\nOwner=file\n");
    EXPECT_EQ(get_from_registry_both("SOFTWARE\\Maker\\Owner", "-"), "-");
    registry->put_text("HKCU\\SOFTWARE\\Maker\\Owner", "user");
    EXPECT_EQ(get_from_registry_both("SOFTWARE\\Maker\\Owner", "-"), "user");
}

TEST_F(CompanyTree, a_key_under_the_azure_branch_stays_in_the_registry) {
    registry->put_text("HKLM\\SOFTWARE\\Other", "");
    const std::string path = "SOFTWARE\\Quillon Systems\\Profile\\Globals\\Azure\\Token";
    EXPECT_EQ(set_registry_string_data("HKEY_LOCAL_MACHINE\\" + path, "abc"), 1);
    EXPECT_EQ(registry->text("HKLM\\" + path), "abc");
    EXPECT_FALSE(has_ini("Tessaline"));
    write_ini("Azure", "[Common]\nToken=file\n");
    EXPECT_EQ(get_from_registry_both(path, "-"), "abc");
}

TEST_F(CompanyTree, a_text_outside_it_is_written_with_the_keys_above_it) {
    registry->put_text("HKLM\\SOFTWARE\\Other", "");
    EXPECT_EQ(set_registry_string_data("HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Part\\Owner", "Ann"), 1);
    EXPECT_EQ(registry->text("HKLM\\SOFTWARE\\Maker\\Part\\Owner"), "Ann");
    EXPECT_TRUE(registry->keys.contains("hklm\\software\\maker"));
    EXPECT_EQ(set_registry_string_data("HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Part\\Owner", "Bob"), 1);
    EXPECT_EQ(registry->text("HKLM\\SOFTWARE\\Maker\\Part\\Owner"), "Bob");
    EXPECT_THAT(reported(), IsEmpty());
}

TEST_F(CompanyTree, a_malformed_path_is_refused_with_an_error) {
    EXPECT_EQ(set_registry_string_data("Owner", "Ann"), 0);
    EXPECT_EQ(set_registry_string_data("HKEY_LOCAL_MACHINE\\Owner", "Ann"), 0);
    EXPECT_THAT(reported(), ElementsAre(refusal("Cannot parse registry key: 'Owner' Key must contain a backslash"),
                                        refusal("Cannot parse registry key: 'HKEY_LOCAL_MACHINE\\Owner' "
                                                "Key must contain a backslash")));
}

TEST_F(CompanyTree, the_current_user_is_not_written) {
    registry->put_text("HKCU\\Software\\Other", "");
    EXPECT_EQ(set_registry_string_data("HKEY_CURRENT_USER\\Software\\Maker\\Owner", "Ann"), 0);
    EXPECT_EQ(registry->text("HKCU\\Software\\Maker\\Owner"), "(missing)");
    EXPECT_FALSE(registry->keys.contains("hkcu\\software\\maker"));
}

TEST_F(CompanyTree, no_hive_but_that_of_the_local_machine_is_written) {
    registry->put_text("HKLM\\SOFTWARE\\Other", "");
    for (const char* hive : {"HKEY_USERS", "HKEY_CLASSES_ROOT"}) {
        EXPECT_EQ(set_registry_string_data(std::string(hive) + "\\SOFTWARE\\Maker\\Owner", "Ann"), 0) << hive;
        EXPECT_EQ(registry->text("HKLM\\SOFTWARE\\Maker\\Owner"), "(missing)") << hive;
    }
    EXPECT_THAT(reported(), IsEmpty());
}

TEST_F(CompanyTree, a_failed_write_is_reported_with_the_step_that_failed) {
    EXPECT_EQ(set_registry_string_data("HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Owner", "Ann"), 0);
    registry->put_text("HKLM\\SOFTWARE\\Other", "");
    registry->takes_keys = false;
    EXPECT_EQ(set_registry_string_data("HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Owner", "Ann"), 0);
    registry->takes_keys = true;
    registry->takes_values = false;
    EXPECT_EQ(set_registry_string_data("HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Owner", "Ann"), 0);
    const std::string path = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Owner";
    EXPECT_THAT(trace.take(),
                ElementsAre(refusal("Cannot create registry key: " + path + ":  nextpiece could not be opened"),
                            refusal("Cannot create registry key: " + path + ":  Key value could not be created"),
                            refusal("Cannot set registry key: " + path + ": Value cannot be set")));
}

} // namespace

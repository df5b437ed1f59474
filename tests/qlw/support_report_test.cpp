// What support is told of the machine and its user.

#include "qlw/support_report.h"

#include "memory_registry.h"
#include "platform/platform.h"
#include "qlw/profile_state.h"
#include "qlw/qlw_globals.h"
#include "qlw/qlw_std.h"
#include "tests/support/environment.h"
#include "tests/support/trace_capture.h"
#include "text/letter_case.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace {

const std::string nt = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\";
const std::string windows = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\";
const std::string own = "SOFTWARE\\Quillon Systems\\";

class SupportReport : public testing::Test {
protected:
    SupportReport() { forget_all(); }
    ~SupportReport() override { forget_all(); }

    static void forget_all() {
        reset_settings();
        reset_profile_state();
    }

    support_facts facts() const {
        return gather_support_facts([this](const std::string& path) {
            const auto found = stored.find(path);
            return found == stored.end() ? std::string() : found->second;
        });
    }

    std::map<std::string, std::string> stored; // registry path to text
    trace_capture capture;
};

TEST_F(SupportReport, has_one_line_for_each_fact_and_no_other) {
    support_facts facts;
    facts.date = "Thursday, January 01, 1970";
    facts.computer = "DRAWING-BOARD";
    facts.company = "Larch & Partners";
    facts.phone = "555 0100";
    facts.user = "Ada Larch";
    facts.email = "ada@larch.example";
    facts.owner = "Larch";
    facts.system_version = "Windows 7 Build: 7601 Service Pack 1";
    facts.sketchup_version = "17.2.2555";
    EXPECT_EQ(support_report_text(facts), "     #Date: 'Thursday, January 01, 1970'\r\n"
                                          "     #Computer: 'DRAWING-BOARD'\r\n"
                                          "     #Product: 'Tessaline'\r\n"
                                          "     #Version: 'SC26w'\r\n"
                                          "     #Build: 'SC26w Tuesday, March 26, 2019'\r\n"
                                          "     #Base: 'Tessaline'\r\n"
                                          "     #Company: 'Larch & Partners'\r\n"
                                          "     #Phone: '555 0100'\r\n"
                                          "     #User: 'Ada Larch'\r\n"
                                          "     #Email: 'ada@larch.example'\r\n"
                                          "     #Owner: 'Larch'\r\n"
                                          "     #TL: 'zql'\r\n"
                                          "     #TC: 'zql'\r\n"
                                          "     #VC: '10'\r\n"
                                          "     #Windows: 'Windows 7 Build: 7601 Service Pack 1'\r\n"
                                          "     #SU Version: '17.2.2555'\r\n");
}

TEST_F(SupportReport, names_the_user_that_the_profile_names) {
    const temporary_folder home;
    const with_settings_folder profile(home.name());
    home.write("Quillon Systems/Profile.ini",
               "[Common]\r\nPhone=123\r\nEmail=Ann@Example.com\r\nUser Name=Ann\r\nCompany=Example\r\n");
    reset_profile_state();
    const std::string report = get_support_report();
    reset_profile_state();
    for (const char* line : {"     #Phone: '123'\r\n", "     #Email: 'ann@example.com'\r\n", "     #User: 'Ann'\r\n",
                             "     #Company: 'Example'\r\n"})
        EXPECT_NE(report.find(line), std::string::npos) << line << report;
}

TEST_F(SupportReport, of_a_machine_without_registry_names_date_computer_and_system) {
    if (!platform::lives_on_the_console)
        GTEST_SKIP() << "this system has a registry";
    const temporary_folder home;
    const with_settings_folder profile(home.name());
    const with_environment date("SOURCE_DATE_EPOCH", "951782400"); // 2000-02-29 00:00 UTC
    EXPECT_EQ(get_support_report(), "     #Date: 'Tuesday, February 29, 2000'\r\n"
                                    "     #Computer: '" +
                                        in_capitals(platform::computer_name()) +
                                        "'\r\n"
                                        "     #Product: 'Tessaline'\r\n"
                                        "     #Version: 'SC26w'\r\n"
                                        "     #Build: 'SC26w Tuesday, March 26, 2019'\r\n"
                                        "     #Base: 'Tessaline'\r\n"
                                        "     #Company: ''\r\n"
                                        "     #Phone: ''\r\n"
                                        "     #User: ''\r\n"
                                        "     #Email: ''\r\n"
                                        "     #Owner: ''\r\n"
                                        "     #TL: 'zql'\r\n"
                                        "     #TC: 'zql'\r\n"
                                        "     #VC: '10'\r\n"
                                        "     #Windows: '" +
                                        get_windows_version_text() +
                                        "'\r\n"
                                        "     #SU Version: ''\r\n");
}

TEST_F(SupportReport, takes_what_is_known_of_the_user_from_the_profile) {
    const temporary_folder home;
    const with_settings_folder profile(home.name());
    home.write("Quillon Systems/Profile.ini", "[Common]\r\nCompany=Larch & Partners\r\nPhone=555 0100\r\n"
                                              "User Name=Ada Larch\r\nEmail=Ada@Larch.Example\r\n");
    EXPECT_THAT(get_support_report(), testing::HasSubstr("     #Company: 'Larch & Partners'\r\n"
                                                         "     #Phone: '555 0100'\r\n"
                                                         "     #User: 'Ada Larch'\r\n"
                                                         "     #Email: 'ada@larch.example'\r\n"));
}

TEST_F(SupportReport, takes_what_the_machine_knows_from_the_registry) {
    const temporary_folder home;
    const with_settings_folder profile(home.name());
    auto registry = std::make_unique<memory_registry>();
    registry->put_text("HKLM\\SYSTEM\\CurrentControlSet\\Control\\ComputerName\\ActiveComputerName\\ComputerName",
                       "drawing-board");
    registry->put_text("HKLM\\SOFTWARE\\WOW6432Node\\Microsoft\\Windows NT\\CurrentVersion\\RegisteredOwner", "Larch");
    registry->put_text("HKCU\\SOFTWARE\\Microsoft\\MS Setup (ACME)\\User Info\\DefCompany", "Larch & Partners");
    registry->put_text("HKLM\\SOFTWARE\\Quillon Systems\\Phone", "555 0100");
    registry->put_text("HKCU\\SOFTWARE\\Quillon Systems\\Email", "Ada@Larch.Example");
    profile_state().registry = std::move(registry);
    const std::string report = get_support_report();
    EXPECT_THAT(report, testing::HasSubstr("     #Computer: 'DRAWING-BOARD'\r\n"));
    EXPECT_THAT(report, testing::HasSubstr("     #Company: 'Larch & Partners'\r\n"
                                           "     #Phone: '555 0100'\r\n"
                                           "     #User: 'Larch'\r\n"
                                           "     #Email: 'ada@larch.example'\r\n"
                                           "     #Owner: 'Larch'\r\n"));
    EXPECT_EQ(capture.text().find("REPORT: Cannot locate"), std::string::npos); // what is missing is expected to be
}

TEST_F(SupportReport, ends_in_the_two_notes_that_a_caller_left) {
    trace_state().notes = {"8.0.4811", "first note\r\n", "second note\r\n"};
    EXPECT_TRUE(get_support_report().ends_with("     #SU Version: '8.0.4811'\r\nfirst note\r\nsecond note\r\n"));
}

TEST_F(SupportReport, takes_phone_user_and_owner_as_they_are_stored) {
    stored = {{own + "Phone", "555 0100"}, {own + "User Name", "Ada Larch"}, {nt + "RegisteredOwner", "Larch"}};
    EXPECT_EQ(facts().phone, "555 0100");
    EXPECT_EQ(facts().user, "Ada Larch");
    EXPECT_EQ(facts().owner, "Larch");
}

TEST_F(SupportReport, writes_the_mail_address_in_lower_case) {
    stored = {{own + "Email", "Ada@Larch.Example"}};
    EXPECT_EQ(facts().email, "ada@larch.example");
}

TEST_F(SupportReport, writes_the_stored_name_of_the_computer_in_capitals) {
    stored = {{"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\ComputerName\\ActiveComputerName\\ComputerName",
               "drawing-board"}};
    EXPECT_EQ(facts().computer, "DRAWING-BOARD");
}

TEST_F(SupportReport, looks_for_the_owner_in_the_older_place_if_the_newer_is_empty) {
    stored = {{windows + "RegisteredOwner", "Older"}};
    EXPECT_EQ(facts().owner, "Older");
    stored[nt + "RegisteredOwner"] = "Newer";
    EXPECT_EQ(facts().owner, "Newer");
}

TEST_F(SupportReport, names_the_owner_as_user_if_nobody_or_a_nameless_user_is_stored) {
    stored = {{nt + "RegisteredOwner", "Larch"}};
    EXPECT_EQ(facts().user, "Larch");
    stored[own + "User Name"] = "Windows User";
    EXPECT_EQ(facts().user, "Larch");
    stored[own + "User Name"] = "windows user";
    EXPECT_EQ(facts().user, "windows user");
}

TEST_F(SupportReport, names_the_first_company_that_it_finds) {
    stored["HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\MS Setup (ACME)\\User Info\\DefCompany"] = "fifth";
    EXPECT_EQ(facts().company, "fifth");
    stored[windows + "RegisteredOrganization"] = "fourth";
    EXPECT_EQ(facts().company, "fourth");
    stored[nt + "RegisteredOrganization"] = "third";
    EXPECT_EQ(facts().company, "third");
    stored[own + "Company"] = "second";
    EXPECT_EQ(facts().company, "second");
    set_global_string("scomm_company", "first");
    EXPECT_EQ(facts().company, "first");
}

TEST_F(SupportReport, adds_the_company_setting_for_this_run_only) {
    facts();
    EXPECT_EQ(get_global_names(), std::vector<std::string>{"scomm_company"});
    EXPECT_EQ(global_variables.lookup("scomm_company")->save_type, SAVE_NONE);
}

TEST(BuildDate, is_encoded_in_the_version_text) {
    EXPECT_EQ(build_date_text("SC26w"), "Tuesday, March 26, 2019");     // S is 83: 2019; C is 67: 3
    EXPECT_EQ(build_date_text("TB29w"), "Saturday, February 29, 2020"); // T is 84: 2020; B is 66: 2
    EXPECT_EQ(build_date_text("SL01"), "Sunday, December 01, 2019");    // L is 76: 12
}

TEST(BuildDate, is_empty_for_a_text_that_is_no_date_code) {
    for (const char* text : {"", "SC", "SC2", "SCxxw", "SC32w", "SC00w", "SM01w", "S@01w", "SB29w"})
        EXPECT_EQ(build_date_text(text), "") << text;
}

} // namespace

// What the system tells of itself, the user and the process.

#include "platform/platform.h"
#include "tests/support/environment.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace {

bool is_full_name_of_a_folder(const std::string& name) {
    return name.size() > 3 && name[1] == ':' && name[2] == '\\' && !name.ends_with('\\') && platform::is_folder(name);
}

TEST(WindowsSystem, known_folders_are_full_names_of_folders_that_exist) {
    const with_environment unset("APPDATA", std::nullopt);
    EXPECT_TRUE(is_full_name_of_a_folder(platform::home_folder())) << platform::home_folder();
    EXPECT_TRUE(is_full_name_of_a_folder(platform::user_config_folder())) << platform::user_config_folder();
    EXPECT_TRUE(is_full_name_of_a_folder(platform::documents_folder())) << platform::documents_folder();
    EXPECT_TRUE(is_full_name_of_a_folder(platform::shared_ini_folder())) << platform::shared_ini_folder();
}

TEST(WindowsSystem, settings_lie_where_the_variable_says_if_that_is_a_full_name) {
    const with_environment appdata("APPDATA", "D:\\settings\\");
    EXPECT_EQ(platform::user_config_folder(), "D:\\settings");
    const with_environment relative("APPDATA", "settings");
    EXPECT_NE(platform::user_config_folder(), "settings");
}

TEST(WindowsSystem, the_version_is_in_numbers) {
    const platform::os_version version = platform::system_version();
    EXPECT_EQ(version.description, "");
    EXPECT_EQ(version.platform_id, 2);
    EXPECT_GE(version.major, 6);
    EXPECT_GT(version.build, 0);
}

TEST(WindowsSystem, the_computer_has_a_name) {
    EXPECT_EQ(platform::computer_name(), platform::environment_variable("COMPUTERNAME").value_or("no variable"));
}

TEST(WindowsSystem, the_command_line_is_the_text_as_typed_whatever_the_arguments_are) {
    const char* const others[] = {"other", "arguments"};
    EXPECT_EQ(platform::raw_command_line(2, others), GetCommandLineA());
}

TEST(WindowsSystem, letters_that_the_code_page_lacks_are_escaped_so_that_names_stay_different) {
    if (GetACP() != 1252)
        GTEST_SKIP() << "another code page";
    EXPECT_EQ(platform::own_from_utf8("K\xc3\xb6"
                                      "ff \xe2\x82\xac"),
              "K\xf6"
              "ff \x80");                                                          // the euro sign has a place
    EXPECT_EQ(platform::own_from_utf8("\xe6\x9c\xa8_12.png"), "%e6%9c%a8_12.png"); // the tree
    EXPECT_EQ(platform::own_from_utf8("\xf0\x9f\x8c\xb3!"), "%f0%9f%8c%b3!");      // beyond 16 bits
    EXPECT_EQ(platform::own_from_utf8("\xe2\x88\x95"), "%e2%88%95"); // like a slash, and no way out of a folder
    EXPECT_EQ(platform::utf8_from_own("K\xf6"
                                      "ff \x80"),
              "K\xc3\xb6"
              "ff \xe2\x82\xac");
}

} // namespace
